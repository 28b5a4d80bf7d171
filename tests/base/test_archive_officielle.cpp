// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The official history in its layouts over the years, and its way into a base.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <sstream>

#include "base/Archive.h"
#include "base/ArchiveOfficielle.h"
#include "base/BaseIntegree.h"
#include "base/TableCsv.h"

namespace norvane {

namespace {

constexpr const char* Six =
    "annee_numero_de_tirage;jour_de_tirage;date_de_tirage;date_de_forclusion;boule_1;boule_2;"
    "boule_3;boule_4;boule_5;numero_chance;combinaison_gagnante_en_ordre_croissant;"
    "nombre_de_gagnant_au_rang1;rapport_du_rang1;nombre_de_gagnant_au_rang2;rapport_du_rang2;"
    "nombre_de_gagnant_au_rang3;rapport_du_rang3;nombre_de_gagnant_au_rang4;rapport_du_rang4;"
    "nombre_de_gagnant_au_rang5;rapport_du_rang5;nombre_de_gagnant_au_rang6;rapport_du_rang6;"
    "numero_jokerplus;devise;";

/// How an archive of some year writes things.
struct Ecriture {
    int rangs = 9;
    bool second = true;
    bool promotion = true;
    bool dateIso = false;
    bool centimes = false;     ///< 6000000,00
    bool anneeCourte = false;  ///< 26092
    bool jokerEspace = false;  ///< "7 389 164"
    bool crlf = false;
    bool ancienDabord = false;
};

std::string Titres(const Ecriture& e) {
    std::string t =
        "annee_numero_de_tirage;jour_de_tirage;date_de_tirage;date_de_forclusion;boule_1;boule_2;"
        "boule_3;boule_4;boule_5;numero_chance;combinaison_gagnante_en_ordre_croissant;";
    for (int r = 1; r <= e.rangs; ++r)
        t += fmt::format("nombre_de_gagnant_au_rang{};rapport_du_rang{};", r, r);
    if (e.rangs == 9) t += "nombre_de_codes_gagnants;rapport_codes_gagnants;codes_gagnants;";
    if (e.second) {
        for (int b = 1; b <= 5; ++b) t += fmt::format("boule_{}_second_tirage;", b);
        if (e.promotion) t += "promotion_second_tirage;";
        t += "combinaison_gagnant_second_tirage_en_ordre_croissant;";
        for (int r = 1; r <= 4; ++r)
            t += fmt::format(
                "nombre_de_gagnant_au_rang_{}_second_tirage;"
                "rapport_du_rang{}_second_tirage;",
                r, r);
    }
    return t + "numero_jokerplus;devise;";
}

class Redacteur {
 public:
    explicit Redacteur(const Ecriture& e) : e_(e) {}

    /// The line of a date; `second` null where it had one draw.
    std::string ligne(const Tirage& t, const RapportsTirage& r, const Tirage* second,
                      const RapportsTirage* rapports2nd) {
        const int annee = t.AnneeNumero / (t.AnneeNumero > 9'999'999 ? 10'000 : 1'000);
        std::string l = e_.anneeCourte ? fmt::format("{}{:03};", annee % 100, t.AnneeNumero % 1000)
                                       : fmt::format("{};", t.AnneeNumero);
        l +=
            fmt::format("SAMEDI  ;{};{};{}", date(t.DateTirage), date(t.DateForclusion), boules(t));
        l += fmt::format("{};1-2-3-4-5+6;", t.Chance);
        constexpr std::array<std::size_t, 6> place = {0, 1, 3, 5, 7, 8};
        for (std::size_t i = 0; i < static_cast<std::size_t>(e_.rangs); ++i) {
            if (e_.rangs == 9 && t.DateTirage < DateNouveauxRangs)
                l += i < 6 ? rapport(r[place[i]]) : ";;";
            else
                l += rapport(r[e_.rangs == 9 ? i : place[i]]);
        }
        if (e_.rangs == 9) l += "10;20000,00;A 1234 5678;";
        if (e_.second) {
            l += second != nullptr ? boules(*second) : ";;;;;";
            l += e_.promotion ? "oui;x;" : "x;";
            for (std::size_t i = 0; i < 4; ++i)
                l += second != nullptr ? rapport((*rapports2nd)[i]) : ";;";
        }
        return l + joker(t.Joker) + ";eur;";
    }

