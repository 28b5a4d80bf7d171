// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Files of lists: every quintuple saved and read back, the first rank alone and all ranks filled.
// The naive way: the same values through a stream, not even compressed.
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "base/Tirage.h"
#include "lists/FichiersListes.h"
#include "Verification.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t NbQuintuples = 1906884;

/// All quintuples in order, their words of the size that 3214 draws give them.
Liste Quintuples(ModeStockage mode) {
    Liste liste;
    liste.arene.disposition = {5, mode};
    liste.DebutListe = 1;
    liste.FinListe = 3214;
    std::mt19937 alea(20240724);
    const int blocs = liste.arene.disposition.blocs();
    auto& mots = liste.arene.mots;
    mots.reserve(NbQuintuples * static_cast<std::size_t>(liste.arene.disposition.mots()));
    const auto mot = [&](unsigned max) { mots.push_back(static_cast<Mot>(alea() % max)); };
    Ensemble numeros{1, 2, 3, 4, 5};
    for (;;) {
        for (int bloc = 0; bloc < blocs; ++bloc) {
            const bool rare = bloc > 2 || blocs == 1;
            mot(rare ? 12 : 1700);
            mot(rare ? 3214 : 40);
            mot(rare ? 3214 : 60);
            mot(4);
            mot(12);
        }
        mots.insert(mots.end(), numeros.begin(), numeros.end());
        // The next set of five bits.
        const Masque bits = numeros.bits();
        const Masque bas = bits & (~bits + 1);
        const Masque monte = bits + bas;
        numeros = Ensemble(monte | (((bits ^ monte) / bas) >> 2));
        if (!Ensemble(MasqueNumero(NumeroMax + 1) - 1).contient(numeros)) return liste;
    }
}

void EcrireNaif(const Liste& liste, const fs::path& fichier) {
    std::ofstream flux(fichier);
    flux << liste.nombre() << ' ' << liste.taille() << ' ' << static_cast<int>(liste.mode()) << ' '
         << liste.DebutListe << ' ' << liste.FinListe << '\n';
    for (const Mot mot : liste.arene.mots) flux << mot << ' ';
}

std::vector<Mot> LireNaif(const fs::path& fichier) {
    std::ifstream flux(fichier);
    for (int i = 0, champ = 0; i < 5; ++i) flux >> champ;
    std::vector<Mot> mots;
    for (Mot mot = 0; flux >> mot;) mots.push_back(mot);
    return mots;
}

/// Seconds of one run.
template <typename Appel>
double Duree(Appel appel) {
    const auto debut = std::chrono::steady_clock::now();
    appel();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
}

void Mesurer(ModeStockage mode, const char* nom) {
    const fs::path fichier =
        fs::temp_directory_path() / ("norvane-bench-" + std::to_string(::getpid()) + ".lst");
    const Liste liste = Quintuples(mode);
    Exiger(liste.nombre() == NbQuintuples, "quintuples");
    const double ecrit = Duree([&] { Exiger(bool(SauverListe(liste, fichier)), "save"); });
    const auto octets = static_cast<double>(fs::file_size(fichier));
    Resultat<Liste> lue = Liste{};
    const double relu = Duree([&] { lue = OuvrirListe(fichier, {}); });
    Exiger(lue && lue->arene.mots == liste.arene.mots, "list read back");
    lue = Liste{};
    std::vector<Mot> mots;
    const double ecritNaif = Duree([&] { EcrireNaif(liste, fichier); });
    const auto octetsNaif = static_cast<double>(fs::file_size(fichier));
    const double reluNaif = Duree([&] { mots = LireNaif(fichier); });
    Exiger(mots == liste.arene.mots, "list read back the naive way");
    fs::remove(fichier);
    std::printf("%s: written %.2f s (naive %.2f), read %.2f s (naive %.2f), %.0f MB (%.0f)\n", nom,
                ecrit, ecritNaif, relu, reluNaif, octets / 1e6, octetsNaif / 1e6);
}

}  // namespace
}  // namespace norvane

int main() {
    norvane::Mesurer(norvane::ModeStockage::PremierRang, "first rank");
    norvane::Mesurer(norvane::ModeStockage::TousLesRangs, "all ranks");
}
