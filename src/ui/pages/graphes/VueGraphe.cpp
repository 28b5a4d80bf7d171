// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "graphes/VueGraphe.h"

#include <algorithm>
#include <cmath>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRubberBand>
#include <QToolTip>
#include <QWheelEvent>

#include "common/Theme.h"
#include "widgets/Bulle.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double PlacesMin = 2;  // shortest window
constexpr double UnitesMin = 2;
constexpr double PasMolette = 1.0015;   // zoom of one unit of the wheel
constexpr double PartDefilement = 0.1;  // of the window, by a notch or a key
constexpr double DegresParPixel = 0.4;
constexpr double Prise = 4;  // how far around a point the pointer still holds it

}  // namespace

VueGraphe::VueGraphe(const QString& nom, QWidget* parent)
    : QWidget(parent),
      bulle_(new Bulle(this)),
      bande_(new QRubberBand(QRubberBand::Rectangle, this)) {
    setObjectName(nom);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);  // the right button draws a frame
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(320, 220);
}

QSize VueGraphe::sizeHint() const {
    return {900, 520};
}

void VueGraphe::montrer(const SceneGraphe& scene, const Etendue& limitesX,
                        const Etendue& limitesY) {
    scene_ = scene;
    limitesX_ = limitesX;
    limitesY_ = limitesY;
    setAccessibleName(scene.titre);
    image_ = {};
    // What lay under the pointer has moved away.
    if (geste_ != Geste::Defilement) survol_.reset();
    suivreBulle();
    poserCurseur();
    update();
}

bool VueGraphe::toutVisible() const {
    return scene_.x.longueur() >= limitesX_.longueur() &&
           scene_.y.longueur() >= limitesY_.longueur();
}

// ------------------------------------------------------------------------------------------ wishes

void VueGraphe::zoomerAutour(double facteur, double x, double y) {
    Q_EMIT fenetreVoulue(Zoomer(scene_.x, facteur, x, limitesX_, PlacesMin),
                         Zoomer(scene_.y, facteur, y, limitesY_, UnitesMin));
}

void VueGraphe::zoomer(double facteur) {
    zoomerAutour(facteur, scene_.x.milieu(), scene_.y.milieu());
}

void VueGraphe::defiler(double places, double unites) {
    Q_EMIT fenetreVoulue(Deplacer(scene_.x, places, limitesX_),
                         Deplacer(scene_.y, unites, limitesY_));
}

void VueGraphe::wheelEvent(QWheelEvent* evenement) {
    const QPoint angle = evenement->angleDelta();
    const double cran = angle.y() / 120.0;
    if (angle.x() != 0 && angle.y() == 0) {
        defiler(-angle.x() / 120.0 * PartDefilement * scene_.x.longueur(), 0);
    } else if (evenement->modifiers() & Qt::ShiftModifier) {
        defiler(0, cran * PartDefilement * scene_.y.longueur());
    } else if (scene_.vue3d) {
        zoomer(std::pow(PasMolette, -angle.y()));
    } else {
        const Repere r = repere();
        zoomerAutour(std::pow(PasMolette, -angle.y()), r.xSous(evenement->position()),
                     r.ySous(evenement->position()));
    }
    evenement->accept();
}

// ------------------------------------------------------------------------------------------- mouse

const PointGraphe* VueGraphe::pointSous(const QPointF& place) const {
    const Repere r = repere();
    double plusPres = r.rayon() + Prise;
    const PointGraphe* trouve = nullptr;
    for (const PointGraphe& point : scene_.points) {
        if (!scene_.visible(point)) continue;
        const double distance = QLineF(r.placer(point), place).length();
        if (distance >= plusPres) continue;
        plusPres = distance;
        trouve = &point;
    }
    return trouve;
}

void VueGraphe::poserSurvol(const PointGraphe* point) {
    const std::optional<PointGraphe> nouveau = point ? std::optional(*point) : std::nullopt;
    if (nouveau == survol_) return;
    survol_ = nouveau;
    poserCurseur();
    update();
}

void VueGraphe::poserCurseur() {
    Qt::CursorShape forme = Qt::CrossCursor;
    if (geste_ == Geste::Defilement) {
        forme = Qt::ClosedHandCursor;
    } else if (geste_ != Geste::Cadre && survol_) {
        forme = Qt::PointingHandCursor;
    } else if (geste_ != Geste::Cadre && (scene_.vue3d || !toutVisible())) {
        forme = Qt::OpenHandCursor;
    }
    if (cursor().shape() != forme) setCursor(forme);
}

