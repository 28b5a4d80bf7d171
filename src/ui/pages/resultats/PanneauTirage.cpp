// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/PanneauTirage.h"

#include <algorithm>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>

#include "base/Textes.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "resultats/ChampJoker.h"
#include "widgets/BandeTirage.h"
#include "widgets/ChampDate.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// Seven digits, the missing ones as blanks.
const QString MasqueJoker = u"0.0.0.0.0.0.0;_"_s;

QString chiffresDe(const QString& texte) {
    QString chiffres;
    for (const QChar c : texte) {
        if (c.isDigit()) chiffres += c;
    }
    return chiffres;
}

/// What of a draw in hand the cells show.
Tirage enCellules(const SaisieTirage& saisie) {
    Tirage tirage{};
    std::ranges::copy(saisie.cases.numeros.valeurs(), tirage.Numeros);
    if (!saisie.cases.chances.vide()) tirage.Chance = *saisie.cases.chances.begin();
    return tirage;
}

int enEntier(QDate date) {
    return date.year() * 10000 + date.month() * 100 + date.day();
}

}  // namespace

PanneauTirage::PanneauTirage(Contexte& ctx, QWidget* parent)
    : QWidget(parent), contexte_(ctx), choix_(ctx.atelier.base) {
    auto* dehors = new QHBoxLayout(this);
    dehors->setContentsMargins(0, 0, 0, 0);
    auto* fiche = new Fiche(this);
    dehors->addWidget(fiche);
    fiche->pile->addLayout(creerChoix(fiche));
    fiche->pile->addSpacing(Unite);
    fiche->pile->addLayout(creerBoules(fiche));
    relier();
    poserLimites();
}

QLayout* PanneauTirage::creerChoix(QWidget* fiche) {
    date_ = new ChampDate(u"DateTimePicker"_s, fiche);
    date_->setAccessibleName(u"Date du tirage"_s);
    poserIndice(date_, u"Sélection de tirages par date"_s);
    const Base& base = contexte_.atelier.base;
    date_->poserMarques([&base](int date) {
        return TirageParDate(base.Tirages, date, base.NbTirages).indice >= 0;
    });
    selecteur_ = new QComboBox(fiche);
    selecteur_->setObjectName(u"ComboBox3"_s);
    selecteur_->addItems({u"1er"_s, u"2nd"_s});
    selecteur_->setAccessibleName(u"1er ou 2nd Tirage"_s);
    poserIndice(selecteur_, u"Sélection du 1er ou 2nd Tirage"_s);

    numero_ = new ChampNumero(u"EditTirGlob"_s, fiche);
    numero_->setAccessibleName(u"Numéro du tirage"_s);
    numero_->setFixedWidth(numero_->fontMetrics().horizontalAdvance(u"000000"_s) + 16);
    fleches_ = new HautBas(u"UpDown1"_s, fiche);
    for (QWidget* w : {static_cast<QWidget*>(numero_), static_cast<QWidget*>(fleches_)}) {
        poserIndice(w, u"Sélection de tirages par numéro"_s);
    }
    surTotal_ = legende({}, fiche);

    numeroAnnee_ = valeur(u"LabelTirageFixeNum"_s, u"N° dans l'année"_s, fiche);
    annee_ = valeur(u"LabelTirageFixeAn"_s, u"Année"_s, fiche);
    numeroAnnee_->setMinimumWidth(numeroAnnee_->fontMetrics().horizontalAdvance(u"000"_s));
    annee_->setMinimumWidth(annee_->fontMetrics().horizontalAdvance(u"0000"_s));

    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(3 * Unite);
    ligne->addLayout(colonne(u"Date"_s, rangee({date_, date_->mots()}), fiche));
    ligne->addLayout(colonne(u"Tirage"_s, rangee({selecteur_}), fiche));
    ligne->addLayout(colonne(u"Numéro"_s, rangee({numero_, fleches_, surTotal_}), fiche));
    ligne->addStretch(1);
    ligne->addLayout(colonne(u"N°"_s, rangee({numeroAnnee_}), fiche));
    ligne->addLayout(colonne(u"Année"_s, rangee({annee_}), fiche));
    return ligne;
}

QLayout* PanneauTirage::creerBoules(QWidget* fiche) {
    bande_ = new BandeTirage(contexte_.Echelle, fiche);
    joker_ = champJoker(u"MaskEdit1"_s, fiche);
    joker_->setReadOnly(true);
    // The place stays while the entry of a receipt shows a field of its own.
    auto* caseJoker = new QWidget(fiche);
    caseJoker->setObjectName(u"CaseJoker"_s);
    caseJoker->setMinimumWidth(joker_->width());
    caseJoker->setLayout(colonne(u"Joker+"_s, rangee({joker_}), caseJoker));
    caseJoker->layout()->setContentsMargins(0, 0, 0, 0);
    QSizePolicy garde = caseJoker->sizePolicy();
    garde.setRetainSizeWhenHidden(true);
    caseJoker->setSizePolicy(garde);
    auto* boules = new QHBoxLayout;
    boules->setSpacing(0);
    boules->addWidget(bande_, 0, Qt::AlignBottom);
    boules->addStretch(1);
    boules->addWidget(caseJoker);
    return boules;
}

