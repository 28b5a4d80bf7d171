// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandeCombBornes.h"

#include <fmt/format.h>
#include <fmt/ostream.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <ostream>

#include "comb/TravauxRangs.h"
#include "Enregistrements.h"
#include "EtabliComb.h"
#include "lists/FichiersListes.h"
#include "lists/PuitsListe.h"
#include "Options.h"

namespace norvane {

namespace {

constexpr int ComptesMax = NbTiragesMax;
constexpr std::array NomsCriteres = {"NbFois", "Ecart", "EcartMax", "Suite", "SuiteMax"};

/// Shows how far a search or the ranks are, and what `Base` does besides.
template <typename Base>
class Montre : public Base {
 public:
    template <typename... Arguments>
    explicit Montre(Progression& progression, int total, Arguments&&... arguments)
        : Base(std::forward<Arguments>(arguments)...), max(total), progression_(progression) {}
    int max;
    void SetProgress(int valeur) override { progression_.montrer(valeur, max); }

 private:
    Progression& progression_;
};

/// Writes the records as they come.
class Ecriture : public PuitsMuet {
 public:
    Ecriture(std::ostream& out, Disposition disposition) : out_(out), disposition_(disposition) {}
    void AddRecord(std::span<const Mot> mots) override {
        EcrireEnregistrements(out_, disposition_, mots);
    }

 private:
    std::ostream& out_;
    const Disposition disposition_;
};

void EcrireLignes(std::ostream& out, const Liste& liste) {
    constexpr std::size_t Lot = 4096;
    std::vector<Mot> mots;
    for (std::size_t ligne = 0; ligne < liste.nombre(); ++ligne) {
        const auto enregistrement = liste.enregistrement(ligne);
        mots.insert(mots.end(), enregistrement.begin(), enregistrement.end());
        if ((ligne + 1) % Lot != 0 && ligne + 1 < liste.nombre()) continue;
        EcrireEnregistrements(out, liste.arene.disposition, mots);
        mots.clear();
    }
}

}  // namespace

struct CommandeCombBornes::Demande {
    int taille, inf, sup;
    ModeStockage mode;
    std::uint64_t limite;
    EtatTri tri;
    GrilleSelection grille;
    GainsNominaux gains{};

