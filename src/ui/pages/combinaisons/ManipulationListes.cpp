// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/ManipulationListes.h"

#include <memory>
#include <utility>

#include "atelier/CopieBillets.h"
#include "atelier/Intervalle.h"
#include "combinaisons/PanneauListe.h"
#include "common/Contexte.h"
#include "dialogs/ChoixChance.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// From so many records on, an operation on a whole list is long work.
constexpr std::size_t SeuilTravail = 200'000;

QString compte(std::size_t nombre, const QString& fait) {
    return nombre == 1 ? u"1 combinaison %1e..."_s.arg(fait)
                       : u"%1 combinaisons %2es..."_s.arg(nombre).arg(fait);
}

}  // namespace

ManipulationListes::ManipulationListes(Contexte& ctx, QWidget* page)
    : QObject(page), contexte_(ctx), page_(page) {}

void ManipulationListes::dire(const QString& phrase, const QString& detail) {
    contexte_.services.messages->MessageInfo(phrase, u"Message"_s, detail);
}

bool ManipulationListes::enMemoire(QuelleListe laquelle) const {
    return laquelle != QuelleListe::Memoire || contexte_.atelier.modeListe != ModeListe::Extremes;
}

std::vector<std::size_t> ManipulationListes::choisies(QuelleListe laquelle) {
    return panneau(laquelle).boite().lignesChoisies();
}

// ------------------------------------------------------------------------------- from list to list

void ManipulationListes::CopierVers(QuelleListe source, QuelleListe cible) {
    transferer(source, cible, false);
}

void ManipulationListes::DeplacerVers(QuelleListe source, QuelleListe cible) {
    transferer(source, cible, true);
}

/// The engine goes to the interval of a list that comes into an empty main list. False where that
/// interval is none of the base.
bool ManipulationListes::adopterIntervalle(const Liste& liste) {
    Atelier& a = contexte_.atelier;
    if (liste.DebutListe == a.occurrences.IntervalleInf &&
        liste.FinListe == a.occurrences.IntervalleSup)
        return true;
    const auto possible = VerifierIntervalle(a.base, liste.DebutListe, liste.FinListe);
    const auto fait = possible ? ChangerIntervalle(a, liste.DebutListe, liste.FinListe) : possible;
    if (!fait) dire(versQt(fait.erreur()));
    return static_cast<bool>(possible);
}

void ManipulationListes::transferer(QuelleListe source, QuelleListe cible, bool deplacer) {
    if (contexte_.refuserSiOccupe() || !enMemoire(source) || !enMemoire(cible)) return;
    const auto lignes = choisies(source);
    if (source == cible || lignes.empty()) return;
    Liste& de = contexte_.atelier.liste(source);
    Liste& vers = contexte_.atelier.liste(cible);
    const bool nouvelle = cible == QuelleListe::Memoire && vers.vide();
    if (nouvelle && !adopterIntervalle(de)) return;
    const Transfert fait = deplacer ? Deplacer(de, lignes, vers) : Copier(de, lignes, vers);
    if (fait.faits > 0) contexte_.relais.annoncer({.intervalle = nouvelle, .listes = true});
    switch (fait.issue) {
        case Transfert::Issue::Fait:
            break;
        case Transfert::Issue::Incompatible:
            dire(u"%1 impossible, les deux listes ne sont pas du même type..."_s.arg(
                deplacer ? u"Déplacement"_s : u"Copie"_s));
            break;
        case Transfert::Issue::Plein:
            dire(u"La liste a atteint sa capacité maximum..."_s,
                 compte(fait.faits, deplacer ? u"déplacé"_s : u"copié"_s));
            break;
    }
}

