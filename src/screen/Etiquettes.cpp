#include "screen/Parametrage.h"
#include "screen/Etiquettes.h"

#include "engine/communs.h"
#include "engine/specifiques.h"
#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "platform/Images.h"
#include "screen/EcranPrincipal.h"
#include "screen/VueJeu.h"
#include "services/Chemins.h"
#include "services/Donnees.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Registre.h"
#include "services/Sons.h"
#include "results/PartieEnCours.h"

#include <QAction>
#include <QMenu>

void ChargeImagesPays()
{
    // The hidden form of names holds element k + 150 × (language − 1): here, the
    // picture of that language under the canton's number.
    auto &E = Principal();
    for (int k = 1; k <= NombrePlaces; ++k)
        E.Pays[k]->setPicture(ImageJeu(NomImagePays(k, Langue), TaillePays(k)));
}

void EtiquetteEcran()
{
    auto &E = Principal();
    if (Jeu().Etape == TEtape::Cantons && Jeu().CantonRecherché != 0)
        E.TexteAChercher->setText(Jeu().Cantons[Jeu().CantonRecherché].Nom);
    if (Jeu().Etape == TEtape::ChefsLieux && Jeu().CantonRecherché != 0)
        E.TexteAChercher->setText(Jeu().Cantons[Jeu().CantonRecherché].ChefLieu);

    E.setWindowTitle(Messages[110].trimmed());
    E.BoîteRestants->setTitle(Messages[111]);
    E.BoîteScore->setTitle(Messages[112]);
    E.QueFaire->setText(Messages[113]);
    E.ScoreEnCours->setText(Messages[51]);
    E.ScoreFacile->setText(Messages[52]);
    E.ScoreMoyen->setText(Messages[53]);
    E.ScoreExpert->setText(Messages[141]);
    E.ScoreDifficile->setText(Messages[54]);
    E.MenuFichier->setTitle(Messages[55]);
    E.FichierNouveau->setText(Messages[56]);
    E.FichierEnregistrer->setText(Messages[57]);
    E.FichierLire->setText(Messages[58]);
    E.FichierQuitter->setText(Messages[59]);
    E.MenuScores->setTitle(Messages[60]);
    E.MenuRazScores->setText(Messages[61]);
    E.MenuRévision->setText(Messages[62]);
    E.MenuParamétrer->setTitle(Messages[63]);
    E.MenuAfficheParamètres->setText(Messages[64]);
    E.MenuRecharger->setText(Messages[65]);
    E.MenuDéfinir->setText(Messages[66]);
    E.MenuAide->setText(Messages[67]);
    E.MenuAPropos->setText(Messages[17]);
    E.MenuDéfaut->setText(Messages[139]);
    E.MenuInf->setText(Messages[140]);
    E.BoutonPasse->setToolTip(Messages[142]);
    E.FichierVersion->setText(Messages[159]);
    E.MenuCouleurCapitalesATrouver->setText(Messages[160]);
    E.MenuCouleurCapitalesTrouvées->setText(Messages[161]);
    E.MenuFichInfo->setText(Messages[168]);
    E.LBLParam[1]->setText(Messages[68]);
    E.LBLParam[2]->setText(Jeu().Etape == TEtape::ParamétrageAffiché ? Messages[70] : Messages[69]);
    if (FichierLancement != QLatin1String("~tmp.~cf"))
        E.LBLParam[3]->setText(Messages[71] + QLatin1Char('\n') + FichierLancement);
    else
        E.LBLParam[3]->setText(Messages[94]);
    E.Menuson->setText(SonActif ? Messages[157] : Messages[158]);
    E.LBLParam[4]->setText(Messages[72]);
    E.LBLParam[5]->setText(Messages[73]);
    E.LBLParam[6]->setText(Messages[74]);
    E.LBLParam[7]->setText(Messages[75]);
    E.LBLParam[12]->setText(Messages[78]);
    E.LBLParam[13]->setText(Messages[79]);
    E.BTN[2]->setText(Messages[80]);
    LibelléSpécifique();
}

void ChangeLangue(int n)
{
    PointeurEcran(PointeurSablier);
    if (n > NombreLangues) {
        Boîte(Messages[126], StyleExclamation, Messages[127]);
        PointeurEcran(PointeurNormal);
        return;
    }
    if (n == Langue) {
        PointeurEcran(PointeurNormal);
        return;
    }
    Langue = static_cast<short>(n);
    ChargeImagesPays();
    ChargeMessages();
    ChargeCantons(Jeu());
    FichierAide = ComposeChemin(RépertoireApplication, NomsFichiersAide[Langue]);
    EtiquetteEcran();
    CacheMarques();
    CacheZoneJeu();
    MontreCantons();
    AffichePanneau();
    EcritValeur(CléJeu, QStringLiteral("langue"), QLatin1Char(' ') + QString::number(Langue));
    if (Jeu().Etape == TEtape::Révision) {
        auto &E = Principal();
        for (int k = 1; k <= NombrePlaces; ++k)
            E.rond[k]->setToolTip(Jeu().Cantons[k].ChefLieu);
    }
    PointeurEcran(PointeurNormal);
}
