// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Travaux.h"

#include <algorithm>
#include <QProgressBar>
#include <stdexcept>
#include <system_error>

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
constexpr int RythmeMs = 33;  // at most thirty steps of the gauge a second
}

Travaux::Travaux(Activite& activite, QObject* parent) : QObject(parent), activite_(activite) {
    rythme_.setInterval(RythmeMs);
    connect(&rythme_, &QTimer::timeout, this, &Travaux::suivre);
}

Travaux::~Travaux() {
    travail_.reset();  // while this can still be told of its end
}

bool Travaux::lancer(PtrTravail&& travail, const VueTravail& vue, QObject* pour,
                     std::function<void(Travail&)> fin) {
    if (travail_) throw std::logic_error("Travaux::lancer while a work runs");
    travail->surFin = [this] {
        QMetaObject::invokeMethod(this, &Travaux::finir, Qt::QueuedConnection);
    };
    try {
        travail->demarrer();
    } catch (const std::system_error& e) {
        erreur_ =
            u"Le calcul n'a pas pu être lancé (%1) : fermez d'autres programmes, puis "
            u"recommencez."_s.arg(QString::fromLocal8Bit(e.what()));
        return false;
    }
    occupation_ = Occupation(activite_, travail->description);
    travail_ = std::move(travail);
    vue_ = vue;
    jauge_ = vue.jauge;
    pour_ = pour;
    fin_ = std::move(fin);
    suivre();
    rythme_.start();
    Q_EMIT texteEtat(vue.texte);
    return true;
}

void Travaux::arreter() {
    if (travail_) travail_->arreter();
}

void Travaux::suivre() {
    if (!travail_ || !jauge_) return;
    // A work may learn its length on the way.
    const int total = travail_->progres.total();
    jauge_->setRange(0, total);
    jauge_->setValue(std::min(travail_->progres.fait(), total));
}

void Travaux::finir() {
    if (!travail_) return;
    travail_->attendre();
    rythme_.stop();
    const PtrTravail travail = std::move(travail_);
    const auto fin = std::move(fin_);
    occupation_.liberer();
    if (jauge_) jauge_->reset();
    Q_EMIT texteEtat({});
    if (pour_ && fin) fin(*travail);
    if (!activite_.occupe()) Q_EMIT repos();
}

}  // namespace norvane::ui
