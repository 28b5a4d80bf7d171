// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/Fiche.h"

#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

#include "common/Contexte.h"
#include "common/Theme.h"

namespace norvane::ui {

Fiche::Fiche(QWidget* parent) : QFrame(parent), pile(new QVBoxLayout(this)) {
    pile->setContentsMargins(2 * Unite, 2 * Unite - 2, 2 * Unite, 2 * Unite - 2);
    pile->setSpacing(Unite);
}

void Fiche::paintEvent(QPaintEvent*) {
    QPainter p(this);
    peindreFiche(p, *this);
}

void peindreFiche(QPainter& p, const QWidget& fiche) {
    p.setRenderHint(QPainter::Antialiasing);
    const Teintes t = teintes(fiche.palette());
    p.setPen(t.bordure);
    p.setBrush(t.carte);
    p.drawRoundedRect(QRectF(fiche.rect()).adjusted(0.5, 0.5, -0.5, -0.5), 8, 8);
}

QLabel* legende(const QString& texte, QWidget* parent) {
    auto* etiquette = new QLabel(texte, parent);
    etiquette->setForegroundRole(QPalette::PlaceholderText);
    return etiquette;
}

void grossir(QWidget* cible, double facteur) {
    QFont fonte = cible->font();
    fonte.setPixelSize(qRound(QFontInfo(fonte).pixelSize() * facteur));
    fonte.setBold(true);
    cible->setFont(fonte);
}

QLabel* valeur(const QString& nom, const QString& libelle, QWidget* parent) {
    auto* etiquette = new QLabel(parent);
    etiquette->setObjectName(nom);
    etiquette->setAccessibleName(libelle);
    grossir(etiquette, 1.2);
    return etiquette;
}

QVBoxLayout* colonne(const QString& titre, QLayout* contenu, QWidget* parent) {
    auto* pile = new QVBoxLayout;
    pile->setSpacing(2);
    pile->addWidget(legende(titre, parent));
    pile->addLayout(contenu);
    return pile;
}

QHBoxLayout* rangee(std::initializer_list<QWidget*> widgets) {
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(Unite / 2);
    for (QWidget* widget : widgets) ligne->addWidget(widget);
    return ligne;
}

QPushButton* bouton(const QString& nom, const QString& libelle, const QString& indice,
                    QWidget* parent) {
    auto* b = new QPushButton(libelle, parent);
    b->setObjectName(nom);
    b->setMinimumSize(b->sizeHint().width() + 4 * Unite, b->fontMetrics().height() + 3 * Unite);
    poserIndice(b, indice);
    return b;
}

}  // namespace norvane::ui
