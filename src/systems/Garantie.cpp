// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "systems/Garantie.h"

#include <fmt/format.h>

#include <algorithm>
#include <atomic>

#include "base/Repartition.h"
#include "base/Tirage.h"

namespace norvane {

namespace {

using Mots = std::vector<std::uint64_t>;  // a set of grids, bit by bit

/// For each number, the grids that hold it.
class GrillesParNumero {
 public:
    explicit GrillesParNumero(std::span<const Ensemble> grilles)
        : mots_((grilles.size() + 63) / 64), bits_(mots_ * NumeroMax) {
        for (std::size_t i = 0; i < grilles.size(); ++i)
            for (const int n : grilles[i])
                bits_[indice(n) + i / 64] |= std::uint64_t{1} << (i % 64);
    }
    std::size_t mots() const { return mots_; }
    const std::uint64_t* de(int n) const { return bits_.data() + indice(n); }

 private:
    std::size_t indice(int n) const { return static_cast<std::size_t>(n - 1) * mots_; }

    std::size_t mots_;
    Mots bits_;
};

/// A set of drawn numbers that grows and shrinks at its end. Level j of a depth holds the grids
/// with at least j + 1 of its numbers; only the levels up to the best grid's are kept up.
class Prefixe {
 public:
    explicit Prefixe(const GrillesParNumero& grilles)
        : grilles_(grilles), niveaux_(grilles.mots() * NbBoules * (NbBoules + 1)) {}

    /// Good numbers of the best grid.
    int meilleur() const { return meilleurs_[static_cast<std::size_t>(taille_)]; }
    /// The same with one number more, which is not kept.
    int meilleurAvec(int n) const {
        const int m = meilleur();
        return m + (m == 0 ? aucunVide(grilles_.de(n)) : seCroisent(niveau(taille_, m - 1), n));
    }
    void ajouter(int n) {
        const int m = meilleur();
        const int apres = meilleurAvec(n);
        const std::uint64_t* nouveau = grilles_.de(n);
        for (int j = 0; j < apres; ++j) {
            const std::uint64_t* avant = j < m ? niveau(taille_, j) : nullptr;
            const std::uint64_t* dessous = j > 0 ? niveau(taille_, j - 1) : nullptr;
            std::uint64_t* cible = niveau(taille_ + 1, j);
            for (std::size_t i = 0; i < grilles_.mots(); ++i)
                cible[i] = (dessous == nullptr ? nouveau[i] : dessous[i] & nouveau[i]) |
                           (avant == nullptr ? 0 : avant[i]);
        }
        ++taille_;
        meilleurs_[static_cast<std::size_t>(taille_)] = apres;
        numeros_.ajouter(n);
    }
    void retirer(int n) {
        --taille_;
        numeros_.retirer(n);
    }
    Ensemble numeros() const { return numeros_; }

 private:
    std::size_t debut(int taille, int j) const {
        return static_cast<std::size_t>(taille * NbBoules + j) * grilles_.mots();
    }
    const std::uint64_t* niveau(int taille, int j) const {
        return niveaux_.data() + debut(taille, j);
    }
    std::uint64_t* niveau(int taille, int j) { return niveaux_.data() + debut(taille, j); }
    int aucunVide(const std::uint64_t* bits) const {
        return std::any_of(bits, bits + grilles_.mots(), [](auto mot) { return mot != 0; }) ? 1 : 0;
    }
    int seCroisent(const std::uint64_t* bits, int n) const {
        const std::uint64_t* nouveau = grilles_.de(n);
        for (std::size_t i = 0; i < grilles_.mots(); ++i)
            if ((bits[i] & nouveau[i]) != 0) return 1;
        return 0;
    }

    const GrillesParNumero& grilles_;
    Mots niveaux_;
    std::array<int, NbBoules + 1> meilleurs_{};
    int taille_ = 0;
    Ensemble numeros_;
};

std::int64_t Combinaisons(std::int64_t n, int r) {
    if (n < r) return 0;
    std::int64_t c = 1;
    for (int i = 1; i <= r; ++i) c = c * (n - r + i) / i;
    return c;
}

/// How far a walk over `total` sets is, for all its threads.
class Compteur {
 public:
    Compteur(const Suivi& suivi, std::int64_t total) : suivi_(suivi), total_(total) {}
    void ajouter(std::int64_t cas) {
        suivi_.poser(static_cast<int>(100 * (faits_ += cas) / std::max<std::int64_t>(total_, 1)));
    }
    bool arrete() const { return suivi_.arrete(); }

