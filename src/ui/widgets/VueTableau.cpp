// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/VueTableau.h"

#include <algorithm>
#include <cmath>
#include <QContextMenuEvent>
#include <QFontInfo>
#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>

#include "common/Theme.h"
#include "widgets/Bulle.h"
#include "widgets/ColonnesFigees.h"
#include "widgets/DelegueTableau.h"
#include "widgets/EnteteTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

VueTableau::VueTableau(std::vector<ColonneTableau> colonnes, int figees, double echelle,
                       QWidget* parent)
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
    suivreEntete(entete);
    if (figees > 0) {
        figees_ = new ColonnesFigees(*this, *modele_, figees);
        suivreEntete(static_cast<EnteteTableau*>(figees_->horizontalHeader()));
        connect(figees_, &QTableView::doubleClicked, this, &VueTableau::celluleActivee);
    }
    poserMesures();
    connect(this, &QTableView::doubleClicked, this, &VueTableau::celluleActivee);
    connect(modele_, &QAbstractItemModel::layoutChanged, this, [this] { cacherBulle(); });
}

void VueTableau::suivreEntete(EnteteTableau* entete) {
    connect(entete, &EnteteTableau::colonneCliquee, modele_, &ModeleTableau::cliquer);
    entete->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(entete, &QWidget::customContextMenuRequested, this, [this, entete](const QPoint& p) {
        ouvrirMenuTri(entete->logicalIndexAt(p), entete->mapToGlobal(p));
    });
}

void VueTableau::poserMesures() {
    std::vector<QFont> polices;
    int haute = 0;
    for (const ColonneTableau& c : modele_->colonnes()) {
        QFont fonte = font();
        const int lisible = QFontInfo(fonte).pixelSize() * 85 / 100;
        if (c.police > 0) fonte.setPixelSize(std::max(lisible, qRound(c.police * echelle_)));
        fonte.setBold(c.gras);
        // Figures have nothing below their line: rows as low as that, and more of them on show.
        const QFontMetrics mesures(fonte);
        haute = std::max(haute, c.police > 0 ? mesures.capHeight() + Unite : mesures.height() + 2);
        polices.push_back(fonte);
    }
    verticalHeader()->setDefaultSectionSize(haute);
    QFont titres = font();
    titres.setBold(true);
    static_cast<EnteteTableau*>(horizontalHeader())->poserPolice(titres);
    if (figees_ != nullptr) {
        static_cast<EnteteTableau*>(figees_->horizontalHeader())->poserPolice(titres);
    }
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

void VueTableau::reserverLignes(int nombre) {
    reservees_ = nombre;
    ajusterTaille();
}

int VueTableau::hauteurEntiere() const {
    const int reserve = reservees_ * verticalHeader()->defaultSectionSize();
    return std::max(verticalHeader()->length(), reserve) + horizontalHeader()->sizeHint().height() +
           2 * frameWidth();
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
    if (figees_ != nullptr) figees_->placer();
}

void VueTableau::scrollTo(const QModelIndex& index, ScrollHint place) {
    QTableView::scrollTo(index, place);
    if (figees_ == nullptr || index.column() < figees_->nombre()) return;
    const int cache = figees_->largeurCouverte() - visualRect(index).left();
    if (cache > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - cache);
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
        action->setEnabled(!c.position);
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
