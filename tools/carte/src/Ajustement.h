#pragma once
// Fitting the drawing to the game's canton table. The table's positions are
// the game's own and stay as they are; the map is fitted to them in two
// stages: a similarity (scale, rotation, shift, north up) from LV95 metres to
// map pixels, fitted to the chief-town dots and the rectangles of the large
// cantons; then a gentle smooth warp of a few pixels at most that brings every
// canton inside its picture's rectangle, which no similarity quite does.
#include "Sources.h"

#include <QPointF>
#include <QRectF>
#include <QVector>
#include <array>

struct Similitude {
    // x = a·dE + b·dN + c ; y = b·dE − a·dN + d, with dE, dN from the origin.
    double a = 0, b = 0, c = 0, d = 0;
    QPointF origine;

    QPointF applique(QPointF lv95) const;
    double pixelsParKm() const;
    double rotationDegrés() const;
};

// A smooth displacement of the map plane: a uniform cubic B-spline on a
// coarse grid of nodes, constant beyond the grid.
struct Déformation {
    double pas = 40.0;
    QPointF coin; // position of node (0, 0)
    int nx = 0, ny = 0;
    QVector<double> dx, dy; // node values, row-major

    void prépare(QRectF couverture, double pas);
    QPointF applique(QPointF p) const;
    // The nodes a point depends on and their weights (16 of them).
    int poids(QPointF p, int indices[16], double valeurs[16]) const;
    double plusGrand() const; // largest displacement at a node, pixels
};

// The whole projection: LV95 metres to pixels of the 1x map.
struct Projection {
    Similitude similitude;
    Déformation déformation;
    QPointF applique(QPointF lv95) const { return déformation.applique(similitude.applique(lv95)); }
    Polygone applique(const Polygone &p) const;
};

// Which sides of a canton's rectangle the similarity should touch.
enum Côté { Gauche = 1, Droite = 2, Haut = 4, Bas = 8 };

struct Contrainte {
    int numéro; // canton
    int côtés;  // Côté flags
};

struct Options {
    double poidsVilles = 1.0;
    double poidsBords = 1.0;
    double marge = 1.0; // aimed gap between a large canton and its rectangle
    QVector<Contrainte> bords;
    // Every canton must stay at least this far inside every side of its
    // rectangle (inv(i), the narrower of its two pictures).
    double margeMin = 0.3;
    double pasDéformation = 32.0;
    double raideur = 40.0; // weight of the warp's bending against the towns
};

// cantons[i] is the polygon of canton i + 1, in LV95.
Similitude AjusteSimilitude(const std::array<Polygone, 26> &cantons, const Options &options);
Projection Ajuste(const std::array<Polygone, 26> &cantons, const Options &options);

// Gaps in pixels between a drawn canton (already projected) and the sides of
// a rectangle: positive inside, negative across.
struct Écarts {
    double gauche, droite, haut, bas;
    double pire() const { return std::min({gauche, droite, haut, bas}); }
};
Écarts ÉcartsRectangle(const Polygone &cantonProjeté, QRectF rect);
