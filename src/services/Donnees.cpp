#include "services/Donnees.h"

#include "engine/communs.h"
#include "files/CarteZones.h"
#include "platform/Boites.h"
#include "services/Chemins.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/TableChaines.h"

#include <QFile>

void ChargeCantons(Partie &P)
{
    const int décalage = 200 * (Langues().Langue - 1);
    for (int i = 1; i <= NombrePlaces; ++i) {
        TCanton &c = P.Cantons[i];
        const QString ville = ChaîneTable(4000 + i);
        c.ChefLieu = LitChamp(ChaîneTable(4000 + décalage + i), 1);
        c.VilleGauche = static_cast<i16>(ValeurEnTête(LitChamp(ville, 2)));
        c.VilleHaut = static_cast<i16>(ValeurEnTête(LitChamp(ville, 3)));
        const QString canton = ChaîneTable(2000 + i);
        c.Nom = LitChamp(ChaîneTable(2000 + décalage + i), 1);
        c.Région = static_cast<u8>(ValeurEnTête(LitChamp(canton, 2)));
        c.PaysGauche = static_cast<i16>(ValeurEnTête(LitChamp(canton, 3)));
        c.PaysHaut = static_cast<i16>(ValeurEnTête(LitChamp(canton, 4)));
    }
    ChargePlaques(P);
}

void ChargePlaques(Partie &P)
{
    for (int i = 1; i <= NombrePlaces; ++i)
        P.Plaques[i] = LitChamp(ChaîneTable(2000 + i), 5);
}

bool ChargeCarteZones(TCarteZones &carte)
{
    const QString CheminFichierZones = ComposeChemin(Réglages().RépertoireDonnées, QStringLiteral("KELMOR.pts"));
    if (!QFile::exists(CheminFichierZones)) {
        Boîte(Message(TMessage::FichierPtsAbsent), StyleInformation, Message(TMessage::TitreErreur));
        return false;
    }
    // More than the tables could hold is refused before it is read.
    constexpr qint64 OctetsMax = 4 * (1 + MaxLignes + MaxSegments) + 3;
    QFile fichier(CheminFichierZones);
    QByteArray octets;
    const bool lu = fichier.open(QIODevice::ReadOnly) && fichier.size() <= OctetsMax &&
                    (octets = fichier.readAll()).size() == fichier.size();
    if (!lu || !LitCarteZones(octets, carte)) {
        Boîte(Message(TMessage::FichierNonInterprétable), StyleCritique, CheminFichierZones);
        return false;
    }
    return true;
}
