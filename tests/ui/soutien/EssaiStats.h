// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The pages "Numéros" and "Chances" on show, reached through the names of their controls.
#pragma once

#include <algorithm>
#include <QHeaderView>
#include <QLabel>
#include <QTest>

#include "base/BaseIntegree.h"
#include "BasesEssai.h"
#include "soutien/Banc.h"
#include "statistiques/PageStats.h"
#include "widgets/PaireIntervalle.h"
#include "widgets/SpinTirage.h"
#include "widgets/VueTableau.h"

namespace norvane::ui::essais {

// Columns.
inline constexpr int Num = 1, NbS = 2, Ratio = 3, Date = 4, E = 5, EMax = 7, SMax = 9;
inline const QString JamaisSorti = u"Pas encore sorti "_s;

/// A page on show over a base, with its controls under their own names.
struct PageOuverte {
    Banc banc;
    GenreStats genre;
    std::unique_ptr<PageStats> page;
    VueTableau* table = nullptr;
    SpinTirage* inf = nullptr;
    SpinTirage* sup = nullptr;

    explicit PageOuverte(GenreStats g, const Base* base = nullptr) : banc(base), genre(g) {
        page = std::make_unique<PageStats>(banc.contexte, g);
        const bool numeros = g == GenreStats::Numeros;
        table = trouver<VueTableau>(numeros ? "AdvStringGrid1" : "AdvStringGrid4");
        inf = trouver<SpinTirage>(numeros ? "RxSpinEditStats" : "RxSpinEditStatsE");
        sup = trouver<SpinTirage>(numeros ? "RxSpinEditStats2" : "RxSpinEditStats2E");
        eprouverModeles(*page);
        page->resize(1366, 700);
        page->show();
        page->activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(page.get()));
    }
    template <typename T>
    T* trouver(const char* nom) {
        return page->findChild<T*>(QString::fromUtf8(nom));
    }
    void poserIntervalle(int bas, int haut) const {
        page->findChild<PaireIntervalle*>()->poser(banc.atelier.base.NbTirages, bas, haut);
    }
    void cliquer(const char* nom) {
        auto* bouton = trouver<QAbstractButton>(nom);
        QTest::mouseClick(bouton, Qt::LeftButton, {}, QPoint(8, bouton->height() / 2));
    }
    QString texte(int ligne, int colonne) const {
        return table->model()->index(ligne, colonne).data().toString();
    }
    QString libelle() {
        const bool numeros = page->objectName() == u"Varo2"_s;
        return trouver<QLabel>(numeros ? "RxLabelStats1" : "RxLabelStats1E")->text();
    }
    /// Types over what stands in the control, as after a click into it.
    static void taper(SpinTirage* spin, const QString& texte) {
        spin->setFocus();
        spin->selectAll();
        QTest::keyClicks(spin, texte);
    }
    void cliquerEntete(int colonne, Qt::KeyboardModifiers touches = {}) const {
        auto* entete = table->horizontalHeader();
        const QPoint place(entete->sectionViewportPosition(colonne) + 10, 10);
        QTest::mouseClick(entete->viewport(), Qt::LeftButton, touches, place);
    }
    static void doubleCliquer(const QTableView* vue, const QModelIndex& i) {
        const QPoint place = vue->visualRect(i).center();
        QTest::mouseClick(vue->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(vue->viewport(), Qt::LeftButton, {}, place);
    }
    void doubleCliquer(int ligne, int colonne) const {
        const QModelIndex i = table->model()->index(ligne, colonne);
        table->scrollTo(i);
        doubleCliquer(table, i);
    }
    int ligneDe(int element) const { return static_cast<int>(elements().indexOf(element)); }
    const QList<DemandeMessage>& posees() const { return banc.scripts.messages->posees; }
    QList<int> elements() const {
        QList<int> tous;
        for (int l = 0; l < table->model()->rowCount(); ++l) tous << texte(l, Num).toInt();
        return tous;
    }
    bool dansLOrdre() const {
        const QList<int> tous = elements();
        return tous.size() == (genre == GenreStats::Numeros ? NumeroMax : ChanceMax) &&
               std::is_sorted(tous.begin(), tous.end());
    }
};

}  // namespace norvane::ui::essais
