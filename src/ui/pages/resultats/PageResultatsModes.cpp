// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the board serves besides the draw: the free choice, and the entry and consultation of
// tickets, which are SaisieGrilles's; what every mode lets the user do.

#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QStackedWidget>

#include "resultats/CalculGains.h"
#include "resultats/FicheGrille.h"
#include "resultats/PageResultats.h"
#include "resultats/PanneauAleatoire.h"
#include "resultats/SaisieGrilles.h"
#include "resultats/SaisieJoker.h"
#include "widgets/ChampNumero.h"
#include "widgets/PlancheNumeros.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

QString compte(std::size_t n, const QString& mot) {
    return u"%1 %2%3"_s.arg(n).arg(mot, n > 1 ? u"s"_s : QString());
}

}  // namespace

// ---- The board under the user's hand ---------------------------------------------------------

void PageResultats::presser(int place) {
    if (choixEnCours_) {
        basculer(place, true);
        choix_[static_cast<std::size_t>(place)] =
            planche_->EtatBouton()[static_cast<std::size_t>(place)];
    } else if (saisie_->surPlanche()) {
        saisie_->Button1Click(place);
    } else if (saisie_->etat() == EtatTickets::Normal && planche_->bouton(place)->allume()) {
        basculer(place, false);  // a mark on this draw: it goes with it
    }
    majCommandes();
}

void PageResultats::basculer(int place, bool durable) {
    planche_->tenir(place, planche_->EtatBouton()[static_cast<std::size_t>(place)] == 0, durable);
}

void PageResultats::appuyer(GenreStats genre, int element) {
    if (contexte.modes.ModeSelection) return;
    const int place = placeDe(genre, element);
    if (planche_->EtatBouton()[static_cast<std::size_t>(place)] == 0) {
        planche_->bouton(place)->click();
    }
}

void PageResultats::DeSelectClick() {
    planche_->relacher();
    if (!contexte.modes.ModeSelection) choix_.fill(0);
    majCommandes();
    majFicheGrille();
    if (DeSelect->isHidden()) ReInit->setFocus();
}

// ---- Free choice -----------------------------------------------------------------------------

void PageResultats::ReInitClick() {
    choixEnCours_ = !choixEnCours_;
    ReInit->setText(choixEnCours_ ? u"&OK!"_s : u"&Choix libre"_s);
    poserIndice(ReInit, choixEnCours_ ? u"Validation de la sélection libre"_s
                                      : u"Sélection libre de numéros à vérifier"_s);
    if (choixEnCours_) CommunsButton->setChecked(false);
    // Marks on the draw go out with its lights; what an earlier choice holds down stays.
    eclairer();
    majCommandes();
    majFicheGrille();
}

void PageResultats::quitterChoixEtConsultation() {
    if (choixEnCours_) ReInitClick();
    saisie_->terminerConsultation();
}

void PageResultats::rangerGrilleEnMain() {
    saisie_->rangerGrilleEnMain();
}

void PageResultats::CopierversBulletins(const std::vector<Grille>& grilles) {
    if (choixEnCours_) ReInitClick();
    saisie_->CopierversBulletins(grilles);
}

bool PageResultats::ouvrir(const Destination& destination) {
    if (const auto* tirage = std::get_if<VersTirage>(&destination)) {
        quitterChoixEtConsultation();
        montrerTirage(tirage->numero);
        if (tirage->appuyer) appuyer(tirage->appuyer->genre, tirage->appuyer->valeur);
        return true;
    }
    if (const auto* tickets = std::get_if<VersTickets>(&destination)) {
        CopierversBulletins(tickets->grilles);
        return true;
    }
    return false;
}

ChoixLibre PageResultats::choixLibre() const {
    ChoixLibre choix;
    for (int k = 0; k < NbBoutons; ++k) {
        if (choix_[static_cast<std::size_t>(k)] == 0) continue;
        if (k < NumeroMax) {
            choix.numeros.push_back(k + 1);
        } else {
            choix.chances.push_back(k - NumeroMax + 1);
        }
    }
    return choix;
}

/// The board as it stands in Normal mode: the free choice held down, the draw lit.
void PageResultats::rendrePlanche() {
    planche_->relacher();
    for (int place = 0; place < NbBoutons; ++place) {
        planche_->tenir(place, choix_[static_cast<std::size_t>(place)] != 0, true);
    }
    eclairer();
}

// ---- What follows the mode -------------------------------------------------------------------

void PageResultats::changerMode() {
    if (saisie_->etat() == EtatTickets::Consultation) {
        gains_->poserBilan(saisie_->modeGrilles());
    } else if (!saisie_->modeGrilles()) {
        gains_->poserBilan(false);
    }
    eclairer();
    majCommandes();
    majFicheGrille();
    if (modeDit_ != saisie_->etat()) {
        modeDit_ = saisie_->etat();
        contexte.relais.annoncer({.mode = true});
    }
}

