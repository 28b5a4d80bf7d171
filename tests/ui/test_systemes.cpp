// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Systèmes réducteurs", by its controls.

#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include "soutien/Banc.h"
#include "systems/FichiersSysteme.h"
#include "widgets/VueTableau.h"

using namespace norvane::ui::essais;

namespace {

struct EssaiSystemes : FormeOuverte {
    Atelier& a = banc.atelier;
    QWidget* page = de<QWidget>("Varo10");
    QListView* liste = de<QListView>("ListBox5");
    QListView* grilles = de<QListView>("ListBox6");
    QLineEdit* numero = de<QLineEdit>("Edit25");

    EssaiSystemes() {
        auto* onglets = de<QTabWidget>("PageControl1");
        onglets->setCurrentIndex(onglets->indexOf(page));
    }

    QString texte(const char* nom) const { return de<QLabel>(nom)->text(); }
    QString dernier() const { return posees.isEmpty() ? QString() : posees.last().instruction; }
    void type(const char16_t* legende) const {
        for (auto* choix : page->findChildren<QRadioButton*>())
            if (choix->text() == QString::fromUtf16(legende)) choix->click();
    }
    void ligne(const QString& debut) const {
        for (int i = 0; i < liste->model()->rowCount(); ++i) {
            const QModelIndex index = liste->model()->index(i, 0);
            if (index.data().toString().startsWith(debut)) liste->setCurrentIndex(index);
        }
    }
    void tuile(int n, Qt::Key touche = Qt::Key_Space) const {
        auto* cases = de<QListView>("RxCheckListBox6");
        cases->setCurrentIndex(cases->model()->index(n - 1, 0));
        QTest::keyClick(cases, touche);
    }
    void cocher(std::initializer_list<int> numeros) const {
        for (const int n : numeros) tuile(n);
    }
    /// A system of twelve numbers, two of them base numbers.
    void generer() const {
        type(u"GARANTIE 3/4");
        ligne(u"Sélection: 12 Garantie: 3/4 Base: 2"_s);
        de("Button80")->click();
        cocher({3, 8, 10, 21, 22, 30, 31, 33, 40, 44, 45, 49, 8, 44});
        de("Button82")->click();
    }
    QString grille(int i) const { return grilles->model()->index(i, 0).data().toString(); }
    void finir() const { QTRY_VERIFY_WITH_TIMEOUT(!a.activite.occupe(), 20000); }
};

}  // namespace

