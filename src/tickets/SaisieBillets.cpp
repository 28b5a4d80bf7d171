// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What stands, and the entry of grids from its start to its end.
#include "tickets/SaisieBillets.h"

#include <algorithm>

namespace norvane {

namespace {

Refus Incomplete() {
    return {Refus::Titre::Attention, "La grille en cours n'est pas complète...", {}};
}

Refus Plein() {
    return {Refus::Titre::Message,
            "Vous avez atteint la capacité maximum pour la mise en mémoire de grilles...",
            "Vous ne pouvez plus ajouter de grilles, cliquez donc sur Terminer...\nOu bien "
            "supprimer des grilles et poursuivez vos opérations en mémoire."};
}

}  // namespace

// ---- What stands -------------------------------------------------------------------------------

bool SaisieBillets::listeOfferte(bool recu) const {
    const auto& voulue = recu ? billets_.ListeRecu : billets_.ListeChoix;
    return etat_ == EtatTickets::Normal || (enConsultation() && !voulue.empty());
}

SuiteSaisie SaisieBillets::suite() const {
    if (etat_ != EtatTickets::Recu || liste().empty()) return SuiteSaisie::ModeNormal;
    return recuEntame_ ? SuiteSaisie::DateParticipation : SuiteSaisie::NumerosJoker;
}

CarteGrille SaisieBillets::carte(const Base& base, int tirage) const {
    CarteGrille carte{.grille = enMain_, .numero = grille_, .nombre = nombre()};
    if (surPlanche()) {
        carte.avecMise = enMain_.complete();
        carte.incomplete = !carte.avecMise && !enMain_.vide();
        carte.grille = grilleARanger();
    } else if (enConsultation() && grille_ > 0) {
        carte.avecMise = true;
        const auto i = static_cast<std::size_t>(tirage);
        if (tirage >= 0)
            carte.resultat = VerifierGrille(enMain_, base.Tirages[i], base.Rapports[i]);
    }
    return carte;
}

std::vector<Grille>& SaisieBillets::source() {
    return modeRecu_ ? billets_.ListeRecu : billets_.ListeChoix;
}

/// Tickets of the working list, an open place at its end left out.
int SaisieBillets::stockees() const {
    return nombre() - (!liste().empty() && liste().back().vide() ? 1 : 0);
}

/// The ticket in hand is not a ticket of the list yet.
bool SaisieBillets::surCaseOuverte() const {
    return grille_ == 0 || liste()[static_cast<std::size_t>(grille_ - 1)].vide();
}

void SaisieBillets::passer(EtatTickets etat) {
    etat_ = etat;
    if (enConsultation() || modeRecu_) bilan_ = enConsultation() && !modeRecu_;
    if (etat == EtatTickets::Normal || etat == EtatTickets::Joker) enMain_ = {};
}

// ---- Start -------------------------------------------------------------------------------------

void SaisieBillets::commencer(bool recu) {
    if (etat_ != EtatTickets::Normal) return;
    modeRecu_ = recuVoulu_ = recu;
    if (recu) {
        billets_.ListeRecu.clear();
        billets_.ListeJoker.clear();
        liste().clear();
        dateRecu_ = 0;
        recuSansFichier_ = tirageAProposer_ = option2nd_ = false;
    } else {
        CopierListe(liste(), billets_.ListeChoix);
    }
    recuEntame_ = false;
    passer(recu ? EtatTickets::Recu : EtatTickets::Grilles);
    if (nombre() < NbGrillesMax) {
        ouvrirCase();
    } else {
        AfficherGrille(nombre());
    }
}

/// An empty place at the end, and an empty hand for it.
void SaisieBillets::ouvrirCase() {
    if (liste().empty() || !liste().back().vide()) NouvelleGrille(liste(), liste().size());
    AfficherGrille(nombre());
}

// ---- The ticket in hand ------------------------------------------------------------------------

Reponse SaisieBillets::basculer(GenreStats genre, int valeur) {
    if (!surPlanche()) return {};
    if (genre == GenreStats::Numeros && enMain_.numeros.contient(valeur)) {
        enMain_.numeros.decocher(valeur);
    } else if (genre == GenreStats::Chances && enMain_.chances.contient(valeur)) {
        enMain_.chances.decocher(valeur);
    } else {
        return cocher(genre, valeur);
    }
    return {};
}

Reponse SaisieBillets::cocher(GenreStats genre, int valeur) {
    if (auto refus = PeutCocher(genre, enMain_.n(), enMain_.c())) return refus;
    if (genre == GenreStats::Numeros) {
        enMain_.numeros.cocher(valeur);
    } else {
        enMain_.chances.cocher(valeur);
    }
    return {};
}

void SaisieBillets::decocherTout() {
    if (surPlanche()) enMain_ = {};
}

void SaisieBillets::poserOption(bool option2nd) {
    if (surPlanche()) option2nd_ = option2nd;
}

/// The ticket in hand with its stake. One that is as it stands in its place keeps the stake that it
/// has there, which a file may tell otherwise than the price list.
Grille SaisieBillets::grilleARanger() const {
    if (!surCaseOuverte()) {
        const Grille& enPlace = liste()[static_cast<std::size_t>(grille_ - 1)];
        if (enPlace.numeros == enMain_.numeros && enPlace.chances == enMain_.chances &&
            ParticipeAu2ndTirage(enPlace) == option2nd_) {
            return enPlace;
        }
    }
    return FaireGrille(enMain_.numeros, enMain_.chances, option2nd_);
}

/// Puts the ticket in hand and the option into place `indice`, or behind the last one; gives back
/// the place, one-based.
int SaisieBillets::EnregistrerGrille(std::vector<Grille>& grilles, int indice) const {
    const auto place = std::min(static_cast<std::size_t>(std::max(0, indice)), grilles.size());
    if (place == grilles.size()) NouvelleGrille(grilles, place);
    grilles[place] = grilleARanger();
    return static_cast<int>(place) + 1;
}

/// Takes a ticket of the list in hand, in its own order; 0 is no ticket.
void SaisieBillets::AfficherGrille(int numero) {
    grille_ = numero;
    enMain_ = numero > 0 ? liste()[static_cast<std::size_t>(numero - 1)] : Grille{};
    // An empty place leaves the option as the last ticket had it.
    if (!enMain_.vide()) option2nd_ = ParticipeAu2ndTirage(enMain_);
}

Reponse SaisieBillets::deplacer(int numero) {
    if (liste().empty() || (!surPlanche() && !enConsultation())) return {};
    const int voulu = std::clamp(numero, 1, nombre());
    if (voulu == grille_) return {};
    if (surPlanche()) {
        if (!enMain_.complete()) return Incomplete();
        ranger();
    }
    AfficherGrille(voulu);
    return {};
}

Reponse SaisieBillets::peutAjouter() const {
    if (surPlanche() && !enMain_.complete() && !liste().empty()) return Incomplete();
    return {};
}

Reponse SaisieBillets::ajouter() {
    if (!surPlanche()) return {};
    if (auto refus = peutAjouter()) return refus;
    if (stockees() >= NbGrillesMax) return Plein();
    recuEntame_ = recuEntame_ || modeRecu_;
    if (!enMain_.complete()) {
        // An emptied list takes up the ticket that is being ticked.
        NouvelleGrille(liste(), 0);
        grille_ = 1;
        return {};
    }
    ranger();
    if (nombre() < NbGrillesMax || liste().back().vide()) {
        ouvrirCase();
    } else {
        AfficherGrille(nombre());
    }
    return {};
}

void SaisieBillets::tirerAuHasard(TypeGrille type, int nombre) {
    if (!surPlanche()) return;
    if (nombre == 1) {
        const Grille tiree = TirerGrille(hasard_, type);
        decocherTout();
        for (const int numero : tiree.numeros) cocher(GenreStats::Numeros, numero);
        for (const int chance : tiree.chances) cocher(GenreStats::Chances, chance);
    } else {
        tirerLot(type, nombre);
    }
}

/// From the open place on.
void SaisieBillets::tirerLot(TypeGrille type, int voulues) {
    if (enMain_.complete() && !surCaseOuverte()) ranger();
    RetirerVides(liste());
    AjouterGrillesHasard(liste(), hasard_, type, std::min(voulues, libres()));
    AfficherGrille(nombre());
}

// ---- Deletion ----------------------------------------------------------------------------------

void SaisieBillets::supprimer() {
    if (liste().empty() || (!surPlanche() && !enConsultation())) return;
    liste().erase(liste().begin() + (grille_ - 1));
    if (enConsultation()) {
        CopierListe(source(), liste());
        if (ModeGrilles()) billets_.aSauver = !liste().empty();
    }
    AfficherGrille(std::min(grille_, nombre()));
}

Reponse SaisieBillets::preparerSuppressionTotale() {
    if (!surPlanche()) return {};
    if (enMain_.complete()) {
        ranger();
    } else if (!liste().empty()) {
        return Incomplete();
    }
    return {};
}

bool SaisieBillets::suppressionPerdrait() const {
    return ModeGrilles() && stockees() > 0 &&
           (billets_.aSauver || !ListesEgales(liste(), billets_.ListeChoix));
}

void SaisieBillets::supprimerTout() {
    if (!surPlanche() && !enConsultation()) return;
    liste().clear();
    recuEntame_ = false;
    if (enConsultation()) {
        source().clear();
        if (ModeGrilles()) {
            billets_.aSauver = false;
        } else {
            billets_.ListeJoker.clear();
            dateRecu_ = 0;
            recuSansFichier_ = tirageAProposer_ = false;
        }
    }
    AfficherGrille(0);
}

// ---- End ---------------------------------------------------------------------------------------

Reponse SaisieBillets::peutArreter() const {
    if (surPlanche() && !enMain_.complete()) return Incomplete();
    return {};
}

void SaisieBillets::arreter() {
    if (!surPlanche()) return;
    terminerGrilles();
    passer(EtatTickets::Normal);
}

void SaisieBillets::terminer() {
    const bool recu = etat_ == EtatTickets::Recu;
    if (surPlanche()) terminerGrilles();
    if (recu && !liste().empty()) {
        billets_.ListeJoker.clear();
        compteJoker_ = 0;
        jokerRepris_.reset();
        etape_ = EtapeJoker::Compte;
        passer(EtatTickets::Joker);
    } else {
        passer(EtatTickets::Normal);
    }
}

/// The ticket in hand goes to its place or is dropped; the list goes to the stock or the receipt.
void SaisieBillets::terminerGrilles() {
    if (enMain_.complete()) {
        ranger();
    } else if (grille_ > 0) {
        liste().erase(liste().begin() + (grille_ - 1));
    }
    RetirerVides(liste());
    grille_ = nombre();
    if (ModeGrilles() && !ListesEgales(liste(), billets_.ListeChoix))
        billets_.aSauver = !liste().empty();
    if (modeRecu_) recuSansFichier_ = true;
    CopierListe(source(), liste());
}

}  // namespace norvane
