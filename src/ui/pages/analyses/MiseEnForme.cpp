// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analyses/MiseEnForme.h"

#include <array>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double PixelsParPoint = 96.0 / 72;
constexpr int CorpsImage = 11;     // points
constexpr double AvantTitre = 8;   // pixels above a heading
constexpr double MargeFilet = 10;  // above and below a rule
const QString SchemaLien = u"lien"_s;

QString enQt(std::string_view texte) {
    return QString::fromUtf8(texte.data(), static_cast<qsizetype>(texte.size()));
}

QTextCharFormat caracteres(const MiseEnForme& forme, Style style) {
    const FormatStyle& f = FormatDe(forme.jeu, style);
    QStringList familles;
    for (const char* famille : FamillesDe(f.fonte)) familles << QString::fromUtf8(famille);
    QFont fonte(familles);
    const bool fixe = f.fonte == Fonte::Courier || f.fonte == Fonte::Terminal;
    fonte.setStyleHint(fixe                      ? QFont::Monospace
                       : f.fonte == Fonte::Arial ? QFont::SansSerif
                                                 : QFont::Serif);
    fonte.setFixedPitch(fixe);
    fonte.setPixelSize(qRound(f.corps * PixelsParPoint * forme.facteur));
    fonte.setBold(f.gras);
    fonte.setItalic(f.italique);
    fonte.setUnderline(f.souligne);
    QTextCharFormat format;
    format.setFont(fonte);
    format.setForeground(f.couleurSysteme && forme.systeme.isValid() ? forme.systeme
                                                                     : QColor::fromRgb(f.couleur));
    return format;
}

QTextImageFormat poserImage(QTextDocument& texte, Image image, const MiseEnForme& forme) {
    const double cote = qRound(CorpsImage * PixelsParPoint * forme.facteur);
    const int pixels = qRound(cote * forme.finesse);
    QImage dessin(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    dessin.fill(Qt::transparent);
    const std::string_view svg = ImageSvg(image);
    QSvgRenderer rendu(QByteArray(svg.data(), static_cast<qsizetype>(svg.size())));
    QPainter p(&dessin);
    rendu.render(&p);
    p.end();
    const QString nom = u"image%1"_s.arg(static_cast<int>(image));
    texte.addResource(QTextDocument::ImageResource, QUrl(nom), dessin);
    QTextImageFormat format;
    format.setName(nom);
    format.setWidth(cote);
    format.setHeight(cote);
    format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
    return format;
}

class Composition {
 public:
    Composition(QTextDocument& texte, const MiseEnForme& forme) : curseur_(&texte), forme_(forme) {
        for (std::size_t s = 0; s < NbStyles; ++s) {
            formats_[s] = caracteres(forme, static_cast<Style>(s));
        }
        for (const Image image : {Image::Puce, Image::Retour}) {
            images_[static_cast<std::size_t>(image)] = poserImage(texte, image, forme);
        }
    }

    void ajouter(const Document& document) {
        curseur_.beginEditBlock();
        bool premier = true;
        for (const Bloc& bloc : document.blocs) {
            const QTextBlockFormat format = formatBloc(bloc);
            // An empty line is as high as its own style says.
            const QTextCharFormat& caractere = formats_[static_cast<std::size_t>(
                bloc.fragments.empty() ? Style::Corps : bloc.fragments.front().style)];
            if (premier) {
                curseur_.setBlockFormat(format);
                curseur_.setBlockCharFormat(caractere);
            } else {
                curseur_.insertBlock(format, caractere);
            }
            premier = false;
            for (const Fragment& fragment : bloc.fragments) ajouter(fragment);
        }
        curseur_.endEditBlock();
    }

 private:
    QTextBlockFormat formatBloc(const Bloc& bloc) const {
        QTextBlockFormat format;
        if (bloc.centre) format.setAlignment(Qt::AlignHCenter);
        if (bloc.ancre != SansAncre) format.setTopMargin(AvantTitre * forme_.facteur);
        if (bloc.filet) {
            format.setProperty(QTextFormat::BlockTrailingHorizontalRulerWidth,
                               QTextLength(QTextLength::PercentageLength, 100));
            format.setTopMargin(MargeFilet * forme_.facteur);
            format.setBottomMargin(MargeFilet * forme_.facteur);
        }
        return format;
    }

    void ajouter(const Fragment& fragment) {
        QTextCharFormat format = formats_[static_cast<std::size_t>(fragment.style)];
        QTextImageFormat image = images_[static_cast<std::size_t>(fragment.image)];
        if (fragment.lien != SansLien) {
            const QString adresse = u"%1:%2"_s.arg(SchemaLien).arg(fragment.lien);
            for (QTextCharFormat* cible : {&format, static_cast<QTextCharFormat*>(&image)}) {
                cible->setAnchor(true);
                cible->setAnchorHref(adresse);
            }
        }
        if (fragment.image != Image::Aucune) curseur_.insertImage(image);
        curseur_.insertText(enQt(fragment.texte), format);
    }

    QTextCursor curseur_;
    const MiseEnForme& forme_;
    std::array<QTextCharFormat, NbStyles> formats_;
    std::array<QTextImageFormat, NbImages + 1> images_;
};

}  // namespace

void composer(QTextDocument& texte, const Document& document, const MiseEnForme& forme) {
    texte.setUndoRedoEnabled(false);
    Composition(texte, forme).ajouter(document);
}

int numeroLien(const QUrl& adresse) {
    bool nombre = false;
    const int lien = adresse.path().toInt(&nombre);
    return nombre && adresse.scheme() == SchemaLien ? lien : SansLien;
}

}  // namespace norvane::ui
