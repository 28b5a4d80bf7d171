// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "graphes/SortieGraphe.h"

#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QSvgGenerator>

#include "base/Fichiers.h"
#include "common/Enregistrement.h"
#include "widgets/Impression.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double MargePage = 12.0;      // millimetres
constexpr double LargeurPapier = 1000;  // of the chart on paper, in its own pixels
constexpr int PolicePapier = 13;        // the same
constexpr int Finesse = 2;              // pixels of an image for one of the window

QImage image(const SceneGraphe& scene, const StyleGraphe& style, const QSize& taille) {
    QImage image(taille * Finesse, QImage::Format_RGB32);
    image.setDevicePixelRatio(Finesse);
    QPainter p(&image);
    peindreGraphe(p, QRectF(QPointF(), taille), scene, style);
    return image;
}

QByteArray png(const SceneGraphe& scene, const StyleGraphe& style, const QSize& taille) {
    QByteArray contenu;
    QBuffer memoire(&contenu);
    memoire.open(QIODevice::WriteOnly);
    image(scene, style, taille).save(&memoire, "PNG");
    return contenu;
}

QByteArray svg(const SceneGraphe& scene, const StyleGraphe& style, const QSize& taille) {
    QByteArray contenu;
    QBuffer memoire(&contenu);
    memoire.open(QIODevice::WriteOnly);
    QSvgGenerator dessin;
    dessin.setOutputDevice(&memoire);
    dessin.setResolution(96);
    dessin.setSize(taille);
    dessin.setViewBox(QRect(QPoint(), taille));
    dessin.setTitle(scene.titre);
    dessin.setDescription(u"Norvane"_s);
    QPainter p(&dessin);
    peindreGraphe(p, QRectF(QPointF(), taille), scene, style);
    p.end();
    return contenu;
}

/// Paper is white whatever the theme is.
bool peindrePapier(QPagedPaintDevice& papier, const SceneGraphe& scene, const QFont& fonte) {
    QPainter p;
    if (!p.begin(&papier)) return false;
    StyleGraphe style = styleGraphe(QPalette(Qt::white), fonte);
    style.texte = Qt::black;
    style.fonte.setPixelSize(PolicePapier);
    const QSize feuille = papier.pageLayout().paintRectPixels(papier.logicalDpiX()).size();
    const double echelle = feuille.width() / LargeurPapier;
    p.scale(echelle, echelle);
    peindreGraphe(p, QRectF(QPointF(), QSizeF(feuille) / echelle), scene, style);
    return p.end();
}

}  // namespace

void imprimerGraphe(Contexte& contexte, QWidget* parent, const SceneGraphe& scene,
                    const QFont& fonte) {
    if (contexte.refuserSiOccupe()) return;
    imprimer(contexte, parent,
             {u"Imprimer le graphe"_s, scene.titre, u"Graphe imprimé"_s, QPageLayout::Landscape,
              QMarginsF(MargePage, MargePage, MargePage, MargePage),
              [&](QPagedPaintDevice& papier, const PagesVoulues&) {
                  return peindrePapier(papier, scene, fonte);
              }});
}

void enregistrerGraphe(Contexte& contexte, QWidget* parent, const SceneGraphe& scene,
                       const StyleGraphe& style, const QSize& taille, const QString& nomPropose) {
    if (contexte.refuserSiOccupe()) return;
    const QString dossier = QFile::decodeName(contexte.atelier.Repertoire.string().c_str());
    enregistrerSous(contexte, parent,
                    {u"Enregistrer le graphe"_s,
                     dossier + u'/' + nomPropose,
                     {{u"Image PNG (*.png)"_s, u"png"_s}, {u"Dessin SVG (*.svg)"_s, u"svg"_s}},
                     u"Graphe enregistré"_s,
                     [&](const std::filesystem::path& fichier, std::size_t format) {
                         const QByteArray contenu =
                             format == 0 ? png(scene, style, taille) : svg(scene, style, taille);
                         return EcrireFichier(fichier, contenu.toStdString());
                     }});
}

void copierGraphe(Contexte& contexte, const SceneGraphe& scene, const StyleGraphe& style,
                  const QSize& taille) {
    QGuiApplication::clipboard()->setImage(image(scene, style, taille));
    contexte.relais.dire(u"Graphe copié dans le presse-papiers."_s);
}

}  // namespace norvane::ui
