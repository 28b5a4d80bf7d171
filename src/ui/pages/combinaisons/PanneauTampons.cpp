// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauTampons.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSpinBox>

#include "combinaisons/FichiersListes.h"
#include "combinaisons/PanneauListe.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// Numbers of the controls of a buffer, and how it is called.
struct Noms {
    const char16_t* rang;
    int sousListe, numero;         // "Button", "RxSpinEdit"
    int sauver, ouvrir, exporter;  // "BitBtnWithColor"
};
constexpr std::array<Noms, PanneauTampons::NbTampons> NomsControles{{
    {u"I", 200, 3, 8, 9, 22},
    {u"II", 201, 4, 10, 11, 23},
    {u"III", 202, 5, 12, 13, 24},
}};

/// Narrow: three of them stand below a list.
QPushButton* creerBouton(const QString& nom, const QString& texte, const QString& indice,
                         QWidget* parent) {
    auto* b = new QPushButton(texte, parent);
    b->setObjectName(nom);
    b->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    b->setMinimumWidth(1);
    poserIndice(b, indice);
    return b;
}

}  // namespace

PanneauTampons::PanneauTampons(Contexte& ctx, QWidget* parent)
    : QWidget(parent), contexte_(ctx), fichiers_(new FichiersListes(ctx, this)) {
    auto* colonnes = new QHBoxLayout(this);
    colonnes->setContentsMargins(0, 0, 0, 0);
    colonnes->setSpacing(2 * Unite);
    for (std::size_t i = 0; i < NbTampons; ++i) colonnes->addWidget(creerTampon(i), 1);
}

QWidget* PanneauTampons::creerTampon(std::size_t i) {
    const Noms& noms = NomsControles.at(i);
    const QString rang = QString::fromUtf16(noms.rang);
    auto* colonne = new QWidget(this);
    Tampon& t = tampons_.at(i);
    t.liste = new PanneauListe(ListesTampon.at(i), contexte_.atelier.ListeTampon.at(i), colonne);
    t.liste->poserInvite(u"Déposez ici des combinaisons"_s);
    t.sousListe = creerBouton(u"Button%1"_s.arg(noms.sousListe), u"Afficher Liste N°"_s,
                              u"Copier cette sous-liste de la liste en mémoire dans la liste "
                              u"tampon %1"_s.arg(rang),
                              colonne);
    t.numero = new QSpinBox(colonne);
    t.numero->setObjectName(u"RxSpinEdit%1"_s.arg(noms.numero));
    t.numero->setAccessibleName(u"Numéro de la sous-liste"_s);
    const auto fichier = [&](int numero, const QString& verbe, const QString& indice) {
        return creerBouton(u"BitBtnWithColor%1"_s.arg(numero), verbe + u' ' + rang, indice,
                           colonne);
    };
    t.ouvrir = fichier(noms.ouvrir, u"Ouvrir"_s, u"Charger une liste"_s);
    t.sauver = fichier(noms.sauver, u"Sauver"_s, u"Enregistrer la liste dans un fichier"_s);
    t.exporter =
        fichier(noms.exporter, u"Exporter"_s, u"Écrire les lignes de la liste comme texte"_s);
    connect(t.sousListe, &QPushButton::clicked, this, [this, i] { afficherSousListe(i); });
    connect(t.ouvrir, &QPushButton::clicked, this, [this, i] { fichiers_->ouvrir(liste(i)); });
    connect(t.sauver, &QPushButton::clicked, this, [this, i] { fichiers_->sauver(liste(i)); });
    connect(t.exporter, &QPushButton::clicked, this, [this, i] { fichiers_->exporter(liste(i)); });

    auto* sousListe = new QHBoxLayout;
    sousListe->setSpacing(Unite / 2);
    sousListe->addWidget(t.sousListe, 1);
    sousListe->addWidget(t.numero);
    auto* fichiers = new QHBoxLayout;
    fichiers->setSpacing(Unite / 2);
    for (QPushButton* b : {t.ouvrir, t.sauver, t.exporter}) fichiers->addWidget(b, 1);
    auto* pile = new QVBoxLayout(colonne);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite / 2);
    pile->addWidget(t.liste, 1);
    pile->addLayout(sousListe);
    pile->addLayout(fichiers);
    return colonne;
}

void PanneauTampons::suivre() {
    const Atelier& a = contexte_.atelier;
    for (std::size_t i = 0; i < NbTampons; ++i) {
        const Tampon& t = tampons_.at(i);
        t.liste->afficher();
        t.liste->verrouiller(a.GlisserVerrouille);
        t.liste->boite().permettreDepart(!a.GlisserVerrouille);
        t.sauver->setEnabled(!a.ListeTampon.at(i).vide());
        t.exporter->setEnabled(!a.ListeTampon.at(i).vide());
    }
    suivreDivision();
}

/// A new cut proposes its first, its middle and its last sub-list.
void PanneauTampons::suivreDivision() {
    Division division = contexte_.atelier.ListeMemoire.division;
    division.enPreparation = false;
    const int n = static_cast<int>(division.NbSousListes);
    const std::array<int, NbTampons> proposes{1, (n + 1) / 2, n};
    for (std::size_t i = 0; i < NbTampons; ++i) {
        const Tampon& t = tampons_.at(i);
        t.sousListe->setEnabled(n > 0);
        t.numero->setEnabled(n > 0);
        t.numero->setRange(1, std::max(1, n));
        if (division != division_) t.numero->setValue(proposes.at(i));
    }
    division_ = division;
}

void PanneauTampons::afficherSousListe(std::size_t i) {
    if (contexte_.refuserSiOccupe()) return;
    Atelier& a = contexte_.atelier;
    liste(i).boite().revenirEnTete();
    ExtraireSousListe(a.ListeMemoire, static_cast<std::size_t>(tampons_.at(i).numero->value()),
                      a.ListeTampon.at(i));
    contexte_.relais.annoncer({.listes = true});
}

QList<QWidget*> PanneauTampons::ordreTabulation() const {
    QList<QWidget*> ordre;
    for (const Tampon& t : tampons_)
        ordre << &t.liste->boite() << t.sousListe << t.numero << t.ouvrir << t.sauver << t.exporter;
    return ordre;
}

}  // namespace norvane::ui
