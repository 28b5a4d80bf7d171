// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Graphes" (Varo5): how often everything came out in an interval, and every draw
// against its numbers.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "graphes/CommandesGraphes.h"
#include "graphes/SceneGraphe.h"
#include "graphs/Pointage.h"
#include "graphs/Statistiques.h"
#include "pages/Page.h"

class QStackedWidget;
class QTimer;

namespace norvane::ui {

class CadreGraphe;
class VueGraphe;

/// How one of the charts is looked at.
struct EtatGraphe {
    bool etiquettes = false;
    bool valeurs = false;
    bool troisD = false;
    Vue3D vue;
    Pagination pages;
    int premierePlace = 1;  ///< the range chosen, while all places make one page
    int dernierePlace = NbPlaces;
    Etendue x{0.5, NbPlaces + 0.5};
    std::optional<Etendue> y;  ///< none: what suits the points

    /// Undoes zoom and scrolling.
    void revenir();
    void choisirPages(const Pagination& choisies);
    void choisirPlage(int premiere, int derniere);
};

class PageGraphes final : public Page {
    Q_OBJECT

 public:
    PageGraphes(Contexte& ctx, QWidget* parent);

    void surChange(const Changement& changement) override;
    void surDepart() override;
    void arreter() override;

 private:
    VueGraphe* vue() const;
    EtatGraphe& etat() { return etats_[static_cast<std::size_t>(courant_)]; }

    void relierAffichage();
    void relierPages();
    void relierVue(GenreGraphe genre);

    void reprendreBase();
    void changerIntervalle(int inf, int sup);
    void calculerStatistiques();
    void trier();
    void calculerPointage();
    void choisirGraphe(GenreGraphe genre);
    void demarrerAnimation();
    void arreterAnimation();
    void avancerAnimation();

    void composer();
    void composerStatistiques();
    void composerPointage();
    SceneGraphe scene(const EtatGraphe& e) const;
    void montrerReglages();
    void montrerBulle(const PointGraphe& point);
    QString indice(const PointGraphe& point) const;

    CommandesGraphes c_;
    QStackedWidget* pile_;
    std::array<CadreGraphe*, NbGraphes> cadres_{};
    QTimer* garde_;  // ticks of the animation

    GenreGraphe courant_ = GenreGraphe::Statistiques;
    std::array<EtatGraphe, NbGraphes> etats_;
    std::array<QColor, NbTeintes> teintes_;
    int inf_ = 1;  // the interval, one-based
    int sup_ = 0;
    TriGraphe tri_ = TriGraphe::SansTri;
    bool init_ = false;
    bool attendusMontres_ = true;
    TableGraphe table_{};
    std::array<PointGraphe, NbPlaces> statistiques_{};
    EtatsNumeros selection_{};
    std::vector<PointGraphe> pointage_;
};

}  // namespace norvane::ui
