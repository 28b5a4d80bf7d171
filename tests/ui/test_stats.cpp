// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pages "Numéros" and "Chances": intervals, sorts, ratio, double clicks.

#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "soutien/EssaiStats.h"
#include "stats/TableauStats.h"
#include "widgets/Bulle.h"

using namespace norvane::ui::essais;

class TestStats final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    /// The first table leaves out the first record; any use of a control takes it in.
    void demarrageSansLePremier() {
        const Base base = QuatreTirages();
        PageOuverte o(GenreStats::Numeros, &base);
        QVERIFY(o.inf->value() == 1 && o.sup->value() == 4);
        QCOMPARE(o.libelle(), versQt(LibelleIntervalle(base, 1, 4)));
        QCOMPARE(o.texte(30, Date), JamaisSorti);
        QCOMPARE(o.texte(30, E), u"3"_s);
        QCOMPARE(o.texte(6, NbS), u"3"_s);
        o.cliquer("RatioNumerosGraphique");
        QCOMPARE(o.texte(30, Date), u"lundi 3 octobre 2022"_s);
        QCOMPARE(o.texte(6, NbS), u"4"_s);

        PageOuverte changee(GenreStats::Numeros, &base);
        changee.page->surChange({.intervalle = true});
        QCOMPARE(changee.texte(6, NbS), u"3"_s);
        changee.page->surChange({.base = true});
        QCOMPARE(changee.texte(6, NbS), u"4"_s);
    }

    void bornesTapees() {
        // From 100..200 of 3214.
        const struct {
            bool basse;
            QString frappe;
            int inf, sup;
        } cas[] = {{true, u"150"_s, 150, 200},     {true, u"300"_s, 300, 300},
                   {false, u"50"_s, 50, 50},       {false, u"150"_s, 100, 150},
                   {true, u"0"_s, 1, 200},         {true, u"007"_s, 107, 200},  // 0 turns 1 at once
                   {false, u"99999"_s, 100, 3214}, {true, u"99999"_s, 3214, 3214},
                   {true, u"a -+.e"_s, 100, 200}};
        for (const auto& [basse, frappe, inf, sup] : cas) {
            for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
                PageOuverte o(genre);
                o.poserIntervalle(100, 200);
                const QSignalSpy remplissages(o.table->model(), &QAbstractItemModel::modelReset);
                SpinTirage* spin = basse ? o.inf : o.sup;
                PageOuverte::taper(spin, frappe);
                QCOMPARE(o.inf->value(), inf);
                QCOMPARE(o.sup->value(), sup);
                for (const SpinTirage* s : {o.inf, o.sup})
                    QCOMPARE(s->text(), QString::number(s->value()));
                // One filling a digit, whatever was clamped or pulled; none for what is sans
                // chiffre.
                const bool chiffres = frappe.at(0).isDigit();
                QCOMPARE(remplissages.size(), chiffres ? frappe.size() : 0);
                const auto libelle =
                    LibelleIntervalle(o.banc.atelier.base, o.inf->value(), o.sup->value());
                if (chiffres) QCOMPARE(o.libelle(), versQt(libelle));
            }
        }
    }

    /// What stands when a bound is left holds: nothing comes back from then on.
    void borneQuittee() {
        PageOuverte o(GenreStats::Numeros);
        o.poserIntervalle(100, 3214);
        PageOuverte::taper(o.sup, u"50"_s);
        PageOuverte::taper(o.inf, u"70"_s);
        QCOMPARE(o.sup->value(), 70);
        PageOuverte::taper(o.inf, u"20"_s);
        QCOMPARE(o.sup->value(), 50);
        PageOuverte::taper(o.sup, u"80"_s);
        QCOMPARE(o.inf->value(), 20);
    }

    void raccourcis() {
        for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
            PageOuverte o(genre);
            const IntervalleStats& sien = genre == GenreStats::Numeros
                                              ? o.banc.atelier.StatsNumeros
                                              : o.banc.atelier.StatsChances;
            const QString nom = o.inf->objectName();
            for (const int n : {10, 30, 100, 3214}) {
                const QString suite = n > 100 ? u"Tout"_s : u"Derniers%1"_s.arg(n);
                o.page->findChild<QAbstractButton*>(nom + suite)->click();
                QCOMPARE(sien, (IntervalleStats{3215 - n, 3214}));
                QVERIFY(o.libelle().startsWith(u"Statistiques sur %1 tirages"_s.arg(n)));
            }
        }
    }

    /// The interval is the atelier's: other pages work over it, and are told of each change once.
    void intervallePublie() {
        for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
            PageOuverte o(genre);
            Atelier& a = o.banc.atelier;
            const bool numeros = genre == GenreStats::Numeros;
            const IntervalleStats& sien = numeros ? a.StatsNumeros : a.StatsChances;
            const IntervalleStats& autre = numeros ? a.StatsChances : a.StatsNumeros;
            QCOMPARE(sien, (IntervalleStats{1, 3214}));
            const QSignalSpy changements(&o.banc.relais, &Relais::change);
            QTest::keyClick(o.inf, Qt::Key_Up);
            QCOMPARE(sien, (IntervalleStats{2, 3214}));
            PageOuverte::taper(o.sup, u"1"_s);
            QCOMPARE(sien, (IntervalleStats{1, 1}));
            QCOMPARE(changements.size(), 2);
            QCOMPARE(changements.last().at(0).value<Changement>(),
                     (Changement{.intervalle = true}));
            PageOuverte::taper(o.inf, u"1"_s);  // again
            o.cliquer(numeros ? "RatioNumerosSimple" : "RatioEtoilesSimple");
            SupprimerTirage(a.base, 0);
            o.banc.recalculer();
            o.page->surChange({.base = true});
            QCOMPARE(sien, (IntervalleStats{1, 3213}));
            QCOMPARE(autre, IntervalleStats{});
            QCOMPARE(changements.size(), 2);
        }
    }

    void ordreDeTabulation() {
        for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
            PageOuverte o(genre);
            const bool numeros = genre == GenreStats::Numeros;
            o.table->setFocus();
            QStringList attendus = {o.inf->objectName(), o.sup->objectName()};
            for (const auto& suite :
                 {u"Tout"_s, u"Derniers10"_s, u"Derniers30"_s, u"Derniers100"_s})
                attendus << o.inf->objectName() + suite;
            attendus << (numeros ? QStringList{u"RatioNumerosGraphique"_s, u"BitBtnWithColor7"_s,
                                               u"BitBtnWithColor6"_s}
                                 : QStringList{u"RatioEtoilesGraphique"_s, u"BitBtnWithColor17"_s,
                                               u"BitBtnWithColor19"_s});
            for (const QString& nom : attendus) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QCOMPARE(QApplication::focusWidget()->objectName(), nom);
            }
        }
    }

    /// Never out comes first in ascending order, then the older dates.
    void triParDate() {
        PageOuverte o(GenreStats::Numeros);
        o.inf->setValue(3195);
        o.cliquerEntete(Date);
        const auto& tirages = o.banc.atelier.base.Tirages;
        QList<int> dates;
        for (int l = 0; l < 49; ++l) {
            QCOMPARE(o.texte(l, 0), QString::number(l + 1));
            const auto sortie = static_cast<std::size_t>(3213 - o.texte(l, E).toInt());
            dates << (o.texte(l, Date) == JamaisSorti ? 0 : tirages[sortie].DateTirage);
        }
        QVERIFY(std::is_sorted(dates.begin(), dates.end()));
        QVERIFY(dates[1] == 0 && dates.last() > 0);
        o.cliquerEntete(Date);
        QCOMPARE(o.texte(48, Date), JamaisSorti);
    }

    /// Two keys against a sort of the rows' own; ties stay in number order.
    void triADeuxCles() {
        PageOuverte o(GenreStats::Numeros);
        o.inf->setValue(3100);
        o.cliquerEntete(0);
        QVERIFY(o.dansLOrdre());
        o.cliquerEntete(NbS);
        o.cliquerEntete(NbS);
        o.cliquerEntete(EMax, Qt::ShiftModifier);
        QCOMPARE(o.table->modele().marque(NbS), u"1▼"_s);
        QCOMPARE(o.table->modele().marque(EMax), u"2▲"_s);

        const auto lignes = RemplirStats(GenreStats::Numeros, o.banc.atelier.base,
                                         o.banc.atelier.occurrences, 3099, 3213);
        for (const bool decroissant : {false, true}) {
            if (decroissant) o.cliquerEntete(EMax, Qt::ShiftModifier);
            auto triees = lignes;
            std::stable_sort(triees.begin(), triees.end(), [&](const auto& a, const auto& b) {
                const auto &nbA = a.cellules[NbS].cle, &nbB = b.cellules[NbS].cle;
                const auto &maxA = a.cellules[EMax].cle, &maxB = b.cellules[EMax].cle;
                if (nbA != nbB) return nbB < nbA;
                return decroissant ? maxB < maxA : maxA < maxB;
            });
            QList<int> attendus;
            for (const auto& l : triees) attendus << std::stoi(l.cellules[Num].texte);
            QCOMPARE(o.elements(), attendus);
        }

        // By keyboard: Ctrl+Space on the current cell's column.
        o.table->setCurrentIndex(o.table->model()->index(0, Num));
        QTest::keyClick(o.table, Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(o.dansLOrdre());
        o.table->setCurrentIndex(o.table->model()->index(7, SMax));
        // A new filling keeps the place of the current cell.
        const QModelIndex avant = o.table->currentIndex();
        o.cliquer("RatioNumerosSimple");
        QVERIFY(avant.row() > 0 && o.table->currentIndex().row() == avant.row());
        QCOMPARE(o.table->currentIndex().column(), SMax);
    }

    void ratioTexteBarreEtBulle() {
        PageOuverte o(GenreStats::Numeros);
        o.page->surChange({.base = true});
        const QModelIndex cellule = o.table->model()->index(6, Ratio);
        const QString barre = o.texte(6, Ratio);
        QVERIFY(o.table->modele().cellule(cellule).barre);

        const auto survoler = [&](const QModelIndex& i) {
            QTest::mouseMove(o.table->viewport(), o.table->visualRect(i).center());
        };
        const Bulle& bulle = *o.table->findChild<Bulle*>();
        survoler(cellule);
        QVERIFY(bulle.isVisible());
        QCOMPARE(bulle.accessibleName(), u"Ratio Précis"_s);
        const QString precis = QString::number(barre.toInt() / 100) + u',' + barre.right(2);
        // A screen reader reads the exact text, not the length of the bar.
        QVERIFY(cellule.data(Qt::AccessibleTextRole).toString().endsWith(precis + u"% "_s));
        QCOMPARE(bulle.accessibleDescription(), precis + u"% "_s);

        const QSignalSpy remplissages(o.table->model(), &QAbstractItemModel::modelReset);
        o.cliquer("RatioNumerosSimple");
        QCOMPARE(remplissages.size(), 1);
        QCOMPARE(o.texte(6, Ratio), (precis.size() < 5 ? u"0"_s : u""_s) + precis + u"% "_s);
        QVERIFY(!o.table->modele().cellule(o.table->model()->index(6, Ratio)).barre);
    }

    void doubleClics() {
        const Base base = QuatreTirages();
        PageOuverte o(GenreStats::Numeros, &base);
        const QSignalSpy demandes(&o.banc.relais, &Relais::demande);
        o.inf->setValue(2);
        o.sup->setValue(3);
        const auto derniere = [&] { return demandes.last().at(0).value<Destination>(); };
        const auto tirage = [](int numero, int presse) -> Destination {
            return VersTirage{numero, Element{GenreStats::Numeros, presse}};
        };
        // 31 is not in draws 2 and 3.
        o.doubleCliquer(30, Num);
        QCOMPARE(o.posees().size(), 1);
        QCOMPARE(o.posees().last().instruction, u"Numéro non sorti sur la période..."_s);
        for (const int colonne : {0, NbS, Ratio, Date, E, EMax, SMax}) o.doubleCliquer(30, colonne);
        QVERIFY(demandes.isEmpty() && o.posees().size() == 1);

        o.doubleCliquer(19, Num);  // 20: in draw 3
        QCOMPARE(demandes.size(), 1);
        QVERIFY(derniere() == Destination(VersHistorique{Element{GenreStats::Numeros, 20}, 2, 3}));
        o.doubleCliquer(24, Date);  // 25: in draw 2, from a sorted table
        QVERIFY(derniere() == tirage(2, 25));
        o.cliquerEntete(NbS);
        o.doubleCliquer(o.ligneDe(25), E);
        QVERIFY(derniere() == tirage(2, 25));
        o.doubleCliquer(o.ligneDe(20), EMax);  // its gap ended at draw 3
        QVERIFY(derniere() == tirage(3, 20));
        o.table->setCurrentIndex(o.table->model()->index(o.ligneDe(41), SMax));
        QTest::keyClick(o.table, Qt::Key_Return);
        QVERIFY(derniere() == tirage(3, 41));
        QCOMPARE(demandes.size(), 5);

        PageOuverte c(GenreStats::Chances, &base);
        c.doubleCliquer(9, Num);
        QCOMPARE(c.posees().last().instruction, u"Chance non sortie sur la période..."_s);
        const QSignalSpy chances(&c.banc.relais, &Relais::demande);
        c.sup->setValue(4);
        c.doubleCliquer(2, Date);
        QVERIFY(chances.last().at(0).value<Destination>() ==
                Destination(VersTirage{3, Element{GenreStats::Chances, 3}}));
    }

    /// In a narrow window the two fixed columns stay and work like the others.
    void colonnesFigees() {
        PageOuverte o(GenreStats::Numeros);
        auto* figees = o.trouver<QTableView>("ColonnesFigees");
        QVERIFY(!figees->isVisible());
        o.page->resize(700, 400);
        o.table->setCurrentIndex(o.table->model()->index(30, SMax));
        o.table->scrollTo(o.table->currentIndex());
        QVERIFY(o.table->horizontalScrollBar()->value() > 0);
        QVERIFY(figees->isVisible());
        const QPoint titre(figees->horizontalHeader()->sectionViewportPosition(Num) + 10, 10);
        QTest::mouseClick(figees->horizontalHeader()->viewport(), Qt::LeftButton, {}, titre);
        QCOMPARE(o.texte(0, Num), u"49"_s);
    }
};

QTEST_MAIN(TestStats)
#include "test_stats.moc"
