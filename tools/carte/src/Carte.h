#pragma once
// Everything the generator reads, once projected to pixels of the 1x map.
#include "Ajustement.h"
#include "Sources.h"

#include <QString>
#include <QVector>
#include <array>

struct Lac {
    QString nom;
    Polygone forme; // pixels
};

struct Pays {
    QString nom;
    Polygone forme; // pixels
};

struct Géographie {
    std::array<Polygone, 26> cantonsLv95; // index i: canton i + 1
    Projection projection;
    std::array<Polygone, 26> cantons;     // pixels
    Polygone suisse;                      // the country with its enclaves as holes, pixels
    QVector<Polygone> enclaves;           // foreign land inside the outline, pixels
    QVector<Lac> lacs;
    QVector<Pays> voisins;
};

// Reads the pinned data under `sources` (as laid out by recupere-donnees.sh)
// and fits the projection. Throws std::runtime_error with a clear message.
Géographie ChargeGéographie(const QString &sources, const QString &année, const Options &options);
