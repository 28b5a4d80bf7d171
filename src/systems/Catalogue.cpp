// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "systems/Catalogue.h"

#include <fmt/format.h>
#include <iconv.h>

#include <algorithm>
#include <optional>

#include "base/Fichiers.h"
#include "base/Tirage.h"
#include "Stock.h"

namespace norvane {

namespace {

constexpr std::uint64_t TailleMax = std::uint64_t{1} << 20;
constexpr std::size_t LongueurLigne = 49;
constexpr int SelectionMin = 6;

/// Bytes that cp1252 leaves undefined become question marks.
std::string Utf8(std::string_view octets) {
    const iconv_t conversion = iconv_open("UTF-8", "CP1252");
    std::string texte;
    for (const char octet : octets) {
        if (static_cast<unsigned char>(octet) < 128) {
            texte += octet;
            continue;
        }
        char lu = octet;
        std::array<char, 4> ecrit{};
        char* entree = &lu;
        char* sortie = ecrit.data();
        std::size_t reste = 1;
        std::size_t place = ecrit.size();
        if (iconv(conversion, &entree, &reste, &sortie, &place) == static_cast<std::size_t>(-1))
            texte += '?';
        else
            texte.append(ecrit.data(), ecrit.size() - place);
    }
    iconv_close(conversion);
    return texte;
}

/// The number whose digits stand at these places, one-based.
std::optional<int> Nombre(std::string_view ligne, std::size_t de, std::size_t a) {
    int n = 0;
    for (std::size_t i = de; i <= a; ++i) {
        const char c = ligne[i - 1];
        if (c < '0' || c > '9') return std::nullopt;
        n = 10 * n + (c - '0');
    }
    return n;
}

std::optional<SystemeDisponible> LireLigne(std::string_view ligne) {
    if (ligne.size() < LongueurLigne) return std::nullopt;
    const auto selection = Nombre(ligne, 12, 13);
    const auto x = Nombre(ligne, 25, 25);
    const auto y = Nombre(ligne, 27, 27);
    const auto base = Nombre(ligne, 35, 35);
    const auto grilles = Nombre(ligne, 46, 49);
    if (!selection || !x || !y || !base || !grilles) return std::nullopt;
    if (*selection < NbBoules || *selection > NumeroMax || *x < 1 || *y < *x || *y > NbBoules ||
        *base > BaseSystemeMax || *grilles < 1)
        return std::nullopt;
    return SystemeDisponible{NbBoules, *selection, *base, *x, *y, *grilles};
}

}  // namespace

const TypeGarantie* ChercherGarantie(std::string_view texte) {
    const auto type = std::ranges::find_if(TypesGarantie, [&](const TypeGarantie& t) {
        return texte == fmt::format("{}/{}", t.X, t.Y);
    });
    return type == TypesGarantie.end() ? nullptr : &*type;
}

std::string CleSysteme(const SystemeDisponible& s) {
    return fmt::format("{:02}{:02}{:02}{:02}{:04}", s.Selection - s.Base,
                       s.NumerosParGrille - s.Base, s.GarantieX - s.Base, s.GarantieY - s.Base,
                       s.Grilles);
}

std::string LigneCatalogue(const SystemeDisponible& s) {
    return fmt::format("Sélection: {:02} Garantie: {}/{} Base: {} Grilles: {:04}", s.Selection,
                       s.GarantieX, s.GarantieY, s.Base, s.Grilles);
}

std::vector<EntreeCatalogue> CatalogueIntegre(const TypeGarantie& type) {
    std::vector<EntreeCatalogue> entrees;
    for (int selection = SelectionMin; selection <= NumeroMax; ++selection)
        for (int base = 0; base <= type.baseMax; ++base) {
            const DessinStocke* dessin =
                ChercherDessin({selection - base, NbBoules - base, type.Y - base, type.X - base});
            if (dessin == nullptr) continue;
            const SystemeDisponible s{NbBoules, selection, base, type.X, type.Y, dessin->blocs};
            entrees.push_back({LigneCatalogue(s), s});
        }
    return entrees;
}

Resultat<std::vector<EntreeCatalogue>> LireCatalogue(std::string_view octets,
                                                     std::string_view nom) {
    std::vector<EntreeCatalogue> entrees;
    for (int numero = 1; !octets.empty(); ++numero) {
        std::string_view ligne = octets.substr(0, octets.find('\n'));
        octets.remove_prefix(std::min(ligne.size() + 1, octets.size()));
        if (ligne.ends_with('\r')) ligne.remove_suffix(1);
        if (ligne.empty()) continue;
        const auto systeme = LireLigne(ligne);
        if (!systeme)
            return Erreur{fmt::format(
                "« {} », ligne {} : ce n'est pas la description d'un système réducteur. Corrigez "
                "la ligne, ou retirez le fichier pour retrouver la liste de Norvane.",
                nom, numero)};
        entrees.push_back({Utf8(ligne), *systeme});
    }
    if (entrees.empty())
        return Erreur{fmt::format(
            "« {} » ne décrit aucun système : retirez le fichier pour retrouver la liste de "
            "Norvane.",
            nom)};
    return entrees;
}

Resultat<std::vector<EntreeCatalogue>> ChargerCatalogue(const std::filesystem::path& repertoire,
                                                        const TypeGarantie& type) {
    const auto chemin = repertoire / type.fichier;
    if (!NomPresent(chemin)) return CatalogueIntegre(type);
    const auto octets = LireFichier(chemin, TailleMax);
    if (!octets) return Erreur{octets.erreur()};
    return LireCatalogue(*octets, type.fichier);
}

}  // namespace norvane
