// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/TableRapports.h"

#include <algorithm>
#include <cmath>
#include <QHeaderView>
#include <QLineEdit>
#include <QStyledItemDelegate>

#include "base/Textes.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "tickets/Rangs.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

// What wins each rank: good numbers (N) and the Chance (C).
constexpr std::array<const char16_t*, NbRangsLoto> RangsLoto{
    u"5N + C", u"5N", u"4N + C", u"4N", u"3N + C", u"3N", u"2N + C", u"2N", u"0-1N + C"};
constexpr std::array<const char16_t*, NbRangs2nd> Rangs2nd{u"5N", u"4N", u"3N", u"2N"};

constexpr int HauteurLigne = 24;   // of the 800 x 600 design
constexpr int LargeurTable = 300;  // of the same

/// Leaves the cells the margin that the captions above them have, and gives what is typed in one to
/// the table, not to the cell.
class DelegueMarge final : public QStyledItemDelegate {
 public:
    explicit DelegueMarge(TableRapports* table) : QStyledItemDelegate(table), table_(table) {}

    /// The number without its separators and its currency.
    void setEditorData(QWidget* editeur, const QModelIndex& place) const override {
        const QString nombre = place.data().toString().section(u' ', 0, 0).remove(QChar::Nbsp);
        auto* champ = qobject_cast<QLineEdit*>(editeur);
        champ->setAlignment(Qt::AlignRight);
        champ->setText(nombre);
    }
    void setModelData(QWidget* editeur, QAbstractItemModel*,
                      const QModelIndex& place) const override {
        const bool compte = place.column() == TableRapports::Gagnants;
        Q_EMIT table_->celluleSaisie(place.row(),
                                     compte ? ColonneRapport::Gagnants : ColonneRapport::Gain,
                                     qobject_cast<QLineEdit*>(editeur)->text());
    }

    void paint(QPainter* peintre, const QStyleOptionViewItem& option,
               const QModelIndex& place) const override {
        QStyleOptionViewItem cellule = option;
        initStyleOption(&cellule, place);
        const QStyle* style = cellule.widget->style();
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cellule, peintre, cellule.widget);
        cellule.rect.adjust(Unite / 2, 0, -Unite / 2, 0);
        style->drawControl(QStyle::CE_ItemViewItem, &cellule, peintre, cellule.widget);
    }

 private:
    TableRapports* table_;
};

}  // namespace

TableRapports::TableRapports(const QString& nom, int rangs, double echelle, QWidget* parent)
    : QTableWidget(rangs, NbColonnes, parent) {
    setObjectName(nom);
    setAccessibleName(rangs == NbRangsLoto ? u"Rapports du 1er Tirage"_s
                                           : u"Rapports du 2nd Tirage"_s);
    setHorizontalHeaderLabels({u"RANGS"_s, u"GAGNANTS"_s, u"RAPPORTS"_s, u"N"_s});
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setFrameShape(NoFrame);
    setTabKeyNavigation(false);
    setMouseTracking(true);  // the status bar follows the cell under the pointer
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setCornerButtonEnabled(false);
    setItemDelegate(new DelegueMarge(this));
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setDefaultSectionSize(qRound(HauteurLigne * echelle));
    QHeaderView* tete = horizontalHeader();
    tete->setHighlightSections(false);
    tete->setSectionsClickable(false);
    tete->setSectionResizeMode(QHeaderView::Stretch);
    tete->setSectionResizeMode(N, QHeaderView::Fixed);
    tete->resizeSection(N, static_cast<int>(34 * echelle));
    setMinimumWidth(static_cast<int>(LargeurTable * echelle));
    for (int rang = 0; rang < rangs; ++rang) {
        const auto i = static_cast<std::size_t>(rang);
        const char16_t* sens = rangs == NbRangsLoto ? RangsLoto[i] : Rangs2nd[i];
        for (int colonne = 0; colonne < NbColonnes; ++colonne) {
            auto* cellule = new QTableWidgetItem;
            Qt::ItemFlags drapeaux = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
            if (colonne == Gagnants || colonne == Montants) drapeaux |= Qt::ItemIsEditable;
            cellule->setFlags(drapeaux);
            cellule->setTextAlignment(colonne == Rangs ? Qt::AlignLeft | Qt::AlignVCenter
                                      : colonne == N   ? Qt::AlignCenter
                                                       : Qt::AlignRight | Qt::AlignVCenter);
            setItem(rang, colonne, cellule);
        }
        item(rang, Rangs)->setText(u"Rang %1 (%2)"_s.arg(rang + 1).arg(QStringView(sens)));
    }
    for (int colonne = 0; colonne < NbColonnes; ++colonne) {
        horizontalHeaderItem(colonne)->setTextAlignment(
            colonne == Rangs ? Qt::AlignLeft | Qt::AlignVCenter
            : colonne == N   ? Qt::AlignCenter
                             : Qt::AlignRight | Qt::AlignVCenter);
    }
}

