// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Results gathered into batches on their way to the sink.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "comb/Puits.h"

namespace norvane {

inline constexpr std::size_t TailleLot = 4096;  ///< records or lines of one call

class LotLignes {
 public:
    explicit LotLignes(Puits& puits) : puits_(puits) {}
    void ajouter(const Combinaison& ligne) {
        lignes_.push_back(ligne);
        if (lignes_.size() >= TailleLot) vider();
    }
    void vider() {
        if (!lignes_.empty()) puits_.AddLine(lignes_);
        lignes_.clear();
    }

 private:
    Puits& puits_;
    std::vector<Combinaison> lignes_;
};

class LotMots {
 public:
    LotMots(Puits& puits, std::size_t motsParEnregistrement)
        : puits_(puits), plein_(TailleLot * motsParEnregistrement) {}
    /// Whole records. Those that are a batch by themselves go through without a copy.
    void ajouter(std::span<const Mot> mots) {
        if (mots.size() >= plein_) {
            vider();
            return puits_.AddRecord(mots);
        }
        mots_.insert(mots_.end(), mots.begin(), mots.end());
        if (mots_.size() >= plein_) vider();
    }
    void vider() {
        if (!mots_.empty()) puits_.AddRecord(mots_);
        mots_.clear();
    }

 private:
    Puits& puits_;
    const std::size_t plein_;
    std::vector<Mot> mots_;
};

}  // namespace norvane
