// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "systemes/CommandesSysteme.h"

#include <QEventLoop>
#include <QFile>
#include <QTimer>
#include <utility>

#include "base/Fichiers.h"
#include "common/Contexte.h"
#include "common/Enregistrement.h"
#include "lists/FichiersSelections.h"
#include "systems/FichiersSysteme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

namespace fs = std::filesystem;

constexpr int Pause = 200;  // ms that a text of the status bar is given to be seen
constexpr std::size_t ExemplesMax = 20;
const QString FiltreSysteme = u"Fichiers Systèmes (*.syr)"_s;
const QString FiltreSelection = u"Fichiers de Sélections de numéros (*.slt)"_s;

fs::path chemin(const QString& fichier) {
    return QFile::encodeName(fichier).toStdString();
}

/// What is proved of a system: its own promise, or for one from outside the guarantee chosen, on
/// the selection checked where all its numbers are there, else on the numbers of its grids.
struct Question {
    int X, Y;
    Ensemble selection, base;
};
Question questionDe(const Atelier& a) {
    const Systeme& s = a.SystemeCourant;
    if (s.IndicateurImporte == 0)
        return {s.parametres.GarantieX, s.parametres.GarantieY, s.numeros.avec(s.base), s.base};
    const SystemeDisponible& d = a.systemeDisponible;
    const SelectionSysteme& choix = a.NumerosSysteme;
    if (choix.numeros().contient(s.numeros))
        return {d.GarantieX, d.GarantieY, choix.numeros(), choix.base()};
    return {d.GarantieX, d.GarantieY, s.numeros, {}};
}

}  // namespace

CommandesSysteme::CommandesSysteme(Contexte& ctx, QWidget* fenetre)
    : QObject(fenetre), contexte_(ctx), fenetre_(fenetre) {}

void CommandesSysteme::direErreur(const std::string& phrase) {
    contexte_.services.messages->MessageErreur(versQt(phrase), u"Erreur"_s);
}

void CommandesSysteme::laisserVoir(const QString& texte) {
    contexte_.relais.dire(texte);
    QEventLoop attente;
    QTimer::singleShot(Pause, &attente, &QEventLoop::quit);
    attente.exec(QEventLoop::ExcludeUserInputEvents);
}

bool CommandesSysteme::refuserSansSysteme() {
    if (contexte_.refuserSiOccupe()) return true;
    if (!contexte_.atelier.SystemeCourant.vide()) return false;
    contexte_.services.messages->MessageInfo(
        u"Aucun système en mémoire, générez d'abord un système..."_s, u"Message"_s);
    Q_EMIT catalogueVoulu();
    return true;
}

bool CommandesSysteme::accepterPerte() {
    return contexte_.atelier.SystemeCourant.vide() ||
           contexte_.services.messages->AvertissementOuiNon(
               u"Le système actuellement en mémoire sera perdu... Continuer?"_s,
               u"Avertissement"_s) == CodeBouton1;
}

void CommandesSysteme::poser(Systeme&& systeme) {
    contexte_.atelier.SystemeCourant = std::move(systeme);
    preuve_.reset();
    Q_EMIT systemeChange();
    Q_EMIT preuveChangee();
}

// ------------------------------------------------------------------------------------ the system

void CommandesSysteme::Button82Click() {
    if (contexte_.refuserSiOccupe()) return;
    const Atelier& a = contexte_.atelier;
    auto systeme = GenererSysteme(a.systemeDisponible, a.NumerosSysteme);
    if (!systeme) {
        contexte_.services.messages->MessageInfo(versQt(systeme.erreur()), u"Message"_s);
        return;
    }
    poser(*std::move(systeme));
}

void CommandesSysteme::BitBtn8Click() {
    if (contexte_.refuserSiOccupe() || !accepterPerte()) return;
    const QString choisi = contexte_.services.fichiers->ouvrir(
        fenetre_, u"Charger un système en mémoire"_s, versQt(contexte_.atelier.Repertoire.string()),
        FiltreSysteme);
    if (choisi.isEmpty()) return;
    laisserVoir(u"Chargement en cours..."_s);
    auto lu = ChargerSysteme(chemin(choisi));
    contexte_.relais.dire({});
    if (!lu) {
        direErreur(lu.erreur());
        return;
    }
    choisir({lu->numeros.avec(lu->base), lu->base});
    poser(*std::move(lu));
}

