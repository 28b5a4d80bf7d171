// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The update of the base: from the Internet, or from an archive of the user's.
#pragma once

#include <QObject>
#include <QString>

class QProgressBar;

#include "atelier/MiseAJour.h"
#include "common/Telechargement.h"

namespace norvane::ui {

struct Contexte;

class MiseAJourTirages final : public QObject {
    Q_OBJECT

 public:
    /// `fenetre`: a widget of the window that is closed when the program is to start again.
    MiseAJourTirages(Contexte& ctx, QWidget* fenetre);

    /// Shown while an update runs.
    void poserJauge(QProgressBar* jauge) { jauge_ = jauge; }

    /// Fetches and merges the archive of the settings; stops that when it is under way.
    void MajwebClick();
    /// Asks for an archive, and merges it.
    void choisirFichier();
    /// Merges a file, *.zip or *.csv.
    void importer(const QString& fichier);
    /// A file that a drop may bring here.
    static bool accepte(const QString& fichier);

    bool enCours() const;

 Q_SIGNALS:
    void enCoursChange();
    /// What the page of the jackpot announces.
    void jackpotLu(const QString& texte);

 private:
    struct Travaille;
    bool refuser();
    void lancer(PtrTravail travail, const QString& texte,
                const std::shared_ptr<Travaille>& travaille);
    void terminer(Travaille& travaille, const Travail& travail);
    bool direTransport(const Travaille& travaille);
    void rapporter(BaseMiseAJour&& venue);
    void direErreur(const QString& instruction, const QString& detail = {});

    Contexte& contexte_;
    QWidget* fenetre_;
    QProgressBar* jauge_ = nullptr;
};

}  // namespace norvane::ui
