// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analyses/BarreRecherche.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t MarquesMax = 1000;  // more would only slow the view down
const QColor FondTrouve(0xFF, 0xE0, 0x66);
const QColor FondCourant(0xFF, 0x8C, 0x1A);

/// Without case and accents, character for character: places stay the same.
QString aplatir(QString texte) {
    for (QChar& c : texte) {
        const QString decompose = c.decomposition();
        if (!decompose.isEmpty() && c.decompositionTag() == QChar::Canonical) c = decompose[0];
        c = c.toLower();
    }
    return texte;
}

}  // namespace

BarreRecherche::BarreRecherche(QTextEdit& vue, QWidget* parent)
    : QWidget(parent), vue_(vue), champ_(new QLineEdit(this)), compte_(new QLabel(this)) {
    setObjectName(u"BarreRecherche"_s);
    champ_->setObjectName(u"ChampRecherche"_s);
    champ_->setAccessibleName(u"Rechercher dans le rapport"_s);
    champ_->setPlaceholderText(u"Rechercher dans le rapport"_s);
    champ_->setClearButtonEnabled(true);
    compte_->setObjectName(u"CompteRecherche"_s);
    compte_->setMinimumWidth(compte_->fontMetrics().horizontalAdvance(u"0000 sur 0000"_s));
    precedent_ =
        bouton(u"RecherchePrecedente"_s, u"Précédent"_s, u"L'endroit précédent (Maj+F3)"_s, this);
    suivant_ = bouton(u"RechercheSuivante"_s, u"Suivant"_s, u"L'endroit suivant (F3)"_s, this);
    auto* fermeture =
        bouton(u"RechercheFermer"_s, u"Fermer"_s, u"Fermer la recherche (Échap)"_s, this);
    auto* ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(Unite);
    ligne->addWidget(champ_, 1);
    ligne->addWidget(compte_);
    for (QPushButton* b : {precedent_, suivant_, fermeture}) {
        b->setAutoDefault(false);
        ligne->addWidget(b);
    }
    connect(champ_, &QLineEdit::textChanged, this, &BarreRecherche::surTexte);
    connect(precedent_, &QPushButton::clicked, this, [this] { avancer(-1); });
    connect(suivant_, &QPushButton::clicked, this, [this] { avancer(1); });
    connect(fermeture, &QPushButton::clicked, this, &BarreRecherche::fermer);
    hide();
}

void BarreRecherche::ouvrir() {
    const QString choisi = vue_.textCursor().selectedText();
    show();
    if (!choisi.isEmpty() && !choisi.contains(QChar::ParagraphSeparator)) {
        champ_->setText(choisi);
    }
    reprendre();
    champ_->setFocus();
    champ_->selectAll();
}

void BarreRecherche::fermer() {
    hide();
    vue_.setExtraSelections({});
    vue_.setFocus();
}

void BarreRecherche::chercher() {
    places_.clear();
    courante_ = -1;
    const QString voulu = aplatir(champ_->text());
    if (voulu.isEmpty()) return;
    const QString texte = aplatir(vue_.document()->toRawText());
    for (qsizetype place = texte.indexOf(voulu); place >= 0;
         place = texte.indexOf(voulu, place + voulu.size())) {
        places_.push_back(static_cast<int>(place));
    }
}

void BarreRecherche::reprendre() {
    if (!isVisible()) return;
    chercher();
    marquer();
}

void BarreRecherche::surTexte() {
    chercher();
    if (!places_.empty()) {
        // The first one from where one reads on.
        const int haut = vue_.cursorForPosition(QPoint(1, 1)).position();
        const auto suite = std::ranges::lower_bound(places_, haut);
        courante_ = suite == places_.end() ? 0 : static_cast<int>(suite - places_.begin());
        montrerCourante();
    }
    marquer();
}

void BarreRecherche::avancer(int pas) {
    if (places_.empty()) return;
    const int nombre = static_cast<int>(places_.size());
    if (courante_ < 0) {
        courante_ = pas > 0 ? 0 : nombre - 1;
    } else {
        courante_ = (courante_ + pas + nombre) % nombre;
    }
    montrerCourante();
    marquer();
}

void BarreRecherche::montrerCourante() {
    QTextCursor curseur(vue_.document());
    curseur.setPosition(places_[static_cast<std::size_t>(courante_)]);
    vue_.setTextCursor(curseur);
    // Not at the edge, where nothing around it could be read.
    const QRect lieu = vue_.cursorRect();
    const int hauteur = vue_.viewport()->height();
    if (lieu.top() < 0 || lieu.bottom() > hauteur - 2 * lieu.height()) {
        auto* barre = vue_.verticalScrollBar();
        barre->setValue(barre->value() + lieu.top() - hauteur / 3);
    }
}

void BarreRecherche::marquer() {
    const bool trouve = !places_.empty();
    precedent_->setEnabled(trouve);
    suivant_->setEnabled(trouve);
    if (champ_->text().isEmpty()) {
        compte_->clear();
    } else if (!trouve) {
        compte_->setText(u"Introuvable"_s);
    } else {
        compte_->setText(courante_ < 0 ? QString::number(places_.size())
                                       : u"%1 sur %2"_s.arg(courante_ + 1).arg(places_.size()));
    }
    QList<QTextEdit::ExtraSelection> marques;
    const auto ajouter = [&](std::size_t i, const QColor& fond) {
        QTextEdit::ExtraSelection marque;
        marque.cursor = QTextCursor(vue_.document());
        marque.cursor.setPosition(places_[i]);
        marque.cursor.setPosition(places_[i] + static_cast<int>(champ_->text().size()),
                                  QTextCursor::KeepAnchor);
        marque.format.setBackground(fond);
        marque.format.setForeground(Qt::black);
        marques << marque;
    };
    for (std::size_t i = 0; i < std::min(places_.size(), MarquesMax); ++i) ajouter(i, FondTrouve);
    if (courante_ >= 0) ajouter(static_cast<std::size_t>(courante_), FondCourant);
    vue_.setExtraSelections(marques);
}

void BarreRecherche::keyPressEvent(QKeyEvent* evenement) {
    switch (evenement->key()) {
        case Qt::Key_Escape:
            fermer();
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            avancer(evenement->modifiers() & Qt::ShiftModifier ? -1 : 1);
            return;
        default:
            QWidget::keyPressEvent(evenement);
    }
}

}  // namespace norvane::ui
