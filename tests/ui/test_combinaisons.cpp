// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Combinaisons N": its searches by their buttons, the bounds, the list, STOP, refusals,
// and how it follows the state.

#include <algorithm>
#include <map>
#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <set>

#include "BasesEssai.h"
#include "comb/LigneCombinaison.h"
#include "comb/StatsCombinaison.h"
#include "combinaisons/PageCombinaisons.h"
#include "soutien/Banc.h"
#include "widgets/Alerte.h"
#include "widgets/ListeCombinaisons.h"
#include "widgets/VueTableau.h"

using namespace norvane::ui::essais;

namespace {

constexpr int NombresSortis = 12;

/// Numbers of the edits and up-downs of one size, and its caption.
struct Noms {
    int taille, edit, upDown, edit2, upDown2;
    const char* legende;
};
constexpr Noms Rangees[] = {{2, 2, 3, 6, 7, "COMB &2"},      {3, 3, 4, 7, 8, "COMB &3"},
                            {4, 4, 5, 8, 9, "COMB &4"},      {5, 5, 6, 9, 10, "COMB &5"},
                            {6, 12, 13, 13, 14, "COMB &6"},  {7, 14, 15, 15, 16, "COMB &7"},
                            {8, 16, 17, 17, 18, "COMB &8"},  {9, 18, 19, 19, 20, "COMB &9"},
                            {10, 10, 11, 11, 12, "COMB 1&0"}};

Base petiteBase() {
    std::mt19937 hasard(7);
    return BaseAleatoire(hasard, 300, NombresSortis);
}

int communs(const Tirage& t, Ensemble numeros) {
    return numeros.commun(Ensemble::de(t.Numeros)).taille();
}

/// Every set of `taille` of the first `parmi` numbers, with the draws that count for it: those that
/// hold it, or, beyond five, lie in it.
std::map<std::vector<Mot>, int> compter(const Base& base, int taille, int parmi) {
    std::map<std::vector<Mot>, int> comptes;
    std::vector<bool> pris(static_cast<std::size_t>(parmi));
    std::fill_n(pris.begin(), taille, true);
    do {
        std::vector<Mot> numeros;
        for (int n = 1; n <= parmi; ++n)
            if (pris[static_cast<std::size_t>(n - 1)]) numeros.push_back(static_cast<Mot>(n));
        const auto bons = std::min(NbBoules, taille);
        comptes[numeros] = static_cast<int>(std::ranges::count_if(
            base.enUsage(), [&](auto& t) { return communs(t, Ensemble::de(numeros)) == bons; }));
    } while (std::prev_permutation(pris.begin(), pris.end()));
    return comptes;
}

/// The form, its page of combinations and that page's controls.
struct Essai : FormeOuverte {
    PageCombinaisons* page = de<PageCombinaisons>("Varo3");
    Atelier& a = banc.atelier;
    Relais& relais = forme->contexte().relais;

    using FormeOuverte::FormeOuverte;
    QString texte(const char* nom) const { return de<QLabel>(nom)->text(); }
    QLineEdit* edit(int n) const { return page->findChild<QLineEdit*>(u"Edit%1"_s.arg(n)); }
    QAbstractButton* comb(int taille) const { return de("Comb%dSearch", taille); }
    ListeCombinaisons* liste() const { return de<ListeCombinaisons>("ListBox"); }
    int lignes() const { return liste()->modele().rowCount(); }
    std::string ligne(int i) const {
        return liste()->modele().index(i).data().toString().toStdString();
    }
    QComboBox* mode() const { return de<QComboBox>("ComboBox1"); }
    void finir() const { QTRY_VERIFY_WITH_TIMEOUT(!a.activite.occupe(), 60000); }
    void calculer(int taille) const {
        comb(taille)->click();
        finir();
    }
    /// All bounds 10..90, computed for the interval, both ends chosen anew.
    void poserBornes() const {
        EtatCombinaisons& e = a.combinaisons;
        e.NbTiragesComb.fill(a.tailleIntervalle());
        e.BorneInf.fill(10);
        for (const int sup : {91, 90}) {
            e.BorneSup.fill(sup);
            relais.annoncer({.intervalle = true});
        }
    }
    QString lu(int n) const { return edit(n)->text(); }
    QString dernier() const { return posees.isEmpty() ? QString() : posees.last().instruction; }
    void choisir(int i) const { liste()->setCurrentIndex(liste()->modele().index(i)); }
    QColor encre(int i) const {
        const QVariant borne = liste()->modele().index(i).data(ModeleCombinaisons::RoleBorne);
        return DelegueCombinaisons::encre(static_cast<BorneLigne>(borne.toInt()), false,
                                          QPalette(Qt::white));
    }
};

}  // namespace

