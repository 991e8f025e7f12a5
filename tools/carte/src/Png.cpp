#include "Png.h"

#include <QBuffer>
#include <QHash>
#include <QImageWriter>
#include <QSaveFile>
#include <algorithm>
#include <stdexcept>
#include <vector>

namespace {

QByteArray EnPng(const QImage &image)
{
    QByteArray octets;
    QBuffer tampon(&octets);
    tampon.open(QIODevice::WriteOnly);
    QImageWriter w(&tampon, "png");
    w.setQuality(0); // for PNG: strongest compression
    if (!w.write(image))
        throw std::runtime_error("PNG encoding failed: " + w.errorString().toStdString());
    return octets;
}

// Exact palette if the picture has few enough colours.
bool PaletteExacte(const QImage &argb, QImage &sortie)
{
    QHash<QRgb, int> index;
    QVector<QRgb> table;
    for (int y = 0; y < argb.height(); ++y) {
        const auto *l = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x) {
            // every fully transparent pixel is the same colour
            const QRgb c = qAlpha(l[x]) == 0 ? 0u : l[x];
            if (!index.contains(c)) {
                if (table.size() == 256)
                    return false;
                index.insert(c, int(table.size()));
                table.append(c);
            }
        }
    }
    sortie = QImage(argb.size(), QImage::Format_Indexed8);
    sortie.setColorTable(table);
    for (int y = 0; y < argb.height(); ++y) {
        const auto *l = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        uchar *o = sortie.scanLine(y);
        for (int x = 0; x < argb.width(); ++x)
            o[x] = uchar(index.value(qAlpha(l[x]) == 0 ? 0u : l[x]));
    }
    return true;
}

struct Case {
    std::vector<QRgb> couleurs; // with repetitions: a pixel each
};

int Canal(QRgb c, int k)
{
    switch (k) {
    case 0: return qRed(c);
    case 1: return qGreen(c);
    case 2: return qBlue(c);
    default: return qAlpha(c);
    }
}

} // namespace

QImage Palette256(const QImage &source)
{
    const QImage argb = source.convertToFormat(QImage::Format_ARGB32);
    std::vector<Case> cases(1);
    cases[0].couleurs.reserve(size_t(argb.width()) * argb.height());
    for (int y = 0; y < argb.height(); ++y) {
        const auto *l = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        for (int x = 0; x < argb.width(); ++x)
            cases[0].couleurs.push_back(qAlpha(l[x]) == 0 ? 0u : l[x]);
    }
    // Split the box with the widest channel spread (weighted by its pixels).
    while (cases.size() < 256) {
        int meilleure = -1, canal = 0;
        double étendueMax = 0;
        for (size_t i = 0; i < cases.size(); ++i) {
            const auto &c = cases[i].couleurs;
            if (c.size() < 2)
                continue;
            for (int k = 0; k < 4; ++k) {
                int mn = 255, mx = 0;
                for (QRgb q : c) {
                    mn = std::min(mn, Canal(q, k));
                    mx = std::max(mx, Canal(q, k));
                }
                const double e = double(mx - mn) * std::sqrt(double(c.size()));
                if (e > étendueMax) {
                    étendueMax = e;
                    meilleure = int(i);
                    canal = k;
                }
            }
        }
        if (meilleure < 0)
            break;
        auto &c = cases[meilleure].couleurs;
        std::sort(c.begin(), c.end(), [&](QRgb a, QRgb b) { return Canal(a, canal) < Canal(b, canal); });
        Case moitié;
        moitié.couleurs.assign(c.begin() + c.size() / 2, c.end());
        c.resize(c.size() / 2);
        cases.push_back(std::move(moitié));
    }
    QVector<QRgb> table;
    for (const Case &c : cases) {
        double s[4] = {};
        for (QRgb q : c.couleurs)
            for (int k = 0; k < 4; ++k)
                s[k] += Canal(q, k);
        const double n = double(c.couleurs.size());
        table.append(qRgba(int(s[0] / n + 0.5), int(s[1] / n + 0.5), int(s[2] / n + 0.5), int(s[3] / n + 0.5)));
    }
    QImage sortie(argb.size(), QImage::Format_Indexed8);
    sortie.setColorTable(table);
    QHash<QRgb, uchar> proche;
    for (int y = 0; y < argb.height(); ++y) {
        const auto *l = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        uchar *o = sortie.scanLine(y);
        for (int x = 0; x < argb.width(); ++x) {
            const QRgb c = qAlpha(l[x]) == 0 ? 0u : l[x];
            auto it = proche.constFind(c);
            if (it == proche.constEnd()) {
                int meilleur = 0;
                long dmin = -1;
                for (int i = 0; i < table.size(); ++i) {
                    long d = 0;
                    for (int k = 0; k < 4; ++k) {
                        const long e = Canal(c, k) - Canal(table[i], k);
                        d += e * e;
                    }
                    if (dmin < 0 || d < dmin) {
                        dmin = d;
                        meilleur = i;
                    }
                }
                it = proche.insert(c, uchar(meilleur));
            }
            o[x] = *it;
        }
    }
    return sortie;
}

qint64 EnregistrePng(const QImage &image, const QString &chemin, ÉcriturePng options)
{
    const QImage argb = image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    QByteArray meilleur = EnPng(argb);
    QImage indexée;
    if (PaletteExacte(argb, indexée) || (options.quantifier && !(indexée = Palette256(argb)).isNull())) {
        const QByteArray p = EnPng(indexée);
        if (p.size() < meilleur.size())
            meilleur = p;
    }
    QSaveFile f(chemin);
    if (!f.open(QIODevice::WriteOnly) || f.write(meilleur) != meilleur.size() || !f.commit())
        throw std::runtime_error("cannot write " + chemin.toStdString());
    return meilleur.size();
}
