// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ListeCombinaisons.h"

#include <algorithm>
#include <numeric>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>

#include "comb/LigneCombinaison.h"
#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
constexpr int Marge = 2 * Unite;  // left and right of the text of a line
constexpr int Cadre = 3;          // pen of the selected line, in pixels

/// What a drag carries: the name of the list that its lines are chosen in.
const QString TypeLignes = u"application/x-norvane-lignes"_s;

/// What goes along with the pointer.
QPixmap etiquetteLignes(const QWidget& liste, std::size_t nombre) {
    const QString texte = nombre == 1 ? u"1 combinaison"_s : u"%1 combinaisons"_s.arg(nombre);
    const QFontMetrics mesures = liste.fontMetrics();
    const qreal echelle = liste.devicePixelRatioF();
    const QSize taille(mesures.horizontalAdvance(texte) + 2 * Marge, mesures.height() + 2 * Cadre);
    QPixmap image(taille * echelle);
    image.setDevicePixelRatio(echelle);
    image.fill(QColor(CouleurLigneChoisie));
    QPainter p(&image);
    p.setFont(liste.font());
    p.setPen(Qt::black);
    p.drawText(QRect({}, taille), int{Qt::AlignCenter}, texte);
    return image;
}
}  // namespace

// ------------------------------------------------------------------------------------------ model

void ModeleCombinaisons::montrer(const Liste* liste) {
    beginResetModel();
    liste_ = liste;
    nombre_ = liste == nullptr ? 0 : static_cast<int>(std::min(liste->nombre(), CapaciteListe));
    endResetModel();
}

void ModeleCombinaisons::poserBornes(std::optional<BornesLignes> bornes) {
    if (bornes == bornes_) return;
    bornes_ = bornes;
    if (nombre_ > 0) Q_EMIT dataChanged(index(0), index(nombre_ - 1), {RoleBorne});
}

std::optional<Combinaison> ModeleCombinaisons::combinaison(int ligne) const {
    // The owner may have changed its list since the last showing.
    const auto i = static_cast<std::size_t>(ligne);
    if (liste_ == nullptr || i >= liste_->nombre()) return std::nullopt;
    return liste_->combinaison(i);
}

int ModeleCombinaisons::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : nombre_;
}

QVariant ModeleCombinaisons::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    if (role != Qt::DisplayRole && role != RoleBorne) return {};
    const auto ligne = combinaison(index.row());
    if (!ligne) return {};
    if (role == RoleBorne) return static_cast<int>(borne(*ligne));
    return QString::fromStdString(LigneCombinaison(*ligne));
}

Qt::ItemFlags ModeleCombinaisons::flags(const QModelIndex& index) const {
    const Qt::ItemFlags drapeaux = QAbstractListModel::flags(index);
    return index.isValid() ? drapeaux | Qt::ItemIsDragEnabled : drapeaux;
}

BorneLigne ModeleCombinaisons::borne(const Combinaison& combinaison) const {
    if (!bornes_ || combinaison.marque) return BorneLigne::Aucune;
    if (combinaison.NbFois == bornes_->sup) return BorneLigne::Sup;
    return combinaison.NbFois == bornes_->inf ? BorneLigne::Inf : BorneLigne::Aucune;
}

// --------------------------------------------------------------------------------------- delegate

QColor DelegueCombinaisons::encre(BorneLigne borne, bool choisie, const QPalette& palette) {
    const Teintes t = teintes(palette);
    switch (borne) {
        case BorneLigne::Sup:
            return choisie ? QColor(CouleurLigneSup) : t.ligneSup;
        case BorneLigne::Inf:
            return choisie ? QColor(CouleurLigneInf) : t.ligneInf;
        case BorneLigne::Aucune:
            break;
    }
    return choisie ? QColor(Qt::black) : palette.color(QPalette::Text);
}

void DelegueCombinaisons::paint(QPainter* peintre, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    QPainter& p = *peintre;
    const bool choisie = option.state.testFlag(QStyle::State_Selected);
    p.save();
    if (choisie) {
        p.fillRect(option.rect, Qt::black);
        p.fillRect(option.rect.adjusted(Cadre, Cadre, -Cadre, -Cadre), QColor(CouleurLigneChoisie));
    } else {
        p.fillRect(option.rect, option.palette.color(QPalette::Base));
    }
    const auto borne = static_cast<BorneLigne>(index.data(ModeleCombinaisons::RoleBorne).toInt());
    p.setFont(option.font);
    p.setPen(encre(borne, choisie, option.palette));
    p.drawText(option.rect.adjusted(Marge, 0, -Marge, 0),
               int{Qt::AlignVCenter} | int{Qt::AlignLeft} | int{Qt::TextSingleLine},
               index.data(Qt::DisplayRole).toString());
    p.restore();
}

QSize DelegueCombinaisons::sizeHint(const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    const QString texte = index.data(Qt::DisplayRole).toString();
    return {option.fontMetrics.horizontalAdvance(texte) + 2 * Marge,
            option.fontMetrics.height() + 2 * Cadre};
}

// ------------------------------------------------------------------------------------------- view

