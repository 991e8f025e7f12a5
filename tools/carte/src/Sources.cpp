#include "Sources.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstring>
#include <stdexcept>

namespace {

QByteArray LisTout(const QString &chemin)
{
    QFile f(chemin);
    if (!f.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + chemin.toStdString());
    return f.readAll();
}

template <typename T> T Petit(const char *p)
{
    T v;
    std::memcpy(&v, p, sizeof v); // the machine is little-endian, as the formats
    return v;
}

qint32 Grand32(const char *p)
{
    const auto *u = reinterpret_cast<const unsigned char *>(p);
    return qint32((quint32(u[0]) << 24) | (quint32(u[1]) << 16) | (quint32(u[2]) << 8) | quint32(u[3]));
}

} // namespace

void Boîte::ajoute(QPointF p)
{
    xmin = std::min(xmin, p.x());
    ymin = std::min(ymin, p.y());
    xmax = std::max(xmax, p.x());
    ymax = std::max(ymax, p.y());
}

void Boîte::ajoute(const Boîte &b)
{
    if (b.vide())
        return;
    ajoute(QPointF(b.xmin, b.ymin));
    ajoute(QPointF(b.xmax, b.ymax));
}

Boîte BoîteDe(const Polygone &p)
{
    Boîte b;
    for (const Anneau &a : p)
        for (QPointF q : a)
            b.ajoute(q);
    return b;
}

QVector<Polygone> LisShp(const QString &chemin)
{
    const QByteArray d = LisTout(chemin);
    if (d.size() < 100 || Grand32(d.constData()) != 9994)
        throw std::runtime_error(chemin.toStdString() + " is not a shapefile");
    QVector<Polygone> résultat;
    qsizetype pos = 100;
    while (pos + 8 <= d.size()) {
        const qsizetype longueur = qsizetype(Grand32(d.constData() + pos + 4)) * 2;
        const char *c = d.constData() + pos + 8;
        if (pos + 8 + longueur > d.size())
            throw std::runtime_error(chemin.toStdString() + ": truncated record");
        pos += 8 + longueur;
        Polygone poly;
        const qint32 type = Petit<qint32>(c);
        if (type == 5 || type == 15) {
            const qint32 nParties = Petit<qint32>(c + 36);
            const qint32 nPoints = Petit<qint32>(c + 40);
            if (44 + 4 * qsizetype(nParties) + 16 * qsizetype(nPoints) > longueur)
                throw std::runtime_error(chemin.toStdString() + ": bad polygon record");
            const char *parties = c + 44;
            const char *points = parties + 4 * nParties;
            for (qint32 i = 0; i < nParties; ++i) {
                const qint32 début = Petit<qint32>(parties + 4 * i);
                const qint32 fin = i + 1 < nParties ? Petit<qint32>(parties + 4 * (i + 1)) : nPoints;
                Anneau a;
                a.reserve(fin - début);
                for (qint32 k = début; k < fin; ++k)
                    a.append(QPointF(Petit<double>(points + 16 * k), Petit<double>(points + 16 * k + 8)));
                if (a.size() >= 4)
                    poly.append(a);
            }
        } else if (type != 0) {
            throw std::runtime_error(chemin.toStdString() + ": not a polygon layer");
        }
        résultat.append(poly);
    }
    return résultat;
}

