// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The readers of ticket files. A text is taken whole or refused whole.
#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "base/Fichiers.h"
#include "base/Textes.h"
#include "tickets/FichiersGrilles.h"

namespace norvane {

namespace {

constexpr std::string_view Blancs = " \t\n\r\f\v";
constexpr double MiseMax = 1e9;  ///< euros; sums over a whole list stay exact in ten-thousandths
/// The shortest grid and the shortest Joker+ line of a text, in bytes, blanks included.
constexpr std::size_t OctetsGrille = 6;
constexpr std::size_t OctetsJoker = 16;

/// Takes the fields of a text one by one. Each call tells whether its field was sound; after one
/// that was not, refus() says why.
class Lecteur {
 public:
    explicit Lecteur(std::string_view texte) : reste_(SansMarqueOctets(texte)) {}

    std::size_t octetsRestants() const { return reste_.size(); }
    /// What the coming fields belong to, `rang` counted from one: "grille", 3.
    void situer(const char* objet, std::size_t rang) { objet_ = objet, rang_ = rang; }

    bool nombre(double& valeur, std::string_view quoi, double min, double max) {
        return avancer(quoi) && convertir(mot_, valeur, quoi, min, max);
    }

    /// As nombre, but the decimals may also stand behind a comma, as a hand writes them.
    bool montant(double& valeur, std::string_view quoi, double min, double max) {
        if (!avancer(quoi)) return false;
        std::string champ(mot_);
        if (const auto virgule = champ.find(','); virgule != champ.npos) champ[virgule] = '.';
        return convertir(champ, valeur, quoi, min, max);
    }

    bool entier(int& valeur, std::string_view quoi, int min, int max) {
        double lu = 0;
        if (!nombre(lu, quoi, min, max)) return false;
        if (lu != std::floor(lu))
            return refuser(fmt::format("{} est un nombre entier, pas « {} »", quoi, Citer(mot_)));
        valeur = static_cast<int>(lu);
        return true;
    }

    /// As entier, but what stands behind the point is cut off.
    bool tronque(std::int32_t& valeur, std::string_view quoi, int min, int max) {
        double lu = 0;
        if (!nombre(lu, quoi, min, max + 0.999999)) return false;
        valeur = static_cast<std::int32_t>(lu);
        return true;
    }

    /// True when nothing but blanks is left.
    bool fin() {
        rang_ = 0;
        return !avancer() || refuser(fmt::format("« {} » est de trop à la fin", Citer(mot_)));
    }

    bool refuser(std::string defaut) {
        defaut_ = std::move(defaut);
        return false;
    }

    Erreur refus(std::string_view document) const {
        const std::string lieu = rang_ == 0 ? "" : fmt::format(", {} {}", objet_, rang_);
        return {fmt::format("{} à la ligne {}{} : {} ; corrigez le fichier puis recommencez.",
                            document, ligne_, lieu, defaut_)};
    }

 private:
    bool convertir(std::string_view champ, double& valeur, std::string_view quoi, double min,
                   double max) {
        const char* fin = champ.data() + champ.size();
        const auto lu = std::from_chars(champ.data(), fin, valeur);
        // from_chars also takes "inf" and "nan".
        if (lu.ec != std::errc{} || lu.ptr != fin || !std::isfinite(valeur))
            return refuser(fmt::format("{} est un nombre, pas « {} »", quoi, Citer(mot_)));
        if (valeur < min || valeur > max)
            return refuser(fmt::format("{} va de {} à {}, pas « {} »", quoi, min, std::floor(max),
                                       Citer(mot_)));
        return true;
    }

    /// The next field, which is to hold `quoi`.
    bool avancer(std::string_view quoi) {
        return avancer() || refuser(fmt::format("il manque {}, le texte s'arrête là", quoi));
    }

    bool avancer() {
        const std::size_t debut = std::min(reste_.find_first_not_of(Blancs), reste_.size());
        ligne_ += static_cast<std::size_t>(
            std::count(reste_.begin(), reste_.begin() + static_cast<std::ptrdiff_t>(debut), '\n'));
        reste_.remove_prefix(debut);
        mot_ = reste_.substr(0, reste_.find_first_of(Blancs));
        reste_.remove_prefix(mot_.size());
        return !mot_.empty();
    }

