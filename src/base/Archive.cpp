// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Archive.h"

#include <fmt/format.h>
#include <zip.h>

#include <algorithm>
#include <memory>
#include <utility>

#include "base/Fichiers.h"
#include "base/Textes.h"

namespace norvane {

namespace {

constexpr std::size_t Tranche = std::size_t{1} << 20;  // bytes between two looks at the stop
constexpr time_t DateMembres = 315532800;              // 1 January 1980, the first a ZIP can hold

struct Abandon {
    void operator()(zip_t* zip) const { zip_discard(zip); }
};
using Zip = std::unique_ptr<zip_t, Abandon>;

struct FermetureMembre {
    void operator()(zip_file_t* membre) const { zip_fclose(membre); }
};

struct LiberationSource {
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};
using Source = std::unique_ptr<zip_source_t, LiberationSource>;

Erreur PasUneArchive(std::string_view nom) {
    return {fmt::format("« {} » n'est pas une archive ZIP lisible : choisissez un autre fichier.",
                        nom)};
}

bool NomSimple(std::string_view nom) {
    return !nom.empty() && nom.find_first_of("/\\:") == std::string_view::npos && nom != "." &&
           nom != "..";
}

Resultat<std::string> Deplier(zip_t* zip, const zip_stat_t& etat, std::string_view nom,
                              const Suivi& suivi) {
    const std::unique_ptr<zip_file_t, FermetureMembre> membre(zip_fopen_index(zip, 0, 0));
    if (!membre) return PasUneArchive(nom);
    // The size is what the archive tells: no byte is taken on its word before it is there.
    std::string contenu;
    for (;;) {
        if (suivi.arrete()) return Erreur{"Lecture arrêtée."};
        const std::size_t fait = contenu.size();
        contenu.resize(fait + std::min<std::size_t>(Tranche, etat.size - fait + 1));
        const auto lu = zip_fread(membre.get(), contenu.data() + fait, contenu.size() - fait);
        if (lu < 0 || fait + static_cast<std::size_t>(lu) > etat.size)
            return Erreur{
                fmt::format("« {} » est abîmé : son contenu ne se décompresse pas.", nom)};
        contenu.resize(fait + static_cast<std::size_t>(lu));
        if (lu == 0) break;
        suivi.poser(static_cast<int>(100 * contenu.size() / std::max<std::uint64_t>(etat.size, 1)));
    }
    if (contenu.size() != etat.size)
        return Erreur{fmt::format("« {} » est abîmé : son contenu est coupé.", nom)};
    return contenu;
}

}  // namespace

Resultat<MembreArchive> LireArchive(std::string_view octets, std::string_view nom,
                                    std::uint64_t octetsMax, const Suivi& suivi) {
    Source source(zip_source_buffer_create(octets.data(), octets.size(), 0, nullptr));
    if (!source) return PasUneArchive(nom);
    const Zip zip(zip_open_from_source(source.get(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr));
    if (!zip) return PasUneArchive(nom);
    (void)source.release();  // the archive's now

    const auto membres = zip_get_num_entries(zip.get(), 0);
    if (membres != 1)
        return Erreur{
            fmt::format("« {} » contient {} fichiers : il en faut un seul.", nom, membres)};
    zip_stat_t etat;
    constexpr zip_uint64_t Voulu = ZIP_STAT_NAME | ZIP_STAT_SIZE | ZIP_STAT_ENCRYPTION_METHOD;
    if (zip_stat_index(zip.get(), 0, 0, &etat) != 0 || (etat.valid & Voulu) != Voulu)
        return PasUneArchive(nom);
    if (!NomSimple(etat.name))
        return Erreur{
            fmt::format("« {} » contient un fichier rangé dans un dossier : refusé.", nom)};
    if (etat.encryption_method != ZIP_EM_NONE)
        return Erreur{fmt::format("« {} » est protégé par un mot de passe : refusé.", nom)};
    if (etat.size > octetsMax)
        return Erreur{
            fmt::format("Le contenu de « {} » est trop grand : {} Mo au lieu de {} au plus.", nom,
                        etat.size >> 20, octetsMax >> 20)};
    auto contenu = Deplier(zip.get(), etat, nom, suivi);
    if (!contenu) return Erreur{contenu.erreur()};
    return MembreArchive{etat.name, *std::move(contenu)};
}

Resultat<MembreArchive> LireFichierArchive(const std::filesystem::path& chemin,
                                           std::uint64_t octetsMax, const Suivi& suivi) {
    const auto octets = LireFichier(chemin, octetsMax);
    if (!octets) return Erreur{octets.erreur()};
    return LireArchive(*octets, chemin.filename().string(), octetsMax, suivi);
}

Resultat<std::string> FaireArchive(std::span<const MembreArchive> membres, int niveau,
                                   const Suivi& suivi) {
    const Erreur echec{"L'archive n'a pas pu être faite : la mémoire manque peut-être."};
    Source tampon(zip_source_buffer_create(nullptr, 0, 0, nullptr));
    if (!tampon) return echec;
    Zip zip(zip_open_from_source(tampon.get(), ZIP_CREATE | ZIP_TRUNCATE, nullptr));
    if (!zip) return echec;
    zip_source_keep(tampon.get());  // read again once the archive is closed

    for (const MembreArchive& membre : membres) {
        zip_source_t* source =
            zip_source_buffer(zip.get(), membre.contenu.data(), membre.contenu.size(), 0);
        const auto place = zip_file_add(zip.get(), membre.nom.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (place < 0) {
            zip_source_free(source);
            return echec;
        }
        const auto indice = static_cast<zip_uint64_t>(place);
        zip_set_file_compression(zip.get(), indice, membre.comprime ? ZIP_CM_DEFLATE : ZIP_CM_STORE,
                                 static_cast<zip_uint32_t>(niveau));
        zip_file_set_mtime(zip.get(), indice, DateMembres, 0);
    }
    Suivi copie = suivi;
    zip_register_progress_callback_with_state(
        zip.get(), 0.01,
        [](zip_t*, double part, void* s) {
            static_cast<const Suivi*>(s)->poser(static_cast<int>(100 * part));
        },
        nullptr, &copie);
    zip_register_cancel_callback_with_state(
        zip.get(), [](zip_t*, void* s) { return static_cast<const Suivi*>(s)->arrete() ? 1 : 0; },
        nullptr, &copie);
    if (zip_close(zip.get()) != 0) return suivi.arrete() ? Erreur{"Écriture arrêtée."} : echec;
    (void)zip.release();

    if (zip_source_open(tampon.get()) != 0) return echec;
    zip_stat_t etat;
    std::string octets;
    if (zip_source_stat(tampon.get(), &etat) == 0 && (etat.valid & ZIP_STAT_SIZE) != 0) {
        octets.resize(etat.size);
        const auto lu = zip_source_read(tampon.get(), octets.data(), octets.size());
        octets.resize(lu < 0 ? 0 : static_cast<std::size_t>(lu));
    }
    zip_source_close(tampon.get());
    if (octets.empty()) return echec;
    return octets;
}

}  // namespace norvane
