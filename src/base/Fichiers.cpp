// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Fichiers.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <system_error>
#include <utility>

namespace norvane {

namespace {

/// The system's reason in French, whatever the machine's language.
std::string Raison(int numero) {
    struct Raison {
        int numero;
        const char* texte;
    };
    static constexpr std::array<Raison, 12> raisons = {{
        {ENOENT, "le fichier ou le dossier n'existe pas"},
        {EACCES, "l'accès est refusé"},
        {EPERM, "l'accès est refusé"},
        {ENOSPC, "le disque est plein"},
        {EDQUOT, "votre quota de disque est atteint"},
        {EFBIG, "la taille permise pour un fichier est dépassée"},
        {EROFS, "le disque est en lecture seule"},
        {EISDIR, "c'est un dossier"},
        {ENOTDIR, "un dossier du chemin est un fichier"},
        {ENAMETOOLONG, "le nom est trop long"},
        {ELOOP, "les liens tournent en rond"},
        {EIO, "le disque répond par une erreur"},
    }};
    for (const Raison& r : raisons) {
        if (r.numero == numero) return r.texte;
    }
    return "erreur " + std::to_string(numero) + " du système";
}

Erreur Echec(const char* action, const std::filesystem::path& chemin, const std::string& cause) {
    return {"Impossible " + std::string(action) + " « " + chemin.string() + " » : " + cause + "."};
}

/// A descriptor that is closed when it goes out of sight.
class Descripteur {
 public:
    explicit Descripteur(int fd) : fd_(fd) {}
    ~Descripteur() { fermer(); }
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;

    void prendre(int fd) {
        fermer();
        fd_ = fd;
    }
    int fd() const { return fd_; }
    /// False when the last bytes could not be handed to the system.
    bool fermer() {
        const int fd = std::exchange(fd_, -1);
        return fd < 0 || ::close(fd) == 0;
    }

