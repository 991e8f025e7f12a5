#pragma once
// This game's own part: the size and filling of the canton table, and the
// fourth step kind, the plate letters, which the common code doesn't know.
#include "engine/Partie.h"

void InitialisationSpécifique();
void CorrectionZone(i16 &c);
i16 NuméroPlace(i16 c);
void PoidsSpécifiques(Partie &P);
