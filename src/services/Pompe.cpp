#include "services/Pompe.h"

#include "engine/communs.h"
#include "platform/Boites.h"
#include "services/Langues.h"

void MontrePompe()
{
    // The card shows what the table knows of the canton until the information files are read.
    if (CantonFiche < 1 || CantonFiche > NombrePlaces)
        return;
    const TCanton &c = Cantons[CantonFiche];
    Boîte(c.Nom + FinDeLigne + Messages[115] + QStringLiteral(" : ") + c.ChefLieu, StyleInformation, Messages[114]);
}
