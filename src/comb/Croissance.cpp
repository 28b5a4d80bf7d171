// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Croissance.h"

#include <algorithm>

namespace norvane {

Croissance::Croissance(const IndexTirages& index, int taille, const std::atomic<int>& minimum,
                       int maximum, Recolte& recolte)
    : index_(index), taille_(taille), minimum_(minimum), maximum_(maximum), recolte_(recolte) {
    derniers_.fill(-1);
    majSeuils();
}

void Croissance::majSeuils() {
    const int minimum = minimum_.load(std::memory_order_relaxed);
    if (minimum == seuil(taille_)) return;
    seuils_[static_cast<std::size_t>(taille_)] = minimum;
    for (int m = taille_; m > NbBoules; --m)
        seuils_[static_cast<std::size_t>(m) - 1] = (seuil(m) * (m - NbBoules) + m - 1) / m;
}

bool Croissance::poursuivre() {
    if (++visites_ % 256 == 0 && !recolte_.continuer()) fini_ = true;
    return !fini_;
}

bool Croissance::depuis(std::size_t tirage) {
    majSeuils();
    if (index_.poids(tirage) < seuil(NbBoules) || index_.poids(tirage) > maximum_) return true;
    Noeud n;
    n.ensemble = index_.masque(tirage);
    n.compte = index_.poids(tirage);
    PourChaqueNumero(n.ensemble, [&](int x) {
        n.numeros[static_cast<std::size_t>(n.taille)] = static_cast<std::uint8_t>(x);
        n.utilisations[static_cast<std::size_t>(n.taille++)] = n.compte;
    });
    for (int omis = 0; omis < NbBoules; ++omis) {
        std::int32_t rang = 0;
        for (int i = 0, k = 1; i < NbBoules; ++i)
            if (i != omis) rang += Colonne(k++, n.numeros[static_cast<std::size_t>(i)]);
        noter(rang, n);
    }
    explorer(n);
    fermer(0);
    return !fini_;
}

void Croissance::explorer(const Noeud& n) {
    if (!poursuivre()) return;
    majSeuils();
    if (n.taille + 1 == taille_)
        dernieresAdditions(n);
    else
        explorerSuivants(n);
}

/// Numbers that bring no draw and may be added: a set's parent lacks the lowest of its unused ones.
Masque Croissance::libresPossibles(const Noeud& n) {
    Masque libres = TousLesNumeros & ~n.ensemble & ~n.gagnants;
    for (int i = 0; i < n.taille; ++i)
        if (n.utilisations[static_cast<std::size_t>(i)] == 0)
            return libres & (Bit(n.numeros[static_cast<std::size_t>(i)]) - 1);
    return libres;
}

void Croissance::dernieresAdditions(const Noeud& n) {
    PourChaqueNumero(n.gagnants, [&](int y) {
        const int compte = n.compte + gain(y);
        Utilisations avecY;
        if (compte < seuil(taille_) || compte > maximum_ || !issu(n, y, avecY)) return;
        recolte_.recevoir(n.ensemble, Bit(y), compte);
        majSeuils();
    });
    if (n.compte < seuil(taille_)) return;
    if (const Masque libres = libresPossibles(n)) recolte_.recevoir(n.ensemble, libres, n.compte);
}

void Croissance::explorerSuivants(const Noeud& n) {
    PourChaqueNumero(n.gagnants, [&](int y) { enfant(n, y); });
    if (n.compte >= seuil(n.taille + 1))
        PourChaqueNumero(libresUtiles(n, libresPossibles(n)), [&](int y) { enfant(n, y); });
}

/// Those of the unused numbers that can lead further. Where the set with one of them has too few
/// draws for the size after it, the next number x must bring draws, all of them through y: else y
/// would be used less than x and x would not be what the parent lacks. For the same reason x < y.
Masque Croissance::libresUtiles(const Noeud& n, Masque libres) {
    const int manque = seuil(n.taille + 2) - n.compte;
    if (manque <= 0) return libres;
    paires_.clear();
    Masque utiles = 0;
    const auto colonne = [&](int k, int i) {
        return Colonne(k, n.numeros[static_cast<std::size_t>(i)]);
    };
    for (int c = 2; c < n.taille; ++c)
        for (int b = 1; b < c; ++b)
            for (int a = 0; a < b; ++a)
                for (const auto& [masque, poids] :
                     index_.avec3(colonne(3, c) + colonne(2, b) + colonne(1, a))) {
                    const Masque paire = masque & ~n.ensemble;
                    const Masque y = paire & (paire - 1);
                    if ((y & libres) == 0 || (paire & n.gagnants) != 0) continue;
                    auto p = std::find_if(paires_.begin(), paires_.end(),
                                          [&](const auto& q) { return q.masque == paire; });
                    if (p == paires_.end()) p = paires_.insert(p, {paire, 0});
                    p->poids += poids;
                    if (p->poids >= manque) utiles |= y;
                }
    return utiles;
}

void Croissance::enfant(const Noeud& n, int y) {
    const int compte = n.compte + gain(y);
    if (fini_ || compte < seuil(n.taille + 1) || compte > maximum_) return;
    Utilisations avecY;
    if (!issu(n, y, avecY)) return;
    Noeud suivant = avec(n, y, avecY);
    const std::size_t hauteur = proches_.size();
    ouvrir(suivant, y);
    explorer(suivant);
    fermer(hauteur);
}

/// Whether y is what the parent of the set with y lacks: its least used number, the lowest of
/// those. `avecY` becomes the uses of the numbers of n in that set.
bool Croissance::issu(const Noeud& n, int y, Utilisations& avecY) const {
    const int utilisation = gain(y);
    const auto taille = static_cast<std::size_t>(n.taille);
    avecY = n.utilisations;
    if (utilisation == 0) return true;  // libresPossibles saw to it
    for (auto place = derniers_[static_cast<std::size_t>(y)]; place >= 0;) {
        const Proche& p = proches_[static_cast<std::size_t>(place)];
        for (std::size_t i = 0; i < taille; ++i)
            if ((p.masque >> n.numeros[i] & 1) != 0) avecY[i] += p.poids;
        place = p.precedent;
    }
    for (std::size_t i = 0; i < taille; ++i)
        if (avecY[i] < utilisation || (avecY[i] == utilisation && n.numeros[i] < y)) return false;
    return true;
}

/// The set with y and its counts; not yet the draws that come near it through y.
Croissance::Noeud Croissance::avec(const Noeud& n, int y, const Utilisations& avecY) const {
    Noeud suivant;
    suivant.ensemble = n.ensemble | Bit(y);
    suivant.gagnants = n.gagnants & ~Bit(y);
    suivant.taille = n.taille + 1;
    suivant.compte = n.compte + gain(y);
    auto i = static_cast<std::size_t>(n.taille);
    for (; i > 0 && n.numeros[i - 1] > y; --i) {
        suivant.numeros[i] = n.numeros[i - 1];
        suivant.utilisations[i] = avecY[i - 1];
    }
    suivant.numeros[i] = static_cast<std::uint8_t>(y);
    suivant.utilisations[i] = gain(y);
    while (i-- > 0) {
        suivant.numeros[i] = n.numeros[i];
        suivant.utilisations[i] = avecY[i];
    }
    return suivant;
}

/// Notes the draws that hold y, three other numbers of the set and one outside.
void Croissance::ouvrir(Noeud& n, int y) {
    // Rank of {a, b, c, y}, y wherever it falls: the terms of the numbers above y move up one
    // column and each number below y moves the term of y itself.
    std::array<std::array<std::int32_t, TailleGrandeMax>, 3> termes;
    std::size_t autres = 0;
    for (int i = 0; i < n.taille; ++i) {
        const int e = n.numeros[static_cast<std::size_t>(i)];
        if (e == y) continue;
        for (int k = 1; k <= 3; ++k)
            termes[static_cast<std::size_t>(k) - 1][autres] =
                e < y ? Colonne(k, e) + Colonne(k + 1, y) - Colonne(k, y) : Colonne(k + 1, e);
        ++autres;
    }
    for (std::size_t c = 2; c < autres; ++c)
        for (std::size_t b = 1; b < c; ++b) {
            const std::int32_t partiel = termes[2][c] + termes[1][b] + y;
            for (std::size_t a = 0; a < b; ++a) {
                const std::int32_t rang = partiel + termes[0][a];
                if (index_.existe4(rang)) noter(rang, n);
            }
        }
}

void Croissance::noter(std::int32_t rang, Noeud& n) {
    for (const auto& [masque, poids] : index_.avec4(rang)) {
        const Masque dehors = masque & ~n.ensemble;
        if (dehors == 0) continue;
        const auto numero = static_cast<std::size_t>(std::countr_zero(dehors));
        gains_[numero] += poids;
        n.gagnants |= dehors;
        proches_.push_back({masque, poids, derniers_[numero], static_cast<std::uint8_t>(numero)});
        derniers_[numero] = static_cast<std::int32_t>(proches_.size()) - 1;
    }
}

void Croissance::fermer(std::size_t hauteur) {
    while (proches_.size() > hauteur) {
        const Proche& p = proches_.back();
        gains_[p.numero] -= p.poids;
        derniers_[p.numero] = p.precedent;
        proches_.pop_back();
    }
}

}  // namespace norvane
