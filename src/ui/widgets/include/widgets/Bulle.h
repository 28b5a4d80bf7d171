// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A balloon: a title and a text that point at a place of the widget they stand on.
#pragma once

#include <QString>
#include <QWidget>

namespace norvane::ui {

class Bulle final : public QWidget {
    Q_OBJECT

 public:
    explicit Bulle(QWidget* parent);

    /// Shows the balloon above `cible` (in the parent's coordinates), or below it when there is no
    /// room; with an empty text nothing shows. The text may have several lines.
    void montrer(const QString& titre, const QString& texte, const QRect& cible);

    QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* evenement) override;

 private:
    QFont policeTitre() const;

    QString titre_;
    QString texte_;
    int pointe_ = 0;       // x of the tip
    bool dessous_ = true;  // the tip is at the lower edge
};

}  // namespace norvane::ui
