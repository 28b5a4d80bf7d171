// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/Historique.h"

#include <algorithm>
#include <numeric>

#include "base/Dates.h"
#include "tickets/CategoriesNC.h"

namespace norvane {

namespace {

template <class... Ts>
struct Cas : Ts... {
    using Ts::operator()...;
};
template <class... Ts>
Cas(Ts...) -> Cas<Ts...>;

/// Everything that the subject names: what stands out in the table.
struct Valeurs {
    Ensemble numeros;
    Ensemble chances;
};

Valeurs ValeursDe(const SujetHistorique& sujet) {
    return std::visit(Cas{[](const Element& e) {
                              return e.genre == GenreStats::Numeros ? Valeurs{{e.valeur}, {}}
                                                                    : Valeurs{{}, {e.valeur}};
                          },
                          [](const CoupleChances& c) {
                              return Valeurs{{}, {c.premiere, c.seconde}};
                          },
                          [](const RangCombinaison& r) {
                              return Valeurs{r.numeros, {}};
                          },
                          [](const CategorieChances& c) {
                              return Valeurs{c.numeros, c.chances};
                          }},
                      sujet);
}

int Bons(const Tirage& tirage, Ensemble numeros) {
    return numeros.commun(Ensemble::de(tirage.Numeros)).taille();
}

/// The draws without a Chance have none to be found.
bool ChanceTrouvee(const Tirage& tirage, Ensemble chances) {
    return tirage.Chance > 0 && chances.contient(tirage.Chance);
}

bool Sorti(const Tirage& tirage, const CoupleChances& c) {
    return ChanceTrouvee(tirage, {c.premiere, c.seconde});
}
bool Sorti(const Tirage& tirage, const RangCombinaison& r) {
    return Bons(tirage, r.numeros) == r.bons;
}
bool Sorti(const Tirage& tirage, const CategorieChances& c) {
    const auto bons = static_cast<std::size_t>(Bons(tirage, c.numeros));
    return TableCategories[bons][ChanceTrouvee(tirage, c.chances) ? 1 : 0] == c.categorie;
}

/// The records inf-1..sup-1 where it came out. Those of a number or a Chance are kept already.
ListeOccurrences Apparitions(const Base& base, const Occurrences& occ, const SujetHistorique& sujet,
                             int inf, int sup) {
    ListeOccurrences liste;
    const auto element = [&](const Element& e) {
        const auto k = static_cast<std::size_t>(e.valeur - 1);
        const ListeOccurrences& toutes =
            e.genre == GenreStats::Numeros ? occ.ListeNumeros[k] : occ.ListeChances[k];
        liste.assign(std::lower_bound(toutes.begin(), toutes.end(), inf - 1),
                     std::lower_bound(toutes.begin(), toutes.end(), sup));
    };
    const auto autre = [&](const auto& lu) {
        for (int d = inf - 1; d < sup; ++d)
            if (Sorti(base.Tirages[static_cast<std::size_t>(d)], lu))
                liste.push_back(static_cast<Occurrence>(d));
    };
    std::visit(Cas{element, autre}, sujet);
    return liste;
}

}  // namespace

Historique FaireHistorique(const Base& base, const Occurrences& occ, const SujetHistorique& sujet,
                           int inf, int sup) {
    const ListeOccurrences liste = Apparitions(base, occ, sujet, inf, sup);
    Historique historique{sujet, inf, sup, {}, {}, StatsIntervalle(liste, inf - 1, sup - 1)};
    const auto tous = base.enUsage().subspan(static_cast<std::size_t>(inf - 1),
                                             static_cast<std::size_t>(sup - inf + 1));
    historique.tirages.assign(tous.begin(), tous.end());
    historique.sorties.assign(tous.size(), false);
    for (const Occurrence d : liste)
        historique.sorties[static_cast<std::size_t>(d - (inf - 1))] = true;
    return historique;
}

ChiffresHistorique Chiffres(const Historique& historique) {
    const ResultatStats& r = historique.stats;
    const int ecarts = r.Sorties + 1;
    return {r.Ecart, r.EcartMax, (2 * r.SommeEcarts + ecarts) / (2 * ecarts), r.Suite, r.SuiteMax};
}

std::vector<LigneHistorique> Lignes(const Historique& historique, VueHistorique vue) {
    std::vector<LigneHistorique> lignes;
    int ecart = 0;
    int suite = 0;
    for (std::size_t i = 0; i < historique.sorties.size(); ++i) {
        const bool sortie = historique.sorties[i];
        suite = sortie ? suite + 1 : 0;
        if (sortie || vue == VueHistorique::Tout)
            lignes.push_back({historique.inf + static_cast<int>(i), sortie, ecart, suite});
        ecart = sortie ? 0 : ecart + 1;
    }
    return lignes;
}

int Poids(const Tirage& tirage) {
    return std::accumulate(std::begin(tirage.Numeros), std::end(tirage.Numeros), tirage.Chance);
}

// ------------------------------------------------------------------------------------- the table

const std::array<EnteteHistorique, NbColonnesHistorique>& EntetesHistorique() {
    using enum NatureColonne;
    static constexpr std::array<EnteteHistorique, NbColonnesHistorique> entetes{
        {{"Tirage", Entier},
         {"Date", Date},
         {"N1", Entier},
         {"N2", Entier},
         {"N3", Entier},
         {"N4", Entier},
         {"N5", Entier},
         {"Numéro Chance", Entier},
         {"Ecart", Entier},
         {"Suite", Entier},
         {"Poids", Entier}}};
    return entetes;
}

std::vector<RangeeHistorique> Rangees(const Historique& historique, VueHistorique vue) {
    const Valeurs valeurs = ValeursDe(historique.sujet);
    std::vector<RangeeHistorique> rangees;
    for (const LigneHistorique& ligne : Lignes(historique, vue)) {
        const Tirage& tirage = TirageDe(historique, ligne);
        RangeeHistorique& rangee = rangees.emplace_back();
        std::size_t colonne = 0;
        const auto poser = [&](Cellule cellule, bool element = false) {
            static_cast<Cellule&>(rangee[colonne]) = std::move(cellule);
            rangee[colonne].teinte = element        ? TeinteHistorique::Element
                                     : ligne.sortie ? TeinteHistorique::Sortie
                                                    : TeinteHistorique::Ordinaire;
            ++colonne;
        };
        Cellule numero = CelluleEntier(ligne.numero);
        numero.cible = NumeroTirage{ligne.numero};
        poser(std::move(numero));
        poser({DateCourte(tirage.DateTirage), tirage.DateTirage, {}});
        for (const int n : tirage.Numeros) poser(CelluleEntier(n), valeurs.numeros.contient(n));
        poser(tirage.Chance > 0 ? CelluleEntier(tirage.Chance) : Cellule{},
              ChanceTrouvee(tirage, valeurs.chances));
        for (const int n : {ligne.ecart, ligne.suite, Poids(tirage)}) poser(CelluleEntier(n));
    }
    return rangees;
}

TableauExporte ExporterHistorique(const Historique& historique, VueHistorique vue) {
    TableauExporte tableau;
    tableau.titre = {TitreHistorique(historique), LigneChiffres(Chiffres(historique))};
    for (const EnteteHistorique& entete : EntetesHistorique())
        tableau.colonnes.push_back({entete.texte, true, entete.nature});
    for (const RangeeHistorique& rangee : Rangees(historique, vue)) {
        auto& ligne = tableau.lignes.emplace_back();
        for (const CelluleHistorique& cellule : rangee)
            ligne.push_back({cellule.texte, cellule.cle});
    }
    return tableau;
}

}  // namespace norvane
