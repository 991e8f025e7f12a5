#include "results/Resultats.h"

#include "engine/communs.h"
#include "platform/Boites.h"
#include "platform/Formes.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "services/Sons.h"
#include "results/PartieEnCours.h"

#include <functional>

void EnregistreJoueur() { EcritValeur(CléJeu, QStringLiteral("joueur"), Jeu().NomJoueur); }
