// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauTailles.h"

#include <algorithm>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "combinaisons/LigneBornes.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

struct ItemStockage {
    ModeStockage mode;
    const char16_t* texte;
};
constexpr std::array<ItemStockage, 3> ItemsStockage = {
    {{ModeStockage::PremierRang, u"Le premier rang"},
     {ModeStockage::TousLesRangs, u"Tous les rangs"},
     {ModeStockage::RangsDeGain, u"Les rangs de gain"}}};

// The marks of the advanced sort by gap: RxLabel13 for size 4 and so on.
constexpr int TailleMarqueMin = 4;
constexpr int PremiereMarque = 13;

}  // namespace

PanneauTailles::PanneauTailles(QWidget* parent)
    : QWidget(parent),
      modeListe_(creerModes()),
      jauge_(new QProgressBar(this)),
      temps_(legende({}, this)) {
    jauge_->setObjectName(u"CGauge"_s);
    jauge_->setAccessibleName(u"Avancement du calcul"_s);
    jauge_->setRange(0, 1);
    jauge_->setValue(0);
    jauge_->setTextVisible(false);
    temps_->setObjectName(u"LabelTemps"_s);
    // Its line stays free, so that nothing moves when it comes.
    temps_->setMinimumHeight(temps_->fontMetrics().height());

    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addWidget(modeListe_);
    pile->addSpacing(Unite);
    pile->addLayout(creerTailles(), 4);
    pile->addStretch(1);
    pile->addLayout(creerIntervalle());
    pile->addWidget(creerStockage());
    pile->addWidget(jauge_);
    pile->addWidget(temps_);
}

QComboBox* PanneauTailles::creerModes() {
    auto* modes = new QComboBox(this);
    modes->setObjectName(u"ComboBox1"_s);
    modes->addItems({u"Combinaisons les plus ou moins sorties"_s,
                     u"Combinaisons selon les bornes"_s, u"Manipulation de listes"_s});
    modes->setAccessibleName(u"Mode de la liste"_s);
    modes->setMinimumHeight(modes->fontMetrics().height() + 2 * Unite);
    poserIndice(modes, u"Choix du mode de la liste"_s);
    connect(modes, &QComboBox::currentIndexChanged, this,
            [this](int index) { Q_EMIT modeChoisi(static_cast<ModeListe>(index)); });
    return modes;
}

QGridLayout* PanneauTailles::creerTailles() {
    auto* grille = new QGridLayout;
    grille->setHorizontalSpacing(Unite / 2);
    grille->setVerticalSpacing(Unite - 1);
    grille->setColumnStretch(0, 1);
    grille->setColumnMinimumWidth(1, Unite);
    grille->setColumnMinimumWidth(4, Unite);
    for (const auto& [libelle, place] : {std::pair{u"Inf"_s, 2}, std::pair{u"Sup"_s, 5}}) {
        auto* entete = legende(libelle, this);
        entete->setFixedHeight(entete->sizeHint().height());
        grille->addWidget(entete, 0, place, 1, 2, Qt::AlignHCenter);
    }
    for (int taille = TailleCombMin; taille <= TailleCombMax; ++taille) {
        auto* bornes = new LigneBornes(taille, this);
        lignes_[static_cast<std::size_t>(taille - TailleCombMin)] = bornes;
        connect(bornes->bouton, &QPushButton::clicked, this,
                [this, taille] { Q_EMIT tailleCliquee(taille); });
        connect(bornes, &LigneBornes::rechercheDemandee, bornes->bouton, &QPushButton::click);
        connect(bornes, &LigneBornes::bornesChoisies, this, &PanneauTailles::bornesChoisies);
        const int rang = taille - TailleCombMin + 1;
        grille->addWidget(bornes->bouton, rang, 0);
        if (taille >= TailleMarqueMin)
            grille->addWidget(creerMarque(taille), rang, 0, Qt::AlignRight | Qt::AlignTop);
        int place = 2;
        for (const LigneBornes::Cote* cote : {&bornes->inf, &bornes->sup}) {
            const int hauteur = bornes->bouton->minimumHeight();
            cote->edit->setFixedHeight(hauteur);
            cote->hautBas->setFixedHeight(hauteur);
            grille->addWidget(cote->edit, rang, place);
            grille->addWidget(cote->hautBas, rang, place + 1);
            place += 3;
        }
    }
    return grille;
}

/// In the corner of the button, which takes the clicks.
QLabel* PanneauTailles::creerMarque(int taille) {
    auto* marque = new QLabel(u"TEA"_s, this);
    marque->setObjectName(u"RxLabel%1"_s.arg(PremiereMarque + taille - TailleMarqueMin));
    marque->setAttribute(Qt::WA_TransparentForMouseEvents);
    marque->setContentsMargins(0, 2, Unite, 0);
    QFont petite = marque->font();
    petite.setPixelSize(QFontInfo(petite).pixelSize() * 2 / 3);
    petite.setBold(true);
    marque->setFont(petite);
    marque->hide();
    marques_[static_cast<std::size_t>(taille - TailleCombMin)] = marque;
    return marque;
}

