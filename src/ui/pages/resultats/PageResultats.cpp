// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/PageResultats.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "common/Theme.h"
#include "resultats/CalculGains.h"
#include "resultats/CommandesBillets.h"
#include "resultats/CommandesEdition.h"
#include "resultats/FicheGrille.h"
#include "resultats/PanneauAleatoire.h"
#include "resultats/PanneauInternet.h"
#include "resultats/PanneauJoker.h"
#include "resultats/PanneauRapports.h"
#include "resultats/PanneauTirage.h"
#include "resultats/RangeeCommandes.h"
#include "resultats/TextesBillets.h"
#include "widgets/Fiche.h"
#include "widgets/PlancheNumeros.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PageResultats::PageResultats(Contexte& ctx, QWidget* parent)
    : Page(ctx, u"Varo1"_s, u"Résultats"_s, parent), saisie_(ctx.atelier.saisie) {
    construire();
    billets_ = new CommandesBillets(contexte, this);
    gains_ = new CalculGains(contexte, rangee_->jauge(), this);
    edition_ = new CommandesEdition(contexte, this);
    commandes_ = std::make_unique<EtatsCommandes>(*this);
    relierTirage();
    relierFiche();
    relierCommandes();
    relierJoker();
    relierEdition();
    montrer();
}

void PageResultats::construire() {
    internet_ = new PanneauInternet(contexte, this);
    // Made for the longer of its captions: neither it nor its going moves what stands beside.
    filtre_ = bouton(u"Button75"_s, u"Retour à la base totale des tirages"_s, {}, this);
    filtre_->setMinimumHeight(0);
    QSizePolicy garde = filtre_->sizePolicy();
    garde.setRetainSizeWhenHidden(true);
    filtre_->setSizePolicy(garde);
    tirage_ = new PanneauTirage(contexte, this);
    planche_ = new PlancheNumeros(this);
    rapports_ = new PanneauRapports(contexte, this);
    aleatoire_ = new PanneauAleatoire(this);
    joker_ = new PanneauJoker(contexte, this);
    rapports_->ajouter(aleatoire_);
    rapports_->ajouter(joker_);
    fiche_ = new FicheGrille(this);
    rangee_ = new RangeeCommandes(this);

    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(2 * Unite);
    gauche->addLayout(rangee({internet_, filtre_}));
    gauche->addWidget(tirage_);
    gauche->addWidget(planche_, 1);
    auto* droite = new QVBoxLayout;
    droite->setSpacing(2 * Unite);
    droite->addWidget(rapports_);
    droite->addWidget(fiche_, 1);
    auto* haut = new QHBoxLayout;
    haut->setSpacing(2 * Unite);
    haut->addLayout(gauche, 19);
    haut->addLayout(droite, 10);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    page->setSpacing(2 * Unite);
    page->addLayout(haut, 1);
    page->addWidget(rangee_);
}

void PageResultats::relierTirage() {
    connect(tirage_, &PanneauTirage::tirageChange, this, &PageResultats::montrerTirage);
    connect(rangee_, &RangeeCommandes::CommunsButtonClick, tirage_, &PanneauTirage::montrerCommuns);
    connect(planche_, &PlancheNumeros::appui, this, &PageResultats::presser);
    connect(rangee_, &RangeeCommandes::ReInitClick, this, &PageResultats::ReInitClick);
    connect(rangee_, &RangeeCommandes::DeSelectClick, this, &PageResultats::DeSelectClick);
    connect(rangee_, &RangeeCommandes::VerifGainsClick, this, [this] {
        // A receipt just dated may be sent to its draw, which is then the one on show.
        if (gains_->enCours() || billets_->proposerTirage(tirage_->choix().date())) {
            gains_->VerifGainsClick(tirage_->choix().indice());
        }
    });
    connect(gains_, &CalculGains::enCoursChange, this, &PageResultats::montrer);
}

void PageResultats::relierFiche() {
    const auto relier = [this](void (FicheGrille::*signal)(), void (CommandesBillets::*geste)()) {
        connect(fiche_, signal, billets_, geste);
    };
    relier(&FicheGrille::AddGrilleClick, &CommandesBillets::AddGrilleClick);
    connect(fiche_, &FicheGrille::SupprGrilleClick, this, [this] {
        if (edition_->enMode()) {
            edition_->SupprGrilleClick(tirage_->choix().indice());
        } else {
            billets_->SupprGrilleClick();
        }
    });
    relier(&FicheGrille::SupprAllGrillesClick, &CommandesBillets::SupprAllGrillesClick);
    connect(fiche_, &FicheGrille::optionChoisie, billets_, &CommandesBillets::poserOption);
    connect(fiche_, &FicheGrille::listeChoisie, billets_, &CommandesBillets::choisirListe);
    connect(fiche_, &FicheGrille::numeroDemande, billets_, &CommandesBillets::allerA);
    connect(fiche_, &FicheGrille::deplacement, this,
            [this](int pas) { billets_->allerA(saisie_.grille() + pas); });
    connect(billets_, &CommandesBillets::supprimees, fiche_, &FicheGrille::annoncerVide);
}

