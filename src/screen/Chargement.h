#pragma once
// The main window's load, its fit to the screen and the scrolling of the map.
#include "engine/Partie.h"

class EcranPrincipal;

void Form_Load();
void ChargeEcranPrincipal();
