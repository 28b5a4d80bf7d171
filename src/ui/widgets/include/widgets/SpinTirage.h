// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A draw number that is typed, stepped or turned: what depends on it follows at each stroke.
#pragma once

#include <QSpinBox>

namespace norvane::ui {

class SpinTirage final : public QSpinBox {
    Q_OBJECT

 public:
    explicit SpinTirage(QWidget* parent = nullptr);

    /// A text with fewer characters than the minimum's own is then taken for one still being
    /// typed: nothing follows it.
    void poserAttenteSaisie(bool attente) { attenteSaisie_ = attente; }

    /// New limits and value, without a signal.
    void poser(int minimum, int maximum, int valeur);
    /// New value, without a signal.
    void poserValeur(int valeur) { poser(minimum(), maximum(), valeur); }

 Q_SIGNALS:
    /// Once for each change of the text that gives a draw number, also when it gives the same one
    /// again. value() is that number, brought within the limits and written back.
    void tirageChange(int tirage);

 protected:
    QValidator::State validate(QString& texte, int& place) const override;
    int valueFromText(const QString& texte) const override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
    void surTexte(const QString& texte);

    bool attenteSaisie_ = false;
    bool enCours_ = false;  // the value is being set from the text, or without a signal
};

}  // namespace norvane::ui
