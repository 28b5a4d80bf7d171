// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistiques/PageStats.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

#include "common/Theme.h"
#include "widgets/ColonnesStats.h"
#include "widgets/PaireIntervalle.h"
#include "widgets/SortieTableau.h"
#include "widgets/SpinTirage.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int Simple = 0;  // items of the ratio group
constexpr int Graphique = 1;

constexpr auto Pos = static_cast<int>(ColonneStats::Pos);
constexpr auto Num = static_cast<int>(ColonneStats::Num);
constexpr auto Ratio = static_cast<int>(ColonneStats::Ratio);

constexpr double LargeurReglages = 300;  // design units, at most

const QString IndiceIntervalle = u"Choisissez le nombre de tirages pour les statistiques "_s;

}  // namespace

/// What differs between the two pages.
struct PageStats::Textes {
    QString page, table, inf, sup, libelle, ratio, sauver, imprimer;  // object names
    QString objet;                                                    // "les numéros"
    QString indiceElement;                                            // hint of a number cell
    QString nonSorti;
    QString present, absent;  // key to the colours
};

const PageStats::Textes& PageStats::textesDe(GenreStats genre) {
    static const Textes numeros{
        u"Varo2"_s,
        u"AdvStringGrid1"_s,
        u"RxSpinEditStats"_s,
        u"RxSpinEditStats2"_s,
        u"RxLabelStats1"_s,
        u"RatioNumeros"_s,
        u"BitBtnWithColor7"_s,
        u"BitBtnWithColor6"_s,
        u"les numéros"_s,
        u"Double cliquez sur ce numéro pour afficher l'historique correspondant..."_s,
        u"Numéro non sorti sur la période..."_s,
        u"Numéro sorti au tirage supérieur"_s,
        u"Numéro absent de ce tirage"_s};
    static const Textes chances{
        u"Varo8"_s,
        u"AdvStringGrid4"_s,
        u"RxSpinEditStatsE"_s,
        u"RxSpinEditStats2E"_s,
        u"RxLabelStats1E"_s,
        u"RatioEtoiles"_s,
        u"BitBtnWithColor17"_s,
        u"BitBtnWithColor19"_s,
        u"les chances"_s,
        u"Double cliquez sur cette chance pour afficher l'historique correspondant..."_s,
        u"Chance non sortie sur la période..."_s,
        u"Chance sortie au tirage supérieur"_s,
        u"Chance absente de ce tirage"_s};
    return genre == GenreStats::Numeros ? numeros : chances;
}

// ----------------------------------------------------------------------------------- construction

PageStats::PageStats(Contexte& ctx, GenreStats genre, QWidget* parent)
    : Page(ctx, textesDe(genre).page, genre == GenreStats::Numeros ? u"Numéros"_s : u"Chances"_s,
           parent),
      genre_(genre),
      textes_(textesDe(genre)),
      bornes_(genre == GenreStats::Numeros ? ctx.atelier.StatsNumeros : ctx.atelier.StatsChances) {
    table_ = new VueTableau(colonnesStats(genre), 2, ctx.Echelle, this);
    table_->setObjectName(textes_.table);
    table_->setAccessibleName(u"Statistiques sur "_s + textes_.objet);
    table_->modele().poserDegrades(degradesStats(genre));
    table_->poserBulle([this](const QModelIndex& i) { return bulleRatio(*table_, i); });
    connect(table_, &VueTableau::celluleActivee, this, &PageStats::surActivation);

    auto* corps = new QHBoxLayout(this);
    corps->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    corps->setSpacing(3 * Unite);
    auto* colonne = new QVBoxLayout;
    colonne->addWidget(table_, 1);
    // A table shorter than the page stays at its top.
    colonne->addStretch(0);
    corps->addLayout(colonne, 0);
    auto* reglages = new QWidget(this);
    reglages->setLayout(construireReglages());
    reglages->setMaximumWidth(ctx.px(LargeurReglages));
    corps->addWidget(reglages, 1);
    // Takes what is left only when the settings have all they want.
    corps->addSpacerItem(new QSpacerItem(0, 0, QSizePolicy::Expanding));
    poserOrdreTabulation();
    remplirDemarrage();
}

QLayout* PageStats::construireReglages() {
    auto* cadre = new QGroupBox(u"Intervalle"_s, this);
    intervalle_ = new PaireIntervalle(textes_.inf, textes_.sup, IndiceIntervalle, cadre);
    intervalle_->poserAttenteSaisie(genre_ == GenreStats::Chances);
    libelle_ = new QLabel(cadre);
    libelle_->setObjectName(textes_.libelle);
    libelle_->setTextFormat(Qt::PlainText);
    libelle_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* dedans = new QVBoxLayout(cadre);
    dedans->setSpacing(2 * Unite);
    dedans->addWidget(intervalle_);
    dedans->addWidget(libelle_);
    connect(intervalle_, &PaireIntervalle::intervalleChange, this, &PageStats::changerBornes);

    auto* reglages = new QVBoxLayout;
    reglages->setContentsMargins(0, 0, 0, 0);
    reglages->setSpacing(2 * Unite);
    reglages->addWidget(cadre);
    reglages->addWidget(construireRatio());
    reglages->addWidget(construireLegende());
    reglages->addLayout(construireBoutons());
    reglages->addStretch(1);
    return reglages;
}

