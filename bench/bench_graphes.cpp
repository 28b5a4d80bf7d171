// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Graphes" on the offscreen platform: a step of the animation, "Pointage" opened and
// scrolled, on the present game and on the global base; beside each, the same points in a chart of
// Qt Charts.

#include <algorithm>
#include <ctime>
#include <limits>
#include <QApplication>
#include <QChartView>
#include <QComboBox>
#include <QScatterSeries>
#include <QTemporaryDir>
#include <QValueAxis>

#include "base/BaseIntegree.h"
#include "graphes/PageGraphes.h"
#include "graphes/VueGraphe.h"
#include "Verification.h"
#include "widgets/SpinTirage.h"

using namespace norvane;
using namespace norvane::ui;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize Taille{1366, 640};
constexpr int Pas = 20;  // steps of one measure

/// Processor seconds that one call takes, the best of a few: all of it runs on one thread, and what
/// else the machine does is left out.
template <typename Appel>
double SecondesCpu(Appel appel) {
    std::clock_t meilleur = std::numeric_limits<std::clock_t>::max();
    for (int essai = 0; essai < 3; ++essai) {
        const std::clock_t debut = std::clock();
        appel();
        meilleur = std::min(meilleur, std::clock() - debut);
    }
    return static_cast<double>(meilleur) / CLOCKS_PER_SEC;
}

/// A chart as the toolkit has it: one series for each colour.
struct GrapheQt {
    QChartView vue{new QChart};
    QValueAxis* x = new QValueAxis;
    QValueAxis* y = new QValueAxis;
    std::array<QScatterSeries*, 2> series{new QScatterSeries, new QScatterSeries};

    explicit GrapheQt(QSize taille) {
        vue.chart()->legend()->hide();
        vue.chart()->addAxis(x, Qt::AlignBottom);
        vue.chart()->addAxis(y, Qt::AlignLeft);
        x->setRange(0.5, 59.5);
        for (QScatterSeries* s : series) {
            s->setMarkerSize(10);
            vue.chart()->addSeries(s);
            s->attachAxis(x);
            s->attachAxis(y);
        }
        vue.resize(taille);
        vue.show();
        QCoreApplication::processEvents();
    }
    void montrer(std::span<const PointGraphe> points, double bas, double haut) {
        std::array<QList<QPointF>, 2> places;
        for (const PointGraphe& p : points)
            places[p.teinte == Teinte::Sorti ? 1 : 0].emplaceBack(p.place, p.valeur);
        for (std::size_t i = 0; i < 2; ++i) series[i]->replace(places[i]);
        y->setRange(bas, haut);
    }
};

void dire(const char* quoi, double nous, double eux, double barre) {
    std::printf("%-52s %8.2f ms   Qt Charts %9.2f ms   ratio %7.1f   bar %4.0f ms\n", quoi,
                nous * 1000, eux * 1000, eux / nous, barre);
}

struct PageMontree {
    PageGraphes page;
    VueGraphe* stats;
    VueGraphe* pointage;

    explicit PageMontree(Contexte& contexte) : page(contexte, nullptr) {
        stats = page.findChild<VueGraphe*>(u"Chart1"_s);
        pointage = page.findChild<VueGraphe*>(u"Chart2"_s);
        QObject::connect(&contexte.relais, &Relais::change, &page, &ui::Page::surChange);
        page.resize(Taille);
        page.show();
        QCoreApplication::processEvents();
    }
};

void mesurerAnimation(PageMontree& p, const Atelier& atelier) {
    auto* inf = p.page.findChild<SpinTirage*>(u"RxSpinEditGraphe0"_s);
    auto* sup = p.page.findChild<SpinTirage*>(u"RxSpinEditGraphe"_s);
    inf->setValue(1);
    const int dernier = sup->maximum();
    const double nous = SecondesCpu([&] {
        for (int i = 0; i < Pas; ++i) {
            sup->setValue(dernier - i);
            p.stats->repaint();
        }
    });
    GrapheQt qt(p.stats->size());
    std::size_t points = 0;
    const double eux = SecondesCpu([&] {
        for (int i = 0; i < Pas; ++i) {
            const TableGraphe table = CalculerTable(atelier.occurrences, 1, dernier - i);
            const auto serie = PointsStatistiques(
                table, atelier.base.Tirages[static_cast<std::size_t>(dernier - i - 1)]);
            qt.montrer(serie, 0, 1000);
            qt.vue.viewport()->repaint();
            points = static_cast<std::size_t>(qt.series[0]->count() + qt.series[1]->count());
        }
    });
    Exiger(points == p.stats->scene().points.size(), "points of the statistics chart");
    dire("a step of the animation", nous / Pas, eux / Pas, 16);
}

void mesurerPointage(Contexte& contexte, const Atelier& atelier) {
    const int n = atelier.base.NbTirages;
    std::unique_ptr<PageMontree> p;
    const auto choisir = [&](int item) {
        p->page.findChild<QComboBox*>(u"ComboBoxGraphe"_s)->setCurrentIndex(item);
        QCoreApplication::processEvents();
    };
    p = std::make_unique<PageMontree>(contexte);
    const double ouverture = SecondesCpu([&] {
        choisir(0);
        contexte.relais.annoncer({.listes = true});
        choisir(1);
    });
    const auto tous = PointsPointage(atelier.base, {});
    std::unique_ptr<GrapheQt> qt;
    const double ouvertureQt = SecondesCpu([&] {
        qt = std::make_unique<GrapheQt>(p->pointage->size());
        qt->montrer(tous, n - 29.5, n + 0.5);
        QCoreApplication::processEvents();
    });
    dire("pointage opened", ouverture, ouvertureQt, 300);

    const auto defiler = [&](double hauteur) {
        const double nous = SecondesCpu([&] {
            for (int i = 0; i < Pas; ++i) {
                p->pointage->defiler(0, i % 2 == 0 ? -1 : 1);
                p->pointage->repaint();
            }
        });
        const double eux = SecondesCpu([&] {
            qt->y->setRange(n - hauteur, n - 1);
            qt->vue.viewport()->repaint();
            qt->y->setRange(n - hauteur + 1, n);
            qt->vue.viewport()->repaint();
        });
        return std::pair(nous / Pas, eux / 2);
    };
    const auto [trente, trenteQt] = defiler(30);
    dire("pointage scrolled by a draw, 30 draws on show", trente, trenteQt, 16);
    while (p->pointage->scene().y.longueur() < n - 10) p->pointage->zoomer(1.02);
    const auto& scene = p->pointage->scene();
    Exiger(static_cast<std::size_t>(std::ranges::count_if(
               tous, [&](const PointGraphe& point) { return scene.visible(point); })) ==
               scene.points.size(),
           "points of the pointage");
    const auto [tout, toutQt] = defiler(n);
    dire("pointage scrolled by a draw, all draws on show", tout, toutQt, 16);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir dossier;
    Atelier atelier(dossier.path().toStdString());
    Services services = Services::reels();
    Relais relais;
    Travaux travaux(atelier.activite);
    Contexte contexte{atelier, services, travaux, relais, 1.28, 1.7075};
    for (const bool anciens : {false, true}) {
        atelier.base = BaseIntegree(anciens);
        static_cast<void>(static_cast<bool>(atelier.recalculer()));
        std::printf("%d draws, %zu points\n", atelier.base.NbTirages,
                    PointsPointage(atelier.base, {}).size());
        {
            PageMontree p(contexte);
            mesurerAnimation(p, atelier);
        }
        mesurerPointage(contexte, atelier);
    }
    return 0;
}
