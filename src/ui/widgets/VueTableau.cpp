// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/VueTableau.h"

#include <algorithm>
#include <cmath>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include "shell/Theme.h"
#include "widgets/Bulle.h"
#include "widgets/DelegueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

// ---------------------------------------------------------------------------------------- header

EnteteTableau::EnteteTableau(ModeleTableau& modele, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), modele_(modele) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(8);
    connect(this, &QHeaderView::sectionClicked, this,
            [this](int colonne) { Q_EMIT colonneCliquee(colonne, secondaire_); });
}

void EnteteTableau::poserPolice(const QFont& police) {
    police_ = police;
    updateGeometry();
}

QSize EnteteTableau::sizeHint() const {
    const QFontMetrics mesure(police_);
    return {QHeaderView::sizeHint().width(), mesure.height() * 17 / 10 + Unite};
}

void EnteteTableau::mouseReleaseEvent(QMouseEvent* evenement) {
    secondaire_ = evenement->modifiers().testFlag(Qt::ShiftModifier);
    QHeaderView::mouseReleaseEvent(evenement);
}

void EnteteTableau::paintSection(QPainter* peintre, const QRect& cadre, int colonne) const {
    QPainter& p = *peintre;
    const ColonneTableau& c = modele_.colonnes()[static_cast<std::size_t>(colonne)];
    p.save();
    p.fillRect(cadre, palette().color(QPalette::AlternateBase));
    p.setPen(teintes(palette()).bordure);
    p.drawLine(cadre.topRight(), cadre.bottomRight());
    p.drawLine(cadre.bottomLeft(), cadre.bottomRight());
    const QString marque = modele_.marque(colonne);
    const int pied = QFontMetrics(police_).height() * 7 / 10;
    QRect haut = cadre.adjusted(2, 2, -3, -2);
    if (!marque.isEmpty()) {
        peindreMarque(p, QRect(cadre.left(), cadre.bottom() - pied - 1, cadre.width() - 1, pied),
                      marque);
        haut.setBottom(cadre.bottom() - pied);
    }
    if (!c.image.isNull()) {
        const int cote = std::min(haut.height(), QFontMetrics(police_).height() * 13 / 10);
        QRect place(0, 0, cote, cote);
        place.moveCenter(haut.center());
        c.image.paint(&p, place);
    } else {
        p.setFont(police_);
        p.setPen(palette().color(QPalette::Text));
        const bool gauche = c.alignement == Qt::AlignLeft;
        p.drawText(
            gauche ? haut.adjusted(MargeCellule - 2, 0, 0, 0) : haut,
            (gauche ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter) | Qt::TextSingleLine,
            c.entete);
    }
    p.restore();
}

void EnteteTableau::peindreMarque(QPainter& p, const QRect& cadre, const QString& marque) const {
    // The arrow is drawn: not every font has one, and a borrowed one would sit off the line.
    QFont petite = police_;
    petite.setPointSizeF(petite.pointSizeF() * 0.8);
    const QFontMetrics mesure(petite);
    const QString rang = marque.left(1);
    const double cote = mesure.ascent() * 0.62;
    const double largeur = mesure.horizontalAdvance(rang) + 2 + cote;
    const double gauche = cadre.center().x() - largeur / 2;
    p.setRenderHint(QPainter::Antialiasing);
    p.setFont(petite);
    p.setPen(teintes(palette()).accent);
    p.drawText(QRectF(gauche, cadre.top(), largeur, cadre.height()),
               Qt::AlignLeft | Qt::AlignVCenter, rang);
    const double x = gauche + largeur - cote;
    const double milieu = cadre.center().y() + 0.5;
    const double sens = marque.endsWith(u'▲') ? 1 : -1;
    p.setPen(Qt::NoPen);
    p.setBrush(teintes(palette()).accent);
    p.drawPolygon(QPolygonF({{x, milieu + sens * cote / 2},
                             {x + cote, milieu + sens * cote / 2},
                             {x + cote / 2, milieu - sens * cote / 2}}));
}

// ------------------------------------------------------------------------------------------ view

