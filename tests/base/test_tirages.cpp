// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "base/BaseIntegree.h"
#include "base/TableCsv.h"
#include "Dossier.h"

namespace norvane {
namespace {

constexpr RapportsTirage Aucun{};

Tirage tirage(int date, int sousTirage) {
    return {{1, 2, 3, 4, 5}, sousTirage == 1 ? 7 : 0, 20230101, 20222119, date, sousTirage, 42};
}

/// Prize pairs that tell whose they are: record i has i * 100 + rank.
RapportsTirage marques(int i) {
    RapportsTirage rapports;
    for (std::size_t r = 0; r < rapports.size(); ++r)
        rapports[r] = {i * 100.0 + static_cast<double>(r), i * 100.0 + 0.5};
    return rapports;
}

Base petiteBase(int nombre) {
    Base base;
    for (int i = 0; i < nombre; ++i) {
        base.Tirages.push_back(tirage(20221003 + i, 1));
        base.Rapports.push_back(marques(i));
    }
    base.NbTirages = nombre;
    return base;
}

TEST(Tirages, RechercheParDate) {
    const std::vector<Tirage> table = {tirage(20221003, 1), tirage(20221003, 2),
                                       tirage(20221005, 1), tirage(20221008, 1),
                                       tirage(20221008, 2)};
    struct Cas {
        int date, nombre, indice, precedent;
    };
    for (const Cas& c : {Cas{20221003, 5, 0, 0}, Cas{20221008, 5, 3, 3},    // the 1er of both
                         Cas{20221004, 5, -1, 1}, Cas{20221006, 5, -1, 2},  // no draw day
                         Cas{20221001, 5, -1, -1},                          // before all
                         Cas{20230101, 5, -1, 4},                           // after all
                         Cas{20221008, 3, -1, 2},                           // beyond the count
                         Cas{20221003, 0, -1, -1}}) {
        const RechercheDate r = TirageParDate(table, c.date, c.nombre);
        EXPECT_EQ(r.indice, c.indice) << c.date;
        EXPECT_EQ(r.precedent, c.precedent) << c.date;
    }
}

TEST(Tirages, AnneeEtNumero) {
    struct Cas {
        int valeur, annee, numero;
    };
    for (const Cas& c : {Cas{20222119, 2022, 119}, Cas{2022119, 2022, 119}, Cas{20233011, 2023, 11},
                         Cas{1976001, 1976, 1}, Cas{20244089, 2024, 89}, Cas{20241, 2024, 1}}) {
        EXPECT_EQ(LireNumeroAnnee(c.valeur).annee, c.annee) << c.valeur;
        EXPECT_EQ(LireNumeroAnnee(c.valeur).numero, c.numero) << c.valeur;
    }
    EXPECT_EQ(ChiffresJoker(212), (std::array{0, 0, 0, 0, 2, 1, 2}));
    EXPECT_EQ(ChiffresJoker(3548512), (std::array{3, 5, 4, 8, 5, 1, 2}));
    EXPECT_EQ(ChiffresJoker(JokerAbsent), (std::array{-1, -1, -1, -1, -1, -1, -1}));
}

TEST(Tirages, InsertionDeplaceSixPaires) {
    Base base = petiteBase(4);
    InsererTirage(base, 1, tirage(20221003, 2), marques(9));
    ASSERT_EQ(base.NbTirages, 5);
    EXPECT_EQ(base.Tirages[1], tirage(20221003, 2));
    EXPECT_EQ(base.Rapports[1], marques(9));
    for (std::size_t i = 2; i < 5; ++i) {
        EXPECT_EQ(base.Tirages[i], tirage(20221002 + static_cast<int>(i), 1));
        const RapportsTirage venu = marques(static_cast<int>(i) - 1);
        // What stood here before: nothing at the place that the insertion made.
        const RapportsTirage reste = i < 4 ? marques(static_cast<int>(i)) : Aucun;
        for (std::size_t r = 0; r < 9; ++r)
            EXPECT_EQ(base.Rapports[i][r], r < 6 ? venu[r] : reste[r]) << i << ' ' << r;
    }
    InsererTirage(base, 5, tirage(20221009, 1), marques(7));
    EXPECT_EQ(base.Tirages[5], tirage(20221009, 1));
    EXPECT_EQ(base.Rapports[5], marques(7));
}

TEST(Tirages, SuppressionDeplaceTout) {
    Base base = petiteBase(4);
    SupprimerTirage(base, 1);
    ASSERT_EQ(base.NbTirages, 3);
    for (int i : {0, 2, 3})
        EXPECT_EQ(base.Rapports[static_cast<std::size_t>(i - (i > 0))], marques(i));
    EXPECT_EQ(base.Tirages[2].DateTirage, 20221006);
    for (int i = 0; i < 3; ++i) SupprimerTirage(base, 0);
    EXPECT_TRUE(base.enUsage().empty());
}

TEST(Tirages, NbAnciensTiragesSuit) {
    for (const bool anciens : {false, true}) {
        Base base = petiteBase(4);
        base.NbAnciensTirages = 2;
        base.AnciensTirages = anciens;
        InsererTirage(base, 2, tirage(20221004, 2), Aucun);
        EXPECT_EQ(base.NbAnciensTirages, 2);
        InsererTirage(base, 1, tirage(20221003, 2), Aucun);
        EXPECT_EQ(base.NbAnciensTirages, anciens ? 2 : 3);
        SupprimerTirage(base, 3);
        EXPECT_EQ(base.NbAnciensTirages, anciens ? 2 : 3);
        SupprimerTirage(base, 0);
        EXPECT_EQ(base.NbAnciensTirages, 2);
    }
}

TEST(BaseIntegree, IdentiqueALaTable) {
    const std::string texte = lire(NORVANE_DATA "/tirages.csv");
    const Resultat<Base> lue = LireTableCsv(texte);
    ASSERT_TRUE(lue) << lue.erreur();
    const Base base = BaseIntegree(true);
    EXPECT_EQ(base.NbTirages, 8072);
    EXPECT_EQ(base.NbAnciensTirages, 4858);
    EXPECT_TRUE(base.AnciensTirages);
    EXPECT_EQ(base.Tirages, lue->Tirages);
    EXPECT_EQ(base.Rapports, lue->Rapports);
    EXPECT_EQ(lue->NbAnciensTirages, 4858);
    EXPECT_TRUE(lue->AnciensTirages);
    const Base presente = BaseIntegree(false);
    EXPECT_EQ(presente.NbTirages, 3214);
    EXPECT_EQ(presente.NbAnciensTirages, 0);
    EXPECT_FALSE(presente.AnciensTirages);
    EXPECT_TRUE(std::ranges::equal(presente.Tirages, std::span(base.Tirages).subspan(4858)));
    EXPECT_TRUE(std::ranges::equal(presente.Rapports, std::span(base.Rapports).subspan(4858)));

    std::ostringstream flux;
    EcrireTableCsv(flux, base, 0, base.NbTirages - 1);
    EXPECT_TRUE(flux.str() == texte);

    for (int i = 0; i < base.NbTirages; ++i) {
        const Tirage& t = base.Tirages[static_cast<std::size_t>(i)];
        EXPECT_EQ(t.Chance == 0, i < 4858 || EstSecondTirage(t)) << t.DateTirage;
    }
}

TEST(TableCsv, DoublesQuelconquesReviennent) {
    std::mt19937 alea(5);
    Base base = petiteBase(20);
    base.Tirages[3].Joker = JokerAbsent;
    base.Tirages[4].DateForclusion = 0;
    for (RapportsTirage& rapports : base.Rapports)
        for (Rapport& r : rapports)
            r = {static_cast<double>(alea()), std::generate_canonical<double, 53>(alea) * 1e7};
    std::ostringstream flux;
    EcrireTableCsv(flux, base, 2, 19);
    const Resultat<Base> lue = LireTableCsv("\xEF\xBB\xBF" + flux.str());
    ASSERT_TRUE(lue) << lue.erreur();
    EXPECT_TRUE(std::ranges::equal(lue->Tirages, std::span(base.Tirages).subspan(2)));
    EXPECT_TRUE(std::ranges::equal(lue->Rapports, std::span(base.Rapports).subspan(2)));
}

TEST(TableCsv, TablesMalFormees) {
    const Base base = BaseIntegree(false);
    std::ostringstream flux;
    EcrireTableCsv(flux, base, 0, 1);
    const std::string saine = flux.str();
    // First record: 20081006;1;2008081;19;24;27;33;41;9;20081206;4674648;0;0;0;0;0;0;592;1617.6;...
    struct Cas {
        const char* quoi;
        const char* par;
        const char* message;  ///< what the refusal must say
    };
    for (const Cas& c : {
             Cas{"date;sous", "jour;sous", "ligne 1 : le titre attendu"},
             Cas{"20081006;", "20081032;", "ligne 2 : date vaut 20081032"},
             Cas{"20081006;", "19760518;", "ligne 2 : date vaut 19760518"},
             Cas{"20081006;", "20081008;", "ligne 3 : le tirage ne vient pas après"},
             Cas{"20081006;1", "20081006;3", "ligne 2 : sous_tirage vaut 3"},
             Cas{";19;24;", ";0;24;", "ligne 2 : n1 vaut 0, il faut un nombre de 1 à 49"},
             Cas{";33;41;", ";33;50;", "ligne 2 : n5 vaut 50, il faut un nombre de 1 à 49"},
             Cas{";24;27;", ";24;24;", "ligne 2 : n3 vaut 24 après 24"},
             Cas{";41;9;", ";41;0;", "ligne 2 : chance vaut 0, ce tirage doit en avoir"},
             Cas{";41;9;", ";41;11;", "ligne 2 : chance vaut 11"},
             Cas{"4674648", "46746480", "ligne 2 : joker vaut 46746480"},
             Cas{"4674648", "99999999999", "ligne 2 : joker contient « 99999999999 »"},
             Cas{";592;", ";592.5;", "ligne 2 : g4 vaut 592.5"},
             Cas{"1617.6", "-1617.6", "ligne 2 : r4 contient « -1617.6 », il faut un montant"},
             Cas{"1617.6", "1617,6", "ligne 2 : r4 contient « 1617,6 »"},
             Cas{"1617.6", "99999999999999", "ligne 2 : r4 vaut"},
             Cas{";1617.6", "", "ligne 2 : il faut 29 champs"},
             Cas{"20081008;", "\n20081008;", "ligne 3 : date contient «  »"},
         }) {
        std::string texte = saine;
        const std::size_t place = texte.find(c.quoi);
        ASSERT_NE(place, std::string::npos) << c.quoi;
        texte.replace(place, std::string(c.quoi).size(), c.par);
        const Resultat<Base> lue = LireTableCsv(texte);
        ASSERT_FALSE(lue) << c.par;
        EXPECT_NE(lue.erreur().find(c.message), std::string::npos) << lue.erreur();
    }
    // Cut anywhere but at the end of a line or inside the very last number, it is refused.
    for (std::size_t taille = 0; taille <= saine.rfind(';'); ++taille) {
        const bool ligne = saine[taille] == '\n' || (taille > 0 && saine[taille - 1] == '\n');
        EXPECT_EQ(static_cast<bool>(LireTableCsv(saine.substr(0, taille))), ligne) << taille;
    }
}

TEST(TableCsv, FinsDeLigneEtLimite) {
    std::ostringstream flux;
    EcrireTableCsv(flux, BaseIntegree(false), 0, 1);
    std::string crlf;
    for (const char c : flux.str()) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    EXPECT_EQ(LireTableCsv(crlf)->NbTirages, 2);
    crlf.resize(crlf.size() - 2);
    EXPECT_EQ(LireTableCsv(crlf)->NbTirages, 2);

    // One record too many for 16-bit indices.
    Base grande;
    grande.Rapports.resize(NbTiragesMax + 1);
    for (int i = 0; i <= NbTiragesMax; ++i) {
        const int jour = i / 2;
        grande.Tirages.push_back(tirage(
            (2020 + jour / 336) * 10000 + (jour / 28 % 12 + 1) * 100 + jour % 28 + 1, i % 2 + 1));
    }
    std::ostringstream flots[2];
    EcrireTableCsv(flots[0], grande, 0, NbTiragesMax - 1);
    EcrireTableCsv(flots[1], grande, 0, NbTiragesMax);
    EXPECT_EQ(LireTableCsv(flots[0].str())->NbTirages, NbTiragesMax);
    EXPECT_NE(LireTableCsv(flots[1].str()).erreur().find("ligne 65536 : la base est limitée"),
              std::string::npos);
}

}  // namespace
}  // namespace norvane
