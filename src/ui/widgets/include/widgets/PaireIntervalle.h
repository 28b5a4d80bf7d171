// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The two bounds of an interval of draws, and the intervals asked for most.
//
// Each bound pulls the other along when it passes it. While one is being typed, the other comes
// back to its own value as soon as the number typed allows it; what stands when a bound is left
// holds.
#pragma once

#include <QList>
#include <QWidget>

namespace norvane::ui {

class SpinTirage;

class PaireIntervalle final : public QWidget {
    Q_OBJECT

 public:
    /// The object names of the two controls, and the hint of both. The buttons beside them are
    /// named after the first: "Tout" behind it, or "Derniers" and their number of draws.
    PaireIntervalle(const QString& nomInf, const QString& nomSup, const QString& indice,
                    QWidget* parent);

    SpinTirage& controleInf() { return *inf_; }
    SpinTirage& controleSup() { return *sup_; }

    /// All controls, in the order of the tab key.
    const QList<QWidget*>& controles() const { return controles_; }

    /// Limits 1..nbTirages (at least 1) and the values, without a signal.
    void poser(int nbTirages, int inf, int sup);
    void poserAttenteSaisie(bool attente);

 Q_SIGNALS:
    /// Once for each change of either control, with inf <= sup.
    void intervalleChange(int inf, int sup);

 private:
    void relier(SpinTirage* spin);
    void tenir();
    void choisirDerniers(int nombre);
    QLayout* creerRaccourcis(const QString& nom);

    SpinTirage* inf_;
    SpinTirage* sup_;
    QList<QWidget*> controles_;
    int propreInf_ = 1;  // what a bound comes back to
    int propreSup_ = 1;
};

}  // namespace norvane::ui