class TestSystemes : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void listesDesGaranties() {
        const EssaiSystemes e;
        QCOMPARE(e.texte("Label83"), u"Garantie de 2/2 : 44 systèmes disponibles"_s);
        QCOMPARE(e.texte("RxLabel22"), u"Système de 3 combinaisons à 5 numéros (Base 0) :"_s);
        QCOMPARE(e.texte("Label84"), u"Cliquez sur \"Générer...\" ou \"Ouvrir...\""_s);
        QCOMPARE(e.texte("Label86"), u"Aucun système en mémoire..."_s);
        QVERIFY(!e.numero->isEnabled());
        e.type(u"GARANTIE 4/5");
        QCOMPARE(e.forme->focusWidget(), e.liste);
        QCOMPARE(e.liste->currentIndex().row(), 0);
        e.ligne(u"Sélection: 12 Garantie: 4/5 Base: 1"_s);
        QCOMPARE(e.a.systemeDisponible.Selection, 12);
        QCOMPARE(e.a.systemeDisponible.Base, 1);
        QVERIFY(e.texte("RxLabel21") ==
                u"Vous êtes assuré d'obtenir 4 numéros sur 5\nsi 5 numéros sortent parmi votre "
                u"sélection de 12"_s);
        // A list of the user's own that cannot be read: what was there stays.
        e.banc.ecrire("sys33.dat", "Sélection: 06");
        e.type(u"GARANTIE 3/3");
        QVERIFY(e.dernier().contains(u"sys33.dat"_s));
        QVERIFY(e.texte("Label83").startsWith(u"Garantie de 4/5 : "_s));
        QCOMPARE(e.a.typeGarantie, 8);
    }

    void selection() {
        const EssaiSystemes e;
        e.cocher({5, 6, 7, 5, 6, 7});
        QCOMPARE(e.dernier(),
                 u"Pas plus de 2 numéros de base (case cochée verte) par sélection..."_s);
        QCOMPARE(e.texte("Label88"), u"Sélection: 3     Base: 2"_s);
        e.tuile(7, Qt::Key_Delete);
        e.tuile(5);
        QCOMPARE(e.texte("Label88"), u"Sélection: 1     Base: 1"_s);
        e.de("Button80")->click();
        QCOMPARE(e.texte("Label88"), u"Sélection: 0     Base: 0"_s);
        e.type(u"GARANTIE 4/4");
        e.ligne(u"Sélection: 20 Garantie: 4/4 Base: 2"_s);
        e.de("Button81")->click();
        QCOMPARE(e.texte("Label88"), u"Sélection: 20     Base: 2"_s);
        e.a.TirageActif = 7;
        e.de("BitBtnWithColor20")->click();
        QCOMPARE(e.a.NumerosSysteme.numeros(), Ensemble::de(e.a.base.Tirages[7].Numeros));
        QCOMPARE(e.a.NumerosSysteme.BaseCourante(), 0);
        e.a.TirageActif = -1;
        e.de("BitBtnWithColor20")->click();
        QCOMPARE(e.dernier(), u"Pas de tirage actif dans l'onglet Résultats..."_s);
        QCOMPARE(e.a.NumerosSysteme.SelectionCourante(), 5);
        e.a.choixLibre.numeros = Ensemble{1, 49};
        e.de("BitBtnWithColor21")->click();
        QCOMPARE(e.a.NumerosSysteme.numeros(), (Ensemble{1, 49}));
        // A selection without base numbers goes out and in.
        e.banc.scripts.fichiers->reponse = e.banc.dossier.filePath(u"s.slt"_s);
        e.de("BitBtn7")->click();
        e.de("Button80")->click();
        e.de("BitBtn6")->click();
        QCOMPARE(e.a.NumerosSysteme, SelectionSysteme(Ensemble{1, 49}, {}));
    }

    void grillesEtNumeros() {
        const EssaiSystemes e;
        e.de("Button82")->click();  // nothing is selected
        QVERIFY(e.dernier().contains(u"6 numéros dont 0 de base"_s));
        QVERIFY(e.a.SystemeCourant.vide());
        e.generer();
        const int nombre = e.a.systemeDisponible.Grilles;
        QCOMPARE(e.grilles->model()->rowCount(), nombre);
        QVERIFY(e.texte("Label84") ==
                u"Sélection 12 Garantie 3/4 Base 2 Grilles %1"_s.arg(nombre, 4, 10, QChar(u'0')));
        for (int i = 0; i < nombre; ++i)
            QVERIFY(e.grille(i).contains(u"08 "_s) && e.grille(i).contains(u"44 "_s));
        QCOMPARE(e.texte("Label86"), e.grille(0).trimmed());
        QCOMPARE(e.numero->text(), u"1"_s);

        e.numero->setText(u"9999"_s);
        QCOMPARE(e.numero->text(), QString::number(nombre));
        QCOMPARE(e.grilles->currentIndex().row(), nombre - 1);
        QCOMPARE(e.texte("Label86"), e.grille(nombre - 1).trimmed());
        e.numero->clear();
        QCOMPARE(e.numero->text(), u"1"_s);
        QCOMPARE(e.grilles->currentIndex().row(), 0);
        e.de<QWidget>("UpDown23")->findChildren<QToolButton*>()[0]->click();
        QCOMPARE(e.grilles->currentIndex().row(), 1);
        e.grilles->setCurrentIndex(e.grilles->model()->index(2, 0));
        QCOMPARE(e.numero->text(), u"3"_s);
        // Another guarantee is only looked at.
        e.type(u"GARANTIE 2/2");
        QCOMPARE(e.grilles->model()->rowCount(), nombre);
        QCOMPARE(e.a.SystemeCourant.parametres.GarantieY, 4);
    }

    void fichiers() {
        const EssaiSystemes e;
        const auto clic = [&](const char* nom) { e.de(nom)->click(); };
        for (const char* nom : {"BitBtn10", "Button84", "Button85", "BoutonGarantie"}) {
            clic(nom);
            QCOMPARE(e.dernier(), u"Aucun système en mémoire, générez d'abord un système..."_s);
            QCOMPARE(e.forme->focusWidget(), e.liste);
        }
        e.generer();
        const Systeme systeme = e.a.SystemeCourant;
        auto& chemin = e.banc.scripts.fichiers->reponse;
        chemin = e.banc.dossier.filePath(u"a"_s);
        clic("BitBtn10");
        QVERIFY(e.banc.existe("a.syr"));
        clic("Button85");
        QCOMPARE(e.banc.lire("a.txt"), TexteGrilles(systeme));
        // What is in memory is given up only on a yes.
        e.de("Button80")->click();
        e.cocher({1, 2, 1, 2});
        chemin += u".txt"_s;
        e.banc.scripts.messages->reponses = {CodeBouton2};
        clic("Button86");
        e.finir();
        QCOMPARE(e.a.SystemeCourant, systeme);
        clic("Button86");
        QTRY_COMPARE(e.a.SystemeCourant.IndicateurImporte, systeme.parametres.Grilles);
        e.finir();
        QVERIFY(e.texte("Label84").contains(u"Système externe"_s));
        clic("BitBtn10");
        QCOMPARE(e.dernier(),
                 u"Le système actuellement en mémoire est un système externe importé..."_s);
        chemin = e.banc.dossier.filePath(u"a.syr"_s);
        clic("BitBtn8");
        QCOMPARE(e.a.SystemeCourant, systeme);
        QCOMPARE(e.texte("Label88"), u"Sélection: 12     Base: 2"_s);
        e.banc.ecrire("a.syr", "rien");
        clic("BitBtn8");
        QVERIFY(e.dernier().contains(u"a.syr"_s));
        QCOMPARE(e.a.SystemeCourant, systeme);
    }

    void preuve() {
        const EssaiSystemes e;
        e.generer();
        e.de("BoutonGarantie")->click();
        e.finir();
        QVERIFY(e.texte("LabelGarantie") ==
                u"Garantie 3/4 sur une sélection de 12 numéros dont 2 de base tenue : les 45 cas "
                u"possibles ont tous été vérifiés."_s);
        const auto& chances = e.de<VueTableau>("TableChances")->modele();
        QCOMPARE(chances.rowCount(), 4);
        QCOMPARE(chances.texte(chances.index(0, 0)), "2");
        // The same grids from outside promise nothing of themselves.
        auto& chemin = e.banc.scripts.fichiers->reponse;
        e.banc.ecrire("x.txt", "01 02 03 04 05\n06 07 08 09 10\n");
        chemin = e.banc.dossier.filePath(u"x.txt"_s);
        e.de("Button86")->click();
        QTRY_COMPARE(e.a.SystemeCourant.IndicateurImporte, 2);
        e.finir();
        QCOMPARE(chances.rowCount(), 0);
        e.type(u"GARANTIE 2/2");
        e.de("BoutonGarantie")->click();
        e.finir();
        QVERIFY(e.texte("LabelGarantie") ==
                u"Garantie 2/2 sur une sélection de 10 numéros non tenue : elle manque dans 25 cas "
                u"sur 45."_s);
        QVERIFY(e.texte("LabelManques").startsWith(u"Les premiers : 01 06 · 01 07"_s));
    }

    void versLesStatistiques() {
        const EssaiSystemes e;
        e.generer();
        e.a.modeStockage = ModeStockage::TousLesRangs;
        e.de("Button84")->click();
        e.finir();
        const Liste& liste = e.a.ListeMemoire;
        QCOMPARE(liste.nombre(), e.a.SystemeCourant.nombre());
        for (std::size_t i = 0; i < liste.nombre(); ++i) {
            const Ensemble numeros = Ensemble::de(liste.numeros(i));
            const auto sorties = std::ranges::count_if(e.a.base.Tirages, [&](const Tirage& t) {
                return numeros.contient(Ensemble::de(t.Numeros));
            });
            QCOMPARE(liste.nbFois(i), static_cast<int>(sorties));
            QVERIFY(liste.enregistrement(i)[1] != RangNonCalcule);
        }
        QVERIFY(e.de<QWidget>("Varo3")->isVisible());
    }
};

QTEST_MAIN(TestSystemes)
#include "test_systemes.moc"
