// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <numeric>
#include <random>

#include "base/BaseIntegree.h"
#include "Cumulateur.h"
#include "SeptTirages.h"
#include "tickets/Bilan.h"

namespace norvane {
namespace {

/// `nombre` tickets of random types, every third with the option.
std::vector<Grille> GrillesAleatoires(std::size_t nombre) {
    std::mt19937 hasard(20240724);
    std::vector<int> numeros(NumeroMax), chances(ChanceMax);
    std::iota(numeros.begin(), numeros.end(), 1);
    std::iota(chances.begin(), chances.end(), 1);
    std::vector<Grille> grilles;
    while (grilles.size() < nombre) {
        const TypeGrille type = TypesVendus[hasard() % TypesVendus.size()];
        std::shuffle(numeros.begin(), numeros.end(), hasard);
        std::shuffle(chances.begin(), chances.end(), hasard);
        grilles.push_back(FaireGrille(std::span(numeros).first(static_cast<std::size_t>(type.n)),
                                      std::span(chances).first(static_cast<std::size_t>(type.c)),
                                      grilles.size() % 3 == 0));
    }
    return grilles;
}

/// The definition: record by record, the wins that the prize rules tell.
BilanGrille BilanLent(const Base& base, int premier, int dernier, const Grille& grille) {
    BilanGrille bilan;
    const auto ajouter = [](const auto& comptes, const RapportsTirage& rapports, auto& cumuls) {
        for (std::size_t rang = 0; rang < comptes.size(); ++rang) {
            cumuls[rang].fois += comptes[rang];
            cumuls[rang].gain += comptes[rang] * rapports[rang].Gain;
        }
    };
    for (auto i = static_cast<std::size_t>(premier - 1); i < static_cast<std::size_t>(dernier);
         ++i) {
        const Tirage& tirage = base.Tirages[i];
        if (tirage.DateTirage >= 20191104 && tirage.SousTirage == 2) {
            ajouter(Rangs2ndGagnes(grille, tirage), base.Rapports[i], bilan.Bilan2nd);
        } else {
            ajouter(RangsGagnes(grille, tirage), base.Rapports[i], bilan.BilanRangs);
        }
    }
    return bilan;
}

TEST(Bilan, NoTicket) {
    const Base base = SeptTirages();
    EXPECT_EQ(RedigerBilan(base, 6, 6, {}, {}),
              "Statistiques sur 1 tirage\nle mercredi 24 juillet 2024\n\n\n\n"
              "BILAN DES GAINS (pour toutes les combinaisons et tous les rangs de gain) :\n\n");
}

TEST(Bilan, EveryTicketAgainstTheDefinition) {
    const Base base = BaseIntegree(true);
    std::vector<Grille> grilles = GrillesAleatoires(300);
    // No tickets that are sold, but a list made by hand may hold them.
    grilles.push_back({1, {7, 12, 23, 34}, {}});
    grilles.push_back({5, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {1, 2}});
    grilles.push_back({0, {}, {}});
    // Whole base, the two changes of the rules, around a word of sixty-four records, one record.
    for (const auto& [premier, dernier] :
         {std::pair{1, 8072}, {6000, 7000}, {7000, 7063}, {7000, 7064}, {8072, 8072}}) {
        const Cumulateur cumulateur(base, premier, dernier, grilles);
        for (std::size_t k = 0; k < grilles.size(); ++k)
            ASSERT_EQ(cumulateur.cumuler(grilles[k]), BilanLent(base, premier, dernier, grilles[k]))
                << "ticket " << k << ", " << premier << ".." << dernier;
    }
}

TEST(Bilan, SameTextForAnyNumberOfThreads) {
    const Base base = BaseIntegree(false);
    const auto grilles = GrillesAleatoires(333);
    const auto rediger = [&](unsigned fils) {
        return RedigerBilan(base, 1, base.NbTirages, grilles, {}, {{}, nullptr, fils});
    };
    const auto seul = rediger(1);
    ASSERT_TRUE(seul);
    for (const unsigned fils : {0U, 2U, 7U, 64U}) EXPECT_TRUE(rediger(fils) == seul) << fils;
}

TEST(Bilan, ProgressAndStop) {
    const Base base = BaseIntegree(true);
    const auto grilles = GrillesAleatoires(NbGrillesMax);
    for (const unsigned fils : {1U, 3U}) {
        std::stop_source dejaArrete;
        dejaArrete.request_stop();
        Progres rien;
        EXPECT_FALSE(
            RedigerBilan(base, 1, 8072, grilles, {}, {dejaArrete.get_token(), &rien, fils}));
        EXPECT_EQ(rien.fait(), 0);

        // Stopped by whoever watches, unless it is through by then; once in many it is not.
        int arrets = 0;
        for (int essai = 0; essai < 50 && arrets == 0; ++essai) {
            std::stop_source source;
            Progres progres;
            std::jthread guetteur([&](const std::stop_token& fini) {
                while (progres.fait() < 30 && !fini.stop_requested()) std::this_thread::yield();
                source.request_stop();
            });
            const auto texte =
                RedigerBilan(base, 1, 8072, grilles, {}, {source.get_token(), &progres, fils});
            EXPECT_EQ(progres.fait() == 100, texte.has_value());
            arrets += texte ? 0 : 1;
        }
        EXPECT_EQ(arrets, 1) << fils;
    }
}

}  // namespace
}  // namespace norvane
