// Any file in place of the map's raster: no crash, no write outside the tables,
// and a refused file leaves the tables as they were.
#include "Doublures.h"
#include "engine/communs.h"
#include "platform/Boites.h"
#include "services/Langues.h"
#include "services/Parametres.h"
#include "services/Donnees.h"
#include "results/PartieEnCours.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>
#include <cstring>

namespace {
QString fichier;
BoîtesScriptées *boîtes;
TPointSegment avant[NombreCartes][MaxSegments];
} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    // In memory, and taken away at the end: the raster is rewritten at every run.
    static QTemporaryDir dossier(QStringLiteral("/dev/shm/zones-XXXXXX"));
    boîtes = new BoîtesScriptées();
    InstalleBoîtes(boîtes);
    ChargeChaînes();
    Réglages().RépertoireApplication = dossier.path();
    fichier = dossier.filePath(QStringLiteral("KELMOR.pts"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *octets, size_t taille)
{
    QFile f(fichier);
    if (!f.open(QIODevice::WriteOnly))
        std::abort();
    f.write(reinterpret_cast<const char *>(octets), qint64(taille));
    f.close();
    std::memcpy(avant, Jeu().Carte.PointsSegments, sizeof avant);
    boîtes->journal.clear();
    if (ChargeCarteZones(Jeu().Carte)) {
        if (!boîtes->journal.empty())
            std::abort();
        for (int y = -1; y <= MaxLignes; y += 7)
            for (int x = -1; x < 700; x += 13) {
                const i16 z = ZoneEn(Jeu().Carte, 0, x, y);
                (void)z;
            }
    } else if (boîtes->journal.size() != 1 || std::memcmp(avant, Jeu().Carte.PointsSegments, sizeof avant) != 0) {
        std::abort();
    }
    boîtes->journal.clear();
    return 0;
}
