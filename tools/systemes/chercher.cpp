// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// norvane-systemes-chercher STOCK v k p t SECONDS SEED [groupe=NAME] [memoire=FILE] [entrees=N]
//     [reprise=1]
// Searches smaller designs of a key, unless the bound of connus.tsv is met: several groups in turn,
// half of them given up after each round. Every design smaller than the one in the stock is proved
// and written at once. The memory holds what each group came to, so that later runs begin with the
// best. With "reprise", goes on from the design of the stock, under a subgroup of its group or
// none.
#include <algorithm>
#include <cmath>
#include <ctime>
#include <fstream>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "Orbites.h"

namespace {

using namespace systemes;
constexpr long PasParTranche = 500;

struct Options {
    std::string racine;
    Cle cle;
    double secondes = 0;
    std::uint64_t graine = 0;
    std::string groupe;
    std::string memoire;
    long entrees = 30'000'000;
    bool reprise = false;
};

/// Time of the processor since, in seconds: what else runs on the machine takes nothing away.
double Depuis(std::clock_t debut) {
    return static_cast<double>(std::clock() - debut) / CLOCKS_PER_SEC;
}

/// One search under one group, kept alive from round to round.
struct Essai {
    Groupe groupe;
    ProblemeOrbites po;
    std::unique_ptr<Recherche> recherche;
    std::uint64_t graine = 0;
    double secondes = 0;
};

class Chercheur {
 public:
    explicit Chercheur(Options options)
        : o_(std::move(options)), alea_(o_.graine), debut_(std::clock()) {
        for (const Connu& c : LireConnus(o_.racine))
            if (c.cle == o_.cle) borne_ = c.borne;
        borneAtteinte_ = Taille(o_.racine, o_.cle).value_or(borne_ + 1) <= borne_;
    }

    void chercher();

 private:
    std::vector<Groupe> choisir(int combien);
    std::unique_ptr<Essai> ouvrir(const Groupe& groupe);
    void travailler(Essai& essai, double secondes);
    void garder(const Essai& essai);
    void retenir(const Essai& essai) const;
    void reprendre();
    double reste() const { return borneAtteinte_ ? 0 : o_.secondes - Depuis(debut_); }

