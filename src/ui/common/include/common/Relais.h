// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a page tells the others, and what it asks of the main form. Pages do not know each other.
#pragma once

#include <QObject>

#include "atelier/Changement.h"
#include "common/Destination.h"

namespace norvane::ui {

class Relais final : public QObject {
    Q_OBJECT

 public:
    using QObject::QObject;

    /// The state changed: told once, after the change, to every page, the teller included.
    void annoncer(const Changement& changement) { Q_EMIT change(changement); }
    /// Opens the page that shows this.
    void aller(const Destination& destination) { Q_EMIT demande(destination); }
    /// Text for the first panel of the status bar; empty takes it away.
    void dire(const QString& texte) { Q_EMIT texteEtat(texte); }

 Q_SIGNALS:
    void change(const norvane::Changement& changement);
    void demande(const norvane::ui::Destination& destination);
    void texteEtat(const QString& texte);
};

}  // namespace norvane::ui
