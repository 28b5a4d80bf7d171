// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ColonnesStats.h"

#include <QPainter>
#include <QPixmap>
#include <QRadialGradient>

#include "base/Textes.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

const QString FinIndice = u": cliquez pour trier (SHIFT+CLIC=tri secondaire)"_s;

constexpr double PolicePosition = 8.0;  // pixels, times Echelle
constexpr double PoliceElement = 13.0;  // pixels, times Echelle
constexpr double LargeurDate = 215.0;   // design units

ColonneTableau chiffres(const QString& entete, const QString& sens, double largeur,
                        const QString& etalon) {
    ColonneTableau c;
    c.entete = entete;
    c.indice = sens + FinIndice;
    c.largeur = largeur;
    c.alignement = Qt::AlignRight;
    c.etalon = etalon;
    c.nature = NatureColonne::Entier;
    return c;
}

ColonneTableau valeurs(NatureColonne nature, const QString& entete, const QString& sens,
                       double largeur, const QString& etalon) {
    ColonneTableau c = chiffres(entete, sens, largeur, etalon);
    c.nature = nature;
    return c;
}

ColonneTableau ratio() {
    return valeurs(NatureColonne::Pourcents, u"Ratio"_s, u"Ratio de Sorties"_s, 56, u"00,00% "_s);
}

ColonneTableau date() {
    ColonneTableau c;
    c.entete = u"Date"_s;
    c.indice = u"Date de plus récente apparition"_s + FinIndice;
    c.largeur = LargeurDate;
    c.alignement = Qt::AlignLeft;
    c.adaptable = false;
    c.nature = NatureColonne::Date;
    return c;
}

}  // namespace

std::vector<ColonneTableau> colonnesStats(GenreStats genre) {
    const bool numeros = genre == GenreStats::Numeros;
    ColonneTableau pos;
    pos.entete = u"Pos"_s;
    pos.indice =
        u"Position %1 dans le tri actuel (clic sur l'en-tête des colonnes pour trier)"_s.arg(
            numeros ? u"du numéro"_s : u"de la chance"_s);
    pos.largeur = 28;
    pos.police = PolicePosition;
    pos.position = true;
    pos.etalon = u"49"_s;
    pos.nature = NatureColonne::Entier;

    ColonneTableau num = chiffres(numeros ? u"Num"_s : u"Chance"_s,
                                  numeros ? u"Numéros"_s : u"Chances"_s, 34, u"49"_s);
    num.alignement = Qt::AlignHCenter;
    num.police = PoliceElement;
    num.gras = true;
    if (!numeros) num.image = imageChance();

    using enum NatureColonne;
    return {pos,
            num,
            chiffres(u"NbS"_s, u"Nombre de Sorties"_s, 34, u"000"_s),
            ratio(),
            date(),
            chiffres(u"E"_s, u"Écart"_s, 30, u"0000"_s),
            valeurs(Centiemes, u"EM"_s, u"Écart Moyen"_s, 38, u"0000,00"_s),
            valeurs(Texte, u"Ecart max"_s, u"Écart Max"_s, 70, u"0000  (00 0000)"_s),
            chiffres(u"S"_s, u"Suite"_s, 24, u"00"_s),
            valeurs(Texte, u"Suite max"_s, u"Suite Max"_s, 70, u"00  (000 0000)"_s)};
}

std::vector<ColonneTableau> colonnesCombinaison() {
    ColonneTableau sortis = chiffres(u"Sortis"_s, u"Nombre de bons numéros"_s, 40, u"0"_s);
    sortis.gras = true;
    ColonneTableau quand = date();
    quand.largeur = 100;
    quand.adaptable = true;
    quand.etalon = u"mercredi 30 septembre 2026"_s;
    return {sortis,
            chiffres(u"Nbfois"_s, u"Nombre de tirages"_s, 44, u"0000"_s),
            ratio(),
            quand,
            chiffres(u"Ecart"_s, u"Écart"_s, 40, u"0000"_s),
            valeurs(NatureColonne::Texte, u"Ecartmax"_s, u"Écart Max"_s, 70, u"0000  (00 0000)"_s),
            chiffres(u"Suite"_s, u"Suite"_s, 36, u"0000"_s),
            valeurs(NatureColonne::Texte, u"Suitemax"_s, u"Suite Max"_s, 70, u"0000  (00 0000)"_s)};
}

std::vector<ColonneTableau> colonnesCategories() {
    std::vector<ColonneTableau> colonnes = colonnesCombinaison();
    ColonneTableau& sortis = colonnes.front();
    sortis.indice = u"Bons numéros, et la chance"_s + FinIndice;
    sortis.alignement = Qt::AlignLeft;
    sortis.etalon = u"5 + 00"_s;
    for (const std::size_t maximum : {std::size_t{5}, std::size_t{7}})
        colonnes[maximum].etalon = u"0000  (000 00/00/0000)"_s;
    return colonnes;
}

CelluleTableau celluleRatio(const Cellule& ratio, bool barre) {
    CelluleTableau cellule{ratio, {}, -1, {}};
    if (barre) cellule.barre = static_cast<int>(ratio.cle);
    return cellule;
}

ContenuBulle bulleRatio(const VueTableau& table, const QModelIndex& index) {
    const auto& barre = table.modele().cellule(index).barre;
    if (!barre) return {};
    return {u"Ratio Précis"_s, QString::fromStdString(FormaterDecimal(*barre * 0.01, 1)) + u"% "_s};
}

std::vector<DegradeCellule> degradesStats(GenreStats genre) {
    const DegradeCellule absent{QColor(0x4D, 0xA6, 0xFF), QColor(0xDF, 0xEF, 0xFF), Qt::black};
    const DegradeCellule present =
        genre == GenreStats::Numeros
            ? DegradeCellule{QColor(0x00, 0x00, 0x80), QColor(0x35, 0x36, 0xFF), Qt::white}
            : DegradeCellule{QColor(0x9D, 0x00, 0x00), QColor(0xDD, 0x00, 0x00), Qt::white};
    return {absent, present};
}

QIcon imageChance() {
    QIcon icone;
    for (const int cote : {16, 24, 32, 48, 64, 96}) {
        QPixmap image(cote, cote);
        image.fill(Qt::transparent);
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        const QRectF cadre(0.5, 0.5, cote - 1, cote - 1);
        QRadialGradient lueur(QPointF(cote * 0.36, cote * 0.30), cote * 0.75);
        lueur.setColorAt(0, QColor(0xFF, 0x8A, 0x80));
        lueur.setColorAt(0.45, QColor(0xE0, 0x1B, 0x1B));
        lueur.setColorAt(1, QColor(0x8E, 0x00, 0x00));
        p.setPen(Qt::NoPen);
        p.setBrush(lueur);
        p.drawEllipse(cadre);
        QFont lettre;
        lettre.setPixelSize(cote * 62 / 100);
        lettre.setBold(true);
        p.setFont(lettre);
        p.setPen(Qt::white);
        p.drawText(cadre, Qt::AlignCenter, u"C"_s);
        p.end();
        icone.addPixmap(image);
    }
    return icone;
}

}  // namespace norvane::ui
