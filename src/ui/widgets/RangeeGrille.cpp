// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/RangeeGrille.h"

#include <algorithm>
#include <array>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include "common/Theme.h"
#include "widgets/BoutonPlanche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

struct Paire {
    QRgb clair, sombre;
};
constexpr std::array<Paire, 10> Couleurs = {{
    {qRgb(0xC6, 0x28, 0x28), qRgb(0xFF, 0x8A, 0x80)},  // red
    {qRgb(0x15, 0x65, 0xC0), qRgb(0x82, 0xB1, 0xFF)},  // blue
    {qRgb(0x2E, 0x7D, 0x32), qRgb(0x81, 0xC7, 0x84)},  // green
    {qRgb(0x6A, 0x1B, 0x9A), qRgb(0xCE, 0x93, 0xD8)},  // violet
    {qRgb(0xB4, 0x53, 0x09), qRgb(0xFF, 0xB7, 0x4D)},  // orange
    {qRgb(0x00, 0x70, 0x7A), qRgb(0x4D, 0xD0, 0xE1)},  // cyan
    {qRgb(0xC2, 0x18, 0x7B), qRgb(0xF4, 0x8F, 0xD1)},  // pink
    {qRgb(0x5D, 0x40, 0x37), qRgb(0xD7, 0xB8, 0xA6)},  // brown
    {qRgb(0x46, 0x5A, 0x70), qRgb(0xB0, 0xBE, 0xC5)},  // slate
    {qRgb(0x6B, 0x6B, 0x00), qRgb(0xE0, 0xE0, 0x6A)},  // olive
}};

}  // namespace

QColor couleurGrille(int numero, const QPalette& palette) {
    int place = numero % static_cast<int>(Couleurs.size()) - 1;
    if (place < 0) place = static_cast<int>(Couleurs.size()) - 1;
    const Paire& paire = Couleurs[static_cast<std::size_t>(place)];
    return QColor::fromRgb(estSombre(palette) ? paire.sombre : paire.clair);
}

/// One label: an empty place, or a value in its colour.
class RangeeGrille::Etiquette final : public QLabel {
 public:
    Etiquette(GenreStats genre, QWidget* parent) : QLabel(parent), genre_(genre) {
        setAlignment(Qt::AlignCenter);
        const int cote = fontMetrics().height() + 8;
        setMinimumSize(cote, cote);
        setMaximumHeight(cote * 3 / 2);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }

    void poser(const CaseGrille* valeur) {
        sortie_ = valeur != nullptr && valeur->sortie;
        police_ = valeur != nullptr ? valeur->police : QColor();
        setText(valeur != nullptr ? QString::number(valeur->valeur) : QString());
        update();
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const QRectF aire = QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75);
        const double rayon = genre_ == GenreStats::Numeros ? 5.0 : aire.height() / 2;
        const Teintes t = teintes(palette());
        const QColor fond = QColor::fromRgb(genre_ == GenreStats::Numeros ? CouleurNumeroAllume
                                                                          : CouleurChanceAllumee);
        QColor bord = t.bordure;
        if (!text().isEmpty()) bord = sortie_ ? fond.darker(130) : police_;
        p.setPen(QPen(bord, text().isEmpty() ? 1.0 : 1.5));
        p.setBrush(sortie_ ? QBrush(fond) : QBrush(Qt::NoBrush));
        p.drawRoundedRect(aire, rayon, rayon);
        QFont fonte = font();
        fonte.setPixelSize(std::max(QFontInfo(fonte).pixelSize(), height() * 45 / 100));
        fonte.setBold(true);
        p.setFont(fonte);
        if (sortie_) {
            dessinerAllume(p, aire, text(), fonte, fond);
        } else {
            p.setPen(police_.isValid() ? police_ : t.discret);
            p.drawText(aire, Qt::AlignCenter, text());
        }
    }

 private:
    GenreStats genre_;
    QColor police_;
    bool sortie_ = false;
};

RangeeGrille::RangeeGrille(const QString& nom, GenreStats genre, int nombre, QWidget* parent)
    : QFrame(parent), genre_(genre) {
    setObjectName(nom);
    setAccessibleName(genre == GenreStats::Numeros ? u"Numéros de la grille"_s
                                                   : u"Chances de la grille"_s);
    auto* ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(4);
    for (int i = 0; i < nombre; ++i) {
        etiquettes_.push_back(new Etiquette(genre, this));
        ligne->addWidget(etiquettes_.back(), 1);
    }
    setMaximumHeight(etiquettes_.front()->maximumHeight());
    // Both rows of a ticket share their columns.
    if (nombre < ChanceMax) ligne->addStretch(ChanceMax - nombre);
}

RangeeGrille::~RangeeGrille() = default;

void RangeeGrille::poser(const std::vector<CaseGrille>& cases) {
    QStringList textes;
    for (const CaseGrille& c : cases) {
        textes << QString::number(c.valeur) + (c.sortie ? u" (sorti)"_s : QString());
    }
    for (std::size_t i = 0; i < etiquettes_.size(); ++i) {
        etiquettes_[i]->poser(i < cases.size() ? &cases[i] : nullptr);
    }
    setAccessibleDescription(textes.join(u", "_s));
    setToolTip(cases.size() > etiquettes_.size() ? textes.join(u", "_s) : QString());
}

}  // namespace norvane::ui
