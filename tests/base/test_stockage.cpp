// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>

#include <random>

#include "base/BaseIntegree.h"
#include "base/Fichiers.h"
#include "base/Stockage.h"
#include "Dossier.h"
#include "Tuer.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

bool memes(const Base& a, const Base& b) {
    const auto rapports = [](const Base& base) {
        return std::span(base.Rapports).first(static_cast<std::size_t>(base.NbTirages));
    };
    return std::ranges::equal(a.enUsage(), b.enUsage()) &&
           std::ranges::equal(rapports(a), rapports(b)) &&
           a.NbAnciensTirages == b.NbAnciensTirages && a.AnciensTirages == b.AnciensTirages;
}

/// The built-in base with a mark of its own: so many winners of the first rank of its last draw.
Base marquee(bool globale, int marque) {
    Base base = BaseIntegree(globale);
    base.Rapports.back()[0] = {static_cast<double>(marque), 0.1};
    return base;
}

void executer(const fs::path& fichier, const char* sql) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(fichier.c_str(), &db), SQLITE_OK);
    char* message = nullptr;
    EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, &message), SQLITE_OK) << sql << message;
    sqlite3_close(db);
}

Tirage ancien(int date, int sousTirage) {
    return {{1, 2, 3, 4, 5}, 0, 0, 1979999, date, sousTirage, JokerAbsent};
}

class Stockage : public ::testing::Test {
 protected:
    void sauver(const Base& base) {
        const auto ecrit = SauverBase(base, fichier);
        ASSERT_TRUE(ecrit) << ecrit.erreur();
    }
    /// Loads, with no warning.
    Base charger(bool globale) {
        BaseChargee chargee = ChargerBase(dossier.chemin(), globale);
        EXPECT_EQ(chargee.avertissement, "");
        EXPECT_TRUE(chargee.depuisFichier);
        return std::move(chargee.base);
    }
    /// The file is set aside whole, the built-in base is there, and saving works again.
    void verifierMisDeCote(const std::string& contenu) {
        const BaseChargee chargee = ChargerBase(dossier.chemin(), false);
        EXPECT_FALSE(chargee.depuisFichier);
        EXPECT_TRUE(memes(chargee.base, BaseIntegree(false)));
        const auto noms = dossier.noms();
        ASSERT_EQ(noms.size(), 1U);
        EXPECT_EQ(noms[0].rfind("norvane.db.abimee-20", 0), 0U) << noms[0];
        EXPECT_NE(chargee.avertissement.find(noms[0]), std::string::npos) << chargee.avertissement;
        EXPECT_TRUE(lire(dossier / noms[0].c_str()) == contenu);
        fs::remove(dossier / noms[0].c_str());
    }

    Dossier dossier;
    fs::path fichier = dossier / NomStockage;
};

TEST_F(Stockage, AllerRetour) {
    const BaseChargee aucune = ChargerBase(dossier.chemin(), true);
    EXPECT_FALSE(aucune.depuisFichier);
    EXPECT_EQ(aucune.avertissement, "");
    EXPECT_TRUE(memes(aucune.base, BaseIntegree(true)));
    EXPECT_FALSE(fs::exists(fichier));

    Base base = BaseIntegree(false);
    InsererTirage(base, 100, base.Tirages[100], base.Rapports[100]);
    base.Tirages[100].DateTirage -= 1;
    base.Tirages[100].DateForclusion = 44898;  // typed by hand: a count of days
    base.Rapports[7][2].Gain = 0.1 + 0.2;
    for (int i = 0; i < 2; ++i) {  // made, then replaced
        sauver(base);
        EXPECT_TRUE(memes(charger(false), base));
        SupprimerTirage(base, 5);
    }
    EXPECT_EQ(dossier.noms(), std::vector<std::string>{"norvane.db"});
    Base vide;
    sauver(vide);
    EXPECT_TRUE(memes(*LireStockage(fichier), vide));
}

