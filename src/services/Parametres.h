#pragma once
// The settings held in memory for the whole run, and the reading of them at the
// start, which tells a first run from an upgrade and from an ordinary run.
#include "engine/Partie.h"
#include "services/Reglages.h"

// Reads the settings and the messages of the language in use (the player's name into P), and makes the save
// folder the current one.
void LitParamètres(Partie &P);
// The first run: every value at its default, the reminder shown.
void PremierLancement();
// Another version ran last: the folders and the score file back to their defaults.
void MiseAJourVersion();
void DossiersParDéfaut();
