// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "graphes/CommandesGraphes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <tuple>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"
#include "widgets/LigneEtat.h"
#include "widgets/PaireIntervalle.h"
#include "widgets/SpinTirage.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int VitesseMax = 40;  // draws a second
constexpr int VitesseDepart = 10;

constexpr QRgb Vert = qRgb(0x2F, 0xA8, 0x4F);
constexpr QRgb Rouge = qRgb(0xE5, 0x3E, 0x3E);
constexpr QRgb Aqua = qRgb(0x1F, 0xC8, 0xD2);
constexpr QRgb Bleu = qRgb(0x2F, 0x5F, 0xE0);

struct CouleurNommee {
    const char16_t* nom;
    QRgb valeur;
};
constexpr std::array<CouleurNommee, 16> Palette{{{u"Vert", Vert},
                                                 {u"Rouge", Rouge},
                                                 {u"Bleu", Bleu},
                                                 {u"Aqua", Aqua},
                                                 {u"Jaune", qRgb(0xF2, 0xC8, 0x1E)},
                                                 {u"Orange", qRgb(0xF0, 0x8A, 0x24)},
                                                 {u"Fuchsia", qRgb(0xD9, 0x3F, 0xC6)},
                                                 {u"Violet", qRgb(0x80, 0x4A, 0xD0)},
                                                 {u"Citron vert", qRgb(0x9B, 0xD2, 0x2D)},
                                                 {u"Sarcelle", qRgb(0x0F, 0x80, 0x80)},
                                                 {u"Marine", qRgb(0x1D, 0x2F, 0x80)},
                                                 {u"Marron", qRgb(0x8A, 0x3A, 0x2A)},
                                                 {u"Olive", qRgb(0x80, 0x80, 0x1A)},
                                                 {u"Gris", qRgb(0x80, 0x88, 0x94)},
                                                 {u"Noir", qRgb(0x15, 0x18, 0x20)},
                                                 {u"Blanc", qRgb(0xFF, 0xFF, 0xFF)}}};

QString qt(const char16_t* texte) {
    return QString::fromUtf16(texte);
}

QCheckBox* caseACocher(const QString& nom, const QString& libelle, const QString& indice,
                       QWidget* parent) {
    auto* c = new QCheckBox(libelle, parent);
    c->setObjectName(nom);
    poserIndice(c, indice);
    return c;
}

QSlider* glissiere(const QString& nom, const QString& indice, int minimum, int maximum, int valeur,
                   QWidget* parent) {
    auto* g = new QSlider(Qt::Horizontal, parent);
    g->setObjectName(nom);
    g->setAccessibleName(indice);
    g->setRange(minimum, maximum);
    g->setValue(valeur);
    poserIndice(g, indice);
    return g;
}

QPushButton* petitBouton(const QString& nom, const QString& libelle, const QString& indice,
                         QWidget* parent) {
    auto* b = new QPushButton(libelle, parent);
    b->setObjectName(nom);
    b->setAccessibleName(indice);
    b->setFixedWidth(
        std::max(b->fontMetrics().horizontalAdvance(libelle) + 4 * Unite, b->sizeHint().height()));
    poserIndice(b, indice);
    return b;
}

QIcon pastille(QRgb couleur, int cote) {
    QPixmap image(cote * 2, cote);
    image.fill(couleur);
    QPainter p(&image);
    p.setPen(QColor(0x80, 0x88, 0x94));
    p.drawRect(image.rect().adjusted(0, 0, -1, -1));
    return image;
}

QComboBox* choixCouleur(const ReglageCouleur& reglage, QWidget* parent) {
    auto* choix = new QComboBox(parent);
    choix->setObjectName(qt(reglage.nom));
    choix->setAccessibleName(qt(reglage.indice));
    const int cote = choix->fontMetrics().ascent();
    choix->setIconSize({cote * 2, cote});
    for (const CouleurNommee& c : Palette) {
        choix->addItem(pastille(c.valeur, cote), qt(c.nom), QColor(c.valeur));
        if (c.valeur == reglage.couleur) choix->setCurrentIndex(choix->count() - 1);
    }
    poserIndice(choix, qt(reglage.indice));
    return choix;
}

}  // namespace

const std::array<ReglageCouleur, NbTeintes> ReglagesCouleur{
    {{u"ColorComboBox2", u"Non sortis :", u"Couleur des numéros non sortis",
      GenreGraphe::Statistiques, Rouge},
     {u"ColorComboBox3", u"Sortis :", u"Couleur des numéros sortis", GenreGraphe::Statistiques,
      Vert},
     {u"ColorComboBox4", u"Neutres :", u"Numéros neutres", GenreGraphe::Pointage, Aqua},
     {u"ColorComboBox5", u"Secondaires :", u"Sélection : Priorité secondaire",
      GenreGraphe::Pointage, Rouge},
     {u"ColorComboBox1", u"Absolus :", u"Sélection : Priorité absolue", GenreGraphe::Pointage,
      Bleu}}};

