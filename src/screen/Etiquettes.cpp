#include "screen/Parametrage.h"
#include "screen/Etiquettes.h"

#include "engine/communs.h"
#include "engine/specifiques.h"
#include "platform/Boites.h"
#include "platform/Ecran.h"
#include "platform/Images.h"
#include "screen/Accessibles.h"
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
#include <QMenuBar>

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

    E.setWindowTitle(Message(TMessage::NomDuJeu).trimmed());
    E.BoîteRestants->setTitle(Message(TMessage::ResteÀPlacer));
    E.BoîteScore->setTitle(Message(TMessage::Score));
    E.QueFaire->setText(Message(TMessage::TrouvezMoi));
    E.ScoreEnCours->setText(Message(TMessage::NiveauEnCours));
    E.ScoreFacile->setText(Message(TMessage::NiveauFacile));
    E.ScoreMoyen->setText(Message(TMessage::NiveauMoyen));
    E.ScoreExpert->setText(Message(TMessage::NiveauExpert));
    E.ScoreDifficile->setText(Message(TMessage::NiveauDifficile));
    E.MenuPointsFaibles->setText(Message(TMessage::PointsFaibles) + QStringLiteral("..."));
    E.MenuProgression->setText(Message(TMessage::Progression) + QStringLiteral("..."));
    E.MenuFichier->setTitle(Message(TMessage::MenuFichier));
    E.FichierNouveau->setText(Message(TMessage::NouvellePartie));
    E.FichierEnregistrer->setText(Message(TMessage::EnregistrerPartie));
    E.FichierLire->setText(Message(TMessage::LirePartie));
    E.FichierQuitter->setText(Message(TMessage::Quitter));
    E.MenuScores->setTitle(Message(TMessage::MenuScore));
    E.MenuRazScores->setText(Message(TMessage::RemiseÀZéro));
    E.MenuRévision->setText(Message(TMessage::Révision));
    E.MenuParamétrer->setTitle(Message(TMessage::MenuParamétrer));
    E.MenuAfficheParamètres->setText(Message(TMessage::AfficherParamétrage));
    E.MenuRecharger->setText(Message(TMessage::RechargerParamétrage));
    E.MenuDéfinir->setText(Message(TMessage::ParamétrerLeJeu));
    E.MenuAide->setText(Message(TMessage::Aide));
    E.MenuAPropos->setText(Message(TMessage::TitreAPropos));
    E.MenuDéfaut->setText(Message(TMessage::ParamétrageParDéfaut));
    E.MenuInf->setText(Message(TMessage::DéfinirDossierInfo));
    E.BoutonPasse->setToolTip(Message(TMessage::JePasse));
    E.FichierVersion->setText(Message(TMessage::RechercherMisesÀJour));
    E.MenuCouleurCapitalesATrouver->setText(Message(TMessage::CouleurChefsLieuxÀTrouver));
    E.MenuCouleurCapitalesTrouvées->setText(Message(TMessage::CouleurChefsLieuxTrouvés));
    E.MenuFichInfo->setText(Message(TMessage::EditerFiches));
    E.LBLParam[1]->setText(Message(TMessage::ParamétrageDuJeu));
    E.LBLParam[2]->setText(Jeu().Etape == TEtape::ParamétrageAffiché ? Message(TMessage::ConseilParamétrageRonds) : Message(TMessage::ConseilParamétrageCantons));
    if (Réglages().FichierLancement != QLatin1String("~tmp.~cf"))
        E.LBLParam[3]->setText(Message(TMessage::NomFichierParamétrage) + QLatin1Char('\n') + Réglages().FichierLancement);
    else
        E.LBLParam[3]->setText(Message(TMessage::ParamétrageNonSauvé));
    E.Menuson->setText(Réglages().SonActif ? Message(TMessage::CouperLeSon) : Message(TMessage::MettreLeSon));
    E.LBLParam[4]->setText(Message(TMessage::Cantons));
    E.LBLParam[5]->setText(Message(TMessage::ChefsLieux));
    E.LBLParam[6]->setText(Message(TMessage::Drapeaux));
    E.LBLParam[7]->setText(Message(TMessage::Premier));
    E.LBLParam[12]->setText(Message(TMessage::SauverParamétrageEtScores));
    E.LBLParam[13]->setText(Message(TMessage::ParamétrageDeLancement));
    E.BTN[2]->setText(Message(TMessage::Annuler));
    LibelléSpécifique();
    PlaceMnémoniques(E.menuBar());
}

void ChangeLangue(int n)
{
    PointeurEcran(PointeurSablier);
    if (n > Langues().NombreLangues) {
        Boîte(Message(TMessage::TraduireEnItalien), StyleExclamation, Message(TMessage::TitreItalien));
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
    Langues().FichierAide = ComposeChemin(Réglages().RépertoireDonnées, Langues().NomsFichiersAide[Langues().Langue]);
    EtiquetteEcran();
    CacheMarques();
    CacheZoneJeu();
    MontreCantons();
    AffichePanneau();
    // The question under way goes on in the new language, with the help it had earned.
    if (EtapeDeJeu(Jeu().Etape)) {
        auto &E = Principal();
        E.BoutonPasse->setVisible(Jeu().Niveau == TNiveau::Facile && !Jeu().ModeApprentissage && Jeu().ErreursQuestion >= 1);
        E.BoutonGruge->setVisible(Jeu().ModeApprentissage && Jeu().ErreursQuestion >= 3);
    }
    EcritValeur(CléJeu, QStringLiteral("langue"), QLatin1Char(' ') + QString::number(Langues().Langue));
    if (Jeu().Etape == TEtape::Révision) {
        auto &E = Principal();
        for (int k = 1; k <= NombrePlaces; ++k)
            E.rond[k]->setToolTip(Jeu().Cantons[k].ChefLieu);
    }
    PointeurEcran(PointeurNormal);
}
