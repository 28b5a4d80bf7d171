// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A bar that finds words in a text: neither case nor accents count.
#pragma once

#include <QWidget>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QTextEdit;

namespace norvane::ui {

class BarreRecherche final : public QWidget {
    Q_OBJECT

 public:
    /// Hidden at first. `vue` must live as long as the bar.
    BarreRecherche(QTextEdit& vue, QWidget* parent);

    /// Shows itself, ready to type in; what is selected in the text is what is looked for.
    void ouvrir();
    /// The text is another one: what is looked for is found in it anew, nothing moves.
    void reprendre();
    /// To the next place found, or `pas` -1 to the one before; round at the end.
    void avancer(int pas);

 protected:
    void keyPressEvent(QKeyEvent* evenement) override;

 private:
    void chercher();
    void surTexte();
    void fermer();
    void montrerCourante();
    void marquer();

    QTextEdit& vue_;
    QLineEdit* champ_;
    QLabel* compte_;
    QPushButton* precedent_;
    QPushButton* suivant_;
    std::vector<int> places_;  // of the matches, ascending
    int courante_ = -1;        // in places_
};

}  // namespace norvane::ui
