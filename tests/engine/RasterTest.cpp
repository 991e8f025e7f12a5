// The raster read from its bytes, which canton a pixel falls in, and the messages of
// the start when the file is missing or damaged.
#include "Fixtures.h"

#include "engine/communs.h"
#include "files/CarteZones.h"
#include "services/Donnees.h"
#include "services/Langues.h"
#include "services/Parametres.h"

#include <QFile>

namespace {

// The tables the raster is read into: as large as the game holds them.
TCarteZones tables;
TCarteZones &Tables() { return tables; }

const QByteArray Tête = Enregistrement(0, 0, 4), Ligne = Enregistrement(0, 0, 0);
// A whole map: the rows given (each opened by its mark) make its top, row 455 holds every canton.
QByteArray Couvrant(const QByteArray &lignes, int nombre)
{
    QByteArray f = Tête + lignes + Ligne.repeated(456 - nombre);
    for (int c = 1; c <= 26; ++c)
        f += Enregistrement(0, 20 * c, c);
    return f + Ligne;
}

TEST(Raster, RunsStartJustAfterTheirXAnd255BelongsToTheMapInProgress)
{
    // Row 0: (100, 5), (160, 0) and, marked 255, (300, 9); row 1 has no runs; row 2 starts a canton at the left edge.
    ASSERT_TRUE(LitCarteZones(Couvrant(Ligne + Enregistrement(0, 100, 5) + Enregistrement(0, 160, 0) + Enregistrement(255, 300, 9) +
                                           Ligne + Ligne + Enregistrement(0, 0, 7), 3), Tables()));
    const struct { int x, y, zone; } cas[] = {
        {99, 0, 0}, {100, 0, 0}, {101, 0, 5}, {160, 0, 5}, {161, 0, 0}, {301, 0, 9}, {300, 1, 0}, {0, 2, 0}, {1, 2, 7},
        // Rows that no mark opened, and rows past the table, hit nothing.
        {120, 3, 0}, {120, 457, 0}, {120, 5000, 0}, {120, -1, 0},
    };
    for (const auto &c : cas)
        EXPECT_EQ(ZoneEn(Tables(), 0, c.x, c.y), c.zone) << c.x << "," << c.y;
}

TEST(Raster, AMaximalFileFitsTheTablesExactlyAndDamagedBytesAreRefusedLeavingTheTablesAlone)
{
    // 456 rows, their closing mark and the spare row; 3920 runs.
    QByteArray maximal = Tête;
    for (int y = 0, runs = 0; y < 457; ++y) {
        maximal += Ligne;
        for (int k = 0; k < 9 && runs < MaxSegments; ++k, ++runs)
            maximal += Enregistrement(0, 10 + 60 * k, 1 + (y + k) % 26);
    }
    ASSERT_TRUE(LitCarteZones(maximal + Ligne, Tables()));
    EXPECT_TRUE(ZoneEn(Tables(), 0, 11, 0) == 1 && Tables().DébutsLignes[0][457] == MaxSegments);
    ASSERT_TRUE(LitCarteZones(RasterBandes() + QByteArray(2, '\x01'), Tables())) << "a cut last record is left unread";
    auto octetsTables = [] { return QByteArray(reinterpret_cast<const char *>(&Tables()), sizeof(TCarteZones)); };
    const QByteArray avant = octetsTables();

    QByteArray tropDeSegments = Tête + Ligne;
    for (int i = 0; i <= MaxSegments; ++i)
        tropDeSegments += Enregistrement(0, 1 + i % 600, 1 + i % 26);

    const QByteArray mauvais[] = {
        Enregistrement(0, 0, 3) + RasterBandes().mid(4),      // header's zone
        Enregistrement(0, 1, 4) + RasterBandes().mid(4),      // header's X
        RasterBandes() + Enregistrement(7, 10, 2),            // a map this game hasn't
        QByteArray(), RasterBandes().left(4 * 300),           // empty, cut on a record: rows missing
        RasterBandes().chopped(4),                            // the last row never closed
        RasterBandes().replace(Enregistrement(0, 0, 26), Enregistrement(0, 0, 25)), // a canton with no pixel
        Enregistrement(255, 0, 4) + Enregistrement(255, 9, 3), // 255 before any map
        tropDeSegments,                                       // more runs, or rows, than the tables hold
        Tête + Ligne.repeated(MaxLignes + 1),
        Tête + QByteArray(1 << 20, '\0'),                   // far larger than any map
    };
    for (const QByteArray &octets : mauvais) {
        EXPECT_FALSE(LitCarteZones(octets, Tables())) << octets.size() << " bytes";
        EXPECT_TRUE(octetsTables() == avant) << octets.size() << " bytes";
    }
}

TEST(Raster, TheStartSaysWhetherTheFileIsDamagedOrMissing)
{
    QTemporaryDir dossier;
    BoîtesScriptées boîtes;
    InstalleBoîtes(&boîtes);
    Langues().Langue = 1, ChargeChaînes(), Réglages().RépertoireDonnées = dossier.path();
    QFile f(dossier.filePath(QStringLiteral("KELMOR.pts")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(Tête + Ligne) == 8);
    f.close();
    const bool lu = ChargeCarteZones(Tables()), luSansFichier = (f.remove(), ChargeCarteZones(Tables()));
    InstalleBoîtes(nullptr);
    EXPECT_FALSE(lu || luSansFichier);
    ASSERT_EQ(boîtes.journal.size(), 2u);
    const auto &format = boîtes.journal[0], &absent = boîtes.journal[1];
    EXPECT_TRUE(format.texte == Message(TMessage::FichierNonInterprétable) && format.style == StyleCritique && format.titre.endsWith("KELMOR.pts"));
    EXPECT_TRUE(absent.texte == Message(TMessage::FichierPtsAbsent) && absent.style == StyleInformation && absent.titre == "Erreur");
}

} // namespace
