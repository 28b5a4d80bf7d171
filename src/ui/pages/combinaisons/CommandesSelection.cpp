// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/CommandesSelection.h"

#include <QFile>

#include "common/Contexte.h"
#include "common/Enregistrement.h"
#include "lists/FichiersSelections.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

const QString FiltreSelection = u"Fichiers de Sélections de numéros (*.slt)"_s;
const QString FiltreSelections = u"Fichiers Listes Sélections (*.sel)"_s;

}  // namespace

CommandesSelection::CommandesSelection(Contexte& ctx, QWidget* fenetre)
    : QObject(fenetre), contexte_(ctx), fenetre_(fenetre) {}

bool CommandesSelection::refuserEnSeries() {
    if (contexte_.refuserSiOccupe()) return true;
    if (contexte_.atelier.series) dire(u"Pas de sélections de numéros en mode séries..."_s);
    return contexte_.atelier.series;
}

void CommandesSelection::dire(const QString& instruction, const QString& detail) {
    contexte_.services.messages->MessageInfo(instruction, u"Message"_s, detail);
}

void CommandesSelection::annoncer() {
    contexte_.relais.annoncer({.listes = true});
}

// --------------------------------------------------------------------------------------- the grid

void CommandesSelection::editer(const GrilleSelection& grille) {
    EditerSelection(contexte_.atelier);
    contexte_.atelier.saisieSelection.grille = grille;
    annoncer();
}

bool CommandesSelection::valider(const GrilleSelection& grille) {
    const auto valide = ValiderSelection(contexte_.atelier, grille);
    if (valide) {
        annoncer();
    } else {
        dire(versQt(valide.erreur()));
    }
    return static_cast<bool>(valide);
}

void CommandesSelection::ButtonSelectClick() {
    if (refuserEnSeries()) return;
    const GrilleSelection grille = GrilleMontree(contexte_.atelier);
    if (contexte_.atelier.saisieSelection.enCours) {
        valider(grille);
    } else {
        editer(grille);
    }
}

void CommandesSelection::ButtonDecocherClick() {
    editer({});
}

void CommandesSelection::cocher(int numero, Priorite priorite) {
    GrilleSelection grille = GrilleMontree(contexte_.atelier);
    grille.at(static_cast<std::size_t>(numero - 1)) = priorite;
    editer(grille);
}

void CommandesSelection::ajouterAbsolus(Ensemble numeros) {
    GrilleSelection grille = GrilleMontree(contexte_.atelier);
    for (const int n : numeros) grille.at(static_cast<std::size_t>(n - 1)) = Priorite::Absolue;
    editer(grille);
}

void CommandesSelection::BitBtnWithColor14Click() {
    const Atelier& a = contexte_.atelier;
    if (a.TirageActif < 0 || a.TirageActif >= a.base.NbTirages) {
        dire(u"Pas de tirage actif dans l'onglet Résultats..."_s);
        return;
    }
    ajouterAbsolus(Ensemble::de(a.base.Tirages[static_cast<std::size_t>(a.TirageActif)].Numeros));
}

void CommandesSelection::BitBtnWithColor15Click() {
    const Ensemble choix = contexte_.atelier.choixLibre.numeros;
    if (choix.vide()) {
        dire(u"Pas de choix libre dans l'onglet Résultats..."_s);
        return;
    }
    ajouterAbsolus(choix);
}

void CommandesSelection::AdvGlowButton8Click(int absolus, int secondaires) {
    if (refuserEnSeries()) return;
    const GrilleSelection grille =
        GrilleAleatoire(absolus, secondaires, contexte_.services.hasard->graine());
    // Drawn outside of the editing, it is in force at once.
    if (contexte_.atelier.saisieSelection.enCours) {
        editer(grille);
    } else {
        valider(grille);
    }
}

void CommandesSelection::reprendre(Ensemble numeros) {
    if (!refuserEnSeries()) editer(GrilleAbsolue(numeros));
}

bool CommandesSelection::sauver() {
    return enregistrerSous(contexte_, fenetre_,
                           {u"Enregistrer votre sélection"_s,
                            versQt(contexte_.atelier.Repertoire.string() + '/'),
                            {{FiltreSelection, versQt(ExtensionSelection)}},
                            u"Sélection enregistrée"_s,
                            [this](const std::filesystem::path& fichier, std::size_t) {
                                Atelier& a = contexte_.atelier;
                                auto ecrit = SauverSelection(a.grilleSelection, fichier);
                                if (ecrit) a.saisieSelection.GrilleSauvee = a.grilleSelection;
                                return ecrit;
                            }});
}

