// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The update of the base, from a server of this machine and from files.

#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>

#include "base/Archive.h"
#include "base/Jackpot.h"
#include "base/Stockage.h"
#include "soutien/Banc.h"

using namespace norvane::ui::essais;

namespace {

const QByteArray Titre =
    "annee_numero_de_tirage;jour_de_tirage;date_de_tirage;date_de_forclusion;boule_1;boule_2;"
    "boule_3;boule_4;boule_5;numero_chance;nombre_de_gagnant_au_rang1;rapport_du_rang1;"
    "nombre_de_gagnant_au_rang2;rapport_du_rang2;nombre_de_gagnant_au_rang3;rapport_du_rang3;"
    "nombre_de_gagnant_au_rang4;rapport_du_rang4;nombre_de_gagnant_au_rang5;rapport_du_rang5;"
    "nombre_de_gagnant_au_rang6;rapport_du_rang6;numero_jokerplus\r\n";
const QByteArray Nouveau = "20244090;SAMEDI;27/07/2024;26/09/2024;9;7;5;3;1;2;" +
                           QByteArray("0;0;").repeated(6) + "1 234 567\r\n";
const QByteArray Mauvais =
    "20244091;LUNDI;29/07/2024;;9;9;5;3;1;2;" + QByteArray("0;0;").repeated(6) + "1234567\r\n";

QByteArray zip(const char* nom, const QByteArray& contenu) {
    const MembreArchive membre{nom, contenu.toStdString()};
    return QByteArray::fromStdString(*FaireArchive(std::span(&membre, 1)));
}

/// Answers each path with bytes of its own, head included.
class Serveur : public QTcpServer {
 public:
    std::map<QByteArray, QByteArray> reponses;

    Serveur() {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* prise = nextPendingConnection();
            connect(prise, &QTcpSocket::readyRead, prise, [this, prise] {
                const auto mots = prise->readAll().split(' ');
                const auto reponse = reponses.find(mots.value(1));
                if (reponse == reponses.end()) return;  // never answers
                prise->write(reponse->second);
                prise->disconnectFromHost();
            });
        });
    }
    std::string adresse(const char* chemin) const {
        return u"http://127.0.0.1:%1%2"_s.arg(serverPort())
            .arg(QString::fromLatin1(chemin))
            .toStdString();
    }
    static QByteArray http(const QByteArray& statut, const QByteArray& corps,
                           qint64 longueur = -1) {
        return "HTTP/1.1 " + statut +
               "\r\nContent-Length: " + QByteArray::number(longueur < 0 ? corps.size() : longueur) +
               "\r\nConnection: close\r\n\r\n" + corps;
    }
};

struct EssaiMiseAJour : FormeOuverte {
    Atelier& a = banc.atelier;
    Base avant = a.base;
    QSignalSpy etats{forme->findChild<Relais*>(), &Relais::texteEtat};

    void finir() const { QTRY_VERIFY_WITH_TIMEOUT(!a.activite.occupe(), 20000); }
    void telecharger(const std::string& adresse) const {
        a.configuration.reglages.Archive = adresse;
        de("Majweb")->click();
        finir();
    }
    bool intacte() const {
        return std::ranges::equal(a.base.enUsage(), avant.enUsage()) && !a.Relance &&
               forme->isVisible();
    }
    QString textes() const {
        QString tous;
        for (const auto& etat : etats) tous += etat[0].toString() + u'\n';
        return tous;
    }
    QString dit() const {
        QString tous;
        for (const auto& m : posees) tous += m.instruction + u'|' + m.detail + u'\n';
        return tous;
    }
};

}  // namespace

class TestMiseAJour : public EssaisQt {
    Q_OBJECT