QVector<QStringList> LisDbf(const QString &chemin, QStringList *champs)
{
    const QByteArray d = LisTout(chemin);
    if (d.size() < 32)
        throw std::runtime_error(chemin.toStdString() + " is not a dBase table");
    const quint32 nEnregistrements = Petit<quint32>(d.constData() + 4);
    const quint16 tailleEntête = Petit<quint16>(d.constData() + 8);
    const quint16 tailleEnregistrement = Petit<quint16>(d.constData() + 10);
    QVector<int> longueurs;
    QStringList noms;
    for (qsizetype p = 32; p + 32 <= d.size() && d[p] != '\r'; p += 32) {
        noms << QString::fromLatin1(d.mid(p, 11).constData()); // NUL-terminated
        longueurs << static_cast<unsigned char>(d[p + 16]);
    }
    if (champs)
        *champs = noms;
    QVector<QStringList> résultat;
    for (quint32 i = 0; i < nEnregistrements; ++i) {
        const qsizetype début = tailleEntête + qsizetype(i) * tailleEnregistrement;
        if (début + tailleEnregistrement > d.size())
            throw std::runtime_error(chemin.toStdString() + ": truncated table");
        qsizetype p = début + 1; // deletion flag
        QStringList valeurs;
        for (int l : longueurs) {
            QByteArray brut = d.mid(p, l);
            brut.truncate(brut.indexOf('\0') < 0 ? brut.size() : brut.indexOf('\0'));
            valeurs << QString::fromUtf8(brut).trimmed();
            p += l;
        }
        résultat.append(valeurs);
    }
    return résultat;
}

QMap<QString, Polygone> LisTopoJson(const QString &chemin, const QString &objet)
{
    QJsonParseError erreur;
    const QJsonDocument doc = QJsonDocument::fromJson(LisTout(chemin), &erreur);
    if (doc.isNull())
        throw std::runtime_error(chemin.toStdString() + ": " + erreur.errorString().toStdString());
    const QJsonObject racine = doc.object();
    const QJsonObject transformation = racine.value("transform").toObject();
    const QJsonArray échelle = transformation.value("scale").toArray();
    const QJsonArray translation = transformation.value("translate").toArray();
    const bool quantifié = !échelle.isEmpty();

    // Arcs are delta-encoded when the file is quantised.
    QVector<Anneau> arcs;
    for (const QJsonValue &arc : racine.value("arcs").toArray()) {
        Anneau a;
        double x = 0, y = 0;
        for (const QJsonValue &p : arc.toArray()) {
            const QJsonArray c = p.toArray();
            if (quantifié) {
                x += c[0].toDouble();
                y += c[1].toDouble();
                a.append(QPointF(x * échelle[0].toDouble() + translation[0].toDouble(),
                                 y * échelle[1].toDouble() + translation[1].toDouble()));
            } else {
                a.append(QPointF(c[0].toDouble(), c[1].toDouble()));
            }
        }
        arcs.append(a);
    }

    auto anneau = [&](const QJsonArray &indices) {
        Anneau r;
        for (const QJsonValue &v : indices) {
            const int i = v.toInt();
            Anneau a = arcs.value(i >= 0 ? i : ~i);
            if (i < 0)
                std::reverse(a.begin(), a.end());
            // consecutive arcs share their joining point
            r.append(r.isEmpty() ? a : a.mid(1));
        }
        return r;
    };

    QMap<QString, Polygone> résultat;
    const QJsonArray géométries = racine.value("objects").toObject().value(objet).toObject().value("geometries").toArray();
    for (const QJsonValue &g : géométries) {
        const QJsonObject o = g.toObject();
        const QJsonValue id = o.value("id");
        const QString clé = id.isString() ? id.toString() : QString::number(id.toInt());
        Polygone poly;
        const QJsonArray a = o.value("arcs").toArray();
        if (o.value("type") == "Polygon") {
            for (const QJsonValue &r : a)
                poly.append(anneau(r.toArray()));
        } else if (o.value("type") == "MultiPolygon") {
            for (const QJsonValue &p : a)
                for (const QJsonValue &r : p.toArray())
                    poly.append(anneau(r.toArray()));
        }
        résultat.insert(clé, poly);
    }
    return résultat;
}

QPointF Lv95(double longitude, double latitude)
{
    const double phi = (latitude * 3600.0 - 169028.66) / 10000.0;
    const double lambda = (longitude * 3600.0 - 26782.5) / 10000.0;
    const double e = 2600072.37 + 211455.93 * lambda - 10938.51 * lambda * phi
                     - 0.36 * lambda * phi * phi - 44.54 * lambda * lambda * lambda;
    const double n = 1200147.07 + 308807.95 * phi + 3745.25 * lambda * lambda + 76.63 * phi * phi
                     - 194.56 * lambda * lambda * phi + 119.79 * phi * phi * phi;
    return {e, n};
}
