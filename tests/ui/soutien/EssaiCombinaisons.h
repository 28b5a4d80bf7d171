// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Combinaisons N" in the whole form, and its lists by brute force.
#pragma once

#include <algorithm>
#include <map>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "BasesEssai.h"
#include "combinaisons/PageCombinaisons.h"
#include "soutien/Banc.h"
#include "widgets/ListeCombinaisons.h"

namespace norvane::ui::essais {

inline constexpr int NombresSortis = 12;

/// Numbers of the edits and up-downs of one size, and its caption.
struct Noms {
    int taille, edit, upDown, edit2, upDown2;
    const char* legende;
};
inline constexpr Noms Rangees[] = {{2, 2, 3, 6, 7, "COMB &2"},      {3, 3, 4, 7, 8, "COMB &3"},
                                   {4, 4, 5, 8, 9, "COMB &4"},      {5, 5, 6, 9, 10, "COMB &5"},
                                   {6, 12, 13, 13, 14, "COMB &6"},  {7, 14, 15, 15, 16, "COMB &7"},
                                   {8, 16, 17, 17, 18, "COMB &8"},  {9, 18, 19, 19, 20, "COMB &9"},
                                   {10, 10, 11, 11, 12, "COMB 1&0"}};

inline Base petiteBase() {
    std::mt19937 hasard(7);
    return BaseAleatoire(hasard, 300, NombresSortis);
}

inline int communs(const Tirage& t, Ensemble numeros) {
    return numeros.commun(Ensemble::de(t.Numeros)).taille();
}

/// Every set of `taille` of the first `parmi` numbers, with the draws that count for it: those that
/// hold it, or, beyond five, lie in it.
inline std::map<std::vector<Mot>, int> compter(const Base& base, int taille, int parmi) {
    std::map<std::vector<Mot>, int> comptes;
    std::vector<bool> pris(static_cast<std::size_t>(parmi));
    std::fill_n(pris.begin(), taille, true);
    do {
        std::vector<Mot> numeros;
        for (int n = 1; n <= parmi; ++n)
            if (pris[static_cast<std::size_t>(n - 1)]) numeros.push_back(static_cast<Mot>(n));
        const auto bons = std::min(NbBoules, taille);
        comptes[numeros] = static_cast<int>(std::ranges::count_if(
            base.enUsage(), [&](auto& t) { return communs(t, Ensemble::de(numeros)) == bons; }));
    } while (std::prev_permutation(pris.begin(), pris.end()));
    return comptes;
}

/// The form, its page of combinations and that page's controls.
struct EssaiCombinaisons : FormeOuverte {
    PageCombinaisons* page = de<PageCombinaisons>("Varo3");
    Atelier& a = banc.atelier;
    Relais& relais = *forme->findChild<Relais*>();

    using FormeOuverte::FormeOuverte;
    QString texte(const char* nom) const { return de<QLabel>(nom)->text(); }
    QLineEdit* edit(int n) const { return page->findChild<QLineEdit*>(u"Edit%1"_s.arg(n)); }
    QAbstractButton* comb(int taille) const { return de("Comb%dSearch", taille); }
    ListeCombinaisons* liste() const { return de<ListeCombinaisons>("ListBox"); }
    int lignes() const { return liste()->modele().rowCount(); }
    std::string ligne(int i) const {
        return liste()->modele().index(i).data().toString().toStdString();
    }
    QComboBox* mode() const { return de<QComboBox>("ComboBox1"); }
    void finir() const { QTRY_VERIFY_WITH_TIMEOUT(!a.activite.occupe(), 60000); }
    void calculer(int taille) const {
        comb(taille)->click();
        finir();
    }
    /// All bounds 10..90, computed for the interval, both ends chosen anew.
    void poserBornes() const {
        EtatCombinaisons& e = a.combinaisons;
        e.NbTiragesComb.fill(a.tailleIntervalle());
        e.BorneInf.fill(10);
        for (const int sup : {91, 90}) {
            e.BorneSup.fill(sup);
            relais.annoncer({.intervalle = true});
        }
    }
    QString lu(int n) const { return edit(n)->text(); }
    QString dernier() const { return posees.isEmpty() ? QString() : posees.last().instruction; }
    void choisir(int i) const { liste()->setCurrentIndex(liste()->modele().index(i)); }
    QColor encre(int i) const {
        const QVariant borne = liste()->modele().index(i).data(ModeleCombinaisons::RoleBorne);
        return DelegueCombinaisons::encre(static_cast<BorneLigne>(borne.toInt()), false,
                                          QPalette(Qt::white));
    }
};

}  // namespace norvane::ui::essais
