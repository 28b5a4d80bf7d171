// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Impression sur bulletins", by its controls; what it prints, measured on the PDF.

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QTest>

#include "slips/Marques.h"
#include "soutien/Banc.h"
#include "tickets/FichiersGrilles.h"

using namespace norvane::ui::essais;

namespace {

constexpr int Finesse = 600;  // pixels an inch
constexpr double MmParPixel = 25.4 / Finesse;

/// Thirteen grids: two full slips and one more; the eighth with the option.
std::vector<Grille> treize() {
    std::vector<Grille> grilles(13, FaireGrille({1, 5, 10, 44, 49}, {6}, false));
    grilles[7] = FaireGrille({2, 3, 4, 5, 6, 7}, {1, 10}, true);
    return grilles;
}

/// Bounding boxes of what is dark on a page, in millimetres, from top to bottom.
QList<QRectF> taches(const QString& pdf, int page) {
    const QString image = pdf + u"-page"_s;
    QProcess outil;
    outil.start(u"pdftocairo"_s,
                {u"-png"_s, u"-gray"_s, u"-singlefile"_s, u"-r"_s, QString::number(Finesse),
                 u"-f"_s, QString::number(page), u"-l"_s, QString::number(page), pdf, image});
    if (!outil.waitForFinished() || outil.exitCode() != 0) return {};
    QImage lue = QImage(image + u".png"_s).convertToFormat(QImage::Format_Grayscale8);
    QList<QRectF> trouvees;
    std::vector<QPoint> pile;
    for (int y = 0; y < lue.height(); ++y)
        for (int x = 0; x < lue.width(); ++x) {
            QRect boite;
            pile.assign(1, {x, y});
            while (!pile.empty()) {
                const QPoint p = pile.back();
                pile.pop_back();
                if (!lue.rect().contains(p) || lue.constScanLine(p.y())[p.x()] > 127) continue;
                lue.scanLine(p.y())[p.x()] = 255;
                boite |= QRect(p, QSize(1, 1));
                for (const QPoint pas : {QPoint(1, 0), {-1, 0}, {0, 1}, {0, -1}})
                    pile.push_back(p + pas);
            }
            if (!boite.isNull())
                trouvees << QRectF(boite.x() * MmParPixel, boite.y() * MmParPixel,
                                   boite.width() * MmParPixel, boite.height() * MmParPixel);
        }
    return trouvees;
}

int nombrePages(const QString& pdf) {
    QProcess outil;
    outil.start(u"pdfinfo"_s, {pdf});
    if (!outil.waitForFinished()) return -1;
    for (const QByteArray& ligne : outil.readAllStandardOutput().split('\n'))
        if (ligne.startsWith("Pages:")) return ligne.mid(6).trimmed().toInt();
    return -1;
}

struct EssaiImpression : FormeOuverte {
    Atelier& a = banc.atelier;
    QLineEdit* numero = de<QLineEdit>("Edit23");
    QPushButton* imprimer = de<QPushButton>("BitBtnWithColor18");
    const QString pdf = banc.dossier.filePath(u"b.pdf"_s);

    explicit EssaiImpression(const std::vector<Grille>& grilles = treize()) {
        QTest::keyClick(forme.get(), Qt::Key_9, Qt::ControlModifier);
        a.saisie.CopierversBulletins(grilles);
        annoncer();
        banc.scripts.imprimantes->pdf = pdf;
    }
    void annoncer() const { forme->findChild<Relais*>()->annoncer({.tickets = true}); }
    QString texte(const char* nom) const {
        return de<QLabel>(nom)->text().replace(QChar(0xA0), u' ');
    }
    QString dernier() const { return posees.isEmpty() ? QString() : posees.last().instruction; }
    QListWidgetItem* item(const char* liste, int i) const {
        return de<QListWidget>(liste)->item(i);
    }
    void cocher(const char* liste, int i, bool oui = true) const {
        item(liste, i)->setCheckState(oui ? Qt::Checked : Qt::Unchecked);
    }
    QString coches(const char* liste) const {
        QString lus;
        for (int i = 0; i < de<QListWidget>(liste)->count(); ++i)
            if (item(liste, i)->checkState() == Qt::Checked) lus += QString::number(i);
        return lus;
    }
    void decaler(double haut, double gauche) const {
        de<QDoubleSpinBox>("RxSpinEditDecalageHaut")->setValue(haut);
        de<QDoubleSpinBox>("RxSpinEditDecalageGauche")->setValue(gauche);
    }
    void finir() const { QTRY_VERIFY_WITH_TIMEOUT(!a.activite.occupe(), 60000); }
    void lancer(const char* bouton = "BitBtnWithColor18") const {
        de(bouton)->click();
        finir();
    }
    /// What differs between the marks of a page and those of a slip, empty when nothing does.
    QString ecart(int page, int bulletin) const {
        const Reglages& r = a.configuration.reglages;
        const MiseEnPlace mise{GeometrieIntegree, a.bulletins.marque, r.DecalageImprimanteBordHaut,
                               r.DecalageImprimanteBordGauche};
        const auto marques = MarquesBulletin(mise, a.billets.ListeGrilles,
                                             a.bulletins.options.de(bulletin), bulletin);
        QList<QRectF> lues = taches(pdf, page);
        if (lues.size() != std::ssize(marques))
            return u"%1 marques au lieu de %2"_s.arg(lues.size()).arg(marques.size());
        for (const CaseBulletin& m : marques) {
            const QRectF voulue(m.place.x, m.place.y, m.cote, m.cote);
            const auto pres = [](QPointF p, QPointF q) {
                return std::abs(p.x() - q.x()) < 0.1 && std::abs(p.y() - q.y()) < 0.1;
            };
            if (lues.removeIf([&](const QRectF& lue) {
                    return pres(lue.topLeft(), voulue.topLeft()) &&
                           pres(lue.bottomRight(), voulue.bottomRight());
                }) != 1)
                return versQt(LibelleCase(m.bloc, m.valeur));
        }
        return {};
    }
};

}  // namespace

