// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The choice of the pages to print, with a preview of any of them.
#pragma once

#include <functional>
#include <QDialog>
#include <QSizeF>

class QPainter;
class QSpinBox;

namespace norvane::ui {

/// What is to be printed, laid out already.
struct PagesAImprimer {
    int nombre;     ///< pages, at least 1
    QSizeF taille;  ///< of the part inside the margins; its proportions matter alone
    /// Paints page `numero`, from 1, into that part of the device.
    std::function<void(QPainter& p, int numero, const QRectF& cible)> peindre;
};

class TImprimerBox final : public QDialog {
    Q_OBJECT

 public:
    TImprimerBox(const QString& titre, PagesAImprimer pages, QWidget* parent);
    ~TImprimerBox() override;

    // The range that was chosen, from 1, crossed never.
    int premiere() const { return premiere_; }
    int derniere() const { return derniere_; }

 private:
    class Apercu;

    QLayout* creerChoixPage();
    QLayout* creerEtendue();
    QLayout* creerBoutons();
    QSpinBox* creerChamp(const QString& nom, const QString& libelle, int valeur);
    void choisirPremiere(int page);
    void choisirDerniere(int page);

    const PagesAImprimer pages_;
    int premiere_ = 1;
    int derniere_;
    Apercu* apercu_;
    QSpinBox* page_ = nullptr;
    QSpinBox* de_ = nullptr;
    QSpinBox* a_ = nullptr;
};

}  // namespace norvane::ui
