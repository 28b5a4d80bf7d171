// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main form: pages, modes, busy rule, hints, help, and every way of closing.

#include <algorithm>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

#include "base/BaseIntegree.h"
#include "base/Stockage.h"
#include "common/Theme.h"
#include "shell/Aide.h"
#include "soutien/Banc.h"
#include "widgets/EtiquetteMode.h"
#include "widgets/LigneEtat.h"
#include "widgets/PlancheNumeros.h"
#include "widgets/VueTableau.h"

using namespace norvane::ui::essais;

namespace {

const std::string NeufLignesNeutres = QByteArray("0 0 1\n").repeated(9).toStdString();

}  // namespace

class TestCoque final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void pagesDansLOrdre() {
        FormeOuverte f;
        auto* onglets = f.de<QTabWidget>("PageControl1");
        const QStringList noms = {u"Varo1"_s, u"Varo2"_s, u"Varo8"_s, u"Varo3"_s, u"Varo9"_s,
                                  u"Varo4"_s, u"Varo5"_s, u"Varo6"_s, u"Varo7"_s, u"Varo10"_s};
        QCOMPARE(onglets->count(), 10);
        for (int i = 0; i < 10; ++i) QCOMPARE(onglets->widget(i)->objectName(), noms.at(i));
        QCOMPARE(onglets->tabText(4), u"Combinaisons N + C"_s);
        QCOMPARE(onglets->currentIndex(), 0);
        QVERIFY(f.posees.isEmpty());
    }

    void clignotementDuMode() {
        EtiquetteMode etiquette;
        auto* clignotement = etiquette.findChild<QTimer*>(u"Timer2"_s);
        QCOMPARE(clignotement->interval(), 500);
        clignotement->setInterval(1);
        etiquette.montrer(u"Mode Sélection"_s);
        QSignalSpy ticks(clignotement, &QTimer::timeout);
        for (int i = 0; i < 3; ++i) QVERIFY(ticks.wait());
        etiquette.montrer(u"Mode Normal"_s);  // a new transition counts from 0 again
        ticks.clear();
        QTRY_VERIFY(!clignotement->isActive());
        QCOMPARE(ticks.count(), 5);
        QVERIFY(!etiquette.alerte());
    }

    void regleDOccupation() {
        FormeOuverte f;
        // An operation on the main thread keeps the window open, as a work does.
        Activite& activite = f.banc.atelier.activite;
        activite.Disponible = false;
        f.forme->close();
        QVERIFY(activite.QuitterEnAttente && f.forme->isVisible() && f.posees.isEmpty());
    }

    /// Every place that one can be sent to brings its page to front; a double click on "Numéros"
    /// and "Chances" leads to the draw, with the item pressed.
    void destinations() {
        FormeOuverte f;
        auto* onglets = f.de<QTabWidget>("PageControl1");
        auto* relais = f.forme->findChild<Relais*>();
        const auto* numero = f.de<QLineEdit>("EditTirGlob");
        const auto enfonces = [planche = f.de<PlancheNumeros>("Panel1")] {
            QList<int> places;
            for (int place = 0; place < NbBoutons; ++place)
                if (planche->bouton(place)->enfonce()) places << place + 1;
            return places;
        };
        relais->aller(VersHistorique{Element{GenreStats::Chances, 3}, 20, 300});
        QCOMPARE(onglets->currentWidget()->objectName(), u"Varo6"_s);
        QVERIFY(f.de<QLabel>("TitreHistorique")
                    ->text()
                    .startsWith(u"Historique de la chance 3, tirages 20 ("_s));
        relais->aller(VersTirage{1234, {}});
        QVERIFY(onglets->currentIndex() == 0 && enfonces().isEmpty());
        QCOMPARE(numero->text(), u"1234"_s);
        for (const auto& [nom, place] :
             {std::pair{"AdvStringGrid1", 7}, std::pair{"AdvStringGrid4", NumeroMax + 7}}) {
            auto* table = f.de<VueTableau>(nom);
            onglets->setCurrentIndex(place > NumeroMax ? 2 : 1);
            const QModelIndex date = table->model()->index(6, 4);
            Q_EMIT table->celluleActivee(date);
            QCOMPARE(onglets->currentIndex(), 0);
            const auto tirage = std::get<NumeroTirage>(*table->modele().cellule(date).cible);
            QCOMPARE(numero->text(), QString::number(tirage.numero));
            QVERIFY(enfonces().contains(place));
        }
    }

    void apparenceSauvee() {
        FormeOuverte f;
        QSignalSpy changements(f.forme->findChild<Relais*>(), &Relais::change);
        for (const char* cle : {"sombre", "claire"}) {
            const auto action = "Apparence_" + QByteArray(cle);
            f.de<QAction>(action)->trigger();
            QCOMPARE(estSombre(QApplication::palette()), QByteArray(cle) == "sombre");
            QCOMPARE(changements.takeLast().at(0).value<Changement>(),
                     (Changement{.reglages = true}));
            Atelier relu(f.banc.atelier.Repertoire);
            QCOMPARE(relu.configuration.reglages.Apparence, cle);
            TVaroMainForm suivante(relu, f.banc.services);
            QVERIFY(suivante.findChild<QAction*>(QString::fromLatin1(action))->isChecked());
        }
        QVERIFY(f.posees.isEmpty());
        std::filesystem::remove(f.banc.chemin(NomConfiguration));
        std::filesystem::create_directory(f.banc.chemin(NomConfiguration));
        f.de<QAction>("Apparence_auto")->trigger();
        QCOMPARE(f.posees.size(), 1);
        QCOMPARE(f.posees.last().instruction, u"L'apparence choisie ne sera pas gardée."_s);
    }

    void fermetureNormale() {
        FormeOuverte f;
        for (const int refus : {CodeFerme, CodeBouton2}) {
            f.banc.scripts.messages->reponses = {refus};
            f.forme->close();
            QVERIFY(f.forme->isVisible() && !f.banc.existe(NomStockage));
        }
        const DemandeMessage& d = f.posees.last();
        QCOMPARE(d.instruction, u"Souhaitez vous quitter l'application ?"_s);
        QCOMPARE(d.boutons.at(d.defaut), u"Non, je souhaite continuer à travailler"_s);

        f.banc.atelier.billets.ListeChoix = {FaireGrille({3, 14, 25, 31, 44}, {7}, false)};
        f.banc.atelier.billets.aSauver = true;
        f.forme->close();
        QVERIFY(!f.forme->isVisible());
        QCOMPARE(f.banc.lire("Grilles&Reçus/Grlbak.grl"),
                 std::string("1\n2.2 5 3 14 25 31 44 1 7\n"));
        QCOMPARE(LireStockage(f.banc.chemin(NomStockage))->NbTirages,
                 f.banc.atelier.base.NbTirages);
        QVERIFY(f.banc.lire(NomConfiguration).find("Fenetre") != std::string::npos);
        QVERIFY(f.banc.scripts.lanceur->relances.isEmpty());
    }

    void fermetureApresAjout() {
        FormeOuverte f;
        f.banc.atelier.edition = Edition::AjoutLibre;
        f.banc.ecrire(NomCombCalc, "3214 1 70\n");
        f.banc.scripts.messages->reponses = {CodeBouton2};
        f.forme->close();
        QVERIFY(f.forme->isVisible());
        QCOMPARE(f.posees.last().instruction, u"Norvane doit redémarrer..."_s);
        QCOMPARE(f.banc.lire(NomCombCalc), std::string("3214 1 70\n"));

        f.banc.atelier.base.Tirages[0].Numeros[0] = 1;
        f.forme->close();
        QVERIFY(!f.forme->isVisible() && f.banc.atelier.Relance);
        QCOMPARE(f.banc.lire(NomCombCalc), NeufLignesNeutres);
        QCOMPARE(f.banc.scripts.lanceur->relances, QStringList{f.banc.dossier.path()});
        QCOMPARE(LireStockage(f.banc.chemin(NomStockage))->Tirages[0].Numeros[0], 1);
    }

    void fermetureEnSelection() {
        FormeOuverte f;
        f.de<QPushButton>("SelectGrilles")->click();
        QCOMPARE(f.de<QLabel>("LabelMode")->text(), u"Mode Sélection"_s);
        f.banc.scripts.messages->reponses = {CodeFerme};
        f.forme->close();
        QVERIFY(f.forme->isVisible());
        QCOMPARE(f.posees.last().instruction, u"Abandonner la sélection en cours ?"_s);
        for (const char* bouton : {"Button5", "Button49", "Button7", "Button1", "Button12",
                                   "Button50", "AddGrille", "Button40", "Button30", "Button20"}) {
            f.de(bouton)->click();
        }
        f.forme->close();
        QVERIFY(!f.forme->isVisible());
        // Three numbers are worth keeping, complete or not.
        QCOMPARE(f.banc.lire("Grilles&Reçus/Grlbak.grl"),
                 std::string("2\n2.2 5 5 49 7 1 12 1 1\n1 3 40 30 20 0\n"));
    }

    void restaurationDuFiltre() {
        // In the normal view, after an addition, during an entry.
        for (const int chemin : {0, 1, 2}) {
            FormeOuverte f;
            f.banc.atelier.FiltreActif = true;
            if (chemin == 1) f.banc.atelier.edition = Edition::AjoutLibre;
            if (chemin == 2) f.de("SelectGrilles")->click();
            f.banc.ecrire(NomCombCalc, "filtré");
            f.banc.ecrire("Combcalc.~in", "3214 1 70\n");
            for (int n = 2; n <= 6; ++n) {
                f.banc.ecrire("comb" + std::to_string(n) + ".dat", "filtré");
                if (n != 4) f.banc.ecrire("comb" + std::to_string(n) + ".~da", "entier");
            }
            f.forme->close();
            QVERIFY(!f.forme->isVisible());
            QCOMPARE(f.banc.lire(NomCombCalc),
                     chemin == 1 ? NeufLignesNeutres : std::string("3214 1 70\n"));
            QCOMPARE(f.banc.lire("comb2.dat"), std::string("entier"));
            QCOMPARE(f.banc.lire("comb5.dat"), std::string("entier"));
            QVERIFY(!f.banc.existe("comb4.dat"));                       // no filtered file survives
            QCOMPARE(f.banc.lire("comb6.dat"), std::string("filtré"));  // not part of the swap
            QVERIFY(!f.banc.existe("comb2.~da") && !f.banc.existe("Combcalc.~in"));
            QVERIFY(!f.banc.existe(NomStockage));  // the filtered base is not the base
        }
    }

    void echecDeSauvegarde() {
        FormeOuverte f;
        std::filesystem::create_directory(f.banc.atelier.Repertoire / NomStockage);
        f.banc.atelier.base.Tirages[0].Numeros[0] = 1;
        f.banc.scripts.messages->reponses = {CodeBouton1, CodeBouton2};  // leave; no, not so
        f.forme->close();
        QVERIFY(f.forme->isVisible());
        QVERIFY(f.posees.last().detail.contains(u"norvane.db"_s));
        QCOMPARE(f.posees.last().boutons.at(f.posees.last().defaut), u"Non"_s);
        f.forme->close();
        QVERIFY(!f.forme->isVisible());
    }

    void baseTropPetite() {
        for (const int n : {0, 1, 2, 29, 30}) {
            Base base = BaseIntegree(false);
            base.NbTirages = n;
            const FormeOuverte f(&base);
            if (n >= 2) {
                QCOMPARE(f.de<QLineEdit>("EditTirGlob")->text().toInt(), n);
                continue;
            }
            // Never shown, and the loop ends at once, without a word.
            QTimer::singleShot(5000, f.forme.get(), [] { QCoreApplication::exit(1); });
            QCOMPARE(QCoreApplication::exec(), 0);
            QVERIFY(!f.forme->isVisible() && f.posees.isEmpty());
            QVERIFY(!f.banc.existe(NomStockage) && !f.banc.existe(NomConfiguration));
        }
    }

    void indicesDansLaBarre() {
        FormeOuverte f;
        auto* panneau = f.de<LigneEtat>("PanneauTexte");
        QPushButton bouton(f.forme.get());
        poserIndice(&bouton, u"court|long"_s);
        QCOMPARE(bouton.toolTip(), u"court"_s);
        const auto survoler = [&bouton] {
            QEnterEvent entree({1, 1}, {1, 1}, {1, 1});
            QCoreApplication::sendEvent(&bouton, &entree);
        };
        survoler();
        QCOMPARE(panneau->text(), u"long"_s);
        // The hint of the control under the pointer is read as soon as it is another one.
        bouton.show();
        poserIndice(&bouton, u"un autre"_s);
        QCOMPARE(panneau->text(), u"un autre"_s);
        QEvent sortie(QEvent::Leave);
        QCoreApplication::sendEvent(&bouton, &sortie);
        poserIndice(&bouton, u"loin"_s);
        QCOMPARE(panneau->text(), QString());
        // The text of work in progress keeps its place.
        auto* relais = f.forme->findChild<Relais*>();
        f.banc.atelier.activite.TraitementsEnCours = 1;
        relais->dire(u"Recherche en cours"_s);
        survoler();
        QCOMPARE(panneau->text(), u"Recherche en cours"_s);
        // One line, whatever is said.
        relais->dire(u"deux\nlignes"_s);
        QCOMPARE(panneau->texteVu(), u"deux lignes"_s);
        relais->dire({});
        survoler();
        QCOMPARE(panneau->text(), u"loin"_s);
    }

    void aideGardee() {
        FormeOuverte f;
        auto* timer = f.de<QTimer>("Timer4");
        auto* f1 = f.de<QAction>("ActionAide");
        QVERIFY(!timer->isActive() && timer->interval() == 1000);
        f1->trigger();  // there is no help file
        QCOMPARE(f.posees.last().instruction,
                 u"Impossible de lancer l'aide depuis l'application!"_s);
        f.banc.ecrire(Aide::Fichier, "aide");
        f1->trigger();
        QVERIFY(f.banc.scripts.lanceur->documents.isEmpty());  // guarded
        timer->setInterval(1);
        QTRY_VERIFY(!timer->isActive());
        f1->trigger();
        QCOMPARE(f.banc.scripts.lanceur->documents.size(), 1);
    }

    void avertissementsUneFois() {
        Banc banc;
        banc.ecrire(NomConfiguration, "n'importe quoi\n[MONNAIE]\ntaux=beaucoup\n");
        banc.ecrire(NomStockage, "ceci n'est pas une base");
        banc.ecrire(NomCombCalc, "3214 1\nun deux trois\n");
        Atelier relu(banc.atelier.Repertoire);
        TVaroMainForm forme(relu, banc.services);
        forme.montrer();
        const auto& posees = banc.scripts.messages->posees;
        QTRY_COMPARE(posees.size(), 3);
        QVERIFY(posees.at(0).instruction.contains(u"NORVANE.INI"_s));
        QCoreApplication::processEvents();
        QCOMPARE(posees.size(), 3);
    }

    void geometrie() {
        const QRect petit(0, 0, 1366, 768);
        for (const QRect& ecran : {petit, QRect(0, 0, 1920, 1080)}) {
            for (const QString& gardee : {u"10,20,1200,700"_s, u"10,20,1200,700,max"_s}) {
                const Ouverture o = ouvertureFenetre(gardee, ecran);
                QCOMPARE(texteGeometrie(o), gardee);
                QCOMPARE(o.maximisee, gardee.endsWith(u"max"_s));
            }
            // Nothing kept, off the screen, its title out of reach, too small, absurd, too large.
            for (const QString& gardee : {u""_s, u"5000,20,1200,700"_s, u"10,-300,1200,700"_s,
                                          u"0,0,10,10"_s, u"a,b,c"_s, u"0,0,99999999999,3"_s}) {
                const Ouverture o = ouvertureFenetre(gardee, ecran);
                QVERIFY2(ecran.contains(o.place) && o.maximisee == (ecran == petit),
                         qPrintable(gardee));
            }
        }
    }

    void uneSeuleInstance() {
        const std::string nom =
            "norvane-essai-" + std::to_string(QCoreApplication::applicationPid());
        Instance premiere(nom);
        QVERIFY(premiere.seule());
        QVERIFY(!Instance(nom).seule());
        premiere.liberer();
        QVERIFY(Instance(nom).seule());
    }

    void baseRecalculee() {
        FormeOuverte f;
        SupprimerTirage(f.banc.atelier.base, 0);
        f.forme->RecalculBase();
        QCOMPARE(f.banc.atelier.occurrences.IntervalleSup, 3213);
        QVERIFY(f.de<QLabel>("PanneauIntervalle")->text().contains(u"3213 tirages"_s));
        QCOMPARE(f.de<QLineEdit>("EditTirGlob")->text(), u"3213"_s);
    }
};

QTEST_MAIN(TestCoque)
#include "test_coque.moc"
