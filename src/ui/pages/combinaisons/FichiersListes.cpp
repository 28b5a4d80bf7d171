// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/FichiersListes.h"

#include <QProgressBar>
#include <utility>

#include "base/Textes.h"
#include "combinaisons/PanneauListe.h"
#include "common/Enregistrement.h"
#include "lists/FichiersListes.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

const QString FiltreListes = u"Fichiers Listes (*.lst)"_s;
constexpr int OctetsParKilo = 1024;

}  // namespace

FichiersListes::FichiersListes(Contexte& ctx, QWidget* page)
    : QObject(page), contexte_(ctx), page_(page) {}

void FichiersListes::dire(const Travail& travail) {
    if (!travail.erreur().empty())
        contexte_.services.messages->MessageErreur(versQt(travail.erreur()), u"Erreur"_s);
}

void FichiersListes::lancer(PtrTravail travail, const QString& texte, PanneauListe& panneau,
                            std::function<void(Travail&)> fin) {
    if (!contexte_.travaux.lancer(std::move(travail), {texte, &panneau.jauge()}, this,
                                  std::move(fin)))
        contexte_.services.messages->MessageErreur(contexte_.travaux.erreur(), u"Erreur"_s);
}

void FichiersListes::ouvrir(PanneauListe& panneau) {
    if (contexte_.refuserSiOccupe()) return;
    const QuelleListe laquelle = panneau.noms.laquelle;
    Atelier& a = contexte_.atelier;
    if (!a.liste(laquelle).vide() &&
        contexte_.services.messages->AvertissementOuiNon(
            u"La liste en cours sera perdue... Continuer ?"_s, u"Avertissement"_s) != CodeBouton1)
        return;
    const QString fichier = contexte_.services.fichiers->ouvrir(
        page_->window(), u"Charger une liste"_s, versQt(a.Repertoire.string()), FiltreListes);
    if (fichier.isEmpty()) return;
    lancer(PtrTravail(new OuvertureListe(a, laquelle, cheminDe(fichier))),
           u"Décompression en cours..."_s, panneau, [this, &panneau](Travail& travail) {
               panneau.boite().revenirEnTete();
               if (static_cast<OuvertureListe&>(travail).poser(contexte_.atelier))
                   contexte_.relais.annoncer({.listes = true});
               dire(travail);
           });
}

void FichiersListes::sauver(PanneauListe& panneau) {
    const auto octets = TailleTexteListe(contexte_.atelier.liste(panneau.noms.laquelle));
    ecrire(panneau, u"Enregistrer la liste"_s, {FiltreListes, u"lst"_s},
           u"Taille totale: %1 Kb, Compression en cours..."_s.arg(octets / OctetsParKilo),
           FaireSauvegardeListe);
}

void FichiersListes::exporter(PanneauListe& panneau) {
    ecrire(panneau, u"Exporter la liste"_s, {u"Fichiers Texte (*.txt)"_s, u"txt"_s},
           u"Exportation en cours..."_s, FaireExportListe);
}

void FichiersListes::ecrire(PanneauListe& panneau, const QString& titre,
                            const FormatFichier& format, const QString& texte, Faire faire) {
    if (contexte_.refuserSiOccupe()) return;
    Atelier& a = contexte_.atelier;
    const auto fichier =
        demanderFichier(contexte_, page_->window(), titre, versQt(a.Repertoire.string()), {format});
    if (!fichier) return;
    lancer(faire(a, panneau.noms.laquelle, cheminDe(fichier->nom)), texte, panneau,
           [this, nom = fichier->nom](Travail& travail) {
               dire(travail);
               if (travail.erreur().empty() && !travail.arrete())
                   direEnregistre(contexte_, u"Liste enregistrée"_s, nom);
           });
}

}  // namespace norvane::ui
