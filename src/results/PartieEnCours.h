#pragma once
// The program's one game, made at the start and lent to the windows that draw it
// and to the code that stores its results. The rules themselves are handed the game.
#include "engine/Partie.h"

Partie &Jeu();