VueTableau::VueTableau(std::vector<ColonneTableau> colonnes, double echelle, QWidget* parent)
    : QTableView(parent),
      echelle_(echelle),
      modele_(new ModeleTableau(std::move(colonnes), this)),
      bulle_(new Bulle(this)) {
    auto* entete = new EnteteTableau(*modele_, this);
    setHorizontalHeader(entete);
    setModel(modele_);
    setItemDelegate(new DelegueTableau(*modele_, this));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(8);
    setCornerButtonEnabled(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);  // Tab leaves the table
    setWordWrap(false);
    setFrameStyle(int{QFrame::Box} | int{QFrame::Plain});
    setLineWidth(1);
    setHorizontalScrollMode(ScrollPerPixel);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    setMouseTracking(true);
    poserMesures();

    connect(entete, &EnteteTableau::colonneCliquee, modele_, &ModeleTableau::cliquer);
    entete->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(entete, &QWidget::customContextMenuRequested, this, [this, entete](const QPoint& p) {
        ouvrirMenuTri(entete->logicalIndexAt(p), entete->mapToGlobal(p));
    });
    connect(this, &QTableView::doubleClicked, this, &VueTableau::celluleActivee);
    connect(modele_, &QAbstractItemModel::layoutChanged, this, [this] { cacherBulle(); });
}

void VueTableau::poserMesures() {
    std::vector<QFont> polices;
    int haute = 0;
    for (const ColonneTableau& c : modele_->colonnes()) {
        QFont fonte = font();
        fonte.setPointSizeF(c.police * echelle_);
        fonte.setBold(c.gras);
        haute = std::max(haute, QFontMetrics(fonte).height());
        polices.push_back(fonte);
    }
    verticalHeader()->setDefaultSectionSize(haute + 2);
    QFont titres = font();
    titres.setPointSizeF(ColonneTableau{}.police * echelle_);
    titres.setBold(true);
    static_cast<EnteteTableau*>(horizontalHeader())->poserPolice(titres);
    const QFontMetrics gras(titres);
    for (std::size_t i = 0; i < polices.size(); ++i) {
        const ColonneTableau& c = modele_->colonnes()[i];
        int largeur = static_cast<int>(std::lround(c.largeur * echelle_));
        if (c.adaptable) {
            const int contenu = QFontMetrics(polices[i]).horizontalAdvance(c.etalon);
            const int titre = c.image.isNull() ? gras.horizontalAdvance(c.entete) : 0;
            largeur = std::max({largeur, contenu + 2 * MargeCellule + 1, titre + Unite + 1});
        }
        setColumnWidth(static_cast<int>(i), largeur);
    }
    modele_->poserPolices(std::move(polices));
}

void VueTableau::remplir(std::vector<LigneTableau> lignes) {
    cacherBulle();
    const QModelIndex actuel = currentIndex();
    const int ligne = actuel.row();
    const int colonne = actuel.column();
    const int haut = verticalScrollBar()->value();
    setUpdatesEnabled(false);
    modele_->remplir(std::move(lignes));
    if (ligne >= 0 && ligne < modele_->rowCount()) {
        setCurrentIndex(modele_->index(ligne, colonne));
        verticalScrollBar()->setValue(haut);
    }
    ajusterTaille();
    setUpdatesEnabled(true);
}

bool VueTableau::defile() const {
    return verticalHeader()->length() > height() - horizontalHeader()->height() - 2 * frameWidth();
}

int VueTableau::largeurEntiere() const {
    const int barre = defile() ? verticalScrollBar()->sizeHint().width() : 0;
    return horizontalHeader()->length() + 2 * frameWidth() + barre;
}

int VueTableau::hauteurEntiere() const {
    return verticalHeader()->length() + horizontalHeader()->sizeHint().height() + 2 * frameWidth();
}

void VueTableau::ajusterTaille() {
    setMaximumSize(largeurEntiere(), std::max(hauteurEntiere(), minimumSizeHint().height()));
    updateGeometry();
}

QSize VueTableau::sizeHint() const {
    return {largeurEntiere(), hauteurEntiere()};
}

QSize VueTableau::minimumSizeHint() const {
    // A window too narrow scrolls the table sideways rather than refuse to shrink.
    return {std::min(largeurEntiere(), static_cast<int>(200 * echelle_)),
            horizontalHeader()->sizeHint().height() + 4 * verticalHeader()->defaultSectionSize()};
}

