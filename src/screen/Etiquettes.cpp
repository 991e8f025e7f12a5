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
        E.Pays[k]->setPicture(ImageJeu(NomImagePays(k, Langues().Langue), TaillePays(k)));
}

void EtiquetteEcran()
{
    auto &E = Principal();
    if (Jeu().Etape == TEtape::Cantons && Jeu().CantonRecherché != 0)
        E.TexteAChercher->setText(Jeu().Cantons[Jeu().CantonRecherché].Nom);
    if (Jeu().Etape == TEtape::ChefsLieux && Jeu().CantonRecherché != 0)
        E.TexteAChercher->setText(Jeu().Cantons[Jeu().CantonRecherché].ChefLieu);

    E.setWindowTitle(Langues().Messages[110].trimmed());
    E.BoîteRestants->setTitle(Langues().Messages[111]);
    E.BoîteScore->setTitle(Langues().Messages[112]);
    E.QueFaire->setText(Langues().Messages[113]);
    E.ScoreEnCours->setText(Langues().Messages[51]);
    E.ScoreFacile->setText(Langues().Messages[52]);
    E.ScoreMoyen->setText(Langues().Messages[53]);
    E.ScoreExpert->setText(Langues().Messages[141]);
    E.ScoreDifficile->setText(Langues().Messages[54]);
    E.MenuFichier->setTitle(Langues().Messages[55]);
    E.FichierNouveau->setText(Langues().Messages[56]);
    E.FichierEnregistrer->setText(Langues().Messages[57]);
    E.FichierLire->setText(Langues().Messages[58]);
    E.FichierQuitter->setText(Langues().Messages[59]);
    E.MenuScores->setTitle(Langues().Messages[60]);
    E.MenuRazScores->setText(Langues().Messages[61]);
    E.MenuRévision->setText(Langues().Messages[62]);
    E.MenuParamétrer->setTitle(Langues().Messages[63]);
    E.MenuAfficheParamètres->setText(Langues().Messages[64]);
    E.MenuRecharger->setText(Langues().Messages[65]);
    E.MenuDéfinir->setText(Langues().Messages[66]);
    E.MenuAide->setText(Langues().Messages[67]);
    E.MenuAPropos->setText(Langues().Messages[17]);
    E.MenuDéfaut->setText(Langues().Messages[139]);
    E.MenuInf->setText(Langues().Messages[140]);
    E.BoutonPasse->setToolTip(Langues().Messages[142]);
    E.FichierVersion->setText(Langues().Messages[159]);
    E.MenuCouleurCapitalesATrouver->setText(Langues().Messages[160]);
    E.MenuCouleurCapitalesTrouvées->setText(Langues().Messages[161]);
    E.MenuFichInfo->setText(Langues().Messages[168]);
    E.LBLParam[1]->setText(Langues().Messages[68]);
    E.LBLParam[2]->setText(Jeu().Etape == TEtape::ParamétrageAffiché ? Langues().Messages[70] : Langues().Messages[69]);
    if (Réglages().FichierLancement != QLatin1String("~tmp.~cf"))
        E.LBLParam[3]->setText(Langues().Messages[71] + QLatin1Char('\n') + Réglages().FichierLancement);
    else
        E.LBLParam[3]->setText(Langues().Messages[94]);
    E.Menuson->setText(Réglages().SonActif ? Langues().Messages[157] : Langues().Messages[158]);
    E.LBLParam[4]->setText(Langues().Messages[72]);
    E.LBLParam[5]->setText(Langues().Messages[73]);
    E.LBLParam[6]->setText(Langues().Messages[74]);
    E.LBLParam[7]->setText(Langues().Messages[75]);
    E.LBLParam[12]->setText(Langues().Messages[78]);
    E.LBLParam[13]->setText(Langues().Messages[79]);
    E.BTN[2]->setText(Langues().Messages[80]);
    LibelléSpécifique();
}

void ChangeLangue(int n)
{
    PointeurEcran(PointeurSablier);
    if (n > Langues().NombreLangues) {
        Boîte(Langues().Messages[126], StyleExclamation, Langues().Messages[127]);
        PointeurEcran(PointeurNormal);
        return;
    }
    if (n == Langues().Langue) {
        PointeurEcran(PointeurNormal);
        return;
    }
    Langues().Langue = static_cast<short>(n);
    ChargeImagesPays();
    ChargeMessages();
    ChargeCantons(Jeu());
    Langues().FichierAide = ComposeChemin(Réglages().RépertoireApplication, Langues().NomsFichiersAide[Langues().Langue]);
    EtiquetteEcran();
    CacheMarques();
    CacheZoneJeu();
    MontreCantons();
    AffichePanneau();
    EcritValeur(CléJeu, QStringLiteral("langue"), QLatin1Char(' ') + QString::number(Langues().Langue));
    if (Jeu().Etape == TEtape::Révision) {
        auto &E = Principal();
        for (int k = 1; k <= NombrePlaces; ++k)
            E.rond[k]->setToolTip(Jeu().Cantons[k].ChefLieu);
    }
    PointeurEcran(PointeurNormal);
}
