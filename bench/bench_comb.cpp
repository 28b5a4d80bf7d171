// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Searches for combinations of two to five numbers, each beside the naive ways: a hash table of
// all combinations of all draws, and every combination tested against every draw.
#include <algorithm>
#include <bit>
#include <fstream>
#include <string>
#include <unordered_map>

#include "base/BaseIntegree.h"
#include "comb/Collecte.h"
#include "comb/Reduction.h"
#include "stats/Noyau.h"
#include "Verification.h"

namespace norvane {
namespace {

struct Donnees {
    Base base;
    Occurrences occ;
    EtatCombinaisons etat;
    Selection selection;

    explicit Donnees(bool globale) : base(BaseIntegree(globale)) {
        ConstruireOccurrences(base, occ);
        for (const Tirage& t : base.enUsage()) {
            ensembles.push_back(0);
            for (const int n : t.Numeros) ensembles.back() |= MasqueNumero(n);
        }
    }
    ContexteComb contexte(unsigned threads = 0) const {
        return {.base = base,
                .occurrences = occ,
                .etat = etat,
                .selection = selection,
                .IntervalleInf = 1,
                .IntervalleSup = base.NbTirages,
                .threads = threads};
    }
    std::vector<Masque> ensembles;
};

std::vector<Combinaison> ChercherExtremes(const Donnees& d, int taille) {
    Collecte collecte;
    const auto fil = CreerRechercheExtremes(d.contexte(), collecte, taille);
    fil->Resume();
    fil->WaitFor();
    return ReduireExtremes(collecte, taille, fil->resultat());
}

/// All choices of that many numbers in lexicographic order, in place.
void ChaqueCombinaison(std::span<Mot> numeros, auto visite) {
    const std::size_t taille = numeros.size();
    for (std::size_t i = 0; i < taille; ++i) numeros[i] = static_cast<Mot>(i + 1);
    while (true) {
        visite();
        std::size_t i = taille;
        while (i > 0 && numeros[i - 1] == NumeroMax - (taille - i)) --i;
        if (i == 0) return;
        ++numeros[i - 1];
        for (; i < taille; ++i) numeros[i] = static_cast<Mot>(numeros[i - 1] + 1);
    }
}

Masque EnMasque(std::span<const Mot> numeros) {
    Masque e = 0;
    for (const Mot n : numeros) e |= MasqueNumero(n);
    return e;
}

std::vector<Combinaison> ExtremesParTable(const Donnees& d, int taille) {
    std::unordered_map<Masque, int> table;
    for (const Tirage& t : d.base.enUsage())
        for (unsigned choix = 0; choix < 32; ++choix) {
            if (std::popcount(choix) != taille) continue;
            Masque e = 0;
            for (unsigned p = 0; p < 5; ++p)
                if ((choix >> p & 1) != 0) e |= MasqueNumero(t.Numeros[p]);
            ++table[e];
        }
    int max = 0;
    for (const auto& [e, n] : table) max = std::max(max, n);
    const bool minimum = SuitMinimum(taille, d.base.NbTirages);
    int min = max;
    std::vector<Combinaison> lignes;
    std::vector<Mot> numeros(static_cast<std::size_t>(taille));
    const auto visiter = [&](auto visite) {
        ChaqueCombinaison(numeros, [&] {
            const auto it = table.find(EnMasque(numeros));
            visite(it == table.end() ? 0 : it->second);
        });
    };
    if (minimum) visiter([&](int n) { min = std::min(min, n); });
    visiter([&](int n) {
        if (n == max || (minimum && n == min)) lignes.push_back({Ensemble::de(numeros), n});
    });
    return lignes;
}

/// The run alone: its records, whatever they took to free.
std::vector<Mot> ChercherBornes(const Donnees& d, int taille, unsigned threads) {
    Collecte collecte;
    const auto fil = CreerRechercheBornes(d.contexte(threads), collecte, taille, 0, NbTiragesMax);
    fil->Resume();
    fil->WaitFor();
    Exiger(fil->erreur().empty(), fil->erreur().c_str());
    return std::move(collecte.mots);
}

std::vector<Mot> BornesParEssais(const Donnees& d, int taille) {
    std::vector<Mot> mots;
    std::vector<Mot> numeros(static_cast<std::size_t>(taille));
    ListeOccurrences liste;
    ChaqueCombinaison(numeros, [&] {
        const Masque e = EnMasque(numeros);
        liste.clear();
        for (std::size_t t = 0; t < d.ensembles.size(); ++t)
            if ((d.ensembles[t] & e) == e) liste.push_back(static_cast<Occurrence>(t));
        const StatsBreves s = StatsResume(liste, 1, d.base.NbTirages);
        mots.insert(mots.end(),
                    {static_cast<Mot>(liste.size()), s.Ecart, s.EcartMax, s.Suite, s.SuiteMax});
        mots.insert(mots.end(), numeros.begin(), numeros.end());
    });
    return mots;
}

/// Kilobytes of a line of /proc/self/status.
long Statut(const std::string& cle) {
    std::ifstream flux("/proc/self/status");
    for (std::string mot; flux >> mot;)
        if (mot == cle + ':') {
            long valeur = 0;
            flux >> valeur;
            return valeur;
        }
    return 0;
}

void Memoire(const Donnees& d) {
    ChercherBornes(d, 2, 0);  // the threads have their stacks
    const long avant = Statut("VmRSS");
    std::ofstream("/proc/self/clear_refs") << 5;  // the peak starts again from here
    const auto mots = ChercherBornes(d, 5, 0);
    const double octets = static_cast<double>(mots.size() * sizeof(Mot));
    const double pris = static_cast<double>(Statut("VmHWM") - avant) * 1024;
    std::printf("every quintuple: %zu records, %.1f MB, peak %.1f MB, ratio %.2f\n",
                mots.size() / 10, octets / 1e6, pris / 1e6, pris / octets);
}

double UneFois(auto appel) {
    const auto debut = std::chrono::steady_clock::now();
    appel();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
}

/// How soon a list that would not fit is refused, beside a count of all of it where that does not
/// take minutes.
void Refus(const Donnees& d) {
    std::printf("\nrefusal by bounds, %d draws\nsize  from  refused ms   counted ms  records\n",
                d.base.NbTirages);
    for (int taille = 6; taille <= 10; ++taille)
        for (const int inf : {0, 1, 2}) {
            ContexteComb c = d.contexte();
            c.octetsMax = 1;
            Collecte collecte;
            const auto chercher = [&](bool compter) {
                const auto fil = CreerRechercheBornes(c, collecte, taille, inf, NbTiragesMax);
                fil->compterSeulement = compter;
                fil->Resume();
                fil->WaitFor();
                Exiger(fil->erreur().empty() == compter, "refusal");
                return fil->nombre();
            };
            std::printf("%4d %5d %11.1f", taille, inf, Secondes([&] { chercher(false); }) * 1e3);
            std::uint64_t nombre = 0;
            if (taille <= 8)
                std::printf(" %12.1f", UneFois([&] { nombre = chercher(true); }) * 1e3);
            std::printf("  %llu\n", static_cast<unsigned long long>(nombre));
        }
}

void Mesurer() {
    const Donnees livree(false);
    Memoire(livree);
    Refus(livree);

    const Donnees globale(true);
    std::printf("\nextremes, %d draws\nsize  lines        ms  hash table ms   ratio\n",
                globale.base.NbTirages);
    for (int taille = 2; taille <= 5; ++taille) {
        std::vector<Combinaison> lignes, naives;
        const double s = Secondes([&] { lignes = ChercherExtremes(globale, taille); });
        const double naif = UneFois([&] { naives = ExtremesParTable(globale, taille); });
        Exiger(lignes == naives, "extremes");
        std::printf("%4d %6zu %9.2f %14.1f %7.0f\n", taille, lignes.size(), s * 1e3, naif * 1e3,
                    naif / s);
    }

    std::printf(
        "\nby bounds from 0 up, %d draws\nsize  records        ms  one thread ms  every draw ms   "
        "ratio\n",
        livree.base.NbTirages);
    for (int taille = 3; taille <= 5; ++taille) {
        std::vector<Mot> mots, seul, naifs;
        const double s = Secondes([&] { mots = ChercherBornes(livree, taille, 0); });
        const double un = Secondes([&] { seul = ChercherBornes(livree, taille, 1); });
        const double naif = UneFois([&] { naifs = BornesParEssais(livree, taille); });
        Exiger(mots == naifs && seul == naifs, "combinations by bounds");
        std::printf("%4d %8zu %9.2f %14.2f %14.0f %7.0f\n", taille,
                    mots.size() / static_cast<std::size_t>(taille + 5), s * 1e3, un * 1e3,
                    naif * 1e3, naif / s);
    }
}

}  // namespace
}  // namespace norvane

int main() {
    norvane::Mesurer();
}
