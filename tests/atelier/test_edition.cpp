// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What changes the base by hand: the entry of draws, the filter, and a program that dies of it.

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "atelier/EditionBase.h"
#include "base/BaseIntegree.h"
#include "base/Fichiers.h"
#include "base/Stockage.h"
#include "comb/FichiersFiltre.h"
#include "Dossier.h"
#include "Tuer.h"

namespace norvane {
namespace {

const std::string NeufLignesNeutres =
    "0 0 1\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n0 0 1\n";

/// The first `n` draws of the present game, of which the last ones are of 2009, on the disk.
class EditionDeLaBase : public testing::Test {
 protected:
    EditionDeLaBase() {
        Base base = BaseIntegree(false);
        base.NbTirages = 60;
        if (!SauverBase(base, dossier / NomStockage)) ADD_FAILURE();
    }
    Atelier atelier() const { return Atelier(dossier.chemin()); }

    const Dossier dossier;
};

void Presser(EditionBase& edition, std::initializer_list<int> numeros, int chance) {
    edition.decocherTout();
    for (const int n : numeros) EXPECT_FALSE(edition.basculer(GenreStats::Numeros, n));
    if (chance == 0) return;
    EXPECT_FALSE(edition.basculer(GenreStats::Chances, chance));
}

Tirage Dernier(const Atelier& a) {
    return a.base.Tirages[static_cast<std::size_t>(a.base.NbTirages - 1)];
}

TEST_F(EditionDeLaBase, RefusDansLOrdre) {
    Atelier a = atelier();
    a.FiltreActif = true;
    EditionBase edition(a);
    EXPECT_TRUE(edition.entrer());
    EXPECT_EQ(a.edition, Edition::Aucune);
    a.FiltreActif = false;
    EXPECT_FALSE(edition.entrer());
    EXPECT_EQ(a.edition, Edition::MiseAJour);
    ASSERT_FALSE(edition.ouvrir({-1, 59, 20240803, 1}));
    EXPECT_EQ(a.edition, Edition::AjoutLibre);
    const auto refus = [&] {
        const IssueValidation issue = edition.valider();
        if (issue.genre == IssueValidation::Genre::JokerAttendu) return std::string("joker");
        return issue.aDire ? issue.aDire->phrase : std::string("fait");
    };
    Presser(edition, {1, 2, 3, 49}, 0);
    EXPECT_EQ(refus(), "5 numéros par tirage...");
    EXPECT_FALSE(edition.basculer(GenreStats::Numeros, 20));
    EXPECT_EQ(edition.basculer(GenreStats::Numeros, 21)->phrase,
              "Pas plus de 5 numéros par tirage...");
    EXPECT_FALSE(edition.basculer(GenreStats::Numeros, 49));  // up again
    EXPECT_FALSE(edition.basculer(GenreStats::Numeros, 49));
    EXPECT_EQ(refus(), "1 chance par tirage...");
    EXPECT_FALSE(edition.basculer(GenreStats::Chances, 10));
    EXPECT_EQ(edition.basculer(GenreStats::Chances, 1)->phrase,
              "Pas plus d'une chance par tirage...");
    EXPECT_EQ(refus(), "Tous les champs du tableau des rapports ne sont pas remplis.");
    edition.ViderRapports();
    EXPECT_FALSE(edition.ChampsVidesRapports());
    for (const auto colonne : {ColonneRapport::Gagnants, ColonneRapport::Gain}) {
        EXPECT_TRUE(edition.poserRapport(8, colonne, " "));
        EXPECT_TRUE(edition.ChampsVidesRapports());
        EXPECT_TRUE(edition.poserRapport(8, colonne, "12"));
    }
    EXPECT_EQ(refus(), "joker");
    edition.poserJoker("123456");
    EXPECT_EQ(refus(), "joker");
    EXPECT_EQ(a.base.NbTirages, 60);
    edition.poserJoker("0123456");
    EXPECT_EQ(refus(), "fait");
    EXPECT_FALSE(edition.ModificationEnCours());
    EXPECT_EQ(Dernier(a), (Tirage{{1, 2, 3, 20, 49}, 10, 45568, 20241, 20240803, 1, 123456}));
    EXPECT_EQ(a.base.Rapports[60][8], (Rapport{12, 12}));
    EXPECT_EQ(a.base.Rapports[60][0], (Rapport{0, 0}));
}

TEST_F(EditionDeLaBase, CellulesDesRapports) {
    Atelier a = atelier();
    EditionBase edition(a);
    ASSERT_FALSE(edition.ouvrir({3, -1, 0, 1}));
    const RapportsSaisis avant = edition.saisie().rapports;
    EXPECT_EQ(avant[8].Gagnants, a.base.Rapports[3][8].Gagnants);
    using enum ColonneRapport;
    for (const char* texte : {"-1", "1,5", "abc", "2000000000000"})
        EXPECT_FALSE(edition.poserRapport(2, Gagnants, texte)) << texte;
    for (const char* texte : {"-0,01", "12 euro s", "1e99"})
        EXPECT_FALSE(edition.poserRapport(2, Gain, texte)) << texte;
    EXPECT_EQ(edition.saisie().rapports, avant);
    EXPECT_TRUE(edition.poserRapport(2, Gagnants, "1 234"));
    EXPECT_TRUE(edition.poserRapport(2, Gain, "5\u00A0678,905 €"));
    EXPECT_EQ(edition.saisie().rapports[2], (RapportSaisi{1234.0, 5678.91}));
    edition.abandonner();
    EXPECT_EQ(a.edition, Edition::MiseAJour);
    EXPECT_EQ(a.base.Rapports[3][2].Gain, avant[2].Gain);
}

// A record: where it is put, whether it needs a Chance, which number and Joker+ are proposed.
TEST(EditionParLesDates, PropositionsEtChance) {
    struct Cas {
        PlaceTirage place;
        int numero;
        bool chance;
        const char* joker;  ///< proposed; null: none must be known
    };
    Base base = BaseIntegree(false);
    const int n = base.NbTirages;  // ends with both draws of 24 July 2024, the 89th of its year
    const auto numero = [&](int i) {
        return LireNumeroAnnee(base.Tirages[static_cast<std::size_t>(i)].AnneeNumero).numero;
    };
    const int mai = TirageParDate(base.Tirages, 20230529, n).indice;  // both draws follow
    const std::string joker = std::to_string(base.Tirages[static_cast<std::size_t>(mai)].Joker);
    const int noel = TirageParDate(base.Tirages, 20221231, n).indice;
    const Cas cas[] = {
        {{-1, n - 1, 20240727, 1}, numero(n - 1) + 1, true, ""},
        {{-1, n - 1, 20240727, 2}, numero(n - 1), false, ""},
        {{-1, n - 1, 20250101, 1}, 1, true, ""},
        {{-1, mai, 20230529, 2}, numero(mai), false, joker.c_str()},
        {{-1, n - 2, 20240724, 2}, numero(n - 2), false, nullptr},
        {{-1, mai + 1, 20230530, 1}, numero(mai + 1) + 1, true, ""},
        {{-1, noel + 1, 20230101, 1}, numero(noel + 2), true, ""},
        {{-1, -1, 20080101, 1}, numero(0), true, nullptr},
    };
    for (const Cas& c : cas) {
        const Dossier dossier;
        Atelier a(dossier.chemin());
        EditionBase edition(a);
        ASSERT_FALSE(edition.ouvrir(c.place));
        const SaisieTirage& s = edition.saisie();
        SCOPED_TRACE(c.place.date);
        EXPECT_TRUE(s.ajout && s.cases.vide() && s.place == c.place.precedent + 1);
        EXPECT_EQ(s.annee, c.place.date / 10000);
        EXPECT_EQ(s.numero, c.numero);
        EXPECT_EQ(s.sansJoker, c.joker == nullptr);
        EXPECT_EQ(s.joker, c.joker == nullptr ? "" : c.joker);
        Presser(edition, {5, 6, 7, 8, 9}, 0);
        edition.ViderRapports();
        edition.poserJoker("7654321");
        const IssueValidation issue = edition.valider();
        EXPECT_EQ(issue.genre == IssueValidation::Genre::Refuse, c.chance);
        if (c.chance) continue;
        EXPECT_EQ(issue.indice, s.place);
        EXPECT_EQ(a.base.NbTirages, n + 1);
    }
}

TEST(EditionParLesDates, SecondTirageSansChance) {
    const Dossier dossier;
    Atelier a(dossier.chemin());
    EditionBase edition(a);
    const int i = a.base.NbTirages - 1;
    const auto place = static_cast<std::size_t>(i);
    ASSERT_EQ(a.base.Tirages[place].SousTirage, 2);
    ASSERT_FALSE(edition.ouvrir({i, i - 1, 0, 2}));
    Presser(edition, {49, 5, 8, 9, 1}, 4);  // whatever is pressed
    for (int rang = 4; rang < 9; ++rang)
        ASSERT_TRUE(edition.poserRapport(rang, ColonneRapport::Gain, "7"));
    EXPECT_EQ(edition.valider().genre, IssueValidation::Genre::Fait);
    const auto [numeros, annee] =
        std::pair{a.base.Tirages[place], a.base.Tirages[place].AnneeNumero};
    EXPECT_EQ(numeros.Chance, 0);
    EXPECT_TRUE(std::ranges::equal(numeros.Numeros, std::array{1, 5, 8, 9, 49}));
    EXPECT_EQ(std::to_string(annee).substr(0, 4), "2024");
    for (std::size_t rang = 4; rang < 9; ++rang) EXPECT_EQ(a.base.Rapports[place][rang], Rapport{});
    EXPECT_EQ(a.edition, Edition::AjoutLibre);
    // It is on the disk, and the bounds are to be computed again.
    EXPECT_EQ(Atelier(dossier.chemin()).base.Tirages, a.base.Tirages);
    EXPECT_EQ(lire(dossier / NomCombCalc), NeufLignesNeutres);
    edition.ouvrir({0, -1, 0, 1});
    edition.abandonner();
    EXPECT_EQ(a.edition, Edition::AjoutLibre);  // what was changed stays changed
}

TEST_F(EditionDeLaBase, Suppression) {
    Atelier a = atelier();
    EditionBase edition(a);
    const Tirage troisieme = a.base.Tirages[2];
    EXPECT_TRUE(edition.supprimer(1).fait);
    EXPECT_EQ(a.base.Tirages[1], troisieme);
    EXPECT_EQ(a.base.NbTirages, 59);
    EXPECT_EQ(a.occurrences.IntervalleSup, 59);
    EXPECT_EQ(atelier().base.NbTirages, 59);
    a.base.NbTirages = 2;
    const IssueBase issue = edition.supprimer(0);
    EXPECT_FALSE(issue.fait);
    EXPECT_EQ(issue.aDire->phrase, "La base doit contenir au moins 2 tirages...");
    EXPECT_EQ(a.base.NbTirages, 2);
}

// ---- The filter --------------------------------------------------------------------------------

using Fichiers = std::map<std::string, std::string>;

const char* const NomsMoteur[] = {"COMBCALC.INI", "comb2.dat", "comb3.dat",    "comb4.dat",
                                  "comb5.dat",    "comb6.dat", "Combcalc.~in", "comb2.~da",
                                  "comb3.~da",    "comb4.~da", "comb5.~da",    NomNoteFiltre};

/// The files of the engine, and those of their exchange.
Fichiers FichiersMoteur(const Dossier& dossier) {
    Fichiers presents;
    for (const char* nom : NomsMoteur)
        if (NomPresent(dossier / nom)) presents[nom] = lire(dossier / nom);
    return presents;
}

const Fichiers Entiers = {{"COMBCALC.INI", "60 1 9\n"},
                          {"comb2.dat", "2"},
                          {"comb3.dat", "3"},
                          {"comb5.dat", "5"},
                          {"comb6.dat", "6"}};

CriteresFiltre DixiemeMois() {
    CriteresFiltre criteres;
    criteres.cocher(ListeFiltre::Mois, 9, true);
    return criteres;
}

TEST_F(EditionDeLaBase, FiltreApplique) {
    for (const auto& [nom, contenu] : Entiers) poser(dossier.chemin() / nom, contenu);
    poser(dossier / "comb4.~da", "égaré");
    Atelier a = atelier();
    EXPECT_TRUE(std::filesystem::remove(dossier / "comb4.dat"));
    for (const auto& [nom, contenu] : Entiers) poser(dossier.chemin() / nom, contenu);
    const Base entiere = a.base;
    FiltreBase filtre(a);
    const auto refus = [&](const CriteresFiltre& criteres) {
        const IssueBase issue = filtre.appliquer(criteres);
        EXPECT_FALSE(issue.fait || a.FiltreActif);
        EXPECT_EQ(FichiersMoteur(dossier), Entiers);
        EXPECT_EQ(a.base.Tirages, entiere.Tirages);
        return issue.aDire->phrase;
    };
    CriteresFiltre criteres;
    criteres.cocher(ListeFiltre::Tirages, TousTirages, true);
    EXPECT_TRUE(refus(criteres).starts_with("Tous les tirages ont été conservés"));
    criteres.cocher(ListeFiltre::Mois, 6, true);
    EXPECT_TRUE(refus(criteres).starts_with("Le filtre choisi a laissé moins de 2"));

    poser(dossier / "comb4.~da", "égaré");
    ASSERT_TRUE(filtre.appliquer(DixiemeMois()).fait);
    EXPECT_TRUE(a.FiltreActif);
    EXPECT_EQ(a.occurrences.IntervalleSup, a.base.NbTirages);
    EXPECT_LT(a.base.NbTirages, 60);
    EXPECT_EQ(a.combinaisons.NbTiragesComb[2], 0);
    const Fichiers ecartes = {{"Combcalc.~in", "60 1 9\n"},
                              {"comb2.~da", "2"},
                              {"comb3.~da", "3"},
                              {"comb5.~da", "5"},
                              {"comb6.dat", "6"},
                              {NomNoteFiltre, "COMBCALC.INI\ncomb2.dat\ncomb3.dat\ncomb5.dat\n"}};
    EXPECT_EQ(FichiersMoteur(dossier), ecartes);
    EXPECT_TRUE(a.sauverBase());
    for (const char* nom : {"COMBCALC.INI", "comb2.dat", "comb4.dat"}) poser(dossier / nom, "f");
    ASSERT_TRUE(filtre.annuler().fait);
    EXPECT_FALSE(a.FiltreActif);
    EXPECT_EQ(FichiersMoteur(dossier), Entiers);
    EXPECT_EQ(a.base.Tirages, entiere.Tirages);
    EXPECT_EQ(a.occurrences.IntervalleSup, 60);
    EXPECT_EQ(atelier().base.NbTirages, 60);
}

// ---- A program that dies -----------------------------------------------------------------------

/// How many kills each test stands.
constexpr int Morts = 200;

TEST_F(EditionDeLaBase, TueEnFiltrant) {
    for (const auto& [nom, contenu] : Entiers) poser(dossier.chemin() / nom, contenu);
    Atelier a = atelier();
    FiltreBase filtre(a);
    std::mt19937 alea(5);
    int filtres = 0;
    for (int essai = 0; essai < Morts; ++essai) {
        tuer(alea, 20000, [&](int) {
            if (!filtre.appliquer(DixiemeMois()).fait) return false;
            for (const char* nom : {"COMBCALC.INI", "comb2.dat", "comb4.dat", "comb5.dat"})
                if (!EcrireFichier(dossier / nom, "filtré")) return false;
            return filtre.annuler().fait;
        });
        filtres += FichiersEcartes(dossier.chemin());
        // The next one dies too, while it puts the files back.
        if (essai % 2 == 0) tuer(alea, 3000, [&](int) { return atelier().base.NbTirages == 60; });
        const Atelier suivant = atelier();
        ASSERT_EQ(FichiersMoteur(dossier), Entiers) << essai;
        EXPECT_TRUE(suivant.avertissements.empty());
    }
    EXPECT_GT(filtres, Morts / 10);
}

/// What the engine would keep of the first `n` draws: another text for each of their states.
std::string BornesDe(const Base& base, int n) {
    const int dernier = base.Tirages[static_cast<std::size_t>(n - 1)].Numeros[0];
    return std::to_string(n) + ' ' + std::to_string(base.Tirages[9].Numeros[0]) + ' ' +
           std::to_string(dernier) + '\n';
}

/// They are those of the base, or of draws that it goes on from.
bool BornesValables(const std::string& bornes, const Base& base) {
    bool valables = bornes == NeufLignesNeutres;
    for (int n = 10; n <= base.NbTirages; ++n) valables = valables || bornes == BornesDe(base, n);
    return valables;
}

TEST_F(EditionDeLaBase, TueEnModifiant) {
    std::mt19937 alea(11);
    int enPleineSauvegarde = 0;
    std::set<std::string> vus;
    for (int essai = 0; essai < Morts; ++essai) {
        Atelier a = atelier();
        ASSERT_TRUE(EcrireFichier(dossier / NomCombCalc, BornesDe(a.base, a.base.NbTirages)));
        EditionBase edition(a);
        tuer(alea, 30000, [&](int) {
            const int n = a.base.NbTirages;
            const auto geste = alea() % 3;
            if (geste == 0 && n > 50) {
                if (!edition.supprimer(n - 1).fait) return false;
            } else {
                const int date = Dernier(a).DateTirage;
                const int suivante = date % 100 < 28 ? date + 1 : date + 100 - 27;
                if (geste == 1 && n < 70 && suivante % 10000 < 1200)
                    edition.ouvrir({-1, n - 1, suivante, 1});
                else
                    edition.ouvrir({9, 8, 0, 1});
                const int premier = 1 + static_cast<int>(alea() % 40);
                Presser(edition, {premier, 46, 47, 48, 49}, 3);
                edition.ViderRapports();
                edition.poserJoker("0000001");
                if (edition.valider().genre != IssueValidation::Genre::Fait) return false;
            }
            return static_cast<bool>(
                EcrireFichier(dossier / NomCombCalc, BornesDe(a.base, a.base.NbTirages)));
        });
        enPleineSauvegarde += NomPresent(dossier / "base.etat");
        const Atelier suivant = atelier();
        ASSERT_TRUE(suivant.avertissements.empty()) << suivant.avertissements[0];
        const std::string bornes = lire(dossier / NomCombCalc);
        ASSERT_TRUE(BornesValables(bornes, suivant.base)) << bornes;
        EXPECT_FALSE(NomPresent(dossier / "base.etat"));
        vus.insert(BornesDe(suivant.base, suivant.base.NbTirages));
    }
    EXPECT_GT(enPleineSauvegarde, 0);
    EXPECT_GT(vus.size(), 3U);
}

}  // namespace
}  // namespace norvane
