// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Refus.h"

#include "common/Contexte.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

void direRefus(Messages& messages, const Refus& refus) {
    const QString phrase = versQt(refus.phrase);
    const QString detail = versQt(refus.detail);
    switch (refus.titre) {
        case Refus::Titre::Attention:
            messages.MessageAvertissement(phrase, u"Attention"_s, detail);
            break;
        case Refus::Titre::Avertissement:
            messages.MessageAvertissement(phrase, u"Avertissement"_s, detail);
            break;
        case Refus::Titre::Message:
            messages.MessageInfo(phrase, u"Message"_s, detail);
            break;
    }
}

}  // namespace norvane::ui
