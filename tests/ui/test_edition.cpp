// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Résultats" while it changes the base: editing by hand, and the filter.

#include <QApplication>
#include <QListWidget>
#include <QTest>
#include <QTimer>

#include "base/Stockage.h"
#include "dialogs/MontantJackpotBox.h"
#include "soutien/EssaiResultats.h"
#include "widgets/TableRapports.h"

using namespace norvane::ui::essais;

namespace {

/// Types in a cell of a prize table, as the user does.
void taper(TableRapports* table, int rang, int colonne, const QString& texte) {
    table->setCurrentCell(rang, colonne);
    table->editItem(table->item(rang, colonne));
    const QModelIndex cellule = table->model()->index(rang, colonne);
    auto* editeur = qobject_cast<QLineEdit*>(table->indexWidget(cellule));
    QVERIFY(editeur != nullptr);
    editeur->selectAll();
    QTest::keyClick(editeur, Qt::Key_Delete);
    QTest::keyClicks(editeur, texte);
    QTest::keyClick(editeur, Qt::Key_Return);
    QCoreApplication::processEvents();  // the editor gives its text when all keys are done
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Does something in the filter's dialog, which it closes, while Button75 has it open.
template <typename Geste>
void dansLeFiltre(Essai& e, Geste geste) {
    bool ouverte = false;
    QTimer::singleShot(0, e.page.get(), [&] {
        auto* boite = qobject_cast<TMontantJackpotBox*>(QApplication::activeModalWidget());
        ouverte = boite != nullptr;
        if (ouverte) geste(*boite);
    });
    e.cliquer({u"Button75"});
    QVERIFY(ouverte);
}

void presser(const TMontantJackpotBox& boite, const QString& nom) {
    boite.findChild<QAbstractButton*>(nom)->click();
}

QListWidgetItem* entree(const TMontantJackpotBox& boite, int liste, int ligne) {
    return boite.findChild<QListWidget*>(u"RxCheckListBox%1"_s.arg(liste))->item(ligne);
}

QString coches(const TMontantJackpotBox& boite) {
    QString image;
    for (int liste = 1; liste <= 4; ++liste) {
        const auto* w = boite.findChild<QListWidget*>(u"RxCheckListBox%1"_s.arg(liste));
        for (int k = 0; k < w->count(); ++k)
            image += w->item(k)->checkState() == Qt::Checked ? u'1' : u'0';
    }
    return image;
}

const QString Plein = u"00000"_s + QString(12, u'0') + QString(31, u'0') + u"0000010"_s;

}  // namespace

class TestEdition final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void modification() {
        Essai e(false);
        const int n = e.base().NbTirages;
        e.montrer(n - 1);  // the 1er Tirage of the last date
        const Tirage avant = e.record(n - 2);
        e.cliquer({u"MajBaseManuelle"});
        QCOMPARE(e.mode(), Mode::MiseAJour);
        e.presser({1});  // the board does nothing yet
        QVERIFY(e.tenus().empty());
        e.repondre({CodeBouton2});
        e.cliquer({u"AjoutLibre"});  // asked, and not wanted
        QCOMPARE(e.demandes(), QStringList{u"Modification de l'enregistrement en cours ?"_s});
        QCOMPARE(e.de(u"AjoutLibre"_s)->text(), u"&Modifier"_s);
        e.cliquer({u"AjoutLibre"});
        QCOMPARE(e.de(u"AjoutLibre"_s)->text(), u"&Valider"_s);
        QCOMPARE(e.de(u"AjoutLibre"_s)->toolTip(), u"Valider les modifications en mémoire"_s);
        QVERIFY(e.allumes().empty() && e.tenus() == boutonsDe(avant));