QLayout* CommandesGraphes::construireBarre(QWidget* parent) {
    auto* barre = new QHBoxLayout;
    barre->setSpacing(Unite);
    const auto combo = [&](const QString& nom, const QString& titre, const QStringList& items) {
        auto* libelle = new QLabel(titre, parent);
        auto* choix = new QComboBox(parent);
        choix->setObjectName(nom);
        choix->setAccessibleName(titre);
        choix->addItems(items);
        libelle->setBuddy(choix);
        barre->addWidget(libelle);
        barre->addWidget(choix);
        return std::pair(libelle, choix);
    };
    graphe = combo(u"ComboBoxGraphe"_s, u"Graphe : "_s, {u"Statistiques"_s, u"Pointage"_s}).second;
    barre->addSpacing(Unite);
    std::tie(libelleTri, tri) =
        combo(u"ComboBox2"_s, u"Tri : "_s,
              {u"Sans Tri"_s, u"NbFois"_s, u"Ecart"_s, u"Ecart Max"_s, u"Suite"_s, u"Suite Max"_s});
    barre->addStretch(1);
    const auto bouton = [&](const QString& nom, const QString& libelle, const QString& indice) {
        auto* b = petitBouton(nom, libelle, indice, parent);
        barre->addWidget(b);
        return b;
    };
    plages = {
        bouton(u"AdvGlowButton5"_s, u"Tout"_s, u"Afficher l'ensemble des numéros et chances"_s),
        bouton(u"AdvGlowButton6"_s, u"Numéros"_s, u"Afficher seulement les numéros"_s),
        bouton(u"AdvGlowButton7"_s, u"Chances"_s, u"Afficher seulement les chances"_s)};
    barre->addStretch(1);
    reduire = bouton(u"BitBtn3"_s, u"−"_s, u"Réduire"_s);
    agrandir = bouton(u"BitBtn2"_s, u"+"_s, u"Agrandir"_s);
    retour = bouton(u"ButtonResetZoom"_s, u"Reset"_s, u"Annuler le zoom et le défilement"_s);
    barre->addStretch(1);
    copier =
        bouton(u"BoutonCopierGraphe"_s, u"Copier"_s, u"Copier le graphe dans le presse-papiers"_s);
    enregistrer = bouton(u"BoutonEnregistrerGraphe"_s, u"Enregistrer..."_s,
                         u"Enregistrer le graphe en image PNG ou en dessin SVG"_s);
    imprimer = bouton(u"BitBtn1"_s, u"Imprimer..."_s, u"Imprimer le graphe"_s);
    return barre;
}

QLayout* CommandesGraphes::construirePages(QWidget* parent) {
    auto* barre = new QHBoxLayout;
    barre->setSpacing(Unite);
    static const struct {
        QString nom, libelle, indice;
    } Boutons[] = {{u"BFirstPage"_s, u"«"_s, u"Première page"_s},
                   {u"ButtonPrevious"_s, u"‹"_s, u"Page précédente"_s},
                   {u"ButtonNext"_s, u"›"_s, u"Page suivante"_s},
                   {u"BLastPage"_s, u"»"_s, u"Dernière page"_s}};
    for (std::size_t i = 0; i < pages.size(); ++i) {
        pages[i] = petitBouton(Boutons[i].nom, Boutons[i].libelle, Boutons[i].indice, parent);
    }
    const auto nombre = [&](const QString& nom, const QString& libelle) {
        auto* etiquette = new QLabel(parent);
        etiquette->setObjectName(nom);
        etiquette->setAccessibleName(libelle);
        etiquette->setAlignment(Qt::AlignCenter);
        etiquette->setMinimumWidth(etiquette->fontMetrics().horizontalAdvance(u"000"_s));
        return etiquette;
    };
    numPage = nombre(u"LabelNumPage"_s, u"Page"_s);
    totalPages = nombre(u"LabelTotalPages"_s, u"Nombre de pages"_s);
    nombreParPage = nombre(u"LabelPointsParPage"_s, u"Nombre de points par page"_s);
    parPage = glissiere(u"ScrollBarPointsPerPage"_s, u"Nombre de points par page"_s, 1, NbPlaces,
                        NbPlaces, parent);
    parPage->setFixedWidth(20 * parPage->fontMetrics().averageCharWidth());
    for (QWidget* w : std::initializer_list<QWidget*>{
             pages[0], pages[1], legende(u"Page"_s, parent), numPage, legende(u"/"_s, parent),
             totalPages, pages[2], pages[3], legende(u"   Points par page :"_s, parent), parPage,
             nombreParPage}) {
        barre->addWidget(w);
    }
    gestes = new LigneEtat(parent);  // gives way where the window is narrow
    gestes->setForegroundRole(QPalette::PlaceholderText);
    barre->addWidget(gestes, 1);
    return barre;
}

QLayout* CommandesGraphes::construireReglages(QWidget* parent) {
    auto* pile = new QVBoxLayout;
    pile->setSpacing(Unite);
    pile->addWidget(construireIntervalle(parent));
    groupeAnimation = construireAnimation(parent);
    pile->addWidget(groupeAnimation);
    pile->addWidget(construireAffichage(parent));
    pile->addWidget(construireCouleurs(parent));
    pile->addStretch(1);
    return pile;
}

