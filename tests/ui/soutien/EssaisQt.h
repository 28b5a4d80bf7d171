// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What every Qt test class derives from: a warning of Qt during a test fails it. And the check of
// every item model under test.
#pragma once

#include <QObject>
#include <QString>

namespace norvane::ui::essais {

class EssaisQt : public QObject {
    Q_OBJECT

 private Q_SLOTS:
    void initTestCase();
    void cleanup();
};

/// Has each item model of ours below `racine` checked at every change from now on. A model that
/// breaks the rules of its kind ends the program.
void eprouverModeles(const QObject& racine);

}  // namespace norvane::ui::essais
