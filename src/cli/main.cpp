// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "base/Fichiers.h"
#include "cli/Executer.h"

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + (argc > 0 ? 1 : 0), argv + argc);
    norvane::SurvivreAuxLimitesDeTaille();
    std::error_code erreur;
    return norvane::Executer(args, std::cout, std::cerr, std::filesystem::current_path(erreur));
}
