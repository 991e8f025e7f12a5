#include "engine/specifiques.h"

void InitialisationSpécifique() {}

void CorrectionZone(i16 &) {}

i16 NuméroPlace(i16 c) { return c; }

void PoidsSpécifiques()
{
    Jeu().PoidsEtapes[1] = 1;
    Jeu().PoidsEtapes[2] = 2;
    Jeu().PoidsEtapes[3] = 4;
    Jeu().PoidsEtapes[4] = 1;
    const int somme = Jeu().PoidsEtapes[1] + Jeu().PoidsEtapes[2] + Jeu().PoidsEtapes[3] + Jeu().PoidsEtapes[4];
    Jeu().PointsParCanton = Jeu().NombreCantons > 0 ? 999999 / (somme * Jeu().NombreCantons) : 0;
}

