// The program's start: the main window made, loaded and wired to what its controls do.
#include "screen/Relie.h"

#include "engine/communs.h"
#include "platform/Ecran.h"
#include "results/Parties.h"
#include "screen/Chargement.h"
#include "screen/Commandes.h"
#include "screen/EcranPrincipal.h"
#include "screen/Etiquettes.h"
#include "screen/Parametrage.h"
#include "screen/VueJeu.h"
#include "services/Donnees.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Patience.h"
#include "services/Sons.h"

#include <QCheckBox>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

bool Form_Unload()
{
    if (!ConfirmeArrêt())
        return false;
    RestaureSonsSystème();
    return true;
}

void RelieEcranPrincipal(EcranPrincipal &E)
{
    for (int i = 0; i < 1; ++i)
        E.ImageRégion[i]->Click = [i] { CliqueCarte(i); };
    for (int i = 1; i <= NombrePlaces; ++i)
        E.inv[i]->Click = [i] { CliqueCarte(Jeu().Cantons[i].Région); };
    QObject::connect(E.BarreH, &QScrollBar::valueChanged, &E, [] { BarreH_Change(); });
    QObject::connect(E.BarreV, &QScrollBar::valueChanged, &E, [] { BarreV_Change(); });
    QObject::connect(E.BoutonPasse, &QToolButton::clicked, &E, [] { BoutonPasse_Click(); });
    QObject::connect(E.BoutonGruge, &QToolButton::clicked, &E, [] { BoutonGruge_Click(); });
    // A check box's change, by the player or by the program, runs its rule at once.
    for (int k = 1; k <= 18; ++k)
        QObject::connect(E.Bouton[k], &QCheckBox::toggled, &E, [k] { Bouton_Click(k); });
    for (int i = 1; i <= 2; ++i)
        QObject::connect(E.BTN[i], &QPushButton::clicked, &E, [i] { BTN_Click(i); });
    RelieCommandes(E);
    // Closing by the menu or the close box asks first; showing unloads the loading form.
    E.ÀLaFermeture = Form_Unload;
    InstalleVueEcran(true);
}

bool Main()
{
    HauteurFenêtre = 0;
    LargeurFenêtre = 0;
    RépertoireApplication = DossierProgramme();
    LitParamètres();
    if (!ParamètresLus)
        return false;
    SonActif = True;
    if (!ChargeCarteZones())
        return false;
    AffichePatience();
    PointeurEcran(PointeurSablier);
    auto *forme = new EcranPrincipal();
    RelieEcranPrincipal(*forme);
    Form_Load();
    forme->show();
    if (Langue != 1)
        ChargeImagesPays();
    PointeurEcran(PointeurNormal);
    return true;
}
