// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <array>

#include "Balisage.h"
#include "base/Dates.h"
#include "stats/ExportTableau.h"

namespace norvane {

namespace {

constexpr const char* Phrase =
    "Le classeur Excel n'a pas pu être composé : faites de la place sur le disque ou fermez "
    "d'autres programmes, puis recommencez.";

constexpr double LargeurMax = 60;  // of a column, in characters
constexpr lxw_color_t FondEntete = 0xE4E9F2;
constexpr std::uint8_t PapierA4 = 9;  // the number of that size in such files

/// A file in memory that has a name as long as it is open: the library writes to names alone.
class FichierMemoire {
 public:
    FichierMemoire() : fd_(::memfd_create("classeur", MFD_CLOEXEC)) {}
    ~FichierMemoire() {
        if (fd_ >= 0) ::close(fd_);
    }
    FichierMemoire(const FichierMemoire&) = delete;
    FichierMemoire& operator=(const FichierMemoire&) = delete;

    bool ouvert() const { return fd_ >= 0; }
    std::string nom() const { return "/proc/self/fd/" + std::to_string(fd_); }
    /// All of it; empty when it cannot be read.
    std::string contenu() const {
        struct stat etat {};
        if (::fstat(fd_, &etat) != 0) return {};
        std::string octets(static_cast<std::size_t>(etat.st_size), '\0');
        std::size_t lus = 0;
        while (lus < octets.size()) {
            const ssize_t n =
                ::pread(fd_, octets.data() + lus, octets.size() - lus, static_cast<off_t>(lus));
            if (n <= 0) return {};
            lus += static_cast<std::size_t>(n);
        }
        return octets;
    }

 private:
    int fd_;
};

/// The sheet in the making; the workbook owns its parts.
class Feuille {
 public:
    Feuille(lxw_workbook* classeur, const TableauExporte& tableau)
        : classeur_(classeur),
          feuille_(workbook_add_worksheet(classeur, "Tableau")),
          tableau_(tableau) {
        // By NatureColonne.
        constexpr std::array<const char*, 5> masques{nullptr, "0", "0.00", "0.00%", "dd/mm/yyyy"};
        for (std::size_t nature = 0; nature < masques.size(); ++nature) {
            for (const bool aDroite : {false, true}) {
                lxw_format* format = workbook_add_format(classeur_);
                if (masques[nature] != nullptr) format_set_num_format(format, masques[nature]);
                format_set_align(format, aDroite ? LXW_ALIGN_RIGHT : LXW_ALIGN_LEFT);
                formats_[nature][aDroite ? 1 : 0] = format;
            }
        }
        gras_ = workbook_add_format(classeur_);
        format_set_bold(gras_);
        entete_ = workbook_add_format(classeur_);
        format_set_bold(entete_);
        format_set_align(entete_, LXW_ALIGN_CENTER);
        format_set_bg_color(entete_, FondEntete);
        format_set_bottom(entete_, LXW_BORDER_THIN);
    }

    void remplir() {
        lxw_row_t rang = 0;
        for (const auto& ligne : tableau_.titre)
            worksheet_write_string(feuille_, rang++, 0, ligne.c_str(), gras_);
        if (rang > 0) ++rang;
        const lxw_row_t entete = rang++;
        for (std::size_t c = 0; c < tableau_.colonnes.size(); ++c) ecrireColonne(entete, c);
        for (const auto& ligne : tableau_.lignes) {
            for (std::size_t c = 0; c < ligne.size(); ++c) ecrire(rang, c, ligne[c]);
            ++rang;
        }
        worksheet_freeze_panes(feuille_, entete + 1, 0);
        worksheet_autofilter(feuille_, entete, 0, rang - 1,
                             static_cast<lxw_col_t>(tableau_.colonnes.size() - 1));
        worksheet_repeat_rows(feuille_, entete, entete);
        worksheet_set_paper(feuille_, PapierA4);
        worksheet_fit_to_pages(feuille_, 1, 0);
    }

 private:
    /// The heading, and the width that all cells of the column ask for.
    void ecrireColonne(lxw_row_t rang, std::size_t c) {
        const auto colonne = static_cast<lxw_col_t>(c);
        const std::string& entete = tableau_.colonnes[c].entete;
        std::size_t largeur = Largeur(entete) + 2;  // the arrow of the filter
        for (const auto& ligne : tableau_.lignes)
            largeur = std::max(largeur, Largeur(ligne[c].texte));
        worksheet_set_column(feuille_, colonne, colonne,
                             std::min(static_cast<double>(largeur) + 2, LargeurMax), nullptr);
        worksheet_write_string(feuille_, rang, colonne, entete.c_str(), entete_);
    }

    void ecrire(lxw_row_t rang, std::size_t c, const CelluleExportee& cellule) {
        const ColonneExportee& colonne = tableau_.colonnes[c];
        const auto place = static_cast<lxw_col_t>(c);
        lxw_format* format =
            formats_[static_cast<std::size_t>(colonne.nature)][colonne.aDroite ? 1 : 0];
        const auto valeur = static_cast<double>(cellule.valeur);
        switch (colonne.nature) {
            case NatureColonne::Entier:
                if (!cellule.texte.empty())
                    worksheet_write_number(feuille_, rang, place, valeur, format);
                return;
            case NatureColonne::Centiemes:
                worksheet_write_number(feuille_, rang, place, valeur / 100, format);
                return;
            case NatureColonne::Pourcents:
                worksheet_write_number(feuille_, rang, place, valeur / 10000, format);
                return;
            case NatureColonne::Date:
                if (cellule.valeur == 0) break;
                ecrireDate(rang, place, static_cast<int>(cellule.valeur), format);
                return;
            default:
                break;
        }
        worksheet_write_string(feuille_, rang, place, cellule.texte.c_str(), format);
    }

    void ecrireDate(lxw_row_t rang, lxw_col_t place, int date, lxw_format* format) {
        const auto jour = EntierEnDate(date);
        lxw_datetime valeur{static_cast<int>(jour.year()),
                            static_cast<int>(static_cast<unsigned>(jour.month())),
                            static_cast<int>(static_cast<unsigned>(jour.day())),
                            0,
                            0,
                            0};
        worksheet_write_datetime(feuille_, rang, place, &valeur, format);
    }

    lxw_workbook* classeur_;
    lxw_worksheet* feuille_;
    const TableauExporte& tableau_;
    std::array<std::array<lxw_format*, 2>, 5> formats_{};  // by nature, then left or right
    lxw_format* gras_;
    lxw_format* entete_;
};

}  // namespace

Resultat<std::string> EnXlsx(const TableauExporte& tableau) {
    const FichierMemoire fichier;
    if (!fichier.ouvert()) return Erreur{Phrase};
    lxw_workbook* classeur = workbook_new(fichier.nom().c_str());
    if (classeur == nullptr) return Erreur{Phrase};
    Feuille(classeur, tableau).remplir();
    const bool fait = workbook_close(classeur) == LXW_NO_ERROR;
    std::string octets = fait ? fichier.contenu() : std::string();
    if (octets.empty()) return Erreur{Phrase};
    return octets;
}

}  // namespace norvane
