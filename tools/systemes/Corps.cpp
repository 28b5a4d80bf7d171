// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corps.h"

#include <stdexcept>

namespace systemes {

Corps::Corps(int q) : q_(q), p_(2) {
    if (q < 2) throw std::invalid_argument("no such field");
    while (q % p_ != 0) ++p_;
    int reste = q;
    while (reste % p_ == 0) reste /= p_;
    if (reste != 1) throw std::invalid_argument("no such field");
    for (int bas = 1; bas < q; ++bas)
        if (essayer(bas)) return;
    throw std::invalid_argument("no primitive element");
}

/// Takes x^n = bas, n being the degree of the field: right when x then has all q - 1 powers.
bool Corps::essayer(int bas) {
    puissances_.assign(q_ - 1, 0);
    logs_.assign(q_, -1);
    const int haut = q_ / p_;  // the place of the highest coefficient
    int x = 1;
    for (int i = 0; i < q_ - 1; ++i) {
        if (logs_[x] >= 0 || x == 0) return false;
        logs_[x] = i;
        puissances_[i] = x;
        const int coefficient = x / haut;
        int suite = x % haut * p_;
        for (int j = 0; j < coefficient; ++j) suite = somme(suite, bas);
        x = suite;
    }
    return x == 1;
}

int Corps::somme(int a, int b) const {
    int s = 0;
    for (int place = 1; place < q_; place *= p_)
        s += (a / place % p_ + b / place % p_) % p_ * place;
    return s;
}

int Corps::produit(int a, int b) const {
    return a == 0 || b == 0 ? 0 : puissances_[(logs_[a] + logs_[b]) % (q_ - 1)];
}

int Corps::oppose(int a) const {
    int s = 0;
    for (int place = 1; place < q_; place *= p_) s += (p_ - a / place % p_) % p_ * place;
    return s;
}

int Corps::exposer(int a, int n) const {
    return a == 0 ? 0 : puissances_[logs_[a] * n % (q_ - 1)];
}

}  // namespace systemes
