#pragma once
// The game's results: the score lists and the new game's dialog.
#include "results/Scores.h"
// The new game's dialog, shown modally: name, level, clock.
void MontreNouvellePartie();
// Keeps the player's name for the next game.
void EnregistreJoueur();

#include <functional>
// For tests: what runs in place of the modal dialog (it sets what OK or Cancel would).
void InstalleDialogueNouvellePartie(std::function<void()> script);
