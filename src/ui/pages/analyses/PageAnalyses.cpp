// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analyses/PageAnalyses.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFile>
#include <QFontInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPagedPaintDevice>
#include <QPageLayout>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>

#include "analyses/BarreRecherche.h"
#include "analyses/FondEcran.h"
#include "analyses/RapportPagine.h"
#include "analyses/VueRapport.h"
#include "base/Fichiers.h"
#include "common/Enregistrement.h"
#include "common/Theme.h"
#include "dialogs/ImprimerBox.h"
#include "reports/Analyses.h"
#include "reports/DocumentExport.h"
#include "stats/TableauStats.h"
#include "widgets/Fiche.h"
#include "widgets/Impression.h"
#include "widgets/PaireIntervalle.h"
#include "widgets/SpinTirage.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double CorpsNormal = 13.0;  // pixels of the window's font where a report is 1:1

}  // namespace

// ----------------------------------------------------------------------------------- construction

PageAnalyses::PageAnalyses(Contexte& ctx, QWidget* parent)
    : Page(ctx, u"Varo4"_s, u"Analyses N"_s, parent), bornes_(ctx.atelier.Analyses) {
    vue_ = new VueRapport(this);
    vue_->setObjectName(u"RichView1"_s);
    vue_->setAccessibleName(u"Rapport d'analyses"_s);
    recherche_ = new BarreRecherche(*vue_, this);
    connect(vue_, &VueRapport::lienSurvole, this,
            [this](const QString& texte) { contexte.relais.dire(texte); });
    connect(vue_, &VueRapport::montre, recherche_, &BarreRecherche::reprendre);
    connect(&contexte.travaux, &Travaux::repos, this, [this] {
        if (perime_) rediger();
    });

    auto* lecture = new QVBoxLayout;
    lecture->setSpacing(Unite);
    lecture->addWidget(vue_, 1);
    lecture->addWidget(recherche_);
    auto* corps = new QHBoxLayout(this);
    corps->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    corps->setSpacing(3 * Unite);
    corps->addLayout(lecture, 1);
    corps->addWidget(construireReglages());
    construireRaccourcis();
    poserOrdreTabulation();
    reposerBornes();
}

QWidget* PageAnalyses::construireReglages() {
    auto* reglages = new QWidget(this);
    // As wide as it needs to be: the report has all the rest.
    reglages->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* pile = new QVBoxLayout(reglages);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(2 * Unite);
    pile->addWidget(construireIntervalle());
    pile->addWidget(construirePresentation());
    pile->addWidget(construireSorties());
    pile->addStretch(1);
    return reglages;
}

QGroupBox* PageAnalyses::construireIntervalle() {
    auto* cadre = new QGroupBox(u"Intervalle"_s, this);
    intervalle_ =
        new PaireIntervalle(u"RxSpinEditStats3"_s, u"RxSpinEditStats32"_s,
                            u"Choisissez le nombre de tirages pour les analyses "_s, cadre);
    libelle_ = new QLabel(cadre);
    libelle_->setObjectName(u"IntervalleAnalyses"_s);
    libelle_->setTextFormat(Qt::PlainText);
    libelle_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* dedans = new QVBoxLayout(cadre);
    dedans->setSpacing(2 * Unite);
    dedans->addWidget(intervalle_);
    dedans->addWidget(libelle_);
    connect(intervalle_, &PaireIntervalle::intervalleChange, this, &PageAnalyses::changerBornes);
    return cadre;
}

QGroupBox* PageAnalyses::construirePresentation() {
    auto* groupe = new QGroupBox(u"Présentation"_s, this);
    auto* pile = new QVBoxLayout(groupe);
    pile->setSpacing(2 * Unite);
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(3 * Unite);
    styles_ = new QButtonGroup(this);
    const auto ajouter = [&](JeuStyles jeu, int numero, const QString& indice) {
        auto* choix = new QRadioButton(u"Style %1"_s.arg(numero), groupe);
        choix->setObjectName(u"RadioButtonStyle%1"_s.arg(numero));
        poserIndice(choix, indice);
        styles_->addButton(choix, static_cast<int>(jeu));
        ligne->addWidget(choix);
    };
    ajouter(JeuStyles::RVStyle1, 1, u"Sur fond noir"_s);
    ajouter(JeuStyles::RVStyle2, 2, u"Sur fond blanc"_s);
    ligne->addStretch(1);
    styles_->button(static_cast<int>(jeu_))->setChecked(true);
    // One stop of the tab key, at the choice made; the toolkit sees to it from the first focus on.
    styles_->button(static_cast<int>(JeuStyles::RVStyle1))->setFocusPolicy(Qt::ClickFocus);
    connect(styles_, &QButtonGroup::idClicked, this,
            [this](int choisi) { choisirStyle(static_cast<JeuStyles>(choisi)); });
    caseFond_ = new QCheckBox(u"&Fond d'écran"_s, groupe);
    caseFond_->setObjectName(u"CheckBox5"_s);
    poserIndice(caseFond_, u"Une image derrière le rapport"_s);
    connect(caseFond_, &QCheckBox::toggled, this, [this](bool coche) {
        fond_ = coche;
        poserFond();
    });
    pile->addLayout(ligne);
    pile->addWidget(caseFond_);
    return groupe;
}