void VueGraphe::mousePressEvent(QMouseEvent* evenement) {
    if (evenement->button() != Qt::LeftButton && evenement->button() != Qt::RightButton) return;
    geste_ = Geste::Appui;
    appui_ = dernier_ = evenement->position();
    const bool cadre = evenement->button() == Qt::RightButton ||
                       (evenement->modifiers() & Qt::ShiftModifier) || toutVisible();
    cadrer_ = cadre && !scene_.vue3d;
}

void VueGraphe::mouseMoveEvent(QMouseEvent* evenement) {
    const QPointF place = evenement->position();
    if (geste_ == Geste::Aucun) {
        poserSurvol(pointSous(place));
        return;
    }
    if (geste_ == Geste::Appui) {
        if ((place - appui_).manhattanLength() < QApplication::startDragDistance()) return;
        geste_ = cadrer_ ? Geste::Cadre : Geste::Defilement;
        cacherBulle();
        bande_->setVisible(cadrer_);
        poserCurseur();
    }
    if (geste_ == Geste::Cadre) {
        bande_->setGeometry(QRect(appui_.toPoint(), place.toPoint()).normalized());
    } else {
        tirer(place);
    }
}

/// The data follow the pointer; in space, the box turns with it.
void VueGraphe::tirer(const QPointF& place) {
    const QPointF trajet = place - dernier_;
    dernier_ = place;
    if (scene_.vue3d) {
        const Vue3D& vue = *scene_.vue3d;
        Q_EMIT rotationVoulue(vue.rotation - qRound(trajet.x() * DegresParPixel),
                              vue.elevation + qRound(trajet.y() * DegresParPixel));
        return;
    }
    const Repere r = repere();
    defiler(-trajet.x() / r.largeurPlace(), trajet.y() / r.hauteurUnite());
}

void VueGraphe::mouseReleaseEvent(QMouseEvent* evenement) {
    const Geste fini = std::exchange(geste_, Geste::Aucun);
    bande_->hide();
    if (fini == Geste::Cadre) {
        agrandirCadre(bande_->geometry());
    } else if (fini == Geste::Appui && evenement->button() == Qt::LeftButton) {
        if (const PointGraphe* point = pointSous(evenement->position())) {
            Q_EMIT pointChoisi(PointGraphe(*point));
        } else {
            cacherBulle();
        }
    }
    poserCurseur();
}

void VueGraphe::agrandirCadre(const QRect& cadre) {
    if (cadre.width() < QApplication::startDragDistance() ||
        cadre.height() < QApplication::startDragDistance()) {
        return;
    }
    const Repere r = repere();
    const Etendue x{r.xSous(cadre.bottomLeft()), r.xSous(cadre.topRight())};
    const Etendue y{r.ySous(cadre.bottomLeft()), r.ySous(cadre.topRight())};
    Q_EMIT fenetreVoulue(Border(x, limitesX_, PlacesMin), Border(y, limitesY_, UnitesMin));
}

void VueGraphe::mouseDoubleClickEvent(QMouseEvent* evenement) {
    // The second press of a point that was just asked for is none of an empty place.
    if (evenement->button() == Qt::LeftButton && pointSous(evenement->position()) == nullptr) {
        Q_EMIT retourVoulu();
    }
}

void VueGraphe::leaveEvent(QEvent*) {
    poserSurvol(nullptr);
}

// ---------------------------------------------------------------------------------------- keyboard

/// Forward or back among the visible points, from the one at hand.
bool VueGraphe::allerAuPoint(int pas) {
    std::vector<const PointGraphe*> visibles;
    for (const PointGraphe& point : scene_.points) {
        if (scene_.visible(point)) visibles.push_back(&point);
    }
    if (visibles.empty()) return true;
    const auto courant = std::ranges::find_if(
        visibles, [this](const PointGraphe* p) { return survol_ && *p == *survol_; });
    std::ptrdiff_t place = pas > 0 ? 0 : std::ssize(visibles) - 1;
    if (courant != visibles.end()) {
        place = std::clamp<std::ptrdiff_t>(courant - visibles.begin() + pas, 0,
                                           std::ssize(visibles) - 1);
    }
    poserSurvol(visibles[static_cast<std::size_t>(place)]);
    return true;
}

bool VueGraphe::defilerAuClavier(int touche) {
    const double places = PartDefilement * scene_.x.longueur();
    const double unites = PartDefilement * scene_.y.longueur();
    switch (touche) {
        case Qt::Key_Left:
            defiler(-places, 0);
            return true;
        case Qt::Key_Right:
            defiler(places, 0);
            return true;
        case Qt::Key_Up:
            defiler(0, unites);
            return true;
        case Qt::Key_Down:
            defiler(0, -unites);
            return true;
        case Qt::Key_PageUp:
            defiler(0, scene_.y.longueur());
            return true;
        case Qt::Key_PageDown:
            defiler(0, -scene_.y.longueur());
            return true;
        default:
            return false;
    }
}

