// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <numeric>
#include <random>

#include "lists/PuitsListe.h"

namespace norvane {
namespace {

using Issue = Transfert::Issue;
using Choisies = std::vector<std::size_t>;

/// A list as a row of lines, each with all its words: what the operations do, the plain way.
struct Modele {
    struct Ligne {
        std::vector<Mot> mots;
        bool marque = false;
        friend bool operator==(const Ligne&, const Ligne&) = default;
    };
    Disposition disposition{0, ModeStockage::PremierRang};
    int de = 0, a = 0;
    std::vector<Ligne> lignes;

    std::vector<Mot> numeros(const Ligne& l) const {
        return {l.mots.end() - disposition.taille, l.mots.end()};
    }
    std::size_t rangs() const {
        return static_cast<std::size_t>(
            std::count_if(lignes.begin(), lignes.end(), [&](const Ligne& l) {
                return disposition.blocs() > 1 && l.mots[1] != RangNonCalcule;
            }));
    }
    Modele prendre(const Choisies& choisies) {
        Modele prises{disposition, de, a, {}};
        for (const std::size_t l : choisies) prises.lignes.push_back(lignes[l]);
        return prises;
    }
    void retirer(const Choisies& choisies) {
        for (auto l = choisies.rbegin(); l != choisies.rend(); ++l)
            lignes.erase(lignes.begin() + static_cast<std::ptrdiff_t>(*l));
        if (lignes.empty()) *this = {};
    }
    void trier(bool croissant) {
        std::stable_sort(lignes.begin(), lignes.end(), [&](const Ligne& x, const Ligne& y) {
            return croissant ? numeros(x) < numeros(y) : numeros(y) < numeros(x);
        });
    }
};

void Comparer(const Liste& liste, const Modele& modele) {
    ASSERT_EQ(liste.nombre(), modele.lignes.size());
    EXPECT_EQ(liste.vide(), modele.lignes.empty());
    EXPECT_EQ(liste.taille(), modele.disposition.taille);
    EXPECT_EQ(liste.mode(), modele.disposition.mode);
    EXPECT_EQ(std::pair(liste.DebutListe, liste.FinListe), std::pair(modele.de, modele.a));
    EXPECT_EQ(liste.NbCombRangs, modele.rangs());
    for (std::size_t l = 0; l < modele.lignes.size(); ++l) {
        const auto& mots = modele.lignes[l].mots;
        const auto e = liste.enregistrement(l);
        ASSERT_TRUE(std::ranges::equal(e, mots)) << l;
        ASSERT_EQ(liste.marque(l), modele.lignes[l].marque) << l;
        ASSERT_TRUE(std::ranges::equal(liste.numeros(l), modele.numeros(modele.lignes[l])));
        const Combinaison c = liste.combinaison(l);
        ASSERT_EQ(c.NbFois, mots[static_cast<std::size_t>(modele.disposition.premierRang())]);
        ASSERT_EQ(c.numeros.taille(), modele.disposition.taille);
        ASSERT_EQ(c.marque, modele.lignes[l].marque);
    }
}

/// Few numbers, so that lines repeat; half of the lower ranks filled, some lines marked.
std::pair<Liste, Modele> Inventer(std::mt19937& hasard, Disposition d, std::size_t n, int de = 1) {
    Modele modele{d, de, 500, {}};
    Liste liste;
    liste.arene.disposition = d;
    liste.DebutListe = de;
    liste.FinListe = 500;
    std::vector<Mot> boules(static_cast<std::size_t>(d.taille + 2));
    std::iota(boules.begin(), boules.end(), Mot{1});
    for (std::size_t i = 0; i < n; ++i) {
        Modele::Ligne l;
        for (int m = 0; m < d.numeros(); ++m) l.mots.push_back(static_cast<Mot>(hasard() % 9));
        if (hasard() % 2 == 0) l.mots[1] = RangNonCalcule;
        std::ranges::shuffle(boules, hasard);
        std::sort(boules.begin(), boules.begin() + d.taille);
        l.mots.insert(l.mots.end(), boules.begin(), boules.begin() + d.taille);
        l.marque = hasard() % 5 == 0;
        liste.arene.mots.insert(liste.arene.mots.end(), l.mots.begin(), l.mots.end());
        liste.marques.push_back(l.marque);
        modele.lignes.push_back(l);
    }
    liste.NbCombRangs = modele.rangs();
    return {std::move(liste), std::move(modele)};
}

Choisies Choisir(std::mt19937& hasard, std::size_t n) {
    Choisies choisies;
    const auto sur = hasard() % 4 + 1;
    for (std::size_t l = 0; l < n; ++l)
        if (hasard() % sur == 0) choisies.push_back(l);
    return choisies;
}

TEST(Liste, OperationsContreDesLignesSimples) {
    std::mt19937 hasard(41);
    const Disposition dispositions[] = {{2, ModeStockage::PremierRang},
                                        {3, ModeStockage::RangsDeGain},
                                        {2, ModeStockage::RangsDeGain},  // its only rank
                                        {6, ModeStockage::TousLesRangs}};
    for (int essai = 0; essai < 60; ++essai) {
        const Disposition d = dispositions[essai % 4];
        auto [liste, modele] = Inventer(hasard, d, 1 + hasard() % 60);
        auto [autre, autreModele] = Inventer(hasard, d, hasard() % 20);
        if (autre.vide()) autre = {}, autreModele = {};
        for (int pas = 0; pas < 25; ++pas) {
            SCOPED_TRACE(testing::Message() << essai << "." << pas);
            const auto choisies = Choisir(hasard, liste.nombre());
            const auto operation = hasard() % 6;
            if (operation < 2) {
                const auto prises = modele.prendre(choisies);
                const auto fait = operation == 0 ? Copier(liste, choisies, autre)
                                                 : Deplacer(liste, choisies, autre);
                EXPECT_EQ(fait.issue, Issue::Fait);
                EXPECT_EQ(fait.faits, choisies.size());
                if (autreModele.lignes.empty() && !choisies.empty())
                    autreModele = {prises.disposition, prises.de, prises.a, {}};
                autreModele.lignes.insert(autreModele.lignes.end(), prises.lignes.begin(),
                                          prises.lignes.end());
                if (operation == 1 && !choisies.empty()) modele.retirer(choisies);
            } else if (operation == 2) {
                Supprimer(liste, choisies);
                if (!choisies.empty()) modele.retirer(choisies);
            } else if (operation == 3) {
                const bool croissant = hasard() % 2 == 0;
                TrierLexico(liste, croissant);
                modele.trier(croissant);
            } else if (operation == 4) {
                const std::size_t n = hasard() % (liste.nombre() + 5);
                Couper(liste, n);
                modele.lignes.resize(std::min(n, modele.lignes.size()));
                if (modele.lignes.empty()) modele = {};
            } else {
                modele.trier(true);
                Choisies doubles;
                for (std::size_t l = 0; l + 1 < modele.lignes.size(); ++l)
                    if (modele.numeros(modele.lignes[l]) == modele.numeros(modele.lignes[l + 1]))
                        doubles.push_back(l);
                EXPECT_EQ(RetirerDoublons(liste), doubles.size());
                if (!doubles.empty()) modele.retirer(doubles);
            }
            Comparer(liste, modele);
            Comparer(autre, autreModele);
            if (hasard() % 3 == 0) std::swap(liste, autre), std::swap(modele, autreModele);
        }
        for (std::size_t l = 0; l < modele.lignes.size(); ++l) {
            const auto numeros = modele.numeros(modele.lignes[l]);
            std::size_t premiere = 0;
            while (modele.numeros(modele.lignes[premiere]) != numeros) ++premiere;
            EXPECT_EQ(Position(liste, numeros), premiere);
        }
        EXPECT_EQ(Position(liste, std::vector<Mot>{48, 49}), std::nullopt);
    }
}

TEST(Liste, SeulesLesListesPareillesSeMelent) {
    std::mt19937 hasard(42);
    const Disposition paires{2, ModeStockage::TousLesRangs};
    const auto [source, modele] = Inventer(hasard, paires, 5);
    Liste pareille = Inventer(hasard, paires, 3).first, fin = pareille;
    fin.FinListe = 499;
    const Liste autres[] = {Inventer(hasard, {3, paires.mode}, 3).first,
                            Inventer(hasard, {2, ModeStockage::RangsDeGain}, 3).first,
                            Inventer(hasard, paires, 3, 2).first, fin};
    const Choisies toutes = {0, 1, 2, 3, 4};
    for (const Liste& autre : autres) {
        EXPECT_FALSE(Compatibles(source, autre));
        Liste cible = autre, copie = source;
        EXPECT_EQ(Copier(source, toutes, cible).issue, Issue::Incompatible);
        EXPECT_EQ(Deplacer(copie, toutes, cible).issue, Issue::Incompatible);
        EXPECT_EQ(cible.arene.mots, autre.arene.mots);
        EXPECT_EQ(copie.nombre(), 5U);
        // Emptied, the same list takes them; the sort and the rest of its past are gone.
        Supprimer(cible, Choisies{0, 1, 2});
        cible.partielle = true;
        EXPECT_EQ(Deplacer(copie, toutes, cible).faits, 5U);
        Comparer(cible, modele);
        EXPECT_TRUE(cible.entiere());
        EXPECT_TRUE(copie.vide());
        EXPECT_EQ(copie.taille(), 0);
    }
    EXPECT_EQ(Deplacer(pareille, Choisies{0}, pareille).faits, 0U);
    EXPECT_EQ(pareille.nombre(), 3U);
    pareille.tri = {TypeTri::Gain, Critere::Suite, true, 2};
    Copier(source, {}, pareille);
    EXPECT_EQ(pareille.tri.TypeTriListe, TypeTri::Gain);
    Copier(source, Choisies{0}, pareille);
    EXPECT_EQ(pareille.tri, EtatTri{});
}

TEST(Liste, UneCiblePleinePrendLesPremieres) {
    std::mt19937 hasard(43);
    const Disposition d{5, ModeStockage::PremierRang};
    auto [source, modele] = Inventer(hasard, d, 10);
    Liste cible = Inventer(hasard, d, CapaciteListe - 3).first;
    const Choisies choisies = {1, 2, 4, 7, 9};
    auto fait = Deplacer(source, choisies, cible);
    EXPECT_EQ(fait.issue, Issue::Plein);
    EXPECT_EQ(fait.faits, 3U);
    EXPECT_EQ(cible.nombre(), CapaciteListe);
    EXPECT_TRUE(std::ranges::equal(cible.enregistrement(CapaciteListe - 1), modele.lignes[4].mots));
    modele.retirer({1, 2, 4});
    Comparer(source, modele);
    fait = Copier(source, Choisies{0}, cible);
    EXPECT_EQ(fait.issue, Issue::Plein);
    EXPECT_EQ(fait.faits, 0U);
    Supprimer(cible, Choisies{5});
    EXPECT_EQ(Copier(source, Choisies{0}, cible).issue, Issue::Fait);

    // A main list may be longer than what it shows.
    Liste longue = Inventer(hasard, d, CapaciteListe + 2).first;
    EXPECT_EQ(Copier(source, Choisies{0}, longue).issue, Issue::Plein);
    EXPECT_EQ(longue.nombre(), CapaciteListe + 2);
}

TEST(Liste, SousListes) {
    std::mt19937 hasard(44);
    const struct {
        std::size_t n, taille, nombre, derniere;
    } cas[] = {{7, 3, 3, 1}, {6, 3, 2, 3}, {5, 5, 1, 5}, {4, 1, 4, 1}};
    for (const auto& c : cas) {
        auto [liste, modele] = Inventer(hasard, {3, ModeStockage::TousLesRangs}, c.n);
        TrierLexico(liste, false);
        modele.trier(false);
        EXPECT_EQ(TailleSousListeMax(liste), c.n);
        liste.division.enPreparation = true;
        Diviser(liste, c.taille);
        EXPECT_EQ(liste.division, (Division{false, c.taille, c.nombre}));
        Liste cible = Inventer(hasard, {4, ModeStockage::PremierRang}, 3).first;
        std::vector<Modele::Ligne> revues;
        for (std::size_t k = 1; k <= c.nombre; ++k) {
            ExtraireSousListe(liste, k, cible);
            EXPECT_EQ(cible.nombre(), k < c.nombre ? c.taille : c.derniere);
            EXPECT_EQ(cible.division, Division{});
            const std::size_t debut = (k - 1) * c.taille;
            Choisies lignes(cible.nombre());
            std::iota(lignes.begin(), lignes.end(), debut);
            Comparer(cible, modele.prendre(lignes));
        }
        // Lines that go leave the cut as it is; a new list is not cut.
        Couper(liste, 1);
        EXPECT_EQ(liste.division.NbSousListes, c.nombre);
        ExtraireSousListe(liste, 5, cible);
        EXPECT_TRUE(cible.vide());
        Vider(liste);
        EXPECT_EQ(liste.division, Division{});
        EXPECT_EQ(TailleSousListeMax(liste), 0U);
    }
    EXPECT_EQ(TailleSousListeMax(
                  Inventer(hasard, {2, ModeStockage::PremierRang}, CapaciteListe + 1).first),
              CapaciteListe);
}

TEST(Liste, DeLignesEtDUneRecherche) {
    const std::vector<Combinaison> lignes = {{{7, 23}, 112}, {{1, 49}, 3, true}, {{2, 3}, 0}};
    Liste liste = ListeDeCombinaisons(2, lignes);
    ASSERT_EQ(liste.nombre(), 3U);
    EXPECT_EQ(liste.taille(), 2);
    for (std::size_t l = 0; l < 3; ++l) EXPECT_EQ(liste.combinaison(l), lignes[l]);
    EXPECT_TRUE(liste.entiere());
    liste.total = 9;
    EXPECT_FALSE(liste.entiere());
    EXPECT_EQ(liste.nombreTotal(), 9U);
    Couper(liste, 2);
    EXPECT_EQ(liste.nombreTotal(), 8U);
    liste.total = 0;
    liste.partielle = true;
    EXPECT_FALSE(liste.entiere());

    PuitsListe puits;
    Progres progres;
    progres.commencer(48);
    puits.SetProgress(1);
    puits.progres = &progres;
    puits.liste.arene.disposition = {2, ModeStockage::PremierRang};
    puits.Reserver(14);
    const std::vector<Mot> mots = {5, 1, 2, 3, 4, 8, 9};
    for (const int place : {7, 31}) {
        puits.AddRecord(mots);
        puits.SetProgress(place);
    }
    EXPECT_EQ(progres.fait(), 31);
    EXPECT_EQ(puits.liste.arene.mots.capacity(), 14U);
    EXPECT_EQ(puits.liste.combinaison(1), (Combinaison{{8, 9}, 5}));
}

}  // namespace
}  // namespace norvane