TEST_F(Stockage, DeuxSortesDeBases) {
    // The present game alone, read with the old one: the built-in old draws come in front.
    sauver(marquee(false, 1));
    const Base globale = charger(true);
    EXPECT_TRUE(memes(globale, marquee(true, 1)));
    // Both kinds in the file, the present game asked for.
    Base retouchee = globale;
    retouchee.Tirages[10].Joker = 1234567;
    sauver(retouchee);
    EXPECT_TRUE(memes(charger(true), retouchee));
    EXPECT_TRUE(memes(charger(false), marquee(false, 1)));
    // Saved without the old draws: those of the file stay, retouched ones too.
    Base presente = marquee(false, 2);
    SupprimerTirage(presente, 0);
    sauver(presente);
    EXPECT_TRUE(memes(charger(false), presente));
    Base attendue = marquee(true, 2);
    attendue.Tirages[10].Joker = 1234567;
    SupprimerTirage(attendue, 4858);
    EXPECT_TRUE(memes(charger(true), attendue));
    // An old draw added by hand joins them; one that is there already is replaced.
    InsererTirage(presente, 0, ancien(19790101, 1), {});
    Tirage remplace = attendue.Tirages[20];
    remplace.Joker = 7;
    InsererTirage(presente, 0, remplace, {});
    sauver(presente);
    attendue.Tirages[20] = remplace;
    const RechercheDate place = TirageParDate(attendue.enUsage(), 19790101, attendue.NbTirages);
    ASSERT_EQ(place.indice, -1);
    attendue.Tirages.insert(attendue.Tirages.begin() + place.precedent + 1, ancien(19790101, 1));
    attendue.NbTirages += 1;
    const Base lue = charger(true);
    EXPECT_EQ(lue.NbAnciensTirages, 4859);
    EXPECT_TRUE(std::ranges::equal(lue.enUsage(), attendue.enUsage()));
}

TEST_F(Stockage, FichiersAbimes) {
    const Base base = marquee(false, 3);
    sauver(base);
    const std::string sain = lire(fichier);
    std::mt19937 alea(17);
    // Cut short, at places of every kind.
    std::vector<std::size_t> tailles = {0, 1, 15, 16, 99, 100, 4095, 4096, sain.size() - 1};
    for (int i = 0; i < 20; ++i) tailles.push_back(alea() % sain.size());
    for (const std::size_t taille : tailles) {
        SCOPED_TRACE(taille);
        poser(fichier, sain.substr(0, taille));
        if (const Resultat<Base> lue = LireStockage(fichier)) {
            EXPECT_TRUE(memes(*lue, base));  // nothing but zeros at the end is missing
            continue;
        }
        verifierMisDeCote(sain.substr(0, taille));
    }
    for (const std::string& contenu : {std::string("ce n'est pas une base"), sain.substr(4096),
                                       std::string(8192, '\0'), std::string(20000, '\xFF')}) {
        poser(fichier, contenu);
        verifierMisDeCote(contenu);
    }
    // Whole pages of noise: either it is seen, or it fell on bytes that hold nothing.
    for (int i = 0; i < 20; ++i) {
        std::string bruit = sain;
        const std::size_t debut = 100 + alea() % (sain.size() - 600);
        for (std::size_t o = 0; o < 500; ++o) bruit[debut + o] = static_cast<char>(alea());
        poser(fichier, bruit);
        const BaseChargee chargee = ChargerBase(dossier.chemin(), false);
        EXPECT_EQ(chargee.depuisFichier, memes(chargee.base, base)) << debut;
        EXPECT_EQ(chargee.depuisFichier, chargee.avertissement.empty());
    }
}

