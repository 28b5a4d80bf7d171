// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "avenir/PageAVenir.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>
#include <random>

#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PageAVenir::PageAVenir(Contexte& ctx, const QString& nom, const QString& onglet,
                       const QString& promesse, QWidget* parent)
    : Page(ctx, nom, onglet, parent) {
    auto* carte = new QFrame(this);
    carte->setObjectName(u"Carte"_s);
    auto* colonne = new QVBoxLayout(carte);
    colonne->setContentsMargins(6 * Unite, 5 * Unite, 6 * Unite, 5 * Unite);
    colonne->setSpacing(2 * Unite);

    auto* entete = new QLabel(titre, carte);
    QFont grande = font();
    grande.setPixelSize(fontInfo().pixelSize() * 8 / 5);
    grande.setBold(true);
    entete->setFont(grande);
    auto* ligne = new QLabel(promesse, carte);
    ligne->setObjectName(u"Promesse"_s);
    ligne->setWordWrap(true);
    ligne->setFixedWidth(contexte.px(420));
    ligne->setMinimumHeight(ligne->heightForWidth(contexte.px(420)));
    detail_ = new QLabel(carte);
    detail_->setObjectName(u"Detail"_s);
    detail_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    detail_->hide();
    for (QLabel* etiquette : {entete, ligne, detail_}) colonne->addWidget(etiquette);

    auto* page = new QVBoxLayout(this);
    page->addStretch(2);
    page->addWidget(carte, 0, Qt::AlignHCenter);
    page->addStretch(3);
}

void PageAVenir::montrerDetail(const QString& detail) {
    detail_->setText(detail);
    detail_->setMinimumHeight(detail_->sizeHint().height());
    detail_->setVisible(!detail.isEmpty());
}

PageHistoriquesAVenir::PageHistoriquesAVenir(Contexte& ctx, QWidget* parent)
    : PageAVenir(ctx, u"Varo6"_s, u"Historiques"_s,
                 u"Double cliquez sur le libellé des numéros, chances ou rangs, dans les tableaux "
                 u"des onglets Numéros, Chances et Combinaisons pour afficher l'Historique "
                 u"associé..."_s,
                 parent) {}

/// A start with something to look at: the history of a number that came out, taken at random.
void PageHistoriquesAVenir::premierAffichage() {
    const Occurrences& occ = contexte.atelier.occurrences;
    std::vector<int> sortis;
    for (int k = 0; k < NumeroMax; ++k) {
        if (occ.SortiesNumeros[static_cast<std::size_t>(k)] > 0) sortis.push_back(k + 1);
    }
    if (sortis.empty()) return;
    std::mt19937 tirage(contexte.services.hasard->graine());
    const int numero =
        sortis[std::uniform_int_distribution<std::size_t>(0, sortis.size() - 1)(tirage)];
    montrerDetail(
        u"Exemple sur tout l'intervalle des tirages pour le numéro "
        u"aléatoire suivant: %1"_s.arg(numero));
}

bool PageHistoriquesAVenir::ouvrir(const Destination& destination) {
    const auto* histoire = std::get_if<VersHistorique>(&destination);
    const auto* element = histoire ? std::get_if<Element>(&histoire->sujet) : nullptr;
    if (element == nullptr) return false;
    montrerDetail(u"Historique demandé : %1 %2, tirages %3 à %4."_s
                      .arg(element->genre == GenreStats::Numeros ? u"numéro"_s : u"chance"_s)
                      .arg(element->valeur)
                      .arg(histoire->inf)
                      .arg(histoire->sup));
    return true;
}

}  // namespace norvane::ui
