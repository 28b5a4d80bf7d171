// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A list of combinations with what is told about it: its lines, the line chosen, its type. The main
// list and the three buffers are four of them.
#pragma once

#include <array>
#include <QWidget>

#include "base/Travail.h"
#include "lists/Liste.h"
#include "widgets/ListeCombinaisons.h"

class QBoxLayout;
class QLabel;
class QProgressBar;

namespace norvane::ui {

/// Which list a panel shows, and the object names of its parts. Without a name of its own it is the
/// main list.
struct NomsListe {
    QuelleListe laquelle;
    const char16_t* nom;  ///< of a buffer: title and accessible name
    const char16_t* boite;
    const char16_t* jauge;
    const char16_t* titre;       ///< what the list holds, by its size
    const char16_t* nombre;      ///< lines on show
    const char16_t* etat;        ///< that it is not whole
    const char16_t* rang;        ///< the ranks stored
    const char16_t* intervalle;  ///< of a buffer
    const char16_t* indice;      ///< of the main list: place of the line chosen, from 1
    const char16_t* compteMenu;  ///< first item of its menu
};
inline constexpr NomsListe ListePrincipale{
    QuelleListe::Memoire, nullptr,           u"ListBox",       u"CGauge1", u"LabelCombEnMemoire",
    u"LabelCombEnListe",  u"LabelEtatListe", u"LabelStockage", nullptr,    u"RxLabelIndice",
    u"SelectMenu1"};
inline constexpr std::array<NomsListe, 3> ListesTampon{
    {{QuelleListe::Tampon1, u"Liste Tampon I", u"ListBox1", u"CGauge2", u"RxLabel10",
      u"LabelNbTamp1", u"LabelEtatTamp1", u"LabelMemTamp1", u"LabelIntervalleTamp1", nullptr,
      u"SelectMenuTamp1"},
     {QuelleListe::Tampon2, u"Liste Tampon II", u"ListBox2", u"CGauge3", u"RxLabel11",
      u"LabelNbTamp2", u"LabelEtatTamp2", u"LabelMemTamp2", u"LabelIntervalleTamp2", nullptr,
      u"SelectMenuTamp2"},
     {QuelleListe::Tampon3, u"Liste Tampon III", u"ListBox3", u"CGauge4", u"RxLabel12",
      u"LabelNbTamp3", u"LabelEtatTamp3", u"LabelMemTamp3", u"LabelIntervalleTamp3", nullptr,
      u"SelectMenuTamp3"}}};

class PanneauListe final : public QWidget {
    Q_OBJECT

 public:
    /// Title and type speak of `liste`, which must outlive the panel.
    PanneauListe(const NomsListe& noms, const Liste& liste, QWidget* parent);

    const NomsListe& noms;

    /// Shows the lines of `montree`, none for null, which need not be the panel's own list.
    void afficher(const Liste* montree);
    void afficher() { afficher(&liste_); }
    /// Which lines stand out, if any.
    void colorer(std::optional<BornesLignes> bornes);
    /// What the empty box says.
    void poserInvite(const QString& invite);
    /// A click selects and tells nothing.
    void verrouiller(bool verrouille) { verrouille_ = verrouille; }

    ListeCombinaisons& boite() { return *boite_; }
    QProgressBar& jauge() { return *jauge_; }

 Q_SIGNALS:
    void combinaisonChoisie(const norvane::Combinaison& combinaison);

 private:
    QLabel* creerValeur(const char16_t* nom, const QString& sens);
    QLabel* creerLegende(const char16_t* nom);
    void creerBoite();
    void disposerPrincipale(QBoxLayout* pile);
    void disposerTampon(QBoxLayout* pile);
    void choisir(int ligne);
    void direType();
    void direNombre(const Liste* montree);

    const Liste& liste_;
    QLabel* titre_;
    QLabel* nombre_;
    QLabel* etat_;
    QLabel* indice_ = nullptr;
    QLabel* rang_;
    QLabel* intervalle_ = nullptr;
    ListeCombinaisons* boite_;
    QProgressBar* jauge_;
    bool verrouille_ = false;
};

}  // namespace norvane::ui
