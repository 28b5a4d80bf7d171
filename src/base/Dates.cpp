// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Dates.h"

#include <algorithm>
#include <array>

#include "base/Textes.h"

namespace norvane {

namespace {

constexpr std::array<std::string_view, 7> Jours = {"lundi",    "mardi",  "mercredi", "jeudi",
                                                   "vendredi", "samedi", "dimanche"};
constexpr std::array<std::string_view, 12> Mois = {"janvier",   "février", "mars",     "avril",
                                                   "mai",       "juin",    "juillet",  "août",
                                                   "septembre", "octobre", "novembre", "décembre"};

/// Takes the first word off `texte`, with the blanks behind it.
std::string_view prendreMot(std::string_view& texte) {
    const std::string_view mot = texte.substr(0, texte.find(' '));
    texte = Rogner(texte.substr(mot.size()));
    return mot;
}

/// What a long date sorts by: yyyymmdd. A text that is no date sorts by itself.
std::string cleDeTri(std::string_view texte) {
    const std::string_view entier = texte = Rogner(texte);
    if (texte == Rogner(PasEncoreSorti)) return "00001225";
    std::string_view jour = prendreMot(texte);
    if (std::ranges::find(Jours, jour) != Jours.end()) jour = prendreMot(texte);
    const auto mois = std::ranges::find(Mois, prendreMot(texte));
    if (mois == Mois.end() || jour.empty() || jour.size() > 2 || texte.size() != 4) {
        return std::string(entier);
    }
    std::string cle(texte);
    cle += FormaterMasque(mois - Mois.begin() + 1, 2);
    if (jour.size() == 1) cle += '0';
    return cle.append(jour);
}

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

int ComparerDatesFrancaises(std::string_view a, std::string_view b) {
    const int ordre = cleDeTri(a).compare(cleDeTri(b));
    return (ordre > 0) - (ordre < 0);
}

}  // namespace norvane
