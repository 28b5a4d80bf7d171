// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The board of the page "Résultats" under the user's hand: free choice, tickets, consultation.

#include <algorithm>
#include <QSignalSpy>
#include <QTest>

#include "soutien/EssaiResultats.h"

using namespace norvane::ui::essais;

class TestResultatsModes final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void choixLibre() {
        Essai e(false);
        auto* reinit = e.de(u"ReInit"_s);
        const QStringList bloques{u"DateTimePicker"_s, u"EditTirGlob"_s,  u"UpDown1"_s,
                                  u"ComboBox3"_s,      u"Consultation"_s, u"SelectGrilles"_s};
        e.de(u"CommunsButton"_s)->click();
        const std::set<int> tirage = e.allumes();
        QVERIFY(!e.montre(u"DeSelect"_s));
        reinit->click();
        QCOMPARE(reinit->text(), u"&OK!"_s);
        QCOMPARE(reinit->toolTip(), u"Validation de la sélection libre"_s);
        QVERIFY(e.allumes().empty() && e.tenus().empty());
        QVERIFY(e.montre(u"DeSelect"_s) && !e.montre(u"CommunsButton"_s));
        QVERIFY(!e.de(u"CommunsButton"_s)->isChecked());
        for (const QString& nom : bloques)
            QVERIFY2(!e.de<QWidget>(nom)->isEnabled(), qPrintable(nom));

        const int dedans = *tirage.begin();
        QList<int> presses{58, 50, dedans};
        for (int b = 1; presses.size() < 14; ++b) {  // up to any count
            if (b != dedans) presses << b;
        }
        e.presser(presses);
        const std::set<int> attendus(presses.begin(), presses.end());
        QCOMPARE(e.tenus(), attendus);
        e.presser({50, 50});  // up, and down again
        reinit->click();
        QCOMPARE(reinit->text(), u"&Choix libre"_s);
        QCOMPARE(reinit->toolTip(), u"Sélection libre de numéros à vérifier"_s);
        for (const QString& nom : bloques)
            QVERIFY2(e.de<QWidget>(nom)->isEnabled(), qPrintable(nom));
        QCOMPARE(e.allumes(), tirage);
        QCOMPARE(e.tenus(), attendus);
        QCOMPARE(e.page->choixLibre().chances, (std::vector<int>{1, 9}));
        QCOMPARE(e.page->choixLibre().numeros.size(), std::size_t{12});
        QVERIFY(std::ranges::is_sorted(e.page->choixLibre().numeros));

