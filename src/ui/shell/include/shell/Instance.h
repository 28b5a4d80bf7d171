// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// One running program per user.
#pragma once

#include <string>

namespace norvane::ui {

/// Holds a name of the machine for the life of the object: an abstract socket, which the kernel
/// gives back however the process ends. No file is left behind.
class Instance {
 public:
    explicit Instance(const std::string& nom);
    ~Instance() { liberer(); }
    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;

    /// False when the name is taken, or cannot be had at all.
    bool seule() const { return prise_ >= 0; }
    /// Gives the name back early, for a program about to start again.
    void liberer();

 private:
    int prise_ = -1;
};

}  // namespace norvane::ui
