// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/VaroMain.h"

#include <algorithm>
#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include "common/Mode.h"
#include "common/Theme.h"
#include "dialogs/AboutBox.h"
#include "dialogs/MiseAJourTirages.h"
#include "pages/Pages.h"
#include "shell/Aide.h"
#include "stats/TableauStats.h"
#include "widgets/EtiquetteMode.h"
#include "widgets/LigneEtat.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

TVaroMainForm::TVaroMainForm(Atelier& atelier, Services& services, Instance* instance)
    : relais_(this),
      travaux_(atelier.activite, this),
      contexte_{atelier, services, travaux_, relais_},
      instance_(instance),
      fermeture_(contexte_) {
    setObjectName(u"TVaroMainForm"_s);
    setWindowTitle(u"Norvane"_s);
    setWindowIcon(QIcon(u":/norvane/norvane.svg"_s));
    const Echelles echelles = Echelles::de(screen()->size());
    contexte_.Echelle = echelles.Echelle;
    contexte_.EchelleLargeur = echelles.EchelleLargeur;

    aide_ = new Aide(contexte_, this);
    aPropos_ = new TAboutBox(contexte_, this);
    miseAJour_ = new MiseAJourTirages(contexte_, this);
    setAcceptDrops(true);
    creerPages();
    creerMenus();
    creerEtat();
    relier();
    if (atelier.base.NbTirages >= 2) montrerIntervalle();
}

TVaroMainForm::~TVaroMainForm() = default;

void TVaroMainForm::creerPages() {
    onglets_ = new QTabWidget(this);
    onglets_->setObjectName(u"PageControl1"_s);
    onglets_->setDocumentMode(true);
    onglets_->tabBar()->setExpanding(false);
    onglets_->tabBar()->setAccessibleName(u"Pages de Norvane"_s);
    pages_ = ui::creerPages(contexte_, onglets_);
    for (Page* page : pages_) onglets_->addTab(page, page->titre);
    connect(onglets_, &QTabWidget::currentChanged, this, &TVaroMainForm::changerPage);
    // A screen smaller than the pages need shows them through a window that scrolls.
    auto* cadre = new QScrollArea(this);
    cadre->setFrameShape(QFrame::NoFrame);
    cadre->setWidgetResizable(true);
    cadre->setFocusPolicy(Qt::NoFocus);
    cadre->setWidget(onglets_);
    setCentralWidget(cadre);
    setMinimumSize(640, 480);
}

void TVaroMainForm::relier() {
    connect(&relais_, &Relais::change, this, &TVaroMainForm::diffuser);
    connect(&relais_, &Relais::demande, this, &TVaroMainForm::ouvrir);
    connect(&relais_, &Relais::texteEtat, this, &TVaroMainForm::dire);
    connect(&travaux_, &Travaux::texteEtat, this, &TVaroMainForm::dire);
    connect(&travaux_, &Travaux::repos, this, &TVaroMainForm::reprendreRepos);
    connect(aide_, &Aide::gardeLevee, this, [this] { pageCourante()->surDepart(); });
    fermeture_.arreterTraitement = [this] {
        travaux_.arreter();
        for (Page* page : pages_) page->arreter();
    };
}

void TVaroMainForm::creerEtat() {
    auto* barre = statusBar();
    barre->setObjectName(u"StatusBar1"_s);
    texteEtat_ = new LigneEtat(barre);
    texteEtat_->setObjectName(u"PanneauTexte"_s);
    texteEtat_->setContentsMargins(Unite, 0, Unite, 0);
    progression_ = new QProgressBar(barre);
    progression_->setObjectName(u"PanneauProgression"_s);
    progression_->setMaximumWidth(contexte_.px(140));
    progression_->setMaximumHeight(barre->fontMetrics().height());
    progression_->setTextVisible(false);
    progression_->hide();
    miseAJour_->poserJauge(progression_);
    intervalle_ = new QLabel(barre);
    intervalle_->setObjectName(u"PanneauIntervalle"_s);
    intervalle_->setContentsMargins(Unite, 0, Unite, 0);
    barre->addWidget(texteEtat_, 1);
    barre->addPermanentWidget(progression_);
    barre->addPermanentWidget(intervalle_);
    // Whatever comes and goes in it, the page above stays as it is.
    barre->setFixedHeight(barre->fontMetrics().height() + 2 * Unite);
}

