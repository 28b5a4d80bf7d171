// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Résultats": one draw at a time, the board and its free choice; the tickets stand in
// SaisieGrilles, their reports in CalculGains.
#pragma once

#include <array>
#include <vector>

#include "pages/Page.h"

class QComboBox;
class QDateEdit;
class QFrame;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace norvane::ui {

class BandeTirage;
class CalculGains;
class ChampNumero;
class FicheGrille;
class HautBas;
class PanneauAleatoire;
class PlancheNumeros;
class SaisieGrilles;
class SaisieJoker;
class TableRapports;
enum class EtatTickets;

/// Numbers and chances of the free choice, ascending.
struct ChoixLibre {
    std::vector<int> numeros;
    std::vector<int> chances;

    bool vide() const { return numeros.empty() && chances.empty(); }
};

class PageResultats final : public Page {
    Q_OBJECT

 public:
    explicit PageResultats(Contexte& ctx, QWidget* parent = nullptr);

    /// First showing of the window: the last draw. To be called with at least one record.
    void premierAffichage() override;
    /// Shows draw `numero` (one-based; out of range: the nearest).
    void montrerTirage(int numero);
    /// Validates a free choice in progress and leaves the consultation.
    void quitterChoixEtConsultation();
    /// Presses the button of a number or a Chance if it is up. Does nothing while tickets are
    /// entered.
    void appuyer(GenreStats genre, int element);
    /// The window closes during an entry: what becomes of the ticket in hand is SaisieGrilles's.
    void rangerGrilleEnMain();
    /// Copies lines of a list to the stock of grids and opens the consultation on it.
    void CopierversBulletins(const std::vector<Grille>& grilles);

    /// What is held down in a free choice, in progress or validated.
    ChoixLibre choixLibre() const;

    void surChange(const Changement& changement) override;
    bool ouvrir(const Destination& destination) override;

    // The handlers of the draw controls.
    void ChoisirParDate();
    void ChoisirParNumero();

 private:
    // Construction.
    void construire();
    QFrame* creerFicheTirage();
    QFrame* creerFicheRapports();
    QHBoxLayout* creerBoutons();
    void relier();
    void relierBillets();
    void poserLimites();

    // Browsing and display.
    const Base& base() const { return contexte.atelier.base; }
    int dateChoisie() const;
    void ChoisirSousTirage();
    void choisirDate(int date);
    void deplacer(int pas);
    void reglerSelecteur(int date);
    int selonSelecteur(int indice);
    void afficher(int indice);
    void afficherAbsence();
    void disposer(int date);
    void afficherCellules();
    void AfficherRapports();
    void AfficherNumeroAnnee();
    void AfficherStatsBoutons();
    void eclairer();
    bool plancheLibre() const;
    bool selecteur2nd() const;
    void marquerCalendrier(int annee, int mois);

    // Free choice and modes.
    void presser(int place);
    void basculer(int place, bool durable);
    void DeSelectClick();
    void ReInitClick();
    void rendrePlanche();
    void changerMode();
    void majCommandes();
    void majCommandesFiche();
    void majVolet();
    void majFicheGrille();

    // State.
    int indice_ = -1;      ///< record on show, -1 when the date chosen has none
    int TirageAvant = -1;  ///< that being so, the last record before it
    bool DateSansTirage = false;
    bool garde_ = false;         ///< a handler is at work: what it changes calls no other
    bool choixEnCours_ = false;  ///< "&OK!" stands on ReInit
    std::array<std::uint8_t, NumeroMax + ChanceMax> choix_{};  ///< the free choice, by place
    EtatTickets modeDit_{};                                    ///< what the form was last told

    // Controls; their object names are the ones that the handlers above speak of.
    QDateEdit* DateTimePicker = nullptr;
    ChampNumero* EditTirGlob = nullptr;
    HautBas* UpDown1 = nullptr;
    QLabel* surTotal_ = nullptr;
    QComboBox* ComboBox3 = nullptr;
    QLabel* LabelTirageFixeNum = nullptr;
    QLabel* LabelTirageFixeAn = nullptr;
    BandeTirage* bande_ = nullptr;
    QLineEdit* MaskEdit1 = nullptr;
    QWidget* caseJoker_ = nullptr;
    QHBoxLayout* placeJoker_ = nullptr;
    QLabel* titreRapports_ = nullptr;
    QStackedWidget* volet_ = nullptr;  ///< rapports_, or a panel of the entry
    QStackedWidget* rapports_ = nullptr;
    TableRapports* AdvStringGrid6 = nullptr;
    TableRapports* AdvStringGrid8 = nullptr;
    PlancheNumeros* planche_ = nullptr;
    FicheGrille* fiche_ = nullptr;
    PanneauAleatoire* aleatoire_ = nullptr;
    SaisieJoker* joker_ = nullptr;
    SaisieGrilles* saisie_ = nullptr;
    CalculGains* gains_ = nullptr;
    QPushButton* CommunsButton = nullptr;
    QPushButton* DeSelect = nullptr;
    QPushButton* ReInit = nullptr;
    QPushButton* SelectGrilles = nullptr;
    QPushButton* Consultation = nullptr;
    QPushButton* NormalMode = nullptr;
    QPushButton* MajBaseManuelle = nullptr;
    QPushButton* VerifGains = nullptr;
    QPushButton* ChargerGrilles = nullptr;
    QPushButton* ButtonSauverGrilles = nullptr;
    QProgressBar* jauge_ = nullptr;
};

}  // namespace norvane::ui
