// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Combinaisons N": its searches by their buttons, the bounds, the list, STOP and
// refusals.

#include <algorithm>
#include <map>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <set>

#include "BasesEssai.h"
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

/// Every set of `taille` of the first `parmi` numbers, with the draws that count for it: those that
/// hold it, or, beyond five, lie in it.
std::map<std::vector<Mot>, int> compter(const Base& base, int taille, int parmi) {
    std::map<std::vector<Mot>, int> comptes;
    std::vector<bool> pris(static_cast<std::size_t>(parmi));
    std::fill_n(pris.begin(), taille, true);
    const auto compris = [&](int n) { return pris[static_cast<std::size_t>(n - 1)]; };
    do {
        std::vector<Mot> numeros;
        for (int n = 1; n <= parmi; ++n)
            if (compris(n)) numeros.push_back(static_cast<Mot>(n));
        comptes[numeros] = static_cast<int>(std::ranges::count_if(base.enUsage(), [&](auto& t) {
            return std::ranges::count_if(t.Numeros, compris) == std::min(NbBoules, taille);
        }));
    } while (std::prev_permutation(pris.begin(), pris.end()));
    return comptes;
}

/// The form, its page of combinations and that page's controls.
struct Essai : FormeOuverte {
    PageCombinaisons* page = de<PageCombinaisons>("Varo3");

    using FormeOuverte::FormeOuverte;
    QString texte(const char* nom) const { return de<QLabel>(nom)->text(); }
    QLineEdit* edit(int n) const { return page->findChild<QLineEdit*>(u"Edit%1"_s.arg(n)); }
    QAbstractButton* comb(int taille) const { return de("Comb%dSearch", taille); }
    ListeCombinaisons* liste() const { return de<ListeCombinaisons>("ListBox"); }
    int lignes() const { return liste()->modele().rowCount(); }
    std::string ligne(int i) const { return liste()->modele().texte(i); }
    QComboBox* mode() const { return de<QComboBox>("ComboBox1"); }
    void finir() const { QTRY_COMPARE_WITH_TIMEOUT(page->moteur().enCours(), 0, 60000); }
    void calculer(int taille) const {
        comb(taille)->click();
        finir();
    }
    /// All bounds 10..90, computed for the interval.
    void poserBornes() {
        EtatCombinaisons& e = banc.atelier.combinaisons;
        e.NbTiragesComb.fill(page->moteur().tailleIntervalle());
        e.BorneInf.fill(10);
        e.BorneSup.fill(90);
        page->RafraichirBornes();
    }
    QString lu(int n) const { return edit(n)->text(); }
    QString dernier() const { return posees.isEmpty() ? QString() : posees.last().instruction; }
    void choisir(int i) const { liste()->setCurrentIndex(liste()->modele().index(i)); }
};

}  // namespace

