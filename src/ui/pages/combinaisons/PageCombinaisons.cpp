// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PageCombinaisons.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QLabel>

#include "combinaisons/ActionsListe.h"
#include "combinaisons/Cahier.h"
#include "combinaisons/CommandesIntervalle.h"
#include "combinaisons/ConduiteMoteur.h"
#include "combinaisons/DetailsListe.h"
#include "combinaisons/LigneBornes.h"
#include "combinaisons/ManipulationListes.h"
#include "combinaisons/PanneauCombinaison.h"
#include "combinaisons/PanneauListe.h"
#include "combinaisons/PanneauSelections.h"
#include "combinaisons/PanneauTailles.h"
#include "combinaisons/PanneauTampons.h"
#include "combinaisons/PanneauTri.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"
#include "widgets/ListeCombinaisons.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// What the empty list says, by ModeListe.
constexpr std::array<const char16_t*, 3> Invites = {
    u"Cliquez sur COMB 2 à COMB 10\npour lister les combinaisons\nles plus ou moins sorties",
    u"Choisissez les bornes d'une taille\npuis cliquez sur son bouton", u"Aucune liste en mémoire"};

/// Sizes whose bounds, once computed, make the mode of the bounds the first one shown.
constexpr int TailleCouranteMax = NbBoules;

}  // namespace

PageCombinaisons::PageCombinaisons(Contexte& ctx, QWidget* parent)
    : Page(ctx, u"Varo3"_s, u"Combinaisons N"_s, parent),
      moteur_(ctx.atelier),
      commandesIntervalle_(new CommandesIntervalle(ctx, moteur_, this)) {
    construire();
    relier();
    poserOrdreTabulation();
    suivreBase();
}

void PageCombinaisons::construire() {
    auto* gauche = new Fiche(this);
    gauche->pile->addWidget(tailles_ = new PanneauTailles(gauche));
    auto* milieu = new Fiche(this);
    liste_ = new PanneauListe(ListePrincipale, contexte.atelier.ListeMemoire, milieu);
    milieu->setFixedWidth(liste_->boite().largeurLigne() + 4 * Unite);
    milieu->pile->addWidget(liste_, 1);
    milieu->pile->addWidget(actions_ = new ActionsListe(contexte, milieu));
    auto* choisie = new Fiche(this);
    combinaison_ = new PanneauCombinaison(contexte, CombinaisonChoisie, choisie);
    choisie->pile->addWidget(combinaison_);

    auto* droite = new QVBoxLayout;
    droite->setSpacing(2 * Unite);
    droite->addWidget(choisie);
    droite->addWidget(cahier_ = new Cahier(contexte, this), 1);
    auto* page = new QHBoxLayout(this);
    page->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    page->setSpacing(2 * Unite);
    page->addWidget(gauche);
    page->addWidget(milieu);
    page->addLayout(droite, 1);

    conduite_ = new ConduiteMoteur(contexte, moteur_, this, tailles_->jauge(), liste_->jauge());
    manipulation_ = new ManipulationListes(contexte, this);
    manipulation_->prendre(*liste_);
    for (std::size_t i = 0; i < PanneauTampons::NbTampons; ++i)
        manipulation_->prendre(cahier_->tampons().liste(i));
}

