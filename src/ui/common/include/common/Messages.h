// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Questions and messages: everything the program asks or tells goes through these helpers.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace norvane::ui {

enum class IconeMessage { Information, Question, Erreur, Avertissement };

// Codes of the pressed button.
inline constexpr int CodeFerme = 2;      ///< the dialog was closed by its close box or Escape
inline constexpr int CodeBouton1 = 100;  ///< first button (OK, "Oui")
inline constexpr int CodeBouton2 = 101;  ///< second button ("Annuler", "Non")
inline constexpr int CodeBouton3 = 102;  ///< third button

/// The button that Enter presses.
enum class BoutonPropose { Oui, Non };

/// One dialog: an instruction line, a title, a detail text (may be empty), one to three buttons.
struct DemandeMessage {
    IconeMessage icone;
    QString instruction;
    QString titre;
    QString detail;
    QStringList boutons;
    int defaut = 0;  ///< index of the default button
};

/// The helpers. Each gives back the code of the pressed button.
class Messages {
 public:
    virtual ~Messages() = default;

    int MessageInfo(const QString& instruction, const QString& titre, const QString& detail = {});
    int MessageAnnuler(const QString& instruction, const QString& titre,
                       const QString& detail = {});
    int QuestionOuiNon(const QString& instruction, const QString& titre,
                       const QString& detail = {});
    int QuestionOuiNonAnnuler(const QString& instruction, const QString& titre,
                              const QString& detail = {});
    int QuestionQuitter(const QString& instruction, const QString& titre,
                        const QString& detail = {});
    int MessageErreur(const QString& instruction, const QString& titre, const QString& detail = {});
    int MessageAvertissement(const QString& instruction, const QString& titre,
                             const QString& detail = {});
    int AvertissementAnnuler(const QString& instruction, const QString& titre,
                             const QString& detail = {});
    int AvertissementOuiNon(const QString& instruction, const QString& titre,
                            const QString& detail = {}, BoutonPropose propose = BoutonPropose::Oui);

 protected:
    /// Shows the dialog and waits for its answer, one of the codes above.
    virtual int poser(const DemandeMessage& demande) = 0;
};

/// The helpers on real dialogs, modal to the active window.
class MessagesEcran final : public Messages {
 protected:
    int poser(const DemandeMessage& demande) override;
};

}  // namespace norvane::ui
