// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The wish of the system that the program end: SIGTERM, SIGHUP, SIGINT.
#pragma once

#include <array>
#include <csignal>
#include <QObject>

namespace norvane::ui {

/// Catches those signals for as long as it lives, and tells each in the event loop, where all can
/// be saved. A signal that was ignored (nohup) stays so. One such object at a time.
class SignauxFin final : public QObject {
    Q_OBJECT

 public:
    explicit SignauxFin(QObject* parent = nullptr);
    ~SignauxFin() override;

 Q_SIGNALS:
    void finVoulue();

 private:
    static constexpr std::array Signaux{SIGTERM, SIGHUP, SIGINT};

    std::array<int, 2> tube_{-1, -1};
    std::array<struct sigaction, Signaux.size()> anciennes_{};
};

}  // namespace norvane::ui
