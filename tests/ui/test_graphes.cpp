// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Graphes": its two charts as scenes and as pictures, its controls, the hand on a chart.

#include <algorithm>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QXmlStreamReader>

#include "BasesEssai.h"
#include "graphes/PageGraphes.h"
#include "graphes/VueGraphe.h"
#include "graphs/TexteElement.h"
#include "soutien/Banc.h"
#include "widgets/Bulle.h"
#include "widgets/SpinTirage.h"

using namespace norvane::ui::essais;

namespace {

struct GraphesOuverts {
    Banc banc;
    std::unique_ptr<PageGraphes> page;
    VueGraphe* stats;
    VueGraphe* pointage;

    explicit GraphesOuverts(const Base* base = nullptr) : banc(base) {
        page = std::make_unique<PageGraphes>(banc.contexte, nullptr);
        stats = de<VueGraphe>("Chart1");
        pointage = de<VueGraphe>("Chart2");
        QObject::connect(&banc.relais, &Relais::change, page.get(), &Page::surChange);
        page->resize(1366, 620);
        page->show();
        page->activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(page.get()));
    }
    template <typename T>
    T* de(const char* nom) const {
        T* trouve = page->findChild<T*>(QString::fromUtf8(nom));
        if (trouve == nullptr) qFatal("%s", nom);
        return trouve;
    }
    void cliquer(const char* nom) const { de<QAbstractButton>(nom)->click(); }
    void choisir(const char* combo, int item) const { de<QComboBox>(combo)->setCurrentIndex(item); }
    QString texte(const char* nom) const { return de<QLabel>(nom)->text(); }
    bool actif(const char* nom) const { return de<QWidget>(nom)->isEnabled(); }
    static QPoint place(const VueGraphe* vue, std::size_t point) {
        return vue->repere().placer(vue->scene().points[point]).toPoint();
    }
    static void glisser(VueGraphe* vue, Qt::MouseButton bouton, const QPoint& de, const QPoint& a) {
        QTest::mousePress(vue, bouton, {}, de);
        QTest::mouseMove(vue, (de + a) / 2);
        QTest::mouseMove(vue, a);
        QTest::mouseRelease(vue, bouton, {}, a);
    }
    static void molette(VueGraphe* vue, const QPoint& place, int angle,
                        Qt::KeyboardModifiers touches = {}) {
        QWheelEvent cran(place, vue->mapToGlobal(place), {}, {0, angle}, Qt::NoButton, touches,
                         Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(vue, &cran);
    }
    static QColor pixel(VueGraphe* vue, const QPointF& place) {
        return vue->grab().toImage().pixelColor(place.toPoint());
    }
};

constexpr Etendue Tout{0.5, 59.5};

}  // namespace

