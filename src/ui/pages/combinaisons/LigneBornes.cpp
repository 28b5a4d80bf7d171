// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/LigneBornes.h"

#include <algorithm>
#include <QPushButton>
#include <QScopedValueRollback>

#include "common/Contexte.h"
#include "common/Theme.h"
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

QString indiceBorne(const QString& cote, const BornesAffichees& bornes) {
    return bornes.calculee ? u"Borne %1 calculée pour %2 tirages"_s.arg(cote).arg(bornes.NbTirages)
                           : u"Borne %1 en attente de calcul"_s.arg(cote);
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
    relier(inf);
    relier(sup);
}

void LigneBornes::relier(Cote& cote) {
    connect(cote.edit, &QLineEdit::textChanged, this, [this, &cote](const QString& texte) {
        if (!garde_) saisir(cote, texte);
    });
    connect(cote.edit, &QLineEdit::editingFinished, this, [this, &cote] { quitter(cote); });
    const auto bouger = [this, &cote](int pas) { deplacer(cote, pas); };
    connect(cote.hautBas, &HautBas::deplacement, this, bouger);
    connect(cote.edit, &ChampNumero::deplacement, this, bouger);
    connect(cote.edit, &ChampNumero::extremite, this, [this, &cote](bool derniere) {
        deplacer(cote, derniere ? bornes_.BorneSup : -bornes_.BorneSup);
    });
}

// ------------------------------------------------------------------------------------------ state

void LigneBornes::poser(const BornesAffichees& bornes) {
    bornes_ = bornes;
    inf.valeur = bornes.BorneInf;
    sup.valeur = bornes.BorneSup;
    for (Cote* cote : {&inf, &sup}) peindre(*cote, cote->saisie = cote->valeur);
    tenir();
    poserIndice(inf.edit, indiceBorne(u"Inf"_s, bornes));
    poserIndice(sup.edit, indiceBorne(u"Sup"_s, bornes));
    ouvrirEdits();
}

void LigneBornes::suivre(const BornesAffichees& bornes) {
    if (bornes != bornes_) poser(bornes);
}

void LigneBornes::appliquerMode(ModeListe mode) {
    mode_ = mode;
    ouvrirEdits();
}

bool LigneBornes::ouverte() const {
    return mode_ == ModeListe::Bornes && bornes_.calculee;
}

void LigneBornes::ouvrirEdits() {
    for (const Cote* cote : {&inf, &sup}) {
        cote->edit->setReadOnly(!ouverte());
        cote->hautBas->setEnabled(ouverte());
    }
    bouton->setEnabled(mode_ == ModeListe::Extremes || ouverte());
    reteinter();
}

void LigneBornes::reteinter() {
    for (const Cote* cote : {&inf, &sup}) {
        // Blue on the palette's own ground.
        QPalette couleurs = cote->edit->palette();
        const Teintes t = teintes(couleurs);
        couleurs.setColor(QPalette::Text, t.ligneSup);
        couleurs.setColor(QPalette::Base, ouverte() ? t.carte : t.fondFerme);
        cote->edit->setPalette(couleurs);
    }
}

void LigneBornes::montrerArret(bool enCours) {
    QFont fonte = bouton->font();
    fonte.setBold(enCours);
    bouton->setFont(fonte);
    bouton->setText(enCours ? u"STOP"_s : QString::fromUtf16(nomsDe(taille_).legende));
}

// --------------------------------------------------------------------------------------- handlers

/// The number typed stands as it is, but for one above the limit.
void LigneBornes::saisir(Cote& cote, const QString& texte) {
    cote.saisie = std::min(texte.toInt(), bornes_.BorneSup);
    // An emptied edit is one being typed in, and so is one below the limit: mended when it is left.
    if (texte.isEmpty()) return;
    if (cote.saisie >= bornes_.BorneInf) choisir(cote, cote.saisie);
    peindre(cote, cote.saisie);
}

void LigneBornes::quitter(Cote& cote) {
    if (!bornes_.calculee) return;
    const int repli = &cote == &inf ? bornes_.BorneInf : inf.valeur;
    choisir(cote, cote.saisie < bornes_.BorneInf ? repli : cote.saisie);
    tenir();
}

void LigneBornes::deplacer(Cote& cote, int pas) {
    if (!ouverte()) return;
    tenir();
    choisir(cote, std::clamp(cote.valeur + pas, bornes_.BorneInf, bornes_.BorneSup));
    tenir();
}

void LigneBornes::choisir(Cote& cote, int v) {
    const bool basse = &cote == &inf;
    Cote& autre = basse ? sup : inf;
    peindre(cote, cote.valeur = cote.saisie = v);
    autre.valeur = autre.saisie = basse ? std::max(v, sup.propre) : std::min(v, inf.propre);
    peindre(autre, autre.valeur);
    if (!cote.edit->hasFocus()) tenir();
}

/// What stands holds from now on.
void LigneBornes::tenir() {
    inf.propre = inf.valeur;
    sup.propre = sup.valeur;
}

void LigneBornes::peindre(const Cote& cote, int v) {
    const QScopedValueRollback garde(garde_, true);
    cote.edit->setText(bornes_.calculee ? QString::number(v) : u"NC"_s);
}

void LigneBornes::valider() {
    quitter(inf);
    quitter(sup);
}

}  // namespace norvane::ui