class TestCombinaisons : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void extremesContreForceBrute() {
        const Base base = petiteBase();
        const Essai e(&base);
        for (const Noms& n : Rangees) {
            const QString legende = QString::fromUtf8(n.legende);
            QVERIFY(e.comb(n.taille)->text() == legende && e.lu(n.edit) == u"NC"_s);
            e.comb(n.taille)->click();
            QCOMPARE(e.comb(n.taille)->text(), u"STOP"_s);
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
            for (int i = 0; i < e.lignes(); ++i) lues.insert(e.ligne(i));
            QVERIFY(lues == attendues && std::size_t(e.lignes()) == attendues.size());
            QCOMPARE(e.texte("LabelCombEnListe"), QString::number(attendues.size()));
            QVERIFY(e.lu(n.edit) == u"0"_s && e.lu(n.edit2) == QString::number(max));
            QCOMPARE(e.edit(n.edit2)->toolTip(), u"Borne Sup calculée pour 300 tirages"_s);
        }
        QVERIFY(e.texte("LabelTemps").startsWith(u"Temps de calcul : "_s));
        // A second click reads the stored list; a missing file is an empty list.
        e.banc.ecrire("comb3.dat", "01 02 03  (07)\n");
        e.comb(3)->click();
        QVERIFY(e.page->moteur().enCours() == 0 && e.ligne(0) == "01 02 03  (07)");
        std::filesystem::remove(e.banc.chemin("comb3.dat"));
        e.comb(3)->click();
        QVERIFY(e.page->moteur().enCours() == 0 && e.lignes() == 0);
        QVERIFY(e.texte("LabelCombEnListe").isEmpty() && e.posees.isEmpty());
    }

    void listeSelonLesBornes() {
        const Base base = petiteBase();
        const Essai e(&base);
        const std::pair<ModeStockage, QString> items[] = {
            {ModeStockage::PremierRang, u"Premier rang stocké"_s},
            {ModeStockage::TousLesRangs, u"Tous les rangs stockés"_s},
            {ModeStockage::RangsDeGain, u"Rangs de gain stockés"_s}};
        e.calculer(3);
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
            QCOMPARE(e.page->moteur().ListeMemoire.disposition.mode, items[item].first);
            QVERIFY(conforme());
            QCOMPARE(e.texte("LabelStockage"), items[item].second);
            QCOMPARE(e.texte("Label25"), u"Tri simple des combinaisons selon le premier rang"_s);
            QCOMPARE(e.lu(3), u"5"_s);  // the bounds stay the user's
        }
        // The same item again changes nothing; another one empties the box, not the memory.
        e.choisir(4);
        Q_EMIT e.mode()->currentIndexChanged(1);
        QVERIFY(conforme() && e.texte("RxLabelIndice") == u"5"_s);
        e.mode()->setCurrentIndex(0);
        QVERIFY(e.lignes() == 0 && e.lu(3) == u"0"_s && e.texte("RxLabelIndice").isEmpty());
        e.mode()->setCurrentIndex(2);
        QVERIFY(conforme() && !e.comb(3)->isEnabled());
        // One that would not fit is refused: the former list stands.
        e.mode()->setCurrentIndex(1);
        e.page->moteur().octetsMax = 100;
        e.calculer(3);
        QVERIFY(e.posees.size() == 1 && conforme());
    }

    void bornesSaisies() {
        Essai e;
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
                   {10, 10, BasS, u"", 10, 10}};
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
            QTest::keyClicks(inf, u"x-,"_s);
            QCOMPARE(inf->text(), u"10"_s);
        }
        // Without bounds, and outside of their mode, nothing can be typed.
        e.banc.atelier.combinaisons.NbTiragesComb[4] = 7;
        e.page->RafraichirBornes();
        const auto fermee = [&e](int numero, const QString& texte) {
            QTest::keyClicks(e.edit(numero), u"8"_s);
            return e.edit(numero)->isReadOnly() && e.lu(numero) == texte;
        };
        QVERIFY(fermee(4, u"NC"_s) && fermee(8, u"NC"_s) && !e.comb(4)->isEnabled());
        QCOMPARE(e.edit(4)->toolTip(), u"Borne Inf en attente de calcul"_s);
        e.mode()->setCurrentIndex(0);
        QVERIFY(fermee(2, u"10"_s) && e.comb(4)->isEnabled());
    }

    void arretEtOccupation() {
        const Essai e;
        e.comb(10)->click();  // extremes, stopped before their end
        e.comb(10)->click();
        e.finir();
        QCOMPARE(e.comb(10)->text(), u"COMB 1&0"_s);
        QVERIFY(e.banc.atelier.combinaisons.NbTiragesComb[10] == 0 && e.lu(11) == u"NC"_s);
        QVERIFY(!e.banc.existe("comb10.dat") && !e.banc.existe(NomCombCalc) && e.posees.isEmpty());

        e.calculer(3);
        e.calculer(5);
        e.mode()->setCurrentIndex(1);
        e.comb(5)->click();
        QVERIFY(e.banc.atelier.TraitementsEnCours == 1 && !e.mode()->isEnabled());
        for (const char* autre : {"RadioGroup1Item2", "Comb3Search", "ButtonPosition",
                                  "BitBtnWithColor7"})  // the last one is another page's
            e.de(autre)->click();
        e.mode()->setCurrentIndex(0);
        QVERIFY(e.mode()->currentIndex() == 1 && e.de("RadioGroup1Item0")->isChecked());
        QCOMPARE(e.posees.size(), 5);
        for (const DemandeMessage& d : e.posees)
            QCOMPARE(d.instruction, u"Attendez la fin du traitement en cours..."_s);
        e.comb(5)->click();
        e.finir();
        QCOMPARE(e.comb(5)->text(), u"COMB &5"_s);
        QVERIFY(e.mode()->isEnabled() && e.banc.atelier.TraitementsEnCours == 0);
        QCOMPARE(e.de<Alerte>("Alerte")->titre(), u"Traitement arrêté"_s);

        // Closing during a run: no question before it has stopped.
        e.comb(5)->click();
        e.forme->close();
        QVERIFY(e.posees.size() == 5 && e.forme->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!e.forme->isVisible(), 60000);
        QVERIFY(e.posees.size() == 6 && e.dernier().startsWith(u"Souhaitez vous quitter"_s));
    }

    void departEtDestruction() {
        Essai e;
        QCOMPARE(e.mode()->currentIndex(), 0);  // nothing is computed
        for (const int taille : {2, 3, 4, 5}) e.calculer(taille);
        Atelier relu(e.banc.atelier.Repertoire);
        TVaroMainForm forme(relu, e.banc.services);
        forme.montrer();
        QCOMPARE(forme.findChild<QComboBox*>(u"ComboBox1"_s)->currentIndex(), 1);
        forme.findChild<QAbstractButton*>(u"Comb5Search"_s)->click();  // ends with its page
    }

    void combinaisonChoisie() {
        const Essai e;
        e.calculer(5);
        e.choisir(1);
        const Atelier& a = e.banc.atelier;
        const auto lue = LireLigneCombinaison(e.ligne(1));
        QCOMPARE(e.texte("LabelCombinaison"), versQt(LibelleCombinaison(lue->numeros)));
        const int n = a.base.NbTirages;
        const auto lignes = StatsCombinaison(a.base, a.occurrences, lue->numeros, 1, n);
        auto* grille = e.de<VueTableau>("AdvStringGrid2");
        ModeleTableau& modele = grille->modele();
        QCOMPARE(modele.rowCount(), 6);
        for (std::size_t l = 0; l < 6; ++l)
            for (std::size_t c = 0; c < NbColonnesCombinaison; ++c)
                QCOMPARE(modele.texte(modele.index(static_cast<int>(l), static_cast<int>(c))),
                         lignes[l].cellules[c]);
        e.de("CheckBoxRN")->click();
        QVERIFY(modele.cellule(modele.index(0, 2)).barre);
        // Oldest first, a rank that never came out before all.
        modele.cliquer(3, false);
        std::vector<int> dates;
        for (int l = 0; l < 6; ++l)
            dates.push_back(lignes[static_cast<std::size_t>(modele.origine(l))].date);
        QVERIFY(std::is_sorted(dates.begin(), dates.end()) && dates.front() == 0);
        // Double clicks lead to a draw and press nothing.
        modele.retablirOrdre();
        QSignalSpy demandes(e.page, &Page::tirageDemande);
        const ResultatStats& r = lignes.front().resultat;
        for (const int c : {0, 1, 2, 6, 3, 4, 5, 7})
            Q_EMIT grille->celluleActivee(modele.index(0, c));
        QCOMPARE(demandes.size(), 4);
        const int tirages[] = {n - r.Ecart, n - r.Ecart, r.PosEcartMax, r.PosSuiteMax};
        for (int i = 0; i < 4; ++i)
            QVERIFY(demandes[i][0] == tirages[i] && demandes[i][2] == AucunElement);
        QCOMPARE(e.de<QLineEdit>("EditTirGlob")->text(), QString::number(tirages[3]));
        // Its place in the list in memory.
        e.de("ButtonPosition")->click();
        QCOMPARE(e.dernier(), u"Cette combinaison n'est pas en mémoire..."_s);
        e.mode()->setCurrentIndex(1);
        e.edit(5)->setText(e.lu(9));
        e.calculer(5);
        e.de("ButtonPosition")->click();
        QCOMPARE(e.dernier(), u"Position dans la liste en mémoire :\n\nIndice :    2   !! \n\n"_s);
    }

    void couleursEtCapacite() {
        const Essai e;
        const auto encre = [&e](int ligne) {
            const QVariant borne =
                e.liste()->modele().index(ligne).data(ModeleCombinaisons::RoleBorne);
            return DelegueCombinaisons::encre(static_cast<BorneLigne>(borne.toInt()), false,
                                              QPalette(Qt::white));
        };
        e.calculer(2);
        for (int i = 0; i < e.lignes(); ++i) {
            const int fois = LireLigneCombinaison(e.ligne(i))->nbFois;
            const bool haute = fois == e.banc.atelier.combinaisons.BorneSup[2];
            QCOMPARE(encre(i), haute ? QColor(0, 0, 255) : QColor(0, 128, 0));
        }
        e.mode()->setCurrentIndex(1);
        e.calculer(2);
        QVERIFY(e.lignes() == 1176 && encre(0) == QColor(Qt::black));
        e.mode()->setCurrentIndex(2);
        for (int i = 0; i < 1176; ++i) QCOMPARE(encre(i), QColor(Qt::black));

        e.mode()->setCurrentIndex(0);
        e.calculer(4);
        e.mode()->setCurrentIndex(1);
        e.calculer(4);
        QCOMPARE(e.texte("LabelCombEnMemoire"), u"211876 à 4 numéros"_s);
        QVERIFY(e.texte("LabelCombEnListe") == u"32736"_s && e.lignes() == 32736);

        // Two draws of six numbers in all leave four free: more lines than the box holds.
        const Base deux = FaireBase({{{1, 2, 3, 4, 5}, 1, 0, 2023001, 20230102, 1, 0},
                                     {{1, 2, 3, 4, 6}, 1, 0, 2023002, 20230104, 1, 0}});
        const Essai d(&deux);
        d.calculer(10);
        QVERIFY(d.texte("LabelCombEnListe") == u"123410"_s && d.lignes() == 32736);
        QCOMPARE(d.posees.last().titre, u"La liste a atteint sa capacité maximum..."_s);
        QVERIFY(d.dernier().startsWith(u"Passez au Mode \"Combinaisons selon les bornes\" "_s));
    }
};

QTEST_MAIN(TestCombinaisons)
#include "test_combinaisons.moc"
