#include "results/Resultats.h"

#include "engine/communs.h"
#include "platform/Boites.h"
#include "platform/Formes.h"
#include "results/NouvellePartie.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "services/Sons.h"

#include <functional>

void EnregistreJoueur() { EcritValeur(CléJeu, QStringLiteral("joueur"), Jeu().NomJoueur); }

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
    ExécuteModal(dialogue);
}