    std::string_view reste_;
    std::string_view mot_;  ///< the last field taken
    std::size_t ligne_ = 1;
    const char* objet_ = "";
    std::size_t rang_ = 0;  ///< 0: no object in particular
    std::string defaut_;
};

/// How a ticket tells its numbers, or its chances: a count, then so many different values.
struct Genre {
    const char* combien;
    const char* valeur;
    const char* repetee;
};
constexpr Genre Numeros = {"le nombre de numéros", "un numéro", "répété"};
constexpr Genre Chances = {"le nombre de chances", "une chance", "répétée"};

template <int Max>
bool LireValeurs(Lecteur& lecteur, const Genre& genre, Cochees<Max>& valeurs) {
    int nombre = 0;
    if (!lecteur.entier(nombre, genre.combien, 0, Max)) return false;
    for (int i = 0; i < nombre; ++i) {
        int valeur = 0;
        if (!lecteur.entier(valeur, genre.valeur, 1, Max)) return false;
        if (valeurs.contient(valeur))
            return lecteur.refuser(
                fmt::format("{} ({}) est {}", genre.valeur, valeur, genre.repetee));
        valeurs.cocher(valeur);
    }
    return true;
}

bool LireGrille(Lecteur& lecteur, std::vector<Grille>& grilles) {
    Grille& grille = grilles.emplace_back();
    return lecteur.montant(grille.mise, "la mise", 0, MiseMax) &&
           LireValeurs(lecteur, Numeros, grille.numeros) &&
           LireValeurs(lecteur, Chances, grille.chances);
}

bool LireJoker(Lecteur& lecteur, std::vector<LigneJoker>& jokers) {
    LigneJoker ligne{};
    for (std::int32_t& chiffre : ligne.chiffres)
        if (!lecteur.tronque(chiffre, "un chiffre", 0, 9)) return false;
    if (!lecteur.tronque(ligne.code, "le code de mise", 1, 4)) return false;
    jokers.push_back(ligne);
    return true;
}

/// A count, then so many elements; room is made for no more than the text can hold.
template <typename Element>
bool LireListe(Lecteur& lecteur, const char* combien, int max, const char* objet,
               std::size_t octets, bool (*lire)(Lecteur&, std::vector<Element>&),
               std::vector<Element>& liste) {
    int nombre = 0;
    lecteur.situer(objet, 0);
    if (!lecteur.entier(nombre, combien, 0, max)) return false;
    const auto taille = static_cast<std::size_t>(nombre);
    liste.reserve(std::min(taille, lecteur.octetsRestants() / octets + 1));
    for (std::size_t i = 1; i <= taille; ++i) {
        lecteur.situer(objet, i);
        if (!lire(lecteur, liste)) return false;
    }
    return true;
}

bool LireCorps(Lecteur& lecteur, std::vector<Grille>& grilles) {
    return LireListe(lecteur, "le nombre de grilles", NbGrillesMax, "grille", OctetsGrille,
                     LireGrille, grilles);
}

bool LireJokers(Lecteur& lecteur, std::vector<LigneJoker>& jokers) {
    return LireListe(lecteur, "le nombre de Joker+", std::numeric_limits<std::int32_t>::max(),
                     "Joker+", OctetsJoker, LireJoker, jokers);
}

}  // namespace

Resultat<std::vector<Grille>> LireGrilles(std::string_view texte) {
    Lecteur lecteur(texte);
    std::vector<Grille> grilles;
    if (!LireCorps(lecteur, grilles) || !lecteur.fin())
        return lecteur.refus("La liste de grilles est refusée");
    return grilles;
}

Resultat<RecuDeJeu> LireRecu(std::string_view texte) {
    Lecteur lecteur(texte);
    RecuDeJeu recu;
    if (!LireCorps(lecteur, recu.grilles) || !LireJokers(lecteur, recu.jokers) || !lecteur.fin())
        return lecteur.refus("Le reçu de jeu est refusé");
    return recu;
}

}  // namespace norvane
