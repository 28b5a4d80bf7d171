// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/LigneBornes.h"

#include <algorithm>
#include <QPushButton>
#include <QScopedValueRollback>

#include "common/Theme.h"
#include "pages/Page.h"
#include "widgets/ChampNumero.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int ChiffresMax = 4;

struct Noms {
    const char16_t* legende;
    int editInf, hautBasInf, editSup, hautBasSup;  // "Edit" and "UpDown" stand before them
};
constexpr std::array<Noms, TailleCombMax - TailleCombMin + 1> NomsControles = {{
    {u"COMB &2", 2, 3, 6, 7},
    {u"COMB &3", 3, 4, 7, 8},
    {u"COMB &4", 4, 5, 8, 9},
    {u"COMB &5", 5, 6, 9, 10},
    {u"COMB &6", 12, 13, 13, 14},
    {u"COMB &7", 14, 15, 15, 16},
    {u"COMB &8", 16, 17, 17, 18},
    {u"COMB &9", 18, 19, 19, 20},
    {u"COMB 1&0", 10, 11, 11, 12},
}};

const Noms& nomsDe(int taille) {
    return NomsControles.at(static_cast<std::size_t>(taille - TailleCombMin));
}

LigneBornes::Cote creerCote(int edit, int hautBas, const QString& libelle, QWidget* parent) {
    auto* champ = new ChampNumero(u"Edit%1"_s.arg(edit), parent);
    champ->setMaxLength(ChiffresMax);
    champ->setAccessibleName(libelle);
    QFont gras = champ->font();
    gras.setBold(true);
    champ->setFont(gras);
    champ->setFixedWidth(QFontMetrics(gras).horizontalAdvance(u"0000"_s) + 3 * Unite);
    auto* fleches = new HautBas(u"UpDown%1"_s.arg(hautBas), parent);
    fleches->setAccessibleName(libelle);
    return {champ, fleches};
}

}  // namespace

LigneBornes::LigneBornes(int taille, QWidget* parent)
    : QObject(parent),
      bouton(new QPushButton(QString::fromUtf16(nomsDe(taille).legende), parent)),
      inf(creerCote(nomsDe(taille).editInf, nomsDe(taille).hautBasInf,
                    u"Borne Inf des combinaisons de %1 numéros"_s.arg(taille), parent)),
      sup(creerCote(nomsDe(taille).editSup, nomsDe(taille).hautBasSup,
                    u"Borne Sup des combinaisons de %1 numéros"_s.arg(taille), parent)),
      taille_(taille) {
    bouton->setObjectName(u"Comb%1Search"_s.arg(taille));
    bouton->setAccessibleName(u"Combinaisons de %1 numéros"_s.arg(taille));
    const int hauteur = bouton->fontMetrics().height() + 2 * Unite;
    bouton->setMinimumHeight(hauteur);
    bouton->setMaximumHeight(hauteur * 3 / 2);
    bouton->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    poserIndice(bouton, u"Calculer les combinaisons de %1 numéros"_s.arg(taille));
    relier(inf, false);
    relier(sup, true);
}

void LigneBornes::relier(Cote& cote, bool superieur) {
    connect(cote.edit, &QLineEdit::textChanged, this, [this, superieur] {
        if (garde_) return;
        superieur ? changerSup() : changerInf();
    });
    connect(cote.edit, &QLineEdit::editingFinished, this,
            [this, superieur] { superieur ? quitterSup() : quitterInf(); });
    const auto bouger = [this, &cote](int pas) { deplacer(cote, pas); };
    connect(cote.hautBas, &HautBas::deplacement, this, bouger);
    connect(cote.edit, &ChampNumero::deplacement, this, bouger);
    connect(cote.edit, &ChampNumero::extremite, this,
            [this, &cote](bool derniere) { deplacer(cote, derniere ? max_ : -max_); });
}

// ------------------------------------------------------------------------------------------ state

