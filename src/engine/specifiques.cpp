#include "engine/specifiques.h"

void InitialisationSpécifique() {}

void CorrectionZone(i16 &) {}

i16 NuméroPlace(i16 c) { return c; }

void PoidsSpécifiques(Partie &P)
{
    P.PoidsEtapes[1] = 1;
    P.PoidsEtapes[2] = 2;
    P.PoidsEtapes[3] = 4;
    P.PoidsEtapes[4] = 1;
    const int somme = P.PoidsEtapes[1] + P.PoidsEtapes[2] + P.PoidsEtapes[3] + P.PoidsEtapes[4];
    P.PointsParCanton = P.NombreCantons > 0 ? 999999 / (somme * P.NombreCantons) : 0;
}

