// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The panel of the prizes of a draw. Its place can be taken by other panels.
#pragma once

#include <QWidget>

#include "atelier/EditionBase.h"
#include "tickets/Rangs.h"

class QHBoxLayout;
class QStackedWidget;

namespace norvane::ui {

struct Contexte;
class ChoixTirage;
class TableRapports;

class PanneauRapports final : public QWidget {
    Q_OBJECT

 public:
    PanneauRapports(Contexte& ctx, QWidget* parent);

    /// A panel that can take the place of the prizes.
    void ajouter(QWidget* panneau);
    void montrer(const ChoixTirage& choix);
    /// The prizes of the draw in hand, which can be changed; null: those of `choix` again.
    void saisir(const SaisieTirage* saisie, const ChoixTirage& choix);
    /// Wins of the ticket on show in the table of a 1er or of a 2nd Tirage; all 0 for none.
    void montrerGains(bool second, const ComptesRangs& comptes);

 Q_SIGNALS:
    void celluleSaisie(int rang, norvane::ColonneRapport colonne, const QString& texte);
    void VideRapportsClick();

 private:
    QHBoxLayout* creerTete(QWidget* fiche);

    Contexte& contexte_;
    bool saisie_ = false;  ///< a draw in hand is on show
    QStackedWidget* volet_ = nullptr;
    QStackedWidget* tables_ = nullptr;
    TableRapports* premier_ = nullptr;
    TableRapports* second_ = nullptr;
};

}  // namespace norvane::ui
