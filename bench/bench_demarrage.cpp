// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// From the start of the process to the first painted window, over several starts, on the display
// at hand. Each start is a process of its own in an empty directory.
// Usage: norvane-bench-demarrage [STARTS]

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <QCoreApplication>
#include <QTimer>
#include <vector>

#include "shell/Lancement.h"

namespace {

/// One clock for parent and child: the machine's.
std::int64_t maintenant() {
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

int enfant(int argc, char** argv, int sortie) {
    return norvane::ui::lancer(argc, argv, [sortie] {
        const std::int64_t instant = maintenant();
        if (write(sortie, &instant, sizeof instant) != sizeof instant) std::abort();
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
    });
}

/// Microseconds of one start; negative when the window never came.
std::int64_t unDemarrage(const char* programme, const std::filesystem::path& dossier) {
    int tube[2];
    if (pipe(tube) != 0) return -1;
    const std::int64_t debut = maintenant();
    const pid_t pid = fork();
    if (pid == 0) {
        close(tube[0]);
        if (chdir(dossier.c_str()) != 0) _exit(3);
        const std::string prise = std::to_string(tube[1]);
        execl(programme, programme, "--enfant", prise.c_str(), nullptr);
        _exit(4);
    }
    close(tube[1]);
    std::int64_t peinte = -1;
    const bool lu = read(tube[0], &peinte, sizeof peinte) == sizeof peinte;
    close(tube[0]);
    int etat = 0;
    waitpid(pid, &etat, 0);
    return lu ? peinte - debut : -1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::strcmp(argv[1], "--enfant") == 0) {
        int seul = 1;
        return enfant(seul, argv, std::atoi(argv[2]));
    }
    const int nombre = argc > 1 ? std::max(1, std::atoi(argv[1])) : 11;
    const auto dossier =
        std::filesystem::temp_directory_path() / ("norvane-demarrage-" + std::to_string(getpid()));
    std::filesystem::create_directories(dossier);
    std::vector<double> ms;
    for (int i = 0; i < nombre; ++i) {
        const std::int64_t duree = unDemarrage("/proc/self/exe", dossier);
        if (duree < 0) {
            std::fprintf(stderr,
                         "The window did not show: is there a display, and no other "
                         "instance running?\n");
            std::filesystem::remove_all(dossier);
            return 1;
        }
        ms.push_back(static_cast<double>(duree) / 1000.0);
    }
    std::filesystem::remove_all(dossier);
    std::printf("start to the first painted window: first %.0f ms", ms.front());
    std::ranges::sort(ms);
    std::printf(", min %.0f, median %.0f, max %.0f ms (%d starts, bar 700 ms)\n", ms.front(),
                ms[ms.size() / 2], ms.back(), nombre);
    return 0;
}
