// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "slips/Marques.h"

#include <fmt/format.h>

#include <array>
#include <cmath>
#include <utility>

namespace norvane {

namespace {

constexpr double Tolerance = 1e-9;  ///< of a sum of lengths

/// Up only beyond the half.
int Arrondi(double x) {
    const double entier = std::floor(x);
    return static_cast<int>(entier) + (x - entier > 0.5 ? 1 : 0);
}

MarqueApercu SurApercu(BlocBulletin bloc, int valeur, Place place, ProportionsMarque p) {
    constexpr double cote = GeometrieApercu.cote;
    const double x = place.x + p.marge * cote;
    const double y = place.y + p.marge * cote;
    return {bloc,
            valeur,
            Arrondi(x),
            Arrondi(y),
            Arrondi(x + p.cote * cote),
            Arrondi(y + p.cote * cote)};
}

/// The boxes of a slip's options that are ticked.
template <typename Ajouter>
void ParcourirOptions(const OptionsBulletin& o, Ajouter ajouter) {
    if (o.Semaines != SansOption) ajouter(BlocBulletin::Semaines, o.Semaines);
    for (const auto& [bloc, champ] :
         {std::pair{BlocBulletin::Joker1, o.Joker1}, std::pair{BlocBulletin::Joker2, o.Joker2}})
        for (int item = 0; item <= 2; ++item)
            if (JokerCoche(champ, item)) ajouter(bloc, item + 1);
    int jour = 0;
    for (const std::int16_t coche : {o.Lundi, o.Mercredi, o.Samedi}) {
        ++jour;
        if (coche != SansOption) ajouter(BlocBulletin::Jour, jour);
    }
}

std::string Nommer(int bulletin, const CaseBulletin& marque) {
    const std::string libelle = LibelleCase(marque.bloc, marque.valeur);
    if (marque.grille == 0) return fmt::format("bulletin {}, {}", bulletin, libelle);
    return fmt::format("bulletin {}, grille {}, {}", bulletin, marque.grille, libelle);
}

}  // namespace

ProportionsMarque Proportions(int marque) {
    static constexpr std::array<ProportionsMarque, MarqueMax> tailles = {
        {{0.375, 0.25}, {0.34375, 0.3125}, {0.3125, 0.375}, {0.25, 0.5}}};
    const bool connue = marque >= 1 && marque < MarqueMax;
    return tailles[static_cast<std::size_t>(connue ? marque - 1 : MarqueMax - 1)];
}

std::vector<MarqueApercu> MarquesApercu(const Grille& grille, int marque) {
    const ProportionsMarque p = Proportions(marque);
    std::vector<MarqueApercu> marques;
    for (const int n : grille.numeros)
        marques.push_back(SurApercu(BlocBulletin::Numero, n, GeometrieApercu.numero(n), p));
    for (const int c : grille.chances)
        marques.push_back(SurApercu(BlocBulletin::Chance, c, GeometrieApercu.chance(c), p));
    return marques;
}

std::vector<CaseBulletin> MarquesBulletin(const MiseEnPlace& mise, std::span<const Grille> grilles,
                                          const OptionsBulletin& options, int bulletin) {
    const GeometrieBulletin& g = mise.geometrie;
    const ProportionsMarque p = Proportions(mise.marque);
    const double dx = p.marge * g.grille.cote + mise.DecalageImprimanteBordGauche;
    const double dy = p.marge * g.grille.cote + mise.DecalageImprimanteBordHaut;
    std::vector<CaseBulletin> marques;
    int place = 0;
    const auto ajouter = [&](BlocBulletin bloc, int valeur) {
        const Place coin = g.place(bloc, valeur, place);
        marques.push_back(
            {place, bloc, valeur, {coin.x + dx, coin.y + dy}, p.cote * g.grille.cote});
    };
    for (const Grille& grille : GrillesDuBulletin(grilles, bulletin)) {
        ++place;
        for (const int n : grille.numeros) ajouter(BlocBulletin::Numero, n);
        for (const int c : grille.chances) ajouter(BlocBulletin::Chance, c);
        if (ParticipeAu2ndTirage(grille)) ajouter(BlocBulletin::Second, 1);
    }
    place = 0;
    ParcourirOptions(options, ajouter);
    return marques;
}

bool HorsPapier(const CaseBulletin& marque, const GeometrieBulletin& geometrie) {
    const auto deborde = [&](double debut, double longueur) {
        return debut < -Tolerance || debut + marque.cote > longueur + Tolerance;
    };
    return deborde(marque.place.x, geometrie.papier.x) ||
           deborde(marque.place.y, geometrie.papier.y);
}

std::string AvertissementHorsPapier(const MiseEnPlace& mise, std::span<const Grille> grilles,
                                    const OptionsBulletins& options, int du, int au) {
    constexpr std::size_t citees = 3;
    std::size_t nombre = 0;
    std::string noms;
    for (int b = du; b <= au; ++b)
        for (const CaseBulletin& marque : MarquesBulletin(mise, grilles, options.de(b), b)) {
            if (!HorsPapier(marque, mise.geometrie)) continue;
            if (++nombre <= citees) noms += (nombre > 1 ? " ; " : "") + Nommer(b, marque);
        }
    if (nombre == 0) return {};
    return fmt::format(
        "{} hors du papier ({}{}) : réduisez les décalages de l'imprimante.",
        nombre == 1 ? "1 marque tomberait" : fmt::format("{} marques tomberaient", nombre), noms,
        nombre > citees ? " ; …" : "");
}

}  // namespace norvane
