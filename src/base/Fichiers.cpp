// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Fichiers.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
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

/// A new file of its own in `dossier`; errno tells why when fd is negative.
Temporaire CreerTemporaire(const std::filesystem::path& dossier) {
    static std::atomic<unsigned> compteur = 0;
    Temporaire temporaire;
    do {
        // The name stays short: the target's own may be as long as the system allows.
        temporaire.chemin = dossier / (".norvane-" + std::to_string(::getpid()) + '-' +
                                       std::to_string(compteur++) + ".tmp");
        temporaire.fd =
            ::open(temporaire.chemin.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (temporaire.fd < 0 && errno == EEXIST);
    return temporaire;
}

/// Permissions, and the owner where the system lets us, of the file that is replaced.
bool ReprendreDroits(int fd, const struct stat& ancien) {
    if (::fchown(fd, ancien.st_uid, ancien.st_gid) != 0) errno = 0;
    return ::fchmod(fd, ancien.st_mode & 07777) == 0;
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
    const Temporaire temporaire = CreerTemporaire(dossier);
    if (temporaire.fd < 0) return Echec(action, chemin, Raison(errno));
    Descripteur fd(temporaire.fd);
    const bool ecrit = EcrireTout(fd.fd(), contenu) &&
                       (!existe || ReprendreDroits(fd.fd(), ancien)) && ::fsync(fd.fd()) == 0 &&
                       fd.fermer() && std::rename(temporaire.chemin.c_str(), but.c_str()) == 0;
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
    // O_NONBLOCK: a pipe that bears the name must not stop the program.
    const Descripteur fd(::open(chemin.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat etat {};
    if (fd.fd() < 0 || ::fstat(fd.fd(), &etat) != 0) return Echec(action, chemin, Raison(errno));
    if (!S_ISREG(etat.st_mode)) {
        return Echec(action, chemin, "ce nom est celui d'un dossier ou d'un appareil");
    }
    std::string contenu;
    contenu.reserve(std::min(static_cast<std::uint64_t>(etat.st_size), tailleMax));
    std::array<char, 65536> tampon;
    for (;;) {
        const ssize_t n = ::read(fd.fd(), tampon.data(), tampon.size());
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return Echec(action, chemin, Raison(errno));
        if (n == 0) return contenu;
        contenu.append(tampon.data(), static_cast<std::size_t>(n));
        if (contenu.size() > tailleMax) {
            return Echec(
                action, chemin,
                "il dépasse la taille permise de " + std::to_string(tailleMax) + " octets");
        }
    }
}

std::string_view SansMarqueOctets(std::string_view texte) {
    constexpr std::string_view marque = "\xEF\xBB\xBF";
    if (texte.starts_with(marque)) texte.remove_prefix(marque.size());
    return texte;
}

}  // namespace norvane
