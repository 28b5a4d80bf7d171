// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Dates as the integer yyyymmdd and their French texts, from our own tables: the machine's
// locale plays no part.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

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

/// What the tables show for an item that never came out, trailing blank included.
inline constexpr std::string_view PasEncoreSorti = "Pas encore sorti ";

/// Order of two long dates as text, -1, 0 or 1: both are trimmed and rebuilt as yyyymmdd;
/// "Pas encore sorti" stands before every date.
int ComparerDatesFrancaises(std::string_view a, std::string_view b);

}  // namespace norvane