void PageResultats::relierCommandes() {
    const auto relier = [this](void (RangeeCommandes::*signal)(),
                               void (CommandesBillets::*geste)()) {
        connect(rangee_, signal, billets_, geste);
    };
    relier(&RangeeCommandes::SelectGrillesClick, &CommandesBillets::SelectGrillesClick);
    relier(&RangeeCommandes::NormalModeClick, &CommandesBillets::NormalModeClick);
    relier(&RangeeCommandes::ConsultationClick, &CommandesBillets::ConsultationClick);
    relier(&RangeeCommandes::ChargerGrillesClick, &CommandesBillets::ChargerGrillesClick);
    relier(&RangeeCommandes::ButtonSauverGrillesClick, &CommandesBillets::ButtonSauverGrillesClick);
    connect(aleatoire_, &PanneauAleatoire::ButtonAleatoireClick, billets_,
            &CommandesBillets::ButtonAleatoireClick);
    connect(billets_, &CommandesBillets::enMainChange, this, &PageResultats::montrer);
    connect(billets_, &CommandesBillets::dateDemandee, tirage_, &PanneauTirage::choisirDate);
}

void PageResultats::relierJoker() {
    connect(joker_, &PanneauJoker::Button66Click, billets_, &CommandesBillets::Button66Click);
    connect(joker_, &PanneauJoker::numeroValide, billets_, &CommandesBillets::validerJoker);
    connect(joker_, &PanneauJoker::retour, billets_, &CommandesBillets::reprendreJoker);
    connect(joker_, &PanneauJoker::dateValidee, billets_, &CommandesBillets::dater);
    connect(billets_, &CommandesBillets::etapeJoker, joker_, &PanneauJoker::entrer);
    connect(billets_, &CommandesBillets::jokerAttendu, joker_, &PanneauJoker::viser);
}

void PageResultats::relierEdition() {
    connect(rangee_, &RangeeCommandes::MajBaseManuelleClick, edition_,
            &CommandesEdition::MajBaseManuelleClick);
    connect(rangee_, &RangeeCommandes::AjoutLibreClick, this,
            [this] { edition_->AjoutLibreClick(tirage_->choix().place()); });
    connect(filtre_, &QPushButton::clicked, edition_, &CommandesEdition::Button75Click);
    connect(rapports_, &PanneauRapports::VideRapportsClick, edition_,
            &CommandesEdition::VideRapportsClick);
    connect(rapports_, &PanneauRapports::celluleSaisie, edition_, &CommandesEdition::poserRapport);
    connect(tirage_, &PanneauTirage::jokerSaisi, edition_, &CommandesEdition::poserJoker);
    connect(edition_, &CommandesEdition::saisieChange, this, &PageResultats::montrer);
    connect(edition_, &CommandesEdition::jokerAttendu, tirage_, &PanneauTirage::viserJoker);
    connect(edition_, &CommandesEdition::tirageDemande, tirage_, &PanneauTirage::montrerTirage);
}

void PageResultats::premierAffichage() {
    tirage_->reprendre();
}

void PageResultats::surChange(const Changement& changement) {
    if (changement.base) {
        internet_->suivre();
        lever(marques_);
        tirage_->reprendre();
    } else if (changement.reglages) {
        montrerTirage();
    } else if (changement.tickets || changement.mode) {
        montrer();
    }
}

bool PageResultats::ouvrir(const Destination& destination) {
    const auto* voulu = std::get_if<VersTirage>(&destination);
    const bool billets = std::holds_alternative<VersGrille>(destination) ||
                         std::holds_alternative<VersTickets>(destination);
    // The record in hand keeps the page, and its editing the board.
    if (edition_->enMode() && (billets || (voulu != nullptr && edition_->ModificationEnCours()))) {
        edition_->refuserDestination();
        return true;
    }
    if (voulu != nullptr) {
        quitterChoix();
        billets_->quitterConsultation();
        tirage_->montrerTirage(voulu->numero);
        if (voulu->appuyer) appuyer(*voulu->appuyer);
        return true;
    }
    if (const auto* grille = std::get_if<VersGrille>(&destination)) {
        quitterChoix();
        tirage_->montrerTirage(grille->tirage);
        billets_->consulterStock(grille->grille);
        return true;
    }
    if (const auto* tickets = std::get_if<VersTickets>(&destination)) {
        quitterChoix();
        billets_->CopierversBulletins(tickets->grilles);
        return true;
    }
    return false;
}

