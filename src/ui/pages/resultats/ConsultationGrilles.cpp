// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tickets in memory: consultation with results, files, tickets drawn at random.

#include <algorithm>
#include <QCheckBox>
#include <QFileInfo>
#include <QRadioButton>

#include "base/Textes.h"
#include "resultats/PanneauAleatoire.h"
#include "resultats/SaisieGrilles.h"
#include "tickets/FichiersGrilles.h"
#include "tickets/ListesGrilles.h"
#include "tickets/Verification.h"
#include "widgets/ChampNumero.h"
#include "widgets/PlancheNumeros.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

const QString FiltreGrilles = u"Fichiers Grilles (*.grl)"_s;
const QString FiltreRecus = u"Fichiers Reçus (*.rdj)"_s;

struct MontantAffiche {
    QString euros, francs;
};

MontantAffiche afficherMontant(double montant, const Reglages& reglages) {
    const Conversion c = Convertir(montant, reglages.TauxConversion);
    return {versQt(FormaterMontant(c.enEuros()) + " " + reglages.SymboleMonnaie),
            u"Montant en Francs : %1 F"_s.arg(versQt(FormaterMontant(c.enFrancs())))};
}

}  // namespace

// ---- Consultation ----------------------------------------------------------------------------

void SaisieGrilles::ConsultationClick() {
    if (contexte_.refuserSiOccupe()) return;
    if (etat_ == EtatTickets::Consultation) {
        terminerConsultation();
        return;
    }
    if (etat_ != EtatTickets::Normal) return;
    const Atelier& atelier = contexte_.atelier;
    if (atelier.ListeRecu.empty() && atelier.ListeChoix.empty()) {
        messages().MessageInfo(u"Aucune grille sélectionnée..."_s, u"Message"_s,
                               u"Cliquez sur le bouton Sélection afin de saisir des grilles."_s);
        return;
    }
    // One list only: the mode follows it.
    const bool uneSeule = atelier.ListeRecu.empty() || atelier.ListeChoix.empty();
    poserModeRecu(uneSeule ? atelier.ListeChoix.empty() : fiche_.RadioButtonJeu->isChecked());
    entrerConsultation();
}

void SaisieGrilles::entrerConsultation() {
    CopierListe(liste(), source());
    grille_ = liste().empty() ? 0 : 1;
    changerEtat(EtatTickets::Consultation);
    AfficherGrille(grille_);
}

void SaisieGrilles::terminerConsultation() {
    if (etat_ != EtatTickets::Consultation) return;
    changerEtat(EtatTickets::Normal);
    Q_EMIT gainsChange({});
    Q_EMIT plancheRendue();
}

/// One of the two radio buttons was clicked.
void SaisieGrilles::choisirListe(bool recu) {
    if (etat_ != EtatTickets::Consultation || recu == contexte_.modes.ModeRecu) return;
    if (contexte_.refuserSiOccupe()) {
        poserModeRecu(contexte_.modes.ModeRecu);
        return;
    }
    poserModeRecu(recu);
    entrerConsultation();
}

void SaisieGrilles::poserTirage(int indice) {
    tirage_ = indice;
    if (etat_ == EtatTickets::Consultation) majFiche();
}

void SaisieGrilles::majFiche() {
    if (!surPlanche() && etat_ != EtatTickets::Consultation) return;
    VueGrille vue;
    vue.numero = grille_;
    vue.nombre = nombre();
    const QColor couleur = surPlanche() ? couleurGrille(std::max(1, grille_), fiche_.palette())
                                        : fiche_.palette().color(QPalette::WindowText);
    for (const int v : planche_.tenus(GenreStats::Numeros)) vue.numeros.push_back({v, couleur});
    for (const int v : planche_.tenus(GenreStats::Chances)) vue.chances.push_back({v, couleur});
    const Reglages& reglages = contexte_.atelier.configuration.reglages;
    if (surPlanche()) {
        if (grilleComplete()) {
            const MontantAffiche mise = afficherMontant(grilleEnMain()[0], reglages);
            vue.mise = mise.euros;
            vue.francs = mise.francs;
        } else if (!vue.numeros.empty() || !vue.chances.empty()) {
            vue.note = u"Grille incomplète : au moins 5 numéros et 1 chance"_s;
        }
        aleatoire_.poserReste(NbGrillesMax + 1 - nombre());
    } else if (grille_ > 0) {
        const Grille& grille = liste()[static_cast<std::size_t>(grille_ - 1)];
        const MontantAffiche mise = afficherMontant(grille[0], reglages);
        vue.mise = mise.euros;
        vue.francs = mise.francs;
        majResultat(vue, grille);
    } else {
        Q_EMIT gainsChange({});
    }
    fiche_.montrerGrille(modeGrilles() ? u"Grilles au choix"_s : u"Reçu de Jeu"_s, vue);
}

