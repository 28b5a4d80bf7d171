// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Instance.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>

namespace norvane::ui {

Instance::Instance(const std::string& nom) {
    const std::string complet = nom + "-" + std::to_string(getuid());
    sockaddr_un adresse{};
    adresse.sun_family = AF_UNIX;
    // A first byte of zero makes the name abstract.
    const std::size_t longueur = std::min(complet.size(), sizeof adresse.sun_path - 1);
    std::copy_n(complet.begin(), longueur, adresse.sun_path + 1);
    prise_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (prise_ < 0) return;
    const auto taille = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + longueur);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the socket interface's own form
    if (bind(prise_, reinterpret_cast<const sockaddr*>(&adresse), taille) != 0) liberer();
}

void Instance::liberer() {
    if (prise_ >= 0) close(prise_);
    prise_ = -1;
}

}  // namespace norvane::ui
