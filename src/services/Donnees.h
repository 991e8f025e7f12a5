#pragma once
// The game's data as it starts: the canton table from the strings of the language in
// use, the plate letters, and the map's raster from KELMOR.pts beside the program.
#include "engine/Partie.h"

void ChargeCantons(Partie &P);
void ChargePlaques(Partie &P);

// False, once the player is told, when the raster is missing or damaged: the game
// can't be played without it.
bool ChargeCarteZones(TCarteZones &carte);
