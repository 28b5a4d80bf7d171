// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main window: it assembles the pages and carries what belongs to none of them.
#pragma once

#include <QMainWindow>
#include <vector>

#include "common/Contexte.h"
#include "shell/Echelles.h"
#include "shell/Fermeture.h"
#include "shell/Instance.h"

class QActionGroup;
class QLabel;
class QProgressBar;
class QTabWidget;

namespace norvane::ui {

class Aide;
class EtiquetteMode;
class Page;
class MiseAJourTirages;
class TAboutBox;

class TVaroMainForm final : public QMainWindow {
    Q_OBJECT

 public:
    /// First phase of the start: everything but what needs a window on the screen. `instance` is
    /// given back before the program starts itself again; none in tests.
    TVaroMainForm(Atelier& atelier, Services& services, Instance* instance = nullptr);
    ~TVaroMainForm() override;

    /// Shows the window at its place, or ends the program at once on a base below two records.
    void montrer();

    /// Closes the window with all its questions.
    void ExitClick() { close(); }
    /// Closes it without any, as soon as the work in hand has stopped: the system wishes it.
    void fermerSansQuestion();
    /// Brings everything in line after the base in memory changed.
    void RecalculBase();

 Q_SIGNALS:
    /// The window has been painted for the first time.
    void premierePeinture();

 protected:
    void showEvent(QShowEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
    /// An official archive may be dropped anywhere on the window.
    void dragEnterEvent(QDragEnterEvent* evenement) override;
    void dropEvent(QDropEvent* evenement) override;
    bool event(QEvent* evenement) override;

 private:
    void creerPages();
    void creerMenus();
    void creerEtat();
    void relier();
    void premierAffichage();
    void reprendreRepos();
    void changerPage(int place);
    void changerMode();
    void changerApparence(const QString& cle);
    void diffuser(const Changement& changement);
    void ouvrir(const Destination& destination);
    Page* pageCourante() const;
    void montrerIntervalle();
    void ecrire(const QString& texte);
    void dire(const QString& texte);
    void direAvertissements();

    Relais relais_;
    Travaux travaux_;
    Contexte contexte_;
    Instance* instance_;
    Fermeture fermeture_;
    QTabWidget* onglets_ = nullptr;
    std::vector<Page*> pages_;
    int pagePrecedente_ = 0;
    EtiquetteMode* mode_ = nullptr;
    Aide* aide_ = nullptr;
    MiseAJourTirages* miseAJour_ = nullptr;
    TAboutBox* aPropos_ = nullptr;
    QLabel* texteEtat_ = nullptr;
    QLabel* intervalle_ = nullptr;
    QProgressBar* progression_ = nullptr;
    bool montree_ = false;
    bool peinte_ = false;
    bool texteTravail_ = false;  ///< panel 0 carries the text of long work
};

}  // namespace norvane::ui
