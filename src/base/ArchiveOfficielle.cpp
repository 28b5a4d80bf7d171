// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/ArchiveOfficielle.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <optional>
#include <span>

#include "base/Archive.h"
#include "base/Dates.h"
#include "base/Fichiers.h"
#include "base/Textes.h"
#include "Controle.h"

namespace norvane {

namespace {

/// Well above fifty years of draws; an archive that unpacks to more is none.
constexpr std::uint64_t TailleMax = std::uint64_t{64} << 20;
constexpr int LignesParRegard = 256;  // between two looks at the stop
constexpr std::size_t RangsSix = 6;
/// Where the six ranks of before DateNouveauxRangs stand among the nine.
constexpr std::array<std::size_t, RangsSix> PlaceSixRangs = {0, 1, 3, 5, 7, 8};

using Champs = std::vector<std::string_view>;

/// The next line, without its end.
std::string_view PrendreLigne(std::string_view& texte) {
    const std::size_t fin = std::min(texte.find('\n'), texte.size());
    std::string_view ligne = texte.substr(0, fin);
    texte.remove_prefix(std::min(fin + 1, texte.size()));
    if (ligne.ends_with('\r')) ligne.remove_suffix(1);
    return ligne;
}

void Couper(std::string_view ligne, Champs& champs) {
    champs.clear();
    for (;;) {
        const std::size_t fin = std::min(ligne.find(';'), ligne.size());
        std::string_view champ = Rogner(ligne.substr(0, fin));
        if (champ.size() > 1 && champ.front() == '"' && champ.back() == '"')
            champ = Rogner(champ.substr(1, champ.size() - 2));
        champs.push_back(champ);
        if (fin == ligne.size()) return;
        ligne.remove_prefix(fin + 1);
    }
}

/// A column's name without what varies in it: case, blanks, underscores.
std::string NomNormal(std::string_view nom) {
    std::string normal;
    for (const char c : nom)
        if (std::isalnum(static_cast<unsigned char>(c)) != 0)
            normal += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return normal;
}

/// Where the columns stand; -1 for one that the archive does not have.
struct Colonnes {
    int annee = -1, date = -1, forclusion = -1, chance = -1, joker = -1;
    std::array<int, NbBoules> boules{}, boules2nd{};
    std::array<int, NbRangsLoto> gagnants{}, rapports{};
    std::array<int, NbRangs2nd> gagnants2nd{}, rapports2nd{};
    std::size_t rangs = 0;  ///< prize ranks of the 1er Tirage

    explicit Colonnes(const Champs& titres) {
        std::vector<std::string> noms;
        for (const std::string_view titre : titres) noms.push_back(NomNormal(titre));
        const auto place = [&](const std::string& nom) {
            const auto lieu = std::ranges::find(noms, nom);
            return lieu == noms.end() ? -1 : static_cast<int>(lieu - noms.begin());
        };
        annee = place("anneenumerodetirage");
        date = place("datedetirage");
        forclusion = place("datedeforclusion");
        chance = place("numerochance");
        joker = place("numerojokerplus");
        const auto suite = [&](auto& cible, const char* debut, const char* fin) {
            for (std::size_t i = 0; i < cible.size(); ++i)
                cible[i] = place(fmt::format("{}{}{}", debut, i + 1, fin));
        };
        suite(boules, "boule", "");
        suite(boules2nd, "boule", "secondtirage");
        suite(gagnants, "nombredegagnantaurang", "");
        suite(rapports, "rapportdurang", "");
        suite(gagnants2nd, "nombredegagnantaurang", "secondtirage");
        suite(rapports2nd, "rapportdurang", "secondtirage");
        while (rangs < NbRangsLoto && gagnants[rangs] >= 0 && rapports[rangs] >= 0) ++rangs;
    }
    bool complet() const {
        return date >= 0 && chance >= 0 && std::ranges::min(boules) >= 0 && rangs >= RangsSix;
    }
    bool second() const { return std::ranges::min(boules2nd) >= 0; }
};

/// One line taken apart: its first fault stays.
class Ligne {
 public:
    explicit Ligne(const Champs& champs) : champs_(champs) {}

