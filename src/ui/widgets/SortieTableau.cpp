// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/SortieTableau.h"

#include <algorithm>
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QFile>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

#include "base/Fichiers.h"
#include "common/Enregistrement.h"
#include "widgets/Impression.h"
#include "widgets/ModeleTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double MargePage = 12.0;  // millimetres
constexpr double PolicePied = 8.0;  // points
constexpr double PoliceTitre = 13.0;
constexpr int CentiemesMin = 78;  // 9-point figures are still read with ease at that scale

/// Draws page `numero` (from 1) of the document, and its foot.
void dessinerPage(QPainter& p, const QTextDocument& document, int numero, const QRectF& feuille,
                  double echelle) {
    const double hauteur = document.pageSize().height();
    QAbstractTextDocumentLayout::PaintContext encre;
    encre.palette.setColor(QPalette::Text, Qt::black);  // paper is white whatever the theme is
    encre.clip = QRectF(0, (numero - 1) * hauteur, document.pageSize().width(), hauteur);
    p.save();
    p.scale(echelle, echelle);
    p.translate(0, -(numero - 1) * hauteur);
    p.setClipRect(encre.clip);
    document.documentLayout()->draw(&p, encre);
    p.restore();

    QFont pied = document.defaultFont();
    pied.setPointSizeF(PolicePied);
    p.setFont(QFont(pied, p.device()));
    p.setPen(Qt::darkGray);
    p.drawText(feuille, Qt::AlignBottom | Qt::AlignLeft, u"Norvane"_s);
    p.drawText(feuille, Qt::AlignBottom | Qt::AlignRight,
               u"Page %1 / %2"_s.arg(numero).arg(document.pageCount()));
}

/// What paper asks beyond the plain page: a title that stands out, a table over the whole width
/// with a shaded heading.
void mettreEnForme(QTextDocument& document) {
    QTextCursor titre(&document);
    const QString premier = document.firstBlock().text();
    const auto fin = premier.indexOf(QChar::LineSeparator);
    titre.setPosition(static_cast<int>(fin < 0 ? premier.size() : fin), QTextCursor::KeepAnchor);
    QTextCharFormat gras;
    gras.setFontWeight(QFont::Bold);
    gras.setFontPointSize(PoliceTitre);
    titre.mergeCharFormat(gras);

    for (QTextFrame* cadre : document.rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(cadre);
        if (table == nullptr) continue;
        QTextTableFormat format = table->format();
        format.setTopMargin(PoliceTitre);
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        table->setFormat(format);
        for (int c = 0; c < table->columns(); ++c) {
            QTextTableCell cellule = table->cellAt(0, c);
            QTextTableCellFormat fond = cellule.format().toTableCellFormat();
            fond.setBackground(QColor(0xE4, 0xE9, 0xF2));
            cellule.setFormat(fond);
        }
    }
}

/// Lays the document out on pages of this size. A table that runs just over the end of the page
/// is drawn a little smaller: gives back that scale, 1 when all is well.
double mettreEnPages(QTextDocument& document, const QSizeF& page) {
    document.setPageSize(page);
    if (document.pageCount() == 1) return 1.0;
    for (int centiemes = 98; centiemes >= CentiemesMin; centiemes -= 2) {
        const double echelle = centiemes / 100.0;
        document.setPageSize(page / echelle);
        if (document.pageCount() == 1) return echelle;
    }
    document.setPageSize(page);
    return 1.0;
}

/// A printer, or a PDF in the making.
bool imprimerHtml(QPagedPaintDevice& support, const QString& html, const PagesVoulues& voulues) {
    QPainter p;
    if (!p.begin(&support)) return false;
    const QRectF feuille(QPointF(0, 0),
                         support.pageLayout().paintRectPixels(support.logicalDpiX()).size());
    QTextDocument document;
    document.documentLayout()->setPaintDevice(&support);
    document.setDocumentMargin(0);
    QFont fonte = QApplication::font();
    fonte.setPointSizeF(9);
    document.setDefaultFont(fonte);
    document.setHtml(html);
    mettreEnForme(document);
    const double pied = support.logicalDpiY() * (PolicePied * 2 / 72.0);
    const double echelle =
        mettreEnPages(document, QSizeF(feuille.width(), feuille.height() - pied));

    const int total = document.pageCount();
    const int premiere = std::clamp(voulues.premiere, 1, total);
    const int derniere =
        voulues.derniere > 0 ? std::clamp(voulues.derniere, premiere, total) : total;
    for (int page = premiere; page <= derniere; ++page) {
        if (page > premiere && !support.newPage()) return false;
        dessinerPage(p, document, page, feuille, echelle);
    }
    return p.end();
}

/// In the order of FormatTableau.
std::vector<FormatFichier> formatsTableau() {
    return {{u"Format Texte (*.txt)"_s, u"txt"_s},
            {u"Format Html (*.htm *.html)"_s, u"html"_s, u"htm"_s},
            {u"Format Texte OpenDocument (*.odt)"_s, u"odt"_s},
            {u"Format Excel (*.xlsx)"_s, u"xlsx"_s},
            {u"Format CSV (*.csv)"_s, u"csv"_s}};
}

}  // namespace

TableauExporte tableauDe(const ModeleTableau& modele, std::vector<std::string> titre) {
    TableauExporte tableau;
    tableau.titre = std::move(titre);
    for (const ColonneTableau& c : modele.colonnes()) {
        tableau.colonnes.push_back(
            {c.entete.toStdString(), c.alignement != Qt::AlignLeft, c.nature});
    }
    for (int l = 0; l < modele.rowCount(); ++l) {
        auto& ligne = tableau.lignes.emplace_back();
        for (int c = 0; c < modele.columnCount(); ++c) {
            const QModelIndex place = modele.index(l, c);
            const bool position = modele.colonnes()[static_cast<std::size_t>(c)].position;
            ligne.push_back({modele.texte(place), position ? l + 1 : modele.cellule(place).cle});
        }
    }
    return tableau;
}

void sauverTableau(Contexte& contexte, QWidget* parent, const TableauExporte& tableau,
                   const QString& titre, const QString& nomPropose) {
    const QString dossier = QFile::decodeName(contexte.atelier.Repertoire.string().c_str());
    enregistrerSous(
        contexte, parent,
        {titre, dossier + u'/' + nomPropose, formatsTableau(), u"Tableau enregistré"_s,
         [&tableau](const std::filesystem::path& fichier, std::size_t format) -> Resultat<Rien> {
             const auto octets = Exporter(tableau, static_cast<FormatTableau>(format));
             if (!octets) return Erreur{octets.erreur()};
             return EcrireFichier(fichier, *octets);
         }});
}

void imprimerTableau(Contexte& contexte, QWidget* parent, const TableauExporte& tableau,
                     const QString& titre) {
    imprimer(
        contexte, parent,
        {titre, tableau.titre.empty() ? titre : versQt(tableau.titre.front()), u"Tableau imprimé"_s,
         QPageLayout::Portrait, QMarginsF(MargePage, MargePage, MargePage, MargePage),
         [html = versQt(EnHtml(tableau, TeteHtml::Paragraphe))](QPagedPaintDevice& papier,
                                                                const PagesVoulues& pages) {
             return imprimerHtml(papier, html, pages);
         }});
}

}  // namespace norvane::ui
