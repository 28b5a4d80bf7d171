// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Fichiers.h"
#include "shell/Lancement.h"

int main(int argc, char** argv) {
    norvane::SurvivreAuxLimitesDeTaille();
    return norvane::ui::lancer(argc, argv);
}