/// What a ticket won on the draw on show: its good numbers, its sum, its wins per rank.
void SaisieGrilles::majResultat(VueGrille& vue, const Grille& grille) {
    if (tirage_ < 0) {
        Q_EMIT gainsChange({});
        return;
    }
    const Base& base = contexte_.atelier.base;
    const auto i = static_cast<std::size_t>(tirage_);
    const ResultatGrille r = VerifierGrille(grille, base.Tirages[i], base.Rapports[i]);
    for (CaseGrille& c : vue.numeros) {
        c.sortie = planche_.bouton(placeDe(GenreStats::Numeros, c.valeur))->allume();
    }
    for (CaseGrille& c : vue.chances) {
        c.sortie = planche_.bouton(placeDe(GenreStats::Chances, c.valeur))->allume();
    }
    const MontantAffiche gain = afficherMontant(r.gain, contexte_.atelier.configuration.reglages);
    vue.resultat = true;
    vue.sortis = u"%1 + %2C"_s.arg(r.bons.numeros).arg(r.bons.chances);
    vue.gain = gain.euros;
    vue.gainFrancs = gain.francs;
    Q_EMIT gainsChange({r.second, r.comptes});
}

void SaisieGrilles::CopierversBulletins(const std::vector<Grille>& grilles) {
    if (contexte_.refuserSiOccupe()) return;
    if (etat_ != EtatTickets::Normal && etat_ != EtatTickets::Consultation) {
        messages().MessageInfo(
            u"Terminez le Mode Sélection dans l'onglet Résultats pour utiliser "
            u"cette fonctionnalité."_s,
            u"Message"_s);
        return;
    }
    auto& stock = contexte_.atelier.ListeChoix;
    const std::size_t copiees =
        std::min(grilles.size(), static_cast<std::size_t>(NbGrillesMax) - stock.size());
    stock.insert(stock.end(), grilles.begin(),
                 grilles.begin() + static_cast<std::ptrdiff_t>(copiees));
    aSauver_ = aSauver_ || copiees > 0;
    QString dit = u"%1 combinaisons copiées..."_s.arg(copiees);
    if (copiees == 1) dit = u"1 combinaison copiée..."_s;
    if (copiees < grilles.size()) dit = u"Tous les bulletins sont remplis..."_s;
    messages().MessageInfo(dit, u"Message"_s);
    if (stock.empty()) return;
    poserModeRecu(false);
    entrerConsultation();
}

// ---- Files -----------------------------------------------------------------------------------

QString SaisieGrilles::dossierGrilles() const {
    const auto dossier = contexte_.atelier.Repertoire / DossierGrilles;
    // The dialog cannot open on a folder that is not there.
    std::error_code ignoree;
    std::filesystem::create_directories(dossier, ignoree);
    return versQt(dossier.string());
}

void SaisieGrilles::ButtonSauverGrillesClick() {
    if (contexte_.refuserSiOccupe()) return;
    sauver(contexte_.atelier.ListeChoix);
    Q_EMIT etatChange();
}

