// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "historiques/DessinEcarts.h"

#include <algorithm>
#include <cmath>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "base/Dates.h"
#include "common/Contexte.h"
#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double Hauteur = 92;         // design units
constexpr double LargeurBarreMax = 9;  // design units
constexpr double Portee = 6;           // pixels within which a bar is meant

}  // namespace

DessinEcarts::DessinEcarts(double echelle, QWidget* parent) : QWidget(parent), echelle_(echelle) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(u"Dessin des écarts"_s);
    setCursor(Qt::CrossCursor);
}

QSize DessinEcarts::sizeHint() const {
    return {static_cast<int>(400 * echelle_), static_cast<int>(Hauteur * echelle_)};
}

void DessinEcarts::montrer(const Historique& historique) {
    inf_ = historique.inf;
    sup_ = historique.sup;
    chiffres_ = Chiffres(historique);
    barres_.clear();
    for (const LigneHistorique& l : Lignes(historique, VueHistorique::Sorties)) {
        barres_.push_back({l.numero, l.ecart, TirageDe(historique, l).DateTirage});
    }
    annees_.clear();
    for (int numero = inf_; numero <= sup_; ++numero) {
        const auto i = static_cast<std::size_t>(numero - inf_);
        const int annee = historique.tirages[i].DateTirage / 10000;
        if (annees_.empty() || annees_.back().annee != annee) annees_.push_back({numero, annee});
    }
    setAccessibleDescription(versQt(LigneChiffres(chiffres_)));
    update();
}

// ------------------------------------------------------------------------------------- the scales

QRectF DessinEcarts::cadre() const {
    const int ligne = fontMetrics().height();
    const int gauche = fontMetrics().horizontalAdvance(QString::number(chiffres_.ecartMax)) + Unite;
    return QRectF(rect()).adjusted(gauche, ligne + Unite, -1, -ligne - 2);
}

double DessinEcarts::abscisse(int numero) const {
    const QRectF zone = cadre();
    return zone.left() + zone.width() * (numero - inf_) / (sup_ - inf_ + 1);
}

double DessinEcarts::hauteur(double ecart) const {
    return cadre().height() * ecart / std::max(chiffres_.ecartMax, 1);
}

double DessinEcarts::largeurBarre() const {
    return std::clamp(0.8 * cadre().width() / (sup_ - inf_ + 1), 1.0, LargeurBarreMax * echelle_);
}

const DessinEcarts::Barre* DessinEcarts::barreSous(const QPoint& place) const {
    if (barres_.empty()) return nullptr;
    const double demi = largeurBarre() / 2;
    const auto distance = [&](const Barre& b) {
        return std::abs(abscisse(b.numero) + demi - place.x());
    };
    const auto proche =
        std::min_element(barres_.begin(), barres_.end(),
                         [&](const Barre& a, const Barre& b) { return distance(a) < distance(b); });
    return distance(*proche) <= std::max(Portee, demi) ? &*proche : nullptr;
}

// --------------------------------------------------------------------------------------- painting

void DessinEcarts::paintEvent(QPaintEvent*) {
    if (sup_ < inf_) return;
    QPainter p(this);
    const Teintes t = teintes(palette());
    const QRectF zone = cadre();
    peindreAnnees(p, zone);

    const double largeur = largeurBarre();
    const auto barre = [&](int numero, int ecart, const QColor& couleur) {
        const double haute = std::max(hauteur(ecart), 2.0);  // a gap of 0 is there as well
        const double gauche = std::min(abscisse(numero), zone.right() - largeur);
        p.fillRect(QRectF(gauche, zone.bottom() - haute, largeur, haute), couleur);
    };
    for (const Barre& b : barres_) barre(b.numero, b.ecart, t.accent);
    if (chiffres_.ecartActuel > 0) {
        // The gap that runs: from the last time to the end, as high as it is long.
        const double gauche = abscisse(sup_ - chiffres_.ecartActuel + 1);
        QColor fond = t.alerte;
        fond.setAlphaF(0.25F);
        const double haute = hauteur(chiffres_.ecartActuel);
        p.fillRect(QRectF(gauche, zone.bottom() - haute, zone.right() - gauche, haute), fond);
        barre(sup_, chiffres_.ecartActuel, t.alerte);
    }
    p.setPen(t.bordure);
    p.drawLine(zone.bottomLeft(), zone.bottomRight());
    const double moyenne = zone.bottom() - hauteur(chiffres_.ecartMoyen);
    p.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
    p.drawLine(QPointF(zone.left(), moyenne), QPointF(zone.right(), moyenne));
    peindreLegende(p, zone);
}

