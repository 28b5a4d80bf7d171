// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is done with the list in memory: its lines are held or let go, it is sorted, its ranks are
// filled, it is told of, it is cut.
#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;

namespace norvane::ui {

class LegendeLignes;
class PanneauDivision;
struct Contexte;
struct VueTri;

class ActionsListe final : public QWidget {
    Q_OBJECT

 public:
    ActionsListe(Contexte& ctx, QWidget* parent);

    void suivre(const VueTri& vue);

    QList<QWidget*> ordreTabulation() const;

 Q_SIGNALS:
    void ButtonTriClick();
    void ButtonTriProfondeurClick();
    void BitBtnWithColor1Click();

 private:
    Contexte& contexte_;
    LegendeLignes* legende_;  ///< gives its place to the lock where lists are handled
    QCheckBox* verrou_;
    QLabel* genre_;
    QPushButton* tri_;
    QPushButton* rangs_;
    QPushButton* details_;
    PanneauDivision* division_;
};

}  // namespace norvane::ui
