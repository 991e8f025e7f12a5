#include "Ajustement.h"

#include "Cantons.h"

#include <QtDebug>
#include <cmath>
#include <stdexcept>

QPointF Similitude::applique(QPointF p) const
{
    const double de = p.x() - origine.x(), dn = p.y() - origine.y();
    return {a * de + b * dn + c, b * de - a * dn + d};
}

double Similitude::pixelsParKm() const { return 1000.0 * std::hypot(a, b); }

double Similitude::rotationDegrés() const { return std::atan2(b, a) * 180.0 / M_PI; }

void Déformation::prépare(QRectF couverture, double p)
{
    pas = p;
    coin = couverture.topLeft() - QPointF(2 * pas, 2 * pas);
    nx = int(std::ceil(couverture.width() / pas)) + 5;
    ny = int(std::ceil(couverture.height() / pas)) + 5;
    dx.fill(0.0, nx * ny);
    dy.fill(0.0, nx * ny);
}

int Déformation::poids(QPointF p, int indices[16], double valeurs[16]) const
{
    if (nx < 4 || ny < 4)
        return 0;
    // Beyond the grid the warp stays what it is at its edge.
    const double u = std::clamp((p.x() - coin.x()) / pas, 1.0, nx - 2.0 - 1e-9);
    const double v = std::clamp((p.y() - coin.y()) / pas, 1.0, ny - 2.0 - 1e-9);
    const int i = int(u), j = int(v);
    const double s = u - i, t = v - j;
    auto base = [](double x, double w[4]) {
        w[0] = (1 - x) * (1 - x) * (1 - x) / 6;
        w[1] = (3 * x * x * x - 6 * x * x + 4) / 6;
        w[2] = (-3 * x * x * x + 3 * x * x + 3 * x + 1) / 6;
        w[3] = x * x * x / 6;
    };
    double wu[4], wv[4];
    base(s, wu);
    base(t, wv);
    int n = 0;
    for (int b = 0; b < 4; ++b)
        for (int a = 0; a < 4; ++a) {
            indices[n] = (j - 1 + b) * nx + (i - 1 + a);
            valeurs[n] = wu[a] * wv[b];
            ++n;
        }
    return n;
}

QPointF Déformation::applique(QPointF p) const
{
    int k[16];
    double w[16];
    const int n = poids(p, k, w);
    double ddx = 0, ddy = 0;
    for (int i = 0; i < n; ++i) {
        ddx += w[i] * dx[k[i]];
        ddy += w[i] * dy[k[i]];
    }
    return p + QPointF(ddx, ddy);
}

double Déformation::plusGrand() const
{
    double m = 0;
    for (int i = 0; i < dx.size(); ++i)
        m = std::max(m, std::hypot(dx[i], dy[i]));
    return m;
}

Polygone Projection::applique(const Polygone &p) const
{
    Polygone r;
    r.reserve(p.size());
    for (const Anneau &a : p) {
        Anneau b;
        b.reserve(a.size());
        for (QPointF q : a)
            b.append(applique(q));
        r.append(b);
    }
    return r;
}

namespace {

// Dense linear least squares by normal equations and Cholesky.
struct Moindres {
    int n;
    std::vector<double> m, v;
    explicit Moindres(int taille) : n(taille), m(size_t(taille) * taille, 0.0), v(taille, 0.0) {}
    void ajoute(const int *k, const double *l, int nb, double cible, double poids)
    {
        for (int i = 0; i < nb; ++i) {
            for (int j = 0; j < nb; ++j)
                m[size_t(k[i]) * n + k[j]] += poids * l[i] * l[j];
            v[k[i]] += poids * l[i] * cible;
        }
    }
    std::vector<double> résous() const
    {
        std::vector<double> L(m);
        for (int j = 0; j < n; ++j) {
            double d = L[size_t(j) * n + j];
            for (int k = 0; k < j; ++k)
                d -= L[size_t(j) * n + k] * L[size_t(j) * n + k];
            if (d <= 1e-300)
                throw std::runtime_error("the fit is singular");
            d = std::sqrt(d);
            L[size_t(j) * n + j] = d;
            for (int i = j + 1; i < n; ++i) {
                double s = L[size_t(i) * n + j];
                for (int k = 0; k < j; ++k)
                    s -= L[size_t(i) * n + k] * L[size_t(j) * n + k];
                L[size_t(i) * n + j] = s / d;
            }
        }
        std::vector<double> y(n), x(n);
        for (int i = 0; i < n; ++i) {
            double s = v[i];
            for (int k = 0; k < i; ++k)
                s -= L[size_t(i) * n + k] * y[k];
            y[i] = s / L[size_t(i) * n + i];
        }
        for (int i = n - 1; i >= 0; --i) {
            double s = y[i];
            for (int k = i + 1; k < n; ++k)
                s -= L[size_t(k) * n + i] * x[k];
            x[i] = s / L[size_t(i) * n + i];
        }
        return x;
    }
};

// The dot's middle in continuous pixel coordinates: the dot covers columns
// g..g+6 and rows h..h+7.
QPointF CibleVille(const FicheCanton &c) { return {c.villeGauche + 3.5, c.villeHaut + 4.0}; }

} // namespace

