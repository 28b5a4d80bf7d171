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

constexpr int ColonnesChoix = 2;

}  // namespace

std::pair<int, int> rangsDeTri(const Liste& liste) {
    const Disposition& d = liste.arene.disposition;
    const int premier = BonsPremierRang(d.taille);
    const int min = d.mode == ModeStockage::RangsDeGain ? MinBonsNumeros(d.taille, d.gains) : 0;
    return {std::min(min, premier), premier};
}

EtatTri triPour(const Liste& liste, EtatTri voulu) {
    const auto [min, max] = rangsDeTri(liste);
    voulu.RangTri = std::clamp(voulu.RangTri, min, max);
    return voulu;
}

PanneauTri::PanneauTri(QWidget* parent)
    : QWidget(parent),
      trier_(creerCase(u"CheckBoxTri", u"Trier la &liste"_s,
                       u"Chaque nouvelle liste en mémoire est triée"_s)),
      groupeCritere_(creerChoix(u"RadioGroupTri", u"&Critère de Tri :"_s,
                                {u"NbFois"_s, u"Ecart"_s, u"EcartMax"_s, u"Suite"_s, u"SuiteMax"_s},
                                critere_)),
      groupeOrdre_(creerChoix(u"RadioGroupOrdre", u"&Ordre :"_s, {u"Croissant"_s, u"Décroissant"_s},
                              ordre_)),
      boutonEcart_(bouton(u"ButtonTEA"_s, u"Tri Ecart &Avancé"_s,
                          u"Ne garder que les combinaisons dont l'écart est assez long"_s, this)) {
    creerApprofondi();
    creerRang();
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite / 2);
    for (QWidget* w : std::initializer_list<QWidget*>{trier_, groupeCritere_, groupeOrdre_,
                                                      approfondi_, profondeur_, gains_, rang_})
        pile->addWidget(w);
    pile->addStretch(1);
    pile->addWidget(boutonEcart_);
    relier();
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
    auto* grille = new QGridLayout(groupe);
    grille->setContentsMargins(Unite, Unite / 2, Unite, Unite / 2);
    grille->setHorizontalSpacing(Unite);
    grille->setVerticalSpacing(Unite / 2);
    for (const QString& item : items) {
        const auto id = static_cast<int>(boutons->buttons().size());
        auto* choix = new QRadioButton(item, groupe);
        choix->setObjectName(groupe->objectName() + u"Item%1"_s.arg(id));
        boutons->addButton(choix, id);
        grille->addWidget(choix, id / ColonnesChoix, id % ColonnesChoix);
    }
    return groupe;
}

void PanneauTri::creerApprofondi() {
    approfondi_ = legende(u"Sur les rangs inférieurs :"_s, this);
    approfondi_->setObjectName(u"Label39"_s);
    profondeur_ = creerCase(u"CheckBoxProfondeur", u"&En profondeur"_s,
                            u"Les combinaisons à égalité sont départagées par leurs rangs "
                            u"inférieurs"_s);
    gains_ = creerCase(u"CheckBoxGains", u"Par les &gains"_s,
                       u"Selon ce que les combinaisons auraient rapporté"_s);
}

void PanneauTri::creerRang() {
    rang_ = new QWidget(this);
    rang_->setObjectName(u"GroupBoxRang"_s);
    editRang_ = new ChampNumero(u"EditRang"_s, rang_);
    editRang_->setMaxLength(2);
    editRang_->setFixedWidth(editRang_->fontMetrics().horizontalAdvance(u"00"_s) + 3 * Unite);
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
    rang->setContentsMargins(0, 0, 0, 0);
    rang->setSpacing(Unite / 2);
    rang->addWidget(new QLabel(u"Rang de début :"_s, rang_));
    rang->addStretch(1);
    rang->addWidget(editRang_);
    rang->addWidget(fleches);
}

void PanneauTri::relier() {
    connect(trier_, &QCheckBox::clicked, this,
            [this](bool tri) { choisirType(tri ? TypeTri::Simple : TypeTri::Sans); });
    connect(profondeur_, &QCheckBox::clicked, this,
            [this](bool oui) { choisirType(oui ? TypeTri::Profondeur : TypeTri::Simple); });
    connect(gains_, &QCheckBox::clicked, this,
            [this](bool oui) { choisirType(oui ? TypeTri::Gain : TypeTri::Simple); });
    connect(critere_, &QButtonGroup::idClicked, this, [this](int id) {
        EtatTri tri = voulu_;
        tri.CritereTri = static_cast<Critere>(id);
        Q_EMIT triVoulu(tri);
    });
    connect(ordre_, &QButtonGroup::idClicked, this, [this](int id) {
        EtatTri tri = voulu_;
        tri.OrdreCroissant = id == 0;
        Q_EMIT triVoulu(tri);
    });
    connect(boutonEcart_, &QPushButton::clicked, this, &PanneauTri::ButtonTEAClick);
}

// ------------------------------------------------------------------------------------------ state

void PanneauTri::suivre(const VueTri& vue) {
    voulu_ = vue.voulu;
    rangs_ = rangsDeTri(vue.liste);
    const bool profondeur = voulu_.TypeTriListe == TypeTri::Profondeur;
    trier_->setChecked(vue.trier());
    for (QGroupBox* groupe : {groupeCritere_, groupeOrdre_}) groupe->setVisible(vue.trier());
    critere_->button(static_cast<int>(voulu_.CritereTri))->setChecked(true);
    ordre_->button(voulu_.OrdreCroissant ? 0 : 1)->setChecked(true);
    profondeur_->setChecked(profondeur);
    gains_->setChecked(voulu_.TypeTriListe == TypeTri::Gain);
    for (QWidget* w : std::initializer_list<QWidget*>{approfondi_, profondeur_, gains_})
        w->setVisible(vue.inferieurs());
    rang_->setVisible(vue.inferieurs() && profondeur);
    if (!editRang_->hasFocus() || editRang_->text().toInt() != voulu_.RangTri)
        editRang_->setText(QString::number(voulu_.RangTri));
}

/// The depth sort begins at the first rank, until another one is chosen.
void PanneauTri::choisirType(TypeTri type) {
    EtatTri tri = voulu_;
    tri.TypeTriListe = type;
    if (type != TypeTri::Profondeur) tri.RangTri = rangs_.second;
    Q_EMIT triVoulu(tri);
}

void PanneauTri::saisirRang(int rang) {
    EtatTri tri = voulu_;
    tri.RangTri = std::clamp(rang, rangs_.first, rangs_.second);
    Q_EMIT triVoulu(tri);
    editRang_->setText(QString::number(voulu_.RangTri));
}

QList<QWidget*> PanneauTri::ordreTabulation() const {
    QList<QWidget*> ordre{trier_};
    for (const QButtonGroup* groupe : {critere_, ordre_})
        for (QAbstractButton* choix : groupe->buttons()) ordre << choix;
    return ordre << profondeur_ << gains_ << editRang_ << boutonEcart_;
}

}  // namespace norvane::ui
