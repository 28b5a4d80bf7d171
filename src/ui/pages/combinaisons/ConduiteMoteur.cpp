// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/ConduiteMoteur.h"

#include <QProgressBar>
#include <utility>

#include "combinaisons/DetailsListe.h"
#include "combinaisons/PanneauTri.h"
#include "common/Contexte.h"
#include "dialogs/TriEcartAvanceBox.h"
#include "widgets/Alerte.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr QuelleListe Principale = QuelleListe::Memoire;

const QString TexteAdaptation =
    u"Adaptation de la liste en mémoire pour nouvel intervalle en cours..."_s;

/// What the alert calls a work.
QString nomTravail(const DescriptionTravail& travail) {
    switch (travail.genre) {
        case GenreTravail::Rangs:
            return u"Rangs des combinaisons de %1 numéros\n"_s.arg(travail.taille);
        case GenreTravail::Adaptation:
            return u"Adaptation des combinaisons de %1 numéros\n"_s.arg(travail.taille);
        default:
            return u"Combinaisons de %1 numéros\n"_s.arg(travail.taille);
    }
}

}  // namespace

ConduiteMoteur::ConduiteMoteur(Contexte& ctx, Moteur& moteur, QWidget* page,
                               QProgressBar& jaugeRecherche, QProgressBar& jaugeListe)
    : QObject(page),
      contexte_(ctx),
      moteur_(moteur),
      page_(page),
      jaugeRecherche_(jaugeRecherche),
      jaugeListe_(jaugeListe) {}

bool ConduiteMoteur::tourne(GenreTravail genre) const {
    const auto& enCours = contexte_.atelier.activite.enCours;
    return enCours && enCours->genre == genre;
}

int ConduiteMoteur::recherche() const {
    const bool cherche = tourne(GenreTravail::Extremes) || tourne(GenreTravail::Bornes);
    return cherche ? contexte_.atelier.activite.enCours->taille : 0;
}

bool ConduiteMoteur::rangs() const {
    return tourne(GenreTravail::Rangs);
}

// --------------------------------------------------------------------------------- what is asked
// for

void ConduiteMoteur::CombSearchClick(int taille, int inf, int sup) {
    if (recherche() == taille) {
        contexte_.travaux.arreter();
        return;
    }
    const bool bornes = contexte_.atelier.modeListe == ModeListe::Bornes;
    ReponseClic reponse = moteur_.Cliquer(taille, inf, sup);
    if (bornes && reponse.genre == ReponseClic::Genre::Affiche) return apresListe(true);
    suivre(std::move(reponse), u"Calcul des combinaisons de %1 numéros en cours..."_s.arg(taille),
           jaugeRecherche_);
}

void ConduiteMoteur::ButtonTriClick() {
    if (!contexte_.refuserSiOccupe()) trier();
}

void ConduiteMoteur::ButtonTriProfondeurClick() {
    if (rangs()) {
        contexte_.travaux.arreter();
        return;
    }
    if (contexte_.refuserSiOccupe()) return;
    suivre(moteur_.RemplirRangs(Principale), u"Calcul des rangs en cours..."_s, jaugeListe_);
}

void ConduiteMoteur::adapterListe() {
    if (contexte_.refuserSiOccupe()) return;
    suivre(moteur_.Adapter(Principale), TexteAdaptation, jaugeListe_);
}

void ConduiteMoteur::BitBtnWithColor1Click() {
    Messages& messages = *contexte_.services.messages;
    if (contexte_.travaux.enCours() != nullptr) {
        const int reponse = messages.MessageAnnuler(
            u"Stopper le calcul en cours"_s, u"Message"_s,
            u"Nombre de combinaisons :  %1"_s.arg(moteur_.nombreEnCours(Principale)));
        if (reponse == CodeBouton1) contexte_.travaux.arreter();
        return;
    }
    if (contexte_.refuserSiOccupe()) return;
    const Liste& liste = contexte_.atelier.ListeMemoire;
    if (liste.vide()) {
        messages.MessageInfo(u"La Liste en mémoire est vide..."_s, u"Message"_s);
        return;
    }
    messages.MessageInfo(
        detailsListe(liste),
        u"Résumé des paramètres de traitement de la liste actuellement en mémoire"_s);
}

void ConduiteMoteur::ButtonTEAClick() {
    if (contexte_.refuserSiOccupe()) return;
    Atelier& a = contexte_.atelier;
    TTriEcartAvanceBox boite(a.triEcartAvance, a.tailleIntervalle(), page_->window());
    if (boite.exec() != QDialog::Accepted) return;
    a.triEcartAvance = boite.reglage();
    contexte_.relais.annoncer({.listes = true});
}

