// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "historiques/PageHistoriques.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <random>

#include "common/Theme.h"
#include "historiques/DessinEcarts.h"
#include "historiques/TableauHistorique.h"
#include "widgets/ColonnesStats.h"
#include "widgets/Fiche.h"
#include "widgets/SortieTableau.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// The five figures, in the order of ChiffresHistorique.
struct Chiffre {
    const char16_t* nom;
    const char16_t* libelle;
    int ChiffresHistorique::*valeur;
};
constexpr std::array<Chiffre, 5> LesChiffres{
    {{u"EcartActuel", u"Ecart\nActuel", &ChiffresHistorique::ecartActuel},
     {u"EcartMax", u"Ecart\nMax", &ChiffresHistorique::ecartMax},
     {u"EcartMoyen", u"Ecart\nMoyen", &ChiffresHistorique::ecartMoyen},
     {u"SuiteActuelle", u"Suite\nActuelle", &ChiffresHistorique::suiteActuelle},
     {u"SuiteMax", u"Suite\nMax", &ChiffresHistorique::suiteMax}}};

/// The choices of what is listed, by VueHistorique.
struct Choix {
    const char16_t* nom;
    const char16_t* libelle;
};
constexpr std::array<Choix, 2> LesChoix{
    {{u"RadioButton3", u"Sorties (%1)"}, {u"RadioButton4", u"Tout (%1)"}}};

const QString Invite =
    u"Double cliquez sur le libellé des numéros, chances ou rangs, dans les tableaux des onglets\n"
    u"Numéros, Chances et Combinaisons pour afficher l'Historique associé..."_s;

}  // namespace

PageHistoriques::PageHistoriques(Contexte& ctx, QWidget* parent)
    : Page(ctx, u"Varo6"_s, u"Historiques"_s, parent), feuillets_(new QStackedWidget(this)) {
    auto* invite = new QLabel(Invite, feuillets_);
    invite->setObjectName(u"Invite"_s);
    invite->setAlignment(Qt::AlignCenter);
    grossir(invite, 1.15);
    feuillets_->addWidget(invite);
    feuillets_->addWidget(construireHistorique());
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    page->addWidget(feuillets_);
}

QWidget* PageHistoriques::construireHistorique() {
    auto* feuillet = new QWidget(feuillets_);
    auto* carte = new Fiche(feuillet);
    dessin_ = new DessinEcarts(contexte.Echelle, carte);
    dessin_->setObjectName(u"DessinEcarts"_s);
    carte->pile->addWidget(dessin_);
    table_ = new TableauHistorique(contexte.Echelle, feuillet);
    connect(table_->vue, &VueTableau::celluleActivee, this, &PageHistoriques::surActivation);
    connect(dessin_, &DessinEcarts::tirageChoisi, table_, &TableauHistorique::choisir);

    sauver_ = bouton(u"BitBtnWithColor16"_s, u"&SAUVER"_s, u"Sauver l'historique"_s, feuillet);
    connect(sauver_, &QPushButton::clicked, this, &PageHistoriques::sauver);
    auto* reglages = new QVBoxLayout;
    reglages->setSpacing(2 * Unite);
    reglages->addWidget(construireAffichage(feuillet));
    reglages->addWidget(construireLegende(feuillet));
    reglages->addWidget(sauver_);
    reglages->addStretch(1);
    auto* tableau = new QVBoxLayout;
    tableau->addWidget(table_->vue, 1);
    tableau->addStretch(0);  // a short table stays at its top
    auto* bas = new QHBoxLayout;
    bas->setSpacing(3 * Unite);
    bas->addLayout(tableau, 0);
    bas->addLayout(reglages, 0);
    bas->addStretch(1);

    auto* pile = new QVBoxLayout(feuillet);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(2 * Unite);
    pile->addWidget(construireTete(feuillet));
    pile->addWidget(carte);
    pile->addLayout(bas, 1);
    setTabOrder(affichage_->button(1), sauver_);
    setTabOrder(sauver_, table_->vue);
    return feuillet;
}

