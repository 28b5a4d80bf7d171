// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Triples.h"

#include <algorithm>

namespace systemes {

namespace {

using Ligne = std::vector<int>;

/// Climbs to a partition into triples of a graph with multiple edges: while an edge is free, a
/// triple takes two free edges at a point; when its third edge was not free, the triple that holds
/// it goes.
class Montee {
 public:
    Montee(int v, std::mt19937_64& alea) : v_(v), alea_(alea), libre_(v, Ligne(v, 0)) {}

    void ajouterArete(int a, int b) {
        ++libre_[a][b];
        ++libre_[b][a];
        ++libres_;
    }
    void oterArete(int a, int b) {
        --libre_[a][b];
        --libre_[b][a];
        --libres_;
    }
    bool monter(long pasMax) {
        for (long pas = 0; pas < pasMax && libres_ > 0; ++pas) essayer();
        return libres_ == 0;
    }
    const std::vector<Bloc>& triples() const { return triples_; }

 private:
    void essayer() {
        const int x = hasard(v_);
        std::vector<int> voisins;
        for (int y = 0; y < v_; ++y)
            if (libre_[x][y] > 0) voisins.push_back(y);
        if (voisins.size() < 2) return;
        std::shuffle(voisins.begin(), voisins.end(), alea_);
        const int y = voisins[0];
        const int z = voisins[1];
        if (libre_[y][z] == 0) {
            const Bloc paire = Bloc{1} << y | Bloc{1} << z;
            const auto tient = [paire](Bloc t) { return (t & paire) == paire; };
            const auto place = std::find_if(triples_.begin(), triples_.end(), tient);
            if (place == triples_.end()) return;  // an edge of no triple: the pair is not asked for
            const Bloc ancien = *place;
            *place = triples_.back();
            triples_.pop_back();
            pourChaquePaire(ancien, [this](int a, int b) { ajouterArete(a, b); });
        }
        const Bloc neuf = Bloc{1} << x | Bloc{1} << y | Bloc{1} << z;
        triples_.push_back(neuf);
        pourChaquePaire(neuf, [this](int a, int b) { oterArete(a, b); });
    }
    template <class F>
    static void pourChaquePaire(Bloc bloc, const F& faire) {
        const int a = std::countr_zero(bloc);
        const int b = std::countr_zero(bloc & (bloc - 1));
        const int c = 63 - std::countl_zero(bloc);
        faire(a, b);
        faire(a, c);
        faire(b, c);
    }
    int hasard(int n) { return static_cast<int>(alea_() % static_cast<std::uint64_t>(n)); }

    int v_;
    std::mt19937_64& alea_;
    std::vector<Ligne> libre_;
    int libres_ = 0;
    std::vector<Bloc> triples_;
};

}  // namespace

long TailleTriples(int v) {
    const long parPoint = v / 2;  // ceil((v - 1) / 2)
    return (v * parPoint + 2) / 3;
}

std::vector<Bloc> Triples(int v, long pasMax, std::mt19937_64& alea) {
    Montee montee(v, alea);
    for (int a = 0; a < v; ++a)
        for (int b = 0; b < a; ++b) montee.ajouterArete(a, b);
    std::vector<Bloc> blocs;
    if (v % 6 == 5) {  // five points apart, in four triples
        for (int a = 0; a < 5; ++a)
            for (int b = 0; b < a; ++b) montee.oterArete(a, b);
        blocs = {0b00111, 0b11001, 0b11010, 0b11100};
    } else if (v % 2 ==
               0) {  // each point is in one pair twice; one in three when v - 1 asks for it
        int debut = 0;
        if (v % 6 != 0) {
            for (int b = 1; b <= 3; ++b) montee.ajouterArete(0, b);
            debut = 4;
        }
        for (int a = debut; a < v; a += 2) montee.ajouterArete(a, a + 1);
    }
    if (!montee.monter(pasMax)) return {};
    blocs.insert(blocs.end(), montee.triples().begin(), montee.triples().end());
    return blocs;
}

}  // namespace systemes
