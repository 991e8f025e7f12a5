#include "results/PartieEnCours.h"

Partie &Jeu()
{
    static Partie partie;
    return partie;
}
