// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Historiques" (Varo6): where and when something came out. It shows what another page
// asks for, and keeps it until the next time.
#pragma once

#include <array>
#include <optional>

#include "pages/Page.h"
#include "reports/Historique.h"

class QButtonGroup;
class QGroupBox;
class QLabel;
class QLayout;
class QModelIndex;
class QPushButton;
class QStackedWidget;

namespace norvane::ui {

class DessinEcarts;
class Fiche;
class TableauHistorique;

class PageHistoriques final : public Page {
    Q_OBJECT

 public:
    explicit PageHistoriques(Contexte& ctx, QWidget* parent = nullptr);

    /// A start with something to look at: a number that came out, taken at random.
    void premierAffichage() override;
    void surDepart() override;
    bool ouvrir(const Destination& destination) override;

 private:
    QWidget* construireHistorique();
    Fiche* construireTete(QWidget* parent);
    QGroupBox* construireAffichage(QWidget* parent);
    QGroupBox* construireLegende(QWidget* parent);

    /// False, with a word to the user, when the subject never came out there.
    bool montrer(const SujetHistorique& sujet, int inf, int sup);
    void montrerVue();
    void surActivation(const QModelIndex& index);
    void sauver();

    std::optional<Historique> historique_;
    VueHistorique vue_ = VueHistorique::Sorties;
    QStackedWidget* feuillets_;  // the invitation, or a history
    QLabel* titre_ = nullptr;
    QLabel* exemple_ = nullptr;
    std::array<QLabel*, 5> chiffres_{};
    DessinEcarts* dessin_ = nullptr;
    TableauHistorique* table_ = nullptr;
    QButtonGroup* affichage_ = nullptr;
    QPushButton* sauver_ = nullptr;
};

}  // namespace norvane::ui
