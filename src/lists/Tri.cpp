// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/Tri.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <utility>

#include "tickets/Rangs.h"

namespace norvane {

namespace {

constexpr std::size_t Valeurs = 65536;  ///< of a digit
constexpr std::uint16_t BitSigne = 0x8000;
constexpr int Chiffres = 4;  ///< in a double

/// Sorts record indices by 16-bit digits, the least significant one first: each pass is stable.
class TriParChiffres {
 public:
    TriParChiffres(std::vector<std::uint32_t> ordre, bool croissant)
        : ordre_(std::move(ordre)),
          tampon_(ordre_.size()),
          cles_(ordre_.size()),
          inverse_(croissant ? 0 : 0xFFFF) {}

    template <typename Chiffre>
    void passer(Chiffre chiffre) {
        std::vector<std::uint32_t> places(Valeurs);
        for (std::size_t i = 0; i < ordre_.size(); ++i) {
            cles_[i] = static_cast<std::uint16_t>(chiffre(ordre_[i]) ^ inverse_);
            ++places[cles_[i]];
        }
        if (ordre_.empty() || places[cles_[0]] == ordre_.size()) return;
        std::exclusive_scan(places.begin(), places.end(), places.begin(), 0U);
        for (std::size_t i = 0; i < ordre_.size(); ++i) tampon_[places[cles_[i]]++] = ordre_[i];
        ordre_.swap(tampon_);
    }
    std::vector<std::uint32_t> ordre() && { return std::move(ordre_); }

 private:
    std::vector<std::uint32_t> ordre_;
    std::vector<std::uint32_t> tampon_;
    std::vector<std::uint16_t> cles_;
    const std::uint16_t inverse_;
};

/// What one good number more is worth, by record. Never negative.
std::vector<double> Rapports(const Liste& liste, const GainsNominaux& gains) {
    const Disposition& d = liste.arene.disposition;
    // The sizes whose sum leaves the middle ranks out where all ranks are kept.
    const bool bout = d.mode == ModeStockage::TousLesRangs && d.taille >= 8;
    std::vector<std::pair<std::size_t, double>> termes;
    for (int k = 0; k <= d.taille; ++k) {
        const double gain = GainNominal(d.taille, k, gains);
        if ((d.rangs() >> k & 1) == 0 || gain == 0 || (bout && k < NbBoules)) continue;
        termes.emplace_back(static_cast<std::size_t>(d.bloc(k)), gain);
    }
    std::vector<double> rapports(liste.nombre());
    for (std::size_t i = 0; i < rapports.size(); ++i)
        for (const auto& [mot, gain] : termes) rapports[i] += liste.arene[i][mot] * gain;
    return rapports;
}

/// First words of the blocks that a sort compares, from the one that decides last.
std::vector<std::size_t> Blocs(const Disposition& d, TypeTri type, int rangTri) {
    if (type == TypeTri::Simple) return {static_cast<std::size_t>(d.premierRang())};
    std::vector<std::size_t> blocs;
    for (int k = 0; k <= std::min(rangTri, NbBoules); ++k)
        if ((d.rangs() >> k & 1) != 0) blocs.push_back(static_cast<std::size_t>(d.bloc(k)));
    return blocs;
}

}  // namespace

TypeTri TriPossible(const Liste& liste, TypeTri demande) {
    if (demande == TypeTri::Sans) return demande;
    const bool rangs = liste.mode() == ModeStockage::TousLesRangs ||
                       (liste.mode() == ModeStockage::RangsDeGain && liste.taille() > 2);
    return rangs && liste.NbCombRangs == liste.nombre() ? demande : TypeTri::Simple;
}

std::optional<std::vector<std::uint32_t>> OrdreTrie(const Liste& liste, const EtatTri& tri,
                                                    const GainsNominaux& gains,
                                                    const Suivi& suivi) {
    TriParChiffres tris(OrdreDesLignes(liste), tri.OrdreCroissant);
    const TypeTri type = TriPossible(liste, tri.TypeTriListe);
    const auto avancer = [&](std::size_t fait, std::size_t total) {
        suivi.poser(static_cast<int>(fait * 100 / total));
        return !suivi.arrete();
    };
    if (type == TypeTri::Gain) {
        const std::vector<double> rapports = Rapports(liste, gains);
        for (int c = 0; c < Chiffres; ++c) {
            if (!avancer(static_cast<std::size_t>(c), Chiffres)) return std::nullopt;
            // Doubles that are not negative compare like their bits.
            tris.passer([&](std::uint32_t i) {
                return std::bit_cast<std::uint64_t>(rapports[i]) >> (16 * c) & 0xFFFF;
            });
        }
    } else if (type != TypeTri::Sans) {
        const auto blocs = Blocs(liste.arene.disposition, type, tri.RangTri);
        const Mot* const mots = liste.arene.mots.data();
        const auto pas = static_cast<std::size_t>(liste.arene.disposition.mots());
        for (std::size_t b = 0; b < blocs.size(); ++b) {
            if (!avancer(b, blocs.size())) return std::nullopt;
            const std::size_t mot = blocs[b] + static_cast<std::size_t>(tri.CritereTri);
            tris.passer([=](std::uint32_t i) { return mots[i * pas + mot] ^ BitSigne; });
        }
    }
    return std::move(tris).ordre();
}

void PoserOrdre(Liste& liste, std::vector<std::uint32_t> ordre, const EtatTri& tri) {
    liste.ordre = std::move(ordre);
    liste.tri = tri;
    liste.tri.TypeTriListe = TriPossible(liste, tri.TypeTriListe);
}

void Trier(Liste& liste, const EtatTri& tri, const GainsNominaux& gains) {
    if (tri.TypeTriListe == TypeTri::Sans) return;
    PoserOrdre(liste, *OrdreTrie(liste, tri, gains), tri);
}

std::optional<std::size_t> FiltrerEcart(Liste& liste, int rang, int seuil) {
    const Disposition& d = liste.arene.disposition;
    if (rang < 0 || rang > d.taille || (d.rangs() >> rang & 1) == 0) return std::nullopt;
    const auto mot = static_cast<std::size_t>(d.bloc(rang)) + 1;
    std::vector<bool> gardes(liste.nombre());
    for (std::size_t i = 0; i < gardes.size(); ++i) {
        const Mot ecart = liste.arene[i][mot];
        if (ecart == RangNonCalcule) return std::nullopt;
        gardes[i] = ecart >= seuil;
    }
    Garder(liste, gardes);
    return liste.nombre();
}

}  // namespace norvane
