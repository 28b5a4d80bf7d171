// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "systemes/PanneauGrilles.h"

#include <algorithm>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>

#include "base/Textes.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "systemes/CommandesSysteme.h"
#include "systemes/ListeLignes.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int ChiffresGrille = 4;
constexpr double FacteurGrille = 1.9;
constexpr int PartsJauge = 100;

struct Commande {
    const char16_t *nom, *libelle, *indice;
    void (CommandesSysteme::*faire)();
};
constexpr std::array<Commande, 5> Commandes = {{
    {u"BitBtn8", u"&Ouvrir un système", u"Charger un système *.syr en mémoire",
     &CommandesSysteme::BitBtn8Click},
    {u"BitBtn10", u"&Sauver le système", u"Enregistrer le système en mémoire dans un fichier *.syr",
     &CommandesSysteme::BitBtn10Click},
    {u"Button85", u"&Exporter au format texte", u"Sauvegarde du système en mémoire au format texte",
     &CommandesSysteme::Button85Click},
    {u"Button84", u"&Importer vers Statistiques",
     u"Copier les grilles du système dans la liste de combinaisons, avec leurs statistiques",
     &CommandesSysteme::Button84Click},
    {u"Button86", u"Importer un système externe (format TXT, CSV, etc.)",
     u"Charger en mémoire un système extérieur (votre collection, autres logiciels, etc.)",
     &CommandesSysteme::Button86Click},
}};

}  // namespace

PanneauGrilles::PanneauGrilles(Contexte& ctx, CommandesSysteme& commandes, QWidget* parent)
    : QWidget(parent),
      contexte_(ctx),
      titre_(new QLabel(this)),
      grille_(valeur(u"Label86"_s, u"Grille choisie"_s, this)),
      liste_(new ListeLignes(u"ListBox6"_s, u"Grilles du système"_s, this)),
      numero_(new ChampNumero(u"Edit25"_s, this)),
      fleches_(new HautBas(u"UpDown23"_s, this)),
      jauge_(new QProgressBar(this)) {
    titre_->setObjectName(u"Label84"_s);
    titre_->setWordWrap(true);
    grossir(grille_, FacteurGrille / 1.2);
    grille_->setAlignment(Qt::AlignCenter);
    numero_->setMaxLength(ChiffresGrille);
    numero_->setFixedWidth(numero_->fontMetrics().horizontalAdvance(u"00000"_s) + 3 * Unite);
    poserIndice(numero_, u"Numéro de la grille à montrer"_s);
    jauge_->setObjectName(u"CGauge5"_s);
    jauge_->setTextVisible(false);
    jauge_->setAccessibleName(u"Finalisation"_s);

    auto* saut = new QHBoxLayout;
    saut->addWidget(legende(u"Sélection de grilles par numéro"_s, this));
    saut->addWidget(numero_);
    saut->addWidget(fleches_);
    saut->addStretch(1);
    saut->addWidget(legende(u"Finalisation:"_s, this));
    saut->addWidget(jauge_, 1);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addWidget(titre_);
    pile->addWidget(grille_);
    pile->addWidget(liste_, 1);
    pile->addLayout(saut);
    creerBoutons(commandes);

    connect(liste_, &ListeLignes::ligneChoisie, this, &PanneauGrilles::montrerGrille);
    connect(numero_, &QLineEdit::textChanged, this, &PanneauGrilles::surSaisie);
    connect(numero_, &ChampNumero::deplacement, this,
            [this](int pas) { aller(numero_->text().toInt() + pas); });
    connect(numero_, &ChampNumero::extremite, this, [this](bool derniere) {
        aller(derniere ? static_cast<int>(contexte_.atelier.SystemeCourant.nombre()) : 1);
    });
    connect(fleches_, &HautBas::deplacement, this,
            [this](int pas) { aller(numero_->text().toInt() + pas); });
    montrer();
}

void PanneauGrilles::creerBoutons(CommandesSysteme& commandes) {
    auto* grille = new QGridLayout;
    grille->setSpacing(Unite);
    for (std::size_t i = 0; i < Commandes.size(); ++i) {
        const Commande& c = Commandes[i];
        boutons_[i] = bouton(QString::fromUtf16(c.nom), QString::fromUtf16(c.libelle),
                             QString::fromUtf16(c.indice), this);
        connect(boutons_[i], &QPushButton::clicked, &commandes, c.faire);
        const auto place = static_cast<int>(i);
        grille->addWidget(boutons_[i], place / 2, place % 2, 1, i + 1 == Commandes.size() ? 2 : 1);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(grille);
}

QString PanneauGrilles::ligne(int grille) const {
    return versQt(
        LigneGrille(contexte_.atelier.SystemeCourant.grille(static_cast<std::size_t>(grille))));
}

QString PanneauGrilles::titre() const {
    const Systeme& s = contexte_.atelier.SystemeCourant;
    if (s.vide()) return u"Cliquez sur \"Générer...\" ou \"Ouvrir...\""_s;
    const SystemeDisponible& p = s.parametres;
    const QString grilles = u" Grilles "_s + versQt(FormaterMasque(p.Grilles, 4));
    const QString selection = u"Sélection "_s + versQt(FormaterMasque(p.Selection, 2));
    if (s.IndicateurImporte != 0)
        return selection + u" Système externe de %1 numéros par grille"_s.arg(p.NumerosParGrille) +
               grilles;
    return selection + u" Garantie %1/%2 Base %3"_s.arg(p.GarantieX).arg(p.GarantieY).arg(p.Base) +
           grilles;
}

void PanneauGrilles::montrer() {
    const bool present = !contexte_.atelier.SystemeCourant.vide();
    titre_->setText(titre());
    numero_->setEnabled(present);
    fleches_->setEnabled(present);
    ListBoxSystemeUpdate();
    if (!present) {
        grille_->setText(u"Aucun système en mémoire..."_s);
        return;
    }
    montrerGrille(0);
    liste_->setFocus();
}

void PanneauGrilles::ListBoxSystemeUpdate() {
    const auto nombre = static_cast<int>(contexte_.atelier.SystemeCourant.nombre());
    // The lines are made when they are seen: the list stands at once, and the gauge with it.
    jauge_->setRange(0, nombre > 0 && nombre < PartsJauge ? nombre : PartsJauge);
    liste_->montrer(nombre, [this](int i) { return ligne(i); });
    jauge_->setValue(nombre == 0 ? 0 : jauge_->maximum());
}

void PanneauGrilles::montrerGrille(int grille) {
    const QSignalBlocker muet(numero_);
    numero_->setText(QString::number(grille + 1));
    grille_->setText(ligne(grille).trimmed());
}

void PanneauGrilles::surSaisie() {
    aller(numero_->text().isEmpty() ? 1 : numero_->text().toInt());
}

void PanneauGrilles::aller(int numero) {
    const auto nombre = static_cast<int>(contexte_.atelier.SystemeCourant.nombre());
    if (nombre == 0) return;
    const int grille = std::clamp(numero, 1, nombre) - 1;
    liste_->viser(grille);
    montrerGrille(grille);
}

QList<QWidget*> PanneauGrilles::ordreTabulation() const {
    QList<QWidget*> ordre = {liste_, numero_};
    for (QPushButton* b : boutons_) ordre << b;
    return ordre;
}

}  // namespace norvane::ui
