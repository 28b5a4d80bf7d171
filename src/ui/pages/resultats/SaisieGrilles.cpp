// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Entry: from the first question to the end of a list of grids or of a receipt.

#include "resultats/SaisieGrilles.h"

#include <algorithm>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "resultats/PanneauAleatoire.h"
#include "resultats/SaisieJoker.h"
#include "tickets/FichiersGrilles.h"
#include "tickets/ListesGrilles.h"
#include "widgets/ChampNumero.h"
#include "widgets/PlancheNumeros.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

SaisieGrilles::SaisieGrilles(Contexte& ctx, PlancheNumeros& planche, FicheGrille& fiche,
                             PanneauAleatoire& aleatoire, SaisieJoker& joker)
    : contexte_(ctx),
      planche_(planche),
      fiche_(fiche),
      aleatoire_(aleatoire),
      joker_(joker),
      hasard_(ctx.services.hasard->graine()) {
    relier();
}

void SaisieGrilles::relier() {
    const auto bouton = [this](QPushButton* b, void (SaisieGrilles::*geste)()) {
        connect(b, &QPushButton::clicked, this, geste);
    };
    bouton(fiche_.AddGrille, &SaisieGrilles::AddGrilleClick);
    bouton(fiche_.SupprGrille, &SaisieGrilles::SupprGrilleClick);
    bouton(fiche_.SupprAllGrilles, &SaisieGrilles::SupprAllGrillesClick);
    connect(&aleatoire_, &PanneauAleatoire::ButtonAleatoireClick, this,
            &SaisieGrilles::ButtonAleatoireClick);
    connect(&joker_, &SaisieJoker::dateValidee, this, &SaisieGrilles::recuDate);
    connect(&planche_, &PlancheNumeros::etatChange, this, [this] {
        if (surPlanche()) majFiche();
    });
    connect(fiche_.CheckBox2ND, &QCheckBox::toggled, this, [this] {
        if (surPlanche()) majFiche();
    });
    connect(fiche_.Edit1, &QLineEdit::textChanged, this, [this](const QString& texte) {
        if (!texte.isEmpty()) deplacer(texte.toInt());
    });
    connect(fiche_.Edit1, &QLineEdit::editingFinished, this, [this] {
        // An emptied field takes the number on show back.
        if (fiche_.Edit1->text().isEmpty()) majFiche();
    });
    const auto pas = [this](int n) { deplacer(grille_ + n); };
    connect(fiche_.Edit1, &ChampNumero::deplacement, this, pas);
    connect(fiche_.UpDown, &HautBas::deplacement, this, pas);
    connect(fiche_.Edit1, &ChampNumero::extremite, this,
            [this](bool derniere) { deplacer(derniere ? nombre() : 1); });
    connect(fiche_.RadioButtonJeu, &QRadioButton::clicked, this, [this] { choisirListe(true); });
    connect(fiche_.RadioButtonSimple, &QRadioButton::clicked, this,
            [this] { choisirListe(false); });
}

std::vector<Grille>& SaisieGrilles::source() {
    return modeGrilles() ? contexte_.atelier.ListeChoix : contexte_.atelier.ListeRecu;
}

int SaisieGrilles::stockees() const {
    const auto& grilles = contexte_.atelier.ListeGrilles;
    return nombre() - (!grilles.empty() && EstVide(grilles.back()) ? 1 : 0);
}

void SaisieGrilles::changerEtat(EtatTickets etat) {
    etat_ = etat;
    Modes& modes = contexte_.modes;
    modes.ModeConsultation = etat == EtatTickets::Consultation;
    modes.ModeNormal = etat == EtatTickets::Normal || modes.ModeConsultation;
    modes.ModeSelection = !modes.ModeNormal;
    Q_EMIT etatChange();
}

QString SaisieGrilles::indiceTerminer() const {
    if (etat_ == EtatTickets::Consultation) return u"Retour au mode normal"_s;
    if (etat_ != EtatTickets::Recu) return u"Retour au Mode Normal"_s;
    if (nombre() == 0) return u"Retour au Mode Normal"_s;
    return recuEntame_ ? u"Passer à la saisie de la date de participation"_s
                       : u"Passer à la saisie des Numéros Joker+"_s;
}

