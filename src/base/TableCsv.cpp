// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/TableCsv.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <ostream>
#include <string>

#include "base/Fichiers.h"
#include "base/Textes.h"
#include "Controle.h"

namespace norvane {

namespace {

constexpr std::string_view Titre =
    "date;sous_tirage;annee_numero;n1;n2;n3;n4;n5;chance;forclusion;joker;"
    "g1;r1;g2;r2;g3;r3;g4;r4;g5;r5;g6;r6;g7;r7;g8;r8;g9;r9";
constexpr std::size_t NbChamps = 29;

/// Name of a column, as the heading has it.
std::string_view NomChamp(std::size_t colonne) {
    std::string_view reste = Titre;
    for (; colonne > 0; --colonne) reste.remove_prefix(reste.find(';') + 1);
    return reste.substr(0, reste.find(';'));
}

/// One line being taken apart: the fields in turn, and the first complaint.
class Lecteur {
 public:
    explicit Lecteur(std::string_view ligne) : reste_(ligne) {}

    std::int32_t entier(std::int32_t siVide, bool vidable) {
        const std::string_view champ = suivant();
        std::int32_t n = siVide;
        if (vidable && champ.empty()) return n;
        verifier(champ, std::from_chars(champ.data(), champ.data() + champ.size(), n),
                 "un nombre entier");
        return n;
    }
    std::int32_t entier() { return entier(0, false); }

    double montant() {
        const std::string_view champ = suivant();
        double x = 0.0;
        verifier(
            champ,
            std::from_chars(champ.data(), champ.data() + champ.size(), x, std::chars_format::fixed),
            "un montant");
        return x;
    }

    /// The complaint, empty when every field was sound.
    std::string defaut() {
        if (defaut_.empty() && (manque_ || !fini_)) {
            defaut_ = fmt::format("il faut {} champs séparés par « ; »", NbChamps);
        }
        return defaut_;
    }

 private:
    std::string_view suivant() {
        ++colonne_;
        if (fini_) {
            manque_ = true;
            return {};
        }
        const std::size_t fin = std::min(reste_.find(';'), reste_.size());
        const std::string_view champ = reste_.substr(0, fin);
        fini_ = fin == reste_.size();
        if (!fini_) reste_.remove_prefix(fin + 1);
        return champ;
    }

    void verifier(std::string_view champ, std::from_chars_result lu, std::string_view attendu) {
        // from_chars also takes a sign, "inf" and "nan", which have no place here.
        const bool sain = lu.ec == std::errc{} && lu.ptr == champ.data() + champ.size() &&
                          champ.front() >= '0' && champ.front() <= '9';
        if (sain || manque_ || !defaut_.empty()) return;
        defaut_ = fmt::format("{} contient « {} », il faut {}", NomChamp(colonne_ - 1),
                              Citer(champ), attendu);
    }

    std::string_view reste_;
    std::size_t colonne_ = 0;
    bool fini_ = false;
    bool manque_ = false;
    std::string defaut_;
};

/// Reads one line into the record and its prizes; gives the complaint.
std::string LireLigne(std::string_view ligne, Tirage& tirage, RapportsTirage& rapports) {
    Lecteur lecteur(ligne);
    tirage.DateTirage = lecteur.entier();
    tirage.SousTirage = lecteur.entier();
    tirage.AnneeNumero = lecteur.entier();
    for (std::int32_t& numero : tirage.Numeros) numero = lecteur.entier();
    tirage.Chance = lecteur.entier();
    tirage.DateForclusion = lecteur.entier(0, true);
    tirage.Joker = lecteur.entier(JokerAbsent, true);
    for (Rapport& rapport : rapports) {
        rapport.Gagnants = lecteur.montant();
        rapport.Gain = lecteur.montant();
    }
    std::string defaut = lecteur.defaut();
    return defaut.empty() ? DefautTirage(tirage, rapports) : defaut;
}

/// Takes the next line off `texte`, without its end.
std::string_view PrendreLigne(std::string_view& texte) {
    const std::size_t fin = std::min(texte.find('\n'), texte.size());
    std::string_view ligne = texte.substr(0, fin);
    texte.remove_prefix(std::min(fin + 1, texte.size()));
    if (ligne.ends_with('\r')) ligne.remove_suffix(1);
    return ligne;
}

Erreur Refus(std::size_t ligne, std::string_view defaut) {
    return {
        fmt::format("La table des tirages est refusée à la ligne {} : {} ; corrigez cette "
                    "ligne puis recommencez.",
                    ligne, defaut)};
}

void AjouterMontant(std::string& texte, double x) {
    std::array<char, 400> tampon;
    const auto ecrit =
        std::to_chars(tampon.data(), tampon.data() + tampon.size(), x, std::chars_format::fixed);
    texte.append(tampon.data(), ecrit.ptr);
}

}  // namespace

Resultat<Base> LireTableCsv(std::string_view texte) {
    texte = SansMarqueOctets(texte);
    std::size_t numero = 1;
    if (PrendreLigne(texte) != Titre) {
        return Refus(numero, fmt::format("le titre attendu est « {} »", Titre));
    }
    Base base;
    const auto lignes = static_cast<std::size_t>(std::ranges::count(texte, '\n')) + 1;
    base.Tirages.reserve(std::min<std::size_t>(lignes, NbTiragesMax));
    base.Rapports.reserve(base.Tirages.capacity());
    while (!texte.empty()) {
        ++numero;
        Tirage tirage{};
        RapportsTirage rapports{};
        const std::string defaut = LireLigne(PrendreLigne(texte), tirage, rapports);
        if (!defaut.empty()) return Refus(numero, defaut);
        if (!base.Tirages.empty() && !EstApres(base.Tirages.back(), tirage)) {
            return Refus(numero, "le tirage ne vient pas après celui de la ligne précédente");
        }
        if (base.Tirages.size() == NbTiragesMax) {
            return Refus(numero, fmt::format("la base est limitée à {} tirages", NbTiragesMax));
        }
        base.Tirages.push_back(tirage);
        base.Rapports.push_back(rapports);
    }
    base.NbTirages = static_cast<std::int32_t>(base.Tirages.size());
    base.NbAnciensTirages = CompterAnciensTirages(base.Tirages);
    base.AnciensTirages = base.NbAnciensTirages > 0;
    return base;
}

void EcrireTableCsv(std::ostream& flux, const Base& base, int premier, int dernier) {
    std::string texte(Titre);
    texte += '\n';
    auto suite = std::back_inserter(texte);
    for (int i = premier; i <= dernier; ++i) {
        const auto indice = static_cast<std::size_t>(i);
        const Tirage& t = base.Tirages[indice];
        fmt::format_to(suite, "{};{};{};{};{};", t.DateTirage, t.SousTirage, t.AnneeNumero,
                       fmt::join(t.Numeros, ";"), t.Chance);
        if (t.DateForclusion != 0) fmt::format_to(suite, "{}", t.DateForclusion);
        texte += ';';
        if (t.Joker != JokerAbsent) fmt::format_to(suite, "{:07}", t.Joker);
        for (const Rapport& rapport : base.Rapports[indice]) {
            texte += ';';
            AjouterMontant(texte, rapport.Gagnants);
            texte += ';';
            AjouterMontant(texte, rapport.Gain);
        }
        texte += '\n';
    }
    flux.write(texte.data(), static_cast<std::streamsize>(texte.size()));
}

}  // namespace norvane