class TestImpression : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void sansGrilles() {
        const EssaiImpression e(std::vector<Grille>{});
        QCOMPARE(e.texte("LabelNombreBulletins"), u"aucune grille : pas de bulletin"_s);
        QCOMPARE(e.texte("LabelPrixTotal"), u"Total : 0,00 €"_s);
        QVERIFY(!e.de("Button79")->isEnabled());
        e.lancer();
        QCOMPARE(e.dernier(), u"Aucun bulletin à imprimer..."_s);
        QVERIFY(!e.banc.existe("b.pdf"));
    }

    void choixDuBulletin() {
        const EssaiImpression e;
        QCOMPARE(e.texte("LabelNombreBulletins"), u"sur 3"_s);
        QCOMPARE(e.texte("LabelPrixTotal"), u"Total : 57,60 €"_s);
        QCOMPARE(e.texte("LabelPrixBulletin"), u"13,20 €"_s);
        e.numero->setText(u"9"_s);
        QCOMPARE(e.numero->text(), u"3"_s);
        QCOMPARE(e.de<QWidget>("ImageGrille1")->accessibleDescription(),
                 u"Numéros 1 5 10 44 49, chances 6"_s);
        QCOMPARE(e.de<QWidget>("ImageGrille2")->accessibleDescription(),
                 u"Pas de grille à cette place"_s);
        QVERIFY(!e.de<QWidget>("RxCheckListBox2ND2")->isEnabled());
        QCOMPARE(e.texte("LabelPrixGrille2"), QString());
        e.numero->setText(u"0"_s);
        QCOMPARE(e.a.bulletins.bulletin, 1);
        QTest::keyClick(e.numero, Qt::Key_End);
        QCOMPARE(e.a.bulletins.bulletin, 3);
        e.numero->setText({});
        QCOMPARE(e.a.bulletins.bulletin, 1);
        QCOMPARE(e.numero->text(), QString());
        QTest::keyClicks(e.numero, u"2"_s);
        QCOMPARE(e.a.bulletins.bulletin, 2);
        QCOMPARE(e.coches("RxCheckListBox2ND1") + u'|' + e.coches("RxCheckListBox2ND2"), u"|0"_s);
        // Fewer grids: the slip on show is the last one.
        e.a.saisie.supprimerTout();
        e.annoncer();
        QCOMPARE(e.numero->text(), u"1"_s);
    }

    void options() {
        const EssaiImpression e;
        e.cocher("RxCheckListBox2", 3);
        e.cocher("RxCheckListBox2", 1);
        QCOMPARE(e.coches("RxCheckListBox2"), u"1"_s);
        e.cocher("RxCheckListBox4", 2);
        QCOMPARE(e.dernier(), u"Cochez d'abord 1€ ou 2€..."_s);
        QCOMPARE(e.coches("RxCheckListBox4"), QString());
        e.cocher("RxCheckListBox4", 0);
        e.cocher("RxCheckListBox4", 1);
        QCOMPARE(e.coches("RxCheckListBox4"), u"1"_s);
        e.cocher("RxCheckListBox4", 2);
        QCOMPARE(e.coches("RxCheckListBox4"), u"12"_s);
        e.cocher("RxCheckListBox5", 0);
        e.de("CheckBoxSamedi")->click();
        const OptionsBulletin voulues{3, 3, 0, -1, -1, 1};
        QCOMPARE(e.a.bulletins.options.de(1), voulues);
        e.de("Button72")->click();
        QCOMPARE(e.a.bulletins.options.de(3), OptionsBulletin{3});
        e.de("Button79")->click();
        QCOMPARE(e.a.bulletins.options.bulletins, std::vector(3, voulues));
        QVERIFY(!ParticipeAu2ndTirage(e.a.billets.ListeChoix[7]));
        // 28.60 + 11 x 2.20 + 3 x 5, 3 weeks: (26.4 + 12 x 2.2 + 15) x 3.
        QCOMPARE(e.texte("LabelPrixTotal"), u"Total : 203,40 €"_s);
        e.de("CheckBoxSamedi")->click();
        e.cocher("RxCheckListBox2", 1, false);
        e.cocher("RxCheckListBox4", 1, false);
        QCOMPARE(e.a.bulletins.options.de(1), (OptionsBulletin{-1, -1, 0, -1, -1, -1}));
    }

    void secondTirage() {
        const EssaiImpression e;
        QVERIFY(!e.banc.atelier.saisie.enSelection());
        e.a.billets.aSauver = false;
        e.cocher("RxCheckListBox2ND6", 0);
        QCOMPARE(e.texte("LabelPrixGrille6"), u"3,00 €"_s);
        QCOMPARE(e.texte("LabelPrixBulletin"), u"14,00 €"_s);
        QCOMPARE(e.a.billets.ListeGrilles[5].mise, 3.0);
        QCOMPARE(e.a.billets.ListeChoix[5].mise, 3.0);
        QCOMPARE(e.a.billets.ListeChoix[4].mise, 2.2);
        QVERIFY(e.a.billets.aSauver);
        e.cocher("RxCheckListBox2ND6", 0, false);
        QCOMPARE(e.a.billets.ListeChoix[5].mise, 2.2);
        // An entry of grids goes first.
        e.a.saisie.terminer();
        e.a.saisie.commencer(false);
        e.annoncer();
        QCOMPARE(e.texte("LabelNombreBulletins"), u"sur 3"_s);
        e.cocher("RxCheckListBox2ND1", 0);
        QVERIFY(e.dernier().startsWith(u"Terminez le Mode Sélection"_s));
        QCOMPARE(e.coches("RxCheckListBox2ND1"), QString());
        QCOMPARE(e.a.billets.ListeGrilles[0].mise, 2.2);
    }

    void bulletinsAImprimer() {
        const EssaiImpression e;
        e.numero->setText(u"2"_s);
        e.de("RadioButton9")->click();
        QCOMPARE(e.texte("LabelPrixTotal"), u"Total : 42,20 €"_s);
        e.lancer();
        QCOMPARE(nombrePages(e.pdf), 1);
        QCOMPARE(e.ecart(1, 2), QString());
        e.de<QSpinBox>("RxSpinEdit2")->setValue(9);
        e.de<QSpinBox>("RxSpinEdit1")->setValue(2);
        QVERIFY(e.de("RadioButton10")->isChecked());
        QCOMPARE(e.a.bulletins.aImprimer(3), (PlageBulletins{2, 3}));
        e.de<QSpinBox>("RxSpinEdit2")->setValue(1);
        e.lancer();
        QCOMPARE(e.dernier(), u"Aucun bulletin à imprimer..."_s);
        e.de("RadioButton8")->click();
        e.lancer();
        QCOMPARE(nombrePages(e.pdf), 3);
        QCOMPARE(e.ecart(3, 3), QString());
    }

    void marquesMesurees() {
        const EssaiImpression e;
        for (const char* joker : {"RxCheckListBox4", "RxCheckListBox5"}) e.cocher(joker, 1);
        e.cocher("RxCheckListBox4", 2);
        e.cocher("RxCheckListBox2", 3);
        e.de("CheckBoxLundi")->click();
        e.de("Button79")->click();
        for (int taille = 1; taille <= MarqueMax; ++taille) {
            e.de("RadioMarque%d", taille)->click();
            for (const auto& [haut, gauche] : {std::pair{0.0, 0.0}, {1.35, -0.75}}) {
                e.decaler(haut, gauche);
                e.lancer();
                QVERIFY2(e.ecart(2, 2).isEmpty(), qPrintable(e.ecart(2, 2)));
            }
        }
        // The drawn slip stays where it is under its marks.
        e.de("CheckBoxEpreuve")->click();
        e.lancer();
        QVERIFY(taches(e.pdf, 1).size() > 373);
    }

    void decalages() {
        const EssaiImpression e;
        e.decaler(-2.5, 0.25);
        QCOMPARE(e.a.configuration.reglages.DecalageImprimanteBordHaut, -2.5);
        QVERIFY(!e.banc.existe("NORVANE.INI"));
        e.de("ButtonSauverParams")->click();
        const Reglages lus = Configuration(e.banc.chemin("NORVANE.INI")).reglages;
        QCOMPARE(lus.DecalageImprimanteBordHaut, -2.5);
        QCOMPARE(lus.DecalageImprimanteBordGauche, 0.25);
        // Marks beyond the paper are named, and nothing is printed without a yes.
        e.decaler(0, -30);
        e.banc.scripts.messages->reponses = {CodeBouton2};
        e.lancer();
        QVERIFY2(e.dernier().contains(u"bulletin 1, grille 1, numéro 1"_s),
                 qPrintable(e.dernier()));
        QVERIFY(!e.banc.existe("b.pdf"));
        e.lancer();
        QVERIFY(e.banc.existe("b.pdf"));
        // A geometry that cannot serve: the built-in one does, and the user is told.
        e.decaler(0, 0);
        e.banc.ecrire("bulletin.ini", "[PAPIER]\nlargeur=0\n");
        e.lancer();
        QVERIFY(e.dernier().contains(u"La géométrie intégrée est employée"_s));
        QCOMPARE(e.ecart(1, 1), QString());
        std::filesystem::remove(e.banc.chemin("bulletin.ini"));
        e.lancer("BoutonCalibrage");
        const auto regle = [&](double x) {
            return std::ranges::any_of(taches(e.pdf, 1), [x](const QRectF& tache) {
                return tache.width() < 30 && tache.left() < x && tache.right() > x;
            });
        };
        QVERIFY(regle(12));
    }

    void arretPuisTous() {
        const EssaiImpression e(std::vector(9999, FaireGrille({1, 2, 3, 4, 5}, {1}, false)));
        QCOMPARE(e.texte("LabelNombreBulletins").replace(QChar(0x202F), u' '), u"sur 1 667"_s);
        e.imprimer->click();
        QCOMPARE(e.imprimer->text(), u"STOP"_s);
        e.imprimer->click();
        e.finir();
        QVERIFY(!e.banc.existe("b.pdf"));
        QCOMPARE(e.imprimer->text(), u"&IMPRIMER\r\nBULLETIN(S)"_s);
        e.lancer();
        QCOMPARE(nombrePages(e.pdf), 1667);
        QCOMPARE(e.ecart(1667, 1667), QString());
    }

    void optionsDUneExecutionALAutre() {
        const EssaiImpression e;
        e.cocher("RxCheckListBox2", 0);
        e.banc.scripts.fichiers->reponse = e.banc.dossier.filePath(u"g.grl"_s);
        e.de("ButtonSauverGrilles")->click();
        QCOMPARE(e.banc.lire("g.bul"), std::string("1\n2 -1 -1 -1 -1 -1\n"));
        e.cocher("RxCheckListBox5", 0);
        QCOMPARE(e.banc.lire("g.bul"), std::string("1\n2 -1 0 -1 -1 -1\n"));
        QVERIFY(EnregistrerGrilles(treize(), e.banc.chemin("autre.grl")));
        const auto ouvrir = [&](const QString& nom) {
            e.banc.scripts.fichiers->reponse = e.banc.dossier.filePath(nom);
            e.de("ChargerGrilles")->click();
        };
        ouvrir(u"autre.grl"_s);
        QCOMPARE(e.coches("RxCheckListBox2"), QString());
        QVERIFY(!e.banc.existe("autre.bul"));
        ouvrir(u"g.grl"_s);
        QCOMPARE(e.coches("RxCheckListBox2") + e.coches("RxCheckListBox5"), u"00"_s);
        // What cannot be read is told of, and not written over.
        e.banc.ecrire("autre.bul", "deux\n");
        ouvrir(u"autre.grl"_s);
        QVERIFY2(e.dernier().contains(u"autre.bul"_s), qPrintable(e.dernier()));
        e.cocher("RxCheckListBox2", 1);
        QCOMPARE(e.banc.lire("autre.bul"), std::string("deux\n"));
        // The safety copy takes them along.
        e.a.billets.aSauver = true;
        e.forme->close();
        QCOMPARE(LireOptions(e.a.Repertoire / DossierGrilles / "Grlbak.bul")->de(1).Semaines, 3);
    }
};

QTEST_MAIN(TestImpression)
#include "test_impression.moc"