Fiche* PageHistoriques::construireTete(QWidget* parent) {
    auto* tete = new Fiche(parent);
    titre_ = valeur(u"TitreHistorique"_s, u"Historique"_s, tete);
    titre_->setWordWrap(true);
    titre_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    exemple_ = legende({}, tete);
    exemple_->setObjectName(u"Exemple"_s);
    auto* textes = new QVBoxLayout;
    textes->setSpacing(Unite / 2);
    textes->addWidget(titre_);
    textes->addWidget(exemple_);
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(5 * Unite);
    rangee->addLayout(textes, 1);
    for (std::size_t i = 0; i < LesChiffres.size(); ++i) {
        const QString libelle = QString::fromUtf16(LesChiffres[i].libelle);
        auto* etiquette = legende(libelle, tete);
        chiffres_[i] = valeur(QString::fromUtf16(LesChiffres[i].nom),
                              QString(libelle).replace(u'\n', u' '), tete);
        chiffres_[i]->setMinimumWidth(chiffres_[i]->fontMetrics().horizontalAdvance(u"0000"_s));
        auto* paire = new QHBoxLayout;
        paire->setSpacing(Unite);
        paire->addWidget(etiquette);
        paire->addWidget(chiffres_[i]);
        rangee->addLayout(paire);
    }
    tete->pile->addLayout(rangee);
    return tete;
}

QGroupBox* PageHistoriques::construireAffichage(QWidget* parent) {
    auto* groupe = new QGroupBox(u"&Afficher : "_s, parent);
    groupe->setObjectName(u"GroupBox4"_s);
    auto* pile = new QVBoxLayout(groupe);
    affichage_ = new QButtonGroup(this);
    for (std::size_t i = 0; i < LesChoix.size(); ++i) {
        auto* choix = new QRadioButton(groupe);
        choix->setObjectName(QString::fromUtf16(LesChoix[i].nom));
        affichage_->addButton(choix, static_cast<int>(i));
        pile->addWidget(choix);
    }
    poserIndice(affichage_->button(0), u"Les tirages où il y a eu sortie"_s);
    poserIndice(affichage_->button(1), u"Tous les tirages de l'intervalle"_s);
    connect(affichage_, &QButtonGroup::idClicked, this, [this](int choisi) {
        vue_ = static_cast<VueHistorique>(choisi);
        montrerVue();
    });
    return groupe;
}

QGroupBox* PageHistoriques::construireLegende(QWidget* parent) {
    auto* groupe = new QGroupBox(u"Légende"_s, parent);
    auto* grille = new QGridLayout(groupe);
    grille->setHorizontalSpacing(2 * Unite);
    grille->setVerticalSpacing(Unite);
    grille->setColumnStretch(1, 1);
    for (const auto& [sigle, sens] :
         {std::pair{u"Ecart"_s, u"Tirages depuis la sortie précédente"_s},
          std::pair{u"Suite"_s, u"Sorties de suite"_s},
          std::pair{u"Poids"_s, u"Somme des numéros et de la chance"_s}}) {
        auto* signe = new QLabel(sigle, groupe);
        QFont gras = signe->font();
        gras.setBold(true);
        signe->setFont(gras);
        const int rang = grille->rowCount();
        grille->addWidget(signe, rang, 0);
        grille->addWidget(new QLabel(sens, groupe), rang, 1);
    }
    return groupe;
}

// ---------------------------------------------------------------------------------------- opening

