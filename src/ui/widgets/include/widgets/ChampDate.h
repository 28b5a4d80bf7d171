// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A day that is typed as dd/MM/yyyy, stepped with the keys or picked in a calendar, and read in
// words beside the field.
#pragma once

#include <functional>
#include <QLineEdit>

class QCalendarWidget;
class QLabel;
class QToolButton;

namespace norvane::ui {

/// Days are yyyymmdd. A text counts as soon as it is a whole date within the limits; one typed in
/// part ("22", "22/7", "22 juil", "22/07/24") is completed from the day in force on Enter or when
/// the field is left. A text that gives no day within the limits stays, and the words say so:
/// valable() is false, Enter signals nothing, date() is still the day in force.
///
/// Keys: up and down step the part under the cursor, page up and page down the month; F4 or
/// Alt+down opens the calendar. A click selects all, one more the part under the pointer.
class ChampDate final : public QLineEdit {
    Q_OBJECT

 public:
    ChampDate(const QString& nom, QWidget* parent);

    int date() const { return date_; }
    /// Without a signal. A text that already gives this day is left to whoever types it.
    void poser(int date);
    /// First and last day that can be chosen.
    void poserLimites(int premier, int dernier);
    /// The days that stand out in the calendar.
    void poserMarques(std::function<bool(int date)> marque) { marque_ = std::move(marque); }
    /// What stands in the field gives a day within the limits.
    bool valable() const;

    /// The label of the words, named after the field with "Longue" behind; its place is the
    /// owner's matter.
    QLabel* mots() { return mots_; }
    /// The focus, with the day of the month selected.
    void viser();
    void ouvrirCalendrier();

 Q_SIGNALS:
    /// The user chose another day.
    void dateChange(int date);

 protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;
    void focusOutEvent(QFocusEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

 private:
    void changer(int date);
    void terminer();
    void deplacer(int partie, int pas);
    bool taper(QChar touche);
    int partie() const;
    void viserPartie(int partie);
    void montrerMots();
    void marquer(QCalendarWidget& calendrier) const;

    int date_ = 0;
    int premier_;
    int dernier_;
    bool vientDEtreVise_ = false;  // the press on its way has brought the focus
    std::function<bool(int)> marque_;
    QLabel* mots_;
    QToolButton* fleche_;
};

}  // namespace norvane::ui
