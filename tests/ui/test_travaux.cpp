// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The one service of long work, on works that the test leads by hand, and the closing of the
// window while one runs.

#include <atomic>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <thread>

#include "soutien/Banc.h"

using namespace norvane::ui::essais;

namespace {

constexpr DescriptionTravail Description{GenreTravail::Bornes, 5, QuelleListe::Tampon2};

/// What the test and the work share.
struct Meneur {
    std::atomic<int> position{0};
    std::atomic<bool> fini{false};
    std::atomic<bool> parti{false};
    std::atomic<bool> arrete{false};
};

/// A work that says it is where `meneur` wants it, until it may end or must stop.
PtrTravail travailMene(const std::shared_ptr<Meneur>& meneur) {
    auto travail = FaireTravail(Description, [meneur](const Suivi& suivi) -> Resultat<Rien> {
        meneur->parti = true;
        while (!meneur->fini && !suivi.arrete()) {
            suivi.poser(meneur->position);
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        meneur->arrete = suivi.arrete();
        if (meneur->arrete) return Erreur{"arrêté"};
        return Rien{};
    });
    travail->progres.commencer(40);
    return travail;
}

/// The service with its views, and what it said so far.
struct Etabli {
    Activite activite;
    std::unique_ptr<Travaux> travaux = std::make_unique<Travaux>(activite);
    QProgressBar jauge;
    QObject receveur;
    std::shared_ptr<Meneur> meneur = std::make_shared<Meneur>();
    QSignalSpy textes{travaux.get(), &Travaux::texteEtat};
    QSignalSpy repos{travaux.get(), &Travaux::repos};
    int fins = 0;
    QString erreur;

    bool lancer(QObject* pour) {
        return travaux->lancer(travailMene(meneur), {u"En cours"_s, &jauge}, pour,
                               [this](Travail& travail) {
                                   ++fins;
                                   erreur = versQt(travail.erreur());
                               });
    }
    bool occupe() const { return activite.occupe() || activite.TraitementsEnCours != 0; }
};

}  // namespace

class TestTravaux final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void vieDUnTravail() {
        Etabli e;
        QVERIFY(e.lancer(&e.receveur));
        QVERIFY(e.activite.TraitementsEnCours == 1 && e.activite.enCours == Description);
        QCOMPARE(e.travaux->enCours()->description, Description);
        QCOMPARE(e.textes.takeFirst().at(0).toString(), u"En cours"_s);
        QVERIFY(e.jauge.minimum() == 0 && e.jauge.maximum() == 40 && e.jauge.value() == 0);
        for (const int position : {10, 30}) {
            e.meneur->position = position;
            QTRY_COMPARE(e.jauge.value(), position);
        }
        QVERIFY(e.fins == 0 && e.textes.isEmpty());

        e.meneur->fini = true;
        QTRY_COMPARE(e.fins, 1);
        QVERIFY(!e.occupe() && !e.activite.enCours && e.travaux->enCours() == nullptr);
        QCOMPARE(e.textes.takeFirst().at(0).toString(), QString());
        QVERIFY(e.jauge.value() < 0);  // empty
        QVERIFY(e.erreur.isEmpty() && e.repos.size() == 1);
        QTest::qWait(50);  // longer than a step of the gauge
        QVERIFY(e.fins == 1 && e.jauge.value() < 0 && e.textes.isEmpty());
    }

    void arret() {
        Etabli e;
        e.travaux->arreter();  // nothing to stop
        QVERIFY(e.lancer(&e.receveur));
        e.travaux->arreter();
        QTRY_COMPARE(e.fins, 1);
        QVERIFY(e.meneur->arrete && !e.occupe());
        QCOMPARE(e.erreur, u"arrêté"_s);
    }

    /// Its end may start the next: the program is at rest after the last only.
    void enchainement() {
        Etabli e;
        const auto suivant = std::make_shared<Meneur>();
        QVERIFY(e.travaux->lancer(travailMene(e.meneur), {}, &e.receveur, [&](Travail&) {
            QVERIFY(!e.occupe() && e.repos.isEmpty());
            e.travaux->lancer(travailMene(suivant), {}, &e.receveur, [&](Travail&) { ++e.fins; });
        }));
        e.meneur->fini = true;
        QTRY_VERIFY(suivant->parti);
        QVERIFY(e.occupe() && e.repos.isEmpty());
        suivant->fini = true;
        QTRY_COMPARE(e.repos.size(), 1);
        QCOMPARE(e.fins, 1);
    }

    void destructionPendantUnTravail() {
        Etabli e;
        QVERIFY(e.lancer(&e.receveur));
        QTRY_VERIFY(e.meneur->parti);
        e.travaux.reset();
        QVERIFY(e.meneur->arrete && !e.occupe());
        QCoreApplication::processEvents();
        QCOMPARE(e.fins, 0);
    }

    /// The work is stopped and waited for, then the window closes with its ordinary question.
    void fermeturePendantUnTravail() {
        FormeOuverte f;
        auto* travaux = f.forme->findChild<Travaux*>();
        Activite& activite = f.banc.atelier.activite;
        const auto lancer = [&](const std::shared_ptr<Meneur>& meneur) {
            return travaux->lancer(travailMene(meneur), {u"En cours"_s}, f.forme.get(),
                                   [](Travail&) {});
        };
        auto meneur = std::make_shared<Meneur>();
        QVERIFY(lancer(meneur));
        QCOMPARE(f.de<QLabel>("PanneauTexte")->text(), u"En cours"_s);
        f.forme->close();
        QVERIFY(f.forme->isVisible() && activite.QuitterEnAttente && f.posees.isEmpty());
        // Refused at the end: the wish is forgotten.
        f.banc.scripts.messages->reponses = {CodeBouton2};
        QTRY_COMPARE(f.posees.size(), 1);
        QCOMPARE(f.posees.last().instruction, u"Souhaitez vous quitter l'application ?"_s);
        QVERIFY(meneur->arrete && f.forme->isVisible() && !activite.QuitterEnAttente);

        QVERIFY(lancer(std::make_shared<Meneur>()));
        f.forme->close();
        QVERIFY(f.forme->isVisible());
        QTRY_VERIFY(!f.forme->isVisible());
        QCOMPARE(f.posees.size(), 2);
    }
};

QTEST_MAIN(TestTravaux)
#include "test_travaux.moc"
