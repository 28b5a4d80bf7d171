// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main form: pages, modes, busy rule, hints, help, and every way of closing.

#include <fstream>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusTipEvent>
#include <QTabWidget>
#include <QTest>

#include "base/BaseIntegree.h"
#include "base/Stockage.h"
#include "shell/Aide.h"
#include "shell/VaroMain.h"
#include "soutien/Banc.h"
#include "widgets/EtiquetteMode.h"

using namespace norvane;
using namespace norvane::ui;
using namespace norvane::ui::essais;
using namespace Qt::StringLiterals;

namespace {

/// A form of its own for each test, in a folder of its own.
struct FormeOuverte {
    Banc banc;
    TVaroMainForm forme{banc.atelier, banc.services};

    explicit FormeOuverte(bool montrer = true) {
        if (montrer) forme.montrer();
    }
    template <typename T>
    T* trouver(const char* nom) {
        return forme.findChild<T*>(QString::fromUtf8(nom));
    }
    const QList<DemandeMessage>& posees() const { return banc.scripts.messages->posees; }
    bool existe(const std::string& nom) {
        return std::filesystem::exists(banc.atelier.Repertoire / nom);
    }
    std::string lire(const std::string& nom) {
        std::ifstream f(banc.atelier.Repertoire / nom);
        return {std::istreambuf_iterator<char>(f), {}};
    }
    void ecrire(const std::string& nom, const std::string& contenu) {
        std::ofstream(banc.atelier.Repertoire / nom) << contenu;
    }
};

const std::string NeufLignesNeutres = [] {
    std::string s;
    for (int i = 0; i < 9; ++i) s += "0 0 1\n";
    return s;
}();

Base petiteBase(int n) {
    Base b = BaseIntegree(false);
    b.NbTirages = n;
    return b;
}

}  // namespace

class TestCoque : public QObject {
    Q_OBJECT

 private Q_SLOTS:
    void pagesDansLOrdre() {
        FormeOuverte f;
        auto* onglets = f.trouver<QTabWidget>("PageControl1");
        const QStringList noms = {u"Varo1"_s, u"Varo2"_s, u"Varo8"_s, u"Varo3"_s, u"Varo9"_s,
                                  u"Varo4"_s, u"Varo5"_s, u"Varo6"_s, u"Varo7"_s, u"Varo10"_s};
        QCOMPARE(onglets->count(), 10);
        for (int i = 0; i < 10; ++i) QCOMPARE(onglets->widget(i)->objectName(), noms.at(i));
        QCOMPARE(onglets->tabText(4), u"Combinaisons N + C"_s);
        QCOMPARE(onglets->currentIndex(), 0);
        for (const int i : {4, 5, 6, 7, 8, 9}) {
            QVERIFY(!onglets->widget(i)->findChild<QLabel*>(u"Promesse"_s)->text().isEmpty());
        }
        // Never computed: all nine sizes wait.
        int enAttente = 0;
        for (const auto* edit : onglets->widget(3)->findChildren<QLineEdit*>()) {
            enAttente += edit->toolTip() == u"Borne Inf en attente de calcul"_s ? 1 : 0;
        }
        QCOMPARE(enAttente, 9);
        // The random example names a number that came out.
        const QString exemple =
            f.trouver<QWidget>("Varo6")->findChild<QLabel*>(u"Detail"_s)->text();
        const int numero = exemple.mid(exemple.lastIndexOf(u' ') + 1).toInt();
        QVERIFY(numero >= 1 && numero <= 49);
        QVERIFY(f.posees().isEmpty());
    }

