// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/BandeTirage.h"

#include <algorithm>
#include <QPainter>
#include <QPainterPath>

#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

// Lengths of the 800 x 600 design.
constexpr std::array<int, NbBoules> GauchesEtroites{6, 48, 90, 132, 174};
constexpr std::array<int, NbBoules> GauchesLarges{6, 78, 150, 222, 294};
constexpr int LargeurEtroite = 37;
constexpr int LargeurLarge = 67;
constexpr int Hauteur = 37;
constexpr int GaucheImage = 230;
constexpr int CoteImage = 27;
constexpr int GaucheChance = 262;
constexpr int LargeurBande = 367;

/// The picture of the Chance: a clover with four leaves on a disc.
class ImageChance final : public QWidget {
 public:
    using QWidget::QWidget;

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const double cote = std::min(width(), height()) - 2.0;
        p.translate(width() / 2.0, height() / 2.0);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(CouleurChanceAllumee));
        p.drawEllipse(QPointF(0, 0), cote / 2, cote / 2);
        p.setBrush(Qt::white);
        const double u = cote / 32;
        for (int feuille = 0; feuille < 4; ++feuille) {
            QPainterPath coeur;
            coeur.moveTo(0, -0.6 * u);
            coeur.cubicTo(-9 * u, -6 * u, -5 * u, -13.5 * u, 0, -9.5 * u);
            coeur.cubicTo(5 * u, -13.5 * u, 9 * u, -6 * u, 0, -0.6 * u);
            p.drawPath(coeur);
            p.rotate(90);
        }
    }
};

}  // namespace

CelluleTirage::CelluleTirage(GenreStats genre, const QString& nom, QWidget* parent)
    : QLabel(parent), genre_(genre), nom_(nom) {
    setAlignment(Qt::AlignCenter);
    montrer(0, false);
}

void CelluleTirage::montrer(int valeur, bool commune) {
    commune_ = commune;
    setText(valeur == 0 ? QString() : QString::number(valeur));
    setAccessibleName(valeur == 0 ? nom_ : u"%1 : %2"_s.arg(nom_).arg(valeur));
    setAccessibleDescription(commune ? u"commun avec le tirage précédent"_s : QString());
    update();
}

QColor CelluleTirage::teinteTexte() const {
    const Teintes t = teintes(palette());
    if (commune_) return genre_ == GenreStats::Numeros ? t.numeroCommun : t.chanceCommune;
    return palette().color(QPalette::Active, QPalette::WindowText);
}

void CelluleTirage::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double trait = std::max(2.0, height() * 0.07);
    const QRectF aire = QRectF(rect()).adjusted(trait / 2 + 0.5, trait / 2 + 0.5, -trait / 2 - 0.5,
                                                -trait / 2 - 0.5);
    const bool sombre = estSombre(palette());
    const bool vide = text().isEmpty();
    const double rayon = aire.height() / 2;
    QRadialGradient boule(aire.center() - QPointF(aire.width() / 5, aire.height() / 4),
                          aire.width() * 0.8);
    boule.setColorAt(0, sombre ? QColor(0x4A, 0x53, 0x66) : QColor(0xFF, 0xFF, 0xFF));
    boule.setColorAt(1, sombre ? QColor(0x2A, 0x30, 0x3D) : QColor(0xDD, 0xE2, 0xEC));
    p.setBrush(vide ? QBrush(Qt::NoBrush) : QBrush(boule));
    const QColor cercle =
        QColor::fromRgb(genre_ == GenreStats::Numeros ? CouleurNumeroAllume : CouleurChanceAllumee);
    p.setPen(QPen(vide ? teintes(palette()).bordure : cercle, trait));
    p.drawRoundedRect(aire, rayon, rayon);
    QFont fonte = font();
    fonte.setPixelSize(std::max(12, static_cast<int>(height() * 0.44)));
    fonte.setBold(true);
    p.setFont(fonte);
    p.setPen(teinteTexte());
    p.drawText(rect(), Qt::AlignCenter, text());
}

BandeTirage::BandeTirage(double echelle, QWidget* parent) : QWidget(parent), echelle_(echelle) {
    for (int i = 0; i < NbBoules; ++i) {
        cellules_[static_cast<std::size_t>(i)] =
            new CelluleTirage(GenreStats::Numeros, u"Boule %1"_s.arg(i + 1), this);
    }
    cellules_[NbBoules] = new CelluleTirage(GenreStats::Chances, u"Chance"_s, this);
    for (std::size_t i = 0; i < cellules_.size(); ++i) {
        cellules_[i]->setObjectName(u"Label%1"_s.arg(i + 1));
    }
    image_ = new ImageChance(this);
    image_->setObjectName(u"ImageChance"_s);
    image_->setToolTip(u"Numéro Chance"_s);
    const auto px = [echelle](int longueur) { return qRound(longueur * echelle); };
    setFixedSize(px(LargeurBande), px(Hauteur));
    image_->setGeometry(px(GaucheImage), px((Hauteur - CoteImage) / 2), px(CoteImage),
                        px(CoteImage));
    disposer(true);
}

void BandeTirage::disposer(bool avecChance) {
    const auto px = [this](int longueur) { return qRound(longueur * echelle_); };
    const auto& gauches = avecChance ? GauchesEtroites : GauchesLarges;
    const int largeur = px(avecChance ? LargeurEtroite : LargeurLarge);
    for (std::size_t i = 0; i < NbBoules; ++i) {
        cellules_[i]->setGeometry(px(gauches[i]), 0, largeur, px(Hauteur));
    }
    cellules_[NbBoules]->setGeometry(px(GaucheChance), 0, px(LargeurEtroite), px(Hauteur));
    cellules_[NbBoules]->setVisible(avecChance);
    image_->setVisible(avecChance);
}

void BandeTirage::afficher(const Tirage& tirage, const Cases& communs) {
    for (std::size_t i = 0; i < NbBoules; ++i) {
        const int numero = tirage.Numeros[i];
        const bool commun = numero != 0 && communs.contient(GenreStats::Numeros, numero);
        cellules_[i]->montrer(numero, commun);
    }
    const bool commune = tirage.Chance != 0 && communs.contient(GenreStats::Chances, tirage.Chance);
    cellules_[NbBoules]->montrer(tirage.Chance, commune);
}

void BandeTirage::vider() {
    for (CelluleTirage* cellule : cellules_) cellule->montrer(0, false);
}

}  // namespace norvane::ui