Similitude AjusteSimilitude(const std::array<Polygone, 26> &cantons, const Options &o)
{
    Similitude s;
    // Centre the unknowns on the chief towns for a well-conditioned system.
    for (const FicheCanton &c : Cantons())
        s.origine += c.villeLv95 / NombreCantons;
    auto delta = [&](QPointF q) { return q - s.origine; };
    // x of a point: (dE, dN, 1, 0)·(a, b, c, d); y: (−dN, dE, 0, 1)·(a, b, c, d)
    const int k[4] = {0, 1, 2, 3};
    auto équationX = [&](Moindres &m, QPointF q, double cible, double poids) {
        const QPointF d = delta(q);
        const double l[4] = {d.x(), d.y(), 1, 0};
        m.ajoute(k, l, 4, cible, poids);
    };
    auto équationY = [&](Moindres &m, QPointF q, double cible, double poids) {
        const QPointF d = delta(q);
        const double l[4] = {-d.y(), d.x(), 0, 1};
        m.ajoute(k, l, 4, cible, poids);
    };
    auto résous = [&](const Moindres &m) {
        const auto r = m.résous();
        s.a = r[0]; s.b = r[1]; s.c = r[2]; s.d = r[3];
    };

    Moindres départ(4);
    for (const FicheCanton &c : Cantons()) {
        équationX(départ, c.villeLv95, CibleVille(c).x(), o.poidsVilles);
        équationY(départ, c.villeLv95, CibleVille(c).y(), o.poidsVilles);
    }
    résous(départ);

    // Which point of a canton lies furthest out depends on the fit: iterate.
    for (int tour = 0; tour < 50 && !o.bords.isEmpty(); ++tour) {
        const Similitude avant = s;
        Moindres m(4);
        for (const FicheCanton &c : Cantons()) {
            équationX(m, c.villeLv95, CibleVille(c).x(), o.poidsVilles);
            équationY(m, c.villeLv95, CibleVille(c).y(), o.poidsVilles);
        }
        for (const Contrainte &b : o.bords) {
            const FicheCanton &c = Canton(b.numéro);
            QPointF g, dr, h, ba;
            double xmin = 1e300, xmax = -1e300, ymin = 1e300, ymax = -1e300;
            for (const Anneau &a : cantons[b.numéro - 1])
                for (QPointF q : a) {
                    const QPointF p = s.applique(q);
                    if (p.x() < xmin) { xmin = p.x(); g = q; }
                    if (p.x() > xmax) { xmax = p.x(); dr = q; }
                    if (p.y() < ymin) { ymin = p.y(); h = q; }
                    if (p.y() > ymax) { ymax = p.y(); ba = q; }
                }
            const QRectF r(c.rectInv());
            if (b.côtés & Gauche) équationX(m, g, r.left() + o.marge, o.poidsBords);
            if (b.côtés & Droite) équationX(m, dr, r.right() - o.marge, o.poidsBords);
            if (b.côtés & Haut) équationY(m, h, r.top() + o.marge, o.poidsBords);
            if (b.côtés & Bas) équationY(m, ba, r.bottom() - o.marge, o.poidsBords);
        }
        résous(m);
        if (std::abs(s.c - avant.c) + std::abs(s.d - avant.d) < 1e-9)
            break;
    }
    return s;
}

