// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A sink that puts the records of a search by bounds straight into a list.
#pragma once

#include "comb/Puits.h"
#include "lists/Liste.h"

namespace norvane {

class PuitsListe : public PuitsProgres {
 public:
    Liste liste;  ///< its disposition: that of the search. After the worker's end
    Liste avant;  ///< what it replaces: freed with the first record

    void AddRecord(std::span<const Mot> mots) override {
        if (!avant.vide()) Vider(avant);
        liste.arene.mots.insert(liste.arene.mots.end(), mots.begin(), mots.end());
    }
    void Reserver(std::size_t mots) override { liste.arene.mots.reserve(mots); }
};

}  // namespace norvane
