// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The notebook under the statistics: the selection of numbers and the sorts, or the buffer lists.
#pragma once

#include <QStackedWidget>

#include "atelier/Atelier.h"

namespace norvane::ui {

class PanneauSelections;
class PanneauTampons;
class PanneauTri;
struct Contexte;

class Cahier final : public QStackedWidget {
    Q_OBJECT

 public:
    Cahier(Contexte& ctx, QWidget* parent);

    void montrerMode(ModeListe mode);

    PanneauSelections& selections() { return *selections_; }
    PanneauTri& tri() { return *tri_; }
    PanneauTampons& tampons() { return *tampons_; }

    QList<QWidget*> ordreTabulation() const;

 private:
    QWidget* creerChoix(Contexte& ctx);
    QWidget* creerTampons(Contexte& ctx);

    PanneauSelections* selections_ = nullptr;
    PanneauTri* tri_ = nullptr;
    PanneauTampons* tampons_ = nullptr;
};

}  // namespace norvane::ui
