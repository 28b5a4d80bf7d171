// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "impression/DessinBulletin.h"

#include <algorithm>
#include <QPagedPaintDevice>
#include <QPainter>

#include "base/Textes.h"
#include "base/Travail.h"
#include "common/Contexte.h"
#include "widgets/Impression.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double UnitesParPouce = 25.4 * UnitesParMm;
constexpr double PartTexte = 0.42;  // of the side of a box
constexpr QRgb Feuille = qRgb(0xFF, 0xFE, 0xFA);
constexpr QRgb FeuilleVide = qRgb(0xEE, 0xEE, 0xEA);
constexpr QRgb Bordure = qRgb(0xB8, 0xBC, 0xC8);
constexpr QRgb EncreNumeros = qRgb(0x3F, 0x5F, 0xB5);
constexpr QRgb EncreChances = qRgb(0xC6, 0x28, 0x28);
constexpr QRgb EncreOptions = qRgb(0x55, 0x5B, 0x66);
constexpr QRgb EncreRegle = qRgb(0x20, 0x20, 0x20);

QColor encre(BlocBulletin bloc) {
    if (bloc == BlocBulletin::Numero) return EncreNumeros;
    return bloc == BlocBulletin::Chance ? EncreChances : EncreOptions;
}

/// What stands in a box.
QString texteCase(BlocBulletin bloc, int valeur) {
    static constexpr std::array<const char16_t*, 3> jokers = {u"1€", u"2€", u"±1"};
    static constexpr std::array<const char16_t*, 3> jours = {u"L", u"M", u"S"};
    const auto rang = static_cast<std::size_t>(valeur - 1);
    switch (bloc) {
        case BlocBulletin::Second:
            return u"2"_s;
        case BlocBulletin::Joker1:
        case BlocBulletin::Joker2:
            return QString::fromUtf16(jokers.at(rang));
        case BlocBulletin::Jour:
            return QString::fromUtf16(jours.at(rang));
        default:
            return QString::number(valeur);
    }
}

void peindreCase(QPainter& p, BlocBulletin bloc, int valeur, const QRectF& cadre) {
    p.setPen(QPen(encre(bloc), cadre.width() / 26));
    p.drawRect(cadre);
    p.drawText(cadre, Qt::AlignCenter, texteCase(bloc, valeur));
}

void reglerTexte(QPainter& p, double taille, bool gras = false) {
    QFont fonte = p.font();
    fonte.setPixelSize(std::max(1, qRound(taille)));
    fonte.setBold(gras);
    p.setFont(fonte);
}

/// From millimetres.
QRectF surPapier(const CaseBulletin& c) {
    return {c.place.x * UnitesParMm, c.place.y * UnitesParMm, c.cote * UnitesParMm,
            c.cote * UnitesParMm};
}

/// What a row of option boxes is headed with; nothing inside a grid.
QString titreRangee(BlocBulletin bloc) {
    switch (bloc) {
        case BlocBulletin::Semaines:
            return u"SEMAINES"_s;
        case BlocBulletin::Joker1:
            return u"JOKER+ 1"_s;
        case BlocBulletin::Joker2:
            return u"JOKER+ 2"_s;
        case BlocBulletin::Jour:
            return u"JOURS"_s;
        default:
            return {};
    }
}

void peindreCases(QPainter& p, const GeometrieBulletin& geometrie) {
    p.setBrush(Qt::NoBrush);
    reglerTexte(p, geometrie.grille.cote * UnitesParMm * PartTexte);
    QString titre;
    for (const CaseBulletin& c : geometrie.cases()) {
        const QRectF cadre = surPapier(c);
        peindreCase(p, c.bloc, c.valeur, cadre);
        if (titreRangee(c.bloc) == titre) continue;
        titre = titreRangee(c.bloc);
        p.drawText(cadre.translated(0, -cadre.height()).adjusted(0, 0, 200, -3),
                   Qt::AlignLeft | Qt::AlignBottom, titre);
    }
}

void peindreMarques(QPainter& p, std::span<const CaseBulletin> marques) {
    for (const CaseBulletin& m : marques) p.fillRect(surPapier(m), Qt::black);
}

/// Unit and font of one page.
void ouvrirPage(QPainter& p, const QPagedPaintDevice& papier, const QFont& fonte) {
    p.save();
    const double echelle = papier.logicalDpiX() / UnitesParPouce;
    p.scale(echelle, echelle);
    p.setFont(fonte);
}

/// Marks every millimetre from 0 to `longueur`, longer every five and ten, along x or along y.
void peindreRegle(QPainter& p, double longueur, bool horizontale) {
    for (int mm = 0; mm <= static_cast<int>(longueur); ++mm) {
        const double trait = (mm % 10 == 0 ? 3.2 : mm % 5 == 0 ? 2.4 : 1.4) * UnitesParMm;
        const double place = mm * UnitesParMm;
        p.drawLine(horizontale ? QLineF(place, 0, place, trait) : QLineF(0, place, trait, place));
        if (mm % 10 != 0 || mm == 0) continue;
        // Beside the ruler on the left stand boxes: its figures go between the marks.
        const QRectF texte =
            horizontale ? QRectF(place - 40, 33, 80, 22) : QRectF(16, place - 18, 32, 17);
        reglerTexte(p, horizontale ? 20 : 14);
        p.drawText(texte, Qt::AlignCenter, QString::number(mm));
    }
}

