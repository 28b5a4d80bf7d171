// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pages "Numéros" and "Chances": intervals, sorts, ratio, double clicks, outputs.

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include "base/BaseIntegree.h"
#include "BasesEssai.h"
#include "OracleStats.h"
#include "soutien/Banc.h"
#include "statistiques/PageStats.h"
#include "stats/ExportTableau.h"
#include "stats/TableauStats.h"
#include "widgets/Bulle.h"
#include "widgets/SpinTirage.h"
#include "widgets/VueTableau.h"

using namespace norvane::ui::essais;

namespace {

constexpr int Num = 1, NbS = 2, Ratio = 3, Date = 4, E = 5, EMax = 7, SMax = 9;
const QString JamaisSorti = u"Pas encore sorti "_s;

/// A page on show over a base, with its controls under their own names.
struct PageOuverte {
    Banc banc;
    GenreStats genre;
    std::unique_ptr<PageStats> page;
    VueTableau* table = nullptr;
    SpinTirage* inf = nullptr;
    SpinTirage* sup = nullptr;

    explicit PageOuverte(GenreStats g, const Base* base = nullptr) : banc(base), genre(g) {
        page = std::make_unique<PageStats>(banc.contexte, g);
        const bool numeros = g == GenreStats::Numeros;
        table = trouver<VueTableau>(numeros ? "AdvStringGrid1" : "AdvStringGrid4");
        inf = trouver<SpinTirage>(numeros ? "RxSpinEditStats" : "RxSpinEditStatsE");
        sup = trouver<SpinTirage>(numeros ? "RxSpinEditStats2" : "RxSpinEditStats2E");
        page->remplirDemarrage();
        page->resize(1366, 700);
        page->show();
        page->activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(page.get()));
    }
    template <typename T>
    T* trouver(const char* nom) {
        return page->findChild<T*>(QString::fromUtf8(nom));
    }
    void cliquer(const char* nom) {
        auto* bouton = trouver<QAbstractButton>(nom);
        QTest::mouseClick(bouton, Qt::LeftButton, {}, QPoint(8, bouton->height() / 2));
    }
    QString texte(int ligne, int colonne) const {
        return table->model()->index(ligne, colonne).data().toString();
    }
    QString libelle() {
        const bool numeros = page->objectName() == u"Varo2"_s;
        return trouver<QLabel>(numeros ? "RxLabelStats1" : "RxLabelStats1E")->text();
    }
    /// Types over what stands in the control, as after a click into it.
    static void taper(SpinTirage* spin, const QString& texte) {
        spin->setFocus();
        spin->selectAll();
        QTest::keyClicks(spin, texte);
    }
    void cliquerEntete(int colonne, Qt::KeyboardModifiers touches = {}) const {
        auto* entete = table->horizontalHeader();
        const QPoint place(entete->sectionViewportPosition(colonne) + 10, 10);
        QTest::mouseClick(entete->viewport(), Qt::LeftButton, touches, place);
    }
    static void doubleCliquer(const QTableView* vue, const QModelIndex& i) {
        const QPoint place = vue->visualRect(i).center();
        QTest::mouseClick(vue->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(vue->viewport(), Qt::LeftButton, {}, place);
    }
    void doubleCliquer(int ligne, int colonne) const {
        const QModelIndex i = table->model()->index(ligne, colonne);
        table->scrollTo(i);
        doubleCliquer(table, i);
    }
    int ligneDe(int element) const { return static_cast<int>(elements().indexOf(element)); }
    const QList<DemandeMessage>& posees() const { return banc.scripts.messages->posees; }
    QList<int> elements() const {
        QList<int> tous;
        for (int l = 0; l < table->model()->rowCount(); ++l) tous << texte(l, Num).toInt();
        return tous;
    }
    bool dansLOrdre() const {
        const QList<int> tous = elements();
        return tous.size() == (genre == GenreStats::Numeros ? NumeroMax : ChanceMax) &&
               std::is_sorted(tous.begin(), tous.end());
    }
};

}  // namespace

class TestStats : public QObject {
    Q_OBJECT

