// The map's raster that ships with the game. The pictures, the flags and the rest are checked by the programs
// that make them (tools/carte, tools/dessins) before they write anything.
#include "Fixtures.h"

#include "files/CarteZones.h"
#include "services/Donnees.h"
#include "results/PartieEnCours.h"

const QString Données = QStringLiteral(DOSSIER_DONNEES);

// Every town's dot lies in its canton and every canton inside its picture.
TEST(Carte, TheRasterAgreesWithTheTownsAndThePictures)
{
    Langues().Langue = 1, ChargeChaînes(), ChargeCantons(Jeu());
    ASSERT_TRUE(LitCarteZones(Contenu(Données + "/KELMOR.pts"), Jeu().Carte));
    int pays = 0;
    for (int y = 0; y < 456; ++y)
        for (int x = 0; x < 652; ++x)
            if (const int z = ZoneEn(Jeu().Carte, 0, x, y); z != 0) {
                ++pays;
                ASSERT_TRUE(z > 0 && z <= 26 && QRect(QPoint(Jeu().Cantons[z].PaysGauche, Jeu().Cantons[z].PaysHaut), TaillePays(z)).contains(x, y))
                    << "canton " << z << " at " << x << "," << y;
            }
    EXPECT_TRUE(pays > 652 * 456 / 5 && pays < 652 * 456 * 4 / 5) << "a good part of the map, not all of it: " << pays;
    for (int i = 1; i <= 26; ++i)
        EXPECT_EQ(ZoneEn(Jeu().Carte, 0, Jeu().Cantons[i].VilleGauche + 3, Jeu().Cantons[i].VilleHaut + 4), i) << Jeu().Cantons[i].Nom.toStdString();
}
