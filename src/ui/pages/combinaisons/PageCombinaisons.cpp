// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PageCombinaisons.h"

#include <QHBoxLayout>
#include <QLabel>

#include "base/Textes.h"
#include "combinaisons/Cahier.h"
#include "combinaisons/CommandesIntervalle.h"
#include "combinaisons/LigneBornes.h"
#include "combinaisons/PanneauCombinaison.h"
#include "combinaisons/PanneauListe.h"
#include "combinaisons/PanneauSelections.h"
#include "combinaisons/PanneauTailles.h"
#include "combinaisons/PanneauTri.h"
#include "common/Theme.h"
#include "widgets/Alerte.h"
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

QString texteTemps(const std::optional<double>& secondes) {
    return secondes ? u"Temps de calcul : %1 s"_s.arg(versQt(FormaterDecimal(*secondes, 1)))
                    : QString();
}

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
    auto* choisie = new Fiche(this);
    combinaison_ = new PanneauCombinaison(contexte, CombinaisonChoisie, choisie);
    choisie->pile->addWidget(combinaison_);

    auto* droite = new QVBoxLayout;
    droite->setSpacing(2 * Unite);
    droite->addWidget(choisie);
    droite->addWidget(cahier_ = new Cahier(contexte, this), 1);
    tri_ = &cahier_->tri();
    auto* page = new QHBoxLayout(this);
    page->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    page->setSpacing(2 * Unite);
    page->addWidget(gauche);
    page->addWidget(milieu);
    page->addLayout(droite, 1);
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
    connect(liste_, &PanneauListe::combinaisonChoisie, this,
            [this](const Combinaison& c) { combinaison_->montrer(c.numeros); });
    connect(combinaison_, &PanneauCombinaison::positionDemandee, this,
            &PageCombinaisons::ButtonPositionClick);
}

void PageCombinaisons::poserOrdreTabulation() {
    const QList<QWidget*> ordre = tailles_->ordreTabulation() + QList<QWidget*>{&liste_->boite()} +
                                  combinaison_->ordreTabulation() +
                                  cahier_->selections().ordreTabulation();
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
    if (mode == ModeListe::Extremes) {
        // The list of before is shown again by a click alone, and the bounds are those computed.
        Vider(a.ListeExtremes);
        tri_->vider();
        tailles_->poserBornes(moteur_.RafraichirBornes());
    }
    contexte.relais.annoncer({.listes = true});
}

void PageCombinaisons::RadioGroup1Click(ModeStockage mode) {
    if (!contexte.refuserSiOccupe()) contexte.atelier.modeStockage = mode;
    tailles_->montrerStockage(contexte.atelier.modeStockage);
}

// --------------------------------------------------------------------------------------- searches

int PageCombinaisons::recherche() const {
    const auto& enCours = contexte.atelier.activite.enCours;
    const bool cherche = enCours && (enCours->genre == GenreTravail::Extremes ||
                                     enCours->genre == GenreTravail::Bornes);
    return cherche ? enCours->taille : 0;
}

void PageCombinaisons::CombSearchClick(int taille) {
    if (recherche() == taille) {
        contexte.travaux.arreter();
        return;
    }
    LigneBornes& bornes = tailles_->ligne(taille);
    if (!contexte.atelier.activite.occupe()) bornes.valider();
    ReponseClic reponse = moteur_.Cliquer(taille, bornes.inf.valeur, bornes.sup.valeur);
    switch (reponse.genre) {
        case ReponseClic::Genre::Lance:
            lancer(u"Calcul des combinaisons de %1 numéros en cours..."_s.arg(taille),
                   std::move(reponse));
            return;
        case ReponseClic::Genre::Affiche:
            contexte.relais.annoncer({.listes = true});
            break;
        case ReponseClic::Genre::Refuse:
            break;
    }
    if (!reponse.message.empty()) {
        contexte.services.messages->MessageInfo(versQt(reponse.message), u"Message"_s);
    }
}

void PageCombinaisons::lancer(const QString& texte, ReponseClic reponse) {
    const VueTravail vue{texte, &tailles_->jauge()};
    if (contexte.travaux.lancer(std::move(reponse.travail), vue, this,
                                [this](Travail& travail) { TraitementTermine(travail); })) {
        tailles_->montrerRecherche(recherche());
        AfficherListe();
        return;
    }
    moteur_.TraitementTermine(*reponse.travail);
    contexte.services.messages->MessageInfo(contexte.travaux.erreur(), u"Message"_s);
}

void PageCombinaisons::TraitementTermine(Travail& travail) {
    const FinTraitement fin = moteur_.TraitementTermine(travail);
    tailles_->montrerRecherche(recherche());
    if (travail.description.genre == GenreTravail::Bornes) tri_->montrerTriSimple();
    contexte.relais.annoncer({.listes = true});
    // A window that waits for the end of the work closes now, without a word on it.
    if (!contexte.atelier.activite.QuitterEnAttente) direFin(travail.description.taille, fin);
}

void PageCombinaisons::direFin(int taille, const FinTraitement& fin) {
    if (!fin.message.empty()) {
        contexte.services.messages->MessageAvertissement(versQt(fin.message), u"Message"_s);
        return;
    }
    if (alerte_ == nullptr) alerte_ = new Alerte(window());
    alerte_->montrer(fin.arrete ? u"Traitement arrêté"_s : u"Traitement terminé"_s,
                     u"Combinaisons de %1 numéros\n"_s.arg(taille) + texteTemps(fin.secondes));
    if (fin.debordement) {
        contexte.services.messages->MessageInfo(
            u"Passez au Mode \"Combinaisons selon les bornes\" afin de stocker en mémoire et "
            u"compter le nombre de combinaisons ayant atteint la limite supérieure..."_s,
            u"La liste a atteint sa capacité maximum..."_s);
    }
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
    tri_->vider();
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
    tailles_->montrerSeries(a.series);
    cahier_->montrerMode(a.modeListe);
    liste_->poserInvite(QString::fromUtf16(Invites[static_cast<std::size_t>(a.modeListe)]));
    AfficherListe();
}

void PageCombinaisons::suivreBornes() {
    // While a search runs, the bounds of its size are not those of a list yet.
    if (recherche() == 0) tailles_->suivreBornes(moteur_.RafraichirBornes());
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
    if (extremes && recherche() != 0) montree = nullptr;
    liste_->afficher(montree);
    tailles_->temps().setText(montree == nullptr ? QString() : texteTemps(montree->secondes));
}

}  // namespace norvane::ui
