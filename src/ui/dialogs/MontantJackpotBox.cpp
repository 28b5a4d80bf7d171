// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/MontantJackpotBox.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>

#include "common/Enregistrement.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

const QString FiltreFichiers = u"Fichiers de Filtres de base (*.flt)"_s;
constexpr int LignesVues = 12;  ///< of the longest list, so many show without scrolling

QStringList entrees(ListeFiltre liste) {
    switch (liste) {
        case ListeFiltre::Tirages:
            return {u"Tous les tirages"_s, u"Avec un numéro Chance"_s,
                    u"Depuis le 4 novembre 2019"_s, u"1ers Tirages depuis le 4 novembre 2019"_s,
                    u"2nds Tirages depuis le 4 novembre 2019"_s};
        case ListeFiltre::Mois:
            return {u"Janvier"_s,   u"Février"_s, u"Mars"_s,     u"Avril"_s,
                    u"Mai"_s,       u"Juin"_s,    u"Juillet"_s,  u"Août"_s,
                    u"Septembre"_s, u"Octobre"_s, u"Novembre"_s, u"Décembre"_s};
        case ListeFiltre::Jours:
            return {u"Lundi"_s,    u"Mardi"_s,  u"Mercredi"_s, u"Jeudi"_s,
                    u"Vendredi"_s, u"Samedi"_s, u"Dimanche"_s};
        case ListeFiltre::Dates:
            break;
    }
    QStringList dates{u"1er"_s};
    for (int jour = 2; jour <= 31; ++jour) dates << QString::number(jour);
    return dates;
}

struct Liste {
    ListeFiltre liste;
    const char16_t* titre;
};
constexpr std::array<Liste, NbListesFiltre> Listes{{{ListeFiltre::Tirages, u"Tirages :"},
                                                    {ListeFiltre::Mois, u"Mois :"},
                                                    {ListeFiltre::Dates, u"Dates dans le mois :"},
                                                    {ListeFiltre::Jours, u"Jours :"}}};

}  // namespace

TMontantJackpotBox::TMontantJackpotBox(Contexte& ctx, const CriteresFiltre& criteres,
                                       QWidget* parent)
    : QDialog(parent), contexte_(ctx), criteres_(criteres) {
    setObjectName(u"TMontantJackpotBox"_s);
    setWindowTitle(u"Filtre de Base de données des tirages"_s);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(4 * Unite, 3 * Unite, 4 * Unite, 3 * Unite);
    pile->setSpacing(2 * Unite);
    auto* consigne =
        new QLabel(u"Cochez librement parmi les 4 filtres suivants les critères retenus :"_s, this);
    pile->addWidget(consigne);
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(3 * Unite);
    for (std::size_t place = 0; place < Listes.size(); ++place) {
        rangee->addLayout(creerListe(place));
    }
    pile->addLayout(rangee);
    pile->addLayout(creerCommandes());
    montrer();
    listes_.front()->setFocus();
}

QVBoxLayout* TMontantJackpotBox::creerListe(std::size_t place) {
    const auto [genre, titre] = Listes[place];
    auto* liste = new QListWidget(this);
    const QString nom = QString::fromUtf16(titre);
    liste->setObjectName(u"RxCheckListBox%1"_s.arg(place + 1));
    liste->setAccessibleName(nom);
    for (const QString& entree : entrees(genre)) {
        auto* ligne = new QListWidgetItem(entree, liste);
        ligne->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        ligne->setCheckState(Qt::Unchecked);
    }
    liste->setCurrentRow(0);
    liste->setFixedWidth(liste->sizeHintForColumn(0) + 10 * Unite);
    liste->setMinimumHeight(LignesVues * liste->sizeHintForRow(0) + Unite);
    listes_[place] = liste;
    connect(liste, &QListWidget::itemChanged, this,
            [this, genre = genre](const QListWidgetItem* ligne) { cocher(genre, *ligne); });
    auto* vider =
        bouton(u"Vider%1"_s.arg(place + 1), u"Vider"_s, u"Décocher toutes les cases..."_s, this);
    vider->setAccessibleName(u"Vider la liste "_s + nom);
    connect(vider, &QPushButton::clicked, this, [this, genre = genre] {
        criteres_.vider(genre);
        montrer();
    });
    auto* contenu = new QVBoxLayout;
    contenu->addWidget(liste, 1);
    contenu->addWidget(vider);
    return colonne(nom, contenu, this);
}

QLayout* TMontantJackpotBox::creerCommandes() {
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(Unite + 2);
    const auto ajouter = [&](const QString& nom, const QString& texte, const QString& indice,
                             void (TMontantJackpotBox::*geste)()) {
        auto* b = bouton(nom, texte, indice, this);
        b->setAutoDefault(false);
        connect(b, &QPushButton::clicked, this, geste);
        ligne->addWidget(b);
        return b;
    };
    ajouter(u"OuvrirFiltre"_s, u"&Ouvrir un filtre enregistré"_s,
            u"Ouvrir vos filtres personnels"_s, &TMontantJackpotBox::ouvrir);
    ajouter(u"EnregistrerFiltre"_s, u"&Enregistrer le filtre défini"_s,
            u"Enregistrer le filtre défini"_s, &TMontantJackpotBox::enregistrer);
    ligne->addStretch(1);
    ajouter(u"AppliquerFiltre"_s, u"&Appliquer le filtre défini"_s,
            u"Ne garder que les tirages qui répondent aux critères"_s, &QDialog::accept)
        ->setDefault(true);
    ajouter(u"AnnulerFiltre"_s, u"A&nnuler"_s, u"Garder la base comme elle est"_s,
            &QDialog::reject);
    return ligne;
}

void TMontantJackpotBox::cocher(ListeFiltre liste, const QListWidgetItem& ligne) {
    if (garde_) return;
    criteres_.cocher(liste, ligne.listWidget()->row(&ligne), ligne.checkState() == Qt::Checked);
    montrer();
}

void TMontantJackpotBox::montrer() {
    const QScopedValueRollback garde(garde_, true);
    for (std::size_t place = 0; place < Listes.size(); ++place) {
        for (int entree = 0; entree < listes_[place]->count(); ++entree) {
            listes_[place]->item(entree)->setCheckState(
                criteres_.coche(Listes[place].liste, entree) ? Qt::Checked : Qt::Unchecked);
        }
    }
}

QString TMontantJackpotBox::dossier() const {
    const auto chemin = contexte_.atelier.Repertoire / DossierFiltres;
    // The dialog cannot open on a folder that is not there.
    std::error_code ignoree;
    std::filesystem::create_directories(chemin, ignoree);
    return versQt(chemin.string());
}

void TMontantJackpotBox::ouvrir() {
    const QString fichier = contexte_.services.fichiers->ouvrir(
        this, u"Ouvrir vos filtres personnels"_s, dossier(), FiltreFichiers);
    if (fichier.isEmpty()) return;
    const auto lu = OuvrirFiltre(fichier.toStdString());
    if (!lu) {
        contexte_.services.messages->MessageErreur(versQt(lu.erreur()), u"Erreur"_s);
        return;
    }
    criteres_ = *lu;
    montrer();
}

void TMontantJackpotBox::enregistrer() {
    enregistrerSous(contexte_, this,
                    {u"Enregistrer le filtre défini"_s,
                     dossier(),
                     {{FiltreFichiers, QString::fromLatin1(ExtensionFiltre)}},
                     u"Filtre enregistré"_s,
                     [this](const std::filesystem::path& fichier, std::size_t) {
                         return SauverFiltre(criteres_, fichier);
                     }});
}

}  // namespace norvane::ui
