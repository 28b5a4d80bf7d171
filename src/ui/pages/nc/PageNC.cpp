// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "nc/PageNC.h"

#include <memory>
#include <QHBoxLayout>
#include <QProgressBar>

#include "common/Enregistrement.h"
#include "common/Refus.h"
#include "common/Theme.h"
#include "nc/PanneauCategories.h"
#include "nc/PanneauSelectionNC.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

const QString FiltreListes = u"Fichiers Listes Numéros et Chances (*.dat)"_s;

}  // namespace

PageNC::PageNC(Contexte& ctx, QWidget* parent)
    : Page(ctx, u"Varo9"_s, u"Combinaisons N + C"_s, parent),
      nc_(ctx.atelier.nc),
      hasard_(ctx.services.hasard->graine()) {
    construire();
    relier();
    montrerTout();
}

void PageNC::construire() {
    selection_ = new PanneauSelectionNC(this);
    auto* resultats = new Fiche(this);
    resultats->pile->addWidget(categories_ = new PanneauCategories(contexte, resultats));
    auto* grilles = new Fiche(this);
    grilles->pile->addWidget(liste_ = new PanneauListeNC(nc_, grilles));

    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(2 * Unite);
    gauche->addWidget(selection_, 1);
    gauche->addWidget(resultats);
    auto* page = new QHBoxLayout(this);
    page->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    page->setSpacing(2 * Unite);
    page->addLayout(gauche, 1);
    page->addWidget(grilles);
    const QList<QWidget*> ordre =
        selection_->ordreTabulation() + liste_->ordreTabulation() + categories_->ordreTabulation();
    for (qsizetype i = 1; i < ordre.size(); ++i) setTabOrder(ordre[i - 1], ordre[i]);
}

void PageNC::relier() {
    connect(selection_, &PanneauSelectionNC::bascule, this, &PageNC::RxCheckListBox3StateChange);
    connect(selection_, &PanneauSelectionNC::Button61Click, this, &PageNC::Button61Click);
    connect(selection_, &PanneauSelectionNC::Button62Click, this, &PageNC::Button62Click);
    connect(selection_, &PanneauSelectionNC::Button63Click, this, &PageNC::Button63Click);
    connect(categories_, &PanneauCategories::historiqueDemande, this, &PageNC::historique);
    connect(categories_, &PanneauCategories::tirageDemande, this, &PageNC::allerAuTirage);
    connect(categories_, &PanneauCategories::jamaisSorti, this,
            [this] { dire(u"Rang non sorti sur la période..."_s); });
    connect(liste_, &PanneauListeNC::ComboBox6Change, this, &PageNC::ComboBox6Change);
    connect(liste_, &PanneauListeNC::ligneChoisie, this, &PageNC::ListBox4Click);
    connect(liste_, &PanneauListeNC::geste, this, &PageNC::faire);
}

void PageNC::surChange(const Changement& changement) {
    if (changement.base || changement.intervalle) montrerTicket();
}

void PageNC::surDepart() {
    categories_->cacherBulle();
}

bool PageNC::accepte(const Reponse& reponse) {
    if (reponse) direRefus(*contexte.services.messages, *reponse);
    return !reponse;
}

void PageNC::dire(const QString& phrase, const QString& detail) {
    contexte.services.messages->MessageInfo(phrase, u"Message"_s, detail);
}

void PageNC::montrerTicket() {
    const Occurrences& occ = contexte.atelier.occurrences;
    categories_->montrer(nc_.montree, occ.IntervalleInf, occ.IntervalleSup);
}

void PageNC::montrerTout() {
    selection_->montrer(nc_.SelectionNC);
    montrerTicket();
    liste_->montrer();
}

// ------------------------------------------------------------------------------------- the ticket

void PageNC::RxCheckListBox3StateChange(GenreStats genre, int valeur) {
    if (accepte(nc_.basculer(genre, valeur))) selection_->montrer(nc_.SelectionNC);
}

void PageNC::Button61Click() {
    nc_.decocherTout();
    selection_->montrer(nc_.SelectionNC);
}

void PageNC::Button62Click() {
    if (contexte.refuserSiOccupe()) return;
    if (accepte(nc_.valider())) montrerTout();
}

