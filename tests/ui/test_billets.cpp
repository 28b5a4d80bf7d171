// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tickets of the page "Résultats": entry, Joker+, files, consultation, reports, random grids.

#include <functional>
#include <QListWidget>
#include <QTest>

#include "soutien/EssaiResultats.h"
#include "tickets/Bilan.h"
#include "tickets/FichiersGrilles.h"
#include "tickets/GrillesHasard.h"

using namespace norvane::ui::essais;
using namespace std::string_literals;

namespace {

using Grilles = std::vector<Grille>;
using Geste = std::function<void(Essai&)>;

const Grille Simple = FaireGrille(std::vector{9, 8, 7, 6, 5}, std::vector{10}, false);
const Grille Multiple = FaireGrille(std::vector{1, 2, 3, 4, 5, 6}, std::vector{1, 2}, true);
const QString Incomplete = u"La grille en cours n'est pas complète..."_s;

Grilles lot(int nombre) {
    GenerateurHasard hasard(7);
    Grilles grilles;
    AjouterGrillesHasard(grilles, hasard, {5, 1}, nombre);
    return grilles;
}

void completer(const Essai& e) {
    e.presser({14, 3, 25, 31, 44, 56});
}

void dater(const Essai& e, QDate date) {
    e.de<QDateEdit>(u"DateParticipation"_s)->setDate(date);
    e.cliquer({u"ButtonValiderJack"});
}

/// A receipt of one ticket and one Joker+ number, up to the date.
void saisirRecu(const Essai& e, const QString& joker) {
    e.selectionner(true);
    completer(e);
    e.cliquer({u"NormalMode", u"RadioJoker1", u"Button66"});
    e.de<QLineEdit>(u"MaskEdit1"_s)->setText(joker);
    e.cliquer({u"ButtonValiderJack"});
    e.demandes();
}

/// Opens a file of this content; both lists and a Joker+ line are in memory.
Geste ouvrir(const QString& nom, const std::string& contenu) {
    return [=](Essai& e) {
        if (!contenu.empty()) e.banc.ecrire(nom.toStdString(), contenu);
        e.banc.scripts.fichiers->reponse = e.banc.dossier.filePath(nom);
        e.banc.atelier.ListeChoix = e.banc.atelier.ListeRecu = {Simple};
        e.banc.atelier.ListeJoker = {{{7, 6, 5, 4, 3, 2, 1}, 2}};
    };
}

}  // namespace

class TestBillets final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void vieDUnRecu() {
        Essai e(false);
        e.selectionner(true);
        completer(e);
        e.presser({3, 12});  // 3 leaves its place, 12 comes last
        e.cliquer({u"CheckBox2ND", u"AddGrille"});
        QCOMPARE(e.de(u"NormalMode"_s)->toolTip(),
                 u"Passer à la saisie de la date de participation"_s);
        e.presser({1, 2});  // incomplete at the end: dropped
        e.demandes();
        e.repondre({CodeBouton1, CodeBouton2});
        e.cliquer({u"NormalMode", u"RadioJoker2", u"Button66", u"Button66"});
        QCOMPARE(e.demandes().value(2), u"Vous avez 2 Numéro(s) Joker+ à saisir..."_s);
        auto* masque = e.de<QLineEdit>(u"MaskEdit1"_s);
        QCOMPARE(e.texte(u"LabelJackpot"_s), u"2 Numéros restant à saisir"_s);
        masque->setText(u"0.0.1.2.3"_s);
        e.cliquer({u"ButtonValiderJack"});
        QCOMPARE(e.demandes(), QStringList{u"Erreur de saisie, Numéro Joker+..."_s});
        masque->setText(u"0012345"_s);
        e.cliquer({u"ButtonValiderJack", u"CheckBoxPM1"});
        QCOMPARE(e.texte(u"LabelJackpot"_s), u"1 Numéro restant à saisir"_s);
        const auto* mises = e.de<QListWidget>(u"RxCheckListBox7"_s);
        mises->item(1)->setCheckState(Qt::Checked);
        QCOMPARE(mises->item(0)->checkState(), Qt::Unchecked);  // one stake, always
        masque->setText(u"9876543"_s);
        e.cliquer({u"ButtonValiderJack"});
        dater(e, {2024, 8, 6});  // a Tuesday
        QCOMPARE(e.demandes(), (QStringList{u"Saisissez à présent la date de participation"_s,
                                            u"Cette date ne correspond à aucun Tirage..."_s}));
        QVERIFY(e.banc.modes.ModeSelection);
        dater(e, {2030, 1, 2});  // a Wednesday far ahead
        QVERIFY(e.demandes().isEmpty() && e.banc.modes.ModeNormal);
        QCOMPARE(e.banc.lire("Grilles&Reçus/20300102.rdj"),
                 std::string("1\n3 5 14 25 31 44 12 1 7\n2\n0 0 1 2 3 4 5 1 \n9 8 7 6 5 4 3 4 \n"));
        QCOMPARE(ecartAvec(e, e.base().NbTirages - 1), QString());  // the draw is back, its Joker+