 private:
    std::string date(int d) const {
        if (d == 0) return {};
        return e_.dateIso ? std::to_string(d)
                          : fmt::format("{:02}/{:02}/{}", d % 100, d / 100 % 100, d / 10000);
    }
    std::string boules(const Tirage& t) {
        std::vector<int> n(t.Numeros, t.Numeros + NbBoules);
        std::shuffle(n.begin(), n.end(), alea_);
        std::string l;
        for (const int b : n) l += fmt::format("{};", b);
        return l;
    }
    std::string rapport(const Rapport& r) const {
        std::string gain = e_.centimes ? fmt::format("{:.2f}", r.Gain) : fmt::format("{}", r.Gain);
        std::ranges::replace(gain, '.', ',');
        return fmt::format("{};{};", static_cast<long>(r.Gagnants), gain);
    }
    std::string joker(int j) const {
        if (j == JokerAbsent) return "Jokerplus indisponible";
        const std::string s = fmt::format("{:07}", j);
        return e_.jokerEspace ? s.substr(0, 1) + ' ' + s.substr(1, 3) + ' ' + s.substr(4) : s;
    }

    Ecriture e_;
    std::mt19937 alea_{4};
};

/// The records of the years de..a as an archive of that writing.
std::string Rediger(const Base& base, int de, int a, const Ecriture& e) {
    Redacteur redacteur(e);
    std::vector<std::string> lignes;
    for (std::size_t i = 0; i < base.Tirages.size(); ++i) {
        const Tirage& t = base.Tirages[i];
        if (t.SousTirage == 2 || t.DateTirage / 10000 < de || t.DateTirage / 10000 > a) continue;
        const bool second = i + 1 < base.Tirages.size() && base.Tirages[i + 1].SousTirage == 2;
        lignes.push_back(redacteur.ligne(t, base.Rapports[i],
                                         second ? &base.Tirages[i + 1] : nullptr,
                                         second ? &base.Rapports[i + 1] : nullptr));
    }
    if (!e.ancienDabord) std::ranges::reverse(lignes);
    const char* fin = e.crlf ? "\r\n" : "\n";
    std::string texte = Titres(e) + fin;
    for (const std::string& l : lignes) texte += l + fin;
    return texte;
}

std::string Exporter(const Base& base) {
    std::ostringstream flux;
    EcrireTableCsv(flux, base, 0, base.NbTirages - 1);
    return flux.str();
}

Fusion Importer(Base& base, const std::string& octets) {
    const auto archive = LireArchiveOfficielle(octets, "a.zip");
    EXPECT_TRUE(archive) << archive.erreur();
    EXPECT_EQ(archive->refusees, std::vector<LigneRefusee>{});
    const auto fusion = FusionnerArchive(base, *archive);
    EXPECT_TRUE(fusion);
    return *fusion;
}

std::string Zip(const std::string& nom, const std::string& contenu) {
    const MembreArchive membre{nom, contenu};
    return *FaireArchive(std::span(&membre, 1));
}

const std::string Bonne =
    "2010017;MERCREDI;10/02/2010;12/04/2010;49;7;30;1;12;4;x;1;2000000;0;0;3;1000,5;4;100;5;10;6;5;"
    "0 000 042;eur;\n";

}  // namespace

TEST(ArchiveOfficielle, TouteLHistoireDansUneBaseVide) {
    const Base integree = BaseIntegree(false);
    const std::string attendu = Exporter(integree);
    // Each era in a writing of its own, the parts one after the other.
    Base base;
    Importer(
        base,
        Rediger(
            integree, 2008, 2011,
            {.rangs = 6, .second = false, .dateIso = true, .centimes = true, .jokerEspace = true}));
    Importer(base, Rediger(integree, 2012, 2016, {.rangs = 6, .second = false, .crlf = true}));
    Importer(base,
             Zip("loto.csv", Rediger(integree, 2019, 2024, {.jokerEspace = true, .crlf = true})));
    Importer(base,
             Rediger(integree, 2017, 2018, {.rangs = 9, .second = false, .ancienDabord = true}));
    EXPECT_EQ(base.NbTirages, integree.NbTirages);
    EXPECT_EQ(Exporter(base), attendu);

    for (const Ecriture& e :
         {Ecriture{}, Ecriture{.promotion = false, .dateIso = true, .centimes = true}}) {
        Base vide;
        const std::string tout = Rediger(integree, 2008, 2024, e);
        EXPECT_EQ(Importer(vide, tout).ajoutes, integree.NbTirages);
        EXPECT_EQ(Exporter(vide), attendu);
        const Fusion encore = Importer(vide, tout);
        EXPECT_EQ(encore.inchanges, integree.NbTirages);
        EXPECT_FALSE(encore.change());
        EXPECT_EQ(Exporter(vide), attendu);
    }
}

TEST(ArchiveOfficielle, NumeroDAnneeADeuxChiffres) {
    const Base integree = BaseIntegree(false);
    Base base;
    Importer(base, Rediger(integree, 2023, 2023, {.anneeCourte = true}));
    EXPECT_EQ(base.Tirages[0].AnneeNumero, 2023001);
    EXPECT_EQ(base.Tirages.back().AnneeNumero, 2023156);
    EXPECT_EQ(base.Tirages[1].SousTirage, 2);
}

TEST(ArchiveOfficielle, SeulCeQuiChange) {
    Base base = BaseIntegree(true);
    const Base avant = base;
    // A draw that is new, one whose amount was put right, one whose Joker+ is no longer told.
    const Tirage& t = base.Tirages[static_cast<std::size_t>(base.NbTirages) - 5];
    Base source = base;
    source.Rapports[static_cast<std::size_t>(base.NbTirages) - 5][0].Gain += 1;
    source.Rapports[static_cast<std::size_t>(base.NbTirages) - 5][0].Gagnants += 1;
    source.Tirages[static_cast<std::size_t>(base.NbTirages) - 7].Joker = JokerAbsent;
    Tirage nouveau = source.Tirages.back();
    nouveau.SousTirage = 1;
    nouveau.Chance = 3;
    nouveau.DateTirage = 20240727;
    nouveau.Joker = 42;
    source.Tirages.push_back(nouveau);
    source.Rapports.push_back({});
    const Fusion fusion = Importer(base, Rediger(source, 2024, 2024, {}));
    EXPECT_EQ(fusion.ajoutes, 1);
    EXPECT_EQ(fusion.modifies, 1) << t.DateTirage;
    ASSERT_EQ(base.NbTirages, avant.NbTirages + 1);
    EXPECT_EQ(base.Tirages.back(), nouveau);
    EXPECT_EQ(base.NbAnciensTirages, avant.NbAnciensTirages);
    for (std::size_t i = 0; i < avant.Tirages.size(); ++i) {
        ASSERT_EQ(base.Tirages[i], avant.Tirages[i]) << i;
        ASSERT_EQ(base.Rapports[i], source.Rapports[i]) << i;
    }
}

TEST(ArchiveOfficielle, UneMauvaiseLigneNArretePasLeReste) {
    const struct {
        std::string_view de, par, raison;
    } fautes[] = {
        {"10/02/2010", "32/02/2010", "« 32/02/2010 » n'est pas une date de tirage"},
        {"10/02/2010", "", "n'est pas une date"},
        {"49;7;", "50;7;", "49"},
        {"49;7;", "7;7;", "croissants"},
        {"49;7;", "x;7;", "« x » n'est pas un numéro de 1 à 49"},
        {";4;x;", ";11;x;", "chance"},
        {"1000,5", "mille", "« mille » n'est pas un montant"},
        {"10/02/2010", "20081004", "avant le jeu actuel"},
    };
    for (const auto& f : fautes) {
        std::string mauvaise = Bonne;
        mauvaise.replace(mauvaise.find(f.de), f.de.size(), f.par);
        const auto lue = LireArchiveOfficielle(
            std::string("\xEF\xBB\xBF") + Six + "\n" + mauvaise + "\n" + Bonne, "a.csv");
        ASSERT_TRUE(lue) << lue.erreur();
        ASSERT_EQ(lue->refusees.size(), 1U) << f.par;
        EXPECT_EQ(lue->refusees[0].numero, 2);
        EXPECT_NE(lue->refusees[0].raison.find(f.raison), std::string::npos)
            << lue->refusees[0].raison;
        ASSERT_EQ(lue->tirages.size(), 1U);
        const TirageArchive& t = lue->tirages[0];
        EXPECT_EQ(t.tirage, (Tirage{{1, 7, 12, 30, 49}, 4, 20100412, 2010017, 20100210, 1, 42}));
        const RapportsTirage attendu = {
            {{1, 2000000}, {0, 0}, {0, 0}, {3, 1000.5}, {0, 0}, {4, 100}, {0, 0}, {5, 10}, {6, 5}}};
        EXPECT_EQ(t.rapports, attendu);
    }
}

TEST(ArchiveOfficielle, Refusee) {
    const std::string entete = Six;
    std::string sansChance = entete;
    sansChance.replace(sansChance.find("numero_chance"), 13, "numero");
    for (const std::string& octets :
         {std::string(), std::string("<html>404</html>"), sansChance + "\n" + Bonne, entete,
          entete + "\nrien\n", Zip("lisez-moi.txt", "bonjour"), std::string("PK\3\4 coupé"),
          Zip("zero.csv", std::string(std::size_t{80} << 20, '\0'))}) {
        const auto lue = LireArchiveOfficielle(octets, "a.zip");
        ASSERT_FALSE(lue);
        EXPECT_NE(lue.erreur().find("a.zip"), std::string::npos) << lue.erreur();
    }
    std::stop_source arret;
    arret.request_stop();
    const Base integree = BaseIntegree(false);
    EXPECT_FALSE(
        LireArchiveOfficielle(Rediger(integree, 2008, 2024, {}), "a.csv", {arret.get_token()}));
}

}  // namespace norvane
