// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/CommandesBillets.h"

#include <QFile>

#include "base/Dates.h"
#include "common/Contexte.h"
#include "common/Enregistrement.h"
#include "common/Refus.h"
#include "tickets/FichiersGrilles.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

const QString FiltreGrilles = u"Fichiers Grilles (*.grl)"_s;
const QString FiltreRecus = u"Fichiers Reçus (*.rdj)"_s;
const QString Confirmation = u"Confirmation"_s;
const QString Avertissement = u"Avertissement"_s;

}  // namespace

CommandesBillets::CommandesBillets(Contexte& ctx, QWidget* page)
    : QObject(page), contexte_(ctx), saisie_(ctx.atelier.saisie), page_(page) {
    saisie_.semer(ctx.services.hasard->graine());
}

Messages& CommandesBillets::messages() const {
    return *contexte_.services.messages;
}

bool CommandesBillets::accepte(const Reponse& reponse) {
    if (reponse) direRefus(messages(), *reponse);
    return !reponse;
}

bool CommandesBillets::reussi(const Resultat<Rien>& resultat) {
    if (!resultat) messages().MessageErreur(versQt(resultat.erreur()), u"Erreur"_s);
    return static_cast<bool>(resultat);
}

bool CommandesBillets::demander(const QString& question, const QString& titre) {
    return messages().QuestionOuiNon(question, titre) == CodeBouton1;
}

void CommandesBillets::annoncer() {
    const bool mode = saisie_.etat() != etatDit_;
    etatDit_ = saisie_.etat();
    contexte_.relais.annoncer({.tickets = true, .mode = mode});
}

// ---- The ticket in hand ------------------------------------------------------------------------

void CommandesBillets::Button1Click(GenreStats genre, int valeur) {
    if (accepte(saisie_.basculer(genre, valeur))) Q_EMIT enMainChange();
}

void CommandesBillets::poserOption(bool option2nd) {
    saisie_.poserOption(option2nd);
    Q_EMIT enMainChange();
}

void CommandesBillets::allerA(int numero) {
    const bool accepteDePartir = accepte(saisie_.deplacer(numero));
    // The field of the number comes back when the ticket stays.
    if (accepteDePartir && saisie_.surPlanche()) {
        annoncer();
    } else {
        Q_EMIT enMainChange();
    }
}

void CommandesBillets::AddGrilleClick() {
    if (contexte_.refuserSiOccupe() || !accepte(saisie_.peutAjouter()) ||
        !demander(u"Ajouter une grille en mémoire ?"_s, Confirmation) ||
        !accepte(saisie_.ajouter())) {
        return;
    }
    annoncer();
}

void CommandesBillets::SupprGrilleClick() {
    if (contexte_.refuserSiOccupe()) return;
    saisie_.supprimer();
    annoncer();
    Q_EMIT supprimees(saisie_.nombre() == 0);
}

void CommandesBillets::SupprAllGrillesClick() {
    if (contexte_.refuserSiOccupe() || !accepte(saisie_.preparerSuppressionTotale()) ||
        !demander(u"Supprimer toutes les grilles en mémoire ?"_s, Avertissement)) {
        return;
    }
    if (saisie_.suppressionPerdrait()) {
        const int reponse = messages().QuestionOuiNon(
            u"Les nouvelles grilles n'ont pas été enregistrées...\nVoulez-vous les sauvegarder ?"_s,
            Avertissement);
        // Closed without an answer, or not saved after all: nothing may be lost.
        if (reponse == CodeFerme || (reponse == CodeBouton1 && !sauver())) return;
    }
    saisie_.supprimerTout();
    annoncer();
    Q_EMIT supprimees(true);
}

void CommandesBillets::ButtonAleatoireClick(TypeGrille type, int nombre) {
    if (contexte_.refuserSiOccupe()) return;
    if (nombre != 1 && saisie_.enMainPerdue() && !garderEnMain()) return;
    saisie_.tirerAuHasard(type, nombre);
    annoncer();
}

/// What becomes of the whole ticket on the board before a batch takes its place; false when it is
/// to stay there.
bool CommandesBillets::garderEnMain() {
    const int reponse = messages().QuestionOuiNon(
        u"Ajouter une grille en mémoire ?"_s, Confirmation,
        u"La grille de la planche n'est pas encore dans la liste : les grilles tirées au sort "
        u"prennent sa place si vous ne l'ajoutez pas."_s);
    return reponse == CodeBouton2 || (reponse == CodeBouton1 && accepte(saisie_.ajouter()));
}

// ---- From one state to the next ----------------------------------------------------------------

void CommandesBillets::SelectGrillesClick() {
    if (contexte_.refuserSiOccupe()) return;
    if (saisie_.etat() == EtatTickets::Normal) {
        commencer();
    } else if (saisie_.surPlanche() && accepte(saisie_.peutArreter()) &&
               demander(u"Sélection d'une autre grille ?"_s, Confirmation)) {
        saisie_.arreter();
        annoncer();
    }
}

