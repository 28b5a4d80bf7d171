// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/EtatsCommandes.h"

#include <algorithm>
#include <array>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <string_view>

#include "common/Contexte.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned Consultations = EtatConsultationGrilles | EtatConsultationRecu;
constexpr unsigned Planche = EtatGrilles | EtatRecu;
constexpr unsigned Jokers = EtatJokerCompte | EtatJokerNumeros | EtatJokerDate;
constexpr unsigned Libres = EtatNormal | Consultations;
constexpr unsigned Parcours = Libres | EtatMiseAJour;  // draws can be browsed
constexpr unsigned Editions = EtatMiseAJour | EtatModification;
constexpr unsigned Tous = Libres | EtatChoix | Planche | Jokers | Editions;

enum class Acces { Actif, Inactif, LectureSeule };
constexpr auto Actif = Acces::Actif;
constexpr auto Inactif = Acces::Inactif;
constexpr auto Visible = true;
constexpr auto Cache = false;
constexpr auto SansTouche = true;

constexpr const char16_t* RetourNormal = u"Retour au mode Normal";
constexpr const char16_t* Terminer = u"&Terminer";
constexpr const char16_t* IndiceSupprimer = u"Supprimer l'enregistrement en cours";
constexpr const char16_t* IndiceSupprimerGrille = u"Supprimer la grille courante";
constexpr const char16_t* MiseAJour = u"&Mise à jour";
constexpr const char16_t* IndiceMiseAJour = u"Mise à jour des tirages (mode manuel)";
constexpr const char16_t* Filtrer = u"&Filtrer la base des tirages";
constexpr const char16_t* IndiceFiltrer = u"Filtrer la base des tirages";
constexpr const char16_t* BaseTotale = u"&Retour à la base totale des tirages";
constexpr const char16_t* IndiceBaseTotale = u"Revenir à la base totale des tirages";
constexpr const char16_t* IndiceVerifier =
    u"Calcul des gains pour toutes les grilles (voir le fichier \"Lotoveri.dat\")\n";
constexpr const char16_t* IndiceBilan =
    u"Bilan des gains pour toutes les grilles (voir le fichier \"Bilan.dat\")|Bilan effectué selon "
    u"l'intervalle des tirages choisi dans l'onglet \"Numéros\"";

}  // namespace

struct RegleCommande {
    std::string_view commande;  ///< name of the control
    unsigned etats;             ///< states it speaks of
    bool Situation::*si;        ///< and only when this holds
    bool visible;               ///< of a page of a stack: it is on top
    Acces acces;
    const char16_t* texte = nullptr;   ///< caption; null: the control keeps its own
    const char16_t* indice = nullptr;  ///< hint; the same
    bool sansTouche = false;           ///< the key of its caption belongs to another control
};

