// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ColonnesFigees.h"

#include <QScrollBar>

#include "widgets/EnteteTableau.h"
#include "widgets/ModeleTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

ColonnesFigees::ColonnesFigees(QTableView& table, ModeleTableau& modele, int nombre)
    : QTableView(&table), table_(table), nombre_(nombre) {
    setObjectName(u"ColonnesFigees"_s);
    auto* entete = new EnteteTableau(modele, this);
    setHorizontalHeader(entete);
    setModel(&modele);
    setSelectionModel(table.selectionModel());
    setItemDelegate(table.itemDelegate());
    setSelectionMode(table.selectionMode());
    setSelectionBehavior(table.selectionBehavior());
    setEditTriggers(NoEditTriggers);
    setFrameShape(QFrame::NoFrame);
    setStyleSheet(u"QTableView { border: 0; }"_s);  // or the application's sheet frames it
    setFocusPolicy(Qt::NoFocus);
    setFocusProxy(&table);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(table.verticalHeader()->minimumSectionSize());
    for (int c = nombre; c < modele.columnCount(); ++c) setColumnHidden(c, true);
    connect(entete, &EnteteTableau::colonneCliquee, this, &ColonnesFigees::colonneCliquee);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, table.verticalScrollBar(),
            &QScrollBar::setValue);
    connect(table.verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
            &QScrollBar::setValue);
    connect(table.horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { placer(); });
    hide();
}

void ColonnesFigees::placer() {
    const bool utile = table_.horizontalScrollBar()->value() > 0;
    if (utile) {
        int largeur = 0;
        for (int c = 0; c < nombre_; ++c) {
            setColumnWidth(c, table_.columnWidth(c));
            largeur += table_.columnWidth(c);
        }
        verticalHeader()->setDefaultSectionSize(table_.verticalHeader()->defaultSectionSize());
        horizontalHeader()->setFixedHeight(table_.horizontalHeader()->height());
        const int bord = table_.frameWidth();
        setGeometry(bord, bord, largeur,
                    table_.horizontalHeader()->height() + table_.viewport()->height());
    }
    setVisible(utile);
    if (utile) verticalScrollBar()->setValue(table_.verticalScrollBar()->value());
}

}  // namespace norvane::ui
