// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main window: it assembles the pages and carries what belongs to none of them.
#pragma once

#include <QMainWindow>
#include <vector>

#include "shell/Echelles.h"
#include "shell/Fermeture.h"
#include "shell/Instance.h"
#include "shell/Page.h"

class QActionGroup;
class QLabel;
class QProgressBar;
class QTabWidget;

namespace norvane::ui {

class Aide;
class EtiquetteMode;
class PageAVenir;
class PageCombinaisons;
class PageResultats;
class PageStats;
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

    Contexte& contexte() { return contexte_; }
    Modes modes;

    /// Closes the window with all its questions.
    void ExitClick() { close(); }
    /// To call at the end of every worker: the busy count falls, and a close that waits goes on.
    void finTraitement();
    /// Brings everything in line after the base in memory changed.
    void RecalculBase();

 Q_SIGNALS:
    /// A worker must stop: the window was closed during its work.
    void arretDemande();
    /// The window has been painted for the first time.
    void premierePeinture();

 protected:
    void showEvent(QShowEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
    bool event(QEvent* evenement) override;

 private:
    void creerPages();
    void creerMenus();
    void creerEtat();
    void relier(Page* page);
    void premierAffichage();
    void reprendreRepos();
    void changerPage(int place);
    void changerMode();
    void changerApparence(const QString& cle);
    void montrerTirage(int numero, GenreStats genre, int element);
    void ouvrirHistorique(GenreStats genre, int element, int inf, int sup);
    void exempleHistorique();
    void montrerIntervalle();
    void dire(const QString& texte);
    void direAvertissements();

    Contexte contexte_;
    Instance* instance_;
    Fermeture fermeture_;
    QTabWidget* pages_ = nullptr;
    PageResultats* resultats_ = nullptr;
    PageStats* numeros_ = nullptr;
    PageStats* chances_ = nullptr;
    PageCombinaisons* combinaisons_ = nullptr;
    PageAVenir* historiques_ = nullptr;
    int pagePrecedente_ = 0;
    EtiquetteMode* mode_ = nullptr;
    Aide* aide_ = nullptr;
    TAboutBox* aPropos_ = nullptr;
    QLabel* texteEtat_ = nullptr;
    QLabel* intervalle_ = nullptr;
    QProgressBar* progression_ = nullptr;
    bool montree_ = false;
    bool peinte_ = false;
    bool texteTravail_ = false;  ///< panel 0 carries the text of long work
};

}  // namespace norvane::ui
