// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/Liste.h"

#include <numeric>
#include <utility>

namespace norvane {

namespace {

/// The numbers of a record so that a smaller value comes first.
std::uint64_t CleNumeros(const Liste& liste, std::uint32_t enregistrement) {
    constexpr int BitsParNumero = 6;
    std::uint64_t cle = 0;
    for (const Mot n : liste.arene[enregistrement].subspan(
             static_cast<std::size_t>(liste.arene.disposition.numeros())))
        cle = cle << BitsParNumero | n;
    return cle;
}

/// Whether a record has lower ranks and they are filled: one word of the first block tells.
bool RangsRemplis(const Disposition& d, std::span<const Mot> enregistrement) {
    return d.premierRang() != 0 && enregistrement[1] != RangNonCalcule;
}

/// Lines in the order of the keys of their records, those with equal keys as they stood.
template <typename Calcul>
void TrierSelon(Liste& liste, Calcul calculer) {
    struct Entree {
        decltype(calculer(0U)) cle;
        std::uint32_t indice;
    };
    std::vector<Entree> entrees;
    entrees.reserve(liste.nombre());
    for (const std::uint32_t i : OrdreDesLignes(liste)) entrees.push_back({calculer(i), i});
    std::ranges::stable_sort(entrees, {}, &Entree::cle);
    liste.ordre.resize(entrees.size());
    std::ranges::transform(entrees, liste.ordre.begin(), &Entree::indice);
    liste.tri = {};
}

}  // namespace

void CompterRangs(Liste& liste) {
    liste.NbCombRangs = 0;
    for (std::size_t i = 0; i < liste.nombre(); ++i)
        liste.NbCombRangs +=
            static_cast<std::size_t>(RangsRemplis(liste.arene.disposition, liste.arene[i]));
}

Liste ListeDeCombinaisons(int taille, std::span<const Combinaison> lignes) {
    Liste liste;
    liste.arene.disposition = {taille, ModeStockage::PremierRang};
    const auto pas = static_cast<std::size_t>(liste.arene.disposition.mots());
    liste.arene.mots.resize(lignes.size() * pas);
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        const std::span<Mot> mots = liste.arene[i];
        mots[0] = static_cast<Mot>(lignes[i].NbFois);
        std::ranges::copy(lignes[i].numeros, mots.begin() + MotsParBloc);
        if (!lignes[i].marque) continue;
        liste.marques.resize(lignes.size());
        liste.marques[i] = true;
    }
    return liste;
}

bool Compatibles(const Liste& source, const Liste& cible) {
    return cible.vide() ||
           (source.arene.disposition == cible.arene.disposition &&
            source.DebutListe == cible.DebutListe && source.FinListe == cible.FinListe);
}

Transfert Copier(const Liste& source, LignesChoisies lignes, Liste& cible) {
    if (&source == &cible || lignes.empty()) return {};
    if (!Compatibles(source, cible)) return {Transfert::Issue::Incompatible, 0};
    if (cible.vide()) {
        Vider(cible);
        cible.arene.disposition = source.arene.disposition;
        cible.DebutListe = source.DebutListe;
        cible.FinListe = source.FinListe;
    }
    const std::size_t avant = cible.nombre();
    const std::size_t faits =
        std::min(lignes.size(), avant < CapaciteListe ? CapaciteListe - avant : 0);
    auto& mots = cible.arene.mots;
    mots.reserve(mots.size() + faits * static_cast<std::size_t>(source.arene.disposition.mots()));
    for (const std::size_t ligne : lignes.first(faits)) {
        const auto enregistrement = source.enregistrement(ligne);
        mots.insert(mots.end(), enregistrement.begin(), enregistrement.end());
        cible.NbCombRangs +=
            static_cast<std::size_t>(RangsRemplis(source.arene.disposition, enregistrement));
        if (cible.marques.empty() && !source.marque(ligne)) continue;
        cible.marques.resize(cible.nombre());
        cible.marques.back() = source.marque(ligne);
    }
    if (!cible.ordre.empty()) {
        cible.ordre.resize(cible.nombre());
        std::iota(cible.ordre.begin() + static_cast<std::ptrdiff_t>(avant), cible.ordre.end(),
                  static_cast<std::uint32_t>(avant));
    }
    if (faits > 0) {
        cible.tri = {};
        cible.melangee = cible.melangee || source.melangee;
    }
    if (cible.total > 0) cible.total += faits;
    return {faits < lignes.size() ? Transfert::Issue::Plein : Transfert::Issue::Fait, faits};
}

Transfert Deplacer(Liste& source, LignesChoisies lignes, Liste& cible) {
    const Transfert fait = Copier(source, lignes, cible);
    if (fait.faits > 0) Supprimer(source, lignes.first(fait.faits));
    return fait;
}

