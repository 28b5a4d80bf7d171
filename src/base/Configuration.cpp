// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Configuration.h"

#include <fmt/format.h>
// The file is UTF-8 and so is the program: compiled in here, the library needs no ICU.
#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>

#include <algorithm>
#include <charconv>
#include <optional>
#include <span>
#include <string_view>

#include "base/Fichiers.h"
#include "base/Textes.h"

namespace norvane {

namespace {

constexpr std::uint64_t TailleMax = std::uint64_t{1} << 20;
constexpr std::size_t LignesNommees = 50;  ///< bad lines named one by one; the rest is counted

// --- Values ------------------------------------------------------------------------------------

/// Reads a value into the settings; gives what is wrong with it, as the end of a sentence.
using Lecture = std::string (*)(std::string_view valeur, Reglages& reglages);

constexpr const char* PasUnNombre = "n'est pas un nombre";

std::string LireNombre(std::string_view valeur, double min, double max, double& champ) {
    const std::optional<double> x = LireMontant(valeur);
    if (!x) return PasUnNombre;
    if (*x < min || *x > max) return fmt::format("n'est pas entre {} et {}", min, max);
    champ = *x;
    return {};
}

std::string LireEntier(std::string_view valeur, int min, int max, int& champ) {
    int n = 0;
    const auto [fin, erreur] = std::from_chars(valeur.data(), valeur.data() + valeur.size(), n);
    if (erreur != std::errc{} || fin != valeur.data() + valeur.size()) {
        return "n'est pas un nombre entier";
    }
    if (n < min || n > max) return fmt::format("n'est pas entre {} et {}", min, max);
    champ = n;
    return {};
}

/// Exactly `nombre` items between separators, each taken by `lire`.
template <typename Lire>
std::string LireListe(std::string_view valeur, char separateur, std::size_t nombre, Lire lire) {
    const auto trouves = static_cast<std::size_t>(std::ranges::count(valeur, separateur)) + 1;
    if (trouves != nombre) return fmt::format("n'a pas {} valeurs", nombre);
    for (std::size_t i = 0; i < nombre; ++i) {
        const std::size_t fin = std::min(valeur.find(separateur), valeur.size());
        if (std::string defaut = lire(Rogner(valeur.substr(0, fin)), i); !defaut.empty()) {
            return defaut;
        }
        valeur.remove_prefix(std::min(fin + 1, valeur.size()));
    }
    return {};
}

template <double Reglages::*Champ>
std::string LireDecalage(std::string_view valeur, Reglages& reglages) {
    return LireNombre(valeur, -50.0, 50.0, reglages.*Champ);
}

std::string LireApparence(std::string_view valeur, Reglages& reglages) {
    if (valeur != "auto" && valeur != "claire" && valeur != "sombre") {
        return "n'est ni auto, ni claire, ni sombre";
    }
    reglages.Apparence = valeur;
    return {};
}

std::string LireFenetre(std::string_view valeur, Reglages& reglages) {
    constexpr int pixelsMax = 100000;
    constexpr std::string_view maximisee = ",max";
    if (!valeur.empty()) {
        std::string_view place = valeur;
        if (place.ends_with(maximisee)) place.remove_suffix(maximisee.size());
        std::string defaut = LireListe(place, ',', 4, [](std::string_view v, std::size_t i) {
            int pixels = 0;
            return LireEntier(v, i < 2 ? -pixelsMax : 1, pixelsMax, pixels);
        });
        if (!defaut.empty()) return defaut;
    }
    reglages.Fenetre = valeur;
    return {};
}

std::string LireMises(std::string_view valeur, Reglages& reglages) {
    auto mises = reglages.Mises;
    std::string defaut = LireListe(valeur, ';', mises.size(), [&](std::string_view v, auto i) {
        return LireNombre(v, 0.01, 1e6, mises[i]);
    });
    if (defaut.empty()) reglages.Mises = mises;
    return defaut;
}

std::string LireSymbole(std::string_view valeur, Reglages& reglages) {
    if (valeur.empty() || valeur.size() > 16) return "n'est pas un symbole d'un à seize octets";
    reglages.SymboleMonnaie = valeur;
    return {};
}

std::string LireTaux(std::string_view valeur, Reglages& reglages) {
    return LireNombre(valeur, 1e-6, 1e6, reglages.TauxConversion);
}

template <std::size_t Rang>
std::string LireGain(std::string_view valeur, Reglages& reglages) {
    return LireNombre(valeur, 0.0, 1e9, reglages.GainsNominaux[Rang]);
}

std::string LireAnciens(std::string_view valeur, Reglages& reglages) {
    if (valeur != "0" && valeur != "1") return "n'est ni 0 ni 1";
    reglages.AnciensTirages = valeur == "1";
    return {};
}

template <std::string Reglages::*Champ, bool Vidable>
std::string LireAdresse(std::string_view valeur, Reglages& reglages) {
    const bool adresse = valeur.starts_with("https://") || valeur.starts_with("http://");
    const bool vide = Vidable && valeur.empty();
    if (!vide && (!adresse || valeur.find(' ') != std::string_view::npos)) {
        return "n'est pas une adresse https";
    }
    reglages.*Champ = valeur;
    return {};
}

std::string LireDelai(std::string_view valeur, Reglages& reglages) {
    return LireEntier(valeur, 1, 600, reglages.DelaiSecondes);
}

struct Cle {
    const char* section;
    const char* nom;
    Lecture lire;
};

constexpr Cle Cles[] = {
    {"CONFIGURATION", "DecalageImprimanteBordHaut",
     LireDecalage<&Reglages::DecalageImprimanteBordHaut>},
    {"CONFIGURATION", "DecalageImprimanteBordGauche",
     LireDecalage<&Reglages::DecalageImprimanteBordGauche>},
    {"CONFIGURATION", "Apparence", LireApparence},
    {"CONFIGURATION", "Fenetre", LireFenetre},
    {"MISES", "montants", LireMises},
    {"MONNAIE", "symbole", LireSymbole},
    {"MONNAIE", "taux", LireTaux},
    {"GAINS", "G2", LireGain<0>},
    {"GAINS", "G3", LireGain<1>},
    {"GAINS", "G4", LireGain<2>},
    {"GAINS", "G5", LireGain<3>},
    {"BASE", "AnciensTirages", LireAnciens},
    {"INTERNET", "archive", LireAdresse<&Reglages::Archive, false>},
    {"INTERNET", "jackpot", LireAdresse<&Reglages::Jackpot, true>},
    {"INTERNET", "delai", LireDelai},
};

// --- Lines -------------------------------------------------------------------------------------

struct Ligne {
    enum class Genre { Vide, Commentaire, Section, Cle, SectionBrisee, Rien };
    Genre genre;
    std::string_view nom;  ///< of the section or the key
};

bool EstCommande(char c) {
    return static_cast<unsigned char>(c) < ' ' && c != '\t';
}

/// What a line, taken without its end, is.
Ligne Classer(std::string_view texte) {
    using enum Ligne::Genre;
    texte = Rogner(texte);
    if (texte.empty()) return {Vide, {}};
    if (texte.starts_with(';') || texte.starts_with('#')) return {Commentaire, {}};
    const bool commandes = std::ranges::any_of(texte, EstCommande);
    if (texte.starts_with('[')) {
        const std::size_t fin = texte.find(']');
        if (fin == std::string_view::npos || commandes) return {SectionBrisee, {}};
        return {Section, Rogner(texte.substr(1, fin - 1))};
    }
    const std::size_t egal = texte.find('=');
    if (egal == std::string_view::npos || egal == 0 || commandes) return {Rien, {}};
    return {Cle, Rogner(texte.substr(0, egal))};
}

/// The lines of a text with their ends, so that joined they are the text again.
std::vector<std::string> SeparerLignes(std::string_view texte) {
    std::vector<std::string> lignes;
    while (!texte.empty()) {
        const std::size_t fin = std::min(texte.find('\n'), texte.size() - 1) + 1;
        lignes.emplace_back(texte.substr(0, fin));
        texte.remove_prefix(fin);
    }
    return lignes;
}

bool MemeNom(std::string_view a, std::string_view b) {
    const auto minuscule = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    return std::ranges::equal(a, b, {}, minuscule, minuscule);
}

/// Length of the UTF-8 character at the start of `texte`, 0 when there is none. Overlong forms,
/// surrogates and values beyond U+10FFFF are none.
std::size_t LongueurCaractere(std::string_view texte) {
    const auto octet = [&](std::size_t i) {
        return i < texte.size() ? static_cast<unsigned char>(texte[i]) : 0U;
    };
    const unsigned premier = octet(0);
    if (premier < 0x80) return texte.empty() ? 0 : 1;
    const std::size_t longueur = premier < 0xC2   ? 0
                                 : premier < 0xE0 ? 2
                                 : premier < 0xF0 ? 3
                                 : premier < 0xF5 ? 4
                                                  : 0;
    const unsigned min = premier == 0xE0 ? 0xA0 : premier == 0xF0 ? 0x90 : 0x80;
    const unsigned max = premier == 0xED ? 0x9F : premier == 0xF4 ? 0x8F : 0xBF;
    for (std::size_t i = 1; i < longueur; ++i) {
        const unsigned suite = octet(i);
        if (suite < (i == 1 ? min : 0x80) || suite > (i == 1 ? max : 0xBF)) return 0;
    }
    return longueur;
}

/// The start of a value for a message, cut between two characters.
std::string CiterValeur(std::string_view texte) {
    constexpr std::size_t montre = 40;
    std::string citation;
    while (!texte.empty()) {
        const std::size_t longueur = std::max<std::size_t>(LongueurCaractere(texte), 1);
        if (citation.size() + longueur > montre) return citation + "...";
        citation += EstCommande(texte.front()) ? "?" : texte.substr(0, longueur);
        texte.remove_prefix(longueur);
    }
    return citation;
}

/// The text of the file, empty when there is none; an error when it can be no configuration.
Resultat<std::string> LireTexte(const std::filesystem::path& fichier) {
    if (!NomPresent(fichier)) return std::string();
    Resultat<std::string> lu = LireFichier(fichier, TailleMax);
    if (!lu) return lu;
    std::string_view reste = *lu;
    while (!reste.empty()) {
        const std::size_t longueur = reste.front() == '\0' ? 0 : LongueurCaractere(reste);
        if (longueur == 0) {
            return Erreur{fmt::format("« {} » n'est pas un fichier de texte UTF-8 (octet {}).",
                                      fichier.string(), lu->size() - reste.size() + 1)};
        }
        reste.remove_prefix(longueur);
    }
    return lu;
}

/// The sections and keys of a text; bad lines go to `anomalies`.
void Charger(std::string_view texte, CSimpleIniA& ini, std::vector<std::string>& anomalies) {
    using enum Ligne::Genre;
    std::string saines;
    std::size_t numero = 0;
    std::size_t autres = 0;
    for (const std::string& ligne : SeparerLignes(SansMarqueOctets(texte))) {
        ++numero;
        const Ligne::Genre genre = Classer(ligne).genre;
        if (genre == Section || genre == Cle) saines.append(Rogner(ligne)).append(1, '\n');
        // What stands under a broken heading belongs to no section rather than to the one before.
        if (genre == SectionBrisee) saines += "[]\n";
        if (genre != SectionBrisee && genre != Rien) continue;
        if (anomalies.size() == LignesNommees) {
            ++autres;
        } else {
            anomalies.push_back(
                fmt::format("ligne {} : « {} » n'est ni une section, ni une clé, ni un commentaire",
                            numero, CiterValeur(Rogner(ligne))));
        }
    }
    if (autres > 0) anomalies.push_back(fmt::format("et {} autres lignes de même", autres));
    ini.LoadData(saines);
}

/// `texte` with one key changed; all other lines stay as they are, byte by byte.
std::string Changer(std::string_view texte, std::string_view section, std::string_view cle,
                    std::string_view valeur) {
    using enum Ligne::Genre;
    const std::string_view corps = SansMarqueOctets(texte);
    const std::string_view marque = texte.substr(0, texte.size() - corps.size());
    std::vector<std::string> lignes = SeparerLignes(corps);
    const char* const fin = !lignes.empty() && lignes.front().ends_with("\r\n") ? "\r\n" : "\n";
    if (!lignes.empty() && !lignes.back().ends_with('\n')) lignes.back() += fin;

    std::optional<std::size_t> trouvee;  // the last one counts when a key stands twice
    std::optional<std::size_t> apres;    // last line of the section that is not blank
    bool dedans = false;
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        const Ligne ligne = Classer(lignes[i]);
        if (ligne.genre == Section || ligne.genre == SectionBrisee) {
            dedans = ligne.genre == Section && MemeNom(ligne.nom, section);
        }
        if (!dedans) continue;
        if (ligne.genre != Vide) apres = i + 1;
        if (ligne.genre == Cle && MemeNom(ligne.nom, cle)) trouvee = i;
    }
    std::string nouvelle = fmt::format("{}={}{}", cle, valeur, fin);
    if (trouvee) {
        lignes[*trouvee] = std::move(nouvelle);
    } else if (apres) {
        lignes.insert(lignes.begin() + static_cast<std::ptrdiff_t>(*apres), std::move(nouvelle));
    } else {
        if (!lignes.empty()) lignes.emplace_back(fin);
        lignes.push_back(fmt::format("[{}]{}", section, fin));
        lignes.push_back(std::move(nouvelle));
    }
    return fmt::format("{}{}", marque, fmt::join(lignes, ""));
}

}  // namespace

