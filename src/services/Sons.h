#pragma once
// The game's five sounds; whether they play at all is the player's choice.
#include "engine/communs.h"

// The files of the game's sounds, and those of the desktop's message boxes, which
// are silenced while the game runs.
struct TSonsJeu {
    QString SonBravo, SonErreur, SonEtape, SonPerdu, SonInfo;
    QString SonSystèmeExclamation, SonSystèmeAsterisk, SonSystèmeHand, SonSystèmeQuestion;
};
TSonsJeu &SonsJeu();

// Starts the sound without waiting for it, when sound is on.
void JoueSon(const QString &chemin);

void CoupeSonsSystème();
// Gives the desktop back the sounds of its message boxes.
void RestaureSonsSystème();
