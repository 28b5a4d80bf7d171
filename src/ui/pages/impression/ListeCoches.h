// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A few items to tick, side by side. What is ticked is its owner's to say.
#pragma once

#include <QListWidget>

namespace norvane::ui {

class ListeCoches final : public QListWidget {
    Q_OBJECT

 public:
    ListeCoches(const QString& nom, const QString& libelle, const QStringList& items,
                QWidget* parent);

    /// Ticks what `coche` says, without a signal. Unless the keys are in the list, what is ticked
    /// is the current item, and nothing without a tick.
    template <typename Coche>
    void montrer(Coche coche) {
        const QSignalBlocker muet(this);
        int courant = -1;
        for (int i = 0; i < count(); ++i) {
            const bool oui = coche(i);
            item(i)->setCheckState(oui ? Qt::Checked : Qt::Unchecked);
            if (oui) courant = i;
        }
        if (!hasFocus()) setCurrentRow(courant);
    }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

 Q_SIGNALS:
    /// The user ticked or unticked an item.
    void StateChange(int item, bool coche);

 protected:
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override { mousePressEvent(evenement); }
    void mouseMoveEvent(QMouseEvent*) override {}
    void mouseReleaseEvent(QMouseEvent*) override {}
};

}  // namespace norvane::ui
