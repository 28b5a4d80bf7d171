// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Lancement.h"

int main(int argc, char** argv) {
    return norvane::ui::lancer(argc, argv);
}
