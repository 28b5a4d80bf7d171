// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/LegendeLignes.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// A small square in a colour that follows the palette.
class Pastille final : public QWidget {
 public:
    Pastille(QColor Teintes::*couleur, QWidget* parent) : QWidget(parent), couleur_(couleur) {
        setFixedSize(fontMetrics().height(), fontMetrics().height());
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        p.setBrush(teintes(palette()).*couleur_);
        p.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 3, 3);
    }

 private:
    QColor Teintes::*couleur_;
};

}  // namespace

LegendeLignes::LegendeLignes(QWidget* parent) : QWidget(parent) {
    auto* rang = new QHBoxLayout(this);
    rang->setContentsMargins(0, 0, 0, 0);
    rang->setSpacing(Unite / 2);
    struct Couleur {
        QColor Teintes::*teinte;
        QString texte, sens;
    };
    for (const Couleur& c :
         {Couleur{&Teintes::ligneSup, u"borne Sup"_s, u"Nombre de sorties égal à la borne Sup"_s},
          Couleur{&Teintes::ligneInf, u"borne Inf"_s,
                  u"Nombre de sorties égal à la borne Inf"_s}}) {
        auto* texte = legende(c.texte, this);
        poserIndice(texte, c.sens);
        rang->addWidget(new Pastille(c.teinte, this));
        rang->addWidget(texte);
        rang->addSpacing(Unite);
    }
    auto* grandes = legende(u"(09) : neuf tirages"_s, this);
    grandes->setObjectName(u"LegendeGrandesTailles"_s);
    poserIndice(grandes,
                u"(09) : neuf tirages contiennent la combinaison ; de 6 à 10 numéros, neuf tirages "
                u"ont leurs cinq numéros dans la combinaison"_s);
    rang->addWidget(grandes);
    rang->addStretch(1);
}

}  // namespace norvane::ui
