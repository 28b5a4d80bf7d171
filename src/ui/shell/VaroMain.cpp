// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/VaroMain.h"

#include <algorithm>
#include <array>
#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <random>

#include "dialogs/AboutBox.h"
#include "pages/PageAVenir.h"
#include "pages/PageCombinaisons.h"
#include "pages/PageResultats.h"
#include "pages/PageStats.h"
#include "shell/Aide.h"
#include "shell/Theme.h"
#include "widgets/EtiquetteMode.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// A page to come: its name, its caption and the line that says what it will hold.
struct Promesse {
    const char16_t* nom;
    const char16_t* titre;
    const char16_t* texte;
};

constexpr Promesse CombinaisonsChances{
    u"Varo9", u"Combinaisons N + C",
    u"Cette page donnera les combinaisons de numéros et de chances, leurs sorties par catégorie de "
    u"gain et leurs filtres."};
constexpr Promesse Analyses{
    u"Varo4", u"Analyses N",
    u"Cette page donnera le rapport d'analyses des tirages d'un intervalle, "
    u"à parcourir, à imprimer et à enregistrer."};
constexpr Promesse Graphes{u"Varo5", u"Graphes",
                           u"Cette page donnera les graphes des sorties, écarts et suites des "
                           u"numéros et des chances."};
constexpr Promesse Historiques{
    u"Varo6", u"Historiques",
    u"Double cliquez sur le libellé des numéros, chances ou rangs, dans les tableaux des onglets "
    u"Numéros, Chances et Combinaisons pour afficher l'Historique associé..."};
constexpr Promesse Impression{u"Varo7", u"Impression sur bulletins",
                              u"Cette page imprimera vos grilles sur les bulletins de jeu."};
constexpr Promesse Systemes{u"Varo10", u"Systèmes réducteurs",
                            u"Cette page réduira une sélection de numéros à un système dont la "
                            u"garantie est prouvée."};

QString texte(const char16_t* t) {
    return QString::fromUtf16(t);
}

}  // namespace

TVaroMainForm::TVaroMainForm(Atelier& atelier, Services& services, Instance* instance)
    : contexte_{atelier, services, modes}, instance_(instance), fermeture_(contexte_) {
    setObjectName(u"TVaroMainForm"_s);
    setWindowTitle(QApplication::applicationDisplayName());
    setWindowIcon(QIcon(u":/norvane/norvane.svg"_s));
    const Echelles echelles = Echelles::de(screen()->size());
    contexte_.Echelle = echelles.Echelle;
    contexte_.EchelleLargeur = echelles.EchelleLargeur;

    aide_ = new Aide(contexte_, this);
    aPropos_ = new TAboutBox(contexte_, this);
    creerPages();
    creerMenus();
    creerEtat();
    connect(aide_, &Aide::gardeLevee, this, [this] {
        if (auto* page = qobject_cast<Page*>(pages_->currentWidget())) page->surDepart();
    });
    connect(this, &TVaroMainForm::arretDemande, combinaisons_,
            &PageCombinaisons::arreterTraitement);
    fermeture_.arreterTraitement = [this] { Q_EMIT arretDemande(); };
    fermeture_.rangerGrilleEnMain = [this] { resultats_->rangerGrilleEnMain(); };

    if (atelier.base.NbTirages >= 2) {
        montrerIntervalle();
        numeros_->remplirDemarrage();
        chances_->remplirDemarrage();
    }
}

TVaroMainForm::~TVaroMainForm() = default;

