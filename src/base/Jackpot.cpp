// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Jackpot.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Textes.h"

namespace norvane {

namespace {

constexpr std::array<std::string_view, 3> Classes = {"txtrouge13g", "txtrouge11", "txtrouge11g"};
constexpr std::array<std::pair<std::string_view, std::string_view>, 4> Entites = {
    {{"&eacute;", "é"}, {"&ucirc;", "û"}, {"&nbsp;", " "}, {"&euro;", "€"}}};
constexpr std::size_t LongueurMax = 200;  // of what is shown

/// The class that a tag "<span class=..." names.
std::string_view Classe(std::string_view balise) {
    balise.remove_prefix(std::min(balise.find_first_not_of("\"'"), balise.size()));
    return balise.substr(0, balise.find_first_of("\"' >"));
}

/// Adds the text, tags and line ends being blanks, several blanks being one.
void Ajouter(std::string& texte, std::string_view html) {
    const auto blanc = [&] {
        if (!texte.empty() && texte.back() != ' ') texte += ' ';
    };
    while (!html.empty()) {
        const auto entite =
            std::ranges::find_if(Entites, [&](const auto& e) { return html.starts_with(e.first); });
        std::size_t pris = 1;
        if (html.front() == '<') {
            pris = std::min(html.find('>'), html.size() - 1) + 1;
            blanc();
        } else if (entite != Entites.end()) {
            pris = entite->first.size();
            if (entite->second == " ")
                blanc();
            else
                texte += entite->second;
        } else if (static_cast<unsigned char>(html.front()) <= ' ') {
            blanc();
        } else {
            texte += html.front();
        }
        html.remove_prefix(pris);
    }
    blanc();
}

}  // namespace

std::string LireJackpot(std::string_view html) {
    constexpr std::string_view Debut = "<span class=";
    std::string texte;
    for (auto lieu = html.find(Debut); lieu != html.npos; lieu = html.find(Debut)) {
        html.remove_prefix(lieu + Debut.size());
        if (std::ranges::find(Classes, Classe(html)) == Classes.end()) continue;
        html.remove_prefix(std::min(html.find('>'), html.size() - 1) + 1);
        Ajouter(texte, html.substr(0, html.find("</span")));
    }
    const std::string_view net = Rogner(texte);
    return std::string(net.size() > LongueurMax ? std::string_view() : net);
}

}  // namespace norvane
