// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The reports behind the button VerifGains: the verification of one date, the balance over an
// interval.
#pragma once

#include <QObject>
#include <string>

class QProgressBar;
class QPushButton;

namespace norvane {
class Travail;
}

namespace norvane::ui {

struct Contexte;

class CalculGains final : public QObject {
    Q_OBJECT

 public:
    /// What a click does; the caption of the button follows.
    enum class Action { Verifier, Bilan, Arreter };

    CalculGains(Contexte& ctx, QPushButton& VerifGains, QProgressBar& jauge);
    ~CalculGains() override;

    Action action() const { return action_; }
    /// The button gives the balance, or the verification. Not during work.
    void poserBilan(bool bilan);
    /// `tirage`: the record on show, -1 for none.
    void VerifGainsClick(int tirage);
    void arreter();

 Q_SIGNALS:
    /// The work began or is over: commands follow.
    void actionChange();

 private:
    void poser(Action action);
    void verifier(int tirage);
    void lancerBilan();
    void finirBilan(const std::string& texte, const Travail& travail);
    void publier(const char* nom, const std::string& texte);

    Contexte& contexte_;
    QPushButton& VerifGains_;
    QProgressBar& jauge_;
    Action action_ = Action::Verifier;
};

}  // namespace norvane::ui
