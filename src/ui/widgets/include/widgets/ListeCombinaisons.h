// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A list of combinations on show. It reads the records where they lie and copies nothing.
#pragma once

#include <optional>
#include <QAbstractListModel>
#include <QListView>
#include <QStyledItemDelegate>
#include <vector>

#include "lists/Liste.h"

namespace norvane::ui {

/// Which bound the count of a line reaches.
enum class BorneLigne { Aucune, Inf, Sup };

/// The counts that stand out.
struct BornesLignes {
    int inf;
    int sup;

    friend bool operator==(const BornesLignes&, const BornesLignes&) = default;
};

/// The lines of a list in its order, the first CapaciteListe of them.
class ModeleCombinaisons final : public QAbstractListModel {
    Q_OBJECT

 public:
    static constexpr int RoleBorne = Qt::UserRole + 1;  ///< BorneLigne as an integer

    using QAbstractListModel::QAbstractListModel;

    /// Null: no line. The list stays its owner's: after it changed, show it again.
    void montrer(const Liste* liste);
    const Liste* liste() const { return liste_; }
    /// Without bounds every line is an ordinary one.
    void poserBornes(std::optional<BornesLignes> bornes);

    /// Nothing for a line that is no more.
    std::optional<Combinaison> combinaison(int ligne) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
    BorneLigne borne(const Combinaison& combinaison) const;

    const Liste* liste_ = nullptr;
    int nombre_ = 0;
    std::optional<BornesLignes> bornes_;
};

/// One line: blue when it reaches the upper bound, green at the lower one, on aqua in a black frame
/// while it is the selected one.
class DelegueCombinaisons final : public QStyledItemDelegate {
    Q_OBJECT

 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static QColor encre(BorneLigne borne, bool choisie, const QPalette& palette);

    void paint(QPainter* peintre, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// What an empty list says, in the middle of its viewport.
void peindreInvite(QWidget& boite, const QString& invite);

/// Several lines may be chosen; chosen lines can be dragged to another such list that takes them,
/// once exchanges are allowed.
class ListeCombinaisons final : public QListView {
    Q_OBJECT

 public:
    ListeCombinaisons(const QString& nom, QWidget* parent);

    ModeleCombinaisons& modele() { return *modele_; }
    /// Shows the lines of a list, none for null. The place stays when it is the list on show
    /// already, and the lines chosen too when they are as many as before; nothing is told of them.
    void montrer(const Liste* liste);
    /// No line chosen, the first one on top.
    void revenirEnTete();
    /// Zero-based, ascending, each once.
    std::vector<std::size_t> lignesChoisies() const;
    /// Whether its lines can be dragged away. Where they cannot, the mouse chooses lines.
    void permettreDepart(bool permis);
    /// Whether it takes lines of other lists.
    void permettreArrivee(bool permise) { setAcceptDrops(permise); }
    /// What an empty list says.
    void poserInvite(const QString& invite);
    /// The width of a line of ten numbers.
    int largeurLigne() const;

 Q_SIGNALS:
    /// A line was clicked or reached with the keys.
    void ligneChoisie(int ligne);
    /// The lines chosen in the list of that object name were let down here.
    void lignesDeposees(const QString& source);

 protected:
    void paintEvent(QPaintEvent* evenement) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dragMoveEvent(QDragMoveEvent* evenement) override;
    void dragLeaveEvent(QDragLeaveEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;
    void currentChanged(const QModelIndex& actuel, const QModelIndex& ancien) override;

 private:
    /// The name of the list whose lines come, empty for anything else.
    QString source(const QDropEvent& evenement) const;
    void montrerSurvol(bool survol);

    ModeleCombinaisons* modele_;
    QString invite_;
    bool survolee_ = false;  // lines are being dragged over it
};

}  // namespace norvane::ui
