// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The files of the four lists as long work: jobs to be started by whoever shows them. Their kind is
// GenreTravail::Fichier, their list the one that is read or written.
#pragma once

#include <filesystem>

#include "atelier/Atelier.h"
#include "base/Travail.h"

namespace norvane {

/// Reads a *.lst beside the state. Created suspended; at its end the main thread calls `poser`.
class OuvertureListe final : public Travail {
 public:
    OuvertureListe(const Atelier& atelier, QuelleListe cible, std::filesystem::path fichier);

    /// After its end: what was read takes the place of the list of the atelier that was named.
    /// False, and nothing changed, where the work was refused (erreur()) or stopped.
    bool poser(Atelier& atelier);

 private:
    void executer() override;

    const std::filesystem::path fichier_;
    const FormeGains gains_;
    Liste lue_;
    bool complete_ = false;
};

/// Writes a list of the atelier to a *.lst, or its lines as plain text. The list is read while the
/// job runs: the busy rule keeps it as it is.
PtrTravail FaireSauvegardeListe(Atelier& atelier, QuelleListe source,
                                const std::filesystem::path& fichier);
PtrTravail FaireExportListe(Atelier& atelier, QuelleListe source,
                            const std::filesystem::path& fichier);

}  // namespace norvane
