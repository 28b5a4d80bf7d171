// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The field for dates: typed, stepped, picked in its calendar. Message boxes.

#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include "common/Messages.h"
#include "common/Theme.h"
#include "soutien/EssaisQt.h"
#include "widgets/ChampDate.h"

using namespace norvane;
using namespace norvane::ui;
using namespace norvane::ui::essais;
using namespace Qt::StringLiterals;

namespace {

/// The field on 24 July 2024, from the first draw to 1 August 2024, beside another control.
struct Champ {
    QWidget fenetre;
    ChampDate* champ = new ChampDate(u"Essai"_s, &fenetre);
    QLineEdit* voisin = new QLineEdit(&fenetre);
    QSignalSpy choisies{champ, &ChampDate::dateChange};
    QSignalSpy validees{champ, &QLineEdit::returnPressed};

    Champ() {
        auto* ligne = new QHBoxLayout(&fenetre);
        for (QWidget* w : {static_cast<QWidget*>(champ), static_cast<QWidget*>(champ->mots()),
                           static_cast<QWidget*>(voisin)})
            ligne->addWidget(w);
        champ->poserLimites(19760519, 20240801);
        champ->poser(20240724);
        fenetre.show();
        fenetre.activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&fenetre));
        champ->viser();
    }
    void taper(const QString& texte) const { QTest::keyClicks(champ, texte); }
};

}  // namespace

