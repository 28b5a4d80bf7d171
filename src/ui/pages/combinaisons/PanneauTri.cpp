// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauTri.h"

#include <algorithm>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

QString libelleTri(TypeTri type, ModeStockage mode) {
    switch (type) {
        case TypeTri::Simple:
            return u"Tri simple des combinaisons selon le premier rang"_s;
        case TypeTri::Profondeur:
            return mode == ModeStockage::RangsDeGain
                       ? u"Tri approfondi des combinaisons sur les rangs de gain uniquement"_s
                       : u"Tri approfondi des combinaisons sur tous les rangs"_s;
        case TypeTri::Gain:
            return u"Tri des combinaisons ayant le plus ou moins rapporté"_s;
        case TypeTri::Sans:
            break;
    }
    return {};
}

/// The sort that the list has, but for one that is asked for and not done yet.
TypeTri typeMontre(const EtatTri& voulu, const Liste& liste) {
    if (liste.vide()) return TypeTri::Sans;
    const bool autre =
        voulu.TypeTriListe == TypeTri::Profondeur || voulu.TypeTriListe == TypeTri::Gain;
    return autre || liste.tri.TypeTriListe != TypeTri::Sans ? voulu.TypeTriListe : TypeTri::Sans;
}

}  // namespace

std::pair<int, int> rangsDeTri(const Liste& liste) {
    const Disposition& d = liste.arene.disposition;
    const int premier = BonsPremierRang(d.taille);
    const int min = d.mode == ModeStockage::RangsDeGain ? MinBonsNumeros(d.taille, d.gains) : 0;
    return {std::min(min, premier), premier};
}

PanneauTri::PanneauTri(QWidget* parent) : QWidget(parent) {
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addLayout(creerTete());
    options_ = new QWidget(this);
    auto* options = new QHBoxLayout(options_);
    options->setContentsMargins(0, 0, 0, 0);
    options->setSpacing(Unite);
    options->addWidget(
        creerChoix(u"RadioGroupTri", u"&Critère de Tri :"_s,
                   {u"NbFois"_s, u"Ecart"_s, u"EcartMax"_s, u"Suite"_s, u"SuiteMax"_s}, critere_),
        1);
    options->addLayout(creerApprofondi(), 1);
    pile->addWidget(options_);
    genre_ = legende({}, this);
    genre_->setObjectName(u"Label25"_s);
    genre_->setWordWrap(true);
    // Two lines: the longest text of those that it shows.
    genre_->setMinimumHeight(2 * genre_->fontMetrics().height());
    genre_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    pile->addStretch(1);
    pile->addWidget(genre_);
    pile->addLayout(creerPied());
    connect(critere_, &QButtonGroup::idClicked, this, [this](int id) {
        EtatTri tri = voulu_;
        tri.CritereTri = static_cast<Critere>(id);
        vouloir(tri);
    });
    connect(ordre_, &QButtonGroup::idClicked, this, [this](int id) {
        EtatTri tri = voulu_;
        tri.OrdreCroissant = id == 0;
        vouloir(tri);
    });
}

QCheckBox* PanneauTri::creerCase(const char16_t* nom, const QString& texte, const QString& indice) {
    auto* choix = new QCheckBox(texte, this);
    choix->setObjectName(QString::fromUtf16(nom));
    poserIndice(choix, indice);
    return choix;
}

QGroupBox* PanneauTri::creerChoix(const char16_t* nom, const QString& titre,
                                  const QStringList& items, QButtonGroup*& boutons) {
    auto* groupe = new QGroupBox(titre, this);
    groupe->setObjectName(QString::fromUtf16(nom));
    boutons = new QButtonGroup(groupe);
    auto* pile = new QVBoxLayout(groupe);
    pile->setSpacing(Unite / 2);
    for (const QString& item : items) {
        const auto id = static_cast<int>(boutons->buttons().size());
        auto* choix = new QRadioButton(item, groupe);
        choix->setObjectName(groupe->objectName() + u"Item%1"_s.arg(id));
        boutons->addButton(choix, id);
        pile->addWidget(choix);
    }
    pile->addStretch(1);
    return groupe;
}

QLayout* PanneauTri::creerTete() {
    trier_ = creerCase(u"CheckBoxTri", u"Trier la &liste"_s,
                       u"Chaque nouvelle liste en mémoire est triée"_s);
    boutonEcart_ = bouton(u"ButtonTEA"_s, u"Tri Ecart &Avancé"_s,
                          u"Ne garder que les combinaisons dont l'écart est assez long"_s, this);
    connect(trier_, &QCheckBox::clicked, this,
            [this](bool tri) { choisirType(tri ? TypeTri::Simple : TypeTri::Sans); });
    connect(boutonEcart_, &QPushButton::clicked, this, &PanneauTri::ButtonTEAClick);
    auto* rang = rangee({trier_});
    rang->addStretch(1);
    rang->addWidget(boutonEcart_);
    return rang;
}

