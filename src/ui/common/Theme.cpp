// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Theme.h"

#include <algorithm>
#include <QApplication>
#include <QDBusInterface>
#include <QDBusReply>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QStyleFactory>
#include <QToolTip>

// The macro must stand outside of every namespace.
static void initRessources() {
    Q_INIT_RESOURCE(norvane);
}

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

struct Gamme {
    QColor fenetre, carte, alternance, texte, discret, bordure, bouton, accent, surAccent, lien;
};

const Gamme Claire{QColor(0xF1, 0xF4, 0xF9), QColor(0xFF, 0xFF, 0xFF), QColor(0xF3, 0xF6, 0xFC),
                   QColor(0x1A, 0x22, 0x33), QColor(0x5A, 0x66, 0x7D), QColor(0xCF, 0xD7, 0xE4),
                   QColor(0xFA, 0xFB, 0xFE), QColor(0x2B, 0x57, 0xD9), QColor(0xFF, 0xFF, 0xFF),
                   QColor(0x1D, 0x4E, 0xD8)};
const Gamme Sombre{QColor(0x1A, 0x1E, 0x27), QColor(0x22, 0x27, 0x32), QColor(0x27, 0x2D, 0x3A),
                   QColor(0xE7, 0xEB, 0xF3), QColor(0x9D, 0xA8, 0xBC), QColor(0x3A, 0x42, 0x52),
                   QColor(0x2C, 0x33, 0x41), QColor(0x6C, 0x8F, 0xFF), QColor(0x0F, 0x14, 0x20),
                   QColor(0x8F, 0xAE, 0xFF)};

QPalette faire(const Gamme& g) {
    QPalette p;
    p.setColor(QPalette::Window, g.fenetre);
    p.setColor(QPalette::WindowText, g.texte);
    p.setColor(QPalette::Base, g.carte);
    p.setColor(QPalette::AlternateBase, g.alternance);
    p.setColor(QPalette::Text, g.texte);
    p.setColor(QPalette::Button, g.bouton);
    p.setColor(QPalette::ButtonText, g.texte);
    p.setColor(QPalette::BrightText, Qt::white);
    p.setColor(QPalette::ToolTipBase, g.carte);
    p.setColor(QPalette::ToolTipText, g.texte);
    p.setColor(QPalette::PlaceholderText, g.discret);
    p.setColor(QPalette::Highlight, g.accent);
    p.setColor(QPalette::HighlightedText, g.surAccent);
    p.setColor(QPalette::Link, g.lien);
    p.setColor(QPalette::LinkVisited, g.lien);
    p.setColor(QPalette::Light, g.carte.lighter(106));
    p.setColor(QPalette::Midlight, g.bordure.lighter(108));
    p.setColor(QPalette::Mid, g.bordure.darker(115));
    p.setColor(QPalette::Dark, g.bordure.darker(130));
    p.setColor(QPalette::Shadow, g.bordure.darker(180));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        QColor eteint = g.discret;
        eteint.setAlpha(150);
        p.setColor(QPalette::Disabled, role, eteint);
    }
    p.setColor(QPalette::Disabled, QPalette::Highlight, g.bordure);
    return p;
}

/// The desktop's own wish: its settings portal when there is one, else the palette that the
/// platform has given us before we set our own.
bool bureauSombre(const QPalette& plateforme) {
    QDBusInterface portail(u"org.freedesktop.portal.Desktop"_s,
                           u"/org/freedesktop/portal/desktop"_s,
                           u"org.freedesktop.portal.Settings"_s);
    portail.setTimeout(100);
    if (portail.isValid()) {
        const QDBusReply<QVariant> reponse =
            portail.call(u"Read"_s, u"org.freedesktop.appearance"_s, u"color-scheme"_s);
        if (reponse.isValid()) {
            QVariant valeur = reponse.value();
            while (valeur.canConvert<QDBusVariant>()) {
                valeur = valeur.value<QDBusVariant>().variant();
            }
            const int schema = valeur.toInt();  // 1 dark, 2 light, 0 no preference
            if (schema == 1 || schema == 2) return schema == 1;
        }
    }
    return estSombre(plateforme);
}

