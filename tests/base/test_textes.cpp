// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <sstream>

#include "base/Dates.h"
#include "base/Textes.h"

namespace norvane {
namespace {

using namespace std::chrono;

TEST(Dates, TousLesJoursDe1976A2030) {
    int connus = 0;
    for (sys_days jour = year(1976) / 1 / 1; jour < sys_days(year(2031) / 1 / 1); jour += days(1)) {
        const int date = DateEnEntier(jour);
        ++connus;
        ASSERT_TRUE(DateValide(date)) << date;
        ASSERT_EQ(sys_days(EntierEnDate(date)), jour) << date;
        // Days since the epoch, a jeudi (3).
        ASSERT_EQ(JourSemaine(date), (jour.time_since_epoch().count() + 3) % 7) << date;
    }
    int valides = 0;
    for (int date = 19760000; date < 20310000; ++date) valides += DateValide(date);
    EXPECT_EQ(valides, connus);
    for (const int date : {0, -20220101, 20220230, 20230229, 20221301, 20220100, 100000101})
        EXPECT_FALSE(DateValide(date)) << date;
}

TEST(Dates, TextesFrancais) {
    EXPECT_EQ(DateLongue(20240229), "jeudi 29 février 2024");
    EXPECT_EQ(DateLongue(20200801), "samedi 1 août 2020");
    EXPECT_EQ(DateLongue(20231231), "dimanche 31 décembre 2023");
    EXPECT_EQ(DateCourte(20221003), "03/10/2022");
    EXPECT_EQ(DateLongue(20221345), "45/13/2022");
}

TEST(Textes, Montants) {
    struct Cas {
        double montant;
        const char* texte;
    };
    const Cas cas[] = {
        {-0.0, "0,00"},
        {-0.004, "0,00"},
        {0.005, "0,01"},
        {-2.675, "-2,68"},
        {1.005, "1,01"},
        {2.665, "2,67"},
        {2.6749999, "2,67"},
        {1e-300, "0,00"},
        {999.995, "1\u00A0000,00"},
        {-1234567.8, "-1\u00A0234\u00A0567,80"},
        {1e22, "10\u00A0000\u00A0000\u00A0000\u00A0000\u00A0000\u00A0000\u00A0000,00"}};
    for (const Cas& c : cas) EXPECT_EQ(FormaterMontant(c.montant), c.texte) << c.montant;
    // Cents come out as they went in, whatever the amount.
    std::mt19937_64 alea(11);
    for (int i = 0; i < 5000; ++i) {
        const auto centimes = static_cast<std::int64_t>(alea() % 100'000'000'000'000ULL >> i % 40);
        const double montant = static_cast<double>(centimes) / 100.0;
        const std::string texte = FormaterMontant(montant);
        std::string chiffres;
        std::ranges::copy_if(texte, std::back_inserter(chiffres),
                             [](char ch) { return ch >= '0' && ch <= '9'; });
        EXPECT_EQ(std::stoll(chiffres), centimes) << texte;
        EXPECT_EQ(LireMontant(texte + " €"), montant) << texte;
    }
}

TEST(Textes, Masques) {
    EXPECT_EQ(FormaterCompte(0), "");
    EXPECT_EQ(FormaterCompte(230156), "230\u00A0156");
    EXPECT_EQ(FormaterCompte(-1906884), "-1\u00A0906\u00A0884");
    EXPECT_EQ(FormaterMasque(112, 2), "112");
    EXPECT_EQ(FormaterMasque(-7, 3), "-007");
    EXPECT_EQ(FormaterMasque(0, 0), "0");
    EXPECT_EQ(FormaterDecimal(7.5, 2), "07,50");
    EXPECT_EQ(FormaterDecimal(0.125, 1), "0,13");
    EXPECT_EQ(FormaterDecimal(9.995, 2), "10,00");
    EXPECT_EQ(Rogner(" \t a b\r\n"), "a b");
    EXPECT_EQ(Rogner(" \n"), "");
}

TEST(Textes, LectureDeMontants) {
    struct Cas {
        const char* texte;
        double montant;
    };
    for (const Cas& c : {Cas{"1 234,56", 1234.56}, Cas{"1\u00A0234\u202F567.5 €", 1234567.5},
                         Cas{" 12 ", 12}, Cas{"-3,2 Euros", -3.2}, Cas{"+3", 3}, Cas{",5", 0.5},
                         Cas{"5,", 5}, Cas{"2 F", 2}, Cas{"0000012", 12}, Cas{"6000000,00", 6e6}}) {
        EXPECT_EQ(LireMontant(c.texte), c.montant) << c.texte;
    }
    std::istringstream refus(
        "| |abc|12abc|12 34|1 2345|1234 567|1.234,56|1,2,3|1e5|nan|inf|-|,|€|--1|1 -|0x10|12 €€|"
        "1\xA0"
        "234");
    for (std::string texte; std::getline(refus, texte, '|');)
        EXPECT_EQ(LireMontant(texte), std::nullopt) << texte;
    EXPECT_EQ(LireMontant(std::string(400, '9')), std::nullopt);
}

}  // namespace
}  // namespace norvane
