// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop program from its first moment to its last.
#pragma once

#include <functional>

namespace norvane::ui {

/// Name under which one instance runs.
inline constexpr const char* NomInstance = "norvane-atelier-du-loto";

/// Runs the program and gives its exit code back: 0, also when another instance runs, in which
/// case nothing shows at all. `premierePeinture` is called once when the main window has been
/// painted.
int lancer(int argc, char** argv, const std::function<void()>& premierePeinture = {});

}  // namespace norvane::ui