        e.demandes();
        e.cliquer({u"DeSelect"});
        QCOMPARE(e.texte(u"Label1"_s), QString());
        e.presser({40, 3, 2, 1, 4, 5});
        e.cliquer({u"AjoutLibre"});
        e.presser({59});
        QCOMPARE(e.demandes(), (QStringList{u"Pas plus de 5 numéros par tirage..."_s,
                                            u"1 chance par tirage..."_s}));
        QCOMPARE(e.texte(u"Label5"_s) + e.texte(u"Label6"_s), u"4010"_s);
        auto* table = e.de<TableRapports>(u"AdvStringGrid6"_s);
        taper(table, 2, TableRapports::Gagnants, u"1234"_s);
        QCOMPARE(table->item(2, 1)->text(), u"1\u00A0234"_s);
        taper(table, 2, TableRapports::Montants, u"5678,5"_s);
        QCOMPARE(table->item(2, 2)->text(), u"5\u00A0678,50 €"_s);
        taper(table, 2, TableRapports::Montants, u"rien"_s);  // not taken
        QCOMPARE(table->item(2, 2)->text(), u"5\u00A0678,50 €"_s);
        table->editItem(table->item(2, 2));
        QCOMPARE(table->findChild<QLineEdit*>()->text(), u"5678,50"_s);
        QTest::keyClick(table->findChild<QLineEdit*>(), Qt::Key_Escape);
        taper(table, 2, TableRapports::Gagnants, u""_s);
        e.cliquer({u"AjoutLibre"});
        QCOMPARE(e.demandes(),
                 QStringList{u"Tous les champs du tableau des rapports ne sont pas remplis."_s});
        taper(table, 2, TableRapports::Gagnants, u"1234"_s);
        auto* joker = e.de<QLineEdit>(u"MaskEdit1"_s);
        QVERIFY(!joker->isReadOnly());
        joker->clear();
        QTest::keyClicks(joker, u"12345"_s);
        QCOMPARE(e.de(u"AjoutLibre"_s)->text(), u"&Valider"_s);
        // A link from another page does not take the record away.
        QVERIFY(e.page->ouvrir(VersTirage{7, {}}));
        QCOMPARE(e.numero()->text(), QString::number(n - 1));
        e.demandes();
        e.cliquer({u"AjoutLibre"});  // the Joker+ is not whole: nothing is told
        QCOMPARE(e.demandes(), QStringList());
        QTest::keyClicks(joker, u"67"_s);
        e.cliquer({u"AjoutLibre"});
        QCOMPARE(e.demandes(), QStringList());
        QCOMPARE(e.de(u"AjoutLibre"_s)->text(), u"&Modifier"_s);
        QCOMPARE(e.mode(), Mode::AjoutLibre);
        QVERIFY(joker->isReadOnly());
        const Tirage& t = e.record(n - 2);
        QCOMPARE(e.numero()->text(), QString::number(n - 1));
        QCOMPARE(e.texte(u"LabelTirageFixeNum"_s), u"89"_s);
        QCOMPARE(e.allumes(), boutonsDe(t));
        QVERIFY(std::ranges::equal(t.Numeros, std::array{1, 2, 3, 4, 40}) && t.Chance == 10);
        QCOMPARE(t.Joker, 1234567);
        QCOMPARE(e.base().Rapports[static_cast<std::size_t>(n - 2)][2], (Rapport{1234, 5678.5}));
        QVERIFY(e.banc.existe(NomStockage));
    }

    void ajoutDesDeuxTirages() {
        Essai e(false);
        const int n = e.base().NbTirages;
        e.cliquer({u"MajBaseManuelle"});
        e.dater(20240727);
        QCOMPARE(absence(e), QString());
        e.selecteur()->setCurrentIndex(0);
        for (const int sousTirage : {1, 2}) {
            if (sousTirage == 2) {
                e.selecteur()->setCurrentIndex(1);  // the date has none yet
                QCOMPARE(absence(e), QString());
            }
            e.cliquer({u"AjoutLibre"});
            QCOMPARE(e.mode(), Mode::AjoutLibre);
            QCOMPARE(e.texte(u"LabelTirageFixeAn"_s), u"2024"_s);
            QCOMPARE(e.texte(u"LabelTirageFixeNum"_s), u"90"_s);
            e.presser({7, 17, 27, 37, 47});
            if (sousTirage == 1) e.presser({50});
            e.demandes();
            e.cliquer({u"AjoutLibre"});
            QCOMPARE(
                e.demandes(),
                QStringList{u"Tous les champs du tableau des rapports ne sont pas remplis."_s});
            e.cliquer({u"VideRapports"});
            // The second one is proposed the Joker+ of the first.
            if (sousTirage == 1) QTest::keyClicks(e.de<QLineEdit>(u"MaskEdit1"_s), u"0000042"_s);
            e.cliquer({u"AjoutLibre"});
            QCOMPARE(e.base().NbTirages, n + sousTirage);
            QCOMPARE(e.numero()->text(), QString::number(n + sousTirage));
            const Tirage& t = e.record(n + sousTirage - 1);
            QCOMPARE(t, (Tirage{{7, 17, 27, 37, 47},
                                sousTirage == 1 ? 1 : 0,
                                t.DateForclusion,
                                202490,
                                20240727,
                                sousTirage,
                                42}));
        }
        // The 1er goes: its date stays on show, by the 2nd.
        e.montrer(n + 1);
        e.repondre({CodeBouton2});
        e.cliquer({u"SupprGrille"});
        QCOMPARE(e.base().NbTirages, n + 2);
        e.cliquer({u"SupprGrille"});
        QCOMPARE(e.base().NbTirages, n + 1);
        QVERIFY(e.date()->date() == 20240727 && e.selecteur()->currentIndex() == 1);
        e.cliquer({u"SupprGrille"});
        QCOMPARE(e.numero()->text(), QString::number(n));
        e.selecteur()->setCurrentIndex(0);
        e.dater(20240729);
        e.cliquer({u"AjoutLibre", u"MajBaseManuelle"});  // given up
        QCOMPARE(e.base().NbTirages, n);
        QCOMPARE(absence(e), QString());
    }

