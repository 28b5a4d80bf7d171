// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/ChampDate.h"

#include <algorithm>
#include <optional>
#include <QCalendarWidget>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QRegularExpression>
#include <QScreen>
#include <QTextCharFormat>
#include <QToolButton>
#include <utility>

#include "base/Dates.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int Jour = 0, Mois = 1, An = 2;  // the parts
constexpr int SiecleDepuis = 76;           // a year of two digits from here on is of 19..
constexpr int LongueurMax = 40;

QDate enQDate(int date) {
    return {date / 10000, date / 100 % 100, date % 100};
}

int enEntier(QDate date) {
    return date.year() * 10000 + date.month() * 100 + date.day();
}

/// What a text gives: a day, and whether it was typed to its last figure.
struct DateLue {
    int date = 0;  ///< 0: none
    bool entiere = false;
};

QString sansAccents(const QString& texte) {
    return texte.normalized(QString::NormalizationForm_D)
        .remove(QRegularExpression(u"\\p{M}"_s))
        .toCaseFolded();
}

/// The number of a month given by figures or by the start of its name; 0 for none, or for several.
int moisLu(const QString& mot) {
    if (mot.at(0).isDigit()) return mot.toInt();
    int trouve = 0;
    for (int mois = 1; mois <= 12; ++mois) {
        const QString nom = versQt(DateLongue(2024'00'01 + 100 * mois)).section(u' ', 2, 2);
        if (!sansAccents(nom).startsWith(sansAccents(mot))) continue;
        if (trouve != 0) return 0;
        trouve = mois;
    }
    return trouve;
}

/// The year of four figures or of two; 0 for none.
int anLu(const QString& mot) {
    if (mot.size() == 4) return mot.toInt();
    if (mot.size() != 2) return 0;
    const int an = mot.toInt();
    return an + (an >= SiecleDepuis ? 1900 : 2000);
}

/// What is missing behind comes from `enVigueur`.
DateLue lire(const QString& texte, int enVigueur) {
    static const QRegularExpression mot(u"[0-9]+|\\p{L}+"_s);
    QStringList mots;
    for (auto i = mot.globalMatch(texte); i.hasNext();) mots << i.next().captured();
    if (!mots.isEmpty() && mots.first().at(0).isLetter()) mots.removeFirst();  // the weekday
    if (mots.size() == 1 && mots.first().size() > 2) {                         // 22072024
        const QString suite = mots.takeFirst();
        mots << suite.left(2) << suite.mid(2, 2);
        if (suite.size() > 4) mots << suite.mid(4);
    }
    if (mots.isEmpty() || mots.size() > 3) return {};
    const int jour = mots.first().toInt();
    const int mois = mots.size() > Mois ? moisLu(mots.at(Mois)) : enVigueur / 100 % 100;
    const int an = mots.size() > An ? anLu(mots.at(An)) : enVigueur / 10000;
    const int date = an * 10000 + mois * 100 + jour;
    if (jour > 31 || mois > 12 || !DateValide(date)) return {};
    return {date, mots.size() > An && mots.at(An).size() == 4};
}

}  // namespace

ChampDate::ChampDate(const QString& nom, QWidget* parent)
    : QLineEdit(parent),
      premier_(1'01'01),
      dernier_(9999'12'31),
      mots_(legende({}, parent)),
      fleche_(new QToolButton(this)) {
    setObjectName(nom);
    setMaxLength(LongueurMax);
    mots_->setObjectName(nom + u"Longue"_s);
    // The longest date keeps what stands beside from moving with each draw.
    mots_->setMinimumWidth(fontMetrics().horizontalAdvance(u"mercredi 24 septembre 2024"_s));
    fleche_->setObjectName(nom + u"Fleche"_s);
    fleche_->setArrowType(Qt::DownArrow);
    fleche_->setAutoRaise(true);
    fleche_->setCursor(Qt::ArrowCursor);
    fleche_->setFocusPolicy(Qt::NoFocus);
    fleche_->setAccessibleName(u"Ouvrir le calendrier"_s);
    poserIndice(fleche_, u"Ouvrir le calendrier (F4)"_s);
    const int cote = fontMetrics().height() + Unite / 2;
    fleche_->setFixedWidth(cote);
    setTextMargins(0, 0, cote, 0);
    setFixedWidth(fontMetrics().horizontalAdvance(u"00/00/0000"_s) + cote + 3 * Unite);
    connect(fleche_, &QToolButton::clicked, this, &ChampDate::ouvrirCalendrier);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& texte) {
        montrerMots();
        if (const DateLue lue = lire(texte, date_); lue.entiere && valable()) changer(lue.date);
    });
}

