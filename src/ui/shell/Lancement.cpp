// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/Lancement.h"

#include <filesystem>
#include <QApplication>

#include "common/Theme.h"
#include "dialogs/Splash.h"
#include "shell/Francais.h"
#include "shell/SignauxFin.h"
#include "shell/VaroMain.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// An exception that reaches the message loop is told; the program goes on.
class Application final : public QApplication {
 public:
    Application(int& argc, char** argv, Messages& messages)
        : QApplication(argc, argv), messages_(messages) {}

    bool notify(QObject* cible, QEvent* evenement) override {
        try {
            return QApplication::notify(cible, evenement);
        } catch (const std::exception& e) {
            messages_.MessageErreur(u"Une erreur inattendue a interrompu la dernière commande."_s,
                                    u"Erreur"_s, QString::fromLocal8Bit(e.what()));
        }
        return false;
    }

 private:
    Messages& messages_;
};

}  // namespace

int lancer(int argc, char** argv, const std::function<void()>& premierePeinture) {
    Instance instance{NomInstance};
    if (!instance.seule()) return 0;
    std::error_code perdu;
    const std::filesystem::path repertoire = std::filesystem::current_path(perdu);

    Services services = Services::reels();
    Application app(argc, argv, *services.messages);
    QCoreApplication::setApplicationName(u"norvane"_s);
    QGuiApplication::setDesktopFileName(u"norvane"_s);
    QCoreApplication::setApplicationVersion(QLatin1StringView(NORVANE_VERSION));
    franciser(app);
    chargerRessources();
    TSplash splash;
    splash.show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);

    Atelier atelier(repertoire);
    appliquerTheme(app, apparenceDe(atelier.configuration.reglages.Apparence));
    TVaroMainForm form(atelier, services, &instance);
    const SignauxFin signaux;
    QObject::connect(&signaux, &SignauxFin::finVoulue, &form, &TVaroMainForm::fermerSansQuestion);
    QObject::connect(&form, &TVaroMainForm::premierePeinture, &form, [&] {
        splash.hide();
        if (premierePeinture) premierePeinture();
    });
    form.montrer();
    QApplication::exec();
    return 0;
}

}  // namespace norvane::ui
