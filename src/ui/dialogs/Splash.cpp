// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/Splash.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>

namespace norvane::ui {

using namespace Qt::StringLiterals;

TSplash::TSplash()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
    setObjectName(u"TSplash"_s);
    setFixedSize(526, 316);
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
}

void TSplash::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient fond(0, 0, width(), height());
    fond.setColorAt(0, QColor(0x14, 0x20, 0x4A));
    fond.setColorAt(1, QColor(0x2B, 0x57, 0xD9));
    p.fillRect(rect(), fond);
    QSvgRenderer(u":/norvane/norvane.svg"_s).render(&p, QRectF(48, 82, 152, 152));
    QFont fonte = font();
    fonte.setPixelSize(52);
    fonte.setBold(true);
    p.setFont(fonte);
    p.setPen(Qt::white);
    p.drawText(QRectF(224, 96, 290, 64), Qt::AlignLeft | Qt::AlignVCenter, u"Norvane"_s);
    fonte.setPixelSize(17);
    fonte.setBold(false);
    p.setFont(fonte);
    p.setPen(QColor(255, 255, 255, 210));
    p.drawText(QRectF(226, 162, 290, 28), Qt::AlignLeft | Qt::AlignVCenter,
               u"L'atelier du joueur de Loto"_s);
    fonte.setPixelSize(13);
    p.setFont(fonte);
    p.drawText(QRectF(226, 192, 290, 24), Qt::AlignLeft | Qt::AlignVCenter,
               u"Version %1"_s.arg(QLatin1StringView(NORVANE_VERSION)));
}

}  // namespace norvane::ui