void CommandesBillets::commencer() {
    if (!demander(u"Passer en mode sélection de grilles ?"_s, Confirmation)) return;
    const int recu =
        messages().QuestionOuiNon(u"S'agit-il de la saisie d'un Reçu de Jeu ?"_s, Confirmation);
    if (recu == CodeFerme) return;
    saisie_.commencer(recu == CodeBouton1);
    annoncer();
}

void CommandesBillets::NormalModeClick() {
    if (contexte_.refuserSiOccupe()) return;
    // A receipt without its date stays in memory; it is its file that will be missing.
    if (saisie_.etat() == EtatTickets::Joker &&
        messages().MessageAnnuler(u"Abandonner la sélection en cours ?"_s, Confirmation) !=
            CodeBouton1) {
        return;
    }
    const bool surPlanche = saisie_.surPlanche();
    saisie_.terminer();
    if (surPlanche && saisie_.etat() == EtatTickets::Joker) {
        messages().MessageInfo(u"Saisissez à présent le nombre de Numéros Joker+..."_s,
                               u"Message"_s);
        annoncer();
        Q_EMIT etapeJoker();
    } else {
        annoncer();
    }
}

void CommandesBillets::ConsultationClick() {
    if (contexte_.refuserSiOccupe()) return;
    if (saisie_.enConsultation()) {
        quitterConsultation();
    } else if (accepte(saisie_.consulter())) {
        annoncer();
    }
}

void CommandesBillets::quitterConsultation() {
    if (!saisie_.enConsultation()) return;
    saisie_.terminer();
    annoncer();
}

void CommandesBillets::choisirListe(bool recu) {
    // A choice that was refused shows as it was.
    if (!saisie_.enConsultation() || !contexte_.refuserSiOccupe()) saisie_.choisirListe(recu);
    annoncer();
}

// ---- The rest of a receipt ---------------------------------------------------------------------

void CommandesBillets::Button66Click(int compte) {
    if (contexte_.refuserSiOccupe()) return;
    const int reponse = messages().AvertissementAnnuler(
        compte > 0 ? u"Vous avez %1 Numéro(s) Joker+ à saisir..."_s.arg(compte)
                   : u"Joker+ non participant..."_s,
        Avertissement,
        u"Si cela est exact, cliquez sur le bouton OK. Sinon cliquez sur le bouton ANNULER, puis "
        u"modifier votre choix..."_s);
    if (reponse != CodeBouton1) return;
    if (compte > 0) {
        messages().MessageInfo(u"Saisissez à présent vos Numéros Joker+..."_s, u"Message"_s);
    }
    saisie_.choisirCompteJoker(compte);
    suivreJoker();
}

void CommandesBillets::validerJoker(const QString& chiffres, int mises, bool plusOuMoins) {
    if (contexte_.refuserSiOccupe()) return;
    if (accepte(saisie_.validerJoker(chiffres.toStdString(), mises, plusOuMoins))) {
        suivreJoker();
    } else {
        Q_EMIT jokerAttendu();
    }
}

void CommandesBillets::suivreJoker() {
    annoncer();
    Q_EMIT etapeJoker();
    if (saisie_.etape() != EtapeJoker::Date) return;
    messages().MessageInfo(u"Saisissez à présent la date de participation"_s, u"Message"_s);
    Q_EMIT jokerAttendu();
}

void CommandesBillets::reprendreJoker() {
    if (contexte_.refuserSiOccupe()) return;
    saisie_.reprendreJoker();
    annoncer();
    Q_EMIT etapeJoker();
}

/// The receipt is whole: it goes to the file of its date.
void CommandesBillets::dater(int date) {
    if (contexte_.refuserSiOccupe()) return;
    if (!accepte(saisie_.peutDater(date))) {
        Q_EMIT jokerAttendu();
        return;
    }
    const auto& repertoire = contexte_.atelier.Repertoire;
    bool ajouter = false;
    std::error_code ignoree;
    if (std::filesystem::exists(FichierRecu(repertoire, date), ignoree)) {
        const int reponse = messages().AvertissementOuiNon(
            u"Il existe déjà un Reçu de Jeu enregistré pour la date choisie..."_s, Avertissement,
            u"Souhaitez-vous ajouter le reçu en cours à l'existant ?\n(Sinon l'existant sera "
            u"remplacé...)"_s);
        if (reponse == CodeFerme) return;  // neither: the date is still to be settled
        ajouter = reponse == CodeBouton1;
    }
    if (!reussi(saisie_.enregistrerRecu(repertoire, date, ajouter))) return;
    annoncer();
    direEnregistre(contexte_, u"Reçu de Jeu du %1 enregistré"_s.arg(versQt(DateLongue(date))),
                   QFile::decodeName(FichierRecu(repertoire, date).c_str()));
}

