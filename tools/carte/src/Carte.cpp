#include "Carte.h"

#include "Cantons.h"

#include <QDir>
#include <cmath>
#include <stdexcept>

namespace {

double Aire(const Anneau &a)
{
    double s = 0;
    for (int i = 0; i + 1 < a.size(); ++i)
        s += a[i].x() * a[i + 1].y() - a[i + 1].x() * a[i].y();
    return s / 2;
}

} // namespace

Géographie ChargeGéographie(const QString &sources, const QString &année, const Options &options)
{
    const QDir suisse(sources + "/swiss-maps/" + année);
    if (!suisse.exists())
        throw std::runtime_error("no folder " + suisse.path().toStdString() + ": run recupere-donnees.sh first");
    Géographie g;

    // Cantons: the table of this year has no names, only federal numbers.
    const QVector<Polygone> formes = LisShp(suisse.filePath("cantons.shp"));
    const QVector<QStringList> fiches = LisDbf(suisse.filePath("cantons.dbf"));
    if (formes.size() != fiches.size())
        throw std::runtime_error("cantons.shp and cantons.dbf disagree");
    std::array<bool, 26> vu{};
    for (int i = 0; i < formes.size(); ++i) {
        const int n = NuméroDuFédéral(fiches[i].value(0).toInt());
        if (n == 0 || vu[n - 1])
            throw std::runtime_error("unexpected canton number " + fiches[i].value(0).toStdString());
        vu[n - 1] = true;
        g.cantonsLv95[n - 1] = formes[i];
    }
    for (int i = 0; i < 26; ++i)
        if (!vu[i])
            throw std::runtime_error("canton " + std::to_string(i + 1) + " missing from the data");

    g.projection = Ajuste(g.cantonsLv95, options);
    for (int i = 0; i < 26; ++i)
        g.cantons[i] = g.projection.applique(g.cantonsLv95[i]);

    // The country: the largest record; its holes are the foreign enclaves.
    // The other records of the layer are land that isn't Swiss.
    const QVector<Polygone> pays = LisShp(suisse.filePath("country.shp"));
    int plusGrand = -1;
    double aireMax = 0;
    for (int i = 0; i < pays.size(); ++i) {
        double a = 0;
        for (const Anneau &r : pays[i])
            a += std::abs(Aire(r));
        if (a > aireMax) {
            aireMax = a;
            plusGrand = i;
        }
    }
    if (plusGrand < 0)
        throw std::runtime_error("country.shp is empty");
    g.suisse = g.projection.applique(pays[plusGrand]);
    // Shapefile outer rings run clockwise (negative area), holes the other way.
    for (const Anneau &r : pays[plusGrand])
        if (Aire(r) > 0)
            g.enclaves.append(g.projection.applique(Polygone{r}));

    const QVector<Polygone> lacs = LisShp(suisse.filePath("lakes.shp"));
    const QVector<QStringList> nomsLacs = LisDbf(suisse.filePath("lakes.dbf"));
    for (int i = 0; i < lacs.size(); ++i)
        g.lacs.append({nomsLacs.value(i).value(1), g.projection.applique(lacs[i])});

    // Neighbours, from Natural Earth in longitude/latitude; only the rings
    // near the country (France and Italy have islands far away).
    const QMap<QString, Polygone> monde = LisTopoJson(sources + "/world-atlas/countries-10m.json", "countries");
    const QList<QPair<QString, QString>> voisins = {
        {"250", "France"}, {"276", "Germany"}, {"380", "Italy"}, {"040", "Austria"}, {"438", "Liechtenstein"}};
    for (const auto &[id, nom] : voisins) {
        if (!monde.contains(id))
            throw std::runtime_error("no " + nom.toStdString() + " in world-atlas");
        Polygone p;
        for (const Anneau &r : monde.value(id)) {
            const Boîte b = BoîteDe(Polygone{r});
            if (b.xmax < 2 || b.xmin > 14 || b.ymax < 43 || b.ymin > 50)
                continue;
            Anneau a;
            for (QPointF q : r)
                a.append(g.projection.applique(Lv95(q.x(), q.y())));
            p.append(a);
        }
        g.voisins.append({nom, p});
    }
    return g;
}
