// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Telechargement.h"

#include <memory>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

using Issue = ReponseTelechargement::Issue;

constexpr int RegardMs = 50;  // between two looks at the stop
constexpr int RedirectionsMax = 5;
constexpr int StatutErreur = 400;  // first HTTP status that refuses

QNetworkRequest requete(const DemandeTelechargement& demande) {
    QNetworkRequest requete(demande.adresse);
    requete.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    requete.setMaximumRedirectsAllowed(RedirectionsMax);
    requete.setTransferTimeout(demande.delaiSecondes * 1000);
    requete.setHeader(QNetworkRequest::UserAgentHeader, u"Norvane/" NORVANE_VERSION ""_s);
    return requete;
}

Issue issueDe(QNetworkReply::NetworkError erreur) {
    switch (erreur) {
        case QNetworkReply::NoError:
            return Issue::Recu;
        case QNetworkReply::HostNotFoundError:
        case QNetworkReply::ProtocolUnknownError:
        case QNetworkReply::ProtocolInvalidOperationError:
            return Issue::AdresseInvalide;
        case QNetworkReply::ConnectionRefusedError:
        case QNetworkReply::NetworkSessionFailedError:
        case QNetworkReply::TemporaryNetworkFailureError:
        case QNetworkReply::UnknownNetworkError:
            return Issue::ConnexionEchouee;
        default:
            return Issue::Echec;
    }
}

QString raisonDe(const QNetworkReply& reponse) {
    const int statut = reponse.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (statut >= StatutErreur) return u"le serveur a répondu %1"_s.arg(statut);
    switch (reponse.error()) {
        case QNetworkReply::OperationCanceledError:
        case QNetworkReply::TimeoutError:
            return u"le serveur ne répond plus"_s;
        case QNetworkReply::RemoteHostClosedError:
            return u"le serveur a coupé avant la fin"_s;
        case QNetworkReply::SslHandshakeFailedError:
            return u"le certificat du serveur n'est pas sûr"_s;
        case QNetworkReply::InsecureRedirectError:
        case QNetworkReply::TooManyRedirectsError:
            return u"le serveur renvoie vers une adresse qui n'est pas sûre"_s;
        default:
            return reponse.errorString();
    }
}

QString texteRecu(qint64 recus, qint64 total) {
    return total > 0 ? u"%1 octets sur %2 reçus"_s.arg(recus).arg(total)
                     : u"%1 octets reçus..."_s.arg(recus);
}

}  // namespace

ReponseTelechargement telecharger(const DemandeTelechargement& demande, const Suivi& suivi,
                                  const std::function<void(const QString&)>& dire) {
    const QString protocole = demande.adresse.scheme();
    if (!demande.adresse.isValid() || demande.adresse.host().isEmpty() ||
        (protocole != u"https"_s && protocole != u"http"_s))
        return {Issue::AdresseInvalide, {}, {}};
    dire(u"Connexion en cours..."_s);
    QNetworkAccessManager reseau;
    const std::unique_ptr<QNetworkReply> reponse(reseau.get(requete(demande)));
    ReponseTelechargement recue;
    bool tropGrand = false;
    QEventLoop attente;
    QTimer regard;
    QObject::connect(&regard, &QTimer::timeout, &attente, [&] {
        if (suivi.arrete()) reponse->abort();
    });
    QObject::connect(reponse.get(), &QNetworkReply::metaDataChanged, &attente,
                     [&] { dire(u"Connecté"_s); });
    QObject::connect(reponse.get(), &QNetworkReply::downloadProgress, &attente,
                     [&](qint64 recus, qint64 total) {
                         // What is known of the total is not taken on its word.
                         tropGrand = recus > demande.octetsMax || total > demande.octetsMax;
                         if (tropGrand) return reponse->abort();
                         if (suivi.progres != nullptr && total > 0) {
                             if (suivi.progres->total() != static_cast<int>(total))
                                 suivi.progres->commencer(static_cast<int>(total));
                             suivi.progres->poser(static_cast<int>(recus));
                         }
                         dire(texteRecu(recus, total));
                     });
    QObject::connect(reponse.get(), &QNetworkReply::finished, &attente, &QEventLoop::quit);
    regard.start(RegardMs);
    if (!reponse->isFinished()) attente.exec();

    if (suivi.arrete()) return {Issue::Arrete, {}, {}};
    if (tropGrand) return {Issue::Echec, {}, u"le fichier est trop grand"_s};
    recue.issue = issueDe(reponse->error());
    if (recue.issue == Issue::Recu)
        recue.octets = reponse->readAll();
    else if (recue.issue == Issue::Echec)
        recue.raison = raisonDe(*reponse);
    return recue;
}

}  // namespace norvane::ui
