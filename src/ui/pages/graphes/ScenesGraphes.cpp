// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Graphes": what its charts and its controls show of its state.

#include <algorithm>
#include <cmath>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>

#include "base/Dates.h"
#include "base/Textes.h"
#include "graphes/CadreGraphe.h"
#include "graphes/PageGraphes.h"
#include "graphs/TexteElement.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr Etendue ToutesLesPlaces{0.5, NbPlaces + 0.5};

/// The counts to show of the places in `x`: the points, and the bands where there are any.
Etendue comptes(std::span<const PointGraphe> points, const Etendue& x,
                const std::optional<Attendus>& attendus) {
    double min = 1e9;
    double max = 0;
    const auto compter = [&](double y) {
        min = std::min(min, std::max(y, 0.0));
        max = std::max(max, y);
    };
    for (const PointGraphe& point : points) {
        if (!x.contient(point.place)) continue;
        compter(point.valeur);
        if (!attendus) continue;
        const Attendu& a =
            point.element.genre == GenreStats::Numeros ? attendus->numero : attendus->chance;
        compter(a.moyenne - a.bande);
        compter(a.moyenne + a.bande);
    }
    return EtendueComptes(std::min(min, max), max);
}

void cocher(QCheckBox* boite, bool coche) {
    const QSignalBlocker muet(boite);
    boite->setChecked(coche);
}

void glisser(QSlider* glissiere, int valeur) {
    const QSignalBlocker muet(glissiere);
    glissiere->setValue(valeur);
}

QString nomElement(const Element& element) {
    return (element.genre == GenreStats::Numeros ? u"Numéro %1"_s : u"Chance %1"_s)
        .arg(element.valeur);
}

}  // namespace

/// Both charts, so that neither shows points that are no more.
void PageGraphes::composer() {
    montrerReglages();
    if (contexte.atelier.base.NbTirages < 1) {
        for (CadreGraphe* cadre : cadres_) cadre->montrer({}, ToutesLesPlaces, {0, 1});
        return;
    }
    composerStatistiques();
    composerPointage();
}

SceneGraphe PageGraphes::scene(const EtatGraphe& e) const {
    SceneGraphe s;
    s.teintes = teintes_;
    s.x = e.x;
    s.etiquettes = e.etiquettes;
    s.valeurs = e.valeurs;
    if (e.troisD) s.vue3d = e.vue;
    return s;
}

void PageGraphes::composerStatistiques() {
    const EtatGraphe& e = etats_[0];
    SceneGraphe s = scene(e);
    s.titre = versQt(TitreStatistiques(contexte.atelier.base, inf_, sup_));
    s.titreVertical = u"Sorties"_s;
    s.points = statistiques_;
    if (attendusMontres_) s.attendus = CalculerAttendus(table_, sup_ - inf_ + 1);
    const Etendue limites{EtendueComptes(0, 1).de,
                          comptes(s.points, ToutesLesPlaces, s.attendus).a};
    s.y = e.y ? Border(*e.y, limites, 1) : comptes(s.points, e.x, s.attendus);
    cadres_[0]->montrer(s, ToutesLesPlaces,
                        {std::min(limites.de, s.y.de), std::max(limites.a, s.y.a)});
}

void PageGraphes::composerPointage() {
    const Base& base = contexte.atelier.base;
    const EtatGraphe& e = etats_[1];
    SceneGraphe s = scene(e);
    const Etendue limites{0, base.NbTirages + 0.5};
    const AxePointage axe = OuverturePointage(base.NbTirages);
    s.y = Border(e.y.value_or(Etendue{std::max(axe.minimum - 0.5, 0.0), axe.maximum + 0.5}),
                 limites, 1);
    s.points = PointsEntre(pointage_, s.y.de, s.y.a);
    s.parTirage = true;
    s.titreVertical = u"Tirages"_s;
    const int premier = std::clamp(static_cast<int>(std::ceil(s.y.de)), 1, base.NbTirages);
    const int dernier = std::clamp(static_cast<int>(std::floor(s.y.a)), premier, base.NbTirages);
    const auto date = [&](int tirage) {
        return versQt(DateLongue(base.Tirages[static_cast<std::size_t>(tirage - 1)].DateTirage));
    };
    s.titre = u"Graphe de Pointage (tirages %1 à %2, du %3 au %4)"_s.arg(premier).arg(dernier).arg(
        date(premier), date(dernier));
    cadres_[1]->montrer(s, ToutesLesPlaces, limites);
}

void PageGraphes::montrerReglages() {
    const EtatGraphe& e = etat();
    const bool statistiques = courant_ == GenreGraphe::Statistiques;
    for (QWidget* propre :
         std::initializer_list<QWidget*>{c_.libelleTri, c_.tri, c_.attendus, c_.groupeAnimation}) {
        propre->setVisible(statistiques);
    }
    for (std::size_t i = 0; i < NbGraphes; ++i) {
        const bool montre = i == static_cast<std::size_t>(courant_);
        c_.etiquettes[i]->setVisible(montre);
        c_.panneauCouleurs[i]->setVisible(montre);
        cocher(c_.etiquettes[i], etats_[i].etiquettes);
    }
    cocher(c_.valeurs, e.valeurs);
    cocher(c_.troisD, e.troisD);
    cocher(c_.attendus, attendusMontres_);
    for (std::size_t i = 0; i < c_.vue.size(); ++i) {
        glisser(c_.vue[i], e.vue.*ReglagesVue[i].valeur);
        c_.vue[i]->setEnabled(e.troisD);
    }
    c_.gestes->setText(
        u"  Molette : zoom · Glisser : %1 · Clic : détails · Double clic : tout"_s.arg(
            e.troisD ? u"tourner"_s : u"défiler · Maj + glisser : cadre"_s));
    glisser(c_.parPage, e.pages.parPage);
    c_.numPage->setNum(e.pages.page);
    c_.totalPages->setNum(e.pages.total());
    c_.nombreParPage->setNum(e.pages.parPage);
    c_.pages[0]->setEnabled(!e.pages.surPremiere());
    c_.pages[1]->setEnabled(!e.pages.surPremiere());
    c_.pages[2]->setEnabled(!e.pages.surDerniere());
    c_.pages[3]->setEnabled(!e.pages.surDerniere());
}

void PageGraphes::montrerBulle(const PointGraphe& point) {
    const ResultatStats stats =
        StatsElement(contexte.atelier.occurrences, point.element, inf_, sup_);
    vue()->montrerBulle(point, versQt(TexteElement(point.element, stats, sup_)),
                        versQt(TexteElementCourt(point.element, stats, sup_)));
}

QString PageGraphes::indice(const PointGraphe& point) const {
    const QString nom = nomElement(point.element);
    if (courant_ == GenreGraphe::Pointage) {
        const Tirage& tirage =
            contexte.atelier.base.Tirages[static_cast<std::size_t>(point.valeur - 1)];
        return u"%1\nTirage %2 du %3"_s.arg(nom)
            .arg(point.valeur)
            .arg(versQt(DateLongue(tirage.DateTirage)));
    }
    const Attendus attendus = CalculerAttendus(table_, sup_ - inf_ + 1);
    const Attendu& a =
        point.element.genre == GenreStats::Numeros ? attendus.numero : attendus.chance;
    return u"%1 : %2 %3\nAttendu : %4, à %5 près"_s.arg(nom)
        .arg(point.valeur)
        .arg(point.valeur < 2 ? u"sortie"_s : u"sorties"_s, versQt(FormaterDecimal(a.moyenne, 1)),
             versQt(FormaterDecimal(a.bande, 1)));
}

}  // namespace norvane::ui