void SaisieGrilles::direIncomplete() {
    messages().MessageAvertissement(u"La grille en cours n'est pas complète..."_s, u"Attention"_s);
}

void SaisieGrilles::direCapacite() {
    messages().MessageInfo(
        u"Vous avez atteint la capacité maximum pour la mise en mémoire de grilles..."_s,
        u"Message"_s,
        u"Vous ne pouvez plus ajouter de grilles, cliquez donc sur Terminer...\nOu bien supprimer "
        u"des grilles et poursuivez vos opérations en mémoire."_s);
}

// ---- Start -----------------------------------------------------------------------------------

void SaisieGrilles::SelectGrillesClick() {
    if (contexte_.refuserSiOccupe()) return;
    if (etat_ == EtatTickets::Normal) {
        commencer();
        return;
    }
    if (!surPlanche()) return;
    if (!grilleComplete()) {
        direIncomplete();
        return;
    }
    if (messages().QuestionOuiNon(u"Sélection d'une autre grille ?"_s, u"Confirmation"_s) ==
        CodeBouton1) {
        terminerGrilles();
        terminer();
    }
}

/// Asks, and opens the entry. False when the user turned back.
bool SaisieGrilles::commencer() {
    if (messages().QuestionOuiNon(u"Passer en mode sélection de grilles ?"_s, u"Confirmation"_s) !=
        CodeBouton1) {
        return false;
    }
    const int recu = messages().QuestionOuiNon(u"S'agit-il de la saisie d'un Reçu de Jeu ?"_s,
                                               u"Confirmation"_s);
    if (recu == CodeFerme) return false;
    Atelier& atelier = contexte_.atelier;
    poserModeRecu(recu == CodeBouton1);
    if (modeGrilles()) {
        CopierListe(liste(), atelier.ListeChoix);
    } else {
        atelier.ListeRecu.clear();
        atelier.ListeJoker.clear();
        liste().clear();
    }
    recuEntame_ = false;
    changerEtat(modeGrilles() ? EtatTickets::Grilles : EtatTickets::Recu);
    if (nombre() < NbGrillesMax) {
        ouvrirCase();
    } else {
        AfficherGrille(nombre());
    }
    Q_EMIT etatChange();
    return true;
}

/// The radio buttons follow the list that is worked on.
void SaisieGrilles::poserModeRecu(bool recu) {
    contexte_.modes.ModeRecu = recu;
    (recu ? fiche_.RadioButtonJeu : fiche_.RadioButtonSimple)->setChecked(true);
}

/// An empty place at the end, and an empty board for it.
void SaisieGrilles::ouvrirCase() {
    if (liste().empty() || !EstVide(liste().back())) NouvelleGrille(liste(), liste().size());
    AfficherGrille(nombre());
}

// ---- The ticket in hand ----------------------------------------------------------------------

void SaisieGrilles::Button1Click(int place) {
    if (planche_.EtatBouton()[static_cast<std::size_t>(place)] != 0) {
        planche_.tenir(place, false, true);
    } else {
        cocher(place);
    }
}

