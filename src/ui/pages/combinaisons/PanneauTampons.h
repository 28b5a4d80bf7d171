// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The three buffers side by side, each with its sub-list and its file.
#pragma once

#include <array>
#include <QWidget>

#include "lists/Liste.h"

class QPushButton;
class QSpinBox;

namespace norvane::ui {

class FichiersListes;
class PanneauListe;
struct Contexte;

class PanneauTampons final : public QWidget {
    Q_OBJECT

 public:
    static constexpr std::size_t NbTampons = 3;

    PanneauTampons(Contexte& ctx, QWidget* parent);

    PanneauListe& liste(std::size_t tampon) { return *tampons_.at(tampon).liste; }
    /// Lists, sub-lists and what can be saved, as they stand.
    void suivre();

    QList<QWidget*> ordreTabulation() const;

 private:
    struct Tampon {
        PanneauListe* liste;
        QPushButton* sousListe;
        QSpinBox* numero;
        QPushButton *ouvrir, *sauver, *exporter;
    };
    QWidget* creerTampon(std::size_t i);
    void suivreDivision();
    void afficherSousListe(std::size_t i);

    Contexte& contexte_;
    FichiersListes* fichiers_;
    std::array<Tampon, NbTampons> tampons_{};
    Division division_;  ///< that the numbers were last proposed for
};

}  // namespace norvane::ui
