#pragma once
// The map's pictures, drawn from the projected outlines at 1x or 2x.
#include "Carte.h"
#include "Relief.h"
#include "Trame.h"

#include <QFont>
#include <QImage>
#include <QLineF>
#include <QPainterPath>
#include <QStringList>
#include <array>

enum class Langue { Français, Allemand };

// How a canton's name is set in its picture, in 1x pixels from the
// picture's top-left.
struct PlacementNom {
    QStringList lignes;
    double taille = 0;   // font pixel size
    int étirement = 100; // horizontal stretch, percent
    QRectF bloc;         // the lines' box: their advances, from the first ascent
    QVector<QRect> étendues; // what each line's letters and halo may cover, at 1x or 2x
    double note = 0;
    double sousAutres = 0;    // share of it under the shape of a canton drawn later
    int pixelsBordDessus = 0; // pixels of it on a border of a canton drawn later
    // A name with no clear room on its own land stands where it reads (water,
    // abroad, an earlier canton's land) and a leader joins it to its canton:
    // from a point well inside the canton's land to the edge of the name's
    // halo, in 1x pixels from the picture's top-left. Null when not needed.
    QLineF renvoi;
    QVector<QRect> étenduesRenvoi; // what the leader and its halo may cover, at 1x or 2x
};

// The leader: a thin line with a halo, and a small dot where it ends in the
// canton's land.
constexpr double DemiRenvoi = 0.45;   // half the line's width, 1x pixels
constexpr double HaloRenvoi = 1.0;    // the halo's reach beyond the line
constexpr double RayonAncre = 1.2;    // the dot at the canton's end
// What the leader with its halo covers, as small boxes along it, in the
// units of `trait` drawn at scale k (a diagonal's bounding box would claim
// far more than the line takes).
QVector<QRectF> ÉtendueRenvoi(const QLineF &trait, int k);

// The chief-town dot as the game lays it, 7 x 8, on the map.
QRect RectPoint(int numéro);

class Dessinateur {
public:
    Dessinateur(const Géographie &géographie, const Trame &trame);

    QImage carte(const Teintes &teintes, int échelle) const;
    QImage inv(int numéro, int échelle) const;
    QImage pays(int numéro, Langue langue, int échelle) const;
    QImage miniature(int numéro, QSize taille, int échelle) const;

    // Where the name goes: chosen once for all cantons of a language, the
    // tightest pictures first, each name kept clear of those placed before.
    const PlacementNom &placement(int numéro, Langue langue) const;
    QFont police(double taillePixels, int étirement) const;
    // Each line of the name as drawn at scale k, in picture pixels at that
    // scale, with where its letters and halo reach.
    struct Ligne {
        QString texte;
        QPointF origine; // baseline start
        QPainterPath contour;
        QRectF étendue;
    };
    QVector<Ligne> lignes(const PlacementNom &placement, int échelle) const;

private:
    QPainterPath chemin(const Polygone &p, double échelle, QPointF décalage = {}) const;
    PlacementNom place(int numéro, Langue langue, const QVector<int> &occupé) const;
    void bordIntérieur(QImage &image, const QPainterPath &forme, double largeur, QColor couleur) const;

    const Géographie &g;
    const Trame &trame;
    QString famille;
    std::array<QVector<PlacementNom>, 2> placements;
};

// The colours the pictures share.
namespace Couleurs {
inline const QColor bordCanton(196, 22, 42);   // inv(i) and the reductions
inline const QColor bordTrouvé(120, 20, 40);   // Pays(i)
inline const QColor teinteTrouvé(255, 214, 92, 84);
inline const QColor texte(34, 30, 34);
inline const QColor halo(255, 255, 255, 225);
} // namespace Couleurs

// The halo's reach beyond the letters, in 1x pixels.
constexpr double DemiHalo = 1.3;
