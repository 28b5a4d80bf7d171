// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/DetailsListe.h"

#include <array>

#include "base/Textes.h"
#include "common/Contexte.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// By Critere.
constexpr std::array<const char16_t*, 5> Criteres{u"NbFois\n", u"Ecart\n", u"EcartMax\n",
                                                  u"Suite\n", u"SuiteMax\n"};

QString libelleType(const Liste& liste) {
    switch (liste.tri.TypeTriListe) {
        case TypeTri::Sans:
            return u"Sans"_s;
        case TypeTri::Simple:
            return u"Simple sur le premier rang\n"_s;
        case TypeTri::Profondeur:
            return (liste.mode() == ModeStockage::RangsDeGain
                        ? u"Profondeur sur les rangs de gain uniquement\n"_s
                        : u"Profondeur sur tous les rangs\n"_s) +
                   u"         Rang de début de tri :  %1\n"_s.arg(liste.tri.RangTri);
        case TypeTri::Gain:
            return u"Gain\n"_s;
    }
    return {};
}

}  // namespace

QString libelleStockage(ModeStockage mode) {
    switch (mode) {
        case ModeStockage::PremierRang:
            return u"Premier rang stocké"_s;
        case ModeStockage::RangsDeGain:
            return u"Rangs de gain stockés"_s;
        case ModeStockage::TousLesRangs:
            return u"Tous les rangs stockés"_s;
    }
    return {};
}

QString detailsListe(const Liste& liste) {
    QString texte =
        u"Combinaisons à %1 numéros\nNombre de combinaisons :  %2\n"_s.arg(liste.taille())
            .arg(liste.nombre());
    texte += libelleStockage(liste.mode()) + u'\n';
    texte += u"                        Type de Tri :  "_s + libelleType(liste);
    const TypeTri type = liste.tri.TypeTriListe;
    if (type == TypeTri::Sans) return texte;
    if (type != TypeTri::Gain)
        texte += u"                      Critère de Tri :  "_s +
                 QString::fromUtf16(Criteres.at(static_cast<std::size_t>(liste.tri.CritereTri)));
    return texte + u"                                   Ordre :  "_s +
           (liste.tri.OrdreCroissant ? u"Croissant"_s : u"Décroissant"_s);
}

QString texteTemps(const std::optional<double>& secondes) {
    return secondes ? u"Temps de calcul : %1 s"_s.arg(versQt(FormaterDecimal(*secondes, 1)))
                    : QString();
}

}  // namespace norvane::ui