 private:
    const Suivi& suivi_;
    const std::int64_t total_;
    std::atomic<std::int64_t> faits_ = 0;
};

/// Adds `reste` numbers of `libres` from `premier` on in every way, the last one by `dernier`.
template <typename Dernier>
void Completer(Prefixe& prefixe, const std::vector<int>& libres, std::size_t premier, int reste,
               Compteur& compteur, const Dernier& dernier) {
    if (compteur.arrete()) return;
    if (reste == 1) {
        for (std::size_t i = premier; i < libres.size(); ++i) dernier(prefixe, libres[i]);
        compteur.ajouter(static_cast<std::int64_t>(libres.size() - premier));
        return;
    }
    for (std::size_t i = premier; i + static_cast<std::size_t>(reste) <= libres.size(); ++i) {
        prefixe.ajouter(libres[i]);
        Completer(prefixe, libres, i + 1, reste - 1, compteur, dernier);
        prefixe.retirer(libres[i]);
    }
}

/// Every set of `tires` numbers of the selection that holds the base, the good numbers of its best
/// grid told to `parTache[task](set, good)`; tasks are in lexicographic order. At least one number
/// more than the base is drawn.
template <typename ParTache>
void Parcourir(const GrillesParNumero& grilles, const std::vector<int>& libres, Ensemble base,
               int tires, Compteur& compteur, const Suivi& suivi, std::vector<ParTache>& parTache) {
    Repartir(parTache.size(), suivi.nombreFils(), [&](unsigned /*fil*/, const auto& suivante) {
        Prefixe prefixe(grilles);
        for (const int n : base) prefixe.ajouter(n);
        const int reste = tires - base.taille();
        for (std::size_t i = suivante(); i < parTache.size(); i = suivante()) {
            const auto dire = [&](const Prefixe& p, int n) {
                parTache[i](p, n, p.meilleurAvec(n));
            };
            if (reste == 1) {
                dire(prefixe, libres[i]);
                compteur.ajouter(1);
                continue;
            }
            prefixe.ajouter(libres[i]);
            Completer(prefixe, libres, i + 1, reste - 1, compteur, dire);
            prefixe.retirer(libres[i]);
        }
    });
}

/// Counts the cases of a task that miss `X` good numbers, and keeps the first.
struct Juge {
    int X;
    std::size_t exemplesMax;
    BilanGarantie bilan{};

    void juger(Ensemble cas, int bons) {
        ++bilan.cas;
        if (bons >= X) return;
        ++bilan.manques;
        if (bilan.exemples.size() < exemplesMax) bilan.exemples.push_back(cas);
    }
    void operator()(const Prefixe& prefixe, int n, int bons) {
        Ensemble cas = prefixe.numeros();
        cas.ajouter(n);
        juger(cas, bons);
    }
};

const Erreur SansGrille{
    "Il n'y a aucune grille à vérifier : générez ou ouvrez d'abord un système."};
const Erreur Arretee{"Vérification arrêtée."};

}  // namespace

std::vector<Ensemble> GrillesEnsembles(const Systeme& systeme) {
    std::vector<Ensemble> grilles;
    for (std::size_t i = 0; i < systeme.nombre(); ++i)
        grilles.push_back(Ensemble::de(systeme.grille(i)));
    return grilles;
}

Resultat<BilanGarantie> VerifierGarantie(std::span<const Ensemble> grilles, Ensemble selection,
                                         Ensemble base, int X, int Y, std::size_t exemplesMax,
                                         const Suivi& suivi) {
    if (grilles.empty()) return SansGrille;
    if (selection.taille() < Y || base.taille() > Y)
        return Erreur{
            fmt::format("Une garantie {}/{} demande une sélection d'au moins {} numéros, dont {} "
                        "de base au plus : celle-ci en compte {} dont {}.",
                        X, Y, Y, Y, selection.taille(), base.taille())};

    const GrillesParNumero parNumero(grilles);
    const std::vector<int> libres = selection.sans(base).valeurs();
    const int reste = Y - base.taille();
    if (reste == 0) {
        Prefixe prefixe(parNumero);
        for (const int n : base) prefixe.ajouter(n);
        Juge juge{X, exemplesMax};
        juge.juger(base, prefixe.meilleur());
        return juge.bilan;
    }
    std::vector<Juge> juges(libres.size(), Juge{X, exemplesMax});
    Compteur compteur(suivi, Combinaisons(static_cast<std::int64_t>(libres.size()), reste));
    Parcourir(parNumero, libres, base, Y, compteur, suivi, juges);
    if (suivi.arrete()) return Arretee;
    BilanGarantie bilan;
    for (const Juge& juge : juges) {
        bilan.cas += juge.bilan.cas;
        bilan.manques += juge.bilan.manques;
        for (const Ensemble exemple : juge.bilan.exemples)
            if (bilan.exemples.size() < exemplesMax) bilan.exemples.push_back(exemple);
    }
    return bilan;
}

Resultat<TableChances> CompterChances(std::span<const Ensemble> grilles, Ensemble selection,
                                      const Suivi& suivi) {
    if (grilles.empty()) return SansGrille;
    const GrillesParNumero parNumero(grilles);
    const std::vector<int> libres = selection.valeurs();
    const auto tailleSelection = static_cast<std::int64_t>(libres.size());
    std::int64_t total = 0;
    for (int tires = TiresMin; tires <= NbBoules; ++tires)
        total += Combinaisons(tailleSelection, tires);

    struct Tache {
        std::array<std::int64_t, 6> comptes{};
        void operator()(const Prefixe& /*prefixe*/, int /*n*/, int bons) {
            ++comptes[static_cast<std::size_t>(bons)];
        }
    };
    Compteur compteur(suivi, total);
    TableChances table{};
    for (int tires = TiresMin; tires <= NbBoules; ++tires) {
        std::vector<Tache> taches(libres.size());
        Parcourir(parNumero, libres, Ensemble(), tires, compteur, suivi, taches);
        for (const Tache& tache : taches)
            for (std::size_t bons = 0; bons < tache.comptes.size(); ++bons)
                table[static_cast<std::size_t>(tires - TiresMin)][bons] += tache.comptes[bons];
    }
    if (suivi.arrete()) return Arretee;
    return table;
}

}  // namespace norvane
