// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "atelier/EditionBase.h"

#include <fmt/format.h>

#include <charconv>
#include <chrono>
#include <cmath>

#include "base/Dates.h"
#include "base/Textes.h"

namespace norvane {

namespace {

constexpr int ChiffresDuJoker = 7;
constexpr int TiragesMin = 2;  ///< below, the program does not start
/// Nothing that is paid or counted comes near.
constexpr double ValeurMax = 1e12;

Refus Attention(std::string phrase, std::string detail = {}) {
    return {Refus::Titre::Attention, std::move(phrase), std::move(detail)};
}

/// Days from 30 December 1899 to the date two calendar months after `date`.
int JourForclusion(int date) {
    using namespace std::chrono;
    year_month_day fin = EntierEnDate(date) + months(2);
    if (!fin.ok()) fin = fin.year() / fin.month() / last;
    return static_cast<int>((sys_days(fin) - sys_days(year(1899) / 12 / 30)).count());
}

int EnEntier(std::string_view chiffres) {
    int n = 0;
    std::from_chars(chiffres.data(), chiffres.data() + chiffres.size(), n);
    return n;
}

/// The number in the year that a new record takes.
int NumeroPropose(const Base& base, const SaisieTirage& saisie) {
    const auto numero = [&base](int i) {
        return LireNumeroAnnee(base.Tirages[static_cast<std::size_t>(i)].AnneeNumero).numero;
    };
    const int avant = saisie.place - 1;
    const bool suivi = saisie.place < base.NbTirages;
    if (avant < 0) return suivi ? numero(saisie.place) : 1;
    if (saisie.SousTirage == 2) return numero(avant);
    const int annee = base.Tirages[static_cast<std::size_t>(avant)].DateTirage / 10000;
    if (annee == saisie.date / 10000) return numero(avant) + 1;
    return suivi ? numero(saisie.place) : 1;
}

std::string TexteJoker(int joker) {
    return joker == JokerAbsent ? std::string() : FormaterMasque(joker, ChiffresDuJoker);
}

SaisieTirage Reprise(const Base& base, const PlaceTirage& place) {
    const auto i = static_cast<std::size_t>(place.indice);
    const Tirage& t = base.Tirages[i];
    SaisieTirage saisie;
    saisie.place = place.indice;
    saisie.date = t.DateTirage;
    saisie.SousTirage = t.SousTirage;
    saisie.cases = CasesDe(t);
    const auto [annee, numero] = LireNumeroAnnee(t.AnneeNumero);
    saisie.annee = annee;
    saisie.numero = numero;
    saisie.joker = TexteJoker(t.Joker);
    saisie.sansJoker = t.Joker == JokerAbsent;
    for (std::size_t r = 0; r < saisie.rapports.size(); ++r) {
        saisie.rapports[r] = {base.Rapports[i][r].Gagnants, base.Rapports[i][r].Gain};
    }
    return saisie;
}

SaisieTirage Nouvelle(const Base& base, const PlaceTirage& place) {
    SaisieTirage saisie;
    saisie.ajout = true;
    saisie.place = place.precedent + 1;
    saisie.date = place.date;
    saisie.SousTirage = place.SousTirage;
    saisie.annee = place.date / 10000;
    saisie.numero = NumeroPropose(base, saisie);
    saisie.sansJoker = place.date < DateNouveauLoto;
    // Both records of a date carry the same Joker+.
    for (const int voisin : {saisie.place - 1, saisie.place}) {
        if (voisin < 0 || voisin >= base.NbTirages) continue;
        const Tirage& t = base.Tirages[static_cast<std::size_t>(voisin)];
        if (t.DateTirage != saisie.date) continue;
        saisie.joker = TexteJoker(t.Joker);
        saisie.sansJoker = saisie.sansJoker || t.Joker == JokerAbsent;
    }
    return saisie;
}

}  // namespace

Reponse EditionBase::entrer() {
    if (atelier_.FiltreActif) {
        return Attention("La base des tirages est filtrée...",
                         "Revenez à la base totale des tirages avant de la mettre à jour.");
    }
    atelier_.edition = Edition::MiseAJour;
    return {};
}

Reponse EditionBase::ouvrir(const PlaceTirage& place) {
    const bool ajout = place.indice < 0;
    if (ajout && atelier_.base.NbTirages >= NbTiragesMax) {
        return Attention(fmt::format("La base est limitée à {} tirages...", NbTiragesMax));
    }
    saisie_ = ajout ? Nouvelle(atelier_.base, place) : Reprise(atelier_.base, place);
    if (ajout) atelier_.edition = Edition::AjoutLibre;
    return {};
}

void EditionBase::abandonner() {
    saisie_.reset();
    if (!changee_) atelier_.edition = Edition::MiseAJour;
}

Reponse EditionBase::basculer(GenreStats genre, int valeur) {
    Cases& cases = saisie_->cases;
    const bool enPlus = !cases.contient(genre, valeur);
    if (enPlus && genre == GenreStats::Numeros && cases.numeros.taille() == NbBoules) {
        return Attention(fmt::format("Pas plus de {} numéros par tirage...", NbBoules));
    }
    if (enPlus && genre == GenreStats::Chances && !cases.chances.vide()) {
        return Attention("Pas plus d'une chance par tirage...");
    }
    cases.basculer(genre, valeur);
    return {};
}

bool EditionBase::poserRapport(int rang, ColonneRapport colonne, std::string_view texte) {
    RapportSaisi& rapport = saisie_->rapports[static_cast<std::size_t>(rang)];
    const bool compte = colonne == ColonneRapport::Gagnants;
    std::optional<double>& cellule = compte ? rapport.Gagnants : rapport.Gain;
    std::optional<double> valeur;
    if (!Rogner(texte).empty()) {
        valeur = LireMontant(texte);
        if (!valeur || !(*valeur >= 0 && *valeur <= ValeurMax)) return false;
        if (compte && *valeur != std::floor(*valeur)) return false;
        // An amount has cents and nothing below.
        if (!compte) valeur = std::round(*valeur * 100) / 100;
    }
    cellule = valeur;
    return true;
}

void EditionBase::ViderRapports() {
    saisie_->rapports.fill({0.0, 0.0});
}

bool EditionBase::ChampsVidesRapports() const {
    for (int rang = 0; rang < saisie_->rangs(); ++rang) {
        const auto& [gagnants, gain] = saisie_->rapports[static_cast<std::size_t>(rang)];
        if (!gagnants || !gain) return true;
    }
    return false;
}

bool EditionBase::chanceRequise() const {
    if (saisie_->rangs() == NbRangs2nd) return false;
    const Base& base = atelier_.base;
    return base.AnciensTirages || saisie_->place >= base.NbAnciensTirages;
}

Reponse EditionBase::refusValidation() const {
    if (saisie_->cases.numeros.taille() < NbBoules) {
        return Attention(fmt::format("{} numéros par tirage...", NbBoules));
    }
    if (chanceRequise() && saisie_->cases.chances.vide()) {
        return Attention("1 chance par tirage...");
    }
    if (ChampsVidesRapports()) {
        return Attention("Tous les champs du tableau des rapports ne sont pas remplis.",
                         "Veuillez tous les renseigner.");
    }
    return {};
}

Tirage EditionBase::tirage() const {
    Tirage t{};
    std::size_t boule = 0;
    for (const int n : saisie_->cases.numeros) t.Numeros[boule++] = n;
    if (chanceRequise()) t.Chance = *saisie_->cases.chances.begin();
    t.DateForclusion = JourForclusion(saisie_->date);
    t.AnneeNumero = EnEntier(fmt::format("{}{}", saisie_->annee, saisie_->numero));
    t.DateTirage = saisie_->date;
    t.SousTirage = saisie_->SousTirage;
    t.Joker = saisie_->joker.empty() ? JokerAbsent : EnEntier(saisie_->joker);
    return t;
}

IssueValidation EditionBase::valider() {
    using Genre = IssueValidation::Genre;
    if (Reponse refus = refusValidation()) return {Genre::Refuse, -1, std::move(refus)};
    const bool sansJoker = saisie_->sansJoker && saisie_->joker.empty();
    if (!sansJoker && saisie_->joker.size() != ChiffresDuJoker)
        return {Genre::JokerAttendu, -1, {}};

    RapportsTirage rapports{};
    for (std::size_t r = 0; r < static_cast<std::size_t>(saisie_->rangs()); ++r) {
        rapports[r] = {*saisie_->rapports[r].Gagnants, *saisie_->rapports[r].Gain};
    }
    Base& base = atelier_.base;
    const int place = saisie_->place;
    if (saisie_->ajout) {
        InsererTirage(base, place, tirage(), rapports);
    } else {
        base.Tirages[static_cast<std::size_t>(place)] = tirage();
        base.Rapports[static_cast<std::size_t>(place)] = rapports;
    }
    saisie_.reset();
    return {Genre::Fait, place, changer()};
}

IssueBase EditionBase::supprimer(int indice) {
    if (atelier_.base.NbTirages <= TiragesMin) {
        return {false,
                Attention(fmt::format("La base doit contenir au moins {} tirages...", TiragesMin))};
    }
    SupprimerTirage(atelier_.base, indice);
    return {true, changer()};
}

/// After a change of the base: everything that hangs on it, and the disk.
Reponse EditionBase::changer() {
    changee_ = true;
    atelier_.edition = Edition::AjoutLibre;
    const auto sauve = atelier_.sauverBase();
    const auto recalcule = atelier_.recalculer();
    if (sauve && recalcule) return {};
    return Refus{Refus::Titre::Avertissement, sauve ? recalcule.erreur() : sauve.erreur(), {}};
}

}  // namespace norvane