/// A mark at the first draw of each year, and as many of their names as find room.
void DessinEcarts::peindreAnnees(QPainter& p, const QRectF& zone) const {
    const Teintes t = teintes(palette());
    const QFontMetrics mesures = fontMetrics();
    double libre = zone.left();
    for (const Annee& a : annees_) {
        const double x = abscisse(a.numero);
        const QString nom = QString::number(a.annee);
        const int large = mesures.horizontalAdvance(nom);
        if (x < libre || x + large > zone.right()) continue;
        p.setPen(t.bordure);
        p.drawLine(QPointF(x, zone.top()), QPointF(x, zone.bottom() + 3));
        p.setPen(t.discret);
        p.drawText(QPointF(x, zone.bottom() + 2 + mesures.ascent()), nom);
        libre = x + large + 3 * Unite;
    }
}

/// What the colours mean, in the line above the bars, and the ends of the scale.
void DessinEcarts::peindreLegende(QPainter& p, const QRectF& zone) const {
    const Teintes t = teintes(palette());
    const QFontMetrics mesures = fontMetrics();
    const auto gauche = [&](double y, const QString& texte) {
        p.setPen(t.discret);
        p.drawText(
            QRectF(0, y - mesures.height() / 2.0, zone.left() - Unite / 2.0, mesures.height()),
            Qt::AlignRight | Qt::AlignVCenter, texte);
    };
    gauche(zone.top(), QString::number(chiffres_.ecartMax));
    gauche(zone.bottom(), u"0"_s);

    double x = zone.left();
    const double milieu = mesures.height() / 2.0;
    const double cote = mesures.capHeight();
    const auto signe = [&](const QColor& couleur, const QString& texte) {
        if (couleur.isValid()) {
            p.fillRect(QRectF(x, milieu - cote / 2, cote, cote), couleur);
        } else {
            p.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DashLine));
            p.drawLine(QPointF(x, milieu), QPointF(x + 2 * cote, milieu));
            x += cote;
        }
        x += cote + Unite;
        p.setPen(palette().color(QPalette::Text));
        p.drawText(QRectF(x, 0, width() - x, mesures.height()), Qt::AlignVCenter, texte);
        x += mesures.horizontalAdvance(texte) + 4 * Unite;
    };
    signe(t.accent, u"Écart avant chaque sortie"_s);
    signe({}, u"Écart moyen : %1"_s.arg(chiffres_.ecartMoyen));
    signe(t.alerte, u"Écart actuel : %1"_s.arg(chiffres_.ecartActuel));
}

// ------------------------------------------------------------------------------------------ mouse

void DessinEcarts::mousePressEvent(QMouseEvent* evenement) {
    const Barre* barre = barreSous(evenement->position().toPoint());
    if (barre != nullptr && evenement->button() == Qt::LeftButton)
        Q_EMIT tirageChoisi(barre->numero);
}

bool DessinEcarts::event(QEvent* evenement) {
    if (evenement->type() != QEvent::ToolTip) return QWidget::event(evenement);
    const auto* demande = static_cast<QHelpEvent*>(evenement);
    const Barre* barre = barreSous(demande->pos());
    QToolTip::showText(demande->globalPos(),
                       barre == nullptr ? QString()
                                        : u"Tirage %1, %2 : écart %3"_s.arg(barre->numero)
                                              .arg(versQt(DateLongue(barre->date)))
                                              .arg(barre->ecart),
                       this);
    return true;
}

}  // namespace norvane::ui