TEST_F(Stockage, ContenusRefuses) {
    using Cas = std::pair<const char*, const char*>;
    const char* const illisible = "son contenu n'est pas lisible";
    const char* const etrangeres = "ses tables ne sont pas celles de Norvane";
    for (const auto& [sql, cause] : {
             Cas{"PRAGMA application_id=7", "ce n'est pas une base de Norvane"},
             Cas{"PRAGMA user_version=0", etrangeres},
             Cas{"PRAGMA writable_schema=ON; UPDATE sqlite_schema SET sql='rien'", illisible},
             Cas{"DROP TABLE tirages", etrangeres},
             Cas{"DROP TABLE tirages; CREATE VIEW tirages AS SELECT 1 position", etrangeres},
             Cas{"CREATE TABLE autre(x)", etrangeres},
             Cas{"CREATE INDEX par_date ON tirages(date)", etrangeres},
             Cas{"CREATE TRIGGER t AFTER DELETE ON tirages BEGIN DELETE FROM meta; END",
                 etrangeres},
             Cas{"ALTER TABLE tirages ADD COLUMN double INTEGER AS (n1*2)", etrangeres},
             Cas{"ALTER TABLE tirages RENAME COLUMN r9 TO r10", etrangeres},
             Cas{"PRAGMA writable_schema=ON; INSERT INTO sqlite_schema"
                 " VALUES('table','v','v',0,'CREATE VIRTUAL TABLE v USING inconnu')",
                 etrangeres},
             Cas{"PRAGMA writable_schema=ON; UPDATE sqlite_schema SET sql=replace(sql,"
                 "'r9 REAL NOT NULL','r9 REAL NOT NULL CHECK(r9<0)')",
                 etrangeres},
             Cas{"DELETE FROM meta WHERE cle='NbAnciensTirages'", "une valeur manque"},
             Cas{"UPDATE meta SET valeur=4000 WHERE cle='NbAnciensTirages'", "anciens tirages"},
             Cas{"DELETE FROM tirages WHERE position=5", "son nombre de tirages est faux"},
             Cas{"UPDATE tirages SET n1=0 WHERE position=5", "tirage n° 6 : n1 vaut 0"},
             Cas{"UPDATE tirages SET n5=4294967345 WHERE position=5", "type attendu"},
             Cas{"UPDATE tirages SET date=20251301 WHERE position=3213", "tirage n° 3214 : date"},
             Cas{"UPDATE tirages SET position=-1 WHERE position=5", "ne vient pas après"},
             Cas{"UPDATE tirages SET g1=0.5 WHERE position=5", "tirage n° 6 : g1 vaut 0.5"},
             Cas{"UPDATE tirages SET r1=9e999 WHERE position=5", "tirage n° 6 : r1 vaut inf"},
             Cas{"UPDATE tirages SET r9=r9+0.01 WHERE position=5", "sa somme de contrôle"},
         }) {
        SCOPED_TRACE(sql);
        sauver(BaseIntegree(false));
        executer(fichier, sql);
        const auto lue = LireStockage(fichier);
        ASSERT_FALSE(lue);
        EXPECT_NE(lue.erreur().find(fichier.string()), std::string::npos);
        EXPECT_NE(lue.erreur().find(cause), std::string::npos) << lue.erreur();
        verifierMisDeCote(lire(fichier));
    }
    // One record too large, and a file that ends far behind its last page.
    sauver(BaseIntegree(false));
    executer(fichier,
             "PRAGMA writable_schema=ON; UPDATE sqlite_schema SET sql=sql||"
             "replace(hex(zeroblob(40000)),'0',' ') WHERE name='meta'");
    EXPECT_NE(LireStockage(fichier).erreur().find(illisible), std::string::npos);
    verifierMisDeCote(lire(fichier));
    sauver(BaseIntegree(false));
    fs::resize_file(fichier, std::uintmax_t{1} << 40);
    EXPECT_NE(LireStockage(fichier).erreur().find("dépasse la taille permise"), std::string::npos);
    const BaseChargee immense = ChargerBase(dossier.chemin(), false);
    EXPECT_FALSE(immense.laissee || immense.depuisFichier);
    ASSERT_EQ(dossier.noms().size(), 1U);
    fs::remove(dossier / dossier.noms()[0].c_str());
    // Saving over such a file keeps it too.
    poser(fichier, "autre chose");
    const Base base = marquee(false, 4);
    sauver(base);
    EXPECT_TRUE(memes(charger(false), base));
    ASSERT_EQ(dossier.noms().size(), 2U);
    EXPECT_EQ(lire(dossier / dossier.noms()[1].c_str()), "autre chose");
}

