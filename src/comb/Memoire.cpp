// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fstream>
#include <string>

#include "comb/VaroFonc2.h"

namespace norvane {

std::uint64_t MemoireDisponible() {
    std::ifstream flux("/proc/meminfo");
    std::string cle;
    std::uint64_t valeur = 0;
    std::string unite;
    while (flux >> cle >> valeur && std::getline(flux, unite))
        if (cle == "MemAvailable:") return valeur * 1024;
    return 0;
}

}  // namespace norvane