QGroupBox* PageAnalyses::construireSorties() {
    auto* groupe = new QGroupBox(u"Rapport"_s, this);
    auto* grille = new QGridLayout(groupe);
    grille->setSpacing(Unite);
    const auto ajouter = [&](const QString& nom, const QString& libelle, const QString& indice) {
        auto* b = bouton(nom, libelle, indice, groupe);
        const int rang = static_cast<int>(sorties_.size());
        grille->addWidget(b, rang / 2, rang % 2);
        sorties_ << b;
        return b;
    };
    const auto* html =
        ajouter(u"BitBtnWithColor2"_s, u"&HTML"_s, u"Sauver les analyses au format Html"_s);
    const auto* texte =
        ajouter(u"BitBtnWithColor3"_s, u"&TEXTE"_s, u"Sauver les analyses au format Texte"_s);
    const auto* papier = ajouter(u"BitBtnWithColor5"_s, u"&IMPRIMER"_s, u"Imprimer les analyses"_s);
    connect(html, &QPushButton::clicked, this, [this] { sauver(true); });
    connect(texte, &QPushButton::clicked, this, [this] { sauver(false); });
    connect(papier, &QPushButton::clicked, this, &PageAnalyses::imprimerRapport);
    auto* apercu = bouton(u"Button73"_s, u"Aperçu"_s,
                          u"L'aperçu des pages s'ouvre par « IMPRIMER »"_s, groupe);
    apercu->setEnabled(false);
    grille->addWidget(apercu, 1, 1);
    auto* trouver = bouton(u"BoutonRechercher"_s, u"&Rechercher..."_s,
                           u"Rechercher un texte dans le rapport (Ctrl+F)"_s, groupe);
    connect(trouver, &QPushButton::clicked, recherche_, &BarreRecherche::ouvrir);
    grille->addWidget(trouver, 2, 0, 1, 2);
    sorties_ << trouver;
    return groupe;
}

void PageAnalyses::construireRaccourcis() {
    // Of the window, wherever the focus is: they work while the page is on show.
    const auto ajouter = [this](const QKeySequence& touches, auto&& faire) {
        const auto* raccourci = new QShortcut(touches, this);
        connect(raccourci, &QShortcut::activated, recherche_, faire);
    };
    ajouter(QKeySequence::Find, [this] { recherche_->ouvrir(); });
    ajouter(Qt::Key_F3, [this] { recherche_->avancer(1); });
    ajouter(Qt::SHIFT | Qt::Key_F3, [this] { recherche_->avancer(-1); });
}

void PageAnalyses::poserOrdreTabulation() {
    QWidget* precedent = vue_;
    QList<QWidget*> suite = recherche_->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    suite << intervalle_->controles() << styles_->button(static_cast<int>(JeuStyles::RVStyle1))
          << styles_->button(static_cast<int>(JeuStyles::RVStyle2)) << caseFond_;
    for (QPushButton* b : sorties_) suite << b;
    for (QWidget* suivant : suite) {
        if (suivant->focusPolicy() == Qt::NoFocus) continue;
        setTabOrder(precedent, suivant);
        precedent = suivant;
    }
}

// ------------------------------------------------------------------------------------------ report

void PageAnalyses::reposerBornes() {
    const int n = contexte.atelier.base.NbTirages;
    bornes_ = {1, n};
    intervalle_->poser(n, 1, n);
    intervalle_->setEnabled(n >= 1);
    for (QPushButton* b : sorties_) b->setEnabled(document_ != nullptr);
    rediger();
}

void PageAnalyses::changerBornes(int inf, int sup) {
    if (bornes_ == IntervalleStats{inf, sup} && document_ != nullptr && !perime_) return;
    bornes_ = {inf, sup};
    rediger();
}

void PageAnalyses::surChange(const Changement& changement) {
    if (changement.base) reposerBornes();
    if (changement.reglages && document_ != nullptr) montrer();
}

void PageAnalyses::showEvent(QShowEvent* evenement) {
    Page::showEvent(evenement);
    if (perime_) rediger();
}

void PageAnalyses::direIntervalle() {
    QString texte;
    const Base& base = contexte.atelier.base;
    if (base.NbTirages >= 1) texte = versQt(LibelleIntervalle(base, bornes_.inf, bornes_.sup));
    if (perime_ && isVisible()) texte += u"\nAprès le traitement en cours..."_s;
    libelle_->setText(texte);
}

