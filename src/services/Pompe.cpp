#include "services/Pompe.h"

#include "engine/communs.h"
#include "engine/specifiques.h"
#include "platform/Boites.h"
#include "services/Fiches.h"
#include "services/Langues.h"

void MontrePompe()
{
    // The card's text from the information file of the language in use, under the canton's name.
    if (CantonFiche < 1 || CantonFiche > NombrePlaces)
        return;
    const TCanton &c = Cantons[CantonFiche];
    QString texte = c.Nom + QStringLiteral(" (") + Plaques[CantonFiche] + QStringLiteral(")") + FinDeLigne +
                    Messages[115] + QStringLiteral(" : ") + c.ChefLieu;
    TFiche fiche;
    if (Langue >= 1 && Langue < int(CheminsInfo.size()) && LitFicheInfo(CheminsInfo[Langue], CantonFiche, fiche))
        texte += FinDeLigne + FinDeLigne + fiche.Texte;
    Boîte(texte, StyleInformation, Messages[114]);
}