// ---- What the board serves besides the tickets -------------------------------------------------

void PageResultats::presser(GenreStats genre, int valeur) {
    if (saisie_.surPlanche()) {
        billets_->Button1Click(genre, valeur);
        return;
    }
    if (edition_->enMode()) {
        if (edition_->ModificationEnCours()) edition_->Button1Click(genre, valeur);
        return;
    }
    Cases& choix = contexte.atelier.choixLibre;
    if (choixEnCours_) {
        choix.basculer(genre, valeur);
    } else if (saisie_.etat() == EtatTickets::Normal && eclairees().contient(genre, valeur)) {
        choix.basculer(genre, valeur);
        const bool marque = choix.contient(genre, valeur) || marques_.contient(genre, valeur);
        if (marque) marques_.basculer(genre, valeur);
    }
    montrer();
}

void PageResultats::lever(Cases cases) {
    contexte.atelier.choixLibre = contexte.atelier.choixLibre.sans(cases);
    marques_ = marques_.sans(cases);
}

/// Presses a button that is up.
void PageResultats::appuyer(const Element& element) {
    if (saisie_.enSelection() || tenues().contient(element.genre, element.valeur)) return;
    presser(element.genre, element.valeur);
}

void PageResultats::ReInitClick() {
    choixEnCours_ = !choixEnCours_;
    if (choixEnCours_) rangee_->leverCommuns();
    marques_ = {};  // what is down at the start is chosen like the rest
    montrer();
}

void PageResultats::quitterChoix() {
    if (choixEnCours_) ReInitClick();
}

void PageResultats::DeSelectClick() {
    if (saisie_.surPlanche()) {
        saisie_.decocherTout();
    } else if (edition_->ModificationEnCours()) {
        edition_->DeSelectClick();
    } else {
        lever(contexte.atelier.choixLibre);
    }
    montrer();
    // The button goes with the last one that it let up.
    if (etat() == EtatNormal) rangee_->viserChoixLibre();
}

// ---- What is on show ---------------------------------------------------------------------------

EtatPage PageResultats::etat() const {
    if (edition_->ModificationEnCours()) return EtatModification;
    return edition_->enMode() ? EtatMiseAJour : etatTickets();
}

EtatPage PageResultats::etatTickets() const {
    switch (saisie_.etat()) {
        case EtatTickets::Grilles:
            return EtatGrilles;
        case EtatTickets::Recu:
            return EtatRecu;
        case EtatTickets::Joker:
            if (saisie_.etape() == EtapeJoker::Compte) return EtatJokerCompte;
            return saisie_.etape() == EtapeJoker::Numeros ? EtatJokerNumeros : EtatJokerDate;
        case EtatTickets::Consultation:
            return saisie_.ModeGrilles() ? EtatConsultationGrilles : EtatConsultationRecu;
        default:
            return choixEnCours_ ? EtatChoix : EtatNormal;
    }
}

Situation PageResultats::situation() const {
    Situation s;
    s.etat = etat();
    s.bilanEnCours = gains_->enCours();
    s.bilan = saisie_.bilan();
    s.sansGrille = saisie_.nombre() == 0;
    s.aSauver = contexte.atelier.billets.aSauver;
    s.tenus = !tenues().vide();
    s.sansRecu = !saisie_.listeOfferte(true);
    s.sansChoix = !saisie_.listeOfferte(false);
    s.versJoker = saisie_.suite() == SuiteSaisie::NumerosJoker;
    s.versDate = saisie_.suite() == SuiteSaisie::DateParticipation;
    s.second = tirage_->choix().second();
    s.sansTirage = tirage_->choix().indice() < 0;
    s.filtre = contexte.atelier.FiltreActif;
    return s;
}

/// The board belongs to the draw unless numbers are being chosen on it.
Cases PageResultats::eclairees() const {
    const Tirage* tirage = tirage_->choix().tirage();
    const bool libre = !choixEnCours_ && !saisie_.enSelection() && !edition_->ModificationEnCours();
    return tirage != nullptr && libre ? CasesDe(*tirage) : Cases{};
}