    int jauge(const ContexteComb& c) const { return std::max(JaugeBornes(c, taille), 1); }
};

CommandeCombBornes::CommandeCombBornes(CLI::App& comb)
    : Commande(comb.add_subcommand(
          "bornes",
          "Les combinaisons de N numéros sorties de INF à SUP fois, avec leurs statistiques")) {
    CLI::App& app = sousCommande();
    AjouterEntier(app, "N", taille_, "Numéros d'une combinaison, de 2 à 10")->required();
    AjouterEntier(app, "INF", inf_, "Borne inférieure des sorties, comprise")->required();
    AjouterEntier(app, "SUP", sup_, "Borne supérieure des sorties, comprise")->required();
    app.add_flag("--series", series_, "Numéros consécutifs seulement")->disable_flag_override();
    AjouterEntier(app, "--stockage", stockage_,
                  "Rangs gardés : 0 le premier (par défaut), 1 ceux de gain, 2 tous");
    AjouterEntier(app, "--max", max_, "Au plus N combinaisons, les premières");
    app.add_flag("--compter", compter_, "Le nombre de combinaisons seulement")
        ->disable_flag_override();
    app.add_option("--absolue", absolue_, "Numéros de la sélection, en priorité absolue")
        ->type_name("\"N N ...\"");
    app.add_option("--secondaire", secondaire_, "Numéros de la sélection, en priorité secondaire")
        ->type_name("\"N N ...\"");
    app.add_flag("--rangs", rangs_, "Calcule les rangs inférieurs gardés")->disable_flag_override();
    app.add_option("--tri", tri_,
                   "Trie selon NbFois (par défaut), Ecart, EcartMax, Suite ou SuiteMax")
        ->type_name("CRITERE");
    app.add_flag("--decroissant", decroissant_, "Les plus grandes valeurs d'abord")
        ->disable_flag_override();
    AjouterEntier(app, "--profondeur", profondeur_,
                  "Trie sur N bons numéros, puis à égalité sur de moins en moins ;\n"
                  "les rangs calculés, sinon sur le premier");
    app.add_flag("--gain", gain_, "Trie selon ce qu'elles ont rapporté, de même")
        ->disable_flag_override();
    app.add_option("--sortie", sortie_, "Fichier *.lst où écrire la liste, au lieu de l'afficher")
        ->type_name("FICHIER");
}

Resultat<CommandeCombBornes::Demande> CommandeCombBornes::verifier() const {
    const auto taille = TailleComb(taille_);
    if (!taille) return Erreur{taille.erreur()};
    for (const auto& [nom, borne] : {std::pair{"INF", *inf_}, std::pair{"SUP", *sup_}})
        if (borne < 0 || borne > ComptesMax)
            return Erreur{fmt::format("{} {} est hors des comptes possibles, de 0 à {}.", nom,
                                      borne, ComptesMax)};
    if (*inf_ > *sup_)
        return Erreur{fmt::format("Bornes croisées : INF {} est au-delà de SUP {}.", *inf_, *sup_)};
    const long stockage = stockage_.value_or(0);
    if (stockage < 0 || stockage > 2)
        return Erreur{fmt::format("--stockage {} n'existe pas : choisissez 0, 1 ou 2.", stockage)};
    if (max_ && *max_ < 1) return Erreur{fmt::format("--max {} doit être au moins 1.", *max_)};
    if (compter_ && sortie_)
        return Erreur{"--compter et --sortie ne vont pas ensemble : choisissez l'un des deux."};
    if (series_ && (absolue_ || secondaire_))
        return Erreur{"Pas de sélections de numéros en mode séries..."};

    const auto tri = lireTri(*taille);
    if (!tri) return Erreur{tri.erreur()};
    const auto grille = lireSelection();
    if (!grille) return Erreur{grille.erreur()};
    return Demande{.taille = *taille,
                   .inf = static_cast<int>(*inf_),
                   .sup = static_cast<int>(*sup_),
                   .mode = static_cast<ModeStockage>(stockage),
                   .limite = static_cast<std::uint64_t>(max_.value_or(0)),
                   .tri = *tri,
                   .grille = *grille};
}

Resultat<GrilleSelection> CommandeCombBornes::lireSelection() const {
    GrilleSelection grille{};
    for (const auto& [texte, priorite] :
         {std::pair{&secondaire_, Priorite::Secondaire}, std::pair{&absolue_, Priorite::Absolue}}) {
        if (!*texte) continue;
        const auto numeros = LireNumeros(**texte, 1, NumeroMax);
        if (!numeros) return Erreur{numeros.erreur()};
        for (const int n : *numeros) {
            Priorite& place = grille[static_cast<std::size_t>(n - 1)];
            if (place != Priorite::Aucune)
                return Erreur{fmt::format("Le numéro {} a les deux priorités.", n)};
            place = priorite;
        }
    }
    return grille;
}

Resultat<EtatTri> CommandeCombBornes::lireTri(int taille) const {
    EtatTri tri{.OrdreCroissant = !decroissant_};
    if (!tri_ && !profondeur_ && !gain_) return tri;
    if (profondeur_ && gain_)
        return Erreur{"--profondeur et --gain s'excluent : choisissez-en un."};
    tri.TypeTriListe = gain_ ? TypeTri::Gain : profondeur_ ? TypeTri::Profondeur : TypeTri::Simple;
    const auto critere = std::ranges::find(NomsCriteres, tri_.value_or(NomsCriteres[0]));
    if (critere == NomsCriteres.end())
        return Erreur{fmt::format("--tri {} n'existe pas : choisissez {}.", *tri_,
                                  fmt::join(NomsCriteres, ", "))};
    tri.CritereTri = static_cast<Critere>(critere - NomsCriteres.begin());
    if (profondeur_ && (*profondeur_ < 0 || *profondeur_ > taille))
        return Erreur{fmt::format("--profondeur {} n'est pas un rang de {} numéros, de 0 à {}.",
                                  *profondeur_, taille, taille)};
    tri.RangTri = static_cast<int>(profondeur_.value_or(0));
    return tri;
}

Resultat<Rien> CommandeCombBornes::executer(const Contexte& contexte, std::ostream& out) {
    auto demande = verifier();
    if (!demande) return Erreur{demande.erreur()};
    auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    EtabliComb atelier(*std::move(donnees));
    auto selection =
        ConstruireSelection(demande->grille, atelier.donnees.base, atelier.occurrences);
    if (!selection) return Erreur{selection.erreur()};
    atelier.selection = *std::move(selection);
    demande->gains = contexte.lireReglages().GainsNominaux;
    ContexteComb c = atelier.contexte(series_, demande->mode);
    c.gains = FormeGains::de(demande->gains);

    const bool trie = demande->tri.TypeTriListe != TypeTri::Sans;
    if (compter_ || (!rangs_ && !trie && !sortie_)) {
        Montre<Ecriture> ecriture(contexte.progression, demande->jauge(c), contexte.sortie,
                                  Disposition{demande->taille, demande->mode, c.gains});
        const auto nombre = chercher(c, *demande, demande->limite, ecriture);
        if (!nombre) return Erreur{nombre.erreur()};
        if (compter_) fmt::print(out, "{}\n", *nombre);
        return Rien{};
    }
    const auto liste = dresser(c, *demande, contexte);
    if (!liste) return Erreur{liste.erreur()};
    if (sortie_)
        return contexte.mener([&](const Suivi& suivi) {
            return SauverListe(*liste, contexte.repertoire / *sortie_, suivi);
        });
    EcrireLignes(contexte.sortie, *liste);
    return Rien{};
}

Resultat<std::uint64_t> CommandeCombBornes::chercher(const ContexteComb& c, const Demande& demande,
                                                     std::uint64_t limite, Puits& puits) const {
    const auto fil = CreerRechercheBornes(c, puits, demande.taille, demande.inf, demande.sup);
    if (!fil) {
        const Arene unique = CombinaisonUnique(c, demande.inf, demande.sup);
        if (!compter_) puits.AddRecord(unique.mots);
        return std::uint64_t{unique.nombre()};
    }
    fil->compterSeulement = compter_;
    fil->limite = limite;
    if (const auto mene = Mener(*fil); !mene) return Erreur{mene.erreur()};
    return fil->nombre();
}

Resultat<Liste> CommandeCombBornes::dresser(const ContexteComb& c, const Demande& demande,
                                            const Contexte& contexte) const {
    Montre<PuitsListe> puits(contexte.progression, demande.jauge(c));
    Liste& liste = puits.liste;
    liste.arene.disposition = {demande.taille, demande.mode, c.gains};
    liste.DebutListe = c.IntervalleInf;
    liste.FinListe = c.IntervalleSup;
    const bool trie = demande.tri.TypeTriListe != TypeTri::Sans;
    const auto nombre = chercher(c, demande, trie ? 0 : demande.limite, puits);
    if (!nombre) return Erreur{nombre.erreur()};
    if (rangs_) {
        puits.max = std::max(PasRangs(liste.nombre()), 1);
        TRemplirRangsSearch fil(c, puits, liste.arene, QuelleListe::Memoire);
        if (const auto mene = Mener(fil); !mene) return Erreur{mene.erreur()};
        CompterRangs(liste);
    }
    Trier(liste, demande.tri, demande.gains);
    if (demande.limite > 0) Couper(liste, demande.limite);
    return std::move(liste);
}

}  // namespace norvane
