// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// In and out of the series mode and of intervals, against a model that follows the rules word by
// word and counts every combination anew.
#include <gtest/gtest.h>

#include "atelier/Intervalle.h"
#include "atelier/Selections.h"
#include "comb/LigneCombinaison.h"
#include "OracleComb.h"
#include "PageSansFenetre.h"

namespace norvane {
namespace {

using Bornes = std::pair<int, int>;
constexpr int NbTirages = 60;
constexpr int NombresSortis = 9;
constexpr Bornes Intervalles[] = {{1, NbTirages}, {5, 40}, {5, 9}, {20, 20}};
constexpr Bornes Entier = Intervalles[0];
const Liste UneListe = ListeDeCombinaisons(2, std::vector<Combinaison>{{{1, 2}, 3}});

bool Valable(const GrilleSelection& g) {
    return !NumerosDe(g, Priorite::Absolue).vide() || NumerosDe(g, Priorite::Secondaire).vide();
}

struct Modele {
    struct Garde {
        Bornes intervalle{0, 0};
        std::set<int> calculees;
    };
    bool series = false;
    Bornes intervalle = Entier;
    std::set<int> calculees, dansFichier;
    Garde normal, enSeries;
    GrilleSelection enForce{}, gardee{}, editee{};
    bool saisie = false;

    bool entier() const { return intervalle == Entier; }
    std::set<int> repris(const Garde& garde) const {
        return garde.intervalle == intervalle ? garde.calculees : std::set<int>{};
    }
    void acheverSaisie() {
        if (!saisie || !Valable(editee)) return;
        enForce = editee;
        saisie = false;
    }
    void basculer() {
        if (series) {
            enSeries = {intervalle, calculees};
            calculees = entier() ? dansFichier : repris(normal);
            enForce = gardee;
        } else {
            normal = {intervalle, calculees};
            calculees = repris(enSeries);
            acheverSaisie();
            gardee = enForce;
            enForce = {};
        }
        saisie = false;
        series = !series;
    }
    void changer(const Bornes& voulu) {
        if (voulu == intervalle) return;
        intervalle = voulu;
        calculees = entier() && !series ? dansFichier : std::set<int>{};
        acheverSaisie();
    }
    void calculer(int taille) {
        calculees.insert(taille);
        if (entier() && !series) dansFichier.insert(taille);
    }
};

class Machine : public testing::Test {
 protected:
    std::mt19937 hasard{41};
    Page page{BaseAleatoire(hasard, NbTirages, NombresSortis)};
    Atelier& a = page.atelier;
    Modele m;
    std::map<std::tuple<bool, Bornes, int>, std::vector<Combinaison>> memo;

    /// Those that a draw may count for: of some of the numbers drawn, or around all of a draw.
    std::set<NumerosChoisis> candidates(int taille) const {
        if (taille <= NbBoules) return Choix({}, TousLesNumeros(NombresSortis), taille);
        std::set<NumerosChoisis> toutes;
        for (int d = m.intervalle.first - 1; d < m.intervalle.second; ++d) {
            const auto& numeros = a.base.Tirages[static_cast<std::size_t>(d)].Numeros;
            NumerosChoisis autres = TousLesNumeros();
            std::erase_if(autres, [&](int n) { return std::ranges::count(numeros, n) > 0; });
            toutes.merge(Choix({numeros, numeros + NbBoules}, autres, taille - NbBoules));
        }
        return toutes;
    }
    /// The combinations at the maximum, in their order.
    const std::vector<Combinaison>& juste(int taille) {
        auto& lignes = memo[{m.series, m.intervalle, taille}];
        if (!lignes.empty()) return lignes;
        int maximum = 0;
        for (const auto& c : m.series ? Series(taille) : candidates(taille)) {
            const int n = CompterSorties(a.base, c, m.intervalle.first, m.intervalle.second);
            if (n > maximum) lignes.clear();
            maximum = std::max(maximum, n);
            if (n == maximum) lignes.push_back({Ensemble::de(c), n});
        }
        return lignes;
    }
    std::string bornesJustes(int taille) {
        if (!m.calculees.contains(taille)) return "NC";
        return "0.." + std::to_string(juste(taille).front().NbFois);
    }
    GrilleSelection grilleAuHasard() {
        GrilleSelection g{};
        for (auto i = hasard() % 5; i > 0; --i)
            g[hasard() % NombresSortis] = static_cast<Priorite>(hasard() % 3);
        return g;
    }