void TVaroMainForm::montrer() {
    if (contexte_.atelier.base.NbTirages < 2) {
        // Nothing can be shown of such a base: the program ends without a word.
        QTimer::singleShot(0, this, [] { QCoreApplication::quit(); });
        return;
    }
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
    premierAffichage();
    if (!contexte_.atelier.avertissements.empty()) {
        QTimer::singleShot(0, this, &TVaroMainForm::direAvertissements);
    }
}

void TVaroMainForm::premierAffichage() {
    for (Page* page : pages_) page->premierAffichage();
    changerMode();
    montrerIntervalle();
}

void TVaroMainForm::montrerIntervalle() {
    const Base& base = contexte_.atelier.base;
    if (base.NbTirages < 1) return;
    intervalle_->setText(
        versQt(LibelleIntervalleCourt(base, 1, base.NbTirages)).replace(u'\n', u' '));
    intervalle_->setToolTip(versQt(LibelleIntervalle(base, 1, base.NbTirages)));
}

Page* TVaroMainForm::pageCourante() const {
    return pages_[static_cast<std::size_t>(onglets_->currentIndex())];
}

void TVaroMainForm::changerPage(int place) {
    pages_[static_cast<std::size_t>(pagePrecedente_)]->surDepart();
    pagePrecedente_ = place;
}

void TVaroMainForm::changerMode() {
    mode_->montrer(libelleMode(modeEnCours(contexte_.atelier)));
}

void TVaroMainForm::diffuser(const Changement& changement) {
    for (Page* page : pages_) page->surChange(changement);
    if (changement.base) montrerIntervalle();
    if (changement.mode) changerMode();
}

void TVaroMainForm::ouvrir(const Destination& destination) {
    for (Page* page : pages_) {
        if (!page->ouvrir(destination)) continue;
        onglets_->setCurrentWidget(page);
        return;
    }
}

void TVaroMainForm::reprendreRepos() {
    if (contexte_.atelier.activite.QuitterEnAttente) close();
}

void TVaroMainForm::RecalculBase() {
    const auto recalcule = contexte_.atelier.recalculer();
    relais_.annoncer({.base = true, .intervalle = true, .listes = true});
    if (!recalcule) {
        contexte_.services.messages->MessageAvertissement(versQt(recalcule.erreur()),
                                                          u"Avertissement"_s);
    }
}

void TVaroMainForm::dire(const QString& texte) {
    texteTravail_ = !texte.isEmpty();
    ecrire(texte);
}

void TVaroMainForm::ecrire(const QString& texte) {
    texteEtat_->setText(texte);
    texteEtat_->setAccessibleName(texte);
}

void TVaroMainForm::direAvertissements() {
    for (const std::string& phrase : contexte_.atelier.avertissements) {
        contexte_.services.messages->MessageAvertissement(versQt(phrase), u"Avertissement"_s);
    }
    contexte_.atelier.avertissements.clear();
}

void TVaroMainForm::fermerSansQuestion() {
    fermeture_.sansQuestion = true;
    close();
}

void TVaroMainForm::dragEnterEvent(QDragEnterEvent* evenement) {
    const QList<QUrl> urls = evenement->mimeData()->urls();
    if (urls.size() == 1 && urls[0].isLocalFile() &&
        MiseAJourTirages::accepte(urls[0].toLocalFile()))
        evenement->acceptProposedAction();
}

void TVaroMainForm::dropEvent(QDropEvent* evenement) {
    evenement->acceptProposedAction();
    // Whoever let it go is not kept waiting by a message.
    QTimer::singleShot(0, miseAJour_, [this, fichier = evenement->mimeData()->urls()[0]] {
        miseAJour_->importer(fichier.toLocalFile());
    });
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
        if (!(contexte_.atelier.activite.occupe() && texteTravail_)) {
            ecrire(static_cast<QStatusTipEvent*>(evenement)->tip());
        }
        return true;
    }
    const bool traite = QMainWindow::event(evenement);
    // The first children come before the flag has a value: the kind of event is looked at first.
    if (evenement->type() == QEvent::Paint && !peinte_) {
        peinte_ = true;
        // Back in the loop, the whole window has been painted and flushed.
        QTimer::singleShot(0, this, &TVaroMainForm::premierePeinture);
    }
    return traite;
}

}  // namespace norvane::ui
