// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The row of commands below the board.
#pragma once

#include <QWidget>

class QProgressBar;
class QPushButton;

namespace norvane::ui {

class RangeeCommandes final : public QWidget {
    Q_OBJECT

 public:
    explicit RangeeCommandes(QWidget* parent);

    QProgressBar* jauge() const { return jauge_; }
    /// Lets "Communs" up.
    void leverCommuns();
    /// The focus goes to the start of the free choice, or of an entry.
    void viserChoixLibre();
    void viserSelection();

 Q_SIGNALS:
    void CommunsButtonClick(bool bas);
    void ReInitClick();
    void DeSelectClick();
    void NormalModeClick();
    void VerifGainsClick();
    void ChargerGrillesClick();
    void ButtonSauverGrillesClick();
    void SelectGrillesClick();
    void ConsultationClick();
    void AjoutLibreClick();
    void MajBaseManuelleClick();

 private:
    QProgressBar* creerJauge();
    QPushButton* creerCommuns();

    QProgressBar* jauge_ = nullptr;
    QPushButton* communs_ = nullptr;
    QPushButton* choixLibre_ = nullptr;
    QPushButton* selection_ = nullptr;
};

}  // namespace norvane::ui
