// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A chart on show: it paints its scene and turns what the hand does into wishes. The window that it
// shows belongs to the page, which answers with another scene.
//
//   wheel            zoom about the pointer; with Shift or sideways, scroll
//   drag             scroll; in space, turn the box
//   Shift + drag, right button, or a drag where all is on show: frame of what to enlarge
//   click            balloon of the point; double click: everything again
//   arrows           from point to point; Page Up and Down, Shift + arrows: scroll
//   + - Home         zoom, everything again; Enter: balloon
#pragma once

#include <functional>
#include <QPixmap>
#include <QWidget>

#include "graphes/SceneGraphe.h"

class QRubberBand;

namespace norvane::ui {

class Bulle;

class VueGraphe final : public QWidget {
    Q_OBJECT

 public:
    VueGraphe(const QString& nom, QWidget* parent);

    /// The scene, and the limits of its window. A balloon on show stays with its point as long as
    /// that is visible.
    void montrer(const SceneGraphe& scene, const Etendue& limitesX, const Etendue& limitesY);
    const SceneGraphe& scene() const { return scene_; }
    StyleGraphe style() const { return styleGraphe(palette(), font()); }
    Repere repere() const { return {scene_, style(), rect()}; }

    /// Wishes for a window `facteur` times as long, about its middle.
    void zoomer(double facteur);
    /// Wishes for a window moved by so many places and units.
    void defiler(double places, double unites);
    bool toutVisible() const;
    const Etendue& limitesX() const { return limitesX_; }
    const Etendue& limitesY() const { return limitesY_; }

    /// Beside the point: its first line is a title. `court` is taken where `texte` does not fit.
    void montrerBulle(const PointGraphe& point, const QString& texte, const QString& court);
    void cacherBulle();

    std::function<QString(const PointGraphe&)> indice;  ///< the tool tip of a point

    QSize sizeHint() const override;

 Q_SIGNALS:
    void fenetreVoulue(const norvane::Etendue& x, const norvane::Etendue& y);
    void retourVoulu();
    void rotationVoulue(int rotation, int elevation);
    void pointChoisi(const norvane::PointGraphe& point);

 protected:
    bool event(QEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void leaveEvent(QEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;

 private:
    enum class Geste { Aucun, Appui, Defilement, Cadre };

    void zoomerAutour(double facteur, double x, double y);
    const PointGraphe* pointSous(const QPointF& place) const;
    void poserSurvol(const PointGraphe* point);
    void tirer(const QPointF& place);
    void agrandirCadre(const QRect& cadre);
    void suivreBulle();
    void poserCurseur();
    bool allerAuPoint(int pas);
    bool defilerAuClavier(int touche);
    void peindreSurvol(QPainter& p) const;

    SceneGraphe scene_;
    Etendue limitesX_{0.5, NbPlaces + 0.5};
    Etendue limitesY_{0, 1};
    QPixmap image_;  // the scene painted; void when it is to be painted again
    Bulle* bulle_;
    QRubberBand* bande_;
    std::optional<PointGraphe> survol_;   // under the pointer, or reached with the keys
    std::optional<PointGraphe> bulleDe_;  // whose balloon shows
    Geste geste_ = Geste::Aucun;
    bool cadrer_ = false;  // the drag at hand draws a frame
    QPointF appui_, dernier_;
};

}  // namespace norvane::ui
