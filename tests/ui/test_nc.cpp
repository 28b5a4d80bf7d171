// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Combinaisons N + C" in the whole form.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>

#include "base/BaseIntegree.h"
#include "nc/PageNC.h"
#include "soutien/Banc.h"
#include "widgets/VueTableau.h"

using namespace norvane::ui::essais;

namespace {

struct Essai : FormeOuverte {
    Atelier& a = banc.atelier;
    CombinaisonsNC& nc = a.nc;
    Relais& relais = *forme->findChild<Relais*>();
    QListView* liste = de<QListView>("ListBox4");
    QComboBox* type = de<QComboBox>("ComboBox6");
    VueTableau* table = de<VueTableau>("AdvStringGrid7");

    void cocher(std::initializer_list<int> items) const {
        for (const int item : items) de("RxCheckListBox3Item%d", item)->click();
    }
    /// 3 14 25 31 44 with the chances 2 and 7.
    void validerGrille() const {
        cocher({2, 13, 24, 30, 43, 51, 56});
        de("Button62")->click();
    }
    QString texte(const char* nom) const { return de<QLabel>(nom)->text(); }
    QString dernier() const { return posees.isEmpty() ? QString() : posees.last().instruction; }
    int lignes() const { return liste->model()->rowCount(); }
    QString ligne(int i) const { return liste->model()->index(i, 0).data().toString(); }
    std::string cellule(int l, int c) const {
        return table->modele().texte(table->modele().index(l, c));
    }
    void doubleClic(int l, int c) const {
        Q_EMIT table->celluleActivee(table->modele().index(l, c));
    }
    void intervalle(int inf, int sup) const {
        ChangerIntervalle(a.base, a.occurrences, inf, sup);
        relais.annoncer({.intervalle = true});
    }
    void repos() const { QTRY_VERIFY_WITH_TIMEOUT(!a.activite.occupe(), 30000); }
    QString page() const { return de<QTabWidget>("PageControl1")->currentWidget()->objectName(); }
    /// The table shows this ticket over the interval in force.
    bool montre(const LigneNC& ticket) const {
        const auto attendues = StatsCategories(a.base, a.occurrences.IntervalleInf,
                                               a.occurrences.IntervalleSup, ticket);
        bool pareil = table->modele().rowCount() == NbCategoriesNC &&
                      texte("LabelGrilleNC") == versQt(LibelleTicket(ticket));
        for (int l = 0; pareil && l < NbCategoriesNC; ++l)
            for (int c = 0; c < NbColonnesSortis; ++c)
                pareil = pareil && cellule(l, c) == attendues[static_cast<std::size_t>(l)]
                                                        .cellules[static_cast<std::size_t>(c)]
                                                        .texte;
        return pareil;
    }
};

const LigneNC Ticket{{3, 14, 25, 31, 44}, {2, 7}};

}  // namespace

