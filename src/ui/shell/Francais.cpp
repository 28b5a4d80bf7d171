// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Francais.h"

#include <algorithm>
#include <array>
#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <string_view>

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

struct Texte {
    std::string_view anglais;
    const char16_t* francais;
};
constexpr auto Textes = std::to_array<Texte>({
    {"Double Sided Printing", u"Impression recto verso"},
    {"Off", u"Désactivée"},
    {"Long side binding", u"Reliure sur le grand côté"},
    {"Short side binding", u"Reliure sur le petit côté"},
    {"Print range", u"Pages à imprimer"},
    {"Page Set:", u"Choix des pages :"},
    {"Write PDF file", u"Écriture d'un fichier PDF"},
    {"Specify pages or ranges separated by commas. Ranges are specified by two numbers separated "
     "by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     u"Pages ou suites de pages séparées par des virgules ; une suite s'écrit par ses deux bouts "
     u"et un tiret. Par exemple, 3,5-7,9 imprime les pages 3, 5, 6, 7 et 9."},
    {"Printer Properties", u"Propriétés de l'imprimante"},
    {"Advanced", u"Options avancées"},
    {"There are conflicts in some options. Please fix them.",
     u"Certaines options se contredisent : modifiez-les."},
    {"Page Setup Conflicts", u"Mise en page contradictoire"},
    {"There are conflicts in page setup options. Do you want to fix them?",
     u"Des options de mise en page se contredisent. Voulez-vous les modifier ?"},
    {"Advanced Option Conflicts", u"Options avancées contradictoires"},
    {"There are conflicts in some advanced options. Do you want to fix them?",
     u"Des options avancées se contredisent. Voulez-vous les modifier ?"},
    {"Duplex Settings Conflicts", u"Recto verso contradictoire"},
    {"There are conflicts in duplex settings. Do you want to fix them?",
     u"Les réglages du recto verso se contredisent. Voulez-vous les modifier ?"},
    {"Invalid Pages Definition", u"Pages mal indiquées"},
    {"%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to "
     "define ranges and make sure ranges do not intersect with each other.",
     u"« %1 » n'est pas compris : séparez les pages par « , », écrivez une suite avec « - », sans "
     u"que deux suites se recouvrent."},
});

/// What the toolkit's catalogue lacks, or gets wrong, in the dialogs of printing.
class TextesImpression final : public QTranslator {
 public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char* contexte, const char* source, const char* /*distinction*/,
                      int /*n*/) const override {
        if (!std::string_view(contexte).starts_with("QPrint")) return {};
        const auto trouve = std::ranges::find(Textes, std::string_view(source), &Texte::anglais);
        return trouve == Textes.end() ? QString() : QString::fromUtf16(trouve->francais);
    }
};

}  // namespace

void franciser(QCoreApplication& app) {
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    auto* traduction = new QTranslator(&app);
    if (traduction->load(u"qtbase_fr"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(traduction);
    }
    // The last one installed is asked first.
    QCoreApplication::installTranslator(new TextesImpression(&app));
}

}  // namespace norvane::ui