void PageResultats::majCommandes() {
    const EtatTickets etat = saisie_->etat();
    const bool libre = plancheLibre();
    const bool consultation = etat == EtatTickets::Consultation;
    for (QWidget* w :
         {static_cast<QWidget*>(DateTimePicker), static_cast<QWidget*>(EditTirGlob),
          static_cast<QWidget*>(UpDown1), static_cast<QWidget*>(ComboBox3),
          static_cast<QWidget*>(Consultation), static_cast<QWidget*>(ChargerGrilles)}) {
        w->setEnabled(libre);
    }
    Consultation->setText(consultation ? u"&Terminer"_s : u"C&onsultation"_s);
    poserIndice(Consultation, consultation ? u"Retour au mode normal"_s
                                           : u"Vérification des grilles en mémoire"_s);
    SelectGrilles->setEnabled(!choixEnCours_ &&
                              (etat == EtatTickets::Normal || saisie_->surPlanche()));
    ReInit->setEnabled(etat == EtatTickets::Normal);
    CommunsButton->setVisible(!choixEnCours_);
    NormalMode->setVisible(contexte.modes.ModeSelection);
    poserIndice(NormalMode, saisie_->indiceTerminer());
    const bool tenus = std::ranges::any_of(planche_->EtatBouton(), [](auto e) { return e != 0; });
    DeSelect->setVisible(choixEnCours_ || saisie_->surPlanche() ||
                         (etat == EtatTickets::Normal && tenus));
    VerifGains->setEnabled(libre || gains_->action() == CalculGains::Action::Arreter);
    caseJoker_->setVisible(MaskEdit1->parentWidget() == caseJoker_);
    ButtonSauverGrilles->setEnabled(libre && saisie_->aSauver());
    ButtonSauverGrilles->setVisible(!consultation || saisie_->modeGrilles());
    majCommandesFiche();
    majVolet();
}

/// The commands on the card of the tickets.
void PageResultats::majCommandesFiche() {
    const Atelier& atelier = contexte.atelier;
    const EtatTickets etat = saisie_->etat();
    const bool planche = saisie_->surPlanche();
    const bool consultation = etat == EtatTickets::Consultation;
    const bool choixListe = consultation || (etat == EtatTickets::Normal && !choixEnCours_);
    fiche_->CheckBox2ND->setEnabled(planche);
    fiche_->Edit1->setReadOnly(!consultation);
    fiche_->AddGrille->setVisible(planche);
    fiche_->RadioButtonJeu->setVisible(choixListe);
    fiche_->RadioButtonSimple->setVisible(choixListe);
    fiche_->RadioButtonJeu->setEnabled(!consultation || !atelier.ListeRecu.empty());
    fiche_->RadioButtonSimple->setEnabled(!consultation || !atelier.ListeChoix.empty());
    for (QPushButton* b : {fiche_->SupprGrille, fiche_->SupprAllGrilles}) {
        b->setVisible(planche || consultation);
        b->setEnabled(!atelier.ListeGrilles.empty());
    }
}

/// The prizes of the draw, or what the entry needs in their place.
void PageResultats::majVolet() {
    if (saisie_->surPlanche()) {
        volet_->setCurrentWidget(aleatoire_);
        titreRapports_->setText(u"Tirage au sort de grilles"_s);
    } else if (saisie_->etat() == EtatTickets::Joker) {
        volet_->setCurrentWidget(joker_);
        titreRapports_->setText(joker_->etape() == SaisieJoker::Etape::Date
                                    ? u"Participation du Reçu de Jeu"_s
                                    : u"Numéros JOKER+"_s);
    } else {
        volet_->setCurrentWidget(rapports_);
        titreRapports_->setText(selecteur2nd() ? u"Rapports du 2nd Tirage"_s
                                               : u"Rapports du 1er Tirage"_s);
    }
}

void PageResultats::majFicheGrille() {
    const Atelier& atelier = contexte.atelier;
    const auto numeros = planche_->tenus(GenreStats::Numeros);
    const auto chances = planche_->tenus(GenreStats::Chances);
    const EtatTickets etat = saisie_->etat();
    const QString recu = compte(atelier.ListeRecu.size(), u"grille"_s) + u", "_s +
                         u"%1 Joker+"_s.arg(atelier.ListeJoker.size());
    if (etat == EtatTickets::Joker) {
        fiche_->montrerTexte(u"Reçu de Jeu"_s, recu);
    } else if (etat != EtatTickets::Normal) {
        saisie_->majFiche();
    } else if (choixEnCours_) {
        fiche_->montrerTexte(
            u"Choix libre"_s,
            u"%1, %2\nCochez sur la planche, puis validez."_s.arg(
                compte(numeros.size(), u"numéro"_s), compte(chances.size(), u"chance"_s)));
    } else {
        const ChoixLibre choix = choixLibre();
        QStringList lignes{
            u"Grilles au choix : %1"_s.arg(atelier.ListeChoix.size()), u"Reçu de Jeu : "_s + recu,
            u"Choix libre : %1 + %2C"_s.arg(choix.numeros.size()).arg(choix.chances.size())};
        fiche_->montrerTexte(u"En mémoire"_s, lignes.join(u'\n'));
    }
}

}  // namespace norvane::ui
