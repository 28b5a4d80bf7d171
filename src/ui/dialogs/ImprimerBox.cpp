// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/ImprimerBox.h"

#include <algorithm>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSpinBox>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
constexpr double MargeFeuille = 0.06;  // of the height of the text, around it
}

/// A sheet with the page drawn last.
class TImprimerBox::Apercu final : public QWidget {
 public:
    Apercu(const PagesAImprimer& pages, QWidget* parent) : QWidget(parent), pages_(pages) {
        setObjectName(u"ApercuPage"_s);
        setAccessibleName(u"Aperçu de la page"_s);
        // The height of the screen decides: the sheet is higher than wide.
        const int hauteur = screen()->availableSize().height() * 2 / 3;
        setMinimumSize(hauteur * 3 / 4 / 2, hauteur / 2);
        hauteur_ = hauteur;
    }
    QSize sizeHint() const override { return {hauteur_ * 3 / 4, hauteur_}; }

    void montrer(int page) {
        page_ = page;
        setAccessibleDescription(u"Page %1"_s.arg(page));
        update();
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        const double marge = MargeFeuille * pages_.taille.height();
        const QSizeF feuille = (pages_.taille + QSizeF(2 * marge, 2 * marge))
                                   .scaled(QSizeF(size()), Qt::KeepAspectRatio);
        QRectF papier(QPointF(0, 0), feuille);
        papier.moveCenter(QRectF(rect()).center());
        p.fillRect(papier, Qt::white);
        p.setPen(teintes(palette()).bordure);
        p.drawRect(papier.adjusted(0, 0, -1, -1));
        const double bord = marge * feuille.height() / (pages_.taille.height() + 2 * marge);
        p.setRenderHint(QPainter::Antialiasing);
        pages_.peindre(p, page_, papier.adjusted(bord, bord, -bord, -bord));
    }

 private:
    const PagesAImprimer& pages_;
    int page_ = 1;
    int hauteur_;
};

TImprimerBox::TImprimerBox(const QString& titre, PagesAImprimer pages, QWidget* parent)
    : QDialog(parent), pages_(std::move(pages)), derniere_(pages_.nombre) {
    setObjectName(u"TImprimerBox"_s);
    setWindowTitle(titre);
    apercu_ = new Apercu(pages_, this);
    auto* reglages = new QVBoxLayout;
    reglages->setSpacing(4 * Unite);
    reglages->addLayout(creerChoixPage());
    reglages->addLayout(creerEtendue());
    reglages->addStretch(1);
    reglages->addLayout(creerBoutons());
    auto* corps = new QHBoxLayout(this);
    corps->setContentsMargins(3 * Unite, 3 * Unite, 3 * Unite, 3 * Unite);
    corps->setSpacing(4 * Unite);
    corps->addWidget(apercu_, 1);
    corps->addLayout(reglages);
    if (parent != nullptr) move(parent->window()->pos());
}

TImprimerBox::~TImprimerBox() = default;

QSpinBox* TImprimerBox::creerChamp(const QString& nom, const QString& libelle, int valeur) {
    auto* champ = new QSpinBox(this);
    champ->setObjectName(nom);
    champ->setAccessibleName(libelle);
    champ->setRange(1, pages_.nombre);
    champ->setValue(valeur);
    champ->setAlignment(Qt::AlignRight);
    return champ;
}

QLayout* TImprimerBox::creerChoixPage() {
    page_ = creerChamp(u"ChoixPage"_s, u"Choix d'une page : "_s, 1);
    auto* libelle = new QLabel(u"Choix d'une page : "_s, this);
    libelle->setBuddy(page_);
    auto* total = new QLabel(u"sur %1 pages"_s.arg(pages_.nombre), this);
    total->setObjectName(u"NombrePages"_s);
    auto* voir = bouton(u"BoutonApercu"_s, u"&Aperçu"_s, u"Montrer la page choisie"_s, this);
    voir->setAutoDefault(false);
    connect(voir, &QPushButton::clicked, this, [this] { apercu_->montrer(page_->value()); });
    auto* pile = new QVBoxLayout;
    pile->setSpacing(2 * Unite);
    pile->addLayout(rangee({libelle, page_, total}));
    pile->addWidget(voir);
    return pile;
}

QLayout* TImprimerBox::creerEtendue() {
    de_ = creerChamp(u"ImprimerDe"_s, u"Imprimer de"_s, premiere_);
    a_ = creerChamp(u"ImprimerA"_s, u"à"_s, derniere_);
    connect(de_, &QSpinBox::valueChanged, this, &TImprimerBox::choisirPremiere);
    connect(a_, &QSpinBox::valueChanged, this, &TImprimerBox::choisirDerniere);
    auto* libelle = new QLabel(u"Imprimer de"_s, this);
    libelle->setBuddy(de_);
    auto* ligne = rangee({libelle, de_, new QLabel(u"à"_s, this), a_});
    ligne->addStretch(1);
    return ligne;
}

QLayout* TImprimerBox::creerBoutons() {
    auto* faire = bouton(u"BoutonImprimer"_s, u"&Imprimer"_s, u"Imprimer ces pages"_s, this);
    auto* renoncer = bouton(u"BoutonAnnuler"_s, u"&Annuler"_s, u"Fermer sans imprimer"_s, this);
    faire->setDefault(true);
    connect(faire, &QPushButton::clicked, this, &QDialog::accept);
    connect(renoncer, &QPushButton::clicked, this, &QDialog::reject);
    return rangee({faire, renoncer});
}

void TImprimerBox::choisirPremiere(int page) {
    premiere_ = page;
    derniere_ = std::max(page, derniere_);
    const QSignalBlocker garde(a_);
    a_->setValue(derniere_);
}

void TImprimerBox::choisirDerniere(int page) {
    derniere_ = page;
    premiere_ = std::min(page, premiere_);
    const QSignalBlocker garde(de_);
    de_->setValue(premiere_);
}

}  // namespace norvane::ui
