// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/AboutBox.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/Dates.h"
#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

TAboutBox::TAboutBox(Contexte& ctx, QWidget* parent) : QDialog(parent), contexte_(ctx) {
    setObjectName(u"TAboutBox"_s);
    setWindowTitle(u"À propos de Norvane"_s);
    auto* image = new QLabel(this);
    image->setPixmap(QIcon(u":/norvane/norvane.svg"_s).pixmap(96, 96));
    auto* nom = new QLabel(u"Norvane %1"_s.arg(QLatin1StringView(NORVANE_VERSION)), this);
    QFont grande = font();
    grande.setPixelSize(fontInfo().pixelSize() * 5 / 3);
    grande.setBold(true);
    nom->setFont(grande);
    auto* role = new QLabel(u"L'atelier du joueur de Loto"_s, this);
    faits_ = new QLabel(this);
    faits_->setObjectName(u"LabelFaits"_s);
    faits_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* boutons = new QDialogButtonBox(this);
    boutons->addButton(u"&Fermer"_s, QDialogButtonBox::RejectRole);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* textes = new QVBoxLayout;
    textes->setSpacing(Unite);
    for (QWidget* w : std::initializer_list<QWidget*>{nom, role, faits_}) textes->addWidget(w);
    auto* haut = new QHBoxLayout;
    haut->setSpacing(4 * Unite);
    haut->addWidget(image, 0, Qt::AlignTop);
    haut->addLayout(textes);
    auto* tout = new QVBoxLayout(this);
    tout->setContentsMargins(4 * Unite, 4 * Unite, 4 * Unite, 3 * Unite);
    tout->setSpacing(3 * Unite);
    tout->addLayout(haut);
    tout->addWidget(boutons);
    tout->setSizeConstraint(QLayout::SetFixedSize);
}

void TAboutBox::showEvent(QShowEvent* evenement) {
    const Base& base = contexte_.atelier.base;
    QString faits;
    if (base.NbTirages > 0) {
        const auto tirages = base.enUsage();
        faits = u"Base : %1 tirages, du %2\nau %3\n\n"_s.arg(base.NbTirages)
                    .arg(versQt(DateLongue(tirages.front().DateTirage)),
                         versQt(DateLongue(tirages.back().DateTirage)));
    }
    faits += u"Système : %1 (%2)\nQt %3\nDossier : %4"_s.arg(
        QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture(),
        QLatin1StringView(qVersion()), versQt(contexte_.atelier.Repertoire.string()));
    faits_->setText(faits);
    QDialog::showEvent(evenement);
}

}  // namespace norvane::ui