class TestChamps final : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void saisie_data() {
        QTest::addColumn<QString>("frappe");
        QTest::addColumn<int>("date");  // once the field is left; 0: refused
        QTest::addColumn<QString>("mots");
        const QString lundi = u"lundi 22 juillet 2024"_s;
        for (const char* frappe :
             {"22/07/2024", "22072024", "22/7/2024", "22.7.24", "22-07", "22/7", "22", "22 juil",
              "22 JUILLET 2024", "lundi 22 juillet 2024"})
            QTest::newRow(frappe) << QString::fromUtf8(frappe) << 20240722 << lundi;
        QTest::newRow("siècle") << u"3/1/76"_s << 0 << u"au plus tôt le 19/05/1976"_s;
        QTest::newRow("première") << u"19/05/1976"_s << 19760519 << u"mercredi 19 mai 1976"_s;
        QTest::newRow("dernière") << u"1/8"_s << 20240801 << u"jeudi 1 août 2024"_s;
        QTest::newRow("demain") << u"2/8/2024"_s << 0 << u"au plus tard le 01/08/2024"_s;
        QTest::newRow("accent") << u"29 fev 2024"_s << 20240229 << u"jeudi 29 février 2024"_s;
        for (const char* frappe : {"31/02/2024", "22 jui", "22/7/202", "22/0", "0/7", "1/2/3/4",
                                   "32/1/2024", "mardi", "22 xyz 2024"})
            QTest::newRow(frappe) << QString::fromUtf8(frappe) << 0 << u"date à corriger"_s;
    }

    /// Over the whole text, and over the parts from the day on.
    void saisie() {
        QFETCH(QString, frappe);
        QFETCH(int, date);
        QFETCH(QString, mots);
        for (const bool tout : {true, false}) {
            if (!tout && !frappe.at(0).isDigit()) continue;
            Champ c;
            if (tout) c.champ->selectAll();
            c.taper(frappe);
            QCOMPARE(c.champ->mots()->text(), mots);
            QCOMPARE(c.champ->valable(), date != 0);
            QTest::keyClick(c.champ, Qt::Key_Return);
            QCOMPARE(c.validees.size(), date != 0 ? 1 : 0);
            QCOMPARE(c.champ->hasSelectedText(), date == 0);
            c.voisin->setFocus();
            if (date == 0) {
                QVERIFY(c.champ->text() != u"24/07/2024"_s && !c.champ->valable());
                c.champ->poser(20240724);
                QCOMPARE(c.champ->text(), u"24/07/2024"_s);
                continue;
            }
            QCOMPARE(c.champ->date(), date);
            QCOMPARE(
                c.champ->text(),
                QDate::fromString(QString::number(date), u"yyyyMMdd"_s).toString(u"dd/MM/yyyy"_s));
            QCOMPARE(c.choisies.last().at(0).toInt(), date);
        }
    }

    /// A whole date counts at the last figure; a part that makes one too.
    void effetImmediat() {
        Champ c;
        c.champ->selectAll();
        c.taper(u"22/07/202"_s);
        QVERIFY(c.choisies.isEmpty());
        c.taper(u"49"_s);  // there is no room for a fifth figure
        QVERIFY(c.choisies.size() == 1 && c.champ->date() == 20240722);
        c.champ->viser();
        QCOMPARE(c.champ->selectedText(), u"22"_s);
        c.taper(u"170"_s);
        QCOMPARE(c.champ->date(), 20240717);
        QCOMPARE(c.champ->text(), u"17/0/2024"_s);
        c.taper(u"6"_s);
        QCOMPARE(c.champ->date(), 20240617);
        c.champ->poser(20240617);  // as the owner does: whoever types is not disturbed
        QCOMPARE(c.champ->cursorPosition(), 5);
        QVERIFY(c.choisies.size() == 4 && c.validees.isEmpty());
        QTest::keyClick(c.champ, Qt::Key_Return);
        c.taper(u"22/07/2024"_s);  // behind a date that stands, another one begins
        QCOMPARE(c.champ->date(), 20240722);
    }

    void pas() {
        Champ c;
        const struct {
            Qt::Key touche;
            int date;
            QString choisi;
        } pas[] = {{Qt::Key_Up, 20240725, u"25"_s},   {Qt::Key_PageDown, 20240625, u"06"_s},
                   {Qt::Key_Down, 20240525, u"05"_s}, {Qt::Key_Slash, 20240525, u"05"_s},
                   {Qt::Key_End, 20240525, u""_s},    {Qt::Key_Down, 20230525, u"2023"_s},
                   {Qt::Key_Up, 20240525, u"2024"_s}, {Qt::Key_Up, 20240801, u"2024"_s}};
        for (const auto& [touche, date, choisi] : pas) {
            QTest::keyClick(c.champ, touche);
            QCOMPARE(c.champ->date(), date);
            QCOMPARE(c.champ->selectedText(), choisi);
        }
        c.voisin->setFocus();
        QTest::mouseClick(c.champ, Qt::LeftButton, {}, QPoint(10, c.champ->height() / 2));
        QCOMPARE(c.champ->selectedText(), u"01/08/2024"_s);
        QTest::mouseClick(c.champ, Qt::LeftButton, {}, QPoint(10, c.champ->height() / 2));
        QCOMPARE(c.champ->selectedText(), u"01"_s);
    }

    void calendrier() {
        Champ c;
        c.champ->poserMarques([](int date) { return date % 7 == 0; });
        for (const Apparence apparence : {Apparence::Claire, Apparence::Sombre}) {
            appliquerTheme(*qApp, apparence);
            QTest::keyClick(c.champ, Qt::Key_F4);
            auto* cadre = c.champ->findChild<QFrame*>(u"EssaiCalendrier"_s);
            auto* jours = cadre->findChild<QCalendarWidget*>();
            QCoreApplication::processEvents();
            QVERIFY(cadre->isVisible() && jours->minimumDate() == QDate(1976, 5, 19));
            for (const int jour : {3, 4}) {
                const QTextCharFormat format = jours->dateTextFormat(QDate(2024, 7, jour));
                const bool marque = (20240700 + jour) % 7 == 0;
                QCOMPARE(format.fontWeight() == QFont::Bold, marque);
                if (!marque) continue;
                QCOMPARE(format.foreground().color(), teintes(QApplication::palette()).accent);
            }
            QTest::keyClick(jours->findChild<QTableView*>(), Qt::Key_Left);
            QTest::keyClick(jours->findChild<QTableView*>(), Qt::Key_Return);
            QTRY_VERIFY(c.champ->findChild<QFrame*>(u"EssaiCalendrier"_s) == nullptr);
        }
        QCOMPARE(c.champ->text(), u"22/07/2024"_s);
        QCOMPARE(c.choisies.size(), 2);
    }

    /// The real message box: what is asked, and the code of each way to answer.
    void boiteDeMessage() {
        MessagesEcran messages;
        const auto repondre = [&messages](auto geste) {
            QTimer::singleShot(0, qApp, [geste] {
                auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (boite == nullptr) qFatal("no message box");
                geste(*boite);
            });
            return messages.QuestionOuiNonAnnuler(u"instruction"_s, u"titre"_s, u"détail"_s);
        };
        const QStringList boutons{u"Oui"_s, u"Non"_s, u"Annuler"_s};
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(repondre([texte = boutons.at(i)](QMessageBox& boite) {
                         const QString textes = boite.text() + boite.informativeText();
                         QCOMPARE(textes, u"instructiondétail"_s);
                         QCOMPARE(boite.icon(), QMessageBox::Question);
                         QCOMPARE(boite.defaultButton()->text(), u"Oui"_s);
                         for (auto* bouton : boite.buttons())
                             if (bouton->text() == texte) bouton->click();
                     }),
                     CodeBouton1 + i);
        }
        QCOMPARE(repondre([](QMessageBox& boite) { QTest::keyClick(&boite, Qt::Key_Escape); }),
                 CodeFerme);
    }
};

QTEST_MAIN(TestChamps)
#include "test_champs.moc"
