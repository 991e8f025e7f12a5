#include "engine/specifiques.h"

void InitialisationSpécifique() {}

void CorrectionZone(i16 &) {}

i16 NuméroPlace(i16 c) { return c; }

void PoidsSpécifiques()
{
    PoidsEtapes[1] = 1;
    PoidsEtapes[2] = 2;
    PoidsEtapes[3] = 4;
    PoidsEtapes[4] = 1;
    const int somme = PoidsEtapes[1] + PoidsEtapes[2] + PoidsEtapes[3] + PoidsEtapes[4];
    PointsParCanton = Jeu().NombreCantons > 0 ? 999999 / (somme * Jeu().NombreCantons) : 0;
}

