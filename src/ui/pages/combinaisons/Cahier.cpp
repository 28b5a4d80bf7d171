// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/Cahier.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

enum PageCahier { PageLegende, PageTampons };

/// By ModeListe.
constexpr std::array<const char16_t*, 3> AidesModes = {
    u"Cliquez sur COMB 2 à COMB 10 pour lister les combinaisons les plus sorties de l'intervalle, "
    u"et les moins sorties quand elles sont suivies. Le résultat est gardé : un nouveau clic "
    u"l'affiche sans calcul.",
    u"Choisissez les bornes Inf et Sup d'une taille, puis cliquez sur son bouton : toutes les "
    u"combinaisons dont le nombre de sorties est compris entre les deux bornes sont stockées en "
    u"mémoire. Une taille dont les bornes lisent NC se calcule d'abord dans le premier mode.",
    u""};

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

Cahier::Cahier(QWidget* parent) : QStackedWidget(parent) {
    setObjectName(u"Cahier"_s);
    insertWidget(PageLegende, creerLegende());
    insertWidget(PageTampons, creerTampons());
}

void Cahier::montrerMode(ModeListe mode) {
    aideMode_->setText(QString::fromUtf16(AidesModes[static_cast<std::size_t>(mode)]));
    setCurrentIndex(mode == ModeListe::Manipulation ? PageTampons : PageLegende);
}

Fiche* Cahier::creerLegende() {
    auto* fiche = new Fiche(this);
    aideMode_ = new QLabel(fiche);
    aideMode_->setObjectName(u"AideMode"_s);
    aideMode_->setWordWrap(true);
    fiche->pile->addWidget(aideMode_);
    fiche->pile->addSpacing(Unite);
    struct Couleur {
        QColor Teintes::*teinte;
        QString sens;
    };
    for (const Couleur& c :
         {Couleur{&Teintes::ligneSup, u"Nombre de sorties égal à la borne Sup"_s},
          Couleur{&Teintes::ligneInf, u"Nombre de sorties égal à la borne Inf"_s}}) {
        auto* rang = rangee({new Pastille(c.teinte, fiche), new QLabel(c.sens, fiche)});
        rang->setSpacing(Unite);
        rang->addStretch(1);
        fiche->pile->addLayout(rang);
    }
    fiche->pile->addWidget(legende(u"NC : borne non calculée"_s, fiche));
    auto* grandes = legende(
        u"(09) : neuf tirages contiennent la combinaison ; de 6 à 10 numéros, neuf tirages ont "
        u"leurs cinq numéros dans la combinaison"_s,
        fiche);
    grandes->setObjectName(u"LegendeGrandesTailles"_s);
    grandes->setWordWrap(true);
    fiche->pile->addWidget(grandes);
    fiche->pile->addStretch(1);
    return fiche;
}

Fiche* Cahier::creerTampons() {
    auto* fiche = new Fiche(this);
    auto* promesse = new QLabel(
        u"Les listes tampons I, II et III prendront place ici : copie, déplacement et réunion de "
        u"combinaisons avec la liste en mémoire."_s,
        fiche);
    promesse->setObjectName(u"PromesseListes"_s);
    promesse->setWordWrap(true);
    fiche->pile->addWidget(promesse);
    fiche->pile->addStretch(1);
    return fiche;
}

}  // namespace norvane::ui
