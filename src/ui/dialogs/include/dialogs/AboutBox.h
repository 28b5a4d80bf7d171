// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What this program is, and what it runs on.
#pragma once

#include <QDialog>

#include "common/Contexte.h"

class QLabel;

namespace norvane::ui {

class TAboutBox final : public QDialog {
    Q_OBJECT

 public:
    TAboutBox(Contexte& ctx, QWidget* parent);

 protected:
    void showEvent(QShowEvent* evenement) override;

 private:
    Contexte& contexte_;
    QLabel* faits_;
};

}  // namespace norvane::ui
