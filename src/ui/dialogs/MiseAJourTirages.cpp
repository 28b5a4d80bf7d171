// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/MiseAJourTirages.h"

#include <chrono>
#include <optional>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QProgressBar>

#include "base/Fichiers.h"
#include "base/Jackpot.h"
#include "base/Textes.h"
#include "common/Contexte.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 ArchiveMax = qint64{64} << 20;
constexpr qint64 PageMax = qint64{1} << 20;
constexpr int RefuseesMontrees = 5;
constexpr DescriptionTravail Description{GenreTravail::MiseAJour, 0, QuelleListe::Aucune};
using Issue = ReponseTelechargement::Issue;

QString tirages(int n, const QString& suite) {
    return u"%1 tirage%2 %3%2"_s.arg(n).arg(n > 1 ? u"s"_s : QString(), suite);
}

QString refusees(const std::vector<LigneRefusee>& lignes) {
    QString texte;
    for (std::size_t i = 0; i < lignes.size() && i < RefuseesMontrees; ++i)
        texte += u"\nLigne %1 laissée de côté : %2."_s.arg(lignes[i].numero)
                     .arg(versQt(lignes[i].raison));
    if (lignes.size() > RefuseesMontrees)
        texte += u"\n... et %1 autres lignes."_s.arg(lignes.size() - RefuseesMontrees);
    return texte;
}

}  // namespace

/// What the job leaves for the window.
struct MiseAJourTirages::Travaille {
    ReponseTelechargement transport{Issue::Recu, {}, {}};
    double secondes = 0;
    std::optional<BaseMiseAJour> venue;
    QString jackpot;
};

MiseAJourTirages::MiseAJourTirages(Contexte& ctx, QWidget* fenetre)
    : QObject(fenetre), contexte_(ctx), fenetre_(fenetre) {}

bool MiseAJourTirages::accepte(const QString& fichier) {
    const QString suffixe = QFileInfo(fichier).suffix().toLower();
    return suffixe == u"zip"_s || suffixe == u"csv"_s;
}

bool MiseAJourTirages::enCours() const {
    const auto& enCours = contexte_.atelier.activite.enCours;
    return enCours && enCours->genre == GenreTravail::MiseAJour;
}

void MiseAJourTirages::direErreur(const QString& instruction, const QString& detail) {
    contexte_.services.messages->MessageInfo(instruction, u"Message"_s, detail);
}

bool MiseAJourTirages::refuser() {
    if (contexte_.refuserSiOccupe()) return true;
    const Atelier& a = contexte_.atelier;
    if (a.FiltreActif)
        direErreur(u"La base est filtrée..."_s,
                   u"Revenez d'abord à la base totale des tirages, puis recommencez."_s);
    else if (a.edition != Edition::Aucune)
        direErreur(u"La base est en cours de mise à jour manuelle..."_s,
                   u"Terminez d'abord cette mise à jour, puis recommencez."_s);
    return a.FiltreActif || a.edition != Edition::Aucune;
}

void MiseAJourTirages::MajwebClick() {
    if (enCours()) return contexte_.travaux.arreter();
    if (refuser()) return;
    const Reglages& r = contexte_.atelier.configuration.reglages;
    const DemandeTelechargement demande{QUrl(versQt(r.Archive)), r.DelaiSecondes, ArchiveMax};
    const QUrl jackpot(versQt(r.Jackpot));
    auto travaille = std::make_shared<Travaille>();
    const QPointer<MiseAJourTirages> ici(this);
    const auto corps = [=, base = contexte_.atelier.base](const Suivi& suivi) -> Resultat<Rien> {
        const auto dire = [ici](const QString& texte) {
            QMetaObject::invokeMethod(
                qApp,
                [ici, texte] {
                    if (ici != nullptr) ici->contexte_.relais.dire(texte);
                },
                Qt::QueuedConnection);
        };
        const auto debut = std::chrono::steady_clock::now();
        travaille->transport = telecharger(demande, suivi, dire);
        travaille->secondes =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
        if (travaille->transport.issue != Issue::Recu) return Rien{};
        if (!jackpot.isEmpty()) {
            const auto page =
                telecharger({jackpot, demande.delaiSecondes, PageMax}, {suivi.arret}, [](auto&) {});
            travaille->jackpot = versQt(LireJackpot(page.octets.toStdString()));
        }
        auto venue = PreparerMiseAJour(base, travaille->transport.octets.toStdString(),
                                       demande.adresse.fileName().toStdString(), {suivi.arret});
        if (!venue) return Erreur{venue.erreur()};
        travaille->venue = *std::move(venue);
        return Rien{};
    };
    lancer(FaireTravail(Description, corps), u"Connexion en cours..."_s, travaille);
}