void SaisieGrilles::cocher(int place) {
    const bool numero = place < NumeroMax;
    const auto n = static_cast<int>(planche_.tenus(GenreStats::Numeros).size());
    const auto c = static_cast<int>(planche_.tenus(GenreStats::Chances).size());
    if (TableMises(n + (numero ? 1 : 0), c + (numero ? 0 : 1)) != MiseInjouable) {
        planche_.tenir(place, true, true);
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
    messages().MessageAvertissement(refus, u"Attention"_s);
}

bool SaisieGrilles::grilleComplete() const {
    const double mise = TableMises(static_cast<int>(planche_.tenus(GenreStats::Numeros).size()),
                                   static_cast<int>(planche_.tenus(GenreStats::Chances).size()));
    return mise != MiseIncomplete && mise != MiseInjouable;
}

Grille SaisieGrilles::grilleEnMain() const {
    return FaireGrille(planche_.tenus(GenreStats::Numeros), planche_.tenus(GenreStats::Chances),
                       fiche_.CheckBox2ND->isChecked());
}

/// Puts the board and the option into place `indice`, or behind the last one.
void SaisieGrilles::EnregistrerGrille(std::vector<Grille>& grilles, int indice) {
    const auto place = static_cast<std::size_t>(std::max(0, indice));
    if (place >= grilles.size()) NouvelleGrille(grilles, grilles.size());
    grilles[std::min(place, grilles.size() - 1)] = grilleEnMain();
}

/// Brings a ticket of the list to the board, in its own order; 0 is no ticket.
void SaisieGrilles::AfficherGrille(int numero) {
    grille_ = numero;
    planche_.relacher();
    if (numero > 0) {
        const Grille g = liste()[static_cast<std::size_t>(numero - 1)];
        const auto n = static_cast<std::size_t>(g[1]);
        const auto c = static_cast<std::size_t>(g[2 + n]);
        for (std::size_t i = 0; i < n; ++i) {
            planche_.tenir(placeDe(GenreStats::Numeros, static_cast<int>(g[2 + i])), true, true);
        }
        for (std::size_t i = 0; i < c; ++i) {
            planche_.tenir(placeDe(GenreStats::Chances, static_cast<int>(g[3 + n + i])), true,
                           true);
        }
        // An empty place leaves the option as the last ticket had it.
        if (!EstVide(g)) fiche_.CheckBox2ND->setChecked(ParticipeAu2ndTirage(g));
    }
    majFiche();
}

void SaisieGrilles::deplacer(int numero) {
    if (nombre() == 0 || (!surPlanche() && etat_ != EtatTickets::Consultation)) return;
    const int voulu = std::clamp(numero, 1, nombre());
    if (surPlanche() && voulu != grille_) {
        if (!grilleComplete()) {
            direIncomplete();
            majFiche();
            return;
        }
        EnregistrerGrille(liste(), grille_ - 1);
    }
    if (voulu == grille_) {
        majFiche();
    } else {
        AfficherGrille(voulu);
    }
}

void SaisieGrilles::AddGrilleClick() {
    if (contexte_.refuserSiOccupe() || !surPlanche()) return;
    if (!grilleComplete() && nombre() > 0) {
        direIncomplete();
        return;
    }
    if (messages().QuestionOuiNon(u"Ajouter une grille en mémoire ?"_s, u"Confirmation"_s) !=
        CodeBouton1) {
        return;
    }
    if (stockees() >= NbGrillesMax) {
        direCapacite();
        return;
    }
    recuEntame_ = recuEntame_ || !modeGrilles();
    if (!grilleComplete()) {
        // An emptied list takes up the ticket that is being ticked.
        NouvelleGrille(liste(), 0);
        grille_ = 1;
        majFiche();
        Q_EMIT etatChange();
        return;
    }
    EnregistrerGrille(liste(), grille_ - 1);
    if (nombre() < NbGrillesMax || EstVide(liste().back())) {
        ouvrirCase();
    } else {
        AfficherGrille(nombre());
    }
    Q_EMIT etatChange();
}

// ---- Deletion --------------------------------------------------------------------------------

void SaisieGrilles::SupprGrilleClick() {
    if (contexte_.refuserSiOccupe() || nombre() == 0) return;
    liste().erase(liste().begin() + (grille_ - 1));
    if (etat_ == EtatTickets::Consultation) {
        // The consultation works on a copy: what it copies loses the ticket too.
        CopierListe(source(), liste());
        if (modeGrilles()) aSauver_ = !liste().empty();
    }
    AfficherGrille(std::min(grille_, nombre()));
    fiche_.annoncerVide(liste().empty());
    Q_EMIT etatChange();
}

void SaisieGrilles::SupprAllGrillesClick() {
    if (contexte_.refuserSiOccupe()) return;
    if (grilleComplete()) {
        if (surPlanche()) EnregistrerGrille(liste(), grille_ - 1);
    } else if (surPlanche() && nombre() > 0) {
        direIncomplete();
        return;
    }
    if (messages().QuestionOuiNon(u"Supprimer toutes les grilles en mémoire ?"_s,
                                  u"Avertissement"_s) != CodeBouton1) {
        return;
    }
    if (modeGrilles() && stockees() > 0 &&
        (aSauver_ || !ListesEgales(liste(), contexte_.atelier.ListeChoix))) {
        const int reponse = messages().QuestionOuiNon(
            u"Les nouvelles grilles n'ont pas été enregistrées...\nVoulez-vous les sauvegarder ?"_s,
            u"Avertissement"_s);
        std::vector<Grille> grilles = liste();
        std::erase_if(grilles, EstVide);
        // Closed without an answer, or not saved after all: nothing may be lost.
        if (reponse == CodeFerme || (reponse == CodeBouton1 && !sauver(grilles))) return;
    }
    liste().clear();
    recuEntame_ = false;
    if (etat_ == EtatTickets::Consultation) {
        source().clear();
        if (modeGrilles()) {
            aSauver_ = false;
        } else {
            contexte_.atelier.ListeJoker.clear();
        }
    }
    AfficherGrille(0);
    fiche_.annoncerVide(true);
    Q_EMIT etatChange();
}

// ---- End -------------------------------------------------------------------------------------

void SaisieGrilles::NormalModeClick() {
    if (contexte_.refuserSiOccupe()) return;
    if (etat_ == EtatTickets::Consultation) {
        terminerConsultation();
    } else if (etat_ == EtatTickets::Joker) {
        // The receipt stays in memory; it is its file that will be missing.
        if (messages().MessageAnnuler(u"Abandonner la sélection en cours ?"_s, u"Confirmation"_s) ==
            CodeBouton1) {
            terminer();
        }
    } else if (surPlanche()) {
        const bool recu = etat_ == EtatTickets::Recu;
        terminerGrilles();
        if (!recu || liste().empty()) {
            terminer();
            return;
        }
        messages().MessageInfo(u"Saisissez à présent le nombre de Numéros Joker+..."_s,
                               u"Message"_s);
        planche_.relacher();
        changerEtat(EtatTickets::Joker);
        joker_.commencer();
    }
}

/// The ticket in hand goes to its place or is dropped; the list goes to the stock or the receipt.
void SaisieGrilles::terminerGrilles() {
    if (grilleComplete()) {
        EnregistrerGrille(liste(), grille_ - 1);
    } else if (grille_ > 0) {
        liste().erase(liste().begin() + (grille_ - 1));
    }
    std::erase_if(liste(), EstVide);
    grille_ = nombre();
    if (modeGrilles() && !ListesEgales(liste(), contexte_.atelier.ListeChoix)) {
        aSauver_ = !liste().empty();
    }
    CopierListe(source(), liste());
}

void SaisieGrilles::terminer() {
    joker_.rendreMasque();
    changerEtat(EtatTickets::Normal);
    Q_EMIT plancheRendue();
}

void SaisieGrilles::rangerGrilleEnMain() {
    constexpr std::size_t dignesDEtreGardes = 3;
    if (!surPlanche()) return;
    if (planche_.tenus(GenreStats::Numeros).size() >= dignesDEtreGardes) {
        EnregistrerGrille(liste(), grille_ - 1);
    } else if (grille_ > 0 && grille_ == nombre()) {
        liste().pop_back();
    }
    std::erase_if(liste(), EstVide);
}

/// The receipt is whole: it goes to the file of its date.
void SaisieGrilles::recuDate(int date) {
    Atelier& atelier = contexte_.atelier;
    const auto fichier = FichierRecu(atelier.Repertoire, date);
    std::error_code ignoree;
    bool ajouter = false;
    if (std::filesystem::exists(fichier, ignoree)) {
        const int reponse = messages().AvertissementOuiNon(
            u"Il existe déjà un Reçu de Jeu enregistré pour la date choisie..."_s,
            u"Avertissement"_s,
            u"Souhaitez-vous ajouter le reçu en cours à l'existant ?\n(Sinon l'existant sera "
            u"remplacé...)"_s);
        if (reponse == CodeFerme) return;  // neither: the date is still to be settled
        ajouter = reponse == CodeBouton1;
    }
    const auto ecrit =
        EnregistrerRecu({atelier.ListeRecu, atelier.ListeJoker}, atelier.Repertoire, date, ajouter);
    if (!ecrit) {
        messages().MessageErreur(versQt(ecrit.erreur()), u"Erreur"_s);
        return;
    }
    if (ajouter) {
        if (auto lu = ChargerRecu(fichier)) {
            atelier.ListeRecu = std::move(lu->grilles);
            atelier.ListeJoker = std::move(lu->jokers);
            CopierListe(liste(), atelier.ListeRecu);
        }
    }
    grille_ = 1;
    terminer();
}

}  // namespace norvane::ui
