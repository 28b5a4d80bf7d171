// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The analyses of all draws since 1976: made without a window, exported, and shown in their view.
#include <cstdio>
#include <memory>
#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>

#include "analyses/RapportPagine.h"
#include "analyses/VueRapport.h"
#include "base/BaseIntegree.h"
#include "reports/Analyses.h"
#include "reports/DocumentExport.h"
#include "Verification.h"

namespace {

using namespace norvane;
using namespace norvane::ui;

/// The naive way to one row of the statistics: every number looked for in every draw.
int FoisNaif(const Base& base, int numero) {
    int fois = 0;
    for (const Tirage& t : base.enUsage())
        for (const int n : t.Numeros) fois += n == numero ? 1 : 0;
    return fois;
}

void Mesurer() {
    const Base base = BaseIntegree(true);
    auto document = std::make_shared<Document>();
    const auto dire = [](const char* quoi, double secondes) {
        std::printf("%-34s %9.2f ms\n", quoi, secondes * 1000);
    };
    const double redaction =
        Secondes([&] { *document = RedigerAnalyses(base.enUsage(), 0, base.NbTirages - 1); });
    dire("report made", redaction);
    int total = 0;
    const double naif = Secondes([&] {
        total = 0;
        for (int n = 1; n <= NumeroMax; ++n) total += FoisNaif(base, n);
    });
    Exiger(total == NbBoules * base.NbTirages && document->liens.size() == 119, "report");
    dire("its first column alone, naively", naif);
    dire("as text", Secondes([&] { Exiger(!EnTexte(*document).empty(), "text"); }));
    dire("as a web page", Secondes([&] {
             Exiger(!EnHtml(*document, JeuStyles::RVStyle2, PlaceImages::Fichiers).empty(), "page");
         }));

    VueRapport vue(nullptr);
    vue.resize(1000, 640);
    vue.show();
    QApplication::processEvents();
    dire("shown, first line painted", Secondes([&] {
             vue.montrer(document, {});
             vue.viewport()->repaint();
         }));
    dire("another look, far down in it", Secondes([&] {
             vue.suivre(60);
             vue.montrer(document, {JeuStyles::RVStyle1, 1.0, 1.0, {}});
             vue.viewport()->repaint();
         }));
    Exiger(vue.verticalScrollBar()->value() > 0, "place of reading");
    dire("laid out on paper",
         Secondes([&] { Exiger(RapportPagine(*document).nombre() > 9, "pages"); }));
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Mesurer();
}