 private Q_SLOTS:
    /// The first table leaves out the first record; any use of a control takes it in.
    void demarrageSansLePremier() {
        const Base base = QuatreTirages();
        PageOuverte o(GenreStats::Numeros, &base);
        QVERIFY(o.inf->value() == 1 && o.sup->value() == 4);
        QCOMPARE(o.libelle(), versQt(LibelleIntervalle(base, 1, 4)));
        QCOMPARE(o.texte(30, Date), JamaisSorti);
        QCOMPARE(o.texte(30, E), u"3"_s);
        QCOMPARE(o.texte(6, NbS), u"3"_s);
        o.cliquer("RatioNumerosGraphique");
        QCOMPARE(o.texte(30, Date), u"lundi 3 octobre 2022"_s);
        QCOMPARE(o.texte(6, NbS), u"4"_s);

        // The same number typed again is a use of the control as well.
        o.page->remplirDemarrage();
        QCOMPARE(o.texte(30, Date), JamaisSorti);
        PageOuverte::taper(o.inf, u"1"_s);
        QCOMPARE(o.texte(30, Date), u"lundi 3 octobre 2022"_s);

        o.page->remplirDemarrage();
        o.page->surBaseChangee();
        QCOMPARE(o.texte(6, NbS), u"4"_s);
    }

