// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The menu row of the main window.

#include <array>
#include <QActionGroup>
#include <QApplication>
#include <QMenuBar>
#include <QTabWidget>

#include "common/Theme.h"
#include "dialogs/AboutBox.h"
#include "dialogs/MiseAJourTirages.h"
#include "shell/Aide.h"
#include "shell/VaroMain.h"
#include "widgets/EtiquetteMode.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

struct ChoixApparence {
    const char16_t* cle;
    const char16_t* texte;
};
constexpr std::array<ChoixApparence, 3> Apparences = {{
    {u"auto", u"Comme le &bureau"},
    {u"claire", u"&Claire"},
    {u"sombre", u"&Sombre"},
}};

}  // namespace

void TVaroMainForm::creerMenus() {
    auto* fichier = menuBar()->addMenu(u"&Fichier"_s);
    auto* archive = fichier->addAction(u"&Importer une archive de tirages..."_s, miseAJour_,
                                       &MiseAJourTirages::choisirFichier);
    archive->setObjectName(u"ActionImporter"_s);
    archive->setStatusTip(u"Ajouter à la base les tirages d'une archive officielle (zip ou csv)"_s);
    fichier->addSeparator();
    auto* quitter = fichier->addAction(u"&Quitter"_s, this, &TVaroMainForm::ExitClick);
    quitter->setObjectName(u"Exit"_s);
    quitter->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    quitter->setStatusTip(u"Quitter l'application"_s);

    auto* affichage = menuBar()->addMenu(u"Affic&hage"_s);
    for (int i = 0; i < onglets_->count(); ++i) {
        auto* page = affichage->addAction(onglets_->tabText(i), this,
                                          [this, i] { onglets_->setCurrentIndex(i); });
        page->setShortcut(QKeySequence(static_cast<int>(Qt::CTRL) | (Qt::Key_0 + (i + 1) % 10)));
    }
    affichage->addSeparator();
    auto* apparence = affichage->addMenu(u"&Apparence"_s);
    auto* groupe = new QActionGroup(this);
    for (const auto& choix : Apparences) {
        const QString cle = QString::fromUtf16(choix.cle);
        auto* action = apparence->addAction(QString::fromUtf16(choix.texte), this,
                                            [this, cle] { changerApparence(cle); });
        action->setObjectName(u"Apparence_"_s + cle);
        action->setCheckable(true);
        action->setChecked(cle.toStdString() == contexte_.atelier.configuration.reglages.Apparence);
        groupe->addAction(action);
    }

    auto* aide = menuBar()->addMenu(u"&?"_s);
    auto* ouvrir = aide->addAction(u"&Aide de Norvane"_s, this, [this] { aide_->ouvrir(); });
    ouvrir->setObjectName(u"ActionAide"_s);
    ouvrir->setShortcut(QKeySequence(Qt::Key_F1));
    aide->addAction(u"À &propos de Norvane..."_s, this, [this] { aPropos_->show(); });

    mode_ = new EtiquetteMode(menuBar());
    menuBar()->setCornerWidget(mode_, Qt::TopRightCorner);
}

void TVaroMainForm::changerApparence(const QString& cle) {
    auto& configuration = contexte_.atelier.configuration;
    configuration.reglages.Apparence = cle.toStdString();
    appliquerTheme(*qApp, apparenceDe(configuration.reglages.Apparence));
    const auto ecrit =
        configuration.ecrire("CONFIGURATION", "Apparence", configuration.reglages.Apparence);
    relais_.annoncer({.reglages = true});
    if (!ecrit) {
        contexte_.services.messages->MessageErreur(u"L'apparence choisie ne sera pas gardée."_s,
                                                   u"Erreur"_s, versQt(ecrit.erreur()));
    }
}

}  // namespace norvane::ui
