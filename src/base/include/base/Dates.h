// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Dates as the integer yyyymmdd and their French texts, from our own tables: the machine's
// locale plays no part.
#pragma once

#include <chrono>
#include <string>

namespace norvane {

/// yyyymmdd of a calendar date.
int DateEnEntier(std::chrono::year_month_day date);

/// The calendar date of yyyymmdd; it need not be valid (see DateValide).
std::chrono::year_month_day EntierEnDate(int date);

/// True when yyyymmdd is a day of the calendar.
bool DateValide(int date);

/// Day of the week, 0 for lundi to 6 for dimanche.
int JourSemaine(int date);

/// "lundi 3 octobre 2022".
std::string DateLongue(int date);

/// "03/10/2022".
std::string DateCourte(int date);

}  // namespace norvane
