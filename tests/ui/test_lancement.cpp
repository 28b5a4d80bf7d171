// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What surrounds the form: the signals that end the program, the texts of the toolkit.

#include <csignal>
#include <QGroupBox>
#include <QPrintDialog>
#include <QRegularExpression>
#include <QTest>

#include "base/Stockage.h"
#include "shell/Francais.h"
#include "shell/SignauxFin.h"
#include "soutien/Banc.h"

using namespace norvane::ui::essais;

class TestLancement final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    /// The system ends the program: everything is saved, nothing asked, work stopped before.
    void finParUnSignal() {
        for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
            FormeOuverte f;
            const SignauxFin signaux;
            connect(&signaux, &SignauxFin::finVoulue, f.forme.get(),
                    &TVaroMainForm::fermerSansQuestion);
            f.banc.atelier.billets.ListeChoix = {
                std::vector<Grille>(9999, FaireGrille({3, 14, 25, 31, 44}, {7}, false))};
            f.banc.atelier.billets.aSauver = true;
            if (signal == SIGTERM) {
                f.de("Consultation")->click();
                f.de("VerifGains")->click();
                QVERIFY(f.banc.atelier.activite.occupe());
            }
            std::raise(signal);
            QTRY_VERIFY(!f.forme->isVisible());
            QVERIFY(f.posees.isEmpty() && !f.banc.existe("Bilan.dat"));
            QVERIFY(f.banc.lire("Grilles&Reçus/Grlbak.grl").starts_with("9999\n"));
            QVERIFY(f.banc.existe(NomStockage));
        }
    }

    void impressionEnFrancais() {
        franciser(*qApp);
        QPrinter imprimante;
        const QPrintDialog dialogue(&imprimante);
        QStringList textes;
        for (const auto* bouton : dialogue.findChildren<QAbstractButton*>())
            textes << bouton->text();
        for (const auto* groupe : dialogue.findChildren<QGroupBox*>()) textes << groupe->title();
        for (const char16_t* texte : {u"Im&primer", u"Annuler", u"Pages à imprimer", u"Désactivée",
                                      u"Impression recto verso", u"Reliure sur le grand côté"})
            QVERIFY2(textes.contains(QString::fromUtf16(texte)), qPrintable(textes.join(u'|')));
        static const QRegularExpression anglais(u"\\b(off|of|binding|printing|the|range|all)\\b"_s);
        QCOMPARE(textes.filter(anglais), QStringList());
    }
};

QTEST_MAIN(TestLancement)
#include "test_lancement.moc"