TEST_F(Stockage, LaisseEnLEtat) {
    // Written by a later version: neither moved nor written over.
    sauver(marquee(false, 5));
    executer(fichier, "PRAGMA user_version=2; CREATE TABLE futur(x)");
    const std::string contenu = lire(fichier);
    const BaseChargee recente = ChargerBase(dossier.chemin(), true);
    EXPECT_TRUE(memes(recente.base, BaseIntegree(true)));
    EXPECT_NE(recente.avertissement.find("plus récente"), std::string::npos);
    EXPECT_TRUE(recente.laissee);
    EXPECT_FALSE(SauverBase(recente.base, fichier));
    EXPECT_TRUE(lire(fichier) == contenu);
    EXPECT_EQ(dossier.noms(), std::vector<std::string>{"norvane.db"});
    // A folder of that name, a link that leads nowhere or to itself.
    fs::remove(fichier);
    fs::create_directory(fichier);
    for (const char* but : {"absent.db", "norvane.db", ""}) {
        SCOPED_TRACE(but);
        const BaseChargee autreChose = ChargerBase(dossier.chemin(), false);
        EXPECT_NE(autreChose.avertissement.find(" ne peut pas être lu ("), std::string::npos);
        EXPECT_TRUE(autreChose.laissee);
        EXPECT_TRUE(memes(autreChose.base, BaseIntegree(false)));
        EXPECT_FALSE(SauverBase(autreChose.base, fichier));
        EXPECT_EQ(dossier.noms(), std::vector<std::string>{"norvane.db"});
        fs::remove(fichier);
        if (*but != '\0') fs::create_symlink(but, fichier);
    }
    // A folder that is not there, or a file in its place.
    poser(dossier / "plat", "x");
    for (const char* nom : {"absent", "plat"}) {
        EXPECT_TRUE(memes(ChargerBase(dossier / nom, false).base, BaseIntegree(false)));
        EXPECT_FALSE(SauverBase(BaseIntegree(false), dossier / nom / "norvane.db"));
    }
    // A base that would not be read back is not written.
    Base mauvaise = BaseIntegree(false);
    std::swap(mauvaise.Tirages[8], mauvaise.Tirages[9]);
    const auto refus = SauverBase(mauvaise, dossier / "neuve.db");
    ASSERT_FALSE(refus);
    EXPECT_NE(refus.erreur().find("tirage n° 10"), std::string::npos) << refus.erreur();
    EXPECT_FALSE(fs::exists(dossier / "neuve.db"));
}

TEST_F(Stockage, LectureSeule) {
    const Base base = marquee(false, 6);
    sauver(base);
    const auto droits = [](const fs::path& p, fs::perms d) { fs::permissions(p, d); };
    // A child without privileges, for which permission bits count.
    const auto enfant = [&] {
        return DansUnEnfant([&] {
            if (::geteuid() == 0 && ::seteuid(65534) != 0) return 3;
            const BaseChargee chargee = ChargerBase(dossier.chemin(), false);
            if (SauverBase(BaseIntegree(false), fichier)) return 2;
            return memes(chargee.base, base) && chargee.avertissement.empty() ? 0 : 1;
        });
    };
    using enum fs::perms;
    droits(fichier, owner_read | group_read | others_read);
    droits(dossier.chemin(),
           owner_read | owner_exec | group_read | group_exec | others_read | others_exec);
    EXPECT_EQ(enfant(), 0);
    droits(fichier, none);
    EXPECT_EQ(enfant(), 1);  // told, and the built-in base is there
    droits(dossier.chemin(), owner_all);
    droits(fichier, owner_read | owner_write);
    EXPECT_TRUE(memes(charger(false), base));
}

// The disk is full in the middle of a save: the old base stays.
TEST_F(Stockage, DisquePleinEnSauvant) {
    sauver(marquee(false, 1));
    EXPECT_EQ(DansUnEnfant([&] {
                  SurvivreAuxLimitesDeTaille();
                  LimiterLesFichiers(40000);
                  return SauverBase(marquee(true, 2), fichier) ? 1 : 0;
              }),
              0);
    EXPECT_TRUE(memes(charger(false), marquee(false, 1)));
}

// A program killed while it saves, again and again: the old base or the new one is there, whole.
TEST_F(Stockage, TueEnSauvant) {
    const Base bases[2] = {marquee(false, 1), marquee(false, 2)};
    std::mt19937 alea(23);
    int interrompus = 0;
    int actuelle = 0;
    sauver(bases[0]);
    // On a slow machine the kills come later and later, until one falls inside a transaction.
    for (int essai = 0; essai < 30 || (interrompus == 0 && essai < 300); ++essai) {
        tuer(alea, 60000 * (1 + essai / 30),
             [&](int i) { return SauverBase(bases[(actuelle + i) % 2], fichier); });
        interrompus += fs::exists(fichier.string() + "-journal");
        const Base lue = charger(false);
        actuelle = memes(lue, bases[1]) ? 1 : 0;
        ASSERT_TRUE(memes(lue, bases[actuelle])) << essai;
    }
    EXPECT_GT(interrompus, 0);  // some kills did fall inside a transaction
    // The same from nothing: there is no file, or a whole one.
    for (int essai = 0; essai < 15; ++essai) {
        fs::remove(fichier);
        tuer(alea, 25000, [&](int) { return SauverBase(bases[0], fichier); });
        EXPECT_TRUE(!fs::exists(fichier) || memes(charger(false), bases[0]));
    }
}

}  // namespace
}  // namespace norvane
