// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A program that dies at a random moment of its work.
#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>

namespace norvane {

/// A child that does `travail` for ever, killed at a random moment before `limite` microseconds.
template <typename Travail>
void tuer(std::mt19937& alea, unsigned limite, Travail travail) {
    const pid_t pid = ::fork();
    ASSERT_GE(pid, 0);
    for (int i = 1; pid == 0; ++i)
        if (!travail(i)) ::_exit(9);
    ::usleep(static_cast<useconds_t>(alea() % limite));
    ::kill(pid, SIGKILL);
    int etat = 0;
    ASSERT_EQ(::waitpid(pid, &etat, 0), pid);
    ASSERT_TRUE(WIFSIGNALED(etat));
}

}  // namespace norvane