Projection Ajuste(const std::array<Polygone, 26> &cantons, const Options &o)
{
    Projection p;
    p.similitude = AjusteSimilitude(cantons, o);
    p.déformation.prépare(QRectF(0, 0, LargeurCarte, HauteurCarte), o.pasDéformation);
    Déformation &d = p.déformation;
    const int n = d.nx * d.ny;

    // Each axis is solved on its own: towns pull both, left and right sides
    // only x, top and bottom only y. A vertex that would cross a side is held
    // on it (a little inside) with a stiff weight; held vertices stay held,
    // and the loop ends when no vertex crosses any more.
    struct Tenu {
        QPointF sommet; // in the similarity's pixels
        int axe;        // 0 x, 1 y
        double cible;
    };
    QVector<Tenu> tenus;
    std::array<Polygone, 26> plans; // cantons through the similarity alone
    for (int i = 0; i < 26; ++i)
        for (const Anneau &a : cantons[i]) {
            Anneau b;
            for (QPointF q : a)
                b.append(p.similitude.applique(q));
            plans[i].append(b);
        }
    const double visée = o.margeMin + 0.05;
    for (int tour = 0; tour < 200; ++tour) {
        for (int axe = 0; axe < 2; ++axe) {
            Moindres m(n);
            int k[16];
            double w[16];
            for (const FicheCanton &c : Cantons()) {
                const QPointF q = p.similitude.applique(c.villeLv95);
                const int nb = d.poids(q, k, w);
                const double reste = axe == 0 ? CibleVille(c).x() - q.x() : CibleVille(c).y() - q.y();
                m.ajoute(k, w, nb, reste, o.poidsVilles);
            }
            for (const Tenu &t : tenus)
                if (t.axe == axe) {
                    const int nb = d.poids(t.sommet, k, w);
                    m.ajoute(k, w, nb, t.cible - (axe == 0 ? t.sommet.x() : t.sommet.y()), 1000.0);
                }
            // Bending along both grid directions, and a weak pull to zero.
            for (int j = 0; j < d.ny; ++j)
                for (int i = 0; i < d.nx; ++i) {
                    const double l2[3] = {1, -2, 1};
                    if (i + 2 < d.nx) {
                        const int kk[3] = {j * d.nx + i, j * d.nx + i + 1, j * d.nx + i + 2};
                        m.ajoute(kk, l2, 3, 0, o.raideur);
                    }
                    if (j + 2 < d.ny) {
                        const int kk[3] = {j * d.nx + i, (j + 1) * d.nx + i, (j + 2) * d.nx + i};
                        m.ajoute(kk, l2, 3, 0, o.raideur);
                    }
                    const double l1[2] = {1, -1};
                    if (i + 1 < d.nx) {
                        const int kk[2] = {j * d.nx + i, j * d.nx + i + 1};
                        m.ajoute(kk, l1, 2, 0, o.raideur * 0.1);
                    }
                    if (j + 1 < d.ny) {
                        const int kk[2] = {j * d.nx + i, (j + 1) * d.nx + i};
                        m.ajoute(kk, l1, 2, 0, o.raideur * 0.1);
                    }
                    const int k0 = j * d.nx + i;
                    const double l0 = 1;
                    m.ajoute(&k0, &l0, 1, 0, 0.01);
                }
            const auto x = m.résous();
            for (int i = 0; i < n; ++i)
                (axe == 0 ? d.dx : d.dy)[i] = x[i];
        }
        int ajoutés = 0;
        double pire = 1e9;
        for (const FicheCanton &c : Cantons()) {
            const QRectF r(c.rectInv());
            for (const Anneau &a : plans[c.numéro - 1])
                for (QPointF q : a) {
                    const QPointF v = d.applique(q);
                    pire = std::min({pire, v.x() - r.left(), r.right() - v.x(), v.y() - r.top(), r.bottom() - v.y()});
                    if (v.x() < r.left() + o.margeMin) { tenus.append({q, 0, r.left() + visée}); ++ajoutés; }
                    if (v.x() > r.right() - o.margeMin) { tenus.append({q, 0, r.right() - visée}); ++ajoutés; }
                    if (v.y() < r.top() + o.margeMin) { tenus.append({q, 1, r.top() + visée}); ++ajoutés; }
                    if (v.y() > r.bottom() - o.margeMin) { tenus.append({q, 1, r.bottom() - visée}); ++ajoutés; }
                }
        }
        if (qEnvironmentVariableIsSet("CARTE_TRACE"))
            qDebug("warp, round %d: %d vertices held, worst gap %.3f", tour, int(tenus.size()), pire);
        // Held vertices give a little under their weight: near enough is
        // two thirds of the aimed margin.
        if (ajoutés == 0 || pire >= o.margeMin * 2 / 3)
            break;
    }
    return p;
}

Écarts ÉcartsRectangle(const Polygone &canton, QRectF rect)
{
    const Boîte b = BoîteDe(canton);
    return {b.xmin - rect.left(), rect.right() - b.xmax, b.ymin - rect.top(), rect.bottom() - b.ymax};
}
