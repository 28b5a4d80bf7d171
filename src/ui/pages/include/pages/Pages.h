// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The ten pages, in the order of their tabs.
#pragma once

#include <vector>

#include "pages/Page.h"

namespace norvane::ui {

/// Makes them, children of `parent`.
std::vector<Page*> creerPages(Contexte& contexte, QWidget* parent);

}  // namespace norvane::ui
