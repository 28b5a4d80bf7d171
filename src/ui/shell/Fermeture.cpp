// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Fermeture.h"

#include "common/Mode.h"
#include "tickets/FichiersGrilles.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

bool Fermeture::demander() {
    Atelier& atelier = contexte_.atelier;
    if (atelier.activite.occupe()) {
        atelier.activite.QuitterEnAttente = true;
        arreterTraitement();
        return false;
    }
    if (atelier.base.NbTirages == 0) return true;
    bool ferme = false;
    switch (modeEnCours(atelier)) {
        case Mode::AjoutLibre:
            ferme = atelier.Relance || fermerApresAjout();
            break;
        case Mode::Normal:
        case Mode::Consultation:
            ferme = fermerModeNormal();
            break;
        default:
            ferme = fermerSelection();
    }
    if (!ferme) atelier.activite.QuitterEnAttente = false;
    return ferme;
}

bool Fermeture::fermerApresAjout() {
    const int code = contexte_.services.messages->MessageAnnuler(
        u"Norvane doit redémarrer..."_s, u"Message"_s,
        u"Le logiciel doit être relancé pour prendre en compte les changements effectués dans la "
        u"base. Cliquez donc sur \"OK\" pour terminer cette session et sauvegarder les "
        u"modifications."_s);
    if (code != CodeBouton1) return false;
    if (!sauverBase() || !restaurerFiltre()) return false;
    const auto neutre = EcrireCombCalcNeutre(contexte_.atelier.Repertoire);
    if (!neutre && !quitterMalgre(versQt(neutre.erreur()))) return false;
    contexte_.atelier.Relance = true;
    return true;
}

bool Fermeture::fermerModeNormal() {
    if (!contexte_.atelier.Relance &&
        contexte_.services.messages->QuestionQuitter(u"Souhaitez vous quitter l'application ?"_s,
                                                     u"Confirmation"_s,
                                                     u"Faites votre choix"_s) != CodeBouton1) {
        return false;
    }
    return sauverGrilles() && sauverBase() && restaurerFiltre();
}

bool Fermeture::fermerSelection() {
    return contexte_.services.messages->MessageAnnuler(u"Abandonner la sélection en cours ?"_s,
                                                       u"Confirmation"_s) == CodeBouton1 &&
           sauverGrilles() && sauverBase() && restaurerFiltre();
}

bool Fermeture::sauverGrilles() {
    const auto grilles = contexte_.atelier.saisie.grillesSecours();
    if (grilles.empty()) return true;
    const auto ecrit = SauverGrillesSecours(grilles, contexte_.atelier.Repertoire);
    return ecrit || quitterMalgre(versQt(ecrit.erreur()));
}

bool Fermeture::sauverBase() {
    const auto sauve = contexte_.atelier.sauverBase();
    return sauve || quitterMalgre(versQt(sauve.erreur()));
}

bool Fermeture::restaurerFiltre() {
    if (!contexte_.atelier.FiltreActif) return true;
    const auto rendu = RestaurerFichiersFiltre(contexte_.atelier.Repertoire);
    return rendu || quitterMalgre(versQt(rendu.erreur()));
}

bool Fermeture::quitterMalgre(const QString& echec) {
    return contexte_.services.messages->AvertissementOuiNon(
               u"Quitter malgré l'échec de la sauvegarde ?"_s, u"Avertissement"_s, echec) ==
           CodeBouton1;
}

}  // namespace norvane::ui
