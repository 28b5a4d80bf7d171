// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/Pages.h"

#include <array>

#include "analyses/PageAnalyses.h"
#include "combinaisons/PageCombinaisons.h"
#include "graphes/PageGraphes.h"
#include "historiques/PageHistoriques.h"
#include "impression/PageImpression.h"
#include "nc/PageNC.h"
#include "resultats/PageResultats.h"
#include "statistiques/PageStats.h"
#include "systemes/PageSystemes.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

using Fabrique = Page* (*)(Contexte&, QWidget*);

constexpr std::array<Fabrique, 10> Fabriques = {
    [](Contexte& c, QWidget* p) -> Page* { return new PageResultats(c, p); },
    [](Contexte& c, QWidget* p) -> Page* { return new PageStats(c, GenreStats::Numeros, p); },
    [](Contexte& c, QWidget* p) -> Page* { return new PageStats(c, GenreStats::Chances, p); },
    [](Contexte& c, QWidget* p) -> Page* { return new PageCombinaisons(c, p); },
    [](Contexte& c, QWidget* p) -> Page* { return new PageNC(c, p); },
    [](Contexte& c, QWidget* p) -> Page* { return new PageAnalyses(c, p); },
    [](Contexte& c, QWidget* p) -> Page* { return new PageGraphes(c, p); },
    [](Contexte& c, QWidget* p) -> Page* { return new PageHistoriques(c, p); },
    [](Contexte& c, QWidget* p) -> Page* { return new PageImpression(c, p); },
    [](Contexte& c, QWidget* p) -> Page* { return new PageSystemes(c, p); },
};

}  // namespace

std::vector<Page*> creerPages(Contexte& contexte, QWidget* parent) {
    std::vector<Page*> pages;
    pages.reserve(Fabriques.size());
    for (const Fabrique creer : Fabriques) pages.push_back(creer(contexte, parent));
    return pages;
}

}  // namespace norvane::ui