    void etatDuMoteurLu() {
        Banc banc;
        std::ofstream(banc.atelier.Repertoire / NomCombCalc)
            << "3214 1 70\n3200 0 9\n3214 0 4\n3214 0 2\n2000 0 3\n";
        Atelier relu(banc.atelier.Repertoire);
        TVaroMainForm forme(relu, banc.services);
        const auto indice = [page = forme.findChild<QWidget*>(u"Varo3"_s)](int edit) {
            return page->findChild<QLineEdit*>(u"Edit%1"_s.arg(edit))->toolTip();
        };
        QCOMPARE(indice(2), u"Borne Inf calculée pour 3214 tirages"_s);
        // A size of 6 or more is taken as current; those behind the cut were never computed.
        QCOMPARE(indice(12), u"Borne Inf calculée pour 3214 tirages"_s);
        QCOMPARE(indice(14), u"Borne Inf en attente de calcul"_s);
    }

    void modesEtClignotement() {
        Modes m;
        QCOMPARE(libelleMode(m), u"Mode Normal"_s);
        m.ModeMiseAJour = true;
        QCOMPARE(libelleMode(m), u"Mode Normal"_s);
        m.ModeNormal = false;
        QCOMPARE(libelleMode(m), u"Mode Mise à jour"_s);
        m.AjoutEnfonce = true;
        QCOMPARE(libelleMode(m), u"Mode Ajout Libre"_s);
        m.ModeMiseAJour = false;
        QCOMPARE(libelleMode(m), u"Mode Sélection"_s);
        m.ModeConsultation = m.ModeNormal = true;
        QCOMPARE(libelleMode(m), u"Mode Consultation"_s);

        EtiquetteMode etiquette;
        QCOMPARE(etiquette.Timer2.interval(), 500);
        etiquette.Timer2.setInterval(1);
        etiquette.montrer(u"Mode Sélection"_s);
        QSignalSpy ticks(&etiquette.Timer2, &QTimer::timeout);
        for (int i = 0; i < 3; ++i) QVERIFY(ticks.wait());
        etiquette.montrer(u"Mode Normal"_s);  // a new transition counts from 0 again
        ticks.clear();
        QTRY_VERIFY(!etiquette.Timer2.isActive());
        QCOMPARE(ticks.count(), 5);
        QVERIFY(!etiquette.alerte());
    }

    void regleDOccupation() {
        FormeOuverte f;
        f.banc.atelier.TraitementsEnCours = 1;
        QVERIFY(f.forme.contexte().refuserSiOccupe());
        QCOMPARE(f.posees().last().instruction, u"Attendez la fin du traitement en cours..."_s);
        QCOMPARE(f.posees().last().titre, u"Message"_s);

        // Closing during work: no question, then the close goes on at its end.
        QSignalSpy arret(&f.forme, &TVaroMainForm::arretDemande);
        const auto avant = f.posees().size();
        f.forme.close();
        QVERIFY(f.forme.isVisible());
        QCOMPARE(arret.count(), 1);
        QCOMPARE(f.posees().size(), avant);
        QVERIFY(f.banc.atelier.QuitterEnAttente);
        f.banc.scripts.messages->reponses = {CodeBouton2};
        f.forme.finTraitement();
        QVERIFY(f.forme.isVisible());
        QVERIFY(!f.banc.atelier.QuitterEnAttente);  // refused: the wish is forgotten

        f.banc.atelier.Disponible = false;
        f.forme.close();
        QVERIFY(f.banc.atelier.QuitterEnAttente && f.forme.isVisible());
        f.banc.atelier.Disponible = true;
        f.forme.finTraitement();
        QVERIFY(!f.forme.isVisible());
    }