void VueGraphe::keyPressEvent(QKeyEvent* evenement) {
    const int touche = evenement->key();
    const bool maj = evenement->modifiers() & Qt::ShiftModifier;
    bool prise = true;
    if (!maj && (touche == Qt::Key_Left || touche == Qt::Key_Right)) {
        prise = allerAuPoint(touche == Qt::Key_Right ? 1 : -1);
    } else if (touche == Qt::Key_Plus) {
        zoomer(0.8);
    } else if (touche == Qt::Key_Minus) {
        zoomer(1.25);
    } else if (touche == Qt::Key_Home) {
        Q_EMIT retourVoulu();
    } else if ((touche == Qt::Key_Return || touche == Qt::Key_Enter || touche == Qt::Key_Space) &&
               survol_) {
        Q_EMIT pointChoisi(PointGraphe(*survol_));
    } else if (touche == Qt::Key_Escape && bulleDe_) {
        cacherBulle();
    } else {
        prise = defilerAuClavier(touche);
    }
    evenement->setAccepted(prise);
}

void VueGraphe::focusInEvent(QFocusEvent*) {
    update();
}

void VueGraphe::focusOutEvent(QFocusEvent*) {
    update();
}

// --------------------------------------------------------------------------------- balloon and tip

void VueGraphe::montrerBulle(const PointGraphe& point, const QString& texte, const QString& court) {
    bulleDe_ = point;
    const Repere r = repere();
    const int cote = qRound(r.rayon()) + 2;
    const QPoint centre = r.placer(point).toPoint();
    const QRect cible(centre - QPoint(cote, cote), QSize(2 * cote, 2 * cote));
    for (const QString& choix : {texte, court}) {
        bulle_->montrer(choix.section(u'\n', 0, 0), choix.section(u'\n', 1), cible);
        if (rect().contains(bulle_->geometry())) break;
    }
    update();
}

void VueGraphe::cacherBulle() {
    bulleDe_.reset();
    bulle_->hide();
}

/// The point of the balloon, where it stands now, is asked for again.
void VueGraphe::suivreBulle() {
    if (!bulleDe_) return;
    const auto meme = std::ranges::find_if(scene_.points, [this](const PointGraphe& p) {
        return p.element == bulleDe_->element && scene_.visible(p) &&
               (!scene_.parTirage || p.valeur == bulleDe_->valeur);
    });
    if (meme == scene_.points.end()) {
        cacherBulle();
    } else {
        Q_EMIT pointChoisi(PointGraphe(*meme));
    }
}

bool VueGraphe::event(QEvent* evenement) {
    if (evenement->type() == QEvent::ToolTip) {
        auto* aide = static_cast<QHelpEvent*>(evenement);
        const PointGraphe* point = pointSous(aide->pos());
        if (point != nullptr && indice) {
            QToolTip::showText(aide->globalPos(), indice(*point), this);
        } else {
            QToolTip::hideText();
            evenement->ignore();
        }
        return true;
    }
    return QWidget::event(evenement);
}

// ---------------------------------------------------------------------------------------- painting

void VueGraphe::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() == QEvent::PaletteChange || evenement->type() == QEvent::FontChange) {
        image_ = {};
        update();
    }
}

void VueGraphe::resizeEvent(QResizeEvent*) {
    image_ = {};
    suivreBulle();
}

void VueGraphe::paintEvent(QPaintEvent*) {
    if (image_.isNull()) {
        const double densite = devicePixelRatioF();
        image_ = QPixmap(size() * densite);
        image_.setDevicePixelRatio(densite);
        QPainter p(&image_);
        peindreGraphe(p, rect(), scene_, style());
    }
    QPainter p(this);
    p.drawPixmap(0, 0, image_);
    p.setRenderHint(QPainter::Antialiasing);
    peindreSurvol(p);
    p.setPen(hasFocus() ? palette().color(QPalette::Highlight) : teintes(palette()).bordure);
    p.setBrush(Qt::NoBrush);
    p.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void VueGraphe::peindreSurvol(QPainter& p) const {
    const Repere r = repere();
    p.setPen(QPen(teintes(palette()).accent, 2));
    p.setBrush(Qt::NoBrush);
    for (const auto& point : {survol_, bulleDe_}) {
        if (point && scene_.visible(*point)) {
            p.drawEllipse(r.placer(*point), r.rayon() + 3, r.rayon() + 3);
        }
    }
}

}  // namespace norvane::ui
