// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pages "Numéros" and "Chances": intervals, sorts, ratio, double clicks.

#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "OracleStats.h"
#include "soutien/EssaiStats.h"
#include "stats/TableauStats.h"
#include "widgets/Bulle.h"
#include "widgets/ColonnesStats.h"

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

        // The same number typed again is a use of the control as well.
        PageOuverte tapee(GenreStats::Numeros, &base);
        QCOMPARE(tapee.texte(30, Date), JamaisSorti);
        PageOuverte::taper(tapee.inf, u"1"_s);
        QCOMPARE(tapee.texte(30, Date), u"lundi 3 octobre 2022"_s);

        PageOuverte changee(GenreStats::Numeros, &base);
        changee.page->surChange({.intervalle = true});
        QCOMPARE(changee.texte(6, NbS), u"3"_s);
        changee.page->surChange({.base = true});
        QCOMPARE(changee.texte(6, NbS), u"4"_s);
    }

    void bornesTapees_data() {
        QTest::addColumn<bool>("basse");
        QTest::addColumn<QString>("frappe");
        QTest::addColumn<int>("inf");
        QTest::addColumn<int>("sup");
        // From 100..200 of 3214.
        QTest::newRow("dedans") << true << u"150"_s << 150 << 200;
        QTest::newRow("la basse tire la haute") << true << u"300"_s << 300 << 300;
        QTest::newRow("la haute tire la basse") << false << u"50"_s << 50 << 50;
        QTest::newRow("la basse revient") << false << u"150"_s << 100 << 150;
        QTest::newRow("zéro") << true << u"0"_s << 1 << 200;
        QTest::newRow("zéros de tête") << true << u"007"_s << 107 << 200;  // 0 turns 1 at once
        QTest::newRow("au-delà") << false << u"99999"_s << 100 << 3214;
        QTest::newRow("basse au-delà") << true << u"99999"_s << 3214 << 3214;
        QTest::newRow("sans chiffre") << true << u"a -+.e"_s << 100 << 200;
    }
    void bornesTapees() {
        QFETCH(bool, basse);
        QFETCH(QString, frappe);
        for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
            PageOuverte o(genre);
            o.poserIntervalle(100, 200);
            const QSignalSpy remplissages(o.table->model(), &QAbstractItemModel::modelReset);
            SpinTirage* spin = basse ? o.inf : o.sup;
            PageOuverte::taper(spin, frappe);
            QTEST(o.inf->value(), "inf");
            QTEST(o.sup->value(), "sup");
            for (const SpinTirage* s : {o.inf, o.sup})
                QCOMPARE(s->text(), QString::number(s->value()));
            // One filling a digit, whatever was clamped or pulled; none for what is sans chiffre.
            const bool chiffres = frappe.at(0).isDigit();
            QCOMPARE(remplissages.size(), chiffres ? frappe.size() : 0);
            const auto libelle =
                LibelleIntervalle(o.banc.atelier.base, o.inf->value(), o.sup->value());
            if (chiffres) QCOMPARE(o.libelle(), versQt(libelle));
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
            const QSignalSpy remplissages(o.table->model(), &QAbstractItemModel::modelReset);
            for (const int n : {10, 30, 100, 3214}) {
                const QString suite = n > 100 ? u"Tout"_s : u"Derniers%1"_s.arg(n);
                o.page->findChild<QAbstractButton*>(nom + suite)->click();
                QCOMPARE(sien, (IntervalleStats{3215 - n, 3214}));
                QVERIFY(o.libelle().startsWith(u"Statistiques sur %1 tirages"_s.arg(n)));
            }
            QCOMPARE(remplissages.size(), 4);
        }
        const Base petite = QuatreTirages();
        PageOuverte o(GenreStats::Chances, &petite);
        o.cliquer("RxSpinEditStatsEDerniers10");
        QVERIFY(o.inf->value() == 1 && o.sup->value() == 4);
    }

    /// A taller screen shows more rows.
    void lignesSelonLEcran() {
        const auto visibles = [](double echelle) {
            const VueTableau table(colonnesStats(GenreStats::Numeros), 2, echelle, nullptr);
            return 600 * echelle / table.verticalHeader()->defaultSectionSize();
        };
        QVERIFY(visibles(1.28) > 30);
        QVERIFY(visibles(1.8) > visibles(1.28) + 3);
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

    void touchesSourdesEtTexteVide() {
        PageOuverte o(GenreStats::Numeros);
        const QSignalSpy remplissages(o.table->model(), &QAbstractItemModel::modelReset);
        o.sup->setFocus();
        for (const Qt::Key touche :
             {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Plus, Qt::Key_Minus}) {
            o.sup->selectAll();
            QTest::keyClick(o.sup, touche);
            QTest::keyClick(o.sup->findChild<QLineEdit*>(), touche);
            QCOMPARE(o.sup->text(), u"3214"_s);
        }
        o.sup->findChild<QLineEdit*>()->clear();
        QCOMPARE(o.sup->value(), 3214);
        o.inf->setFocus();  // an emptied control takes its number back
        QCOMPARE(o.sup->text(), u"3214"_s);
        QCOMPARE(remplissages.size(), 0);
        // Arrows and pages step, one filling each.
        QTest::keyClick(o.inf, Qt::Key_Up);
        QTest::keyClick(o.inf, Qt::Key_PageUp);
        QTest::keyClick(o.inf, Qt::Key_Down);
        QCOMPARE(o.inf->value(), 11);
        QCOMPARE(remplissages.size(), 3);
    }

    /// "Chances" waits for as many characters as the lower limit has, unless the old draws are in.
    void saisieIncomplete() {
        for (const bool anciens : {false, true}) {
            Base base = BaseIntegree(false);
            base.AnciensTirages = anciens;
            for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
                PageOuverte o(genre, &base);
                o.inf->setMinimum(1000);
                const QSignalSpy remplissages(o.table->model(), &QAbstractItemModel::modelReset);
                PageOuverte::taper(o.inf, u"2"_s);
                const bool attend = genre == GenreStats::Chances && !anciens;
                QCOMPARE(o.inf->text(), attend ? u"2"_s : u"1000"_s);
                QCOMPARE(remplissages.size(), attend ? 0 : 1);
                if (!attend) continue;
                QTest::keyClicks(o.inf, u"500"_s);
                QCOMPARE(o.inf->value(), 2500);
                QCOMPARE(remplissages.size(), 1);
            }
        }
    }

    /// Never out comes first in ascending order, then the older dates; a new interval puts the
    /// rows back in number order.
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
        QTest::keyClick(o.inf, Qt::Key_Up);
        QVERIFY(o.dansLOrdre());
        QCOMPARE(o.table->modele().marque(Date), QString());
        QCOMPARE(o.table->modele().marque(Num), u"1▲"_s);
    }

    /// Two keys against a sort of the definitions' own values; ties stay in number order.
    void triADeuxCles() {
        PageOuverte o(GenreStats::Numeros);
        o.inf->setValue(3100);
        o.cliquerEntete(0);
        QVERIFY(o.dansLOrdre());
        o.cliquerEntete(NbS);
        o.cliquerEntete(NbS);
        QPersistentModelIndex treize = o.table->model()->index(o.ligneDe(13), Num);
        o.cliquerEntete(EMax, Qt::ShiftModifier);
        QCOMPARE(treize.data().toString(), u"13"_s);
        QCOMPARE(o.table->modele().marque(NbS), u"1▼"_s);
        QCOMPARE(o.table->modele().marque(EMax), u"2▲"_s);

        std::vector<ResultatStats> r;
        QList<int> attendus;
        for (int n = 1; n <= NumeroMax; ++n) {
            r.push_back(OracleStats(PresencesNumero(o.banc.atelier.base, n), 3099, 3213));
            attendus << n;
        }
        const auto trier = [&](bool decroissant) {
            std::sort(attendus.begin(), attendus.end(), [&](int a, int b) {
                const ResultatStats& x = r[static_cast<std::size_t>(a - 1)];
                const ResultatStats& y = r[static_cast<std::size_t>(b - 1)];
                // The whole text counts: value, then count, then position.
                const std::tuple clesX{x.EcartMax, x.NbEcartMax, x.PosEcartMax};
                const std::tuple clesY{y.EcartMax, y.NbEcartMax, y.PosEcartMax};
                if (x.Sorties != y.Sorties) return x.Sorties > y.Sorties;
                if (clesX != clesY) return decroissant ? clesX > clesY : clesX < clesY;
                return a < b;
            });
        };
        trier(false);
        QCOMPARE(o.elements(), attendus);
        o.cliquerEntete(EMax, Qt::ShiftModifier);
        trier(true);
        QCOMPARE(o.elements(), attendus);

        // By keyboard: Ctrl+Space on the current cell's column.
        o.table->setCurrentIndex(o.table->model()->index(0, Num));
        QTest::keyClick(o.table, Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(o.dansLOrdre());
        QTest::keyClick(o.table, Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(o.texte(0, Num), u"49"_s);
        o.table->setCurrentIndex(o.table->model()->index(7, SMax));
        QTest::keyClick(o.table, Qt::Key_Space, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(o.table->modele().cles(), (std::vector<CleTri>{{Num, false}, {SMax, true}}));
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
        survoler(o.table->model()->index(6, E));
        QVERIFY(!bulle.isVisible());
        survoler(cellule);
        QVERIFY(bulle.isVisible());
        o.page->surDepart();
        QVERIFY(!bulle.isVisible());

        const QSignalSpy remplissages(o.table->model(), &QAbstractItemModel::modelReset);
        o.cliquer("RatioNumerosSimple");
        QCOMPARE(remplissages.size(), 1);
        QCOMPARE(o.texte(6, Ratio), (precis.size() < 5 ? u"0"_s : u""_s) + precis + u"% "_s);
        QVERIFY(!o.table->modele().cellule(o.table->model()->index(6, Ratio)).barre);
        survoler(o.table->model()->index(5, Ratio));
        survoler(o.table->model()->index(6, Ratio));
        QVERIFY(!bulle.isVisible());
        auto* simple = o.trouver<QAbstractButton>("RatioNumerosSimple");
        simple->setFocus();
        QTest::keyClick(simple, Qt::Key_Right);
        QCOMPARE(o.texte(6, Ratio), barre);
        QCOMPARE(remplissages.size(), 2);
    }

    /// A 2nd Tirage has no Chance: chance 1 shows as present there.
    void couleursDePresence() {
        const Base base = QuatreTirages();
        PageOuverte chances(GenreStats::Chances, &base);
        PageOuverte numeros(GenreStats::Numeros, &base);
        const auto presents = [](const PageOuverte& o) {
            QList<int> lus;
            for (int l = 0; l < o.table->model()->rowCount(); ++l) {
                const QModelIndex i = o.table->model()->index(l, Num);
                const auto encre = i.data(Qt::ForegroundRole).value<QBrush>().color();
                if (encre == QColor(Qt::white)) lus << o.texte(l, Num).toInt();
            }
            return lus;
        };
        chances.sup->setValue(2);
        QCOMPARE(presents(chances), QList<int>({1}));
        chances.sup->setValue(3);
        QCOMPARE(presents(chances), QList<int>({3}));
        numeros.sup->setValue(2);
        QCOMPARE(presents(numeros), QList<int>({7, 25, 33, 41, 48}));
        const auto fond = chances.table->model()->index(2, 0).data(Qt::BackgroundRole);
        QCOMPARE(fond.value<QBrush>().gradient()->stops().first().second, QColor(0x9D, 0, 0));
        QCOMPARE(chances.texte(0, Num), u"01"_s);
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
        QCOMPARE(o.posees().last().titre, u"Message"_s);
        for (const int colonne : {0, NbS, Ratio, Date, E, EMax, SMax}) o.doubleCliquer(30, colonne);
        QVERIFY(demandes.isEmpty() && o.posees().size() == 1);

        o.doubleCliquer(19, Num);  // 20: in draw 3
        QCOMPARE(demandes.size(), 1);
        QVERIFY(derniere() == Destination(VersHistorique{Element{GenreStats::Numeros, 20}, 2, 3}));
        for (const int colonne : {0, NbS, Ratio}) o.doubleCliquer(19, colonne);
        QCOMPARE(demandes.size(), 1);
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

    void indices() {
        PageOuverte o(GenreStats::Chances);
        const auto* modele = o.table->model();
        QCOMPARE(modele->headerData(EMax, Qt::Horizontal, Qt::ToolTipRole).toString(),
                 u"Écart Max: cliquez pour trier (SHIFT+CLIC=tri secondaire)"_s);
        for (int c = 0; c < 10; ++c)
            QCOMPARE(modele->index(4, c).data(Qt::ToolTipRole).toString().isEmpty(), c != Num);
    }

    /// In a narrow window the two fixed columns stay and work like the others.
    void colonnesFigees() {
        PageOuverte o(GenreStats::Numeros);
        const QSignalSpy demandes(&o.banc.relais, &Relais::demande);
        auto* figees = o.trouver<QTableView>("ColonnesFigees");
        QVERIFY(!figees->isVisible());
        o.page->resize(700, 400);
        o.table->setCurrentIndex(o.table->model()->index(30, SMax));
        o.table->scrollTo(o.table->currentIndex());
        QVERIFY(o.table->horizontalScrollBar()->value() > 0);
        QVERIFY(figees->isVisible());
        const QModelIndex cellule = o.table->model()->index(30, Num);
        QCOMPARE(figees->visualRect(cellule).top(), o.table->visualRect(cellule).top());
        PageOuverte::doubleCliquer(figees, cellule);
        QCOMPARE(demandes.size(), 1);
        QVERIFY(demandes.last().at(0).value<Destination>() ==
                Destination(VersHistorique{Element{GenreStats::Numeros, 31}, 1, 3214}));
        const QPoint titre(figees->horizontalHeader()->sectionViewportPosition(Num) + 10, 10);
        QTest::mouseClick(figees->horizontalHeader()->viewport(), Qt::LeftButton, {}, titre);
        QCOMPARE(o.texte(0, Num), u"49"_s);
        // The current cell never hides behind them.
        o.table->setFocus();
        for (int k = 0; k < 6; ++k) QTest::keyClick(o.table, Qt::Key_Left);
        const QModelIndex actuelle = o.table->currentIndex();
        QVERIFY(!figees->isVisible() || o.table->visualRect(actuelle).left() >= figees->width());
    }
};

QTEST_MAIN(TestStats)
#include "test_stats.moc"
