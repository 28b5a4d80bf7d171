// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/Impression.h"

#include <QBuffer>
#include <QFile>
#include <QPdfWriter>
#include <QPrinter>

#include "base/Fichiers.h"
#include "common/Enregistrement.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// Made in memory and written at once, so that nothing but a whole file replaces another one.
void imprimerPdf(Contexte& contexte, const QPrinter& imprimante, const Impression& demande,
                 const PagesVoulues& pages) {
    std::size_t format = 0;
    const QString choisi = imprimante.outputFileName();
    const QString fichier = nomComplet(choisi, {{u"Document PDF (*.pdf)"_s, u"pdf"_s}}, 0, format);
    // The dialog asked about the name that it was given.
    if (fichier != choisi && !accepteRemplacement(contexte, fichier)) return;
    QByteArray contenu;
    QBuffer memoire(&contenu);
    memoire.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&memoire);
    pdf.setResolution(imprimante.resolution());
    pdf.setPageLayout(imprimante.pageLayout());
    pdf.setTitle(imprimante.docName());
    pdf.setCreator(u"Norvane"_s);
    const bool fait = demande.peindre(pdf, pages);
    memoire.close();
    const auto ecrit =
        fait ? EcrireFichier(QFile::encodeName(fichier).toStdString(), contenu.toStdString())
             : Resultat<Rien>(Erreur{"Le document PDF n'a pas pu être composé : fermez d'autres "
                                     "programmes, puis recommencez."});
    if (ecrit) {
        direEnregistre(contexte, demande.fait, fichier);
    } else {
        contexte.services.messages->MessageErreur(versQt(ecrit.erreur()), u"Erreur"_s);
    }
}

}  // namespace

void imprimer(Contexte& contexte, QWidget* parent, const Impression& demande) {
    QPrinter imprimante(QPrinter::HighResolution);
    imprimante.setDocName(demande.document);
    imprimante.setPageSize(QPageSize(QPageSize::A4));
    imprimante.setPageOrientation(demande.orientation);
    imprimante.setPageMargins(demande.marges, QPageLayout::Millimeter);
    if (!contexte.services.imprimantes->choisir(parent, imprimante, demande.titre)) return;
    const PagesVoulues pages{imprimante.fromPage(), imprimante.toPage()};
    if (imprimante.outputFormat() == QPrinter::PdfFormat) {
        imprimerPdf(contexte, imprimante, demande, pages);
    } else if (!demande.peindre(imprimante, pages)) {
        contexte.services.messages->MessageErreur(
            u"L'impression n'a pas pu se faire : vérifiez l'imprimante, puis recommencez."_s,
            u"Erreur"_s);
    } else {
        contexte.relais.dire(demande.fait);
    }
}

}  // namespace norvane::ui
