// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/RangeeCommandes.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

struct Bouton {
    const char16_t* nom;
    const char16_t* texte;
    const char16_t* indice;
    void (RangeeCommandes::*signal)();
};

constexpr Bouton ChoixLibre{u"ReInit", u"&Choix libre", u"Sélection libre de numéros à vérifier",
                            &RangeeCommandes::ReInitClick};
constexpr Bouton Lever{u"DeSelect", u"&Désélectionner", u"Désélectionner tous les numéros cochés",
                       &RangeeCommandes::DeSelectClick};
constexpr Bouton Selection{u"SelectGrilles", u"&Sélection", u"Sélection de grilles à vérifier",
                           &RangeeCommandes::SelectGrillesClick};
constexpr Bouton Sauver{u"ButtonSauverGrilles", u"&Enregistrer",
                        u"Enregistrer les grilles sélectionnées",
                        &RangeeCommandes::ButtonSauverGrillesClick};
constexpr Bouton Terminer{u"NormalMode", u"&Terminer", u"Retour au mode Normal",
                          &RangeeCommandes::NormalModeClick};
constexpr Bouton Verifier{u"VerifGains", u"&Vérifier gains", u"",
                          &RangeeCommandes::VerifGainsClick};
constexpr Bouton Ouvrir{u"ChargerGrilles", u"O&uvrir", u"Ouvrir Grilles ou Reçus",
                        &RangeeCommandes::ChargerGrillesClick};
constexpr Bouton Consultation{u"Consultation", u"C&onsultation",
                              u"Vérification des grilles en mémoire",
                              &RangeeCommandes::ConsultationClick};
constexpr Bouton Edition{u"MajBaseManuelle", u"&Mise à jour",
                         u"Mise à jour des tirages (mode manuel)",
                         &RangeeCommandes::MajBaseManuelleClick};
constexpr Bouton Ajout{u"AjoutLibre", u"&Modifier", u"Modifier l'enregistrement en cours",
                       &RangeeCommandes::AjoutLibreClick};

}  // namespace

RangeeCommandes::RangeeCommandes(QWidget* parent) : QWidget(parent) {
    auto* ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(Unite + 2);
    const auto ajouter = [this, ligne](const Bouton& b) {
        auto* cree = bouton(QString::fromUtf16(b.nom), QString::fromUtf16(b.texte),
                            QString::fromUtf16(b.indice), this);
        connect(cree, &QPushButton::clicked, this, b.signal);
        ligne->addWidget(cree);
        return cree;
    };
    // What comes and goes stands where it moves no other: the pointer stays on its button.
    choixLibre_ = ajouter(ChoixLibre);
    ligne->addWidget(communs_ = creerCommuns());
    ajouter(Lever);
    ligne->addStretch(1);
    ligne->addWidget(jauge_ = creerJauge());
    ajouter(Terminer);
    ajouter(Ajout);
    ajouter(Verifier);
    ajouter(Ouvrir);
    auto* sauver = ajouter(Sauver);
    QSizePolicy garde = sauver->sizePolicy();
    garde.setRetainSizeWhenHidden(true);
    sauver->setSizePolicy(garde);
    selection_ = ajouter(Selection);
    ajouter(Consultation);
    ajouter(Edition);
}

QProgressBar* RangeeCommandes::creerJauge() {
    auto* jauge = new QProgressBar(this);
    jauge->setObjectName(u"ProgressBarBilan"_s);
    jauge->setAccessibleName(u"Avancement du bilan"_s);
    jauge->setFixedWidth(24 * Unite);
    return jauge;
}

QPushButton* RangeeCommandes::creerCommuns() {
    auto* communs = bouton(u"CommunsButton"_s, u"Communs"_s,
                           u"Chances et Numéros communs par rapport au tirage précédent"_s, this);
    communs->setCheckable(true);
    // Its caption turns bold: the wider text must not move the row.
    QFont gras = communs->font();
    gras.setBold(true);
    communs->setMinimumWidth(QFontMetrics(gras).horizontalAdvance(communs->text()) + 6 * Unite);
    connect(communs, &QPushButton::toggled, this, [this, communs](bool bas) {
        QFont fonte = communs->font();
        fonte.setBold(bas);
        communs->setFont(fonte);
        Q_EMIT CommunsButtonClick(bas);
    });
    return communs;
}

void RangeeCommandes::leverCommuns() {
    communs_->setChecked(false);
}

void RangeeCommandes::viserChoixLibre() {
    choixLibre_->setFocus();
}

void RangeeCommandes::viserSelection() {
    selection_->setFocus();
}

}  // namespace norvane::ui
