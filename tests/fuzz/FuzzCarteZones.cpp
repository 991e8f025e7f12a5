// Any file in place of the map's raster: no crash, no write outside the tables, and a
// refused file is one message and leaves the tables as they were.
#include "Fuzz.h"
#include "engine/communs.h"
#include "services/Donnees.h"
#include "services/Reglages.h"
#include "results/PartieEnCours.h"

#include <cstring>

namespace {
QString fichier;
TPointSegment avant[NombreCartes][MaxSegments];
} // namespace

void Prépare()
{
    Réglages().RépertoireApplication = Réglages().RépertoireDonnées = DossierEnMémoire();
    fichier = Réglages().RépertoireApplication + QStringLiteral("/KELMOR.pts");
}

void Essaie(const QByteArray &octets)
{
    Écrit(fichier, octets);
    std::memcpy(avant, Jeu().Carte.PointsSegments, sizeof avant);
    if (ChargeCarteZones(Jeu().Carte)) {
        Vérifie(boîtes.journal.empty());
        for (int y = -1; y <= MaxLignes; y += 7)
            for (int x = -1; x < 700; x += 13)
                ZoneEn(Jeu().Carte, 0, x, y);
    } else {
        Vérifie(boîtes.journal.size() == 1 && std::memcmp(avant, Jeu().Carte.PointsSegments, sizeof avant) == 0);
    }
}
