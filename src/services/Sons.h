#pragma once
// The game's five sounds; whether they play at all is the player's choice.
#include "engine/communs.h"

extern bool SonActif;
extern QString SonBravo, SonErreur, SonEtape, SonPerdu, SonInfo;

// Starts the sound without waiting for it, when sound is on.
void JoueSon(const QString &chemin);

// The sounds of the desktop's message boxes, silenced while the game runs.
extern QString SonSystèmeExclamation, SonSystèmeAsterisk, SonSystèmeHand, SonSystèmeQuestion;
void CoupeSonsSystème();
// Gives the desktop back the sounds of its message boxes.
void RestaureSonsSystème();