    void fermetureNormale() {
        FormeOuverte f;
        for (const int refus : {CodeFerme, CodeBouton2}) {
            f.banc.scripts.messages->reponses = {refus};
            f.forme.close();
            QVERIFY(f.forme.isVisible());
            QVERIFY(!f.existe(NomStockage));
        }
        const DemandeMessage& d = f.posees().last();
        QCOMPARE(d.instruction, u"Souhaitez vous quitter l'application ?"_s);
        QCOMPARE(d.detail, u"Faites votre choix"_s);
        QCOMPARE(d.boutons.at(d.defaut), u"Non, je souhaite continuer à travailler"_s);

        const int dix[] = {3, 14, 25, 31, 44};
        const int une[] = {7};
        f.banc.atelier.ListeChoix = {FaireGrille(dix, une, false)};
        f.forme.close();
        QVERIFY(!f.forme.isVisible());
        QCOMPARE(f.lire("Grilles&Reçus/Grlbak.grl"), std::string("1\n2.2 5 3 14 25 31 44 1 7\n"));
        const auto relue = LireStockage(f.banc.atelier.Repertoire / NomStockage);
        QVERIFY(static_cast<bool>(relue));
        QCOMPARE(relue->NbTirages, f.banc.atelier.base.NbTirages);
        QVERIFY(f.lire(NomConfiguration).find("Fenetre") != std::string::npos);
        QVERIFY(f.banc.scripts.lanceur->relances.isEmpty());
        QVERIFY(!f.existe(NomCombCalc));
    }

    void fermetureApresAjout() {
        FormeOuverte f;
        f.forme.modes.ModeNormal = false;
        f.forme.modes.ModeMiseAJour = true;
        f.forme.modes.AjoutEnfonce = true;
        f.ecrire(NomCombCalc, "3214 1 70\n");
        f.banc.scripts.messages->reponses = {CodeBouton2};
        f.forme.close();
        QVERIFY(f.forme.isVisible());
        QCOMPARE(f.posees().last().instruction, u"Norvane doit redémarrer..."_s);
        QVERIFY(f.posees().last().detail.startsWith(u"Le logiciel doit être relancé pour"_s));
        QCOMPARE(f.lire(NomCombCalc), std::string("3214 1 70\n"));

        f.banc.atelier.base.Tirages[0].Numeros[0] = 1;
        f.forme.close();
        QVERIFY(!f.forme.isVisible());
        QCOMPARE(f.lire(NomCombCalc), NeufLignesNeutres);
        QVERIFY(f.banc.atelier.Relance);
        QCOMPARE(f.banc.scripts.lanceur->relances, QStringList{f.banc.dossier.path()});
        const auto relue = LireStockage(f.banc.atelier.Repertoire / NomStockage);
        QCOMPARE(relue->Tirages[0].Numeros[0], 1);
    }

    void fermetureEnSelection() {
        FormeOuverte f;
        f.trouver<QPushButton>("SelectGrilles")->click();
        QCOMPARE(f.trouver<QLabel>("LabelMode")->text(), u"Mode Sélection"_s);
        f.banc.scripts.messages->reponses = {CodeFerme};
        f.forme.close();
        QVERIFY(f.forme.isVisible());
        QCOMPARE(f.posees().last().instruction, u"Abandonner la sélection en cours ?"_s);
        QCOMPARE(f.posees().last().titre, u"Confirmation"_s);
        for (const char* bouton : {"Button5", "Button49", "Button7", "Button1", "Button12",
                                   "Button50", "AddGrille", "Button40", "Button30", "Button20"}) {
            f.trouver<QAbstractButton>(bouton)->click();
        }
        f.forme.close();
        QVERIFY(!f.forme.isVisible());
        // Three numbers are worth keeping, complete or not.
        QCOMPARE(f.lire("Grilles&Reçus/Grlbak.grl"),
                 std::string("2\n2.2 5 5 49 7 1 12 1 1\n1 3 40 30 20 0\n"));
    }

