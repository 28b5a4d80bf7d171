// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ModeleTableau.h"

#include <algorithm>
#include <numeric>
#include <QLinearGradient>

namespace norvane::ui {

using namespace Qt::StringLiterals;

LigneTableau ligneTableau(std::span<const Cellule> cellules) {
    LigneTableau ligne;
    ligne.reserve(cellules.size());
    for (const Cellule& cellule : cellules) ligne.push_back({cellule, {}, -1, {}});
    return ligne;
}

ModeleTableau::ModeleTableau(std::vector<ColonneTableau> colonnes, QObject* parent)
    : QAbstractTableModel(parent), colonnes_(std::move(colonnes)), polices_(colonnes_.size()) {}

void ModeleTableau::poserDegrades(std::vector<DegradeCellule> degrades) {
    degrades_ = std::move(degrades);
    fonds_.clear();
    encres_.clear();
    for (const DegradeCellule& d : degrades_) {
        QLinearGradient pente(0, 0, 0, 1);
        pente.setCoordinateMode(QGradient::ObjectMode);
        pente.setColorAt(0, d.haut);
        pente.setColorAt(1, d.bas);
        fonds_.emplace_back(pente);
        encres_.emplace_back(d.texte);
    }
}

void ModeleTableau::poserPolices(std::vector<QFont> polices) {
    polices_ = std::move(polices);
}

void ModeleTableau::remplir(std::vector<LigneTableau> lignes) {
    beginResetModel();
    lignes_ = std::move(lignes);
    ordre_.resize(lignes_.size());
    std::iota(ordre_.begin(), ordre_.end(), 0);
    cles_ = depart_;
    endResetModel();
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void ModeleTableau::cliquer(int c, bool secondaire) {
    if (c < 0 || c >= columnCount() || colonne(c).position) return;
    std::vector<CleTri> cles = cles_;
    const auto place =
        std::find_if(cles.begin(), cles.end(), [c](const CleTri& cle) { return cle.colonne == c; });
    const bool primaire = !cles.empty() && place == cles.begin();
    if (secondaire && place != cles.end()) {
        place->croissant = !place->croissant;
    } else if (secondaire && !cles.empty()) {
        cles.resize(1);
        cles.push_back({c, true});
    } else {
        cles = {{c, primaire ? !cles.front().croissant : true}};
    }
    trier(std::move(cles));
}

void ModeleTableau::trier(std::vector<CleTri> cles) {
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const std::vector<int> avant = ordre_;
    cles_ = std::move(cles);
    std::iota(ordre_.begin(), ordre_.end(), 0);
    std::stable_sort(ordre_.begin(), ordre_.end(), [this](int a, int b) {
        for (const CleTri& cle : cles_) {
            const auto c = static_cast<std::size_t>(cle.colonne);
            const std::int64_t x = lignes_[static_cast<std::size_t>(a)][c].cle;
            const std::int64_t y = lignes_[static_cast<std::size_t>(b)][c].cle;
            if (x != y) return cle.croissant ? x < y : x > y;
        }
        return false;
    });
    std::vector<int> place(ordre_.size());
    for (std::size_t i = 0; i < ordre_.size(); ++i) {
        place[static_cast<std::size_t>(ordre_[i])] = static_cast<int>(i);
    }
    const QModelIndexList anciens = persistentIndexList();
    QModelIndexList nouveaux;
    nouveaux.reserve(anciens.size());
    for (const QModelIndex& i : anciens) {
        const int o = avant[static_cast<std::size_t>(i.row())];
        nouveaux.append(index(place[static_cast<std::size_t>(o)], i.column()));
    }
    changePersistentIndexList(anciens, nouveaux);
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

QString ModeleTableau::marque(int c) const {
    for (std::size_t i = 0; i < cles_.size(); ++i) {
        if (cles_[i].colonne != c) continue;
        return QString::number(i + 1) + (cles_[i].croissant ? u"▲"_s : u"▼"_s);
    }
    return {};
}

const CelluleTableau& ModeleTableau::cellule(const QModelIndex& index) const {
    const int ligne = ordre_[static_cast<std::size_t>(index.row())];
    return lignes_[static_cast<std::size_t>(ligne)][static_cast<std::size_t>(index.column())];
}

std::string ModeleTableau::texte(const QModelIndex& index) const {
    return colonne(index.column()).position ? std::to_string(index.row() + 1)
                                            : cellule(index).texte;
}

int ModeleTableau::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(lignes_.size());
}

int ModeleTableau::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(colonnes_.size());
}

QVariant ModeleTableau::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const CelluleTableau& c = cellule(index);
    const auto teinte = static_cast<std::size_t>(c.degrade);
    switch (role) {
        case Qt::DisplayRole:
            return c.barre ? QString::number(*c.barre) : QString::fromStdString(texte(index));
        case Qt::ToolTipRole:
        case Qt::StatusTipRole:
            return c.indice.isEmpty() ? QVariant() : c.indice;
        case Qt::AccessibleTextRole:
            return QString::fromStdString(texte(index)) + (c.image.isNull() ? u""_s : u"chance"_s);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(colonne(index.column()).alignement | Qt::AlignVCenter);
        case Qt::FontRole:
            return polices_[static_cast<std::size_t>(index.column())];
        case Qt::BackgroundRole:
            return c.degrade < 0 ? QVariant() : fonds_[teinte];
        case Qt::ForegroundRole:
            return c.degrade < 0 ? QVariant() : encres_[teinte];
        default:
            return {};
    }
}

QVariant ModeleTableau::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const ColonneTableau& c = colonne(section);
    switch (role) {
        case Qt::DisplayRole:
            return c.entete;
        case Qt::DecorationRole:
            return c.image.isNull() ? QVariant() : c.image;
        case Qt::ToolTipRole:
        case Qt::StatusTipRole:
            return c.indice;
        case Qt::AccessibleTextRole:
            return marque(section).isEmpty() ? c.entete : c.entete + u", tri "_s + marque(section);
        default:
            return {};
    }
}

}  // namespace norvane::ui
