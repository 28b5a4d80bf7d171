// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "soutien/EssaisQt.h"

#include <mutex>
#include <QAbstractItemModelTester>
#include <QTest>

namespace norvane::ui::essais {

namespace {

/// The message handler of Qt is one for the whole process, and so is what it keeps.
struct Veille {
    std::mutex verrou;  // workers warn too
    QtMessageHandler precedent = nullptr;
    QStringList inattendus;
};

Veille& veille() {
    static Veille unique;
    return unique;
}

void recevoir(QtMsgType genre, const QMessageLogContext& lieu, const QString& message) {
    // What the offscreen platform cannot do says nothing about the program.
    if (message.startsWith(u"This plugin does not support")) return;
    Veille& v = veille();
    if (genre == QtWarningMsg || genre == QtCriticalMsg) {
        const std::scoped_lock garde(v.verrou);
        v.inattendus << message;
    }
    v.precedent(genre, lieu, message);
}

}  // namespace

void EssaisQt::initTestCase() {
    veille().precedent = qInstallMessageHandler(recevoir);
}

void EssaisQt::cleanup() {
    Veille& v = veille();
    const std::scoped_lock garde(v.verrou);
    const QString tous = v.inattendus.join(u'\n');
    v.inattendus.clear();
    QVERIFY2(tous.isEmpty(), qPrintable(tous));
}

void eprouverModeles(const QObject& racine) {
    for (auto* modele : racine.findChildren<QAbstractItemModel*>()) {
        // The toolkit's own models are not ours to check, and some speak up while they go.
        if (!QByteArray(modele->metaObject()->className()).startsWith("norvane::")) continue;
        new QAbstractItemModelTester(modele, QAbstractItemModelTester::FailureReportingMode::Fatal,
                                     modele);
    }
}

}  // namespace norvane::ui::essais
