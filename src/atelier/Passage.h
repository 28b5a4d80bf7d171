// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// One run of the engine: what it writes into, and what its end needs.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "atelier/Moteur.h"
#include "comb/Collecte.h"
#include "lists/PuitsListe.h"

namespace norvane {

struct Moteur::Passage {
    std::shared_ptr<Collecte> collecte = std::make_shared<Collecte>();  ///< extremes
    std::shared_ptr<PuitsListe> puitsListe =
        std::make_shared<PuitsListe>();   ///< bounds, adaptation
    bool trierEcart = false;              ///< the advanced sort by gap follows
    Liste listeAvant;                     ///< the extremes that stood before
    std::int32_t NbTiragesCombSauve = 0;  ///< what NbTiragesComb goes back to on STOP
    std::chrono::steady_clock::time_point debut = std::chrono::steady_clock::now();
    const Travail* travail = nullptr;
    std::function<void(FinTraitement&)> terminer;
};

inline std::size_t Indice(int n) {
    return static_cast<std::size_t>(n);
}

inline constexpr const char* Attendez = "Attendez la fin du traitement en cours...";

inline ReponseClic Refuser(std::string message) {
    return {ReponseClic::Genre::Refuse, std::move(message), nullptr};
}

inline ReponseClic Montre() {
    return {ReponseClic::Genre::Affiche, {}, nullptr};
}

template <typename Fil>
ReponseClic Moteur::lancer(PtrFil<Fil> fil, void (Moteur::*finir)(Fil&, FinTraitement&)) {
    passage_->travail = fil.get();
    passage_->terminer = [this, finir, &f = *fil](FinTraitement& fin) { (this->*finir)(f, fin); };
    return {ReponseClic::Genre::Lance, {}, PtrTravail(fil.release())};
}

}  // namespace norvane