    std::string_view champ(int colonne) const {
        const auto c = static_cast<std::size_t>(colonne);
        return colonne < 0 || c >= champs_.size() ? std::string_view() : champs_[c];
    }
    std::int32_t entier(int colonne, const char* quoi) {
        const std::string_view texte = champ(colonne);
        std::int32_t n = 0;
        const auto [fin, erreur] = std::from_chars(texte.data(), texte.data() + texte.size(), n);
        if (erreur != std::errc{} || fin != texte.data() + texte.size() || n < 0)
            refuser(texte, quoi);
        return n;
    }
    double montant(int colonne, const char* quoi) {
        const std::string_view texte = champ(colonne);
        if (texte.empty()) return 0;
        const auto lu = LireMontant(texte);
        if (!lu) refuser(texte, quoi);
        return lu.value_or(0);
    }
    /// yyyymmdd, from dd/mm/yyyy or yyyymmdd; 0 for an empty field that may be so.
    std::int32_t date(int colonne, const char* quoi, bool vidable) {
        const std::string_view texte = champ(colonne);
        if (texte.empty() && vidable) return 0;
        std::string chiffres(texte);
        if (texte.size() == 10 && texte[2] == '/' && texte[5] == '/')
            chiffres =
                fmt::format("{}{}{}", texte.substr(6), texte.substr(3, 2), texte.substr(0, 2));
        std::int32_t n = 0;
        const char* fin = chiffres.data() + chiffres.size();
        if (chiffres.size() != 8 || std::from_chars(chiffres.data(), fin, n).ptr != fin ||
            !DateValide(n))
            refuser(texte, quoi);
        return n;
    }
    void refuser(std::string_view texte, const char* quoi) {
        if (defaut.empty()) defaut = fmt::format("« {} » n'est pas {}", Citer(texte), quoi);
    }

    std::string defaut;

