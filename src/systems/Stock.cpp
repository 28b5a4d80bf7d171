// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Stock.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <tuple>
#include <unordered_set>

namespace norvane {

namespace {

constexpr std::string_view Lettres =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

/// The image of each point, zero-based.
using Permutation = std::array<int, 64>;

int Point(char lettre) {
    return static_cast<int>(Lettres.find(lettre));
}

Permutation LirePermutation(std::string_view mot) {
    Permutation permutation{};
    std::transform(mot.begin(), mot.end(), permutation.begin(), Point);
    return permutation;
}

Ensemble LireBloc(std::string_view mot) {
    Ensemble bloc;
    for (const char lettre : mot) bloc.ajouter(Point(lettre) + 1);
    return bloc;
}

Ensemble Image(Ensemble bloc, const Permutation& permutation) {
    Ensemble image;
    for (const int n : bloc) image.ajouter(permutation[static_cast<std::size_t>(n - 1)] + 1);
    return image;
}

/// The next word of the text, which loses it.
std::string_view Mot(std::string_view& texte) {
    const std::size_t fin = std::min(texte.find_first_of(" \n"), texte.size());
    const std::string_view mot = texte.substr(0, fin);
    texte.remove_prefix(std::min(fin + 1, texte.size()));
    return mot;
}

/// What the stock is sorted by.
template <typename T>
auto Ordre(const T& cle) {
    return std::tuple(cle.v, cle.k, cle.p, cle.t);
}

}  // namespace

const DessinStocke* ChercherDessin(const CleDessin& cle) {
    const auto stock = Stock();
    const auto lieu = std::ranges::lower_bound(stock, Ordre(cle), {}, Ordre<DessinStocke>);
    return lieu != stock.end() && Ordre(*lieu) == Ordre(cle) ? &*lieu : nullptr;
}

std::vector<Ensemble> Developper(const DessinStocke& dessin) {
    std::vector<Permutation> generateurs;
    std::vector<Ensemble> blocs;
    std::unordered_set<Masque> vus;
    for (std::string_view texte = dessin.texte; !texte.empty();) {
        const std::string_view mot = Mot(texte);
        if (mot == "g") {
            generateurs.push_back(LirePermutation(Mot(texte)));
        } else if (const Ensemble bloc = LireBloc(mot); vus.insert(bloc.bits()).second) {
            blocs.push_back(bloc);
        }
    }
    for (std::size_t i = 0; i < blocs.size(); ++i)
        for (const Permutation& g : generateurs)
            if (const Ensemble image = Image(blocs[i], g); vus.insert(image.bits()).second)
                blocs.push_back(image);
    std::sort(blocs.begin(), blocs.end(), [](Ensemble a, Ensemble b) {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end());
    });
    return blocs;
}

}  // namespace norvane
