#include "screen/Etiquettes.h"
#include "files/FichierPartie.h"
#include "screen/Commandes.h"

#include "screen/VueJeu.h"
#include "engine/communs.h"
#include "platform/Boites.h"
#include "results/AffichageScores.h"
#include "results/Parties.h"
#include "results/Scores.h"
#include "screen/Ajustement.h"
#include "screen/EcranPrincipal.h"
#include "screen/Palette.h"
#include "screen/Parametrage.h"
#include "screen/Aide.h"
#include "screen/Edition.h"
#include "screen/ParametrageRepertoires.h"
#include "services/Parametres.h"
#include "services/Langues.h"
#include "services/MisesAJour.h"
#include "services/Sons.h"
#include "results/Resultats.h"
#include "platform/Ecran.h"
#include "screen/Patience.h"
#include "screen/PointsFaibles.h"
#include "screen/Progression.h"
#include "services/Donnees.h"
#include "results/PartieEnCours.h"
#include "results/HistoriqueJoueur.h"

#include <QAction>
#include <QFile>

void RelieCommandes(EcranPrincipal &E)
{
    auto relie = [&E](QAction *entrée, void (*commande)()) {
        QObject::connect(entrée, &QAction::triggered, &E, commande);
    };
    relie(E.FichierNouveau, [] { LanceNouvellePartie(); });
    relie(E.FichierEnregistrer, [] { EnregistrePartie(); });
    relie(E.FichierLire, [] { FichierLire_Click(); });
    relie(E.ScoreEnCours, [] { AfficheMeilleursScores(Jeu().Niveau); });
    relie(E.ScoreFacile, [] { AfficheMeilleursScores(TNiveau::Facile); });
    relie(E.ScoreMoyen, [] { AfficheMeilleursScores(TNiveau::Moyen); });
    relie(E.ScoreDifficile, [] { AfficheMeilleursScores(TNiveau::Difficile); });
    relie(E.ScoreExpert, [] { AfficheMeilleursScores(TNiveau::Expert); });
    relie(E.MenuRazScores, [] { ConfirmeRazScores(); });
    relie(E.MenuPointsFaibles, [] { MontrePointsFaibles(); });
    relie(E.MenuProgression, [] { MontreProgression(); });
    InstalleRejeu(RejoueErreurs);
    relie(E.MenuAfficheParamètres, [] { RevoitParamétrage(); });
    relie(E.MenuDéfaut, [] { ParamétrageDéfaut(); });
    relie(E.MenuRecharger, [] { RechargeParamétrage(); });
    relie(E.MenuDéfinir, [] { DéfinitParamétrage(); });
    relie(E.MenuInf, [] {
        DemandeDossier().ModeRépertoires = TModeRépertoires::DossierInformation;
        MontreParamétrageRépertoires();
    });
    relie(E.FichierVersion, [] { ChercheVersions(); });
    relie(E.FichierQuitter, [] {
        if (ConfirmeArrêt())
            Principal().close();
    });
    relie(E.Menuson, [] { Menuson_Click(); });
    relie(E.MenuRévision, [] { LanceRévision(); });
    relie(E.MenuFichInfo, [] { EditerFiches(); });
    relie(E.MenuCouleurCapitalesATrouver, [] { MenuCouleurCapitalesATrouver_Click(); });
    relie(E.MenuCouleurCapitalesTrouvées, [] { MenuCouleurCapitalesTrouvées_Click(); });
    relie(E.MenuFrançais, [] { ChangeLangue(1); });
    relie(E.MenuAllemand, [] { ChangeLangue(2); });
    relie(E.MenuAutreLangue, [] { ChangeLangue(3); });
    relie(E.MenuAide, [] { AfficheAide(); });
    relie(E.MenuAPropos, [] { AfficheAPropos(); });
}

void LanceRévision()
{
    if (!ConfirmeArrêt())
        return;
    Jeu().Etape = TEtape::Révision;
    Jeu().Niveau = TNiveau::Facile;
    DébutEtape(Jeu());
    Jeu().PartieVierge = true;
    CacheZoneJeu();
    Jeu().ModeRévision = true;
    AjusteCarte();
    MontreCantons();
    AffichePanneau();
    Boîte(Message(TMessage::ConseilFicheRévision), StyleInformation, Message(TMessage::TitreAPropos));
}

void AfficheAide()
{
    // The general topic, whatever the panel shows; the form keeps it afterwards.
    Principal().setHelpContextID(10);
    OuvreAide(10);
}

void AfficheAPropos()
{
    Boîte(Message(TMessage::NomDuJeu) + Message(TMessage::VersionDuJeu) + QLatin1Char('\n') + Message(TMessage::ConçuParKelmor), StyleInformation, Message(TMessage::TitreAPropos));
}

void Menuson_Click()
{
    Réglages().SonActif = !Réglages().SonActif;
    Principal().Menuson->setText(Réglages().SonActif ? Message(TMessage::CouperLeSon) : Message(TMessage::MettreLeSon));
}

// ---------------------------------------------------------------- the start and a new game


void LanceNouvellePartie()
{
    if (!ConfirmeArrêt())
        return;
    Principal().setHelpContextID(10);
    MontreNouvellePartie();
    Jeu().RangEtape = 1;
    DébutEtape(Jeu());
    for (int i = 1; i <= NombrePlaces; ++i)
        for (int k = 0; k <= 4; ++k) {
            Jeu().Cantons[i].Pertes[k] = 0;
            Jeu().Cantons[i].Réussi[k] = false;
        }
    Jeu().PartieVierge = true;
    Jeu().ModeRévision = false;
    Jeu().ConseilFicheDonné = false;
    AjusteCarte();
    if (Jeu().Etape == TEtape::Aucune) {
        CacheZoneJeu();
        CacheMarques();
        return;
    }
    MontreCantons();
    Jeu().Score = 999999;
    AffichePanneau();
    AfficheScore();
    AfficheRestants(Jeu().RestantsEtape);
    QuestionSuivante(Jeu());
    CommenceHistorique();
}

void RejoueErreurs(const TRejeu &rejeu)
{
    // A game under way is left (or kept) before the set it is played with changes.
    if (!ConfirmeArrêt())
        return;
    QFile::remove(ParamétrageNonSauvé);
    Réglages().FichierLancement = ParamétrageNonSauvé;
    for (i16 c = 1; c <= NombrePlaces; ++c)
        Jeu().Cantons[c].Inhibé = std::find(rejeu.Cantons.begin(), rejeu.Cantons.end(), c) == rejeu.Cantons.end();
    std::fill(std::begin(Jeu().OrdreEtapes), std::end(Jeu().OrdreEtapes), TEtape::Aucune);
    for (std::size_t i = 0; i < rejeu.Etapes.size() && i < 4; ++i)
        Jeu().OrdreEtapes[i + 1] = rejeu.Etapes[i];
    RazScores();
    EcritFichierScores(false);
    LanceNouvellePartie();
}