        e.selectionner(true);
        completer(e);
        e.cliquer({u"NormalMode", u"RadioJoker0", u"Button66"});
        QCOMPARE(e.demandes().value(1), u"Joker+ non participant..."_s);
        dater(e, {2024, 8, 5});
        QCOMPARE(e.banc.lire("Grilles&Reçus/20240805.rdj"),
                 std::string("1\n3 5 14 3 25 31 44 1 7\n0\n"));  // the option stays ticked
    }

    void fusionOuRemplacement() {
        Essai e(false);
        const std::string fichier = "Grilles&Reçus/20240807.rdj";
        const std::string un = "2.2 5 14 3 25 31 44 1 7\n";
        for (const auto& [reponse, attendu] :
             {std::pair{CodeBouton1, "2\n" + un + un + "2\n1 1 1 1 1 1 1 1 \n2 2 2 2 2 2 2 1 \n"},
              std::pair{CodeBouton2, "1\n" + un + "1\n2 2 2 2 2 2 2 1 \n"}}) {
            std::filesystem::remove(e.banc.chemin(fichier));
            saisirRecu(e, u"1111111"_s);
            dater(e, {2024, 8, 7});
            saisirRecu(e, u"2222222"_s);
            e.repondre({CodeFerme, reponse});
            dater(e, {2024, 8, 7});  // closed without an answer: still to be settled
            QVERIFY(e.banc.modes.ModeSelection);
            dater(e, {2024, 8, 7});
            QCOMPARE(e.banc.lire(fichier), attendu);
            QCOMPARE(TexteRecu({e.banc.atelier.ListeRecu, e.banc.atelier.ListeJoker}), attendu);
        }
    }

    void refus_data() {
        QTest::addColumn<Geste>("avant");
        QTest::addColumn<QString>("bouton");
        QTest::addColumn<QString>("instruction");  // empty: any, but one
        const Geste entame = [](Essai& e) { e.selectionner(false), e.presser({1, 2, 3}); };
        const Geste occupe = [](Essai& e) { completer(e), e.banc.atelier.TraitementsEnCours = 1; };
        const Geste jourSansTirage = [](Essai& e) { e.date()->setDate({2024, 7, 23}); };
        const char* grille = "2.2 5 1 2 3 4 5 1 7\n";
        const QString recu = u"20230125.rdj"_s, charger = u"ChargerGrilles"_s;
        QTest::newRow("add") << entame << u"AddGrille"_s << Incomplete;
        QTest::newRow("delete all") << entame << u"SupprAllGrilles"_s << Incomplete;
        QTest::newRow("none to verify")
            << Geste([](Essai&) {}) << u"VerifGains"_s << u"Aucune grille sélectionnée..."_s;
        QTest::newRow("no draw") << jourSansTirage << u"VerifGains"_s
                                 << u"Il faut d'abord sélectionner un tirage en mémoire..."_s;
        QTest::newRow("busy") << occupe << u"ChargerGrilles"_s
                              << u"Attendez la fin du traitement en cours..."_s;
        QTest::newRow("cut") << ouvrir(u"a.grl"_s, "2\n"s + grille) << charger << QString();
        QTest::newRow("huge") << ouvrir(u"a.grl"_s, "1\n2 4000000000") << charger << QString();
        QTest::newRow("Joker+") << ouvrir(recu, "1\n"s + grille) << charger << QString();
        QTest::newRow("gone") << ouvrir(u"b.grl"_s, "") << charger << QString();
    }

    void refus() {
        QFETCH(Geste, avant);
        QFETCH(QString, bouton);
        QFETCH(QString, instruction);
        Essai e(false);
        avant(e);
        e.demandes();
        const auto etat = [&e] {
            const Atelier& a = e.banc.atelier;
            return std::tuple(a.ListeGrilles, a.ListeChoix, a.ListeRecu, a.ListeJoker, e.tenus(),
                              e.date()->date(), e.banc.modes.ModeConsultation);
        };
        const auto depart = etat();
        e.de(bouton)->click();
        const QStringList dit = e.demandes();
        QCOMPARE(dit.size(), 1);
        if (!instruction.isEmpty()) QCOMPARE(dit.first(), instruction);
        QVERIFY(depart == etat() && e.banc.scripts.lanceur->documents.isEmpty());
    }

    void capaciteEtSuppression() {
        Essai e(false);
        Atelier& a = e.banc.atelier;
        a.ListeChoix = lot(NbGrillesMax - 1);
        e.selectionner(false);
        completer(e);
        e.cliquer({u"AddGrille"});
        QCOMPARE(a.ListeGrilles.size(), std::size_t{NbGrillesMax});  // no further place is opened
        e.cliquer({u"AddGrille"});
        QCOMPARE(e.demandes().last(),
                 u"Vous avez atteint la capacité maximum pour la mise en mémoire de grilles..."_s);
        e.cliquer({u"NormalMode"});
        e.selectionner(false);  // full: the last one shows at once
        QCOMPARE(e.tenus(), (std::set<int>{3, 14, 25, 31, 44, 56}));
        e.repondre({CodeBouton1, CodeBouton1});  // all, and save: but the dialog is cancelled
        e.cliquer({u"SupprAllGrilles"});
        QCOMPARE(e.demandes(), (QStringList{u"Supprimer toutes les grilles en mémoire ?"_s,
                                            u"Les nouvelles grilles n'ont pas été enregistrées...\n"
                                            u"Voulez-vous les sauvegarder ?"_s}));
        QCOMPARE(a.ListeGrilles.size(), std::size_t{NbGrillesMax});
        e.repondre({CodeBouton1, CodeBouton2});
        e.cliquer({u"SupprAllGrilles", u"NormalMode"});
        QVERIFY(a.ListeChoix.empty() && e.banc.modes.ModeNormal);

        a.ListeChoix = {Simple, Multiple};
        e.selectionner(false);
        e.fleche(u"UpDown"_s, 1);
        QCOMPARE(e.demandes(), QStringList{Incomplete});
        completer(e);
        e.fleche(u"UpDown"_s, 1);  // stored, then left
        e.presser({6, 40});
        e.cliquer({u"NormalMode"});  // the option came from the stake of the ticket
        QCOMPARE(a.ListeChoix[1],
                 FaireGrille(std::vector{1, 2, 3, 4, 5, 40}, std::vector{1, 2}, 1));
        e.cliquer({u"Consultation", u"SupprGrille", u"SupprGrille"});
        QVERIFY(!e.montre(u"LabelGrillesVides"_s) && a.ListeChoix.size() == 1);
        e.cliquer({u"SupprGrille"});
        QVERIFY(e.montre(u"LabelGrillesVides"_s) && a.ListeChoix.empty());
    }

    void consultationDesDeuxListes() {
        Essai e(false);
        Atelier& a = e.banc.atelier;
        const int dernier = e.base().NbTirages - 1;  // a 2nd Tirage, its 1er before it
        const Tirage& t = e.record(dernier - 1);
        a.ListeChoix = {FaireGrille(t.Numeros, std::vector{t.Chance}, false), Simple};
        a.ListeRecu = {FaireGrille(e.record(dernier).Numeros, std::vector{1}, true)};
        e.cliquer({u"Consultation"});
        QCOMPARE(e.de(u"VerifGains"_s)->text(), u"&Bilan Gains"_s);
        QCOMPARE(e.texte(u"LabelGainF"_s), u"0,00 €"_s);  // without the option, on a 2nd Tirage
        e.page->montrerTirage(dernier);
        const auto* rangs = e.de<QTableWidget>(u"AdvStringGrid6"_s);
        QCOMPARE(e.texte(u"LabelNumSortis"_s), u"5 + 1C"_s);
        QCOMPARE(rangs->item(0, 3)->text(), u"1"_s);
        QCOMPARE(e.texte(u"LabelGainF"_s), rangs->item(0, 2)->text());
        e.de<QLineEdit>(u"Edit1"_s)->setText(u"2"_s);  // column N is emptied before each ticket
        QCOMPARE(rangs->item(0, 3)->text(), QString());
        e.cliquer({u"RadioButtonJeu"});
        QVERIFY(a.ListeGrilles == a.ListeRecu && !e.montre(u"ButtonSauverGrilles"_s));
        QCOMPARE(e.de(u"VerifGains"_s)->text(), u"&Vérifier gains"_s);
        e.page->montrerTirage(dernier + 1);
        QCOMPARE(e.de<QTableWidget>(u"AdvStringGrid8"_s)->item(0, 3)->text(), u"1"_s);
        e.banc.scripts.lanceur->reussit = false;
        e.cliquer({u"VerifGains"});
        QCOMPARE(e.demandes(),
                 QStringList{u"Impossible de lancer le Bloc-notes depuis l'Application"_s});
        QVERIFY(versQt(e.banc.lire("Lotoveri.dat")).contains(u"JOKER+ non participant\n"_s));
        e.cliquer({u"Consultation"});
        QCOMPARE(ecartAvec(e, dernier), QString());
    }

    void fichiers() {
        Essai e(false);
        Atelier& a = e.banc.atelier;
        QString& reponse = e.banc.scripts.fichiers->reponse;
        const QString dossier = e.banc.dossier.path();
        e.page->CopierversBulletins({Simple, Multiple});
        QCOMPARE(e.demandes(), QStringList{u"2 combinaisons copiées..."_s});
        reponse = dossier + u"/mes grilles"_s;  // the extension comes by itself
        e.cliquer({u"ButtonSauverGrilles"});
        QVERIFY(!e.de(u"ButtonSauverGrilles"_s)->isEnabled());
        a.ListeChoix = {Simple};
        reponse += u".grl"_s;
        e.cliquer({u"ChargerGrilles"});
        QVERIFY((a.ListeChoix == Grilles{Simple, Multiple}) && e.demandes().isEmpty());
        const RecuDeJeu recu{{Multiple}, {{{1, 2, 3, 4, 5, 6, 7}, 3}}};
        for (const QString& nom : {u"/20230125.rdj"_s, u"/recu.rdj"_s}) {
            reponse = dossier + nom;
            std::ofstream(reponse.toStdString()) << TexteRecu(recu);
            e.cliquer({u"ChargerGrilles"});
            QVERIFY(a.ListeGrilles == recu.grilles && a.ListeJoker == recu.jokers);
            QCOMPARE(e.date()->date(), QDate(2023, 1, 25));  // a name without a date leaves it
        }
        QCOMPARE(e.banc.scripts.fichiers->demandes.last(),
                 u"Ouvrir Grilles ou Reçus|Fichiers Grilles (*.grl);;Fichiers Reçus (*.rdj)|"
                 u"Fichiers Reçus (*.rdj)"_s);
    }

    void bilanEtArret() {
        FormeOuverte f;
        Atelier& a = f.banc.atelier;
        a.ListeChoix = lot(NbGrillesMax);
        f.de("Consultation")->click();
        auto* gains = f.de("VerifGains");
        gains->click();
        QVERIFY(gains->text() == u"STOP"_s && a.TraitementsEnCours == 1);
        gains->click();
        QTRY_COMPARE(a.TraitementsEnCours, 0);
        QVERIFY(!f.banc.existe(NomBilan));
        f.forme->contexte().StatsInf = 3000;
        f.forme->contexte().StatsSup = 3010;
        gains->click();
        QTRY_COMPARE(f.banc.scripts.lanceur->documents.size(), 1);
        QCOMPARE(f.banc.lire(NomBilan), *RedigerBilan(a.base, 3000, 3010, a.ListeGrilles, {}));
        gains->click();
        f.forme->close();  // no question before the end of the work
        QVERIFY(a.QuitterEnAttente && f.posees.isEmpty());
        QTRY_COMPARE(f.posees.size(), 1);
    }

    void grillesAleatoires() {
        GenerateurHasard temoin(HasardFixe{}.valeur);
        Essai e(false);
        const Atelier& a = e.banc.atelier;
        auto* nombre = e.de<QLineEdit>(u"Edit24"_s);
        e.selectionner(false);
        nombre->setText(u"99999"_s);
        QCOMPARE(nombre->text(), u"9999"_s);
        nombre->setText(u"1"_s);
        e.cliquer({u"ButtonAleatoire"});
        const TirageHasard seule = TirerGrille(temoin, {5, 1});
        QCOMPARE(e.planche()->tenus(GenreStats::Numeros), seule.numeros);  // not sorted
        QCOMPARE(a.ListeGrilles.size(), std::size_t{1});                   // and not stored
        nombre->setText(u"2"_s);
        e.cliquer({u"ButtonAleatoire"});
        Grilles attendues{FaireGrille(seule.numeros, seule.chances, false)};
        AjouterGrillesHasard(attendues, temoin, {5, 1}, 2);
        QCOMPARE(a.ListeGrilles, attendues);  // behind the ticket in hand; no open place is left
        QCOMPARE(nombre->text(), u"9997"_s);
        e.cliquer({u"AddGrille"});
        nombre->setText(u"0"_s);
        e.cliquer({u"ButtonAleatoire"});
        QCOMPARE(a.ListeGrilles, attendues);
    }
};

QTEST_MAIN(TestBillets)
#include "test_billets.moc"
