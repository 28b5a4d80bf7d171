// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The reports behind the button VerifGains: the verification of one date, the balance over an
// interval.
#pragma once

#include <QObject>
#include <string>

class QProgressBar;

namespace norvane {
class Travail;
}

namespace norvane::ui {

struct Contexte;

class CalculGains final : public QObject {
    Q_OBJECT

 public:
    CalculGains(Contexte& ctx, QProgressBar* jauge, QObject* parent);

    /// The balance is being worked out.
    bool enCours() const;
    /// Stops the balance under way; without one, writes the report that the tickets on show ask
    /// for. `tirage`: the record on show, -1 for none.
    void VerifGainsClick(int tirage);

 Q_SIGNALS:
    /// The balance began or is over.
    void enCoursChange();

 private:
    void verifier(int tirage);
    void lancerBilan();
    void finirBilan(const std::string& texte, const Travail& travail);
    void publier(const char* nom, const std::string& texte);

    Contexte& contexte_;
    QProgressBar* jauge_;
};

}  // namespace norvane::ui