void Supprimer(Liste& liste, LignesChoisies lignes) {
    if (lignes.empty()) return;
    std::vector<bool> gardes(liste.nombre(), true);
    for (const std::size_t ligne : lignes) gardes[liste.indice(ligne)] = false;
    Garder(liste, gardes);
}

void Couper(Liste& liste, std::size_t n) {
    if (n >= liste.nombre()) return;
    std::vector<bool> gardes(liste.nombre());
    for (std::size_t ligne = 0; ligne < n; ++ligne) gardes[liste.indice(ligne)] = true;
    Garder(liste, gardes);
}

void Garder(Liste& liste, const std::vector<bool>& gardes) {
    if (std::ranges::find(gardes, false) == gardes.end()) return;
    auto& mots = liste.arene.mots;
    const auto pas = static_cast<std::ptrdiff_t>(liste.arene.disposition.mots());
    std::vector<std::uint32_t> place(gardes.size());
    std::uint32_t n = 0;
    for (std::size_t i = 0; i < gardes.size(); ++i) {
        place[i] = n;
        if (!gardes[i]) continue;
        if (n != i) {
            const auto debut = mots.begin() + static_cast<std::ptrdiff_t>(i) * pas;
            std::copy(debut, debut + pas, mots.begin() + static_cast<std::ptrdiff_t>(n) * pas);
            if (!liste.marques.empty()) liste.marques[n] = liste.marques[i];
        }
        ++n;
    }
    mots.resize(static_cast<std::size_t>(n) * static_cast<std::size_t>(pas));
    if (!liste.marques.empty()) liste.marques.resize(n);
    std::erase_if(liste.ordre, [&](std::uint32_t i) { return !gardes[i]; });
    for (std::uint32_t& i : liste.ordre) i = place[i];
    if (liste.total > 0) liste.total -= gardes.size() - n;
    if (n == 0) return Vider(liste);
    CompterRangs(liste);
}

std::vector<std::uint32_t> OrdreDesLignes(const Liste& liste) {
    if (!liste.ordre.empty()) return liste.ordre;
    std::vector<std::uint32_t> ordre(liste.nombre());
    std::iota(ordre.begin(), ordre.end(), 0U);
    return ordre;
}

void Vider(Liste& liste) {
    liste = {};
}

void TrierLexico(Liste& liste, bool croissant) {
    TrierSelon(liste, [&](std::uint32_t i) {
        const std::uint64_t cle = CleNumeros(liste, i);
        return croissant ? cle : ~cle;
    });
}

void TrierFrequence(Liste& liste) {
    const auto premierRang = static_cast<std::size_t>(liste.arene.disposition.premierRang());
    TrierSelon(liste, [&](std::uint32_t i) {
        return std::pair(-int{liste.arene[i][premierRang]}, CleNumeros(liste, i));
    });
}

std::size_t RetirerDoublons(Liste& liste) {
    TrierLexico(liste, true);
    const std::size_t avant = liste.nombre();
    std::vector<bool> gardes(avant, true);
    for (std::size_t ligne = 0; ligne + 1 < avant; ++ligne)
        if (std::ranges::equal(liste.numeros(ligne), liste.numeros(ligne + 1)))
            gardes[liste.indice(ligne)] = false;
    Garder(liste, gardes);
    return avant - liste.nombre();
}

std::size_t TailleSousListeMax(const Liste& liste) {
    return std::min(liste.nombre(), CapaciteListe);
}

void Diviser(Liste& liste, std::size_t taille) {
    liste.division = {.enPreparation = false,
                      .TailleSousListe = taille,
                      .NbSousListes = (liste.nombre() + taille - 1) / taille};
}

void ExtraireSousListe(const Liste& liste, std::size_t numero, Liste& cible) {
    Vider(cible);
    const std::size_t debut =
        std::min((numero - 1) * liste.division.TailleSousListe, liste.nombre());
    const std::size_t fin = std::min(debut + liste.division.TailleSousListe, liste.nombre());
    std::vector<std::size_t> lignes(fin - debut);
    std::iota(lignes.begin(), lignes.end(), debut);
    Copier(liste, lignes, cible);
}

std::optional<std::size_t> Position(const Liste& liste, std::span<const Mot> numeros) {
    if (static_cast<int>(numeros.size()) != liste.taille()) return std::nullopt;
    for (std::size_t ligne = 0; ligne < liste.nombre(); ++ligne)
        if (std::ranges::equal(liste.numeros(ligne), numeros)) return ligne;
    return std::nullopt;
}

}  // namespace norvane
