// What ships with the game: the map's raster, the pictures at 100 % and 200 %,
// the flags, the sounds, the information cards and the help pages.
#include "engine/communs.h"
#include "screen/EcranPrincipal.h"
#include "services/Fiches.h"
#include "services/Langues.h"
#include "services/TableChaines.h"
#include "files/CarteZones.h"
#include "services/Donnees.h"
#include "results/PartieEnCours.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <QImageReader>
#include <QSvgRenderer>
#include <gtest/gtest.h>
#include <set>

namespace {

const QString Données = QStringLiteral(DOSSIER_DONNEES);

// Every town's dot lies in its canton, every canton inside its picture, and the border
// drawn in each picture (just inside the canton) resolves to it.
TEST(Carte, TheRasterAgreesWithTheTownsAndThePictures)
{
    Langues().Langue = 1, ChargeChaînes(), ChargeCantons(Jeu());
    QFile f(Données + "/KELMOR.pts");
    ASSERT_TRUE(f.open(QIODevice::ReadOnly) && LitCarteZones(f.readAll(), Jeu().Carte));
    int pays = 0;
    for (int y = 0; y < 456; ++y)
        for (int x = 0; x < 652; ++x) {
            const int z = ZoneEn(Jeu().Carte, 0, x, y);
            ASSERT_TRUE(z >= 0 && z <= 26);
            pays += z != 0;
            if (z != 0)
                ASSERT_TRUE(QRect(QPoint(Jeu().Cantons[z].PaysGauche, Jeu().Cantons[z].PaysHaut), TaillePays(z)).contains(x, y))
                    << "canton " << z << " at " << x << "," << y;
        }
    // The country is a good part of the map, and the map isn't all country.
    EXPECT_TRUE(pays > 652 * 456 / 5 && pays < 652 * 456 * 4 / 5) << pays;
    for (int i = 1; i <= 26; ++i) {
        const TCanton &c = Jeu().Cantons[i];
        EXPECT_EQ(ZoneEn(Jeu().Carte, 0, c.VilleGauche + 3, c.VilleHaut + 4), i) << c.Nom.toStdString();
        const QImage inv =
            QImage(Données + QStringLiteral("/images/inv%1.png").arg(i, 2, 10, QLatin1Char('0'))).convertToFormat(QImage::Format_ARGB32);
        int dessinés = 0, dedans = 0;
        for (int y = 0; y < inv.height(); ++y)
            for (int x = 0; x < inv.width(); ++x)
                if (qAlpha(inv.pixel(x, y)) > 200) {
                    ++dessinés;
                    dedans += ZoneEn(Jeu().Carte, 0, c.PaysGauche + x, c.PaysHaut + y) == i;
                }
        EXPECT_TRUE(dessinés > 10 && dedans > dessinés * 8 / 10) << c.Nom.toStdString() << ": " << dedans << " of " << dessinés;
    }
}

TEST(Images, EveryPictureAtItsSizeAndTwiceThatForHighDensity)
{
    std::vector<std::pair<QString, QSize>> attendus = {{"carte", {652, 456}}, {"miniature06", {174, 184}},
                                                       {"miniature10", {196, 140}}, {"miniature23", {196, 130}}};
    for (int i = 1; i <= 26; ++i) {
        const QString nn = QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0'));
        for (const QString &nom : {"pays" + nn + "_fr", "pays" + nn + "_de", "inv" + nn})
            attendus.push_back({nom, nom == "inv01" ? QSize(170, TaillePays(i).height()) : TaillePays(i)});
    }
    for (const auto &[nom, taille] : attendus) {
        EXPECT_EQ(QImageReader(Données + "/images/" + nom + ".png").size(), taille) << nom.toStdString();
        EXPECT_EQ(QImageReader(Données + "/images/" + nom + "@2x.png").size(), taille * 2) << nom.toStdString();
    }
    // The map isn't transparent anywhere.
    const QImage carte = QImage(Données + "/images/carte.png").convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < carte.height(); y += 7)
        for (int x = 0; x < carte.width(); x += 7)
            ASSERT_EQ(qAlpha(carte.pixel(x, y)), 255);
}

TEST(Images, FlagsIconsAndDotsAreValidVectorPicturesOfTheirSize)
{
    // The flags fill the question's frame; the dots and icons are laid out by their size.
    std::vector<std::pair<QString, QSize>> attendus = {
        {"images/RondVille", {7, 8}}, {"images/RondPref", {7, 8}}, {"images/Rond0", {7, 8}}, {"images/Rondnoir", {16, 16}},
        {"images/Rondrouge", {16, 16}}, {"images/Rondjaune", {20, 20}}, {"images/Rondcible", {23, 23}},
        {"images/AmpouleAllumee", {32, 32}}, {"images/AmpouleEteinte", {32, 32}}, {"images/FermePalette", {19, 19}}};
    for (int i = 1; i <= 26; ++i)
        attendus.push_back({QStringLiteral("drapeaux/drapeau%1").arg(i, 2, 10, QLatin1Char('0')), {125, 125}});
    for (const auto &[nom, taille] : attendus) {
        QSvgRenderer image(Données + "/" + nom + ".svg");
        EXPECT_TRUE(image.isValid() && image.defaultSize() == taille) << nom.toStdString();
    }
}

TEST(Textes, FiveShortSoundsTwentySixCardsNamedAfterTheirCantonAndAHelpPageForEachContext)
{
    for (const char *nom : {"carte_ok.wav", "carte_er.wav", "carte_ga.wav", "carte_pe.wav", "carte_hl.wav"}) {
        QFile f(Données + "/sons/" + nom);
        const QByteArray o = f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
        ASSERT_TRUE(o.size() > 44 && o.startsWith("RIFF") && o.mid(8, 4) == "WAVE") << nom;
        const quint32 octetsParSeconde = qFromLittleEndian<quint32>(o.constData() + 28);
        EXPECT_TRUE(octetsParSeconde > 0 && double(o.size() - 44) / octetsParSeconde < 0.5) << nom;
    }
    for (int langue : {1, 2}) {
        const QString chemin = Données + "/" + ChaîneTable(20 + langue);
        EXPECT_EQ(QFileInfo(chemin).size(), 26 * TailleFiche);
        std::set<QString> textes;
        for (int i = 1; i <= 26; ++i) {
            TFiche fiche;
            ASSERT_TRUE(LitFicheInfo(chemin, i, fiche)) << i;
            EXPECT_EQ(fiche.Nom, LitChamp(ChaîneTable(2000 + 200 * (langue - 1) + i), 1));
            EXPECT_TRUE(fiche.Texte.size() > 100 && fiche.Texte.contains("\r\n")) << "a few lines of facts, ending in CR LF";
            textes.insert(fiche.Texte);
        }
        EXPECT_EQ(textes.size(), 26u);
        for (int contexte : {10, 20, 65, 90, 160, 180})
            EXPECT_GT(QFileInfo(Données + QStringLiteral("/aide/%1/aide_%2.html").arg(langue == 1 ? "fr" : "de").arg(contexte)).size(),
                      1000) << langue << " " << contexte;
    }
}

} // namespace
