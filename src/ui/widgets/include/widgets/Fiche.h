// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A panel that stands on the window, and the small pieces that fill one.
#pragma once

#include <initializer_list>
#include <QFrame>

class QHBoxLayout;
class QLabel;
class QLayout;
class QPainter;
class QPushButton;
class QVBoxLayout;

namespace norvane::ui {

class Fiche final : public QFrame {
    Q_OBJECT

 public:
    explicit Fiche(QWidget* parent);

    QVBoxLayout* pile;  ///< its content

 protected:
    void paintEvent(QPaintEvent* evenement) override;
};

/// The surface and the border of such a panel, for a widget that paints itself.
void peindreFiche(QPainter& p, const QWidget& fiche);

/// Secondary text, in a colour that follows the palette.
QLabel* legende(const QString& texte, QWidget* parent);

/// Bold, and larger by `facteur`.
void grossir(QWidget* cible, double facteur);

/// A value that stands out; `libelle` is its accessible name.
QLabel* valeur(const QString& nom, const QString& libelle, QWidget* parent);

/// A control with its caption above it.
QVBoxLayout* colonne(const QString& titre, QLayout* contenu, QWidget* parent);

/// Widgets side by side.
QHBoxLayout* rangee(std::initializer_list<QWidget*> widgets);

QPushButton* bouton(const QString& nom, const QString& libelle, const QString& indice,
                    QWidget* parent);

}  // namespace norvane::ui