        e.page->montrerTirage(5);  // browsing loses nothing of it
        e.page->montrerTirage(e.base().NbTirages);
        QCOMPARE(e.tenus(), attendus);
        reinit->click();
        QCOMPARE(e.tenus(), attendus);
        e.page->quitterChoixEtConsultation();
        QCOMPARE(reinit->text(), u"&Choix libre"_s);
        e.de(u"DeSelect"_s)->click();
        QVERIFY(e.tenus().empty() && e.page->choixLibre().vide());
    }

    void marqueEnModeNormal() {
        Essai e(false);
        const Tirage& t = e.record(e.base().NbTirages - 1);
        const int allume = t.Numeros[2];
        const int gris = std::ranges::find(t.Numeros, 1) == std::end(t.Numeros) ? 1 : 48;
        e.presser({gris, 59});  // grey buttons are inert
        QVERIFY(e.tenus().empty());
        e.page->appuyer(GenreStats::Numeros, allume);
        e.page->appuyer(GenreStats::Numeros, allume);  // only if it is up
        QCOMPARE(e.tenus(), std::set<int>{allume});
        QCOMPARE(e.planche()->bouton(allume - 1)->police(), QColor(Qt::black));
        // It goes with the light of its number, and not before.
        for (int i = e.base().NbTirages - 2; !e.tenus().empty(); --i) {
            e.page->montrerTirage(i + 1);
            QCOMPARE(!e.tenus().empty(), boutonsDe(e.record(i)).contains(allume));
        }
    }

    void selectionDeGrilles() {
        Essai e(false);
        const Atelier& a = e.banc.atelier;
        const Modes& modes = e.banc.modes;
        auto* selection = e.de(u"SelectGrilles"_s);
        QSignalSpy change(e.page.get(), &Page::modeChange);
        QVERIFY(!e.montre(u"NormalMode"_s));
        e.repondre({CodeBouton2});
        selection->click();
        QCOMPARE(e.demandes(), QStringList{u"Passer en mode sélection de grilles ?"_s});
        e.repondre({CodeBouton1, CodeFerme});
        selection->click();
        QVERIFY(modes.ModeNormal && !modes.ModeSelection && change.isEmpty());
        e.demandes();

        e.repondre({CodeBouton1, CodeBouton2});
        selection->click();
        QCOMPARE(e.demandes().last(), u"S'agit-il de la saisie d'un Reçu de Jeu ?"_s);
        QVERIFY(modes.ModeSelection && !modes.ModeNormal && !modes.ModeRecu);
        QVERIFY(change.size() == 1 && e.montre(u"NormalMode"_s) && e.allumes().empty());
        QCOMPARE(e.texte(u"LabelSelection"_s), u"Grilles au choix"_s);
        e.presser({12, 3, 49, 20, 7});
        selection->click();
        QCOMPARE(e.demandes(), QStringList{u"La grille en cours n'est pas complète..."_s});
        QCOMPARE(e.texte(u"LabelMiseF"_s), QString());
        e.presser({52});
        QCOMPARE(e.texte(u"LabelCompteGrille"_s), u"5 + 1C"_s);
        QCOMPARE(e.texte(u"LabelMiseF"_s), u"2,20 €"_s);
        QCOMPARE(e.de<QLabel>(u"LabelMiseF"_s)->toolTip(), u"Montant en Francs : 14,43 F"_s);
        e.de(u"CheckBox2ND"_s)->click();
        QCOMPARE(e.texte(u"LabelMiseF"_s), u"3,00 €"_s);
        e.page->appuyer(GenreStats::Numeros, 30);  // no link from a table ticks a ticket
        e.repondre({CodeBouton2});
        selection->click();
        QVERIFY(modes.ModeSelection && a.ListeChoix.empty());
        selection->click();  // Oui: stored, and back to the normal view
        QCOMPARE(e.demandes().last(), u"Sélection d'une autre grille ?"_s);
        QVERIFY(modes.ModeNormal && !modes.ModeSelection && change.size() == 2);
        const Grille attendue = FaireGrille(std::vector{12, 3, 49, 20, 7}, std::vector{3}, true);
        QCOMPARE(a.ListeChoix, std::vector<Grille>{attendue});
        QCOMPARE(a.ListeGrilles, a.ListeChoix);
        QCOMPARE(e.allumes(), boutonsDe(e.record(e.base().NbTirages - 1)));

        // A receipt starts from nothing; the incomplete ticket in hand is dropped at its end.
        e.selectionner(true);
        QVERIFY(modes.ModeRecu && a.ListeGrilles.size() == 1);  // the open place
        e.presser({1, 2, 3, 4, 50});
        e.de(u"NormalMode"_s)->click();
        QVERIFY(a.ListeRecu.empty() && modes.ModeNormal && e.tenus().empty());
        QCOMPARE(a.ListeChoix.size(), std::size_t{1});

        // The stock goes on; closing the window keeps the complete ticket in hand.
        e.selectionner(false);
        e.presser({1, 2, 3, 4, 5, 50});
        e.page->rangerGrilleEnMain();
        QCOMPARE(a.ListeGrilles.size(), std::size_t{2});
    }

    void refusDeCocher() {
        const struct {
            int numeros, chances, bouton;
            QString refus;
        } cas[] = {{7, 8, 58,
                    u"Vous avez coché 7 numéros, vous ne pouvez pas cocher plus de 8 chances."_s},
                   {6, 10, 49,
                    u"Vous avez coché 10 chances, vous ne pouvez pas cocher plus de 6 numéros."_s},
                   {9, 1, 49, u"Vous ne pouvez pas cocher plus de 9 numéros."_s},
                   {9, 1, 51,
                    u"Vous avez coché 9 numéros, vous ne pouvez pas cocher plus de 1 chances."_s},
                   {7, 7, 57, QString()}};
        for (const auto& [numeros, chances, bouton, refus] : cas) {
            Essai e(false);
            e.selectionner(false);
            for (int i = 1; i <= numeros; ++i) e.presser({i});
            for (int i = 0; i < chances; ++i) e.presser({50 + i});
            e.demandes();
            const std::size_t avant = e.tenus().size();
            e.presser({bouton});
            QCOMPARE(e.demandes().value(0), refus);
            QCOMPARE(e.tenus().size(), avant + (refus.isEmpty() ? 1 : 0));
        }
    }

    void consultation() {
        Essai e(false);
        Atelier& a = e.banc.atelier;
        auto* bouton = e.de(u"Consultation"_s);
        QSignalSpy change(e.page.get(), &Page::modeChange);
        bouton->click();
        QCOMPARE(e.banc.scripts.messages->posees.last().detail,
                 u"Cliquez sur le bouton Sélection afin de saisir des grilles."_s);
        QCOMPARE(e.demandes(), QStringList{u"Aucune grille sélectionnée..."_s});
        QVERIFY(!e.banc.modes.ModeConsultation && change.isEmpty());

        a.ListeChoix = {FaireGrille(std::vector{9, 8, 7, 6, 5}, std::vector{10}, false),
                        FaireGrille(std::vector{1, 2, 3, 4, 5, 6}, std::vector{1, 2}, true)};
        e.de(u"ReInit"_s)->click();
        e.presser({44});
        e.de(u"ReInit"_s)->click();
        bouton->click();
        QVERIFY(e.banc.modes.ModeConsultation && change.size() == 1);
        QCOMPARE(bouton->text(), u"&Terminer"_s);
        QCOMPARE(bouton->toolTip(), u"Retour au mode normal"_s);
        QCOMPARE(e.tenus(), (std::set<int>{5, 6, 7, 8, 9, 59}));
        auto* edit = e.de<QLineEdit>(u"Edit1"_s);
        QCOMPARE(edit->text(), u"1"_s);
        e.fleche(u"UpDown"_s, 0);
        QCOMPARE(e.tenus(), (std::set<int>{1, 2, 3, 4, 5, 6, 50, 51}));
        QCOMPARE(e.texte(u"LabelMiseF"_s), u"31,20 €"_s);
        QVERIFY(e.de(u"CheckBox2ND"_s)->isChecked());
        edit->setText(u"0"_s);
        QCOMPARE(edit->text(), u"1"_s);
        edit->setText(u"77"_s);
        QCOMPARE(edit->text(), u"2"_s);
        e.page->montrerTirage(3);  // draws go on being browsed, the ticket stays
        QCOMPARE(e.tenus().size(), std::size_t{8});
        QCOMPARE(e.allumes(), boutonsDe(e.record(2)));
        e.presser({20, 1});  // the ticket is read, not entered
        QCOMPARE(e.tenus().size(), std::size_t{8});
        e.page->quitterChoixEtConsultation();
        QVERIFY(!e.banc.modes.ModeConsultation && change.size() == 2);
        QCOMPARE(bouton->text(), u"C&onsultation"_s);
        QCOMPARE(bouton->toolTip(), u"Vérification des grilles en mémoire"_s);
        QCOMPARE(e.tenus(), std::set<int>{44});  // the free choice is back
    }

    void regleOccupe() {
        Essai e(false);
        e.banc.atelier.TraitementsEnCours = 1;
        for (const QString& nom : {u"SelectGrilles"_s, u"Consultation"_s, u"NormalMode"_s}) {
            e.de(nom)->click();
            QCOMPARE(e.demandes(), QStringList{u"Attendez la fin du traitement en cours..."_s});
        }
        QVERIFY(e.banc.modes.ModeNormal);
        QVERIFY(!e.de(u"MajBaseManuelle"_s)->isEnabled());
    }

    void clavierDeLaPlanche() {
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
        QCOMPARE(QApplication::focusWidget()->focusPolicy(), Qt::StrongFocus);
        QCOMPARE(e.de(u"Button1"_s)->focusPolicy(), Qt::ClickFocus);  // one stop of the tab key
        e.de(u"ReInit"_s)->click();
        aller(Qt::Key_Return);
        QCOMPARE(e.tenus(), std::set<int>{40});
    }
};

QTEST_MAIN(TestResultatsModes)
#include "test_resultats_modes.moc"
