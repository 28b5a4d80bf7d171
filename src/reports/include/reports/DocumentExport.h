// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A document as plain text and as a web page.
#pragma once

#include <filesystem>
#include <string>

#include "base/Resultat.h"
#include "reports/Document.h"
#include "reports/DocumentStyles.h"

namespace norvane {

inline constexpr int LargeurTexte = 100;  ///< columns

/// Lines of at most LargeurTexte characters: a longer one is broken at its blanks. Centred lines
/// are centred in that width, a rule takes all of it, pictures leave no trace. LF line ends.
std::string EnTexte(const Document& document);

/// Where the pictures of a web page are.
enum class PlaceImages { Fichiers, DansLaPage };

/// The address of a heading, and of the top where `ancre` is SansAncre.
std::string AdresseHtml(int ancre);
/// The file of a picture beside the page: varoimg1.svg, varoimg2.svg.
std::string FichierImage(Image image);

/// A whole page in UTF-8, at once HTML 5 and well-formed XML: readable on a phone, its links work.
std::string EnHtml(const Document& document, JeuStyles jeu, PlaceImages images);

/// Writes the page, its pictures beside it; those replace what bears their names. The page itself
/// comes last: where a picture cannot be written, it stays as it was.
Resultat<Rien> EcrireHtml(const Document& document, JeuStyles jeu,
                          const std::filesystem::path& fichier);

}  // namespace norvane
