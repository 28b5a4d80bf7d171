// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Aide.h"

#include <filesystem>

namespace norvane::ui {

using namespace Qt::StringLiterals;

Aide::Aide(Contexte& ctx, QObject* parent) : QObject(parent), contexte_(ctx) {
    garde_.setObjectName(u"Timer4"_s);
    garde_.setParent(this);
    garde_.setInterval(1000);
    connect(&garde_, &QTimer::timeout, this, &Aide::battre);
}

void Aide::ouvrir() {
    if (garde_.isActive()) return;
    battements_ = 0;
    garde_.start();
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
    garde_.stop();
    Q_EMIT gardeLevee();
}

}  // namespace norvane::ui
