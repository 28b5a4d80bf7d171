// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/DocumentStyles.h"

#include <array>

namespace norvane {

namespace {

constexpr Rvb Noir = 0x000000, Blanc = 0xFFFFFF, Rouge = 0xFF0000, Marine = 0x000080,
              Jaune = 0xFFFF00, Marron = 0x800000, Vert = 0x008000, VertVif = 0x00FF00,
              Bleu = 0x0000FF, Cyan = 0x00FFFF, Fuchsia = 0xFF00FF;

/// One style, and its colour in either set.
struct Rangee {
    Fonte fonte;
    int corps;
    bool gras, italique, souligne;
    Rvb sombre, clair;
    bool systeme;  // of the light set
};

constexpr std::array<Rangee, NbStyles> Rangees = {{
    {Fonte::Courier, 12, false, false, false, Blanc, Noir, false},
    {Fonte::Affiche, 20, true, false, false, Rouge, Rouge, false},
    {Fonte::Arial, 12, true, true, false, Jaune, Marine, false},
    {Fonte::Arial, 10, false, true, false, Rouge, Marron, false},
    {Fonte::Times, 12, false, true, true, VertVif, Vert, false},
    {Fonte::Terminal, 12, false, false, true, Cyan, Bleu, false},
    {Fonte::Courier, 12, false, false, false, Fuchsia, Fuchsia, false},
    {Fonte::Courier, 12, true, false, false, Blanc, Noir, true},
    {Fonte::Courier, 12, false, false, true, Blanc, Noir, true},
    {Fonte::Terminal, 12, false, false, false, Blanc, Noir, true},
    {Fonte::Arial, 10, false, false, false, Blanc, Noir, true},
    {Fonte::Courier, 10, false, false, false, Blanc, Noir, true},
}};

using Formats = std::array<FormatStyle, NbStyles>;

constexpr Formats Faire(JeuStyles jeu) {
    Formats formats{};
    const bool clair = jeu == JeuStyles::RVStyle2;
    for (std::size_t i = 0; i < formats.size(); ++i) {
        const Rangee& r = Rangees[i];
        formats[i] = {r.fonte,           r.corps,    r.gras,
                      r.italique,        r.souligne, clair ? r.clair : r.sombre,
                      clair && r.systeme};
    }
    if (!clair) {  // the one style that differs in more than its colour
        FormatStyle& reserve = formats[static_cast<std::size_t>(Style::Reserve)];
        reserve.fonte = Fonte::Times;
        reserve.corps = 12;
    }
    return formats;
}

constexpr Formats Sombres = Faire(JeuStyles::RVStyle1);
constexpr Formats Clairs = Faire(JeuStyles::RVStyle2);

constexpr std::array<const char*, 3> Courier{"Courier New", "Liberation Mono", "DejaVu Sans Mono"};
constexpr std::array<const char*, 3> Affiche{"Bookman Old Style", "URW Bookman", "DejaVu Serif"};
constexpr std::array<const char*, 3> Arial{"Arial", "Liberation Sans", "Noto Sans"};
constexpr std::array<const char*, 3> Times{"Times New Roman", "Liberation Serif", "DejaVu Serif"};
// Fonts whose box drawings fill the whole cell, so that the lines of a table touch.
constexpr std::array<const char*, 3> Terminal{"DejaVu Sans Mono", "Liberation Mono", "Consolas"};

}  // namespace

const FormatStyle& FormatDe(JeuStyles jeu, Style style) {
    return (jeu == JeuStyles::RVStyle1 ? Sombres : Clairs)[static_cast<std::size_t>(style)];
}

Rvb FondDe(JeuStyles jeu) {
    return jeu == JeuStyles::RVStyle1 ? Noir : Blanc;
}

std::span<const char* const> FamillesDe(Fonte fonte) {
    switch (fonte) {
        case Fonte::Courier:
            return Courier;
        case Fonte::Affiche:
            return Affiche;
        case Fonte::Arial:
            return Arial;
        case Fonte::Times:
            return Times;
        case Fonte::Terminal:
            break;
    }
    return Terminal;
}

const char* FamilleGenerique(Fonte fonte) {
    switch (fonte) {
        case Fonte::Arial:
            return "sans-serif";
        case Fonte::Affiche:
        case Fonte::Times:
            return "serif";
        case Fonte::Courier:
        case Fonte::Terminal:
            break;
    }
    return "monospace";
}

std::string_view ImageSvg(Image image) {
    if (image == Image::Puce) {
        return R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32">
<circle cx="16" cy="16" r="13" fill="#2b57d9"/>
<circle cx="12" cy="12" r="4.5" fill="#9db6ff"/>
</svg>
)";
    }
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width="32" height="32" viewBox="0 0 32 32">
<circle cx="16" cy="16" r="14" fill="#1f8a4c"/>
<path d="M16 25V9M9 16l7-7 7 7" fill="none" stroke="#ffffff" stroke-width="3.5"
  stroke-linecap="round" stroke-linejoin="round"/>
</svg>
)";
}

std::string_view ImageEnTexte(Image image) {
    return image == Image::Puce ? "•" : "↑";
}

}  // namespace norvane
