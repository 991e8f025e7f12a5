// Any bytes as a score file: no crash, the lists never past ten lines, the step
// order always one the game can play.
#include "engine/communs.h"
#include "results/Scores.h"
#include "services/Langues.h"
#include "results/PartieEnCours.h"

#include <QCoreApplication>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    ChargeChaînes();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *octets, size_t taille)
{
    RazScores();
    LitScores(QByteArray(reinterpret_cast<const char *>(octets), qsizetype(taille)));
    for (int n = 0; n <= 4; ++n)
        if (Jeu().NombreScores[n] < 0 || Jeu().NombreScores[n] > 10)
            std::abort();
    for (int i = 1; i <= 4; ++i)
        if (Jeu().OrdreEtapes[i] < TEtape::Aucune || Jeu().OrdreEtapes[i] > TEtape::Plaques)
            std::abort();
    // What was read writes back without trouble.
    if (ContenuScores(true).size() % 128 != 0)
        std::abort();
    Jeu().NombreScores[0] = 0;
    return 0;
}
