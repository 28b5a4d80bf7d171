// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/CommandesEdition.h"

#include <algorithm>

#include "common/Contexte.h"
#include "common/Refus.h"
#include "dialogs/MontantJackpotBox.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

CommandesEdition::CommandesEdition(Contexte& ctx, QWidget* page)
    : QObject(page), contexte_(ctx), page_(page), edition_(ctx.atelier), filtre_(ctx.atelier) {}

const SaisieTirage* CommandesEdition::saisie() const {
    return ModificationEnCours() ? &edition_.saisie() : nullptr;
}

bool CommandesEdition::demander(const QString& question) {
    return contexte_.services.messages->MessageAnnuler(question, u"Confirmation"_s) == CodeBouton1;
}

void CommandesEdition::dire(const Reponse& reponse) {
    if (reponse) direRefus(*contexte_.services.messages, *reponse);
}

void CommandesEdition::annoncerBase(int indice) {
    contexte_.relais.annoncer({.base = true, .intervalle = true, .listes = true, .mode = true});
    Q_EMIT tirageDemande(indice + 1);
}

// ---- Editing by hand ---------------------------------------------------------------------------

void CommandesEdition::MajBaseManuelleClick() {
    if (contexte_.refuserSiOccupe()) return;
    if (!enMode()) {
        dire(edition_.entrer());
    } else if (ModificationEnCours()) {
        edition_.abandonner();
    }
    contexte_.relais.annoncer({.mode = true});
}

void CommandesEdition::AjoutLibreClick(const PlaceTirage& place) {
    if (contexte_.refuserSiOccupe()) return;
    if (ModificationEnCours()) {
        valider();
    } else {
        ouvrir(place);
    }
}

void CommandesEdition::ouvrir(const PlaceTirage& place) {
    if (!demander(place.indice < 0 ? u"Ajouter un enregistrement en mémoire ?"_s
                                   : u"Modification de l'enregistrement en cours ?"_s)) {
        return;
    }
    dire(edition_.ouvrir(place));
    contexte_.relais.annoncer({.mode = true});
}

void CommandesEdition::valider() {
    const IssueValidation issue = edition_.valider();
    if (issue.genre == IssueValidation::Genre::Fait) annoncerBase(issue.indice);
    if (issue.genre == IssueValidation::Genre::JokerAttendu) Q_EMIT jokerAttendu();
    dire(issue.aDire);
}

void CommandesEdition::SupprGrilleClick(int indice) {
    if (contexte_.refuserSiOccupe() || !demander(u"Supprimer l'enregistrement en cours ?"_s)) {
        return;
    }
    const IssueBase issue = edition_.supprimer(indice);
    // The 2nd Tirage of the date takes the place, or the next draw.
    if (issue.fait) annoncerBase(std::min(indice, contexte_.atelier.base.NbTirages - 1));
    dire(issue.aDire);
}

void CommandesEdition::Button1Click(GenreStats genre, int valeur) {
    dire(edition_.basculer(genre, valeur));
    Q_EMIT saisieChange();
}

void CommandesEdition::DeSelectClick() {
    edition_.decocherTout();
    Q_EMIT saisieChange();
}

void CommandesEdition::VideRapportsClick() {
    edition_.ViderRapports();
    Q_EMIT saisieChange();
}

void CommandesEdition::poserRapport(int rang, ColonneRapport colonne, const QString& texte) {
    if (!edition_.poserRapport(rang, colonne, texte.toStdString())) {
        const QString attendu = colonne == ColonneRapport::Gagnants
                                    ? u"un nombre entier de gagnants"_s
                                    : u"un montant, comme 1 234,56"_s;
        contexte_.relais.dire(u"« %1 » n'est pas pris : il faut %2."_s.arg(texte, attendu));
    }
    Q_EMIT saisieChange();
}

void CommandesEdition::refuserDestination() {
    contexte_.services.messages->MessageInfo(
        u"La base des tirages est en cours de mise à jour..."_s, u"Message"_s,
        u"Fermez l'application pour terminer la mise à jour."_s);
}

// ---- The filter --------------------------------------------------------------------------------

void CommandesEdition::Button75Click() {
    if (contexte_.refuserSiOccupe()) return;
    IssueBase issue;
    if (contexte_.atelier.FiltreActif) {
        issue = filtre_.annuler();
    } else {
        TMontantJackpotBox boite(contexte_, criteres_, page_);
        const bool appliquer = boite.exec() == QDialog::Accepted;
        criteres_ = boite.criteres();
        if (!appliquer) return;
        issue = filtre_.appliquer(criteres_);
    }
    if (issue.fait) annoncerBase(contexte_.atelier.base.NbTirages - 1);
    dire(issue.aDire);
}

}  // namespace norvane::ui
