// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Progression.h"

#include <fmt/ostream.h>
#include <unistd.h>

#include <algorithm>
#include <iostream>

namespace norvane {

Progression::Progression(std::ostream& err) {
    if (&err == &std::cerr && ::isatty(STDERR_FILENO) == 1) flux_ = &err;
}

void Progression::montrer(int valeur, int max) {
    const int centieme = std::clamp(valeur * 100 / max, 0, 100);
    if (flux_ == nullptr || centieme == centieme_) return;
    centieme_ = centieme;
    fmt::print(*flux_, "\r[{:<50}] {:3} %",
               std::string(static_cast<std::size_t>(centieme / 2), '#'), centieme);
    flux_->flush();
}

void Progression::effacer() {
    if (flux_ != nullptr && centieme_ >= 0) *flux_ << "\r\x1b[K" << std::flush;
    centieme_ = -1;
}

}  // namespace norvane