void PageHistoriques::premierAffichage() {
    const Occurrences& occ = contexte.atelier.occurrences;
    std::vector<int> sortis;
    for (int k = 0; k < NumeroMax; ++k) {
        if (occ.SortiesNumeros[static_cast<std::size_t>(k)] > 0) sortis.push_back(k + 1);
    }
    if (sortis.empty()) return;
    std::mt19937 tirage(contexte.services.hasard->graine());
    const int numero =
        sortis[std::uniform_int_distribution<std::size_t>(0, sortis.size() - 1)(tirage)];
    montrer(Element{GenreStats::Numeros, numero}, 1, contexte.atelier.base.NbTirages);
    exemple_->setText(
        u"Exemple sur tout l'intervalle des tirages pour le numéro aléatoire suivant: %1"_s.arg(
            numero));
    exemple_->show();
}

void PageHistoriques::surDepart() {
    table_->vue->cacherBulle();
}

bool PageHistoriques::ouvrir(const Destination& destination) {
    const auto* voulu = std::get_if<VersHistorique>(&destination);
    return voulu != nullptr && montrer(voulu->sujet, voulu->inf, voulu->sup);
}

bool PageHistoriques::montrer(const SujetHistorique& sujet, int inf, int sup) {
    const Atelier& a = contexte.atelier;
    Historique lu = FaireHistorique(a.base, a.occurrences, sujet, inf, sup);
    if (lu.stats.Sorties == 0) {
        contexte.services.messages->MessageInfo(versQt(MessageNonSorti(sujet)), u"Message"_s);
        return false;
    }
    historique_ = std::move(lu);
    vue_ = VueHistorique::Sorties;
    titre_->setText(versQt(TitreHistorique(*historique_)));
    exemple_->hide();
    const ChiffresHistorique chiffres = Chiffres(*historique_);
    for (std::size_t i = 0; i < LesChiffres.size(); ++i) {
        chiffres_[i]->setText(QString::number(chiffres.*LesChiffres[i].valeur));
    }
    const std::array<std::size_t, 2> comptes{historique_->stats.Sorties,
                                             historique_->tirages.size()};
    for (std::size_t i = 0; i < LesChoix.size(); ++i) {
        affichage_->button(static_cast<int>(i))
            ->setText(QString::fromUtf16(LesChoix[i].libelle).arg(comptes[i]));
    }
    dessin_->montrer(*historique_);
    table_->vue->setCurrentIndex({});
    table_->vue->scrollToTop();
    montrerVue();
    feuillets_->setCurrentIndex(1);
    return true;
}

void PageHistoriques::montrerVue() {
    affichage_->button(static_cast<int>(vue_))->setChecked(true);
    table_->montrer(*historique_, vue_);
}

// --------------------------------------------------------------------------------------- commands

void PageHistoriques::surActivation(const QModelIndex& index) {
    const auto& cible = table_->vue->modele().cellule(index.siblingAtColumn(0)).cible;
    const int numero = std::get<NumeroTirage>(*cible).numero;
    const Base& base = contexte.atelier.base;
    // The history may be older than the base.
    const Tirage& tirage =
        historique_->tirages[static_cast<std::size_t>(numero - historique_->inf)];
    if (numero > base.NbTirages || base.Tirages[static_cast<std::size_t>(numero - 1)] != tirage) {
        contexte.services.messages->MessageInfo(
            u"Ce tirage n'est plus à cette place dans la base..."_s, u"Message"_s,
            u"La base des tirages a changé depuis l'ouverture de cet historique : ouvrez-le de "
            u"nouveau depuis le tableau des statistiques."_s);
        return;
    }
    const auto* element = std::get_if<Element>(&historique_->sujet);
    contexte.relais.aller(
        VersTirage{numero, element != nullptr ? std::optional(*element) : std::nullopt});
}

void PageHistoriques::sauver() {
    if (contexte.refuserSiOccupe()) return;
    sauverTableau(contexte, this,
                  tableauDe(table_->vue->modele(),
                            {TitreHistorique(*historique_), LigneChiffres(Chiffres(*historique_))}),
                  u"Sauver l'historique"_s, versQt(NomHistorique(*historique_)));
}

}  // namespace norvane::ui
