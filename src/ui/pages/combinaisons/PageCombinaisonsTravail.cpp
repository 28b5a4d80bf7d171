// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The list modes, the searches, and what their end leaves on the page.

#include <algorithm>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>

#include "combinaisons/LigneBornes.h"
#include "combinaisons/PageCombinaisons.h"
#include "stats/TableauStats.h"
#include "widgets/Alerte.h"
#include "widgets/ListeCombinaisons.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int PageBoutons = 0;  // pages of the notebook
constexpr int PageTampons = 1;

/// The items of RadioGroup1, in order.
constexpr std::array<ModeStockage, 3> ItemsStockage = {
    ModeStockage::PremierRang, ModeStockage::TousLesRangs, ModeStockage::RangsDeGain};

int itemDe(ModeStockage mode) {
    return static_cast<int>(std::find(ItemsStockage.begin(), ItemsStockage.end(), mode) -
                            ItemsStockage.begin());
}

QString libelleStockage(ModeStockage mode) {
    switch (mode) {
        case ModeStockage::PremierRang:
            return u"Premier rang stocké"_s;
        case ModeStockage::RangsDeGain:
            return u"Rangs de gain stockés"_s;
        case ModeStockage::TousLesRangs:
            return u"Tous les rangs stockés"_s;
    }
    return {};
}

struct TextesMode {
    const char16_t* aide;
    const char16_t* invite;  // in the empty list
};
constexpr std::array<TextesMode, 3> TextesModes = {{
    {u"Cliquez sur COMB 2 à COMB 10 pour lister les combinaisons les plus sorties de l'intervalle, "
     u"et les moins sorties quand elles sont suivies. Le résultat est gardé : un nouveau clic "
     u"l'affiche sans calcul.",
     u"Cliquez sur COMB 2 à COMB 10\npour lister les combinaisons\nles plus ou moins sorties"},
    {u"Choisissez les bornes Inf et Sup d'une taille, puis cliquez sur son bouton : toutes les "
     u"combinaisons dont le nombre de sorties est compris entre les deux bornes sont stockées en "
     u"mémoire. Une taille dont les bornes lisent NC se calcule d'abord dans le premier mode.",
     u"Choisissez les bornes d'une taille\npuis cliquez sur son bouton"},
    {u"", u"Aucune liste en mémoire"},
}};

}  // namespace

// -------------------------------------------------------------------------------------- list modes

void PageCombinaisons::premierAffichage() {
    // On a fresh start nothing is computed: the first entry is then the one of use.
    const bool calculees = std::all_of(lignes_.begin(), lignes_.begin() + 4,
                                       [](const LigneBornes* l) { return l->calculee(); });
    if (calculees) ComboBox1->setCurrentIndex(static_cast<int>(ModeListe::Bornes));
}

void PageCombinaisons::ComboBox1Change(int index) {
    if (index == DernierModeListe) return;
    if (contexte.refuserSiOccupe()) {
        const QSignalBlocker muet(ComboBox1);
        ComboBox1->setCurrentIndex(DernierModeListe);
        return;
    }
    DernierModeListe = index;
    moteur_->modeListe = static_cast<ModeListe>(index);
    entrerMode();
}

void PageCombinaisons::entrerMode() {
    const ModeListe mode = moteur_->modeListe;
    const TextesMode& textes = TextesModes[static_cast<std::size_t>(mode)];
    aideMode_->setText(QString::fromUtf16(textes.aide));
    ListBox->poserInvite(QString::fromUtf16(textes.invite));
    cahier_->setCurrentIndex(mode == ModeListe::Manipulation ? PageTampons : PageBoutons);
    ListBox->modele().poserCouleurs(mode != ModeListe::Manipulation);
    viderListe();
    for (LigneBornes* bornes : lignes_) bornes->appliquerMode(mode);
    if (mode == ModeListe::Extremes) {
        Label25->clear();
        RafraichirBornes();
    } else {
        remplirDepuisMemoire();
    }
}

void PageCombinaisons::RadioGroup1Click(int) {
    if (contexte.refuserSiOccupe()) {
        stockage_->button(itemDe(moteur_->modeStockage))->setChecked(true);
        return;
    }
    lireStockage();
}

void PageCombinaisons::lireStockage() {
    moteur_->modeStockage = ItemsStockage.at(static_cast<std::size_t>(stockage_->checkedId()));
}

void PageCombinaisons::RafraichirBornes() {
    const std::array<BornesAffichees, 9> bornes = moteur_->RafraichirBornes();
    for (std::size_t i = 0; i < lignes_.size(); ++i) lignes_[i]->poser(bornes[i]);
    const Atelier& a = contexte.atelier;
    LabelTirages->setText(a.base.NbTirages < 1
                              ? QString()
                              : versQt(LibelleIntervalleCourt(a.base, a.occurrences.IntervalleInf,
                                                              a.occurrences.IntervalleSup)));
}

// --------------------------------------------------------------------------------------- searches

LigneBornes& PageCombinaisons::ligne(int taille) {
    return *lignes_.at(static_cast<std::size_t>(taille - TailleCombMin));
}

void PageCombinaisons::CombSearchClick(int taille) {
    LigneBornes& bornes = ligne(taille);
    if (!contexte.atelier.activite.occupe()) {
        bornes.valider();
        lireStockage();
    }
    const ReponseClic reponse = moteur_->Cliquer(taille, bornes.valeurInf(), bornes.valeurSup());
    switch (reponse.genre) {
        case ReponseClic::Genre::Lance:
            commencerTraitement(taille, reponse.jauge);
            break;
        case ReponseClic::Genre::Affiche:
            if (moteur_->modeListe == ModeListe::Extremes) {
                montrerLignes();
            } else {
                AfficherListe(moteur_->TailleCombListe);
            }
            break;
        case ReponseClic::Genre::Arrete:
        case ReponseClic::Genre::Refuse:
            break;
    }
    if (!reponse.message.empty()) {
        contexte.services.messages->MessageInfo(versQt(reponse.message), u"Message"_s);
    }
}

