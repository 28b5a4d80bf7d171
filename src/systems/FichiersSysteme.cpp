// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "systems/FichiersSysteme.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "base/Archive.h"
#include "base/Fichiers.h"
#include "base/Textes.h"
#include "base/Tirage.h"
#include "Chiffre.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t TailleMax = std::uint64_t{64} << 20;
constexpr int NumerosGrilleMin = 2;
constexpr int NumerosGrilleMax = 10;
constexpr const char* Chiffree = ".tmp";

/// Walks over the words of a text and knows the line it is on.
class Lecteur {
 public:
    Lecteur(std::string_view texte, std::string_view separateurs)
        : texte_(texte), separateurs_(separateurs) {}

    int ligne() const { return ligne_; }
    /// The next word; nothing at the end.
    std::optional<std::string_view> mot() {
        passer(separateurs_);
        if (texte_.empty()) return std::nullopt;
        const std::size_t fin = std::min(texte_.find_first_of(separateurs_), texte_.size());
        const std::string_view lu = texte_.substr(0, fin);
        texte_.remove_prefix(fin);
        return lu;
    }
    /// The next word as a number of min..max.
    std::optional<int> nombre(int min, int max) {
        const auto lu = mot();
        return lu ? Entier(*lu, min, max) : std::nullopt;
    }
    static std::optional<int> Entier(std::string_view mot, int min, int max) {
        int n = 0;
        const auto [fin, erreur] = std::from_chars(mot.data(), mot.data() + mot.size(), n);
        if (erreur != std::errc{} || fin != mot.data() + mot.size() || n < min || n > max)
            return std::nullopt;
        return n;
    }

 private:
    void passer(std::string_view blancs) {
        while (!texte_.empty() && blancs.find(texte_.front()) != std::string_view::npos) {
            if (texte_.front() == '\n') ++ligne_;
            texte_.remove_prefix(1);
        }
    }

    std::string_view texte_, separateurs_;
    int ligne_ = 1;
};

constexpr std::string_view Blancs = " \t\r\n";

/// `taille` distinct numbers of 1..49.
std::optional<Ensemble> LireEnsemble(Lecteur& lecteur, int taille) {
    Ensemble ensemble;
    for (int i = 0; i < taille; ++i) {
        const auto n = lecteur.nombre(1, NumeroMax);
        if (!n || ensemble.contient(*n)) return std::nullopt;
        ensemble.ajouter(*n);
    }
    return ensemble;
}

/// A line of a text from outside.
struct LigneTexte {
    Ensemble grille;
    bool titre = false;  ///< words and no number
    std::string faute;   ///< why it is no grid; empty when it is one, or blank
};

LigneTexte LireLigneTexte(std::string_view ligne) {
    Lecteur lecteur(ligne, " \t\r,;");
    LigneTexte lue;
    bool mots = false;
    while (const auto mot = lecteur.mot()) {
        const auto n = Lecteur::Entier(*mot, 1, NumeroMax);
        if (!n) mots = true;
        if (!n && lue.faute.empty())
            lue.faute = fmt::format("{} n'est pas un numéro de 1 à 49", Citer(*mot));
        if (n && lue.grille.contient(*n) && lue.faute.empty())
            lue.faute = fmt::format("le numéro {} y est deux fois", *n);
        if (n) lue.grille.ajouter(*n);
    }
    lue.titre = mots && lue.grille.vide() && ligne.find_first_of("0123456789") == ligne.npos;
    const int taille = lue.grille.taille();
    if (lue.faute.empty() && taille != 0 &&
        (taille < NumerosGrilleMin || taille > NumerosGrilleMax))
        lue.faute = fmt::format("une grille compte de {} à {} numéros, pas {}", NumerosGrilleMin,
                                NumerosGrilleMax, taille);
    return lue;
}

std::optional<SystemeDisponible> LireParametres(Lecteur& lecteur) {
    const auto grilles = lecteur.nombre(1, GrillesSystemeMax);
    const auto taille = lecteur.nombre(NumerosGrilleMin, NumerosGrilleMax);
    const auto selection = lecteur.nombre(1, NumeroMax);
    const auto base = lecteur.nombre(0, BaseSystemeMax);
    const auto x = lecteur.nombre(1, NbBoules);
    const auto y = lecteur.nombre(1, NbBoules);
    if (!grilles || !taille || !selection || !base || !x || !y) return std::nullopt;
    if (*selection < *taille || *x > *y) return std::nullopt;
    return SystemeDisponible{*taille, *selection, *base, *x, *y, *grilles};
}

}  // namespace

std::string TexteSysteme(const Systeme& systeme) {
    const SystemeDisponible& p = systeme.parametres;
    std::string texte = fmt::format("{} {} {} {} {} {}\n", p.Grilles, p.NumerosParGrille,
                                    p.Selection, p.Base, p.GarantieX, p.GarantieY);
    const auto ligne = [&](const auto& numeros) {
        for (const int n : numeros) fmt::format_to(std::back_inserter(texte), "{} ", n);
        texte += '\n';
    };
    ligne(systeme.numeros);
    ligne(systeme.base);
    for (std::size_t i = 0; i < systeme.nombre(); ++i) ligne(systeme.grille(i));
    return texte;
}

