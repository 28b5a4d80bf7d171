// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "atelier/Moteur.h"

#include <fmt/format.h>

#include <system_error>
#include <utility>

#include "comb/LigneCombinaison.h"
#include "comb/Reduction.h"
#include "Passage.h"

namespace norvane {

Moteur::Moteur(Atelier& atelier) : atelier_(atelier) {}
Moteur::~Moteur() = default;

ContexteComb Moteur::contexte() const {
    return {.base = atelier_.base,
            .occurrences = atelier_.occurrences,
            .etat = atelier_.combinaisons,
            .selection = atelier_.selection,
            .IntervalleInf = atelier_.occurrences.IntervalleInf,
            .IntervalleSup = atelier_.occurrences.IntervalleSup,
            .series = atelier_.series,
            .mode = atelier_.modeStockage,
            .gains = FormeGains::de(atelier_.configuration.reglages.GainsNominaux),
            .threads = threads,
            .octetsMax = octetsMax};
}

std::filesystem::path Moteur::fichierListe(int taille) const {
    const char* genre = atelier_.series ? "succ" : atelier_.intervalleEntier() ? "comb" : "cmbtmp";
    return atelier_.Repertoire / fmt::format("{}{}.dat", genre, taille);
}

ReponseClic Moteur::Cliquer(int taille, int inf, int sup) {
    if (atelier_.activite.occupe() || passage_) return Refuser(Attendez);
    switch (atelier_.modeListe) {
        case ModeListe::Extremes:
            return cliquerExtremes(taille);
        case ModeListe::Bornes:
            return cliquerBornes(taille, inf, sup);
        case ModeListe::Manipulation:
            break;
    }
    return Refuser({});  // no size can be asked for there
}

void Moteur::montrer(Liste liste, int de, int a) {
    liste.DebutListe = de;
    liste.FinListe = a;
    TrierFrequence(liste);
    atelier_.ListeExtremes = std::move(liste);
}

/// From size 6 on the state is taken as current, whatever it was made on: whether it was never
/// computed, or computed on other draws. A draw lies in some combination of each size, though in no
/// series perhaps: a maximum of 0 over all combinations was never counted.
bool Moteur::etatDepasse(int taille) const {
    if (taille <= NbBoules) return false;
    const EtatCombinaisons& etat = atelier_.combinaisons;
    const bool perime = etat.NbTiragesPerime[Indice(taille)].has_value();
    if (atelier_.series) return perime;
    return etat.BorneSup[Indice(taille)] == 0 || (perime && atelier_.intervalleEntier());
}

ReponseClic Moteur::cliquerExtremes(int taille) {
    const int calcules = atelier_.combinaisons.NbTiragesComb[Indice(taille)];
    const int tailleIntervalle = atelier_.tailleIntervalle();
    if (tailleIntervalle < calcules && !atelier_.series) return avancerExtremes(taille);
    // Large series are as quickly counted as read, and their state tells no file.
    const bool serie = taille > NbBoules && atelier_.series;
    if (tailleIntervalle != calcules || serie || etatDepasse(taille))
        return calculerExtremes(taille);

    // A file that is missing or damaged costs a run; so does a full one, which was cut when it was
    // stored: only a run tells how many lines there are.
    const auto stockees = LireListe(fichierListe(taille), taille);
    if (!stockees || stockees->empty() || stockees->size() == CapaciteListe)
        return calculerExtremes(taille);
    montrer(ListeDeCombinaisons(taille, *stockees), atelier_.occurrences.IntervalleInf,
            atelier_.occurrences.IntervalleSup);
    return Montre();
}

ReponseClic Moteur::calculerExtremes(int taille) {
    passage_ = std::make_unique<Passage>();
    auto fil = CreerRechercheExtremes(contexte(), *passage_->collecte, taille);
    passage_->collecte->progres = &fil->progres;
    fil->garde = passage_->collecte;
    auto& calcules = atelier_.combinaisons.NbTiragesComb[Indice(taille)];
    passage_->NbTiragesCombSauve = std::exchange(calcules, atelier_.tailleIntervalle());
    passage_->listeAvant = std::exchange(atelier_.ListeExtremes, {});
    return lancer(std::move(fil), &Moteur::finirExtremes);
}

ReponseClic Moteur::oublierAutreBase(int taille) {
    EtatCombinaisons& etat = atelier_.combinaisons;
    const int calcules = std::exchange(etat.NbTiragesComb[Indice(taille)], 0);
    etat.BorneInf[Indice(taille)] = 0;
    etat.BorneSup[Indice(taille)] = 0;
    return Refuser(fmt::format(
        "Les bornes enregistrées pour {} numéros portent sur {} tirages et la base n'en "
        "compte que {} : elles sont oubliées, cliquez à nouveau pour les recalculer.",
        taille, calcules, atelier_.base.NbTirages));
}

ReponseClic Moteur::avancerExtremes(int taille) {
    const int total = atelier_.base.NbTirages;
    const int calcules = atelier_.combinaisons.NbTiragesComb[Indice(taille)];
    if (calcules > total) return oublierAutreBase(taille);
    auto lues = LireListe(atelier_.Repertoire / fmt::format("comb{}.dat", taille), taille);
    auto stockees = lues ? *std::move(lues) : std::vector<Combinaison>{};
    EffacerMarques(stockees);
    const bool suffit = calcules == total && !stockees.empty();
    if (!suffit) {
        passage_ = std::make_unique<Passage>();
        passage_->NbTiragesCombSauve = calcules;
        passage_->listeAvant = std::move(atelier_.ListeExtremes);
    }
    montrer(ListeDeCombinaisons(taille, stockees), 1, calcules);
    if (suffit) return Montre();

    auto fil = PtrFil<TCombNewSearch>(
        new TCombNewSearch(contexte(), *passage_->collecte, taille, std::move(stockees)));
    passage_->collecte->progres = &fil->progres;
    fil->garde = passage_->collecte;
    return lancer(std::move(fil), &Moteur::finirAvance);
}

ReponseClic Moteur::cliquerBornes(int taille, int inf, int sup) {
    if (inf > sup)
        return Refuser(
            fmt::format("Les bornes sont croisées : la borne Inf ({}) dépasse la borne Sup ({}). "
                        "Corrigez l'une "
                        "des deux.",
                        inf, sup));
    ContexteComb c = contexte();
    Liste liste;
    liste.DebutListe = c.IntervalleInf;
    liste.FinListe = c.IntervalleSup;
    if (!c.selection.vide() && c.selection.NbSelAbsolue == taille) {
        liste.arene = CombinaisonUnique(c, inf, sup);
        atelier_.ListeMemoire = std::move(liste);
        return Montre();
    }
    // The old list makes room for the new one.
    const std::uint64_t libre = MemoireDisponible();
    if (c.octetsMax == 0 && libre != 0)
        c.octetsMax = (libre + atelier_.ListeMemoire.arene.mots.capacity() * sizeof(Mot)) / 2;
    passage_ = std::make_unique<Passage>();
    passage_->puitsListe->avant = std::exchange(atelier_.ListeMemoire, {});
    auto fil = CreerRechercheBornes(c, *passage_->puitsListe, taille, inf, sup);
    liste.arene.disposition = fil->disposition();
    passage_->puitsListe->liste = std::move(liste);
    passage_->puitsListe->progres = &fil->progres;
    fil->garde = passage_->puitsListe;
    return lancer(std::move(fil), &Moteur::finirBornes);
}

BornesAffichees Moteur::AfficherBornes(int taille) const {
    const auto n = Indice(taille);
    const EtatCombinaisons& etat = atelier_.combinaisons;
    const bool depasse = etatDepasse(taille);
    const int calcules = etat.NbTiragesComb[n];
    return {.calculee = !depasse && calcules == atelier_.tailleIntervalle(),
            .BorneInf = etat.BorneInf[n],
            .BorneSup = etat.BorneSup[n],
            .NbTirages = depasse ? etat.NbTiragesPerime[n].value_or(0) : calcules};
}

std::array<BornesAffichees, TailleCombMax - TailleCombMin + 1> Moteur::RafraichirBornes() const {
    std::array<BornesAffichees, TailleCombMax - TailleCombMin + 1> bornes;
    for (int taille = TailleCombMin; taille <= TailleCombMax; ++taille)
        bornes[Indice(taille - TailleCombMin)] = AfficherBornes(taille);
    return bornes;
}

}  // namespace norvane
