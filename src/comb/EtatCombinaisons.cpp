// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/EtatCombinaisons.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/Fichiers.h"
#include "base/Textes.h"
#include "EchangeFichiers.h"
#include "IndexTirages.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

constexpr int TailleSansControle = 6;  ///< from this size on the state read counts as current
constexpr int ValeurMax = 65535;       ///< counts of draws are 16-bit
constexpr std::uint64_t OctetsMax = 1 << 16;  ///< nine short lines; anything larger is no such file

/// The three integers of one line, blanks between and around; nothing for another content.
std::optional<std::vector<int>> LireEntiers(std::string_view ligne) {
    std::vector<int> entiers;
    for (ligne = Rogner(ligne); !ligne.empty(); ligne = Rogner(ligne)) {
        int valeur = 0;
        const char* fin = ligne.data() + ligne.size();
        const auto [lu, erreur] = std::from_chars(ligne.data(), fin, valeur);
        if (erreur != std::errc{} || valeur < 0 || valeur > ValeurMax) return std::nullopt;
        if (lu != fin && *lu != ' ' && *lu != '\t') return std::nullopt;
        entiers.push_back(valeur);
        ligne.remove_prefix(static_cast<std::size_t>(lu - ligne.data()));
    }
    return entiers;
}

Erreur LigneIllisible(const fs::path& fichier, int numero) {
    return {
        fmt::format("Ligne {} du fichier « {} » illisible : trois entiers de 0 à {} y sont "
                    "attendus. Supprimez ce fichier ; les bornes seront recalculées.",
                    numero, fichier.string(), ValeurMax)};
}

/// One line of the file.
struct Extremes {
    int nbTirages, inf, sup;
};

/// Whether a count over that many draws can give these bounds: the smallest count is at most the
/// mean over all combinations and the largest at least that, and no combination comes out more
/// often than there are draws. The largest is 1 at least.
bool Possibles(int taille, const Extremes& e) {
    const bool grande = taille > NbBoules;
    const double toutes = static_cast<double>(Binomial(NumeroMax, taille));
    const double parTirage = static_cast<double>(
        grande ? Binomial(NumeroMax - NbBoules, taille - NbBoules) : Binomial(NbBoules, taille));
    const double moyenne = e.nbTirages * parTirage / toutes;
    return e.sup > 0 && e.sup <= e.nbTirages && e.sup >= moyenne && e.inf <= moyenne;
}

void poser(EtatCombinaisons& etat, int taille, Extremes e, int nbTirages) {
    if (e.nbTirages > 0 && !Possibles(taille, e)) e = {0, 0, 0};
    const auto n = static_cast<std::size_t>(taille);
    etat.NbTiragesComb[n] = taille < TailleSansControle ? e.nbTirages : nbTirages;
    if (etat.NbTiragesComb[n] != e.nbTirages) etat.NbTiragesPerime[n] = e.nbTirages;
    etat.BorneInf[n] = e.inf;
    etat.BorneSup[n] = e.sup;
}

std::string Ligne(int nbTirages, int inf, int sup) {
    return fmt::format("{} {} {}\n", nbTirages, inf, sup);
}

std::string Minuscules(std::string texte) {
    std::transform(texte.begin(), texte.end(), texte.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return texte;
}

/// The files of `repertoire` with this name in any case, the exact one last: folders copied from
/// another machine may hold any spelling, several of them at once.
Resultat<std::vector<fs::path>> Variantes(const fs::path& repertoire, const std::string& nom) {
    std::vector<fs::path> trouvees;
    std::error_code erreur;
    for (fs::directory_iterator it(repertoire, erreur), fin; !erreur && it != fin;
         it.increment(erreur)) {
        if (Minuscules(it->path().filename().string()) == Minuscules(nom))
            trouvees.push_back(it->path());
    }
    if (erreur)
        return Erreur{fmt::format("Le dossier « {} » ne peut pas être lu ({}).",
                                  repertoire.string(), erreur.message())};
    std::sort(trouvees.begin(), trouvees.end(), [&](const fs::path& a, const fs::path& b) {
        const bool exactA = a.filename() == nom;
        const bool exactB = b.filename() == nom;
        return exactA != exactB ? exactB : a < b;
    });
    return trouvees;
}

Resultat<Rien> SupprimerVariantes(const fs::path& repertoire, const std::string& nom) {
    const auto variantes = Variantes(repertoire, nom);
    if (!variantes) return Erreur{variantes.erreur()};
    for (const fs::path& fichier : *variantes) {
        std::error_code erreur;
        fs::remove(fichier, erreur);
        if (erreur)
            return Erreur{
                fmt::format("Le fichier « {} » de la base filtrée ne peut pas être supprimé ({}) : "
                            "supprimez-le vous-même.",
                            fichier.string(), erreur.message())};
    }
    return Rien{};
}

}  // namespace

