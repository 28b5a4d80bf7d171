// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What follows the entry of grids: the rest of a receipt, the consultation, files, closing.
#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <unordered_set>

#include "base/Dates.h"
#include "tickets/FichiersGrilles.h"
#include "tickets/SaisieBillets.h"

namespace norvane {

namespace {

Refus AucuneGrille() {
    return {Refus::Titre::Message, "Aucune grille sélectionnée...",
            "Cliquez sur le bouton Sélection afin de saisir des grilles."};
}

constexpr const char* TerminezLaSelection =
    "Terminez le Mode Sélection dans l'onglet Résultats pour utiliser cette fonctionnalité.";

constexpr std::size_t NbChiffresJoker = 7;

Refus JokerIncomplet(std::size_t tapes) {
    std::string detail = "Un Numéro Joker+ a sept chiffres.";
    if (tapes < NbChiffresJoker) {
        const std::size_t manquants = NbChiffresJoker - tapes;
        detail += fmt::format(" Il en manque {} : complétez-le, puis validez.", manquants);
    }
    return {Refus::Titre::Attention, "Erreur de saisie, Numéro Joker+...", std::move(detail)};
}

/// The tickets of `grilles` that `autres` does not hold, each counted once.
std::vector<Grille> Difference(const std::vector<Grille>& grilles,
                               const std::vector<Grille>& autres) {
    const auto texte = [](const Grille& grille) { return TexteGrilles({&grille, 1}); };
    std::unordered_multiset<std::string> connues;
    for (const Grille& grille : autres) connues.insert(texte(grille));
    std::vector<Grille> nouvelles;
    for (const Grille& grille : grilles) {
        if (const auto connue = connues.find(texte(grille)); connue != connues.end()) {
            connues.erase(connue);
        } else {
            nouvelles.push_back(grille);
        }
    }
    return nouvelles;
}

constexpr int NumerosDignesDEtreGardes = 3;

}  // namespace

std::string Copie::phrase() const {
    if (remplis) return "Tous les bulletins sont remplis...";
    if (copiees == 1) return "1 combinaison copiée...";
    return fmt::format("{} combinaisons copiées...", copiees);
}

bool EstJourDeTirage(int date) {
    const int jour = JourSemaine(date);
    return jour == 0 || jour == 2 || jour == 5;
}

int ProchainJourDeTirage(int date) {
    std::chrono::sys_days jour = EntierEnDate(date);
    while (!EstJourDeTirage(DateEnEntier(jour))) jour += std::chrono::days(1);
    return DateEnEntier(jour);
}

// ---- The rest of a receipt ---------------------------------------------------------------------

int SaisieBillets::jokersRestants() const {
    return compteJoker_ - static_cast<int>(billets_.ListeJoker.size());
}

void SaisieBillets::choisirCompteJoker(int compte) {
    if (etat_ != EtatTickets::Joker || etape_ != EtapeJoker::Compte) return;
    compteJoker_ = compte;
    jokerRepris_.reset();
    etape_ = compte > 0 ? EtapeJoker::Numeros : EtapeJoker::Date;
}

Reponse SaisieBillets::validerJoker(std::string_view chiffres, int mises, bool plusOuMoins) {
    if (etat_ != EtatTickets::Joker || etape_ != EtapeJoker::Numeros) return {};
    const auto lus = LireChiffresJoker(chiffres);
    if (!lus) return JokerIncomplet(chiffres.size());
    billets_.ListeJoker.push_back({*lus, mises + (plusOuMoins ? 2 : 0)});
    jokerRepris_.reset();
    if (jokersRestants() <= 0) etape_ = EtapeJoker::Date;
    return {};
}

void SaisieBillets::reprendreJoker() {
    if (etat_ != EtatTickets::Joker || etape_ == EtapeJoker::Compte) return;
    jokerRepris_.reset();
    etape_ = billets_.ListeJoker.empty() ? EtapeJoker::Compte : EtapeJoker::Numeros;
    if (etape_ == EtapeJoker::Compte) return;
    jokerRepris_ = billets_.ListeJoker.back();
    billets_.ListeJoker.pop_back();
}

Reponse SaisieBillets::peutDater(int date) const {
    if (DateValide(date) && EstJourDeTirage(date)) return {};
    return Refus{Refus::Titre::Attention, "Cette date ne correspond à aucun Tirage...", {}};
}

Resultat<Rien> SaisieBillets::enregistrerRecu(const std::filesystem::path& repertoire, int date,
                                              bool ajouterAExistant) {
    if (etat_ != EtatTickets::Joker || etape_ != EtapeJoker::Date) return Rien{};
    if (const auto refus = peutDater(date)) return Erreur{refus->phrase};
    auto ecrit = EnregistrerRecu({billets_.ListeRecu, billets_.ListeJoker}, repertoire, date,
                                 ajouterAExistant);
    if (!ecrit) return ecrit;
    if (ajouterAExistant) {
        if (auto lu = ChargerRecu(FichierRecu(repertoire, date))) {
            billets_.ListeRecu = std::move(lu->grilles);
            billets_.ListeJoker = std::move(lu->jokers);
            CopierListe(liste(), billets_.ListeRecu);
        }
    }
    dateRecu_ = date;
    recuSansFichier_ = false;
    tirageAProposer_ = true;
    grille_ = 1;
    passer(EtatTickets::Normal);
    return ecrit;
}

// ---- Consultation ------------------------------------------------------------------------------

Reponse SaisieBillets::consulter() {
    if (etat_ != EtatTickets::Normal) return {};
    const bool sansRecu = billets_.ListeRecu.empty();
    const bool sansChoix = billets_.ListeChoix.empty();
    if (sansRecu && sansChoix) return AucuneGrille();
    // One list only: the mode follows it.
    entrerConsultation(sansRecu || sansChoix ? sansChoix : recuVoulu_);
    return {};
}

void SaisieBillets::prendreListe(bool recu) {
    modeRecu_ = recuVoulu_ = recu;
    CopierListe(liste(), source());
}

void SaisieBillets::entrerConsultation(bool recu) {
    prendreListe(recu);
    passer(EtatTickets::Consultation);
    AfficherGrille(liste().empty() ? 0 : 1);
}

void SaisieBillets::choisirListe(bool recu) {
    if (!listeOfferte(recu)) return;
    if (etat_ == EtatTickets::Normal) {
        prendreListe(recu);
        grille_ = nombre();
        bilan_ = !recu;
    } else if (recu != modeRecu_) {
        entrerConsultation(recu);
    }
}

Reponse SaisieBillets::peutCopier() const {
    if (!enSelection()) return {};
    return Refus{Refus::Titre::Message, TerminezLaSelection, {}};
}

void SaisieBillets::changerMises(const std::function<void(std::span<Grille>)>& changer) {
    if (enSelection()) return;
    changer(liste());
    if (ListesEgales(liste(), source())) return;
    CopierListe(source(), liste());
    (modeRecu_ ? recuSansFichier_ : billets_.aSauver) = true;
    if (enConsultation()) AfficherGrille(grille_);
}

Copie SaisieBillets::CopierversBulletins(std::span<const Grille> grilles) {
    if (enSelection()) return {};
    auto& stock = billets_.ListeChoix;
    const std::size_t place = NbGrillesMax - std::min<std::size_t>(stock.size(), NbGrillesMax);
    const Copie copie{.copiees = std::min(grilles.size(), place),
                      .remplis = grilles.size() > place};
    stock.insert(stock.end(), grilles.begin(),
                 grilles.begin() + static_cast<std::ptrdiff_t>(copie.copiees));
    billets_.aSauver = billets_.aSauver || copie.copiees > 0;
    if (!stock.empty()) entrerConsultation(false);
    return copie;
}

Reponse SaisieBillets::peutAjouterAuStock() const {
    if (enSelection())
        return Refus{Refus::Titre::Message,
                     "Pas d'ajout de combinaisons possible dans les bulletins en Mode Sélection...",
                     TerminezLaSelection};
    if (billets_.ListeChoix.size() >= NbGrillesMax)
        return Refus{Refus::Titre::Message,
                     "Vous avez atteint la capacité maximum pour la mise en mémoire de grilles...",
                     "Vous devez supprimer des grilles dans l'Onglet Résultats en Mode Sélection "
                     "pour utiliser cette fonction."};
    return {};
}

void SaisieBillets::ajouterAuStock(const Grille& grille) {
    if (peutAjouterAuStock()) return;
    billets_.ListeChoix.push_back(grille);
    billets_.aSauver = true;
    if (enConsultation()) {
        consulterStock(static_cast<int>(billets_.ListeChoix.size()));
    } else {
        choisirListe(false);
    }
}

int SaisieBillets::placeDansStock(const Grille& grille) const {
    const auto& stock = billets_.ListeChoix;
    const auto ou = std::ranges::find_if(stock, [&](const Grille& autre) {
        return autre.numeros.ensemble() == grille.numeros.ensemble() &&
               autre.chances.ensemble() == grille.chances.ensemble();
    });
    return ou == stock.end() ? 0 : static_cast<int>(ou - stock.begin()) + 1;
}

void SaisieBillets::consulterStock(int numero) {
    if (enSelection() || billets_.ListeChoix.empty()) return;
    entrerConsultation(false);
    AfficherGrille(std::clamp(numero, 1, nombre()));
}

Reponse SaisieBillets::peutVerifier(bool avecTirage) const {
    if (!avecTirage)
        return Refus{Refus::Titre::Avertissement,
                     "Il faut d'abord sélectionner un tirage en mémoire...",
                     {}};
    if (liste().empty()) return AucuneGrille();
    return {};
}

// ---- Files -------------------------------------------------------------------------------------

Resultat<Rien> SaisieBillets::sauver(const std::filesystem::path& fichier) {
    const bool saisie = etat_ == EtatTickets::Grilles;
    std::vector<Grille> grilles = saisie ? billets_.ListeGrilles : billets_.ListeChoix;
    if (saisie) RetirerVides(grilles);
    auto ecrit = EnregistrerGrilles(grilles, fichier);
    if (ecrit) billets_.aSauver = false;
    return ecrit;
}

bool SaisieBillets::ouverturePerdrait() const {
    return billets_.aSauver && !billets_.ListeChoix.empty();
}

Resultat<Rien> SaisieBillets::ouvrirGrilles(const std::filesystem::path& fichier) {
    if (enSelection()) return Rien{};
    auto lu = ChargerGrilles(fichier);
    if (!lu) return Erreur{lu.erreur()};
    billets_.ListeChoix = *std::move(lu);
    billets_.aSauver = false;
    entrerConsultation(false);
    return Rien{};
}

Resultat<Rien> SaisieBillets::ouvrirRecu(const std::filesystem::path& fichier) {
    if (enSelection()) return Rien{};
    auto lu = ChargerRecu(fichier);
    if (!lu) return Erreur{lu.erreur()};
    billets_.ListeRecu = std::move(lu->grilles);
    billets_.ListeJoker = std::move(lu->jokers);
    dateRecu_ = DateRecu(fichier).value_or(0);
    recuSansFichier_ = tirageAProposer_ = false;
    entrerConsultation(true);
    return Rien{};
}

// ---- Closing -----------------------------------------------------------------------------------

std::vector<Grille> SaisieBillets::grillesEnCours() const {
    std::vector<Grille> grilles = billets_.ListeGrilles;
    if (surPlanche() && enMain_.n() >= NumerosDignesDEtreGardes) {
        EnregistrerGrille(grilles, grille_ - 1);
    } else if (surPlanche() && grille_ > 0 && grille_ == nombre()) {
        grilles.pop_back();
    }
    if (surPlanche()) RetirerVides(grilles);
    return grilles;
}

std::vector<Grille> SaisieBillets::grillesSecours() const {
    const auto& stock = billets_.ListeChoix;
    std::vector<Grille> copie = billets_.aSauver ? stock : std::vector<Grille>{};
    std::vector<Grille> suite;
    if (surPlanche() && ModeGrilles()) {
        std::vector<Grille> saisies = grillesEnCours();
        suite = Difference(saisies, stock);
        if (!billets_.aSauver && !suite.empty()) suite = std::move(saisies);
    } else if (surPlanche()) {
        suite = grillesEnCours();
    } else if (recuSansFichier_) {
        suite = billets_.ListeRecu;
    }
    copie.insert(copie.end(), suite.begin(), suite.end());
    // A longer list could not be read back: what was entered last stays.
    const auto trop = std::ssize(copie) - NbGrillesMax;
    if (trop > 0) copie.erase(copie.begin(), copie.begin() + trop);
    return copie;
}

}  // namespace norvane
