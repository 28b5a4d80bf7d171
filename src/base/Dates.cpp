// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Dates.h"

#include <array>
#include <string_view>

#include "base/Textes.h"

namespace norvane {

namespace {

constexpr std::array<std::string_view, 7> Jours = {"lundi",    "mardi",  "mercredi", "jeudi",
                                                   "vendredi", "samedi", "dimanche"};
constexpr std::array<std::string_view, 12> Mois = {"janvier",   "février", "mars",     "avril",
                                                   "mai",       "juin",    "juillet",  "août",
                                                   "septembre", "octobre", "novembre", "décembre"};

}  // namespace

int DateEnEntier(std::chrono::year_month_day date) {
    return static_cast<int>(date.year()) * 10000 +
           static_cast<int>(static_cast<unsigned>(date.month())) * 100 +
           static_cast<int>(static_cast<unsigned>(date.day()));
}

std::chrono::year_month_day EntierEnDate(int date) {
    const int reste = date % 10000;
    return {std::chrono::year(date / 10000), std::chrono::month(static_cast<unsigned>(reste / 100)),
            std::chrono::day(static_cast<unsigned>(reste % 100))};
}

bool DateValide(int date) {
    return date >= 1'01'01 && date <= 9999'12'31 && EntierEnDate(date).ok();
}

int JourSemaine(int date) {
    const std::chrono::weekday jour{std::chrono::sys_days(EntierEnDate(date))};
    return static_cast<int>(jour.iso_encoding()) - 1;
}

std::string DateLongue(int date) {
    if (!DateValide(date)) return DateCourte(date);
    std::string texte(Jours[static_cast<std::size_t>(JourSemaine(date))]);
    texte += ' ' + std::to_string(date % 100) + ' ';
    texte += Mois[static_cast<std::size_t>(date / 100 % 100 - 1)];
    return texte + ' ' + std::to_string(date / 10000);
}

std::string DateCourte(int date) {
    return FormaterMasque(date % 100, 2) + '/' + FormaterMasque(date / 100 % 100, 2) + '/' +
           FormaterMasque(date / 10000, 4);
}

}  // namespace norvane
