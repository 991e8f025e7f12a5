#include "Relief.h"

#include "Cantons.h"
#include "Sources.h"

#include <QColor>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace {

// Gradient noise (Perlin's improved noise, 2D), from a fixed permutation so
// that every run draws the same mountains.
class Bruit {
public:
    explicit Bruit(std::uint32_t graine)
    {
        for (int i = 0; i < 256; ++i)
            p[i] = i;
        std::uint32_t s = graine;
        for (int i = 255; i > 0; --i) {
            s = s * 1664525u + 1013904223u;
            std::swap(p[i], p[(s >> 8) % (i + 1)]);
        }
        for (int i = 0; i < 256; ++i)
            p[256 + i] = p[i];
    }
    // In about [−1, 1].
    double operator()(double x, double y) const
    {
        const int xi = int(std::floor(x)) & 255, yi = int(std::floor(y)) & 255;
        const double xf = x - std::floor(x), yf = y - std::floor(y);
        const double u = lissage(xf), v = lissage(yf);
        const int aa = p[p[xi] + yi], ab = p[p[xi] + yi + 1], ba = p[p[xi + 1] + yi], bb = p[p[xi + 1] + yi + 1];
        const double x1 = std::lerp(grad(aa, xf, yf), grad(ba, xf - 1, yf), u);
        const double x2 = std::lerp(grad(ab, xf, yf - 1), grad(bb, xf - 1, yf - 1), u);
        return std::lerp(x1, x2, v) * 1.4;
    }
    double fbm(double x, double y, int octaves) const
    {
        double s = 0, a = 0.5, f = 1, n = 0;
        for (int i = 0; i < octaves; ++i) {
            s += a * (*this)(x * f + 17.1 * i, y * f - 9.3 * i);
            n += a;
            a *= 0.5;
            f *= 2.03;
        }
        return s / n;
    }
    // Sharp crests, the look of eroded high mountains, in [0, 1].
    double arêtes(double x, double y, int octaves) const
    {
        double s = 0, a = 0.5, f = 1, n = 0, poids = 1;
        for (int i = 0; i < octaves; ++i) {
            double r = 1.0 - std::abs((*this)(x * f + 31.7 * i, y * f + 5.9 * i));
            r = r * r * poids;
            poids = std::clamp(r * 1.6, 0.0, 1.0);
            s += a * r;
            n += a;
            a *= 0.5;
            f *= 2.1;
        }
        return s / n;
    }

private:
    static double lissage(double t) { return t * t * t * (t * (t * 6 - 15) + 10); }
    static double grad(int h, double x, double y)
    {
        switch (h & 7) {
        case 0: return x + y;
        case 1: return -x + y;
        case 2: return x - y;
        case 3: return -x - y;
        case 4: return x;
        case 5: return -x;
        case 6: return y;
        default: return -y;
        }
    }
    std::array<int, 512> p;
};

const Bruit bruitA(20260101), bruitB(7), bruitC(1848);

