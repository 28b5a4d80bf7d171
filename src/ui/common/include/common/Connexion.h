// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Whether the machine is connected to the Internet ("INetDetector1").
#pragma once

#include <QObject>

namespace norvane::ui {

/// Off at the start. Without a means to know on this machine it tells nothing.
class Connexion final : public QObject {
    Q_OBJECT

 public:
    using QObject::QObject;

    void demarrer();

 Q_SIGNALS:
    void change(bool enLigne);

 private:
    bool suivie_ = false;
};

}  // namespace norvane::ui
