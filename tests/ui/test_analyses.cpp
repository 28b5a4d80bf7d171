// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Analyses N": its report, the links, the looks, the search, the files and the paper.

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProcess>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

#include "analyses/PageAnalyses.h"
#include "analyses/VueRapport.h"
#include "reports/Analyses.h"
#include "reports/DocumentExport.h"
#include "soutien/Banc.h"
#include "widgets/SpinTirage.h"

using namespace norvane::ui::essais;

namespace {

struct PageOuverte {
    Banc banc;
    std::unique_ptr<PageAnalyses> page = std::make_unique<PageAnalyses>(banc.contexte);
    VueRapport* vue = de<VueRapport>("RichView1");
    QString dit;  ///< the last text for the status bar

    PageOuverte() {
        QObject::connect(&banc.relais, &Relais::texteEtat, page.get(),
                         [this](const QString& texte) { dit = texte; });
        page->resize(1366, 680);
        page->show();
        page->activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(page.get()));
        attendre();
    }
    template <typename T>
    T* de(const char* nom) const {
        auto* trouve = page->findChild<T*>(QString::fromUtf8(nom));
        if (trouve == nullptr) qFatal("%s", nom);
        return trouve;
    }
    void cliquer(const char* nom) const { de<QAbstractButton>(nom)->click(); }
    /// Until the report of the bounds on show stands.
    void attendre() const {
        QTRY_VERIFY(!banc.atelier.activite.occupe());
        QCOMPARE(texte(), attendu());
    }
    Document rapport() const {
        const auto [inf, sup] = banc.atelier.Analyses;
        return RedigerAnalyses(banc.atelier.base.enUsage(), inf - 1, sup - 1);
    }
    QString attendu() const {
        QStringList lignes;
        for (const Bloc& bloc : rapport().blocs) lignes << versQt(bloc.texte());
        return lignes.join(u'\n');
    }
    QString texte() const { return vue->toPlainText().remove(QChar::ObjectReplacementCharacter); }
    void intervalle(int inf, int sup) const {
        de<SpinTirage>("RxSpinEditStats32")->setValue(sup);
        de<SpinTirage>("RxSpinEditStats3")->setValue(inf);
        attendre();
    }
    int haut() const { return vue->verticalScrollBar()->value(); }
    int place(int bloc) const {
        const auto* texte = vue->document();
        return qRound(
            texte->documentLayout()->blockBoundingRect(texte->findBlockByNumber(bloc)).top());
    }
    /// The document block at the upper edge.
    int lu() const { return vue->cursorForPosition(QPoint(1, 1)).blockNumber(); }
    QColor couleur(int bloc) const {
        return vue->document()
            ->findBlockByNumber(bloc)
            .begin()
            .fragment()
            .charFormat()
            .foreground()
            .color();
    }
    /// The ground, as painted.
    QColor fond() const { return vue->viewport()->grab().toImage().pixelColor(1, 1); }
    /// What the dialog of the pages is to do when it opens.
    void dansLaBoite(const std::function<void(QDialog&)>& faire) const {
        QTimer::singleShot(0, page.get(), [faire] {
            auto* boite = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (boite == nullptr) qFatal("no dialog");
            faire(*boite);
        });
    }
};

}  // namespace

