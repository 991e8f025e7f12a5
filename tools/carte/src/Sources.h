#pragma once
// Reading the boundary data: ESRI shapefiles (swiss-maps, already in LV95)
// and TopoJSON (world-atlas, longitude/latitude, projected here to LV95).
#include <QMap>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

using Anneau = QVector<QPointF>;   // a closed ring, last point = first point
using Polygone = QVector<Anneau>;  // rings filled with the even-odd rule

// Polygons of a shapefile (types 5 polygon and 15 polygonZ), in file order.
// Throws std::runtime_error on a file that can't be read.
QVector<Polygone> LisShp(const QString &chemin);

// Records of a dBase table as strings, fields in order, trimmed.
QVector<QStringList> LisDbf(const QString &chemin, QStringList *champs = nullptr);

// Polygons of one object of a TopoJSON file, keyed by the geometry's id.
// Coordinates as stored (here longitude, latitude in degrees).
QMap<QString, Polygone> LisTopoJson(const QString &chemin, const QString &objet);

// WGS84 longitude/latitude (degrees) to LV95 easting/northing (metres), by the
// approximate formulas of the federal survey office (about a metre near the
// country, looser far away, plenty for the neighbouring land at this scale).
QPointF Lv95(double longitude, double latitude);

// Bounding box of a polygon.
struct Boîte {
    double xmin = 1e300, ymin = 1e300, xmax = -1e300, ymax = -1e300;
    void ajoute(QPointF p);
    void ajoute(const Boîte &b);
    bool vide() const { return xmin > xmax; }
};
Boîte BoîteDe(const Polygone &p);
