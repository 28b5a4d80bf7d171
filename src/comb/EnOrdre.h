// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Tasks worked on side by side whose results are handed over one at a time, in their order.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <stop_token>
#include <vector>

#include "base/Repartition.h"

namespace norvane {

/// Cuts a row of tasks into pieces that are worth a hand-over to another thread: neighbours whose
/// weights come to `assez` or more. The first task of each piece, and the end of the row.
template <typename Poids>
std::vector<std::size_t> Couper(std::size_t taches, std::uint64_t assez, Poids poids) {
    std::vector<std::size_t> debuts{0};
    std::uint64_t total = 0;
    for (std::size_t i = 0; i < taches; ++i) {
        if (total >= assez) {
            debuts.push_back(i);
            total = 0;
        }
        total += poids(i);
    }
    if (taches > 0) debuts.push_back(taches);
    return debuts;
}

/// Each thread makes an `Ouvrier` by `creer()`; `ouvrier.produire(i)` works task i out and
/// `livrer(i, ouvrier)` takes its result when all tasks before have been taken; false from either
/// ends everything. A thread holds one result at most, which bounds the memory. False when ended or
/// stopped before the last task.
template <typename Creer, typename Livrer>
bool EnOrdre(std::size_t taches, unsigned threads, const std::stop_token& arret, Creer creer,
             Livrer livrer) {
    std::mutex verrou;
    std::condition_variable change;
    std::size_t tour = 0;
    bool abandon = false;
    const auto abandonner = [&] {
        const std::lock_guard garde(verrou);
        abandon = true;
        change.notify_all();
    };
    Repartir(taches, threads, [&](unsigned, auto suivante) {
        try {
            auto ouvrier = creer();
            for (std::size_t i = suivante(); i < taches; i = suivante()) {
                if (arret.stop_requested() || !ouvrier.produire(i)) return abandonner();
                std::unique_lock garde(verrou);
                change.wait(garde, [&] { return abandon || tour == i; });
                if (abandon) return;
                if (!livrer(i, ouvrier)) abandon = true;
                ++tour;
                change.notify_all();
            }
        } catch (...) {
            abandonner();
            throw;
        }
    });
    return !abandon && tour == taches;
}

}  // namespace norvane
