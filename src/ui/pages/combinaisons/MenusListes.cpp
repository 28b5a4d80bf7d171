// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The menu, the keys and the drags of each of the four lists.
#include <array>
#include <QAction>
#include <QMenu>

#include "combinaisons/ManipulationListes.h"
#include "combinaisons/PanneauListe.h"
#include "common/Contexte.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// How the menus of the other lists call each list. Object names of the entries: what they do, the
/// list that they lead to, the list that they stand in.
struct Cible {
    QuelleListe liste;
    const char16_t* deplacer;
    const char16_t* copier;
    const char16_t* cle;
};
constexpr std::array<Cible, 4> Cibles{{
    {QuelleListe::Tampon1, u"Déplacer vers Liste I", u"Copier vers Liste I", u"Tamp1"},
    {QuelleListe::Tampon2, u"Déplacer vers Liste II", u"Copier vers Liste II", u"Tamp2"},
    {QuelleListe::Tampon3, u"Déplacer vers Liste III", u"Copier vers Liste III", u"Tamp3"},
    {QuelleListe::Memoire, u"Déplacer vers Liste principale", u"Copier vers Liste Principale",
     u"Principale"},
}};

enum class Besoin { Memoire, MemoireEtChoix, Choix, Rien };

struct Commande {
    const char16_t* cle;
    const char16_t* texte;
    void (ManipulationListes::*faire)(QuelleListe);
    Besoin besoin;
    bool filet;  ///< a rule stands before it
};
constexpr std::array<Commande, 7> Commandes{{
    {u"CopierversBulletins", u"Copier vers &Bulletins", &ManipulationListes::CopierversBulletins,
     Besoin::Choix, true},
    {u"TriCroissant", u"Tri Lexicographique &croissant", &ManipulationListes::TriCroissant,
     Besoin::Memoire, true},
    {u"TriDecroissant", u"Tri Lexicographique &décroissant", &ManipulationListes::TriDecroissant,
     Besoin::Memoire, false},
    {u"RetirerOccurrences", u"&Retirer occurrences multiples",
     &ManipulationListes::RetirerOccurrences, Besoin::Memoire, false},
    {u"SelectionnerTout", u"Sélectionner &tout", &ManipulationListes::SelectionnerTout,
     Besoin::Rien, true},
    {u"Supprimer", u"&Supprimer", &ManipulationListes::SupprimerSelection, Besoin::MemoireEtChoix,
     false},
    {u"Vider", u"&Vider la Liste", &ManipulationListes::ViderListe, Besoin::Memoire, false},
}};

QString cleDe(QuelleListe liste) {
    for (const Cible& cible : Cibles)
        if (cible.liste == liste) return QString::fromUtf16(cible.cle);
    return {};
}

}  // namespace

void ManipulationListes::prendre(PanneauListe& panneau) {
    const QuelleListe laquelle = panneau.noms.laquelle;
    Menu& menu = menus_[laquelle];
    menu.panneau = &panneau;
    creerMenu(menu);
    ListeCombinaisons& boite = panneau.boite();
    boite.permettreArrivee(true);
    connect(&boite, &QWidget::customContextMenuRequested, this,
            [this, laquelle](const QPoint& place) { ouvrirMenu(laquelle, place); });
    connect(&boite, &ListeCombinaisons::lignesDeposees, this,
            [this, laquelle](const QString& source) {
                for (const auto& [autre, sien] : menus_)
                    if (sien.panneau->boite().objectName() == source)
                        return CopierVers(autre, laquelle);
            });
}

void ManipulationListes::creerMenu(Menu& menu) {
    const QuelleListe laquelle = menu.panneau->noms.laquelle;
    ListeCombinaisons& boite = menu.panneau->boite();
    const QString ici = cleDe(laquelle);
    menu.menu = new QMenu(&boite);
    menu.menu->setObjectName(u"PopupMenu"_s + ici);
    menu.compte = menu.menu->addAction(QString());
    menu.compte->setObjectName(QString::fromUtf16(menu.panneau->noms.compteMenu));
    menu.compte->setEnabled(false);
    connect(menu.menu, &QMenu::aboutToHide, this, [&menu] { liberer(menu); });
    for (const bool deplacer : {true, false}) {
        menu.menu->addSeparator();
        for (const Cible& cible : Cibles) {
            if (cible.liste == laquelle) continue;
            auto* action =
                menu.menu->addAction(QString::fromUtf16(deplacer ? cible.deplacer : cible.copier),
                                     this, [this, laquelle, deplacer, vers = cible.liste] {
                                         transferer(laquelle, vers, deplacer);
                                     });
            action->setObjectName((deplacer ? u"Deplacer"_s : u"Copier"_s) +
                                  QString::fromUtf16(cible.cle) + ici);
            menu.surMemoire.push_back(action);
            menu.surChoix.push_back(action);
        }
    }
    for (const Commande& commande : Commandes) {
        if (commande.filet) menu.menu->addSeparator();
        auto* action = menu.menu->addAction(
            QString::fromUtf16(commande.texte), this,
            [this, laquelle, &commande] { (this->*commande.faire)(laquelle); });
        action->setObjectName(QString::fromUtf16(commande.cle) + ici);
        if (commande.besoin == Besoin::Memoire || commande.besoin == Besoin::MemoireEtChoix)
            menu.surMemoire.push_back(action);
        if (commande.besoin == Besoin::Choix || commande.besoin == Besoin::MemoireEtChoix)
            menu.surChoix.push_back(action);
        if (commande.faire == &ManipulationListes::SupprimerSelection) {
            action->setShortcut(QKeySequence(Qt::Key_Delete));
            action->setShortcutContext(Qt::WidgetShortcut);
            boite.addAction(action);
        }
    }
}

/// Closed, nothing of it is shut: the keys of its entries go on.
void ManipulationListes::liberer(const Menu& menu) {
    for (QAction* action : menu.menu->actions()) action->setEnabled(action != menu.compte);
}

void ManipulationListes::ouvrirMenu(QuelleListe laquelle, const QPoint& place) {
    const Menu& menu = menus_.at(laquelle);
    ListeCombinaisons& boite = menu.panneau->boite();
    menu.menu->setEnabled(boite.modele().rowCount() > 0);
    if (!menu.menu->isEnabled()) return;
    const std::size_t n = choisies(laquelle).size();
    menu.compte->setText(n == 1 ? u"1 combinaison sélectionnée"_s
                                : u"%1 combinaisons sélectionnées"_s.arg(n));
    if (!enMemoire(laquelle))
        for (QAction* action : menu.surMemoire) action->setEnabled(false);
    if (n == 0)
        for (QAction* action : menu.surChoix) action->setEnabled(false);
    menu.menu->popup(boite.viewport()->mapToGlobal(place));
}

}  // namespace norvane::ui