struct Configuration::Donnees {
    std::filesystem::path fichier;
};

Configuration::~Configuration() = default;
Configuration::Configuration(Configuration&&) noexcept = default;
Configuration& Configuration::operator=(Configuration&&) noexcept = default;

Configuration::Configuration(std::filesystem::path fichier)
    : d_(std::make_unique<Donnees>(Donnees{std::move(fichier)})) {
    const Resultat<std::string> texte = LireTexte(d_->fichier);
    if (!texte) {
        anomalies.push_back(texte.erreur());
        return;
    }
    CSimpleIniA ini;
    Charger(*texte, ini, anomalies);
    for (const Cle& cle : Cles) {
        const char* valeur = ini.GetValue(cle.section, cle.nom);
        if (valeur == nullptr) continue;
        const std::string defaut = cle.lire(valeur, reglages);
        if (!defaut.empty()) {
            anomalies.push_back(fmt::format("[{}] {} : « {} » {}", cle.section, cle.nom,
                                            CiterValeur(valeur), defaut));
        }
    }
}

std::string Configuration::avertissement() const {
    if (anomalies.empty()) return {};
    constexpr std::size_t citees = 3;
    const auto debut = std::span(anomalies).first(std::min(anomalies.size(), citees));
    return fmt::format(
        "Le fichier NORVANE.INI contient des valeurs inutilisables ({}{}) : les valeurs par défaut "
        "les remplacent et le fichier reste tel quel, corrigez-le si besoin.",
        fmt::join(debut, " ; "), anomalies.size() > citees ? " ; …" : "");
}

