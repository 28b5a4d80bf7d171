// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user asks of the system in memory and of the selection: making, files, copy, proof.
#pragma once

#include <memory>
#include <optional>
#include <QObject>

#include "systems/Garantie.h"

class QProgressBar;

namespace norvane::ui {

struct Contexte;

/// What a check of the system in memory came to.
struct PreuveSysteme {
    int X = 0, Y = 0;
    int selection = 0;  ///< numbers that were drawn from
    int base = 0;       ///< base numbers among them
    BilanGarantie bilan;
    TableChances chances{};
};

class CommandesSysteme final : public QObject {
    Q_OBJECT

 public:
    CommandesSysteme(Contexte& ctx, QWidget* fenetre);
    /// The gauge of long work.
    void poserJauge(QProgressBar* jauge) { jauge_ = jauge; }

    // The system in memory.
    void Button82Click();  ///< generate
    void BitBtn8Click();   ///< open
    void BitBtn10Click();  ///< save
    void Button84Click();  ///< to the statistics
    void Button85Click();  ///< export
    void Button86Click();  ///< import
    /// Checks the guarantee, or stops the check under way.
    void VerifierClick();
    /// The last check of the system in memory; none yet.
    const std::optional<PreuveSysteme>& preuve() const { return preuve_; }
    bool verifie() const;

    // The selection.
    void avancer(int numero);  ///< the next of the three states
    void retirer(int numero);
    void Button80Click();           ///< clear
    void Button81Click();           ///< random
    void BitBtnWithColor20Click();  ///< from the draw on show
    void BitBtnWithColor21Click();  ///< from the free choice
    void BitBtn6Click();            ///< open
    void BitBtn7Click();            ///< save

 Q_SIGNALS:
    void selectionChangee();
    /// The system in memory is another one.
    void systemeChange();
    /// A check began, ended or no longer holds.
    void preuveChangee();
    /// Nothing can be done before a system is in memory: the list of systems takes the focus.
    void catalogueVoulu();

 private:
    bool refuserSansSysteme();
    bool accepterPerte();
    void laisserVoir(const QString& texte);
    void poser(Systeme&& systeme);
    void choisir(const SelectionSysteme& selection);
    void direErreur(const std::string& phrase);

    Contexte& contexte_;
    QWidget* fenetre_;
    QProgressBar* jauge_ = nullptr;
    std::optional<PreuveSysteme> preuve_;
};

}  // namespace norvane::ui
