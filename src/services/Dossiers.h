#pragma once
// What the folder form and the file dialog are asked for, and how the settings ask
// the windows for the folder form.
#include "engine/Partie.h"

#include <functional>

// What the file dialog or the folder form is opened for, set by the caller just before.
enum class TModeRépertoires : i16 {
    Aucun = 0,
    Sauvegarde = 1,           // a game or a parameter set saved under a new name
    Chargement = 2,           // a saved game or a parameter set loaded
    SauvegardeAvecScores = 3, // the parameter set in use saved under a new name, scores included
    DossierInformation = 6,   // the folder of the information cards
    DossierJeu = 7,           // the folder of scores, parameter sets and saved games
};
// The kind of file the file dialog works on.
enum class TTypeFichier : i16 { Partie = 4, Paramétrage = 5 };
// What the file dialog or the folder form is asked for, set by the caller just before.
struct TDemandeDossier {
    TModeRépertoires ModeRépertoires = TModeRépertoires::Aucun;
    TTypeFichier TypeFichier = TTypeFichier::Partie;
    // The parameter set being saved must become the one used at the next starts.
    bool LancementDemandé = false;
    bool SortieParamétrage = false;
};
TDemandeDossier &DemandeDossier();

// Shows the folder form for that mode, through the windows that installed it (nothing
// happens while none is installed, as in tests of the settings alone).
void ChoisitDossier(TModeRépertoires mode);
void InstalleChoixDossier(std::function<void()> montre);