bool LigneBornes::calculee() const {
    return inf.edit->text() != QString::fromUtf16(NonCalculee);
}

void LigneBornes::poser(const BornesAffichees& bornes) {
    const QScopedValueRollback garde(garde_, true);
    min_ = bornes.min;
    max_ = bornes.max;
    inf.position = min_;
    sup.position = max_;
    inf.edit->setText(versQt(bornes.texteInf));
    sup.edit->setText(versQt(bornes.texteSup));
    poserIndice(inf.edit, versQt(bornes.indiceInf));
    poserIndice(sup.edit, versQt(bornes.indiceSup));
    ouvrirEdits();
}

void LigneBornes::appliquerMode(ModeListe mode) {
    mode_ = mode;
    ouvrirEdits();
}

void LigneBornes::ouvrirEdits() {
    const bool ouverts = mode_ == ModeListe::Bornes && calculee();
    for (const Cote& cote : {inf, sup}) {
        cote.edit->setReadOnly(!ouverts);
        cote.hautBas->setEnabled(ouverts);
        // Blue on the palette's own ground.
        const Teintes t = teintes(cote.edit->palette());
        QPalette couleurs = cote.edit->palette();
        couleurs.setColor(QPalette::Text, t.ligneSup);
        couleurs.setColor(QPalette::Base, ouverts ? t.carte : t.fondFerme);
        cote.edit->setPalette(couleurs);
    }
    bouton->setEnabled(mode_ == ModeListe::Extremes || ouverts);
}

void LigneBornes::montrerArret(bool enCours) {
    QFont fonte = bouton->font();
    fonte.setBold(enCours);
    bouton->setFont(fonte);
    bouton->setText(enCours ? u"STOP"_s : QString::fromUtf16(nomsDe(taille_).legende));
}

// --------------------------------------------------------------------------------------- handlers

bool LigneBornes::lisible(const Cote& cote) {
    return cote.edit->text() != QString::fromUtf16(NonCalculee);
}

int LigneBornes::valeur(const Cote& cote) {
    return cote.edit->text().toInt();
}

void LigneBornes::ecrire(Cote& cote, int v) {
    cote.edit->setText(QString::number(v));
}

/// The arrows stand where their edit does, unless that reads no value of theirs.
int LigneBornes::position(Cote& cote) {
    bool nombre = false;
    const int v = cote.edit->text().toInt(&nombre);
    if (nombre && v >= min_ && v <= max_) cote.position = v;
    return cote.position;
}

void LigneBornes::changerInf() {
    // An emptied edit is one being typed in: it is read when it is left.
    if (!lisible(inf) || inf.edit->text().isEmpty()) return;
    const int v = std::min(valeur(inf), max_);
    if (v > position(sup)) ecrire(sup, v);
    ecrire(inf, v);
}

void LigneBornes::quitterInf() {
    if (!lisible(inf)) return;
    int v = valeur(inf);
    if (v < min_) {
        v = min_;
        if (min_ > position(sup)) ecrire(sup, min_);
    }
    ecrire(inf, v);
}

void LigneBornes::changerSup() {
    if (!lisible(sup) || sup.edit->text().isEmpty()) return;
    const int v = std::min(valeur(sup), max_);
    if (v < valeur(inf) && v >= min_) ecrire(inf, v);
    ecrire(sup, v);
}

void LigneBornes::quitterSup() {
    if (!lisible(sup)) return;
    ecrire(sup, valeur(sup) < min_ ? position(inf) : valeur(sup));
}

void LigneBornes::deplacer(Cote& cote, int pas) {
    if (!cote.hautBas->isEnabled()) return;
    ecrire(cote, std::clamp(position(cote) + pas, min_, max_));
    // The one that is passed goes along.
    if (position(inf) > position(sup)) ecrire(pas > 0 ? sup : inf, position(cote));
}

void LigneBornes::valider() {
    quitterInf();
    quitterSup();
}

}  // namespace norvane::ui
