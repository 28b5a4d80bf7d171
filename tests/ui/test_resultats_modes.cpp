// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Résultats" under the user's hand: free choice, marks, what each state lets him do.

#include <QPushButton>
#include <QTest>

#include "soutien/EssaiResultats.h"

using namespace norvane::ui::essais;

namespace {

const Grille Simple = FaireGrille({9, 8, 7, 6, 5}, {10}, false);

enum class Depart { Normal, Grilles, Recu, Consultation };

/// A state of the page: how it is reached, and what the user finds there.
struct CasEtat {
    Depart depart;
    QString clics;
    QString image;   ///< of the controls below: + answers, - does not, . is hidden
    QString textes;  ///< mode, hint of NormalMode, and the captions below, as they stand
};

const QString Controles =
    u"DateTimePicker ComboBox3 EditTirGlob UpDown1 CaseJoker  "
    u"Rapports PanneauAleatoire PanneauJoker  "
    u"Edit1 CheckBox2ND RadioButtonSimple RadioButtonJeu AddGrille SupprGrille SupprAllGrilles  "
    u"ReInit CommunsButton DeSelect ProgressBarBilan NormalMode VerifGains ChargerGrilles "
    u"ButtonSauverGrilles SelectGrilles Consultation MajBaseManuelle  "
    u"AjoutLibre VideRapports Button75"_s;

QString imageDe(const Essai& e) {
    QString image;
    for (const QString& nom : Controles.split(u' ')) {
        if (nom.isEmpty()) {  // between two groups
            image += u' ';
            continue;
        }
        auto* w = e.de<QWidget>(nom);
        const auto* champ = qobject_cast<QLineEdit*>(w);
        const bool repond = w->isEnabled() && (champ == nullptr || !champ->isReadOnly());
        // The card of the ticket may lie under its text: what stands on it is told all the same.
        const bool montre = w->objectName() == u"CheckBox2ND"_s || w->isVisibleTo(e.page.get());
        image += !montre ? u'.' : repond ? u'+' : u'-';
    }
    return image;
}

QString textesDe(const Essai& e) {
    QStringList textes{libelleMode(e.mode())};
    if (e.montre(u"NormalMode"_s)) textes << e.de(u"NormalMode"_s)->toolTip();
    for (const QString& nom : {u"VerifGains"_s, u"Consultation"_s, u"ReInit"_s})
        textes << e.de(nom)->text();
    return (textes << e.texte(u"TitreVolet"_s)).join(u'|');
}

}  // namespace

class TestResultatsModes final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void choixLibre() {
        Essai e(false);
        const Cases& choix = e.banc.atelier.choixLibre;
        e.cliquer({u"CommunsButton"});
        const std::set<int> tirage = e.allumes();
        e.cliquer({u"ReInit"});
        QVERIFY(e.allumes().empty() && e.tenus().empty());
        const int dedans = *tirage.begin();
        QList<int> presses{58, 50, dedans};
        for (int b = 1; presses.size() < 14; ++b) {  // up to any count
            if (b != dedans) presses << b;
        }
        e.presser(presses);
        const std::set<int> attendus(presses.begin(), presses.end());
        QCOMPARE(e.tenus(), attendus);
        e.presser({50, 50});  // up, and down again
        e.cliquer({u"ReInit"});
        QCOMPARE(e.allumes(), tirage);
        QCOMPARE(e.tenus(), attendus);
        QVERIFY(choix.chances == Ensemble({1, 9}) && choix.numeros.taille() == 12);

