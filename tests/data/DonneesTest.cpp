// What ships with the game: the map's raster, the pictures at 100 % and 200 %,
// the flags, the sounds, the information cards and the help pages.
#include "Doublures.h"
#include "engine/communs.h"
#include "platform/Ansi.h"
#include "platform/Boites.h"
#include "screen/EcranPrincipal.h"
#include "services/Fiches.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/TableChaines.h"
#include "services/Donnees.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <set>

namespace {

const QString Données = QStringLiteral(DOSSIER_DONNEES);

class Carte : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        BoîtesScriptées boîtes;
        InstalleBoîtes(&boîtes);
        Langue = 1;
        ChargeChaînes();
        ChargeCantons();
        RépertoireApplication = Données;
        chargée = ChargeCarteZones();
        InstalleBoîtes(nullptr);
        ASSERT_TRUE(boîtes.journal.empty());
    }
    static bool chargée;
};
bool Carte::chargée = false;

TEST_F(Carte, EveryTownDotLiesInItsOwnCanton)
{
    ASSERT_TRUE(chargée);
    for (int i = 1; i <= 26; ++i) {
        const TCanton &c = Jeu().Cantons[i];
        EXPECT_EQ(ZoneEn(0, c.VilleGauche + 3, c.VilleHaut + 4), i) << c.Nom.toStdString();
    }
}

TEST_F(Carte, EveryCantonHasPixelsAndStaysInsideItsPicture)
{
    ASSERT_TRUE(chargée);
    std::vector<int> pixels(27, 0);
    for (int y = 0; y < 456; ++y)
        for (int x = 0; x < 652; ++x) {
            const int z = ZoneEn(0, x, y);
            ASSERT_GE(z, 0);
            ASSERT_LE(z, 26);
            ++pixels[z];
            if (z == 0)
                continue;
            const QRect r(Jeu().Cantons[z].PaysGauche, Jeu().Cantons[z].PaysHaut, TaillePays(z).width(), TaillePays(z).height());
            ASSERT_TRUE(r.contains(x, y)) << "canton " << z << " at " << x << "," << y;
        }
    for (int i = 1; i <= 26; ++i)
        EXPECT_GT(pixels[i], 20) << Jeu().Cantons[i].Nom.toStdString();
    // The country is a good part of the map, and the map isn't all country.
    EXPECT_GT(pixels[0], 652 * 456 / 5);
    EXPECT_LT(pixels[0], 652 * 456 * 4 / 5);
}

TEST_F(Carte, TheRasterAgreesWithTheDrawnBorders)
{
    ASSERT_TRUE(chargée);
    // The border of canton i is drawn just inside it: its pixels resolve to i.
    for (int i = 1; i <= 26; ++i) {
        const QImage inv = QImage(Données + QStringLiteral("/images/inv%1.png").arg(i, 2, 10, QLatin1Char('0')))
                               .convertToFormat(QImage::Format_ARGB32);
        ASSERT_FALSE(inv.isNull());
        int dessinés = 0, dedans = 0;
        for (int y = 0; y < inv.height(); ++y)
            for (int x = 0; x < inv.width(); ++x)
                if (qAlpha(inv.pixel(x, y)) > 200) {
                    ++dessinés;
                    dedans += ZoneEn(0, Jeu().Cantons[i].PaysGauche + x, Jeu().Cantons[i].PaysHaut + y) == i;
                }
        ASSERT_GT(dessinés, 10) << i;
        EXPECT_GT(dedans, dessinés * 8 / 10) << Jeu().Cantons[i].Nom.toStdString() << ": " << dedans << " of " << dessinés;
    }
}

TEST_F(Carte, FileSizeIsItsRecords)
{
    QFile f(Données + "/KELMOR.pts");
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray o = f.readAll();
    int marques = 0, runs = 0;
    for (int i = 4; i + 3 < o.size(); i += 4)
        (o[i + 1] == 0 && o[i + 2] == 0 && o[i + 3] == 0) ? ++marques : ++runs;
    EXPECT_EQ(o.left(4), QByteArray("\x00\x00\x00\x04", 4));
    EXPECT_EQ(marques, 457) << "456 rows and the closing mark";
    EXPECT_LE(runs, MaxSegments);
    EXPECT_EQ(o.size(), 4 * (1 + marques + runs));
}

QSize TailleImage(const QString &chemin) { return QImageReader(chemin).size(); }

TEST(Images, EveryPictureAtItsSizeAndTwiceThatForHighDensity)
{
    auto vérifie = [](const QString &nom, QSize taille) {
        const QString base = Données + "/images/" + nom;
        EXPECT_EQ(TailleImage(base + ".png"), taille) << nom.toStdString();
        EXPECT_EQ(TailleImage(base + "@2x.png"), taille * 2) << nom.toStdString();
    };
    vérifie("carte", {652, 456});
    for (int i = 1; i <= 26; ++i) {
        const QString nn = QStringLiteral("%1").arg(i, 2, 10, QLatin1Char('0'));
        QSize inv = TaillePays(i);
        if (i == 1)
            inv.setWidth(170);
        vérifie("inv" + nn, inv);
        vérifie("pays" + nn + "_fr", TaillePays(i));
        vérifie("pays" + nn + "_de", TaillePays(i));
    }
    vérifie("miniature06", {174, 184});
    vérifie("miniature10", {196, 140});
    vérifie("miniature23", {196, 130});
    // The map isn't transparent anywhere.
    QImage carte(Données + "/images/carte.png");
    carte = carte.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < carte.height(); y += 7)
        for (int x = 0; x < carte.width(); x += 7)
            ASSERT_EQ(qAlpha(carte.pixel(x, y)), 255);
}

