// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The selection of numbers, the list of selections, the interval and the series mode, as the user's
// hands meet them on the page "Combinaisons N".

#include <QCheckBox>
#include <QDialog>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>

#include "soutien/EssaiCombinaisons.h"
#include "widgets/CasesNumeros.h"

using namespace norvane::ui::essais;

namespace {

/// The page in front, on a small base.
struct EssaiSelections : EssaiCombinaisons {
    CasesNumeros* cases = de<CasesNumeros>("RxCheckListBox1");
    QPushButton* select = de<QPushButton>("ButtonSelect");

    explicit EssaiSelections(const Base& base) : EssaiCombinaisons(&base) {
        de<QTabWidget>("PageControl1")->setCurrentIndex(3);
    }
    void cliquer(int numero) const {
        const QModelIndex index = cases->model()->index(numero - 1, 0);
        QTest::mouseClick(cases->viewport(), Qt::LeftButton, {}, cases->visualRect(index).center());
    }
    QString comptes() const { return texte("LabelNumsSelects") + texte("LabelNumsSelects2"); }
    void choisir(Ensemble numeros) const { QVERIFY(ValiderSelection(a, GrilleAbsolue(numeros))); }
    QListWidget* selections() const {
        de("ButtonSelections")->click();
        return de<QListWidget>("ListBox7");
    }
    QString dernierDetail() const { return posees.last().detail; }
    /// The next dialog, while it is open.
    void pendant(std::function<void(QDialog&)> geste) const {
        QTimer::singleShot(0, forme.get(), [geste] {
            auto* boite = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (boite == nullptr) qFatal("no dialog");
            geste(*boite);
        });
    }
    /// Asks for an interval through the dialog; its label.
    QString choisirIntervalle(int inf, int sup) const {
        QString libelle;
        pendant([&](QDialog& boite) {
            boite.findChild<QSpinBox*>(u"RxSpinEditStats2"_s)->setValue(sup);
            boite.findChild<QSpinBox*>(u"RxSpinEditStats"_s)->setValue(inf);
            libelle = boite.findChild<QLabel*>(u"LabelTirages"_s)->text();
            boite.accept();
        });
        de("BitBtnWithColor4")->click();
        return libelle;
    }
};

}  // namespace

class TestSelections : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void laGrilleEtSonCycle() {
        const EssaiSelections e(petiteBase());
        QVERIFY(!e.cases->isEnabled() && !e.de("ButtonDecocher")->isEnabled());
        e.select->click();
        QCOMPARE(e.select->text(), u"Valider votre sélection"_s);
        QVERIFY(e.cases->isEnabled() && e.forme->focusWidget() == e.cases);
        QVERIFY(!e.de("ButtonOuvrirSlt")->isEnabled());
        const QStringList cycle{u"Priorité absolue: 1Priorité secondaire: 0"_s,
                                u"Priorité absolue: 0Priorité secondaire: 1"_s,
                                u"Priorité absolue: 0Priorité secondaire: 0"_s};
        for (const QString& attendu : cycle) {
            e.cliquer(7);
            QCOMPARE(e.comptes(), attendu);
        }
        for (const QString& attendu : cycle) {
            QTest::keyClick(e.cases, Qt::Key_Space);
            QCOMPARE(e.comptes(), attendu);
        }
        QApplication::setKeyboardInputInterval(60000);  // a slow machine types slowly
        QTest::keyClicks(e.cases, u"12 "_s);            // reached by its digits
        QTest::keyClick(e.cases, Qt::Key_Down);
        QTest::keyClicks(e.cases, u"  "_s);
        QVERIFY(e.a.saisieSelection.grille[21] == Priorite::Secondaire);
        QTest::keyClick(e.cases, Qt::Key_Up);
        QTest::keyClick(e.cases, Qt::Key_Delete);
        QCOMPARE(e.comptes(), cycle[1]);
        e.select->click();
        QCOMPARE(e.dernier(),
                 u"La sélection doit toujours comporter au moins une case cochée verte..."_s);
        QVERIFY(e.cases->isEnabled() && e.a.selection.vide());
        for (const int n : {3, 5, 9}) e.cliquer(n);
        QVERIFY(e.a.selection.vide());  // not before it is accepted
        e.select->click();
        QVERIFY(!e.cases->isEnabled() && e.de("ButtonSauverSlt")->isEnabled());
        QCOMPARE(e.a.selection.SelAbsolue, (std::vector<int>{3, 5, 9}));

