// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A small window inside the window that says that long work has ended, and goes by itself.
#pragma once

#include <QTimer>
#include <QWidget>

namespace norvane::ui {

class Alerte final : public QWidget {
    Q_OBJECT

 public:
    /// Hidden at first, in the lower right corner of `fenetre`. It never takes the focus.
    explicit Alerte(QWidget* fenetre);

    void montrer(const QString& titre, const QString& texte);

    QSize sizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
    void placer();
    QFont policeTitre() const;

    QTimer duree_;  // single shot, running while it shows
    QString titre_;
    QString texte_;
};

}  // namespace norvane::ui
