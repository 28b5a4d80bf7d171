// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/FichiersListes.h"

#include <fmt/format.h>

#include <charconv>
#include <limits>
#include <string_view>
#include <utility>

#include "base/Archive.h"
#include "base/Fichiers.h"
#include "base/Textes.h"
#include "comb/LigneCombinaison.h"
#include "comb/VaroFonc2.h"
#include "LecteurEntiers.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t MotMax = std::numeric_limits<Mot>::max();
constexpr int NiveauArchive = 1;  ///< digits shrink by half at once, and hardly more for more time
/// Records between two looks at the stop.
constexpr std::size_t Pas = 4096;
constexpr int Cent = 100;

/// Most bytes that the text of a list may take: some hundred million values, and what leaves room
/// in memory for the records made of it.
std::uint64_t OctetsMax() {
    constexpr std::uint64_t plafond = std::uint64_t{2} << 30;
    const std::uint64_t libre = MemoireDisponible();
    return libre == 0 ? plafond : std::min(plafond, libre / 4);
}

int Part(std::size_t fait, std::size_t total) {
    return static_cast<int>(Cent * std::min(fait, total) / std::max<std::size_t>(total, 1));
}

struct Champ {
    const char* nom;
    std::uint32_t min, max;
};
constexpr Champ Entete[] = {
    {"le nombre de combinaisons", 0, std::numeric_limits<std::int32_t>::max()},
    {"la taille des combinaisons", TailleCombMin, TailleCombMax},
    {"le mode de stockage", 0, 2},
    {"le premier tirage", 1, NbTiragesMax},
    {"le dernier tirage", 1, NbTiragesMax}};

/// Reads the text of a list. Sentences begin with the name of the file.
class LecteurListe {
 public:
    LecteurListe(std::string_view texte, std::string nom, const Suivi& suivi)
        : octets_(texte.size()), entiers_(texte), nom_(std::move(nom)), suivi_(suivi) {}

    Resultat<Liste> lire(FormeGains gains) {
        std::array<std::uint32_t, std::size(Entete)> lus{};
        for (std::size_t i = 0; i < lus.size(); ++i) {
            const Champ& champ = Entete[i];
            const auto lu = entiers_.suivant() ? entiers_.entier(champ.max) : std::nullopt;
            if (!lu || *lu < champ.min)
                return refus(fmt::format("{} doit être un entier de {} à {}, et non « {} »",
                                         champ.nom, champ.min, champ.max, Citer(entiers_.mot())));
            lus[i] = *lu;
        }
        const auto [nombre, taille, mode, debut, fin] = lus;
        if (debut > fin)
            return refus(fmt::format("son intervalle est croisé, de {} à {}", debut, fin));
        Liste liste;
        liste.arene.disposition = {static_cast<int>(taille), static_cast<ModeStockage>(mode),
                                   gains};
        liste.DebutListe = static_cast<int>(debut);
        liste.FinListe = static_cast<int>(fin);
        if (const auto mots = lireMots(liste.arene, nombre); !mots) return Erreur{mots.erreur()};
        if (const auto justes = verifierNumeros(liste.arene); !justes)
            return Erreur{justes.erreur()};
        CompterRangs(liste);
        return liste;
    }

 private:
    Erreur refus(std::string_view defaut) const {
        return {
            fmt::format("« {} » : {}. La liste n'est pas chargée : choisissez un autre fichier.",
                        nom_, defaut)};
    }

    Resultat<Rien> lireMots(Arene& arene, std::size_t nombre) {
        const auto pas = static_cast<std::size_t>(arene.disposition.mots());
        const std::size_t attendus = nombre * pas;
        // A number takes two bytes with its blank: the count is not taken at its word.
        arene.mots.reserve(std::min(attendus, octets_ / 2 + 1));
        std::size_t lus = 0;
        for (; entiers_.suivant(); ++lus) {
            if (lus % (Pas * pas) == 0) {
                if (suivi_.arrete()) return Erreur{"Lecture arrêtée."};
                suivi_.poser(Cent + Part(lus, attendus));
            }
            const auto mot = entiers_.entier(MotMax);
            if (!mot)
                return refus(
                    fmt::format("la valeur {} de la combinaison {} (« {} ») n'est pas un "
                                "entier de 0 à {}",
                                lus % pas + 1, lus / pas + 1, Citer(entiers_.mot()), MotMax));
            if (lus < attendus) arene.mots.push_back(static_cast<Mot>(*mot));
        }
        if (lus == attendus) return Rien{};
        if (arene.disposition.mode == ModeStockage::RangsDeGain && nombre > 0 && lus % nombre == 0)
            return Erreur{fmt::format(
                "« {} » : chaque combinaison y prend {} valeurs, et {} avec les gains actuels. La "
                "liste n'est pas chargée : remettez dans [GAINS] de NORVANE.INI les gains avec "
                "lesquels elle a été faite, puis ouvrez-la à nouveau.",
                nom_, lus / nombre, pas)};
        return refus(
            fmt::format("{} combinaisons de {} valeurs sont annoncées, soit {} valeurs, et "
                        "le fichier en contient {}",
                        nombre, pas, attendus, lus));
    }