 private:
    const Champs& champs_;
};

/// 2023066 and 20233057 stay; 26092 has a year of two digits. Other texts make none.
std::int32_t AnneeNumero(Ligne& ligne, int colonne) {
    if (colonne < 0 || ligne.champ(colonne).empty()) return 0;
    const std::int32_t n = ligne.entier(colonne, "un numéro de tirage dans l'année");
    constexpr int DeuxChiffres = 100'000;
    return n >= 10'000 && n < DeuxChiffres ? 2'000'000 + n : n;
}

/// Seven digits, with blanks among them or not; anything else was not published.
std::int32_t Joker(std::string_view texte) {
    std::int32_t joker = 0;
    int chiffres = 0;
    for (const char c : texte) {
        if (c == ' ') continue;
        if (c < '0' || c > '9' || ++chiffres > 7) return JokerAbsent;
        joker = 10 * joker + (c - '0');
    }
    return chiffres == 7 ? joker : JokerAbsent;
}

void LireBoules(Ligne& ligne, std::span<const int> colonnes, Tirage& tirage) {
    for (std::size_t i = 0; i < NbBoules; ++i)
        tirage.Numeros[i] = ligne.entier(colonnes[i], "un numéro de 1 à 49");
    std::ranges::sort(tirage.Numeros);
}

void LireRapport(Ligne& ligne, int gagnants, int gain, Rapport& rapport) {
    rapport = {ligne.montant(gagnants, "un nombre de gagnants"),
               ligne.montant(gain, "un montant en euros")};
    if (rapport.Gagnants == 0) rapport.Gain = 0;
}

TirageArchive LirePremier(Ligne& ligne, const Colonnes& c) {
    TirageArchive lu{};
    Tirage& t = lu.tirage;
    t.DateTirage = ligne.date(c.date, "une date de tirage", false);
    t.DateForclusion = ligne.date(c.forclusion, "une date de forclusion", true);
    t.AnneeNumero = AnneeNumero(ligne, c.annee);
    t.SousTirage = 1;
    t.Joker = Joker(ligne.champ(c.joker));
    LireBoules(ligne, c.boules, t);
    t.Chance = ligne.entier(c.chance, "une chance de 1 à 10");
    // Ranks that are not paid yet in a table of nine are those of six.
    const bool six = c.rangs < NbRangsLoto || t.DateTirage < DateNouveauxRangs;
    for (std::size_t r = 0; r < (six ? RangsSix : c.rangs); ++r)
        LireRapport(ligne, c.gagnants[r], c.rapports[r], lu.rapports[six ? PlaceSixRangs[r] : r]);
    return lu;
}

/// The second record of a line; nothing where there was no such draw.
std::optional<TirageArchive> LireSecond(Ligne& ligne, const Colonnes& c,
                                        const TirageArchive& premier) {
    if (!c.second() || ligne.champ(c.boules2nd[0]).empty()) return std::nullopt;
    TirageArchive lu{premier.tirage, {}};
    lu.tirage.SousTirage = 2;
    lu.tirage.Chance = 0;
    LireBoules(ligne, c.boules2nd, lu.tirage);
    for (std::size_t r = 0; r < NbRangs2nd; ++r)
        LireRapport(ligne, c.gagnants2nd[r], c.rapports2nd[r], lu.rapports[r]);
    return lu;
}

/// What keeps the line out; empty when its records were taken.
std::string Prendre(const Champs& champs, const Colonnes& colonnes,
                    std::vector<TirageArchive>& tirages) {
    Ligne ligne(champs);
    const TirageArchive premier = LirePremier(ligne, colonnes);
    const auto second = LireSecond(ligne, colonnes, premier);
    if (!ligne.defaut.empty()) return ligne.defaut;
    if (premier.tirage.DateTirage < DateNouveauLoto)
        return "ce tirage est d'avant le jeu actuel (6 octobre 2008)";
    const auto defaut = [](const TirageArchive& t) {
        Tirage essai = t.tirage;
        if (essai.AnneeNumero == 0) essai.AnneeNumero = essai.DateTirage / 10000 * 1000;
        return DefautTirage(essai, t.rapports);
    };
    std::string faute = defaut(premier);
    if (faute.empty() && second) faute = defaut(*second);
    if (!faute.empty()) return faute;
    tirages.push_back(premier);
    if (second) tirages.push_back(*second);
    return {};
}

bool Avant(const TirageArchive& a, const TirageArchive& b) {
    return EstApres(a.tirage, b.tirage);
}

bool EstZip(std::string_view octets) {
    return octets.starts_with("PK");
}

Resultat<ArchiveOfficielle> LireTable(std::string_view texte, std::string_view nom,
                                      const Suivi& suivi) {
    const auto taille = static_cast<double>(std::max<std::size_t>(texte.size(), 1));
    texte = SansMarqueOctets(texte);
    Champs champs;
    Couper(PrendreLigne(texte), champs);
    const Colonnes colonnes(champs);
    if (!colonnes.complet())
        return Erreur{fmt::format(
            "« {} » n'est pas l'archive officielle des tirages du Loto : sa première ligne ne "
            "nomme pas la date, les cinq boules, la chance et les rapports. Rien n'est changé.",
            nom)};
    ArchiveOfficielle archive;
    for (int numero = 2; !texte.empty(); ++numero) {
        if (numero % LignesParRegard == 0) {
            if (suivi.arrete()) return Erreur{"Lecture de l'archive arrêtée."};
            suivi.poser(static_cast<int>(100 * (1 - static_cast<double>(texte.size()) / taille)));
        }
        const std::string_view ligne = PrendreLigne(texte);
        if (Rogner(ligne).empty()) continue;
        Couper(ligne, champs);
        std::string raison = Prendre(champs, colonnes, archive.tirages);
        if (!raison.empty()) archive.refusees.push_back({numero, std::move(raison)});
    }
    if (archive.tirages.empty())
        return Erreur{fmt::format(
            "« {} » ne contient aucun tirage lisible{}. Rien n'est changé.", nom,
            archive.refusees.empty() ? ""
                                     : fmt::format(" : ligne {}, {}", archive.refusees[0].numero,
                                                   archive.refusees[0].raison))};
    std::ranges::stable_sort(archive.tirages, Avant);
    const auto memeTirage = [](const TirageArchive& a, const TirageArchive& b) {
        return !Avant(a, b);
    };
    archive.tirages.erase(std::unique(archive.tirages.begin(), archive.tirages.end(), memeTirage),
                          archive.tirages.end());
    suivi.poser(100);
    return archive;
}

/// The record as it is once the archive has told what it knows.
TirageArchive Completer(const TirageArchive& ancien, const TirageArchive& archive) {
    TirageArchive nouveau = archive;
    if (nouveau.tirage.Joker == JokerAbsent) nouveau.tirage.Joker = ancien.tirage.Joker;
    if (nouveau.tirage.DateForclusion == 0)
        nouveau.tirage.DateForclusion = ancien.tirage.DateForclusion;
    if (nouveau.tirage.AnneeNumero == 0) nouveau.tirage.AnneeNumero = ancien.tirage.AnneeNumero;
    // A draw whose prizes are not out yet takes none away.
    const bool sansGain = std::ranges::all_of(
        nouveau.rapports, [](const Rapport& r) { return r.Gagnants == 0 && r.Gain == 0; });
    if (sansGain) nouveau.rapports = ancien.rapports;
    return nouveau;
}

}  // namespace

Resultat<ArchiveOfficielle> LireArchiveOfficielle(std::string_view octets, std::string_view nom,
                                                  const Suivi& suivi) {
    if (!EstZip(octets)) return LireTable(octets, nom, suivi);
    const auto membre = LireArchive(octets, nom, TailleMax, {suivi.arret});
    if (!membre) return Erreur{membre.erreur()};
    return LireTable(membre->contenu, nom, suivi);
}

Resultat<Fusion> FusionnerArchive(Base& base, const ArchiveOfficielle& archive) {
    Fusion fusion;
    std::vector<Tirage> tirages;
    std::vector<RapportsTirage> rapports;
    const auto nombre = static_cast<std::size_t>(base.NbTirages);
    tirages.reserve(nombre + archive.tirages.size());
    rapports.reserve(tirages.capacity());
    const auto poser = [&](const TirageArchive& t) {
        tirages.push_back(t.tirage);
        rapports.push_back(t.rapports);
    };
    std::size_t i = 0;
    const auto ancien = [&] { return TirageArchive{base.Tirages[i], base.Rapports[i]}; };
    for (const TirageArchive& venu : archive.tirages) {
        while (i < nombre && EstApres(base.Tirages[i], venu.tirage)) {
            poser(ancien());
            ++i;
        }
        const bool connu = i < nombre && !EstApres(venu.tirage, base.Tirages[i]);
        if (!connu) {
            TirageArchive nouveau = venu;
            std::int32_t& annee = nouveau.tirage.AnneeNumero;
            if (annee == 0) annee = nouveau.tirage.DateTirage / 10000 * 1000;
            poser(nouveau);
            ++fusion.ajoutes;
            continue;
        }
        const TirageArchive avant = ancien();
        const TirageArchive apres = Completer(avant, venu);
        const bool pareil = avant.tirage == apres.tirage && avant.rapports == apres.rapports;
        ++(pareil ? fusion.inchanges : fusion.modifies);
        poser(apres);
        ++i;
    }
    for (; i < nombre; ++i) poser(ancien());
    if (tirages.size() > static_cast<std::size_t>(NbTiragesMax))
        return Erreur{fmt::format(
            "La base est limitée à {} tirages et l'archive l'y porterait à {} : rien n'est changé.",
            NbTiragesMax, tirages.size())};
    base.NbTirages = static_cast<std::int32_t>(tirages.size());
    base.Tirages = std::move(tirages);
    base.Rapports = std::move(rapports);
    return fusion;
}

}  // namespace norvane
