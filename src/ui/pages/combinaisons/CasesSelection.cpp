// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/CasesSelection.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "atelier/Selections.h"
#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int Colonnes = 10;
constexpr int Rangees = 5;

struct Aspect {
    Qt::CheckState coche;
    const char16_t* nom;
    QRgb fond, texte;
};
/// By Priorite.
constexpr std::array<Aspect, 3> Aspects = {{
    {Qt::Unchecked, u"sans priorité", 0, 0},
    {Qt::Checked, u"priorité absolue", qRgb(0x1F, 0x8A, 0x4C), qRgb(0xFF, 0xFF, 0xFF)},
    {Qt::PartiallyChecked, u"priorité secondaire", qRgb(0xF2, 0xB5, 0x44), qRgb(0x3A, 0x26, 0x00)},
}};

const Aspect& aspectDe(Priorite priorite) {
    return Aspects.at(static_cast<std::size_t>(priorite));
}

}  // namespace

// ------------------------------------------------------------------------------------------ model

void ModeleSelection::montrer(const GrilleSelection& grille) {
    if (grille == grille_) return;
    grille_ = grille;
    Q_EMIT dataChanged(index(0), index(NumeroMax - 1));
}

int ModeleSelection::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : NumeroMax;
}

QVariant ModeleSelection::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Aspect& aspect = aspectDe(priorite(index.row()));
    switch (role) {
        case Qt::DisplayRole:
            return QString::number(index.row() + 1);
        case Qt::CheckStateRole:
            return int{aspect.coche};
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return u"Numéro %1, %2"_s.arg(index.row() + 1).arg(QString::fromUtf16(aspect.nom));
        default:
            return {};
    }
}

// --------------------------------------------------------------------------------------- delegate

QColor DelegueSelection::fond(Priorite priorite) {
    return priorite == Priorite::Aucune ? QColor() : QColor(aspectDe(priorite).fond);
}

void DelegueSelection::paint(QPainter* peintre, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    const auto& modele = static_cast<const ModeleSelection&>(*index.model());
    const Priorite priorite = modele.priorite(index.row());
    const bool cochee = priorite != Priorite::Aucune;
    const bool ouverte = option.state.testFlag(QStyle::State_Enabled);
    const Teintes t = teintes(option.palette);
    QPainter& p = *peintre;
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF tuile = QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5);
    p.setPen(t.bordure);
    p.setBrush(cochee ? fond(priorite) : ouverte ? t.carte : t.fondFerme);
    p.drawRoundedRect(tuile, 4, 4);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        p.setPen(QPen(t.accent, 2));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(tuile, 4, 4);
    }
    QFont fonte = option.font;
    fonte.setBold(cochee);
    p.setFont(fonte);
    const QColor libre = ouverte ? option.palette.color(QPalette::Text) : t.discret;
    p.setPen(cochee ? QColor(aspectDe(priorite).texte) : libre);
    p.drawText(tuile, Qt::AlignCenter, index.data().toString());
    p.restore();
}

QSize DelegueSelection::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return static_cast<const QListView*>(option.widget)->gridSize();
}

// ------------------------------------------------------------------------------------------- view

CasesSelection::CasesSelection(QWidget* parent)
    : QListView(parent), modele_(new ModeleSelection(this)) {
    setObjectName(u"RxCheckListBox1"_s);
    setAccessibleName(u"Grille de sélection de numéros"_s);
    setModel(modele_);
    setItemDelegate(new DelegueSelection(this));
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setMovement(Static);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setFrameShape(NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    setCurrentIndex(modele_->index(0));
}

QSize CasesSelection::minimumSizeHint() const {
    const int h = fontMetrics().height();
    return {Colonnes * 5 * h / 3, Rangees * (h + Unite)};
}

QSize CasesSelection::sizeHint() const {
    const int h = fontMetrics().height();
    return {Colonnes * 5 * h / 2, Rangees * 2 * h};
}

void CasesSelection::resizeEvent(QResizeEvent* evenement) {
    QListView::resizeEvent(evenement);
    // A row that fills the width to the last pixel would lose its last tile to the next one.
    setGridSize({(viewport()->width() - 1) / Colonnes, viewport()->height() / Rangees});
}

void CasesSelection::presser(QMouseEvent* evenement) {
    const QModelIndex index = indexAt(evenement->position().toPoint());
    if (!index.isValid() || evenement->button() != Qt::LeftButton) return;
    setCurrentIndex(index);
    Q_EMIT demande(index.row() + 1, Suivante(modele_->priorite(index.row())));
}

void CasesSelection::mousePressEvent(QMouseEvent* evenement) {
    presser(evenement);
}

void CasesSelection::mouseDoubleClickEvent(QMouseEvent* evenement) {
    presser(evenement);  // a quick second click is one more step of the cycle
}

void CasesSelection::keyPressEvent(QKeyEvent* evenement) {
    const int rang = currentIndex().row();
    const bool suivante = evenement->key() == Qt::Key_Space;
    const bool aucune = evenement->key() == Qt::Key_Delete || evenement->key() == Qt::Key_Backspace;
    if (rang < 0 || (!suivante && !aucune)) {
        QListView::keyPressEvent(evenement);
        return;
    }
    Q_EMIT demande(rang + 1, suivante ? Suivante(modele_->priorite(rang)) : Priorite::Aucune);
}

}  // namespace norvane::ui
