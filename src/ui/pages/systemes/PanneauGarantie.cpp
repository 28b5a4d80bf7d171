// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "systemes/PanneauGarantie.h"

#include <numeric>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/Textes.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "systemes/CommandesSysteme.h"
#include "widgets/Fiche.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int ExemplesMontres = 6;
const QString Verifier = u"Vérifier la garantie"_s;
const QString Arreter = u"STOP"_s;

QString compte(std::int64_t n) {
    return n == 0 ? u"0"_s : versQt(FormaterCompte(n));
}

QString phrase(const PreuveSysteme& p) {
    QString cas =
        u"%1 sur une sélection de %2 numéros"_s.arg(u"%1/%2"_s.arg(p.X).arg(p.Y)).arg(p.selection);
    if (p.base > 0) cas += u" dont %1 de base"_s.arg(p.base);
    if (p.bilan.tenue())
        return u"Garantie %1 tenue : les %2 cas possibles ont tous été vérifiés."_s.arg(
            cas, compte(p.bilan.cas));
    return u"Garantie %1 non tenue : elle manque dans %2 cas sur %3."_s.arg(
        cas, compte(p.bilan.manques), compte(p.bilan.cas));
}

QString numeros(Ensemble cas) {
    QStringList mots;
    for (const int n : cas) mots << versQt(FormaterMasque(n, 2));
    return mots.join(u' ');
}

QString premiers(const BilanGarantie& bilan) {
    QStringList lignes;
    for (const Ensemble cas : bilan.exemples)
        if (lignes.size() < ExemplesMontres) lignes << numeros(cas);
    return lignes.isEmpty() ? QString() : u"Les premiers : "_s + lignes.join(u" · "_s);
}

/// A share in percent; one that is there is never shown as none.
QString part(std::int64_t n, std::int64_t total) {
    if (total == 0) return {};
    const double pourcent = 100.0 * static_cast<double>(n) / static_cast<double>(total);
    if (n > 0 && pourcent < 0.01) return u"< 0,01 %"_s;
    return versQt(FormaterDecimal(pourcent, 1)) + u" %"_s;
}

std::vector<ColonneTableau> colonnes() {
    std::vector<ColonneTableau> colonnes(1 + std::tuple_size_v<TableChances::value_type>);
    colonnes[0].entete = u"Sortis"_s;
    colonnes[0].indice = u"Numéros tirés qui sont dans la sélection"_s;
    colonnes[0].largeur = 40;
    for (std::size_t bons = 0; bons + 1 < colonnes.size(); ++bons) {
        ColonneTableau& c = colonnes[bons + 1];
        c.entete = u"%1 bon%2"_s.arg(bons).arg(bons > 1 ? u"s"_s : QString());
        c.indice = u"Part des cas où la meilleure grille tient %1 des numéros tirés"_s.arg(bons);
        c.largeur = 52;
        c.etalon = u"100,00 %"_s;
    }
    return colonnes;
}

}  // namespace

PanneauGarantie::PanneauGarantie(CommandesSysteme& commandes, double echelle, QWidget* parent)
    : QWidget(parent),
      commandes_(commandes),
      verifier_(norvane::ui::bouton(u"BoutonGarantie"_s, Verifier,
                                    u"Vérifier la garantie du système en mémoire, cas par cas"_s,
                                    this)),
      resultat_(new QLabel(this)),
      exemples_(legende({}, this)),
      chances_(new VueTableau(colonnes(), 1, echelle, this)) {
    resultat_->setObjectName(u"LabelGarantie"_s);
    resultat_->setWordWrap(true);
    exemples_->setObjectName(u"LabelManques"_s);
    exemples_->setWordWrap(true);
    chances_->setObjectName(u"TableChances"_s);
    chances_->setAccessibleName(u"Chances de la meilleure grille"_s);
    chances_->modele().poserTriDepart({0, true});
    chances_->reserverLignes(static_cast<int>(std::tuple_size_v<TableChances>));
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    auto* tete = new QHBoxLayout;
    tete->addWidget(legende(u"Garantie et chances du système en mémoire"_s, this), 1);
    tete->addWidget(verifier_);
    pile->addLayout(tete);
    pile->addWidget(resultat_);
    pile->addWidget(exemples_);
    pile->addWidget(chances_);
    connect(verifier_, &QPushButton::clicked, &commandes_, &CommandesSysteme::VerifierClick);
    montrer();
}

void PanneauGarantie::montrer() {
    verifier_->setText(commandes_.verifie() ? Arreter : Verifier);
    const auto& preuve = commandes_.preuve();
    exemples_->setVisible(preuve && !preuve->bilan.tenue());
    if (!preuve) {
        resultat_->setText(commandes_.verifie()
                               ? u"Vérification de la garantie en cours..."_s
                               : u"Chaque tirage possible est essayé contre toutes les grilles."_s);
        chances_->remplir({});
        return;
    }
    resultat_->setText(phrase(*preuve));
    exemples_->setText(premiers(preuve->bilan));
    remplirChances(*preuve);
}

void PanneauGarantie::remplirChances(const PreuveSysteme& preuve) {
    std::vector<LigneTableau> lignes;
    for (int sortis = TiresMin; const auto& comptes : preuve.chances) {
        const std::int64_t total = std::accumulate(comptes.begin(), comptes.end(), std::int64_t{0});
        LigneTableau ligne(1);
        ligne[0].texte = std::to_string(sortis);
        ligne[0].cle = sortis;
        for (const std::int64_t n : comptes) {
            CelluleTableau cellule;
            cellule.texte = part(n, total).toStdString();
            cellule.cle = n;
            cellule.indice = u"%1 cas sur %2"_s.arg(compte(n), compte(total));
            ligne.push_back(std::move(cellule));
        }
        lignes.push_back(std::move(ligne));
        ++sortis;
    }
    chances_->remplir(std::move(lignes));
}

}  // namespace norvane::ui
