// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pages "Numéros" (Varo2) and "Chances" (Varo8): how each number or each Chance behaved over
// an interval of draws.
#pragma once

#include <string>
#include <vector>

#include "pages/Page.h"
#include "stats/ExportTableau.h"
#include "stats/TableauStats.h"

class QButtonGroup;
class QGroupBox;
class QLabel;
class QLayout;
class QModelIndex;
class QPushButton;

namespace norvane::ui {

class PaireIntervalle;
class VueTableau;

class PageStats final : public Page {
    Q_OBJECT

 public:
    PageStats(Contexte& ctx, GenreStats genre, QWidget* parent = nullptr);

    /// A new base: bounds 1..NbTirages, and a table over all of it.
    void surChange(const Changement& changement) override;
    void surDepart() override;

    /// Fill the 49 or the 10 rows over records premier..dernier (zero-based, inclusive); each on
    /// the page of its own genre. Rows are in number order afterwards.
    void RemplirStatsNumeros(const Occurrences& occ, int dernier, int premier);
    void RemplirStatsChances(const Occurrences& occ, int dernier, int premier);

 private:
    QLayout* construireReglages();
    QGroupBox* construireRatio();
    QLayout* construireBoutons();
    QGroupBox* construireLegende();
    void poserOrdreTabulation();

    /// The first table of a run: the controls read the whole base while the table leaves its
    /// first record out, until a control or the ratio group is used.
    void remplirDemarrage();
    void reposerBornes();
    void changerBornes(int inf, int sup);
    void remplirBornes();
    void remplir(int dernier, int premier);
    void poserLignes(const std::vector<LigneStats>& lignes);

    void surActivation(const QModelIndex& index);
    /// The table on show, in its order, with the ratio as its exact text. Two draws at least.
    TableauExporte tableauExporte() const;
    void sauver();
    void imprimer();

    struct Textes;
    static const Textes& textesDe(GenreStats genre);

    const GenreStats genre_;
    const Textes& textes_;
    IntervalleStats& bornes_;  // of this page, in the atelier
    bool graphique_ = true;    // the ratio as a bar
    VueTableau* table_ = nullptr;
    PaireIntervalle* intervalle_ = nullptr;
    QLabel* libelle_ = nullptr;
    QButtonGroup* ratio_ = nullptr;
    QPushButton* boutonSauver_ = nullptr;
    QPushButton* boutonImprimer_ = nullptr;
};

}  // namespace norvane::ui
