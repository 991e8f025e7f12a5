#include "engine/Vue.h"

VueJeu &Vue(const Partie &P)
{
    static VueJeu silencieuse;
    return P.Ecouteur ? *P.Ecouteur : silencieuse;
}