class TestCombinaisons : public QObject {
    Q_OBJECT

 private Q_SLOTS:
    void extremesContreForceBrute() {
        const Base base = petiteBase();
        const Essai e(&base);
        const QAbstractItemModelTester regles(
            &e.liste()->modele(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        for (const Noms& n : Rangees) {
            const QString legende = QString::fromUtf8(n.legende);
            QVERIFY(e.comb(n.taille)->text() == legende && e.lu(n.edit) == u"NC"_s);
            e.comb(n.taille)->click();
            QVERIFY(e.comb(n.taille)->text() == u"STOP"_s && e.lignes() == 0);
            e.finir();
            QCOMPARE(e.comb(n.taille)->text(), legende);
            // Of 300 draws only the pairs keep their minimum: those with a number never drawn.
            const bool paires = n.taille == 2;
            int max = 0;
            std::set<std::string> attendues, lues;
            const auto comptes = compter(base, n.taille, paires ? NumeroMax : NombresSortis);
            for (const auto& [numeros, c] : comptes) max = std::max(max, c);
            for (const auto& [numeros, c] : comptes)
                if (c == max || (paires && c == 0)) attendues.insert(LigneCombinaison(numeros, c));
            for (int i = 0; i < e.lignes(); ++i) {
                lues.insert(e.ligne(i));
                const bool haute = e.liste()->modele().combinaison(i)->NbFois == max;
                QCOMPARE(e.encre(i), haute ? QColor(0, 0, 255) : QColor(0, 128, 0));
            }
            QVERIFY(lues == attendues && std::size_t(e.lignes()) == attendues.size());
            QCOMPARE(e.texte("LabelCombEnListe"), QString::number(attendues.size()));
            QVERIFY(e.lu(n.edit) == u"0"_s && e.lu(n.edit2) == QString::number(max));
            QCOMPARE(e.edit(n.edit)->toolTip(), u"Borne Inf calculée pour 300 tirages"_s);
            QCOMPARE(e.edit(n.edit2)->toolTip(), u"Borne Sup calculée pour 300 tirages"_s);
        }
        QVERIFY(e.texte("LabelTemps").startsWith(u"Temps de calcul : "_s));
        // A second click reads the stored list, without colours for marked lines; a missing file is
        // an empty list. Coming back to the mode empties the box until the next click.
        e.banc.ecrire("comb3.dat", "01 02 03  (07)\n01 02 04  (" +
                                       std::to_string(e.a.combinaisons.BorneSup[3]) + ") N\n");
        e.comb(3)->click();
        QVERIFY(!e.a.activite.occupe() && e.ligne(0) == "01 02 03  (07)");
        QVERIFY(e.ligne(1).ends_with(" N") && e.encre(1) == QColor(Qt::black));
        e.mode()->setCurrentIndex(1);
        e.mode()->setCurrentIndex(0);
        QVERIFY(e.lignes() == 0 && e.texte("LabelCombEnListe").isEmpty());
        std::filesystem::remove(e.banc.chemin("comb3.dat"));
        e.comb(3)->click();
        QVERIFY(!e.a.activite.occupe() && e.lignes() == 0 && e.posees.isEmpty());
    }

    void listeSelonLesBornes() {
        const Base base = petiteBase();
        const Essai e(&base);
        const std::pair<ModeStockage, QString> items[] = {
            {ModeStockage::PremierRang, u"Premier rang stocké"_s},
            {ModeStockage::TousLesRangs, u"Tous les rangs stockés"_s},
            {ModeStockage::RangsDeGain, u"Rangs de gain stockés"_s}};
        e.calculer(3);
        QVERIFY(e.lignes() > 0);
        e.mode()->setCurrentIndex(1);
        QVERIFY(e.lignes() == 0 && !e.comb(2)->isEnabled() && e.comb(3)->isEnabled());
        e.edit(3)->setText(u"5"_s);
        std::vector<std::string> attendues;
        for (const auto& [numeros, c] : compter(base, 3, NombresSortis))
            if (c >= 5) attendues.push_back(LigneCombinaison(numeros, c));
        const QString compte = u"%1 à 3 numéros"_s.arg(attendues.size());
        const auto conforme = [&] {
            for (std::size_t i = 0; i < attendues.size(); ++i)
                if (e.ligne(static_cast<int>(i)) != attendues[i]) return false;
            return e.lignes() == static_cast<int>(attendues.size()) &&
                   e.texte("LabelCombEnMemoire") == compte;
        };
        for (int item = 0; item < 3; ++item) {
            e.de("RadioGroup1Item%d", item)->click();
            e.calculer(3);
            QVERIFY(conforme() && e.a.ListeMemoire.mode() == items[item].first);
            QVERIFY(e.a.ListeMemoire.DebutListe == 1 && e.a.ListeMemoire.FinListe == 300);
            QCOMPARE(e.texte("LabelStockage"), items[item].second);
            QCOMPARE(e.texte("Label25"), u"Tri simple des combinaisons selon le premier rang"_s);
            QCOMPARE(e.lu(3), u"5"_s);  // the bounds stay the user's
        }
        // The view goes through the order; whoever changes a list tells so.
        std::ranges::reverse(attendues);
        TrierLexico(e.a.ListeMemoire, false);
        e.relais.annoncer({.listes = true});
        QVERIFY(conforme());
        // The same item again changes nothing; another one empties the box, not the memory.
        e.choisir(4);
        Q_EMIT e.mode()->currentIndexChanged(1);
        QVERIFY(conforme() && e.texte("RxLabelIndice") == u"5"_s);
        e.mode()->setCurrentIndex(0);
        QVERIFY(e.lignes() == 0 && e.lu(3) == u"0"_s && e.texte("RxLabelIndice").isEmpty());
        QVERIFY(e.texte("Label25").isEmpty() && e.texte("LabelCombEnMemoire") == compte);
        e.mode()->setCurrentIndex(2);
        QVERIFY(conforme() && !e.comb(3)->isEnabled() && e.encre(0) == QColor(Qt::black));
        // One that would not fit is refused: the former list stands.
        e.mode()->setCurrentIndex(1);
        e.page->moteur().octetsMax = 100;
        e.calculer(3);
        QVERIFY(e.posees.size() == 1 && conforme());
        // A selection of that size is one combination, without a search.
        GrilleSelection choix{};
        for (const std::size_t n : {0, 1, 2}) choix[n] = Priorite::Absolue;
        e.a.selection = *ConstruireSelection(choix, e.a.base, e.a.occurrences);
        e.comb(3)->click();
        QVERIFY(!e.a.activite.occupe() && e.lignes() == 1);
        QCOMPARE(e.texte("LabelCombEnMemoire"), u"1 à 3 numéros"_s);
    }

    void bornesSaisies() {
        const Essai e;
        e.poserBornes();
        e.mode()->setCurrentIndex(1);
        enum Geste { ChangeI, SortieI, ChangeS, SortieS, HautI, BasI, HautS, BasS };
        const struct {
            int i, s;  // before
            Geste geste;
            const char16_t* saisie;
            int i2, s2;  // after
        } cas[] = {{20, 30, ChangeI, u"25", 25, 30}, {20, 30, ChangeI, u"40", 40, 40},
                   {20, 30, ChangeI, u"95", 90, 90}, {20, 30, ChangeI, u"5", 5, 30},
                   {20, 30, SortieI, u"5", 10, 30},  {20, 30, SortieI, u"", 10, 30},
                   {20, 30, ChangeS, u"25", 20, 25}, {20, 30, ChangeS, u"15", 15, 15},
                   {20, 30, ChangeS, u"9", 20, 9},   {20, 30, ChangeS, u"950", 20, 90},
                   {20, 30, SortieS, u"9", 20, 20},  {20, 30, SortieS, u"", 20, 20},
                   {30, 30, HautI, u"", 31, 31},     {90, 90, HautI, u"", 90, 90},
                   {10, 30, BasI, u"", 10, 30},      {20, 30, BasI, u"", 19, 30},
                   {20, 30, HautS, u"", 20, 31},     {30, 30, BasS, u"", 29, 29},
                   {10, 10, BasS, u"", 10, 10},      {20, 30, ChangeI, u"10", 10, 30}};
        for (const Noms& n : Rangees) {
            QLineEdit *inf = e.edit(n.edit), *sup = e.edit(n.edit2);
            QVERIFY(!inf->isReadOnly() && !sup->isReadOnly() && inf->maxLength() == 4);
            for (const auto& c : cas) {
                e.poserBornes();
                sup->setText(QString::number(c.s));
                inf->setText(QString::number(c.i));
                QLineEdit* cible = c.geste <= SortieI ? inf : sup;
                if (c.geste <= SortieS) {
                    cible->setText(QString::fromUtf16(c.saisie));
                    if (c.geste % 2 == 1) QTest::keyClick(cible, Qt::Key_Return);
                } else {
                    const int paire = c.geste <= BasI ? n.upDown : n.upDown2;
                    const auto* fleches = e.de<QWidget>("UpDown%d", paire);
                    fleches->findChildren<QToolButton*>()[c.geste % 2]->click();
                }
                const QString lu = inf->text() + u'-' + sup->text();
                if (lu != u"%1-%2"_s.arg(c.i2).arg(c.s2))
                    QFAIL(qPrintable(u"COMB %1, row %2: %3"_s.arg(n.taille).arg(&c - cas).arg(lu)));
            }
            // What is typed comes last; the ends of the range by their keys.
            QTest::keyClicks(inf, u"x-,"_s);
            QCOMPARE(inf->text(), u"10"_s);
            QTest::keyClick(inf, Qt::Key_End);
            QVERIFY(inf->text() == u"90"_s && sup->text() == u"90"_s);
            QTest::keyClick(sup, Qt::Key_Home);
            QVERIFY(inf->text() == u"10"_s && sup->text() == u"10"_s);
        }
        // A click on the size mends what was left below the limit.
        e.edit(3)->setText(u"5"_s);
        e.page->moteur().octetsMax = 1;
        e.calculer(3);
        QCOMPARE(e.lu(3), u"10"_s);
        // Without bounds, and outside of their mode, nothing can be typed.
        e.a.combinaisons.NbTiragesComb[4] = 7;
        e.relais.annoncer({.intervalle = true});
        const auto fermee = [&e](int numero, const QString& texte) {
            QTest::keyClicks(e.edit(numero), u"8"_s);
            QTest::keyClick(e.edit(numero), Qt::Key_Down);
            QTest::keyClick(e.edit(numero), Qt::Key_Return);
            return e.edit(numero)->isReadOnly() && e.lu(numero) == texte;
        };
        QVERIFY(fermee(4, u"NC"_s) && fermee(8, u"NC"_s) && !e.comb(4)->isEnabled());
        QCOMPARE(e.edit(4)->toolTip(), u"Borne Inf en attente de calcul"_s);
        e.mode()->setCurrentIndex(0);
        QVERIFY(fermee(6, u"90"_s) && e.comb(4)->isEnabled());
        const auto fond = [&e](int n) { return e.edit(n)->palette().color(QPalette::Base); };
        const QColor ferme = fond(2);
        e.mode()->setCurrentIndex(1);
        QVERIFY(fond(4) == ferme && fond(2) != ferme);
    }

    void arretEtOccupation() {
        const Essai e;
        e.comb(10)->click();  // extremes, stopped before their end
        QVERIFY(e.comb(10)->text() == u"STOP"_s && e.comb(9)->text() == u"COMB &9"_s);
        e.comb(10)->click();
        e.finir();
        QVERIFY(e.comb(10)->text() == u"COMB 1&0"_s && e.mode()->isEnabled());
        QVERIFY(e.a.combinaisons.NbTiragesComb[10] == 0 && e.lu(11) == u"NC"_s);
        QVERIFY(!e.banc.existe("comb10.dat") && !e.banc.existe(NomCombCalc) && e.posees.isEmpty());

        e.calculer(3);
        e.calculer(5);
        QCOMPARE(e.de<Alerte>("Alerte")->titre(), u"Traitement terminé"_s);
        QVERIFY(e.de<Alerte>("Alerte")->texte().startsWith(
            u"Combinaisons de 5 numéros\nTemps de calcul : "_s));
        e.mode()->setCurrentIndex(1);
        e.page->moteur().threads = 1;
        e.comb(5)->click();
        QVERIFY(e.a.activite.TraitementsEnCours == 1 && !e.mode()->isEnabled());
        for (const char* autre : {"RadioGroup1Item2", "Comb3Search", "ButtonPosition",
                                  "BitBtnWithColor7"})  // the last one is another page's
            e.de(autre)->click();
        e.mode()->setCurrentIndex(0);
        QVERIFY(e.mode()->currentIndex() == 1 && e.de("RadioGroup1Item0")->isChecked());
        QCOMPARE(e.posees.size(), 5);
        for (const DemandeMessage& d : e.posees)
            QCOMPARE(d.instruction, u"Attendez la fin du traitement en cours..."_s);
        // Every combination of five numbers: the gauge is seen on its way.
        auto* jauge = e.de<QProgressBar>("CGauge");
        QTRY_VERIFY_WITH_TIMEOUT(jauge->value() > 0, 60000);
        QVERIFY(jauge->value() < jauge->maximum() && e.texte("LabelTemps").isEmpty());
        e.comb(5)->click();
        e.finir();
        QVERIFY(e.comb(5)->text() == u"COMB &5"_s && jauge->value() < 0);
        QVERIFY(e.a.ListeMemoire.partielle && e.lignes() > 0);
        QVERIFY(e.mode()->isEnabled() && e.a.activite.TraitementsEnCours == 0);
        QCOMPARE(e.de<Alerte>("Alerte")->titre(), u"Traitement arrêté"_s);

        // Work of another kind turns no size into STOP.
        {
            const Occupation bilan(e.a.activite, {GenreTravail::Bilan});
            Q_EMIT e.forme->contexte().travaux.commence({GenreTravail::Bilan});
            e.comb(3)->click();
            QVERIFY(e.posees.size() == 6 && e.comb(3)->text() == u"COMB &3"_s);
        }
        // Closing during a run: no question before it has stopped.
        e.comb(5)->click();
        e.forme->close();
        QVERIFY(e.posees.size() == 6 && e.forme->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!e.forme->isVisible(), 60000);
        QVERIFY(e.posees.size() == 7 && e.dernier().startsWith(u"Souhaitez vous quitter"_s));
    }

    void departEtDestruction() {
        Essai e;
        QCOMPARE(e.mode()->currentIndex(), 0);  // nothing is computed
        for (const int taille : {2, 3, 4, 5}) e.calculer(taille);
        Atelier relu(e.a.Repertoire);
        TVaroMainForm forme(relu, e.banc.services);
        forme.montrer();
        QCOMPARE(forme.findChild<QComboBox*>(u"ComboBox1"_s)->currentIndex(), 1);
        forme.findChild<QAbstractButton*>(u"Comb5Search"_s)->click();  // ends with its page
    }

    void combinaisonChoisie() {
        const Essai e;
        e.calculer(5);
        e.choisir(1);
        const Ensemble numeros = e.liste()->modele().combinaison(1)->numeros;
        const int n = e.a.base.NbTirages;
        auto* grille = e.de<VueTableau>("AdvStringGrid2");
        ModeleTableau& modele = grille->modele();
        const auto cellule = [&](int l, int c) {
            return QString::fromStdString(modele.texte(modele.index(l, c)));
        };
        const auto compte = [&](int bons, int inf, int sup) {
            return std::count_if(e.a.base.Tirages.begin() + inf - 1, e.a.base.Tirages.begin() + sup,
                                 [&](auto& t) { return communs(t, numeros) == bons; });
        };
        QVERIFY(e.texte("LabelCombinaison").startsWith(u"Combinaison à 5 numéros: "_s));
        QVERIFY(e.texte("LabelCombinaison")
                    .endsWith(QString::fromStdString(e.ligne(1)).section(u"  ("_s, 0, 0)));
        QVERIFY(e.texte("LabelTirages").startsWith(u"Statistiques sur %1 tirages"_s.arg(n)));
        QCOMPARE(modele.rowCount(), 6);
        for (int l = 0; l < 6; ++l) {
            QCOMPARE(cellule(l, 0), QString::number(5 - l));
            QCOMPARE(cellule(l, 1), QString::number(compte(5 - l, 1, n)));
        }
        e.de("CheckBoxRN")->click();
        QVERIFY(modele.cellule(modele.index(0, 2)).barre);
        // Oldest first; the other order turns the rows round.
        modele.cliquer(3, false);
        const QString vieille = cellule(0, 3);
        modele.cliquer(3, false);
        QVERIFY(cellule(5, 3) == vieille && cellule(0, 3) != vieille);
        // Double clicks lead to a draw, whatever the order of the rows, and press nothing.
        modele.retablirOrdre();
        modele.cliquer(0, false);
        const QSignalSpy demandes(&e.relais, &Relais::demande);
        const ResultatStats r =
            StatsCombinaison(e.a.base, e.a.occurrences, NumerosTries(numeros), 1, n)[0].resultat;
        for (const int c : {0, 1, 2, 6, 3, 4, 5, 7})
            Q_EMIT grille->celluleActivee(modele.index(5, c));
        QCOMPARE(demandes.size(), 4);
        const int tirages[] = {n - r.Ecart, n - r.Ecart, r.PosEcartMax, r.PosSuiteMax};
        for (int i = 0; i < 4; ++i)
            QVERIFY(demandes[i][0].value<Destination>() == Destination(VersTirage{tirages[i], {}}));
        QCOMPARE(communs(e.a.base.Tirages[static_cast<std::size_t>(tirages[0] - 1)], numeros), 5);
        QCOMPARE(e.de<QLineEdit>("EditTirGlob")->text(), QString::number(tirages[3]));
        // Its place in the list in memory.
        e.de("ButtonPosition")->click();
        QCOMPARE(e.dernier(), u"Cette combinaison n'est pas en mémoire..."_s);
        e.mode()->setCurrentIndex(1);
        e.edit(5)->setText(e.lu(9));
        e.calculer(5);
        e.de("ButtonPosition")->click();
        QCOMPARE(e.dernier(), u"Position dans la liste en mémoire :\n\nIndice :    2   !! \n\n"_s);
        // Another interval: its statistics, its bounds; what never came out leads nowhere.
        e.a.occurrences.IntervalleInf = 101;
        e.a.occurrences.IntervalleSup = 200;
        e.relais.annoncer({.intervalle = true});
        QVERIFY(e.texte("LabelTirages").startsWith(u"Statistiques sur 100 tirages"_s));
        modele.retablirOrdre();
        QCOMPARE(cellule(5, 1), QString::number(compte(0, 101, 200)));
        QVERIFY(e.lu(5) == u"NC"_s && compte(5, 101, 200) == 0);
        for (const int c : {3, 4, 7}) Q_EMIT grille->celluleActivee(modele.index(0, c));
        QCOMPARE(demandes.size(), 4);
    }

    void couleursEtCapacite() {
        const Essai e;
        e.calculer(2);
        // Colours follow the bounds in force.
        const QSignalSpy repeinte(&e.liste()->modele(), &QAbstractItemModel::dataChanged);
        const int haut = e.a.combinaisons.BorneSup[2];
        QVERIFY(e.liste()->modele().combinaison(0)->NbFois == haut || e.encre(0) != Qt::blue);
        e.a.combinaisons.BorneInf[2] = e.a.combinaisons.BorneSup[2] = 0;
        e.relais.annoncer({.intervalle = true});
        QVERIFY(repeinte.size() == 1 && e.encre(0) == QColor(Qt::black));
        e.a.combinaisons.BorneSup[2] = haut;
        e.mode()->setCurrentIndex(1);
        e.calculer(2);
        QCOMPARE(e.lignes(), 1176);
        e.mode()->setCurrentIndex(2);
        for (int i = 0; i < 1176; ++i) QCOMPARE(e.encre(i), QColor(Qt::black));

        e.mode()->setCurrentIndex(0);
        e.calculer(4);
        e.mode()->setCurrentIndex(1);
        e.calculer(4);
        QCOMPARE(e.texte("LabelCombEnMemoire"), u"211876 à 4 numéros"_s);
        QVERIFY(e.texte("LabelCombEnListe") == u"32736"_s && e.lignes() == 32736);
        QCOMPARE(e.de<QLabel>("LabelCombEnListe")->toolTip(), u"Nombre de combinaisons en liste"_s);

        // Two draws of six numbers in all leave four free: more lines than the box holds.
        const Base deux = FaireBase({{{1, 2, 3, 4, 5}, 1, 0, 2023001, 20230102, 1, 0},
                                     {{1, 2, 3, 4, 6}, 1, 0, 2023002, 20230104, 1, 0}});
        const Essai d(&deux);
        d.calculer(10);
        QVERIFY(d.texte("LabelCombEnListe") == u"123410"_s && d.lignes() == 32736);
        QCOMPARE(d.de<QLabel>("LabelCombEnListe")->toolTip(),
                 u"Les 32736 premières sont affichées"_s);
        QCOMPARE(d.posees.last().titre, u"La liste a atteint sa capacité maximum..."_s);
        QVERIFY(d.dernier().startsWith(u"Passez au Mode \"Combinaisons selon les bornes\" "_s));
    }

    /// Another base: nothing of the former one stays on the page.
    void autreBase() {
        const Base base = petiteBase();
        const Essai e(&base);
        e.calculer(2);
        e.mode()->setCurrentIndex(1);
        e.calculer(2);
        e.choisir(0);
        QVERIFY(e.lignes() > 0 && e.de<VueTableau>("AdvStringGrid2")->modele().rowCount() == 3);
        e.a.base = QuatreTirages();
        e.forme->RecalculBase();
        QVERIFY(e.lignes() == 0 && e.mode()->currentIndex() == 0);
        QVERIFY(e.lu(2) == u"NC"_s && e.comb(2)->isEnabled() && e.edit(2)->isReadOnly());
        for (const char* nom : {"LabelCombEnListe", "LabelCombEnMemoire", "LabelStockage",
                                "RxLabelIndice", "LabelTemps", "Label25", "LabelCombinaison"})
            QCOMPARE(e.texte(nom), QString());
        QCOMPARE(e.de<VueTableau>("AdvStringGrid2")->modele().rowCount(), 0);
        QVERIFY(e.texte("LabelTirages").startsWith(u"Statistiques sur 4 tirages"_s));
        e.comb(2)->click();  // forgets what was stored of more draws than there are
        QVERIFY(e.posees.size() == 1 && e.lignes() == 0);
        e.calculer(2);
        QVERIFY(e.lignes() == 4 && e.lu(6) == u"3"_s);  // 7 with 20, 33 and 41; 33 with 41
    }

    void ordreDeTabulation() {
        const Essai e;
        QStringList attendu{u"ComboBox1"_s}, lu;
        for (const Noms& n : Rangees)
            attendu << u"Comb%1Search"_s.arg(n.taille) << u"Edit%1"_s.arg(n.edit)
                    << u"Edit%1"_s.arg(n.edit2);
        for (const int item : {0, 1, 2}) attendu << u"RadioGroup1Item%1"_s.arg(item);
        attendu << u"ListBox"_s << u"AdvStringGrid2"_s << u"CheckBoxRN"_s << u"ButtonPosition"_s;
        QWidget* w = e.mode();
        do {
            if (e.page->isAncestorOf(w) && attendu.contains(w->objectName())) {
                lu << w->objectName();
            }
            w = w->nextInFocusChain();
        } while (w != e.mode());
        QCOMPARE(lu, attendu);
    }
};

QTEST_MAIN(TestCombinaisons)
#include "test_combinaisons.moc"
