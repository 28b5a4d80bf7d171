// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "impression/CommandesBulletins.h"

#include <QFont>
#include <QWidget>
#include <utility>

#include "common/Contexte.h"
#include "common/Refus.h"
#include "impression/DessinBulletin.h"
#include "widgets/Impression.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

CommandesBulletins::CommandesBulletins(Contexte& ctx, QWidget* fenetre)
    : QObject(fenetre), contexte_(ctx), fenetre_(fenetre) {}

// ------------------------------------------------------------------------------------ what stands

std::span<const Grille> CommandesBulletins::grilles() const {
    const std::span<const Grille> toutes = contexte_.atelier.billets.ListeGrilles;
    return toutes.first(toutes.size() - (!toutes.empty() && toutes.back().vide() ? 1 : 0));
}

const EtatBulletins& CommandesBulletins::etat() const {
    return contexte_.atelier.bulletins;
}

EtatBulletins& CommandesBulletins::modifiable() {
    return contexte_.atelier.bulletins;
}

OptionsBulletin CommandesBulletins::options() const {
    return etat().options.de(etat().bulletin);
}

double CommandesBulletins::decalageHaut() const {
    return contexte_.atelier.configuration.reglages.DecalageImprimanteBordHaut;
}

double CommandesBulletins::decalageGauche() const {
    return contexte_.atelier.configuration.reglages.DecalageImprimanteBordGauche;
}

bool CommandesBulletins::imprime() const {
    const auto& enCours = contexte_.atelier.activite.enCours;
    return enCours && enCours->genre == GenreTravail::Bulletins;
}

void CommandesBulletins::direErreur(const std::string& phrase) {
    contexte_.services.messages->MessageErreur(versQt(phrase), u"Erreur"_s);
}

void CommandesBulletins::aller(int bulletin) {
    modifiable().bulletin = bulletin;
    modifiable().borner(nombre());
    Q_EMIT change();
}

// ---------------------------------------------------------------------------------------- options

/// The options of the slips changed.
void CommandesBulletins::garder() {
    if (const auto garde = etat().garder(); !garde) direErreur(garde.erreur());
    Q_EMIT change();
}

void CommandesBulletins::RxCheckListBox2StateChange(int item, bool coche) {
    CocherSemaines(modifiable().options.a(etat().bulletin), item, coche);
    garder();
}

void CommandesBulletins::cocherJoker(std::int32_t OptionsBulletin::*champ, int item, bool coche) {
    const auto fait = CocherJoker(modifiable().options.a(etat().bulletin).*champ, item, coche);
    if (!fait) contexte_.services.messages->MessageInfo(versQt(fait.erreur()), u"Message"_s);
    garder();
}

void CommandesBulletins::RxCheckListBox4StateChange(int item, bool coche) {
    cocherJoker(&OptionsBulletin::Joker1, item, coche);
}

void CommandesBulletins::RxCheckListBox5StateChange(int item, bool coche) {
    cocherJoker(&OptionsBulletin::Joker2, item, coche);
}

void CommandesBulletins::cocherJour(std::int16_t OptionsBulletin::*jour, bool coche) {
    modifiable().options.a(etat().bulletin).*jour =
        static_cast<std::int16_t>(coche ? 1 : SansOption);
    garder();
}

/// Stakes are what other works read, and an entry under way goes first.
void CommandesBulletins::changerMises(const std::function<void(std::span<Grille>)>& changer) {
    SaisieBillets& saisie = contexte_.atelier.saisie;
    if (const auto refus = saisie.peutCopier()) {
        direRefus(*contexte_.services.messages, *refus);
    } else if (!contexte_.refuserSiOccupe()) {
        saisie.changerMises(changer);
        contexte_.relais.annoncer({.tickets = true});
    }
    garder();
}

void CommandesBulletins::cocher2ND(int place, bool coche) {
    changerMises([&](std::span<Grille> toutes) {
        const auto siennes = GrillesDuBulletin(toutes, etat().bulletin);
        const auto j = static_cast<std::size_t>(place);
        if (j < siennes.size()) Cocher2ndTirage(siennes[j], coche);
    });
}

void CommandesBulletins::Button72Click() {
    SemainesPourTous(modifiable().options, etat().bulletin, nombre());
    garder();
}

void CommandesBulletins::Button79Click() {
    changerMises([this](std::span<Grille> toutes) {
        OptionsPourTous(modifiable().options, toutes, etat().bulletin);
    });
}

// ------------------------------------------------------------------------------- marks and paper

