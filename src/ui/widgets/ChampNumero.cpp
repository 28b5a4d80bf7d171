// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ChampNumero.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>
#include <QToolButton>
#include <QVBoxLayout>

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
constexpr int PasDePage = 10;
}  // namespace

ChampNumero::ChampNumero(const QString& nom, QWidget* parent) : QLineEdit(parent) {
    setObjectName(nom);
    setAlignment(Qt::AlignRight);
    // Five digits hold every draw number and every ticket number.
    setValidator(new QRegularExpressionValidator(QRegularExpression(u"[0-9]{0,5}"_s), this));
}

void ChampNumero::keyPressEvent(QKeyEvent* evenement) {
    switch (evenement->key()) {
        case Qt::Key_Up:
            Q_EMIT deplacement(1);
            return;
        case Qt::Key_Down:
            Q_EMIT deplacement(-1);
            return;
        case Qt::Key_PageUp:
            Q_EMIT deplacement(PasDePage);
            return;
        case Qt::Key_PageDown:
            Q_EMIT deplacement(-PasDePage);
            return;
        case Qt::Key_Home:
            Q_EMIT extremite(false);
            return;
        case Qt::Key_End:
            Q_EMIT extremite(true);
            return;
        default:
            QLineEdit::keyPressEvent(evenement);
    }
}

void ChampNumero::mouseReleaseEvent(QMouseEvent* evenement) {
    QLineEdit::mouseReleaseEvent(evenement);
    selectAll();
}

HautBas::HautBas(const QString& nom, QWidget* parent) : QWidget(parent) {
    setObjectName(nom);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(0);
    const auto ajouter = [this, pile](Qt::ArrowType fleche, int pas, const QString& texte) {
        auto* bouton = new QToolButton(this);
        bouton->setArrowType(fleche);
        bouton->setAutoRepeat(true);
        bouton->setFocusPolicy(Qt::NoFocus);
        bouton->setAccessibleName(texte);
        bouton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
        connect(bouton, &QToolButton::clicked, this, [this, pas] { Q_EMIT deplacement(pas); });
        pile->addWidget(bouton);
    };
    ajouter(Qt::UpArrow, 1, u"Suivant"_s);
    ajouter(Qt::DownArrow, -1, u"Précédent"_s);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
}

}  // namespace norvane::ui