    void restaurationDuFiltre_data() {
        QTest::addColumn<int>("chemin");
        QTest::newRow("mode normal") << 0;
        QTest::newRow("après un ajout") << 1;
        QTest::newRow("en sélection") << 2;
    }
    void restaurationDuFiltre() {
        QFETCH(int, chemin);
        FormeOuverte f;
        f.banc.atelier.FiltreActif = true;
        f.forme.modes.ModeNormal = chemin == 0;
        f.forme.modes.ModeMiseAJour = f.forme.modes.AjoutEnfonce = chemin == 1;
        f.ecrire(NomCombCalc, "filtré");
        f.ecrire("Combcalc.~in", "3214 1 70\n");
        for (int n = 2; n <= 6; ++n) {
            f.ecrire("comb" + std::to_string(n) + ".dat", "filtré");
            if (n != 4) f.ecrire("comb" + std::to_string(n) + ".~da", "entier");
        }
        f.forme.close();
        QVERIFY(!f.forme.isVisible());
        QCOMPARE(f.lire(NomCombCalc), chemin == 1 ? NeufLignesNeutres : std::string("3214 1 70\n"));
        QCOMPARE(f.lire("comb2.dat"), std::string("entier"));
        QCOMPARE(f.lire("comb5.dat"), std::string("entier"));
        QVERIFY(!f.existe("comb4.dat"));                       // no filtered file survives
        QCOMPARE(f.lire("comb6.dat"), std::string("filtré"));  // not part of the swap
        QVERIFY(!f.existe("comb2.~da") && !f.existe("Combcalc.~in"));
        QVERIFY(!f.existe(NomStockage));  // the filtered base is not the base
    }

    void echecDeSauvegarde() {
        FormeOuverte f;
        std::filesystem::create_directory(f.banc.atelier.Repertoire / NomStockage);
        f.banc.atelier.base.Tirages[0].Numeros[0] = 1;
        f.banc.scripts.messages->reponses = {CodeBouton1, CodeBouton2};  // leave; no, not so
        f.forme.close();
        QVERIFY(f.forme.isVisible());
        QVERIFY(f.posees().last().detail.contains(u"norvane.db"_s));
        f.forme.close();
        QVERIFY(!f.forme.isVisible());
    }

    void baseTropPetite_data() {
        QTest::addColumn<int>("n");
        for (const int n : {0, 1, 2, 29, 30}) QTest::addRow("%d", n) << n;
    }
    void baseTropPetite() {
        QFETCH(int, n);
        Banc banc;
        banc.atelier.base = petiteBase(n);
        ConstruireOccurrences(banc.atelier.base, banc.atelier.occurrences);
        TVaroMainForm forme(banc.atelier, banc.services);
        QSignalSpy fin(qApp, &QCoreApplication::aboutToQuit);
        forme.montrer();
        QCoreApplication::processEvents();
        QVERIFY(banc.scripts.messages->posees.isEmpty());
        QCOMPARE(forme.findChild<QLabel*>(u"PanneauIntervalle"_s)->text().isEmpty(), n < 2);
        if (n == 0) {
            forme.close();  // without a question
            QVERIFY(!forme.isVisible() && banc.scripts.messages->posees.isEmpty());
        }
        if (n >= 2) QCOMPARE(forme.findChild<QLineEdit*>(u"EditTirGlob"_s)->text().toInt(), n);
    }

    void indicesDansLaBarre() {
        FormeOuverte f;
        auto* panneau = f.trouver<QLabel>("PanneauTexte");
        QPushButton bouton(&f.forme);
        poserIndice(&bouton, u"court|long"_s);
        QCOMPARE(bouton.toolTip(), u"court"_s);
        QStatusTipEvent indice(bouton.statusTip());
        QCoreApplication::sendEvent(&f.forme, &indice);
        QCOMPARE(panneau->text(), u"long"_s);
        // Progress text of work in progress keeps its place.
        f.banc.atelier.TraitementsEnCours = 1;
        Q_EMIT f.trouver<Page>("Varo2")->texteEtat(u"Recherche en cours"_s);
        QCoreApplication::sendEvent(&f.forme, &indice);
        QCOMPARE(panneau->text(), u"Recherche en cours"_s);
        f.forme.finTraitement();
        QCoreApplication::sendEvent(&f.forme, &indice);
        QCOMPARE(panneau->text(), u"long"_s);
    }