void peindreInvite(QWidget& boite, const QString& invite) {
    QPainter p(&boite);
    p.setPen(teintes(boite.palette()).discret);
    p.drawText(boite.rect().adjusted(3 * Unite, 3 * Unite, -3 * Unite, -3 * Unite),
               int{Qt::AlignCenter} | int{Qt::TextWordWrap}, invite);
}

ListeCombinaisons::ListeCombinaisons(const QString& nom, QWidget* parent)
    : QListView(parent), modele_(new ModeleCombinaisons(this)) {
    setObjectName(nom);
    setModel(modele_);
    setItemDelegate(new DelegueCombinaisons(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setVerticalScrollMode(ScrollPerItem);
}

void ListeCombinaisons::montrer(const Liste* liste) {
    const int avant = modele_->rowCount();
    const Liste* ancienne = modele_->liste();
    const QItemSelection choix = selectionModel()->selection();
    QList<std::pair<int, int>> plages;
    for (const QItemSelectionRange& plage : choix) plages << std::pair(plage.top(), plage.bottom());
    const int actuelle = currentIndex().row();
    const int place = verticalScrollBar()->value();
    modele_->montrer(liste);
    if (liste == nullptr || liste != ancienne) return scrollToTop();
    verticalScrollBar()->setValue(place);
    if (modele_->rowCount() != avant) return;
    const QSignalBlocker silence(this);
    QItemSelection repris;
    for (const auto& [haut, bas] : plages) repris.select(modele_->index(haut), modele_->index(bas));
    if (actuelle >= 0)
        selectionModel()->setCurrentIndex(modele_->index(actuelle), QItemSelectionModel::NoUpdate);
    selectionModel()->select(repris, QItemSelectionModel::ClearAndSelect);
}

void ListeCombinaisons::revenirEnTete() {
    selectionModel()->clear();
    scrollToTop();
}

std::vector<std::size_t> ListeCombinaisons::lignesChoisies() const {
    std::vector<std::size_t> lignes;
    for (const QItemSelectionRange& plage : selectionModel()->selection()) {
        const std::size_t avant = lignes.size();
        lignes.resize(avant + static_cast<std::size_t>(plage.height()));
        std::iota(lignes.begin() + static_cast<std::ptrdiff_t>(avant), lignes.end(),
                  static_cast<std::size_t>(plage.top()));
    }
    // Ranges may come in any order and, in passing, overlap.
    std::ranges::sort(lignes);
    lignes.erase(std::unique(lignes.begin(), lignes.end()), lignes.end());
    return lignes;
}

void ListeCombinaisons::permettreDepart(bool permis) {
    setDragEnabled(permis);
}

int ListeCombinaisons::largeurLigne() const {
    return fontMetrics().horizontalAdvance(u"00 00 00 00 00 00 00 00 00 00  (0000) N"_s) +
           2 * Marge + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
}

void ListeCombinaisons::poserInvite(const QString& invite) {
    invite_ = invite;
    viewport()->update();
}

void ListeCombinaisons::paintEvent(QPaintEvent* evenement) {
    QListView::paintEvent(evenement);
    if (survolee_) {
        QPainter p(viewport());
        p.setPen(QPen(teintes(palette()).accent, 2));
        p.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
    }
    if (modele_->rowCount() == 0) peindreInvite(*viewport(), invite_);
}

// -------------------------------------------------------------------------------- drag and drop

void ListeCombinaisons::startDrag(Qt::DropActions) {
    auto* donnees = new QMimeData;
    donnees->setData(TypeLignes, objectName().toUtf8());
    auto* glisser = new QDrag(this);
    glisser->setMimeData(donnees);
    glisser->setPixmap(etiquetteLignes(*this, lignesChoisies().size()));
    glisser->exec(Qt::CopyAction);
}

QString ListeCombinaisons::source(const QDropEvent& evenement) const {
    const QString nom = QString::fromUtf8(evenement.mimeData()->data(TypeLignes));
    return nom == objectName() ? QString() : nom;
}

void ListeCombinaisons::montrerSurvol(bool survol) {
    survolee_ = survol;
    viewport()->update();
}

void ListeCombinaisons::dragEnterEvent(QDragEnterEvent* evenement) {
    const bool prises = !source(*evenement).isEmpty();
    evenement->setAccepted(prises);
    montrerSurvol(prises);
}

void ListeCombinaisons::dragMoveEvent(QDragMoveEvent* evenement) {
    evenement->setAccepted(!source(*evenement).isEmpty());
}

void ListeCombinaisons::dragLeaveEvent(QDragLeaveEvent*) {
    montrerSurvol(false);
}

void ListeCombinaisons::dropEvent(QDropEvent* evenement) {
    montrerSurvol(false);
    const QString nom = source(*evenement);
    evenement->setDropAction(Qt::CopyAction);
    evenement->setAccepted(!nom.isEmpty());
    if (!nom.isEmpty()) Q_EMIT lignesDeposees(nom);
}

void ListeCombinaisons::currentChanged(const QModelIndex& actuel, const QModelIndex& ancien) {
    QListView::currentChanged(actuel, ancien);
    if (actuel.isValid()) Q_EMIT ligneChoisie(actuel.row());
}

}  // namespace norvane::ui