void PageCombinaisons::commencerTraitement(int taille, int jauge) {
    if (moteur_->modeListe == ModeListe::Extremes) {
        viderListe();
    } else {
        remplirDepuisMemoire();
    }
    LabelTemps->clear();
    progression_ = 0;
    CGauge->setRange(0, std::max(1, jauge));
    CGauge->setValue(0);
    rythme_.start();
    montrerTravail();
    contexte.relais.dire(u"Calcul des combinaisons de %1 numéros en cours..."_s.arg(taille));
}

void PageCombinaisons::montrerTravail() {
    const int taille = moteur_->enCours();
    for (LigneBornes* bornes : lignes_) bornes->montrerArret(bornes->taille() == taille);
    ComboBox1->setEnabled(taille == 0);
}

void PageCombinaisons::TraitementTermine() {
    const FinTraitement fin = moteur_->TraitementTermine();
    rythme_.stop();
    CGauge->reset();
    LabelTemps->setText(versQt(fin.temps));
    montrerTravail();
    if (moteur_->modeListe == ModeListe::Extremes) {
        montrerLignes();
        RafraichirBornes();
    } else {
        Label25->setText(u"Tri simple des combinaisons selon le premier rang"_s);
        AfficherListe(moteur_->TailleCombListe);
    }
    // A window that waits for the end of the work closes now, without a word on it.
    const bool ferme = contexte.atelier.activite.QuitterEnAttente;
    Q_EMIT contexte.travaux.repos();
    if (!ferme) direFin(fin);
}

void PageCombinaisons::direFin(const FinTraitement& fin) {
    if (!fin.message.empty()) {
        contexte.services.messages->MessageAvertissement(versQt(fin.message), u"Message"_s);
        return;
    }
    annoncer(fin);
    if (fin.debordement) {
        contexte.services.messages->MessageInfo(
            u"Passez au Mode \"Combinaisons selon les bornes\" afin de stocker en mémoire et "
            u"compter le nombre de combinaisons ayant atteint la limite supérieure..."_s,
            u"La liste a atteint sa capacité maximum..."_s);
    }
}

void PageCombinaisons::annoncer(const FinTraitement& fin) {
    if (alerte_ == nullptr) alerte_ = new Alerte(window());
    alerte_->montrer(fin.arrete ? u"Traitement arrêté"_s : u"Traitement terminé"_s,
                     u"Combinaisons de %1 numéros\n"_s.arg(fin.taille) + versQt(fin.temps));
}

void PageCombinaisons::arreter() {
    if (moteur_->enCours() != 0) moteur_->Cliquer(moteur_->enCours());
}

void PageCombinaisons::surChange(const Changement& changement) {
    if (!changement.base) return;
    moteur_->ViderListeMemoire();
    combinaison_.clear();
    afficherCombinaison();
    LabelCombEnMemoire->clear();
    stocke_->clear();
    LabelTemps->clear();
    const auto relu = moteur_->RelireEtat();
    if (!relu) {
        contexte.services.messages->MessageAvertissement(versQt(relu.erreur()), u"Avertissement"_s);
    }
    const QSignalBlocker muet(ComboBox1);
    ComboBox1->setCurrentIndex(DernierModeListe = 0);
    moteur_->modeListe = ModeListe::Extremes;
    entrerMode();
}

// --------------------------------------------------------------------------------------- the list

void PageCombinaisons::viderListe() {
    ListBox->modele().montrerRien();
    RxLabelIndice->clear();
    LabelCombEnListe->clear();
}

void PageCombinaisons::montrerLignes() {
    RxLabelIndice->clear();
    ListBox->modele().montrerLignes(moteur_->lignes);
    montrerComptes(std::max<std::uint64_t>(moteur_->nombreLignes, moteur_->lignes.size()));
}

void PageCombinaisons::AfficherListe(int taille) {
    RxLabelIndice->clear();
    const std::size_t records = moteur_->ListeMemoire.nombre();
    LabelCombEnMemoire->setText(records == 0 ? QString()
                                             : u"%1 à %2 numéros"_s.arg(records).arg(taille));
    stocke_->setText(records == 0 ? QString()
                                  : libelleStockage(moteur_->ListeMemoire.disposition.mode));
    ListBox->modele().montrerListe(moteur_->ListeMemoire);
    ListBox->scrollToTop();
    montrerComptes(std::min(records, CapaciteListe));
    ComboBox1->setEnabled(moteur_->enCours() == 0);
}

void PageCombinaisons::remplirDepuisMemoire() {
    if (moteur_->ListeMemoire.nombre() == 0) {
        viderListe();
        LabelCombEnMemoire->clear();
        stocke_->clear();
    } else {
        AfficherListe(moteur_->TailleCombListe);
    }
}

void PageCombinaisons::montrerComptes(std::uint64_t lignes) {
    LabelCombEnListe->setText(lignes == 0 ? QString() : QString::number(lignes));
    const auto montrees = static_cast<std::uint64_t>(ListBox->modele().rowCount());
    poserIndice(LabelCombEnListe, lignes > montrees
                                      ? u"Les %1 premières sont affichées"_s.arg(montrees)
                                      : u"Nombre de combinaisons en liste"_s);
}

}  // namespace norvane::ui