void PageCombinaisons::relier() {
    connect(tailles_, &PanneauTailles::modeChoisi, this, &PageCombinaisons::ComboBox1Change);
    connect(tailles_, &PanneauTailles::stockageChoisi, this, &PageCombinaisons::RadioGroup1Click);
    connect(tailles_, &PanneauTailles::tailleCliquee, this, &PageCombinaisons::CombSearchClick);
    connect(tailles_, &PanneauTailles::bornesChoisies, this, &PageCombinaisons::colorer);
    connect(tailles_, &PanneauTailles::intervalleDemande, commandesIntervalle_,
            &CommandesIntervalle::BitBtnWithColor4Click);
    connect(tailles_, &PanneauTailles::seriesDemandees, commandesIntervalle_,
            &CommandesIntervalle::CheckBoxSeriesClick);
    connect(&cahier_->selections(), &PanneauSelections::statistiquesDemandees, combinaison_,
            &PanneauCombinaison::montrer);
    connect(commandesIntervalle_, &CommandesIntervalle::adaptationDemandee, conduite_,
            &ConduiteMoteur::adapterListe);
    connect(combinaison_, &PanneauCombinaison::positionDemandee, this,
            &PageCombinaisons::ButtonPositionClick);
    const auto montrer = [this](const Combinaison& c) { combinaison_->montrer(c.numeros); };
    connect(liste_, &PanneauListe::combinaisonChoisie, this, montrer);
    for (std::size_t i = 0; i < PanneauTampons::NbTampons; ++i)
        connect(&cahier_->tampons().liste(i), &PanneauListe::combinaisonChoisie, this, montrer);
    const PanneauTri& tri = cahier_->tri();
    connect(&tri, &PanneauTri::triVoulu, this, [this](const EtatTri& voulu) {
        contexte.atelier.TriVoulu = voulu;
        suivreListes();
    });
    connect(&tri, &PanneauTri::ButtonTEAClick, conduite_, &ConduiteMoteur::ButtonTEAClick);
    connect(actions_, &ActionsListe::ButtonTriClick, conduite_, &ConduiteMoteur::ButtonTriClick);
    connect(actions_, &ActionsListe::ButtonTriProfondeurClick, conduite_,
            &ConduiteMoteur::ButtonTriProfondeurClick);
    connect(actions_, &ActionsListe::BitBtnWithColor1Click, conduite_,
            &ConduiteMoteur::BitBtnWithColor1Click);
    connect(conduite_, &ConduiteMoteur::lance, this, &PageCombinaisons::suivreTravail);
    connect(conduite_, &ConduiteMoteur::reordonnee, &liste_->boite(),
            &ListeCombinaisons::revenirEnTete);
}

void PageCombinaisons::poserOrdreTabulation() {
    const QList<QWidget*> ordre = tailles_->ordreTabulation() + QList<QWidget*>{&liste_->boite()} +
                                  actions_->ordreTabulation() + combinaison_->ordreTabulation() +
                                  cahier_->ordreTabulation();
    for (qsizetype i = 1; i < ordre.size(); ++i) setTabOrder(ordre[i - 1], ordre[i]);
}

void PageCombinaisons::surDepart() {
    combinaison_->cacherBulle();
}

// -------------------------------------------------------------------------------- modes, storage

void PageCombinaisons::premierAffichage() {
    // On a fresh start nothing is computed: the first entry is then the one of use.
    for (int taille = TailleCombMin; taille <= TailleCouranteMax; ++taille) {
        if (!moteur_.AfficherBornes(taille).calculee) return;
    }
    ComboBox1Change(ModeListe::Bornes);
}

void PageCombinaisons::ComboBox1Change(ModeListe mode) {
    Atelier& a = contexte.atelier;
    if (mode == a.modeListe) return;
    if (contexte.refuserSiOccupe()) {
        tailles_->montrerMode(a.modeListe);
        return;
    }
    a.modeListe = mode;
    liste_->boite().revenirEnTete();
    if (mode == ModeListe::Extremes) {
        // The list of before is shown again by a click alone, and the bounds are those computed.
        Vider(a.ListeExtremes);
        tailles_->poserBornes(moteur_.RafraichirBornes());
    }
    contexte.relais.annoncer({.listes = true});
}

void PageCombinaisons::RadioGroup1Click(ModeStockage mode) {
    if (!contexte.refuserSiOccupe()) contexte.atelier.modeStockage = mode;
    tailles_->montrerStockage(contexte.atelier.modeStockage);
}

void PageCombinaisons::CombSearchClick(int taille) {
    LigneBornes& bornes = tailles_->ligne(taille);
    if (!contexte.atelier.activite.occupe()) bornes.valider();
    conduite_->CombSearchClick(taille, bornes.inf.valeur, bornes.sup.valeur);
}

void PageCombinaisons::ButtonPositionClick() {
    if (contexte.refuserSiOccupe()) return;
    const auto place =
        Position(contexte.atelier.ListeMemoire, NumerosTries(combinaison_->numeros()));
    contexte.services.messages->MessageInfo(
        place ? u"Position dans la liste en mémoire :\n\nIndice :    %1   !! \n\n"_s.arg(*place + 1)
              : u"Cette combinaison n'est pas en mémoire..."_s,
        u"Message"_s);
}