void PageAnalyses::rediger() {
    const Base& base = contexte.atelier.base;
    perime_ = true;
    if (isVisible() && base.NbTirages >= 1 && !contexte.atelier.activite.occupe()) {
        // The worker has draws of its own: those of the base may change meanwhile.
        const auto debut = base.Tirages.begin();
        const auto tirages =
            std::make_shared<const std::vector<Tirage>>(debut, debut + bornes_.sup);
        const auto fait = std::make_shared<Document>();
        const int inf = bornes_.inf - 1;
        PtrTravail travail =
            FaireTravail({GenreTravail::Rapport}, [=](const Suivi&) -> Resultat<Rien> {
                *fait = RedigerAnalyses(*tirages, inf, static_cast<int>(tirages->size()) - 1);
                return Rien{};
            });
        perime_ = !contexte.travaux.lancer(
            std::move(travail), {}, this,
            [this, fait](const Travail& fini) { recevoir(fait, fini.erreur()); });
        if (perime_) {
            contexte.services.messages->MessageErreur(contexte.travaux.erreur(), u"Erreur"_s);
        }
    }
    direIntervalle();
}

void PageAnalyses::recevoir(std::shared_ptr<const Document> document, const std::string& erreur) {
    if (perime_) return;  // another interval was chosen meanwhile: its report follows
    if (!erreur.empty()) {
        contexte.services.messages->MessageErreur(versQt(erreur), u"Erreur"_s);
        return;
    }
    document_ = std::move(document);
    for (QPushButton* b : sorties_) b->setEnabled(true);
    montrer();
}

// -------------------------------------------------------------------------------------------- look

void PageAnalyses::montrer() {
    const QPalette couleurs = palette();
    vue_->montrer(document_,
                  {jeu_, QFontInfo(font()).pixelSize() / CorpsNormal, devicePixelRatioF(),
                   // The text of a dark window could not be read on white.
                   estSombre(couleurs) ? QColor() : couleurs.color(QPalette::Text)});
}

void PageAnalyses::choisirStyle(JeuStyles jeu) {
    jeu_ = jeu;
    styles_->button(static_cast<int>(jeu_))->setChecked(true);
    poserFond();
    if (document_ != nullptr) montrer();
}

void PageAnalyses::poserFond() {
    vue_->poserFond(fond_ ? fondEcran(jeu_, contexte.Echelle) : QPixmap());
}

// ------------------------------------------------------------------------------------------ output

void PageAnalyses::sauver(bool html) {
    if (contexte.refuserSiOccupe()) return;
    const QString dossier = QFile::decodeName(contexte.atelier.Repertoire.string().c_str());
    const FormatFichier format = html ? FormatFichier{u"Format Html (*.html)"_s, u"html"_s}
                                      : FormatFichier{u"Format Texte (*.txt)"_s, u"txt"_s};
    const auto document = document_;
    const bool ecrit = enregistrerSous(
        contexte, this,
        {html ? u"Sauver les analyses au format Html"_s : u"Sauver les analyses au format Texte"_s,
         dossier + u"/Analyses."_s + format.suffixe,
         {format},
         u"Analyses enregistrées"_s,
         [&](const std::filesystem::path& fichier, std::size_t) {
             return html ? EcrireHtml(*document, jeu_, fichier)
                         : EcrireFichier(fichier, EnTexte(*document));
         }});
    if (ecrit) choisirStyle(JeuStyles::RVStyle2);
}

void PageAnalyses::imprimerRapport() {
    if (contexte.refuserSiOccupe()) return;
    contexte.relais.dire(u"Pagination..."_s);
    const RapportPagine rapport(*document_);
    for (int page = 1; page <= rapport.nombre(); ++page) {
        contexte.relais.dire(u"Pagination... (page %1)"_s.arg(page));
    }
    TImprimerBox boite(u"Imprimer les Analyses"_s,
                       {rapport.nombre(), RapportPagine::page(),
                        [&rapport](QPainter& p, int numero, const QRectF& cible) {
                            rapport.peindre(p, numero, cible);
                        }},
                       this);
    if (boite.exec() != QDialog::Accepted) {
        contexte.relais.dire({});
        return;
    }
    imprimer(
        contexte, this,
        {u"Imprimer les Analyses"_s, versQt(document_->titre), u"Impression terminée"_s,
         QPageLayout::Portrait, QMarginsF(MargeRapport, MargeRapport, MargeRapport, MargeRapport),
         [&](QPagedPaintDevice& papier, const PagesVoulues&) {
             return peindrePages(papier, rapport, boite.premiere(), boite.derniere());
         }});
}

bool PageAnalyses::peindrePages(QPagedPaintDevice& papier, const RapportPagine& rapport,
                                int premiere, int derniere) {
    contexte.relais.dire(u"Impression en cours..."_s);
    QPainter p;
    if (!p.begin(&papier)) return false;
    const QRectF cible(QPointF(0, 0),
                       papier.pageLayout().paintRectPixels(papier.logicalDpiX()).size());
    for (int page = premiere; page <= derniere; ++page) {
        if (page > premiere && !papier.newPage()) return false;
        contexte.relais.dire(u"Impression page %1 "_s.arg(page));
        rapport.peindre(p, page, cible);
    }
    return p.end();
}

}  // namespace norvane::ui
