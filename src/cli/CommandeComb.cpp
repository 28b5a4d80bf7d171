// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>
#include <fmt/ostream.h>

#include <algorithm>
#include <ostream>

#include "base/Configuration.h"
#include "comb/LigneCombinaison.h"
#include "comb/Reduction.h"
#include "comb/StatsCombinaison.h"
#include "comb/VaroFonc2.h"
#include "Commandes.h"
#include "Enregistrements.h"
#include "lists/FichiersListes.h"
#include "lists/PuitsListe.h"
#include "Options.h"

namespace norvane {

namespace {

constexpr int ComptesMax = NbTiragesMax;

/// A base, its structures over the interval asked for, and an engine that never ran.
struct Etabli {
    Donnees donnees;
    Occurrences occurrences;
    EtatCombinaisons etat;
    Selection selection;

    explicit Etabli(Donnees d) : donnees(std::move(d)) {
        ConstruireOccurrences(donnees.base, occurrences);
        ChangerIntervalle(donnees.base, occurrences, donnees.de, donnees.a);
    }
    ContexteComb contexte(bool series, ModeStockage mode) const {
        return {.base = donnees.base,
                .occurrences = occurrences,
                .etat = etat,
                .selection = selection,
                .IntervalleInf = donnees.de,
                .IntervalleSup = donnees.a,
                .series = series,
                .mode = mode};
    }
};

Resultat<int> Taille(const std::optional<long>& taille) {
    if (*taille < TailleCombMin || *taille > TailleCombMax)
        return Erreur{fmt::format("Une combinaison compte de {} à {} numéros, pas {}.",
                                  TailleCombMin, TailleCombMax, *taille)};
    return static_cast<int>(*taille);
}

Resultat<Rien> Mener(TCombThread& fil) {
    fil.Resume();
    fil.WaitFor();
    if (!fil.erreur().empty()) return Erreur{fil.erreur()};
    return Rien{};
}

/// Keeps the results and shows how far the search is.
class CollecteMontree : public Collecte {
 public:
    CollecteMontree(Progression& progression, int max) : progression_(progression), max_(max) {}
    void SetProgress(int valeur) override { progression_.montrer(valeur, max_); }

 private:
    Progression& progression_;
    const int max_;
};

/// Hands on the progress of a search by bounds.
template <typename Puits>
class Montre : public Puits {
 public:
    template <typename... Arguments>
    explicit Montre(std::function<void(int)> avance, Arguments&&... arguments)
        : Puits(std::forward<Arguments>(arguments)...), avance_(std::move(avance)) {}
    void SetProgress(int valeur) override { avance_(valeur); }