class TestNC final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void grilleEtListe() {
        const Essai e;
        e.cocher({2, 13, 24, 30, 51});
        QVERIFY(e.texte("LabelNumerosNC") == u"Numéros: 4"_s && e.nc.NbNumerosNC() == 4);
        QCOMPARE(e.texte("LabelChancesNC"), u"Chances: 1"_s);
        e.de("Button62")->click();
        QCOMPARE(e.dernier(), u"Votre sélection n'est pas complète..."_s);
        QVERIFY(e.table->modele().rowCount() == 0 && e.lignes() == 0);
        e.cocher({43, 56});
        e.de("Button62")->click();
        QVERIFY(e.montre(Ticket) && e.type->currentText() == u"05 + 02C"_s);
        QVERIFY(e.lignes() == 45 && e.texte("LabelGrillesNC") == u"45"_s);
        QCOMPARE(e.ligne(9), u"N: 03 14 25 31 44   C: 02 03 "_s);
        // A line; the interval; the bars.
        e.liste->setCurrentIndex(e.liste->model()->index(9, 0));
        QVERIFY(e.texte("LabelLigneNC") == u"10"_s && e.montre({Ticket.numeros, {2, 3}}));
        e.intervalle(101, 150);
        QVERIFY(e.montre({Ticket.numeros, {2, 3}}));
        QVERIFY(e.texte("LabelTiragesNC").startsWith(u"Statistiques sur 50 tirages"_s));
        e.de("CheckBoxRNC")->click();
        QVERIFY(e.table->modele().cellule(e.table->modele().index(11, 2)).barre.has_value());
        // Ticks wait for their validation; the type makes the list anew.
        e.de("Button61")->click();
        QVERIFY(e.texte("LabelNumerosNC") == u"Numéros: 0"_s && e.lignes() == 45);
        e.de<QComboBox>("ComboBox5")->setCurrentText(u"09 + 01C"_s);
        e.de("Button63")->click();
        QVERIFY(e.nc.SelectionNC.type() == (TypeGrille{9, 1}) && e.lignes() == 45);
        e.cocher({*e.nc.SelectionNC.numeros.begin() == 1 ? 1 : 0});
        QCOMPARE(e.dernier(), u"Vous ne pouvez pas cocher plus de 9 numéros."_s);
        e.type->setCurrentText(u"05 + 05C"_s);
        QVERIFY(e.lignes() == 252 && e.texte("LabelLigneNC").isEmpty());
        e.type->setCurrentText(u"06 + 01C"_s);
        QVERIFY(e.lignes() == 0 && e.texte("LabelGrillesNC") == u"0"_s);
    }

    void filtresEtFichiers() {
        const Essai e;
        e.validerGrille();
        e.de("Button64")->click();
        QVERIFY(e.lignes() == 1 && e.ligne(0) == versQt(TexteLigneNC(Ticket)));
        e.de("Button65")->click();  // over the whole base it won somewhere
        QVERIFY(e.lignes() == 0 && e.texte("LabelGrillesNC") == u"0"_s);
        e.de("Button69")->click();
        QCOMPARE(e.dernier(), u"Aucune grille en liste..."_s);
        // Over one draw that shares a number with it, and the Chance alone.
        const auto tirage = std::ranges::find_if(e.a.base.Tirages, [](const Tirage& t) {
            return t.Chance == 2 && Ticket.numeros.commun(Ensemble::de(t.Numeros)).taille() == 1;
        });
        const int numero = static_cast<int>(tirage - e.a.base.Tirages.begin()) + 1;
        e.intervalle(numero, numero);
        e.de("Button62")->click();
        e.de("Button65")->click();
        QCOMPARE(e.lignes(), 45);
        e.de("SupprSorties")->click();
        QCOMPARE(e.lignes(), 36);
        // To a file and back, over another list; what is refused or given up changes nothing.
        e.banc.scripts.fichiers->reponse = versQt(e.banc.chemin("a").string());
        e.de("Button69")->click();
        QCOMPARE(e.banc.lire("a.dat"), TexteListeNC(e.nc.ListeNC));
        e.cocher({1});
        e.de("Button62")->click();
        QCOMPARE(e.lignes(), 45);
        const auto ouvrir = [&](const std::string& contenu) {
            e.banc.ecrire("b.dat", contenu);
            e.banc.scripts.fichiers->reponse = versQt(e.banc.chemin("b.dat").string());
            e.de("Button68")->click();
            e.repos();
        };
        ouvrir("N: 01 02 03 04 05   C: 01 \nN: 01 02 03 04 50   C: 01 \n");
        QVERIFY(e.dernier().contains(u"ligne 2, le numéro 50 n'existe pas"_s));
        QVERIFY(e.lignes() == 45 && e.type->currentText() == u"06 + 02C"_s);
        e.banc.scripts.fichiers->reponse.clear();
        const auto messages = e.posees.size();
        e.de("Button68")->click();
        QVERIFY(!e.a.activite.occupe() && e.posees.size() == messages);
        ouvrir(e.banc.lire("a.dat"));
        QVERIFY(e.lignes() == 36 && e.type->currentText() == u"05 + 02C"_s);
    }

    void versLesBulletins() {
        const Essai e;
        QSignalSpy demandes(&e.relais, &Relais::demande);
        e.de("Button60")->click();
        QCOMPARE(e.dernier(), u"Votre sélection n'est pas complète..."_s);
        e.validerGrille();
        const Grille grille = FaireGrille({3, 14, 25, 31, 44}, {2, 7}, false);
        e.a.saisie.commencer(false);
        e.de("Button60")->click();
        e.doubleClic(11, 3);
        QVERIFY(e.dernier().startsWith(u"Pas d'ajout de combinaisons possible"_s));
        QVERIFY(e.a.billets.ListeChoix.empty() && demandes.isEmpty());
        e.a.saisie.terminer();
        e.de("Button60")->click();
        QVERIFY(e.a.billets.ListeChoix == std::vector<Grille>{grille} && e.a.saisie.bilan());
        // To the draw: the grid of the stock, or one more.
        e.liste->setCurrentIndex(e.liste->model()->index(0, 0));
        e.doubleClic(11, 4);
        const LigneNC premiere{Ticket.numeros, {1, 2}};
        const int n = e.a.base.NbTirages;
        const int sorti = n - StatsCategories(e.a.base, 1, n, premiere)[11].resultat.Ecart;
        QVERIFY(e.page() == u"Varo1"_s && e.a.saisie.enConsultation());
        QVERIFY(e.a.billets.ListeChoix.size() == 2 && e.a.saisie.grille() == 2);
        QCOMPARE(e.de<QLineEdit>("EditTirGlob")->text(), QString::number(sorti));
        e.doubleClic(10, 1);
        QVERIFY(e.a.billets.ListeChoix.size() == 2 && e.a.saisie.grille() == 2);
        // To the history by the label; nowhere from what never came out.
        demandes.clear();
        e.doubleClic(11, 0);
        QVERIFY(demandes.size() == 1 &&
                demandes[0][0].value<Destination>() ==
                    Destination(VersHistorique{
                        CategorieChances{premiere.numeros, premiere.chances, 11}, 1, n}));
        e.doubleClic(0, 0);
        e.doubleClic(0, 3);
        QCOMPARE(e.dernier(), u"Rang non sorti sur la période..."_s);
        QCOMPARE(demandes.size(), 1);
    }

    void jamaisSorties() {
        const Essai e;
        e.validerGrille();
        QAbstractButton* bouton = e.de("Button67");
        e.a.ListeMemoire = ListeDeCombinaisons(4, std::vector<Combinaison>{{{1, 2, 3, 4}, 0}});
        bouton->click();
        QVERIFY(e.dernier() == u"Combinaisons manquantes..."_s && e.lignes() == 45);
        // Over the first draw: one pair with it, one number, none.
        e.intervalle(1, 1);
        const std::vector<int> sortis(std::begin(e.a.base.Tirages[0].Numeros),
                                      std::end(e.a.base.Tirages[0].Numeros));
        std::vector<int> autres;
        for (int k = 1; k <= NumeroMax; ++k)
            if (std::ranges::count(sortis, k) == 0) autres.push_back(k);
        const auto melange = [&](std::size_t combien) {
            Ensemble numeros = Ensemble::de(std::span(sortis).first(combien));
            return numeros.avec(Ensemble::de(std::span(autres).first(5 - combien)));
        };
        e.a.ListeMemoire = ListeDeCombinaisons(
            5, std::vector<Combinaison>{{melange(2), 0}, {melange(1), 0}, {melange(0), 0}});
        bouton->click();
        QVERIFY(bouton->text() == u"STOP"_s && e.lignes() == 0);
        e.de("Button65")->click();
        QCOMPARE(e.dernier(), u"Attendez la fin du traitement en cours..."_s);
        e.repos();
        QCOMPARE(bouton->text(), u"00!"_s);
        QVERIFY(e.lignes() == 2 && e.type->currentText() == u"05 + 10C"_s);
        QVERIFY(e.nc.ListeNC[0].numeros == melange(1) && e.nc.ListeNC[1].numeros == melange(0));
        QCOMPARE(e.ligne(1).right(30), u"01 02 03 04 05 06 07 08 09 10 "_s);
        // The second click stops it, and is no new search.
        bouton->click();
        bouton->click();
        QVERIFY(e.forme->findChild<Travaux*>()->enCours()->arrete());
        e.repos();
        QCOMPARE(bouton->text(), u"00!"_s);
        QCOMPARE(e.texte("LabelEtatNC"), e.nc.partielle ? u"liste partielle"_s : QString());
    }
};

QTEST_MAIN(TestNC)
#include "test_nc.moc"
