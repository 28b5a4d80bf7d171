// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Finite fields of at most some thousand elements, numbered 0..q-1: the digits of the number in
// base of the characteristic are the coefficients of the element.
#pragma once

#include <vector>

namespace systemes {

class Corps {
 public:
    /// Throws std::invalid_argument when q is not the power of a prime.
    explicit Corps(int q);

    int caracteristique() const { return p_; }
    int somme(int a, int b) const;
    int produit(int a, int b) const;
    int oppose(int a) const;
    /// Of an element other than 0.
    int inverse(int a) const { return puissances_[(q_ - 1 - logs_[a]) % (q_ - 1)]; }
    /// The n-th power of the primitive element.
    int puissance(int n) const { return puissances_[n % (q_ - 1)]; }
    int exposer(int a, int n) const;

 private:
    bool essayer(int bas);
    int q_;
    int p_;
    std::vector<int> puissances_;
    std::vector<int> logs_;
};

}  // namespace systemes
