// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The list in memory by its sorts: their controls, the ranks they need, what "Détails" tells, and
// the advanced sort by gap.

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QSpinBox>
#include <QTimer>

#include "soutien/EssaiCombinaisons.h"

using namespace norvane::ui::essais;

namespace {

struct EssaiTri : EssaiCombinaisons {
    explicit EssaiTri(const Base& base) : EssaiCombinaisons(&base) {
        calculer(3);
        calculer(4);
        relais.aller(VersListe{});  // brings the page to front, on the list by bounds
    }
    const Liste& liste() const { return a.ListeMemoire; }
    /// All triples of a kind.
    void lister(int stockage) const {
        de("RadioGroup1Item%d", stockage)->click();
        calculer(3);
    }
    bool montre(const char* nom) const { return de<QWidget>(nom)->isVisible(); }
    int mot(std::size_t ligne, int bons, Critere critere) const {
        const auto bloc = static_cast<std::size_t>(liste().arene.disposition.bloc(bons));
        return liste().enregistrement(ligne)[bloc + static_cast<std::size_t>(critere)];
    }
    /// Whether each line compares rightly with the next one.
    template <typename Avant>
    bool range(Avant avant) const {
        for (std::size_t l = 0; l + 1 < liste().nombre(); ++l)
            if (!avant(l, l + 1)) return false;
        return liste().nombre() > 100;
    }
    QString details() const {
        banc.scripts.messages->posees.clear();
        de("BitBtnWithColor1")->click();
        return dernier();
    }
};

}  // namespace

