// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Fermeture.h"

#include <cstdio>

#include "comb/FichiersFiltre.h"
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
    const Mode mode = modeEnCours(atelier);
    // The program that is about to start again has been saved.
    const bool relance = mode == Mode::AjoutLibre && atelier.Relance;
    const bool ferme = relance || ((sansQuestion || confirmer(mode)) && sauver(mode));
    if (!ferme) atelier.activite.QuitterEnAttente = false;
    return ferme;
}

bool Fermeture::confirmer(Mode mode) {
    Messages& messages = *contexte_.services.messages;
    switch (mode) {
        case Mode::AjoutLibre:
            return messages.MessageAnnuler(
                       u"Norvane doit redémarrer..."_s, u"Message"_s,
                       u"Le logiciel doit être relancé pour prendre en compte les changements "
                       u"effectués dans la base. Cliquez donc sur \"OK\" pour terminer cette "
                       u"session et sauvegarder les modifications."_s) == CodeBouton1;
        case Mode::Normal:
        case Mode::Consultation:
            return contexte_.atelier.Relance ||
                   messages.QuestionQuitter(u"Souhaitez vous quitter l'application ?"_s,
                                            u"Confirmation"_s,
                                            u"Faites votre choix"_s) == CodeBouton1;
        default:
            return messages.MessageAnnuler(u"Abandonner la sélection en cours ?"_s,
                                           u"Confirmation"_s) == CodeBouton1;
    }
}

bool Fermeture::sauver(Mode mode) {
    if (!sauverGrilles() || !sauverBase() || !restaurerFiltre()) return false;
    if (mode != Mode::AjoutLibre) return true;
    const auto neutre = EcrireCombCalcNeutre(contexte_.atelier.Repertoire);
    if (!neutre && !quitterMalgre(versQt(neutre.erreur()))) return false;
    contexte_.atelier.Relance = !sansQuestion;
    return true;
}

bool Fermeture::sauverGrilles() {
    const auto grilles = contexte_.atelier.saisie.grillesSecours();
    if (grilles.empty()) return true;
    const auto& repertoire = contexte_.atelier.Repertoire;
    auto ecrit = SauverGrillesSecours(grilles, repertoire);
    if (ecrit)
        ecrit = EcrireOptions(contexte_.atelier.bulletins.options,
                              FichierOptions(repertoire / DossierGrilles / NomGrillesSecours));
    return ecrit || quitterMalgre(versQt(ecrit.erreur()));
}

bool Fermeture::sauverBase() {
    const auto sauve = contexte_.atelier.sauverBase();
    return sauve || quitterMalgre(versQt(sauve.erreur()));
}

bool Fermeture::restaurerFiltre() {
    if (!contexte_.atelier.FiltreActif) return true;
    const auto rendu = RendreFichiersFiltre(contexte_.atelier.Repertoire);
    return rendu || quitterMalgre(versQt(rendu.erreur()));
}

bool Fermeture::quitterMalgre(const QString& echec) {
    if (sansQuestion) {
        std::fprintf(stderr, "%s\n", qPrintable(echec));
        return true;
    }
    return contexte_.services.messages->AvertissementOuiNon(
               u"Quitter malgré l'échec de la sauvegarde ?"_s, u"Avertissement"_s, echec,
               BoutonPropose::Non) == CodeBouton1;
}

}  // namespace norvane::ui