void ChampDate::poserLimites(int premier, int dernier) {
    premier_ = premier;
    dernier_ = dernier;
    montrerMots();
}

void ChampDate::poser(int date) {
    const bool tapee = date == date_ && lire(text(), date_).date == date;
    date_ = date;
    if (!tapee) setText(versQt(DateCourte(date)));
    montrerMots();
}

bool ChampDate::valable() const {
    const int lue = lire(text(), date_).date;
    return lue >= premier_ && lue <= dernier_;
}

/// The day is the one that the user wants.
void ChampDate::changer(int date) {
    if (date == date_) return;
    date_ = date;
    montrerMots();
    Q_EMIT dateChange(date);
}

/// What was typed in part is completed.
void ChampDate::terminer() {
    if (!valable()) return;
    const int date = lire(text(), date_).date;
    setText(versQt(DateCourte(date)));
    changer(date);
}

void ChampDate::montrerMots() {
    const int lue = lire(text(), date_).date;
    QString mots = versQt(DateLongue(lue));
    if (lue == 0) {
        mots = u"date à corriger"_s;
    } else if (lue > dernier_) {
        mots = u"au plus tard le "_s + versQt(DateCourte(dernier_));
    } else if (lue < premier_) {
        mots = u"au plus tôt le "_s + versQt(DateCourte(premier_));
    }
    mots_->setText(mots);
    setAccessibleDescription(mots);
}

// ----------------------------------------------------------------------------------------- typing

/// The part under the cursor; the day where all is selected.
int ChampDate::partie() const {
    const auto debut = hasSelectedText() ? selectionStart() : cursorPosition();
    return static_cast<int>(std::min<qsizetype>(text().left(debut).count(u'/'), An));
}

void ChampDate::viserPartie(int partie) {
    const QString devant = text().section(u'/', 0, partie - 1);
    const auto debut = partie == Jour ? 0 : static_cast<int>(devant.size()) + 1;
    setSelection(debut, static_cast<int>(text().section(u'/', partie, partie).size()));
}

void ChampDate::viser() {
    setFocus();
    viserPartie(Jour);
}

void ChampDate::deplacer(int partie, int pas) {
    terminer();
    const QDate jour = enQDate(date_);
    const QDate voulu = partie == Jour   ? jour.addDays(pas)
                        : partie == Mois ? jour.addMonths(pas)
                                         : jour.addYears(pas);
    const int date = std::clamp(enEntier(voulu), premier_, dernier_);
    setText(versQt(DateCourte(date)));
    viserPartie(partie);
    changer(date);
}

/// Figures go on in the next part when theirs is full, and a separator leads there too, so that
/// a date is typed over another one in one go. True when nothing is left to be done.
bool ChampDate::taper(QChar touche) {
    const bool separateur = u"/-. "_s.contains(touche);
    if (hasSelectedText()) return separateur;  // at the start of a part there is nothing to part
    const int la = partie();
    const auto devant = text().left(cursorPosition()).section(u'/', -1).size();
    const bool auBout = text().mid(cursorPosition()).startsWith(u'/');
    if (touche.isDigit() && la == An) return devant == 4 && cursorPosition() == text().size();
    if (auBout && (separateur || (touche.isDigit() && devant == 2))) {
        viserPartie(la + 1);
        return separateur;
    }
    return false;
}

void ChampDate::keyPressEvent(QKeyEvent* evenement) {
    const auto touche = static_cast<Qt::Key>(evenement->key());
    const bool alt = evenement->modifiers().testFlag(Qt::AltModifier);
    if (touche == Qt::Key_F4 || (touche == Qt::Key_Down && alt)) {
        ouvrirCalendrier();
    } else if (touche == Qt::Key_Up || touche == Qt::Key_Down) {
        deplacer(partie(), touche == Qt::Key_Up ? 1 : -1);
    } else if (touche == Qt::Key_PageUp || touche == Qt::Key_PageDown) {
        deplacer(Mois, touche == Qt::Key_PageUp ? 1 : -1);
    } else if ((touche == Qt::Key_Return || touche == Qt::Key_Enter) && !valable()) {
        viserPartie(Jour);
    } else {
        if (touche == Qt::Key_Return || touche == Qt::Key_Enter) terminer();
        const QString texte = evenement->text();
        if (texte.size() == 1 && taper(texte.at(0))) return;
        QLineEdit::keyPressEvent(evenement);
    }
}

