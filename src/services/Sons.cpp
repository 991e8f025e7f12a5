#include "services/Sons.h"

#include "platform/Son.h"

i16 SonActif = True;
QString SonBravo, SonErreur, SonEtape, SonPerdu, SonInfo;

void JoueSon(const QString &chemin)
{
    if (SonActif)
        JoueFichierSon(chemin);
}

void RestaureSonsSystème()
{
    // This desktop's message boxes make no sound of their own, so nothing was silenced.
}