void CommandesBulletins::choisirMarque(int marque) {
    modifiable().marque = marque;
    Q_EMIT change();
}

void CommandesBulletins::choisirEtendue(EtendueBulletins etendue) {
    modifiable().etendue = etendue;
    Q_EMIT change();
}

void CommandesBulletins::choisirPlage(PlageBulletins plage) {
    modifiable().plage = plage;
    modifiable().etendue = EtendueBulletins::Plage;
    modifiable().borner(nombre());
    Q_EMIT change();
}

void CommandesBulletins::choisirEpreuve(bool epreuve) {
    modifiable().epreuve = epreuve;
}

void CommandesBulletins::choisirDecalages(double haut, double gauche) {
    Reglages& reglages = contexte_.atelier.configuration.reglages;
    reglages.DecalageImprimanteBordHaut = haut;
    reglages.DecalageImprimanteBordGauche = gauche;
}

void CommandesBulletins::ButtonSauverParamsClick() {
    Configuration& configuration = contexte_.atelier.configuration;
    for (const auto& [cle, mm] : {std::pair{"DecalageImprimanteBordHaut", decalageHaut()},
                                  std::pair{"DecalageImprimanteBordGauche", decalageGauche()}}) {
        const auto ecrit =
            configuration.ecrire("CONFIGURATION", cle, QString::number(mm).toStdString());
        if (!ecrit) return direErreur(ecrit.erreur());
    }
    contexte_.relais.dire(u"Décalages de l'imprimante sauvegardés."_s);
}

/// The geometry is read each time: it may have been measured anew since.
MiseEnPlace CommandesBulletins::miseEnPlace() {
    const auto [geometrie, avertissement] = ChargerGeometrie(contexte_.atelier.Repertoire);
    if (!avertissement.empty())
        contexte_.services.messages->MessageAvertissement(versQt(avertissement),
                                                          u"Avertissement"_s);
    return {geometrie, etat().marque, decalageHaut(), decalageGauche()};
}

void CommandesBulletins::lancer(const QString& document, const GeometrieBulletin& geometrie,
                                Peindre peindre) {
    imprimerEnTravail(contexte_, fenetre_,
                      {document,
                       document,
                       u"Impression terminée"_s,
                       QSizeF(geometrie.papier.x, geometrie.papier.y),
                       {GenreTravail::Bulletins, 0, QuelleListe::Aucune},
                       {u"Impression en cours..."_s, jauge_},
                       std::move(peindre),
                       [this] { Q_EMIT impressionChangee(); }});
    Q_EMIT impressionChangee();
}

void CommandesBulletins::BitBtnWithColor18Click() {
    if (imprime()) return contexte_.travaux.arreter();
    if (contexte_.refuserSiOccupe()) return;
    Messages& messages = *contexte_.services.messages;
    const PlageBulletins plage = etat().aImprimer(nombre());
    if (plage.nombre() <= 0) {
        messages.MessageInfo(u"Aucun bulletin à imprimer..."_s, u"Message"_s,
                             nombre() == 0 ? u"Sélectionnez d'abord des grilles dans l'onglet "
                                             u"Résultats, ou copiez-y celles d'une liste."_s
                                           : u"Le premier bulletin demandé vient après le "
                                             u"dernier."_s);
        return;
    }
    LotBulletins lot{
        miseEnPlace(), {grilles().begin(), grilles().end()}, etat().options, plage, etat().epreuve};
    const QString hors =
        versQt(AvertissementHorsPapier(lot.mise, lot.grilles, lot.options, plage.du, plage.au));
    if (!hors.isEmpty() &&
        messages.AvertissementAnnuler(hors, u"Avertissement"_s,
                                      u"Faut-il imprimer malgré tout ?"_s) != CodeBouton1)
        return;
    const GeometrieBulletin geometrie = lot.mise.geometrie;
    lancer(u"Bulletins"_s, geometrie,
           [lot = std::move(lot), fonte = fenetre_->font()](
               QPagedPaintDevice& papier, const PagesVoulues& pages, const Suivi& suivi) {
               return peindreBulletins(papier, lot, fonte, pages, suivi);
           });
}

void CommandesBulletins::calibrer() {
    if (contexte_.refuserSiOccupe()) return;
    const MiseEnPlace mise = miseEnPlace();
    lancer(u"Page de calibrage"_s, mise.geometrie,
           [mise, fonte = fenetre_->font()](QPagedPaintDevice& papier, const PagesVoulues&,
                                            const Suivi&) {
               return peindreCalibrage(papier, mise, fonte);
           });
}

}  // namespace norvane::ui
