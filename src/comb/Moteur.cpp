// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/Moteur.h"

#include <fmt/format.h>

#include <system_error>

#include "Avance.h"
#include "comb/Reduction.h"

namespace norvane {

namespace {

constexpr const char* Attendez = "Attendez la fin du traitement en cours...";
constexpr const char* NonCalcule = "NC";

std::size_t Indice(int n) {
    return static_cast<std::size_t>(n);
}

ReponseClic Refus(std::string message) {
    return {ReponseClic::Genre::Refuse, std::move(message), 0};
}

}  // namespace

Moteur::Moteur(const Base& base, const Occurrences& occurrences, EtatCombinaisons& etat,
               std::filesystem::path repertoire, int& TraitementsEnCours, const bool& Disponible)
    : base_(base),
      occ_(occurrences),
      etat_(etat),
      repertoire_(std::move(repertoire)),
      traitements_(TraitementsEnCours),
      disponible_(Disponible) {}

Moteur::~Moteur() {
    if (!fil_) return;
    fil_.reset();
    --traitements_;
}

int Moteur::tailleIntervalle() const {
    return occ_.IntervalleSup - (occ_.IntervalleInf - 1);
}

bool Moteur::intervalleEntier() const {
    return occ_.IntervalleInf == 1 && occ_.IntervalleSup == base_.NbTirages;
}

ContexteComb Moteur::contexte() const {
    return {.base = base_,
            .occurrences = occ_,
            .etat = etat_,
            .selection = selection,
            .IntervalleInf = occ_.IntervalleInf,
            .IntervalleSup = occ_.IntervalleSup,
            .series = series,
            .mode = modeStockage,
            .threads = threads,
            .octetsMax = octetsMax};
}

std::filesystem::path Moteur::fichierListe(int taille) const {
    const char* genre = series ? "succ" : intervalleEntier() ? "comb" : "cmbtmp";
    return repertoire_ / fmt::format("{}{}.dat", genre, taille);
}

ReponseClic Moteur::Cliquer(int taille, int inf, int sup) {
    if (taille == taille_) return arreter();
    if (traitements_ > 0 || !disponible_) return Refus(Attendez);
    switch (modeListe) {
        case ModeListe::Extremes:
            return cliquerExtremes(taille);
        case ModeListe::Bornes:
            return cliquerBornes(taille, inf, sup);
        case ModeListe::Manipulation:
            break;
    }
    return Refus({});  // the buttons are disabled there
}

ReponseClic Moteur::arreter() {
    if (extremes_) etat_.NbTiragesComb[Indice(taille_)] = NbTiragesCombSauve;
    fil_->Terminate();
    return {ReponseClic::Genre::Arrete, {}, 0};
}

ReponseClic Moteur::lancer(int taille, PtrComb fil, int jauge) {
    fil->surFin = surFin;
    debut_ = std::chrono::steady_clock::now();
    collecte_.surProgression = surProgression;
    try {
        fil->Resume();
    } catch (const std::system_error& e) {
        return Refus(fmt::format("Le calcul n'a pas pu être lancé ({}).", e.code().message()));
    }
    fil_ = std::move(fil);
    taille_ = taille;
    ++traitements_;
    return {ReponseClic::Genre::Lance, {}, jauge};
}

/// From size 6 on the state is read as current, whatever it was made on, and a series costs nothing
/// to count: only a list known to belong to these draws is loaded.
bool Moteur::listeDepassee(int taille) const {
    if (taille <= NbBoules) return false;
    if (series || etat_.BorneSup[Indice(taille)] == 0) return true;
    if (intervalleEntier() && etat_.NbTiragesPerime[Indice(taille)]) return true;
    std::error_code erreur;
    return !std::filesystem::exists(fichierListe(taille), erreur);
}

ReponseClic Moteur::cliquerExtremes(int taille) {
    const int calcules = etat_.NbTiragesComb[Indice(taille)];
    if (tailleIntervalle() < calcules && !series) return AvancerExtremes(taille);
    if (tailleIntervalle() != calcules || listeDepassee(taille)) return calculerExtremes(taille);

    auto stockees = LireListe(fichierListe(taille), taille);
    if (!stockees) return Refus(stockees.erreur());
    // A full list was cut when it was stored: only a run tells how many there are.
    if (stockees->size() == CapaciteListe) return calculerExtremes(taille);
    lignes = *std::move(stockees);
    nombreLignes = lignes.size();
    return {ReponseClic::Genre::Affiche, {}, 0};
}

ReponseClic Moteur::calculerExtremes(int taille) {
    collecte_.vider();
    auto fil = CreerRechercheExtremes(contexte(), collecte_, taille);
    terminer_ = [this, &recherche = *fil](FinTraitement& fin) { finirExtremes(recherche, fin); };
    const auto reponse = lancer(taille, PtrComb(fil.release()), JaugeExtremes(taille, series));
    if (reponse.genre != ReponseClic::Genre::Lance) return reponse;
    extremes_ = true;
    NbTiragesCombSauve = etat_.NbTiragesComb[Indice(taille)];
    etat_.NbTiragesComb[Indice(taille)] = tailleIntervalle();
    lignesAvant_ = std::move(lignes);
    nombreAvant_ = nombreLignes;
    lignes.clear();
    nombreLignes = 0;
    return reponse;
}

ReponseClic Moteur::oublierAutreBase(int taille) {
    const int calcules = etat_.NbTiragesComb[Indice(taille)];
    etat_.NbTiragesComb[Indice(taille)] = 0;
    etat_.BorneInf[Indice(taille)] = 0;
    etat_.BorneSup[Indice(taille)] = 0;
    return Refus(fmt::format(
        "Les bornes enregistrées pour {} numéros portent sur {} tirages et la base n'en "
        "compte que {} : elles sont oubliées, cliquez à nouveau pour les recalculer.",
        taille, calcules, base_.NbTirages));
}

ReponseClic Moteur::AvancerExtremes(int taille) {
    if (traitements_ > 0 || !disponible_) return Refus(Attendez);
    const int calcules = etat_.NbTiragesComb[Indice(taille)];
    if (calcules > base_.NbTirages) return oublierAutreBase(taille);
    auto stockees = LireListe(repertoire_ / fmt::format("comb{}.dat", taille), taille);
    if (!stockees) return Refus(stockees.erreur());
    EffacerMarques(*stockees);
    NbLignesAvant = static_cast<std::int32_t>(stockees->size());
    if (calcules == base_.NbTirages) {
        lignes = *std::move(stockees);
        nombreLignes = lignes.size();
        return {ReponseClic::Genre::Affiche, {}, 0};
    }
    collecte_.vider();
    auto avance =
        PtrFil<TCombNewSearch>(new TCombNewSearch(contexte(), collecte_, taille, *stockees));
    terminer_ = [this, &fil = *avance](FinTraitement& fin) { finirAvance(fil, fin); };
    const auto reponse = lancer(taille, PtrComb(avance.release()), base_.NbTirages - calcules);
    if (reponse.genre != ReponseClic::Genre::Lance) return reponse;
    extremes_ = true;
    NbTiragesCombSauve = calcules;
    lignesAvant_ = std::move(lignes);
    nombreAvant_ = nombreLignes;
    lignes = *std::move(stockees);
    nombreLignes = lignes.size();
    return reponse;
}

ReponseClic Moteur::cliquerBornes(int taille, int inf, int sup) {
    if (inf > sup)
        return Refus(
            fmt::format("Les bornes sont croisées : la borne Inf ({}) dépasse la borne Sup ({}). "
                        "Corrigez l'une "
                        "des deux.",
                        inf, sup));
    const ContexteComb c = contexte();
    if (!selection.vide() && selection.NbSelAbsolue == taille) {
        ListeMemoire = CombinaisonUnique(c, inf, sup);
        TailleCombListe = taille;
        DebutListe = occ_.IntervalleInf;
        FinListe = occ_.IntervalleSup;
        return {ReponseClic::Genre::Affiche, {}, 0};
    }
    collecte_.vider();
    auto fil = CreerRechercheBornes(c, collecte_, taille, inf, sup);
    terminer_ = [this, &recherche = *fil](FinTraitement& fin) { finirBornes(recherche, fin); };
    extremes_ = false;
    return lancer(taille, PtrComb(fil.release()), JaugeBornes(c, taille));
}

BornesAffichees Moteur::AfficherBornes(int taille) const {
    const auto n = Indice(taille);
    const auto libelles = LibellesBornesTaille(etat_, taille, tailleIntervalle());
    BornesAffichees b{.texteInf = fmt::to_string(etat_.BorneInf[n]),
                      .texteSup = fmt::to_string(etat_.BorneSup[n]),
                      .min = etat_.BorneInf[n],
                      .max = etat_.BorneSup[n],
                      .indiceInf = libelles.inf,
                      .indiceSup = libelles.sup};
    // A draw lies in some combination of each size, so a maximum of 0 was never counted.
    const bool jamais = taille > NbBoules && !series && etat_.BorneSup[n] == 0;
    if (jamais || etat_.NbTiragesComb[n] != tailleIntervalle()) {
        const auto attente = LibellesBornesTaille(etat_, taille, -1);
        b.texteInf = b.texteSup = NonCalcule;
        b.indiceInf = attente.inf;
        b.indiceSup = attente.sup;
    }
    return b;
}

std::array<BornesAffichees, 9> Moteur::RafraichirBornes() const {
    std::array<BornesAffichees, 9> bornes;
    for (int taille = TailleCombMin; taille <= TailleCombMax; ++taille)
        bornes[Indice(taille - TailleCombMin)] = AfficherBornes(taille);
    return bornes;
}

Resultat<Rien> Moteur::RelireEtat() {
    auto etat = LireCombCalc(repertoire_, base_.NbTirages);
    if (!etat) return Erreur{etat.erreur()};
    etat_ = *etat;
    return Rien{};
}

void Moteur::ViderListeMemoire() {
    ListeMemoire = {};
    TailleCombListe = DebutListe = FinListe = 0;
}

}  // namespace norvane
