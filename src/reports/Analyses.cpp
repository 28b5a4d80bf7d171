// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/Analyses.h"

#include <fmt/format.h>

#include <array>

#include "AnalysesMatiere.h"
#include "base/Dates.h"

namespace norvane {

namespace {

struct Chapitre {
    const char* titre;  ///< null: that of the statistics, which tells the number of draws
    const char* ancre;
    int dMin;  ///< the chapter is there from that difference of the bounds on
    RedactionChapitre* rediger;
    const char* survol = nullptr;  ///< of its line in the contents, when it is not the title
};

constexpr std::array<Chapitre, 10> Chapitres = {{
    {"Calcul du Maximum/Minimum des numéros en commun sur les tirages consécutifs", "calculcommuns",
     1, RedigerCommuns},
    {"Bilan du Maximum/Minimum des communs", "bilancommuns", 1, RedigerBilanCommuns},
    {"Numéros en commun en moyenne", "moyennecommuns", 1, RedigerMoyenneCommuns},
    {"Numéros en commun sur les 10 derniers tirages", "10communs", 10, RedigerDixDerniers},
    {nullptr, "stats", 0, RedigerStatistiques},
    {"Terminaisons finales", "terminaisons", 0, RedigerTerminaisons},
    {"Nombres pairs et impairs", "nbpairsimpairs", 0, RedigerParites},
    {"Analyse des septaines", "septaines", 0, RedigerSeptaines, "Analyse des dizaines"},
    {"Analyse des différentes cases de sortie des numéros", "cases", 0, RedigerCases},
    {"Rayonnement des numéros selon les cases de sortie", "rayonnement", 0, RedigerRayonnement},
}};

std::string Titre(const Chapitre& chapitre, const MatiereAnalyses& m) {
    if (chapitre.titre != nullptr) return chapitre.titre;
    return fmt::format("Statistiques sur {} tirage{}", m.nombre(), m.d() > 0 ? "s" : "");
}

void RedigerTete(Redacteur& r, const MatiereAnalyses& m) {
    const auto date = [&](int indice) {
        return DateLongue(m.tirages[static_cast<std::size_t>(indice)].DateTirage);
    };
    const bool seul = m.d() == 0;
    r.centree(Style::TitreRapport,
              fmt::format("ANALYSES DES NUMÉROS SUR {} TIRAGE{}", m.nombre(), seul ? "" : "S"));
    if (seul) {
        r.centree(Style::TitreRapport, "le " + date(m.TirageInf));
    } else {
        r.centree(Style::TitreRapport, "du " + date(m.TirageInf));
        r.centree(Style::TitreRapport, "au " + date(m.TirageSup));
    }
    r.vide();
    r.centree(Style::TitreChapitre, "Sommaire");
    r.vide();
    int rang = 0;
    for (const Chapitre& chapitre : Chapitres) {
        if (m.d() < chapitre.dMin) continue;
        const std::string titre = Titre(chapitre, m);
        r.lignePuce();
        r.suite(Style::Corps, fmt::format("{:4}.  ", ++rang));
        r.lien(Style::LienSommaire, titre, chapitre.ancre,
               chapitre.survol != nullptr ? chapitre.survol : titre);
    }
}

}  // namespace

Document RedigerAnalyses(std::span<const Tirage> tirages, int TirageInf, int TirageSup) {
    const MatiereAnalyses m{tirages, TirageInf, TirageSup,
                            CompterAnalyses(tirages, TirageInf, TirageSup)};
    Document document;
    document.titre = "Analyses diverses appliquées au loto";
    Redacteur r(document);
    RedigerTete(r, m);
    for (const Chapitre& chapitre : Chapitres) {
        if (m.d() < chapitre.dMin) continue;
        r.filet();
        r.ancre(chapitre.ancre);
        r.centree(Style::TitreChapitre, Titre(chapitre, m));
        r.vide();
        chapitre.rediger(r, m);
    }
    r.vide();
    r.ligne(Style::Retour, {});
    r.lien(Style::Retour, " Retour au Sommaire", {}, "Retour au Sommaire", Image::Retour);
    return document;
}

}  // namespace norvane
