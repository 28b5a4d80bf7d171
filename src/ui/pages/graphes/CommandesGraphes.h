// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The controls of the page "Graphes", made from tables; what they do is the page's.
#pragma once

#include <array>
#include <QColor>
#include <QString>

#include "graphs/Graphe.h"
#include "graphs/Projection.h"
#include "graphs/Statistiques.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QPushButton;
class QSlider;
class QWidget;

namespace norvane::ui {

class PaireIntervalle;

enum class GenreGraphe { Statistiques, Pointage };
inline constexpr std::size_t NbGraphes = 2;

/// A turn of the three-dimensional view.
struct ReglageVue {
    const char16_t* nom;
    const char16_t* libelle;
    int Vue3D::*valeur;
    int minimum, maximum;
};
inline constexpr std::array<ReglageVue, 3> ReglagesVue{
    {{u"ScrollBar1", u"Profondeur", &Vue3D::profondeur, Vue3D::ProfondeurMin, Vue3D::ProfondeurMax},
     {u"ScrollBar3", u"Rotation", &Vue3D::rotation, -Vue3D::RotationMax, Vue3D::RotationMax},
     {u"ScrollBar4", u"Élévation", &Vue3D::elevation, 0, Vue3D::ElevationMax}}};

/// The choice of the colour of a shade, in the order of Teinte.
struct ReglageCouleur {
    const char16_t* nom;
    const char16_t* libelle;
    const char16_t* indice;
    GenreGraphe graphe;
    QRgb couleur;  ///< at the start
};
extern const std::array<ReglageCouleur, NbTeintes> ReglagesCouleur;

struct CommandesGraphes {
    QComboBox* graphe = nullptr;
    QLabel* libelleTri = nullptr;
    QComboBox* tri = nullptr;
    std::array<QPushButton*, 3> plages{};  ///< everything, numbers, Chances
    QPushButton *reduire = nullptr, *agrandir = nullptr, *retour = nullptr;
    QPushButton *copier = nullptr, *enregistrer = nullptr, *imprimer = nullptr;

    std::array<QPushButton*, 4> pages{};  ///< first, previous, next, last
    QLabel *numPage = nullptr, *totalPages = nullptr, *nombreParPage = nullptr;
    QSlider* parPage = nullptr;
    QLabel* gestes = nullptr;  ///< what the hand can do on the chart

    PaireIntervalle* intervalle = nullptr;
    QWidget* groupeAnimation = nullptr;
    QCheckBox *animation = nullptr, *init = nullptr;
    QSlider* vitesse = nullptr;

    std::array<QCheckBox*, NbGraphes> etiquettes{};  ///< one for each chart
    QCheckBox *valeurs = nullptr, *attendus = nullptr, *troisD = nullptr;
    std::array<QSlider*, 3> vue{};
    std::array<QComboBox*, NbTeintes> couleurs{};
    std::array<QWidget*, NbGraphes> panneauCouleurs{};

    /// Above the charts, under them, and beside them.
    QLayout* construireBarre(QWidget* parent);
    QLayout* construirePages(QWidget* parent);
    QLayout* construireReglages(QWidget* parent);

    /// What is locked while the animation runs.
    std::array<QWidget*, 3> verrouillees() const;

 private:
    QWidget* construireIntervalle(QWidget* parent);
    QWidget* construireAnimation(QWidget* parent);
    QWidget* construireAffichage(QWidget* parent);
    QWidget* construireCouleurs(QWidget* parent);
};

}  // namespace norvane::ui
