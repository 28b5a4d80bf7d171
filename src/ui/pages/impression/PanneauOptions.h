// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The options of the slip on show.
#pragma once

#include <array>
#include <QList>
#include <QWidget>

class QCheckBox;
class QPushButton;

namespace norvane::ui {

class CommandesBulletins;
class ListeCoches;

class PanneauOptions final : public QWidget {
    Q_OBJECT

 public:
    PanneauOptions(CommandesBulletins& commandes, QWidget* parent);

    void montrer();
    QList<QWidget*> ordreTabulation() const;

 private:
    void creerListes();
    QLayout* creerJokers();
    QLayout* creerJours();

    CommandesBulletins& commandes_;
    ListeCoches* semaines_ = nullptr;
    ListeCoches* joker1_ = nullptr;
    ListeCoches* joker2_ = nullptr;
    std::array<QCheckBox*, 3> jours_{};
    QCheckBox* groupe_ = nullptr;
    QPushButton* appliquer_ = nullptr;
    QPushButton* tous_ = nullptr;
};

}  // namespace norvane::ui
