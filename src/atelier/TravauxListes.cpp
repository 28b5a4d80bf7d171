// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "atelier/TravauxListes.h"

#include <utility>

#include "lists/FichiersListes.h"

namespace norvane {

namespace {

using Ecriture = Resultat<Rien> (*)(const Liste&, const std::filesystem::path&, const Suivi&);

PtrTravail FaireEcriture(Atelier& atelier, QuelleListe source, const std::filesystem::path& fichier,
                         Ecriture ecrire) {
    const Liste& liste = atelier.liste(source);
    return FaireTravail({GenreTravail::Fichier, liste.taille(), source},
                        [=, &liste](const Suivi& suivi) -> Resultat<Rien> {
                            auto ecrit = ecrire(liste, fichier, suivi);
                            return suivi.arrete() ? Rien{} : std::move(ecrit);
                        });
}

}  // namespace

OuvertureListe::OuvertureListe(const Atelier& atelier, QuelleListe cible,
                               std::filesystem::path fichier)
    : Travail({GenreTravail::Fichier, 0, cible}),
      fichier_(std::move(fichier)),
      gains_(FormeGains::de(atelier.configuration.reglages.GainsNominaux)) {}

void OuvertureListe::executer() {
    auto lue = OuvrirListe(fichier_, gains_, {arret(), &progres});
    if (lue) {
        lue_ = *std::move(lue);
        complete_ = true;
    } else if (!arrete()) {
        refuser(lue.erreur());
    }
}

bool OuvertureListe::poser(Atelier& atelier) {
    attendre();
    if (!complete_ || arrete()) return false;
    atelier.liste(description.liste) = std::exchange(lue_, {});
    complete_ = false;
    return true;
}

PtrTravail FaireSauvegardeListe(Atelier& atelier, QuelleListe source,
                                const std::filesystem::path& fichier) {
    return FaireEcriture(atelier, source, fichier, SauverListe);
}

PtrTravail FaireExportListe(Atelier& atelier, QuelleListe source,
                            const std::filesystem::path& fichier) {
    return FaireEcriture(atelier, source, fichier, ExporterListe);
}

}  // namespace norvane
