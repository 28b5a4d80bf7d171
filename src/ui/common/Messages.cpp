// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Messages.h"

#include <algorithm>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
const QString Ok = u"OK"_s;
const QString Annuler = u"Annuler"_s;
const QString Oui = u"Oui"_s;
const QString Non = u"Non"_s;

constexpr int CaracteresMax = 64;  // of a line that reads well
constexpr int LargeurMax = 1000;   // the toolkit makes no box wider,
constexpr int MargeEcran = 480;    // nor one that leaves less of the screen
constexpr int LargeurIcone = 160;  // the picture, the margins

/// Wide enough for the title beside the buttons of its bar, and for lines of a readable length.
void elargir(QMessageBox& boite) {
    const QFontMetrics mesures = boite.fontMetrics();
    QFont gras = boite.font();
    gras.setBold(true);
    int largeur = QFontMetrics(gras).horizontalAdvance(boite.windowTitle()) + 6 * mesures.height();
    const int lignes = std::max(mesures.size(0, boite.text()).width(),
                                mesures.size(0, boite.informativeText()).width());
    largeur = std::max(largeur, std::min(lignes, CaracteresMax * mesures.averageCharWidth()));
    const int ecran = boite.screen()->availableSize().width();
    const int limite = std::min(ecran <= 1024 ? ecran : ecran - MargeEcran, LargeurMax);
    auto* texte = boite.findChild<QLabel*>(u"qt_msgbox_label"_s);
    texte->setMinimumWidth(std::min(largeur, limite - LargeurIcone));
}

}  // namespace

int Messages::MessageInfo(const QString& instruction, const QString& titre, const QString& detail) {
    return poser({IconeMessage::Information, instruction, titre, detail, {Ok}});
}

int Messages::MessageAnnuler(const QString& instruction, const QString& titre,
                             const QString& detail) {
    return poser({IconeMessage::Question, instruction, titre, detail, {Ok, Annuler}});
}

int Messages::QuestionOuiNon(const QString& instruction, const QString& titre,
                             const QString& detail) {
    return poser({IconeMessage::Question, instruction, titre, detail, {Oui, Non}});
}

int Messages::QuestionOuiNonAnnuler(const QString& instruction, const QString& titre,
                                    const QString& detail) {
    return poser({IconeMessage::Question, instruction, titre, detail, {Oui, Non, Annuler}});
}

int Messages::QuestionQuitter(const QString& instruction, const QString& titre,
                              const QString& detail) {
    return poser(
        {IconeMessage::Question,
         instruction,
         titre,
         detail,
         {u"Oui, Quitter l'application maintenant"_s, u"Non, je souhaite continuer à travailler"_s},
         1});
}

int Messages::MessageErreur(const QString& instruction, const QString& titre,
                            const QString& detail) {
    return poser({IconeMessage::Erreur, instruction, titre, detail, {Ok}});
}

int Messages::MessageAvertissement(const QString& instruction, const QString& titre,
                                   const QString& detail) {
    return poser({IconeMessage::Avertissement, instruction, titre, detail, {Ok}});
}

int Messages::AvertissementAnnuler(const QString& instruction, const QString& titre,
                                   const QString& detail) {
    return poser({IconeMessage::Avertissement, instruction, titre, detail, {Ok, Annuler}});
}

int Messages::AvertissementOuiNon(const QString& instruction, const QString& titre,
                                  const QString& detail, BoutonPropose propose) {
    return poser({IconeMessage::Avertissement,
                  instruction,
                  titre,
                  detail,
                  {Oui, Non},
                  propose == BoutonPropose::Oui ? 0 : 1});
}

int MessagesEcran::poser(const DemandeMessage& demande) {
    static constexpr QMessageBox::Icon icones[] = {QMessageBox::Information, QMessageBox::Question,
                                                   QMessageBox::Critical, QMessageBox::Warning};
    QMessageBox boite(QApplication::activeWindow());
    boite.setObjectName(u"BoiteMessage"_s);
    boite.setWindowTitle(demande.titre);
    boite.setIcon(icones[static_cast<int>(demande.icone)]);
    boite.setTextFormat(Qt::PlainText);
    boite.setText(demande.instruction);
    boite.setInformativeText(demande.detail);
    elargir(boite);
    QList<QAbstractButton*> boutons;
    for (const QString& texte : demande.boutons) {
        auto* bouton = boite.addButton(texte, QMessageBox::ActionRole);
        boutons.append(bouton);
    }
    boite.setDefaultButton(qobject_cast<QPushButton*>(boutons.at(demande.defaut)));
    // Without a button of the reject role the close box and Escape would be dead.
    auto* fermeture = boite.addButton(QMessageBox::Cancel);
    fermeture->hide();
    boite.setEscapeButton(fermeture);
    boite.exec();
    const auto place = boutons.indexOf(boite.clickedButton());
    return place < 0 ? CodeFerme : CodeBouton1 + static_cast<int>(place);
}

}  // namespace norvane::ui
