// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A list of combinations on show. It reads the records where they lie and copies nothing.
#pragma once

#include <optional>
#include <QAbstractListModel>
#include <QListView>
#include <QStyledItemDelegate>

#include "comb/EtatCombinaisons.h"
#include "lists/Liste.h"

namespace norvane::ui {

/// Which bound the count of a line reaches.
enum class BorneLigne { Aucune, Inf, Sup };

/// The lines of a list in its order, the first CapaciteListe of them.
class ModeleCombinaisons final : public QAbstractListModel {
    Q_OBJECT

 public:
    static constexpr int RoleBorne = Qt::UserRole + 1;  ///< BorneLigne as an integer

    /// Lines are coloured by the bounds of `etat`.
    ModeleCombinaisons(const EtatCombinaisons& etat, QObject* parent);

    /// Null: no line. The list stays its owner's: after it changed, show it again.
    void montrer(const Liste* liste);
    /// Without colours every line is an ordinary one. To be called too when the bounds changed.
    void poserCouleurs(bool couleurs);

    /// Nothing for a line that is no more.
    std::optional<Combinaison> combinaison(int ligne) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 private:
    BorneLigne borne(const Combinaison& combinaison) const;

    const EtatCombinaisons& etat_;
    const Liste* liste_ = nullptr;
    int nombre_ = 0;
    bool couleurs_ = true;
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

class ListeCombinaisons final : public QListView {
    Q_OBJECT

 public:
    ListeCombinaisons(const QString& nom, const EtatCombinaisons& etat, QWidget* parent);

    ModeleCombinaisons& modele() { return *modele_; }
    /// What an empty list says.
    void poserInvite(const QString& invite);
    /// The width of a line of ten numbers.
    int largeurLigne() const;

 Q_SIGNALS:
    /// A line was clicked or reached with the keys.
    void ligneChoisie(int ligne);

 protected:
    void paintEvent(QPaintEvent* evenement) override;
    void currentChanged(const QModelIndex& actuel, const QModelIndex& ancien) override;

 private:
    ModeleCombinaisons* modele_;
    QString invite_;
};

}  // namespace norvane::ui