namespace {

/// Control by control; of the lines of one, the first that holds is the one.
constexpr auto Regles = std::to_array<RegleCommande>({
    {"DateTimePicker", Parcours, nullptr, Visible, Actif},
    {"DateTimePicker", Tous, nullptr, Visible, Inactif},
    {"ComboBox3", Parcours, nullptr, Visible, Actif},
    {"ComboBox3", Tous, nullptr, Visible, Inactif},
    {"EditTirGlob", Parcours, nullptr, Visible, Actif},
    {"EditTirGlob", Tous, nullptr, Visible, Inactif},
    {"UpDown1", Parcours, nullptr, Visible, Actif},
    {"UpDown1", Tous, nullptr, Visible, Inactif},
    {"CaseJoker", EtatJokerNumeros, nullptr, Cache, Actif},
    {"CaseJoker", Tous, nullptr, Visible, Actif},
    {"MaskEdit1", EtatModification, nullptr, Visible, Actif},
    {"MaskEdit1", Tous, nullptr, Visible, Acces::LectureSeule},

    {"VideRapports", EtatModification, nullptr, Visible, Actif},
    {"VideRapports", Tous, nullptr, Cache, Actif},
    {"Rapports", Parcours | EtatChoix | EtatModification, nullptr, Visible, Actif},
    {"Rapports", Tous, nullptr, Cache, Actif},
    {"PanneauAleatoire", Planche, nullptr, Visible, Actif},
    {"PanneauAleatoire", Tous, nullptr, Cache, Actif},
    {"PanneauJoker", Jokers, nullptr, Visible, Actif},
    {"PanneauJoker", Tous, nullptr, Cache, Actif},
    {"TitreVolet", Planche, nullptr, Visible, Actif, u"Tirage au sort de grilles"},
    {"TitreVolet", EtatJokerDate, nullptr, Visible, Actif, u"Participation du Reçu de Jeu"},
    {"TitreVolet", Jokers, nullptr, Visible, Actif, u"Numéros JOKER+"},
    {"TitreVolet", Tous, &Situation::second, Visible, Actif, u"Rapports du 2nd Tirage"},
    {"TitreVolet", Tous, nullptr, Visible, Actif, u"Rapports du 1er Tirage"},

    {"Edit1", Consultations, nullptr, Visible, Actif},
    {"Edit1", Tous, nullptr, Visible, Acces::LectureSeule},
    {"CheckBox2ND", Planche, nullptr, Visible, Actif},
    {"CheckBox2ND", Tous, nullptr, Visible, Inactif},
    {"RadioButtonSimple", Libres, &Situation::sansChoix, Visible, Inactif},
    {"RadioButtonSimple", Libres, nullptr, Visible, Actif},
    {"RadioButtonSimple", Tous, nullptr, Cache, Actif},
    {"RadioButtonJeu", Libres, &Situation::sansRecu, Visible, Inactif},
    {"RadioButtonJeu", Libres, nullptr, Visible, Actif},
    {"RadioButtonJeu", Tous, nullptr, Cache, Actif},
    {"AddGrille", Planche, nullptr, Visible, Actif},
    {"AddGrille", Tous, nullptr, Cache, Actif},
    {"SupprGrille", EtatMiseAJour, &Situation::sansTirage, Visible, Inactif, nullptr,
     IndiceSupprimer},
    {"SupprGrille", EtatMiseAJour, nullptr, Visible, Actif, nullptr, IndiceSupprimer},
    {"SupprGrille", Planche | Consultations, &Situation::sansGrille, Visible, Inactif, nullptr,
     IndiceSupprimerGrille},
    {"SupprGrille", Planche | Consultations, nullptr, Visible, Actif, nullptr,
     IndiceSupprimerGrille},
    {"SupprGrille", Tous, nullptr, Cache, Actif},
    {"SupprAllGrilles", Planche | Consultations, &Situation::sansGrille, Visible, Inactif},
    {"SupprAllGrilles", Planche | Consultations, nullptr, Visible, Actif},
    {"SupprAllGrilles", Tous, nullptr, Cache, Actif},

    {"ReInit", EtatChoix, nullptr, Visible, Actif, u"&OK!", u"Validation de la sélection libre"},
    {"ReInit", EtatNormal, nullptr, Visible, Actif, u"&Choix libre",
     u"Sélection libre de numéros à vérifier"},
    {"ReInit", Tous, nullptr, Visible, Inactif},
    {"CommunsButton", EtatChoix | EtatModification, nullptr, Cache, Actif},
    {"CommunsButton", Tous, nullptr, Visible, Actif},
    {"DeSelect", EtatChoix | Planche | EtatModification, nullptr, Visible, Actif},
    {"DeSelect", EtatNormal, &Situation::tenus, Visible, Actif},
    {"DeSelect", Tous, nullptr, Cache, Actif},
    {"ProgressBarBilan", Tous, &Situation::bilanEnCours, Visible, Actif},
    {"ProgressBarBilan", Tous, nullptr, Cache, Actif},
    {"NormalMode", EtatRecu, &Situation::versDate, Visible, Actif, Terminer,
     u"Passer à la saisie de la date de participation"},
    {"NormalMode", EtatRecu, &Situation::versJoker, Visible, Actif, Terminer,
     u"Passer à la saisie des Numéros Joker+"},
    {"NormalMode", Planche | Jokers, nullptr, Visible, Actif, Terminer, RetourNormal},
    {"NormalMode", Consultations, nullptr, Visible, Actif, Terminer, RetourNormal, SansTouche},
    {"NormalMode", Tous, nullptr, Cache, Actif, Terminer, RetourNormal},
    {"VerifGains", Tous, &Situation::bilanEnCours, Visible, Actif, u"STOP",
     u"Arrêter le bilan des gains"},
    {"VerifGains", Libres, &Situation::bilan, Visible, Actif, u"&Bilan Gains", IndiceBilan},
    {"VerifGains", Libres, nullptr, Visible, Actif, u"&Vérifier gains", IndiceVerifier},
    {"VerifGains", Tous, &Situation::bilan, Visible, Inactif, u"&Bilan Gains", IndiceBilan},
    {"VerifGains", Tous, nullptr, Visible, Inactif, u"&Vérifier gains", IndiceVerifier},
    {"ChargerGrilles", Libres, nullptr, Visible, Actif},
    {"ChargerGrilles", Tous, nullptr, Visible, Inactif},
    {"ButtonSauverGrilles", EtatConsultationRecu, nullptr, Cache, Actif},
    {"ButtonSauverGrilles", Libres, &Situation::aSauver, Visible, Actif},
    {"ButtonSauverGrilles", Tous, nullptr, Visible, Inactif},
    {"SelectGrilles", EtatNormal | Planche, nullptr, Visible, Actif},
    {"SelectGrilles", Tous, nullptr, Visible, Inactif},
    {"Consultation", Consultations, nullptr, Visible, Actif, Terminer, u"Retour au mode normal"},
    {"Consultation", EtatNormal, nullptr, Visible, Actif, u"C&onsultation",
     u"Vérification des grilles en mémoire"},
    {"Consultation", Tous, nullptr, Visible, Inactif, u"C&onsultation",
     u"Vérification des grilles en mémoire"},
    {"AjoutLibre", EtatMiseAJour, nullptr, Visible, Actif, u"&Modifier",
     u"Modifier l'enregistrement en cours"},
    {"AjoutLibre", EtatModification, nullptr, Visible, Actif, u"&Valider",
     u"Valider les modifications en mémoire"},
    {"AjoutLibre", Tous, nullptr, Cache, Actif},
    {"MajBaseManuelle", EtatModification, nullptr, Visible, Actif, u"&Annuler",
     u"Abandonner la saisie en cours"},
    {"MajBaseManuelle", EtatNormal, nullptr, Visible, Actif, MiseAJour, IndiceMiseAJour},
    {"MajBaseManuelle", Tous, nullptr, Visible, Inactif, MiseAJour, IndiceMiseAJour},
    {"Majweb", EtatModification, nullptr, Cache, Actif},
    {"Majweb", Tous, nullptr, Visible, Actif},
    {"Button75", EtatModification, nullptr, Cache, Actif},
    {"Button75", Libres, &Situation::filtre, Visible, Actif, BaseTotale, IndiceBaseTotale},
    {"Button75", Libres, nullptr, Visible, Actif, Filtrer, IndiceFiltrer, SansTouche},
    {"Button75", Tous, &Situation::filtre, Visible, Inactif, BaseTotale, IndiceBaseTotale},
    {"Button75", Tous, nullptr, Visible, Inactif, Filtrer, IndiceFiltrer, SansTouche},
});

/// The lines of one control stand together, and the last of them holds whatever else.
constexpr bool chaqueCommandeReglee() {
    for (std::size_t i = 0; i < Regles.size(); ++i) {
        const bool derniere =
            i + 1 == Regles.size() || Regles[i + 1].commande != Regles[i].commande;
        const bool toujours = Regles[i].etats == Tous && Regles[i].si == nullptr;
        if (derniere != toujours) return false;
    }
    return true;
}
static_assert(chaqueCommandeReglee());

bool vaut(const RegleCommande& regle, const Situation& situation) {
    return (regle.etats & situation.etat) != 0 && (regle.si == nullptr || situation.*regle.si);
}

void montrer(QWidget* widget, bool visible) {
    if (auto* pile = qobject_cast<QStackedWidget*>(widget->parentWidget()); pile == nullptr) {
        widget->setVisible(visible);
    } else if (visible) {
        pile->setCurrentWidget(widget);
    }
}

void appliquerRegle(QWidget* widget, const RegleCommande& regle) {
    widget->setEnabled(regle.acces != Acces::Inactif);
    if (auto* champ = qobject_cast<QLineEdit*>(widget); champ != nullptr) {
        champ->setReadOnly(regle.acces == Acces::LectureSeule);
    }
    if (regle.texte != nullptr) {
        const QString texte = QString::fromUtf16(regle.texte);
        if (auto* bouton = qobject_cast<QAbstractButton*>(widget); bouton != nullptr) {
            bouton->setText(texte);
            if (regle.sansTouche) bouton->setShortcut({});
        } else {
            qobject_cast<QLabel*>(widget)->setText(texte);
        }
    }
    if (regle.indice != nullptr) poserIndice(widget, QString::fromUtf16(regle.indice));
    montrer(widget, regle.visible);
}

}  // namespace

EtatsCommandes::EtatsCommandes(const QWidget& page) {
    for (auto debut = Regles.begin(); debut != Regles.end();) {
        const auto fin = std::find_if(debut, Regles.end(), [debut](const RegleCommande& regle) {
            return regle.commande != debut->commande;
        });
        const QString nom = QString::fromUtf8(debut->commande.data(),
                                              static_cast<qsizetype>(debut->commande.size()));
        auto* widget = page.findChild<QWidget*>(nom);
        if (widget == nullptr) qFatal("no control %s", qPrintable(nom));
        commandes_.push_back({widget, debut, fin});
        debut = fin;
    }
}

void EtatsCommandes::appliquer(const Situation& situation) {
    for (Commande& commande : commandes_) {
        const RegleCommande* regle =
            std::find_if(commande.debut, commande.fin,
                         [&](const RegleCommande& r) { return vaut(r, situation); });
        if (commande.appliquee == regle) continue;
        commande.appliquee = regle;
        appliquerRegle(commande.widget, *regle);
    }
}

}  // namespace norvane::ui