        // The bounds are then looked for among its numbers alone.
        e.calculer(2);
        e.mode()->setCurrentIndex(1);
        e.edit(2)->setText(u"0"_s);
        e.calculer(2);
        QCOMPARE(e.lignes(), 3);
        e.select->click();
        e.de("ButtonDecocher")->click();
        e.select->click();
        QVERIFY(e.a.selection.vide() && !e.de("ButtonSauverSlt")->isEnabled());
    }

    void dixCasesParRangee() {
        const AspectsCases aspects{};
        CasesNumeros cases(u"Cases"_s, u"Cases"_s, aspects, 10, nullptr);
        cases.show();
        for (int largeur = 300; largeur <= 330; ++largeur) {
            cases.resize(largeur, 200);
            const auto coin = [&](int numero) {
                return cases.visualRect(cases.model()->index(numero - 1, 0)).topLeft();
            };
            QCOMPARE(coin(10).y(), coin(1).y());
            QCOMPARE(coin(41).x(), coin(1).x());
            QCOMPARE(coin(49).y(), coin(41).y());
        }
    }

    void tirageChoixLibreHasard() {
        const EssaiSelections e(QuatreTirages());
        e.select->click();
        e.a.TirageActif = -1;
        e.de("BitBtnWithColor14")->click();
        QCOMPARE(e.dernier(), u"Pas de tirage actif dans l'onglet Résultats..."_s);
        e.a.TirageActif = 0;
        e.a.choixLibre.numeros = {2, 7};
        for (const char* bouton : {"BitBtnWithColor14", "BitBtnWithColor15"}) e.de(bouton)->click();
        e.select->click();
        QCOMPARE(e.a.selection.SelAbsolue, (std::vector<int>{2, 7, 20, 23, 31, 40}));

        auto* absolus = e.de<QSpinBox>("Edit30");
        auto* secondaires = e.de<QSpinBox>("Edit27");
        absolus->setValue(40);
        secondaires->setValue(30);
        QCOMPARE(secondaires->value(), 9);
        e.de("AdvGlowButton8")->click();  // in force at once
        QVERIFY(e.a.selection.NbSelAbsolue == 40 && e.a.selection.NbSelSecondaire == 9);
        e.select->click();
        secondaires->setValue(0);
        e.de("AdvGlowButton8")->click();  // to be accepted with the rest
        QVERIFY(e.cases->isEnabled() && e.a.selection.NbSelSecondaire == 9);
        QCOMPARE(e.comptes(), u"Priorité absolue: 40Priorité secondaire: 0"_s);
    }

    void fichiersDeSelections() {
        const EssaiSelections e(QuatreTirages());
        auto& reponses = e.banc.scripts.messages->reponses;
        QString& fichier = e.banc.scripts.fichiers->reponse;
        e.choisir({7, 20});
        e.relais.annoncer({.listes = true});
        fichier = versQt(e.banc.chemin("une").string());
        e.de("ButtonSauverSlt")->click();
        QVERIFY(!e.de("ButtonSauverSlt")->isEnabled());
        const std::string texte = e.banc.lire("une.slt");
        QVERIFY(texte.starts_with("2 0 0 0 0 0 0 1 "));

        e.choisir({1, 2, 3});
        e.relais.annoncer({.listes = true});
        fichier = versQt(e.banc.chemin("une.slt").string());
        reponses = {CodeFerme};  // neither kept nor lost
        e.de("ButtonOuvrirSlt")->click();
        QCOMPARE(e.dernier(), u"Voulez-vous sauvegarder votre sélection en cours ?"_s);
        QCOMPARE(e.a.selection.NbSelAbsolue, 3);
        reponses = {CodeBouton2};
        e.de("ButtonOuvrirSlt")->click();
        QCOMPARE(e.a.selection.SelAbsolue, (std::vector<int>{7, 20}));
        QVERIFY(!e.de("ButtonSauverSlt")->isEnabled());
        QVERIFY(e.banc.scripts.fichiers->demandes.last().startsWith(
            u"Ouvrir vos sélections personnelles|Fichiers de Sélections de numéros (*.slt)"_s));
        const auto dites = e.posees.size();
        e.banc.ecrire("une.slt", "1 3");
        e.de("ButtonOuvrirSlt")->click();
        QCOMPARE(e.posees.size(), dites + 1);
        QCOMPARE(e.a.selection.NbSelAbsolue, 2);
        // Asked to be kept first, and cancelled there: nothing is opened.
        e.banc.ecrire("une.slt", texte);
        e.choisir({5});
        e.banc.scripts.fichiers->dabord = {QString()};
        e.de("ButtonOuvrirSlt")->click();
        QCOMPARE(e.a.selection.SelAbsolue, std::vector<int>{5});
    }

    void listeDeSelections() {
        const EssaiSelections e(QuatreTirages());
        auto* liste = e.selections();
        QVERIFY(e.de<QDialog>("SelectionsPanel")->isVisible());
        e.de("Button83")->click();
        QCOMPARE(e.dernier(), u"La liste de sélections est vide..."_s);
        e.de("Button71")->click();
        QCOMPARE(e.dernierDetail(),
                 u"Utilisez la grille de sélection de numéros pour choisir une sélection"_s);
        e.choisir({7, 20, 33});
        e.de("Button71")->click();
        e.a.ListeMemoire = ListeDeCombinaisons(
            2, std::vector<Combinaison>{{{1, 2}, 1}, {{2, 49}, 1}, {{5, 6}, 1}});
        auto* nombre = e.de<QSpinBox>("RxSpinEditSelection");
        for (const int n : {3, 8}) {
            nombre->setValue(n);
            e.de("Button76")->click();
        }
        QCOMPARE(e.dernier(), u"La liste en mémoire ne contient que 5 numéros différents..."_s);
        QCOMPARE(e.texte("Label218"), u"3"_s);
        QStringList lignes;
        for (int i = 0; i < liste->count(); ++i) lignes << liste->item(i)->text();
        QCOMPARE(lignes, (QStringList{u"07 20 33  (3 N°)"_s, u"01 02 49  (3 N°)"_s,
                                      u"01 02 05 06 49  (5 N°)"_s}));
        QString& fichier = e.banc.scripts.fichiers->reponse;
        fichier = versQt(e.banc.chemin("mes.sel").string());
        e.de("Button83")->click();

        liste->setCurrentRow(1);
        QCOMPARE(e.texte("Label216"), u"2"_s);
        QVERIFY(e.cases->isEnabled());
        QCOMPARE(e.a.saisieSelection.grille, GrilleAbsolue({1, 2, 49}));
        QCOMPARE(e.a.selection.NbSelAbsolue, 3);  // still the one in force
        e.de("Button87")->click();
        QVERIFY(e.de("SpeedButton5")->isChecked());
        liste->setCurrentRow(0);
        QCOMPARE(e.texte("LabelCombinaison"), u"Combinaison à 3 numéros: 07 20 33"_s);
        QCOMPARE(e.a.saisieSelection.grille, GrilleAbsolue({1, 2, 49}));
        e.de("AdvGlowButton1")->click();
        QCOMPARE(e.a.ListeSelections.front(), (Ensemble{1, 2, 49}));
        e.de("Button77")->click();
        QVERIFY(e.a.ListeSelections.empty() && e.texte("Label218").isEmpty());
        e.de("Button78")->click();
        QVERIFY(liste->count() == 3 && e.a.ListeSelections[2].taille() == 5);
        fichier = versQt(e.banc.chemin("une autre").string());
        e.de("Button78")->click();
        QCOMPARE(liste->count(), 3);
        e.de<QTabWidget>("PageControl1")->setCurrentIndex(0);
        QVERIFY(!e.de<QDialog>("SelectionsPanel")->isVisible());
    }

    void changementDIntervalle() {
        const EssaiSelections e(petiteBase());
        e.de("BitBtnWithColor4")->click();
        QCOMPARE(e.dernier(), u"Il faut calculer toutes les bornes de l'intervalle global..."_s);
        for (int taille = 2; taille <= 5; ++taille) e.calculer(taille);
        e.mode()->setCurrentIndex(1);
        e.calculer(3);
        e.choisir({3, 5});
        const int partout = e.a.selection.NbTiragesSelection;
        const auto avant = e.a.combinaisons;
        e.choisirIntervalle(1, 300);  // the same: nothing happens
        QVERIFY(e.mode()->currentIndex() == 1 && e.lu(2) != u"NC"_s);

        auto& reponses = e.banc.scripts.messages->reponses;
        reponses = {CodeBouton1};
        QVERIFY(e.choisirIntervalle(101, 150).startsWith(u"Statistiques sur 50 Tirage(s)\ndu "_s));
        QCOMPARE(e.dernierDetail(), u"Adapter la liste en mémoire au nouvel intervalle ?"_s);
        QVERIFY(e.texte("RxLabel23").startsWith(u"Statistiques sur 50 tirages"_s));
        QVERIFY(e.a.selection.NbTiragesSelection < partout);
        for (const Noms& n : Rangees) QVERIFY(e.lu(n.edit) == u"NC"_s && e.lu(n.edit2) == u"NC"_s);
        e.finir();
        const Liste& liste = e.a.ListeMemoire;
        QVERIFY(liste.DebutListe == 101 && liste.FinListe == 150);
        QVERIFY(e.mode()->currentIndex() == 1 && e.lignes() > 0);  // shown again
        int combinaisons = 0;
        for (std::size_t l = 0; l < liste.nombre(); ++l) combinaisons += liste.nbFois(l);
        QCOMPARE(combinaisons, 50 * 10);  // ten triples a draw

        // Stopped on the way: every record is still there, of one interval or of the other.
        const auto nombre = liste.nombre();
        reponses = {CodeBouton1, CodeBouton1};
        e.choisirIntervalle(90, 150);
        e.de("BitBtnWithColor1")->click();
        QCOMPARE(e.dernier(), u"Stopper le calcul en cours"_s);
        QVERIFY(e.dernierDetail().endsWith(u"  %1"_s.arg(nombre)));
        QVERIFY(e.forme->findChild<Travaux*>()->enCours()->arrete());
        e.finir();
        QCOMPARE(liste.nombre(), nombre);

        reponses = {CodeBouton2};
        e.choisirIntervalle(1, 300);
        QVERIFY(e.a.ListeMemoire.vide() && e.mode()->currentIndex() == 0);
        QCOMPARE(e.a.combinaisons.BorneSup, avant.BorneSup);
        QCOMPARE(e.lu(6), QString::number(avant.BorneSup[2]));
    }

    void modeSeries() {
        const EssaiSelections e(petiteBase());
        auto* series = e.de<QCheckBox>("CheckBoxSeries");
        QCOMPARE(series->toolTip(), u"Passer au calcul des séries"_s);
        e.choisir({3, 5});
        e.mode()->setCurrentIndex(1);
        {
            const Occupation autre(e.a.activite, {GenreTravail::Bilan});
            series->click();
            QCOMPARE(e.dernier(), u"Attendez la fin du traitement en cours..."_s);
            QVERIFY(!series->isChecked() && !e.a.series);
        }
        series->click();
        QVERIFY(series->isChecked() && e.mode()->currentIndex() == 0);
        QCOMPARE(series->toolTip(), u"Retour au calcul de toutes les combinaisons"_s);
        QCOMPARE(e.comptes(), u"Priorité absolue: 0Priorité secondaire: 0"_s);
        for (const char* bouton : {"ButtonSelect", "ButtonOuvrirSlt", "AdvGlowButton8"}) {
            const auto dites = e.posees.size();
            e.de(bouton)->click();
            QCOMPARE(e.posees.size(), dites + 1);
            QCOMPARE(e.dernier(), u"Pas de sélections de numéros en mode séries..."_s);
        }
        for (const Noms& n : Rangees) QCOMPARE(e.lu(n.edit), u"NC"_s);
        e.calculer(2);
        QVERIFY(e.banc.existe("succ2.dat") && !e.banc.existe("COMBCALC.INI"));
        series->click();
        QVERIFY(!e.a.series && e.lu(2) == u"NC"_s && e.lignes() == 0);
        QCOMPARE(e.comptes(), u"Priorité absolue: 2Priorité secondaire: 0"_s);
        series->click();
        QVERIFY(e.lu(2) != u"NC"_s);  // as it was left
    }
};

QTEST_MAIN(TestSelections)
#include "test_selections.moc"