 private:
    const std::function<void(int)> avance_;
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

}  // namespace

CommandeCombExtremes::CommandeCombExtremes(CLI::App& comb)
    : Commande(comb.add_subcommand(
          "extremes", "Les combinaisons de N numéros les plus (et les moins) sorties")) {
    CLI::App& app = sousCommande();
    AjouterEntier(app, "N", taille_, "Numéros d'une combinaison, de 2 à 10")->required();
    app.add_flag("--series", series_, "Numéros consécutifs seulement")->disable_flag_override();
}

Resultat<Rien> CommandeCombExtremes::executer(const Contexte& contexte, std::ostream& out) {
    const auto taille = Taille(taille_);
    if (!taille) return Erreur{taille.erreur()};
    auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    const Etabli atelier(*std::move(donnees));

    CollecteMontree collecte(contexte.progression, JaugeExtremes(*taille, series_));
    const auto fil = CreerRechercheExtremes(atelier.contexte(series_, ModeStockage::PremierRang),
                                            collecte, *taille);
    auto mene = Mener(*fil);
    if (!mene) return mene;
    const Extremes& e = fil->resultat();
    fmt::print(out, "{}\t{}\t{}\t{}\n", *taille, e.BorneInf, e.BorneSup, e.nombre);
    for (const auto& ligne : ReduireExtremes(collecte, *taille, e))
        out << LigneCombinaison(ligne) << '\n';
    return Rien{};
}

struct CommandeCombBornes::Demande {
    int taille, inf, sup;
    ModeStockage mode;
    GrilleSelection grille;
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
    app.add_option("--sortie", sortie_, "Fichier *.lst où écrire la liste, au lieu de l'afficher")
        ->type_name("FICHIER");
    app.add_option("--absolue", absolue_, "Numéros de la sélection, en priorité absolue")
        ->type_name("\"N N ...\"");
    app.add_option("--secondaire", secondaire_, "Numéros de la sélection, en priorité secondaire")
        ->type_name("\"N N ...\"");
}

Resultat<CommandeCombBornes::Demande> CommandeCombBornes::verifier() const {
    const auto taille = Taille(taille_);
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

    Demande demande{*taille,
                    static_cast<int>(*inf_),
                    static_cast<int>(*sup_),
                    static_cast<ModeStockage>(stockage),
                    {}};
    for (const auto& [texte, priorite] :
         {std::pair{&secondaire_, Priorite::Secondaire}, std::pair{&absolue_, Priorite::Absolue}}) {
        if (!*texte) continue;
        const auto numeros = LireNumeros(**texte, 1, NumeroMax);
        if (!numeros) return Erreur{numeros.erreur()};
        for (const int n : *numeros) {
            Priorite& place = demande.grille[static_cast<std::size_t>(n - 1)];
            if (place != Priorite::Aucune)
                return Erreur{fmt::format("Le numéro {} a les deux priorités.", n)};
            place = priorite;
        }
    }
    return demande;
}

Resultat<Rien> CommandeCombBornes::executer(const Contexte& contexte, std::ostream& out) {
    const auto demande = verifier();
    if (!demande) return Erreur{demande.erreur()};
    auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    Etabli atelier(*std::move(donnees));
    auto selection =
        ConstruireSelection(demande->grille, atelier.donnees.base, atelier.occurrences);
    if (!selection) return Erreur{selection.erreur()};
    atelier.selection = *std::move(selection);

    ContexteComb c = atelier.contexte(series_, demande->mode);
    c.gains = FormeGains::de(
        Configuration(contexte.repertoire / NomConfiguration).reglages.GainsNominaux);
    const Disposition disposition{demande->taille, demande->mode, c.gains};
    const auto avance = [&, jauge = std::max(JaugeBornes(c, demande->taille), 1)](int valeur) {
        contexte.progression.montrer(valeur, jauge);
    };
    if (sortie_) {
        Montre<PuitsListe> puits(avance);
        puits.liste.arene.disposition = disposition;
        puits.liste.DebutListe = c.IntervalleInf;
        puits.liste.FinListe = c.IntervalleSup;
        if (const auto mene = chercher(c, *demande, puits); !mene) return Erreur{mene.erreur()};
        return SauverListe(puits.liste, contexte.repertoire / *sortie_);
    }
    Montre<Ecriture> ecriture(avance, contexte.sortie, disposition);
    const auto nombre = chercher(c, *demande, ecriture);
    if (!nombre) return Erreur{nombre.erreur()};
    if (compter_) fmt::print(out, "{}\n", *nombre);
    return Rien{};
}

Resultat<std::uint64_t> CommandeCombBornes::chercher(const ContexteComb& c, const Demande& demande,
                                                     Puits& puits) const {
    const auto fil = CreerRechercheBornes(c, puits, demande.taille, demande.inf, demande.sup);
    if (!fil) {
        const Arene unique = CombinaisonUnique(c, demande.inf, demande.sup);
        if (!compter_) puits.AddRecord(unique.mots);
        return std::uint64_t{unique.nombre()};
    }
    fil->compterSeulement = compter_;
    fil->limite = static_cast<std::uint64_t>(max_.value_or(0));
    if (const auto mene = Mener(*fil); !mene) return Erreur{mene.erreur()};
    return fil->nombre();
}

CommandeCombStats::CommandeCombStats(CLI::App& comb)
    : Commande(
          comb.add_subcommand("stats", "Les statistiques d'une combinaison, par bons numéros")) {
    sousCommande()
        .add_option("NUMEROS", numeros_, "Les numéros, de 2 à 10, séparés par des blancs")
        ->required();
}

Resultat<Rien> CommandeCombStats::executer(const Contexte& contexte, std::ostream& out) {
    const auto numeros = LireNumeros(numeros_, TailleCombMin, TailleCombMax);
    if (!numeros) return Erreur{numeros.erreur()};
    auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    const Etabli atelier(*std::move(donnees));
    out << "k\tNbFois\tDate\tEcart\tEcartMax\tNbEcartMax\tPosEcartMax\tSuite\tSuiteMax\t"
           "NbSuiteMax\tPosSuiteMax\n";
    const std::vector<Mot> mots(numeros->begin(), numeros->end());
    for (const auto& ligne : StatsCombinaison(atelier.donnees.base, atelier.occurrences, mots,
                                              atelier.donnees.de, atelier.donnees.a)) {
        const ResultatStats& r = ligne.resultat;
        fmt::print(out, "{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\n", ligne.bons, ligne.NbFois,
                   ligne.date == 0 ? "-" : fmt::to_string(ligne.date), r.Ecart, r.EcartMax,
                   r.NbEcartMax, r.PosEcartMax, r.Suite, r.SuiteMax, r.NbSuiteMax, r.PosSuiteMax);
    }
    return Rien{};
}

}  // namespace norvane
