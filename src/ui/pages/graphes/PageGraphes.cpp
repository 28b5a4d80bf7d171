// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "graphes/PageGraphes.h"

#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "common/Theme.h"
#include "graphes/CadreGraphe.h"
#include "graphes/SortieGraphe.h"
#include "widgets/PaireIntervalle.h"
#include "widgets/SpinTirage.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double PasZoom = 0.75;
constexpr double LargeurReglages = 190;  // design units

std::size_t rang(GenreGraphe genre) {
    return static_cast<std::size_t>(genre);
}

}  // namespace

void EtatGraphe::revenir() {
    const bool pagine = pages.parPage < NbPlaces;
    x = {(pagine ? pages.premierePlace() : premierePlace) - 0.5,
         (pagine ? pages.dernierePlace() : dernierePlace) + 0.5};
    y.reset();
}

void EtatGraphe::choisirPages(const Pagination& choisies) {
    pages = choisies;
    premierePlace = 1;
    dernierePlace = NbPlaces;
    const auto hauteurs = y;  // the bottom axis alone moves
    revenir();
    y = hauteurs;
}

void EtatGraphe::choisirPlage(int premiere, int derniere) {
    pages = {};
    premierePlace = premiere;
    dernierePlace = derniere;
    revenir();
}

// ----------------------------------------------------------------------------------- construction

PageGraphes::PageGraphes(Contexte& ctx, QWidget* parent)
    : Page(ctx, u"Varo5"_s, u"Graphes"_s, parent),
      pile_(new QStackedWidget(this)),
      garde_(new QTimer(this)) {
    garde_->setObjectName(u"Timer3"_s);
    for (std::size_t i = 0; i < NbTeintes; ++i) teintes_[i] = ReglagesCouleur[i].couleur;
    etats_[rang(GenreGraphe::Statistiques)].etiquettes = true;

    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(Unite);
    gauche->addLayout(c_.construireBarre(this));
    gauche->addWidget(pile_, 1);
    gauche->addLayout(c_.construirePages(this));
    cadres_ = {new CadreGraphe(u"Chart1"_s, pile_), new CadreGraphe(u"Chart2"_s, pile_)};
    for (CadreGraphe* cadre : cadres_) pile_->addWidget(cadre);
    auto* reglages = new QWidget(this);
    reglages->setLayout(c_.construireReglages(reglages));
    reglages->layout()->setContentsMargins(0, 0, 0, 0);
    reglages->setFixedWidth(std::max(ctx.px(LargeurReglages), reglages->sizeHint().width()));
    auto* corps = new QHBoxLayout(this);
    corps->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, Unite);
    corps->setSpacing(2 * Unite);
    corps->addLayout(gauche, 1);
    corps->addWidget(reglages);

    relierAffichage();
    relierPages();
    for (const GenreGraphe genre : {GenreGraphe::Statistiques, GenreGraphe::Pointage}) {
        relierVue(genre);
    }
    reprendreBase();
}

VueGraphe* PageGraphes::vue() const {
    return cadres_[rang(courant_)]->vue;
}