 private:
    int fd_;
};

bool EcrireTout(int fd, std::string_view contenu) {
    while (!contenu.empty()) {
        const ssize_t n = ::write(fd, contenu.data(), contenu.size());
        if (n < 0 && errno != EINTR) return false;
        if (n > 0) contenu.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
}

/// The file to replace: behind a link, what it points to, so that the link stays a link.
std::filesystem::path Cible(const std::filesystem::path& chemin, std::error_code& ec) {
    std::filesystem::path but = chemin;
    for (int saut = 0; saut < 40; ++saut) {
        const auto etat = std::filesystem::symlink_status(but, ec);
        ec.clear();
        if (etat.type() != std::filesystem::file_type::symlink) return but;
        const auto suite = std::filesystem::read_symlink(but, ec);
        if (ec) return but;
        but = suite.is_absolute() ? suite : but.parent_path() / suite;
    }
    ec = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return but;
}

struct Temporaire {
    std::filesystem::path chemin;
    int fd = -1;
};

constexpr std::string_view DebutTemporaire = ".norvane-";
constexpr std::string_view FinTemporaire = ".tmp";

/// A new file of its own in `dossier`; errno tells why when fd is negative.
Temporaire CreerTemporaire(const std::filesystem::path& dossier, mode_t droits) {
    static std::atomic<unsigned> compteur = 0;
    Temporaire temporaire;
    do {
        // The name stays short: the target's own may be as long as the system allows.
        temporaire.chemin =
            dossier / std::string(DebutTemporaire)
                          .append(std::to_string(::getpid()) + '-' + std::to_string(compteur++))
                          .append(FinTemporaire);
        temporaire.fd =
            ::open(temporaire.chemin.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, droits);
    } while (temporaire.fd < 0 && errno == EEXIST);
    return temporaire;
}

/// A name that creerTemporaire gives: two numbers between its two ends.
bool estNomTemporaire(std::string_view nom) {
    if (!nom.starts_with(DebutTemporaire) || !nom.ends_with(FinTemporaire)) return false;
    nom.remove_prefix(DebutTemporaire.size());
    nom.remove_suffix(FinTemporaire.size());
    const std::size_t tiret = std::min(nom.find('-'), nom.size());
    const auto estNombre = [](std::string_view texte) {
        return !texte.empty() && texte.find_first_not_of("0123456789") == texte.npos;
    };
    return estNombre(nom.substr(0, tiret)) &&
           estNombre(nom.substr(std::min(tiret + 1, nom.size())));
}

/// Owner, group and permissions of the file that is replaced. Only the superuser gives a file
/// away; the group alone may still be kept, and with it the access of those who share the file.
/// Where it may not, the group that the file falls to gets no more than everybody.
void ReprendreDroits(int fd, const struct stat& ancien) {
    mode_t droits = ancien.st_mode & 07777;
    if (::fchown(fd, ancien.st_uid, ancien.st_gid) != 0 &&
        ::fchown(fd, static_cast<uid_t>(-1), ancien.st_gid) != 0) {
        droits = (droits & 0707) | ((droits & 07) << 3);
    }
    if (::fchmod(fd, droits) != 0) errno = 0;  // a file system without permissions
}

/// Opens a plain file. What stands in the way, as a piece of a sentence; empty when nothing does.
std::string ouvrirLecture(const std::filesystem::path& chemin, Descripteur& fd, struct stat& etat) {
    // O_NONBLOCK: a pipe that bears the name must not stop the program.
    fd.prendre(::open(chemin.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (fd.fd() < 0 || ::fstat(fd.fd(), &etat) != 0) {
        const int numero = errno;
        std::error_code ec;
        const bool lien = std::filesystem::is_symlink(chemin, ec);
        return numero == ENOENT && lien ? "c'est un lien vers un fichier qui n'existe pas"
                                        : Raison(numero);
    }
    return S_ISREG(etat.st_mode) ? "" : "ce nom est celui d'un dossier ou d'un appareil";
}

/// Puts the rename itself on the disk; a file system that cannot is left to its own pace.
void SynchroniserDossier(const std::filesystem::path& dossier) {
    const Descripteur fd(::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (fd.fd() >= 0 && ::fsync(fd.fd()) != 0) errno = 0;
}

}  // namespace

Resultat<Rien> EcrireFichier(const std::filesystem::path& chemin, std::string_view contenu) {
    constexpr const char* action = "d'écrire";
    std::error_code ec;
    const std::filesystem::path but = Cible(chemin, ec);
    if (ec) return Echec(action, chemin, Raison(ec.value()));
    struct stat ancien {};
    const bool existe = ::stat(but.c_str(), &ancien) == 0;
    if (existe && !S_ISREG(ancien.st_mode)) {
        return Echec(action, chemin, "ce nom est celui d'un dossier ou d'un appareil");
    }
    const std::filesystem::path dossier = but.has_parent_path() ? but.parent_path() : ".";
    // Until it has the permissions of the file that it replaces, nobody else sees it.
    const Temporaire temporaire = CreerTemporaire(dossier, existe ? 0600 : 0666);
    if (temporaire.fd < 0) return Echec(action, chemin, Raison(errno));
    Descripteur fd(temporaire.fd);
    if (existe) ReprendreDroits(fd.fd(), ancien);
    const bool ecrit = EcrireTout(fd.fd(), contenu) && ::fsync(fd.fd()) == 0 && fd.fermer() &&
                       std::rename(temporaire.chemin.c_str(), but.c_str()) == 0;
    if (!ecrit) {
        const int numero = errno;
        ::unlink(temporaire.chemin.c_str());
        return Echec(action, chemin, Raison(numero));
    }
    SynchroniserDossier(dossier);
    return Rien{};
}

Resultat<std::string> LireFichier(const std::filesystem::path& chemin, std::uint64_t tailleMax) {
    constexpr const char* action = "de lire";
    const auto tropGrand = [&] {
        return Echec(action, chemin,
                     "il dépasse la taille permise de " + std::to_string(tailleMax) + " octets");
    };
    Descripteur fd(-1);
    struct stat etat {};
    const std::string obstacle = ouvrirLecture(chemin, fd, etat);
    if (!obstacle.empty()) return Echec(action, chemin, obstacle);
    if (static_cast<std::uint64_t>(etat.st_size) > tailleMax) return tropGrand();
    std::string contenu;
    contenu.reserve(static_cast<std::size_t>(etat.st_size));
    std::array<char, 65536> tampon;
    for (;;) {
        const ssize_t n = ::read(fd.fd(), tampon.data(), tampon.size());
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return Echec(action, chemin, Raison(errno));
        if (n == 0) return contenu;
        contenu.append(tampon.data(), static_cast<std::size_t>(n));
        if (contenu.size() > tailleMax) return tropGrand();  // it grew meanwhile
    }
}

bool NomPresent(const std::filesystem::path& chemin) {
    std::error_code ec;
    return std::filesystem::symlink_status(chemin, ec).type() !=
           std::filesystem::file_type::not_found;
}

std::string ObstacleLecture(const std::filesystem::path& chemin) {
    Descripteur fd(-1);
    struct stat etat {};
    return ouvrirLecture(chemin, fd, etat);
}

void RetirerRestes(const std::filesystem::path& dossier) {
    namespace fs = std::filesystem;
    const auto limite = fs::file_time_type::clock::now() - std::chrono::hours(24);
    std::error_code ec;
    for (fs::directory_iterator ici(dossier, ec), fin; !ec && ici != fin; ici.increment(ec)) {
        if (!estNomTemporaire(ici->path().filename().native())) continue;
        std::error_code ignore;
        if (!fs::is_regular_file(ici->symlink_status(ignore))) continue;
        const auto ecrit = ici->last_write_time(ignore);
        if (!ignore && ecrit < limite) fs::remove(ici->path(), ignore);
    }
}

void SurvivreAuxLimitesDeTaille() {
    ::signal(SIGXFSZ, SIG_IGN);
}

std::string_view SansMarqueOctets(std::string_view texte) {
    constexpr std::string_view marque = "\xEF\xBB\xBF";
    if (texte.starts_with(marque)) texte.remove_prefix(marque.size());
    return texte;
}

}  // namespace norvane
