// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The gaps of a history over time: one bar for each time that it came out, as high as the gap
// before it, the mean of them, and the gap that runs now.
#pragma once

#include <QWidget>
#include <vector>

#include "reports/Historique.h"

namespace norvane::ui {

class DessinEcarts final : public QWidget {
    Q_OBJECT

 public:
    DessinEcarts(double echelle, QWidget* parent);

    void montrer(const Historique& historique);

    QSize sizeHint() const override;

 Q_SIGNALS:
    /// A click on the bar of that draw (one-based).
    void tirageChoisi(int numero);

 protected:
    void paintEvent(QPaintEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    bool event(QEvent* evenement) override;

 private:
    struct Barre {
        int numero;  // one-based
        int ecart;
        int date;
    };
    struct Annee {
        int numero;  // its first draw
        int annee;
    };

    QRectF cadre() const;               // of the bars
    double abscisse(int numero) const;  // left end of the place of a draw
    double hauteur(double ecart) const;
    double largeurBarre() const;
    const Barre* barreSous(const QPoint& place) const;
    void peindreAnnees(QPainter& p, const QRectF& zone) const;
    void peindreLegende(QPainter& p, const QRectF& zone) const;

    double echelle_;
    std::vector<Barre> barres_;
    std::vector<Annee> annees_;
    int inf_ = 1;
    int sup_ = 0;
    ChiffresHistorique chiffres_{};
};

}  // namespace norvane::ui
