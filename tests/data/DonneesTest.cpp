// What ships with the game: the map's raster, the pictures at 100 % and 200 %, the flags.
#include "Fixtures.h"

#include "files/CarteZones.h"
#include "services/Donnees.h"

#include <QImageReader>
#include <QSvgRenderer>

const QString Données = QStringLiteral(DOSSIER_DONNEES);
QString NN(int i) { return QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0')); }

// Every town's dot lies in its canton, every canton inside its picture, and the border
// drawn in each picture (just inside the canton) resolves to it.
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
    for (int i = 1; i <= 26; ++i) {
        const TCanton &c = Jeu().Cantons[i];
        EXPECT_EQ(ZoneEn(Jeu().Carte, 0, c.VilleGauche + 3, c.VilleHaut + 4), i) << c.Nom.toStdString();
        const QImage inv = QImage(Données + "/images/inv" + NN(i) + ".png").convertToFormat(QImage::Format_ARGB32);
        int dessinés = 0, dedans = 0;
        for (int y = 0; y < inv.height(); ++y)
            for (int x = 0; x < inv.width(); ++x)
                if (qAlpha(inv.pixel(x, y)) > 200)
                    ++dessinés, dedans += ZoneEn(Jeu().Carte, 0, c.PaysGauche + x, c.PaysHaut + y) == i;
        EXPECT_TRUE(dessinés > 10 && dedans > dessinés * 8 / 10) << c.Nom.toStdString() << ": " << dedans << " of " << dessinés;
    }
}

// Each canton's pictures at the size of the table and twice that; every vector picture sound, the flags
// filling the question's frame.
TEST(Images, EveryPictureAtItsSizeAndTwiceThatVectorOnesSound)
{
    std::vector<std::pair<QString, QSize>> attendus = {{"carte", {652, 456}}};
    for (int i = 1; i <= 26; ++i)
        for (const QString &nom : {"pays" + NN(i) + "_fr", "pays" + NN(i) + "_de", "inv" + NN(i)})
            attendus.push_back({nom, nom == "inv01" ? QSize(170, TaillePays(i).height()) : TaillePays(i)});
    for (const auto &[nom, taille] : attendus)
        EXPECT_TRUE(QImageReader(Données + "/images/" + nom + ".png").size() == taille &&
                    QImageReader(Données + "/images/" + nom + "@2x.png").size() == taille * 2) << nom.toStdString();
    EXPECT_EQ(QDir(Données + "/drapeaux").entryList({"drapeau??.svg"}).size(), 26);
    for (const QString dossier : {"images", "drapeaux"})
        for (const QFileInfo &f : QDir(Données + "/" + dossier).entryInfoList({"*.svg"})) {
            QSvgRenderer image(f.filePath());
            EXPECT_TRUE(image.isValid() && !image.defaultSize().isEmpty() && (dossier == "images" || image.defaultSize() == QSize(125, 125)))
                << f.fileName().toStdString();
        }
}