void TableRapports::poser(int rang, Colonne colonne, const QString& texte, const QString& court,
                          const QString& longue) {
    QTableWidgetItem* cellule = item(rang, colonne);
    cellule->setText(texte);
    cellule->setToolTip(court);
    cellule->setStatusTip(longue);
}

void TableRapports::poserValeurs(int rang, const RapportSaisi& rapport, const Reglages& reglages) {
    QString gagnants, montant, francs;
    if (rapport.Gagnants) {
        gagnants = versQt(FormaterCompte(std::llround(*rapport.Gagnants)));
        if (gagnants.isEmpty()) gagnants = u"0"_s;
    }
    if (rapport.Gain) {
        montant = versQt(FormaterMontant(*rapport.Gain) + " " + reglages.SymboleMonnaie);
        francs = u"Montant en Francs : "_s +
                 versQt(FormaterMontant(*rapport.Gain * reglages.TauxConversion));
    }
    item(rang, Gagnants)->setText(gagnants);
    poser(rang, Montants, montant, francs, francs);
}

void TableRapports::afficher(const Tirage& tirage, const RapportsTirage& rapports,
                             const Reglages& reglages) {
    setEditTriggers(NoEditTriggers);
    for (int rang = 0; rang < rowCount(); ++rang) {
        const Rapport& r = rapports[static_cast<std::size_t>(rang)];
        const bool existe = RangExiste(tirage, rang);
        poserValeurs(rang, existe ? RapportSaisi{r.Gagnants, r.Gain} : RapportSaisi{}, reglages);
    }
}

void TableRapports::editer(const RapportsSaisis& saisis, const Reglages& reglages) {
    setEditTriggers(DoubleClicked | SelectedClicked | EditKeyPressed | AnyKeyPressed);
    for (int rang = 0; rang < rowCount(); ++rang) {
        poserValeurs(rang, saisis[static_cast<std::size_t>(rang)], reglages);
    }
}

void TableRapports::vider() {
    setEditTriggers(NoEditTriggers);
    for (int rang = 0; rang < rowCount(); ++rang) poserValeurs(rang, {}, {});
}

void TableRapports::setFacteurs(const Facteurs& facteurs) {
    if (facteurs == facteurs_) return;
    facteurs_ = facteurs;
    for (int rang = 0; rang < rowCount(); ++rang) {
        const int facteur = facteurs[static_cast<std::size_t>(rang)];
        QString texte, court, longue;
        if (facteur > 0) {
            texte = versQt(FormaterCompte(facteur));
            court = u"Facteur de multiplication des gains pour un rang donné"_s;
            longue = u"Vous gagnez %1 fois le montant du rang %2"_s.arg(texte).arg(rang + 1);
        }
        poser(rang, N, texte, court, longue);
        for (const Colonne colonne : {Rangs, Gagnants}) {
            item(rang, colonne)->setToolTip(court);
            item(rang, colonne)->setStatusTip(longue);
        }
    }
}

QSize TableRapports::sizeHint() const {
    return {minimumWidth(), horizontalHeader()->sizeHint().height() + verticalHeader()->length()};
}

}  // namespace norvane::ui
