// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/PanneauInternet.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "base/Dates.h"
#include "common/Connexion.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "dialogs/MiseAJourTirages.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double LargeurJauge = 80;  // design units
const QString Indice = u"Mise à jour des tirages depuis l'Internet"_s;

QDate jour(int date) {
    return {date / 10000, date / 100 % 100, date % 100};
}

/// "il y a 3 jours"; nothing for a day to come.
QString depuis(QDate tirage, QDate aujourdhui) {
    const qint64 jours = tirage.daysTo(aujourdhui);
    if (jours < 0) return {};
    if (jours == 0) return u", aujourd'hui"_s;
    return jours == 1 ? u", hier"_s : u", il y a %1 jours"_s.arg(jours);
}

}  // namespace

PanneauInternet::PanneauInternet(Contexte& ctx, QWidget* parent)
    : QWidget(parent),
      contexte_(ctx),
      miseAJour_(new MiseAJourTirages(ctx, this)),
      detecteur_(new Connexion(this)),
      age_(legende({}, this)),
      jackpot_(new QLabel(this)),
      connexion_(new QLabel(this)),
      internet_(new QPushButton(u"&Internet"_s, this)) {
    age_->setObjectName(u"LabelDernierTirage"_s);
    jackpot_->setObjectName(u"LabelJackpotProchain"_s);
    connexion_->setObjectName(u"RxLabelInternet"_s);
    internet_->setObjectName(u"Majweb"_s);
    poserIndice(internet_, Indice);
    auto* ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(2 * Unite);
    auto* jauge = new QProgressBar(this);
    jauge->setObjectName(u"JaugeInternet"_s);
    jauge->setMaximumWidth(ctx.px(LargeurJauge));
    jauge->setTextVisible(false);
    jauge->hide();
    miseAJour_->poserJauge(jauge);
    ligne->addWidget(age_);
    ligne->addStretch(1);
    ligne->addWidget(jackpot_);
    ligne->addWidget(jauge);
    ligne->addWidget(connexion_);
    ligne->addWidget(internet_);
    connect(internet_, &QPushButton::clicked, this, [this] {
        detecteur_->demarrer();
        miseAJour_->MajwebClick();
    });
    connect(miseAJour_, &MiseAJourTirages::enCoursChange, this,
            [this] { internet_->setText(miseAJour_->enCours() ? u"STOP"_s : u"&Internet"_s); });
    connect(detecteur_, &Connexion::change, this, &PanneauInternet::montrerConnexion);
    connect(miseAJour_, &MiseAJourTirages::jackpotLu, jackpot_, &QLabel::setText);
    suivre();
}

void PanneauInternet::suivre() {
    const Base& base = contexte_.atelier.base;
    if (base.NbTirages == 0) return;
    const int date = base.Tirages[static_cast<std::size_t>(base.NbTirages - 1)].DateTirage;
    age_->setText(u"Dernier tirage : "_s + versQt(DateLongue(date)) +
                  depuis(jour(date), contexte_.services.horloge->aujourdhui()));
}

void PanneauInternet::montrerConnexion(bool enLigne) {
    connexion_->setText(enLigne ? u"Online"_s : u"Offline"_s);
    QPalette palette = connexion_->palette();
    palette.setColor(QPalette::WindowText, enLigne ? QColor(0x00, 0xFF, 0x00) : QColor(0xFF, 0, 0));
    connexion_->setPalette(palette);
}

}  // namespace norvane::ui
