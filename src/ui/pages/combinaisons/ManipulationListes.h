// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user does with the lines of the four lists: their menus, keys and drags all lead to the
// same commands.
#pragma once

#include <functional>
#include <map>
#include <QObject>
#include <vector>

#include "base/Travail.h"
#include "lists/Liste.h"

class QAction;
class QMenu;
class QPoint;

namespace norvane::ui {

class PanneauListe;
struct Contexte;

class ManipulationListes final : public QObject {
    Q_OBJECT

 public:
    ManipulationListes(Contexte& ctx, QWidget* page);

    /// Gives the panel its menu, its keys and its part in drags. It must stay.
    void prendre(PanneauListe& panneau);

    // The commands, on the lines chosen in a list. Each refuses while work runs.
    void CopierVers(QuelleListe source, QuelleListe cible);
    void DeplacerVers(QuelleListe source, QuelleListe cible);
    void CopierversBulletins(QuelleListe source);
    void SupprimerSelection(QuelleListe laquelle);
    void ViderListe(QuelleListe laquelle);
    void TriCroissant(QuelleListe laquelle);
    void TriDecroissant(QuelleListe laquelle);
    void RetirerOccurrences(QuelleListe laquelle);
    void SelectionnerTout(QuelleListe laquelle);

 private:
    struct Menu {
        PanneauListe* panneau;
        QMenu* menu;
        QAction* compte;
        std::vector<QAction*> surMemoire;  ///< need records, not the extremes
        std::vector<QAction*> surChoix;    ///< need a line chosen
    };

    void creerMenu(Menu& menu);
    static void liberer(const Menu& menu);
    void ouvrirMenu(QuelleListe laquelle, const QPoint& place);
    PanneauListe& panneau(QuelleListe laquelle) { return *menus_.at(laquelle).panneau; }
    /// The box of the main list shows the records in memory.
    bool enMemoire(QuelleListe laquelle) const;
    std::vector<std::size_t> choisies(QuelleListe laquelle);
    bool adopterIntervalle(const Liste& liste);
    void transferer(QuelleListe source, QuelleListe cible, bool deplacer);
    void trier(QuelleListe laquelle, bool croissant);
    void operer(QuelleListe laquelle, std::function<void(Liste&)> operation);
    void dire(const QString& phrase, const QString& detail = {});

    Contexte& contexte_;
    QWidget* page_;
    std::map<QuelleListe, Menu> menus_;
};

}  // namespace norvane::ui