QWidget* CommandesGraphes::construireIntervalle(QWidget* parent) {
    auto* groupe = new QGroupBox(u"Intervalle"_s, parent);
    auto* pile = new QVBoxLayout(groupe);
    intervalle =
        new PaireIntervalle(u"RxSpinEditGraphe0"_s, u"RxSpinEditGraphe"_s,
                            u"Choisissez le tirage inférieur pour les statistiques "_s, groupe);
    poserIndice(&intervalle->controleSup(),
                u"Choisissez le tirage supérieur pour les statistiques"_s);
    pile->addWidget(intervalle);
    return groupe;
}

QWidget* CommandesGraphes::construireAnimation(QWidget* parent) {
    auto* groupe = new QGroupBox(u"Défilement des tirages"_s, parent);
    auto* grille = new QGridLayout(groupe);
    grille->setVerticalSpacing(Unite);
    animation = caseACocher(u"CheckBox2"_s, u"&Animation"_s,
                            u"Faire avancer le tirage supérieur jusqu'au dernier"_s, groupe);
    init = caseACocher(u"CheckBox3"_s, u"&Init"_s, u"L'animation commence au tirage inférieur"_s,
                       groupe);
    vitesse = glissiere(u"VitesseAnimation"_s, u"Vitesse de l'animation"_s, 1, VitesseMax,
                        VitesseDepart, groupe);
    grille->addWidget(animation, 0, 0);
    grille->addWidget(init, 0, 1);
    grille->addWidget(new QLabel(u"Vitesse"_s, groupe), 1, 0);
    grille->addWidget(vitesse, 1, 1);
    grille->setColumnStretch(1, 1);
    return groupe;
}

QWidget* CommandesGraphes::construireAffichage(QWidget* parent) {
    auto* groupe = new QGroupBox(u"Affichage"_s, parent);
    auto* grille = new QGridLayout(groupe);
    grille->setVerticalSpacing(Unite);
    grille->setColumnStretch(1, 1);
    const QString marque = u"Afficher le numéro de chaque point"_s;
    etiquettes = {caseACocher(u"CheckBoxMarques"_s, u"Etiquettes"_s, marque, groupe),
                  caseACocher(u"CheckBox4"_s, u"Etiquettes"_s, marque, groupe)};
    valeurs = caseACocher(u"CheckBoxLibelles"_s, u"Valeurs"_s,
                          u"Afficher la valeur de chaque point"_s, groupe);
    attendus = caseACocher(u"CheckBoxAttendus"_s, u"Sorties attendues"_s,
                           u"Sorties que le hasard donne en moyenne, et deux écarts types autour|"
                           u"Ligne : sorties que le hasard donne en moyenne ; bande : deux écarts "
                           u"types, où restent 19 points sur 20"_s,
                           groupe);
    troisD = caseACocher(u"CheckBox1"_s, u"3&D"_s, u"Vue en trois dimensions"_s, groupe);
    for (QCheckBox* etiquette : etiquettes) grille->addWidget(etiquette, 0, 0);
    grille->addWidget(valeurs, 0, 1);
    grille->addWidget(attendus, 1, 0, 1, 2);
    grille->addWidget(troisD, 2, 0, 1, 2);
    for (std::size_t i = 0; i < vue.size(); ++i) {
        const ReglageVue& r = ReglagesVue[i];
        vue[i] =
            glissiere(qt(r.nom), qt(r.libelle), r.minimum, r.maximum, Vue3D{}.*r.valeur, groupe);
        const int rang = 3 + static_cast<int>(i);
        grille->addWidget(new QLabel(qt(r.libelle), groupe), rang, 0);
        grille->addWidget(vue[i], rang, 1);
    }
    return groupe;
}

QWidget* CommandesGraphes::construireCouleurs(QWidget* parent) {
    auto* groupe = new QGroupBox(u"Couleurs"_s, parent);
    auto* pile = new QVBoxLayout(groupe);
    for (std::size_t graphe_ = 0; graphe_ < NbGraphes; ++graphe_) {
        auto* panneau = new QWidget(groupe);
        auto* grille = new QGridLayout(panneau);
        grille->setContentsMargins(0, 0, 0, 0);
        grille->setVerticalSpacing(Unite);
        grille->setColumnStretch(1, 1);
        for (std::size_t i = NbTeintes; i-- > 0;) {
            const ReglageCouleur& reglage = ReglagesCouleur[i];
            if (static_cast<std::size_t>(reglage.graphe) != graphe_) continue;
            couleurs[i] = choixCouleur(reglage, panneau);
            auto* libelle = new QLabel(qt(reglage.libelle), panneau);
            libelle->setBuddy(couleurs[i]);
            const int rang = grille->rowCount();
            grille->addWidget(libelle, rang, 0);
            grille->addWidget(couleurs[i], rang, 1);
        }
        panneauCouleurs[graphe_] = panneau;
        pile->addWidget(panneau);
    }
    return groupe;
}

std::array<QWidget*, 3> CommandesGraphes::verrouillees() const {
    return {intervalle, graphe, init};
}

}  // namespace norvane::ui