QGroupBox* PageStats::construireRatio() {
    auto* groupe = new QGroupBox(u"&Ratio :"_s, this);
    groupe->setObjectName(textes_.ratio);
    auto* rangee = new QHBoxLayout(groupe);
    rangee->setSpacing(3 * Unite);
    ratio_ = new QButtonGroup(this);
    int item = Simple;
    for (const QString& texte : {u"Simple"_s, u"Graphique"_s}) {
        auto* choix = new QRadioButton(texte, groupe);
        choix->setObjectName(textes_.ratio + texte);
        ratio_->addButton(choix, item++);
        rangee->addWidget(choix);
    }
    rangee->addStretch(1);
    ratio_->button(Graphique)->setChecked(true);
    // One stop of the tab key, at the choice made; the toolkit sees to it from the first focus on.
    ratio_->button(Simple)->setFocusPolicy(Qt::ClickFocus);
    connect(ratio_, &QButtonGroup::idClicked, this, [this](int choisi) {
        graphique_ = choisi == Graphique;
        remplirBornes();
    });
    return groupe;
}

QLayout* PageStats::construireBoutons() {
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(2 * Unite);
    const auto ajouter = [&](const QString& texte, const QString& nom, const QString& indice) {
        auto* bouton = new QPushButton(texte, this);
        bouton->setObjectName(nom);
        poserIndice(bouton, indice + textes_.objet);
        bouton->setAccessibleName(indice + textes_.objet);
        rangee->addWidget(bouton);
        return bouton;
    };
    boutonSauver_ = ajouter(u"&SAUVER"_s, textes_.sauver, u"Sauver les statistiques sur "_s);
    boutonImprimer_ =
        ajouter(u"&IMPRIMER"_s, textes_.imprimer, u"Imprimer les statistiques sur "_s);
    connect(boutonSauver_, &QPushButton::clicked, this, &PageStats::sauver);
    connect(boutonImprimer_, &QPushButton::clicked, this, &PageStats::imprimer);
    return rangee;
}

QGroupBox* PageStats::construireLegende() {
    auto* groupe = new QGroupBox(u"Légende"_s, this);
    auto* grille = new QGridLayout(groupe);
    grille->setHorizontalSpacing(2 * Unite);
    grille->setVerticalSpacing(Unite);
    grille->setColumnStretch(1, 1);
    const auto ajouter = [&](QLabel* signe, const QString& sens) {
        const int rang = grille->rowCount();
        grille->addWidget(signe, rang, 0, Qt::AlignCenter);
        grille->addWidget(new QLabel(sens, groupe), rang, 1);
    };
    const std::vector<DegradeCellule> degrades = degradesStats(genre_);
    for (const bool present : {true, false}) {
        const DegradeCellule& d = degrades[present ? 1 : 0];
        const int cote = fontMetrics().height();
        QPixmap pastille(cote * 3 / 2, cote);
        QPainter p(&pastille);
        QLinearGradient pente(0, 0, 0, cote);
        pente.setColorAt(0, d.haut);
        pente.setColorAt(1, d.bas);
        p.fillRect(pastille.rect(), pente);
        p.end();
        auto* signe = new QLabel(groupe);
        signe->setPixmap(pastille);
        ajouter(signe, present ? textes_.present : textes_.absent);
    }
    for (const auto& [sigle, sens] :
         {std::pair{u"NbS"_s, u"Nombre de sorties"_s},
          std::pair{u"E"_s, u"Écart depuis la dernière sortie"_s},
          std::pair{u"EM"_s, u"Écart moyen"_s}, std::pair{u"S"_s, u"Suite en cours"_s},
          std::pair{u"Max"_s, u"Valeur (nombre de fois, tirage)"_s}}) {
        auto* signe = new QLabel(sigle, groupe);
        QFont gras = signe->font();
        gras.setBold(true);
        signe->setFont(gras);
        ajouter(signe, sens);
    }
    return groupe;
}

void PageStats::poserOrdreTabulation() {
    QWidget* precedent = table_;
    QList<QWidget*> suite = intervalle_->controles();
    suite << ratio_->button(Simple) << ratio_->button(Graphique) << boutonSauver_
          << boutonImprimer_;
    for (QWidget* suivant : suite) {
        setTabOrder(precedent, suivant);
        precedent = suivant;
    }
}

