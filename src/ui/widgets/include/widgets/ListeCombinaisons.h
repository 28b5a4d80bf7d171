// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The list of combinations on show. It reads the engine's own lines or records and copies nothing.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStyledItemDelegate>
#include <string>
#include <vector>

#include "comb/EtatCombinaisons.h"
#include "comb/LigneCombinaison.h"

namespace norvane::ui {

/// Which bound the count of a line reaches.
enum class BorneLigne { Aucune, Inf, Sup };

class ModeleCombinaisons final : public QAbstractListModel {
    Q_OBJECT

 public:
    static constexpr int RoleBorne = Qt::UserRole + 1;  ///< BorneLigne as an integer

    ModeleCombinaisons(const EtatCombinaisons& etat, QObject* parent);

    // What is shown stays the owner's: after it changed, show it again. At most CapaciteListe
    // lines.
    void montrerRien();
    void montrerLignes(const std::vector<std::string>& lignes);
    void montrerListe(const Arene& liste);
    /// Without colours every line is an ordinary one.
    void poserCouleurs(bool couleurs);

    bool montreListe() const { return liste_ != nullptr; }
    /// The text of line `ligne`; empty when it is no more.
    std::string texte(int ligne) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 private:
    void montrer(const std::vector<std::string>* lignes, const Arene* liste);
    BorneLigne borne(const std::string& ligne) const;

    const EtatCombinaisons& etat_;
    const std::vector<std::string>* lignes_ = nullptr;
    const Arene* liste_ = nullptr;
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
