// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The toolkit's own texts (dialogs, calendars, print options) in French.
#pragma once

class QCoreApplication;

namespace norvane::ui {

/// Sets the locale, and the texts: the toolkit's own catalogue where it has one, ours where that
/// leaves the dialogs of printing in English or says something else.
void franciser(QCoreApplication& app);

}  // namespace norvane::ui
