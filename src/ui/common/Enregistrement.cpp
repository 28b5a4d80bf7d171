// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Enregistrement.h"

#include <algorithm>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

QString filtresDe(const std::vector<FormatFichier>& formats) {
    QStringList filtres;
    for (const FormatFichier& format : formats) filtres << format.filtre;
    return filtres.join(u";;"_s);
}

}  // namespace

QString nomComplet(const QString& nom, const std::vector<FormatFichier>& formats,
                   std::size_t defaut, std::size_t& format) {
    for (format = 0; format < formats.size(); ++format) {
        for (const QString& permis : {formats[format].suffixe, formats[format].autreSuffixe}) {
            const QString suffixe = u'.' + permis;
            if (!permis.isEmpty() && nom.endsWith(suffixe, Qt::CaseInsensitive)) {
                return nom.chopped(suffixe.size()) + suffixe;
            }
        }
    }
    format = defaut;
    return nom + u'.' + formats[defaut].suffixe;
}

bool accepteRemplacement(Contexte& contexte, const QString& fichier) {
    const QFileInfo info(fichier);
    if (!info.exists() && !info.isSymLink()) return true;
    return contexte.services.messages->AvertissementOuiNon(
               u"Le fichier « %1 » existe déjà."_s.arg(info.fileName()), u"Confirmation"_s,
               u"Faut-il le remplacer ?"_s, BoutonPropose::Non) == CodeBouton1;
}

std::filesystem::path cheminDe(const QString& fichier) {
    return QFile::encodeName(fichier).toStdString();
}

void direEnregistre(Contexte& contexte, const QString& fait, const QString& fichier) {
    contexte.relais.dire(
        u"%1 dans « %2 »."_s.arg(fait, QDir::toNativeSeparators(QDir::cleanPath(fichier))));
}

std::optional<FichierChoisi> demanderFichier(Contexte& contexte, QWidget* parent,
                                             const QString& titre, QString propose,
                                             const std::vector<FormatFichier>& formats) {
    for (;;) {
        QString filtre;
        const QString choisi = contexte.services.fichiers->enregistrer(parent, titre, propose,
                                                                       filtresDe(formats), filtre);
        if (choisi.isEmpty()) return std::nullopt;
        const auto voulu = std::ranges::find(formats, filtre, &FormatFichier::filtre);
        const std::size_t defaut =
            voulu == formats.end() ? 0 : static_cast<std::size_t>(voulu - formats.begin());
        FichierChoisi fichier;
        fichier.nom = nomComplet(choisi, formats, defaut, fichier.format);
        if (accepteRemplacement(contexte, fichier.nom)) return fichier;
        propose = fichier.nom;
    }
}

bool enregistrerSous(Contexte& contexte, QWidget* parent, const Enregistrement& demande) {
    const auto fichier =
        demanderFichier(contexte, parent, demande.titre, demande.propose, demande.formats);
    if (!fichier) return false;
    const auto ecrit = demande.ecrire(cheminDe(fichier->nom), fichier->format);
    if (!ecrit) {
        contexte.services.messages->MessageErreur(versQt(ecrit.erreur()), u"Erreur"_s);
        return false;
    }
    direEnregistre(contexte, demande.fait, fichier->nom);
    return true;
}

}  // namespace norvane::ui