void PanneauTirage::relier() {
    connect(date_, &ChampDate::dateChange, this, [this](int date) {
        choix_.ChoisirParDate(date);
        montrer();
    });
    connect(date_, &QLineEdit::editingFinished, this, [this] {
        // A text that gives no day takes the day on show back.
        if (!date_->valable()) date_->poser(choix_.date());
    });
    connect(selecteur_, &QComboBox::currentIndexChanged, this, [this](int place) {
        if (garde_) return;
        choix_.ChoisirSousTirage(place + 1);
        montrer();
    });
    connect(numero_, &QLineEdit::textChanged, this, [this](const QString& texte) {
        if (garde_ || texte.isEmpty()) return;
        // What is typed is the draw wanted, also after a date without one.
        if (numero_->isModified()) {
            choix_.montrer(texte.toInt());
        } else {
            choix_.ChoisirParNumero(texte.toInt());
        }
        montrer();
    });
    connect(numero_, &QLineEdit::editingFinished, this, [this] {
        // An emptied field takes the draw on show back.
        if (numero_->text().isEmpty()) montrer();
    });
    const auto pas = [this](int n) {
        choix_.deplacer(n);
        montrer();
        numero_->selectAll();
    };
    connect(numero_, &ChampNumero::deplacement, this, pas);
    connect(fleches_, &HautBas::deplacement, this, pas);
    connect(joker_, &QLineEdit::textEdited, this,
            [this](const QString& texte) { Q_EMIT jokerSaisi(chiffresDe(texte)); });
    connect(numero_, &ChampNumero::extremite, this, [this](bool derniere) {
        montrerTirage(derniere ? contexte_.atelier.base.NbTirages : 1);
    });
}

void PanneauTirage::reprendre() {
    poserLimites();
    choix_.reprendre();
    montrer();
}

void PanneauTirage::montrerTirage(int numero) {
    choix_.montrer(numero);
    montrer();
}

void PanneauTirage::choisirDate(int date) {
    choix_.ChoisirParDate(date);
    montrer();
}

void PanneauTirage::montrerCommuns(bool communs) {
    communs_ = communs;
    montrerCellules();
}

void PanneauTirage::montrer() {
    {
        const QScopedValueRollback garde(garde_, true);
        const Tirage* tirage = choix_.tirage();
        const QString numero = tirage == nullptr ? QString() : QString::number(choix_.indice() + 1);
        // Text that is right already keeps its cursor: the user may be typing in it.
        if (numero_->text() != numero) numero_->setText(numero);
        date_->poser(choix_.date());
        selecteur_->setCurrentIndex(choix_.second() ? 1 : 0);
        bande_->disposer(choix_.avecChance());
        montrerCellules();
        montrerNumeroAnnee();
        if (!saisie_) joker_->setText(texteJoker());
    }
    Q_EMIT tirageChange();
}

void PanneauTirage::saisir(const SaisieTirage* saisie) {
    const bool avant = saisie_.has_value();
    if (!avant && saisie == nullptr) return;
    saisie_ = saisie != nullptr ? std::optional(*saisie) : std::nullopt;
    montrerCellules();
    montrerNumeroAnnee();
    if (avant == saisie_.has_value()) return;  // what is typed in the field stays as it is
    joker_->setInputMask(avant ? QString() : MasqueJoker);
    joker_->setText(avant ? texteJoker() : versQt(saisie_->joker));
    joker_->setCursorPosition(0);
}

void PanneauTirage::viserJoker() {
    joker_->setFocus();
    joker_->setCursorPosition(
        static_cast<int>(std::max<qsizetype>(joker_->displayText().indexOf(u'_'), 0)));
}

void PanneauTirage::montrerCellules() {
    if (saisie_) {
        bande_->afficher(enCellules(*saisie_), {});
        return;
    }
    const Tirage* tirage = choix_.tirage();
    if (tirage == nullptr) {
        bande_->vider();
        return;
    }
    Cases communs;
    const Tirage* avant = choix_.precedent();
    if (communs_ && avant != nullptr) communs = CasesDe(*tirage).commun(CasesDe(*avant));
    bande_->afficher(*tirage, communs);
}

/// Number in the year and year.
void PanneauTirage::montrerNumeroAnnee() {
    QString annee, numero;
    if (saisie_) {
        annee = QString::number(saisie_->annee);
        numero = QString::number(saisie_->numero);
    } else if (const Tirage* tirage = choix_.tirage(); tirage != nullptr) {
        const NumeroAnnee na = LireNumeroAnnee(tirage->AnneeNumero);
        annee = QString::number(na.annee);
        numero = QString::number(na.numero);
    }
    annee_->setText(annee);
    numeroAnnee_->setText(numero);
}

/// The Joker+ number of the draw on show.
QString PanneauTirage::texteJoker() const {
    const Tirage* tirage = choix_.tirage();
    if (tirage == nullptr || tirage->Joker == JokerAbsent) return {};
    QStringList chiffres;
    for (const int chiffre : ChiffresJoker(tirage->Joker)) chiffres << QString::number(chiffre);
    return chiffres.join(u'.');
}

void PanneauTirage::poserLimites() {
    const Base& base = contexte_.atelier.base;
    int fin = enEntier(contexte_.services.horloge->aujourdhui());
    // A clock that runs behind the base must not hide draws.
    if (base.NbTirages > 0) fin = std::max(fin, base.enUsage().back().DateTirage);
    date_->poserLimites(DatePremierTirage, fin);
    surTotal_->setText(u"sur %1"_s.arg(versQt(FormaterCompte(base.NbTirages))));
}

}  // namespace norvane::ui
