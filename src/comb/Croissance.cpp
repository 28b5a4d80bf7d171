// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Croissance.h"

namespace norvane {

Croissance::Croissance(const IndexTirages& index, int taille, const std::atomic<int>& minimum,
                       int maximum, Recolte& recolte)
    : index_(index), taille_(taille), minimum_(minimum), maximum_(maximum), recolte_(recolte) {
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
        n.numeros[static_cast<std::size_t>(n.taille)] = x;
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
        if (compte < seuil(taille_) || compte > maximum_ || !issuDe(avec(n, y), y)) return;
        recolte_.recevoir(n.ensemble, Bit(y), compte);
        majSeuils();
    });
    if (n.compte < seuil(taille_)) return;
    if (const Masque libres = libresPossibles(n)) recolte_.recevoir(n.ensemble, libres, n.compte);
}

void Croissance::explorerSuivants(const Noeud& n) {
    PourChaqueNumero(n.gagnants, [&](int y) { enfant(n, y); });
    if (n.compte >= seuil(n.taille + 1))
        PourChaqueNumero(libresPossibles(n), [&](int y) { enfant(n, y); });
}

void Croissance::enfant(const Noeud& n, int y) {
    const int compte = n.compte + gain(y);
    if (fini_ || compte < seuil(n.taille + 1) || compte > maximum_) return;
    Noeud suivant = avec(n, y);
    if (!issuDe(suivant, y)) return;
    const std::size_t hauteur = proches_.size();
    ouvrir(suivant, y);
    explorer(suivant);
    fermer(hauteur);
}

/// The set with y, its count and its uses; not yet the draws that come near it through y.
Croissance::Noeud Croissance::avec(const Noeud& n, int y) const {
    Noeud suivant;
    suivant.ensemble = n.ensemble | Bit(y);
    suivant.gagnants = n.gagnants & ~Bit(y);
    suivant.taille = n.taille + 1;
    suivant.compte = n.compte + gain(y);
    const auto place = static_cast<std::size_t>(std::popcount(n.ensemble & (Bit(y) - 1)));
    for (std::size_t i = 0; i < place; ++i) {
        suivant.numeros[i] = n.numeros[i];
        suivant.utilisations[i] = n.utilisations[i];
    }
    suivant.numeros[place] = y;
    suivant.utilisations[place] = gain(y);
    for (std::size_t i = place; i < static_cast<std::size_t>(n.taille); ++i) {
        suivant.numeros[i + 1] = n.numeros[i];
        suivant.utilisations[i + 1] = n.utilisations[i];
    }
    if (gain(y) == 0) return suivant;
    for (const Proche& p : proches_)
        if (p.numero == y)
            for (std::size_t i = 0; i < static_cast<std::size_t>(suivant.taille); ++i)
                if (i != place && (p.masque & Bit(suivant.numeros[i])) != 0)
                    suivant.utilisations[i] += p.poids;
    return suivant;
}

/// Whether y is what the parent of this set lacks.
bool Croissance::issuDe(const Noeud& n, int y) {
    const auto place = static_cast<std::size_t>(std::popcount(n.ensemble & (Bit(y) - 1)));
    const int utilisation = n.utilisations[place];
    for (std::size_t i = 0; i < place; ++i)
        if (n.utilisations[i] <= utilisation) return false;
    for (std::size_t i = place + 1; i < static_cast<std::size_t>(n.taille); ++i)
        if (n.utilisations[i] < utilisation) return false;
    return true;
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
                if (index_.complete(rang)) noter(rang, n);
            }
        }
}

void Croissance::noter(std::int32_t rang, Noeud& n) {
    for (const auto& [tirage, numero] : index_.complements(rang)) {
        if ((n.ensemble & Bit(numero)) != 0) continue;
        const int poids = index_.poids(tirage);
        gains_[numero] += poids;
        n.gagnants |= Bit(numero);
        proches_.push_back({index_.masque(tirage), poids, numero});
    }
}

void Croissance::fermer(std::size_t hauteur) {
    while (proches_.size() > hauteur) {
        gains_[static_cast<std::size_t>(proches_.back().numero)] -= proches_.back().poids;
        proches_.pop_back();
    }
}

bool Croissance::lexicographique() {
    // A plain descent: the counts never fall on the way down, so a set above the maximum ends it.
    const auto descendre = [this](const auto& self, const Noeud& n) -> void {
        if (!poursuivre()) return;
        const int premier =
            n.taille == 0 ? 0 : n.numeros[static_cast<std::size_t>(n.taille) - 1] + 1;
        const bool derniere = n.taille + 1 == taille_;
        for (int y = premier; y <= NumeroMax - (taille_ - n.taille) && !fini_; ++y) {
            const int compte = n.compte + gain(y);
            if (compte > maximum_) continue;
            if (derniere) {
                recolte_.recevoir(n.ensemble, Bit(y), compte);
                continue;
            }
            Noeud suivant = avec(n, y);
            const std::size_t hauteur = proches_.size();
            ouvrir(suivant, y);
            self(self, suivant);
            fermer(hauteur);
        }
    };
    descendre(descendre, Noeud{});
    return !fini_;
}

}  // namespace norvane