void PageGraphes::relierAffichage() {
    const auto cocher = [this](QCheckBox* boite, auto poser) {
        connect(boite, &QCheckBox::toggled, this, [this, poser](bool coche) {
            poser(coche);
            composer();
        });
    };
    for (QCheckBox* boite : c_.etiquettes) {
        cocher(boite, [this](bool coche) { etat().etiquettes = coche; });
    }
    cocher(c_.valeurs, [this](bool coche) { etat().valeurs = coche; });
    cocher(c_.troisD, [this](bool coche) { etat().troisD = coche; });
    cocher(c_.attendus, [this](bool coche) { attendusMontres_ = coche; });
    connect(c_.init, &QCheckBox::toggled, this, [this](bool coche) { init_ = coche; });
    connect(c_.animation, &QCheckBox::toggled, this,
            [this](bool coche) { coche ? demarrerAnimation() : arreterAnimation(); });
    connect(c_.vitesse, &QSlider::valueChanged, this,
            [this](int vitesse) { garde_->setInterval(1000 / vitesse); });
    garde_->setInterval(1000 / c_.vitesse->value());
    connect(garde_, &QTimer::timeout, this, &PageGraphes::avancerAnimation);

    for (std::size_t i = 0; i < c_.vue.size(); ++i) {
        connect(c_.vue[i], &QSlider::valueChanged, this, [this, i](int valeur) {
            etat().vue.*ReglagesVue[i].valeur = valeur;
            composer();
        });
    }
    for (std::size_t i = 0; i < NbTeintes; ++i) {
        connect(c_.couleurs[i], &QComboBox::currentIndexChanged, this, [this, i](int item) {
            teintes_[i] = c_.couleurs[i]->itemData(item).value<QColor>();
            composer();
        });
    }
    connect(c_.graphe, &QComboBox::currentIndexChanged, this,
            [this](int item) { choisirGraphe(static_cast<GenreGraphe>(item)); });
    connect(c_.tri, &QComboBox::currentIndexChanged, this, [this](int item) {
        tri_ = static_cast<TriGraphe>(item);
        trier();
    });
    connect(c_.intervalle, &PaireIntervalle::intervalleChange, this,
            &PageGraphes::changerIntervalle);
}

void PageGraphes::relierPages() {
    const auto presser = [this](QPushButton* bouton, auto action) {
        connect(bouton, &QPushButton::clicked, this, [this, action] {
            action();
            composer();
        });
    };
    const auto paginer = [this](auto choisir) {
        return [this, choisir] {
            Pagination pages = etat().pages;
            pages.page = choisir(pages);
            etat().choisirPages(pages);
        };
    };
    presser(c_.pages[0], paginer([](const Pagination&) { return 1; }));
    presser(c_.pages[1], paginer([](const Pagination& p) { return p.page - 1; }));
    presser(c_.pages[2], paginer([](const Pagination& p) { return p.page + 1; }));
    presser(c_.pages[3], paginer([](const Pagination& p) { return p.total(); }));
    connect(c_.parPage, &QSlider::valueChanged, this, [this](int parPage) {
        etat().choisirPages({parPage, 1});
        composer();
    });
    presser(c_.plages[0], [this] { etat().choisirPlage(1, NbPlaces); });
    presser(c_.plages[1], [this] { etat().choisirPlage(1, NumeroMax); });
    presser(c_.plages[2], [this] { etat().choisirPlage(NumeroMax + 1, NbPlaces); });
    presser(c_.retour, [this] { etat().revenir(); });
    connect(c_.agrandir, &QPushButton::clicked, this, [this] { vue()->zoomer(PasZoom); });
    connect(c_.reduire, &QPushButton::clicked, this, [this] { vue()->zoomer(1 / PasZoom); });
    connect(c_.imprimer, &QPushButton::clicked, this,
            [this] { imprimerGraphe(contexte, this, vue()->scene(), font()); });
    connect(c_.enregistrer, &QPushButton::clicked, this, [this] {
        enregistrerGraphe(contexte, this, vue()->scene(), vue()->style(), vue()->size(),
                          courant_ == GenreGraphe::Pointage ? u"Graphe de Pointage"_s
                                                            : u"Graphe de Statistiques"_s);
    });
    connect(c_.copier, &QPushButton::clicked, this,
            [this] { copierGraphe(contexte, vue()->scene(), vue()->style(), vue()->size()); });
}

