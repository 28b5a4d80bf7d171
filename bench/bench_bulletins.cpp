// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// 9999 grids on 1667 slips: what falls off the paper looked for, then the marks painted into a PDF,
// alone and over the drawn slip.
#include <cstdio>
#include <QBuffer>
#include <QGuiApplication>
#include <QPageSize>
#include <QPdfWriter>

#include "base/Travail.h"
#include "impression/DessinBulletin.h"
#include "tickets/GrillesHasard.h"
#include "Verification.h"
#include "widgets/Impression.h"

namespace {

using namespace norvane;
using namespace norvane::ui;

LotBulletins Lot() {
    LotBulletins lot;
    GenerateurHasard hasard(1);
    AjouterGrillesHasard(lot.grilles, hasard, {5, 1}, NbGrillesMax);
    lot.plage = {1, NbBulletins(lot.grilles.size())};
    for (int b = lot.plage.du; b <= lot.plage.au; ++b) lot.options.a(b) = {2, 3, 3, 1, 1, 1};
    return lot;
}

/// Bytes of the PDF.
qsizetype Composer(const LotBulletins& lot) {
    QByteArray contenu;
    QBuffer memoire(&contenu);
    memoire.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&memoire);
    const Place papier = lot.mise.geometrie.papier;
    pdf.setPageSize(QPageSize({papier.x, papier.y}, QPageSize::Millimeter));
    pdf.setPageMargins({});
    if (!peindreBulletins(pdf, lot, QGuiApplication::font(), {}, {})) return 0;
    memoire.close();
    return contenu.size();
}

int Mesurer() {
    LotBulletins lot = Lot();
    const double noms = Secondes([&] {
        if (!AvertissementHorsPapier(lot.mise, lot.grilles, lot.options, lot.plage.du, lot.plage.au)
                 .empty())
            std::abort();
    });
    std::printf("%-34s %9.2f ms\n", "marks off the paper looked for", noms * 1000);
    for (const bool epreuve : {false, true}) {
        lot.epreuve = epreuve;
        qsizetype octets = 0;
        const double duree = Secondes([&] { octets = Composer(lot); });
        if (octets == 0) return 1;
        std::printf("%-34s %9.2f ms, %d pages, %.1f MB\n",
                    epreuve ? "marks over the drawn slip" : "marks alone", duree * 1000,
                    lot.plage.nombre(), static_cast<double>(octets) / 1e6);
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    return Mesurer();
}
