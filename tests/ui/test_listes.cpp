// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The main list and the three buffers by their menus, keys, drags and buttons.

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QSpinBox>
#include <QTimer>
#include <set>

#include "soutien/EssaiCombinaisons.h"

using namespace norvane::ui::essais;

namespace {

using Lignes = std::vector<std::size_t>;

struct EssaiListes : EssaiCombinaisons {
    EssaiListes() {
        relais.aller(VersListe{});  // brings the page to front
        mode()->setCurrentIndex(2);
        forme->activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(forme.get()));
    }

    /// Combinations of `taille` numbers, the first one 1..taille, the others shifted.
    Liste liste_(int taille, int nombre, ModeStockage mode = ModeStockage::PremierRang) const {
        Liste liste;
        liste.arene.disposition = {taille, mode};
        liste.DebutListe = a.occurrences.IntervalleInf;
        liste.FinListe = a.occurrences.IntervalleSup;
        const auto mots = static_cast<std::size_t>(liste.arene.disposition.mots());
        for (int i = 0; i < nombre; ++i) {
            std::vector<Mot> ligne(mots, 0);
            for (int n = 0; n < taille; ++n)
                ligne[mots - static_cast<std::size_t>(taille - n)] =
                    static_cast<Mot>(i % (NumeroMax - taille + 1) + n + 1);
            ligne[static_cast<std::size_t>(liste.arene.disposition.premierRang())] =
                static_cast<Mot>(i % 7);
            liste.arene.mots.insert(liste.arene.mots.end(), ligne.begin(), ligne.end());
        }
        return liste;
    }
    void poser(QuelleListe laquelle, Liste liste) const {
        a.liste(laquelle) = std::move(liste);
        relais.annoncer({.listes = true});
    }
    ListeCombinaisons* boite(QuelleListe laquelle) const {
        const char* noms[] = {"ListBox", "ListBox1", "ListBox2", "ListBox3"};
        return de<ListeCombinaisons>(
            noms[static_cast<int>(laquelle) - static_cast<int>(QuelleListe::Memoire)]);
    }
    void choisir(QuelleListe laquelle, const Lignes& lignes) const {
        auto* choix = boite(laquelle)->selectionModel();
        choix->clear();
        for (const std::size_t l : lignes)
            choix->select(boite(laquelle)->modele().index(static_cast<int>(l)),
                          QItemSelectionModel::Select);
    }
    QMenu* menu(QuelleListe laquelle) const {
        Q_EMIT boite(laquelle)->customContextMenuRequested({3, 3});
        return boite(laquelle)->findChild<QMenu*>();
    }
    /// Through the open menu, as the user does; nothing for an entry that cannot be chosen.
    bool commander(QuelleListe laquelle, const QString& texte) const {
        QMenu* m = menu(laquelle);
        for (QAction* action : m->actions()) {
            if (action->text() != texte) continue;
            const bool permise = m->isVisible() && action->isEnabled();
            m->close();
            if (permise) action->trigger();
            return permise;
        }
        return false;
    }
    bool deposer(const QString& source, QuelleListe cible) const {
        QMimeData donnees;
        donnees.setData(u"application/x-norvane-lignes"_s, source.toUtf8());
        QDragEnterEvent entree({3, 3}, Qt::CopyAction, &donnees, Qt::LeftButton, {});
        QCoreApplication::sendEvent(boite(cible)->viewport(), &entree);
        QDropEvent depot(QPointF(3, 3), Qt::CopyAction, &donnees, Qt::LeftButton, {});
        QCoreApplication::sendEvent(boite(cible)->viewport(), &depot);
        return entree.isAccepted() && depot.isAccepted();
    }
    std::size_t nombre(QuelleListe laquelle) const { return a.liste(laquelle).nombre(); }
    QString message() const {
        const QString texte = dernier();
        banc.scripts.messages->posees.clear();
        return texte;
    }
};

constexpr auto M = QuelleListe::Memoire;
constexpr QuelleListe Tampons[] = {QuelleListe::Tampon1, QuelleListe::Tampon2,
                                   QuelleListe::Tampon3};

/// Answers the next modal dialog.
void repondre(const std::function<void(QDialog&)>& reponse) {
    QTimer::singleShot(0, qApp, [reponse] {
        auto* boite = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(boite != nullptr);
        reponse(*boite);
    });
}

}  // namespace