        e.montrer(5);  // browsing loses nothing of it
        e.montrer(e.base().NbTirages);
        QCOMPARE(e.tenus(), attendus);
        QVERIFY(e.page->ouvrir(VersTirage{7, {}}));  // from elsewhere: the choice is validated
        QCOMPARE(e.de(u"ReInit"_s)->text(), u"&Choix libre"_s);
        QCOMPARE(e.numero()->text(), u"7"_s);
        e.cliquer({u"DeSelect"});
        QVERIFY(e.tenus().empty() && choix.vide() && !e.montre(u"DeSelect"_s));
    }

    void marqueEnModeNormal() {
        Essai e(false);
        const int n = e.base().NbTirages;
        const Tirage& t = e.record(n - 1);
        const int allume = t.Numeros[2];
        const int gris = std::ranges::find(t.Numeros, 1) == std::end(t.Numeros) ? 1 : 48;
        const Cases& choix = e.banc.atelier.choixLibre;
        e.presser({gris, 59});  // grey buttons are inert
        QVERIFY(e.tenus().empty() && !e.montre(u"DeSelect"_s));
        const VersTirage lien{n, Element{GenreStats::Numeros, allume}};
        for (int fois = 0; fois < 2; ++fois) {  // only if it is up
            e.page->ouvrir(lien);
            QCOMPARE(e.tenus(), std::set<int>{allume});
            QVERIFY(e.montre(u"DeSelect"_s) && choix.numeros == Ensemble({allume}));
        }
        // It goes with the light of its number, and not before.
        for (int i = n - 2; !e.tenus().empty(); --i) {
            e.montrer(i + 1);
            QCOMPARE(!e.tenus().empty(), boutonsDe(e.record(i)).contains(allume));
            QCOMPARE(choix.vide(), e.tenus().empty());
        }
        e.page->ouvrir(lien);
        e.presser({allume});
        QVERIFY(choix.vide() && !e.montre(u"DeSelect"_s));
        e.presser({allume});
        e.selectionner(false);  // or with the lights
        QVERIFY(e.tenus().empty() && choix.vide());
        e.page->ouvrir(lien);  // no link ticks a ticket
        QVERIFY(e.tenus().empty());
    }

    void etats_data() {
        QTest::addColumn<CasEtat>("cas");
        using enum Depart;
        const auto cas = [](const char* nom, Depart depart, const QString& clics,
                            const QString& image, const QString& textes) {
            QTest::newRow(nom) << CasEtat{depart, clics, image, textes};
        };
        const QString saisie = u"----+ .+. -+..+++ -++.+---+-- ..-"_s;
        const QString numeros = u"&Vérifier gains|C&onsultation|&Choix libre|Numéros JOKER+"_s;
        const QString sort =
            u"|&Vérifier gains|C&onsultation|&Choix libre|Tirage au sort de grilles"_s;
        const QString selection = u"Mode Sélection|"_s;
        const QString retour = selection + u"Retour au mode Normal"_s;
        cas("normal", Normal, {}, u"+++++ +.. .-++... ++...++-+++ ..+"_s,
            u"Mode Normal|&Vérifier gains|C&onsultation|&Choix libre|Rapports du 2nd Tirage"_s);
        cas("choix", Normal, u"ReInit"_s, u"----+ +.. .-..... +.+..------ ..-"_s,
            u"Mode Normal|&Vérifier gains|C&onsultation|&OK!|Rapports du 2nd Tirage"_s);
        cas("grilles", Grilles, {}, saisie, retour + sort);
        cas("reçu", Recu, {}, saisie,
            selection + u"Passer à la saisie des Numéros Joker+"_s + sort);
        cas("vidé", Recu, u"SupprAllGrilles"_s, u"----+ .+. -+..+-- -++.+---+-- ..-"_s,
            retour + sort);
        cas("compte", Recu, u"NormalMode"_s, u"----+ ..+ .-..... -+..+------ ..-"_s,
            retour + u'|' + numeros);
        cas("date", Recu, u"NormalMode RadioJoker0 Button66"_s,
            u"----+ ..+ .-..... -+..+------ ..-"_s,
            retour + u"|&Vérifier gains|C&onsultation|&Choix libre|Participation du Reçu de Jeu"_s);
        const QString consultation =
            u"Mode Consultation|Retour au mode Normal|&Bilan Gains|&Terminer|&Choix libre|"_s;
        const QString premier = u"Rapports du 1er Tirage"_s;
        cas("consultation", Consultation, {}, u"+++++ +.. +-++.++ -+..++++-+- ..+"_s,
            consultation + premier);
        cas("du reçu", Consultation, u"RadioButtonJeu"_s, u"+++++ +.. +-++.++ -+..+++.-+- ..+"_s,
            u"Mode Consultation|Retour au mode Normal|&Vérifier gains|&Terminer|&Choix libre|"_s +
                premier);
        const QString edition =
            u"Mode Mise à jour|&Vérifier gains|C&onsultation|&Choix libre|Rapports du 2nd Tirage"_s;
        cas("mise à jour", Normal, u"MajBaseManuelle"_s, u"+++++ +.. .-...+. -+...------ +.-"_s,
            edition);
        cas("modification", Normal, u"MajBaseManuelle AjoutLibre"_s,
            u"----+ +.. .-..... -.+..-----+ ++."_s, edition);
        cas("abandon", Normal, u"MajBaseManuelle AjoutLibre MajBaseManuelle"_s,
            u"+++++ +.. .-...+. -+...------ +.-"_s, edition);
    }

    void etats() {
        QFETCH(CasEtat, cas);
        Essai e(false);
        if (cas.depart == Depart::Grilles || cas.depart == Depart::Recu)
            e.selectionner(cas.depart == Depart::Recu);
        if (cas.depart == Depart::Recu) e.presser({1, 2, 3, 4, 5, 50});
        if (cas.depart == Depart::Consultation) {
            e.billets().ListeChoix = e.billets().ListeRecu = {Simple};
            e.billets().aSauver = true;
            e.cliquer({u"Consultation"});
            e.montrer(e.base().NbTirages - 1);
        }
        for (const QString& clic : cas.clics.split(u' ', Qt::SkipEmptyParts)) e.de(clic)->click();
        QCOMPARE(imageDe(e), cas.image);
        QCOMPARE(textesDe(e), cas.textes);
        // Of two captions with the same key, one has it.
        const bool consulte = cas.depart == Depart::Consultation;
        QCOMPARE(e.de(u"NormalMode"_s)->text(), u"&Terminer"_s);
        QCOMPARE(e.de(u"NormalMode"_s)->shortcut().isEmpty(), consulte);
        if (cas.depart == Depart::Normal) return;
        // Back to the normal view: the draw, and the focus where the next entry begins.
        e.page->show();
        e.page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(e.page.get()));
        for (int fois = 0; fois < 2 && e.mode() != Mode::Normal; ++fois) e.cliquer({u"NormalMode"});
        QCOMPARE(e.mode(), Mode::Normal);
        QVERIFY(!e.allumes().empty() && e.tenus().empty());
        QCOMPARE(QApplication::focusWidget(), e.de(u"SelectGrilles"_s));
    }

    void regleOccupe() {
        Essai e(false);
        e.banc.atelier.activite.TraitementsEnCours = 1;
        for (const QString& nom :
             {u"SelectGrilles"_s, u"Consultation"_s, u"NormalMode"_s, u"ChargerGrilles"_s,
              u"VerifGains"_s, u"MajBaseManuelle"_s, u"Button75"_s}) {
            e.de(nom)->click();
            QCOMPARE(e.demandes(), QStringList{u"Attendez la fin du traitement en cours..."_s});
        }
        QVERIFY(e.mode() == Mode::Normal && e.banc.scripts.fichiers->demandes.isEmpty());
    }

    void clavier() {
        Essai e(false);
        e.page->show();
        e.page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(e.page.get()));
        const auto aller = [](Qt::Key touche) {
            QTest::keyClick(QApplication::focusWidget(), touche);
        };
        const auto ou = [] { return QApplication::focusWidget()->accessibleName(); };
        e.de(u"Button49"_s)->setFocus();
        aller(Qt::Key_Right);  // over the empty place behind 49
        QCOMPARE(ou(), u"Chance 9"_s);
        aller(Qt::Key_Up);
        aller(Qt::Key_Left);
        QCOMPARE(ou(), u"Numéro 40"_s);
        aller(Qt::Key_Down);  // nothing below 40
        QCOMPARE(ou(), u"Numéro 40"_s);
        // The tab key goes from left to right and down; the board is one stop, where it was left.
        e.date()->setFocus();
        QStringList tour;
        do {
            tour << QApplication::focusWidget()->objectName();
            aller(Qt::Key_Tab);
        } while (QApplication::focusWidget() != e.date() && tour.size() < 40);
        QCOMPARE(tour.join(u' '),
                 u"DateTimePicker ComboBox3 EditTirGlob MaskEdit1 Button40 AdvStringGrid8 "
                 u"RadioButtonSimple ReInit CommunsButton VerifGains ChargerGrilles SelectGrilles "
                 u"Consultation MajBaseManuelle Majweb Button75"_s);
        e.cliquer({u"ReInit"});
        e.de(u"Button40"_s)->setFocus();
        aller(Qt::Key_Return);
        QCOMPARE(e.tenus(), std::set<int>{40});
    }
};

QTEST_MAIN(TestResultatsModes)
#include "test_resultats_modes.moc"
