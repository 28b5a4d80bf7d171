// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Asks which draws of the base are to be kept.
#pragma once

#include <array>
#include <QDialog>

#include "base/Filtre.h"
#include "common/Contexte.h"

class QLayout;
class QListWidget;
class QListWidgetItem;
class QVBoxLayout;

namespace norvane::ui {

class TMontantJackpotBox final : public QDialog {
    Q_OBJECT

 public:
    /// Opens on `criteres`. exec() gives back 1 when they are to be applied.
    TMontantJackpotBox(Contexte& ctx, const CriteresFiltre& criteres, QWidget* parent);

    const CriteresFiltre& criteres() const { return criteres_; }

 private:
    QVBoxLayout* creerListe(std::size_t place);
    QLayout* creerCommandes();
    void cocher(ListeFiltre liste, const QListWidgetItem& ligne);
    void montrer();
    QString dossier() const;
    void ouvrir();
    void enregistrer();

    Contexte& contexte_;
    CriteresFiltre criteres_;
    std::array<QListWidget*, NbListesFiltre> listes_{};
    bool garde_ = false;  ///< the lists follow the criteria: what they tell is no wish
};

}  // namespace norvane::ui
