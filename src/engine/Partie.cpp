#include "engine/Partie.h"

Partie &Jeu()
{
    static Partie partie;
    return partie;
}
