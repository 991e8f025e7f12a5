// The raster file and the hit test: what a file may hold, and which canton a pixel falls in.
#include "Fixtures.h"

#include "engine/communs.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Donnees.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstring>

namespace {

class Raster : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dossier.isValid());
        InstalleBoîtes(&boîtes);
        ChargeChaînes();
        RépertoireApplication = dossier.path();
    }
    void TearDown() override { InstalleBoîtes(nullptr); }

    bool Charge(const QByteArray &contenu)
    {
        QFile f(dossier.filePath(QStringLiteral("KELMOR.pts")));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(contenu);
        f.close();
        return ChargeCarteZones();
    }
    bool RefuséPourFormat() const
    {
        return boîtes.journal.size() == 1 && boîtes.journal[0].texte == Messages[27] &&
               boîtes.journal[0].style == StyleCritique && boîtes.journal[0].titre.endsWith("KELMOR.pts");
    }

    QTemporaryDir dossier;
    BoîtesScriptées boîtes;
};

QByteArray Tête() { return Enregistrement(0, 0, 4); }
QByteArray Ligne() { return Enregistrement(0, 0, 0); }
// A whole map: the rows given (each opened by its mark) make its top, row 455 holds every canton.
QByteArray Couvrant(const QByteArray &lignes, int nombre)
{
    QByteArray f = Tête() + lignes;
    for (int y = nombre; y < 456; ++y)
        f += Ligne();
    for (int c = 1; c <= 26; ++c)
        f += Enregistrement(0, 20 * c, c);
    return f + Ligne();
}

TEST_F(Raster, RunsStartJustAfterTheirX)
{
    // Row 0: (100, 5) and (160, 0); row 1 has no runs; row 2 starts a canton at the left edge.
    ASSERT_TRUE(Charge(Couvrant(Ligne() + Enregistrement(0, 100, 5) + Enregistrement(0, 160, 0) + Ligne() + Ligne() +
                                    Enregistrement(0, 0, 7), 3)));
    EXPECT_EQ(ZoneEn(0, 99, 0), 0);
    EXPECT_EQ(ZoneEn(0, 100, 0), 0);
    EXPECT_EQ(ZoneEn(0, 101, 0), 5);
    EXPECT_EQ(ZoneEn(0, 160, 0), 5);
    EXPECT_EQ(ZoneEn(0, 161, 0), 0);
    EXPECT_EQ(ZoneEn(0, 300, 1), 0);
    EXPECT_EQ(ZoneEn(0, 1, 2), 7);
    // Rows that no mark opened, and rows past the table, hit nothing.
    EXPECT_EQ(ZoneEn(0, 120, 3), 0);
    EXPECT_EQ(ZoneEn(0, 120, 457), 0);
    EXPECT_EQ(ZoneEn(0, 120, 5000), 0);
    EXPECT_EQ(ZoneEn(0, 120, -1), 0);
    EXPECT_TRUE(boîtes.journal.empty());
}

TEST_F(Raster, MapNumber255BelongsToTheMapInProgress)
{
    ASSERT_TRUE(Charge(Couvrant(Ligne() + Enregistrement(255, 10, 3) + Enregistrement(0, 20, 4), 1)));
    EXPECT_EQ(ZoneEn(0, 15, 0), 3);
    EXPECT_EQ(ZoneEn(0, 25, 0), 4);
}

TEST_F(Raster, BadFilesAreRefusedWithTheFormatMessageAndLeaveTheTablesAlone)
{
    ASSERT_TRUE(Charge(RasterBandes() + QByteArray(2, '\x01'))) << "a cut last record is left unread";
    const QByteArray avant(reinterpret_cast<const char *>(Jeu().Carte.PointsSegments), sizeof Jeu().Carte.PointsSegments);

    QByteArray tropDeSegments = Tête() + Ligne();
    for (int i = 0; i <= MaxSegments; ++i)
        tropDeSegments += Enregistrement(0, 1 + i % 600, 1 + i % 26);
    QByteArray tropDeLignes = Tête();
    for (int i = 0; i <= MaxLignes; ++i)
        tropDeLignes += Ligne();

    const QByteArray mauvais[] = {
        Enregistrement(0, 0, 3) + RasterBandes().mid(4),      // header's zone
        Enregistrement(0, 1, 4) + RasterBandes().mid(4),      // header's X
        RasterBandes() + Enregistrement(7, 10, 2),            // a map this game hasn't
        QByteArray(), RasterBandes().left(4 * 300),           // empty, cut on a record: rows missing
        RasterBandes().replace(Enregistrement(0, 0, 26), Enregistrement(0, 0, 25)), // a canton with no pixel
        Enregistrement(255, 0, 4) + Enregistrement(255, 9, 3), // 255 before any map
        tropDeSegments,
        tropDeLignes,
        Tête() + QByteArray(1 << 20, '\0'),                   // far larger than any map
    };
    for (const QByteArray &contenu : mauvais) {
        boîtes.journal.clear();
        EXPECT_FALSE(Charge(contenu));
        EXPECT_TRUE(RefuséPourFormat());
        EXPECT_EQ(std::memcmp(avant.constData(), Jeu().Carte.PointsSegments, sizeof Jeu().Carte.PointsSegments), 0);
    }
}

TEST_F(Raster, MissingFileEndsTheStartWithItsMessage)
{
    EXPECT_FALSE(ChargeCarteZones());
    ASSERT_EQ(boîtes.journal.size(), 1u);
    EXPECT_EQ(boîtes.journal[0].texte, Messages[132]);
    EXPECT_EQ(boîtes.journal[0].titre, QStringLiteral("Erreur"));
    EXPECT_EQ(boîtes.journal[0].style, StyleInformation);
}

TEST_F(Raster, AMaximalFileFitsTheTablesExactly)
{
    // 456 rows, their closing mark and the spare row; 3920 runs.
    QByteArray f = Tête();
    int runs = 0;
    for (int y = 0; y < 457; ++y) {
        f += Ligne();
        for (int k = 0; k < 9 && runs < MaxSegments; ++k, ++runs)
            f += Enregistrement(0, 10 + 60 * k, 1 + (y + k) % 26);
    }
    f += Ligne();
    ASSERT_EQ(runs, MaxSegments);
    ASSERT_TRUE(Charge(f));
    EXPECT_EQ(ZoneEn(0, 11, 0), 1);
    EXPECT_EQ(Jeu().Carte.DébutsLignes[0][457], MaxSegments);
}

} // namespace
