#pragma once
// The zone raster of the map and its run-length file KELMOR.pts.
//
// Pixel (x, y) of the raster is pixel (x, y) of the 1x map picture. The file
// is a header record (0, 0, 4); then, for each row from the top, a row mark
// (0, 0, 0) followed by the row's runs in ascending X; then one closing row
// mark. A run (0, X, z) gives the pixels from X + 1 on to zone z, the pixel X
// itself still belonging to the run before; left of a row's first run the
// zone is 0. Records are 4 bytes: u8 map, i16 little-endian X, u8 zone.
#include "Sources.h"

#include <QByteArray>
#include <QPoint>
#include <QString>
#include <QVector>
#include <array>

constexpr int RunsMax = 3920;
constexpr int LignesMax = 456; // the map's rows; the table adds the closing mark and a spare

struct Trame {
    int largeur = 0, hauteur = 0;
    QVector<quint8> zones;

    Trame() = default;
    Trame(int l, int h) : largeur(l), hauteur(h), zones(l * h, 0) {}
    quint8 &at(int x, int y) { return zones[y * largeur + x]; }
    quint8 at(int x, int y) const { return zones[y * largeur + x]; }
    quint8 sûr(int x, int y) const { return x < 0 || y < 0 || x >= largeur || y >= hauteur ? 0 : at(x, y); }
};

// Which polygon holds each pixel's centre, zone 1..n for polygons[0..n-1],
// 0 for none. `chevauchements` counts the pixels two polygons both claim
// (the last one wins).
Trame Rasterise(const QVector<Polygone> &polygones, int largeur, int hauteur, int *chevauchements = nullptr);

// Pixels the simplification must leave as they are.
using Protégés = QVector<bool>;

// 3 x 3 majority: a pixel takes the zone most of its neighbourhood has, when
// that zone has strictly more pixels there than its own.
Trame FiltreMajorité(const Trame &t, const Protégés &protégés);

// A run one pixel long takes the zone of a neighbouring run, preferring the
// zone of the pixel above it. Returns how many were merged.
int FusionneRunsCourts(Trame &t, const Protégés &protégés);

int CompteRuns(const Trame &t);

QByteArray EncodePts(const Trame &t);

// Reads a .pts file back the way the game does (row starts, then a scan of
// the row's runs) into a raster of the given size. Throws on a malformed file.
Trame DécodePts(const QByteArray &fichier, int largeur, int hauteur);
