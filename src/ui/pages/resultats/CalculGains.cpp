// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/CalculGains.h"

#include <algorithm>
#include <memory>

#include "base/Fichiers.h"
#include "common/Contexte.h"
#include "common/Refus.h"
#include "tickets/Bilan.h"
#include "tickets/Verification.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

Monnaie monnaieDe(const Reglages& reglages) {
    return {reglages.SymboleMonnaie, reglages.TauxConversion};
}

}  // namespace

CalculGains::CalculGains(Contexte& ctx, QProgressBar* jauge, QObject* parent)
    : QObject(parent), contexte_(ctx), jauge_(jauge) {}

bool CalculGains::enCours() const {
    const Travail* travail = contexte_.travaux.enCours();
    return travail != nullptr && travail->description.genre == GenreTravail::Bilan;
}

void CalculGains::VerifGainsClick(int tirage) {
    if (enCours()) {
        contexte_.travaux.arreter();
    } else if (!contexte_.refuserSiOccupe()) {
        if (contexte_.atelier.saisie.bilan()) {
            lancerBilan();
        } else {
            verifier(tirage);
        }
    }
}

void CalculGains::verifier(int tirage) {
    const Atelier& atelier = contexte_.atelier;
    if (const Reponse refus = atelier.saisie.peutVerifier(tirage >= 0)) {
        direRefus(*contexte_.services.messages, *refus);
        return;
    }
    publier(
        NomVerification,
        RedigerVerification(atelier.base, tirage + 1, atelier.billets.ListeGrilles,
                            atelier.billets.ListeJoker, monnaieDe(atelier.configuration.reglages)));
}

/// Writes a report and opens it with the desktop's viewer.
void CalculGains::publier(const char* nom, const std::string& texte) {
    Messages& messages = *contexte_.services.messages;
    const auto fichier = contexte_.atelier.fichier(nom);
    if (const auto ecrit = EcrireFichier(fichier, texte); !ecrit) {
        messages.MessageErreur(versQt(ecrit.erreur()), u"Erreur"_s);
        return;
    }
    if (!contexte_.services.lanceur->ouvrirDocument(versQt(fichier.string()))) {
        messages.MessageInfo(u"Impossible de lancer le Bloc-notes depuis l'Application"_s,
                             u"Message"_s);
    }
}

void CalculGains::lancerBilan() {
    const Atelier& atelier = contexte_.atelier;
    const int n = atelier.base.NbTirages;
    if (n < 1) return;
    const int inf = std::clamp(atelier.StatsNumeros.inf, 1, n);
    const int sup = atelier.StatsNumeros.sup < inf ? n : std::min(atelier.StatsNumeros.sup, n);
    const auto texte = std::make_shared<std::string>();
    // The busy rule keeps base and configuration as they are until the end.
    auto travail = FaireTravail(
        {GenreTravail::Bilan},
        [texte, inf, sup, &base = atelier.base, grilles = atelier.billets.ListeGrilles,
         monnaie =
             monnaieDe(atelier.configuration.reglages)](const Suivi& suivi) -> Resultat<Rien> {
            *texte = RedigerBilan(base, inf, sup, grilles, monnaie, suivi).value_or(std::string());
            return Rien{};
        });
    if (!contexte_.travaux.lancer(std::move(travail), {u"Bilan des gains en cours..."_s, jauge_},
                                  this,
                                  [this, texte](Travail& fini) { finirBilan(*texte, fini); })) {
        contexte_.services.messages->MessageErreur(contexte_.travaux.erreur(), u"Erreur"_s);
    }
    Q_EMIT enCoursChange();
}

void CalculGains::finirBilan(const std::string& texte, const Travail& travail) {
    Q_EMIT enCoursChange();
    // A window that waits for the end of the work closes now, without a word on it.
    if (contexte_.atelier.activite.QuitterEnAttente) return;
    if (!travail.erreur().empty()) {
        contexte_.services.messages->MessageErreur(versQt(travail.erreur()), u"Erreur"_s);
    } else if (!travail.arrete()) {
        publier(NomBilan, texte);
    }
}

}  // namespace norvane::ui
