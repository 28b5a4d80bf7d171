// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analyses/VueRapport.h"

#include <algorithm>
#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>

namespace norvane::ui {

using namespace Qt::StringLiterals;

VueRapport::VueRapport(QWidget* parent)
    : QTextBrowser(parent), document_(std::make_shared<Document>()) {
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& adresse) { suivre(numeroLien(adresse)); });
    connect(this, &QTextBrowser::highlighted, this, [this](const QUrl& adresse) {
        const int lien = numeroLien(adresse);
        if (lien < 0 || lien >= static_cast<int>(document_->liens.size())) return;
        Q_EMIT lienSurvole(
            QString::fromStdString(document_->liens[static_cast<std::size_t>(lien)].survol));
    });
    creerMenu();
}

void VueRapport::creerMenu() {
    menu_ = new QMenu(this);
    menu_->setObjectName(u"PopupMenu2"_s);
    mot_ = menu_->addAction(u"&Mot cliqué"_s);
    mot_->setObjectName(u"MotClique"_s);
    mot_->setEnabled(false);
    menu_->addSeparator();
    copier_ = menu_->addAction(u"&Copier"_s, this, &QTextEdit::copy);
    copier_->setObjectName(u"Copier"_s);
    menu_->addAction(u"&Tout sélectionner"_s, this, &QTextEdit::selectAll)
        ->setObjectName(u"ToutSelectionner"_s);
}

void VueRapport::montrer(std::shared_ptr<const Document> document, const MiseEnForme& forme) {
    const Place place = placeLue();
    document_ = std::move(document);
    setExtraSelections({});  // they point into the text that goes
    // The toolkit deletes the text that a view was made with, and no other.
    const QPointer<QTextDocument> ancien = QTextBrowser::document();
    auto* texte = new QTextDocument(this);
    composer(*texte, *document_, forme);
    couleur_ = QColor::fromRgb(FondDe(forme.jeu));
    setDocument(texte);
    delete ancien.data();
    retrouver(place);
    Q_EMIT montre();
}

// ------------------------------------------------------------------------------------------ places

VueRapport::Place VueRapport::placeLue() const {
    Place place;
    const QTextBlock bloc = cursorForPosition(QPoint(1, 1)).block();
    const int numero = bloc.blockNumber();
    const auto apres = std::ranges::upper_bound(document_->ancres, numero, {}, &Ancre::bloc);
    int debut = 0;
    if (apres != document_->ancres.begin()) {
        place.ancre = std::prev(apres)->nom;
        debut = std::prev(apres)->bloc;
    }
    place.blocs = numero - debut;
    const auto* mise = QTextBrowser::document()->documentLayout();
    place.pixels = verticalScrollBar()->value() - qRound(mise->blockBoundingRect(bloc).top());
    return place;
}

void VueRapport::retrouver(const Place& place) {
    int debut = 0;
    if (!place.ancre.empty()) {
        const int ancre = document_->numeroAncre(place.ancre);
        if (ancre == SansAncre) {  // a chapter that this report has not: its start serves
            verticalScrollBar()->setValue(0);
            return;
        }
        debut = document_->ancres[static_cast<std::size_t>(ancre)].bloc;
    }
    const auto apres = std::ranges::upper_bound(document_->ancres, debut, {}, &Ancre::bloc);
    const int fin =
        apres == document_->ancres.end() ? static_cast<int>(document_->blocs.size()) : apres->bloc;
    defiler(std::min(debut + place.blocs, fin - 1), place.pixels);
}

void VueRapport::defiler(int bloc, int pixels) {
    const auto* texte = QTextBrowser::document();
    const auto* mise = texte->documentLayout();
    static_cast<void>(mise->pageCount());  // lays all of it out: the scroll bar knows its end
    const double haut = mise->blockBoundingRect(texte->findBlockByNumber(bloc)).top();
    verticalScrollBar()->setValue(qRound(haut) + pixels);
}

void VueRapport::suivre(int lien) {
    const int bloc = document_->blocDuLien(lien);
    if (bloc == 0) {
        verticalScrollBar()->setValue(0);
    } else if (bloc > 0) {
        defiler(bloc, 0);
    }
}

// ------------------------------------------------------------------------------------------ events

void VueRapport::poserFond(const QPixmap& fond) {
    fond_ = fond;
    viewport()->update();
}

void VueRapport::paintEvent(QPaintEvent* evenement) {
    {
        QPainter p(viewport());
        p.setClipRegion(evenement->region());
        p.fillRect(evenement->rect(), couleur_);
        // It scrolls with the text: what stays on the screen is moved there, not painted anew.
        const QPoint debut(horizontalScrollBar()->value(), verticalScrollBar()->value());
        if (!fond_.isNull()) p.drawTiledPixmap(viewport()->rect(), fond_, debut);
    }
    QTextBrowser::paintEvent(evenement);
}

void VueRapport::contextMenuEvent(QContextMenuEvent* evenement) {
    QTextCursor curseur = cursorForPosition(evenement->pos());
    curseur.select(QTextCursor::WordUnderCursor);
    const QString mot = curseur.selectedText();
    // The lines of a box are no word.
    const bool lisible = std::ranges::any_of(mot, [](QChar c) { return c.isLetterOrNumber(); });
    mot_->setText(lisible ? QString(mot).replace(u'&', u"&&"_s) : u"&Mot cliqué"_s);
    copier_->setEnabled(textCursor().hasSelection());
    menu_->popup(evenement->globalPos());
}

void VueRapport::keyPressEvent(QKeyEvent* evenement) {
    // The toolkit moves a cursor that nobody sees: the report itself has a start and an end.
    if (evenement->key() == Qt::Key_Home || evenement->key() == Qt::Key_End) {
        auto* barre = verticalScrollBar();
        barre->setValue(evenement->key() == Qt::Key_Home ? 0 : barre->maximum());
        evenement->accept();
        return;
    }
    QTextBrowser::keyPressEvent(evenement);
}

}  // namespace norvane::ui