// ------------------------------------------------------------------------------ work and its end

void ConduiteMoteur::suivre(ReponseClic reponse, const QString& texte, QProgressBar& jauge) {
    switch (reponse.genre) {
        case ReponseClic::Genre::Lance:
            return lancer(std::move(reponse.travail), texte, jauge);
        case ReponseClic::Genre::Affiche:
            contexte_.relais.annoncer({.listes = true});
            break;
        case ReponseClic::Genre::Refuse:
            break;
    }
    if (!reponse.message.empty())
        contexte_.services.messages->MessageInfo(versQt(reponse.message), u"Message"_s);
}

void ConduiteMoteur::lancer(PtrTravail travail, const QString& texte, QProgressBar& jauge) {
    Travail& nouveau = *travail;  // stays ours where it cannot be started
    if (contexte_.travaux.lancer(std::move(travail), {texte, &jauge}, this,
                                 [this](Travail& fini) { TraitementTermine(fini); })) {
        Q_EMIT lance();
        return;
    }
    moteur_.TraitementTermine(nouveau);
    contexte_.services.messages->MessageInfo(contexte_.travaux.erreur(), u"Message"_s);
}

void ConduiteMoteur::TraitementTermine(Travail& travail) {
    const FinTraitement fin = moteur_.TraitementTermine(travail);
    // A window that waits for the end of the work closes now, without a word on it.
    if (contexte_.atelier.activite.QuitterEnAttente) {
        contexte_.relais.annoncer({.listes = true});
        return;
    }
    if (fin.gardees) aDire_ = u"Tri Ecart Avancé : %1 combinaisons gardées"_s.arg(*fin.gardees);
    continuer(travail, fin);
    direFin(travail.description, fin);
}

void ConduiteMoteur::continuer(const Travail& travail, const FinTraitement& fin) {
    switch (travail.description.genre) {
        case GenreTravail::Bornes:
            return apresListe(fin.message.empty());
        case GenreTravail::Adaptation:
            RevenirPage_ = true;
            return trier();
        case GenreTravail::Tri:
            Q_EMIT reordonnee();
            break;
        default:
            break;
    }
    conclure();
}

/// A list by bounds stands: the advanced sort by gap, where it is set for its size, else the sort.
void ConduiteMoteur::apresListe(bool nouvelle) {
    Atelier& a = contexte_.atelier;
    if (!nouvelle) return conclure();
    a.TriVoulu.RangTri = rangsDeTri(a.ListeMemoire).second;
    ReponseClic ecart = moteur_.TrierEcart(Principale);
    if (ecart.genre == ReponseClic::Genre::Lance)
        return lancer(std::move(ecart.travail), TexteAdaptation, jaugeListe_);
    aDire_ = versQt(ecart.message);
    trier();
}

void ConduiteMoteur::trier() {
    const Atelier& a = contexte_.atelier;
    ReponseClic reponse = moteur_.Trier(Principale, triPour(a.ListeMemoire, a.TriVoulu));
    if (reponse.genre == ReponseClic::Genre::Lance)
        return lancer(std::move(reponse.travail), u"Tri de la liste en cours..."_s, jaugeListe_);
    if (reponse.genre == ReponseClic::Genre::Affiche) Q_EMIT reordonnee();
    conclure();
}

/// All that was to be done is done.
void ConduiteMoteur::conclure() {
    contexte_.relais.annoncer({.listes = true});
    if (std::exchange(RevenirPage_, false)) contexte_.relais.aller(VersListe{});
    if (!aDire_.isEmpty()) contexte_.relais.dire(std::exchange(aDire_, {}));
}

void ConduiteMoteur::direFin(const DescriptionTravail& travail, const FinTraitement& fin) {
    Messages& messages = *contexte_.services.messages;
    if (!fin.message.empty()) {
        messages.MessageAvertissement(versQt(fin.message), u"Message"_s);
        return;
    }
    if (travail.genre == GenreTravail::Tri) return;
    if (alerte_ == nullptr) alerte_ = new Alerte(page_->window());
    alerte_->montrer(fin.arrete ? u"Traitement arrêté"_s : u"Traitement terminé"_s,
                     nomTravail(travail) + texteTemps(fin.secondes));
    if (fin.debordement) {
        messages.MessageInfo(
            u"Passez au Mode \"Combinaisons selon les bornes\" afin de stocker en mémoire et "
            u"compter le nombre de combinaisons ayant atteint la limite supérieure..."_s,
            u"La liste a atteint sa capacité maximum..."_s);
    }
}

}  // namespace norvane::ui
