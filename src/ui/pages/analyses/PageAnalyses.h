// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Analyses N" (Varo4): a report on the numbers of an interval of draws, to be read,
// searched, printed and saved.
#pragma once

#include <memory>

#include "pages/Page.h"
#include "reports/Document.h"
#include "reports/DocumentStyles.h"

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QPagedPaintDevice;
class QPushButton;

namespace norvane::ui {

class BarreRecherche;
class PaireIntervalle;
class RapportPagine;
class VueRapport;

class PageAnalyses final : public Page {
    Q_OBJECT

 public:
    explicit PageAnalyses(Contexte& ctx, QWidget* parent = nullptr);

    /// A new base: a report over all of it. New colours: the same report in them.
    void surChange(const Changement& changement) override;

 protected:
    void showEvent(QShowEvent* evenement) override;

 private:
    QWidget* construireReglages();
    QGroupBox* construireIntervalle();
    QGroupBox* construirePresentation();
    QGroupBox* construireSorties();
    void construireRaccourcis();
    void poserOrdreTabulation();

    void reposerBornes();
    void changerBornes(int inf, int sup);
    /// The report of the interval in force, on a worker; once the page is on show and nothing else
    /// runs. Of several asked for, the last is made and shown.
    void rediger();
    void recevoir(std::shared_ptr<const Document> document, const std::string& erreur);
    void direIntervalle();

    void montrer();
    void choisirStyle(JeuStyles jeu);
    void poserFond();

    void sauver(bool html);
    void imprimerRapport();
    bool peindrePages(QPagedPaintDevice& papier, const RapportPagine& rapport, int premiere,
                      int derniere);

    IntervalleStats& bornes_;                   // of this page, in the atelier
    std::shared_ptr<const Document> document_;  // the one on show; null before the first
    bool perime_ = true;                        // a report is asked for and not under way
    JeuStyles jeu_ = JeuStyles::RVStyle2;
    bool fond_ = false;

    VueRapport* vue_ = nullptr;
    BarreRecherche* recherche_ = nullptr;
    PaireIntervalle* intervalle_ = nullptr;
    QLabel* libelle_ = nullptr;
    QButtonGroup* styles_ = nullptr;
    QCheckBox* caseFond_ = nullptr;
    QList<QPushButton*> sorties_;
};

}  // namespace norvane::ui