Cases PageResultats::tenues() const {
    if (edition_->enMode()) {
        return edition_->ModificationEnCours() ? edition_->saisie()->cases : Cases{};
    }
    if (saisie_.etat() == EtatTickets::Normal) return contexte.atelier.choixLibre;
    const Grille& grille = saisie_.grilleEnMain();
    return {grille.numeros.ensemble(), grille.chances.ensemble()};
}

/// The draw on show is another one.
void PageResultats::montrerTirage() {
    const ChoixTirage& choix = tirage_->choix();
    contexte.atelier.TirageActif = choix.indice();
    rapports_->montrer(choix);
    montrer();
    std::array<bool, NbBoutons> allumes{};
    const Cases eclairage = eclairees();
    for (int place = 0; place < NbBoutons; ++place) {
        const BoutonPlanche* b = planche_->bouton(place);
        allumes[static_cast<std::size_t>(place)] = eclairage.contient(b->genre(), b->valeur());
    }
    planche_->poserIndices(IndicesBoutons(contexte.atelier.occurrences, choix.indice(), allumes));
}

void PageResultats::montrer() {
    // A mark goes with the light of its number, and with the Normal mode.
    const bool normal = etat() == EtatNormal;
    lever(normal ? marques_.sans(eclairees()) : marques_);
    planche_->eclairer(eclairees());
    planche_->tenir(tenues());
    commandes_->appliquer(situation());
    montrerSaisie();
    montrerFiche();
    const bool rendue = normal && etatMontre_ != EtatTickets::Normal;
    etatMontre_ = saisie_.etat();
    if (rendue) rangee_->viserSelection();
}

/// The record in hand takes the place of the draw on show.
void PageResultats::montrerSaisie() {
    tirage_->permettreAbsents(edition_->enMode());
    tirage_->saisir(edition_->saisie());
    rapports_->saisir(edition_->saisie(), tirage_->choix());
}

void PageResultats::montrerTexteEdition() {
    QString texte =
        u"« Modifier » ouvre l'enregistrement affiché, « Supprimer » l'efface.\nUne date sans "
        u"tirage permet d'en ajouter un."_s;
    if (edition_->ModificationEnCours()) {
        texte =
            u"Cochez les numéros sur la planche, complétez le Joker+ et les rapports, puis "
            u"validez."_s;
    } else if (tirage_->choix().indice() < 0) {
        texte = u"Pas de tirage à cette date.\n« Modifier » en ajoute un."_s;
    }
    fiche_->montrerTexte(u"Mise à jour de la base"_s, texte);
}

void PageResultats::montrerFiche() {
    fiche_->montrerListe(saisie_.recuVoulu());
    fiche_->montrerOption(saisie_.option2nd());
    if (saisie_.surPlanche()) aleatoire_->poserReste(saisie_.reste(), saisie_.libres());
    if (!saisie_.enConsultation()) rapports_->montrerGains(false, {});
    switch (etat()) {
        case EtatMiseAJour:
        case EtatModification:
            montrerTexteEdition();
            break;
        case EtatNormal:
            fiche_->montrerTexte(u"En mémoire"_s, texteMemoire(contexte.atelier));
            break;
        case EtatChoix: {
            const Cases& choix = contexte.atelier.choixLibre;
            const auto taille = [](Ensemble e) { return static_cast<std::size_t>(e.taille()); };
            fiche_->montrerTexte(u"Choix libre"_s,
                                 u"%1, %2\nCochez sur la planche, puis validez."_s.arg(
                                     compte(taille(choix.numeros), u"numéro"_s),
                                     compte(taille(choix.chances), u"chance"_s)));
            break;
        }
        case EtatJokerCompte:
        case EtatJokerNumeros:
        case EtatJokerDate:
            fiche_->montrerTexte(u"Reçu de Jeu"_s, texteRecu(contexte.atelier));
            break;
        default:
            montrerGrille();
    }
}

void PageResultats::montrerGrille() {
    const CarteGrille carte = saisie_.carte(contexte.atelier.base, tirage_->choix().indice());
    fiche_->montrerGrille(saisie_.ModeGrilles() ? u"Grilles au choix"_s : u"Reçu de Jeu"_s, carte,
                          eclairees(), saisie_.surPlanche(),
                          contexte.atelier.configuration.reglages);
    if (saisie_.surPlanche()) return;
    const ResultatGrille resultat = carte.resultat.value_or(ResultatGrille{});
    rapports_->montrerGains(resultat.second, resultat.comptes);
}

}  // namespace norvane::ui
