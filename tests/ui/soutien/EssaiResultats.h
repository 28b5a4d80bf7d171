// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Résultats" on a base, reached through the names of its controls.
#pragma once

#include <initializer_list>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>
#include <QToolButton>
#include <set>

#include "base/BaseIntegree.h"
#include "base/Dates.h"
#include "common/Mode.h"
#include "resultats/PageResultats.h"
#include "soutien/Banc.h"
#include "widgets/ChampDate.h"
#include "widgets/PlancheNumeros.h"

namespace norvane::ui::essais {

/// The page on the global base or on the present game's.
struct Essai {
    Banc banc;
    std::unique_ptr<PageResultats> page;

    explicit Essai(bool globale) {
        banc.atelier.base = BaseIntegree(globale);
        banc.recalculer();
        page = std::make_unique<PageResultats>(banc.contexte);
        // As the form does.
        QObject::connect(&banc.relais, &Relais::change, page.get(), &Page::surChange);
        page->resize(1366, 660);
        page->premierAffichage();
    }

    const Base& base() const { return banc.atelier.base; }
    const Tirage& record(int i) const { return base().Tirages[static_cast<std::size_t>(i)]; }
    template <typename T = QAbstractButton>
    T* de(const QString& nom) const {
        T* trouve = page->findChild<T*>(nom);
        Q_ASSERT(trouve != nullptr);
        return trouve;
    }
    QString texte(const QString& nom) const { return de<QLabel>(nom)->text(); }
    QLineEdit* numero() const { return de<QLineEdit>(u"EditTirGlob"_s); }
    ChampDate* date() const { return de<ChampDate>(u"DateTimePicker"_s); }
    /// Types a date, yyyymmdd, over the one that stands there.
    void dater(int date_) const {
        date()->selectAll();
        QTest::keyClicks(date(), versQt(DateCourte(date_)));
    }
    QComboBox* selecteur() const { return de<QComboBox>(u"ComboBox3"_s); }
    void montrer(int numeroTirage) const { numero()->setText(QString::number(numeroTirage)); }
    Mode mode() const { return modeEnCours(banc.atelier); }
    Billets& billets() { return banc.atelier.billets; }
    PlancheNumeros* planche() const { return de<PlancheNumeros>(u"Panel1"_s); }
    /// Arrow 0 (up) or 1 (down) of a pair.
    void fleche(const QString& paire, int laquelle) const {
        de<QWidget>(paire)->findChildren<QToolButton*>()[laquelle]->click();
    }
    void presser(const QList<int>& boutons) const {
        for (const int b : boutons) de(u"Button%1"_s.arg(b))->click();
    }
    /// Numbers of the buttons (1..59) in a state.
    std::set<int> allumes() const { return boutons(&BoutonPlanche::allume); }
    std::set<int> tenus() const { return boutons(&BoutonPlanche::enfonce); }
    std::set<int> boutons(bool (BoutonPlanche::*etat)() const) const {
        std::set<int> s;
        for (int k = 0; k < NbBoutons; ++k)
            if ((planche()->bouton(k)->*etat)()) s.insert(k + 1);
        return s;
    }
    bool montre(const QString& nom) const { return !de<QWidget>(nom)->isHidden(); }
    QStringList demandes() const {
        QStringList textes;
        for (const DemandeMessage& d : banc.scripts.messages->posees) textes << d.instruction;
        banc.scripts.messages->posees.clear();
        return textes;
    }
    void cliquer(std::initializer_list<const char16_t*> noms) const {
        for (const char16_t* nom : noms) de(QString::fromUtf16(nom))->click();
    }
    /// Starts the entry of grids or of a receipt.
    void selectionner(bool recu) const {
        repondre({CodeBouton1, recu ? CodeBouton1 : CodeBouton2});
        cliquer({u"SelectGrilles"});
        demandes();
    }
    void repondre(std::initializer_list<int> codes) const {
        banc.scripts.messages->reponses.assign(codes.begin(), codes.end());
    }
};

inline std::set<int> boutonsDe(const Tirage& t) {
    std::set<int> s(std::begin(t.Numeros), std::end(t.Numeros));
    if (t.Chance != 0) s.insert(NumeroMax + t.Chance);
    return s;
}

/// What differs between the page and a record, empty when nothing does.
inline QString ecartAvec(const Essai& e, int indice) {
    const Tirage& t = e.record(indice);
    const bool second = t.SousTirage == 2;
    const bool chance = !second && t.DateTirage >= 20081006;
    QStringList fautes;
    const auto exiger = [&fautes](bool juste, const QString& quoi) {
        if (!juste) fautes << quoi;
    };
    exiger(e.numero()->text() == QString::number(indice + 1), u"numéro"_s);
    exiger(e.date()->date() == t.DateTirage, u"date"_s);
    exiger(e.selecteur()->currentText() == (second ? u"2nd"_s : u"1er"_s), u"sélecteur"_s);
    for (int i = 0; i < NbBoules; ++i) {
        const auto* boule = e.de<QLabel>(u"Label%1"_s.arg(i + 1));
        exiger(boule->text() == QString::number(t.Numeros[i]), u"boule %1"_s.arg(i));
    }
    exiger(e.montre(u"Label6"_s) == chance && e.montre(u"ImageChance"_s) == chance,
           u"case Chance"_s);
    if (chance) exiger(e.texte(u"Label6"_s) == QString::number(t.Chance), u"Chance"_s);
    exiger(e.montre(u"AdvStringGrid8"_s) == (second && t.DateTirage >= 20191104), u"table 2nd"_s);
    exiger(e.montre(u"AdvStringGrid6"_s) != e.montre(u"AdvStringGrid8"_s), u"table 1er"_s);
    QString joker;
    if (t.Joker >= 0) {
        joker = u"%1"_s.arg(t.Joker, 7, 10, QChar(u'0'));
        for (int i = 6; i > 0; --i) joker.insert(i, u'.');
    }
    exiger(e.de<QLineEdit>(u"MaskEdit1"_s)->text() == joker, u"Joker+"_s);
    const QString an = QString::number(t.AnneeNumero);
    exiger(e.texte(u"LabelTirageFixeAn"_s) == an.left(4), u"année"_s);
    exiger(e.texte(u"LabelTirageFixeNum"_s) == QString::number(an.right(3).toInt()), u"N°"_s);
    exiger(e.allumes() == boutonsDe(t), u"planche"_s);
    if (fautes.isEmpty()) return {};
    return u"tirage %1 : %2"_s.arg(indice + 1).arg(fautes.join(u", "_s));
}

inline QString absence(const Essai& e) {
    QString reste = e.numero()->text() + e.texte(u"LabelTirageFixeAn"_s) +
                    e.texte(u"LabelTirageFixeNum"_s) + e.de<QLineEdit>(u"MaskEdit1"_s)->text();
    for (int i = 1; i <= 6; ++i) reste += e.texte(u"Label%1"_s.arg(i));
    for (const auto* table : e.page->findChildren<QTableWidget*>())
        for (int r = 0; r < table->rowCount(); ++r)
            for (int c = 1; c < 4; ++c) reste += table->item(r, c)->text();
    for (int k = 0; k < NbBoutons; ++k) reste += e.planche()->bouton(k)->toolTip();
    if (!e.allumes().empty()) reste += u" planche allumée"_s;
    return reste;
}

}  // namespace norvane::ui::essais
