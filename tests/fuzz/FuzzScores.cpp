// Any bytes as a score file: no crash, the lists never past ten lines, the step order
// always one the game can play, and what was read writes back.
#include "Fuzz.h"
#include "results/Scores.h"
#include "results/PartieEnCours.h"

void Essaie(const QByteArray &octets)
{
    RazScores();
    LitScores(octets);
    for (int n = 0; n <= 4; ++n)
        Vérifie(Jeu().NombreScores[n] >= 0 && Jeu().NombreScores[n] <= 10);
    for (int i = 1; i <= 4; ++i)
        Vérifie(Jeu().OrdreEtapes[i] >= TEtape::Aucune && Jeu().OrdreEtapes[i] <= TEtape::Plaques);
    Vérifie(ContenuScores(true).size() % 128 == 0);
    Jeu().NombreScores[0] = 0;
}
