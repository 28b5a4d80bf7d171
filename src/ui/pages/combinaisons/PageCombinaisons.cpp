// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The controls of the page and where they stand.

#include "combinaisons/PageCombinaisons.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include "combinaisons/LigneBornes.h"
#include "common/Theme.h"
#include "widgets/ChampNumero.h"
#include "widgets/ColonnesStats.h"
#include "widgets/Fiche.h"
#include "widgets/ListeCombinaisons.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int RythmeMs = 33;  // steps of the gauge, at most thirty a second
constexpr double FacteurListe = 1.08;

/// A small square in a colour that follows the palette.
class Pastille final : public QWidget {
 public:
    Pastille(QColor Teintes::*couleur, QWidget* parent) : QWidget(parent), couleur_(couleur) {
        setFixedSize(fontMetrics().height(), fontMetrics().height());
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        p.setBrush(teintes(palette()).*couleur_);
        p.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 3, 3);
    }

 private:
    QColor Teintes::*couleur_;
};

}  // namespace

PageCombinaisons::PageCombinaisons(Contexte& ctx, QWidget* parent)
    : Page(ctx, u"Varo3"_s, u"Combinaisons N"_s, parent),
      moteur_(std::make_unique<Moteur>(ctx.atelier.base, ctx.atelier.occurrences,
                                       ctx.atelier.combinaisons, ctx.atelier.Repertoire,
                                       ctx.atelier.activite.TraitementsEnCours,
                                       ctx.atelier.activite.Disponible)) {
    construire();
    relier();
    poserOrdreTabulation();
    entrerMode();
}

PageCombinaisons::~PageCombinaisons() {
    // Its worker calls back to this page: it ends first.
    moteur_.reset();
}

void PageCombinaisons::construire() {
    auto* gauche = creerFicheTailles();
    auto* milieu = creerFicheListe();
    auto* droite = new QVBoxLayout;
    droite->setSpacing(2 * Unite);
    droite->addWidget(creerFicheCombinaison());
    cahier_ = creerCahier();
    droite->addWidget(cahier_, 1);
    auto* page = new QHBoxLayout(this);
    page->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    page->setSpacing(2 * Unite);
    page->addWidget(gauche);
    page->addWidget(milieu);
    page->addLayout(droite, 1);
}

// --------------------------------------------------------------------------------------- left card

Fiche* PageCombinaisons::creerFicheTailles() {
    auto* fiche = new Fiche(this);
    ComboBox1 = new QComboBox(fiche);
    ComboBox1->setObjectName(u"ComboBox1"_s);
    ComboBox1->addItems({u"Combinaisons les plus ou moins sorties"_s,
                         u"Combinaisons selon les bornes"_s, u"Manipulation de listes"_s});
    ComboBox1->setAccessibleName(u"Mode de la liste"_s);
    ComboBox1->setMinimumHeight(ComboBox1->fontMetrics().height() + 2 * Unite);
    poserIndice(ComboBox1, u"Choix du mode de la liste"_s);
    fiche->pile->addWidget(ComboBox1);
    fiche->pile->addSpacing(Unite);
    fiche->pile->addLayout(creerTailles(fiche), 4);
    fiche->pile->addStretch(1);
    fiche->pile->addWidget(creerStockage(fiche));
    CGauge = new QProgressBar(fiche);
    CGauge->setObjectName(u"CGauge"_s);
    CGauge->setAccessibleName(u"Avancement du calcul"_s);
    CGauge->setRange(0, 1);
    CGauge->setValue(0);
    CGauge->setTextVisible(false);
    LabelTemps = legende({}, fiche);
    LabelTemps->setObjectName(u"LabelTemps"_s);
    // Its line stays free, so that nothing moves when it comes.
    LabelTemps->setMinimumHeight(LabelTemps->fontMetrics().height());
    fiche->pile->addWidget(CGauge);
    fiche->pile->addWidget(LabelTemps);
    return fiche;
}

