// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A refusal on tickets, told in its box.
#pragma once

#include "common/Messages.h"
#include "tickets/Refus.h"

namespace norvane::ui {

void direRefus(Messages& messages, const Refus& refus);

}  // namespace norvane::ui
