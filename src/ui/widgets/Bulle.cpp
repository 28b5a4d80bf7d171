// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/Bulle.h"

#include <algorithm>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

#include "common/Theme.h"

namespace norvane::ui {

namespace {
constexpr int Marge = 2 * Unite;
constexpr int Fleche = Unite + 2;
}  // namespace

Bulle::Bulle(QWidget* parent) : QWidget(parent) {
    // The pointer must stay on the cell below, or the balloon would chase itself away.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

QFont Bulle::policeTitre() const {
    QFont fonte = font();
    fonte.setBold(true);
    return fonte;
}

QSize Bulle::sizeHint() const {
    const QFontMetrics gras(policeTitre());
    const QFontMetrics maigre(font());
    const QSize texte = maigre.size(0, texte_);  // of all its lines
    return {std::max(gras.horizontalAdvance(titre_), texte.width()) + 2 * Marge,
            gras.height() + texte.height() + Unite / 2 + 2 * Unite + Fleche};
}

void Bulle::montrer(const QString& titre, const QString& texte, const QRect& cible) {
    titre_ = titre;
    texte_ = texte;
    setAccessibleName(titre);
    setAccessibleDescription(texte);
    if (texte.isEmpty()) {
        hide();
        return;
    }
    const QSize taille = sizeHint();
    const QRect champ = parentWidget()->rect();
    dessous_ = cible.top() - taille.height() >= champ.top();
    const int y = dessous_ ? cible.top() - taille.height() + 2 : cible.bottom() - 1;
    const int x = std::clamp(cible.center().x() - taille.width() / 2, 0,
                             std::max(0, champ.width() - taille.width()));
    pointe_ = std::clamp(cible.center().x() - x, 2 * Fleche, taille.width() - 2 * Fleche);
    setGeometry(QRect(QPoint(x, y), taille));
    raise();
    show();
    update();
}

void Bulle::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF corps =
        QRectF(rect()).adjusted(0.5, dessous_ ? 0.5 : Fleche, -0.5, dessous_ ? -Fleche : -0.5);
    QPainterPath forme;
    forme.addRoundedRect(corps, Unite, Unite);
    // The arrow starts inside the body, so that both make one outline.
    const double base = dessous_ ? corps.bottom() - 1 : corps.top() + 1;
    const double bout = dessous_ ? rect().bottom() : 0.5;
    QPainterPath fleche;
    fleche.addPolygon(QPolygonF({{pointe_ - Fleche * 0.8, base},
                                 {static_cast<double>(pointe_), bout},
                                 {pointe_ + Fleche * 0.8, base}}));
    fleche.closeSubpath();
    const Teintes t = teintes(palette());
    p.setPen(QPen(t.barreBord, 1));
    p.setBrush(palette().color(QPalette::ToolTipBase));
    p.drawPath(forme.united(fleche));

    const QRect texte = corps.toRect().adjusted(Marge, Unite, -Marge, -Unite);
    p.setFont(policeTitre());
    p.setPen(t.accent);
    p.drawText(texte, Qt::AlignTop | Qt::AlignLeft, titre_);
    p.setFont(font());
    p.setPen(palette().color(QPalette::ToolTipText));
    p.drawText(texte, Qt::AlignBottom | Qt::AlignLeft, texte_);
}

}  // namespace norvane::ui
