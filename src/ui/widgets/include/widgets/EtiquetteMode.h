// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The mode on show, which blinks for a moment after each change.
#pragma once

#include <QLabel>
#include <QTimer>

namespace norvane::ui {

class EtiquetteMode final : public QLabel {
    Q_OBJECT

 public:
    explicit EtiquetteMode(QWidget* parent = nullptr);

    /// Shows a mode and starts the blinking anew.
    void montrer(const QString& mode);
    /// True while the label stands in its other colour.
    bool alerte() const { return alerte_; }

 protected:
    void paintEvent(QPaintEvent* evenement) override;

 private:
    void battre();

    QTimer clignotement_;  // "Timer2": 500 ms; five ticks, the last sets the normal colour
    int battements_ = 0;
    bool alerte_ = false;
};

}  // namespace norvane::ui