/// Asks for a file and writes the grids; false when they are in no file after all.
bool SaisieGrilles::sauver(const std::vector<Grille>& grilles) {
    QString filtre;
    QString fichier = contexte_.services.fichiers->enregistrer(
        &fiche_, u"Enregistrer les grilles sélectionnées"_s, dossierGrilles(), FiltreGrilles,
        filtre);
    if (fichier.isEmpty()) return false;
    if (QFileInfo(fichier).suffix().isEmpty()) fichier += u".grl"_s;
    const auto ecrit = EnregistrerGrilles(grilles, fichier.toStdString());
    if (!ecrit) {
        messages().MessageErreur(versQt(ecrit.erreur()), u"Erreur"_s);
        return false;
    }
    aSauver_ = false;
    return true;
}

void SaisieGrilles::ChargerGrillesClick() {
    if (contexte_.refuserSiOccupe()) return;
    if (etat_ != EtatTickets::Normal && etat_ != EtatTickets::Consultation) return;
    const QString fichier = contexte_.services.fichiers->ouvrir(
        &fiche_, u"Ouvrir Grilles ou Reçus"_s, dossierGrilles(),
        FiltreGrilles + u";;"_s + FiltreRecus,
        fiche_.RadioButtonJeu->isChecked() ? FiltreRecus : FiltreGrilles);
    // The two extensions exactly; any other name does nothing at all.
    const QString extension = QFileInfo(fichier).suffix();
    if (extension == u"rdj"_s) {
        ouvrirRecu(fichier);
    } else if (extension == u"grl"_s) {
        ouvrirGrilles(fichier);
    }
}

void SaisieGrilles::ouvrirRecu(const QString& fichier) {
    auto lu = ChargerRecu(fichier.toStdString());
    if (!lu) {
        messages().MessageErreur(versQt(lu.erreur()), u"Erreur"_s);
        return;
    }
    contexte_.atelier.ListeRecu = std::move(lu->grilles);
    contexte_.atelier.ListeJoker = std::move(lu->jokers);
    if (const auto date = DateRecu(fichier.toStdString())) Q_EMIT dateDemandee(*date);
    poserModeRecu(true);
    entrerConsultation();
}

void SaisieGrilles::ouvrirGrilles(const QString& fichier) {
    auto& stock = contexte_.atelier.ListeChoix;
    if (!stock.empty() && aSauver_) {
        const int reponse = messages().QuestionOuiNon(
            u"Voulez-vous sauvegarder les grilles précédemment sélectionnées ?"_s,
            u"Confirmation"_s);
        if (reponse == CodeFerme || (reponse == CodeBouton1 && !sauver(stock))) return;
        Q_EMIT etatChange();
    }
    auto lu = ChargerGrilles(fichier.toStdString());
    if (!lu) {
        messages().MessageErreur(versQt(lu.erreur()), u"Erreur"_s);
        return;
    }
    stock = *std::move(lu);
    aSauver_ = false;
    poserModeRecu(false);
    entrerConsultation();
}

// ---- Tickets drawn at random -----------------------------------------------------------------

void SaisieGrilles::ButtonAleatoireClick() {
    if (contexte_.refuserSiOccupe() || !surPlanche()) return;
    const int voulues = aleatoire_.nombre();
    if (voulues == 1) {
        grilleAleatoire();
    } else {
        lotAleatoire(voulues);
    }
    Q_EMIT etatChange();
}

/// One ticket on the board, in the order of its drawing, through the same path as the clicks.
void SaisieGrilles::grilleAleatoire() {
    planche_.relacher();
    const TirageHasard tire = TirerGrille(hasard_, aleatoire_.type());
    for (const int n : tire.numeros) cocher(placeDe(GenreStats::Numeros, n));
    for (const int c : tire.chances) cocher(placeDe(GenreStats::Chances, c));
}

/// A batch behind the list, from the open place on. A ticket in hand that is complete comes first.
void SaisieGrilles::lotAleatoire(int voulues) {
    if (grilleComplete()) EnregistrerGrille(liste(), grille_ - 1);
    std::erase_if(liste(), EstVide);
    AjouterGrillesHasard(liste(), hasard_, aleatoire_.type(),
                         std::min(voulues, NbGrillesMax - nombre()));
    AfficherGrille(nombre());
}

}  // namespace norvane::ui
