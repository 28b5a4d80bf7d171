// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pages "Numéros" and "Chances": files, paper, the busy rule, and bases too small to show.

#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include "common/Enregistrement.h"
#include "LectureArchives.h"
#include "soutien/EssaiStats.h"
#include "stats/ExportTableau.h"
#include "stats/TableauStats.h"

using namespace norvane::ui::essais;

class TestStatsSorties final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    /// Both files against the whole table, taken from the rows themselves in their sorted order.
    void fichiersSauves() {
        PageOuverte o(GenreStats::Chances);
        o.inf->setValue(3000);
        o.cliquerEntete(E);
        auto lignes = RemplirStats(GenreStats::Chances, o.banc.atelier.base,
                                   o.banc.atelier.occurrences, 2999, 3213);
        std::stable_sort(lignes.begin(), lignes.end(), [](const auto& a, const auto& b) {
            return a.cellules[E].cle < b.cellules[E].cle;
        });
        TableauExporte attendu{{"Statistiques sur les chances"},
                               {{"Pos", true, NatureColonne::Entier},
                                {"Chance", true, NatureColonne::Entier},
                                {"NbS", true, NatureColonne::Entier},
                                {"Ratio", true, NatureColonne::Pourcents},
                                {"Date", false, NatureColonne::Date},
                                {"E", true, NatureColonne::Entier},
                                {"EM", true, NatureColonne::Centiemes},
                                {"Ecart max"},
                                {"S", true, NatureColonne::Entier},
                                {"Suite max"}},
                               {}};
        for (const QString& l : o.libelle().split(u'\n')) attendu.titre.push_back(l.toStdString());
        for (const auto& ligne : lignes) {
            const auto place = static_cast<std::int64_t>(attendu.lignes.size()) + 1;
            std::vector<CelluleExportee> cellules{{std::to_string(place), place}};
            for (std::size_t c = 1; c < NbColonnesStats; ++c)
                cellules.push_back({ligne.cellules[c].texte, ligne.cellules[c].cle});
            attendu.lignes.push_back(std::move(cellules));
        }
        auto& fichiers = *o.banc.scripts.fichiers;
        fichiers.filtre = u"Format CSV (*.csv)"_s;
        fichiers.reponse = versQt(o.banc.chemin("essai").string());
        o.cliquer("BitBtnWithColor17");
        QCOMPARE(o.banc.lire("essai.csv"), EnCsv(attendu));
        fichiers.filtre = u"Format Excel (*.xlsx)"_s;
        o.cliquer("BitBtnWithColor17");
        QVERIFY(CellulesXlsx(o.banc.lire("essai.xlsx")) == CellulesXlsx(*EnXlsx(attendu)));
        fichiers.filtre = u"Format Texte (*.txt)"_s;
        o.cliquer("BitBtnWithColor17");
        const std::string texte = EnTexte(attendu);
        QCOMPARE(o.banc.lire("essai.txt"), texte);
        // What the name becomes is asked about; with No, another name is asked for.
        QVERIFY(o.posees().isEmpty());
        o.banc.scripts.messages->reponses = {CodeBouton2};
        o.inf->setValue(1);
        fichiers.dabord = {fichiers.reponse, QString()};
        o.cliquer("BitBtnWithColor17");
        QCOMPARE(o.posees().size(), 1);
        QCOMPARE(o.posees().last().defaut, 1);
        QCOMPARE(fichiers.propose, fichiers.reponse + u".txt"_s);
        QCOMPARE(o.banc.lire("essai.txt"), texte);

        fichiers.reponse = versQt(o.banc.chemin("absent/essai.txt").string());
        o.cliquer("BitBtnWithColor17");
        QCOMPARE(o.posees().size(), 2);
        QCOMPARE(o.posees().last().icone, IconeMessage::Erreur);
    }

    void nomsCompletes() {
        const std::vector<FormatFichier> formats{{u"Texte (*.txt)"_s, u"txt"_s},
                                                 {u"CSV (*.csv)"_s, u"csv"_s, u"tsv"_s}};
        const struct {
            const char16_t* nom;
            const char16_t* complet;
            std::size_t format;
        } noms[] = {{u"/a/b", u"/a/b.csv", 1},
                    {u"/a/b.txt", u"/a/b.txt", 0},
                    {u"/a/mes.notes", u"/a/mes.notes.csv", 1},
                    {u"/a.txt/b", u"/a.txt/b.csv", 1},
                    {u"b.TXT", u"b.txt", 0},
                    {u"b.Tsv", u"b.tsv", 1},
                    {u"b.txt.csv", u"b.txt.csv", 1}};
        for (const auto& [nom, complet, attendu] : noms) {
            std::size_t format = 9;
            QCOMPARE(nomComplet(QString::fromUtf16(nom), formats, 1, format),
                     QString::fromUtf16(complet));
            QCOMPARE(format, attendu);
        }
    }

    void pdfImprime() {
        PageOuverte o(GenreStats::Numeros);
        const QString pdf = o.banc.dossier.filePath(u"stats.pdf"_s);
        o.banc.scripts.imprimantes->pdf = pdf;
        o.cliquer("BitBtnWithColor6");
        QVERIFY(o.posees().isEmpty() && QFileInfo(pdf).size() > 5000);
        // Over another file, once its name is complete and asked about: a whole new one is put in
        // its place, so that whoever has the old one keeps it.
        o.banc.ecrire("b.pdf", "ancien");
        std::filesystem::create_hard_link(o.banc.chemin("b.pdf"), o.banc.chemin("garde"));
        o.banc.scripts.imprimantes->pdf = o.banc.dossier.filePath(u"b"_s);
        o.banc.scripts.messages->reponses = {CodeBouton2};
        o.cliquer("BitBtnWithColor6");
        QVERIFY(o.posees().size() == 1 && o.banc.lire("b.pdf") == "ancien");
        o.cliquer("BitBtnWithColor6");
        QVERIFY(o.posees().size() == 2 && o.banc.lire("b.pdf").starts_with("%PDF"));
        QCOMPARE(o.banc.lire("garde"), std::string("ancien"));
        if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty()) QSKIP("pdftotext is missing");
        QProcess lecture;
        lecture.start(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
        QVERIFY(lecture.waitForFinished());
        const QString tout = QString::fromUtf8(lecture.readAllStandardOutput()).simplified();
        for (int l = 0; l < 49; ++l) QVERIFY(tout.contains(o.texte(l, EMax).simplified()));
        QVERIFY(tout.contains(u"Statistiques sur 3214 tirages"_s));

        o.banc.scripts.imprimantes->pdf = o.banc.dossier.filePath(u"absent/stats.pdf"_s);
        o.cliquer("BitBtnWithColor6");
        QCOMPARE(o.posees().size(), 3);
        QCOMPARE(o.posees().last().icone, IconeMessage::Erreur);
    }

    void baseTropPetiteEtRetour() {
        Base base = QuatreTirages();
        for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
            for (const int n : {0, 1}) {
                base.NbTirages = n;
                PageOuverte o(genre, &base);
                o.page->surChange({.base = true});
                o.cliquer(genre == GenreStats::Numeros ? "RatioNumerosSimple"
                                                       : "RatioEtoilesSimple");
                QCOMPARE(o.table->model()->rowCount(), 0);
                QTest::keyClick(o.table, Qt::Key_Return);
                o.banc.atelier.base.NbTirages = 4;
                o.banc.recalculer();
                o.page->surChange({.base = true});
                QVERIFY(o.dansLOrdre());
                QCOMPARE(o.sup->value(), 4);
            }
        }
    }
};

QTEST_MAIN(TestStatsSorties)
#include "test_stats_sorties.moc"
