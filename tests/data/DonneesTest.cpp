// What ships with the game: the map's raster, the pictures at 100 % and 200 %,
// the flags, the sounds, the information cards and the help pages.
#include "Fixtures.h"

#include "files/CarteZones.h"
#include "services/Donnees.h"
#include "services/Fiches.h"
#include "services/TableChaines.h"
#include "results/PartieEnCours.h"

#include <QImageReader>
#include <QSvgRenderer>
#include <QtEndian>

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

// Each canton's pictures at the size of the table and twice that, the map opaque; every vector picture
// sound, the flags filling the question's frame.
TEST(Images, EveryPictureAtItsSizeAndTwiceThatVectorOnesSound)
{
    std::vector<std::pair<QString, QSize>> attendus = {{"carte", {652, 456}}};
    for (int i = 1; i <= 26; ++i)
        for (const QString &nom : {"pays" + NN(i) + "_fr", "pays" + NN(i) + "_de", "inv" + NN(i)})
            attendus.push_back({nom, nom == "inv01" ? QSize(170, TaillePays(i).height()) : TaillePays(i)});
    for (const auto &[nom, taille] : attendus)
        EXPECT_TRUE(QImageReader(Données + "/images/" + nom + ".png").size() == taille &&
                    QImageReader(Données + "/images/" + nom + "@2x.png").size() == taille * 2) << nom.toStdString();
    const QImage carte = QImage(Données + "/images/carte.png").convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < carte.height(); y += 7)
        for (int x = 0; x < carte.width(); x += 7)
            ASSERT_EQ(qAlpha(carte.pixel(x, y)), 255);
    EXPECT_EQ(QDir(Données + "/drapeaux").entryList({"drapeau??.svg"}).size(), 26);
    for (const QString dossier : {"images", "drapeaux"})
        for (const QFileInfo &f : QDir(Données + "/" + dossier).entryInfoList({"*.svg"})) {
            QSvgRenderer image(f.filePath());
            EXPECT_TRUE(image.isValid() && !image.defaultSize().isEmpty() && (dossier == "images" || image.defaultSize() == QSize(125, 125)))
                << f.fileName().toStdString();
        }
}

TEST(Textes, FiveShortSoundsTwentySixCardsNamedAfterTheirCantonAndAHelpPageForEachContext)
{
    for (const char *nom : {"carte_ok.wav", "carte_er.wav", "carte_ga.wav", "carte_pe.wav", "carte_hl.wav"}) {
        const QByteArray o = Contenu(Données + "/sons/" + nom);
        ASSERT_TRUE(o.size() > 44 && o.startsWith("RIFF") && o.mid(8, 4) == "WAVE") << nom;
        const quint32 octetsParSeconde = qFromLittleEndian<quint32>(o.constData() + 28);
        EXPECT_TRUE(octetsParSeconde > 0 && double(o.size() - 44) / octetsParSeconde < 0.5) << nom;
    }
    for (int langue : {1, 2}) {
        const QString chemin = Données + "/" + ChaîneTable(20 + langue);
        EXPECT_EQ(QFileInfo(chemin).size(), 26 * TailleFiche);
        QSet<QString> textes;
        for (int i = 1; i <= 26; ++i) {
            TFiche fiche;
            ASSERT_TRUE(LitFicheInfo(chemin, i, fiche)) << i;
            EXPECT_TRUE(fiche.Nom == LitChamp(ChaîneTable(2000 + 200 * (langue - 1) + i), 1) && fiche.Texte.size() > 100 && fiche.Texte.contains("\r\n"))
                << "card " << i << ": its canton's name, a few lines of facts ending in CR LF";
            textes.insert(fiche.Texte);
        }
        EXPECT_EQ(textes.size(), 26);
        for (int contexte : {10, 20, 65, 90, 160, 180})
            EXPECT_GT(QFileInfo(Données + QStringLiteral("/aide/%1/aide_%2.html").arg(langue == 1 ? "fr" : "de").arg(contexte)).size(), 1000)
                << langue << " " << contexte;
    }
}