/// A length to be measured, and what the page was printed with.
void peindreControle(QPainter& p, const MiseEnPlace& mise) {
    constexpr double longueur = 50 * UnitesParMm;
    const double y = (mise.geometrie.papier.y - 14) * UnitesParMm;
    reglerTexte(p, 2 * UnitesParMm);
    const QRectF ligne(10 * UnitesParMm, y, longueur, 4 * UnitesParMm);
    p.drawLine(ligne.topLeft(), ligne.topRight());
    for (const double x : {ligne.left(), ligne.right()}) p.drawLine(QLineF(x, y - 10, x, y + 10));
    p.drawText(ligne, Qt::AlignHCenter | Qt::AlignBottom, u"50 mm"_s);
    p.drawText(ligne.translated(0, 50).adjusted(0, 0, 200, 0), Qt::AlignLeft | Qt::AlignVCenter,
               u"Décalages : haut %1 mm, gauche %2 mm"_s.arg(
                   versQt(FormaterDecimal(mise.DecalageImprimanteBordHaut, 1)),
                   versQt(FormaterDecimal(mise.DecalageImprimanteBordGauche, 1))));
}

/// Boxes of the preview, in pixels of its picture.
void peindreCasesApercu(QPainter& p, bool second) {
    constexpr double cote = GeometrieApercu.cote;
    reglerTexte(p, cote * PartTexte);
    const auto caseEn = [&](BlocBulletin bloc, int valeur, Place place) {
        peindreCase(p, bloc, valeur, {place.x, place.y, cote, cote});
    };
    for (int n = 1; n <= NumeroMax; ++n) caseEn(BlocBulletin::Numero, n, GeometrieApercu.numero(n));
    for (int c = 1; c <= ChanceMax; ++c) caseEn(BlocBulletin::Chance, c, GeometrieApercu.chance(c));
    const QRectF option(LargeurApercu - 14 - cote, 14, cote, cote);
    p.setPen(QPen(QColor(EncreOptions), 1));
    p.drawRect(option);
    p.drawText(QRectF(0, 14, option.left() - 6, cote), Qt::AlignRight | Qt::AlignVCenter,
               u"2nd tirage"_s);
    if (second) p.fillRect(option.adjusted(6.5, 6.5, -6.5, -6.5), Qt::black);
}

}  // namespace

void peindreApercu(QPainter& p, const QRectF& cible, const Grille* grille, int place, int marque) {
    const double echelle = std::min(cible.width() / LargeurApercu, cible.height() / HauteurApercu);
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(cible.center() - QPointF(LargeurApercu, HauteurApercu) * echelle / 2);
    p.scale(echelle, echelle);
    p.setPen(QPen(QColor(Bordure), 1.5));
    p.setBrush(QColor(grille == nullptr ? FeuilleVide : Feuille));
    p.drawRoundedRect(QRectF(1, 1, LargeurApercu - 2, HauteurApercu - 2), 10, 10);
    p.setBrush(Qt::NoBrush);
    p.setPen(QColor(EncreOptions));
    reglerTexte(p, 16, true);
    p.drawText(QRectF(14, 14, LargeurApercu, GeometrieApercu.cote), Qt::AlignVCenter,
               QChar(u'A' + place - 1));
    if (grille != nullptr) {
        reglerTexte(p, 13);
        peindreCasesApercu(p, ParticipeAu2ndTirage(*grille));
        for (const MarqueApercu& m : MarquesApercu(*grille, marque))
            p.fillRect(QRectF(m.gauche, m.haut, m.droite - m.gauche, m.bas - m.haut), Qt::black);
    }
    p.restore();
}

bool peindreBulletins(QPagedPaintDevice& papier, const LotBulletins& lot, const QFont& fonte,
                      const PagesVoulues& pages, const Suivi& suivi) {
    const int total = lot.plage.nombre();
    const int premiere = std::clamp(pages.premiere, 1, total);
    const int derniere = pages.derniere > 0 ? std::clamp(pages.derniere, premiere, total) : total;
    if (suivi.progres != nullptr) suivi.progres->commencer(derniere - premiere + 1);
    QPainter p;
    if (!p.begin(&papier)) return false;
    for (int page = premiere; page <= derniere; ++page) {
        if (suivi.arrete() || (page > premiere && !papier.newPage())) return false;
        const int bulletin = lot.plage.du + page - 1;
        ouvrirPage(p, papier, fonte);
        if (lot.epreuve) peindreCases(p, lot.mise.geometrie);
        peindreMarques(p,
                       MarquesBulletin(lot.mise, lot.grilles, lot.options.de(bulletin), bulletin));
        p.restore();
        suivi.poser(page - premiere + 1);
    }
    return p.end();
}

bool peindreCalibrage(QPagedPaintDevice& papier, const MiseEnPlace& mise, const QFont& fonte) {
    QPainter p;
    if (!p.begin(&papier)) return false;
    ouvrirPage(p, papier, fonte);
    p.setPen(QPen(QColor(EncreRegle), 1));
    const Place coin = mise.geometrie.papier;
    p.drawRect(QRectF(0, 0, coin.x * UnitesParMm, coin.y * UnitesParMm));
    peindreRegle(p, coin.x, true);
    peindreRegle(p, coin.y, false);
    peindreControle(p, mise);
    p.translate(mise.DecalageImprimanteBordGauche * UnitesParMm,
                mise.DecalageImprimanteBordHaut * UnitesParMm);
    peindreCases(p, mise.geometrie);
    p.restore();
    return p.end();
}

}  // namespace norvane::ui
