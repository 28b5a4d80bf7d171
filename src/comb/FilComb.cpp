// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include <exception>
#include <fstream>
#include <new>
#include <string>

#include "comb/VaroFonc2.h"

namespace norvane {

TCombThread::~TCombThread() = default;

void TCombThread::Resume() {
    if (!fil_.joinable()) fil_ = std::thread([this] { executer(); });
}

void TCombThread::WaitFor() {
    if (fil_.joinable()) fil_.join();
}

void TCombThread::executer() {
    try {
        Execute();
    } catch (const std::bad_alloc&) {
        refuser("La mémoire manque pour ce calcul : fermez d'autres programmes ou demandez moins.");
    } catch (const std::exception& e) {
        refuser(fmt::format("Le calcul s'est arrêté sur une erreur interne : {}.", e.what()));
    } catch (...) {
        refuser("Le calcul s'est arrêté sur une erreur interne inconnue.");
    }
    if (OnTerminate) OnTerminate();
}

void ArretPuisDestruction::operator()(TCombThread* fil) const {
    fil->Terminate();
    fil->WaitFor();
    delete fil;
}

std::uint64_t MemoireDisponible() {
    std::ifstream flux("/proc/meminfo");
    std::string cle;
    std::uint64_t valeur = 0;
    std::string unite;
    while (flux >> cle >> valeur && std::getline(flux, unite))
        if (cle == "MemAvailable:") return valeur * 1024;
    return 0;
}

}  // namespace norvane
