// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The entry of tickets driven by words, and its state in one line.
#pragma once

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <functional>
#include <map>
#include <sstream>

#include "Dossier.h"
#include "tickets/FichiersGrilles.h"
#include "tickets/SaisieBillets.h"

namespace norvane {

/// Ticket number k of the tests: the numbers k+4 down to k, the chance 1 + k % 10.
inline Grille Ticket(int k, bool option = false) {
    return FaireGrille({k + 4, k + 3, k + 2, k + 1, k}, {1 + k % 10}, option);
}

/// "t3", "t3'" with the option, "_" for an empty place, other tickets in full.
inline std::string Dire(const Grille& grille) {
    if (grille.vide()) return "_";
    const int k = grille.n() == 5 ? *std::min_element(grille.numeros.begin(), grille.numeros.end())
                                  : NumeroMax;
    for (const bool option : {false, true})
        if (k <= NumeroMax - 4 && grille == Ticket(k, option))
            return fmt::format("t{}{}", k, option ? "'" : "");
    return fmt::format("{}+{}@{}", fmt::join(grille.numeros, "."), fmt::join(grille.chances, "."),
                       grille.mise);
}

inline std::string Dire(const std::vector<Grille>& grilles) {
    std::string texte;
    for (const Grille& grille : grilles) texte += (texte.empty() ? "" : " ") + Dire(grille);
    return texte;
}

/// A machine driven by words, each an event: a letter, then a number.
struct Essai {
    Billets billets;
    SaisieBillets saisie{billets};
    const Dossier dossier;

    /// Why the event was refused, or empty.
    std::string faire(char evenement, int n) {
        const auto dire = [](const Reponse& refus) { return refus ? refus->phrase : ""; };
        const auto echec = [](const Resultat<Rien>& fait) { return fait ? "" : fait.erreur(); };
        const std::map<char, std::function<std::string()>> gestes = {
            {'E', [&] { return saisie.commencer(n == 1), ""; }},  // 0 grids, 1 receipt
            {'n', [&] { return dire(saisie.basculer(GenreStats::Numeros, n)); }},
            {'c', [&] { return dire(saisie.basculer(GenreStats::Chances, n)); }},
            {'t', [&] { return prendre(n), ""; }},
            {'x', [&] { return saisie.decocherTout(), ""; }},
            {'o', [&] { return saisie.poserOption(n == 1), ""; }},
            {'d', [&] { return dire(saisie.deplacer(n)); }},
            {'a', [&] { return dire(saisie.ajouter()); }},
            {'h',
             [&] {
                 return saisie.tirerAuHasard({5, 1}, n), "";
             }},
            {'s', [&] { return saisie.supprimer(), ""; }},
            {'p', [&] { return dire(saisie.preparerSuppressionTotale()); }},
            {'S', [&] { return saisie.supprimerTout(), ""; }},
            {'q', [&] { return dire(saisie.peutArreter()); }},
            {'Q', [&] { return saisie.arreter(), ""; }},
            {'f', [&] { return saisie.terminer(), ""; }},
            {'k', [&] { return saisie.choisirCompteJoker(n), ""; }},
            {'j', [&] { return dire(saisie.validerJoker(fmt::format("{:07}", n), 2, true)); }},
            {'J', [&] { return saisie.reprendreJoker(), ""; }},
            {'v', [&] { return echec(saisie.enregistrerRecu(dossier.chemin(), n, false)); }},
            {'V', [&] { return echec(saisie.enregistrerRecu(dossier.chemin(), n, true)); }},
            {'C', [&] { return dire(saisie.consulter()); }},
            {'l', [&] { return saisie.choisirListe(n == 1), ""; }},
            {'b', [&] { return copier(n); }},
            {'A',
             [&] {
                 const auto refus = saisie.peutAjouterAuStock();
                 saisie.ajouterAuStock(Ticket(n));
                 return dire(refus);
             }},
            {'P', [&] { return saisie.consulterStock(n), ""; }},
            {'w', [&] { return echec(saisie.sauver(dossier / "a.grl")); }},
            {'g', [&] { return echec(saisie.ouvrirGrilles(dossier / "a.grl")); }},
            {'r', [&] { return echec(saisie.ouvrirRecu(FichierRecu(dossier.chemin(), n))); }}};
        return gestes.at(evenement)();
    }
    void prendre(int k) {
        saisie.decocherTout();
        const Grille ticket = Ticket(k);
        for (const int v : ticket.numeros) EXPECT_FALSE(saisie.basculer(GenreStats::Numeros, v));
        for (const int v : ticket.chances) EXPECT_FALSE(saisie.basculer(GenreStats::Chances, v));
    }
    std::string copier(int nombre) {
        if (const auto refus = saisie.peutCopier()) return refus->phrase;
        return saisie
            .CopierversBulletins(std::vector<Grille>(static_cast<std::size_t>(nombre), Ticket(40)))
            .phrase();
    }

    /// Every event in turn; what the last one was refused with. The others must go through.
    std::string jouer(const std::string& evenements) {
        std::istringstream mots(evenements);
        std::string refus;
        for (std::string mot; mots >> mot;) {
            EXPECT_EQ(refus, "") << "before " << mot << " of " << evenements;
            int n = 0;
            std::from_chars(mot.data() + 1, mot.data() + mot.size(), n);
            refus = faire(mot[0], n);
        }
        return refus;
    }

    /// State, place of the ticket in hand and that ticket, then what is in memory.
    std::string etat() const {
        constexpr const char* etats[] = {"Normal", "Grilles", "Recu", "Joker", "Consultation"};
        constexpr const char* etapes[] = {"Compte", "Numeros", "Date"};
        std::string texte = etats[static_cast<std::size_t>(saisie.etat())];
        if (saisie.etat() == EtatTickets::Joker)
            texte += etapes[static_cast<std::size_t>(saisie.etape())];
        texte += fmt::format(" {}/{} {}{}", saisie.grille(), saisie.nombre(),
                             Dire(saisie.grilleEnMain()), saisie.option2nd() ? " 2nd" : "");
        texte += fmt::format(" [{}] recu[{}] choix[{}]{}", Dire(billets.ListeGrilles),
                             Dire(billets.ListeRecu), Dire(billets.ListeChoix),
                             billets.aSauver ? "*" : "");
        for (const LigneJoker& ligne : billets.ListeJoker)
            texte += fmt::format(" J{}x{}", fmt::join(ligne.chiffres, ""), ligne.code);
        return texte;
    }
};

}  // namespace norvane
