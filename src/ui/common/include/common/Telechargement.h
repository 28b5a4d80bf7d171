// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// One file fetched from the Internet, whole in memory, by a job.
#pragma once

#include <functional>
#include <QByteArray>
#include <QString>
#include <QUrl>

#include "base/Travail.h"

namespace norvane::ui {

struct DemandeTelechargement {
    QUrl adresse;
    int delaiSecondes;  ///< without a byte
    qint64 octetsMax;   ///< more is given up
};

struct ReponseTelechargement {
    enum class Issue { Recu, AdresseInvalide, ConnexionEchouee, Echec, Arrete };
    Issue issue = Issue::Echec;
    QByteArray octets;  ///< when Recu
    QString raison;     ///< one French clause when Echec
};

/// Called on a worker. Certificates are checked, and an address of https leads nowhere else.
/// Progress: received bytes of the total, where the server tells it. `dire` is given each text for
/// the status bar, on the worker. A stop is seen within 100 ms.
ReponseTelechargement telecharger(const DemandeTelechargement& demande, const Suivi& suivi,
                                  const std::function<void(const QString&)>& dire);

}  // namespace norvane::ui