QVBoxLayout* PanneauTailles::creerIntervalle() {
    series_ = new QCheckBox(u"Mode Séries"_s, this);
    series_->setObjectName(u"CheckBoxSeries"_s);
    connect(series_, &QCheckBox::clicked, this, &PanneauTailles::seriesDemandees);
    intervalle_ = new QPushButton(u"Sélectionner un &Intervalle"_s, this);
    intervalle_->setObjectName(u"BitBtnWithColor4"_s);
    intervalle_->setMinimumHeight(intervalle_->fontMetrics().height() + 2 * Unite);
    poserIndice(intervalle_, u"Choisir les tirages sur lesquels portent les combinaisons"_s);
    connect(intervalle_, &QPushButton::clicked, this, &PanneauTailles::intervalleDemande);
    auto* pile = new QVBoxLayout;
    pile->setSpacing(Unite);
    pile->addWidget(series_);
    pile->addWidget(intervalle_);
    return pile;
}

QGroupBox* PanneauTailles::creerStockage() {
    auto* groupe = new QGroupBox(u"Stocker en mémoire :"_s, this);
    groupe->setObjectName(u"RadioGroup1"_s);
    auto* grille = new QGridLayout(groupe);
    // As narrow as the sizes above.
    grille->setContentsMargins(Unite, Unite, Unite, Unite);
    grille->setSpacing(Unite / 2);
    stockage_ = new QButtonGroup(groupe);
    for (const ItemStockage& item : ItemsStockage) {
        const auto id = static_cast<int>(&item - ItemsStockage.data());
        auto* choix = new QRadioButton(QString::fromUtf16(item.texte), groupe);
        choix->setObjectName(u"RadioGroup1Item%1"_s.arg(id));
        poserIndice(choix,
                    u"Rangs gardés pour chaque combinaison de la prochaine liste selon les "
                    u"bornes"_s);
        stockage_->addButton(choix, id);
        grille->addWidget(choix, id / 2, id % 2);
    }
    connect(stockage_, &QButtonGroup::idClicked, this, [this](int id) {
        Q_EMIT stockageChoisi(ItemsStockage.at(static_cast<std::size_t>(id)).mode);
    });
    return groupe;
}

// ------------------------------------------------------------------------------------------ state

void PanneauTailles::poserBornes(const BornesTailles& bornes) {
    for (std::size_t i = 0; i < NbTailles; ++i) lignes_[i]->poser(bornes[i]);
}

void PanneauTailles::suivreBornes(const BornesTailles& bornes) {
    for (std::size_t i = 0; i < NbTailles; ++i) lignes_[i]->suivre(bornes[i]);
}

void PanneauTailles::montrerMode(ModeListe mode) {
    modeListe_->setCurrentIndex(static_cast<int>(mode));
    for (LigneBornes* bornes : lignes_) bornes->appliquerMode(mode);
}

void PanneauTailles::montrerStockage(ModeStockage mode) {
    const auto* item = std::ranges::find(ItemsStockage, mode, &ItemStockage::mode);
    stockage_->button(static_cast<int>(item - ItemsStockage.begin()))->setChecked(true);
}

void PanneauTailles::montrerSeries(bool series) {
    series_->setChecked(series);
    poserIndice(series_, series ? u"Retour au calcul de toutes les combinaisons"_s
                                : u"Passer au calcul des séries"_s);
}

void PanneauTailles::montrerRecherche(int taille) {
    for (LigneBornes* bornes : lignes_) bornes->montrerArret(bornes->taille() == taille);
    modeListe_->setEnabled(taille == 0);
}

void PanneauTailles::montrerEcartAvance(int taille) {
    for (std::size_t i = 0; i < NbTailles; ++i)
        if (marques_[i] != nullptr)
            marques_[i]->setVisible(static_cast<int>(i) + TailleCombMin == taille);
}

QList<QWidget*> PanneauTailles::ordreTabulation() const {
    QList<QWidget*> ordre{modeListe_};
    for (const LigneBornes* bornes : lignes_) {
        ordre << bornes->bouton << bornes->inf.edit << bornes->sup.edit;
    }
    ordre << series_ << intervalle_;
    for (QAbstractButton* choix : stockage_->buttons()) ordre << choix;
    return ordre;
}

void PanneauTailles::changeEvent(QEvent* evenement) {
    QWidget::changeEvent(evenement);
    if (evenement->type() != QEvent::PaletteChange) return;
    // The edits carry colours of their own, which follow the palette by hand.
    for (LigneBornes* bornes : lignes_)
        if (bornes != nullptr) bornes->reteinter();
}

}  // namespace norvane::ui