 private Q_SLOTS:
    void archivesRefusees() {
        const EssaiMiseAJour e;
        Serveur serveur;
        const QByteArray bonne = Titre + Nouveau;
        serveur.reponses = {
            {"/coupe", Serveur::http("200 OK", bonne.left(200), bonne.size())},
            {"/absente", Serveur::http("404 Not Found", "rien")},
            {"/panne", Serveur::http("500 Internal Server Error", "rien")},
            {"/page", Serveur::http("200 OK", "<html>bientôt</html>")},
            {"/autre", Serveur::http("200 OK", zip("photo.txt", "autre chose"))},
            {"/enorme", Serveur::http("200 OK", "\0\0\0\0", qint64{200} << 20)},
            {"/tour", "HTTP/1.1 302 Found\r\nLocation: /tour\r\nContent-Length: 0\r\n\r\n"}};
        const struct {
            const char* chemin;
            const char16_t* etat;
            const char16_t* message;
        } cas[] = {{"/coupe", u"Get Failed : le serveur a coupé avant la fin", u""},
                   {"/absente", u"Get Failed : le serveur a répondu 404", u""},
                   {"/panne", u"Get Failed : le serveur a répondu 500", u""},
                   {"/page", u"Connecté", u"n'est pas l'archive officielle"},
                   {"/autre", u"Connecté", u"n'est pas l'archive officielle"},
                   {"/enorme", u"Get Failed : le fichier est trop grand", u""},
                   {"/tour", u"Get Failed", u""}};
        for (const auto& c : cas) {
            e.telecharger(serveur.adresse(c.chemin));
            if (!e.textes().contains(QString::fromUtf16(c.etat)))
                QFAIL(qPrintable(QString::fromLatin1(c.chemin) + u' ' + e.textes()));
            if (!e.dit().contains(QString::fromUtf16(c.message))) QFAIL(qPrintable(e.dit()));
            QVERIFY(e.intacte());
        }
        QVERIFY(e.textes().startsWith(u"Connexion en cours..."_s));
        e.telecharger("http://127.0.0.1:1/fermé");
        QVERIFY(e.dit().contains(u"La connexion a échoué"_s));
        for (const char* adresse : {"", "ftp://exemple.fr/a.zip", "http://inconnu.invalid/a.zip"}) {
            e.telecharger(adresse);
            QVERIFY(e.posees.last().instruction == u"Adresse invalide"_s);
            QVERIFY(e.posees.last().detail == u"Choisissez une autre adresse"_s);
        }
        QVERIFY(e.intacte() && !e.banc.existe("norvane.db"));
    }

    void arretEtDelai() {
        const EssaiMiseAJour e;
        const Serveur muet;
        e.a.configuration.reglages.Archive = muet.adresse("/attente");
        auto* bouton = e.de("Majweb");
        bouton->click();
        QVERIFY(e.a.activite.occupe());
        QCOMPARE(bouton->text(), u"STOP"_s);
        int battements = 0;
        QTimer coeur;
        connect(&coeur, &QTimer::timeout, &coeur, [&] { ++battements; });
        coeur.start(5);
        QTRY_VERIFY(battements > 5);  // the window stays alive
        bouton->click();
        e.finir();
        QCOMPARE(bouton->text(), u"&Internet"_s);
        QVERIFY(e.textes().contains(u"Mise à jour arrêtée : rien n'est changé."_s));
        e.a.configuration.reglages.DelaiSecondes = 1;
        e.telecharger(muet.adresse("/attente"));
        QVERIFY(e.textes().contains(u"le serveur ne répond plus"_s));
        QVERIFY(e.intacte());
    }