bool CommandesBillets::proposerTirage(int dateMontree) {
    const int date = saisie_.dateRecu();
    if (!saisie_.tirageAProposer() || saisie_.ModeGrilles() || saisie_.bilan() ||
        saisie_.nombre() == 0 || date == dateMontree || contexte_.atelier.activite.occupe()) {
        return true;
    }
    const QString jour = versQt(DateLongue(date));
    const Base& base = contexte_.atelier.base;
    const bool connu = TirageParDate(base.Tirages, date, base.NbTirages).indice >= 0;
    const int reponse =
        connu ? messages().QuestionOuiNon(
                    u"Vérifier le reçu avec le tirage du %1 ?"_s.arg(jour), Confirmation,
                    u"C'est sa date de participation. Sinon, il sera vérifié avec le tirage "
                    u"affiché."_s)
              : messages().AvertissementOuiNon(
                    u"Le tirage du %1, date du reçu, n'est pas dans la base."_s.arg(jour),
                    Avertissement, u"Faut-il vérifier le reçu avec le tirage affiché ?"_s,
                    BoutonPropose::Non);
    if (reponse == CodeFerme) return false;
    const bool oui = reponse == CodeBouton1;
    if (connu || oui) saisie_.tirageEstPropose();
    if (connu && oui) Q_EMIT dateDemandee(date);
    return connu || oui;
}

// ---- Files, and what comes from other pages ----------------------------------------------------

QString CommandesBillets::dossierGrilles() const {
    const auto dossier = contexte_.atelier.Repertoire / DossierGrilles;
    // The dialog cannot open on a folder that is not there.
    std::error_code ignoree;
    std::filesystem::create_directories(dossier, ignoree);
    return versQt(dossier.string());
}

void CommandesBillets::ButtonSauverGrillesClick() {
    if (!contexte_.refuserSiOccupe()) sauver();
}

/// Asks for a file and writes the grids; false when they are in no file after all.
bool CommandesBillets::sauver() {
    return enregistrerSous(contexte_, page_,
                           {u"Enregistrer les grilles sélectionnées"_s,
                            dossierGrilles(),
                            {{FiltreGrilles, u"grl"_s}},
                            u"Grilles enregistrées"_s,
                            [this](const std::filesystem::path& fichier, std::size_t) {
                                auto ecrit = saisie_.sauver(fichier);
                                if (!ecrit) return ecrit;
                                annoncer();
                                return contexte_.atelier.bulletins.sauver(fichier);
                            }});
}

void CommandesBillets::ChargerGrillesClick() {
    if (contexte_.refuserSiOccupe() || saisie_.enSelection()) return;
    const std::filesystem::path fichier =
        contexte_.services.fichiers
            ->ouvrir(page_, u"Ouvrir Grilles ou Reçus"_s, dossierGrilles(),
                     FiltreGrilles + u";;"_s + FiltreRecus,
                     saisie_.recuVoulu() ? FiltreRecus : FiltreGrilles)
            .toStdString();
    switch (GenreDuFichier(fichier)) {
        case GenreBillets::Recu:
            ouvrirRecu(fichier);
            break;
        case GenreBillets::Grilles:
            ouvrirGrilles(fichier);
            break;
        case GenreBillets::Autre:
            break;
    }
}

void CommandesBillets::ouvrirRecu(const std::filesystem::path& fichier) {
    if (!reussi(saisie_.ouvrirRecu(fichier))) return;
    annoncer();
    if (const auto date = DateRecu(fichier)) Q_EMIT dateDemandee(*date);
}

void CommandesBillets::ouvrirGrilles(const std::filesystem::path& fichier) {
    if (saisie_.ouverturePerdrait()) {
        const int reponse = messages().QuestionOuiNon(
            u"Voulez-vous sauvegarder les grilles précédemment sélectionnées ?"_s, Confirmation);
        if (reponse == CodeFerme || (reponse == CodeBouton1 && !sauver())) return;
    }
    if (!reussi(saisie_.ouvrirGrilles(fichier))) return;
    const auto options = contexte_.atelier.bulletins.ouvrir(fichier);
    annoncer();
    reussi(options);
}

void CommandesBillets::CopierversBulletins(std::span<const Grille> grilles) {
    if (contexte_.refuserSiOccupe() || !accepte(saisie_.peutCopier())) return;
    const Copie copie = saisie_.CopierversBulletins(grilles);
    messages().MessageInfo(versQt(copie.phrase()), u"Message"_s);
    annoncer();
}

void CommandesBillets::consulterStock(int numero) {
    saisie_.consulterStock(numero);
    annoncer();
}

}  // namespace norvane::ui
