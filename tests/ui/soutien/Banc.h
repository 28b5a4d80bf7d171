// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What every interface test stands on: an atelier in a folder of its own, services that answer by
// script and remember what they were asked, and the whole form on them.
#pragma once

#include <deque>
#include <filesystem>
#include <fstream>
#include <QAbstractButton>
#include <QDate>
#include <QList>
#include <QPrinter>
#include <QTemporaryDir>

#include "atelier/Atelier.h"
#include "common/Contexte.h"
#include "common/Services.h"
#include "shell/VaroMain.h"
#include "soutien/EssaisQt.h"

namespace norvane::ui::essais {

// A test file opens all of them by this namespace.
using namespace norvane;
using namespace norvane::ui;
using namespace Qt::StringLiterals;

class MessagesScriptes final : public Messages {
 public:
    std::deque<int> reponses;      ///< answers to come; the first button when none is left
    QList<DemandeMessage> posees;  ///< everything asked or told so far

 protected:
    int poser(const DemandeMessage& demande) override {
        posees.append(demande);
        if (reponses.empty()) return CodeBouton1;
        const int code = reponses.front();
        reponses.pop_front();
        return code;
    }
};

class FichiersScriptes final : public DialoguesFichiers {
 public:
    std::deque<QString> dabord;  ///< the next paths, before
    QString reponse;             ///< the path of all that follow, empty to cancel
    QString propose;             ///< the name that the last one was opened with
    QString filtre;              ///< the filter chosen with it
    QStringList demandes;        ///< of each dialog so far: title, filters and preset filter
    QString enregistrer(QWidget*, const QString& titre, const QString& nom, const QString& filtres,
                        QString& filtreChoisi) override {
        demandes << titre + u"|"_s + filtres;
        filtreChoisi = filtre;
        propose = nom;
        if (dabord.empty()) return reponse;
        const QString choisi = dabord.front();
        dabord.pop_front();
        return choisi;
    }
    QString ouvrir(QWidget*, const QString& titre, const QString&, const QString& filtres,
                   const QString& filtrePreset) override {
        demandes << titre + u"|"_s + filtres + u"|"_s + filtrePreset;
        return reponse;
    }
};

class ImprimanteFichier final : public Imprimantes {
 public:
    QString pdf;  ///< where to print; empty to cancel
    bool choisir(QWidget*, QPrinter& imprimante, const QString&) override {
        imprimante.setOutputFormat(QPrinter::PdfFormat);
        imprimante.setOutputFileName(pdf);
        return !pdf.isEmpty();
    }
};

class HorlogeFixe final : public Horloge {
 public:
    QDate jour{2024, 8, 1};
    QDate aujourdhui() const override { return jour; }
};

class HasardFixe final : public Hasard {
 public:
    std::uint32_t valeur = 12345;
    std::uint32_t graine() override { return valeur; }
};

class LanceurEspion final : public Lanceur {
 public:
    QStringList documents;
    QStringList relances;
    bool reussit = true;
    bool ouvrirDocument(const QString& fichier) override {
        documents.append(fichier);
        return reussit;
    }
    bool relancer(const QString& repertoire) override {
        relances.append(repertoire);
        return reussit;
    }
};

/// The scripted services, reachable by their own types.
struct Scripts {
    MessagesScriptes* messages;
    FichiersScriptes* fichiers;
    ImprimanteFichier* imprimantes;
    LanceurEspion* lanceur;

    /// Fills `services` with fresh scripted ones, which it owns.
    static Scripts dans(Services& services) {
        Scripts s{new MessagesScriptes, new FichiersScriptes, new ImprimanteFichier,
                  new LanceurEspion};
        services.messages.reset(s.messages);
        services.fichiers.reset(s.fichiers);
        services.imprimantes.reset(s.imprimantes);
        services.horloge = std::make_unique<HorlogeFixe>();
        services.hasard = std::make_unique<HasardFixe>();
        services.lanceur.reset(s.lanceur);
        return s;
    }
};

/// One page's surroundings, on a base of its own where one is given.
struct Banc {
    QTemporaryDir dossier;
    Atelier atelier{std::filesystem::path(dossier.path().toStdString())};
    Services services;
    Scripts scripts = Scripts::dans(services);
    Relais relais;
    Travaux travaux{atelier.activite};
    Contexte contexte{atelier, services, travaux, relais, 1.28, 1.7075};

    explicit Banc(const Base* base = nullptr) {
        if (base == nullptr) return;
        atelier.base = *base;
        recalculer();
    }
    void recalculer() {
        if (const auto fait = atelier.recalculer(); !fait) qFatal("%s", fait.erreur().c_str());
    }
    std::filesystem::path chemin(const std::string& nom) const { return atelier.Repertoire / nom; }
    bool existe(const std::string& nom) const { return std::filesystem::exists(chemin(nom)); }
    std::string lire(const std::string& nom) const {
        std::ifstream f(chemin(nom));
        return {std::istreambuf_iterator<char>(f), {}};
    }
    void ecrire(const std::string& nom, const std::string& contenu) const {
        std::ofstream(chemin(nom)) << contenu;
    }
};

/// The whole form on show, its controls by their names.
struct FormeOuverte {
    Banc banc;
    std::unique_ptr<TVaroMainForm> forme =
        std::make_unique<TVaroMainForm>(banc.atelier, banc.services);
    const QList<DemandeMessage>& posees = banc.scripts.messages->posees;

    explicit FormeOuverte(const Base* base = nullptr) : banc(base) {
        eprouverModeles(*forme);
        forme->montrer();
    }
    template <typename T = QAbstractButton>
    T* de(const char* nom, int numero = 0) const {
        T* trouve = forme->findChild<T*>(QString::asprintf(nom, numero));
        if (trouve == nullptr) qFatal("%s", nom);
        return trouve;
    }
};

}  // namespace norvane::ui::essais
