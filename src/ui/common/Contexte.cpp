// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Contexte.h"

#include <QCoreApplication>
#include <QStatusTipEvent>

namespace norvane::ui {

using namespace Qt::StringLiterals;

bool Contexte::refuserSiOccupe() {
    if (!atelier.activite.occupe()) return false;
    services.messages->MessageInfo(u"Attendez la fin du traitement en cours..."_s, u"Message"_s);
    return true;
}

void poserIndice(QWidget* cible, const QString& indice) {
    const auto barre = indice.indexOf(u'|');
    cible->setToolTip(barre < 0 ? indice : indice.left(barre));
    cible->setStatusTip(barre < 0 ? indice : indice.mid(barre + 1));
    // The status bar hears of a hint when the pointer comes in only.
    if (cible->isVisible() && cible->underMouse()) {
        QStatusTipEvent lu(cible->statusTip());
        QCoreApplication::sendEvent(cible, &lu);
    }
}

}  // namespace norvane::ui
