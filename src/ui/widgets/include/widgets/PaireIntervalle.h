// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The two bounds of an interval of draws: each pulls the other along when it passes it.
#pragma once

#include <QWidget>

namespace norvane::ui {

class SpinTirage;

class PaireIntervalle final : public QWidget {
    Q_OBJECT

 public:
    /// The object names of the two controls, and the hint of both.
    PaireIntervalle(const QString& nomInf, const QString& nomSup, const QString& indice,
                    QWidget* parent);

    SpinTirage& controleInf() { return *inf_; }
    SpinTirage& controleSup() { return *sup_; }

    /// Limits 1..nbTirages (at least 1) and the values, without a signal.
    void poser(int nbTirages, int inf, int sup);
    void poserAttenteSaisie(bool attente);

 Q_SIGNALS:
    /// Once for each change of either control, with inf <= sup.
    void intervalleChange(int inf, int sup);

 private:
    SpinTirage* inf_;
    SpinTirage* sup_;
};

}  // namespace norvane::ui
