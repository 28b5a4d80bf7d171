// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The commands on tickets: each asks what has to be asked, has the state machine do it, tells a
// refusal, and tells the change. What is on show follows from that.
#pragma once

#include <filesystem>
#include <QObject>
#include <span>

#include "tickets/SaisieBillets.h"

class QWidget;

namespace norvane::ui {

struct Contexte;
class Messages;

class CommandesBillets final : public QObject {
    Q_OBJECT

 public:
    /// `page`: owner, and parent of the file dialogs.
    CommandesBillets(Contexte& ctx, QWidget* page);

    // The ticket in hand.
    void Button1Click(GenreStats genre, int valeur);
    void poserOption(bool option2nd);
    void allerA(int numero);
    void AddGrilleClick();
    void SupprGrilleClick();
    void SupprAllGrillesClick();
    void ButtonAleatoireClick(TypeGrille type, int nombre);

    // From one state to the next.
    void SelectGrillesClick();
    void NormalModeClick();
    void ConsultationClick();
    void quitterConsultation();
    void choisirListe(bool recu);
    void Button66Click(int compte);
    void validerJoker(const QString& chiffres, int mises, bool plusOuMoins);
    void reprendreJoker();
    void dater(int date);
    /// Before a verification against the draw of `dateMontree`: a receipt just dated is offered
    /// the draw of its own date. False when nothing is to be verified after all.
    bool proposerTirage(int dateMontree);

    // Files, and what comes from other pages.
    void ButtonSauverGrillesClick();
    void ChargerGrillesClick();
    void CopierversBulletins(std::span<const Grille> grilles);
    void consulterStock(int numero);

 Q_SIGNALS:
    /// The ticket in hand, or what is told of it; the lists are as they were.
    void enMainChange();
    /// Tickets were deleted; `plusRien`: all of them.
    void supprimees(bool plusRien);
    /// The rest of a receipt goes on: another step, or another number.
    void etapeJoker();
    /// What is to be typed for it takes the focus back: a box had it.
    void jokerAttendu();
    /// The date of a receipt, yyyymmdd, whose draw is to be shown.
    void dateDemandee(int date);

 private:
    Messages& messages() const;
    /// True when there is nothing to tell.
    bool accepte(const Reponse& reponse);
    bool reussi(const Resultat<Rien>& resultat);
    bool demander(const QString& question, const QString& titre);
    void annoncer();
    void suivreJoker();
    bool garderEnMain();
    void commencer();
    bool sauver();
    void ouvrirRecu(const std::filesystem::path& fichier);
    void ouvrirGrilles(const std::filesystem::path& fichier);
    QString dossierGrilles() const;

    Contexte& contexte_;
    SaisieBillets& saisie_;
    QWidget* page_;
    EtatTickets etatDit_ = EtatTickets::Normal;  ///< what the others were last told
};

}  // namespace norvane::ui
