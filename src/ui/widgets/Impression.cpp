// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/Impression.h"

#include <memory>
#include <QBuffer>
#include <QFile>
#include <QPdfWriter>
#include <QPrinter>

#include "base/Fichiers.h"
#include "common/Enregistrement.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

bool versPdf(const QPrinter& imprimante) {
    return imprimante.outputFormat() == QPrinter::PdfFormat;
}

PagesVoulues pagesVoulues(const QPrinter& imprimante) {
    return {imprimante.fromPage(), imprimante.toPage()};
}

/// The whole name of the PDF; empty when another one is not to be replaced.
QString nommerPdf(Contexte& contexte, const QPrinter& imprimante) {
    std::size_t format = 0;
    const QString choisi = imprimante.outputFileName();
    QString fichier = nomComplet(choisi, {{u"Document PDF (*.pdf)"_s, u"pdf"_s}}, 0, format);
    // The dialog asked about the name that it was given.
    if (fichier != choisi && !accepteRemplacement(contexte, fichier)) return {};
    return fichier;
}

/// Made in memory and written at once, so that nothing but a whole file replaces another one.
Resultat<Rien> ecrirePdf(const QPrinter& imprimante, const QString& fichier,
                         const std::function<bool(QPagedPaintDevice&)>& peindre) {
    QByteArray contenu;
    QBuffer memoire(&contenu);
    memoire.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&memoire);
    pdf.setResolution(imprimante.resolution());
    pdf.setPageLayout(imprimante.pageLayout());
    pdf.setTitle(imprimante.docName());
    pdf.setCreator(u"Norvane"_s);
    const bool fait = peindre(pdf);
    memoire.close();
    if (!fait)
        return Erreur{
            "Le document PDF n'a pas pu être composé : fermez d'autres programmes, puis "
            "recommencez."};
    return EcrireFichier(QFile::encodeName(fichier).toStdString(), contenu.toStdString());
}

/// On the printer, or in the PDF of that name.
Resultat<Rien> sortir(QPrinter& imprimante, const QString& fichier,
                      const std::function<bool(QPagedPaintDevice&)>& peindre) {
    if (versPdf(imprimante)) return ecrirePdf(imprimante, fichier, peindre);
    if (peindre(imprimante)) return Rien{};
    return Erreur{"L'impression n'a pas pu se faire : vérifiez l'imprimante, puis recommencez."};
}

/// What came of it, told.
void conclure(Contexte& contexte, const std::string& erreur, const QString& fait,
              const QString& fichier) {
    if (!erreur.empty()) {
        contexte.services.messages->MessageErreur(versQt(erreur), u"Erreur"_s);
    } else if (fichier.isEmpty()) {
        contexte.relais.dire(fait);
    } else {
        direEnregistre(contexte, fait, fichier);
    }
}

/// What work and window both hold.
struct EnCours {
    QPrinter imprimante{QPrinter::HighResolution};
    QString fichier;
    bool fait = false;
};

/// How an unfinished print ended, once it was stopped.
QString arretDe(const EnCours& enCours) {
    return versPdf(enCours.imprimante)
               ? u"Impression arrêtée."_s
               : u"Impression arrêtée : les pages déjà composées sont envoyées à l'imprimante."_s;
}

}  // namespace

void imprimer(Contexte& contexte, QWidget* parent, const Impression& demande) {
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setDocName(demande.document);
    imprimante.setPageSize(QPageSize(QPageSize::A4));
    imprimante.setPageOrientation(demande.orientation);
    imprimante.setPageMargins(demande.marges, QPageLayout::Millimeter);
    if (!contexte.services.imprimantes->choisir(parent, imprimante, demande.titre)) return;
    QString fichier;
    if (versPdf(imprimante) && (fichier = nommerPdf(contexte, imprimante)).isEmpty()) return;
    const auto fait = sortir(imprimante, fichier, [&](QPagedPaintDevice& papier) {
        return demande.peindre(papier, pagesVoulues(imprimante));
    });
    conclure(contexte, fait ? std::string() : fait.erreur(), demande.fait, fichier);
}

void imprimerEnTravail(Contexte& contexte, QWidget* parent, const ImpressionLongue& demande) {
    const auto enCours = std::make_shared<EnCours>();
    QPrinter& imprimante = enCours->imprimante;
    imprimante.setDocName(demande.document);
    imprimante.setFullPage(true);
    imprimante.setPageSize(
        QPageSize(demande.papier, QPageSize::Millimeter, {}, QPageSize::ExactMatch));
    imprimante.setPageOrientation(QPageLayout::Portrait);
    imprimante.setPageMargins({}, QPageLayout::Millimeter);
    if (!contexte.services.imprimantes->choisir(parent, imprimante, demande.titre)) return;
    if (versPdf(imprimante) && (enCours->fichier = nommerPdf(contexte, imprimante)).isEmpty())
        return;
    const auto corps = [enCours, peindre = demande.peindre](const Suivi& suivi) -> Resultat<Rien> {
        QPrinter& imp = enCours->imprimante;
        auto sorti = sortir(imp, enCours->fichier, [&](QPagedPaintDevice& papier) {
            return peindre(papier, pagesVoulues(imp), suivi);
        });
        enCours->fait = static_cast<bool>(sorti);
        if (!sorti && suivi.arrete()) return Rien{};
        return sorti;
    };
    const auto fin = [&contexte, enCours, fait = demande.fait, suite = demande.fin](Travail& fini) {
        if (!enCours->fait && fini.erreur().empty()) {
            contexte.relais.dire(arretDe(*enCours));
        } else {
            conclure(contexte, fini.erreur(), fait, enCours->fichier);
        }
        suite();
    };
    if (!contexte.travaux.lancer(FaireTravail(demande.travail, corps), demande.vue, parent, fin))
        contexte.services.messages->MessageErreur(contexte.travaux.erreur(), u"Erreur"_s);
}

}  // namespace norvane::ui
