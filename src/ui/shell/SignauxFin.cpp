// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/SignauxFin.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <QSocketNotifier>

namespace norvane::ui {

namespace {

/// A signal brings nothing of ours along: where its handler writes has to be known beforehand.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): see above
std::atomic<int> entreeTube = -1;

void noter(int /*signal*/) {
    const int gardee = errno;
    const char un = 1;
    // A full pipe has told it already.
    if (::write(entreeTube, &un, 1) < 0) errno = 0;
    errno = gardee;
}

}  // namespace

SignauxFin::SignauxFin(QObject* parent) : QObject(parent) {
    if (::pipe2(tube_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    entreeTube = tube_[1];
    auto* veille = new QSocketNotifier(tube_[0], QSocketNotifier::Read, this);
    connect(veille, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> lus;
        while (::read(tube_[0], lus.data(), lus.size()) > 0) continue;
        Q_EMIT finVoulue();
    });
    for (std::size_t i = 0; i < Signaux.size(); ++i) {
        ::sigaction(Signaux[i], nullptr, &anciennes_[i]);
        if (anciennes_[i].sa_handler == SIG_IGN) continue;
        struct sigaction action {};
        action.sa_handler = noter;
        action.sa_flags = SA_RESTART;
        ::sigaction(Signaux[i], &action, nullptr);
    }
}

SignauxFin::~SignauxFin() {
    if (tube_[0] < 0) return;
    for (std::size_t i = 0; i < Signaux.size(); ++i) {
        ::sigaction(Signaux[i], &anciennes_[i], nullptr);
    }
    entreeTube = -1;
    for (const int bout : tube_) ::close(bout);
}

}  // namespace norvane::ui