// ----------------------------------------------------------------------------------------- filling

void PageStats::reposerBornes() {
    const Base& base = contexte.atelier.base;
    const int n = base.NbTirages;
    bornes_ = {1, n};
    intervalle_->poser(n, 1, n);
    intervalle_->poserAttenteSaisie(genre_ == GenreStats::Chances && !base.AnciensTirages);
    intervalle_->setEnabled(n >= 2);
    boutonSauver_->setEnabled(n >= 2);
    boutonImprimer_->setEnabled(n >= 2);
    if (n >= 2) {
        libelle_->setText(versQt(LibelleIntervalle(base, 1, n)));
        return;
    }
    libelle_->clear();
    table_->remplir({});
}

void PageStats::changerBornes(int inf, int sup) {
    const bool autres = bornes_ != IntervalleStats{inf, sup};
    bornes_ = {inf, sup};
    remplirBornes();
    if (autres) contexte.relais.annoncer({.intervalle = true});
}

void PageStats::remplirDemarrage() {
    reposerBornes();
    if (const int n = contexte.atelier.base.NbTirages; n >= 2) remplir(n - 1, 1);
}

void PageStats::surChange(const Changement& changement) {
    if (!changement.base) return;
    reposerBornes();
    remplirBornes();
}

void PageStats::surDepart() {
    table_->cacherBulle();
}

void PageStats::remplirBornes() {
    const Base& base = contexte.atelier.base;
    if (base.NbTirages < 2) return;
    libelle_->setText(versQt(LibelleIntervalle(base, bornes_.inf, bornes_.sup)));
    remplir(bornes_.sup - 1, bornes_.inf - 1);
}

void PageStats::remplir(int dernier, int premier) {
    if (genre_ == GenreStats::Numeros) {
        RemplirStatsNumeros(contexte.atelier.occurrences, dernier, premier);
    } else {
        RemplirStatsChances(contexte.atelier.occurrences, dernier, premier);
    }
}

void PageStats::RemplirStatsNumeros(const Occurrences& occ, int dernier, int premier) {
    poserLignes(RemplirStats(GenreStats::Numeros, contexte.atelier.base, occ, premier, dernier));
}

void PageStats::RemplirStatsChances(const Occurrences& occ, int dernier, int premier) {
    poserLignes(RemplirStats(GenreStats::Chances, contexte.atelier.base, occ, premier, dernier));
}

void PageStats::poserLignes(const std::vector<LigneStats>& lignes) {
    std::vector<LigneTableau> rangees;
    rangees.reserve(lignes.size());
    for (const LigneStats& ligne : lignes) {
        LigneTableau rangee = ligneTableau(ligne.cellules);
        rangee[Pos].degrade = rangee[Num].degrade = ligne.present ? 1 : 0;
        rangee[Num].indice = textes_.indiceElement;
        rangee[Ratio] = celluleRatio(ligne.cellules[Ratio], graphique_);
        rangees.push_back(std::move(rangee));
    }
    table_->remplir(std::move(rangees));
}

// ---------------------------------------------------------------------------------------- commands

void PageStats::surActivation(const QModelIndex& index) {
    const ModeleTableau& modele = table_->modele();
    const auto& element = modele.cellule(index.siblingAtColumn(Num)).cible;
    if (!element) {  // never came out: no cell leads anywhere
        if (index.column() == Num) {
            contexte.services.messages->MessageInfo(textes_.nonSorti, u"Message"_s);
        }
        return;
    }
    const auto& cible = modele.cellule(index).cible;
    if (!cible) return;
    if (const auto* tirage = std::get_if<NumeroTirage>(&*cible)) {
        contexte.relais.aller(VersTirage{tirage->numero, std::get<Element>(*element)});
    } else {
        contexte.relais.aller(VersHistorique{std::get<Element>(*cible), bornes_.inf, bornes_.sup});
    }
}

TableauExporte PageStats::tableauExporte() const {
    std::vector<std::string> lignes{"Statistiques sur " + textes_.objet.toStdString()};
    const QString libelle =
        versQt(LibelleIntervalle(contexte.atelier.base, bornes_.inf, bornes_.sup));
    for (const QString& ligne : libelle.split(u'\n')) lignes.push_back(ligne.toStdString());
    return tableauDe(table_->modele(), std::move(lignes));
}

void PageStats::sauver() {
    if (contexte.refuserSiOccupe()) return;
    sauverTableau(contexte, this, tableauExporte(),
                  u"Sauver les statistiques sur "_s + textes_.objet,
                  u"Statistiques sur "_s + textes_.objet);
}

void PageStats::imprimer() {
    if (contexte.refuserSiOccupe()) return;
    imprimerTableau(contexte, this, tableauExporte(),
                    u"Imprimer les statistiques sur "_s + textes_.objet);
}

}  // namespace norvane::ui