Resultat<Rien> Configuration::ecrire(const std::string& section, const std::string& cle,
                                     const std::string& valeur) {
    const auto refus = [&](std::string_view cause) {
        return Erreur{fmt::format("Impossible d'enregistrer [{}] {} : {}", CiterValeur(section),
                                  CiterValeur(cle), cause)};
    };
    Reglages nouveaux = reglages;
    for (const Cle& connue : Cles) {
        if (!MemeNom(connue.section, section) || !MemeNom(connue.nom, cle)) continue;
        const std::string defaut = connue.lire(valeur, nouveaux);
        if (!defaut.empty()) return refus(fmt::format("« {} » {}.", CiterValeur(valeur), defaut));
    }
    // The file is read anew: the user may have edited it since the start.
    const Resultat<std::string> ancien = LireTexte(d_->fichier);
    if (!ancien) return refus(ancien.erreur());
    const std::string texte = Changer(*ancien, section, cle, valeur);

    // Nothing is written that would not be read back as it was given.
    std::vector<std::string> avant;
    std::vector<std::string> apres;
    CSimpleIniA iniAvant;
    CSimpleIniA iniApres;
    Charger(*ancien, iniAvant, avant);
    Charger(texte, iniApres, apres);
    const char* relue = iniApres.GetValue(section.c_str(), cle.c_str());
    const bool multiple = std::ranges::any_of(section + cle + valeur, EstCommande);
    if (relue == nullptr || relue != valeur || multiple || apres.size() != avant.size() ||
        texte.size() > TailleMax) {
        return refus("ce nom ou cette valeur ne tient pas sur une ligne du fichier.");
    }
    Resultat<Rien> ecrit = EcrireFichier(d_->fichier, texte);
    if (ecrit) reglages = nouveaux;
    return ecrit;
}

}  // namespace norvane
