#include "screen/Parametrage.h"

#include "engine/communs.h"
#include "screen/EcranPrincipal.h"

#include <QMenu>

i16 LancementDemandé = False;

namespace {
void MontrePanneau(bool visible)
{
    auto &E = Principal();
    for (int i = 1; i <= 13; ++i)
        E.LBLParam[i]->setVisible(visible);
    for (int i = 1; i <= 18; ++i)
        E.Bouton[i]->setVisible(visible);
    E.BTN[1]->setVisible(visible);
    E.BTN[2]->setVisible(visible);
}

void MenusDeJeu(bool actifs)
{
    auto &E = Principal();
    E.MenuFichier->setEnabled(actifs);
    E.MenuScores->setEnabled(actifs);
    E.MenuRévision->setEnabled(actifs);
    E.MenuParamétrer->setEnabled(actifs);
}
} // namespace

void AfficheParamétrage()
{
    MontrePanneau(true);
    // While a set is edited only its own OK and Annuler lead out.
    MenusDeJeu(Etape != 5);
}

void CacheParamétrage()
{
    MontrePanneau(false);
    MenusDeJeu(true);
}
