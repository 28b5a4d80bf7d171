// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Files of designs. The first line: v k p t blocks method group seed seconds. Then one line "g"
// and a permutation for each generator, then the blocks, one letter for a point.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

#include "Dessin.h"

namespace systemes {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Lettres =
    "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int BlocsParLigne = 16;

std::string Mot(Bloc bloc) {
    std::string mot;
    for (; bloc != 0; bloc &= bloc - 1) mot += Lettres[std::countr_zero(bloc)];
    return mot;
}

[[noreturn]] void Refuser(const std::string& chemin, int ligne, const std::string& quoi) {
    throw std::runtime_error(chemin + ", line " + std::to_string(ligne) + ": " + quoi);
}

int Point(char lettre, int v) {
    const std::size_t i = Lettres.find(lettre);
    return i < static_cast<std::size_t>(v) ? static_cast<int>(i) : -1;
}

Permutation LirePermutation(const std::string& mot, int v, const std::string& chemin, int ligne) {
    Permutation permutation;
    Bloc vus = 0;
    for (const char lettre : mot) {
        const int point = Point(lettre, v);
        if (point < 0) Refuser(chemin, ligne, "not a point");
        permutation.push_back(point);
        vus |= Bloc{1} << point;
    }
    if (permutation.size() != static_cast<std::size_t>(v) || std::popcount(vus) != v)
        Refuser(chemin, ligne, "not a permutation of the points");
    return permutation;
}

Bloc LireBloc(const std::string& mot, const Cle& cle, const std::string& chemin, int ligne) {
    Bloc bloc = 0;
    for (const char lettre : mot) {
        const int point = Point(lettre, cle.v);
        if (point < 0) Refuser(chemin, ligne, "not a point");
        bloc |= Bloc{1} << point;
    }
    if (std::popcount(bloc) != cle.k || mot.size() != static_cast<std::size_t>(cle.k))
        Refuser(chemin, ligne, "not a block: " + mot);
    return bloc;
}

std::string Texte(const Dessin& dessin, std::size_t blocs) {
    std::ostringstream texte;
    const Cle& c = dessin.cle;
    texte << c.v << ' ' << c.k << ' ' << c.p << ' ' << c.t << ' ' << blocs << ' ' << dessin.methode
          << ' ' << dessin.groupe << ' ' << dessin.graine << ' ' << dessin.secondes << '\n';
    for (const Permutation& g : dessin.generateurs) {
        texte << "g ";
        for (const int point : g) texte << Lettres[point];
        texte << '\n';
    }
    for (std::size_t i = 0; i < dessin.bases.size(); ++i) {
        const bool fin = i + 1 == dessin.bases.size() || (i + 1) % BlocsParLigne == 0;
        texte << Mot(dessin.bases[i]) << (fin ? '\n' : ' ');
    }
    return texte.str();
}

/// Holds the lock of the stock while it lives.
class Verrou {
 public:
    explicit Verrou(const std::string& racine)
        : fd_(open(racine.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        if (fd_ < 0 || flock(fd_, LOCK_EX) != 0) throw std::runtime_error("no lock: " + racine);
    }
    ~Verrou() { close(fd_); }
    Verrou(const Verrou&) = delete;
    Verrou& operator=(const Verrou&) = delete;
    Verrou(Verrou&&) = delete;
    Verrou& operator=(Verrou&&) = delete;

 private:
    int fd_;
};

}  // namespace

std::string Chemin(const std::string& racine, const Cle& cle) {
    return racine + "/dessins/" + std::to_string(cle.k) + "-" + std::to_string(cle.p) + "-" +
           std::to_string(cle.t) + "/" + std::to_string(cle.v) + ".txt";
}

Dessin Lire(const std::string& chemin) {
    std::ifstream entree(chemin);
    std::string texte;
    if (!std::getline(entree, texte)) Refuser(chemin, 1, "cannot be read");
    std::istringstream tete(texte);
    Dessin d;
    std::size_t blocs = 0;
    Cle& c = d.cle;
    if (!(tete >> c.v >> c.k >> c.p >> c.t >> blocs >> d.methode >> d.groupe >> d.graine >>
          d.secondes) ||
        c.v < 1 || c.v > VMax || c.k < 1 || c.k > KMax || c.t < 1 || c.t > c.p || c.p > KMax)
        Refuser(chemin, 1, "not the head of a design");
    for (int ligne = 2; std::getline(entree, texte); ++ligne) {
        std::istringstream mots(texte);
        std::string mot;
        if (texte.starts_with("g ")) {
            mots >> mot >> mot;
            d.generateurs.push_back(LirePermutation(mot, c.v, chemin, ligne));
            continue;
        }
        while (mots >> mot) d.bases.push_back(LireBloc(mot, c, chemin, ligne));
    }
    if (Developper(d).size() != blocs) Refuser(chemin, 1, "not that many blocks");
    return d;
}

std::optional<long> Taille(const std::string& racine, const Cle& cle) {
    std::ifstream entree(Chemin(racine, cle));
    Cle c;
    long blocs = 0;
    if (!(entree >> c.v >> c.k >> c.p >> c.t >> blocs) || c != cle) return std::nullopt;
    return blocs;
}

bool EcrireSiMieux(const std::string& racine, const Dessin& dessin) {
    const std::vector<Bloc> blocs = Developper(dessin);
    const auto mieux = [&] {
        const auto taille = Taille(racine, dessin.cle);
        return !taille || static_cast<long>(blocs.size()) < *taille;
    };
    if (!mieux()) return false;
    if (Manquants(dessin.cle, blocs) != 0) throw std::runtime_error("a design without its proof");
    const Verrou verrou(racine);
    if (!mieux()) return false;
    const std::string chemin = Chemin(racine, dessin.cle);
    fs::create_directories(fs::path(chemin).parent_path());
    const std::string temporaire = chemin + ".tmp";
    {
        std::ofstream sortie(temporaire);
        sortie << Texte(dessin, blocs.size());
        if (!sortie.flush()) throw std::runtime_error("cannot write " + temporaire);
    }
    fs::rename(temporaire, chemin);
    return true;
}

std::vector<Connu> LireConnus(const std::string& racine) {
    const std::string chemin = racine + "/connus.tsv";
    std::ifstream entree(chemin);
    std::string texte;
    std::getline(entree, texte);
    std::vector<Connu> connus;
    for (int ligne = 2; std::getline(entree, texte); ++ligne) {
        std::vector<std::string> champs;
        std::istringstream mots(texte);
        for (std::string champ; std::getline(mots, champ, '\t');) champs.push_back(champ);
        if (champs.size() < 9) Refuser(chemin, ligne, "nine columns are needed");
        const auto nombre = [&](int i) { return champs[i].empty() ? 0 : std::stoi(champs[i]); };
        Connu c;
        c.garantie = champs[0];
        c.selection = nombre(1);
        c.base = nombre(2);
        c.cle = {nombre(3), nombre(4), nombre(6), nombre(5)};
        c.meilleur = nombre(7);
        c.borne = nombre(8);
        connus.push_back(c);
    }
    if (connus.empty()) Refuser(chemin, 1, "cannot be read");
    return connus;
}

std::vector<Dessin> LireTous(const std::string& racine) {
    std::vector<Dessin> dessins;
    if (!fs::exists(racine + "/dessins")) return dessins;
    for (const auto& f : fs::recursive_directory_iterator(racine + "/dessins"))
        if (f.path().extension() == ".txt") dessins.push_back(Lire(f.path().string()));
    std::sort(dessins.begin(), dessins.end(),
              [](const Dessin& a, const Dessin& b) { return a.cle < b.cle; });
    return dessins;
}

}  // namespace systemes