bool PageCombinaisons::ouvrir(const Destination& destination) {
    if (!std::holds_alternative<VersListe>(destination)) return false;
    cahier_->selections().fermerListe();
    if (contexte.atelier.modeListe == ModeListe::Extremes) {
        ComboBox1Change(ModeListe::Bornes);
    } else {
        contexte.relais.annoncer({.listes = true});
    }
    if (std::get<VersListe>(destination).adapter) conduite_->adapterListe();
    return true;
}

// -------------------------------------------------------------------------- the controls follow

void PageCombinaisons::surChange(const Changement& changement) {
    if (changement.base) {
        suivreBase();
        return;
    }
    if (changement.intervalle) suivreIntervalle();
    if (changement.listes) suivreMode();
    if (changement.intervalle || changement.listes) {
        suivreBornes();
        cahier_->selections().suivre();
    }
}

void PageCombinaisons::suivreBase() {
    tailles_->poserBornes(moteur_.RafraichirBornes());
    combinaison_->montrer({});
    suivreIntervalle();
    suivreMode();
    suivreBornes();
    cahier_->selections().suivre();
}

void PageCombinaisons::suivreIntervalle() {
    const Occurrences& occ = contexte.atelier.occurrences;
    combinaison_->poserIntervalle(occ.IntervalleInf, occ.IntervalleSup);
}

void PageCombinaisons::suivreMode() {
    const Atelier& a = contexte.atelier;
    tailles_->montrerMode(a.modeListe);
    tailles_->montrerStockage(a.modeStockage);
    tailles_->montrerEcartAvance(a.triEcartAvance.actif ? a.triEcartAvance.taille : 0);
    tailles_->montrerSeries(a.series);
    cahier_->montrerMode(a.modeListe);
    liste_->poserInvite(QString::fromUtf16(Invites[static_cast<std::size_t>(a.modeListe)]));
    const bool manipulation = a.modeListe == ModeListe::Manipulation;
    liste_->verrouiller(manipulation && a.GlisserVerrouille);
    liste_->boite().permettreDepart(manipulation && !a.GlisserVerrouille);
    suivreTravail();
}

/// What the work in hand changes of the page.
void PageCombinaisons::suivreTravail() {
    tailles_->montrerRecherche(conduite_->recherche());
    AfficherListe();
    suivreListes();
}

void PageCombinaisons::suivreListes() {
    const Atelier& a = contexte.atelier;
    const VueTri vue{.voulu = triPour(a.ListeMemoire, a.TriVoulu),
                     .liste = a.ListeMemoire,
                     .montree = a.modeListe != ModeListe::Extremes,
                     .rangs = conduite_->rangs()};
    cahier_->tri().suivre(vue);
    actions_->suivre(vue);
    cahier_->tampons().suivre();
}

void PageCombinaisons::suivreBornes() {
    // While a search runs, the bounds of its size are not those of a list yet.
    if (conduite_->recherche() == 0) tailles_->suivreBornes(moteur_.RafraichirBornes());
    colorer();
}

/// The lines at a bound of their size stand out: the extremes, or the bounds on screen.
void PageCombinaisons::colorer() {
    const Atelier& a = contexte.atelier;
    std::optional<BornesLignes> bornes;
    if (a.modeListe == ModeListe::Extremes) {
        const auto n = static_cast<std::size_t>(a.ListeExtremes.taille());
        bornes = {a.combinaisons.BorneInf[n], a.combinaisons.BorneSup[n]};
    } else if (a.modeListe == ModeListe::Bornes && a.ListeMemoire.taille() != 0) {
        const LigneBornes& ligne = tailles_->ligne(a.ListeMemoire.taille());
        if (ligne.calculee()) bornes = {ligne.inf.valeur, ligne.sup.valeur};
    }
    liste_->colorer(bornes);
}

void PageCombinaisons::AfficherListe() {
    const Atelier& a = contexte.atelier;
    const bool extremes = a.modeListe == ModeListe::Extremes;
    const Liste* montree = extremes ? &a.ListeExtremes : &a.ListeMemoire;
    // A search for extremes starts from an empty list.
    if (extremes && conduite_->recherche() != 0) montree = nullptr;
    liste_->afficher(montree);
    tailles_->temps().setText(montree == nullptr ? QString() : texteTemps(montree->secondes));
}

}  // namespace norvane::ui