void PageGraphes::relierVue(GenreGraphe genre) {
    VueGraphe* graphe = cadres_[rang(genre)]->vue;
    EtatGraphe& e = etats_[rang(genre)];
    connect(graphe, &VueGraphe::fenetreVoulue, this,
            [this, graphe, &e](const Etendue& x, const Etendue& y) {
                e.x = x;
                if (y != graphe->scene().y) e.y = y;
                composer();
            });
    connect(graphe, &VueGraphe::retourVoulu, this, [this, &e] {
        e.revenir();
        composer();
    });
    connect(graphe, &VueGraphe::rotationVoulue, this, [this, &e](int rotation, int elevation) {
        e.vue.rotation = std::clamp(rotation, -Vue3D::RotationMax, Vue3D::RotationMax);
        e.vue.elevation = std::clamp(elevation, 0, Vue3D::ElevationMax);
        composer();
    });
    connect(graphe, &VueGraphe::pointChoisi, this, &PageGraphes::montrerBulle);
    graphe->indice = [this](const PointGraphe& point) { return indice(point); };
}

// ------------------------------------------------------------------------------------------- state

void PageGraphes::reprendreBase() {
    arreterAnimation();
    const int n = contexte.atelier.base.NbTirages;
    setEnabled(n >= 1);
    inf_ = n >= 30 ? n - 29 : 1;
    sup_ = n;
    c_.intervalle->poser(n, inf_, sup_);
    etats_[rang(GenreGraphe::Pointage)].y.reset();
    calculerPointage();
    calculerStatistiques();
}

void PageGraphes::surChange(const Changement& changement) {
    if (changement.base) {
        reprendreBase();
    } else if (changement.listes) {
        calculerPointage();
        composer();
    }
}

void PageGraphes::surDepart() {
    for (CadreGraphe* cadre : cadres_) cadre->vue->cacherBulle();
}

void PageGraphes::arreter() {
    arreterAnimation();
}

void PageGraphes::changerIntervalle(int inf, int sup) {
    inf_ = inf;
    sup_ = sup;
    calculerStatistiques();
}

void PageGraphes::calculerStatistiques() {
    if (sup_ >= 1) table_ = CalculerTable(contexte.atelier.occurrences, inf_, sup_);
    trier();
}

void PageGraphes::trier() {
    TrierTable(table_, tri_);
    if (sup_ >= 1) {
        statistiques_ = PointsStatistiques(
            table_, contexte.atelier.base.Tirages[static_cast<std::size_t>(sup_ - 1)]);
    }
    composer();
}

void PageGraphes::calculerPointage() {
    const GrilleSelection& grille = contexte.atelier.grilleSelection;
    std::ranges::transform(grille, selection_.begin(), [](Priorite priorite) {
        switch (priorite) {
            case Priorite::Absolue:
                return EtatNumero::Absolue;
            case Priorite::Secondaire:
                return EtatNumero::Secondaire;
            case Priorite::Aucune:
                break;
        }
        return EtatNumero::Neutre;
    });
    pointage_ = PointsPointage(contexte.atelier.base, selection_);
}

void PageGraphes::choisirGraphe(GenreGraphe genre) {
    vue()->cacherBulle();
    courant_ = genre;
    pile_->setCurrentIndex(static_cast<int>(genre));
    composer();
}

// --------------------------------------------------------------------------------------- animation

void PageGraphes::demarrerAnimation() {
    for (QWidget* commande : c_.verrouillees()) commande->setEnabled(false);
    if (init_) sup_ = inf_;
    c_.intervalle->poser(contexte.atelier.base.NbTirages, inf_, sup_);
    calculerStatistiques();
    garde_->start();
}

void PageGraphes::arreterAnimation() {
    if (!garde_->isActive()) return;
    garde_->stop();
    for (QWidget* commande : c_.verrouillees()) commande->setEnabled(true);
    c_.animation->setChecked(false);
}

void PageGraphes::avancerAnimation() {
    const int dernier = contexte.atelier.base.NbTirages;
    const auto [sup, fini] = AvancerAnimation(sup_, dernier);
    sup_ = sup;
    c_.intervalle->poser(dernier, inf_, sup_);
    if (fini) {
        arreterAnimation();
    } else {
        calculerStatistiques();
    }
}

}  // namespace norvane::ui
