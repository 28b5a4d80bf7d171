// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is done to a list that stands: its ranks, its interval, its order.
#include <fmt/format.h>

#include <utility>

#include "Passage.h"

namespace norvane {

namespace {

/// A list of fewer records is sorted before anyone could see it work.
constexpr std::size_t AssezPourUnFil = 50000;

}  // namespace

/// Sorts beside the list, which may be shown meanwhile.
class Moteur::TravailTri final : public Travail {
 public:
    TravailTri(const Liste& liste, QuelleListe laquelle, const EtatTri& tri,
               const GainsNominaux& gains)
        : Travail({GenreTravail::Tri, liste.taille(), laquelle}),
          tri_(tri),
          liste_(liste),
          gains_(gains) {}

    const EtatTri tri_;
    std::optional<std::vector<std::uint32_t>> ordre;  ///< after the end, unless stopped

 private:
    void executer() override { ordre = OrdreTrie(liste_, tri_, gains_, {arret(), &progres}); }

    const Liste& liste_;
    const GainsNominaux gains_;
};

ReponseClic Moteur::RemplirRangs(QuelleListe laquelle) {
    if (atelier_.activite.occupe() || passage_) return Refuser(Attendez);
    Liste& liste = atelier_.liste(laquelle);
    if (liste.vide() || liste.arene.disposition.blocs() == 1) return Refuser({});
    CompterRangs(liste);
    if (liste.NbCombRangs == liste.nombre()) return Refuser({});
    passage_ = std::make_unique<Passage>();
    auto fil = PtrFil<TRemplirRangsSearch>(
        new TRemplirRangsSearch(contexte(), *passage_->puitsListe, liste.arene, laquelle));
    passage_->puitsListe->progres = &fil->progres;
    fil->garde = passage_->puitsListe;
    return lancer(std::move(fil), &Moteur::finirRangs);
}

void Moteur::finirRangs(TRemplirRangsSearch& fil, FinTraitement& fin) {
    Liste& liste = atelier_.liste(fil.description.liste);
    CompterRangs(liste);
    fin.arrete = fin.arrete && !fil.complet();
    if (fil.aTourne()) liste.secondes = fin.secondes;
}

ReponseClic Moteur::Adapter(QuelleListe laquelle) {
    return adapter(laquelle, false);
}

ReponseClic Moteur::TrierEcart(QuelleListe laquelle) {
    const Liste& liste = atelier_.liste(laquelle);
    const TriEcartAvance& tri = atelier_.triEcartAvance;
    if (!tri.actif || liste.taille() != tri.taille) return Refuser({});
    if ((liste.arene.disposition.rangs() >> tri.rang & 1) == 0)
        return Refuser(fmt::format(
            "Le Tri Ecart Avancé porte sur le rang {}, que la liste en mémoire ne garde pas : "
            "recommencez le calcul en stockant tous les rangs.",
            tri.rang));
    return adapter(laquelle, true);
}

ReponseClic Moteur::adapter(QuelleListe laquelle, bool trierEcart) {
    if (atelier_.activite.occupe() || passage_) return Refuser(Attendez);
    Liste& liste = atelier_.liste(laquelle);
    if (liste.vide()) return Refuser({});
    passage_ = std::make_unique<Passage>();
    passage_->trierEcart = trierEcart;
    // The lines would change under the eyes of whoever reads them: the worker has the list alone.
    passage_->puitsListe->liste = std::exchange(liste, {});
    auto fil = PtrFil<TRemplirRangsAdaptationSearch>(new TRemplirRangsAdaptationSearch(
        contexte(), *passage_->puitsListe, passage_->puitsListe->liste.arene, laquelle));
    passage_->puitsListe->progres = &fil->progres;
    fil->garde = passage_->puitsListe;
    return lancer(std::move(fil), &Moteur::finirAdaptation);
}

void Moteur::finirAdaptation(TRemplirRangsAdaptationSearch& fil, FinTraitement& fin) {
    Liste& liste = atelier_.liste(fil.description.liste);
    liste = std::move(passage_->puitsListe->liste);
    fin.arrete = fin.arrete && !fil.complet();
    if (!fil.aTourne() || fil.nombre() == 0) return;
    liste.melangee =
        fin.arrete && (liste.melangee || liste.DebutListe != atelier_.occurrences.IntervalleInf ||
                       liste.FinListe != atelier_.occurrences.IntervalleSup);
    liste.DebutListe = atelier_.occurrences.IntervalleInf;
    liste.FinListe = atelier_.occurrences.IntervalleSup;
    liste.tri = {};
    liste.secondes = fin.secondes;
    CompterRangs(liste);
    if (passage_->trierEcart && fil.complet())
        fin.gardees =
            FiltrerEcart(liste, atelier_.triEcartAvance.rang, atelier_.triEcartAvance.seuil);
}

ReponseClic Moteur::Trier(QuelleListe laquelle, const EtatTri& tri) {
    if (atelier_.activite.occupe() || passage_) return Refuser(Attendez);
    Liste& liste = atelier_.liste(laquelle);
    if (tri.TypeTriListe == TypeTri::Sans || liste.nombre() < 2) return Refuser({});
    const GainsNominaux& gains = atelier_.configuration.reglages.GainsNominaux;
    if (liste.nombre() < AssezPourUnFil) {
        norvane::Trier(liste, tri, gains);
        return Montre();
    }
    passage_ = std::make_unique<Passage>();
    return lancer(PtrFil<TravailTri>(new TravailTri(liste, laquelle, tri, gains)),
                  &Moteur::finirTri);
}

void Moteur::finirTri(TravailTri& fil, FinTraitement& fin) {
    fin.arrete = fin.arrete && !fil.ordre;
    if (fil.ordre)
        PoserOrdre(atelier_.liste(fil.description.liste), *std::move(fil.ordre), fil.tri_);
}

std::size_t Moteur::nombreEnCours(QuelleListe laquelle) const {
    const bool enMain = passage_ && passage_->travail != nullptr &&
                        passage_->travail->description.genre == GenreTravail::Adaptation &&
                        passage_->travail->description.liste == laquelle;
    return (enMain ? passage_->puitsListe->liste : std::as_const(atelier_).liste(laquelle))
        .nombre();
}

}  // namespace norvane