void VueTableau::resizeEvent(QResizeEvent* evenement) {
    QTableView::resizeEvent(evenement);
    ajusterTaille();
}

// --------------------------------------------------------------------------------------- balloon

void VueTableau::poserBulle(std::function<ContenuBulle(const QModelIndex&)> bulle) {
    contenuBulle_ = std::move(bulle);
}

void VueTableau::montrerBulle(const QModelIndex& index) {
    if (survol_ == index && bulle_->isVisible()) return;
    survol_ = index;
    const ContenuBulle contenu =
        index.isValid() && contenuBulle_ ? contenuBulle_(index) : ContenuBulle{};
    QRect cible = visualRect(index);
    cible.moveTopLeft(viewport()->mapTo(this, cible.topLeft()));
    bulle_->montrer(contenu.titre, contenu.texte, cible);
}

void VueTableau::cacherBulle() {
    survol_ = QPersistentModelIndex();
    bulle_->montrer({}, {}, {});
}

bool VueTableau::viewportEvent(QEvent* evenement) {
    switch (evenement->type()) {
        case QEvent::MouseMove:
            montrerBulle(indexAt(static_cast<QMouseEvent*>(evenement)->position().toPoint()));
            break;
        case QEvent::Leave:
            cacherBulle();
            break;
        default:
            break;
    }
    return QTableView::viewportEvent(evenement);
}

void VueTableau::hideEvent(QHideEvent* evenement) {
    cacherBulle();
    QTableView::hideEvent(evenement);
}

void VueTableau::scrollContentsBy(int dx, int dy) {
    cacherBulle();
    QTableView::scrollContentsBy(dx, dy);
}

void VueTableau::currentChanged(const QModelIndex& actuel, const QModelIndex& ancien) {
    QTableView::currentChanged(actuel, ancien);
    // Whoever walks the table by keyboard reads the balloon as well.
    if (hasFocus() && isVisible()) montrerBulle(actuel);
}

// -------------------------------------------------------------------------------------- keyboard

void VueTableau::keyPressEvent(QKeyEvent* evenement) {
    const QModelIndex actuel = currentIndex();
    switch (evenement->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (actuel.isValid()) Q_EMIT celluleActivee(actuel);
            return;
        case Qt::Key_Space:
            if (!evenement->modifiers().testFlag(Qt::ControlModifier)) break;
            if (actuel.isValid()) {
                modele_->cliquer(actuel.column(),
                                 evenement->modifiers().testFlag(Qt::ShiftModifier));
            }
            return;
        default:
            break;
    }
    QTableView::keyPressEvent(evenement);
}

void VueTableau::contextMenuEvent(QContextMenuEvent* evenement) {
    const QModelIndex index = evenement->reason() == QContextMenuEvent::Keyboard
                                  ? currentIndex()
                                  : indexAt(evenement->pos());
    const QPoint place = evenement->reason() == QContextMenuEvent::Keyboard
                             ? viewport()->mapToGlobal(visualRect(index).bottomLeft())
                             : evenement->globalPos();
    ouvrirMenuTri(index.column(), place);
}

void VueTableau::ouvrirMenuTri(int colonne, const QPoint& place) {
    if (colonne < 0) return;
    const ColonneTableau& c = modele_->colonnes()[static_cast<std::size_t>(colonne)];
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto ajouter = [&](const QString& texte, const QString& touche, bool secondaire) {
        auto* action = menu->addAction(texte + u'\t' + touche);
        action->setEnabled(c.comparer != nullptr);
        connect(action, &QAction::triggered, modele_,
                [this, colonne, secondaire] { modele_->cliquer(colonne, secondaire); });
    };
    ajouter(u"&Trier par « %1 »"_s.arg(c.entete), u"Ctrl+Espace"_s, false);
    ajouter(u"Tri &secondaire par « %1 »"_s.arg(c.entete), u"Ctrl+Maj+Espace"_s, true);
    menu->addSeparator();
    connect(menu->addAction(u"&Revenir à l'ordre de départ"_s), &QAction::triggered, modele_,
            &ModeleTableau::retablirOrdre);
    menu->popup(place);
}

}  // namespace norvane::ui
