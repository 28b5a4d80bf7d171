// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Historiques": what it shows, what leads to it, and its files.

#include <sys/resource.h>

#include <QLabel>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <set>

#include "base/Fichiers.h"
#include "BasesEssai.h"
#include "combinaisons/PanneauCombinaison.h"
#include "common/Theme.h"
#include "historiques/PageHistoriques.h"
#include "reports/Historique.h"
#include "soutien/Banc.h"
#include "widgets/VueTableau.h"

using namespace norvane::ui::essais;

namespace {

constexpr int Ecart = static_cast<int>(ColonneHistorique::Ecart);

SujetHistorique numero(int n) {
    return Element{GenreStats::Numeros, n};
}

/// The page alone, its controls by their names.
struct HistoriquesSeuls {
    Banc banc;
    PageHistoriques page{banc.contexte};
    VueTableau* table = page.findChild<VueTableau*>(u"AdvStringGrid3"_s);
    const QList<DemandeMessage>& posees = banc.scripts.messages->posees;

    explicit HistoriquesSeuls(const Base& base = QuatreTirages()) : banc(&base) {
        eprouverModeles(page);
        page.resize(1366, 700);
        page.show();
    }
    bool ouvrir(const SujetHistorique& sujet, int inf = 1, int sup = 4) {
        return page.ouvrir(VersHistorique{sujet, inf, sup});
    }
    template <typename T = QAbstractButton>
    T* de(const char* nom) {
        return page.findChild<T*>(QString::fromUtf8(nom));
    }
    QString texte(const char* nom) { return de<QLabel>(nom)->text(); }
    /// Of the table, a row a string.
    QStringList lignes() const {
        QStringList lues;
        for (int l = 0; l < table->model()->rowCount(); ++l) {
            QStringList cellules;
            for (int c = 0; c < NbColonnesHistorique; ++c)
                cellules << table->model()->index(l, c).data().toString();
            lues << cellules.join(u' ');
        }
        return lues;
    }
    /// Of the cells of a row: the gradient of each.
    QList<int> teintes(int ligne) const {
        QList<int> lues;
        for (int c = 0; c < NbColonnesHistorique; ++c)
            lues << table->modele().cellule(table->model()->index(ligne, c)).degrade;
        return lues;
    }
};

}  // namespace

