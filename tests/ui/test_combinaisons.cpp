// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The searches of the page "Combinaisons N" by their buttons: what they list, STOP, refusals.

#include <QProgressBar>
#include <set>
#include <utility>

#include "comb/LigneCombinaison.h"
#include "soutien/EssaiCombinaisons.h"
#include "widgets/Alerte.h"

using namespace norvane::ui::essais;

class TestCombinaisons : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void extremesContreForceBrute() {
        const Base base = petiteBase();
        const EssaiCombinaisons e(&base);
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
            for (int i = 0, avant = max; i < e.lignes(); ++i) {
                lues.insert(e.ligne(i));
                const int nbFois = e.liste()->modele().combinaison(i)->NbFois;
                const bool haute = nbFois == max;
                QVERIFY(nbFois <= std::exchange(avant, nbFois));  // the most frequent first
                QCOMPARE(e.encre(i), haute ? QColor(0, 0, 255) : QColor(0, 128, 0));
            }
            QVERIFY(lues == attendues && std::size_t(e.lignes()) == attendues.size());
            QCOMPARE(e.texte("LabelCombEnListe"), QString::number(attendues.size()));
            QVERIFY(e.lu(n.edit) == u"0"_s && e.lu(n.edit2) == QString::number(max));
            QCOMPARE(e.edit(n.edit)->toolTip(), u"Borne Inf calculée pour 300 tirages"_s);
            QCOMPARE(e.edit(n.edit2)->toolTip(), u"Borne Sup calculée pour 300 tirages"_s);
        }
        QVERIFY(e.texte("LabelTemps").startsWith(u"Temps de calcul : "_s));
        // A second click reads the stored list, without colours for marked lines; a missing file
        // costs a run.
        e.banc.ecrire("comb3.dat", "01 02 03  (07)\n01 02 04  (" +
                                       std::to_string(e.a.combinaisons.BorneSup[3]) + ") N\n");
        e.comb(3)->click();
        QVERIFY(!e.a.activite.occupe() && e.ligne(1) == "01 02 03  (07)");
        QVERIFY(e.ligne(0).ends_with(" N") && e.encre(0) == QColor(Qt::black));
        QCOMPARE(e.texte("LabelTemps"), QString());
        e.mode()->setCurrentIndex(1);
        e.mode()->setCurrentIndex(0);
        QVERIFY(e.lignes() == 0 && e.texte("LabelCombEnListe").isEmpty());
        std::filesystem::remove(e.banc.chemin("comb3.dat"));
        e.calculer(3);
        QVERIFY(e.lignes() > 0 && e.banc.existe("comb3.dat") && e.posees.isEmpty());
    }

    void listeSelonLesBornes() {
        const Base base = petiteBase();
        const EssaiCombinaisons e(&base);
        const std::pair<ModeStockage, QString> items[] = {
            {ModeStockage::PremierRang, u"Premier rang stocké"_s},
            {ModeStockage::TousLesRangs, u"Tous les rangs stockés"_s},
            {ModeStockage::RangsDeGain, u"Rangs de gain stockés"_s}};
        e.calculer(3);
        QVERIFY(e.lignes() > 0);
        e.mode()->setCurrentIndex(1);
        QVERIFY(e.lignes() == 0 && !e.comb(2)->isEnabled() && e.comb(3)->isEnabled());
        e.edit(3)->setText(u"5"_s);
        std::vector<std::pair<int, std::string>> comptees;
        for (const auto& [numeros, c] : compter(base, 3, NombresSortis))
            if (c >= 5) comptees.emplace_back(c, LigneCombinaison(numeros, c));
        // Sorted as it comes: the most frequent first, equal ones by their numbers.
        std::ranges::stable_sort(comptees, std::greater{}, &std::pair<int, std::string>::first);
        std::vector<std::string> attendues;
        for (const auto& [c, ligne] : comptees) attendues.push_back(ligne);
        const QString compte = u"%1 à 3 numéros"_s.arg(attendues.size());
        const auto conforme = [&] {
            for (std::size_t i = 0; i < attendues.size(); ++i)
                if (e.ligne(static_cast<int>(i)) != attendues[i]) return false;
            return e.lignes() == static_cast<int>(attendues.size()) &&
                   e.texte("LabelCombEnMemoire") == compte;
        };
        for (int item = 0; item < 3; ++item) {
            e.de("RadioGroup1Item%d", item)->click();
            QTest::keyClick(e.edit(item == 0 ? 3 : 7), Qt::Key_Return);
            QVERIFY(e.a.activite.occupe() && e.lignes() == 0);
            QCOMPARE(e.texte("LabelCombEnMemoire"), QString());
            QTest::keyClick(e.edit(3), Qt::Key_Return);  // no STOP
            e.finir();
            QVERIFY(!e.a.ListeMemoire.partielle && conforme() &&
                    e.a.ListeMemoire.mode() == items[item].first);
            QVERIFY(e.a.ListeMemoire.DebutListe == 1 && e.a.ListeMemoire.FinListe == 300);
            QCOMPARE(e.texte("LabelStockage"), items[item].second);
            QCOMPARE(e.texte("Label25"), u"Tri simple des combinaisons selon le premier rang"_s);
            QCOMPARE(e.a.ListeMemoire.tri.TypeTriListe, TypeTri::Simple);
            QCOMPARE(e.lu(3), u"5"_s);  // the bounds stay the user's
        }
        // The view goes through the order; whoever changes a list tells so.
        std::ranges::sort(attendues, std::greater{});
        TrierLexico(e.a.ListeMemoire, false);
        e.relais.annoncer({.listes = true});
        QVERIFY(conforme());
        // The same item again changes nothing; another one empties the box, not the memory.
        e.choisir(4);
        Q_EMIT e.mode()->currentIndexChanged(1);
        QVERIFY(conforme() && e.texte("RxLabelIndice") == u"5"_s);
        e.mode()->setCurrentIndex(0);
        QVERIFY(e.lignes() == 0 && e.lu(3) == u"0"_s && e.texte("RxLabelIndice").isEmpty());
        e.mode()->setCurrentIndex(2);
        QVERIFY(conforme() && !e.comb(3)->isEnabled() && e.encre(0) == QColor(Qt::black));
        // One that would not fit is refused: the former list stands.
        e.mode()->setCurrentIndex(1);
        e.page->moteur().octetsMax = 100;
        e.calculer(3);
        QVERIFY(e.posees.size() == 1 && conforme());
    }

    void arretEtOccupation() {
        const EssaiCombinaisons e;
        e.comb(10)->click();  // extremes, stopped before their end
        QVERIFY(e.comb(10)->text() == u"STOP"_s && e.comb(9)->text() == u"COMB &9"_s);
        QCOMPARE(e.texte("PanneauTexte"), u"Calcul des combinaisons de 10 numéros en cours..."_s);
        e.comb(10)->click();
        e.finir();
        QVERIFY(e.comb(10)->text() == u"COMB 1&0"_s && e.mode()->isEnabled());
        QVERIFY(e.a.combinaisons.NbTiragesComb[10] == 0 && e.lu(11) == u"NC"_s);
        QVERIFY(!e.banc.existe("comb10.dat") && !e.banc.existe(NomCombCalc) && e.posees.isEmpty());

        for (const int taille : {3, 6, 5}) e.calculer(taille);
        const auto alerte = [&e] { return e.de<Alerte>("Alerte")->accessibleName(); };
        QVERIFY(alerte().startsWith(
            u"Traitement terminé\nCombinaisons de 5 numéros\nTemps de calcul : "_s));
        e.mode()->setCurrentIndex(1);
        e.page->moteur().threads = 1;
        e.comb(6)->click();
        QVERIFY(e.a.activite.TraitementsEnCours == 1 && !e.mode()->isEnabled());
        for (const char* autre :
             {"RadioGroup1Item2", "Comb3Search", "ButtonPosition", "BitBtnWithColor6",
              "BitBtnWithColor7"})  // the last ones are another page's
            e.de(autre)->click();
        e.mode()->setCurrentIndex(0);
        QVERIFY(e.mode()->currentIndex() == 1 && e.de("RadioGroup1Item0")->isChecked());
        QCOMPARE(e.posees.size(), 6);
        for (const DemandeMessage& d : e.posees)
            QCOMPARE(d.instruction, u"Attendez la fin du traitement en cours..."_s);
        // Every combination of six numbers: the gauge is seen on its way.
        auto* jauge = e.de<QProgressBar>("CGauge");
        QTRY_VERIFY_WITH_TIMEOUT(jauge->value() > 0, 60000);
        QVERIFY(jauge->value() < jauge->maximum() && e.texte("LabelTemps").isEmpty());
        e.comb(6)->click();
        e.finir();
        QVERIFY(e.comb(6)->text() == u"COMB &6"_s && jauge->value() < 0);
        QVERIFY(e.a.ListeMemoire.partielle && e.lignes() > 0);
        QVERIFY(e.texte("LabelCombEnMemoire").endsWith(u" à 6 numéros, liste partielle"_s));
        QVERIFY(e.mode()->isEnabled() && e.a.activite.TraitementsEnCours == 0);
        QVERIFY(alerte().startsWith(u"Traitement arrêté\n"_s));
    }

    void departEtDestruction() {
        EssaiCombinaisons e;
        QCOMPARE(e.mode()->currentIndex(), 0);  // nothing is computed
        for (const int taille : {2, 3, 4}) e.calculer(taille);
        const auto modeAuDepart = [&e](bool relancer) {
            Atelier relu(e.a.Repertoire);
            TVaroMainForm forme(relu, e.banc.services);
            forme.montrer();
            if (relancer) forme.findChild<QAbstractButton*>(u"Comb5Search"_s)->click();
            return forme.findChild<QComboBox*>(u"ComboBox1"_s)->currentIndex();
        };
        QCOMPARE(modeAuDepart(false), 0);
        e.calculer(5);
        QCOMPARE(modeAuDepart(true), 1);  // the search that it starts ends with its page
    }
};

QTEST_MAIN(TestCombinaisons)
#include "test_combinaisons.moc"
