// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Connexion.h"

#include <QNetworkInformation>

namespace norvane::ui {

void Connexion::demarrer() {
    if (suivie_ ||
        !QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability))
        return;
    suivie_ = true;
    const auto dire = [this](QNetworkInformation::Reachability etat) {
        Q_EMIT change(etat == QNetworkInformation::Reachability::Online);
    };
    connect(QNetworkInformation::instance(), &QNetworkInformation::reachabilityChanged, this, dire);
    dire(QNetworkInformation::instance()->reachability());
}

}  // namespace norvane::ui
