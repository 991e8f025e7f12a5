#include "engine/specifiques.h"

#include "screen/EcranPrincipal.h"
#include "services/Langues.h"
#include "services/TableChaines.h"

QString Plaques[NombrePlaces + 1];

void ChargePlaques()
{
    for (int i = 1; i <= NombrePlaces; ++i)
        Plaques[i] = LitChamp(ChaîneTable(2000 + i), 5);
}

void InitialisationSpécifique() {}

void CorrectionZone(i16 &) {}

i16 NuméroPlace(i16 c) { return c; }

void DébutEtapeSpécifique()
{
    if (Jeu().Etape != TEtape::Plaques)
        return;
    // The plate letters stand where a town's name would, under the panel's head.
    auto &E = Principal();
    E.ElémentRecherché->hide();
    E.ImageRecherchée->hide();
    E.TexteAChercher->show();
    E.TexteAChercher->setLeft(E.ElémentRecherché->Left());
    E.TexteAChercher->setTop(E.QueFaire->Top() + E.QueFaire->Height() + 5);
    E.TexteAChercher->setTailleFonte(10);
}

void QuestionSpécifique()
{
    if (Jeu().Etape == TEtape::Plaques)
        Principal().TexteAChercher->setText(Plaques[Jeu().CantonRecherché]);
}

void ZoneQuestionSpécifique()
{
    if (Jeu().Etape != TEtape::Plaques)
        return;
    auto &E = Principal();
    E.QueFaire->show();
    E.BoîteRestants->show();
    for (int i = 1; i <= 3; ++i)
        E.Reste[i]->show();
    E.BoîteScore->setVisible(!Jeu().ModeApprentissage);
    for (int i = 0; i <= 6; ++i) {
        E.Digit[i]->setVisible(!Jeu().ModeApprentissage);
        if (!Jeu().ModeApprentissage)
            E.Digit[i]->raise();
    }
    E.TexteAChercher->show();
    E.ImageRecherchée->hide();
    E.ElémentRecherché->hide();
}

void PlaceTexteSpécifique()
{
    if (Jeu().Etape != TEtape::Plaques)
        return;
    auto &E = Principal();
    E.TexteAChercher->setTop(E.QueFaire->Top() + E.QueFaire->Height() + 5);
}

void PlaceRondSpécifique(i16 i)
{
    if (Jeu().Etape == TEtape::Plaques)
        MarqueRondPartie(i);
}

void MontreCantonSpécifique(i16 i)
{
    if (Jeu().Etape == TEtape::Plaques)
        MontreCantonEtapesSuivantes(i);
}

QString MessageTransition(TEtape étape, TEtape suivante)
{
    QString tête;
    switch (étape) {
    case TEtape::Cantons: tête = Messages[21]; break;
    case TEtape::ChefsLieux: tête = Messages[22]; break;
    case TEtape::Drapeaux: tête = Messages[23]; break;
    case TEtape::Plaques: tête = Messages[163]; break;
    default: break;
    }
    QString queue;
    switch (suivante) {
    case TEtape::Cantons: queue = Messages[24]; break;
    case TEtape::ChefsLieux: queue = Messages[25]; break;
    case TEtape::Drapeaux: queue = Messages[26]; break;
    case TEtape::Plaques: queue = Messages[165]; break;
    default: break;
    }
    return tête + queue;
}

void PoidsSpécifiques()
{
    PoidsEtapes[1] = 1;
    PoidsEtapes[2] = 2;
    PoidsEtapes[3] = 4;
    PoidsEtapes[4] = 1;
    const int somme = PoidsEtapes[1] + PoidsEtapes[2] + PoidsEtapes[3] + PoidsEtapes[4];
    PointsParCanton = Jeu().NombreCantons > 0 ? 999999 / (somme * Jeu().NombreCantons) : 0;
}

void LibelléSpécifique() { Principal().LBLParam[7]->setText(Messages[162]); }
