#include "Trame.h"

#include <algorithm>
#include <cstring>
#include <stdexcept>

Trame Rasterise(const QVector<Polygone> &polygones, int largeur, int hauteur, int *chevauchements)
{
    Trame t(largeur, hauteur);
    QVector<int> revendications(largeur * hauteur, 0);
    std::vector<double> croisements;
    for (int z = 0; z < polygones.size(); ++z) {
        const Boîte b = BoîteDe(polygones[z]);
        const int y0 = std::max(0, int(std::floor(b.ymin))), y1 = std::min(hauteur - 1, int(std::ceil(b.ymax)));
        for (int y = y0; y <= y1; ++y) {
            const double yc = y + 0.5;
            croisements.clear();
            for (const Anneau &a : polygones[z])
                for (int i = 0; i + 1 < a.size(); ++i) {
                    const QPointF p = a[i], q = a[i + 1];
                    if ((p.y() > yc) != (q.y() > yc))
                        croisements.push_back(p.x() + (yc - p.y()) * (q.x() - p.x()) / (q.y() - p.y()));
                }
            std::sort(croisements.begin(), croisements.end());
            // even-odd: centres between crossings 2k and 2k+1 are inside
            for (size_t k = 0; k + 1 < croisements.size(); k += 2) {
                const int xa = std::max(0, int(std::ceil(croisements[k] - 0.5)));
                const int xb = std::min(largeur - 1, int(std::ceil(croisements[k + 1] - 0.5)) - 1);
                for (int x = xa; x <= xb; ++x) {
                    t.at(x, y) = quint8(z + 1);
                    ++revendications[y * largeur + x];
                }
            }
        }
    }
    if (chevauchements)
        *chevauchements = int(std::count_if(revendications.begin(), revendications.end(), [](int n) { return n > 1; }));
    return t;
}

Trame FiltreMajorité(const Trame &t, const Protégés &protégés)
{
    Trame r = t;
    for (int y = 0; y < t.hauteur; ++y)
        for (int x = 0; x < t.largeur; ++x) {
            if (protégés[y * t.largeur + x])
                continue;
            int compte[256] = {};
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx)
                    ++compte[t.sûr(x + dx, y + dy)];
            const quint8 propre = t.at(x, y);
            int meilleur = propre;
            for (int z = 0; z < 256; ++z)
                if (compte[z] > compte[meilleur])
                    meilleur = z;
            r.at(x, y) = quint8(meilleur);
        }
    return r;
}

int FusionneRunsCourts(Trame &t, const Protégés &protégés)
{
    int fusionnés = 0;
    for (int y = 0; y < t.hauteur; ++y)
        for (int x = 0; x < t.largeur; ++x) {
            const quint8 z = t.at(x, y);
            const quint8 g = t.sûr(x - 1, y), d = t.sûr(x + 1, y);
            // a run of one pixel: differs from both sides
            if (g == z || d == z || protégés[y * t.largeur + x])
                continue;
            quint8 choix;
            if (g == d)
                choix = g; // two records fewer
            else if (t.sûr(x, y - 1) == d || t.sûr(x, y + 1) == d)
                choix = d;
            else
                choix = g;
            t.at(x, y) = choix;
            ++fusionnés;
        }
    return fusionnés;
}

int CompteRuns(const Trame &t)
{
    int n = 0;
    for (int y = 0; y < t.hauteur; ++y) {
        quint8 avant = 0;
        for (int x = 0; x < t.largeur; ++x) {
            if (t.at(x, y) != avant)
                ++n;
            avant = t.at(x, y);
        }
    }
    return n;
}

namespace {
void Enregistrement(QByteArray &o, quint8 carte, qint16 x, quint8 zone)
{
    const char r[4] = {char(carte), char(quint16(x) & 0xFF), char(quint16(x) >> 8), char(zone)};
    o.append(r, 4);
}
} // namespace

QByteArray EncodePts(const Trame &t)
{
    QByteArray o;
    Enregistrement(o, 0, 0, 4);
    for (int y = 0; y < t.hauteur; ++y) {
        Enregistrement(o, 0, 0, 0);
        quint8 avant = 0;
        for (int x = 0; x < t.largeur; ++x) {
            const quint8 z = t.at(x, y);
            if (z != avant) {
                // pixel x begins the run, so the record names x − 1
                if (x - 1 == 0 && z == 0)
                    throw std::runtime_error("a run (0, 0, 0) would read as a row mark");
                Enregistrement(o, 0, qint16(x - 1), z);
            }
            avant = z;
        }
    }
    Enregistrement(o, 0, 0, 0);
    return o;
}

Trame DécodePts(const QByteArray &f, int largeur, int hauteur)
{
    if (f.size() % 4 != 0)
        throw std::runtime_error("the file is not made of 4-byte records");
    const int n = int(f.size() / 4);
    auto champ = [&](int i, quint8 &carte, qint16 &x, quint8 &zone) {
        const auto *p = reinterpret_cast<const unsigned char *>(f.constData()) + 4 * i;
        carte = p[0];
        x = qint16(quint16(p[1]) | quint16(p[2]) << 8);
        zone = p[3];
    };
    quint8 carte, zone;
    qint16 x;
    if (n == 0)
        throw std::runtime_error("empty file");
    champ(0, carte, x, zone);
    if (carte != 0 || x != 0 || zone != 4)
        throw std::runtime_error("bad header");
    // As the game loads it: runs in one table, each row's first index.
    struct Run {
        qint16 x;
        quint8 zone;
    };
    QVector<Run> runs;
    QVector<int> débuts;
    for (int i = 1; i < n; ++i) {
        champ(i, carte, x, zone);
        if (carte != 0)
            throw std::runtime_error("a record names another map");
        if (x == 0 && zone == 0)
            débuts.append(int(runs.size()));
        else
            runs.append({x, zone});
    }
    if (runs.size() > RunsMax)
        throw std::runtime_error("more runs than the game's table holds");
    if (débuts.size() != hauteur + 1)
        throw std::runtime_error("wrong number of row marks");
    Trame t(largeur, hauteur);
    for (int y = 0; y < hauteur; ++y)
        for (int px = 0; px < largeur; ++px) {
            // the game's hit test, pixel by pixel
            quint8 c = 0;
            for (int s = débuts[y]; s < débuts[y + 1]; ++s) {
                if (runs[s].x >= px)
                    break;
                c = runs[s].zone;
            }
            t.at(px, y) = c;
        }
    return t;
}