class TestListes : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void dUneListeALAutre() {
        const EssaiListes e;
        const auto [t1, t2, t3] = Tampons;
        QVERIFY(!e.menu(t1)->isVisible());  // nothing to be done with an empty list
        e.poser(M, e.liste_(3, 9));
        e.choisir(M, {1, 4});
        QMenu* menu = e.menu(M);
        QVERIFY(menu->isVisible());
        QCOMPARE(menu->actions().first()->objectName(), u"SelectMenu1"_s);
        QCOMPARE(menu->actions().first()->text(), u"2 combinaisons sélectionnées"_s);
        menu->close();
        QVERIFY(e.commander(M, u"Copier vers Liste II"_s));
        QCOMPARE(e.nombre(t2), 2U);
        QVERIFY(e.nombre(M) == 9 && e.boite(M)->lignesChoisies() == (Lignes{1, 4}));
        QCOMPARE(e.texte("RxLabel11"), u"Liste Tampon II (3 numéros)"_s);
        QVERIFY(e.texte("LabelNbTamp2") == u"2"_s &&
                e.texte("LabelMemTamp2") == u"Premier rang stocké"_s);
        QCOMPARE(e.texte("LabelIntervalleTamp2"),
                 u"%1 Tirages : [1 - %1]"_s.arg(e.a.base.NbTirages));
        for (const char* nom : {"LabelNbTamp1", "LabelMemTamp1", "LabelIntervalleTamp1"})
            QCOMPARE(e.texte(nom), u"liste vide..."_s);
        QVERIFY(e.commander(M, u"Déplacer vers Liste II"_s));
        QVERIFY(e.nombre(t2) == 4 && e.nombre(M) == 7);
        // From buffer to buffer, and home; a drop copies.
        e.choisir(t2, {3});
        QCOMPARE(e.menu(t2)->actions().first()->text(), u"1 combinaison sélectionnée"_s);
        QVERIFY(e.commander(t2, u"Déplacer vers Liste III"_s));
        QVERIFY(e.nombre(t2) == 3 && e.nombre(t3) == 1);
        e.choisir(t3, {0});
        QVERIFY(e.commander(t3, u"Copier vers Liste Principale"_s));
        QVERIFY(e.nombre(t3) == 1 && e.nombre(M) == 8);
        QVERIFY(std::ranges::equal(e.a.ListeMemoire.numeros(7), e.a.ListeTampon[2].numeros(0)));
        QVERIFY(e.commander(t3, u"Déplacer vers Liste principale"_s));
        QVERIFY(e.nombre(t3) == 0 && e.nombre(M) == 9);
        QVERIFY(!e.deposer(u"ListBox2"_s, t2) && e.nombre(t2) == 3);
        e.choisir(t2, {0, 2});
        QVERIFY(e.deposer(u"ListBox2"_s, t1) && e.deposer(u"ListBox2"_s, M));
        QVERIFY(e.nombre(t1) == 2 && e.nombre(M) == 11 && e.nombre(t2) == 3);
        // Other sizes do not mix; a full list takes what it can.
        e.poser(t3, e.liste_(4, 2));
        e.choisir(M, {0});
        QVERIFY(e.commander(M, u"Copier vers Liste III"_s));
        QCOMPARE(e.message(), u"Copie impossible, les deux listes ne sont pas du même type..."_s);
        QVERIFY(e.commander(M, u"Déplacer vers Liste III"_s));
        QCOMPARE(e.message(),
                 u"Déplacement impossible, les deux listes ne sont pas du même type..."_s);
        e.poser(t3, e.liste_(3, static_cast<int>(CapaciteListe) - 1));
        e.choisir(M, {0, 1});
        QVERIFY(e.commander(M, u"Déplacer vers Liste III"_s));
        QCOMPARE(e.posees.last().detail, u"1 combinaison déplacée..."_s);
        QCOMPARE(e.message(), u"La liste a atteint sa capacité maximum..."_s);
        QVERIFY(e.nombre(M) == 10 && e.nombre(t3) == CapaciteListe);
    }

    void dansUneListe() {
        const EssaiListes e;
        for (const QuelleListe l : {M, QuelleListe::Tampon1, QuelleListe::Tampon3}) {
            e.poser(l, e.liste_(3, 60));  // 47 different ones
            QVERIFY(e.commander(l, u"&Retirer occurrences multiples"_s));
            QCOMPARE(e.nombre(l), 47U);
            QVERIFY(e.commander(l, u"Tri Lexicographique &décroissant"_s));
            QCOMPARE(e.a.liste(l).numeros(0)[0], Mot{47});
            QVERIFY(e.commander(l, u"Tri Lexicographique &croissant"_s));
            QCOMPARE(e.a.liste(l).numeros(0)[0], Mot{1});
            e.choisir(l, {0, 2});
            e.boite(l)->setFocus();
            QTest::keyClick(e.boite(l), Qt::Key_Delete);
            QCOMPARE(e.nombre(l), 45U);
            QVERIFY(!e.commander(l, u"&Supprimer"_s));  // nothing is chosen any more
            QVERIFY(e.commander(l, u"Sélectionner &tout"_s));
            QVERIFY(e.commander(l, u"&Supprimer"_s) && e.nombre(l) == 0);
            e.poser(l, e.liste_(3, 5));
            QVERIFY(e.commander(l, u"&Vider la Liste"_s) && e.nombre(l) == 0);
        }
        // Locked, a click selects and shows nothing.
        e.poser(M, e.liste_(3, 5));
        auto* verrou = e.de<QCheckBox>("CheckBoxDrag");
        for (const bool verrouille : {true, false}) {
            verrou->click();
            const QString avant = e.texte("LabelCombinaison");
            e.EssaiCombinaisons::choisir(verrouille ? 2 : 3);
            QCOMPARE(e.texte("LabelCombinaison") == avant, verrouille);
            QCOMPARE(e.texte("RxLabelIndice"), verrouille ? u"3"_s : u"4"_s);
            QCOMPARE(e.boite(M)->dragEnabled(), !verrouille);
        }
        // Long lists are the work of a job; while any work runs nothing is touched.
        e.poser(M, e.liste_(2, 250000));
        QVERIFY(e.commander(M, u"&Retirer occurrences multiples"_s) && e.a.activite.occupe());
        QVERIFY(e.lignes() == 0 && e.deposer(u"ListBox1"_s, M));
        QCOMPARE(e.message(), u"Attendez la fin du traitement en cours..."_s);
        e.finir();
        QCOMPARE(e.nombre(M), 48U);
        // The extremes are lines without records.
        e.a.ListeExtremes = e.liste_(5, 3);
        e.mode()->setCurrentIndex(0);
        e.poser(QuelleListe::Extremes, e.liste_(5, 3));
        e.choisir(M, {0});
        QVERIFY(!e.commander(M, u"Copier vers Liste I"_s) && !e.commander(M, u"&Supprimer"_s));
        QVERIFY(e.commander(M, u"Sélectionner &tout"_s));
        QVERIFY(e.nombre(M) == 48 && e.boite(M)->lignesChoisies().size() == 3);
    }

    /// A list of another interval that comes home to an empty main list takes the engine along.
    void intervalleDUnTampon() {
        const EssaiListes e;
        Liste ancienne = e.liste_(3, 4);
        ancienne.DebutListe = 101;
        ancienne.FinListe = 200;
        e.poser(QuelleListe::Tampon1, ancienne);
        e.a.triEcartAvance.actif = true;
        e.choisir(QuelleListe::Tampon1, {0});
        QVERIFY(e.commander(QuelleListe::Tampon1, u"Copier vers Liste Principale"_s));
        QVERIFY(e.a.occurrences.IntervalleInf == 101 && e.a.occurrences.IntervalleSup == 200);
        QVERIFY(e.nombre(M) == 1 && !e.a.triEcartAvance.actif);
        QVERIFY(e.texte("LabelTirages").startsWith(u"Statistiques sur 100 tirages"_s));
        QCOMPARE(e.texte("LabelCombEnMemoire"), u"1 à 3 numéros"_s);
        // One that the base does not have stays where it is.
        ancienne.FinListe = e.a.base.NbTirages + 1;
        e.poser(QuelleListe::Tampon1, ancienne);
        e.poser(M, {});
        e.choisir(QuelleListe::Tampon1, {0});
        QVERIFY(e.commander(QuelleListe::Tampon1, u"Déplacer vers Liste principale"_s));
        QVERIFY(e.nombre(M) == 0 && e.nombre(QuelleListe::Tampon1) == 4 && !e.message().isEmpty());
        QCOMPARE(e.a.occurrences.IntervalleSup, 200);
    }

    void sousListes() {
        const EssaiListes e;
        auto* diviser = e.de("DiviserListeMemoire");
        auto* taille = e.de<QSpinBox>("RxSpinEditDivListMem");
        diviser->click();
        QCOMPARE(e.message(), u"La liste en mémoire est vide... Calculez d'abord une liste."_s);
        e.poser(M, e.liste_(3, 45));
        QVERIFY(!taille->isEnabled() && !e.de("Button200")->isEnabled());
        diviser->click();
        QVERIFY(diviser->text() == u"OK!"_s && taille->isEnabled() && taille->maximum() == 45);
        QCOMPARE(diviser->toolTip(), u"Générer toutes les sous-listes"_s);
        taille->setValue(10);
        diviser->click();
        QCOMPARE(e.message(),
                 u"5 sous-listes ont été générées...\nPour les visualiser et les "
                 u"travailler, passez au mode \"Manipulation de Listes\"."_s);
        QVERIFY(diviser->text() == u"&Diviser la liste en mémoire"_s && !taille->isEnabled());
        const int proposes[] = {1, 3, 5};
        for (int i = 0; i < 3; ++i) {
            auto* numero = e.de<QSpinBox>("RxSpinEdit%d", 3 + i);
            QVERIFY(numero->value() == proposes[i] && numero->maximum() == 5);
            e.de("Button%d", 200 + i)->click();
            const Liste& tampon = e.a.ListeTampon[static_cast<std::size_t>(i)];
            QCOMPARE(tampon.nombre(), i == 2 ? 5U : 10U);
            QCOMPARE(tampon.numeros(0)[0], Mot(10 * proposes[i] - 9));
        }
        diviser->click();
        taille->setValue(45);
        diviser->click();
        QVERIFY(e.message().startsWith(u"1 sous-liste a été générée...\nPour la visualiser"_s));
        e.poser(M, e.liste_(3, 4));  // a new list
        QVERIFY(!e.de("Button202")->isEnabled() && taille->value() == 1);
        QCOMPARE(e.de<QSpinBox>("RxSpinEdit5")->value(), 1);
    }

    void versLesBulletins() {
        const EssaiListes e;
        const QString bulletins = u"Copier vers &Bulletins"_s;
        e.poser(QuelleListe::Tampon1, e.liste_(4, 3));
        e.choisir(QuelleListe::Tampon1, {0});
        QVERIFY(e.commander(QuelleListe::Tampon1, bulletins));
        QVERIFY(e.message().startsWith(u"Des combinaisons de 4 numéros ne font pas de grilles"_s));
        e.poser(QuelleListe::Tampon1, e.liste_(6, 30));
        e.commander(QuelleListe::Tampon1, u"Sélectionner &tout"_s);
        repondre([](QDialog& boite) { boite.reject(); });
        QVERIFY(e.commander(QuelleListe::Tampon1, bulletins) && e.a.billets.ListeChoix.empty());
        repondre([](QDialog& boite) { boite.accept(); });  // at random
        e.commander(QuelleListe::Tampon1, bulletins);
        QCOMPARE(e.message(), u"30 combinaisons copiées..."_s);
        std::set<int> chances;
        for (const Grille& g : e.a.billets.ListeChoix) {
            QVERIFY(g.n() == 6 && g.c() == 1 && g.mise == TableMises(6, 1));
            chances.insert(*g.chances.begin());
        }
        QVERIFY(chances.size() > 3 && *chances.begin() >= 1 && *chances.rbegin() <= ChanceMax);
        e.choisir(QuelleListe::Tampon1, {4});
        repondre([](QDialog& boite) {
            boite.findChild<QComboBox*>()->setCurrentText(u"7"_s);
            boite.accept();
        });
        e.commander(QuelleListe::Tampon1, bulletins);
        QCOMPARE(e.message(), u"1 combinaison copiée..."_s);
        QVERIFY(e.a.billets.ListeChoix.back() == FaireGrille({5, 6, 7, 8, 9, 10}, {7}, false));
    }

    void fichiers() {
        const EssaiListes e;
        auto& fichiers = *e.banc.scripts.fichiers;
        e.poser(QuelleListe::Tampon2, e.liste_(3, 20, ModeStockage::TousLesRangs));
        QVERIFY(!e.de("BitBtnWithColor8")->isEnabled() && e.de("BitBtnWithColor10")->isEnabled());
        const Liste avant = e.a.ListeTampon[1];
        fichiers.reponse = QString::fromStdString(e.banc.chemin("essai").string());
        e.de("BitBtnWithColor10")->click();
        QCOMPARE(fichiers.demandes.last(), u"Enregistrer la liste|Fichiers Listes (*.lst)"_s);
        e.finir();
        QVERIFY(e.banc.existe("essai.lst"));
        e.de("BitBtnWithColor23")->click();
        e.finir();
        QVERIFY(e.banc.lire("essai.txt").starts_with("01 02 03  (00)\n02 03 04  (01)\n"));
        fichiers.reponse += u".lst"_s;
        e.de("BitBtnWithColor13")->click();
        e.finir();
        QCOMPARE(e.a.ListeTampon[2].arene.mots, avant.arene.mots);
        QVERIFY(e.texte("RxLabel12") == u"Liste Tampon III (3 numéros)"_s && e.posees.isEmpty());
        // What is there is given up on a yes alone; a bad file changes nothing.
        e.banc.scripts.messages->reponses = {CodeBouton2, CodeBouton1};
        e.de("BitBtnWithColor13")->click();
        QCOMPARE(e.message(), u"La liste en cours sera perdue... Continuer ?"_s);
        e.banc.ecrire("essai.lst", "pas une archive");
        e.de("BitBtnWithColor13")->click();
        e.finir();
        QVERIFY(e.posees.size() == 2 && e.posees.last().titre == u"Erreur"_s);
        QCOMPARE(e.a.ListeTampon[2].arene.mots, avant.arene.mots);
    }
};

QTEST_MAIN(TestListes)
#include "test_listes.moc"