class TestHistoriques final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    /// At the start a number that came out, whatever the seed; without one, the invitation.
    void depart() {
        HistoriquesSeuls p;
        auto& hasard = static_cast<HasardFixe&>(*p.banc.services.hasard);
        std::set<QString> tires;
        for (hasard.valeur = 1; hasard.valeur <= 40; ++hasard.valeur) {
            p.page.premierAffichage();
            const QString exemple = p.texte("Exemple");
            const QString debut =
                u"Exemple sur tout l'intervalle des tirages pour le numéro aléatoire suivant: "_s;
            QVERIFY(exemple.startsWith(debut) && p.de<QLabel>("Exemple")->isVisible());
            const QString n = exemple.mid(debut.size());
            QCOMPARE(p.texte("TitreHistorique"),
                     u"Historique du numéro %1, tirages 1 (03/10/2022) à 4 (05/10/2022)"_s.arg(n));
            QVERIFY(!p.lignes().isEmpty());
            tires.insert(n);
        }
        QVERIFY(tires.size() > 5);
        QVERIFY(p.ouvrir(numero(7)) && !p.de<QLabel>("Exemple")->isVisible());

        Base vide = QuatreTirages();
        vide.NbTirages = 0;
        HistoriquesSeuls sans(vide);
        sans.page.premierAffichage();
        QVERIFY(sans.de<QLabel>("Invite")->isVisible() && !sans.table->isVisible());
        QCOMPARE(sans.texte("Invite"),
                 u"Double cliquez sur le libellé des numéros, chances ou rangs, dans les tableaux "
                 u"des onglets\nNuméros, Chances et Combinaisons pour afficher l'Historique "
                 u"associé..."_s);
    }

    void lesDeuxVues() {
        HistoriquesSeuls p;
        QVERIFY(p.ouvrir(numero(20)));
        const QStringList sorties{u"1 03/10/2022 7 20 23 31 40 1 0 1 122"_s,
                                  u"3 05/10/2022 7 20 33 41 49 3 1 1 153"_s,
                                  u"4 05/10/2022 1 7 20 33 41  0 2 102"_s};
        QCOMPARE(p.lignes(), sorties);
        QVERIFY(p.de("RadioButton3")->isChecked());
        QCOMPARE(p.de("RadioButton3")->text(), u"Sorties (3)"_s);
        QCOMPARE(p.de("RadioButton4")->text(), u"Tout (4)"_s);
        for (const auto& [nom, valeur] :
             {std::pair{"EcartActuel", 0}, std::pair{"EcartMax", 1}, std::pair{"EcartMoyen", 0},
              std::pair{"SuiteActuelle", 2}, std::pair{"SuiteMax", 2}})
            QCOMPARE(p.texte(nom), QString::number(valeur));

        p.table->modele().cliquer(Ecart, false);
        p.table->modele().cliquer(Ecart, false);
        QVERIFY(p.lignes().front() == sorties[1]);
        p.de("RadioButton4")->click();
        QVERIFY(p.table->modele().cles().empty());  // in the order of the draws again
        QStringList tout = sorties;
        tout.insert(1, u"2 03/10/2022 7 25 33 41 48  0 0 154"_s);
        QCOMPARE(p.lignes(), tout);
        QCOMPARE(p.teintes(0), (QList<int>{0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0}));
        QCOMPARE(p.teintes(1), QList<int>(NbColonnesHistorique, -1));

        // Another one starts again with the draws where it came out.
        QVERIFY(p.ouvrir(Element{GenreStats::Chances, 3}, 2, 4));
        QVERIFY(p.de("RadioButton3")->isChecked() && p.lignes().size() == 1);
        QCOMPARE(p.teintes(0), (QList<int>{0, 0, 0, 0, 0, 0, 0, 2, 0, 0, 0}));
        QCOMPARE(p.de("RadioButton4")->text(), u"Tout (3)"_s);
    }

    /// What never came out is told, and what was there stays; so it does when the state changes.
    void garde() {
        HistoriquesSeuls p;
        QVERIFY(p.ouvrir(numero(20), 1, 3));
        const QStringList avant = p.lignes();
        QVERIFY(!p.ouvrir(RangCombinaison{{7, 20}, 0}) && !p.page.ouvrir(VersTirage{1, {}}));
        QCOMPARE(p.posees.size(), 1);
        QCOMPARE(p.posees.last().instruction, u"Rang non sorti sur la période..."_s);

        const QSignalSpy demandes(&p.banc.relais, &Relais::demande);
        Q_EMIT p.table->celluleActivee(p.table->model()->index(1, Ecart));
        QVERIFY(demandes.last().at(0).value<Destination>() ==
                Destination(VersTirage{3, Element{GenreStats::Numeros, 20}}));
        SupprimerTirage(p.banc.atelier.base, 1);
        p.banc.recalculer();
        p.page.surChange({.base = true, .intervalle = true});
        QCOMPARE(p.lignes(), avant);
        // Draw 1 is still what it was; draw 3 is another one now, and then there is none.
        Q_EMIT p.table->celluleActivee(p.table->model()->index(0, 0));
        QCOMPARE(demandes.size(), 2);
        Q_EMIT p.table->celluleActivee(p.table->model()->index(1, 0));
        SupprimerTirage(p.banc.atelier.base, 2);
        Q_EMIT p.table->celluleActivee(p.table->model()->index(1, 0));
        QVERIFY(demandes.size() == 2 && p.posees.size() == 3);
        QVERIFY(p.posees.last().instruction.startsWith(u"Ce tirage n'est plus"_s));
    }

    /// From the labels of the tables of the other pages.
    void chemins() {
        FormeOuverte f;
        auto* onglets = f.de<QTabWidget>("PageControl1");
        const auto* titre = f.de<QLabel>("TitreHistorique");
        for (const auto& [table, debut] :
             {std::pair{"AdvStringGrid1", u"Historique du numéro 7, tirages 1 ("_s},
              std::pair{"AdvStringGrid4", u"Historique de la chance 7, tirages 1 ("_s}}) {
            auto* vue = f.de<VueTableau>(table);
            Q_EMIT vue->celluleActivee(vue->model()->index(6, 1));
            QCOMPARE(onglets->currentWidget()->objectName(), u"Varo6"_s);
            QVERIFY(titre->text().startsWith(debut));
            onglets->setCurrentIndex(0);
        }

        const Base base = QuatreTirages();
        Banc banc(&base);
        PanneauCombinaison panneau(banc.contexte, CombinaisonChoisie, nullptr);
        panneau.poserIntervalle(2, 4);
        panneau.montrer({7, 20});
        auto* rangs = panneau.findChild<VueTableau*>(u"AdvStringGrid2"_s);
        const QModelIndex rang = rangs->model()->index(1, 0);
        QCOMPARE(rang.data(Qt::ToolTipRole).toString(),
                 u"Double cliquez sur ce rang pour afficher l'historique correspondant..."_s);
        const QSignalSpy demandes(&banc.relais, &Relais::demande);
        Q_EMIT rangs->celluleActivee(rang);
        QVERIFY(demandes.last().at(0).value<Destination>() ==
                Destination(VersHistorique{RangCombinaison{{7, 20}, 1}, 2, 4}));
    }

    /// The rows on show in their order, in the five formats; an old file stays when it fails.
    void fichiers() {
        HistoriquesSeuls p;
        p.ouvrir(numero(20));
        p.table->modele().trier({{Ecart, false}});
        const Historique h =
            FaireHistorique(p.banc.atelier.base, p.banc.atelier.occurrences, numero(20), 1, 4);
        TableauExporte attendu = ExporterHistorique(h, VueHistorique::Sorties);
        std::swap(attendu.lignes[0], attendu.lignes[1]);
        auto& fichiers = *p.banc.scripts.fichiers;
        QStringList filtres;
        for (const auto& [nom, filtre, format] :
             {std::tuple{"a.txt", u"Format Texte (*.txt)"_s, FormatTableau::Texte},
              {"a.htm", u"Format Html (*.htm *.html)"_s, FormatTableau::Html},
              {"a.odt", u"Format Texte OpenDocument (*.odt)"_s, FormatTableau::OpenDocument},
              {"a.xlsx", u"Format Excel (*.xlsx)"_s, FormatTableau::Xlsx},
              {"a.csv", u"Format CSV (*.csv)"_s, FormatTableau::Csv}}) {
            fichiers.filtre = filtre;
            // Two of the names without their suffix.
            fichiers.reponse = versQt(p.banc.chemin(nom).string());
            if (format == FormatTableau::Xlsx || format == FormatTableau::Csv)
                fichiers.reponse.truncate(fichiers.reponse.lastIndexOf(u'.'));
            p.de("BitBtnWithColor16")->click();
            filtres << filtre;
            const std::string lu = p.banc.lire(nom);
            if (format == FormatTableau::Xlsx) {  // it bears the time of its making
                QVERIFY(lu.starts_with("PK"));
            } else {
                QCOMPARE(lu, *Exporter(attendu, format));
            }
        }
        QCOMPARE(fichiers.demandes.last(), u"Sauver l'historique|"_s + filtres.join(u";;"_s));
        QCOMPARE(QFileInfo(fichiers.propose).fileName(), u"Historique du numéro 20"_s);
        QVERIFY(p.posees.isEmpty());

        SurvivreAuxLimitesDeTaille();
        rlimit avant{};
        getrlimit(RLIMIT_FSIZE, &avant);
        const std::string ancien = p.banc.lire("a.csv");
        p.table->modele().retablirOrdre();
        const rlimit nul{0, avant.rlim_max};
        setrlimit(RLIMIT_FSIZE, &nul);
        p.de("BitBtnWithColor16")->click();
        setrlimit(RLIMIT_FSIZE, &avant);
        QCOMPARE(p.posees.size(), 2);  // asked, then told
        QCOMPARE(p.posees.last().icone, IconeMessage::Erreur);
        QCOMPARE(p.banc.lire("a.csv"), ancien);
    }

    /// A click on a bar leads to its row; the gap that runs has a colour of its own.
    void dessin() {
        HistoriquesSeuls p;
        auto* dessin = p.de<QWidget>("DessinEcarts");
        const auto alertes = [&](int n) {
            p.ouvrir(numero(n));
            const QImage image = dessin->grab().toImage().copy(0, dessin->height() / 3,
                                                               dessin->width(), dessin->height());
            int trouves = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    trouves += image.pixelColor(x, y) == teintes(p.page.palette()).alerte ? 1 : 0;
            return trouves;
        };
        QVERIFY(alertes(31) > 0);  // out since draw 1
        QCOMPARE(alertes(20), 0);
        QTest::mouseClick(dessin, Qt::LeftButton, {},
                          QPoint(dessin->width() / 2 + 12, dessin->height() / 2));
        QCOMPARE(p.table->currentIndex().row(), 1);  // draw 3 of four
        QVERIFY(dessin->accessibleDescription().startsWith(u"Ecart Actuel=0, Ecart Max=1,"_s));
    }
};

QTEST_MAIN(TestHistoriques)
#include "test_historiques.moc"