void PageNC::Button63Click(TypeGrille type) {
    nc_.tirer(hasard_, type);
    selection_->montrer(nc_.SelectionNC);
}

void PageNC::ListBox4Click(int ligne) {
    const auto laquelle = static_cast<std::size_t>(ligne);
    if (laquelle >= nc_.ListeNC.size()) return;
    nc_.choisirLigne(laquelle);
    liste_->montrerLigne();
    montrerTicket();
}

void PageNC::Button60Click() {
    if (contexte.refuserSiOccupe()) return;
    SaisieBillets& saisie = contexte.atelier.saisie;
    const auto grille = nc_.grille();
    if (!accepte(grille ? saisie.peutAjouterAuStock() : SelectionIncomplete())) return;
    saisie.ajouterAuStock(*grille);
    contexte.relais.annoncer({.tickets = true});
    contexte.relais.dire(u"Grille ajoutée en place %1 des grilles au choix"_s.arg(
        contexte.atelier.billets.ListeChoix.size()));
}

void PageNC::historique(int categorie) {
    const Occurrences& occ = contexte.atelier.occurrences;
    contexte.relais.aller(
        VersHistorique{CategorieChances{nc_.montree.numeros, nc_.montree.chances, categorie},
                       occ.IntervalleInf, occ.IntervalleSup});
}

/// The ticket in the stock, put there if need be, on a draw.
void PageNC::allerAuTirage(int tirage) {
    if (contexte.refuserSiOccupe()) return;
    SaisieBillets& saisie = contexte.atelier.saisie;
    const auto grille = nc_.grille();
    if (!grille) return;
    if (saisie.placeDansStock(*grille) == 0 || saisie.enSelection()) {
        if (!accepte(saisie.peutAjouterAuStock())) return;
        saisie.ajouterAuStock(*grille);
        contexte.relais.annoncer({.tickets = true});
    }
    contexte.relais.aller(VersGrille{saisie.placeDansStock(*grille), tirage});
}

// --------------------------------------------------------------------------------------- the list

void PageNC::ComboBox6Change(TypeGrille type) {
    if (!contexte.refuserSiOccupe()) nc_.choisirType(type);
    liste_->montrer();
}

void PageNC::faire(PanneauListeNC::Geste geste) {
    switch (geste) {
        case PanneauListeNC::FiltreC:
            if (contexte.refuserSiOccupe()) return;
            nc_.filtrerChances();
            return liste_->montrer();
        case PanneauListeNC::Filtre0:
            return filtrer(&CombinaisonsNC::filtrerGagnantes);
        case PanneauListeNC::FiltreSorties:
            return filtrer(&CombinaisonsNC::filtrerSorties);
        case PanneauListeNC::Jamais:
            return Button67Click();
        case PanneauListeNC::Ouvrir:
            return Button68Click();
        case PanneauListeNC::Sauver:
            return Button69Click();
        default:
            return Button60Click();
    }
}

void PageNC::filtrer(void (CombinaisonsNC::*filtre)(const SortiesNC&)) {
    const Atelier& a = contexte.atelier;
    if (contexte.refuserSiOccupe()) return;
    (nc_.*filtre)(SortiesNC(a.base, a.occurrences.IntervalleInf, a.occurrences.IntervalleSup));
    liste_->montrer();
}

bool PageNC::rechercheEnCours() const {
    const Travail* travail = contexte.travaux.enCours();
    return travail != nullptr && travail->description.genre == GenreTravail::JamaisSorties;
}

bool PageNC::lancer(PtrTravail travail, const QString& texte, std::function<void(Travail&)> fin) {
    const bool lance = contexte.travaux.lancer(std::move(travail), {texte, &liste_->jauge()}, this,
                                               std::move(fin));
    if (!lance) contexte.services.messages->MessageErreur(contexte.travaux.erreur(), u"Erreur"_s);
    return lance;
}

