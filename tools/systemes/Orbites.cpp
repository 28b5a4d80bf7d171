// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Orbites.h"

#include <algorithm>

namespace systemes {

namespace {

/// Orbits of the r-subsets: the number of the orbit by rank, one subset and the length of each.
struct Classes {
    std::vector<int> numero;
    std::vector<Bloc> representants;
    std::vector<int> longueurs;
};

Classes FaireClasses(const std::vector<Bloc>& parties, const Groupe& groupe) {
    Classes classes;
    classes.numero.assign(parties.size(), -1);
    std::vector<Bloc> file;
    for (std::size_t i = 0; i < parties.size(); ++i) {
        if (classes.numero[i] >= 0) continue;
        const int numero = static_cast<int>(classes.representants.size());
        classes.numero[i] = numero;
        file.assign(1, parties[i]);
        for (std::size_t j = 0; j < file.size(); ++j) {
            for (const Permutation& g : groupe.generateurs) {
                const Bloc image = Image(file[j], g);
                int& n = classes.numero[static_cast<std::size_t>(Rang(image))];
                if (n >= 0) continue;
                n = numero;
                file.push_back(image);
            }
        }
        classes.representants.push_back(parties[i]);
        classes.longueurs.push_back(static_cast<int>(file.size()));
    }
    return classes;
}

void Choisir(Bloc ensemble, int r, Bloc choisis, std::vector<Bloc>& sortie) {
    if (r == 0) {
        sortie.push_back(choisis);
        return;
    }
    while (std::popcount(ensemble) >= r) {
        const Bloc point = ensemble & (~ensemble + 1);
        ensemble ^= point;
        Choisir(ensemble, r - 1, choisis | point, sortie);
    }
}

long EntreesParBloc(const Cle& cle) {
    long n = 0;
    for (int i = cle.t; i <= std::min(cle.k, cle.p); ++i)
        n += Binomial(cle.k, i) * Binomial(cle.v - cle.k, cle.p - i);
    return n;
}

/// The p-subsets that meet the block in t points or more.
void Couverts(const Cle& cle, Bloc bloc, std::vector<Bloc>& sortie) {
    sortie.clear();
    const Bloc dehors = ((Bloc{1} << cle.v) - 1) & ~bloc;
    std::vector<Bloc> coeurs;
    for (int i = cle.t; i <= std::min(cle.k, cle.p); ++i) {
        coeurs.clear();
        Choisir(bloc, i, 0, coeurs);
        for (const Bloc coeur : coeurs) Choisir(dehors, cle.p - i, coeur, sortie);
    }
}

void AjouterColonne(ProblemeOrbites& po, Bloc bloc, int poids, const std::vector<int>& lignes) {
    po.representants.push_back(bloc);
    po.probleme.poids.push_back(poids);
    po.probleme.lignesDe.insert(po.probleme.lignesDe.end(), lignes.begin(), lignes.end());
    po.probleme.debutCol.push_back(static_cast<int>(po.probleme.lignesDe.size()));
}

/// With parts: a row for each t-subset of a part. A block with a point that serves no such subset
/// is no better than another, and left out.
ProblemeOrbites ProblemePartage(const Cle& cle, const Groupe& groupe, long entreesMax) {
    ProblemeOrbites po;
    po.probleme.debutCol.push_back(0);
    std::vector<int> numero(static_cast<std::size_t>(Binomial(cle.v, cle.t)), -1);
    for (const Bloc b : Parties(cle.v, cle.t))
        for (const Bloc part : groupe.parts)
            if ((b & ~part) == 0) numero[static_cast<std::size_t>(Rang(b))] = po.probleme.lignes++;
    const std::vector<Bloc> blocs = Parties(cle.v, cle.k);
    po.colonneDe.assign(blocs.size(), -1);
    std::vector<Bloc> dedans;
    std::vector<int> lignes;
    for (std::size_t i = 0; i < blocs.size(); ++i) {
        const bool utile = std::all_of(groupe.parts.begin(), groupe.parts.end(), [&](Bloc part) {
            const int n = std::popcount(blocs[i] & part);
            return n == 0 || n >= cle.t;
        });
        if (!utile) continue;
        dedans.clear();
        lignes.clear();
        Choisir(blocs[i], cle.t, 0, dedans);
        for (const Bloc b : dedans) {
            const int n = numero[static_cast<std::size_t>(Rang(b))];
            if (n >= 0) lignes.push_back(n);
        }
        po.colonneDe[i] = po.probleme.colonnes();
        AjouterColonne(po, blocs[i], 1, lignes);
        if (static_cast<long>(po.probleme.lignesDe.size()) > entreesMax) return {};
    }
    po.probleme.transposer();
    return po;
}

}  // namespace

std::vector<int> ProblemeOrbites::colonnesDe(const std::vector<Bloc>& blocs) const {
    std::vector<int> colonnes;
    for (const Bloc b : blocs) {
        const int c = colonneDe[static_cast<std::size_t>(Rang(b))];
        if (c >= 0) colonnes.push_back(c);
    }
    std::sort(colonnes.begin(), colonnes.end());
    colonnes.erase(std::unique(colonnes.begin(), colonnes.end()), colonnes.end());
    return colonnes;
}

ProblemeOrbites FaireProbleme(const Cle& cle, const Groupe& groupe, long entreesMax) {
    if (!groupe.parts.empty()) return ProblemePartage(cle, groupe, entreesMax);
    ProblemeOrbites po;
    const std::vector<Bloc> blocs = Parties(cle.v, cle.k);
    Classes colonnes = FaireClasses(blocs, groupe);
    const long nbColonnes = static_cast<long>(colonnes.representants.size());
    const Classes cibles = FaireClasses(Parties(cle.v, cle.p), groupe);
    const long nbLignes = static_cast<long>(cibles.representants.size());
    if (nbColonnes * std::min(EntreesParBloc(cle), nbLignes) > entreesMax) return po;
    po.probleme.lignes = static_cast<int>(nbLignes);
    po.probleme.debutCol.push_back(0);
    std::vector<Bloc> couverts;
    std::vector<int> lignes;
    for (long c = 0; c < nbColonnes; ++c) {
        Couverts(cle, colonnes.representants[c], couverts);
        lignes.clear();
        for (const Bloc b : couverts)
            lignes.push_back(cibles.numero[static_cast<std::size_t>(Rang(b))]);
        std::sort(lignes.begin(), lignes.end());
        lignes.erase(std::unique(lignes.begin(), lignes.end()), lignes.end());
        AjouterColonne(po, colonnes.representants[c], colonnes.longueurs[c], lignes);
    }
    po.colonneDe = std::move(colonnes.numero);
    po.probleme.transposer();
    return po;
}

}  // namespace systemes