    Resultat<Rien> verifierNumeros(const Arene& arene) const {
        for (std::size_t i = 0; i < arene.nombre(); ++i) {
            int avant = 0;
            for (const Mot n :
                 arene[i].subspan(static_cast<std::size_t>(arene.disposition.numeros()))) {
                if (n <= avant || n > NumeroMax)
                    return refus(
                        fmt::format("les numéros de la combinaison {} ne vont pas de 1 à "
                                    "{} en ordre croissant",
                                    i + 1, NumeroMax));
                avant = n;
            }
        }
        return Rien{};
    }

    const std::size_t octets_;
    LecteurEntiers entiers_;
    const std::string nom_;
    const Suivi& suivi_;
};

std::string LigneEntete(const Liste& liste) {
    return fmt::format("{} {} {} {} {}\n", liste.nombre(), liste.taille(),
                       static_cast<int>(liste.mode()), liste.DebutListe, liste.FinListe);
}

constexpr std::size_t Chiffres(Mot mot) {
    return 1U + (mot >= 10) + (mot >= 100) + (mot >= 1000) + (mot >= 10000);
}

/// The text of the archive's member: the header, then a record a line. Nothing on a stop.
std::optional<std::string> TexteListe(const Liste& liste, const Suivi& suivi) {
    std::string texte = LigneEntete(liste);
    std::size_t place = texte.size();
    texte.resize(TailleTexteListe(liste));
    char* const fin = texte.data() + texte.size();
    for (std::size_t ligne = 0; ligne < liste.nombre(); ++ligne) {
        if (ligne % Pas == 0 && suivi.arrete()) return std::nullopt;
        for (const Mot mot : liste.enregistrement(ligne)) {
            char* const suite = std::to_chars(texte.data() + place, fin, mot).ptr;
            *suite = ' ';
            place = static_cast<std::size_t>(suite + 1 - texte.data());
        }
        texte[place - 1] = '\n';
    }
    return texte;
}

/// The name of the archive's member. What a path is made of has no place in it.
std::string NomMembre(const fs::path& fichier) {
    std::string nom = fichier.stem().string();
    for (char& c : nom)
        if (c == '/' || c == '\\' || c == ':') c = '_';
    return nom + ".tmp";
}

}  // namespace

Resultat<Liste> OuvrirListe(const fs::path& fichier, FormeGains gains, const Suivi& suivi) {
    // One half for the unpacking, one for the numbers.
    if (suivi.progres != nullptr) suivi.progres->commencer(2 * Cent);
    const auto membre = LireFichierArchive(fichier, OctetsMax(), suivi);
    if (!membre) return Erreur{membre.erreur()};
    return LecteurListe(SansMarqueOctets(membre->contenu), fichier.filename().string(), suivi)
        .lire(gains);
}

std::uint64_t TailleTexteListe(const Liste& liste) {
    std::uint64_t taille = LigneEntete(liste).size();
    for (const Mot mot : liste.arene.mots) taille += Chiffres(mot) + 1;
    return taille;
}

Resultat<Rien> SauverListe(const Liste& liste, const fs::path& fichier, const Suivi& suivi) {
    const Erreur arretee{"Écriture arrêtée."};
    MembreArchive membre{NomMembre(fichier), {}};
    if (auto texte = TexteListe(liste, suivi)) {
        membre.contenu = *std::move(texte);
    } else {
        return arretee;
    }
    const auto octets = FaireArchive({&membre, 1}, NiveauArchive, suivi);
    if (!octets) return Erreur{octets.erreur()};
    if (suivi.arrete()) return arretee;
    return EcrireFichier(fichier, *octets);
}

Resultat<Rien> ExporterListe(const Liste& liste, const fs::path& fichier, const Suivi& suivi) {
    std::string texte;
    for (std::size_t ligne = 0; ligne < liste.nombre(); ++ligne) {
        if (ligne % Pas == 0) {
            if (suivi.arrete()) return Erreur{"Écriture arrêtée."};
            suivi.poser(Part(ligne, liste.nombre()));
        }
        texte += LigneCombinaison(liste.numeros(ligne), liste.nbFois(ligne), liste.marque(ligne));
        texte += '\n';
    }
    return EcrireFichier(fichier, texte);
}

}  // namespace norvane