Resultat<EtatCombinaisons> LireCombCalc(const fs::path& repertoire, int nbTirages) {
    const fs::path fichier = repertoire / NomCombCalc;
    if (!NomPresent(fichier)) return EtatCombinaisons{};
    const auto contenu = LireFichier(fichier, OctetsMax);
    if (!contenu) return Erreur{contenu.erreur()};

    EtatCombinaisons etat;
    std::string_view reste = SansMarqueOctets(*contenu);
    for (int numero = 1; !reste.empty(); ++numero) {
        const auto fin = reste.find('\n');
        const bool close = fin != reste.npos;
        std::string_view ligne = reste.substr(0, fin);
        if (close && ligne.ends_with('\r')) ligne.remove_suffix(1);
        reste.remove_prefix(close ? fin + 1 : reste.size());

        const auto entiers = LireEntiers(ligne);
        if (!entiers) return LigneIllisible(fichier, numero);
        const int taille = TailleCombMin + numero - 1;
        if (taille > TailleCombMax) {
            if (!entiers->empty()) return LigneIllisible(fichier, numero);
            continue;
        }
        // Without its end a line may have lost digits: it lies behind the cut. Only the ninth is
        // taken so, as an editor leaves it.
        const bool coupee = !close && (taille < TailleCombMax || entiers->size() < 3);
        if (coupee || (entiers->empty() && Rogner(reste).empty())) break;
        if (entiers->size() != 3) return LigneIllisible(fichier, numero);

        poser(etat, taille, {(*entiers)[0], (*entiers)[1], (*entiers)[2]}, nbTirages);
    }
    return etat;
}

Resultat<Rien> EcrireCombCalc(const EtatCombinaisons& etat, const fs::path& repertoire) {
    std::string texte;
    for (std::size_t n = TailleCombMin; n <= TailleCombMax; ++n)
        texte += Ligne(std::max(etat.NbTiragesPerime[n].value_or(etat.NbTiragesComb[n]), 0),
                       etat.BorneInf[n], etat.BorneSup[n]);
    return EcrireFichier(repertoire / NomCombCalc, texte);
}

Resultat<Rien> EcrireCombCalcNeutre(const fs::path& repertoire) {
    EtatCombinaisons neutre;
    neutre.BorneSup.fill(1);
    return EcrireCombCalc(neutre, repertoire);
}

Resultat<Rien> RestaurerFichiersFiltre(const fs::path& repertoire) {
    for (const Echange& echange : Echanges) {
        auto supprime = SupprimerVariantes(repertoire, echange.enUsage);
        if (!supprime) return supprime;
    }
    bool aucune = true;
    for (const Echange& echange : Echanges) {
        const auto sauvegardes = Variantes(repertoire, echange.sauvegarde);
        if (!sauvegardes) return Erreur{sauvegardes.erreur()};
        if (sauvegardes->empty()) continue;
        aucune = false;
        std::error_code erreur;
        fs::rename(sauvegardes->back(), repertoire / echange.enUsage, erreur);
        if (erreur)
            return Erreur{fmt::format(
                "Le fichier « {} » ne peut pas reprendre le nom « {} » ({}) : renommez-le "
                "vous-même.",
                sauvegardes->back().string(), echange.enUsage, erreur.message())};
    }
    return aucune ? EcrireCombCalcNeutre(repertoire) : Rien{};
}

}  // namespace norvane