void CommandesSelection::ButtonSauverSltClick() {
    if (!contexte_.refuserSiOccupe() && sauver()) annoncer();
}

void CommandesSelection::ButtonOuvrirSltClick() {
    if (refuserEnSeries()) return;
    Atelier& a = contexte_.atelier;
    if (SelectionASauver(a)) {
        const int reponse = contexte_.services.messages->QuestionOuiNon(
            u"Voulez-vous sauvegarder votre sélection en cours ?"_s, u"Confirmation"_s);
        if (reponse == CodeFerme || (reponse == CodeBouton1 && !sauver())) return;
        annoncer();
    }
    const QString choisi =
        contexte_.services.fichiers->ouvrir(fenetre_, u"Ouvrir vos sélections personnelles"_s,
                                            versQt(a.Repertoire.string()), FiltreSelection);
    if (choisi.isEmpty()) return;
    const auto lue = OuvrirSelection(QFile::encodeName(choisi).toStdString());
    if (!lue) {
        contexte_.services.messages->MessageErreur(versQt(lue.erreur()), u"Erreur"_s);
        return;
    }
    a.saisieSelection.GrilleSauvee = *lue;
    valider(*lue);
}

// ------------------------------------------------------------------------- the list of selections

void CommandesSelection::ajouter(const NumerosAjoutes& ajoutes) {
    if (ajoutes.numeros.vide()) {
        dire(versQt(ajoutes.refus), versQt(ajoutes.detail));
        return;
    }
    contexte_.atelier.ListeSelections.push_back(ajoutes.numeros);
    annoncer();
}

void CommandesSelection::Button71Click() {
    ajouter(SelectionEnForce(contexte_.atelier));
}

void CommandesSelection::Button76Click(int nombre) {
    if (contexte_.refuserSiOccupe()) return;
    const NumerosAjoutes ajoutes = PremiersNumeros(contexte_.atelier.ListeMemoire, nombre);
    ajouter(ajoutes);
    const int trouves = ajoutes.numeros.taille();
    if (trouves > 0 && trouves < nombre) {
        dire(u"La liste en mémoire ne contient que %1 numéros différents..."_s.arg(trouves),
             u"La sélection ajoutée les contient tous."_s);
    }
}

void CommandesSelection::Button77Click() {
    contexte_.atelier.ListeSelections.clear();
    annoncer();
}

void CommandesSelection::AdvGlowButton1Click(int ligne) {
    auto& liste = contexte_.atelier.ListeSelections;
    if (ligne < 0 || ligne >= static_cast<int>(liste.size())) return;
    liste.erase(liste.begin() + ligne);
    annoncer();
}

void CommandesSelection::Button78Click() {
    Atelier& a = contexte_.atelier;
    const QString choisi =
        contexte_.services.fichiers->ouvrir(fenetre_, u"Charger une liste (sélections)"_s,
                                            versQt(a.Repertoire.string()), FiltreSelections);
    if (choisi.isEmpty()) return;
    auto lue = OuvrirSelections(QFile::encodeName(choisi).toStdString());
    if (!lue) {
        contexte_.services.messages->MessageErreur(versQt(lue.erreur()), u"Erreur"_s);
        return;
    }
    a.ListeSelections = *std::move(lue);
    annoncer();
}

void CommandesSelection::Button83Click() {
    const Atelier& a = contexte_.atelier;
    if (a.ListeSelections.empty()) {
        dire(u"La liste de sélections est vide..."_s,
             u"Ajoutez d'abord au moins une sélection dans la liste"_s);
        return;
    }
    enregistrerSous(contexte_, fenetre_,
                    {u"Enregistrer la liste (sélections)"_s,
                     versQt(a.Repertoire.string() + '/'),
                     {{FiltreSelections, versQt(ExtensionSelections)}},
                     u"Sélections enregistrées"_s,
                     [&a](const std::filesystem::path& fichier, std::size_t) {
                         return SauverSelections(a.ListeSelections, fichier);
                     }});
}

}  // namespace norvane::ui
