// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Groupe.h"

#include <algorithm>
#include <numeric>
#include <sstream>
#include <stdexcept>

#include "Corps.h"

namespace systemes {

namespace {

/// The group being made, and the numbers of its name.
struct Chantier {
    Groupe groupe;
    std::vector<int> n;
    int v;

    void exiger(bool condition) const {
        if (!condition) throw std::invalid_argument("no such group: " + groupe.nom);
    }
    /// Adds the permutation that moves the first points by `image` and fixes the others.
    template <class F>
    void ajouter(int points, const F& image) {
        Permutation g(v);
        std::iota(g.begin(), g.end(), 0);
        for (int i = 0; i < points; ++i) g[i] = image(i);
        groupe.generateurs.push_back(g);
    }
};

int OrdreModulo(int m, int n) {
    int ordre = 1;
    for (int x = m % n; x != 1 % n; x = x * m % n) ++ordre;
    return ordre;
}

void Cycles(Chantier& ch) {
    ch.exiger(ch.n.size() == 4 && ch.n[0] >= 0 && ch.n[1] > 0 && ch.n[0] < ch.v);
    const int c = ch.n[1];
    const int m = ch.n[2];
    const int d = ch.n[3];
    const int points = ch.v - ch.n[0];
    ch.exiger(points % c == 0 && m > 0 && std::gcd(m, points / c) == 1);
    const int n = points / c;
    if (n > 1) ch.ajouter(points, [&](int i) { return i / n * n + (i % n + 1) % n; });
    ch.groupe.ordre = n;
    if (m == 1 && d == 0) return;
    ch.ajouter(points, [&](int i) { return (i / n + d) % c * n + i % n * m % n; });
    ch.groupe.ordre *= std::lcm(OrdreModulo(m, n), c / std::gcd(c, d));
}

void Longueurs(Chantier& ch) {
    Permutation g(ch.v);
    int debut = 0;
    int ordre = 1;
    for (const int l : ch.n) {
        ch.exiger(l > 0 && debut + l <= ch.v);
        for (int i = 0; i < l; ++i) g[debut + i] = debut + (i + 1) % l;
        debut += l;
        ordre = std::lcm(ordre, l);
    }
    ch.exiger(debut == ch.v);
    if (ordre > 1) ch.groupe.generateurs.push_back(g);
    ch.groupe.ordre = ordre;
}

void Affine(Chantier& ch) {
    ch.exiger(ch.n.size() == 4 && ch.n[0] + ch.n[1] == ch.v && ch.n[2] > 0);
    const int q = ch.n[1];
    const Corps corps(q);
    for (int b = 1; b < q; b *= corps.caracteristique())
        ch.ajouter(q, [&](int x) { return corps.somme(x, b); });
    const int a = corps.puissance(ch.n[2]);
    ch.ajouter(q, [&](int x) { return corps.produit(x, a); });
    ch.groupe.ordre = q * ((q - 1) / std::gcd(q - 1, ch.n[2]));
    if (ch.n[3] == 0) return;
    ch.ajouter(q, [&](int x) { return corps.exposer(x, corps.caracteristique()); });
    ch.groupe.ordre *= 2;
}

void Projectif(Chantier& ch) {
    ch.exiger(ch.n.size() == 3 && ch.n[0] + ch.n[1] + 1 == ch.v && ch.n[2] > 0);
    const int q = ch.n[1];
    const Corps corps(q);
    for (int b = 1; b < q; b *= corps.caracteristique())
        ch.ajouter(q, [&](int x) { return corps.somme(x, b); });
    const int a = corps.puissance(ch.n[2]);
    ch.ajouter(q, [&](int x) { return corps.produit(x, a); });
    ch.ajouter(q + 1, [&](int x) {  // x -> -1 / x, the point q being infinite
        if (x == q) return 0;
        return x == 0 ? q : corps.oppose(corps.inverse(x));
    });
    ch.groupe.ordre = 1.0 * (q + 1) * q * (q - 1) / std::gcd(q - 1, ch.n[2]);
}

void Produit(Chantier& ch) {
    ch.exiger(ch.n.size() == 5 && ch.n[1] > 0 && ch.n[2] > 0 &&
              ch.n[0] + ch.n[1] * ch.n[2] == ch.v);
    const int a = ch.n[1];
    const int b = ch.n[2];
    const int m = ch.n[3];
    ch.exiger(std::gcd(m, a) == 1 && std::gcd(m, b) == 1 && (ch.n[4] == 0 || a == b));
    ch.ajouter(a * b, [&](int i) { return (i / b + 1) % a * b + i % b; });
    ch.ajouter(a * b, [&](int i) { return i / b * b + (i % b + 1) % b; });
    ch.groupe.ordre = a * b * std::lcm(OrdreModulo(m, a), OrdreModulo(m, b));
    if (m > 1) ch.ajouter(a * b, [&](int i) { return i / b * m % a * b + i % b * m % b; });
    if (ch.n[4] == 0) return;
    ch.ajouter(a * b, [&](int i) { return i % b * b + i / b; });
    ch.groupe.ordre *= 2;
}

void Partage(Chantier& ch) {
    int debut = 0;
    for (const int l : ch.n) {
        ch.exiger(l > 0 && debut + l <= ch.v);
        ch.groupe.parts.push_back(((Bloc{1} << l) - 1) << debut);
        debut += l;
    }
    ch.exiger(debut == ch.v && !ch.n.empty());
}

template <class... T>
std::string Nom(char genre, const T&... n) {
    std::string nom(1, genre);
    ((nom += ':' + std::to_string(n)), ...);
    return nom;
}

std::string NomLongueurs(char genre, const std::vector<int>& n) {
    std::string nom(1, genre);
    for (std::size_t i = 0; i < n.size(); ++i) nom += (i == 0 ? ':' : '.') + std::to_string(n[i]);
    return nom;
}

int Entre(int a, int b, std::mt19937_64& alea) {
    return std::uniform_int_distribution<int>(a, b)(alea);
}

bool PuissancePremiere(int q) {
    int p = 2;
    while (q % p != 0) ++p;
    while (q % p == 0) q /= p;
    return q == 1;
}

/// Its order is a divisor at random of that of a unit at random: small orders are not rare.
int MultiplicateurAuHasard(int n, std::mt19937_64& alea) {
    int unite = 1;
    do {
        unite = Entre(1, n - 1, alea);
    } while (std::gcd(unite, n) != 1);
    const int ordre = OrdreModulo(unite, n);
    int exposant = 1;
    do {
        exposant = Entre(1, ordre, alea);
    } while (ordre % exposant != 0);
    int m = 1;
    for (int i = 0; i < exposant; ++i) m = m * unite % n;
    return m;
}

std::string CyclesAuHasard(int v, std::mt19937_64& alea) {
    const int f = Entre(0, std::min(3, v - 2), alea);
    const int c = Entre(1, 10, alea) <= 8 ? Entre(1, 6, alea) : Entre(1, v - f, alea);
    if ((v - f) % c != 0) return "";
    const int n = (v - f) / c;
    const int m = n > 2 && Entre(0, 2, alea) > 0 ? MultiplicateurAuHasard(n, alea) : 1;
    const int d = c > 1 && Entre(0, 2, alea) == 0 ? Entre(1, c - 1, alea) : 0;
    return Nom('C', f, c, m, d);
}

std::string LongueursAuHasard(int v, std::mt19937_64& alea) {
    const int n = Entre(2, 12, alea);
    std::vector<int> longueurs;
    for (int reste = v; reste > 0;) {
        int l = n;
        const bool petit = reste < n || Entre(0, v / n + 1, alea) == 0;
        while (petit && (l > reste || n % l != 0 || l == n)) l = Entre(1, std::min(n, reste), alea);
        longueurs.push_back(l);
        reste -= l;
    }
    std::sort(longueurs.rbegin(), longueurs.rend());
    return NomLongueurs('T', longueurs);
}

std::string CorpsAuHasard(int v, std::mt19937_64& alea) {
    const int f = Entre(0, std::min(3, v - 4), alea);
    const bool droite = Entre(0, 2, alea) == 0;
    const int q = droite ? v - f - 1 : v - f;
    if (q < 4 || !PuissancePremiere(q)) return "";
    if (droite) return Nom('L', f, q, Entre(1, 2, alea));
    const int e = Entre(1, q - 1, alea);
    if ((q - 1) % e != 0) return "";
    return Nom('E', f, q, e, Entre(0, 3, alea) == 0 ? 1 : 0);
}

std::string ProduitAuHasard(int v, std::mt19937_64& alea) {
    const int f = Entre(0, std::min(3, v - 4), alea);
    const int a = Entre(2, 7, alea);
    if ((v - f) % a != 0 || (v - f) / a < 2) return "";
    const int b = (v - f) / a;
    const int m = Entre(1, std::max(a, b) - 1, alea);
    if (std::gcd(m, a) != 1 || std::gcd(m, b) != 1) return "";
    return Nom('P', f, a, b, m, a == b ? Entre(0, 1, alea) : 0);
}

/// For t = 2: p - 1 parts of about equal sizes.
std::string PartageAuHasard(const Cle& cle, std::mt19937_64& alea) {
    const int parts = cle.p - 1;
    std::vector<int> n(parts, cle.v / parts);
    for (int i = 0; i < cle.v % parts; ++i) ++n[i];
    for (int i = Entre(0, 4, alea); i > 0; --i) {
        const int de = Entre(0, parts - 1, alea);
        const int vers = Entre(0, parts - 1, alea);
        if (n[de] <= 2) continue;
        --n[de];
        ++n[vers];
    }
    std::sort(n.rbegin(), n.rend());
    return NomLongueurs('U', n);
}

std::string NomAuHasard(const Cle& cle, std::mt19937_64& alea) {
    if (cle.t == 2 && cle.p > 2 && cle.k >= 4 && Entre(0, 1, alea) == 0)
        return PartageAuHasard(cle, alea);
    const int genre = Entre(0, 19, alea);
    if (genre < 12) return CyclesAuHasard(cle.v, alea);
    if (genre < 14) return LongueursAuHasard(cle.v, alea);
    if (genre < 17) return CorpsAuHasard(cle.v, alea);
    if (genre < 19) return ProduitAuHasard(cle.v, alea);
    return "1";
}

}  // namespace

Groupe FaireGroupe(const std::string& nom, int v) {
    Chantier ch{{nom, {}, {}, 1}, {}, v};
    ch.exiger(!nom.empty());
    if (nom == "1") return ch.groupe;
    std::string nombres = nom.substr(1);
    std::replace_if(
        nombres.begin(), nombres.end(), [](char c) { return c == ':' || c == '.'; }, ' ');
    std::istringstream mots(nombres);
    for (int n = 0; mots >> n;) ch.n.push_back(n);
    switch (nom[0]) {
        case 'C':
            Cycles(ch);
            break;
        case 'T':
            Longueurs(ch);
            break;
        case 'E':
            Affine(ch);
            break;
        case 'L':
            Projectif(ch);
            break;
        case 'P':
            Produit(ch);
            break;
        case 'U':
            Partage(ch);
            break;
        default:
            ch.exiger(false);
    }
    return ch.groupe;
}

Groupe GroupeAuHasard(const Cle& cle, double lignesMin, double lignesMax, std::mt19937_64& alea) {
    const double cibles = static_cast<double>(Binomial(cle.v, cle.p));
    for (int essai = 0; essai < 3000; ++essai) {
        const std::string nom = NomAuHasard(cle, alea);
        if (nom.empty()) continue;
        Groupe groupe = FaireGroupe(nom, cle.v);
        const double lignes = cibles / groupe.ordre;
        if (!groupe.parts.empty() || (lignes >= lignesMin && lignes <= lignesMax)) return groupe;
    }
    return FaireGroupe("1", cle.v);
}

Groupe SousGroupe(const std::vector<Permutation>& generateurs, int v, std::mt19937_64& alea) {
    Groupe groupe;
    if (generateurs.empty()) return groupe;
    const Permutation& g = generateurs[alea() % generateurs.size()];
    const auto puissance = [&](int n) {
        Permutation h(v);
        std::iota(h.begin(), h.end(), 0);
        for (; n > 0; --n)
            for (int& point : h) point = g[point];
        return h;
    };
    int ordre = 1;
    for (Permutation h = g; !std::is_sorted(h.begin(), h.end()); h = puissance(ordre)) ++ordre;
    std::vector<int> diviseurs;
    for (int d = 1; d < ordre; ++d)
        if (ordre % d == 0) diviseurs.push_back(d);
    if (diviseurs.empty()) return groupe;
    const int d = diviseurs[alea() % diviseurs.size()];
    groupe.generateurs.push_back(puissance(d));
    groupe.ordre = static_cast<double>(ordre) / d;
    groupe.nom = "sous-groupe-" + std::to_string(ordre / d);
    return groupe;
}

}  // namespace systemes