class TestGraphes final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void intervalleTriEtTitre() {
        GraphesOuverts o;
        auto* inf = o.de<SpinTirage>("RxSpinEditGraphe0");
        auto* sup = o.de<SpinTirage>("RxSpinEditGraphe");
        QCOMPARE(inf->value(), 3185);
        QCOMPARE(sup->value(), 3214);
        inf->setValue(3300);  // the nearest limit, and the other bound stays at it
        QCOMPARE(o.stats->scene().titre,
                 u"Graphe de Statistiques (sur 1 tirage, le mercredi 24 juillet 2024)"_s);
        sup->setValue(3000);
        QCOMPARE(inf->value(), 3000);
        inf->setValue(2500);
        TableGraphe table = CalculerTable(o.banc.atelier.occurrences, 2500, 3000);
        for (int tri = NbTrisGraphe; tri-- > 0;) {
            o.choisir("ComboBox2", tri);
            TrierTable(table, static_cast<TriGraphe>(tri));
            const auto attendus = PointsStatistiques(table, o.banc.atelier.base.Tirages[2999]);
            QVERIFY(std::ranges::equal(o.stats->scene().points, attendus));
        }
        QCOMPARE(o.stats->scene().titre,
                 versQt(TitreStatistiques(o.banc.atelier.base, 2500, 3000)));
        QCOMPARE(o.stats->scene().attendus->numero.moyenne, 501 * 5 / 49.0);
        o.cliquer("CheckBoxAttendus");
        QVERIFY(!o.stats->scene().attendus);
    }

    void pages() {
        GraphesOuverts o;
        auto* parPage = o.de<QSlider>("ScrollBarPointsPerPage");
        const auto etat = [&] {
            return u"%1/%2 %3-%4 %5%6%7%8"_s
                .arg(o.texte("LabelNumPage"), o.texte("LabelTotalPages"))
                .arg(o.stats->scene().x.de + 0.5)
                .arg(o.stats->scene().x.a - 0.5)
                .arg(o.actif("BFirstPage"))
                .arg(o.actif("ButtonPrevious"))
                .arg(o.actif("ButtonNext"))
                .arg(o.actif("BLastPage"));
        };
        QCOMPARE(etat(), u"1/1 1-59 0000"_s);
        parPage->setValue(10);
        QCOMPARE(etat(), u"1/6 1-10 0011"_s);
        o.cliquer("ButtonNext");
        QCOMPARE(etat(), u"2/6 11-20 1111"_s);
        o.stats->zoomer(0.5);
        o.cliquer("ButtonResetZoom");
        QCOMPARE(etat(), u"2/6 11-20 1111"_s);
        o.cliquer("BLastPage");
        QCOMPARE(etat(), u"6/6 51-59 1100"_s);
        o.cliquer("ButtonPrevious");
        QCOMPARE(etat(), u"5/6 41-50 1111"_s);
        o.cliquer("BFirstPage");
        QCOMPARE(etat(), u"1/6 1-10 0011"_s);
        o.cliquer("BLastPage");
        parPage->setValue(1);
        QCOMPARE(etat(), u"1/59 1-1 0011"_s);
        o.cliquer("BLastPage");
        QCOMPARE(etat(), u"59/59 59-59 1100"_s);
        // The visible ranges are no pages; the other chart keeps its own.
        o.cliquer("AdvGlowButton6");
        QCOMPARE(etat(), u"1/1 1-49 0000"_s);
        o.cliquer("BitBtn2");
        QVERIFY(o.stats->scene().x.longueur() < 49);
        o.cliquer("ButtonResetZoom");
        QCOMPARE(etat(), u"1/1 1-49 0000"_s);
        o.cliquer("AdvGlowButton7");
        QCOMPARE(etat(), u"1/1 50-59 0000"_s);
        QCOMPARE(o.pointage->scene().x, Tout);
        o.cliquer("AdvGlowButton5");
        QCOMPARE(etat(), u"1/1 1-59 0000"_s);
    }

    void animation() {
        std::mt19937 hasard(3);
        const Base base = BaseAleatoire(hasard, 12, 20);
        GraphesOuverts o(&base);
        auto* garde = o.de<QTimer>("Timer3");
        auto* sup = o.de<SpinTirage>("RxSpinEditGraphe");
        const char* verrouilles[] = {"RxSpinEditGraphe0", "RxSpinEditGraphe", "ComboBoxGraphe",
                                     "CheckBox3"};
        const auto libres = [&] {
            return std::ranges::count_if(verrouilles,
                                         [&](const char* nom) { return o.actif(nom); });
        };
        o.de<SpinTirage>("RxSpinEditGraphe0")->setValue(5);
        o.cliquer("CheckBox3");
        o.cliquer("CheckBox2");
        QVERIFY(garde->isActive() && libres() == 0 && o.actif("CheckBox2"));
        QCOMPARE(o.stats->scene().titre, versQt(TitreStatistiques(base, 5, 5)));
        o.cliquer("CheckBox2");  // cleared on the way: free at once, where it stands
        QVERIFY(!garde->isActive() && libres() == 4);
        QCOMPARE(sup->value(), 5);
        o.cliquer("CheckBox3");
        sup->setValue(8);
        o.cliquer("CheckBox2");  // without Init it goes on from there
        QCOMPARE(o.stats->scene().titre, versQt(TitreStatistiques(base, 5, 8)));
        garde->setInterval(1);
        QTRY_VERIFY(!garde->isActive());
        QVERIFY(libres() == 4 && !o.de<QCheckBox>("CheckBox2")->isChecked());
        QCOMPARE(sup->value(), 12);
        QCOMPARE(o.stats->scene().titre, versQt(TitreStatistiques(base, 5, 12)));
        o.cliquer("CheckBox2");
        o.banc.relais.annoncer({.base = true});  // a new base ends it
        QVERIFY(!garde->isActive() && libres() == 4);
        QCOMPARE(o.de<SpinTirage>("RxSpinEditGraphe0")->value(), 1);
    }

    /// 3D and labels are each chart's own; what is not of "Pointage" hides there.
    void passageEntreLesGraphes() {
        GraphesOuverts o;
        const auto visibles = [&](std::initializer_list<const char*> noms) {
            return std::ranges::count_if(
                noms, [&](const char* nom) { return o.de<QWidget>(nom)->isVisible(); });
        };
        const auto propres = {"Chart1",          "CheckBox2",      "ComboBox2",
                              "CheckBoxMarques", "ColorComboBox2", "ColorComboBox3"};
        const auto autres = {"Chart2", "CheckBox4", "ColorComboBox1", "ColorComboBox4",
                             "ColorComboBox5"};
        QVERIFY(visibles(propres) == 6 && visibles(autres) == 0);
        o.cliquer("CheckBox1");
        o.cliquer("CheckBoxMarques");
        o.cliquer("CheckBoxLibelles");
        o.choisir("ComboBoxGraphe", 1);
        QVERIFY(visibles(propres) == 0 && visibles(autres) == 5);
        const auto coche = [&](const char* nom) { return o.de<QCheckBox>(nom)->isChecked(); };
        QVERIFY(!coche("CheckBox1") && !coche("CheckBox4") && !coche("CheckBoxLibelles"));
        QVERIFY(!o.actif("ScrollBar3"));
        o.cliquer("CheckBox4");
        QVERIFY(o.pointage->scene().etiquettes && !o.pointage->scene().valeurs);
        o.choisir("ComboBoxGraphe", 0);
        QVERIFY(coche("CheckBox1") && !coche("CheckBoxMarques") && coche("CheckBoxLibelles"));
        QVERIFY(o.stats->scene().vue3d && !o.stats->scene().etiquettes && o.stats->scene().valeurs);
        o.de<QSlider>("ScrollBar1")->setValue(80);
        o.de<QSlider>("ScrollBar3")->setValue(-30);
        o.de<QSlider>("ScrollBar4")->setValue(40);
        QCOMPARE(*o.stats->scene().vue3d, (Vue3D{80, -30, 40}));
        GraphesOuverts::glisser(o.stats, Qt::LeftButton, {300, 200}, {350, 225});
        QCOMPARE(*o.stats->scene().vue3d, (Vue3D{80, -50, 50}));
        QCOMPARE(o.de<QSlider>("ScrollBar3")->value(), -50);
    }

    void bulleDUnPoint() {
        GraphesOuverts o;
        auto* bulle = o.stats->findChild<Bulle*>();
        const auto attendue = [&](const Element& e, int inf, int sup) {
            return versQt(
                TexteElement(e, StatsElement(o.banc.atelier.occurrences, e, inf, sup), sup));
        };
        const auto lue = [&] {
            return bulle->accessibleName() + u'\n' + bulle->accessibleDescription();
        };
        QTest::mouseClick(o.stats, Qt::LeftButton, {}, GraphesOuverts::place(o.stats, 20));
        QVERIFY(bulle->isVisible());
        QCOMPARE(lue(), attendue({GenreStats::Numeros, 21}, 3185, 3214));
        // It stays with its number when the interval changes, and goes with it.
        o.de<SpinTirage>("RxSpinEditGraphe0")->setValue(3000);
        QCOMPARE(lue(), attendue({GenreStats::Numeros, 21}, 3000, 3214));
        o.cliquer("AdvGlowButton7");
        QVERIFY(!bulle->isVisible());
        // By the keyboard, from the first visible point on.
        o.stats->setFocus();
        QTest::keyClick(o.stats, Qt::Key_Right);
        QTest::keyClick(o.stats, Qt::Key_Right);
        QTest::keyClick(o.stats, Qt::Key_Return);
        QCOMPARE(lue(), attendue({GenreStats::Chances, 2}, 3000, 3214));
        QTest::keyClick(o.stats, Qt::Key_Escape);
        QVERIFY(!bulle->isVisible());
        // A low chart takes the short form.
        o.stats->setFixedHeight(170);
        QCoreApplication::processEvents();
        QTest::mouseClick(o.stats, Qt::LeftButton, {}, GraphesOuverts::place(o.stats, 52));
        const Element chance{GenreStats::Chances, 4};
        QCOMPARE(lue(),
                 versQt(TexteElementCourt(
                     chance, StatsElement(o.banc.atelier.occurrences, chance, 3000, 3214), 3214)));
        QVERIFY(o.stats->indice(o.stats->scene().points[48]).startsWith(u"Numéro 49 : "));
    }

    void zoomEtDefilement() {
        GraphesOuverts o;
        o.choisir("ComboBoxGraphe", 1);
        VueGraphe* vue = o.pointage;
        const auto scene = [&] { return vue->scene(); };
        const Etendue ouverture{3184.5, 3214.5};
        QCOMPARE(scene().y, ouverture);
        // The wheel keeps what lies under the pointer.
        const QPoint ici(300, 200);
        const double x = vue->repere().xSous(ici), y = vue->repere().ySous(ici);
        GraphesOuverts::molette(vue, ici, 240);
        QVERIFY(scene().x.longueur() < 50 && scene().y.longueur() < 25);
        QVERIFY(std::abs(vue->repere().xSous(ici) - x) < 1e-6);
        QVERIFY(std::abs(vue->repere().ySous(ici) - y) < 1e-6);
        // The data follow the hand.
        GraphesOuverts::glisser(vue, Qt::LeftButton, ici, {360, 240});
        QVERIFY(std::abs(vue->repere().xSous({360, 240}) - x) < 1e-6);
        QVERIFY(std::abs(vue->repere().ySous({360, 240}) - y) < 1e-6);
        o.cliquer("ButtonResetZoom");
        QCOMPARE(scene().y, ouverture);
        QCOMPARE(scene().x, Tout);
        // A frame becomes the window.
        const QPointF coin = vue->repere().placer(10, 3210), autre = vue->repere().placer(30, 3200);
        GraphesOuverts::glisser(vue, Qt::RightButton, coin.toPoint(), autre.toPoint());
        QVERIFY(std::abs(scene().x.de - 10) < 0.1 && std::abs(scene().x.a - 30) < 0.1);
        QVERIFY(std::abs(scene().y.de - 3200) < 0.1 && std::abs(scene().y.a - 3210) < 0.1);
        vue->setFocus();
        QTest::keyClick(vue, Qt::Key_Home);
        QCOMPARE(scene().y, ouverture);
        // Keys, wheel and bar scroll alike, down to the first draw and no further.
        QTest::keyClick(vue, Qt::Key_PageDown);
        QCOMPARE(scene().y, (Etendue{3154.5, 3184.5}));
        GraphesOuverts::molette(vue, ici, 120, Qt::ShiftModifier);
        QCOMPARE(scene().y, (Etendue{3157.5, 3187.5}));
        auto* barre = o.de<QScrollBar>("Chart2DefilementHauteurs");
        barre->setValue(barre->maximum());
        QCOMPARE(scene().y, (Etendue{0, 30}));
        QVERIFY(
            scene().titre.startsWith(u"Graphe de Pointage (tirages 1 à 30, du lundi 6 octobre"));
        // Out to every draw: nothing but the visible points is in a scene.
        QCOMPARE(scene().points.back().valeur, 30);
        for (int i = 0; i < 30; ++i) QTest::keyClick(vue, Qt::Key_Minus);
        QCOMPARE(scene().points.size(),
                 static_cast<std::size_t>(PointsPointage(o.banc.atelier.base, {}).size()));
        QTest::mouseDClick(vue, Qt::LeftButton, {}, {vue->width() - 3, 3});
        QCOMPARE(scene().y, ouverture);
    }

    /// The selection colours "Pointage", in the colours chosen, and a point of the picture shows
    /// it.
    void couleursEtImage() {
        GraphesOuverts o;
        const auto centre = [&](VueGraphe* vue, int place, int valeur) {
            return GraphesOuverts::pixel(vue, vue->repere().placer(place, valeur));
        };
        const auto couleur = [&](const char* combo) {
            return o.de<QComboBox>(combo)->currentData().value<QColor>();
        };
        o.cliquer("CheckBoxMarques");
        const PointGraphe sorti = o.stats->scene().points[14];  // 15 was in the last draw
        QCOMPARE(sorti.teinte, Teinte::Sorti);
        QCOMPARE(centre(o.stats, 15, sorti.valeur), couleur("ColorComboBox3"));
        o.choisir("ColorComboBox3", 4);
        QCOMPARE(centre(o.stats, 15, sorti.valeur), couleur("ColorComboBox3"));
        QCOMPARE(centre(o.stats, 1, o.stats->scene().points[0].valeur), couleur("ColorComboBox2"));
        // Off its page a point is not painted, and the band ends with its switch.
        const QPointF bande =
            o.stats->repere().placer(20.5, o.stats->scene().attendus->numero.moyenne + 0.5);
        const QColor avec = GraphesOuverts::pixel(o.stats, bande);
        o.cliquer("CheckBoxAttendus");
        QVERIFY(GraphesOuverts::pixel(o.stats, bande) != avec);

        o.choisir("ComboBoxGraphe", 1);
        auto& grille = o.banc.atelier.grilleSelection;
        grille[12] = Priorite::Absolue;  // draw 3214 holds 13, 15, 19
        grille[14] = Priorite::Secondaire;
        QCOMPARE(centre(o.pointage, 13, 3214), couleur("ColorComboBox4"));
        o.banc.relais.annoncer({.listes = true});
        QCOMPARE(centre(o.pointage, 13, 3214), couleur("ColorComboBox1"));
        QCOMPARE(centre(o.pointage, 15, 3214), couleur("ColorComboBox5"));
        QCOMPARE(centre(o.pointage, 19, 3214), couleur("ColorComboBox4"));
        // All 19 000 points at once are still painted, each in its column.
        for (int i = 0; i < 30; ++i) o.pointage->zoomer(1.3);
        QCOMPARE(centre(o.pointage, 13, 3214), couleur("ColorComboBox1"));
    }

    void sorties() {
        GraphesOuverts o;
        auto& fichiers = *o.banc.scripts.fichiers;
        fichiers.reponse = versQt(o.banc.chemin("graphe").string());
        o.cliquer("BoutonEnregistrerGraphe");
        const QImage image(fichiers.reponse + u".png"_s);
        QCOMPARE(image.size(), o.stats->size() * 2);
        const QPoint point = GraphesOuverts::place(o.stats, 0) * 2;
        QCOMPARE(image.pixelColor(point),
                 o.de<QComboBox>("ColorComboBox2")->currentData().value<QColor>());
        fichiers.filtre = u"Dessin SVG (*.svg)"_s;
        o.cliquer("BoutonEnregistrerGraphe");
        const std::string dessin = o.banc.lire("graphe.svg");
        QXmlStreamReader xml(QString::fromStdString(dessin));
        while (!xml.atEnd()) xml.readNext();
        QVERIFY(!xml.hasError());
        QVERIFY(dessin.find(o.stats->scene().titre.toStdString()) != std::string::npos);
        o.banc.scripts.messages->reponses = {CodeBouton2};  // not over another one
        fichiers.dabord = {fichiers.reponse, QString()};
        o.choisir("ComboBox2", 1);
        o.cliquer("BoutonEnregistrerGraphe");
        QCOMPARE(o.banc.lire("graphe.svg"), dessin);

        o.cliquer("BoutonCopierGraphe");
        QCOMPARE(QGuiApplication::clipboard()->image().size(), o.stats->size() * 2);
        o.banc.scripts.imprimantes->pdf = o.banc.dossier.filePath(u"graphe.pdf"_s);
        o.cliquer("BitBtn1");
        QVERIFY(o.banc.lire("graphe.pdf").starts_with("%PDF"));
        QCOMPARE(o.banc.scripts.messages->posees.size(), 1);
    }

    /// Bases too small to show, and back.
    void petitesBases() {
        Base base = QuatreTirages();
        for (const int n : {0, 1}) {
            base.NbTirages = n;
            GraphesOuverts o(&base);
            o.choisir("ComboBoxGraphe", 1);
            QCOMPARE(o.page->isEnabled(), n == 1);
            QVERIFY(!o.pointage->grab().isNull());
            o.banc.atelier.base.NbTirages = 4;
            o.banc.recalculer();
            o.banc.relais.annoncer({.base = true});
            QVERIFY(o.page->isEnabled());
            QCOMPARE(o.pointage->scene().y, (Etendue{0, 4.5}));
            QCOMPARE(o.pointage->scene().points.size(), std::size_t{22});
            QCOMPARE(o.de<SpinTirage>("RxSpinEditGraphe")->value(), 4);
        }
    }
};

QTEST_MAIN(TestGraphes)
#include "test_graphes.moc"
