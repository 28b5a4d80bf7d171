// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Fermeture.h"

#include <algorithm>
#include <iostream>
#include <limits>

#include "Triples.h"

namespace systemes {

namespace {

constexpr long Infini = std::numeric_limits<int>::max();
constexpr long BlocsMax = 12'000;  ///< of a design that is made here

Bloc Premiers(int n) {
    return (Bloc{1} << n) - 1;
}

/// Designs that need no search: their size, -1 when the key is not of these.
long TailleEvidente(const Cle& c) {
    if (c.t <= 0) return 1;
    if (c.v < c.p) return 0;
    if (c.k < c.t) return Infini;
    if (c.v - c.k <= c.p - c.t) return 1;
    if (c.t == 1) return (c.v - c.p + c.k) / c.k;  // disjoint blocks, fewer than p points left over
    if (c.t == c.k && c.p == c.t) return Binomial(c.v, c.k);
    return -1;
}

std::vector<Bloc> BlocsEvidents(const Cle& c) {
    if (c.t <= 0) return {0};
    if (c.v < c.p) return {};
    if (c.v - c.k <= c.p - c.t) return {Premiers(std::min(c.k, c.v))};
    if (c.t > 1) return Parties(c.v, c.k);
    std::vector<Bloc> blocs;
    for (long i = 0; i < TailleEvidente(c); ++i) {
        const int debut = static_cast<int>(i) * c.k;
        blocs.push_back(Premiers(std::min(c.k, c.v - debut)) << debut);
    }
    return blocs;
}

std::string Texte(const Cle& c) {
    return std::to_string(c.v) + ',' + std::to_string(c.k) + ',' + std::to_string(c.p) + ',' +
           std::to_string(c.t);
}

/// A one-factorization of n points, n even: n - 1 lists of n / 2 disjoint pairs.
std::vector<std::vector<Bloc>> Facteurs(int n) {
    std::vector<std::vector<Bloc>> facteurs;
    for (int i = 0; i < n - 1; ++i) {
        std::vector<Bloc> paires{Bloc{1} << (n - 1) | Bloc{1} << i};
        for (int j = 1; j < n / 2; ++j)
            paires.push_back(Bloc{1} << (i + j) % (n - 1) | Bloc{1} << (i - j + n - 1) % (n - 1));
        facteurs.push_back(std::move(paires));
    }
    return facteurs;
}

}  // namespace

Fermeture::Fermeture(std::string racine, std::set<std::string> essayes, std::uint64_t graine)
    : racine_(std::move(racine)), essayes_(std::move(essayes)), alea_(graine) {
    for (const Connu& c : LireConnus(racine_)) cles_.push_back(c.cle);
    std::sort(cles_.begin(), cles_.end());
    cles_.erase(std::unique(cles_.begin(), cles_.end()), cles_.end());
    for (const Dessin& d : LireTous(racine_)) stock_[d.cle] = Developper(d);
}

long Fermeture::taille(const Cle& cle) const {
    const long evidente = TailleEvidente(cle);
    if (evidente >= 0) return evidente;
    const auto place = stock_.find(cle);
    return place == stock_.end() ? Infini : static_cast<long>(place->second.size());
}

std::vector<Bloc> Fermeture::blocs(const Cle& cle) const {
    return TailleEvidente(cle) >= 0 ? BlocsEvidents(cle) : stock_.at(cle);
}

bool Fermeture::nouveau(const std::string& signature) {
    return essayes_.insert(signature).second;
}

bool Fermeture::valeurPossible(const Cle& cle, long estimation, double marge) const {
    return estimation < BlocsMax &&
           static_cast<double>(estimation) < static_cast<double>(taille(cle)) * marge;
}

bool Fermeture::proposer(const Cle& cle, const char* methode, const std::string& quoi,
                         const std::vector<Bloc>& blocs) {
    Dessin d;
    d.cle = cle;
    d.methode = methode;
    d.groupe = quoi;
    d.bases = Elaguer(cle, blocs, alea_);
    const auto place = stock_.find(cle);
    if (place != stock_.end() && d.bases.size() >= place->second.size()) return false;
    if (EcrireSiMieux(racine_, d)) {
        std::cout << cle.v << ' ' << cle.k << ' ' << cle.p << ' ' << cle.t << ": " << d.bases.size()
                  << " (" << (place == stock_.end() ? 0 : place->second.size()) << ") " << methode
                  << ' ' << quoi << std::endl;
    }
    stock_[cle] = Developper(Lire(Chemin(racine_, cle)));
    return true;
}

/// The cheapest product that serves the p-subsets with i of their points on the left.
Fermeture::Terme Fermeture::meilleurTerme(const Cle& cle, int a, int i) const {
    Terme meilleur;
    meilleur.taille = Infini;
    for (int s = std::max(0, cle.t - (cle.p - i)); s <= std::min(i, cle.t); ++s) {
        for (int l = s; l <= cle.k - (cle.t - s); ++l) {
            const Cle gauche{a, l, i, s};
            const Cle droite{cle.v - a, cle.k - l, cle.p - i, cle.t - s};
            const long g = taille(gauche);
            const long d = taille(droite);
            if (g >= Infini || d >= Infini || g * d >= meilleur.taille) continue;
            meilleur = {gauche, droite, g * d};
        }
    }
    return meilleur;
}

/// Low counts of points on the left are served by a design on the right alone, high ones by one
/// on the left alone, those between by products.
Fermeture::Recette Fermeture::meilleureRecette(const Cle& cle, int a) const {
    std::vector<Terme> milieu;
    for (int i = 0; i <= cle.p; ++i) milieu.push_back(meilleurTerme(cle, a, i));
    Recette meilleure;
    meilleure.taille = Infini;
    const int b = cle.v - a;
    for (int bas = -1; bas <= cle.p; ++bas) {
        const Terme droite{{a, 0, 0, 0},
                           {b, cle.k, cle.p - bas, cle.t},
                           bas < 0 ? 0 : taille({b, cle.k, cle.p - bas, cle.t})};
        if (bas >= 0 && cle.p - bas < cle.t) break;
        Recette recette{a, {}, droite.taille};
        if (bas >= 0) recette.termes.push_back(droite);
        for (int haut = bas + 1; haut <= cle.p + 1 && recette.taille < meilleure.taille; ++haut) {
            const Cle g{a, cle.k, haut, cle.t};
            if (haut >= cle.t && recette.taille + taille(g) < meilleure.taille) {
                meilleure = recette;
                meilleure.termes.push_back({g, {b, 0, 0, 0}, taille(g)});
                meilleure.taille += taille(g);
            }
            if (haut > cle.p) break;
            recette.termes.push_back(milieu[haut]);
            recette.taille += milieu[haut].taille;
        }
        if (recette.taille < meilleure.taille &&
            static_cast<int>(recette.termes.size()) == cle.p - bas + (bas >= 0 ? 1 : 0))
            meilleure = recette;
    }
    return meilleure;
}

bool Fermeture::parProduits(const Cle& cle) {
    bool mieux = false;
    for (int a = 1; a <= cle.v / 2; ++a) {
        const Recette recette = meilleureRecette(cle, a);
        if (!valeurPossible(cle, recette.taille, 1.03)) continue;
        std::string signature = 'p' + Texte(cle) + '=' + std::to_string(a);
        for (const Terme& terme : recette.termes)
            signature += '+' + Texte(terme.gauche) + '*' + Texte(terme.droite) + ':' +
                         std::to_string(terme.taille);
        if (!nouveau(signature)) continue;
        std::vector<Bloc> somme;
        for (const Terme& terme : recette.termes)
            for (const Bloc g : blocs(terme.gauche))
                for (const Bloc d : blocs(terme.droite)) somme.push_back(g | d << a);
        const std::string quoi = std::to_string(a) + "+" + std::to_string(cle.v - a);
        mieux |= proposer(cle, "produit", quoi, somme);
    }
    return mieux;
}

bool Fermeture::parMonotonie(const Cle& cle) {
    bool mieux = false;
    for (const Cle& source :
         {Cle{cle.v, cle.k, cle.p - 1, cle.t}, Cle{cle.v, cle.k, cle.p, cle.t + 1},
          Cle{cle.v, cle.k - 1, cle.p, cle.t}}) {
        const bool existe = source.p >= source.t && source.k >= source.t;
        if (!existe || !valeurPossible(cle, taille(source), 1.2)) continue;
        if (!nouveau('m' + Texte(cle) + '=' + Texte(source) + ':' + std::to_string(taille(source))))
            continue;
        mieux |= proposer(cle, "monotonie", Texte(source), blocs(source));
    }
    return mieux;
}

/// The points of fewest and most blocks, and two at random, are dropped from v + 1.
bool Fermeture::parPointOte(const Cle& cle) {
    const Cle source{cle.v + 1, cle.k, cle.p, cle.t};
    if (!valeurPossible(cle, taille(source), 1.1) || stock_.find(source) == stock_.end())
        return false;
    if (!nouveau('o' + Texte(cle) + ':' + std::to_string(taille(source)))) return false;
    const std::vector<Bloc> grands = blocs(source);
    std::vector<std::pair<int, int>> degres;
    for (int x = 0; x <= cle.v; ++x) {
        const auto contient = [x](Bloc b) { return (b >> x & 1) != 0; };
        degres.emplace_back(std::count_if(grands.begin(), grands.end(), contient), x);
    }
    std::sort(degres.begin(), degres.end());
    bool mieux = false;
    for (const std::uint64_t i :
         {std::uint64_t{0}, degres.size() - 1, alea_() % degres.size(), alea_() % degres.size()}) {
        const int x = degres[i].second;
        std::vector<Bloc> petits;
        for (const Bloc b : grands) petits.push_back((b & Premiers(x)) | (b >> (x + 1) << x));
        mieux |= proposer(cle, "point-ote", Texte(source), petits);
    }
    return mieux;
}

bool Fermeture::parTriples(const Cle& cle) {
    if (cle.k != 3 || cle.p != 2 || taille(cle) <= TailleTriples(cle.v)) return false;
    for (int essai = 0; essai < 20; ++essai) {
        const std::vector<Bloc> blocs = Triples(cle.v, 2'000'000, alea_);
        if (!blocs.empty()) return proposer(cle, "triples", "-", blocs);
    }
    return false;
}

/// Blocks of four for all triples: a design on each half, and for the triples across the pairs of
/// one-factors of the same number.
bool Fermeture::parDoublement(const Cle& cle) {
    if (cle.k != 4 || cle.p != 3 || cle.t != 3) return false;
    bool mieux = false;
    for (int a = 4; a <= cle.v / 2; a += 2) {
        const int b = cle.v - a;
        if (b % 2 != 0) break;
        const Cle gauche{a, 4, 3, 3};
        const Cle droite{b, 4, 3, 3};
        const long somme = taille(gauche) + taille(droite) + (b - 1L) * a * b / 4;
        if (!valeurPossible(cle, somme, 1.03)) continue;
        if (!nouveau('d' + Texte(cle) + '=' + std::to_string(a) + ':' + std::to_string(somme)))
            continue;
        std::vector<Bloc> tous = blocs(gauche);
        for (const Bloc d : blocs(droite)) tous.push_back(d << a);
        const auto f = Facteurs(a);
        const auto h = Facteurs(b);
        for (std::size_t i = 0; i < h.size(); ++i)
            for (const Bloc g : f[i % f.size()])
                for (const Bloc d : h[i]) tous.push_back(g | d << a);
        mieux |= proposer(cle, "doublement", std::to_string(a) + "+" + std::to_string(b), tous);
    }
    return mieux;
}

int Fermeture::fermer() {
    int total = 0;
    for (bool change = true; change;) {
        change = false;
        for (const Cle& cle : cles_) {
            bool mieux = false;
            if (TailleEvidente(cle) >= 0 && stock_.find(cle) == stock_.end())
                mieux = proposer(cle, "evident", "-", BlocsEvidents(cle));
            if (stock_.find(cle) != stock_.end() &&
                nouveau('e' + Texte(cle) + ':' + std::to_string(taille(cle))))
                mieux |= proposer(cle, "elagage", "-", stock_[cle]);
            mieux |= parTriples(cle);
            mieux |= parDoublement(cle);
            mieux |= parProduits(cle);
            mieux |= parMonotonie(cle);
            mieux |= parPointOte(cle);
            total += mieux ? 1 : 0;
            change |= mieux;
        }
    }
    return total;
}

}  // namespace systemes
