// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/TextesBillets.h"

#include "base/Dates.h"
#include "common/Contexte.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t JokersMontres = 3;  // of a longer list, as many as the card has room for

/// "0.0.1.2.3.4.5 (1 €)".
QString texteJoker(const LigneJoker& ligne, const QString& symbole) {
    QStringList chiffres;
    for (const int chiffre : ligne.chiffres) chiffres << QString::number(chiffre);
    return u"%1 (%2 %3)"_s.arg(chiffres.join(u'.')).arg(PrixJoker(ligne.code)).arg(symbole);
}

QString texteJokers(const std::vector<LigneJoker>& jokers, const QString& symbole) {
    QStringList textes;
    for (std::size_t i = 0; i < std::min(jokers.size(), JokersMontres); ++i) {
        textes << texteJoker(jokers[i], symbole);
    }
    QString texte = u"Joker+ : "_s + textes.join(u", "_s);
    if (jokers.size() > JokersMontres) {
        const std::size_t autres = jokers.size() - JokersMontres;
        texte += u" et "_s + compte(autres, u"autre"_s);
    }
    return texte;
}

}  // namespace

QString compte(std::size_t n, const QString& mot) {
    return u"%1 %2%3"_s.arg(n).arg(mot, n > 1 ? u"s"_s : QString());
}

QString texteRecu(const Atelier& atelier) {
    const Billets& billets = atelier.billets;
    QString comptes = compte(billets.ListeRecu.size(), u"grille"_s) +
                      u", %1 Joker+"_s.arg(billets.ListeJoker.size());
    if (billets.ListeJoker.empty()) return comptes;
    const auto& reglages = atelier.configuration.reglages;
    return comptes + u'\n' + texteJokers(billets.ListeJoker, versQt(reglages.SymboleMonnaie));
}

QString texteMemoire(const Atelier& atelier) {
    const int date = atelier.saisie.dateRecu();
    const QString du = date > 0 ? u" du "_s + versQt(DateLongue(date)) : QString();
    const Cases& choix = atelier.choixLibre;
    return QStringList{
        u"Grilles au choix : %1"_s.arg(atelier.billets.ListeChoix.size()),
        u"Reçu de Jeu%1 : "_s.arg(du) + texteRecu(atelier),
        u"Choix libre : %1 + %2C"_s.arg(choix.numeros.taille()).arg(choix.chances.taille())}
        .join(u'\n');
}

}  // namespace norvane::ui
