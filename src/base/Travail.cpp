// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/Travail.h"

#include <fmt/format.h>

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

namespace norvane {

namespace {

class TravailFonction final : public Travail {
 public:
    TravailFonction(const DescriptionTravail& d, std::function<Resultat<Rien>(const Suivi&)> corps)
        : Travail(d), corps_(std::move(corps)) {}

 protected:
    void executer() override {
        const auto fait = corps_(Suivi{arret(), &progres});
        if (!fait) refuser(fait.erreur());
    }

 private:
    std::function<Resultat<Rien>(const Suivi&)> corps_;
};

}  // namespace

unsigned NombreCoeurs() {
    return std::max(1U, std::thread::hardware_concurrency());
}

unsigned Suivi::nombreFils() const {
    return fils > 0 ? fils : NombreCoeurs();
}

Occupation::Occupation(Activite& activite, const DescriptionTravail& description)
    : activite_(&activite) {
    ++activite.TraitementsEnCours;
    activite.enCours = description;
}

Occupation& Occupation::operator=(Occupation&& autre) noexcept {
    if (this != &autre) {
        liberer();
        activite_ = std::exchange(autre.activite_, nullptr);
    }
    return *this;
}

void Occupation::liberer() {
    if (activite_ == nullptr) return;
    if (--activite_->TraitementsEnCours == 0) activite_->enCours.reset();
    activite_ = nullptr;
}

Travail::~Travail() = default;

void Travail::demarrer() {
    if (!fil_.joinable()) fil_ = std::thread([this] { mener(); });
}

void Travail::attendre() {
    if (fil_.joinable()) fil_.join();
}

void Travail::mener() {
    try {
        executer();
    } catch (const std::bad_alloc&) {
        refuser("La mémoire manque pour ce calcul : fermez d'autres programmes ou demandez moins.");
    } catch (const std::exception& e) {
        refuser(fmt::format("Le calcul s'est arrêté sur une erreur interne : {}.", e.what()));
    } catch (...) {
        refuser("Le calcul s'est arrêté sur une erreur interne inconnue.");
    }
    if (surFin) surFin();
}

void ArretPuisDestruction::operator()(Travail* travail) const {
    travail->arreter();
    travail->attendre();
    delete travail;
}

PtrTravail FaireTravail(const DescriptionTravail& description,
                        std::function<Resultat<Rien>(const Suivi&)> corps) {
    return PtrTravail(new TravailFonction(description, std::move(corps)));
}

}  // namespace norvane