TEST(Images, FlagsIconsAndDotsAreValidVectorPictures)
{
    auto taille = [](const QString &chemin) {
        QSvgRenderer r(chemin);
        return r.isValid() ? r.defaultSize() : QSize();
    };
    for (int i = 1; i <= 26; ++i)
        EXPECT_EQ(taille(Données + QStringLiteral("/drapeaux/drapeau%1.svg").arg(i, 2, 10, QLatin1Char('0'))),
                  QSize(125, 125)) << i;
    const std::pair<const char *, QSize> attendus[] = {
        {"RondVille", {7, 8}}, {"RondPref", {7, 8}}, {"Rond0", {7, 8}}, {"Rondnoir", {16, 16}},
        {"Rondrouge", {16, 16}}, {"Rondjaune", {20, 20}}, {"Rondcible", {23, 23}},
        {"AmpouleAllumee", {32, 32}}, {"AmpouleEteinte", {32, 32}}, {"FermePalette", {19, 19}},
    };
    for (const auto &[nom, t] : attendus)
        EXPECT_EQ(taille(Données + "/images/" + nom + ".svg"), t) << nom;
}

TEST(Sons, FiveShortWaveFiles)
{
    for (const char *nom : {"carte_ok.wav", "carte_er.wav", "carte_ga.wav", "carte_pe.wav", "carte_hl.wav"}) {
        QFile f(Données + "/sons/" + nom);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << nom;
        const QByteArray o = f.readAll();
        ASSERT_GT(o.size(), 44);
        EXPECT_LT(o.size(), 50 * 1024) << nom;
        EXPECT_EQ(o.left(4), "RIFF");
        EXPECT_EQ(o.mid(8, 4), "WAVE");
        auto u32 = [&o](int i) { return quint32(quint8(o[i])) | quint32(quint8(o[i + 1])) << 8 |
                                        quint32(quint8(o[i + 2])) << 16 | quint32(quint8(o[i + 3])) << 24; };
        const quint32 octetsParSeconde = u32(28);
        ASSERT_GT(octetsParSeconde, 0u);
        EXPECT_LT(double(o.size() - 44) / octetsParSeconde, 0.5) << nom;
    }
}

TEST(Fiches, TwentySixRecordsOf650BytesNamedAfterTheirCanton)
{
    for (int langue : {1, 2}) {
        const QString chemin = Données + "/" + ChaîneTable(20 + langue);
        EXPECT_EQ(QFileInfo(chemin).size(), 26 * TailleFiche);
        std::set<QString> textes;
        for (int i = 1; i <= 26; ++i) {
            TFiche fiche;
            ASSERT_TRUE(LitFicheInfo(chemin, i, fiche)) << i;
            EXPECT_EQ(fiche.Nom, LitChamp(ChaîneTable(2000 + 200 * (langue - 1) + i), 1));
            EXPECT_GT(fiche.Texte.size(), 100) << "a few lines of facts";
            EXPECT_TRUE(fiche.Texte.contains("\r\n")) << "lines end in CR LF";
            EXPECT_LE(4 + VersAnsi(fiche.Nom).size() + VersAnsi(fiche.Texte).size(), TailleFiche);
            textes.insert(fiche.Texte);
        }
        EXPECT_EQ(textes.size(), 26u);
        TFiche horsFichier;
        EXPECT_FALSE(LitFicheInfo(chemin, 27, horsFichier));
    }
    // Lengths that run past the record are refused, not read beyond it.
    QTemporaryDir d;
    QFile f(d.filePath("abime.INF"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    QByteArray r(TailleFiche, '\0');
    r[0] = char(0x10);
    r[1] = char(0x02); // n1 = 528
    r[2 + 528] = char(0x90);
    r[3 + 528] = char(0x01); // n2 = 400
    f.write(r + QByteArray("\x04\x00Vaud\x02\x00ok", 10));
    f.close();
    TFiche fiche;
    EXPECT_FALSE(LitFicheInfo(f.fileName(), 1, fiche));
    ASSERT_TRUE(LitFicheInfo(f.fileName(), 2, fiche)) << "a short last record is read as far as it goes";
    EXPECT_EQ(fiche.Nom, "Vaud");
    EXPECT_EQ(fiche.Texte, "ok");
}

TEST(Aide, EveryContextHasItsPageInBothLanguages)
{
    for (const char *langue : {"fr", "de"})
        for (int contexte : {10, 20, 65, 90, 160, 180}) {
            QFile f(Données + QStringLiteral("/aide/%1/aide_%2.html").arg(langue).arg(contexte));
            ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << f.fileName().toStdString();
            EXPECT_GT(f.size(), 1000);
        }
}

} // namespace