/// The page of the tickets takes them, and tells how many.
void ManipulationListes::CopierversBulletins(QuelleListe source) {
    if (contexte_.refuserSiOccupe()) return;
    const Liste* liste = panneau(source).boite().modele().liste();
    const auto lignes = choisies(source);
    if (liste == nullptr || lignes.empty()) return;
    const Atelier& a = contexte_.atelier;
    if (const auto refus = a.saisie.peutCopier()) return dire(versQt(refus->phrase));
    if (const auto possible = VerifierTailleGrille(liste->taille()); !possible)
        return dire(versQt(possible.erreur()));
    TChoixChance choix(lignes.size(), page_->window());
    if (choix.exec() != QDialog::Accepted) return;
    auto grilles =
        GrillesDeLignes(*liste, lignes, choix.chance(), contexte_.services.hasard->graine());
    if (grilles) contexte_.relais.aller(VersTickets{*std::move(grilles)});
}

// ------------------------------------------------------------------------------------- in a list

/// A short list at once; a long one is taken away while a job works on it.
void ManipulationListes::operer(QuelleListe laquelle, std::function<void(Liste&)> operation) {
    Liste& liste = contexte_.atelier.liste(laquelle);
    panneau(laquelle).boite().revenirEnTete();
    if (liste.nombre() < SeuilTravail) {
        operation(liste);
        contexte_.relais.annoncer({.listes = true});
        return;
    }
    auto prise = std::make_shared<Liste>(std::exchange(liste, {}));
    auto travail = FaireTravail({GenreTravail::Tri, prise->taille(), laquelle},
                                [prise, operation = std::move(operation)](const Suivi&) {
                                    operation(*prise);
                                    return Resultat<Rien>(Rien{});
                                });
    const auto rendre = [this, laquelle, prise] {
        contexte_.atelier.liste(laquelle) = std::move(*prise);
        contexte_.relais.annoncer({.listes = true});
    };
    const VueTravail vue{u"Opération mémoire en cours..."_s};
    const auto finir = [this, rendre](const Travail& fini) {
        rendre();
        if (!fini.erreur().empty()) dire(versQt(fini.erreur()));
    };
    if (contexte_.travaux.lancer(std::move(travail), vue, this, finir)) {
        contexte_.relais.annoncer({.listes = true});
        return;
    }
    rendre();
    dire(contexte_.travaux.erreur());
}

void ManipulationListes::SupprimerSelection(QuelleListe laquelle) {
    if (contexte_.refuserSiOccupe() || !enMemoire(laquelle)) return;
    const auto lignes = choisies(laquelle);
    if (lignes.empty()) return;
    const auto montrees = panneau(laquelle).boite().modele().rowCount();
    if (lignes.size() == static_cast<std::size_t>(montrees)) return ViderListe(laquelle);
    Supprimer(contexte_.atelier.liste(laquelle), lignes);
    contexte_.relais.annoncer({.listes = true});
    contexte_.relais.dire(compte(lignes.size(), u"supprimé"_s));
}

void ManipulationListes::ViderListe(QuelleListe laquelle) {
    if (contexte_.refuserSiOccupe() || !enMemoire(laquelle)) return;
    Vider(contexte_.atelier.liste(laquelle));
    contexte_.relais.annoncer({.listes = true});
}

void ManipulationListes::trier(QuelleListe laquelle, bool croissant) {
    if (contexte_.refuserSiOccupe() || !enMemoire(laquelle)) return;
    operer(laquelle, [croissant](Liste& liste) { TrierLexico(liste, croissant); });
}

void ManipulationListes::TriCroissant(QuelleListe laquelle) {
    trier(laquelle, true);
}

void ManipulationListes::TriDecroissant(QuelleListe laquelle) {
    trier(laquelle, false);
}

void ManipulationListes::RetirerOccurrences(QuelleListe laquelle) {
    if (contexte_.refuserSiOccupe() || !enMemoire(laquelle)) return;
    operer(laquelle, [](Liste& liste) { RetirerDoublons(liste); });
}

void ManipulationListes::SelectionnerTout(QuelleListe laquelle) {
    panneau(laquelle).boite().selectAll();
}

}  // namespace norvane::ui
