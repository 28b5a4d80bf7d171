// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The text of a list of tickets of numbers and chances, and its files.
#include <fmt/format.h>

#include <charconv>

#include "base/Fichiers.h"
#include "base/Textes.h"
#include "tickets/ListesNC.h"

namespace norvane {

namespace {

/// Well above the lines of every combination of five numbers.
constexpr std::uint64_t TailleMax = std::uint64_t{192} << 20;

constexpr std::string_view EnTeteNumeros = "N:";
constexpr std::string_view EnTeteChances = "C:";
constexpr std::string_view Blancs = " \t\r";

void EcrireValeurs(std::string& texte, Ensemble valeurs) {
    for (const int valeur : valeurs) {
        texte += static_cast<char>('0' + valeur / 10);
        texte += static_cast<char>('0' + valeur % 10);
        texte += ' ';
    }
}

void EcrireLigne(std::string& texte, const LigneNC& ligne) {
    (texte += EnTeteNumeros) += ' ';
    EcrireValeurs(texte, ligne.numeros);
    ((texte += "  ") += EnTeteChances) += ' ';
    EcrireValeurs(texte, ligne.chances);
}

Erreur AutreForme(std::string_view ligne) {
    return {fmt::format("« {} » n'a pas la forme « N: 03 14 25 31 44   C: 02 07 »", Citer(ligne))};
}

/// What stands before the next blank; `reste` is what follows it.
std::string_view MotSuivant(std::string_view& reste) {
    reste.remove_prefix(std::min(reste.find_first_not_of(Blancs), reste.size()));
    const std::string_view mot = reste.substr(0, reste.find_first_of(Blancs));
    reste.remove_prefix(mot.size());
    return mot;
}

/// The lines of a text one by one, with what is wrong in one.
class Lecture {
 public:
    explicit Lecture(std::string_view texte) : reste_(texte) {}

    bool finie() const { return reste_.empty(); }
    int ligne() const { return ligne_; }

    Resultat<LigneNC> lire() {
        ++ligne_;
        const std::string_view texte = reste_.substr(0, reste_.find('\n'));
        reste_.remove_prefix(std::min(texte.size() + 1, reste_.size()));
        std::string_view mots = texte;
        if (MotSuivant(mots) != EnTeteNumeros) return AutreForme(texte);
        LigneNC ligne;
        Ensemble* ou = &ligne.numeros;
        for (auto mot = MotSuivant(mots); !mot.empty(); mot = MotSuivant(mots)) {
            if (mot == EnTeteChances && ou == &ligne.numeros) {
                ou = &ligne.chances;
                continue;
            }
            const bool numero = ou == &ligne.numeros;
            if (auto prise = prendre(*ou, mot, numero ? NumeroMax : ChanceMax, numero); !prise)
                return prise.erreur().empty() ? AutreForme(texte) : Erreur{prise.erreur()};
        }
        if (ou == &ligne.numeros) return AutreForme(texte);
        return ligne;
    }

 private:
    /// Two digits above those before; an error without a word for any other text.
    static Resultat<Rien> prendre(Ensemble& valeurs, std::string_view mot, int max, bool numero) {
        int valeur = 0;
        const auto lu = std::from_chars(mot.data(), mot.data() + mot.size(), valeur);
        if (mot.size() != 2 || lu.ec != std::errc{} || lu.ptr != mot.data() + mot.size())
            return Erreur{};
        if (valeur < 1 || valeur > max)
            return Erreur{
                numero
                    ? fmt::format("le numéro {} n'existe pas, ils vont de 1 à {}", valeur, max)
                    : fmt::format("la chance {} n'existe pas, elles vont de 1 à {}", valeur, max)};
        if (valeurs.bits() >= MasqueNumero(valeur))
            return Erreur{fmt::format("{} {} n'est pas à sa place, l'ordre est croissant",
                                      numero ? "le numéro" : "la chance", valeur)};
        valeurs.ajouter(valeur);
        return Rien{};
    }

    std::string_view reste_;
    int ligne_ = 0;
};

/// What keeps a line from standing behind the others; empty for nothing.
std::string Obstacle(const LigneNC& ligne, const std::vector<LigneNC>& liste) {
    const TypeGrille type = ligne.type();
    if (TableMises(type.n, type.c) <= MiseIncomplete)
        return fmt::format("une grille {} n'est pas vendue", LibelleType(type));
    if (!liste.empty() && type != liste.front().type())
        return fmt::format("une grille {} dans une liste de {}, une liste n'a qu'un type",
                           LibelleType(type), LibelleType(liste.front().type()));
    return {};
}

}  // namespace

std::string TexteLigneNC(const LigneNC& ligne) {
    std::string texte;
    EcrireLigne(texte, ligne);
    return texte;
}

std::string TexteListeNC(std::span<const LigneNC> liste) {
    std::string texte;
    for (const LigneNC& ligne : liste) {
        EcrireLigne(texte, ligne);
        texte += '\n';
        // All lines of a list are as long as the first.
        if (&ligne == &liste.front()) texte.reserve(texte.size() * liste.size());
    }
    return texte;
}

Resultat<std::vector<LigneNC>> LireListeNC(std::string_view texte) {
    texte = SansMarqueOctets(texte);
    texte = texte.substr(0, texte.find_last_not_of(" \t\r\n") + 1);
    if (texte.empty())
        return Erreur{
            "la ligne 1 manque, ce n'est pas une liste de numéros et chances : choisissez un autre "
            "fichier."};
    std::vector<LigneNC> liste;
    for (Lecture lecture(texte); !lecture.finie();) {
        const auto ligne = lecture.lire();
        const std::string obstacle = ligne ? Obstacle(*ligne, liste) : ligne.erreur();
        if (!obstacle.empty())
            return Erreur{fmt::format("ligne {}, {} : corrigez cette ligne, puis rouvrez la liste.",
                                      lecture.ligne(), obstacle)};
        liste.push_back(*ligne);
    }
    return liste;
}

Resultat<std::vector<LigneNC>> ChargerListeNC(const std::filesystem::path& fichier) {
    const auto texte = LireFichier(fichier, TailleMax);
    if (!texte) return Erreur{texte.erreur()};
    auto liste = LireListeNC(*texte);
    if (!liste) return Erreur{fmt::format("« {} » : {}", fichier.string(), liste.erreur())};
    return liste;
}

Resultat<Rien> EnregistrerListeNC(std::span<const LigneNC> liste,
                                  const std::filesystem::path& fichier) {
    return EcrireFichier(fichier, TexteListeNC(liste));
}

}  // namespace norvane
