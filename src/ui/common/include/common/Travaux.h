// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The one place where long work is started: it counts it, polls it, paints gauge and
// status text, and delivers its end to whoever asked.
#pragma once

#include <functional>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include "base/Travail.h"

class QProgressBar;

namespace norvane::ui {

/// Where a work shows itself.
struct VueTravail {
    QString texte;                  ///< for the status bar
    QProgressBar* jauge = nullptr;  ///< runs from 0 to the work's total, empty at the end
};

class Travaux final : public QObject {
    Q_OBJECT

 public:
    explicit Travaux(Activite& activite, QObject* parent = nullptr);
    /// Stops the work in hand; its end is delivered to nobody.
    ~Travaux() override;

    /// Starts `travail`. `fin` is called on the main thread when it is through, however it ended,
    /// and no longer counts; never when `pour` is gone by then. At most one work runs at a time:
    /// the busy rule is the caller's to ask first (Contexte::refuserSiOccupe); std::logic_error,
    /// and nothing changed, where one runs all the same. False, with a sentence in erreur(), when
    /// the machine could not start it: it stays the caller's then.
    bool lancer(PtrTravail&& travail, const VueTravail& vue, QObject* pour,
                std::function<void(Travail&)> fin);

    /// Asks the work in hand to stop; does nothing without one.
    void arreter();
    /// The work in hand, null when none runs.
    const Travail* enCours() const { return travail_.get(); }
    /// Why the last start failed.
    const QString& erreur() const { return erreur_; }

 Q_SIGNALS:
    /// Text for the status bar: of the work in hand, empty at its end.
    void texteEtat(const QString& texte);
    /// The work is through, its end was delivered and the program is at rest again.
    void repos();

 private:
    void suivre();
    void finir();

    Activite& activite_;
    Occupation occupation_;
    PtrTravail travail_;
    VueTravail vue_;
    QPointer<QProgressBar> jauge_;
    QPointer<QObject> pour_;
    std::function<void(Travail&)> fin_;
    QTimer rythme_;  ///< steps of the gauge
    QString erreur_;
};

}  // namespace norvane::ui
