// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How far long work is, as a bar on the standard error output where that is a terminal.
#pragma once

#include <iosfwd>

namespace norvane {

class Progression {
 public:
    /// Silent unless `err` is the standard error output and a terminal.
    explicit Progression(std::ostream& err);

    /// From one thread at a time; `max` at least 1.
    void montrer(int valeur, int max);
    /// Takes the bar off the line.
    void effacer();

 private:
    std::ostream* flux_ = nullptr;  // null when silent
    int centieme_ = -1;
};

}  // namespace norvane