void MiseAJourTirages::choisirFichier() {
    if (refuser()) return;
    const QString choisi = contexte_.services.fichiers->ouvrir(
        fenetre_, u"Importer une archive de tirages"_s,
        versQt(contexte_.atelier.Repertoire.string()), u"Archives officielles (*.zip *.csv)"_s);
    if (!choisi.isEmpty()) importer(choisi);
}

void MiseAJourTirages::importer(const QString& fichier) {
    if (refuser()) return;
    auto travaille = std::make_shared<Travaille>();
    const std::filesystem::path chemin = QFile::encodeName(fichier).toStdString();
    const auto corps = [=, base = contexte_.atelier.base](const Suivi& suivi) -> Resultat<Rien> {
        const auto octets = LireFichier(chemin, ArchiveMax);
        if (!octets) return Erreur{octets.erreur()};
        auto venue = PreparerMiseAJour(base, *octets, chemin.filename().string(), suivi);
        if (!venue) return Erreur{venue.erreur()};
        travaille->venue = *std::move(venue);
        return Rien{};
    };
    lancer(FaireTravail(Description, corps), u"Lecture de l'archive en cours..."_s, travaille);
}

void MiseAJourTirages::lancer(PtrTravail travail, const QString& texte,
                              const std::shared_ptr<Travaille>& travaille) {
    const bool parti =
        contexte_.travaux.lancer(std::move(travail), {texte, jauge_}, this,
                                 [this, travaille](Travail& fini) { terminer(*travaille, fini); });
    if (!parti) direErreur(contexte_.travaux.erreur());
    if (parti && jauge_ != nullptr) jauge_->show();
    Q_EMIT enCoursChange();
}

void MiseAJourTirages::terminer(Travaille& travaille, const Travail& travail) {
    Q_EMIT enCoursChange();
    if (jauge_ != nullptr) jauge_->hide();
    if (!direTransport(travaille)) return;
    if (!travaille.jackpot.isEmpty()) Q_EMIT jackpotLu(travaille.jackpot);
    if (travail.arrete()) {
        contexte_.relais.dire(u"Mise à jour arrêtée : rien n'est changé."_s);
    } else if (!travail.erreur().empty()) {
        direErreur(versQt(travail.erreur()));
    } else if (travaille.venue) {
        rapporter(*std::move(travaille.venue));
    }
}

/// True when the archive was received, or came from a file.
bool MiseAJourTirages::direTransport(const Travaille& travaille) {
    switch (travaille.transport.issue) {
        case Issue::Recu:
            if (travaille.secondes > 0)
                contexte_.relais.dire(u"Téléchargement terminé, Temps de téléchargement %1 s"_s.arg(
                    versQt(FormaterDecimal(travaille.secondes, 1))));
            return true;
        case Issue::AdresseInvalide:
            direErreur(u"Adresse invalide"_s, u"Choisissez une autre adresse"_s);
            break;
        case Issue::ConnexionEchouee:
            direErreur(u"La connexion a échoué"_s);
            break;
        case Issue::Arrete:
            contexte_.relais.dire(u"Mise à jour arrêtée : rien n'est changé."_s);
            break;
        case Issue::Echec:
            contexte_.relais.dire(
                u"Get Failed : %1. La base est comme avant."_s.arg(travaille.transport.raison));
            break;
    }
    return false;
}

void MiseAJourTirages::rapporter(BaseMiseAJour&& venue) {
    const QString compte = u"%1, %2, %3."_s.arg(tirages(venue.fusion.ajoutes, u"ajouté"_s),
                                                tirages(venue.fusion.modifies, u"modifié"_s),
                                                tirages(venue.fusion.inchanges, u"inchangé"_s));
    const QString laissees = refusees(venue.refusees);
    Messages& messages = *contexte_.services.messages;
    if (!venue.fusion.change()) {
        messages.MessageInfo(u"La base est à jour."_s, u"Message"_s, compte + laissees);
        return;
    }
    const auto applique = AppliquerMiseAJour(contexte_.atelier, std::move(venue));
    if (!applique) {
        messages.MessageErreur(versQt(applique.erreur()), u"Erreur"_s);
        return;
    }
    messages.MessageInfo(u"La base a été mise à jour."_s, u"Message"_s,
                         compte + laissees + u"\nNorvane va redémarrer."_s);
    contexte_.atelier.Relance = true;
    fenetre_->window()->close();
}

}  // namespace norvane::ui
