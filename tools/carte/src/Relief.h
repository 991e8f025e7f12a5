#pragma once
// A hand-made relief. No elevation data is to be had from our package
// sources, so the heights are synthetic: the Alpine chains, the folds of the
// Jura, the hills of the plateau and the uplands beyond the border, placed by
// hand along their real lines, given texture by fractal noise and cut by the
// great valleys. Good enough for a shaded look, not for any measurement.
#include "Ajustement.h"

#include <QImage>
#include <QPointF>
#include <QVector>

class Relief {
public:
    explicit Relief(const Projection &projection);

    // Height in metres at a point of the 1x map (continuous pixel coordinates).
    double hauteur(QPointF p) const;

    // Heights at the centres of the pixels of a picture of the 1x map's
    // `largeur` x `hauteur` drawn at `échelle`.
    QVector<float> grille(int largeur, int hauteur, int échelle) const;
    double pixelsParKilomètre() const { return pixelsParKm; }

private:
    struct Ligne {
        QVector<QPointF> points; // pixels of the 1x map
        double valeur;           // height (chains) or floor height (valleys), m
        double demiLargeur;      // pixels
    };
    struct Distance {
        double d;     // to the nearest point of the line, pixels
        double côté;  // > 0 left of the line's direction, < 0 right
        double t;     // position along the line, 0 at its start, 1 at its end
    };
    static Distance DistanceÀ(const QVector<QPointF> &ligne, QPointF p);

    QVector<Ligne> chaînes, vallées, collines;
    QVector<QPointF> frontJura;
    double pixelsParKm;
};

// Shaded and tinted pictures of the relief, lit from the north-west.
struct Teintes {
    QImage suisse;  // hypsometric tints, full shading
    QImage voisins; // the same land in a quieter tone
};
Teintes Ombrage(const Relief &relief, int largeur, int hauteur, int échelle);
