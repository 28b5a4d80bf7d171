// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the page "Combinaisons N" follows the user's hands and the state.

#include <QSignalSpy>
#include <QToolButton>

#include "comb/StatsCombinaison.h"
#include "soutien/EssaiCombinaisons.h"
#include "widgets/VueTableau.h"

using namespace norvane::ui::essais;

class TestPageCombinaisons : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void bornesSaisies() {
        const EssaiCombinaisons e;
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
                    if (c.geste % 2 == 1) Q_EMIT cible->editingFinished();
                } else {
                    const int paire = c.geste <= BasI ? n.upDown : n.upDown2;
                    const auto* fleches = e.de<QWidget>("UpDown%d", paire);
                    fleches->findChildren<QToolButton*>()[c.geste % 2]->click();
                }
                const QString lu = inf->text() + u'-' + sup->text();
                if (lu != u"%1-%2"_s.arg(c.i2).arg(c.s2))
                    QFAIL(qPrintable(u"COMB %1, row %2: %3"_s.arg(n.taille).arg(&c - cas).arg(lu)));
            }
        }
        // What is typed pulls the other bound along only while it passes it, until it is left.
        const auto saisie = [&e](int numero, const QString& texte) {
            e.edit(numero)->setText(texte);
            return e.lu(3) + u'-' + e.lu(7);
        };
        e.poserBornes();
        QCOMPARE(saisie(7, u"30"_s), u"10-30"_s);
        QCOMPARE(saisie(3, u"40"_s), u"40-40"_s);
        QCOMPARE(saisie(3, u"4"_s), u"4-30"_s);
        QCOMPARE(saisie(3, u"45"_s), u"45-45"_s);
        Q_EMIT e.edit(3)->editingFinished();
        QCOMPARE(saisie(3, u"20"_s), u"20-45"_s);
        QCOMPARE(saisie(7, u"15"_s), u"15-15"_s);
        QCOMPARE(saisie(7, u"25"_s), u"20-25"_s);
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
        e.mode()->setCurrentIndex(0);
        QVERIFY(fermee(6, u"90"_s) && e.comb(4)->isEnabled());
    }

    void combinaisonChoisie() {
        const EssaiCombinaisons e;
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
        QVERIFY(e.texte("LabelTirages").startsWith(u"Statistiques sur %1 tirages"_s.arg(n)));
        QCOMPARE(modele.rowCount(), 6);
        for (int l = 0; l < 6; ++l) {
            QCOMPARE(cellule(l, 0), QString::number(5 - l));
            QCOMPARE(cellule(l, 1), QString::number(compte(5 - l, 1, n)));
        }
        // Double clicks lead to the history of the rank, or to a draw and press nothing.
        const QSignalSpy demandes(&e.relais, &Relais::demande);
        const ResultatStats r =
            StatsCombinaison(e.a.base, e.a.occurrences, NumerosTries(numeros), 1, n)[0].resultat;
        for (const int c : {0, 1, 2, 6, 3, 4, 5, 7})
            Q_EMIT grille->celluleActivee(modele.index(0, c));
        QCOMPARE(demandes.size(), 5);
        QVERIFY(demandes[0][0].value<Destination>() ==
                Destination(VersHistorique{RangCombinaison{numeros, 5}, 1, n}));
        const int tirages[] = {n - r.Ecart, n - r.Ecart, r.PosEcartMax, r.PosSuiteMax};
        for (int i = 0; i < 4; ++i)
            QVERIFY(demandes[i + 1][0].value<Destination>() ==
                    Destination(VersTirage{tirages[i], {}}));
        // Its place in the list in memory.
        e.de("ButtonPosition")->click();
        QCOMPARE(e.dernier(), u"Cette combinaison n'est pas en mémoire..."_s);
        e.mode()->setCurrentIndex(1);
        e.edit(5)->setText(e.lu(9));
        e.calculer(5);
        e.de("ButtonPosition")->click();
        QCOMPARE(e.dernier(), u"Position dans la liste en mémoire :\n\nIndice :    2   !! \n\n"_s);
        // Another interval: its statistics, its bounds.
        e.a.occurrences.IntervalleInf = 101;
        e.a.occurrences.IntervalleSup = 200;
        e.relais.annoncer({.intervalle = true});
        QVERIFY(e.texte("LabelTirages").startsWith(u"Statistiques sur 100 tirages"_s));
        QCOMPARE(cellule(5, 1), QString::number(compte(0, 101, 200)));
        QVERIFY(e.lu(5) == u"NC"_s && compte(5, 101, 200) == 0);
    }

    void couleursEtCapacite() {
        const EssaiCombinaisons e;
        e.calculer(2);
        // Colours follow the bounds in force.
        const QSignalSpy repeinte(&e.liste()->modele(), &QAbstractItemModel::dataChanged);
        e.a.combinaisons.BorneInf[2] = e.a.combinaisons.BorneSup[2] = 0;
        e.relais.annoncer({.intervalle = true});
        QVERIFY(repeinte.size() == 1 && e.encre(0) == QColor(Qt::black));
        // Two draws of six numbers in all leave four free: more lines than the box holds.
        const Base deux = FaireBase({{{1, 2, 3, 4, 5}, 1, 0, 2023001, 20230102, 1, 0},
                                     {{1, 2, 3, 4, 6}, 1, 0, 2023002, 20230104, 1, 0}});
        const EssaiCombinaisons d(&deux);
        d.calculer(10);
        QVERIFY(d.texte("LabelCombEnListe") == u"123410"_s && d.lignes() == 32736);
        QVERIFY(d.de<QLabel>("LabelCombEnListe")->toolTip() ==
                u"Les 32736 premières sont affichées"_s);
        QCOMPARE(d.texte("LabelEtatListe"), u"liste coupée"_s);
        QVERIFY(d.dernier().startsWith(u"Passez au Mode \"Combinaisons selon les bornes\" "_s));
    }

    /// Another base: nothing of the former one stays on the page.
    void autreBase() {
        const Base base = petiteBase();
        const EssaiCombinaisons e(&base);
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
        const EssaiCombinaisons e;
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

QTEST_MAIN(TestPageCombinaisons)
#include "test_page_combinaisons.moc"
