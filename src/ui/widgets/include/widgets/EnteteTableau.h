// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The header of a VueTableau: text or image, and below it the mark of the sort keys.
#pragma once

#include <QHeaderView>

namespace norvane::ui {

class ModeleTableau;

class EnteteTableau final : public QHeaderView {
    Q_OBJECT

 public:
    EnteteTableau(ModeleTableau& modele, QWidget* parent);

    /// A font of its own: the application's style sheet would take setFont back.
    void poserPolice(const QFont& police);
    QSize sizeHint() const override;

 Q_SIGNALS:
    /// A click on a heading, `secondaire` with SHIFT.
    void colonneCliquee(int colonne, bool secondaire);

 protected:
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void paintSection(QPainter* peintre, const QRect& cadre, int colonne) const override;

 private:
    void peindreMarque(QPainter& p, const QRect& cadre, const QString& marque) const;

    ModeleTableau& modele_;
    QFont police_;
    bool secondaire_ = false;  // SHIFT was held at the last release
};

}  // namespace norvane::ui
