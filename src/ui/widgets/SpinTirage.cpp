// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/SpinTirage.h"

#include <algorithm>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QWheelEvent>

namespace norvane::ui {

namespace {

constexpr int ChiffresMax = 9;  // what a 32-bit integer takes without a test

/// The keys that a draw control is deaf to.
bool toucheSourde(int touche) {
    return touche == Qt::Key_Backspace || touche == Qt::Key_Delete || touche == Qt::Key_Plus ||
           touche == Qt::Key_Minus;
}

}  // namespace

SpinTirage::SpinTirage(QWidget* parent) : QSpinBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAlignment(Qt::AlignRight);
    setAccelerated(true);
    // The base class follows the text only on leaving: it would take a text within the limits as
    // it stands and signal nothing for one that gives the value it already has.
    setKeyboardTracking(false);
    lineEdit()->installEventFilter(this);
    connect(lineEdit(), &QLineEdit::textChanged, this, &SpinTirage::surTexte);
    connect(this, &QSpinBox::valueChanged, this, [this](int valeur) {
        if (!enCours_) Q_EMIT tirageChange(valeur);
    });
}

void SpinTirage::poser(int minimum, int maximum, int valeur) {
    const QScopedValueRollback garde(enCours_, true);
    setRange(minimum, maximum);
    setValue(valeur);
}

void SpinTirage::surTexte(const QString& texte) {
    if (enCours_ || texte.isEmpty()) return;
    if (attenteSaisie_ && texte.size() < QString::number(minimum()).size()) return;
    {
        const QScopedValueRollback garde(enCours_, true);
        setValue(valueFromText(texte));  // clamps, and writes back what differs
    }
    Q_EMIT tirageChange(value());
}

QValidator::State SpinTirage::validate(QString& texte, int&) const {
    if (texte.isEmpty()) return QValidator::Intermediate;
    const bool chiffres =
        std::all_of(texte.cbegin(), texte.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return chiffres && texte.size() <= ChiffresMax ? QValidator::Acceptable : QValidator::Invalid;
}

int SpinTirage::valueFromText(const QString& texte) const {
    return texte.toInt();
}

void SpinTirage::keyPressEvent(QKeyEvent* evenement) {
    if (toucheSourde(evenement->key())) {
        evenement->accept();
        return;
    }
    QSpinBox::keyPressEvent(evenement);
}

void SpinTirage::wheelEvent(QWheelEvent* evenement) {
    // A wheel that passes over on its way down the page must not change the interval.
    if (hasFocus()) {
        QSpinBox::wheelEvent(evenement);
    } else {
        evenement->ignore();
    }
}

bool SpinTirage::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == lineEdit()) {
        if (evenement->type() == QEvent::KeyPress &&
            toucheSourde(static_cast<QKeyEvent*>(evenement)->key())) {
            return true;
        }
        // Without Backspace a number is changed by typing over it: a click selects all of it,
        // unless it has just drawn a selection.
        if (evenement->type() == QEvent::MouseButtonRelease && !lineEdit()->hasSelectedText()) {
            lineEdit()->selectAll();
        }
    }
    return QSpinBox::eventFilter(objet, evenement);
}

}  // namespace norvane::ui
