// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Fermeture.h"

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
    const Modes& modes = contexte_.modes;
    bool ferme = false;
    if (!modes.ModeNormal && !modes.ModeConsultation && modes.ModeMiseAJour && modes.AjoutEnfonce) {
        ferme = atelier.Relance || fermerApresAjout();
    } else if (modes.ModeNormal) {
        ferme = fermerModeNormal();
    } else {
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
    Atelier& atelier = contexte_.atelier;
    if (!atelier.Relance && contexte_.services.messages->QuestionQuitter(
                                u"Souhaitez vous quitter l'application ?"_s, u"Confirmation"_s,
                                u"Faites votre choix"_s) != CodeBouton1) {
        return false;
    }
    const auto& grilles = atelier.ListeChoix.empty() ? atelier.ListeGrilles : atelier.ListeChoix;
    return sauverGrilles(grilles) && sauverBase() && restaurerFiltre();
}

bool Fermeture::fermerSelection() {
    Atelier& atelier = contexte_.atelier;
    if (contexte_.services.messages->MessageAnnuler(u"Abandonner la sélection en cours ?"_s,
                                                    u"Confirmation"_s) != CodeBouton1) {
        return false;
    }
    // The place in hand counts, whatever becomes of it.
    const bool enCours = atelier.ListeGrilles.size() > 1 || atelier.ListeChoix.empty();
    if (contexte_.modes.ModeSelection) rangerGrilleEnMain();
    return sauverGrilles(enCours ? atelier.ListeGrilles : atelier.ListeChoix) && sauverBase() &&
           restaurerFiltre();
}

bool Fermeture::sauverGrilles(const std::vector<Grille>& grilles) {
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
