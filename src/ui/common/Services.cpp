// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Services.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <random>

namespace norvane::ui {

namespace {

class DialoguesFichiersEcran final : public DialoguesFichiers {
 public:
    QString enregistrer(QWidget* parent, const QString& titre, const QString& nomPropose,
                        const QString& filtres, QString& filtreChoisi) override {
        return QFileDialog::getSaveFileName(parent, titre, nomPropose, filtres, &filtreChoisi,
                                            QFileDialog::DontConfirmOverwrite);
    }
    QString ouvrir(QWidget* parent, const QString& titre, const QString& dossier,
                   const QString& filtres, const QString& filtrePreset) override {
        QString filtre = filtrePreset;
        return QFileDialog::getOpenFileName(parent, titre, dossier, filtres, &filtre);
    }
};

class ImprimantesEcran final : public Imprimantes {
 public:
    bool choisir(QWidget* parent, QPrinter& imprimante, const QString& titre) override {
        QPrintDialog dialogue(&imprimante, parent);
        dialogue.setWindowTitle(titre);
        return dialogue.exec() == QDialog::Accepted;
    }
};

class HorlogeSysteme final : public Horloge {
 public:
    QDate aujourdhui() const override { return QDate::currentDate(); }
};

class HasardSysteme final : public Hasard {
 public:
    std::uint32_t graine() override { return std::random_device{}(); }
};

class LanceurSysteme final : public Lanceur {
 public:
    bool ouvrirDocument(const QString& fichier) override {
        return QDesktopServices::openUrl(QUrl::fromLocalFile(fichier));
    }
    bool relancer(const QString& repertoire) override {
        return QProcess::startDetached(QCoreApplication::applicationFilePath(), {}, repertoire);
    }
};

}  // namespace

Services Services::reels() {
    return {std::make_unique<MessagesEcran>(),    std::make_unique<DialoguesFichiersEcran>(),
            std::make_unique<ImprimantesEcran>(), std::make_unique<HorlogeSysteme>(),
            std::make_unique<HasardSysteme>(),    std::make_unique<LanceurSysteme>()};
}

}  // namespace norvane::ui
