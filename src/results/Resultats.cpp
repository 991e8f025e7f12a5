#include "results/Resultats.h"

#include "engine/communs.h"
#include "platform/Boites.h"
#include "results/NouvellePartie.h"
#include "services/Langues.h"
#include "services/Sons.h"

#include <functional>

void ChargeScores()
{
    // Until score files are read the game plays the default set: every canton, steps 1 to 4.
    for (int k = 1; k <= 4; ++k)
        OrdreEtapes[k] = static_cast<i16>(k);
    for (int i = 1; i <= NombrePlaces; ++i)
        Cantons[i].Inhibé = False;
}

void EnregistreScore()
{
    if (ScoreGelé) {
        JoueSon(SonPerdu);
        Boîte(Messages[44], StyleInformation, Messages[35]);
    } else {
        DuréePartie = DuréeDepuis(HeureDépart);
    }
    PartieEnregistrée = True;
    ScoresFinPartie = True;
}

void EnregistreJoueur()
{
    // The player's name is kept for the run; the settings store keeps it across runs.
}

namespace {
std::function<void()> dialogueScripté;
}

void InstalleDialogueNouvellePartie(std::function<void()> script) { dialogueScripté = std::move(script); }

void MontreNouvellePartie()
{
    if (dialogueScripté) {
        dialogueScripté();
        return;
    }
    NouvellePartie dialogue;
    dialogue.exec();
}