    void unTirageDePlus() {
        for (const bool redirige : {false, true}) {
            const EssaiMiseAJour e;
            Serveur serveur;
            const QByteArray archive = zip("loto.csv", Titre + Mauvais + Nouveau);
            serveur.reponses = {
                {"/loto.zip", Serveur::http("200 OK", archive)},
                {"/ancienne",
                 "HTTP/1.1 301 Moved\r\nLocation: /loto.zip\r\nContent-Length: 0\r\n"
                 "Connection: close\r\n\r\n"}};
            e.banc.ecrire("COMBCALC.INI", "gardé");
            e.telecharger(serveur.adresse(redirige ? "/ancienne" : "/loto.zip"));
            QVERIFY(e.textes().contains(u"%1 octets sur %1 reçus"_s.arg(archive.size())));
            QVERIFY(e.textes().contains(u"Téléchargement terminé, Temps de téléchargement "_s));
            QVERIFY(e.dit().contains(u"1 tirage ajouté, 0 tirage modifié, 0 tirage inchangé."_s));
            QVERIFY(e.dit().contains(u"Ligne 2 laissée de côté : "_s));
            QVERIFY(e.a.Relance && !e.forme->isVisible());
            QCOMPARE(e.a.base.NbTirages, e.avant.NbTirages + 1);
            const Tirage attendu{{1, 3, 5, 7, 9}, 2, 20240926, 20244090, 20240727, 1, 1234567};
            QVERIFY(e.a.base.Tirages.back() == attendu);
            const auto lue = LireStockage(e.banc.chemin("norvane.db"));
            QVERIFY(lue && lue->Tirages.back() == attendu);
            // Draws behind all others leave what the engine computed of these.
            QCOMPARE(e.banc.lire("COMBCALC.INI"), "gardé");
        }
    }

    void fichierDeLUtilisateur() {
        const EssaiMiseAJour e;
        // A draw that was known is told differently: the engine's results are void.
        Tirage dernier = e.a.base.Tirages[static_cast<std::size_t>(e.a.base.NbTirages) - 2];
        QCOMPARE(dernier.DateTirage, 20240724);
        QByteArray ligne = Nouveau;
        ligne.replace("27/07/2024", "24/07/2024");
        e.banc.ecrire("a.csv", (Titre + ligne).toStdString());
        e.banc.ecrire("COMBCALC.INI", "d'une autre base");
        const QString chemin = e.banc.dossier.filePath(u"a.csv"_s);
        QMimeData donnees;
        donnees.setUrls({QUrl::fromLocalFile(chemin)});
        QDragEnterEvent entre({5, 5}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(e.forme.get(), &entre);
        QVERIFY(entre.isAccepted());
        QDropEvent depot({5, 5}, Qt::CopyAction, &donnees, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(e.forme.get(), &depot);
        QTRY_VERIFY(e.a.Relance);
        e.finir();
        QVERIFY(e.dit().contains(u"0 tirage ajouté, 1 tirage modifié"_s));
        QVERIFY(e.banc.lire("COMBCALC.INI") != "d'une autre base");
        const auto lue = LireStockage(e.banc.chemin("norvane.db"));
        QVERIFY(lue && lue->NbTirages == e.avant.NbTirages);
        QCOMPARE(lue->Tirages[static_cast<std::size_t>(lue->NbTirages) - 2].Chance, 2);
    }

    void rienDeNeuf() {
        const EssaiMiseAJour e;
        e.banc.ecrire("a.csv", (Titre + Mauvais).toStdString());
        e.banc.scripts.fichiers->reponse = e.banc.dossier.filePath(u"a.csv"_s);
        auto* action = e.forme->findChild<QAction*>(u"ActionImporter"_s);
        action->trigger();
        e.finir();
        QVERIFY(e.dit().contains(u"aucun tirage lisible : ligne 2"_s));
        e.a.FiltreActif = true;
        action->trigger();
        QVERIFY(e.posees.last().instruction == u"La base est filtrée..."_s);
        e.a.FiltreActif = false;
        QVERIFY(e.intacte());
        QVERIFY(e.de<QLabel>("LabelDernierTirage")->text() ==
                u"Dernier tirage : mercredi 24 juillet 2024, il y a 8 jours"_s);
    }

    void jackpot() {
        QCOMPARE(LireJackpot("<p>avant<span class=\"txtrouge13g\">Samedi 3 ao&ucirc;t<br></span>"
                             "<span class=autre>non</span>"
                             "<span class='txtrouge11'><b>5&nbsp;000 000</b> &euro;</span>"
                             "<span class=txtrouge11g>tir&eacute;"),
                 "Samedi 3 août 5 000 000 € tiré");
        QCOMPARE(LireJackpot("<html>rien</html>"), "");
        QCOMPARE(LireJackpot("<span class="), "");
    }
};

QTEST_MAIN(TestMiseAJour)
#include "test_mise_a_jour.moc"