QString feuille(const Gamme& g) {
    return uR"(
QToolTip { color: %texte; background: %carte; border: 1px solid %bordure; padding: 4px 6px; }
QTabWidget::pane { border: 0; border-top: 1px solid %bordure; }
QTabBar { qproperty-drawBase: 0; }
QTabBar::tab { color: %discret; background: transparent; border: 0; border-bottom: 3px solid transparent;
  padding: 7px 11px 5px 11px; }
QTabBar::tab:hover { color: %texte; background: %alternance; }
QTabBar::tab:selected { color: %accent; border-bottom: 3px solid %accent; }
QTabBar::tab:focus { color: %texte; }
QStatusBar { background: %carte; border-top: 1px solid %bordure; }
QStatusBar::item { border: 0; }
QMenuBar { background: %carte; border-bottom: 1px solid %bordure; }
QMenuBar::item { padding: 5px 10px; background: transparent; }
QMenuBar::item:selected { background: %alternance; color: %accent; }
QGroupBox { border: 1px solid %bordure; border-radius: 6px; margin-top: 0.7em; padding: 0.75em 8px 6px 8px;
  background: %carte; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; color: %discret; }
QRadioButton::indicator { width: 13px; height: 13px; border: 1px solid %discret; border-radius: 7px;
  background: %carte; }
QRadioButton::indicator:hover { border-color: %accent; }
QRadioButton::indicator:checked { width: 5px; height: 5px; border: 5px solid %accent; border-radius: 7px; }
QCheckBox::indicator, QListView::indicator { width: 14px; height: 14px; border: 1px solid %discret; border-radius: 3px;
  background: %carte; }
QCheckBox::indicator:hover, QListView::indicator:hover { border-color: %accent; }
QCheckBox::indicator:checked, QListView::indicator:checked { border-color: %accent; background: %accent; image: url(:/norvane/coche.svg); }
QFrame#Carte { background: %carte; border: 1px solid %bordure; border-radius: 8px; }
QHeaderView::section { background: %alternance; color: %texte; border: 0; border-right: 1px solid %bordure;
  border-bottom: 1px solid %bordure; padding: 4px 6px; font-weight: 600; }
QTableView { border: 1px solid %bordure; gridline-color: %bordure; }
)"_s.replace("%texte"_L1, g.texte.name())
        .replace("%discret"_L1, g.discret.name())
        .replace("%carte"_L1, g.carte.name())
        .replace("%bordure"_L1, g.bordure.name())
        .replace("%alternance"_L1, g.alternance.name())
        .replace("%accent"_L1, g.accent.name());
}

/// A family with figures of one width, and a size that is read with ease from 768 lines to 2160.
QFont police() {
    QFont fonte = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    const QStringList connues = QFontDatabase::families();
    for (const QString& famille : {u"Noto Sans"_s, u"DejaVu Sans"_s}) {
        if (connues.contains(famille)) {
            fonte.setFamily(famille);
            break;
        }
    }
    const int hauteur = QGuiApplication::primaryScreen()->size().height();
    fonte.setPixelSize(std::clamp(hauteur / 66, 13, 33));
    return fonte;
}

}  // namespace

void chargerRessources() {
    initRessources();
}

Apparence apparenceDe(const std::string& cle) {
    if (cle == "claire") return Apparence::Claire;
    return cle == "sombre" ? Apparence::Sombre : Apparence::Auto;
}

bool estSombre(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

void appliquerTheme(QApplication& app, Apparence apparence) {
    static const QPalette plateforme = QGuiApplication::palette();
    const bool sombre = apparence == Apparence::Sombre ||
                        (apparence == Apparence::Auto && bureauSombre(plateforme));
    const Gamme& gamme = sombre ? Sombre : Claire;
    app.setStyle(QStyleFactory::create(u"Fusion"_s));
    app.setPalette(faire(gamme));
    app.setFont(police());
    QToolTip::setFont(app.font());
    app.setStyleSheet(feuille(gamme));
}

Teintes teintes(const QPalette& palette) {
    const bool sombre = estSombre(palette);
    const Gamme& g = sombre ? Sombre : Claire;
    Teintes t;
    t.bordure = g.bordure;
    t.carte = g.carte;
    t.discret = g.discret;
    t.accent = g.accent;
    t.alerte = sombre ? QColor(0xFF, 0xB4, 0x54) : QColor(0xC2, 0x41, 0x0C);
    t.numeroCommun = sombre ? QColor(0xFF, 0x8A, 0x8A) : QColor(CouleurNumeroCommun);
    t.chanceCommune = sombre ? QColor(0x8F, 0xAE, 0xFF) : QColor(CouleurChanceCommune);
    t.ligneSup = sombre ? QColor(0x8F, 0xAE, 0xFF) : QColor(CouleurLigneSup);
    t.ligneInf = sombre ? QColor(0x6F, 0xD9, 0x8B) : QColor(CouleurLigneInf);
    t.fondFerme = g.fenetre;
    t.barreBasse = sombre ? QColor(0x3E, 0x7B, 0xD6) : QColor(0x7F, 0xB2, 0xF5);
    t.barreMoyenne = sombre ? QColor(0xD1, 0x9A, 0x2E) : QColor(0xF5, 0xC1, 0x55);
    t.barreHaute = sombre ? QColor(0xC8, 0x4B, 0x4B) : QColor(0xEE, 0x7B, 0x6B);
    t.barreBord = sombre ? QColor(0x9A, 0xB2, 0xFF) : QColor(0x00, 0x00, 0x80);
    return t;
}

}  // namespace norvane::ui
