// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A report on show: its links, its ground, and the place where one reads.
#pragma once

#include <memory>
#include <QPixmap>
#include <QTextBrowser>

#include "analyses/MiseEnForme.h"

class QAction;
class QMenu;

namespace norvane::ui {

class VueRapport final : public QTextBrowser {
    Q_OBJECT

 public:
    explicit VueRapport(QWidget* parent);

    /// Shows it; the reader stays where he is, at the same heading or the one before it.
    void montrer(std::shared_ptr<const Document> document, const MiseEnForme& forme);
    /// Scrolls to what link number `lien` leads to; beyond the links nothing happens.
    void suivre(int lien);
    /// The picture behind the text, repeated; none for a null one.
    void poserFond(const QPixmap& fond);

 Q_SIGNALS:
    /// The pointer, or the focus, came over a link; `texte` is what is said of it.
    void lienSurvole(const QString& texte);
    /// Another text stands in the view.
    void montre();

 protected:
    void paintEvent(QPaintEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;

 private:
    /// Where the upper edge of the view stands in the report.
    struct Place {
        std::string ancre;  ///< the heading before it, empty above the first
        int blocs = 0;      ///< from the heading to the line at the edge
        int pixels = 0;     ///< of that line above the edge
    };
    Place placeLue() const;
    void retrouver(const Place& place);
    void defiler(int bloc, int pixels);
    void creerMenu();

    std::shared_ptr<const Document> document_;
    QColor couleur_ = Qt::white;  // of the ground
    QPixmap fond_;
    QMenu* menu_;
    QAction* mot_;
    QAction* copier_;
};

}  // namespace norvane::ui
