#pragma once
// The game's one main window: the map with its markers, the question panel,
// the score boxes, the parameterisation panel and the menus, under their names.
#include "engine/Partie.h"
#include "platform/Controles.h"

#include <QMainWindow>
#include <QPushButton>
#include <array>
#include <functional>

class QAction;
class QMenu;

class EcranPrincipal : public QMainWindow {
public:
    EcranPrincipal();
    ~EcranPrincipal() override;

    // The size of the question's picture frame, read at load before a question changes it.
    i16 HauteurVignette = 188, LargeurVignette = 200;

    // The window's own geometry, in twips as the game counts it.
    int Left() const;
    int Top() const;
    int Width() const;
    int Height() const;
    void setLeft(int twips);
    void setTop(int twips);
    void setWidth(int twips);
    void setHeight(int twips);
    // The client area in pixels.
    int ScaleWidth() const;
    int ScaleHeight() const;
    // The help page F1 opens: 10 in a game, 65 in parameterisation.
    int HelpContextID() const { return property("HelpContextID").toInt(); }
    void setHelpContextID(int contexte) { setProperty("HelpContextID", contexte); }

    // Map, children of Carte.
    BoîteImage *Carte;
    std::array<Image *, 1> ImageRégion{};
    std::array<Image *, 27> inv{};        // 1..26
    std::array<Image *, 27> Pays{};       // 0 the template, 1..26 made at load
    std::array<Image *, 27> rond{};       // 0 the template, 1..26 made at load
    Image *RondVille, *RondPref, *Rondnoir, *Rondrouge, *Rondjaune, *Rondcible;
    std::array<Image *, 27> miniature{};  // 6, 10 and 23 only

    // Question and score panel.
    Etiquette *QueFaire, *TexteAChercher;
    BoîteImage *ElémentRecherché;
    Image *ImageRecherchée;
    Cadre *BoîteRestants, *BoîteScore;
    std::array<CaseChiffre *, 4> Reste{};  // 1..3
    std::array<CaseChiffre *, 7> Digit{};  // 0 the sign, 1 the units .. 6
    BoutonGraphique *BoutonPasse, *BoutonGruge;
    Image *AmpouleAllumée, *AmpouleEteinte;
    std::array<Image *, 27> drapeau{};     // 1..26
    std::array<Image *, 1> DrapeauPays{};

    BarreDéfilement *BarreH, *BarreV;

    // Parameterisation panel.
    std::array<Etiquette *, 14> LBLParam{}; // 1..13
    std::array<CaseACocher *, 19> Bouton{}; // 1..18
    std::array<QPushButton *, 3> BTN{};     // 1..2


    // Menus.
    QMenu *MenuFichier, *MenuParamétrer, *MenuScores, *MenuLangue;
    QAction *FichierNouveau, *FichierEnregistrer, *FichierLire, *FichierVersion, *FichierQuitter;
    QAction *MenuAfficheParamètres, *MenuDéfaut, *MenuRecharger, *MenuDéfinir, *Menuson;
    QAction *MenuCouleurCapitalesATrouver, *MenuCouleurCapitalesTrouvées, *MenuInf, *MenuFichInfo;
    QAction *ScoreEnCours, *ScoreFacile, *ScoreMoyen, *ScoreDifficile, *ScoreExpert, *MenuRazScores, *MenuPointsFaibles, *MenuProgression;
    QAction *MenuRévision;
    QAction *MenuFrançais, *MenuAllemand, *MenuAutreLangue;
    QAction *MenuAide, *MenuAPropos;

    // Makes Pays(i) or rond(i) from its template, hidden, at the template's place.
    Image *CréeDepuisModèle(Image *modèle);

protected:
    void showEvent(QShowEvent *e) override;
    void changeEvent(QEvent *e) override;
    void closeEvent(QCloseEvent *e) override;

public:
    // Asked before the window closes; false keeps it open.
    std::function<bool()> ÀLaFermeture;

private:
    void ConstruitMenus();
    bool premierAffichage = true;
};

// The main form, found among the loaded forms; nullptr before it is made.
EcranPrincipal *FormePrincipale();
EcranPrincipal &Principal();
// Width and height of Pays(i) at 100 %.
QSize TaillePays(int i);
// Index of the form named "EcranPrincipal" among the top-level forms, -1 if none.
int IndiceEcranPrincipal();