QGridLayout* PageCombinaisons::creerTailles(QWidget* parent) {
    auto* grille = new QGridLayout;
    grille->setHorizontalSpacing(Unite / 2);
    grille->setVerticalSpacing(Unite - 1);
    grille->setColumnStretch(0, 1);
    grille->setColumnMinimumWidth(1, Unite);
    grille->setColumnMinimumWidth(4, Unite);
    for (const auto& [libelle, place] : {std::pair{u"Inf"_s, 2}, std::pair{u"Sup"_s, 5}}) {
        auto* entete = legende(libelle, parent);
        entete->setFixedHeight(entete->sizeHint().height());
        grille->addWidget(entete, 0, place, 1, 2, Qt::AlignHCenter);
    }
    for (int taille = TailleCombMin; taille <= TailleCombMax; ++taille) {
        auto* bornes = new LigneBornes(taille, parent);
        lignes_[static_cast<std::size_t>(taille - TailleCombMin)] = bornes;
        const int rang = taille - TailleCombMin + 1;
        grille->addWidget(bornes->bouton, rang, 0);
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

QGroupBox* PageCombinaisons::creerStockage(QWidget* parent) {
    auto* groupe = new QGroupBox(u"Stocker en mémoire :"_s, parent);
    groupe->setObjectName(u"RadioGroup1"_s);
    auto* pile = new QVBoxLayout(groupe);
    pile->setSpacing(Unite / 2);
    stockage_ = new QButtonGroup(groupe);
    int item = 0;
    for (const QString& texte :
         {u"Le premier rang"_s, u"Tous les rangs"_s, u"Les rangs de gain"_s}) {
        auto* choix = new QRadioButton(texte, groupe);
        choix->setObjectName(u"RadioGroup1Item%1"_s.arg(item));
        poserIndice(choix,
                    u"Rangs gardés pour chaque combinaison de la prochaine liste selon les "
                    u"bornes"_s);
        stockage_->addButton(choix, item++);
        pile->addWidget(choix);
    }
    stockage_->button(0)->setChecked(true);
    return groupe;
}

// --------------------------------------------------------------------------------------- the list

Fiche* PageCombinaisons::creerFicheListe() {
    auto* fiche = new Fiche(this);
    LabelCombEnListe = valeur(u"LabelCombEnListe"_s, u"Combinaisons en liste"_s, fiche);
    RxLabelIndice = valeur(u"RxLabelIndice"_s, u"Indice de la ligne choisie"_s, fiche);
    // The captions and the list stay where they are when the numbers come and go.
    for (QLabel* nombre : {LabelCombEnListe, RxLabelIndice}) {
        nombre->setMinimumHeight(nombre->fontMetrics().height());
    }
    RxLabelIndice->setAlignment(Qt::AlignRight);
    auto* tete = new QHBoxLayout;
    tete->addLayout(colonne(u"Combinaisons en liste"_s, rangee({LabelCombEnListe}), fiche));
    tete->addStretch(1);
    auto* indice = colonne(u"Indice"_s, rangee({RxLabelIndice}), fiche);
    indice->itemAt(0)->setAlignment(Qt::AlignRight);
    tete->addLayout(indice);
    fiche->pile->addLayout(tete);

    ListBox = new ListeCombinaisons(u"ListBox"_s, contexte.atelier.combinaisons, fiche);
    ListBox->setAccessibleName(u"Liste des combinaisons"_s);
    QFont fonte = ListBox->font();
    fonte.setPixelSize(qRound(ListBox->fontInfo().pixelSize() * FacteurListe));
    ListBox->setFont(fonte);
    fiche->setFixedWidth(ListBox->largeurLigne() + 4 * Unite);
    fiche->pile->addWidget(ListBox, 1);

    LabelCombEnMemoire = valeur(u"LabelCombEnMemoire"_s, u"Combinaisons en mémoire"_s, fiche);
    LabelCombEnMemoire->setMinimumHeight(LabelCombEnMemoire->fontMetrics().height());
    fiche->pile->addLayout(
        colonne(u"Combinaisons en mémoire"_s, rangee({LabelCombEnMemoire}), fiche));
    stocke_ = legende({}, fiche);
    stocke_->setObjectName(u"LabelStockage"_s);
    Label25 = legende({}, fiche);
    Label25->setObjectName(u"Label25"_s);
    for (QLabel* etiquette : {stocke_, Label25}) {
        etiquette->setWordWrap(true);
        etiquette->setMinimumHeight(etiquette->fontMetrics().height());
        fiche->pile->addWidget(etiquette);
    }
    // Two lines: the longest text of the three that the label shows.
    Label25->setMinimumHeight(2 * Label25->fontMetrics().height());
    Label25->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return fiche;
}

// --------------------------------------------------------------------------------- the combination

Fiche* PageCombinaisons::creerFicheCombinaison() {
    auto* fiche = new Fiche(this);
    libelle_ = valeur(u"LabelCombinaison"_s, {}, fiche);
    libelle_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    libelle_->setMinimumHeight(libelle_->fontMetrics().height());
    libelle_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    poserIndice(libelle_, u"Combinaison de la ligne choisie"_s);

    AdvStringGrid2 = new VueTableau(colonnesCombinaison(), 1, contexte.Echelle, fiche);
    AdvStringGrid2->setObjectName(u"AdvStringGrid2"_s);
    AdvStringGrid2->setAccessibleName(u"Statistiques de la combinaison choisie"_s);
    poserIndice(AdvStringGrid2,
                u"Double cliquez sur une date, un écart ou une suite pour afficher "
                u"le tirage correspondant"_s);
    AdvStringGrid2->modele().poserTriDepart({0, false});
    AdvStringGrid2->poserBulle(
        [this](const QModelIndex& i) { return bulleRatio(*AdvStringGrid2, i); });
    // Room for the six rows of the larger sizes from the start.
    AdvStringGrid2->reserverLignes(NbBoules + 1);

    LabelTirages = legende({}, fiche);
    LabelTirages->setObjectName(u"LabelTirages"_s);
    CheckBoxRN = new QCheckBox(u"Ratio graphique"_s, fiche);
    CheckBoxRN->setObjectName(u"CheckBoxRN"_s);
    poserIndice(CheckBoxRN, u"Afficher le ratio sous forme de barre"_s);
    ButtonPosition = bouton(u"ButtonPosition"_s, u"&Position"_s,
                            u"Position de cette combinaison dans la liste en mémoire"_s, fiche);
    auto* pied = new QHBoxLayout;
    pied->setSpacing(3 * Unite);
    pied->addWidget(LabelTirages);
    pied->addStretch(1);
    pied->addWidget(CheckBoxRN);
    pied->addWidget(ButtonPosition);
    fiche->pile->addWidget(libelle_);
    fiche->pile->addWidget(AdvStringGrid2);
    fiche->pile->addLayout(pied);
    return fiche;
}

QStackedWidget* PageCombinaisons::creerCahier() {
    auto* cahier = new QStackedWidget(this);
    cahier->setObjectName(u"Cahier"_s);
    cahier->addWidget(creerLegende(cahier));
    auto* listes = new Fiche(cahier);
    auto* promesse = new QLabel(
        u"Les listes tampons I, II et III prendront place ici : copie, déplacement et réunion de "
        u"combinaisons avec la liste en mémoire."_s,
        listes);
    promesse->setObjectName(u"PromesseListes"_s);
    promesse->setWordWrap(true);
    listes->pile->addWidget(promesse);
    listes->pile->addStretch(1);
    cahier->addWidget(listes);
    return cahier;
}

Fiche* PageCombinaisons::creerLegende(QWidget* parent) {
    auto* fiche = new Fiche(parent);
    aideMode_ = new QLabel(fiche);
    aideMode_->setObjectName(u"AideMode"_s);
    aideMode_->setWordWrap(true);
    fiche->pile->addWidget(aideMode_);
    fiche->pile->addSpacing(Unite);
    struct Couleur {
        QColor Teintes::*teinte;
        QString sens;
    };
    for (const Couleur& c :
         {Couleur{&Teintes::ligneSup, u"Nombre de sorties égal à la borne Sup"_s},
          Couleur{&Teintes::ligneInf, u"Nombre de sorties égal à la borne Inf"_s}}) {
        auto* rang = rangee({new Pastille(c.teinte, fiche), new QLabel(c.sens, fiche)});
        rang->setSpacing(Unite);
        rang->addStretch(1);
        fiche->pile->addLayout(rang);
    }
    fiche->pile->addWidget(legende(u"NC : borne non calculée"_s, fiche));
    fiche->pile->addStretch(1);
    return fiche;
}

// ------------------------------------------------------------------------------------------ wiring

void PageCombinaisons::relier() {
    connect(ComboBox1, &QComboBox::currentIndexChanged, this, &PageCombinaisons::ComboBox1Change);
    connect(stockage_, &QButtonGroup::idClicked, this, &PageCombinaisons::RadioGroup1Click);
    for (LigneBornes* bornes : lignes_) {
        connect(bornes->bouton, &QPushButton::clicked, this,
                [this, bornes] { CombSearchClick(bornes->taille()); });
    }
    connect(ListBox, &ListeCombinaisons::ligneChoisie, this, &PageCombinaisons::ListBoxClick);
    connect(AdvStringGrid2, &VueTableau::celluleActivee, this, &PageCombinaisons::surActivation);
    connect(CheckBoxRN, &QCheckBox::toggled, this, &PageCombinaisons::afficherCombinaison);
    connect(ButtonPosition, &QPushButton::clicked, this, &PageCombinaisons::ButtonPositionClick);

    moteur_->surProgression = [this](int valeur) {
        progression_.store(valeur, std::memory_order_relaxed);
    };
    moteur_->surFin = [this] {
        QMetaObject::invokeMethod(this, &PageCombinaisons::TraitementTermine, Qt::QueuedConnection);
    };
    rythme_.setInterval(RythmeMs);
    connect(&rythme_, &QTimer::timeout, this,
            [this] { CGauge->setValue(progression_.load(std::memory_order_relaxed)); });
}

void PageCombinaisons::poserOrdreTabulation() {
    QWidget* precedent = ComboBox1;
    const auto ensuite = [&precedent](QWidget* suivant) {
        setTabOrder(precedent, suivant);
        precedent = suivant;
    };
    for (const LigneBornes* bornes : lignes_) {
        ensuite(bornes->bouton);
        ensuite(bornes->inf.edit);
        ensuite(bornes->sup.edit);
    }
    for (QAbstractButton* choix : stockage_->buttons()) ensuite(choix);
    ensuite(ListBox);
    ensuite(AdvStringGrid2);
    ensuite(CheckBoxRN);
    ensuite(ButtonPosition);
}

void PageCombinaisons::changeEvent(QEvent* evenement) {
    Page::changeEvent(evenement);
    if (evenement->type() != QEvent::PaletteChange || ComboBox1 == nullptr) return;
    // The edits carry colours of their own, which follow the palette by hand.
    for (LigneBornes* bornes : lignes_) bornes->appliquerMode(moteur_->modeListe);
}

void PageCombinaisons::hideEvent(QHideEvent* evenement) {
    AdvStringGrid2->cacherBulle();
    Page::hideEvent(evenement);
}

void PageCombinaisons::surDepart() {
    AdvStringGrid2->cacherBulle();
}

}  // namespace norvane::ui
