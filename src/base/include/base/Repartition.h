// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Many small tasks shared out among threads, and how far they are.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace norvane {

/// Tells `avance` each new percentage between `de` and `a`, once and rising on the whole.
class Avancement {
 public:
    Avancement(const std::function<void(int)>& avance, std::size_t total, int de, int a)
        : avance_(avance), total_(std::max<std::size_t>(total, 1)), de_(de), etendue_(a - de) {}

    void pas() {
        if (!avance_) return;
        const std::size_t fait = fait_.fetch_add(1, std::memory_order_relaxed) + 1;
        const int pourcent =
            de_ + static_cast<int>(fait * static_cast<std::size_t>(etendue_) / total_);
        int dernier = dernier_.load(std::memory_order_relaxed);
        while (pourcent > dernier)
            if (dernier_.compare_exchange_weak(dernier, pourcent)) return avance_(pourcent);
    }

 private:
    const std::function<void(int)>& avance_;
    const std::size_t total_;
    const int de_;
    const int etendue_;
    std::atomic<std::size_t> fait_ = 0;
    std::atomic<int> dernier_ = -1;
};

/// Runs `ouvrier(thread, suivante)` on `threads` threads, the calling one included; `suivante()`
/// hands out 0..taches-1, then `taches`. The first exception of any of them is thrown again here.
template <typename Ouvrier>
void Repartir(std::size_t taches, unsigned threads, Ouvrier ouvrier) {
    std::atomic<std::size_t> prochaine = 0;
    std::exception_ptr erreur;
    std::mutex verrou;
    const auto suivante = [&] {
        return std::min(prochaine.fetch_add(1, std::memory_order_relaxed), taches);
    };
    const auto travailler = [&](unsigned thread) {
        try {
            ouvrier(thread, suivante);
        } catch (...) {
            const std::lock_guard garde(verrou);
            if (!erreur) erreur = std::current_exception();
            prochaine = taches;
        }
    };
    {
        std::vector<std::jthread> autres;
        for (unsigned t = 1; t < threads; ++t) autres.emplace_back(travailler, t);
        travailler(0);
    }
    if (erreur) std::rethrow_exception(erreur);
}

}  // namespace norvane