    void calculer(int taille) {
        const auto avant = Contenu(page.dossier);
        a.modeListe = ModeListe::Extremes;
        ASSERT_EQ(page.cliquer(taille).message, "");
        m.calculer(taille);
        EXPECT_TRUE(page.extremes() == juste(taille));
        auto apres = Contenu(page.dossier);
        const std::string nom = (m.series     ? "succ"
                                 : m.entier() ? "comb"
                                              : "cmbtmp") +
                                std::to_string(taille) + ".dat";
        EXPECT_TRUE(*LireListe(page.dossier.chemin() / nom, taille) == juste(taille));
        auto autres = avant;
        for (auto* fichiers : {&apres, &autres}) {
            fichiers->erase(nom);
            if (m.entier() && !m.series) fichiers->erase(NomCombCalc);
        }
        EXPECT_EQ(apres, autres) << "another file was written";
    }
    void basculer() {
        a.ListeMemoire = a.ListeExtremes = UneListe;
        a.modeListe = ModeListe::Bornes;
        if (a.series) {
            ASSERT_TRUE(QuitterSeries(a));
        } else {
            EntrerSeries(a);
        }
        m.basculer();
        EXPECT_TRUE(a.ListeMemoire.vide() && a.ListeExtremes.vide());
        EXPECT_EQ(a.modeListe, ModeListe::Extremes);
    }
    void changer() {
        const Bornes& voulu = Intervalles[hasard() % std::size(Intervalles)];
        const bool meme = voulu == m.intervalle;
        a.ListeMemoire = a.ListeExtremes = UneListe;
        a.triEcartAvance.actif = true;
        ASSERT_TRUE(ChangerIntervalle(a, voulu.first, voulu.second));
        m.changer(voulu);
        EXPECT_EQ(a.ListeExtremes.vide(), !meme);
        EXPECT_EQ(a.triEcartAvance.actif, meme);
        EXPECT_FALSE(a.ListeMemoire.vide());
    }
    void valider(const GrilleSelection& g) {
        EXPECT_EQ(static_cast<bool>(ValiderSelection(a, g)), Valable(g));
        if (!Valable(g)) return;
        m.enForce = g;
        m.saisie = false;
    }
    void editer(const GrilleSelection& g) {
        EditerSelection(a);
        a.saisieSelection.grille = m.editee = g;
        m.saisie = true;
    }
    void verifier() {
        EXPECT_EQ(a.series, m.series);
        EXPECT_EQ(Bornes(a.occurrences.IntervalleInf, a.occurrences.IntervalleSup), m.intervalle);
        for (int taille = TailleCombMin; taille <= TailleCombMax; ++taille)
            EXPECT_EQ(page.bornes(taille), bornesJustes(taille)) << taille;
        EXPECT_EQ(a.grilleSelection, m.enForce);
        EXPECT_EQ(a.saisieSelection.enCours, m.saisie);
        EXPECT_EQ(GrilleMontree(a), m.saisie ? m.editee : m.enForce);
        const auto absolus = NumerosDe(m.enForce, Priorite::Absolue).valeurs();
        EXPECT_EQ(a.selection.SelAbsolue, absolus);
        EXPECT_EQ(a.selection.NbTiragesSelection,
                  absolus.empty()
                      ? 0
                      : CompterSorties(a.base, absolus, m.intervalle.first, m.intervalle.second));
        const auto fichier = LireCombCalc(page.dossier.chemin(), NbTirages);
        for (const int taille : {2, 3, 7})
            EXPECT_EQ(fichier->BorneSup[static_cast<std::size_t>(taille)] > 0,
                      m.dansFichier.contains(taille));
    }
};

TEST_F(Machine, SeriesEtIntervallesDansToutOrdre) {
    for (int pas = 0; pas < 600 && !HasFailure(); ++pas) {
        SCOPED_TRACE(pas);
        switch (hasard() % 6) {
            case 0:
                basculer();
                break;
            case 1:
                changer();
                break;
            case 2:
                if (!m.series) valider(grilleAuHasard());
                break;
            case 3:
                if (!m.series) editer(grilleAuHasard());
                break;
            default:
                calculer(std::array{2, 3, 7}[hasard() % 3]);
        }
        verifier();
    }
}

TEST(Intervalle, MarquesDeCeQuiEstACalculer) {
    std::mt19937 hasard(5);
    Page page(BaseAleatoire(hasard, 30, 12));
    EXPECT_FALSE(IntervallePeutChanger(page.moteur, page.atelier));
    for (int taille = 2; taille <= 5; ++taille) {
        EXPECT_FALSE(IntervallePeutChanger(page.moteur, page.atelier)) << taille;
        page.cliquer(taille);
    }
    EXPECT_TRUE(IntervallePeutChanger(page.moteur, page.atelier));
    const auto etat = page.etat();
    for (const auto& [debut, fin] : {std::pair{0, 5}, {6, 5}, {1, 31}}) {
        EXPECT_EQ(ChangerIntervalle(page.atelier, debut, fin).erreur(),
                  "L'intervalle est inexact, il doit contenir 1 Tirage au moins...");
        EXPECT_EQ(page.etat().NbTiragesComb, etat.NbTiragesComb);
    }
    ASSERT_TRUE(ChangerIntervalle(page.atelier, 30, 30));
    EXPECT_TRUE(IntervallePeutChanger(page.moteur, page.atelier)) << "a part can always be left";
    using Table = std::array<std::int32_t, TailleCombMax + 1>;
    const Table calcules = {0, 0, -10, -10, -10, -10, 1, 1, 1, 1, 1};
    EXPECT_EQ(page.etat().NbTiragesComb, calcules);
    EXPECT_EQ(page.etat().BorneSup, (Table{0, 0, 2, 2, 1, 1}));
    EntrerSeries(page.atelier);
    EXPECT_EQ(page.etat().NbTiragesComb, calcules);
    EXPECT_EQ(page.etat().BorneSup, Table{});

    // The file of the whole base may be damaged: told, and everything else is done.
    poser(page.dossier / NomCombCalc, "deux\n");
    ASSERT_TRUE(ChangerIntervalle(page.atelier, 1, 30)) << "no file in the series mode";
    EXPECT_TRUE(QuitterSeries(page.atelier).erreur().starts_with("Ligne 1 du"));
    EXPECT_FALSE(page.atelier.series);
    EXPECT_EQ(page.bornes(2), "NC");
}

TEST(Intervalle, UneAutreBaseQuitteLesSeries) {
    std::mt19937 hasard(6);
    Page page(BaseAleatoire(hasard, 30, 12));
    ASSERT_TRUE(ValiderSelection(page.atelier, GrilleAbsolue({3, 5})));
    EntrerSeries(page.atelier);
    page.cliquer(2);
    page.atelier.TirageActif = 29;
    page.atelier.base = BaseAleatoire(hasard, 30, 12);  // as many draws, but others
    ASSERT_TRUE(page.atelier.recalculer());
    EXPECT_FALSE(page.atelier.series);
    EXPECT_EQ(page.atelier.TirageActif, -1);
    EXPECT_EQ(page.atelier.selection.SelAbsolue, (std::vector<int>{3, 5}));
    EntrerSeries(page.atelier);
    EXPECT_EQ(page.bornes(2), "NC");
}

TEST(Selections, TiragesAuHasard) {
    for (const auto& [absolus, secondaires] : {std::pair{5, 3}, {49, 0}, {1, 48}, {0, 0}}) {
        const auto grille = GrilleAleatoire(absolus, secondaires, 7);
        EXPECT_EQ(NumerosDe(grille, Priorite::Absolue).taille(), absolus);
        EXPECT_EQ(NumerosDe(grille, Priorite::Secondaire).taille(), secondaires);
    }
    EXPECT_NE(GrilleAleatoire(5, 0, 7), GrilleAleatoire(5, 0, 8));
    EXPECT_EQ(Suivante(Priorite::Aucune), Priorite::Absolue);
    EXPECT_EQ(Suivante(Priorite::Absolue), Priorite::Secondaire);
    EXPECT_EQ(Suivante(Priorite::Secondaire), Priorite::Aucune);
}

TEST(Selections, CeQuiVaDansLaListe) {
    Page page(QuatreTirages());
    const auto refus = [&](int absolus) {
        (void)ValiderSelection(page.atelier, GrilleAleatoire(absolus, 2, 9));
        const NumerosAjoutes n = SelectionEnForce(page.atelier);
        EXPECT_EQ(n.numeros.taille(), n.refus.empty() ? absolus : 0);
        EXPECT_EQ(n.detail.empty(), n.refus.empty());
        return n.refus;
    };
    EXPECT_EQ(SelectionEnForce(page.atelier).refus, "Pas de sélection active en mémoire...");
    for (const int absolus : {1, 36})
        EXPECT_EQ(refus(absolus), "La sélection actuelle contient plus de 35 numéros...");
    for (const int absolus : {2, 35}) EXPECT_EQ(refus(absolus), "");
    EXPECT_TRUE(SelectionASauver(page.atelier));
    page.atelier.saisieSelection.GrilleSauvee = page.atelier.grilleSelection;
    EXPECT_FALSE(SelectionASauver(page.atelier));

    EXPECT_EQ(PremiersNumeros({}, 5).refus, "La Liste en mémoire est vide...");
    Liste liste = ListeDeCombinaisons(
        3, std::vector<Combinaison>{{{4, 5, 6}, 1}, {{1, 5, 49}, 2}, {{2, 3, 4}, 3}});
    liste.ordre = {1, 0, 2};
    EXPECT_EQ(PremiersNumeros(liste, 2).numeros, (Ensemble{1, 5}));
    EXPECT_EQ(PremiersNumeros(liste, 4).numeros, (Ensemble{1, 4, 5, 49}));
    EXPECT_EQ(PremiersNumeros(liste, 10).numeros, (Ensemble{1, 2, 3, 4, 5, 6, 49}));
    EXPECT_EQ(PremiersNumeros(liste, 11).refus, "Pas de combinaisons à 10 numéros en mémoire...");
    const Ensemble dix{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    const Liste grande = ListeDeCombinaisons(10, std::vector<Combinaison>{{dix, 1}});
    EXPECT_EQ(PremiersNumeros(grande, 11).numeros, dix);
}

}  // namespace
}  // namespace norvane