    void bornesTapees_data() {
        QTest::addColumn<bool>("basse");
        QTest::addColumn<QString>("frappe");
        QTest::addColumn<int>("inf");
        QTest::addColumn<int>("sup");
        // From 100..200 of 3214.
        QTest::newRow("within") << true << u"150"_s << 150 << 200;
        QTest::newRow("lower pulls upper") << true << u"300"_s << 300 << 300;
        QTest::newRow("upper pulls lower") << false << u"50"_s << 5 << 50;
        QTest::newRow("zero") << true << u"0"_s << 1 << 200;
        QTest::newRow("leading zeros") << true << u"007"_s << 107 << 200;  // 0 turns 1 at once
        QTest::newRow("beyond") << false << u"99999"_s << 9 << 3214;
        QTest::newRow("lower beyond") << true << u"99999"_s << 3214 << 3214;
        QTest::newRow("no digit") << true << u"a -+.e"_s << 100 << 200;
    }
    void bornesTapees() {
        QFETCH(bool, basse);
        QFETCH(QString, frappe);
        for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
            PageOuverte o(genre);
            o.inf->poserValeur(100);
            o.sup->poserValeur(200);
            const QSignalSpy fillings(o.table->model(), &QAbstractItemModel::modelReset);
            SpinTirage* spin = basse ? o.inf : o.sup;
            PageOuverte::taper(spin, frappe);
            QTEST(o.inf->value(), "inf");
            QTEST(o.sup->value(), "sup");
            for (const SpinTirage* s : {o.inf, o.sup})
                QCOMPARE(s->text(), QString::number(s->value()));
            // One filling a digit, whatever was clamped or pulled; none for what is no digit.
            const bool chiffres = frappe.at(0).isDigit();
            QCOMPARE(fillings.size(), chiffres ? frappe.size() : 0);
            const auto libelle =
                LibelleIntervalle(o.banc.atelier.base, o.inf->value(), o.sup->value());
            if (chiffres) QCOMPARE(o.libelle(), versQt(libelle));
        }
    }

    void touchesSourdesEtTexteVide() {
        PageOuverte o(GenreStats::Numeros);
        const QSignalSpy fillings(o.table->model(), &QAbstractItemModel::modelReset);
        o.sup->setFocus();
        for (const Qt::Key touche :
             {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Plus, Qt::Key_Minus}) {
            o.sup->selectAll();
            QTest::keyClick(o.sup, touche);
            QTest::keyClick(o.sup->findChild<QLineEdit*>(), touche);
            QCOMPARE(o.sup->text(), u"3214"_s);
        }
        o.sup->findChild<QLineEdit*>()->clear();
        QCOMPARE(o.sup->value(), 3214);
        o.inf->setFocus();  // an emptied control takes its number back
        QCOMPARE(o.sup->text(), u"3214"_s);
        QCOMPARE(fillings.size(), 0);
        // Arrows and pages step, one filling each.
        QTest::keyClick(o.inf, Qt::Key_Up);
        QTest::keyClick(o.inf, Qt::Key_PageUp);
        QTest::keyClick(o.inf, Qt::Key_Down);
        QCOMPARE(o.inf->value(), 11);
        QCOMPARE(fillings.size(), 3);
    }

    /// "Chances" waits for as many characters as the lower limit has, unless the old draws are in.
    void saisieIncomplete() {
        for (const bool anciens : {false, true}) {
            Base base = BaseIntegree(false);
            base.AnciensTirages = anciens;
            for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
                PageOuverte o(genre, &base);
                o.inf->setMinimum(1000);
                const QSignalSpy fillings(o.table->model(), &QAbstractItemModel::modelReset);
                PageOuverte::taper(o.inf, u"2"_s);
                const bool attend = genre == GenreStats::Chances && !anciens;
                QCOMPARE(o.inf->text(), attend ? u"2"_s : u"1000"_s);
                QCOMPARE(fillings.size(), attend ? 0 : 1);
                if (!attend) continue;
                QTest::keyClicks(o.inf, u"500"_s);
                QCOMPARE(o.inf->value(), 2500);
                QCOMPARE(fillings.size(), 1);
            }
        }
    }

    /// Never out comes first in ascending order, then the older dates; a new interval puts the
    /// rows back in number order.
    void triParDate() {
        PageOuverte o(GenreStats::Numeros);
        o.inf->setValue(3195);
        o.cliquerEntete(Date);
        const auto& tirages = o.banc.atelier.base.Tirages;
        QList<int> dates;
        for (int l = 0; l < 49; ++l) {
            QCOMPARE(o.texte(l, 0), QString::number(l + 1));
            const auto sortie = static_cast<std::size_t>(3213 - o.texte(l, E).toInt());
            dates << (o.texte(l, Date) == JamaisSorti ? 0 : tirages[sortie].DateTirage);
        }
        QVERIFY(std::is_sorted(dates.begin(), dates.end()));
        QVERIFY(dates[1] == 0 && dates.last() > 0);
        o.cliquerEntete(Date);
        QCOMPARE(o.texte(48, Date), JamaisSorti);
        QTest::keyClick(o.inf, Qt::Key_Up);
        QVERIFY(o.dansLOrdre());
        QCOMPARE(o.table->modele().marque(Date), QString());
        QCOMPARE(o.table->modele().marque(Num), u"1▲"_s);
    }

    /// Two keys against a sort of the definitions' own values; ties stay in number order.
    void triADeuxCles() {
        PageOuverte o(GenreStats::Numeros);
        const QAbstractItemModelTester testeur(&o.table->modele());
        o.inf->setValue(3100);
        o.cliquerEntete(0);
        QVERIFY(o.dansLOrdre());
        o.cliquerEntete(NbS);
        o.cliquerEntete(NbS);
        QPersistentModelIndex treize = o.table->model()->index(o.ligneDe(13), Num);
        o.cliquerEntete(EMax, Qt::ShiftModifier);
        QCOMPARE(treize.data().toString(), u"13"_s);
        QCOMPARE(o.table->modele().marque(NbS), u"1▼"_s);
        QCOMPARE(o.table->modele().marque(EMax), u"2▲"_s);

        std::vector<ResultatStats> r;
        QList<int> attendus;
        for (int n = 1; n <= NumeroMax; ++n) {
            r.push_back(OracleStats(PresencesNumero(o.banc.atelier.base, n), 3099, 3213));
            attendus << n;
        }
        const auto trier = [&](bool decroissant) {
            std::sort(attendus.begin(), attendus.end(), [&](int a, int b) {
                const ResultatStats& x = r[static_cast<std::size_t>(a - 1)];
                const ResultatStats& y = r[static_cast<std::size_t>(b - 1)];
                // The whole text counts: value, then count, then position.
                const std::tuple clesX{x.EcartMax, x.NbEcartMax, x.PosEcartMax};
                const std::tuple clesY{y.EcartMax, y.NbEcartMax, y.PosEcartMax};
                if (x.Sorties != y.Sorties) return x.Sorties > y.Sorties;
                if (clesX != clesY) return decroissant ? clesX > clesY : clesX < clesY;
                return a < b;
            });
        };
        trier(false);
        QCOMPARE(o.elements(), attendus);
        o.cliquerEntete(EMax, Qt::ShiftModifier);
        trier(true);
        QCOMPARE(o.elements(), attendus);

        // By keyboard: Ctrl+Space on the current cell's column.
        o.table->setCurrentIndex(o.table->model()->index(0, Num));
        QTest::keyClick(o.table, Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(o.dansLOrdre());
        QTest::keyClick(o.table, Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(o.texte(0, Num), u"49"_s);
    }

    void ratioTexteBarreEtBulle() {
        PageOuverte o(GenreStats::Numeros);
        o.page->surBaseChangee();
        const QModelIndex cellule = o.table->model()->index(6, Ratio);
        const QString barre = o.texte(6, Ratio);
        QVERIFY(o.table->modele().cellule(cellule).barre);

        const auto survoler = [&](const QModelIndex& i) {
            QTest::mouseMove(o.table->viewport(), o.table->visualRect(i).center());
        };
        const Bulle& bulle = o.table->bulle();
        survoler(cellule);
        QVERIFY(bulle.isVisible());
        QCOMPARE(bulle.titre(), u"Ratio Précis"_s);
        const QString precis = QString::number(barre.toInt() / 100) + u',' + barre.right(2);
        QCOMPARE(o.table->bulle().texte(), precis + u"% "_s);
        survoler(o.table->model()->index(6, E));
        QVERIFY(!o.table->bulle().isVisible());
        survoler(cellule);
        QVERIFY(o.table->bulle().isVisible());
        o.page->surDepart();
        QVERIFY(!o.table->bulle().isVisible());

        const QSignalSpy fillings(o.table->model(), &QAbstractItemModel::modelReset);
        o.cliquer("RatioNumerosSimple");
        QCOMPARE(fillings.size(), 1);
        QCOMPARE(o.texte(6, Ratio), (precis.size() < 5 ? u"0"_s : u""_s) + precis + u"% "_s);
        QVERIFY(!o.table->modele().cellule(o.table->model()->index(6, Ratio)).barre);
        survoler(o.table->model()->index(5, Ratio));
        survoler(o.table->model()->index(6, Ratio));
        QVERIFY(!o.table->bulle().isVisible());
        auto* simple = o.trouver<QAbstractButton>("RatioNumerosSimple");
        simple->setFocus();
        QTest::keyClick(simple, Qt::Key_Right);
        QCOMPARE(o.texte(6, Ratio), barre);
        QCOMPARE(fillings.size(), 2);
    }

    /// A 2nd Tirage has no Chance: chance 1 shows as present there.
    void couleursDePresence() {
        const Base base = QuatreTirages();
        PageOuverte chances(GenreStats::Chances, &base);
        PageOuverte numeros(GenreStats::Numeros, &base);
        const auto presents = [](const PageOuverte& o) {
            QList<int> lus;
            for (int l = 0; l < o.table->model()->rowCount(); ++l) {
                const QModelIndex i = o.table->model()->index(l, Num);
                const auto encre = i.data(Qt::ForegroundRole).value<QBrush>().color();
                if (encre == QColor(Qt::white)) lus << o.texte(l, Num).toInt();
            }
            return lus;
        };
        chances.sup->setValue(2);
        QCOMPARE(presents(chances), QList<int>({1}));
        chances.sup->setValue(3);
        QCOMPARE(presents(chances), QList<int>({3}));
        numeros.sup->setValue(2);
        QCOMPARE(presents(numeros), QList<int>({7, 25, 33, 41, 48}));
        const auto fond = chances.table->model()->index(2, 0).data(Qt::BackgroundRole);
        QCOMPARE(fond.value<QBrush>().gradient()->stops().first().second, QColor(0x9D, 0, 0));
        QCOMPARE(chances.texte(0, Num), u"01"_s);
    }

    void doubleClics() {
        const Base base = QuatreTirages();
        PageOuverte o(GenreStats::Numeros, &base);
        const QSignalSpy historiques(o.page.get(), &Page::historiqueDemande);
        const QSignalSpy tirages(o.page.get(), &Page::tirageDemande);
        o.inf->setValue(2);
        o.sup->setValue(3);
        const auto dernierTirage = [&] {
            return tirages.last().at(0).toInt() * 100 + tirages.last().at(2).toInt();
        };
        // 31 is not in draws 2 and 3.
        o.doubleCliquer(30, Num);
        QCOMPARE(o.posees().size(), 1);
        QCOMPARE(o.posees().last().instruction, u"Numéro non sorti sur la période..."_s);
        QCOMPARE(o.posees().last().titre, u"Message"_s);
        for (const int colonne : {0, NbS, Ratio, Date, E, EMax, SMax}) o.doubleCliquer(30, colonne);
        QCOMPARE(historiques.size() + tirages.size(), 0);

        o.doubleCliquer(19, Num);  // 20: in draw 3
        QCOMPARE(historiques.size(), 1);
        QCOMPARE(historiques.last(),
                 (QVariantList{QVariant::fromValue(GenreStats::Numeros), 20, 2, 3}));
        o.doubleCliquer(24, Date);  // 25: in draw 2, from a sorted table
        QCOMPARE(dernierTirage(), 225);
        o.cliquerEntete(NbS);
        o.doubleCliquer(o.ligneDe(25), E);
        QCOMPARE(dernierTirage(), 225);
        o.doubleCliquer(o.ligneDe(20), EMax);  // its gap ended at draw 3
        QCOMPARE(dernierTirage(), 320);
        o.table->setCurrentIndex(o.table->model()->index(o.ligneDe(41), SMax));
        QTest::keyClick(o.table, Qt::Key_Return);
        QCOMPARE(dernierTirage(), 341);
        QCOMPARE(tirages.size(), 4);

        PageOuverte c(GenreStats::Chances, &base);
        c.doubleCliquer(9, Num);
        QCOMPARE(c.posees().last().instruction, u"Chance non sortie sur la période..."_s);
    }

    void indicesEtTableDesCouples() {
        PageOuverte o(GenreStats::Chances);
        const auto* modele = o.table->model();
        QCOMPARE(modele->headerData(EMax, Qt::Horizontal, Qt::ToolTipRole).toString(),
                 u"Écart Max: cliquez pour trier (SHIFT+CLIC=tri secondaire)"_s);
        QCOMPARE(
            modele->headerData(0, Qt::Horizontal, Qt::ToolTipRole).toString(),
            u"Position de la chance dans le tri actuel (clic sur l'en-tête des colonnes pour trier)"_s);
        for (int c = 0; c < 10; ++c) {
            const QString indice = modele->index(4, c).data(Qt::ToolTipRole).toString();
            QCOMPARE(indice.isEmpty(), c != Num);
        }
        auto* couples = o.trouver<VueTableau>("AdvStringGrid5");
        QVERIFY(couples->model()->columnCount() == 8 && couples->model()->rowCount() == 56);
        QVERIFY(!couples->isVisible());
    }

    /// In a narrow window the two fixed columns stay and work like the others.
    void colonnesFigees() {
        PageOuverte o(GenreStats::Numeros);
        const QSignalSpy historiques(o.page.get(), &Page::historiqueDemande);
        auto* figees = o.trouver<QTableView>("ColonnesFigees");
        QVERIFY(!figees->isVisible());
        o.page->resize(700, 400);
        o.table->setCurrentIndex(o.table->model()->index(30, SMax));
        o.table->scrollTo(o.table->currentIndex());
        QVERIFY(o.table->horizontalScrollBar()->value() > 0);
        QVERIFY(figees->isVisible());
        const QModelIndex cellule = o.table->model()->index(30, Num);
        QCOMPARE(figees->visualRect(cellule).top(), o.table->visualRect(cellule).top());
        PageOuverte::doubleCliquer(figees, cellule);
        QCOMPARE(historiques.size(), 1);
        QCOMPARE(historiques.last().at(1).toInt(), 31);
        const QPoint titre(figees->horizontalHeader()->sectionViewportPosition(Num) + 10, 10);
        QTest::mouseClick(figees->horizontalHeader()->viewport(), Qt::LeftButton, {}, titre);
        QCOMPARE(o.texte(0, Num), u"49"_s);
        // The current cell never hides behind them.
        o.table->setFocus();
        for (int k = 0; k < 6; ++k) QTest::keyClick(o.table, Qt::Key_Left);
        const QModelIndex actuelle = o.table->currentIndex();
        QVERIFY(!figees->isVisible() || o.table->visualRect(actuelle).left() >= figees->width());
    }

    /// Both files against the whole table, taken from the rows themselves in their sorted order.
    void fichiersSauves() {
        PageOuverte o(GenreStats::Chances);
        o.inf->setValue(3000);
        o.cliquerEntete(E);
        auto lignes = RemplirStats(GenreStats::Chances, o.banc.atelier.base,
                                   o.banc.atelier.occurrences, 2999, 3213);
        std::stable_sort(lignes.begin(), lignes.end(), [](const auto& a, const auto& b) {
            return a.resultat.Ecart < b.resultat.Ecart;
        });
        TableauExporte attendu{
            {"Statistiques sur les chances"},
            {"Pos", "Chance", "NbS", "Ratio", "Date", "E", "EM", "Ecart max", "S", "Suite max"},
            {true, true, true, true, false, true, true, true, true, true},
            {}};
        for (const QString& l : o.libelle().split(u'\n')) attendu.titre.push_back(l.toStdString());
        for (auto& ligne : lignes) {
            auto& cellules = ligne.cellules;
            cellules[0] = std::to_string(attendu.lignes.size() + 1);
            attendu.lignes.emplace_back(cellules.begin(), cellules.end());
        }
        auto& fichiers = *o.banc.scripts.fichiers;
        fichiers.filtre = u"Format CSV (*.csv)"_s;
        fichiers.reponse = versQt(o.banc.chemin("essai").string());
        o.cliquer("BitBtnWithColor17");
        QCOMPARE(o.banc.lire("essai.csv"), EnCsv(attendu));
        fichiers.filtre = u"Format Texte (*.txt)"_s;
        o.cliquer("BitBtnWithColor17");
        const std::string texte = EnTexte(attendu);
        QCOMPARE(o.banc.lire("essai.txt"), texte);

        // A name that the appended extension turns into an existing file is asked about.
        QVERIFY(o.posees().isEmpty());
        o.banc.scripts.messages->reponses = {CodeBouton2};
        o.inf->setValue(1);
        o.cliquer("BitBtnWithColor17");
        QCOMPARE(o.posees().size(), 1);
        QCOMPARE(o.banc.lire("essai.txt"), texte);

        fichiers.reponse = versQt(o.banc.chemin("absent/essai.txt").string());
        o.cliquer("BitBtnWithColor17");
        QCOMPARE(o.posees().size(), 2);
        QCOMPARE(o.posees().last().icone, IconeMessage::Erreur);
        QVERIFY(o.posees().last().instruction.size() > 20);
    }

    void pdfImprime() {
        PageOuverte o(GenreStats::Numeros);
        const QString pdf = o.banc.dossier.filePath(u"stats.pdf"_s);
        o.banc.scripts.imprimantes->pdf = pdf;
        o.cliquer("BitBtnWithColor6");
        QVERIFY(o.posees().isEmpty() && QFileInfo(pdf).size() > 5000);
        if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty()) QSKIP("pdftotext is missing");
        QProcess lecture;
        lecture.start(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s});
        QVERIFY(lecture.waitForFinished());
        const QStringList pages =
            QString::fromUtf8(lecture.readAllStandardOutput()).split(u'\f', Qt::SkipEmptyParts);
        QVERIFY(pages.size() >= 1 && pages.size() <= 2);
        QString tout;
        int numero = 0;
        for (const QString& page : pages) {
            QVERIFY(page.contains(u"Ecart max"_s));
            QVERIFY(page.contains(u"Page %1 / %2"_s.arg(++numero).arg(pages.size())));
            tout += page.simplified();
        }
        for (int l = 0; l < 49; ++l) QVERIFY(tout.contains(o.texte(l, EMax).simplified()));
        QVERIFY(tout.contains(u"Statistiques sur 3214 tirages"_s));

        o.banc.scripts.imprimantes->pdf = o.banc.dossier.filePath(u"absent/stats.pdf"_s);
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
        o.cliquer("BitBtnWithColor6");
        QCOMPARE(o.posees().size(), 1);
        QCOMPARE(o.posees().last().icone, IconeMessage::Erreur);
    }

    void refusePendantUnTravail() {
        PageOuverte o(GenreStats::Numeros);
        o.banc.atelier.TraitementsEnCours = 1;
        o.banc.scripts.fichiers->reponse = o.banc.dossier.filePath(u"a.txt"_s);
        o.banc.scripts.imprimantes->pdf = o.banc.dossier.filePath(u"a.pdf"_s);
        o.cliquer("BitBtnWithColor7");
        o.cliquer("BitBtnWithColor6");
        QCOMPARE(o.posees().size(), 2);
        QCOMPARE(o.posees().at(1).instruction, u"Attendez la fin du traitement en cours..."_s);
        QVERIFY(!o.banc.existe("a.txt") && !o.banc.existe("a.pdf"));
    }

    void baseTropPetiteEtRetour() {
        Base base = QuatreTirages();
        for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
            for (const int n : {0, 1}) {
                base.NbTirages = n;
                PageOuverte o(genre, &base);
                o.page->surBaseChangee();
                o.cliquer(genre == GenreStats::Numeros ? "RatioNumerosSimple"
                                                       : "RatioEtoilesSimple");
                QCOMPARE(o.table->model()->rowCount(), 0);
                QTest::keyClick(o.table, Qt::Key_Return);
                o.banc.atelier.base.NbTirages = 4;
                o.banc.atelier.recalculer();
                o.page->surBaseChangee();
                QVERIFY(o.dansLOrdre());
                QCOMPARE(o.sup->value(), 4);
            }
        }
    }
};

QTEST_MAIN(TestStats)
#include "test_stats.moc"
