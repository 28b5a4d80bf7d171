// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ListeCombinaisons.h"

#include <algorithm>
#include <QPainter>
#include <QScrollBar>

#include "comb/LigneCombinaison.h"
#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
constexpr int Marge = 2 * Unite;  // left and right of the text of a line
constexpr int Cadre = 3;          // pen of the selected line, in pixels
}  // namespace

// ------------------------------------------------------------------------------------------ model

void ModeleCombinaisons::montrer(const Liste* liste) {
    beginResetModel();
    liste_ = liste;
    nombre_ = liste == nullptr ? 0 : static_cast<int>(std::min(liste->nombre(), CapaciteListe));
    endResetModel();
}

void ModeleCombinaisons::poserBornes(std::optional<BornesLignes> bornes) {
    if (bornes == bornes_) return;
    bornes_ = bornes;
    if (nombre_ > 0) Q_EMIT dataChanged(index(0), index(nombre_ - 1), {RoleBorne});
}

std::optional<Combinaison> ModeleCombinaisons::combinaison(int ligne) const {
    // The owner may have changed its list since the last showing.
    const auto i = static_cast<std::size_t>(ligne);
    if (liste_ == nullptr || i >= liste_->nombre()) return std::nullopt;
    return liste_->combinaison(i);
}

int ModeleCombinaisons::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : nombre_;
}

QVariant ModeleCombinaisons::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    if (role != Qt::DisplayRole && role != RoleBorne) return {};
    const auto ligne = combinaison(index.row());
    if (!ligne) return {};
    if (role == RoleBorne) return static_cast<int>(borne(*ligne));
    return QString::fromStdString(LigneCombinaison(*ligne));
}

BorneLigne ModeleCombinaisons::borne(const Combinaison& combinaison) const {
    if (!bornes_ || combinaison.marque) return BorneLigne::Aucune;
    if (combinaison.NbFois == bornes_->sup) return BorneLigne::Sup;
    return combinaison.NbFois == bornes_->inf ? BorneLigne::Inf : BorneLigne::Aucune;
}

// --------------------------------------------------------------------------------------- delegate

QColor DelegueCombinaisons::encre(BorneLigne borne, bool choisie, const QPalette& palette) {
    const Teintes t = teintes(palette);
    switch (borne) {
        case BorneLigne::Sup:
            return choisie ? QColor(CouleurLigneSup) : t.ligneSup;
        case BorneLigne::Inf:
            return choisie ? QColor(CouleurLigneInf) : t.ligneInf;
        case BorneLigne::Aucune:
            break;
    }
    return choisie ? QColor(Qt::black) : palette.color(QPalette::Text);
}

void DelegueCombinaisons::paint(QPainter* peintre, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    QPainter& p = *peintre;
    const bool choisie = option.state.testFlag(QStyle::State_Selected);
    p.save();
    if (choisie) {
        p.fillRect(option.rect, Qt::black);
        p.fillRect(option.rect.adjusted(Cadre, Cadre, -Cadre, -Cadre), QColor(CouleurLigneChoisie));
    } else {
        p.fillRect(option.rect, option.palette.color(QPalette::Base));
    }
    const auto borne = static_cast<BorneLigne>(index.data(ModeleCombinaisons::RoleBorne).toInt());
    p.setFont(option.font);
    p.setPen(encre(borne, choisie, option.palette));
    p.drawText(option.rect.adjusted(Marge, 0, -Marge, 0),
               int{Qt::AlignVCenter} | int{Qt::AlignLeft} | int{Qt::TextSingleLine},
               index.data(Qt::DisplayRole).toString());
    p.restore();
}

QSize DelegueCombinaisons::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {0, option.fontMetrics.height() + 2 * Cadre};
}

// ------------------------------------------------------------------------------------------- view

void peindreInvite(QWidget& boite, const QString& invite) {
    QPainter p(&boite);
    p.setPen(teintes(boite.palette()).discret);
    p.drawText(boite.rect().adjusted(3 * Unite, 3 * Unite, -3 * Unite, -3 * Unite),
               int{Qt::AlignCenter} | int{Qt::TextWordWrap}, invite);
}

ListeCombinaisons::ListeCombinaisons(const QString& nom, QWidget* parent)
    : QListView(parent), modele_(new ModeleCombinaisons(this)) {
    setObjectName(nom);
    setModel(modele_);
    setItemDelegate(new DelegueCombinaisons(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

int ListeCombinaisons::largeurLigne() const {
    return fontMetrics().horizontalAdvance(u"00 00 00 00 00 00 00 00 00 00  (0000) N"_s) +
           2 * Marge + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
}

void ListeCombinaisons::poserInvite(const QString& invite) {
    invite_ = invite;
    viewport()->update();
}

void ListeCombinaisons::paintEvent(QPaintEvent* evenement) {
    QListView::paintEvent(evenement);
    if (modele_->rowCount() == 0) peindreInvite(*viewport(), invite_);
}

void ListeCombinaisons::currentChanged(const QModelIndex& actuel, const QModelIndex& ancien) {
    QListView::currentChanged(actuel, ancien);
    if (actuel.isValid()) Q_EMIT ligneChoisie(actuel.row());
}

}  // namespace norvane::ui