    void aideGardee() {
        FormeOuverte f;
        auto* timer = f.trouver<QTimer>("Timer4");
        auto* f1 = f.trouver<QAction>("ActionAide");
        QVERIFY(!timer->isActive());
        QCOMPARE(timer->interval(), 1000);
        f1->trigger();  // there is no help file
        QCOMPARE(f.posees().last().instruction,
                 u"Impossible de lancer l'aide depuis l'application!"_s);
        f.ecrire(Aide::Fichier, "aide");
        f1->trigger();
        QVERIFY(f.banc.scripts.lanceur->documents.isEmpty());  // guarded
        timer->setInterval(1);
        QTRY_VERIFY(!timer->isActive());
        f1->trigger();
        QCOMPARE(f.banc.scripts.lanceur->documents.size(), 1);
        f1->trigger();
        QCOMPARE(f.banc.scripts.lanceur->documents.size(), 1);
    }

    void avertissementsUneFois() {
        Banc banc;
        std::ofstream(banc.atelier.Repertoire / NomConfiguration)
            << "n'importe quoi\n[MONNAIE]\ntaux=beaucoup\n";
        std::ofstream(banc.atelier.Repertoire / NomStockage) << "ceci n'est pas une base";
        std::ofstream(banc.atelier.Repertoire / NomCombCalc) << "3214 1\nun deux trois\n";
        Atelier relu(banc.atelier.Repertoire);
        QCOMPARE(relu.base.NbTirages, 3214);
        QCOMPARE(relu.avertissements.size(), std::size_t{3});
        TVaroMainForm forme(relu, banc.services);
        forme.montrer();
        QTRY_COMPARE(banc.scripts.messages->posees.size(), 3);
        QVERIFY(banc.scripts.messages->posees.at(0).instruction.contains(u"NORVANE.INI"_s));
        QCoreApplication::processEvents();
        QCOMPARE(banc.scripts.messages->posees.size(), 3);
    }

    void geometrie_data() {
        QTest::addColumn<QString>("gardee");
        QTest::addColumn<bool>("retrouvee");
        QTest::newRow("rien de gardé") << QString() << false;
        QTest::newRow("gardée") << u"10,20,1200,700"_s << true;
        QTest::newRow("gardée maximisée") << u"10,20,1200,700,max"_s << true;
        QTest::newRow("hors de l'écran") << u"5000,20,1200,700"_s << false;
        QTest::newRow("titre hors d'atteinte") << u"10,-300,1200,700"_s << false;
        QTest::newRow("trop petite") << u"0,0,10,10"_s << false;
        QTest::newRow("absurde") << u"a,b,c"_s << false;
        QTest::newRow("trop grande") << u"0,0,99999999999,3"_s << false;
    }
    void geometrie() {
        QFETCH(QString, gardee);
        QFETCH(bool, retrouvee);
        const QRect petit(0, 0, 1366, 768);
        const QRect grand(0, 0, 1920, 1080);
        for (const QRect& ecran : {petit, grand}) {
            const Ouverture o = ouvertureFenetre(gardee, ecran);
            if (retrouvee) {
                QCOMPARE(texteGeometrie(o), gardee);
                QCOMPARE(o.maximisee, gardee.endsWith(u"max"_s));
            } else {
                QVERIFY(ecran.contains(o.place));
                QCOMPARE(o.maximisee, ecran == petit);
            }
        }
    }

    void echelles() {
        QVERIFY(Echelles::de({1024, 768}).maximisee());
        QVERIFY(!Echelles::de({1366, 768}).maximisee());
        QCOMPARE(Echelles::de({1920, 1080}).Echelle, 1.8);
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
        f.forme.RecalculBase();
        QCOMPARE(f.banc.atelier.occurrences.IntervalleSup, 3213);
        QVERIFY(f.trouver<QLabel>("PanneauIntervalle")->text().contains(u"3213 tirages"_s));
        QCOMPARE(f.trouver<QLineEdit>("EditTirGlob")->text(), u"3213"_s);
    }
};

QTEST_MAIN(TestCoque)
#include "test_coque.moc"