QLayout* PanneauTri::creerApprofondi() {
    approfondi_ = legende(u"Sur les rangs inférieurs :"_s, this);
    approfondi_->setObjectName(u"Label39"_s);
    profondeur_ = creerCase(u"CheckBoxProfondeur", u"&En profondeur"_s,
                            u"Les combinaisons à égalité sont départagées par leurs rangs "
                            u"inférieurs"_s);
    gains_ = creerCase(u"CheckBoxGains", u"Par les &gains"_s,
                       u"Selon ce que les combinaisons auraient rapporté"_s);
    connect(profondeur_, &QCheckBox::clicked, this,
            [this](bool oui) { choisirType(oui ? TypeTri::Profondeur : TypeTri::Simple); });
    connect(gains_, &QCheckBox::clicked, this,
            [this](bool oui) { choisirType(oui ? TypeTri::Gain : TypeTri::Simple); });
    rang_ = new QGroupBox(u"Rang de début :"_s, this);
    rang_->setObjectName(u"GroupBoxRang"_s);
    editRang_ = new ChampNumero(u"EditRang"_s, rang_);
    editRang_->setMaxLength(2);
    editRang_->setAccessibleName(u"Rang de début de tri"_s);
    poserIndice(editRang_, u"Nombre de bons numéros du rang par lequel commence le tri"_s);
    auto* fleches = new HautBas(u"UpDownRang"_s, rang_);
    const auto bouger = [this](int pas) { saisirRang(voulu_.RangTri + pas); };
    connect(editRang_, &QLineEdit::textEdited, this, [this](const QString& texte) {
        if (!texte.isEmpty()) saisirRang(texte.toInt());
    });
    connect(editRang_, &QLineEdit::editingFinished, this, [this] { saisirRang(voulu_.RangTri); });
    connect(editRang_, &ChampNumero::deplacement, this, bouger);
    connect(editRang_, &ChampNumero::extremite, this,
            [this](bool dernier) { saisirRang(dernier ? rangs_.second : rangs_.first); });
    connect(fleches, &HautBas::deplacement, this, bouger);
    auto* rang = new QHBoxLayout(rang_);
    rang->setSpacing(Unite / 2);
    rang->addWidget(editRang_);
    rang->addWidget(fleches);
    auto* pile = new QVBoxLayout;
    pile->setSpacing(Unite / 2);
    pile->addWidget(
        creerChoix(u"RadioGroupOrdre", u"&Ordre :"_s, {u"Croissant"_s, u"Décroissant"_s}, ordre_));
    for (QWidget* w : std::initializer_list<QWidget*>{approfondi_, profondeur_, gains_, rang_})
        pile->addWidget(w);
    pile->addStretch(1);
    return pile;
}

QLayout* PanneauTri::creerPied() {
    boutonTri_ = bouton(u"ButtonTri"_s, u"&Trier"_s, u"Trier la liste en mémoire"_s, this);
    boutonRangs_ = bouton(u"ButtonTriProfondeur"_s, u"&Rangs"_s,
                          u"Calculer les rangs inférieurs des combinaisons de la liste"_s, this);
    connect(boutonTri_, &QPushButton::clicked, this, &PanneauTri::ButtonTriClick);
    connect(boutonRangs_, &QPushButton::clicked, this, &PanneauTri::ButtonTriProfondeurClick);
    auto* rang = rangee({boutonTri_, boutonRangs_});
    rang->addStretch(1);
    return rang;
}

// ------------------------------------------------------------------------------------------ state

void PanneauTri::suivre(const Vue& vue) {
    voulu_ = vue.voulu;
    rangs_ = rangsDeTri(vue.liste);
    const bool trier = voulu_.TypeTriListe != TypeTri::Sans;
    const bool profondeur = voulu_.TypeTriListe == TypeTri::Profondeur;
    trier_->setChecked(trier);
    options_->setVisible(trier);
    critere_->button(static_cast<int>(voulu_.CritereTri))->setChecked(true);
    ordre_->button(voulu_.OrdreCroissant ? 0 : 1)->setChecked(true);
    profondeur_->setChecked(profondeur);
    gains_->setChecked(voulu_.TypeTriListe == TypeTri::Gain);

    const bool plusieurs = trier && vue.montree && vue.liste.nombre() > 1;
    const bool inferieurs = plusieurs && vue.liste.arene.disposition.blocs() > 1;
    for (QWidget* w : std::initializer_list<QWidget*>{approfondi_, profondeur_, gains_})
        w->setVisible(inferieurs);
    rang_->setVisible(inferieurs && profondeur);
    if (!editRang_->hasFocus() || editRang_->text().toInt() != voulu_.RangTri)
        editRang_->setText(QString::number(voulu_.RangTri));
    boutonTri_->setVisible(plusieurs);
    boutonRangs_->setVisible(vue.rangs ||
                             (inferieurs && vue.liste.NbCombRangs != vue.liste.nombre()));
    boutonRangs_->setText(vue.rangs ? u"STOP"_s : u"&Rangs"_s);
    genre_->setText(vue.montree ? libelleTri(typeMontre(voulu_, vue.liste), vue.liste.mode())
                                : QString());
}

void PanneauTri::vouloir(const EtatTri& tri) {
    Q_EMIT triVoulu(tri);
}

/// The depth sort begins at the first rank, until another one is chosen.
void PanneauTri::choisirType(TypeTri type) {
    EtatTri tri = voulu_;
    tri.TypeTriListe = type;
    if (type != TypeTri::Profondeur) tri.RangTri = rangs_.second;
    vouloir(tri);
}

void PanneauTri::saisirRang(int rang) {
    EtatTri tri = voulu_;
    tri.RangTri = std::clamp(rang, rangs_.first, rangs_.second);
    vouloir(tri);
    editRang_->setText(QString::number(voulu_.RangTri));
}

QList<QWidget*> PanneauTri::ordreTabulation() const {
    QList<QWidget*> ordre{trier_, boutonEcart_};
    for (const QButtonGroup* groupe : {critere_, ordre_})
        for (QAbstractButton* choix : groupe->buttons()) ordre << choix;
    return ordre << profondeur_ << gains_ << editRang_ << boutonTri_ << boutonRangs_;
}

}  // namespace norvane::ui
