// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A buffer list goes to a file and comes from one.
#pragma once

#include <filesystem>
#include <functional>
#include <QObject>

#include "atelier/TravauxListes.h"

class QString;
class QWidget;

namespace norvane::ui {

class PanneauListe;
struct Contexte;
struct FormatFichier;

class FichiersListes final : public QObject {
    Q_OBJECT

 public:
    FichiersListes(Contexte& ctx, QWidget* page);

    void ouvrir(PanneauListe& panneau);
    void sauver(PanneauListe& panneau);
    void exporter(PanneauListe& panneau);

 private:
    using Faire = PtrTravail (*)(Atelier&, QuelleListe, const std::filesystem::path&);

    void ecrire(PanneauListe& panneau, const QString& titre, const FormatFichier& format,
                const QString& texte, Faire faire);
    void lancer(PtrTravail travail, const QString& texte, PanneauListe& panneau,
                std::function<void(Travail&)> fin);
    void dire(const Travail& travail);

    Contexte& contexte_;
    QWidget* page_;
};

}  // namespace norvane::ui