void PageNC::Button67Click() {
    if (rechercheEnCours()) {
        contexte.travaux.arreter();
        return;
    }
    if (contexte.refuserSiOccupe()) return;
    const Atelier& a = contexte.atelier;
    const Liste& combinaisons = a.ListeMemoire;
    if (combinaisons.vide() || combinaisons.taille() != NbBoules) {
        dire(
            u"Combinaisons manquantes..."_s,
            u"Vous devez d'abord calculer des combinaisons de 5 numéros dans l'onglet "
            u"'Combinaisons N' en mode 'Combinaisons selon les bornes' avant d'utiliser cette "
            u"fonction... (cette dernière distinguera à partir de la liste calculée toutes les "
            u"combinaisons de numéros et chances qui ne sont jamais sorties et ceci sur aucun rang "
            u"de gain !!)"_s);
        return;
    }
    const auto trouvees = std::make_shared<Trouvees>();
    // The busy rule keeps base and list as they are until the end.
    auto travail = FaireTravail(
        {GenreTravail::JamaisSorties, NbBoules},
        [trouvees, &combinaisons,
         sorties = SortiesNC(a.base, a.occurrences.IntervalleInf, a.occurrences.IntervalleSup)](
            const Suivi& suivi) -> Resultat<Rien> {
            *trouvees = JamaisSorties(
                sorties, combinaisons.nombre(),
                [&](std::size_t i) { return Ensemble::de(combinaisons.numeros(i)); }, suivi);
            return Rien{};
        });
    const bool lance =
        lancer(std::move(travail), u"Recherche des grilles jamais sorties en cours..."_s,
               [this, trouvees](Travail& fini) { finirRecherche(*trouvees, fini); });
    if (!lance) return;
    nc_.prendre(TypeJamaisSorties, {});
    liste_->montrer();
    liste_->montrerRecherche(true);
}

void PageNC::finirRecherche(Trouvees& trouvees, const Travail& travail) {
    nc_.prendre(TypeJamaisSorties, std::move(trouvees.lignes), trouvees.arretee);
    liste_->montrer();
    liste_->montrerRecherche(false);
    // A window that waits for the end of the work closes now, without a word on it.
    if (travail.erreur().empty() || contexte.atelier.activite.QuitterEnAttente) return;
    contexte.services.messages->MessageErreur(versQt(travail.erreur()), u"Erreur"_s);
}

void PageNC::Button68Click() {
    if (contexte.refuserSiOccupe()) return;
    const std::filesystem::path fichier =
        contexte.services.fichiers
            ->ouvrir(this, u"Charger une liste (numéros et chances)"_s,
                     versQt(contexte.atelier.Repertoire.string()), FiltreListes)
            .toStdString();
    if (fichier.empty()) return;
    const auto lue = std::make_shared<std::vector<LigneNC>>();
    auto travail =
        FaireTravail({GenreTravail::Fichier}, [lue, fichier](const Suivi&) -> Resultat<Rien> {
            auto liste = ChargerListeNC(fichier);
            if (!liste) return Erreur{liste.erreur()};
            *lue = *std::move(liste);
            return Rien{};
        });
    lancer(std::move(travail), u"Chargement en cours..."_s, [this, lue](Travail& fini) {
        if (contexte.atelier.activite.QuitterEnAttente) return;
        if (!fini.erreur().empty()) {
            contexte.services.messages->MessageErreur(versQt(fini.erreur()), u"Erreur"_s);
            return;
        }
        const TypeGrille type = lue->front().type();
        nc_.prendre(type, std::move(*lue));
        liste_->montrer();
    });
}

void PageNC::Button69Click() {
    if (contexte.refuserSiOccupe()) return;
    if (nc_.ListeNC.empty()) {
        dire(u"Aucune grille en liste..."_s,
             u"Validez une sélection ou ouvrez une liste avant d'utiliser cette fonction."_s);
        return;
    }
    enregistrerSous(contexte, this,
                    {u"Enregistrer la liste (numéros et chances)"_s,
                     versQt(contexte.atelier.Repertoire.string()),
                     {{FiltreListes, u"dat"_s}},
                     u"Liste enregistrée"_s,
                     [this](const std::filesystem::path& fichier, std::size_t) {
                         return EnregistrerListeNC(nc_.ListeNC, fichier);
                     }});
}

}  // namespace norvane::ui