class TestTri : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void trisEtRangs() {
        const Base base = petiteBase();
        const EssaiTri e(base);
        QCOMPARE(e.details(), u"La Liste en mémoire est vide..."_s);
        QVERIFY(!e.montre("ButtonTri") && !e.montre("ButtonTriProfondeur"));
        e.lister(0);
        QVERIFY(e.montre("ButtonTri") && !e.montre("CheckBoxProfondeur") &&
                !e.montre("ButtonTriProfondeur"));
        // Simple: nothing moves before the button is pressed.
        e.de("RadioGroupTriItem2")->click();
        e.de("RadioGroupOrdreItem0")->click();
        QCOMPARE(e.liste().tri.CritereTri, Critere::NbFois);
        e.de("ButtonTri")->click();
        QVERIFY(e.range([&](std::size_t a, std::size_t b) {
            return e.mot(a, 3, Critere::EcartMax) <= e.mot(b, 3, Critere::EcartMax);
        }));
        QCOMPARE(e.details(),
                 u"Combinaisons à 3 numéros\nNombre de combinaisons :  %1\nPremier rang stocké\n"
                 u"                        Type de Tri :  Simple sur le premier rang\n"
                 u"                      Critère de Tri :  EcartMax\n"
                 u"                                   Ordre :  Croissant"_s.arg(e.lignes()));
        // All ranks: by depth once they are filled.
        e.de("RadioGroupTriItem0")->click();
        e.lister(1);
        QVERIFY(e.montre("ButtonTriProfondeur") && e.montre("Label39") && !e.montre("EditRang"));
        e.de("ButtonTriProfondeur")->click();
        QVERIFY(e.de("ButtonTriProfondeur")->text() == u"STOP"_s && e.a.activite.occupe());
        e.finir();
        QVERIFY(!e.montre("ButtonTriProfondeur") && e.liste().NbCombRangs == e.liste().nombre());
        e.de("CheckBoxProfondeur")->click();
        QCOMPARE(e.texte("Label25"), u"Tri approfondi des combinaisons sur tous les rangs"_s);
        auto* rang = e.de<QLineEdit>("EditRang");
        QVERIFY(rang->isVisible() && rang->text() == u"3"_s);
        QTest::keyClick(rang, Qt::Key_Up);
        QCOMPARE(rang->text(), u"3"_s);
        QTest::keyClick(rang, Qt::Key_Down);
        QCOMPARE(rang->text(), u"2"_s);
        e.de("ButtonTri")->click();
        QCOMPARE(e.liste().tri, (EtatTri{TypeTri::Profondeur, Critere::NbFois, true, 2}));
        QVERIFY(e.range([&](std::size_t a, std::size_t b) {
            const auto cle = [&](std::size_t l) {
                return std::array{e.mot(l, 2, Critere::NbFois), e.mot(l, 1, Critere::NbFois),
                                  e.mot(l, 0, Critere::NbFois)};
            };
            return cle(a) <= cle(b);
        }));
        QVERIFY(
            e.details().contains(u"Profondeur sur tous les rangs\n         Rang de début de "
                                 u"tri :  2\n"_s));
        // One kind excludes the other; without any the controls go.
        e.de("CheckBoxGains")->click();
        QVERIFY(!e.de("CheckBoxProfondeur")->isChecked() && !e.montre("EditRang"));
        QCOMPARE(e.texte("Label25"), u"Tri des combinaisons ayant le plus ou moins rapporté"_s);
        e.de("ButtonTri")->click();
        QCOMPARE(e.liste().tri.TypeTriListe, TypeTri::Gain);
        e.de("CheckBoxTri")->click();
        for (const char* nom : {"ButtonTri", "RadioGroupTri", "RadioGroupOrdre", "CheckBoxGains",
                                "CheckBoxProfondeur", "Label39"})
            QVERIFY2(!e.montre(nom), nom);
        e.lister(2);
        QCOMPARE(e.liste().tri.TypeTriListe, TypeTri::Sans);
        QVERIFY(e.details().endsWith(u"Type de Tri :  Sans"_s));
    }

    void ecartAvance() {
        const Base base = petiteBase();
        const EssaiTri e(base);
        const auto regler = [&](const std::function<void(QDialog&)>& geste) {
            QTimer::singleShot(0, qApp, [geste] {
                auto* boite = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                QVERIFY(boite != nullptr);
                geste(*boite);
            });
            e.de("ButtonTEA")->click();
        };
        const auto champ = [](QDialog& boite, const char16_t* nom) {
            return boite.findChild<QSpinBox*>(QString::fromUtf16(nom));
        };
        regler([&](QDialog& boite) {
            auto* taille = boite.findChild<QComboBox*>();
            auto* rang = champ(boite, u"RxSpinEditRang");
            QVERIFY(taille->currentText() == u"COMB5"_s && taille->count() == 7);
            QVERIFY(rang->value() == 2 && champ(boite, u"RxSpinEditEcart")->maximum() == 300);
            taille->setCurrentIndex(2);
            QVERIFY(rang->value() == 5 && rang->maximum() == 5);
            taille->setCurrentIndex(0);
            QVERIFY(rang->value() == 4 && rang->maximum() == 4);
            rang->setValue(2);
            champ(boite, u"RxSpinEditEcart")->setValue(4);
            boite.findChild<QCheckBox*>()->setChecked(true);
            boite.accept();
        });
        QCOMPARE(e.a.triEcartAvance, (TriEcartAvance{true, 4, 2, 4}));
        for (int label = 13; label <= 19; ++label)
            QCOMPARE(e.de<QLabel>("RxLabel%d", label)->isVisible(), label == 13);
        // Of a list of that size the others go, and the status bar says how many stay.
        e.de("RadioGroup1Item1")->click();
        e.edit(4)->setText(u"1"_s);
        e.calculer(4);
        const Liste& liste = e.a.ListeMemoire;
        QVERIFY(liste.nombre() > 0 && liste.nombre() < 495);
        const auto bloc = static_cast<std::size_t>(liste.arene.disposition.bloc(2));
        for (std::size_t l = 0; l < liste.nombre(); ++l)
            QVERIFY(liste.enregistrement(l)[bloc + 1] >= 4);
        QCOMPARE(e.texte("PanneauTexte"),
                 u"Tri Ecart Avancé : %1 combinaisons gardées"_s.arg(liste.nombre()));
        QCOMPARE(liste.tri.TypeTriListe, TypeTri::Simple);
        e.calculer(3);  // another size keeps all
        QCOMPARE(liste.nombre(), std::size_t{18424});
        regler([](QDialog& boite) {
            boite.findChild<QCheckBox*>()->setChecked(false);
            boite.accept();
        });
        QVERIFY(!e.de<QLabel>("RxLabel13")->isVisible() && e.a.triEcartAvance.taille == 4);
    }
};

QTEST_MAIN(TestTri)
#include "test_tri.moc"
