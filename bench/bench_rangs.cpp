// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is done to a list of every quintuple: its ranks and its adaptation to another interval,
// beside the walk over the draws with the table of distances; its sorts, beside a sort that
// compares records. The walk is taken over a sample of the records.
#include <algorithm>
#include <ctime>
#include <fstream>
#include <random>
#include <string>

#include "base/BaseIntegree.h"
#include "comb/TravauxRangs.h"
#include "lists/PuitsListe.h"
#include "lists/Tri.h"
#include "MarcheParDistances.h"
#include "Verification.h"

namespace norvane {
namespace {

constexpr std::size_t Echantillon = 200;  ///< one record in so many is walked
constexpr GainsNominaux Gains = {5, 20, 500, 100000};

struct Donnees {
    Base base = BaseIntegree(false);
    Occurrences occ;
    EtatCombinaisons etat;
    Selection selection;

    Donnees() { ConstruireOccurrences(base, occ); }
    ContexteComb contexte(ModeStockage mode) const {
        return {.base = base,
                .occurrences = occ,
                .etat = etat,
                .selection = selection,
                .IntervalleInf = occ.IntervalleInf,
                .IntervalleSup = occ.IntervalleSup,
                .mode = mode};
    }
};

Liste Quintuples(const Donnees& d, ModeStockage mode) {
    PuitsListe puits;
    const auto fil = CreerRechercheBornes(d.contexte(mode), puits, NbBoules, 0, NbTiragesMax);
    puits.liste.arene.disposition = fil->disposition();
    fil->Resume();
    fil->WaitFor();
    Exiger(fil->erreur().empty(), fil->erreur().c_str());
    return std::move(puits.liste);
}

/// Seconds of all cores together: what a machine that others use takes from us.
double Coeurs() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double UneFois(auto appel) {
    const auto debut = std::chrono::steady_clock::now();
    appel();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
}

/// Kilobytes of a line of /proc/self/status.
long Statut(const std::string& cle) {
    std::ifstream flux("/proc/self/status");
    long valeur = 0;
    for (std::string mot; flux >> mot;)
        if (mot == cle + ':') flux >> valeur;
    return valeur;
}

template <typename Fil>
void Mener(const Donnees& d, Arene& arene) {
    PuitsMuet muet;
    Fil fil(d.contexte(arene.disposition.mode), muet, arene, QuelleListe::Memoire);
    fil.Resume();
    fil.WaitFor();
    Exiger(fil.complet(), "ranks");
}

/// Core seconds that the walk would take for all records; the sample must agree.
double Marcher(const Donnees& d, const Arene& avant, const Arene& apres, bool premier) {
    TableDistances table;
    VersDistances(d.occ, table);
    MarcheParDistances marche(table, avant.disposition, d.occ.IntervalleInf, d.occ.IntervalleSup,
                              premier);
    std::vector<Mot> mots;
    const double debut = Coeurs();
    for (std::size_t i = 0; i < avant.nombre(); i += Echantillon) {
        mots.assign(avant[i].begin(), avant[i].end());
        marche.ecrire(mots);
        Exiger(std::ranges::equal(mots, apres[i]), "walk by distances");
    }
    return Echantillon * (Coeurs() - debut);
}

void Dire(int mode, const char* quoi, auto notre, auto marche) {
    const double debut = Coeurs();
    const double s = UneFois(notre);
    const double coeurs = Coeurs() - debut;
    const double naif = marche();
    std::printf("%4d  %-10s %6.2f %8.2f %12.1f %7.1f\n", mode, quoi, s, coeurs, naif,
                naif / coeurs);
}

void MesurerRangs(Donnees& d) {
    std::printf(
        "every quintuple, %d draws\nmode  work            s   core s  walk core s   ratio\n",
        d.base.NbTirages);
    for (const auto mode :
         {ModeStockage::PremierRang, ModeStockage::RangsDeGain, ModeStockage::TousLesRangs}) {
        const int m = static_cast<int>(mode);
        ChangerIntervalle(d.base, d.occ, 1, d.base.NbTirages);
        Liste liste = Quintuples(d, mode);
        if (mode != ModeStockage::PremierRang) {
            const Arene avant = liste.arene;
            Dire(
                m, "ranks", [&] { Mener<TRemplirRangsSearch>(d, liste.arene); },
                [&] { return Marcher(d, avant, liste.arene, false); });
        }
        ChangerIntervalle(d.base, d.occ, 15, d.base.NbTirages - 3);
        const Arene avant = liste.arene;
        Dire(
            m, "adaptation", [&] { Mener<TRemplirRangsAdaptationSearch>(d, liste.arene); },
            [&] { return Marcher(d, avant, liste.arene, true); });
    }
    ChangerIntervalle(d.base, d.occ, 1, d.base.NbTirages);
}

void MesurerMemoire(const Donnees& d) {
    Liste liste = Quintuples(d, ModeStockage::TousLesRangs);
    std::ofstream("/proc/self/clear_refs") << 5;  // the peak starts again from here
    const long avant = Statut("VmRSS");
    Mener<TRemplirRangsSearch>(d, liste.arene);
    const double octets = static_cast<double>(liste.arene.mots.size() * sizeof(Mot));
    std::printf("\nranks: records %.1f MB, the run takes %.1f MB more\n", octets / 1e6,
                static_cast<double>(Statut("VmHWM") - avant) * 1.024e-3);
}

/// What two records compare by: criterion words from the first that decides.
struct Comparaison {
    std::vector<std::size_t> mots;
    std::vector<double> rapports;
    const Arene& arene;
    bool croissant;

