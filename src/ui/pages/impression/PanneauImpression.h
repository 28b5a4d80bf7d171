// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Marks, offsets of the printer, which slips, and the printing.
#pragma once

#include <QList>
#include <QWidget>

class QButtonGroup;
class QCheckBox;
class QDoubleSpinBox;
class QProgressBar;
class QPushButton;
class QSpinBox;

namespace norvane::ui {

class CommandesBulletins;

class PanneauImpression final : public QWidget {
    Q_OBJECT

 public:
    PanneauImpression(CommandesBulletins& commandes, QWidget* parent);

    void montrer();
    /// The button reads "STOP" while it prints.
    void montrerImpression();
    QProgressBar* jauge() const { return jauge_; }
    QList<QWidget*> ordreTabulation() const;

 private:
    QLayout* creerMarques();
    QLayout* creerDecalages();
    QLayout* creerEtendue();
    QLayout* creerBoutons();

    CommandesBulletins& commandes_;
    QButtonGroup* marques_ = nullptr;
    QDoubleSpinBox* haut_ = nullptr;
    QDoubleSpinBox* gauche_ = nullptr;
    QPushButton* sauver_ = nullptr;
    QButtonGroup* etendue_ = nullptr;
    QSpinBox* du_ = nullptr;
    QSpinBox* au_ = nullptr;
    QCheckBox* epreuve_ = nullptr;
    QPushButton* calibrer_ = nullptr;
    QPushButton* imprimer_ = nullptr;
    QProgressBar* jauge_ = nullptr;
};

}  // namespace norvane::ui
