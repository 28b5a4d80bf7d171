// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The draw on the page "Résultats": browsing and display.

#include <algorithm>
#include <QTest>

#include "soutien/EssaiResultats.h"
#include "widgets/BandeTirage.h"
#include "widgets/TableRapports.h"

using namespace norvane::ui::essais;

class TestResultats final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void parcoursDeToutLaBase() {
        Essai e(true);
        const int n = e.base().NbTirages;
        QCOMPARE(ecartAvec(e, n - 1), QString());
        for (int i = n - 2; i >= 0; --i) {  // backwards by the arrow button
            e.fleche(u"UpDown1"_s, 1);
            QCOMPARE(ecartAvec(e, i), QString());
        }
        e.fleche(u"UpDown1"_s, 1);
        QCOMPARE(e.numero()->text(), u"1"_s);
        for (int i = 1; i < n; ++i) {  // forwards by the text
            e.numero()->setText(QString::number(i + 1));
            QCOMPARE(ecartAvec(e, i), QString());
        }
    }

    void dates() {
        // What the selector becomes does not hang on what it was when the date has both records.
        const struct {
            bool globale;
            int selecteurAvant, date;
            bool existe;
            int selecteurApres;
        } cas[] = {
            {false, 0, 20240722, true, 0},  {false, 1, 20240722, true, 1},
            {false, 1, 20191104, true, 1},  {false, 1, 20191102, true, 0},
            {false, 1, 20081006, true, 0},  {true, 1, 19991110, true, 0},
            {true, 0, 19760519, true, 0},   {false, 1, 19991110, false, 1},
            {true, 1, 19991111, false, 0},  {false, 1, 20240723, false, 1},
            {false, 1, 20160119, false, 0}, {false, 1, 20240801, false, 1},
        };
        for (const auto& [globale, selecteurAvant, date, existe, selecteurApres] : cas) {
            Essai e(globale);
            e.selecteur()->setCurrentIndex(selecteurAvant);
            QCOMPARE(e.selecteur()->currentIndex(), selecteurAvant);
            e.dater(date);
            QCOMPARE(e.date()->date(), date);
            QCOMPARE(e.selecteur()->currentIndex(), selecteurApres);

            int avant = -1;  // the last record older than the date, or the one to be shown
            for (int i = 0; i < e.base().NbTirages; ++i) {
                const Tirage& t = e.record(i);
                if (t.DateTirage < date ||
                    (t.DateTirage == date && t.SousTirage == selecteurApres + 1))
                    avant = i;
            }
            if (existe) QCOMPARE(ecartAvec(e, avant), QString());
            if (existe) continue;
            QCOMPARE(absence(e), QString());
            QCOMPARE(e.montre(u"AdvStringGrid8"_s), selecteurApres == 1 && date >= 20191104);
            // A step or a text from elsewhere leads to the draw before, or to the first; what is
            // typed is the draw wanted.
            e.fleche(u"UpDown1"_s, 0);
            QCOMPARE(ecartAvec(e, std::max(avant, 0)), QString());
            e.dater(date);
            e.montrer(7);
            QCOMPARE(ecartAvec(e, std::max(avant, 0)), QString());
            e.dater(date);
            QTest::keyClicks(e.numero(), u"1500"_s);
            QCOMPARE(ecartAvec(e, 1499), QString());
        }
    }

    void selecteur() {
        Essai e(true);
        const auto premierDe = [&e](int date) {
            return TirageParDate(e.base().Tirages, date, e.base().NbTirages).indice;
        };
        const int double1999 = premierDe(19991110);
        QVERIFY(double1999 >= 0);
        e.montrer(double1999 + 1);
        e.selecteur()->setCurrentIndex(1);  // the old game had 2nd draws too
        QCOMPARE(ecartAvec(e, double1999 + 1), QString());
        e.selecteur()->setCurrentIndex(0);
        QCOMPARE(ecartAvec(e, double1999), QString());
        const int simple = premierDe(20160120);  // a date with one draw only
        e.montrer(simple + 1);
        e.selecteur()->setCurrentIndex(1);
        QCOMPARE(ecartAvec(e, simple), QString());
    }

    void numero() {
        Essai e(false);
        const int n = e.base().NbTirages;
        QLineEdit* edit = e.numero();
        edit->setText(u"0"_s);
        QCOMPARE(ecartAvec(e, 0), QString());
        edit->setText(u"99999"_s);
        QCOMPARE(ecartAvec(e, n - 1), QString());
        edit->clear();  // an empty text does nothing
        QCOMPARE(e.texte(u"LabelTirageFixeAn"_s), u"2024"_s);
        QTest::keyClick(edit, Qt::Key_Return);  // and the number comes back when it is left so
        QCOMPARE(ecartAvec(e, n - 1), QString());
        edit->clear();
        QTest::keyClicks(edit, u"a1b2-"_s);
        QCOMPARE(ecartAvec(e, 11), QString());
        const struct {
            Qt::Key touche;
            int indice;
        } touches[] = {{Qt::Key_Up, 12},       {Qt::Key_PageUp, 22}, {Qt::Key_Down, 21},
                       {Qt::Key_PageDown, 11}, {Qt::Key_Home, 0},    {Qt::Key_Down, 0},
                       {Qt::Key_PageDown, 0},  {Qt::Key_End, n - 1}, {Qt::Key_Up, n - 1}};
        for (const auto& [touche, indice] : touches) {
            QTest::keyClick(edit, touche);
            QCOMPARE(ecartAvec(e, indice), QString());
        }
    }

    void communs() {
        Essai e(true);
        auto* communs = e.de(u"CommunsButton"_s);
        const auto* bande = e.page->findChild<BandeTirage*>();
        communs->click();
        QVERIFY(communs->font().bold());
        int chances = 0;
        for (int i = 0; i < e.base().NbTirages; i += i < 5400 ? 37 : 1) {
            e.montrer(i + 1);
            std::set<int> avant;
            if (i > 0) avant = boutonsDe(e.record(i - 1));
            for (int k = 0; k < NbBoules; ++k)
                QCOMPARE(e.de<QLabel>(u"Label%1"_s.arg(k + 1))->accessibleDescription().isEmpty(),
                         !avant.contains(e.record(i).Numeros[k]));
            const int chance = e.record(i).Chance;
            const bool commune = chance != 0 && avant.contains(NumeroMax + chance);
            QCOMPARE(bande->cellule(5)->commune(), commune);
            if (commune) ++chances;
        }
        QVERIFY(chances > 0);
        communs->click();
        QVERIFY(!communs->font().bold());
    }

    void indices() {
        Essai e(true);
        for (int numero = 2; numero <= e.base().NbTirages; numero += 331) {
            e.montrer(numero);
            std::array<bool, NbBoutons> allumes{};
            for (const int b : boutonsDe(e.record(numero - 1)))
                allumes[static_cast<std::size_t>(b - 1)] = true;
            const auto attendus = IndicesBoutons(e.banc.atelier.occurrences, numero - 1, allumes);
            for (int b = 1; b <= NbBoutons; ++b) {
                const auto* bouton = e.de(u"Button%1"_s.arg(b));
                QCOMPARE(bouton->toolTip() + u'|' + bouton->statusTip(),
                         versQt(attendus[static_cast<std::size_t>(b - 1)]));
            }
        }
    }

    void rapports() {
        Essai e(false);
        auto* table = e.de<TableRapports>(u"AdvStringGrid8"_s);
        auto& r = e.banc.atelier.base.Rapports[static_cast<std::size_t>(e.base().NbTirages - 1)];
        r[0] = {0, 0};
        r[1] = {1234, 56789.5};
        e.page->surChange({.reglages = true});
        QCOMPARE(table->rowCount(), 4);
        const QString fine(QChar(0xA0));
        QCOMPARE(table->item(1, 1)->text(), u"1"_s + fine + u"234"_s);
        QCOMPARE(table->item(1, 2)->text(), u"56"_s + fine + u"789,50 €"_s);
        // 56789.5 x 6.55957 = 372514.700...
        QCOMPARE(table->item(1, 2)->toolTip(), u"Montant en Francs : 372"_s + fine + u"514,70"_s);
        table->setFacteurs({0, 6});
        QCOMPARE(table->item(1, 3)->text(), u"6"_s);
        QCOMPARE(table->item(1, 3)->statusTip(), u"Vous gagnez 6 fois le montant du rang 2"_s);
    }
};

QTEST_MAIN(TestResultats)
#include "test_resultats.moc"