    Options o_;
    std::mt19937_64 alea_;
    std::clock_t debut_;
    long borne_ = 0;  ///< no design is smaller
    bool borneAtteinte_ = false;
};

/// Half from the memory, the best first, the others at random.
std::vector<Groupe> Chercheur::choisir(int combien) {
    std::map<std::string, long> connus;
    std::ifstream entree(o_.memoire);
    Cle c;
    std::string nom;
    long poids = 0;
    double secondes = 0;
    while (entree >> c.v >> c.k >> c.p >> c.t >> nom >> poids >> secondes) {
        if (c != o_.cle) continue;
        const auto [place, neuf] = connus.try_emplace(nom, poids);
        if (!neuf) place->second = std::min(place->second, poids);
    }
    std::vector<std::pair<long, std::string>> ordre;
    for (const auto& [n, p] : connus) ordre.emplace_back(p, n);
    std::sort(ordre.begin(), ordre.end());
    std::vector<Groupe> groupes;
    for (std::size_t i = 0; i < ordre.size() && 2 * i < static_cast<std::size_t>(combien); ++i)
        groupes.push_back(FaireGroupe(ordre[i].second, o_.cle.v));
    for (int essai = 0; essai < 4 * combien && static_cast<int>(groupes.size()) < combien;
         ++essai) {
        const double bits = std::uniform_real_distribution<double>(1.5 * o_.cle.p + 1, 14)(alea_);
        const double max = std::exp2(std::min(bits, 2.0 * o_.cle.p + 5.5));
        Groupe g = GroupeAuHasard(o_.cle, max / 6, max, alea_);
        const bool deja = std::any_of(groupes.begin(), groupes.end(),
                                      [&](const Groupe& h) { return h.nom == g.nom; });
        if (!deja) groupes.push_back(std::move(g));
    }
    return groupes;
}

std::unique_ptr<Essai> Chercheur::ouvrir(const Groupe& groupe) {
    auto essai = std::make_unique<Essai>();
    essai->groupe = groupe;
    essai->po = FaireProbleme(o_.cle, groupe, o_.entrees);
    if (essai->po.probleme.colonnes() == 0) return nullptr;
    essai->graine = alea_();
    essai->recherche = std::make_unique<Recherche>(essai->po.probleme, essai->graine);
    return essai;
}

void Chercheur::garder(const Essai& essai) {
    const auto taille = Taille(o_.racine, o_.cle);
    if (taille && *taille <= essai.recherche->poidsMeilleur()) return;
    Dessin d;
    d.cle = o_.cle;
    d.methode = o_.reprise ? "reprise" : "orbites";
    d.groupe = essai.groupe.nom;
    d.graine = essai.graine;
    d.secondes = essai.secondes;
    d.generateurs = essai.groupe.generateurs;
    for (const int c : essai.recherche->meilleure()) d.bases.push_back(essai.po.representants[c]);
    borneAtteinte_ = essai.recherche->poidsMeilleur() <= borne_;
    if (!EcrireSiMieux(o_.racine, d)) return;
    std::cout << o_.cle.v << ' ' << o_.cle.k << ' ' << o_.cle.p << ' ' << o_.cle.t << ": "
              << essai.recherche->poidsMeilleur() << " (" << (taille ? *taille : 0) << ") "
              << d.methode << ' ' << essai.groupe.nom << ' ' << essai.secondes << " s" << std::endl;
}

void Chercheur::travailler(Essai& essai, double secondes) {
    const std::clock_t debut = std::clock();
    const double avant = essai.secondes;
    if (essai.recherche->poidsMeilleur() == 0) {
        essai.recherche->partir({});
        garder(essai);
    }
    while (Depuis(debut) < secondes && reste() > 0 && !essai.recherche->finie()) {
        const bool mieux = essai.recherche->avancer(PasParTranche);
        essai.secondes = avant + Depuis(debut);
        if (mieux) garder(essai);
    }
}

void Chercheur::retenir(const Essai& essai) const {
    if (o_.memoire.empty()) return;
    std::ostringstream ligne;
    const Cle& c = o_.cle;
    ligne << c.v << ' ' << c.k << ' ' << c.p << ' ' << c.t << ' ' << essai.groupe.nom << ' '
          << essai.recherche->poidsMeilleur() << ' ' << essai.secondes << '\n';
    std::ofstream(o_.memoire, std::ios::app) << ligne.str();
}

void Chercheur::reprendre() {
    const Dessin d = Lire(Chemin(o_.racine, o_.cle));
    const Groupe groupe = SousGroupe(d.generateurs, o_.cle.v, alea_);
    std::unique_ptr<Essai> essai = ouvrir(groupe);
    if (!essai) return;
    essai->recherche->partir(essai->po.colonnesDe(Developper(d)));
    garder(*essai);
    travailler(*essai, reste());
}

void Chercheur::chercher() {
    if (borneAtteinte_) return;
    if (o_.reprise) return reprendre();
    std::vector<std::unique_ptr<Essai>> essais;
    std::vector<Groupe> groupes;
    if (o_.groupe.empty()) {
        groupes = choisir(std::clamp(static_cast<int>(o_.secondes * 2), 2, 8));
    } else {
        groupes.push_back(FaireGroupe(o_.groupe, o_.cle.v));
    }
    const double tour = o_.secondes / (groupes.size() > 1 ? 3 : 1);
    for (const Groupe& g : groupes) {
        if (reste() <= 0) break;
        std::unique_ptr<Essai> essai = ouvrir(g);
        if (!essai) continue;
        travailler(*essai, tour / static_cast<double>(groupes.size()));
        retenir(*essai);
        essais.push_back(std::move(essai));
    }
    const auto finie = [](const auto& essai) { return essai->recherche->finie(); };
    while (groupes.size() > 1 && reste() > 0) {
        std::erase_if(essais, finie);
        if (essais.empty()) break;
        std::stable_sort(essais.begin(), essais.end(), [](const auto& a, const auto& b) {
            return a->recherche->poidsMeilleur() < b->recherche->poidsMeilleur();
        });
        if (essais.size() > 1) essais.resize((essais.size() + 1) / 2);
        const double part = std::max(reste() / 2, 1.0) / static_cast<double>(essais.size());
        for (auto& essai : essais) {
            travailler(*essai, essais.size() == 1 ? reste() : part);
            retenir(*essai);
        }
    }
}

Options LireOptions(const std::vector<std::string>& mots) {
    if (mots.size() < 7) throw std::invalid_argument("STOCK v k p t SECONDS SEED [name=value]...");
    Options o;
    o.racine = mots[0];
    o.cle = {std::stoi(mots[1]), std::stoi(mots[2]), std::stoi(mots[3]), std::stoi(mots[4])};
    o.secondes = std::stod(mots[5]);
    o.graine = std::stoull(mots[6]);
    for (std::size_t i = 7; i < mots.size(); ++i) {
        const std::size_t egal = mots[i].find('=');
        const std::string nom = mots[i].substr(0, egal);
        const std::string valeur = egal == std::string::npos ? "" : mots[i].substr(egal + 1);
        if (nom == "groupe")
            o.groupe = valeur;
        else if (nom == "memoire")
            o.memoire = valeur;
        else if (nom == "entrees")
            o.entrees = std::stol(valeur);
        else if (nom == "reprise")
            o.reprise = valeur == "1";
        else
            throw std::invalid_argument("unknown option: " + mots[i]);
    }
    return o;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        Chercheur(LireOptions({argv + 1, argv + argc})).chercher();
        return 0;
    } catch (const std::exception& e) {
        std::cerr << "norvane-systemes-chercher: " << e.what() << '\n';
        return 1;
    }
}