void TVaroMainForm::creerPages() {
    pages_ = new QTabWidget(this);
    pages_->setObjectName(u"PageControl1"_s);
    pages_->setDocumentMode(true);
    pages_->tabBar()->setExpanding(false);
    pages_->tabBar()->setAccessibleName(u"Pages de Norvane"_s);
    const auto aVenir = [this](const Promesse& p) {
        return new PageAVenir(contexte_, texte(p.nom), texte(p.titre), texte(p.texte), pages_);
    };
    resultats_ = new PageResultats(contexte_, pages_);
    numeros_ = new PageStats(contexte_, GenreStats::Numeros, pages_);
    chances_ = new PageStats(contexte_, GenreStats::Chances, pages_);
    combinaisons_ = new PageCombinaisons(contexte_, pages_);
    historiques_ = aVenir(Historiques);
    const std::array<std::pair<Page*, QString>, 10> ordre = {{
        {resultats_, u"Résultats"_s},
        {numeros_, u"Numéros"_s},
        {chances_, u"Chances"_s},
        {combinaisons_, u"Combinaisons N"_s},
        {aVenir(CombinaisonsChances), texte(CombinaisonsChances.titre)},
        {aVenir(Analyses), texte(Analyses.titre)},
        {aVenir(Graphes), texte(Graphes.titre)},
        {historiques_, texte(Historiques.titre)},
        {aVenir(Impression), texte(Impression.titre)},
        {aVenir(Systemes), texte(Systemes.titre)},
    }};
    for (const auto& [page, titre] : ordre) {
        pages_->addTab(page, titre);
        relier(page);
    }
    connect(pages_, &QTabWidget::currentChanged, this, &TVaroMainForm::changerPage);
    connect(this, &TVaroMainForm::arretDemande, resultats_, &PageResultats::arreterBilan);
    // A screen smaller than the pages need shows them through a window that scrolls.
    auto* cadre = new QScrollArea(this);
    cadre->setFrameShape(QFrame::NoFrame);
    cadre->setWidgetResizable(true);
    cadre->setFocusPolicy(Qt::NoFocus);
    cadre->setWidget(pages_);
    setCentralWidget(cadre);
    setMinimumSize(640, 480);
}

void TVaroMainForm::relier(Page* page) {
    connect(page, &Page::tirageDemande, this, &TVaroMainForm::montrerTirage);
    connect(page, &Page::historiqueDemande, this, &TVaroMainForm::ouvrirHistorique);
    connect(page, &Page::modeChange, this, &TVaroMainForm::changerMode);
    connect(page, &Page::traitementTermine, this, &TVaroMainForm::reprendreRepos);
    connect(page, &Page::texteEtat, this, [this](const QString& t) {
        texteTravail_ = !t.isEmpty();
        dire(t);
    });
}

void TVaroMainForm::creerEtat() {
    auto* barre = statusBar();
    barre->setObjectName(u"StatusBar1"_s);
    texteEtat_ = new QLabel(barre);
    texteEtat_->setObjectName(u"PanneauTexte"_s);
    texteEtat_->setContentsMargins(Unite, 0, Unite, 0);
    // A long hint must not force the window wider.
    texteEtat_->setMinimumWidth(1);
    texteEtat_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    progression_ = new QProgressBar(barre);
    progression_->setObjectName(u"PanneauProgression"_s);
    progression_->setMaximumWidth(contexte_.px(140));
    progression_->setTextVisible(false);
    progression_->hide();
    intervalle_ = new QLabel(barre);
    intervalle_->setObjectName(u"PanneauIntervalle"_s);
    intervalle_->setContentsMargins(Unite, 0, Unite, 0);
    barre->addWidget(texteEtat_, 1);
    barre->addPermanentWidget(progression_);
    barre->addPermanentWidget(intervalle_);
}

void TVaroMainForm::montrer() {
    const Ouverture ouverture = ouvertureFenetre(
        versQt(contexte_.atelier.configuration.reglages.Fenetre), screen()->availableGeometry());
    setGeometry(ouverture.place);
    if (ouverture.maximisee || Echelles{contexte_.Echelle, contexte_.EchelleLargeur}.maximisee()) {
        showMaximized();
    } else {
        show();
    }
}

void TVaroMainForm::showEvent(QShowEvent* evenement) {
    QMainWindow::showEvent(evenement);
    if (montree_) return;
    montree_ = true;
    if (contexte_.atelier.base.NbTirages < 2) {
        // Nothing can be shown of such a base: the program ends without a word.
        QTimer::singleShot(0, this, [this] { QCoreApplication::quit(); });
        return;
    }
    premierAffichage();
    if (!contexte_.atelier.avertissements.empty()) {
        QTimer::singleShot(0, this, &TVaroMainForm::direAvertissements);
    }
}

void TVaroMainForm::premierAffichage() {
    resultats_->premierAffichage();
    combinaisons_->premierAffichage();
    changerMode();
    montrerIntervalle();
    exempleHistorique();
}

/// A start with something to look at: the history of a number that came out, taken at random.
void TVaroMainForm::exempleHistorique() {
    const Occurrences& occ = contexte_.atelier.occurrences;
    std::vector<int> sortis;
    for (int k = 0; k < NumeroMax; ++k) {
        if (occ.SortiesNumeros[static_cast<std::size_t>(k)] > 0) sortis.push_back(k + 1);
    }
    if (sortis.empty()) return;
    std::mt19937 tirage(contexte_.services.hasard->graine());
    const int numero =
        sortis[std::uniform_int_distribution<std::size_t>(0, sortis.size() - 1)(tirage)];
    historiques_->montrerDetail(
        u"Exemple sur tout l'intervalle des tirages pour le numéro "
        u"aléatoire suivant: %1"_s.arg(numero));
}

