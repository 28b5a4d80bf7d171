// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <grp.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include "base/Configuration.h"
#include "base/Fichiers.h"
#include "Dossier.h"

namespace norvane {
namespace {

using Noms = std::vector<std::string>;
namespace fs = std::filesystem;

constexpr std::uint64_t Limite = 1000;

TEST(Fichiers, EcritRemplaceEtRelit) {
    const Dossier dossier;
    const auto fichier = dossier / "liste.txt";
    const std::string binaire("a\0b\r\n", 5);
    ASSERT_TRUE(EcrireFichier(fichier, "premier"));
    ASSERT_EQ(::chmod(fichier.c_str(), 0640), 0);
    ASSERT_TRUE(EcrireFichier(fichier, binaire));
    EXPECT_EQ(*LireFichier(fichier, Limite), binaire);
    struct stat etat {};
    ASSERT_EQ(::stat(fichier.c_str(), &etat), 0);
    EXPECT_EQ(etat.st_mode & 07777, 0640U);

    const auto lien = dossier / "lien.txt";
    fs::create_symlink("liste.txt", lien);
    ASSERT_TRUE(EcrireFichier(lien, "par le lien"));
    EXPECT_TRUE(fs::is_symlink(lien));
    EXPECT_EQ(lire(fichier), "par le lien");
    fs::create_symlink("absent.txt", dossier / "vers.txt");
    ASSERT_TRUE(EcrireFichier(dossier / "vers.txt", "neuf"));
    EXPECT_EQ(lire(dossier / "absent.txt"), "neuf");
    EXPECT_EQ(dossier.noms(), (Noms{"absent.txt", "lien.txt", "liste.txt", "vers.txt"}));
    ASSERT_TRUE(EcrireFichier(dossier / std::string(255, 'n').c_str(), "long"));
}

TEST(Fichiers, RefusLaissentTout) {
    const Dossier dossier;
    fs::create_directory(dossier / "sous");
    fs::create_symlink("boucle", dossier / "boucle");
    poser(dossier / "plat", "x");
    for (const auto& chemin : {dossier / "sous", dossier / "nulle/part", dossier / "plat/f",
                               dossier / "boucle", fs::path("/dev/full")}) {
        const auto ecrit = EcrireFichier(chemin, "contenu");
        ASSERT_FALSE(ecrit) << chemin;
        EXPECT_NE(ecrit.erreur().find(chemin.string()), std::string::npos) << ecrit.erreur();
        EXPECT_FALSE(LireFichier(chemin, Limite)) << chemin;
    }
    fs::create_symlink("absent", dossier / "mort");
    const std::pair<const char*, const char*> obstacles[] = {
        {"mort", "c'est un lien vers un fichier qui n'existe pas"},
        {"boucle", "les liens tournent en rond"},
        {"absent", "le fichier ou le dossier n'existe pas"},
        {"sous", "ce nom est celui d'un dossier ou d'un appareil"},
        {"plat", ""}};
    for (const auto& [nom, obstacle] : obstacles) {
        EXPECT_EQ(ObstacleLecture(dossier / nom), obstacle);
        EXPECT_EQ(NomPresent(dossier / nom), std::string("absent") != nom) << nom;
        if (*obstacle != '\0') {
            EXPECT_EQ(
                LireFichier(dossier / nom, Limite).erreur(),
                "Impossible de lire « " + (dossier / nom).string() + " » : " + obstacle + '.');
        }
    }
    EXPECT_FALSE(NomPresent(dossier / "plat/f"));
    EXPECT_EQ(dossier.noms(), (Noms{"boucle", "mort", "plat", "sous"}));

    poser(dossier / "plat", "12345");
    EXPECT_EQ(*LireFichier(dossier / "plat", 5), "12345");
    EXPECT_FALSE(LireFichier(dossier / "plat", 4));
    EXPECT_FALSE(LireFichier("/dev/zero", Limite));
    // So large that no room could be made for it: refused before that.
    fs::resize_file(dossier / "plat", std::uintmax_t{1} << 40);
    EXPECT_NE(LireFichier(dossier / "plat", Limite).erreur().find("de 1000 octets"),
              std::string::npos);
}

TEST(Fichiers, DisquePleinGardeLAncien) {
    const Dossier dossier;
    const auto fichier = dossier / "liste.txt";
    poser(fichier, "ancien");
    EXPECT_EQ(DansUnEnfant([&] {
                  SurvivreAuxLimitesDeTaille();
                  LimiterLesFichiers(4096);
                  const auto ecrit = EcrireFichier(fichier, std::string(100000, 'x'));
                  return !ecrit && ecrit.erreur().find("la taille permise") != std::string::npos;
              }),
              1);
    EXPECT_EQ(lire(fichier), "ancien");
    EXPECT_EQ(dossier.noms(), Noms{"liste.txt"});
}

// A file of somebody else, in a folder that both may write: the group that lets the other one in
// stays, or nobody but the new owner gets what the group had.
TEST(Fichiers, FichierPartageGardeSonGroupe) {
    constexpr uid_t autre = 2002, nous = 2003;
    constexpr gid_t groupe = 2001;
    if (::geteuid() != 0) GTEST_SKIP() << "only the superuser can play two users";
    for (const bool membre : {true, false}) {
        const Dossier dossier;
        const auto fichier = dossier / "partage.grl";
        fs::permissions(dossier.chemin(), fs::perms::all);
        poser(fichier, "ancien");
        ASSERT_EQ(::chown(fichier.c_str(), autre, groupe), 0);
        ASSERT_EQ(::chmod(fichier.c_str(), 0664), 0);
        EXPECT_EQ(DansUnEnfant([&] {
                      if (::setgroups(membre ? 1 : 0, &groupe) != 0 || ::setgid(nous) != 0 ||
                          ::setuid(nous) != 0)
                          return 2;
                      ::umask(077);
                      return EcrireFichier(fichier, "neuf") ? 1 : 0;
                  }),
                  1);
        EXPECT_EQ(lire(fichier), "neuf");
        struct stat etat {};
        ASSERT_EQ(::stat(fichier.c_str(), &etat), 0);
        EXPECT_EQ(etat.st_uid, nous);
        EXPECT_EQ(etat.st_gid, membre ? groupe : nous);
        EXPECT_EQ(etat.st_mode & 07777, membre ? 0664U : 0644U);
    }
}

TEST(Fichiers, RestesDeSauvegardesTuees) {
    const Dossier dossier;
    const Noms gardes = {".norvane--1.tmp",   ".norvane-1-.tmp",   ".norvane-1-2.tmp~",
                         ".norvane-1-2x.tmp", ".norvane-1.tmp",    "a.norvane-1-2.tmp",
                         "norvane-1-2.tmp",   "norvane.db-journal"};
    for (const std::string& nom : gardes) poser(dossier / nom.c_str(), "x");
    const auto vieillir = [&dossier](const char* nom, int heures) {
        fs::last_write_time(dossier / nom,
                            fs::file_time_type::clock::now() - std::chrono::hours(heures));
    };
    for (const char* nom : {".norvane-1-2.tmp", ".norvane-4194304-10.tmp", ".norvane-7-7.tmp"})
        poser(dossier / nom, "x");
    fs::create_directory(dossier / ".norvane-3-3.tmp");
    for (const std::string& nom : dossier.noms())
        vieillir(nom.c_str(), nom == ".norvane-7-7.tmp" ? 23 : 25);
    RetirerRestes(dossier.chemin());
    Noms attendus = gardes;
    attendus.insert(attendus.end(), {".norvane-3-3.tmp", ".norvane-7-7.tmp"});
    std::ranges::sort(attendus);
    EXPECT_EQ(dossier.noms(), attendus);
    RetirerRestes(dossier / "absent");
    // The names are those of what a killed save leaves.
    EXPECT_EQ(DansUnEnfant([&] {
                  ::signal(SIGXFSZ, SIG_DFL);
                  LimiterLesFichiers(4096);
                  return EcrireFichier(dossier / "tuee", std::string(100000, 'x')) ? 1 : 0;
              }),
              -1);
    for (const std::string& nom : dossier.noms()) vieillir(nom.c_str(), 25);
    RetirerRestes(dossier.chemin());
    std::erase(attendus, ".norvane-7-7.tmp");
    EXPECT_EQ(dossier.noms(), attendus);
}

TEST(Configuration, LitToutesLesCles) {
    const Dossier dossier;
    const auto fichier = dossier / NomConfiguration;
    const Configuration absente(fichier);
    EXPECT_EQ(absente.avertissement(), "");
    EXPECT_EQ(absente.reglages.Mises, (std::array{2.2, 13.2, 46.2, 123.2, 277.2}));

    poser(fichier,
          "\xEF\xBB\xBF; à moi\r\n[CONFIGURATION]\r\nDecalageImprimanteBordHaut = -1,5\r\n"
          "decalageimprimantebordgauche=2.25\r\nApparence=sombre\r\nFenetre=-10,20,800,600,max\r\n"
          "[MISES]\r\nmontants=2,5 ; 3;4.75;1 000;5\r\n[MONNAIE]\r\nsymbole=CHF\r\ntaux=6,6\r\n"
          "[GAINS]\r\nG2=1\r\nG3=2\r\nG4=3\r\nG5=4\r\n[BASE]\r\nAnciensTirages=1\r\n"
          "[INTERNET]\r\narchive=http://localhost:8080/a.zip\r\njackpot=https://j\r\ndelai=600");
    const Configuration lue(fichier);
    EXPECT_EQ(lue.anomalies, Noms{});
    const Reglages& r = lue.reglages;
    EXPECT_EQ(r.DecalageImprimanteBordHaut, -1.5);
    EXPECT_EQ(r.DecalageImprimanteBordGauche, 2.25);
    EXPECT_EQ(r.Apparence, "sombre");
    EXPECT_EQ(r.Fenetre, "-10,20,800,600,max");
    EXPECT_EQ(r.Mises, (std::array{2.5, 3.0, 4.75, 1000.0, 5.0}));
    EXPECT_EQ(r.SymboleMonnaie, "CHF");
    EXPECT_EQ(r.TauxConversion, 6.6);
    EXPECT_EQ(r.GainsNominaux, (std::array{1.0, 2.0, 3.0, 4.0}));
    EXPECT_TRUE(r.AnciensTirages);
    EXPECT_EQ(r.Archive, "http://localhost:8080/a.zip");
    EXPECT_EQ(r.Jackpot, "https://j");
    EXPECT_EQ(r.DelaiSecondes, 600);
}

TEST(Configuration, NonSensPrendLeDefautEtSeNomme) {
    const Dossier dossier;
    const auto fichier = dossier / NomConfiguration;
    const std::string texte =
        "[CONFIGURATION]\nDecalageImprimanteBordHaut=51\nApparence=rose\nFenetre=1,2,3\n"
        "n'importe quoi\n[MISES]\nmontants=1;2;trois;4;5\n[MONNAIE]\nsymbole=\n"
        "taux=beaucoup\n[GAINS]\nG2=nan\nG3=-1\n[BASE]\nAnciensTirages=oui\n[INTERNET]\n"
        "archive=ftp://x\ndelai=0\n[brisee\ntaux=3\n=vide\n";
    poser(fichier, texte);
    const Configuration lue(fichier);
    EXPECT_EQ(lue.anomalies,
              (Noms{"ligne 5 : « n'importe quoi » n'est ni une section, ni une clé, ni un "
                    "commentaire",
                    "ligne 19 : « [brisee » n'est ni une section, ni une clé, ni un commentaire",
                    "ligne 21 : « =vide » n'est ni une section, ni une clé, ni un commentaire",
                    "[CONFIGURATION] DecalageImprimanteBordHaut : « 51 » n'est pas entre -50 et 50",
                    "[CONFIGURATION] Apparence : « rose » n'est ni auto, ni claire, ni sombre",
                    "[CONFIGURATION] Fenetre : « 1,2,3 » n'a pas 4 valeurs",
                    "[MISES] montants : « 1;2;trois;4;5 » n'est pas un nombre",
                    "[MONNAIE] symbole : «  » n'est pas un symbole d'un à seize octets",
                    "[MONNAIE] taux : « beaucoup » n'est pas un nombre",
                    "[GAINS] G2 : « nan » n'est pas un nombre",
                    "[GAINS] G3 : « -1 » n'est pas entre 0 et 1000000000",
                    "[BASE] AnciensTirages : « oui » n'est ni 0 ni 1",
                    "[INTERNET] archive : « ftp://x » n'est pas une adresse https",
                    "[INTERNET] delai : « 0 » n'est pas entre 1 et 600"}));
    EXPECT_EQ(lue.avertissement(),
              "Le fichier NORVANE.INI contient des valeurs inutilisables (" + lue.anomalies[0] +
                  " ; " + lue.anomalies[1] + " ; " + lue.anomalies[2] +
                  " ; …) : les valeurs par défaut les remplacent et le fichier reste tel quel, "
                  "corrigez-le si besoin.");
    const Reglages defauts;
    EXPECT_EQ(lue.reglages.Mises, defauts.Mises);
    EXPECT_EQ(lue.reglages.Fenetre, "");
    EXPECT_EQ(lue.reglages.Archive, defauts.Archive);
    EXPECT_EQ(lire(fichier), texte);
}

TEST(Configuration, EcritureGardeLeReste) {
    const Dossier dossier;
    const auto fichier = dossier / NomConfiguration;
    Configuration configuration(fichier);
    ASSERT_TRUE(configuration.ecrire("BASE", "AnciensTirages", "1"));
    EXPECT_TRUE(configuration.reglages.AnciensTirages);
    EXPECT_EQ(lire(fichier), "[BASE]\nAnciensTirages=1\n");

    using Cas = std::pair<const char*, const char*>;
    for (const auto& [avant, apres] : {
             Cas{"; a\r\n[monnaie]\r\n TAUX = 3 \r\nx=1\r\n\r\n# b\r\n[autre]\r\ntaux=9",
                 "; a\r\n[monnaie]\r\ntaux=6.6\r\nx=1\r\n\r\n# b\r\n[autre]\r\ntaux=9\r\n"},
             Cas{"[MONNAIE]\nfutur=oui\n\n\n[X]\ny=z\n",
                 "[MONNAIE]\nfutur=oui\ntaux=6.6\n\n\n[X]\ny=z\n"},
             Cas{"\xEF\xBB\xBF[MONNAIE]\ntaux=1\ntaux=2\nbidon\n[MONNAIE\ntaux=4\n",
                 "\xEF\xBB\xBF[MONNAIE]\ntaux=1\ntaux=6.6\nbidon\n[MONNAIE\ntaux=4\n"},
             Cas{"; rien\n", "; rien\n\n[MONNAIE]\ntaux=6.6\n"},
         }) {
        poser(fichier, avant);
        const auto ecrit = configuration.ecrire("MONNAIE", "taux", "6.6");
        ASSERT_TRUE(ecrit) << ecrit.erreur();
        EXPECT_EQ(lire(fichier), apres);
        EXPECT_EQ(Configuration(fichier).reglages.TauxConversion, 6.6);
    }
}

TEST(Configuration, EcrituresRefusees) {
    const Dossier dossier;
    const auto fichier = dossier / NomConfiguration;
    poser(fichier, "[MONNAIE]\ntaux=2\n");
    Configuration configuration(fichier);
    using Cas = std::array<const char*, 3>;
    for (const auto& [section, cle, valeur] : {Cas{"MONNAIE", "taux", "0"},
                                               {"MONNAIE", "TAUX", "mille"},
                                               {"X", "y", "a\n[BASE]"},
                                               {"X", "y=z", "a"},
                                               {"X", ";y", "a"},
                                               {"X]", "y", "a"},
                                               {"X", "[y", "a"},
                                               {"X\n", "y", "a"}}) {
        EXPECT_FALSE(configuration.ecrire(section, cle, valeur)) << cle << '=' << valeur;
        EXPECT_EQ(lire(fichier), "[MONNAIE]\ntaux=2\n");
    }
    EXPECT_EQ(configuration.reglages.TauxConversion, 2.0);

    // What can be no configuration is told once, read as defaults and never written over.
    for (const std::string& contenu :
         {std::string("[MONNAIE]\ntaux=3\0\n", 18), std::string("[MONNAIE]\ntaux=\xE9\n"),
          "[MONNAIE]\ntaux=3\n" + std::string(1 << 20, '#'), std::string("\xC0\xAF"),
          std::string("\xED\xA0\x80"), std::string("\xF4\x90\x80\x80"), std::string("\xE2\x82")}) {
        poser(fichier, contenu);
        Configuration illisible(fichier);
        EXPECT_EQ(illisible.anomalies.size(), 1U);
        EXPECT_EQ(illisible.reglages.TauxConversion, 6.55957);
        EXPECT_FALSE(illisible.ecrire("MONNAIE", "taux", "7"));
        EXPECT_TRUE(lire(fichier) == contenu);
    }
    for (const auto poserAutreChose :
         {+[](const fs::path& nom) { fs::create_directory(nom); },
          +[](const fs::path& nom) { fs::create_symlink("absent", nom); },
          +[](const fs::path& nom) { fs::create_symlink(nom, nom); }}) {
        fs::remove(fichier);
        poserAutreChose(fichier);
        Configuration illisible(fichier);
        EXPECT_EQ(illisible.anomalies.size(), 1U);
        EXPECT_FALSE(illisible.ecrire("MONNAIE", "taux", "7"));
        EXPECT_EQ(dossier.noms(), Noms{NomConfiguration});
    }
}

}  // namespace
}  // namespace norvane