    void filtre() {
        Essai e(false);
        const std::vector<Tirage> entiere = e.base().Tirages;
        const int n = e.base().NbTirages;
        dansLeFiltre(e,
                     [](const TMontantJackpotBox& boite) { presser(boite, u"AnnulerFiltre"_s); });
        QCOMPARE(e.base().NbTirages, n);
        auto& fichiers = *e.banc.scripts.fichiers;
        dansLeFiltre(e, [&](const TMontantJackpotBox& boite) {
            entree(boite, 1, 2)->setCheckState(Qt::Checked);
            entree(boite, 1, 4)->setCheckState(Qt::Checked);  // one at a time
            entree(boite, 2, 0)->setCheckState(Qt::Checked);
            entree(boite, 4, 5)->setCheckState(Qt::Checked);
            QString attendus = Plein;
            attendus[4] = attendus[5] = u'1';
            QCOMPARE(coches(boite), attendus);
            presser(boite, u"Vider1"_s);
            presser(boite, u"Vider2"_s);
            QCOMPARE(coches(boite), Plein);
            fichiers.reponse = versQt(e.banc.chemin("samedis").string());
            presser(boite, u"EnregistrerFiltre"_s);
            presser(boite, u"Vider4"_s);
            fichiers.reponse = versQt(e.banc.chemin("samedis.flt").string());
            presser(boite, u"OuvrirFiltre"_s);
            QCOMPARE(coches(boite), Plein);
            e.banc.ecrire("samedis.flt", "1 0");
            presser(boite, u"OuvrirFiltre"_s);  // told, and nothing changes
            QCOMPARE(coches(boite), Plein);
            presser(boite, u"AppliquerFiltre"_s);
        });
        QCOMPARE(fichiers.demandes.size(), 3);
        QCOMPARE(fichiers.demandes[0],
                 u"Enregistrer le filtre défini|Fichiers de Filtres de base (*.flt)"_s);
        QCOMPARE(fichiers.demandes[1],
                 u"Ouvrir vos filtres personnels|Fichiers de Filtres de base (*.flt)|"_s);
        QCOMPARE(e.demandes().size(), 1);
        QVERIFY(e.banc.atelier.FiltreActif);
        int samedis = 0;
        for (const Tirage& t : entiere) samedis += JourSemaine(t.DateTirage) == 5;
        QCOMPARE(e.base().NbTirages, samedis);
        QCOMPARE(ecartAvec(e, samedis - 1), QString());
        QCOMPARE(e.de(u"Button75"_s)->text(), u"&Retour à la base totale des tirages"_s);
        QCOMPARE(e.de(u"Button75"_s)->toolTip(), u"Revenir à la base totale des tirages"_s);
        e.cliquer({u"MajBaseManuelle"});
        QCOMPARE(e.demandes(), QStringList{u"La base des tirages est filtrée..."_s});
        QCOMPARE(e.mode(), Mode::Normal);
        e.cliquer({u"Button75"});
        QCOMPARE(e.base().Tirages, entiere);
        QCOMPARE(ecartAvec(e, n - 1), QString());
        QCOMPARE(e.de(u"Button75"_s)->text(), u"&Filtrer la base des tirages"_s);
        // It opens as it was left; what keeps everything is refused.
        dansLeFiltre(e, [](const TMontantJackpotBox& boite) {
            QCOMPARE(coches(boite), Plein);
            presser(boite, u"Vider4"_s);
            presser(boite, u"AppliquerFiltre"_s);
        });
        QCOMPARE(e.demandes(),
                 QStringList{u"Tous les tirages ont été conservés suite au filtre défini..."_s});
        QVERIFY(!e.banc.atelier.FiltreActif);
    }
};

QTEST_MAIN(TestEdition)
#include "test_edition.moc"
