// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the board serves besides the draw: the free choice, the entry of tickets and their
// consultation.

#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>

#include "base/Textes.h"
#include "pages/PageResultats.h"
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
    const Modes& modes = contexte.modes;
    if (choixEnCours_) {
        basculer(place, true);
        choix_[static_cast<std::size_t>(place)] =
            planche_->EtatBouton()[static_cast<std::size_t>(place)];
    } else if (modes.ModeSelection) {
        cocher(place);
    } else if (!modes.ModeConsultation && planche_->bouton(place)->allume()) {
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
    if (contexte.modes.ModeConsultation) terminerConsultation();
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

// ---- Entry of tickets ------------------------------------------------------------------------

void PageResultats::SelectGrillesClick() {
    if (contexte.refuserSiOccupe()) return;
    Messages& messages = *contexte.services.messages;
    if (!contexte.modes.ModeSelection) {
        if (contexte.modes.ModeNormal && commencerSelection()) changerMode();
        return;
    }
    if (!grilleComplete()) {
        messages.MessageAvertissement(u"La grille en cours n'est pas complète..."_s,
                                      u"Attention"_s);
        return;
    }
    if (messages.QuestionOuiNon(u"Sélection d'une autre grille ?"_s, u"Confirmation"_s) ==
        CodeBouton1) {
        terminerSelection();
    }
}

/// Asks, and opens the entry. False when the user turned back or the list is full.
bool PageResultats::commencerSelection() {
    Messages& messages = *contexte.services.messages;
    Atelier& atelier = contexte.atelier;
    if (messages.QuestionOuiNon(u"Passer en mode sélection de grilles ?"_s, u"Confirmation"_s) !=
        CodeBouton1) {
        return false;
    }
    const int recu =
        messages.QuestionOuiNon(u"S'agit-il de la saisie d'un Reçu de Jeu ?"_s, u"Confirmation"_s);
    if (recu == CodeFerme) return false;
    if (recu != CodeBouton1 && atelier.ListeChoix.size() >= NbGrillesMax) {
        messages.MessageInfo(
            u"Vous avez atteint la capacité maximum pour la mise en mémoire de grilles..."_s,
            u"Message"_s,
            u"Vous ne pouvez plus ajouter de grilles, cliquez donc sur Terminer...\nOu bien "
            u"supprimer des grilles et poursuivez vos opérations en mémoire."_s);
        return false;
    }
    contexte.modes.ModeRecu = recu == CodeBouton1;
    contexte.modes.ModeNormal = false;
    contexte.modes.ModeSelection = true;
    if (contexte.modes.ModeRecu) {
        atelier.ListeRecu.clear();
        atelier.ListeGrilles.clear();
    } else {
        atelier.ListeGrilles = atelier.ListeChoix;
    }
    grille_ = static_cast<int>(atelier.ListeGrilles.size()) + 1;
    planche_->relacher();
    eclairer();
    return true;
}

void PageResultats::cocher(int place) {
    if (planche_->EtatBouton()[static_cast<std::size_t>(place)] != 0) {
        planche_->tenir(place, false, true);
        return;
    }
    const bool numero = place < NumeroMax;
    const auto n = static_cast<int>(planche_->tenus(GenreStats::Numeros).size());
    const auto c = static_cast<int>(planche_->tenus(GenreStats::Chances).size());
    if (TableMises(n + (numero ? 1 : 0), c + (numero ? 0 : 1)) != MiseInjouable) {
        planche_->tenir(place, true, true);
        return;
    }
    QString refus;
    if (!numero) {
        refus =
            u"Vous avez coché %1 numéros, vous ne pouvez pas cocher plus de %2 chances."_s.arg(n)
                .arg(c);
    } else if (c < 2) {
        refus = u"Vous ne pouvez pas cocher plus de %1 numéros."_s.arg(n);
    } else {
        refus =
            u"Vous avez coché %2 chances, vous ne pouvez pas cocher plus de %1 numéros."_s.arg(n)
                .arg(c);
    }
    contexte.services.messages->MessageAvertissement(refus, u"Attention"_s);
}

bool PageResultats::grilleComplete() const {
    const double mise = TableMises(static_cast<int>(planche_->tenus(GenreStats::Numeros).size()),
                                   static_cast<int>(planche_->tenus(GenreStats::Chances).size()));
    return mise != MiseIncomplete && mise != MiseInjouable;
}

Grille PageResultats::grilleEnMain() const {
    return FaireGrille(planche_->tenus(GenreStats::Numeros), planche_->tenus(GenreStats::Chances),
                       CheckBox2ND->isChecked());
}

void PageResultats::rangerGrilleEnMain() {
    constexpr std::size_t dignesDEtreGardes = 3;
    if (contexte.modes.ModeSelection &&
        planche_->tenus(GenreStats::Numeros).size() >= dignesDEtreGardes) {
        contexte.atelier.ListeGrilles.push_back(grilleEnMain());
    }
}

void PageResultats::terminerSelection() {
    Atelier& atelier = contexte.atelier;
    if (grilleComplete()) atelier.ListeGrilles.push_back(grilleEnMain());
    (contexte.modes.ModeRecu ? atelier.ListeRecu : atelier.ListeChoix) = atelier.ListeGrilles;
    contexte.modes.ModeSelection = false;
    contexte.modes.ModeNormal = true;
    rendrePlanche();
    changerMode();
    SelectGrilles->setFocus();
}

void PageResultats::NormalModeClick() {
    if (contexte.refuserSiOccupe()) return;
    if (contexte.modes.ModeSelection) terminerSelection();
    if (contexte.modes.ModeConsultation) terminerConsultation();
}

// ---- Consultation ----------------------------------------------------------------------------

void PageResultats::ConsultationClick() {
    if (contexte.refuserSiOccupe()) return;
    if (contexte.modes.ModeConsultation) {
        terminerConsultation();
        return;
    }
    Atelier& atelier = contexte.atelier;
    if (atelier.ListeRecu.empty() && atelier.ListeChoix.empty()) {
        contexte.services.messages->MessageInfo(
            u"Aucune grille sélectionnée..."_s, u"Message"_s,
            u"Cliquez sur le bouton Sélection afin de saisir des grilles."_s);
        return;
    }
    // One list only: the mode follows it.
    if (atelier.ListeRecu.empty() || atelier.ListeChoix.empty()) {
        contexte.modes.ModeRecu = atelier.ListeChoix.empty();
    }
    atelier.ListeGrilles = contexte.modes.ModeRecu ? atelier.ListeRecu : atelier.ListeChoix;
    contexte.modes.ModeConsultation = true;
    Consultation->setText(u"&Terminer"_s);
    poserIndice(Consultation, u"Retour au mode normal"_s);
    changerMode();
    montrerGrille(1);
}

void PageResultats::terminerConsultation() {
    contexte.modes.ModeConsultation = false;
    Consultation->setText(u"C&onsultation"_s);
    poserIndice(Consultation, u"Vérification des grilles en mémoire"_s);
    rendrePlanche();
    changerMode();
}

void PageResultats::deplacerGrille(int numero) {
    if (!contexte.modes.ModeConsultation) return;
    montrerGrille(std::clamp(numero, 1, static_cast<int>(contexte.atelier.ListeGrilles.size())));
}

/// Puts a ticket of the list on the board.
void PageResultats::montrerGrille(int numero) {
    grille_ = numero;
    const Grille& g = contexte.atelier.ListeGrilles[static_cast<std::size_t>(numero - 1)];
    const auto n = static_cast<std::size_t>(g[1]);
    const auto c = static_cast<std::size_t>(g[2 + n]);
    planche_->relacher();
    for (std::size_t i = 0; i < n; ++i) {
        planche_->tenir(placeDe(GenreStats::Numeros, static_cast<int>(g[2 + i])), true, true);
    }
    for (std::size_t i = 0; i < c; ++i) {
        planche_->tenir(placeDe(GenreStats::Chances, static_cast<int>(g[3 + n + i])), true, true);
    }
    // The option is what the stake holds above the ticket itself; half a cent is no money.
    const double nue = TableMises(static_cast<int>(n), static_cast<int>(c));
    CheckBox2ND->setChecked(g[0] > nue + 0.005);
    majFicheGrille();
}

// ---- What follows the mode -------------------------------------------------------------------

void PageResultats::changerMode() {
    majCommandes();
    majFicheGrille();
    Q_EMIT modeChange();
}

void PageResultats::majCommandes() {
    const Modes& modes = contexte.modes;
    const bool libre = plancheLibre();
    for (QWidget* w : {static_cast<QWidget*>(DateTimePicker), static_cast<QWidget*>(EditTirGlob),
                       static_cast<QWidget*>(UpDown1), static_cast<QWidget*>(ComboBox3),
                       static_cast<QWidget*>(Consultation)}) {
        w->setEnabled(libre);
    }
    SelectGrilles->setEnabled(!choixEnCours_ && !modes.ModeConsultation);
    ReInit->setEnabled(!modes.ModeSelection && !modes.ModeConsultation);
    CommunsButton->setVisible(!choixEnCours_);
    NormalMode->setVisible(modes.ModeSelection);
    const bool tenus = std::ranges::any_of(planche_->EtatBouton(), [](auto e) { return e != 0; });
    DeSelect->setVisible(!modes.ModeConsultation &&
                         (choixEnCours_ || modes.ModeSelection || tenus));
    CheckBox2ND->setEnabled(modes.ModeSelection);
    Edit1->setEnabled(modes.ModeConsultation);
    UpDown->setEnabled(modes.ModeConsultation);
}

void PageResultats::majFicheGrille() {
    const Modes& modes = contexte.modes;
    const Atelier& atelier = contexte.atelier;
    const auto numeros = planche_->tenus(GenreStats::Numeros);
    const auto chances = planche_->tenus(GenreStats::Chances);
    const bool grille = modes.ModeSelection || modes.ModeConsultation;
    choixGrille_->setVisible(grille);
    CheckBox2ND->setVisible(grille);
    QString mise, francs;
    if (grille) {
        LabelSelection->setText(modes.ModeRecu ? u"Reçu de Jeu"_s : u"Grilles au choix"_s);
        QString texte = u"%1 + %2C"_s.arg(numeros.size()).arg(chances.size());
        if (grilleComplete()) {
            const Reglages& reglages = atelier.configuration.reglages;
            const double montant = grilleEnMain()[0];
            mise = versQt(FormaterMontant(montant) + " " + reglages.SymboleMonnaie);
            francs = u"Montant en Francs : %1 F"_s.arg(
                versQt(FormaterMontant(montant * reglages.TauxConversion)));
        } else {
            texte += u"\nGrille incomplète : au moins 5 numéros et 1 chance"_s;
        }
        compteGrille_->setText(texte);
        const QScopedValueRollback garde(garde_, true);
        const QString numero = QString::number(grille_);
        if (Edit1->text() != numero) Edit1->setText(numero);
        surGrilles_->setText(u"sur %1"_s.arg(
            std::max<std::size_t>(atelier.ListeGrilles.size(), static_cast<std::size_t>(grille_))));
    } else if (choixEnCours_) {
        LabelSelection->setText(u"Choix libre"_s);
        compteGrille_->setText(u"%1, %2\nCochez sur la planche, puis validez."_s.arg(
            compte(numeros.size(), u"numéro"_s), compte(chances.size(), u"chance"_s)));
    } else {
        LabelSelection->setText(u"En mémoire"_s);
        const ChoixLibre choix = choixLibre();
        QStringList lignes{
            u"Grilles au choix : %1"_s.arg(atelier.ListeChoix.size()),
            u"Reçu de Jeu : %1"_s.arg(compte(atelier.ListeRecu.size(), u"grille"_s)),
            u"Choix libre : %1 + %2C"_s.arg(choix.numeros.size()).arg(choix.chances.size())};
        compteGrille_->setText(lignes.join(u'\n'));
    }
    LabelMiseF->setText(mise);
    poserIndice(LabelMiseF, francs);
}

}  // namespace norvane::ui