double Lisse(double a, double b, double x)
{
    const double t = std::clamp((x - a) / (b - a), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

// Interpolates a profile given at increasing positions.
double Profil(std::initializer_list<std::pair<double, double>> points, double t)
{
    auto it = points.begin();
    if (t <= it->first)
        return it->second;
    for (auto p = it, q = it + 1; q != points.end(); ++p, ++q)
        if (t <= q->first)
            return std::lerp(p->second, q->second, (t - p->first) / (q->first - p->first));
    return (points.end() - 1)->second;
}

} // namespace

Relief::Distance Relief::DistanceÀ(const QVector<QPointF> &l, QPointF p)
{
    Distance meilleur{1e300, 0, 0};
    double longueur = 0;
    QVector<double> cumul{0};
    for (int i = 0; i + 1 < l.size(); ++i)
        cumul.append(longueur += std::hypot(l[i + 1].x() - l[i].x(), l[i + 1].y() - l[i].y()));
    for (int i = 0; i + 1 < l.size(); ++i) {
        const QPointF a = l[i], b = l[i + 1], ab = b - a, ap = p - a;
        const double n2 = QPointF::dotProduct(ab, ab);
        const double s = n2 > 0 ? std::clamp(QPointF::dotProduct(ap, ab) / n2, 0.0, 1.0) : 0.0;
        const QPointF q = a + s * ab;
        const double d = std::hypot(p.x() - q.x(), p.y() - q.y());
        if (d < meilleur.d) {
            // screen y points down: left of the direction is a negative cross product
            const double croix = ab.x() * ap.y() - ab.y() * ap.x();
            meilleur = {d, croix < 0 ? 1.0 : -1.0, longueur > 0 ? (cumul[i] + s * std::sqrt(n2)) / longueur : 0.0};
        }
    }
    return meilleur;
}

Relief::Relief(const Projection &pr) : pixelsParKm(pr.similitude.pixelsParKm())
{
    // Points in LV95 kilometres (Swiss ones) or in degrees (beyond the border).
    auto ch = [&](double e, double n) { return pr.applique(QPointF(e * 1000.0, n * 1000.0)); };
    auto geo = [&](double lon, double lat) { return pr.applique(Lv95(lon, lat)); };
    const double km = pixelsParKm;

    // The Alps: a broad mass, then the high chains on it.
    chaînes = {
        {{geo(6.2, 45.75), geo(6.9, 45.95), ch(2600, 1118), ch(2688, 1156), ch(2760, 1165), geo(10.2, 46.75), geo(11.0, 46.95)}, 1800, 30 * km},
        // Mont Blanc, Grand Combin, Pennine Alps to Monte Rosa
        {{geo(6.75, 45.78), geo(6.87, 45.83), ch(2584, 1088), ch(2617, 1091), ch(2633, 1087), ch(2645, 1105)}, 3500, 10 * km},
        // Bernese Alps: Diablerets to the Dammastock
        {{ch(2568, 1130), ch(2583, 1130), ch(2600, 1138), ch(2625, 1148), ch(2642, 1155), ch(2652, 1152), ch(2675, 1165)}, 3300, 8 * km},
        // Lepontine Alps: Simplon, Gotthard, Adula
        {{ch(2645, 1115), ch(2668, 1140), ch(2688, 1157), ch(2712, 1160), ch(2732, 1153)}, 2800, 9 * km},
        // Ticino Alps, down to the lakes
        {{ch(2672, 1128), ch(2690, 1136), ch(2705, 1130), ch(2728, 1128), ch(2740, 1120)}, 2300, 11 * km},
        // Plessur and Albula Alps
        {{ch(2762, 1183), ch(2780, 1178), ch(2795, 1165)}, 2500, 9 * km},
        // Glarus Alps, Tödi, Ringelspitz
        {{ch(2692, 1180), ch(2709, 1186), ch(2735, 1195), ch(2745, 1200)}, 2900, 8 * km},
        // Rätikon, Silvretta and on into Tyrol
        {{ch(2765, 1215), ch(2780, 1212), ch(2810, 1193), geo(10.35, 46.9), geo(10.8, 46.85)}, 2800, 9 * km},
        // Albula, Bernina, Ortler
        {{ch(2760, 1170), ch(2775, 1160), ch(2789, 1140), geo(10.1, 46.35), geo(10.54, 46.51)}, 3100, 9 * km},
        // Säntis and the Alpstein
        {{ch(2735, 1233), ch(2745, 1235), ch(2752, 1237)}, 1700, 4 * km},
        // Pre-Alps along the northern front
        {{geo(6.45, 46.15), ch(2540, 1125), ch(2565, 1150), ch(2585, 1165), ch(2615, 1182), ch(2645, 1190), ch(2680, 1200), ch(2705, 1215), ch(2730, 1225)}, 1500, 9 * km},
        // Chablais and the Savoy pre-Alps
        {{geo(6.2, 46.0), geo(6.55, 46.2), ch(2545, 1115)}, 1700, 9 * km},
        // Bergamo Alps south of the Valtellina
        {{geo(9.3, 45.98), geo(9.9, 46.0), geo(10.3, 46.05)}, 1900, 9 * km},
        // Bregenzerwald and Allgäu
        {{geo(9.85, 47.4), geo(10.3, 47.42)}, 1400, 9 * km},
    };
    // Uplands and hills: round or long, soft.
    collines = {
        {{geo(8.0, 47.87), geo(8.1, 47.75)}, 950, 16 * km},       // Black Forest
        {{geo(6.9, 47.95), geo(7.0, 47.80)}, 900, 12 * km},       // southern Vosges
        {{ch(2640, 1208), ch(2652, 1212)}, 800, 9 * km},          // Napf
        {{ch(2690, 1292), ch(2700, 1295)}, 450, 8 * km},          // Randen
        {{geo(8.9, 47.95), geo(9.3, 48.1)}, 400, 12 * km},        // Hegau and Swabian Jura
        {{ch(2570, 1175), ch(2592, 1168)}, 500, 10 * km},         // Gibloux and the Fribourg hills
        {{ch(2712, 1245), ch(2722, 1240)}, 450, 8 * km},          // Hörnli
        {{geo(6.18, 46.13), geo(6.23, 46.10)}, 800, 3.5 * km},    // Salève
    };
    // Valleys: floor height and half-width.
    vallées = {
        {{ch(2558, 1138), ch(2566, 1120), ch(2571, 1105), ch(2580, 1110), ch(2594, 1120), ch(2607, 1127), ch(2634, 1128), ch(2642, 1130), ch(2660, 1145), ch(2670, 1153)}, 480, 3.2 * km},
        {{ch(2695, 1168), ch(2708, 1173), ch(2735, 1182), ch(2759, 1191), ch(2752, 1213), ch(2756, 1230), ch(2762, 1255)}, 450, 3.0 * km},
        {{ch(2775, 1142), ch(2784, 1152), ch(2803, 1175), ch(2817, 1186), ch(2830, 1197), geo(10.55, 47.15)}, 1400, 2.4 * km},
        {{ch(2688, 1154), ch(2704, 1145), ch(2718, 1136), ch(2722, 1117), ch(2712, 1113)}, 300, 2.6 * km},
        {{ch(2688, 1165), ch(2694, 1180), ch(2691, 1193)}, 600, 2.0 * km},
        {{ch(2675, 1168), ch(2657, 1175), ch(2645, 1177), ch(2632, 1170), ch(2614, 1178), ch(2604, 1190)}, 560, 2.6 * km},
        {{ch(2718, 1198), ch(2724, 1212), ch(2730, 1220), ch(2745, 1219), ch(2752, 1213)}, 480, 2.0 * km},
        {{ch(2634, 1128), ch(2630, 1110), ch(2624, 1096)}, 1000, 1.6 * km},          // Mattertal
        {{ch(2617, 1170), ch(2616, 1160), ch(2617, 1149)}, 800, 1.6 * km},          // Kandertal
        {{ch(2571, 1105), ch(2577, 1095), ch(2580, 1080)}, 700, 1.8 * km},          // Val d'Entremont
        {{geo(6.87, 45.73), geo(7.32, 45.74), geo(7.6, 45.6), geo(7.8, 45.5)}, 550, 3.0 * km}, // Aosta
        {{geo(10.17, 46.22), geo(9.87, 46.17), geo(9.4, 46.15)}, 300, 3.0 * km},    // Valtellina
        {{ch(2705, 1114), ch(2700, 1100), geo(8.6, 45.85), geo(8.58, 45.7)}, 200, 4.0 * km}, // Lago Maggiore
        {{ch(2722, 1117), ch(2735, 1127), ch(2740, 1140), ch(2735, 1152)}, 700, 1.8 * km}, // Mesolcina
        {{geo(6.9, 45.92), geo(6.8, 46.05), geo(6.5, 46.1), geo(6.25, 46.18)}, 500, 2.6 * km}, // Arve
        {{geo(9.6, 47.25), geo(9.85, 47.15), geo(10.1, 47.13)}, 650, 2.6 * km}, // Klostertal, Ill
        // Valais, the side valleys
        {{ch(2579, 1103), ch(2585, 1099), ch(2592, 1090)}, 900, 1.5 * km},          // Val de Bagnes
        {{ch(2596, 1119), ch(2602, 1110), ch(2605, 1100), ch(2604, 1093)}, 900, 1.5 * km}, // Val d'Hérens
        {{ch(2607, 1125), ch(2611, 1115), ch(2614, 1106)}, 1000, 1.4 * km},         // Val d'Anniviers
        {{ch(2634, 1120), ch(2637, 1110), ch(2640, 1100)}, 1100, 1.4 * km},         // Saastal
        {{ch(2624, 1130), ch(2628, 1137), ch(2634, 1142)}, 1200, 1.3 * km},         // Lötschental
        // Bernese Oberland
        {{ch(2618, 1170), ch(2605, 1163), ch(2596, 1156), ch(2601, 1144)}, 800, 1.8 * km}, // Simmental
        {{ch(2570, 1163), ch(2577, 1147), ch(2587, 1147), ch(2594, 1150)}, 900, 1.8 * km}, // Pays-d'Enhaut
        {{ch(2632, 1170), ch(2635, 1160), ch(2636, 1152)}, 800, 1.3 * km},          // Lauterbrunnen
        {{ch(2634, 1167), ch(2642, 1163), ch(2648, 1164)}, 1000, 1.3 * km},         // Grindelwald
        {{ch(2657, 1175), ch(2661, 1171), ch(2667, 1163), ch(2668, 1156)}, 800, 1.6 * km}, // Haslital
        // Central Switzerland
        {{ch(2661, 1194), ch(2656, 1182), ch(2657, 1175)}, 600, 1.8 * km},          // Sarneraatal, Brünig
        {{ch(2670, 1201), ch(2673, 1192), ch(2674, 1185)}, 800, 1.4 * km},          // Engelberg
        {{ch(2692, 1208), ch(2700, 1205), ch(2708, 1202)}, 700, 1.3 * km},          // Muotatal
        {{ch(2724, 1240), ch(2733, 1233), ch(2742, 1229)}, 700, 1.6 * km},          // Toggenburg
        // Graubünden
        {{ch(2762, 1205), ch(2775, 1203), ch(2786, 1194)}, 700, 1.7 * km},          // Prättigau
        {{ch(2786, 1194), ch(2783, 1186), ch(2776, 1174)}, 1500, 1.5 * km},         // Davos
        {{ch(2751, 1187), ch(2753, 1173), ch(2750, 1162), ch(2744, 1156), ch(2736, 1155)}, 800, 1.8 * km}, // Domleschg, Hinterrhein
        {{ch(2764, 1170), ch(2767, 1160), ch(2771, 1148)}, 1200, 1.5 * km},         // Oberhalbstein
        {{ch(2774, 1141), ch(2765, 1136), ch(2758, 1134), geo(9.40, 46.32)}, 700, 1.8 * km}, // Bregaglia
        {{ch(2796, 1143), ch(2802, 1128), ch(2806, 1118), geo(10.17, 46.22)}, 900, 1.6 * km}, // Val Poschiavo
        // Ticino
        {{ch(2718, 1136), ch(2716, 1146), ch(2716, 1154)}, 600, 1.5 * km},          // Blenio
        {{ch(2704, 1114), ch(2697, 1122), ch(2690, 1130), ch(2685, 1140)}, 500, 1.6 * km}, // Maggia
        {{ch(2709, 1116), ch(2708, 1125), ch(2707, 1133)}, 700, 1.2 * km},          // Verzasca
        {{ch(2717, 1097), ch(2722, 1092), ch(2727, 1089)}, 270, 2.0 * km},          // Lake Lugano
        // Beyond the border
        {{geo(8.50, 45.93), geo(8.30, 46.05), geo(8.29, 46.12), geo(8.40, 46.30)}, 300, 2.4 * km}, // Ossola
        {{geo(6.87, 45.92), geo(6.95, 45.96), geo(7.03, 46.0)}, 1000, 1.6 * km},   // Chamonix
    };
    // The foot of the folded Jura, south-west to north-east.
    frontJura = {geo(5.70, 45.95), geo(5.93, 46.13), ch(2497, 1125), ch(2506, 1141), ch(2520, 1158), ch(2531, 1175),
                 ch(2545, 1187), ch(2561, 1204), ch(2585, 1221), ch(2607, 1229), ch(2635, 1243), ch(2657, 1258),
                 ch(2675, 1260)};
}

double Relief::hauteur(QPointF p) const
{
    const double km = pixelsParKm;
    const double x = p.x() / km, y = p.y() / km; // kilometres for the noise

    // Lowland: the plateau and the plains beyond, with gentle hills.
    double h = 420 + 170 * (0.5 + 0.5 * bruitB.fbm(x / 22.0, y / 22.0, 4)) + 60 * bruitC.fbm(x / 6.0, y / 6.0, 3);

    for (const Ligne &c : collines) {
        const Distance d = DistanceÀ(c.points, p);
        h += c.valeur * std::exp(-(d.d * d.d) / (c.demiLargeur * c.demiLargeur)) * (0.75 + 0.35 * bruitB.fbm(x / 7.0, y / 7.0, 4));
    }

    // The Jura: parallel folds behind its foot, widest and highest in the
    // south-west, dying out east of Baden.
    {
        const Distance d = DistanceÀ(frontJura, p);
        if (d.côté > 0 || d.d < 2 * km) {
            const double v = (d.côté > 0 ? d.d : -d.d) / km; // km behind the foot
            const double u = d.t;
            const double largeur = Profil({{0, 55}, {0.3, 48}, {0.55, 38}, {0.75, 24}, {0.9, 12}, {1, 6}}, u);
            const double hautJ = Profil({{0, 900}, {0.3, 1000}, {0.55, 900}, {0.75, 700}, {0.9, 450}, {1, 250}}, u);
            const double bordAvant = Lisse(-1.5, 2.5, v), bordArrière = 1 - Lisse(largeur * 0.7, largeur, v);
            const double fin = d.t >= 0.999 ? 0.0 : 1.0;
            // folds neither straight nor even: their line wanders, their
            // height swells and dies away along them
            const double onde = v + 2.2 * bruitA(x / 16.0, y / 16.0) + 0.8 * bruitB(x / 5.0, y / 5.0);
            double plis = 0.5 + 0.5 * std::cos(2 * M_PI * (onde - 3.5) / (8.0 + 1.5 * bruitC(x / 30.0, y / 30.0)));
            plis = std::pow(plis, 1.4);
            const double houle = std::clamp(0.75 + 0.55 * bruitB.fbm(x / 13.0, y / 13.0, 3), 0.25, 1.3);
            const double déclin = 1 - 0.5 * std::clamp(v / largeur, 0.0, 1.0);
            h += fin * bordAvant * bordArrière * (hautJ * déclin * (0.3 + 0.7 * plis * houle) * (0.85 + 0.25 * bruitC.fbm(x / 5.0, y / 5.0, 3)));
        }
    }

    // The Alps. Lines are followed loosely: the point is shifted by noise
    // first, so that no chain or valley runs ruler-straight.
    const QPointF flou = QPointF(bruitB(x / 9.0, y / 9.0), bruitC(x / 9.0 + 40, y / 9.0)) * (2.5 * km);
    double masse = 0;
    for (const Ligne &c : chaînes) {
        const Distance d = DistanceÀ(c.points, p + flou);
        const double f = c.valeur * std::exp(-(d.d * d.d) / (c.demiLargeur * c.demiLargeur));
        masse += f * f * f * f;
    }
    masse = std::pow(masse, 0.25);
    if (masse > 1) {
        const double texture = bruitA.arêtes(x / 11.0 + 0.3 * bruitB(x / 20.0, y / 20.0), y / 11.0, 5);
        h += masse * (0.35 + 0.9 * texture);
    }

    // Valleys cut through everything.
    const QPointF méandre = QPointF(bruitA(x / 3.5 + 11, y / 3.5), bruitB(x / 3.5, y / 3.5 - 7)) * (0.7 * km);
    for (const Ligne &v : vallées) {
        const Distance d = DistanceÀ(v.points, p + méandre);
        const double w = v.demiLargeur * (0.85 + 0.3 * bruitC(x / 4.0, y / 4.0));
        const double fond = std::exp(-(d.d * d.d) / (w * w));
        const double flanc = std::exp(-(d.d * d.d) / (9 * w * w));
        const double sol = v.valeur;
        if (h > sol) {
            h = h - (h - sol) * (0.45 * flanc);
            h = h - (h - sol) * fond;
        }
    }
    return h;
}

QVector<float> Relief::grille(int largeur, int hauteurImage, int échelle) const
{
    const int l = largeur * échelle, ht = hauteurImage * échelle;
    QVector<float> g(l * ht);
    for (int y = 0; y < ht; ++y)
        for (int x = 0; x < l; ++x)
            g[y * l + x] = float(hauteur(QPointF((x + 0.5) / échelle, (y + 0.5) / échelle)));
    return g;
}

namespace {

QColor Rampe(const std::vector<std::pair<double, QColor>> &r, double h)
{
    if (h <= r.front().first)
        return r.front().second;
    for (size_t i = 0; i + 1 < r.size(); ++i)
        if (h <= r[i + 1].first) {
            const double t = (h - r[i].first) / (r[i + 1].first - r[i].first);
            const QColor a = r[i].second, b = r[i + 1].second;
            return QColor::fromRgbF(std::lerp(a.redF(), b.redF(), t), std::lerp(a.greenF(), b.greenF(), t),
                                    std::lerp(a.blueF(), b.blueF(), t));
        }
    return r.back().second;
}

int Octet(double v) { return std::clamp(int(std::lround(v)), 0, 255); }

} // namespace

Teintes Ombrage(const Relief &relief, int largeur, int hauteur, int échelle)
{
    const int l = largeur * échelle, ht = hauteur * échelle;
    const QVector<float> h = relief.grille(largeur, hauteur, échelle);
    // metres per pixel of this picture; the relief is exaggerated, as small
    // scale maps do, or the plateau would read as flat
    const double pas = 1000.0 / (relief.pixelsParKilomètre() * échelle);
    const double exagération = 2.2;
    // light from the north-west, 45 degrees up (screen y points south)
    const double lx = -1 / std::sqrt(3.0), ly = -1 / std::sqrt(3.0), lz = 1 / std::sqrt(3.0);
    const double plat = lz;

    const std::vector<std::pair<double, QColor>> rampe = {
        {250, QColor(172, 203, 150)}, {500, QColor(190, 215, 162)}, {800, QColor(214, 226, 176)},
        {1200, QColor(230, 226, 184)}, {1700, QColor(226, 212, 176)}, {2200, QColor(214, 202, 184)},
        {2700, QColor(222, 219, 214)}, {3300, QColor(242, 242, 242)}, {4500, QColor(252, 252, 252)}};
    const QColor gris(236, 233, 226);

    Teintes t{QImage(l, ht, QImage::Format_RGB32), QImage(l, ht, QImage::Format_RGB32)};
    for (int y = 0; y < ht; ++y) {
        auto *ls = reinterpret_cast<QRgb *>(t.suisse.scanLine(y));
        auto *lv = reinterpret_cast<QRgb *>(t.voisins.scanLine(y));
        for (int x = 0; x < l; ++x) {
            auto H = [&](int i, int j) { return double(h[std::clamp(j, 0, ht - 1) * l + std::clamp(i, 0, l - 1)]); };
            const double dx = (H(x + 1, y) - H(x - 1, y)) / (2 * pas) * exagération;
            const double dy = (H(x, y + 1) - H(x, y - 1)) / (2 * pas) * exagération;
            const double n = std::sqrt(dx * dx + dy * dy + 1);
            const double i = (-dx * lx - dy * ly + lz) / n;
            const double ombre = std::clamp(1.0 + 0.95 * (i - plat), 0.45, 1.25);
            const double z = H(x, y);
            const QColor c = Rampe(rampe, z);
            // lit slopes lean to warm white, shadows to cool grey-violet
            auto teinte = [&](double r, double g, double b, double force) {
                const double o = 1.0 + force * (ombre - 1.0);
                if (o >= 1)
                    return qRgb(Octet(r + (255 - r) * (o - 1) * 1.3), Octet(g + (252 - g) * (o - 1) * 1.3), Octet(b + (240 - b) * (o - 1) * 1.1));
                return qRgb(Octet(r * o), Octet(g * o), Octet(b * (0.12 + 0.88 * o)));
            };
            ls[x] = teinte(c.red(), c.green(), c.blue(), 1.0);
            const double m = 0.62;
            lv[x] = teinte(std::lerp(c.red(), gris.red(), m), std::lerp(c.green(), gris.green(), m),
                           std::lerp(c.blue(), gris.blue(), m), 0.55);
        }
    }
    return t;
}
