// The main window's load, its fit to the screen and the scrolling of the map, and the
// wiring of its controls to what they do.
#include "screen/Ajustement.h"
#include "screen/Chargement.h"

#include "engine/communs.h"
#include "engine/specifiques.h"
#include "platform/Ecran.h"
#include "platform/Horloge.h"
#include "results/Resultats.h"
#include "screen/EcranPrincipal.h"
#include "screen/Etiquettes.h"
#include "screen/VueJeu.h"
#include "services/Chemins.h"
#include "services/Donnees.h"
#include "services/Fiches.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "screen/Patience.h"
#include "services/Sons.h"
#include "results/PartieEnCours.h"

#include <QFile>
#include <QFileInfo>
#include <QLayout>



// ---------------------------------------------------------------- load

void Form_Load()
{
    const InfoEcran écran = MesureEcran();
    EcranMesuré().LargeurEcran = écran.largeur;
    EcranMesuré().HauteurEcran = écran.hauteur;
    ChargeEcranPrincipal();
}


void ChargeEcranPrincipal()
{
    auto &E = Principal();
    E.setTop(0);
    PointeurEcran(PointeurSablier);
    EtiquetteEcran();
    Langues().FichierAide = ComposeChemin(Réglages().RépertoireDonnées, Langues().NomsFichiersAide[Langues().Langue]);
    ChargeScores();
    E.HauteurVignette = static_cast<i16>(E.ImageRecherchée->Height());
    E.LargeurVignette = static_cast<i16>(E.ImageRecherchée->Width());
    ChargeCantons(Jeu());
    AjusteEcran();
    E.setTop((EcranMesuré().HauteurEcran - E.ScaleHeight()) / 2 * TwipsPerPixelX);
    E.setLeft((EcranMesuré().LargeurEcran - E.ScaleWidth()) / 2 * TwipsPerPixelX);
    E.update();
    Randomize();
    InitialisationSpécifique();

    for (int i = 1; i <= NombrePlaces; ++i) {
        E.rond[i] = E.CréeDepuisModèle(E.rond[0]);
        E.Pays[i] = E.CréeDepuisModèle(E.Pays[0]);
        E.rond[i]->setObjectName(QStringLiteral("rond%1").arg(i, 2, 10, QLatin1Char('0')));
        E.Pays[i]->setObjectName(QStringLiteral("Pays%1").arg(i, 2, 10, QLatin1Char('0')));
        E.rond[i]->Click = [i] { rond_Click(Jeu(), static_cast<i16>(i)); };
        E.Pays[i]->Click = [i] { CliqueCarte(Jeu().Cantons[i].Région); };
        E.Pays[i]->hide();
        E.rond[i]->hide();
        E.inv[i]->hide();
        const Image *R = E.ImageRégion[Jeu().Cantons[i].Région];
        E.rond[i]->move(R->Left() + Jeu().Cantons[i].VilleGauche, R->Top() + Jeu().Cantons[i].VilleHaut);
        E.Pays[i]->move(R->Left() + Jeu().Cantons[i].PaysGauche, R->Top() + Jeu().Cantons[i].PaysHaut);
        E.inv[i]->move(E.Pays[i]->pos());
    }
    ChargeImagesPays();

    SonsJeu().SonErreur = ComposeChemin(Réglages().RépertoireDonnées, QStringLiteral("carte_er.wav"));
    SonsJeu().SonBravo = ComposeChemin(Réglages().RépertoireDonnées, QStringLiteral("carte_ok.wav"));
    SonsJeu().SonEtape = ComposeChemin(Réglages().RépertoireDonnées, QStringLiteral("carte_ga.wav"));
    SonsJeu().SonPerdu = ComposeChemin(Réglages().RépertoireDonnées, QStringLiteral("carte_pe.wav"));
    SonsJeu().SonInfo = ComposeChemin(Réglages().RépertoireDonnées, QStringLiteral("carte_hl.wav"));

    Jeu().Niveau = TNiveau::Aucun;

    // Dots over all borders, a later canton's border over an earlier one's.
    E.ImageRégion[0]->raise();
    for (int i = 1; i <= NombrePlaces; ++i)
        if (Jeu().Cantons[i].Région == 0) {
            E.Pays[i]->raise();
            E.inv[i]->raise();
        }
    for (int i = 1; i <= NombrePlaces; ++i)
        if (Jeu().Cantons[i].Région == 0)
            E.rond[i]->raise();

    // A missing card file is first copied from the cards the game ships, so that the player
    // edits a copy of their own; without those it is made anew. Whatever fails here, the
    // game starts without cards.
    for (int i = 1; i <= Langues().NombreLangues; ++i) {
        Langues().CheminsInfo[i] = ComposeChemin(Réglages().RépertoireInfo, Langues().NomsFichiersInfo[i]);
        const QString livrées = ComposeChemin(Réglages().RépertoireDonnées, Langues().NomsFichiersInfo[i]);
        const QString &chemin = Langues().CheminsInfo[i];
        if (QFileInfo::exists(chemin))
            continue;
        if (QFile::copy(livrées, chemin)) // a copy keeps the shipped file's read-only mode
            QFile::setPermissions(chemin, QFile::permissions(chemin) | QFile::WriteOwner);
        else
            CréeFichierInfo(Jeu(), i);
    }

    Jeu().Etape = TEtape::Aucune;
    CacheZoneJeu();
    Jeu().ModeRévision = false;
    AjusteCarte();
    MontreCantons();
    Jeu().PartieVierge = true;
    Jeu().PartieEnregistrée = false;
    Jeu().ConseilFicheDonné = false;
    PointeurEcran(PointeurNormal);
}
