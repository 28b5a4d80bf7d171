// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A text with styles, links and pictures, as values: what a report is before anything shows it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// What a run of text is for; how it looks stands in DocumentStyles.h. The order is that of the
/// numbers of the styles.
enum class Style : std::uint8_t {
    Corps,
    TitreRapport,
    TitreChapitre,
    Reserve,       ///< has a look, and no text of ours in it
    LienSommaire,  ///< links of the contents
    LienTable,     ///< links inside the box tables
    NumeroCommun,  ///< numbers in common
    Total,         ///< totals
    TitreTable,    ///< titles of tables and of details
    Table,         ///< box tables: a fixed pitch, lines that touch
    Retour,        ///< return links
    TableStatistique
};
inline constexpr int NbStyles = 12;

/// The pictures that a run may begin with.
enum class Image : std::uint8_t { Aucune, Puce, Retour };
inline constexpr int NbImages = 2;  ///< without Aucune

inline constexpr int SansLien = -1;
inline constexpr int SansAncre = -1;

/// A run: text of one style, without line ends; it may be a link, its picture with it.
struct Fragment {
    Style style = Style::Corps;
    std::string texte;            ///< UTF-8
    int lien = SansLien;          ///< index in Document::liens
    Image image = Image::Aucune;  ///< stands before the text

    friend bool operator==(const Fragment&, const Fragment&) = default;
};

/// One line, however long: whoever shows it breaks it. Or a horizontal rule, which has no runs.
struct Bloc {
    bool filet = false;
    bool centre = false;
    int ancre = SansAncre;  ///< index in Document::ancres: the line is a heading that one can reach
    std::vector<Fragment> fragments;

    std::string texte() const;  ///< of all runs

    friend bool operator==(const Bloc&, const Bloc&) = default;
};

struct Lien {
    std::string cible;   ///< name of an anchor; empty: the top of the document
    std::string survol;  ///< what is said of it while the pointer is over it
};

struct Ancre {
    std::string nom;
    int bloc;  ///< index in Document::blocs
};

/// Links and anchors stand in the order of writing: their places are their numbers.
struct Document {
    std::string titre;
    std::vector<Bloc> blocs;
    std::vector<Lien> liens;
    std::vector<Ancre> ancres;

    /// Number of the anchor of that name, SansAncre when there is none.
    int numeroAncre(std::string_view nom) const;
    /// The block that link number `lien` leads to; -1 when there is no such link or no such place.
    int blocDuLien(int lien) const;
};

/// Writes a document from its start to its end.
class Redacteur {
 public:
    explicit Redacteur(Document& document) : document_(document) {}

    void ligne(Style style, std::string_view texte);
    void centree(Style style, std::string_view texte);
    void vide() { ligne(Style::Corps, {}); }
    void filet();
    /// The next line bears it.
    void ancre(std::string nom) { ancre_ = std::move(nom); }

    // On the line begun last.
    void suite(Style style, std::string_view texte);
    void lien(Style style, std::string_view texte, std::string cible, std::string survol,
              Image image = Image::Aucune);

    /// A line of its own that begins with a picture; the text follows through suite or lien.
    void lignePuce();

 private:
    Bloc& nouveau(bool centre);

    Document& document_;
    std::string ancre_;
};

}  // namespace norvane
