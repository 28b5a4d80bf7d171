// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/CasesNumeros.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

// ------------------------------------------------------------------------------------------ model

void ModeleCases::montrer(const EtatsCases& etats) {
    if (etats == etats_) return;
    etats_ = etats;
    Q_EMIT dataChanged(index(0), index(NumeroMax - 1));
}

int ModeleCases::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : NumeroMax;
}

QVariant ModeleCases::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    switch (role) {
        case Qt::DisplayRole:
            return QString::number(index.row() + 1);
        case Qt::CheckStateRole:
            return int{aspect(index.row()).coche};
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return u"Numéro %1, %2"_s.arg(index.row() + 1)
                .arg(QString::fromUtf16(aspect(index.row()).nom));
        default:
            return {};
    }
}

// --------------------------------------------------------------------------------------- delegate

void DelegueCases::paint(QPainter* peintre, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const AspectCase& aspect = static_cast<const ModeleCases&>(*index.model()).aspect(index.row());
    const bool cochee = aspect.coche != Qt::Unchecked;
    const bool ouverte = option.state.testFlag(QStyle::State_Enabled);
    const Teintes t = teintes(option.palette);
    QPainter& p = *peintre;
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF tuile = QRectF(option.rect).adjusted(1.5, 1.5, -1.5, -1.5);
    p.setPen(t.bordure);
    p.setBrush(cochee ? QColor(aspect.fond) : ouverte ? t.carte : t.fondFerme);
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
    p.setPen(cochee ? QColor(aspect.texte) : libre);
    p.drawText(tuile, Qt::AlignCenter, index.data().toString());
    p.restore();
}

QSize DelegueCases::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const auto* cases = qobject_cast<const QListView*>(option.widget);
    return cases == nullptr ? QStyledItemDelegate::sizeHint(option, index) : cases->gridSize();
}

// ------------------------------------------------------------------------------------------- view

CasesNumeros::CasesNumeros(const QString& nom, const QString& sens, const AspectsCases& aspects,
                           int colonnes, QWidget* parent)
    : QListView(parent), modele_(new ModeleCases(aspects, this)), colonnes_(colonnes) {
    setObjectName(nom);
    setAccessibleName(sens);
    setModel(modele_);
    setItemDelegate(new DelegueCases(this));
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

QSize CasesNumeros::minimumSizeHint() const {
    const int h = fontMetrics().height();
    return {colonnes_ * 5 * h / 3, rangees() * (h + Unite)};
}

QSize CasesNumeros::sizeHint() const {
    const int h = fontMetrics().height();
    return {colonnes_ * 5 * h / 2, rangees() * 2 * h};
}

void CasesNumeros::resizeEvent(QResizeEvent* evenement) {
    QListView::resizeEvent(evenement);
    // A row that fills the width to the last pixel would lose its last tile to the next one.
    setGridSize({(viewport()->width() - 1) / colonnes_, viewport()->height() / rangees()});
}

void CasesNumeros::presser(QMouseEvent* evenement) {
    const QModelIndex index = indexAt(evenement->position().toPoint());
    if (!index.isValid() || evenement->button() != Qt::LeftButton) return;
    setCurrentIndex(index);
    Q_EMIT avanceDemandee(index.row() + 1);
}

void CasesNumeros::mousePressEvent(QMouseEvent* evenement) {
    presser(evenement);
}

void CasesNumeros::mouseDoubleClickEvent(QMouseEvent* evenement) {
    presser(evenement);  // a quick second click is one more step of the cycle
}

void CasesNumeros::keyPressEvent(QKeyEvent* evenement) {
    const int rang = currentIndex().row();
    const int touche = evenement->key();
    if (rang >= 0 && touche == Qt::Key_Space) {
        Q_EMIT avanceDemandee(rang + 1);
    } else if (rang >= 0 && (touche == Qt::Key_Delete || touche == Qt::Key_Backspace)) {
        Q_EMIT retraitDemande(rang + 1);
    } else {
        QListView::keyPressEvent(evenement);
    }
}

}  // namespace norvane::ui
