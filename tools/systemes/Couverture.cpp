// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Couverture.h"

#include <algorithm>
#include <array>
#include <limits>
#include <queue>

namespace systemes {

namespace {

constexpr long SommeMax = 200'000'000;  ///< of the row weights, before they are halved
constexpr int Voies = 16;               ///< places looked at side by side

}  // namespace

void Probleme::transposer() {
    debutLig.assign(lignes + 1, 0);
    for (const int r : lignesDe) ++debutLig[r + 1];
    for (int r = 0; r < lignes; ++r) debutLig[r + 1] += debutLig[r];
    colonnesDe.resize(lignesDe.size());
    std::vector<int> place(debutLig.begin(), debutLig.end() - 1);
    for (int c = 0; c < colonnes(); ++c)
        for (int i = debutCol[c]; i < debutCol[c + 1]; ++i) colonnesDe[place[lignesDe[i]]++] = c;
}

Recherche::Recherche(const Probleme& probleme, std::uint64_t graine)
    : pb_(probleme),
      alea_(graine),
      score_(probleme.colonnes()),
      place_(probleme.colonnes(), -1),
      touchee_(probleme.colonnes(), 0),
      remuee_(probleme.lignes, 1),
      nb_(probleme.lignes, 0),
      xor_(probleme.lignes, 0),
      poidsLigne_(probleme.lignes, 1),
      placeNon_(probleme.lignes),
      sommeLignes_(probleme.lignes) {
    for (int c = 0; c < pb_.colonnes(); ++c) score_[c] = pb_.debutCol[c + 1] - pb_.debutCol[c];
    for (int r = 0; r < pb_.lignes; ++r) {
        placeNon_[r] = r;
        nonCouvertes_.push_back(r);
    }
}

void Recherche::partir(const std::vector<int>& colonnes) {
    for (const int c : colonnes)
        if (place_[c] < 0) ajouter(c);
    completer();
    while (!solution_.empty()) {  // what became superfluous while the rest was chosen
        const int c = moinsUtile(false);
        if (score_[c] > 0) break;
        retirer(c);
    }
    noter();
}

void Recherche::completer() {
    struct Offre {
        float valeur;
        unsigned hasard;
        int colonne;
        bool operator<(const Offre& b) const {
            return valeur != b.valeur ? valeur < b.valeur : hasard < b.hasard;
        }
    };
    const auto valeur = [this](int c) {
        return static_cast<float>(score_[c]) / static_cast<float>(pb_.poids[c]);
    };
    std::priority_queue<Offre> offres;
    if (!nonCouvertes_.empty())
        for (int c = 0; c < pb_.colonnes(); ++c)
            if (place_[c] < 0) offres.push({valeur(c), static_cast<unsigned>(alea_()), c});
    while (!nonCouvertes_.empty()) {
        Offre offre = offres.top();
        offres.pop();
        const float vraie = valeur(offre.colonne);
        if (vraie < offre.valeur) {  // gains only fall: an old offer is put back at its value
            offre.valeur = vraie;
            offres.push(offre);
        } else {
            ajouter(offre.colonne);
        }
    }
}

void Recherche::noter() {
    meilleure_ = solution_;
    poidsMeilleur_ = poidsCourant_;
}

void Recherche::viser(long poids) {
    poidsMeilleur_ = std::min(poidsMeilleur_, poids);
}

void Recherche::changerScore(int c, int ecart) {
    score_[c] += ecart;
    cout_[place_[c]] = static_cast<float>(score_[c]) / static_cast<float>(pb_.poids[c]);
}

void Recherche::couvrir(int ligne) {
    const int i = placeNon_[ligne];
    const int derniere = nonCouvertes_.back();
    nonCouvertes_[i] = derniere;
    placeNon_[derniere] = i;
    nonCouvertes_.pop_back();
}

void Recherche::decouvrir(int ligne) {
    placeNon_[ligne] = static_cast<int>(nonCouvertes_.size());
    nonCouvertes_.push_back(ligne);
}

void Recherche::ajouter(int c) {
    int perte = 0;
    for (int i = pb_.debutCol[c]; i < pb_.debutCol[c + 1]; ++i) {
        const int r = pb_.lignesDe[i];
        const int w = poidsLigne_[r];
        if (nb_[r] == 0) {
            for (int j = pb_.debutLig[r]; j < pb_.debutLig[r + 1]; ++j)
                score_[pb_.colonnesDe[j]] -= w;
            perte += w;
            couvrir(r);
        } else if (nb_[r] == 1) {
            changerScore(xor_[r], -w);
        }
        ++nb_[r];
        xor_[r] ^= c;
        remuee_[r] = temps_;
    }
    place_[c] = static_cast<int>(solution_.size());
    solution_.push_back(c);
    cout_.push_back(0);
    score_[c] = 0;
    changerScore(c, perte);
    touchee_[c] = temps_;
    poidsCourant_ += pb_.poids[c];
}

void Recherche::retirer(int c) {
    const int place = place_[c];
    const int derniere = solution_.back();
    solution_[place] = derniere;
    cout_[place] = cout_.back();
    place_[derniere] = place;
    solution_.pop_back();
    cout_.pop_back();
    place_[c] = -1;
    score_[c] = 0;
    for (int i = pb_.debutCol[c]; i < pb_.debutCol[c + 1]; ++i) {
        const int r = pb_.lignesDe[i];
        const int w = poidsLigne_[r];
        --nb_[r];
        xor_[r] ^= c;
        remuee_[r] = temps_;
        if (nb_[r] == 0) {
            for (int j = pb_.debutLig[r]; j < pb_.debutLig[r + 1]; ++j)
                score_[pb_.colonnesDe[j]] += w;
            decouvrir(r);
        } else if (nb_[r] == 1) {
            changerScore(xor_[r], w);
        }
    }
    touchee_[c] = temps_;
    poidsCourant_ -= pb_.poids[c];
}

int Recherche::moinsUtile(bool tabou) const {
    const std::size_t n = cout_.size();
    std::array<float, Voies> bas{};
    bas.fill(std::numeric_limits<float>::max());
    std::size_t i = 0;
    for (; i + Voies <= n; i += Voies)
        for (std::size_t j = 0; j < Voies; ++j)
            bas[j] = cout_[i + j] < bas[j] ? cout_[i + j] : bas[j];
    for (; i < n; ++i) bas[0] = std::min(bas[0], cout_[i]);
    const float seuil = *std::min_element(bas.begin(), bas.end());
    int choix = -1;
    for (i = 0; i < n; ++i) {
        if (cout_[i] != seuil) continue;
        const int c = solution_[i];
        if (tabou && std::find(tabou_.begin(), tabou_.end(), c) != tabou_.end()) continue;
        if (choix < 0 || touchee_[c] < touchee_[choix]) choix = c;
    }
    if (choix >= 0) return choix;
    for (i = 0; i < n; ++i) {  // the least are all tabu: the least of the others
        const int c = solution_[i];
        if (std::find(tabou_.begin(), tabou_.end(), c) != tabou_.end()) continue;
        if (choix < 0 || cout_[i] < cout_[place_[choix]] ||
            (cout_[i] == cout_[place_[choix]] && touchee_[c] < touchee_[choix]))
            choix = c;
    }
    return choix >= 0 ? choix : solution_.front();
}

bool Recherche::permise(int c) const {
    for (int i = pb_.debutCol[c]; i < pb_.debutCol[c + 1]; ++i)
        if (remuee_[pb_.lignesDe[i]] > touchee_[c]) return true;
    return false;
}

int Recherche::meilleurAjout(int ligne) const {
    int choix = -1;
    const long reste = poidsMeilleur_ - poidsCourant_;
    for (int j = pb_.debutLig[ligne]; j < pb_.debutLig[ligne + 1]; ++j) {
        const int c = pb_.colonnesDe[j];
        if (pb_.poids[c] >= reste) continue;
        if (choix >= 0) {
            const std::int64_t a = std::int64_t{score_[c]} * pb_.poids[choix];
            const std::int64_t b = std::int64_t{score_[choix]} * pb_.poids[c];
            if (a < b || (a == b && touchee_[c] >= touchee_[choix])) continue;
        }
        if (permise(c)) choix = c;
    }
    return choix;
}

void Recherche::alourdir() {
    for (const int r : nonCouvertes_) {
        ++poidsLigne_[r];
        for (int j = pb_.debutLig[r]; j < pb_.debutLig[r + 1]; ++j) ++score_[pb_.colonnesDe[j]];
    }
    sommeLignes_ += nonCouvertes();
    if (sommeLignes_ > SommeMax) adoucir();
}

void Recherche::adoucir() {
    sommeLignes_ = 0;
    std::fill(score_.begin(), score_.end(), 0);
    for (int r = 0; r < pb_.lignes; ++r) {
        const int w = poidsLigne_[r] = (poidsLigne_[r] + 1) / 2;
        sommeLignes_ += w;
        if (nb_[r] == 1) score_[xor_[r]] += w;
        if (nb_[r] > 0) continue;
        for (int j = pb_.debutLig[r]; j < pb_.debutLig[r + 1]; ++j) score_[pb_.colonnesDe[j]] += w;
    }
    for (const int c : solution_) changerScore(c, 0);
}

void Recherche::pas() {
    ++temps_;
    retirer(moinsUtile(true));
    tabou_.clear();
    while (!nonCouvertes_.empty()) {
        const int ligne = nonCouvertes_[alea_() % nonCouvertes_.size()];
        const int c = meilleurAjout(ligne);
        if (c < 0) break;
        ++temps_;
        ajouter(c);
        tabou_.push_back(c);
    }
    alourdir();
}

bool Recherche::avancer(long nbPas) {
    for (long i = 0; i < nbPas && !solution_.empty(); ++i) {
        if (nonCouvertes_.empty()) {
            const bool mieux = poidsCourant_ < poidsMeilleur_;
            if (mieux) noter();
            ++temps_;
            retirer(moinsUtile(false));
            if (mieux) return true;
            if (solution_.empty()) break;
        }
        pas();
    }
    return false;
}

}  // namespace systemes
