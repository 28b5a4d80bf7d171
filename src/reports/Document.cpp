// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/Document.h"

#include <algorithm>
#include <utility>

namespace norvane {

std::string Bloc::texte() const {
    std::string tout;
    for (const Fragment& fragment : fragments) tout += fragment.texte;
    return tout;
}

int Document::numeroAncre(std::string_view nom) const {
    const auto trouvee = std::ranges::find(ancres, nom, &Ancre::nom);
    return trouvee == ancres.end() ? SansAncre : static_cast<int>(trouvee - ancres.begin());
}

int Document::blocDuLien(int lien) const {
    if (lien < 0 || lien >= static_cast<int>(liens.size())) return -1;
    const std::string& cible = liens[static_cast<std::size_t>(lien)].cible;
    if (cible.empty()) return 0;
    const int ancre = numeroAncre(cible);
    return ancre == SansAncre ? -1 : ancres[static_cast<std::size_t>(ancre)].bloc;
}

Bloc& Redacteur::nouveau(bool centre) {
    Bloc& bloc = document_.blocs.emplace_back();
    bloc.centre = centre;
    if (!ancre_.empty()) {
        bloc.ancre = static_cast<int>(document_.ancres.size());
        document_.ancres.push_back(
            {std::exchange(ancre_, {}), static_cast<int>(document_.blocs.size()) - 1});
    }
    return bloc;
}

void Redacteur::ligne(Style style, std::string_view texte) {
    nouveau(false);
    suite(style, texte);
}

void Redacteur::centree(Style style, std::string_view texte) {
    nouveau(true);
    suite(style, texte);
}

void Redacteur::filet() {
    document_.blocs.emplace_back().filet = true;
}

void Redacteur::lignePuce() {
    nouveau(false).fragments.push_back({Style::Corps, {}, SansLien, Image::Puce});
}

void Redacteur::suite(Style style, std::string_view texte) {
    if (texte.empty()) return;
    auto& fragments = document_.blocs.back().fragments;
    if (!fragments.empty() && fragments.back().style == style &&
        fragments.back().lien == SansLien) {
        fragments.back().texte += texte;
    } else {
        fragments.push_back({style, std::string(texte), SansLien, Image::Aucune});
    }
}

void Redacteur::lien(Style style, std::string_view texte, std::string cible, std::string survol,
                     Image image) {
    document_.blocs.back().fragments.push_back(
        {style, std::string(texte), static_cast<int>(document_.liens.size()), image});
    document_.liens.push_back({std::move(cible), std::move(survol)});
}

}  // namespace norvane