void TVaroMainForm::montrerIntervalle() {
    const Base& base = contexte_.atelier.base;
    if (base.NbTirages < 1) return;
    intervalle_->setText(
        versQt(LibelleIntervalleCourt(base, 1, base.NbTirages)).replace(u'\n', u' '));
    intervalle_->setToolTip(versQt(LibelleIntervalle(base, 1, base.NbTirages)));
}

void TVaroMainForm::changerPage(int place) {
    if (auto* quittee = qobject_cast<Page*>(pages_->widget(pagePrecedente_))) quittee->surDepart();
    pagePrecedente_ = place;
}

void TVaroMainForm::changerMode() {
    mode_->montrer(libelleMode(modes));
}

void TVaroMainForm::montrerTirage(int numero, GenreStats genre, int element) {
    resultats_->quitterChoixEtConsultation();
    pages_->setCurrentWidget(resultats_);
    resultats_->montrerTirage(numero);
    if (element != AucunElement) resultats_->appuyer(genre, element);
}

void TVaroMainForm::ouvrirHistorique(GenreStats genre, int element, int inf, int sup) {
    historiques_->montrerDetail(u"Historique demandé : %1 %2, tirages %3 à %4."_s
                                    .arg(genre == GenreStats::Numeros ? u"numéro"_s : u"chance"_s)
                                    .arg(element)
                                    .arg(inf)
                                    .arg(sup));
    pages_->setCurrentWidget(historiques_);
}

void TVaroMainForm::finTraitement() {
    Atelier& atelier = contexte_.atelier;
    atelier.TraitementsEnCours = std::max(0, atelier.TraitementsEnCours - 1);
    reprendreRepos();
}

void TVaroMainForm::reprendreRepos() {
    const Atelier& atelier = contexte_.atelier;
    if (atelier.occupe()) return;
    texteTravail_ = false;
    dire({});
    if (atelier.QuitterEnAttente) close();
}

void TVaroMainForm::RecalculBase() {
    contexte_.atelier.recalculer();
    for (int i = 0; i < pages_->count(); ++i) {
        if (auto* page = qobject_cast<Page*>(pages_->widget(i))) page->surBaseChangee();
    }
    montrerIntervalle();
}

void TVaroMainForm::dire(const QString& texte) {
    texteEtat_->setText(texte);
    texteEtat_->setAccessibleName(texte);
}

void TVaroMainForm::direAvertissements() {
    for (const std::string& phrase : contexte_.atelier.avertissements) {
        contexte_.services.messages->MessageAvertissement(versQt(phrase), u"Avertissement"_s);
    }
    contexte_.atelier.avertissements.clear();
}

void TVaroMainForm::closeEvent(QCloseEvent* evenement) {
    if (!fermeture_.demander()) {
        evenement->ignore();
        return;
    }
    if (montree_) {
        // A place that cannot be kept is not worth a question.
        const QRect normale = normalGeometry();
        const Ouverture place{normale.isValid() ? normale : geometry(), isMaximized()};
        static_cast<void>(static_cast<bool>(contexte_.atelier.configuration.ecrire(
            "CONFIGURATION", "Fenetre", texteGeometrie(place).toStdString())));
    }
    evenement->accept();
    if (contexte_.atelier.Relance) {
        if (instance_ != nullptr) instance_->liberer();
        contexte_.services.lanceur->relancer(versQt(contexte_.atelier.Repertoire.string()));
    }
    QCoreApplication::quit();
}

bool TVaroMainForm::event(QEvent* evenement) {
    if (evenement->type() == QEvent::StatusTip) {
        // While work runs, its progress text keeps the panel.
        if (!(contexte_.atelier.occupe() && texteTravail_)) {
            dire(static_cast<QStatusTipEvent*>(evenement)->tip());
        }
        return true;
    }
    const bool traite = QMainWindow::event(evenement);
    if (!peinte_ && evenement->type() == QEvent::Paint) {
        peinte_ = true;
        // Back in the loop, the whole window has been painted and flushed.
        QTimer::singleShot(0, this, &TVaroMainForm::premierePeinture);
    }
    return traite;
}

}  // namespace norvane::ui
