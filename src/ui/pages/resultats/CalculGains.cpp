// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/CalculGains.h"

#include <algorithm>
#include <memory>
#include <QProgressBar>
#include <QPushButton>

#include "base/Fichiers.h"
#include "pages/Page.h"
#include "tickets/Bilan.h"
#include "tickets/Verification.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

struct TextesAction {
    const char16_t* titre;
    const char16_t* indice;
};
/// By Action.
constexpr TextesAction Textes[] = {
    {u"&Vérifier gains",
     u"Calcul des gains pour toutes les grilles (voir le fichier \"Lotoveri.dat\")\n"},
    {u"&Bilan Gains",
     u"Bilan des gains pour toutes les grilles (voir le fichier \"Bilan.dat\")|Bilan effectué "
     u"selon "
     u"l'intervalle des tirages choisi dans l'onglet \"Numéros\""},
    {u"STOP", u"Arrêter le bilan des gains"},
};

Monnaie monnaieDe(const Reglages& reglages) {
    return {reglages.SymboleMonnaie, reglages.TauxConversion};
}

}  // namespace

CalculGains::CalculGains(Contexte& ctx, QPushButton& VerifGains, QProgressBar& jauge)
    : contexte_(ctx), VerifGains_(VerifGains), jauge_(jauge) {
    poser(Action::Verifier);
}

CalculGains::~CalculGains() = default;

void CalculGains::poser(Action action) {
    action_ = action;
    const TextesAction& textes = Textes[static_cast<int>(action)];
    VerifGains_.setText(QString::fromUtf16(textes.titre));
    poserIndice(&VerifGains_, QString::fromUtf16(textes.indice));
    jauge_.setVisible(action == Action::Arreter);
    Q_EMIT actionChange();
}

void CalculGains::poserBilan(bool bilan) {
    const Action action = bilan ? Action::Bilan : Action::Verifier;
    if (action_ != Action::Arreter && action_ != action) poser(action);
}

void CalculGains::VerifGainsClick(int tirage) {
    if (action_ == Action::Arreter) {
        arreter();
        return;
    }
    if (contexte_.refuserSiOccupe()) return;
    if (action_ == Action::Bilan) {
        lancerBilan();
    } else {
        verifier(tirage);
    }
}

void CalculGains::verifier(int tirage) {
    Messages& messages = *contexte_.services.messages;
    const Atelier& atelier = contexte_.atelier;
    if (tirage < 0) {
        messages.MessageAvertissement(u"Il faut d'abord sélectionner un tirage en mémoire..."_s,
                                      u"Avertissement"_s);
        return;
    }
    if (atelier.ListeGrilles.empty()) {
        messages.MessageInfo(u"Aucune grille sélectionnée..."_s, u"Message"_s,
                             u"Cliquez sur le bouton Sélection afin de saisir des grilles."_s);
        return;
    }
    publier(NomVerification,
            RedigerVerification(atelier.base, tirage + 1, atelier.ListeGrilles, atelier.ListeJoker,
                                monnaieDe(atelier.configuration.reglages)));
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
    Atelier& atelier = contexte_.atelier;
    const int n = atelier.base.NbTirages;
    if (n < 1) return;
    const int inf = std::clamp(atelier.StatsNumeros.inf, 1, n);
    const int sup = atelier.StatsNumeros.sup < inf ? n : std::min(atelier.StatsNumeros.sup, n);
    // The busy rule keeps base and configuration as they are until the end.
    const auto texte = std::make_shared<std::string>();
    auto travail = FaireTravail(
        {GenreTravail::Bilan},
        [texte, inf, sup, &base = atelier.base, grilles = atelier.ListeGrilles,
         monnaie =
             monnaieDe(atelier.configuration.reglages)](const Suivi& suivi) -> Resultat<Rien> {
            SuiviBilan bilan{[&suivi](int pourcent) { suivi.poser(pourcent); }, suivi.arret, 0};
            *texte = RedigerBilan(base, inf, sup, grilles, monnaie, bilan).value_or(std::string());
            return Rien{};
        });
    if (contexte_.travaux.lancer(std::move(travail),
                                 {u"Bilan des gains en cours..."_s, &jauge_, nullptr}, this,
                                 [this, texte](Travail& fini) { finirBilan(*texte, fini); })) {
        poser(Action::Arreter);
    } else {
        contexte_.services.messages->MessageErreur(contexte_.travaux.erreur(), u"Erreur"_s);
    }
}

void CalculGains::finirBilan(const std::string& texte, const Travail& travail) {
    poser(Action::Bilan);
    // A window that waits for the end of the work closes now, without a word on it.
    if (contexte_.atelier.activite.QuitterEnAttente) return;
    if (!travail.erreur().empty()) {
        contexte_.services.messages->MessageErreur(versQt(travail.erreur()), u"Erreur"_s);
    } else if (!travail.arrete()) {
        publier(NomBilan, texte);
    }
}

void CalculGains::arreter() {
    contexte_.travaux.arreter();
}

}  // namespace norvane::ui