void CommandesSysteme::BitBtn10Click() {
    if (refuserSansSysteme()) return;
    if (contexte_.atelier.SystemeCourant.IndicateurImporte != 0) {
        contexte_.services.messages->MessageInfo(
            u"Le système actuellement en mémoire est un système externe importé..."_s, u"Message"_s,
            u"Il ne peut être sauvegardé au format *.syr pris en compte par Ravelon."_s);
        return;
    }
    enregistrerSous(contexte_, fenetre_,
                    {u"Enregistrer le système actuellement en mémoire"_s,
                     versQt(contexte_.atelier.Repertoire.string() + '/'),
                     {{FiltreSysteme, u"syr"_s}},
                     u"Système enregistré"_s,
                     [this](const fs::path& fichier, std::size_t) {
                         laisserVoir(u"Sauvegarde en cours..."_s);
                         return SauverSysteme(fichier, contexte_.atelier.SystemeCourant);
                     }});
}

void CommandesSysteme::Button84Click() {
    if (refuserSansSysteme()) return;
    laisserVoir(u"Importation en cours..."_s);
    Atelier& a = contexte_.atelier;
    a.ListeMemoire = ListeDuSysteme(a.SystemeCourant, a.modeStockage,
                                    FormeGains::de(a.configuration.reglages.GainsNominaux),
                                    a.occurrences.IntervalleInf, a.occurrences.IntervalleSup);
    contexte_.relais.dire({});
    contexte_.relais.annoncer({.listes = true});
    contexte_.relais.aller(VersListe{true});
}

void CommandesSysteme::Button85Click() {
    if (refuserSansSysteme()) return;
    enregistrerSous(contexte_, fenetre_,
                    {u"Exporter le système au format texte"_s,
                     versQt(contexte_.atelier.Repertoire.string() + '/'),
                     {{u"Format Texte (*.txt)"_s, u"txt"_s}},
                     u"Système exporté"_s,
                     [this](const fs::path& fichier, std::size_t) {
                         return EcrireFichier(fichier,
                                              TexteGrilles(contexte_.atelier.SystemeCourant));
                     }});
}

void CommandesSysteme::Button86Click() {
    if (contexte_.refuserSiOccupe() || !accepterPerte()) return;
    const QString choisi = contexte_.services.fichiers->ouvrir(
        fenetre_, u"Importer un système externe"_s, versQt(contexte_.atelier.Repertoire.string()),
        u"Systèmes au format texte (*.txt *.csv);;Tous les fichiers (*)"_s);
    if (choisi.isEmpty()) return;
    auto lu = std::make_shared<Systeme>();
    auto travail = FaireTravail({GenreTravail::Systeme, 0, QuelleListe::Aucune},
                                [lu, fichier = chemin(choisi)](const Suivi&) -> Resultat<Rien> {
                                    auto resultat = ImporterSysteme(fichier);
                                    if (!resultat) return Erreur{resultat.erreur()};
                                    *lu = *std::move(resultat);
                                    return Rien{};
                                });
    const auto fin = [this, lu](Travail& fini) {
        if (!fini.erreur().empty()) return direErreur(fini.erreur());
        if (!lu->vide()) poser(std::move(*lu));
    };
    if (!contexte_.travaux.lancer(std::move(travail), {u"Importation du système en cours..."_s},
                                  this, fin))
        direErreur(contexte_.travaux.erreur().toStdString());
}

// ------------------------------------------------------------------------------------- the proof

bool CommandesSysteme::verifie() const {
    const auto& enCours = contexte_.atelier.activite.enCours;
    return enCours && enCours->genre == GenreTravail::Garantie;
}