void ChampDate::focusOutEvent(QFocusEvent* evenement) {
    terminer();
    QLineEdit::focusOutEvent(evenement);
}

void ChampDate::focusInEvent(QFocusEvent* evenement) {
    QLineEdit::focusInEvent(evenement);
    vientDEtreVise_ = evenement->reason() == Qt::MouseFocusReason;
}

void ChampDate::mouseReleaseEvent(QMouseEvent* evenement) {
    QLineEdit::mouseReleaseEvent(evenement);
    const bool premier = std::exchange(vientDEtreVise_, false);
    if (hasSelectedText()) return;  // drawn with the pointer
    if (premier) {
        selectAll();
    } else {
        viserPartie(partie());
    }
}

void ChampDate::wheelEvent(QWheelEvent* evenement) {
    // A wheel that passes over must not change the day.
    if (!hasFocus() || evenement->angleDelta().y() == 0) return evenement->ignore();
    deplacer(partie(), evenement->angleDelta().y() > 0 ? 1 : -1);
}

void ChampDate::resizeEvent(QResizeEvent* evenement) {
    QLineEdit::resizeEvent(evenement);
    fleche_->setGeometry(width() - fleche_->width() - 2, 2, fleche_->width(), height() - 4);
}

// --------------------------------------------------------------------------------------- calendar

/// Made anew each time: its colours and its measures are those of the moment.
void ChampDate::ouvrirCalendrier() {
    terminer();
    auto* cadre = new QFrame(this, Qt::Popup);
    cadre->setAttribute(Qt::WA_DeleteOnClose);
    cadre->setAttribute(Qt::WA_NoMouseReplay);  // the press that closes it must not open it again
    cadre->setObjectName(objectName() + u"Calendrier"_s);
    cadre->setFrameStyle(int{QFrame::Box} | int{QFrame::Plain});
    auto* calendrier = new QCalendarWidget(cadre);
    calendrier->setLocale(QLocale(QLocale::French, QLocale::France));
    calendrier->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendrier->setFirstDayOfWeek(Qt::Monday);
    // Only the marked days stand out.
    for (const auto jour : {Qt::Saturday, Qt::Sunday}) calendrier->setWeekdayTextFormat(jour, {});
    calendrier->setDateRange(enQDate(premier_), enQDate(dernier_));
    calendrier->setSelectedDate(enQDate(date_));
    marquer(*calendrier);
    connect(calendrier, &QCalendarWidget::currentPageChanged, this,
            [this, calendrier] { marquer(*calendrier); });
    const auto choisir = [this, cadre](QDate jour) {
        cadre->close();
        setText(versQt(DateCourte(enEntier(jour))));
        changer(enEntier(jour));
    };
    connect(calendrier, &QCalendarWidget::clicked, this, choisir);
    connect(calendrier, &QCalendarWidget::activated, this, choisir);

    // Six weeks below their heading, each day with room for its two figures.
    const QFontMetrics mesures = calendrier->fontMetrics();
    const QSize grille(7 * mesures.horizontalAdvance(u"00000"_s), 8 * (mesures.height() + Unite));
    calendrier->setMinimumSize(calendrier->sizeHint().expandedTo(grille));
    auto* dedans = new QHBoxLayout(cadre);
    dedans->setContentsMargins(1, 1, 1, 1);
    dedans->addWidget(calendrier);
    cadre->adjustSize();
    const QRect ecran = screen()->availableGeometry();
    QPoint coin = mapToGlobal(QPoint(0, height()));
    if (coin.y() + cadre->height() > ecran.bottom()) {
        coin.setY(std::max(ecran.top(), mapToGlobal(QPoint()).y() - cadre->height()));
    }
    coin.setX(
        std::clamp(coin.x(), ecran.left(), std::max(ecran.left(), ecran.right() - cadre->width())));
    cadre->move(coin);
    cadre->show();
    calendrier->setFocus();
}

void ChampDate::marquer(QCalendarWidget& calendrier) const {
    if (!marque_) return;
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    format.setForeground(teintes(palette()).accent);
    const QDate premier(calendrier.yearShown(), calendrier.monthShown(), 1);
    for (int jour = 0; jour < premier.daysInMonth(); ++jour) {
        const QDate date = premier.addDays(jour);
        if (marque_(enEntier(date))) calendrier.setDateTextFormat(date, format);
    }
}

}  // namespace norvane::ui
