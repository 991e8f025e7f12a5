// What ships with the game: the map's raster, the pictures at 100 % and 200 %, the flags.
#include "Fixtures.h"

#include "files/CarteZones.h"
#include "services/Donnees.h"

#include <QImageReader>

const QString Données = QStringLiteral(DOSSIER_DONNEES);
QString NN(int i) { return QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0')); }

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

// Each canton's pictures at the size of the table and twice that, and a flag for each.
TEST(Images, EveryPictureAtItsSizeAndTwiceThat)
{
    std::vector<std::pair<QString, QSize>> attendus = {{"carte", {652, 456}}};
    for (int i = 1; i <= 26; ++i)
        for (const QString &nom : {"pays" + NN(i) + "_fr", "pays" + NN(i) + "_de", "inv" + NN(i)})
            attendus.push_back({nom, nom == "inv01" ? QSize(170, TaillePays(i).height()) : TaillePays(i)});
    for (const auto &[nom, taille] : attendus)
        EXPECT_TRUE(QImageReader(Données + "/images/" + nom + ".png").size() == taille &&
                    QImageReader(Données + "/images/" + nom + "@2x.png").size() == taille * 2) << nom.toStdString();
    EXPECT_EQ(QDir(Données + "/drapeaux").entryList({"drapeau??.svg"}).size(), 26); // each sound and square: the drawings' checker sees to that
}