void CommandesSysteme::VerifierClick() {
    if (verifie()) return contexte_.travaux.arreter();
    if (refuserSansSysteme()) return;
    const Question q = questionDe(contexte_.atelier);
    auto preuve = std::make_shared<PreuveSysteme>(
        PreuveSysteme{q.X, q.Y, q.selection.taille(), q.base.taille(), {}, {}});
    const auto corps = [preuve, q, grilles = GrillesEnsembles(contexte_.atelier.SystemeCourant)](
                           const Suivi& suivi) -> Resultat<Rien> {
        auto bilan =
            VerifierGarantie(grilles, q.selection, q.base, q.X, q.Y, ExemplesMax, {suivi.arret});
        if (!bilan) return Erreur{bilan.erreur()};
        preuve->bilan = *std::move(bilan);
        const auto chances = CompterChances(grilles, q.selection, suivi);
        if (!chances) return Erreur{chances.erreur()};
        preuve->chances = *chances;
        return Rien{};
    };
    const auto fin = [this, preuve](Travail& fini) {
        if (fini.arrete()) {
            contexte_.relais.dire(u"Vérification arrêtée."_s);
        } else if (!fini.erreur().empty()) {
            direErreur(fini.erreur());
        } else {
            preuve_ = *preuve;
        }
        Q_EMIT preuveChangee();
    };
    preuve_.reset();
    if (!contexte_.travaux.lancer(
            FaireTravail({GenreTravail::Garantie, 0, QuelleListe::Aucune}, corps),
            {u"Vérification de la garantie en cours..."_s, jauge_}, this, fin))
        direErreur(contexte_.travaux.erreur().toStdString());
    Q_EMIT preuveChangee();
}

// --------------------------------------------------------------------------------- the selection

void CommandesSysteme::choisir(const SelectionSysteme& selection) {
    contexte_.atelier.NumerosSysteme = selection;
    Q_EMIT selectionChangee();
}

void CommandesSysteme::avancer(int numero) {
    if (!contexte_.atelier.NumerosSysteme.avancer(numero))
        contexte_.services.messages->MessageInfo(
            u"Pas plus de 2 numéros de base (case cochée verte) par sélection..."_s, u"Message"_s,
            u"(rappel: les numéros de base doivent apparaitre au prochain tirage)"_s);
    Q_EMIT selectionChangee();
}

void CommandesSysteme::retirer(int numero) {
    contexte_.atelier.NumerosSysteme.retirer(numero);
    Q_EMIT selectionChangee();
}

void CommandesSysteme::Button80Click() {
    choisir({});
}

void CommandesSysteme::Button81Click() {
    GenerateurHasard hasard(contexte_.services.hasard->graine());
    choisir(SelectionAuHasard(contexte_.atelier.systemeDisponible, hasard));
}

void CommandesSysteme::BitBtnWithColor20Click() {
    const Atelier& a = contexte_.atelier;
    if (a.TirageActif < 0 || a.TirageActif >= a.base.NbTirages) {
        contexte_.services.messages->MessageInfo(
            u"Pas de tirage actif dans l'onglet Résultats..."_s, u"Message"_s);
        return;
    }
    const Tirage& tirage = a.base.Tirages[static_cast<std::size_t>(a.TirageActif)];
    choisir({Ensemble::de(tirage.Numeros), {}});
}

void CommandesSysteme::BitBtnWithColor21Click() {
    choisir({contexte_.atelier.choixLibre.numeros, {}});
}

void CommandesSysteme::BitBtn6Click() {
    if (contexte_.refuserSiOccupe()) return;
    const QString choisi = contexte_.services.fichiers->ouvrir(
        fenetre_, u"Ouvrir vos sélections personnelles"_s,
        versQt(contexte_.atelier.Repertoire.string()), FiltreSelection);
    if (choisi.isEmpty()) return;
    const auto lue = OuvrirSelection(chemin(choisi));
    if (!lue) return direErreur(lue.erreur());
    choisir(SelectionDeGrille(*lue));
}

void CommandesSysteme::BitBtn7Click() {
    if (contexte_.refuserSiOccupe()) return;
    enregistrerSous(contexte_, fenetre_,
                    {u"Enregistrer votre sélection"_s,
                     versQt(contexte_.atelier.Repertoire.string() + '/'),
                     {{FiltreSelection, versQt(ExtensionSelection)}},
                     u"Sélection enregistrée"_s,
                     [this](const fs::path& fichier, std::size_t) {
                         return SauverSelection(GrilleDeSelection(contexte_.atelier.NumerosSysteme),
                                                fichier);
                     }});
}

}  // namespace norvane::ui
