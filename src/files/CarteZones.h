#pragma once
// The map's raster file, KELMOR.pts: records of 4 bytes (the map's number, x as a
// 16-bit number, the canton), a header, then each row's runs closed by a mark.
#include "engine/Partie.h"

#include <QByteArray>

// Reads the raster into `carte`. A file that is damaged, too long for the tables, or
// that leaves a row or a canton of the map without runs is refused, and `carte` is
// left as it was.
bool LitCarteZones(const QByteArray &octets, TCarteZones &carte);
