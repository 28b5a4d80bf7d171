// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Aide.h"

#include <filesystem>

namespace norvane::ui {

using namespace Qt::StringLiterals;

Aide::Aide(Contexte& ctx, QObject* parent) : QObject(parent), contexte_(ctx) {
    Timer4.setObjectName(u"Timer4"_s);
    Timer4.setParent(this);
    Timer4.setInterval(1000);
    connect(&Timer4, &QTimer::timeout, this, &Aide::battre);
}

void Aide::ouvrir() {
    if (Timer4.isActive()) return;
    battements_ = 0;
    Timer4.start();
    const auto fichier = contexte_.atelier.fichier(Fichier);
    std::error_code absent;
    if (!std::filesystem::is_regular_file(fichier, absent) ||
        !contexte_.services.lanceur->ouvrirDocument(versQt(fichier.string()))) {
        contexte_.services.messages->MessageInfo(
            u"Impossible de lancer l'aide depuis l'application!"_s, u"Message"_s);
    }
}

void Aide::battre() {
    if (++battements_ < 10) return;
    Timer4.stop();
    Q_EMIT gardeLevee();
}

}  // namespace norvane::ui