Resultat<Systeme> LireTexteSysteme(std::string_view texte, std::string_view nom) {
    Lecteur lecteur(texte, Blancs);
    const auto refuser = [&](const char* quoi) {
        return Erreur{fmt::format(
            "« {} », ligne {} : {}. Le système en mémoire reste ; choisissez un autre fichier.",
            nom, lecteur.ligne(), quoi)};
    };
    Systeme systeme;
    const auto parametres = LireParametres(lecteur);
    if (!parametres) return refuser("les paramètres du système ne sont pas lisibles");
    systeme.parametres = *parametres;
    const auto numeros = LireEnsemble(lecteur, parametres->Selection - parametres->Base);
    const auto base = numeros ? LireEnsemble(lecteur, parametres->Base) : std::nullopt;
    if (!base || !numeros->commun(*base).vide())
        return refuser("la sélection n'est pas faite de numéros différents de 1 à 49");
    systeme.numeros = *numeros;
    systeme.base = *base;
    const Ensemble selection = numeros->avec(*base);
    for (int i = 0; i < parametres->Grilles; ++i) {
        Ensemble grille;
        for (int k = 0; k < parametres->NumerosParGrille; ++k) {
            const auto n = lecteur.nombre(1, NumeroMax);
            if (!n || grille.contient(*n) || !selection.contient(*n))
                return refuser("une grille manque, ou tient un numéro hors de la sélection");
            grille.ajouter(*n);
            systeme.grilles.push_back(*n);
        }
    }
    if (lecteur.mot()) return refuser("il y a plus de grilles que la première ligne n'en annonce");
    return systeme;
}

Resultat<Rien> SauverSysteme(const fs::path& chemin, const Systeme& systeme, const Suivi& suivi) {
    if (systeme.IndicateurImporte != 0)
        return Erreur{"Un système externe ne peut être sauvegardé au format *.syr."};
    auto chiffre = Chiffrer(TexteSysteme(systeme));
    if (!chiffre) return Erreur{chiffre.erreur()};
    const MembreArchive membre{chemin.filename().string() + Chiffree, *std::move(chiffre)};
    constexpr int Niveau = 6;
    const auto archive = FaireArchive(std::span(&membre, 1), Niveau, suivi);
    if (!archive) return Erreur{archive.erreur()};
    return EcrireFichier(chemin, *archive);
}

Resultat<Systeme> ChargerSysteme(const fs::path& chemin, const Suivi& suivi) {
    const std::string nom = chemin.filename().string();
    auto membre = LireFichierArchive(chemin, TailleMax, suivi);
    if (!membre) return Erreur{membre.erreur()};
    if (membre->nom.ends_with(Chiffree)) {
        auto clair = Dechiffrer(membre->contenu);
        if (!clair) return Erreur{fmt::format("« {} » : {}", nom, clair.erreur())};
        membre->contenu = *std::move(clair);
    }
    return LireTexteSysteme(membre->contenu, nom);
}

std::string TexteGrilles(const Systeme& systeme) {
    std::string texte;
    for (std::size_t i = 0; i < systeme.nombre(); ++i)
        fmt::format_to(std::back_inserter(texte), "{:02}\n", fmt::join(systeme.grille(i), " "));
    return texte;
}

Resultat<Systeme> LireTexteGrilles(std::string_view texte, std::string_view nom) {
    texte = SansMarqueOctets(texte);
    Systeme systeme;
    systeme.parametres = {0, 0, 0, 0, 0, 0};
    std::int32_t& taille = systeme.parametres.NumerosParGrille;
    for (int numero = 1; !texte.empty(); ++numero) {
        const std::string_view ligne = texte.substr(0, texte.find('\n'));
        texte.remove_prefix(std::min(ligne.size() + 1, texte.size()));
        const LigneTexte lue = LireLigneTexte(ligne);
        if (lue.titre && numero == 1) continue;
        std::string faute = lue.faute;
        if (faute.empty() && lue.grille.vide()) continue;
        if (faute.empty() && taille != 0 && taille != lue.grille.taille())
            faute = fmt::format("elle compte {} numéros, celles d'avant {}", lue.grille.taille(),
                                taille);
        if (!faute.empty())
            return Erreur{fmt::format("« {} », ligne {} : {}. Corrigez-la et recommencez.", nom,
                                      numero, faute)};
        taille = lue.grille.taille();
        systeme.numeros = systeme.numeros.avec(lue.grille);
        systeme.grilles.insert(systeme.grilles.end(), lue.grille.begin(), lue.grille.end());
    }
    if (systeme.vide())
        return Erreur{
            fmt::format("« {} » ne contient aucune grille : il en faut une par ligne.", nom)};
    systeme.parametres.Selection = systeme.numeros.taille();
    systeme.parametres.Grilles = static_cast<std::int32_t>(systeme.nombre());
    systeme.IndicateurImporte = systeme.parametres.Grilles;
    systeme.NumerosParGrilleImporte = taille;
    return systeme;
}

Resultat<Systeme> ImporterSysteme(const fs::path& chemin) {
    const auto texte = LireFichier(chemin, TailleMax);
    if (!texte) return Erreur{texte.erreur()};
    return LireTexteGrilles(*texte, chemin.filename().string());
}

}  // namespace norvane
