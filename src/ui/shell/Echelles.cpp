// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Echelles.h"

#include <QStringList>

namespace norvane::ui {

using namespace Qt::StringLiterals;

Echelles Echelles::de(QSize ecran) {
    return {ecran.height() / 600.0, ecran.width() / 800.0};
}

bool Echelles::maximisee() const {
    return static_cast<int>((EchelleLargeur - Echelle) * 100) == 0;
}

Ouverture ouvertureFenetre(const QString& gardee, QRect disponible) {
    const QStringList parts = gardee.split(u',');
    const bool maximisee = parts.size() == 5 && parts.at(4).trimmed() == "max"_L1;
    if (parts.size() == 4 || maximisee) {
        int v[4] = {};
        bool tout = true;
        for (int i = 0; i < 4; ++i) {
            bool lu = false;
            v[i] = parts.at(i).trimmed().toInt(&lu);
            tout = tout && lu && v[i] > -20000 && v[i] < 20000;
        }
        const QRect place(v[0], v[1], v[2], v[3]);
        // The title and a good part of the window must be within reach.
        const QRect visible = place.intersected(disponible);
        if (tout && v[2] >= 640 && v[3] >= 400 && visible.width() >= 320 &&
            visible.height() >= 240 && v[1] >= disponible.top()) {
            return {place, maximisee};
        }
    }
    QRect place(QPoint(), disponible.size() * 0.94);
    place.moveCenter(disponible.center());
    return {place, disponible.width() < 1500 || disponible.height() < 850};
}

QString texteGeometrie(const Ouverture& ouverture) {
    const QRect& p = ouverture.place;
    return u"%1,%2,%3,%4%5"_s.arg(p.x())
        .arg(p.y())
        .arg(p.width())
        .arg(p.height())
        .arg(ouverture.maximisee ? u",max"_s : QString());
}

}  // namespace norvane::ui
