// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tickets of the page "Résultats" through its controls: what is asked, told and shown. What
// becomes of them is the state machine's, and tested there.

#include <QListWidget>
#include <QProgressBar>
#include <QTest>

#include "soutien/EssaiResultats.h"
#include "tickets/Bilan.h"
#include "tickets/FichiersGrilles.h"

using namespace norvane::ui::essais;
using namespace std::string_literals;

namespace {

using Grilles = std::vector<Grille>;

const Grille Simple = FaireGrille({9, 8, 7, 6, 5}, {10}, false);
const Grille Multiple = FaireGrille({1, 2, 3, 4, 5, 6}, {1, 2}, true);
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

void dater(const Essai& e, const QString& date) {
    auto* champ = e.de<QLineEdit>(u"DateParticipation"_s);
    champ->selectAll();
    QTest::keyClicks(champ, date);
    e.cliquer({u"ButtonValiderJack"});
}

}  // namespace

class TestBillets final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void saisieDeGrilles() {
        Essai e(false);
        const Billets& b = e.billets();
        e.selectionner(false);
        e.presser({12, 3, 49, 20, 7});
        e.cliquer({u"SelectGrilles", u"AddGrille", u"SupprAllGrilles"});
        QCOMPARE(e.demandes(), (QStringList{Incomplete, Incomplete, Incomplete}));
        e.presser({52});
        QCOMPARE(e.texte(u"LabelCompteGrille"_s), u"5 + 1C"_s);
        QCOMPARE(e.texte(u"LabelMiseF"_s), u"2,20 €"_s);
        QCOMPARE(e.de<QLabel>(u"LabelMiseF"_s)->toolTip(), u"Montant en Francs : 14,43 F"_s);
        QCOMPARE(e.de<QWidget>(u"Panel3"_s)->accessibleDescription(), u"12, 3, 49, 20, 7"_s);
        e.cliquer({u"CheckBox2ND"});
        e.cliquer({u"DeSelect"});
        completer(e);
        e.cliquer({u"AddGrille"});
        e.presser({1, 2});
        auto* edit = e.de<QLineEdit>(u"Edit1"_s);
        e.demandes();
        e.fleche(u"UpDown"_s, 1);  // refused: the number stays too
        QVERIFY(e.demandes() == QStringList{Incomplete} && edit->text() == u"2"_s);
        e.presser({3, 4, 5, 50});
        e.fleche(u"UpDown"_s, 1);
        QCOMPARE(e.tenus(), (std::set<int>{3, 14, 25, 31, 44, 56}));
        e.cliquer({u"SelectGrilles"});
        QCOMPARE(e.demandes(), QStringList{u"Sélection d'une autre grille ?"_s});
        QCOMPARE(b.ListeChoix, (Grilles{FaireGrille({14, 3, 25, 31, 44}, {7}, true),
                                        FaireGrille({1, 2, 3, 4, 5}, {1}, true)}));
        QVERIFY(e.mode() == Mode::Normal && e.de(u"ButtonSauverGrilles"_s)->isEnabled());
    }

    void numerosJoker() {
        Essai e(false);
        e.selectionner(true);
        completer(e);
        e.repondre({CodeBouton1, CodeBouton2});  // the box of the count is cancelled once
        e.cliquer({u"NormalMode", u"RadioJoker2", u"Button66", u"Button66"});
        const QString compte = u"Vous avez 2 Numéro(s) Joker+ à saisir..."_s;
        QCOMPARE(e.demandes(),
                 (QStringList{u"Saisissez à présent le nombre de Numéros Joker+..."_s, compte,
                              compte, u"Saisissez à présent vos Numéros Joker+..."_s}));
        auto* chiffres = e.de<QLineEdit>(u"ChiffresJoker"_s);
        const auto* mises = e.de<QListWidget>(u"RxCheckListBox7"_s);
        const auto etat = [&] {
            return e.texte(u"LabelJackpotNumero"_s) + (mises->item(1)->checkState() ? u'+' : u'-') +
                   (e.de(u"CheckBoxPM1"_s)->isChecked() ? u'+' : u'-') +
                   chiffres->text().remove(u'.');
        };
        chiffres->setText(u"0012345"_s);
        e.cliquer({u"CheckBoxPM1"});
        mises->item(1)->setCheckState(Qt::Checked);  // one stake, always
        QVERIFY(!mises->item(0)->checkState());
        QTest::keyClick(chiffres, Qt::Key_Return);
        // The options are those of one number; back to it, they are as they were.
        QCOMPARE(etat(), u"JOKER+ N°2 :--"_s);
        e.cliquer({u"JokerPrecedent"});
        QCOMPARE(etat(), u"JOKER+ N°1 :++0012345"_s);
        mises->item(0)->setCheckState(Qt::Checked);
        e.cliquer({u"ButtonValiderJack"});
        chiffres->setText(u"9876543"_s);
        e.cliquer({u"ButtonValiderJack", u"JokerPrecedent", u"ButtonValiderJack"});
        const QString date = u"Saisissez à présent la date de participation"_s;
        QCOMPARE(e.demandes(), (QStringList{date, date}));
        QVERIFY((e.billets().ListeJoker ==
                 std::vector<LigneJoker>{{{0, 0, 1, 2, 3, 4, 5}, 3}, {{9, 8, 7, 6, 5, 4, 3}, 1}}));
    }

    void dateDUnRecu() {
        Essai e(false);
        const auto entrer = [&e] {
            e.selectionner(true);
            completer(e);
            e.cliquer({u"NormalMode"});
            e.de<QLineEdit>(u"Edit26"_s)->setText(u"1"_s);
            e.cliquer({u"Button66"});
            e.de<QLineEdit>(u"ChiffresJoker"_s)->setText(u"0012345"_s);
            e.cliquer({u"ButtonValiderJack"});
        };
        entrer();
        e.demandes();
        // The first day of draws from the 1st of August 2024 on, a Thursday.
        QCOMPARE(e.de<QLineEdit>(u"DateParticipation"_s)->text(), u"03/08/2024"_s);
        for (const QString& fausse : {u"06/08/2024"_s, u"31/02/2024"_s}) {
            dater(e, fausse);
            QCOMPARE(e.demandes(), QStringList{u"Cette date ne correspond à aucun Tirage..."_s});
        }
        dater(e, u"02/01/2030"_s);  // a Wednesday far ahead
        const std::string nom = "Grilles&Reçus/20300102.rdj";
        QVERIFY(e.demandes().isEmpty() && e.mode() == Mode::Normal);
        QCOMPARE(e.banc.lire(nom), "1\n2.2 5 14 3 25 31 44 1 7\n1\n0 0 1 2 3 4 5 1 \n"s);
        QCOMPARE(e.texte(u"LabelMemoire"_s),
                 u"Grilles au choix : 0\nReçu de Jeu du mercredi 2 janvier 2030 : 1 grille, "
                 u"1 Joker+\nJoker+ : 0.0.1.2.3.4.5 (1 €)\nChoix libre : 0 + 0C"_s);
        QCOMPARE(ecartAvec(e, e.base().NbTirages - 1), QString());  // the draw is back, its Joker+
        entrer();
        dater(e, u"22/07/2024"_s);  // a Monday of the base: its draw is proposed
        e.demandes();
        e.cliquer({u"VerifGains"});
        QCOMPARE(e.demandes(),
                 QStringList{u"Vérifier le reçu avec le tirage du lundi 22 juillet 2024 ?"_s});
        QCOMPARE(e.date()->date(), 20240722);
        QVERIFY(versQt(e.banc.lire("Lotoveri.dat")).contains(u"du lundi 22 juillet 2024"_s));
    }

    void refus() {
        Essai e(false);
        e.billets().ListeChoix = e.billets().ListeRecu = {Simple};
        for (const QString& nom : {u"a.grl"_s, u"20230125.rdj"_s}) {
            e.banc.ecrire(nom.toStdString(), "2\n2.2 5 1 2 3 4 5 1 7\n");
            e.banc.scripts.fichiers->reponse = e.banc.dossier.filePath(nom);
            e.cliquer({u"ChargerGrilles"});
            QVERIFY(e.demandes().value(0).contains(nom));
        }
        QVERIFY(e.billets().ListeChoix == Grilles{Simple} && e.mode() == Mode::Normal);
        QVERIFY(e.billets().ListeRecu == Grilles{Simple} && e.date()->date() != 20230125);
    }

    void suppressions() {
        Essai e(false);
        const Billets& b = e.billets();
        e.page->ouvrir(VersTickets{{Simple, Multiple, Simple}});
        e.demandes();
        e.cliquer({u"SupprGrille"});
        QVERIFY((b.ListeChoix == Grilles{Multiple, Simple}) && !e.montre(u"LabelGrillesVides"_s));
        const QString toutes = u"Supprimer toutes les grilles en mémoire ?"_s;
        const QString perdues =
            u"Les nouvelles grilles n'ont pas été enregistrées...\nVoulez-vous les sauvegarder ?"_s;
        for (const int reponse : {CodeFerme, CodeBouton1}) {  // closed; the dialog is cancelled
            e.repondre({CodeBouton1, reponse});
            e.cliquer({u"SupprAllGrilles"});
            QCOMPARE(e.demandes(), (QStringList{toutes, perdues}));
            QCOMPARE(b.ListeChoix.size(), std::size_t{2});
        }
        e.banc.scripts.fichiers->reponse = e.banc.dossier.filePath(u"a.grl"_s);
        e.cliquer({u"SupprAllGrilles"});
        QVERIFY(b.ListeChoix.empty() && e.montre(u"LabelGrillesVides"_s));
        QVERIFY((*ChargerGrilles(e.banc.chemin("a.grl")) == Grilles{Multiple, Simple}));
    }

    void consultationDesDeuxListes() {
        Essai e(false);
        Billets& b = e.billets();
        const int dernier = e.base().NbTirages - 1;  // a 2nd Tirage, its 1er before it
        const Tirage& t = e.record(dernier - 1);
        e.banc.atelier.choixLibre.numeros = {44};
        b.ListeChoix = {FaireGrille(Ensemble::de(t.Numeros), ChancesCochees{t.Chance}, false),
                        Multiple};
        b.ListeRecu = {FaireGrille(Ensemble::de(e.record(dernier).Numeros), {1}, true)};
        e.cliquer({u"Consultation"});
        QCOMPARE(e.texte(u"LabelGainF"_s), u"0,00 €"_s);  // without the option, on a 2nd Tirage
        e.montrer(dernier);
        const auto* rangs = e.de<QTableWidget>(u"AdvStringGrid6"_s);
        QCOMPARE(rangs->item(0, 3)->text(), u"1"_s);
        QCOMPARE(e.texte(u"LabelGainF"_s), rangs->item(0, 2)->text());
        auto* edit = e.de<QLineEdit>(u"Edit1"_s);
        edit->setText(u"77"_s);
        QCOMPARE(edit->text(), u"2"_s);
        QCOMPARE(rangs->item(0, 3)->text(), QString());  // emptied before each ticket
        QCOMPARE(e.tenus(), (std::set<int>{1, 2, 3, 4, 5, 6, 50, 51}));
        e.cliquer({u"RadioButtonJeu"});
        QCOMPARE(b.ListeGrilles, b.ListeRecu);
        e.montrer(dernier + 1);
        QCOMPARE(e.de<QTableWidget>(u"AdvStringGrid8"_s)->item(0, 3)->text(), u"1"_s);
        e.page->ouvrir(VersTirage{dernier, {}});  // from elsewhere: the consultation is over
        QCOMPARE(e.mode(), Mode::Normal);
        QCOMPARE(ecartAvec(e, dernier - 1), QString());
        QCOMPARE(e.tenus(), std::set<int>{44});  // the free choice is back
        QCOMPARE(rangs->item(0, 3)->text(), QString());
    }

    void fichiers() {
        Essai e(false);
        const Billets& b = e.billets();
        QString& reponse = e.banc.scripts.fichiers->reponse;
        const QString dossier = e.banc.dossier.path();
        const auto sauvable = [&e] { return e.de(u"ButtonSauverGrilles"_s)->isEnabled(); };
        e.page->ouvrir(VersTickets{{Simple, Multiple}});
        QVERIFY(e.demandes() == QStringList{u"2 combinaisons copiées..."_s} && sauvable());
        reponse = dossier + u"/mes.grilles"_s;  // the extension comes by itself
        e.cliquer({u"ButtonSauverGrilles"});
        QVERIFY(!sauvable() && e.demandes().isEmpty());
        e.cliquer({u"SupprGrille"});
        QVERIFY(sauvable());
        // Unsaved tickets are not dropped without a word.
        reponse += u".grl"_s;
        const QString question =
            u"Voulez-vous sauvegarder les grilles précédemment sélectionnées ?"_s;
        e.repondre({CodeFerme});
        e.cliquer({u"ChargerGrilles"});
        QVERIFY(e.demandes() == QStringList{question} && b.ListeChoix == Grilles{Multiple});
        e.repondre({CodeBouton2});
        e.cliquer({u"ChargerGrilles"});
        QVERIFY((b.ListeChoix == Grilles{Simple, Multiple}) && !sauvable());
        QCOMPARE(e.demandes(), QStringList{question});
        e.cliquer({u"SupprGrille", u"ChargerGrilles"});  // Oui: to the same name, then read back
        QVERIFY(b.ListeChoix == Grilles{Multiple} && !sauvable());
        QCOMPARE(e.demandes(),
                 (QStringList{question, u"Le fichier « mes.grilles.grl » existe déjà."_s}));

        const RecuDeJeu recu{{Multiple}, {{{1, 2, 3, 4, 5, 6, 7}, 3}}};
        // A name without a date leaves the draw; one ahead of the base is a date like others.
        const std::pair<QString, int> recus[] = {{u"/20230125.rdj"_s, 20230125},
                                                 {u"/recu.rdj"_s, 20230125},
                                                 {u"/20300102.rdj"_s, 20300102}};
        for (const auto& [nom, date] : recus) {
            reponse = dossier + nom;
            std::ofstream(reponse.toStdString()) << TexteRecu(recu);
            e.cliquer({u"ChargerGrilles"});
            QVERIFY(b.ListeGrilles == recu.grilles && b.ListeJoker == recu.jokers);
            QVERIFY(e.date()->date() == date && e.mode() == Mode::Consultation);
        }
    }

    void bilanEtArret() {
        FormeOuverte f;
        Atelier& a = f.banc.atelier;
        const int& traitements = a.activite.TraitementsEnCours;
        a.billets.ListeChoix = lot(NbGrillesMax);
        f.de("Consultation")->click();
        auto* gains = f.de("VerifGains");
        auto* jauge = f.de<QProgressBar>("ProgressBarBilan");
        gains->click();
        QVERIFY(gains->text() == u"STOP"_s && traitements == 1 && jauge->isVisible());
        gains->click();
        QTRY_COMPARE(traitements, 0);
        QVERIFY(!f.banc.existe(NomBilan) && gains->text() == u"&Bilan Gains"_s);
        a.StatsNumeros = {3000, 3010};
        gains->click();
        QTRY_COMPARE(f.banc.scripts.lanceur->documents.size(), 1);
        QVERIFY(!jauge->isVisible());
        QCOMPARE(f.banc.lire(NomBilan),
                 *RedigerBilan(a.base, 3000, 3010, a.billets.ListeGrilles, {}));
    }

    void grillesAleatoires() {
        GenerateurHasard temoin(HasardFixe{}.valeur);
        Essai e(false);
        const Billets& b = e.billets();
        auto* nombre = e.de<QLineEdit>(u"Edit24"_s);
        const auto effet = [&e] { return e.texte(u"LabelEffet"_s).replace(QChar::Nbsp, u' '); };
        e.selectionner(false);
        QCOMPARE(effet(), u"9 999 grilles de plus, et la liste est pleine"_s);
        nombre->setText(u"99999"_s);
        QCOMPARE(nombre->text(), u"9999"_s);
        QCOMPARE(effet(), u"La liste n'a plus de place que pour 9 999 grilles"_s);
        nombre->setText(u"1"_s);
        QCOMPARE(effet(), u"Une grille tirée sur la planche"_s);
        e.cliquer({u"ButtonAleatoire"});
        const Grille seule = TirerGrille(temoin, {5, 1});
        QVERIFY(e.banc.atelier.saisie.grilleEnMain().numeros == seule.numeros);
        // A batch takes the place of the ticket on the board, which is asked about.
        nombre->setText(u"2"_s);
        e.repondre({CodeFerme});
        e.cliquer({u"ButtonAleatoire"});
        QVERIFY(b.ListeGrilles.size() == 1 && b.ListeGrilles[0].vide());
        e.cliquer({u"ButtonAleatoire"});
        const QString ajouter = u"Ajouter une grille en mémoire ?"_s;
        QCOMPARE(e.demandes(), (QStringList{ajouter, ajouter}));
        Grilles attendues{seule};
        AjouterGrillesHasard(attendues, temoin, {5, 1}, 2);
        QCOMPARE(b.ListeGrilles, attendues);  // no open place is left
        QCOMPARE(nombre->text(), u"9997"_s);
        QCOMPARE(effet(), u"9 996 grilles de plus, et la liste est pleine"_s);
        nombre->clear();
        QVERIFY(!e.de(u"ButtonAleatoire"_s)->isEnabled() && effet().isEmpty());
        QTest::keyClick(nombre, Qt::Key_End);
        QTest::keyClick(nombre, Qt::Key_Up);
        QCOMPARE(nombre->text(), u"9997"_s);
    }
};

QTEST_MAIN(TestBillets)
#include "test_billets.moc"
