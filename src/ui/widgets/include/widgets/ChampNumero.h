// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A number that is typed, stepped with the keys or with a pair of arrow buttons beside it.
#pragma once

#include <QLineEdit>
#include <QWidget>

namespace norvane::ui {

/// Takes digits only. A click selects all. Keys: up and down one step, page up and page down ten,
/// home and end the ends of the range (what they mean is the receiver's).
class ChampNumero final : public QLineEdit {
    Q_OBJECT

 public:
    explicit ChampNumero(const QString& nom, QWidget* parent = nullptr);

 Q_SIGNALS:
    void deplacement(int pas);
    void extremite(bool derniere);

 protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
};

/// Two arrow buttons, one above the other; they repeat while they are held.
class HautBas final : public QWidget {
    Q_OBJECT

 public:
    explicit HautBas(const QString& nom, QWidget* parent = nullptr);

 Q_SIGNALS:
    /// +1 for the upper one, -1 for the lower one.
    void deplacement(int pas);
};

}  // namespace norvane::ui
