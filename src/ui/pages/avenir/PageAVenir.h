// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A page whose tools are not built yet: it says in one line what it will hold.
#pragma once

#include "pages/Page.h"

namespace norvane::ui {

class PageAVenir : public Page {
    Q_OBJECT

 public:
    PageAVenir(Contexte& ctx, const QString& nom, const QString& titre, const QString& promesse,
               QWidget* parent);
};

}  // namespace norvane::ui