class TestAnalyses final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    /// Each link by number in the three shapes: the view goes to its anchor, or to the top.
    void liensSuivis() {
        const PageOuverte o;
        for (const auto& [inf, sup] : {std::pair{3, 3}, std::pair{5, 14}, std::pair{100, 3214}}) {
            o.intervalle(inf, sup);
            const Document rapport = o.rapport();
            const int nombre = static_cast<int>(rapport.liens.size());
            for (int lien = 0; lien < nombre; ++lien) {
                o.vue->suivre(lien);
                const int bloc = rapport.blocDuLien(lien);
                QCOMPARE(
                    o.haut(),
                    bloc == 0 ? 0 : std::min(o.place(bloc), o.vue->verticalScrollBar()->maximum()));
            }
            o.vue->suivre(5);
            const int avant = o.haut();
            for (const int lien : {nombre, -1}) o.vue->suivre(lien);
            QCOMPARE(o.haut(), avant);
        }
    }

    /// Over a link and on it, through the toolkit's own signals.
    void survolEtClic() {
        PageOuverte o;
        Q_EMIT o.vue->highlighted(QUrl(u"lien:7"_s));
        QCOMPARE(o.dit, u"Analyse des dizaines"_s);
        Q_EMIT o.vue->highlighted(QUrl());  // off it: the text stays
        QCOMPARE(o.dit, u"Analyse des dizaines"_s);
        Q_EMIT o.vue->highlighted(QUrl(u"lien:4"_s));
        QCOMPARE(o.dit, u"Statistiques sur 3214 tirages"_s);
        // A real click, on the eighth line of the contents.
        const QTextBlock ligne = o.vue->document()->findBlockByNumber(6 + 7);
        QTextCursor curseur(ligne);
        curseur.setPosition(ligne.position() + 12);
        o.vue->verticalScrollBar()->setValue(0);
        QTest::mouseClick(o.vue->viewport(), Qt::LeftButton, {},
                          o.vue->cursorRect(curseur).center());
        const Document rapport = o.rapport();
        QCOMPARE(o.haut(), o.place(rapport.blocDuLien(7)));
    }

    /// While the bounds turn, the last one wins and the reader stays at the same heading.
    void dernierDemande() {
        const PageOuverte o;
        o.vue->suivre(10 + 2);  // case 3
        const int place = o.lu();
        const int titre = o.rapport().blocDuLien(12);
        o.vue->verticalScrollBar()->setValue(o.haut() + o.place(place + 4) - o.place(place));
        auto* sup = o.de<SpinTirage>("RxSpinEditStats32");
        for (int tirage = 3200; tirage > 2000; tirage -= 7) sup->setValue(tirage);
        QVERIFY(o.banc.atelier.activite.occupe());
        o.attendre();
        const int nouveau = o.rapport().blocDuLien(12);
        QVERIFY(nouveau != titre);
        QCOMPARE(o.lu(), nouveau + 4);
        // A report without that heading starts at its top.
        o.vue->suivre(3);
        QVERIFY(o.haut() > 0);
        o.intervalle(1, 8);
        QCOMPARE(o.haut(), 0);
    }

    /// A report asked for during other work, or on a hidden page, is made afterwards.
    void apresLeTraitementEnCours() {
        PageOuverte o;
        std::atomic<bool> fini = false;
        QVERIFY(o.banc.travaux.lancer(FaireTravail({GenreTravail::Bilan},
                                                   [&fini](const Suivi&) -> Resultat<Rien> {
                                                       fini.wait(false);
                                                       return Rien{};
                                                   }),
                                      {}, o.page.get(), {}));
        const QString avant = o.texte();
        o.de<SpinTirage>("RxSpinEditStats32")->setValue(20);
        QVERIFY(o.de<QLabel>("IntervalleAnalyses")->text().endsWith(u"en cours..."_s));
        o.cliquer("BitBtnWithColor3");
        QCOMPARE(o.banc.scripts.messages->posees.size(), 1);
        QCOMPARE(o.texte(), avant);
        fini = true;
        fini.notify_all();
        QTRY_VERIFY(o.texte() != avant);
        o.attendre();
        QVERIFY(!o.de<QLabel>("IntervalleAnalyses")->text().endsWith(u"en cours..."_s));
        o.page->hide();
        o.banc.atelier.base.NbTirages = 40;
        o.banc.recalculer();
        o.page->surChange({.base = true});
        QVERIFY(!o.banc.atelier.activite.occupe());
        o.page->show();
        o.attendre();
        QCOMPARE(o.banc.atelier.Analyses, (IntervalleStats{1, 40}));
    }

    /// Both looks and back: the same text at the same place in the same colours.
    void apparences() {
        const PageOuverte o;
        o.vue->suivre(20);
        const int haut = o.haut();
        const QString texte = o.texte();
        const QColor titre(0x000080);
        QCOMPARE(o.fond(), QColor(Qt::white));
        QVERIFY(o.de<QRadioButton>("RadioButtonStyle2")->isChecked());
        o.cliquer("RadioButtonStyle1");
        QCOMPARE(o.couleur(4), QColor(Qt::yellow));
        QCOMPARE(o.fond(), QColor(Qt::black));
        QCOMPARE(o.haut(), haut);
        o.cliquer("CheckBox5");
        const QImage ornee = o.vue->viewport()->grab().toImage();
        o.cliquer("CheckBox5");
        QVERIFY(ornee != o.vue->viewport()->grab().toImage());
        o.cliquer("RadioButtonStyle2");
        QCOMPARE(o.couleur(4), titre);
        QCOMPARE(o.fond(), QColor(Qt::white));
        QVERIFY(o.haut() == haut && o.texte() == texte);
    }

    void recherche() {
        const PageOuverte o;
        auto* champ = o.de<QLineEdit>("ChampRecherche");
        auto* compte = o.de<QLabel>("CompteRecherche");
        QTest::keyClick(o.page.get(), Qt::Key_F, Qt::ControlModifier);
        QVERIFY(champ->isVisible() && champ->hasFocus());
        const auto nombre = o.texte().count(u"Numéros en commun"_s, Qt::CaseInsensitive);
        QTest::keyClicks(champ, u"numeros EN commun"_s);
        QCOMPARE(compte->text(), u"1 sur %1"_s.arg(nombre));
        const auto choisi = [&] {
            QTextCursor curseur = o.vue->textCursor();
            curseur.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, 17);
            return curseur.selectedText().toLower();
        };
        QCOMPARE(choisi(), u"numéros en commun"_s);
        const int premiere = o.vue->textCursor().position();
        QTest::keyClick(champ, Qt::Key_Return, Qt::ShiftModifier);  // round to the last one
        QCOMPARE(compte->text(), u"%1 sur %1"_s.arg(nombre));
        QVERIFY(o.vue->textCursor().position() > premiere && choisi() == u"numéros en commun"_s);
        QTest::keyClick(champ, Qt::Key_F3);
        QCOMPARE(o.vue->textCursor().position(), premiere);
        // Another report: found anew, the reader left where he is.
        o.intervalle(1, 2);
        QCOMPARE(compte->text(),
                 QString::number(o.texte().count(u"Numéros en commun"_s, Qt::CaseInsensitive)));
        champ->setText(u"introuvable"_s);
        QCOMPARE(compte->text(), u"Introuvable"_s);
        QVERIFY(!o.de<QAbstractButton>("RechercheSuivante")->isEnabled());
        QTest::keyClick(champ, Qt::Key_Escape);
        QVERIFY(!champ->isVisible() && o.vue->extraSelections().isEmpty());
    }

    void menuDuMot() {
        const PageOuverte o;
        const QPoint mot = o.vue->cursorRect(QTextCursor(o.vue->document())).center();
        QContextMenuEvent clic(QContextMenuEvent::Mouse, mot, o.vue->mapToGlobal(mot));
        QApplication::sendEvent(o.vue->viewport(), &clic);
        auto* menu = o.de<QMenu>("PopupMenu2");
        QVERIFY(menu->isVisible());
        QCOMPARE(menu->actions().first()->text(), u"ANALYSES"_s);
        QVERIFY(!menu->actions().first()->isEnabled());
        o.de<QAction>("ToutSelectionner")->trigger();
        QCOMPARE(o.vue->textCursor().selectedText().size(), o.vue->toPlainText().size());
        menu->close();
    }

    void fichiersSauves() {
        PageOuverte o;
        o.cliquer("RadioButtonStyle1");
        auto& fichiers = *o.banc.scripts.fichiers;
        const auto& posees = o.banc.scripts.messages->posees;
        fichiers.reponse = versQt(o.banc.chemin("essai").string());
        o.cliquer("BitBtnWithColor3");
        QVERIFY(fichiers.propose.endsWith(u"/Analyses.txt"_s));
        QCOMPARE(o.banc.lire("essai.txt"), EnTexte(o.rapport()));
        QVERIFY(o.de<QRadioButton>("RadioButtonStyle2")->isChecked());
        QCOMPARE(o.couleur(4), QColor(0x000080));
        o.cliquer("RadioButtonStyle1");
        o.cliquer("BitBtnWithColor2");
        QVERIFY(fichiers.propose.endsWith(u"/Analyses.html"_s));
        QCOMPARE(o.banc.lire("essai.html"),
                 EnHtml(o.rapport(), JeuStyles::RVStyle1, PlaceImages::Fichiers));
        QVERIFY(o.banc.existe("varoimg1.svg") && posees.isEmpty());
        // An older file stays unless it may go; where nothing can be written, that is said.
        o.intervalle(1, 2);
        const std::string avant = o.banc.lire("essai.txt");
        o.banc.scripts.messages->reponses = {CodeBouton2};
        fichiers.dabord = {fichiers.reponse, QString()};
        o.cliquer("BitBtnWithColor3");
        QVERIFY(posees.size() == 1 && o.banc.lire("essai.txt") == avant);
        fichiers.reponse = versQt(o.banc.chemin("absent/essai.html").string());
        o.cliquer("RadioButtonStyle1");
        o.cliquer("BitBtnWithColor2");
        QCOMPARE(posees.size(), 2);
        QCOMPARE(posees.last().icone, IconeMessage::Erreur);
        QVERIFY(o.de<QRadioButton>("RadioButtonStyle1")->isChecked());
    }

    /// The bounds of the pages hold each other, and a range of one page prints one page.
    void pagesImprimees() {
        PageOuverte o;
        const QString pdf = o.banc.dossier.filePath(u"analyses.pdf"_s);
        o.banc.scripts.imprimantes->pdf = pdf;
        int total = 0;
        o.dansLaBoite([&total, &o](QDialog& boite) {
            QCOMPARE(boite.windowTitle(), u"Imprimer les Analyses"_s);
            const auto champ = [&](const char* nom) {
                return boite.findChild<QSpinBox*>(QString::fromUtf8(nom));
            };
            total = champ("ImprimerA")->value();
            QCOMPARE(o.dit, u"Pagination... (page %1)"_s.arg(total));
            QCOMPARE(boite.findChild<QLabel*>(u"NombrePages"_s)->text(),
                     u"sur %1 pages"_s.arg(total));
            champ("ImprimerDe")->setValue(7);
            champ("ImprimerA")->setValue(3);
            QCOMPARE(champ("ImprimerDe")->value(), 3);
            champ("ImprimerDe")->setValue(4);
            QCOMPARE(champ("ImprimerA")->value(), 4);
            // The preview follows its button and nothing else.
            auto* apercu = boite.findChild<QWidget*>(u"ApercuPage"_s);
            const QImage premiere = apercu->grab().toImage();
            champ("ChoixPage")->setValue(total + 5);
            QCOMPARE(champ("ChoixPage")->value(), total);
            QVERIFY(apercu->grab().toImage() == premiere);
            boite.findChild<QAbstractButton*>(u"BoutonApercu"_s)->click();
            QVERIFY(apercu->grab().toImage() != premiere);
            boite.accept();
        });
        o.cliquer("BitBtnWithColor5");
        QVERIFY(total > 10);
        QVERIFY(o.dit.startsWith(u"Impression terminée"_s));
        o.dansLaBoite([](QDialog& boite) { boite.accept(); });
        o.banc.scripts.imprimantes->pdf = o.banc.dossier.filePath(u"tout.pdf"_s);
        o.cliquer("BitBtnWithColor5");
        o.dansLaBoite([](QDialog& boite) { boite.reject(); });
        o.banc.scripts.imprimantes->pdf = o.banc.dossier.filePath(u"rien.pdf"_s);
        o.cliquer("BitBtnWithColor5");
        QVERIFY(!o.banc.existe("rien.pdf"));

        if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty()) QSKIP("pdftotext is missing");
        const auto lire = [](const QString& fichier) {
            QProcess lecture;
            lecture.start(u"pdftotext"_s, {u"-layout"_s, fichier, u"-"_s});
            if (!lecture.waitForFinished()) qFatal("pdftotext");
            return QString::fromUtf8(lecture.readAllStandardOutput());
        };
        const QString une = lire(pdf);
        QCOMPARE(une.count(QChar::FormFeed), 1);
        QVERIFY(une.contains(u"Page 4 / %1"_s.arg(total)));
        const QString tout = lire(o.banc.dossier.filePath(u"tout.pdf"_s));
        QCOMPARE(tout.count(QChar::FormFeed), total);
        // Letters drawn as one are two all the same.
        const QString lu = tout.normalized(QString::NormalizationForm_KC).simplified();
        for (const Bloc& bloc : o.rapport().blocs) {
            const QString ligne = versQt(bloc.texte()).simplified();
            // Longer ones run over two lines; boxes come out of the reader in pieces.
            if (ligne.size() < 70 && !ligne.contains(u'│') && !ligne.contains(u'─')) {
                QVERIFY2(lu.contains(ligne), qPrintable(ligne));
            }
        }
    }
};

QTEST_MAIN(TestAnalyses)
#include "test_analyses.moc"