    bool operator()(std::uint32_t a, std::uint32_t b) const {
        if (!croissant) std::swap(a, b);
        if (!rapports.empty()) return rapports[a] < rapports[b];
        for (const std::size_t mot : mots)
            if (arene[a][mot] != arene[b][mot]) return arene[a][mot] < arene[b][mot];
        return false;
    }
};

void MesurerTris(const Donnees& d) {
    Liste liste = Quintuples(d, ModeStockage::TousLesRangs);
    Mener<TRemplirRangsSearch>(d, liste.arene);
    CompterRangs(liste);
    std::vector<double> rapports(liste.nombre());
    for (std::size_t i = 0; i < rapports.size(); ++i)
        for (std::size_t k = 2; k <= NbBoules; ++k)
            rapports[i] += liste.arene[i][5 * k] * Gains[k - 2];
    std::printf("\nsort            s   core s  stable_sort core s   ratio\n");
    const auto mesurer = [&](const char* nom, const EtatTri& tri, const Comparaison& compare) {
        const std::vector<std::uint32_t> depart = OrdreDesLignes(liste);
        Liste notre = liste;
        const double debut = Coeurs();
        const double s = UneFois([&] { Trier(notre, tri, Gains); });
        const double coeurs = Coeurs() - debut;
        std::vector<std::uint32_t> naif = depart;
        const double avant = Coeurs();
        std::ranges::stable_sort(naif, compare);
        const double lent = Coeurs() - avant;
        Exiger(notre.ordre == naif && notre.tri == tri, nom);
        std::printf("%-10s %6.2f %8.2f %19.2f %7.1f\n", nom, s, coeurs, lent, lent / coeurs);
    };
    std::mt19937 hasard(1);
    for (const bool melangees : {false, true}) {
        if (melangees) {
            liste.ordre = OrdreDesLignes(liste);
            std::ranges::shuffle(liste.ordre, hasard);
            std::printf("lines in no order\n");
        }
        mesurer("simple", {TypeTri::Simple, Critere::EcartMax, false, 0},
                {{27}, {}, liste.arene, false});
        mesurer("depth", {TypeTri::Profondeur, Critere::NbFois, true, 5},
                {{25, 20, 15, 10, 5, 0}, {}, liste.arene, true});
        mesurer("gain", {TypeTri::Gain, Critere::NbFois, false, 0},
                {{}, rapports, liste.arene, false});
    }
}

}  // namespace
}  // namespace norvane

int main() {
    norvane::Donnees donnees;
    norvane::MesurerMemoire(donnees);
    norvane::MesurerRangs(donnees);
    norvane::MesurerTris(donnees);
}
