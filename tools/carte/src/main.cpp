// The map generator: reads the pinned boundary data, fits it to the game's
// canton table and writes KELMOR.pts and the map's pictures into data/.
// Every guarantee the game relies on is checked here; any failure stops the
// run with a message and writes nothing.
#include "Ajustement.h"
#include "Cantons.h"
#include "Carte.h"
#include "Dessins.h"
#include "Png.h"
#include "Relief.h"
#include "Trame.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QTemporaryDir>
#include <QSaveFile>
#include <cmath>
#include <cstdio>
#include <stdexcept>
#include <unistd.h>

namespace {

void Dit(const QString &s) { std::fprintf(stdout, "%s\n", qPrintable(s)); std::fflush(stdout); }

// The large cantons, whose rectangles hug their outline; Bern's top is left
// out (its rectangle still reaches up to the Laufental, now in Basel-Land).
Options OptionsAjustement()
{
    Options o;
    const int tous = Gauche | Droite | Haut | Bas;
    o.bords = {{6, Gauche | Droite | Bas}, {10, tous}, {23, tous}, {24, tous}, {20, tous},
               {16, tous}, {26, tous}, {7, tous}, {12, tous}, {3, tous}};
    o.raideur = 200.0;
    return o;
}

struct Bilan {
    double rms = 0, max = 0;
};

Bilan RésidusVilles(const std::function<QPointF(QPointF)> &projette, bool détail)
{
    Bilan b;
    for (const FicheCanton &c : Cantons()) {
        const QPointF p = projette(c.villeLv95);
        const double dx = p.x() - (c.villeGauche + 3.5), dy = p.y() - (c.villeHaut + 4.0);
        const double r = std::hypot(dx, dy);
        b.rms += r * r;
        b.max = std::max(b.max, r);
        if (détail)
            Dit(QString("  %1 %2  %3 px (%4, %5)")
                    .arg(c.numéro, 2).arg(c.sigle).arg(r, 4, 'f', 1).arg(dx, 5, 'f', 1).arg(dy, 5, 'f', 1));
    }
    b.rms = std::sqrt(b.rms / NombreCantons);
    return b;
}

QVector<Polygone> EnListe(const std::array<Polygone, 26> &a) { return QVector<Polygone>(a.begin(), a.end()); }

// The raster the game clicks on, simplified to fit its table, and checked.
Trame FaisTrame(const Géographie &g, QStringList &échecs)
{
    int chevauchements = 0;
    const Trame exacte = Rasterise(EnListe(g.cantons), LargeurCarte, HauteurCarte, &chevauchements);
    Dit(QString("Raster: %1 runs as drawn, %2 pixels claimed twice").arg(CompteRuns(exacte)).arg(chevauchements));

    // The town dots' middles and the enclaves' pixels are left alone.
    Protégés protégés(LargeurCarte * HauteurCarte, false);
    for (const FicheCanton &c : Cantons())
        protégés[c.milieuVille().y() * LargeurCarte + c.milieuVille().x()] = true;
    const Trame enclaves = Rasterise(g.enclaves, LargeurCarte, HauteurCarte);
    int pixelsEnclaves = 0;
    for (int i = 0; i < enclaves.zones.size(); ++i)
        if (enclaves.zones[i] != 0) {
            protégés[i] = true;
            ++pixelsEnclaves;
        }

    Trame t = FiltreMajorité(exacte, protégés);
    Dit(QString("  after the 3 x 3 majority: %1 runs").arg(CompteRuns(t)));
    const int fusionnés = FusionneRunsCourts(t, protégés);
    Dit(QString("  after merging %1 one-pixel runs: %2 runs").arg(fusionnés).arg(CompteRuns(t)));

    // Checks.
    const int runs = CompteRuns(t);
    if (runs > RunsMax)
        échecs << QString("%1 runs, the game holds %2").arg(runs).arg(RunsMax);
    if (t.hauteur > LignesMax)
        échecs << QString("%1 rows, the game holds %2").arg(t.hauteur).arg(LignesMax);
    for (const FicheCanton &c : Cantons()) {
        const QPoint m = c.milieuVille();
        if (t.at(m.x(), m.y()) != c.numéro)
            échecs << QString("the dot of %1 (%2, %3) falls in zone %4").arg(c.sigle).arg(m.x()).arg(m.y()).arg(t.at(m.x(), m.y()));
        int n = 0;
        QRect étendue;
        for (int y = 0; y < t.hauteur; ++y)
            for (int x = 0; x < t.largeur; ++x)
                if (t.at(x, y) == c.numéro) {
                    ++n;
                    étendue |= QRect(x, y, 1, 1);
                }
        if (n == 0)
            échecs << QString("%1 has no pixel").arg(c.sigle);
        else if (!c.rectInv().contains(étendue))
            échecs << QString("%1's pixels spill out of its picture").arg(c.sigle);
        const Écarts é = ÉcartsRectangle(g.cantons[c.numéro - 1], QRectF(c.rectInv()));
        if (é.pire() < 0)
            échecs << QString("%1's outline crosses its picture's side by %2 px").arg(c.sigle).arg(-é.pire(), 0, 'f', 2);
    }
    // Simplifying moves borders by a pixel, never further.
    int déplacés = 0;
    for (int y = 0; y < t.hauteur; ++y)
        for (int x = 0; x < t.largeur; ++x) {
            if (t.at(x, y) == exacte.at(x, y))
                continue;
            ++déplacés;
            bool voisin = false;
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx)
                    voisin = voisin || exacte.sûr(x + dx, y + dy) == t.at(x, y);
            if (!voisin)
                échecs << QString("pixel (%1, %2) moved to zone %3, not a neighbour's").arg(x).arg(y).arg(t.at(x, y));
        }
    Dit(QString("  %1 pixels changed by the simplification, each to a neighbour's zone").arg(déplacés));
    // The enclaves stay foreign.
    for (int i = 0; i < enclaves.zones.size(); ++i)
        if (enclaves.zones[i] != 0 && t.zones[i] != 0)
            échecs << "an enclave pixel belongs to a canton";
    Dit(QString("  enclaves: %1 pixels, zone 0").arg(pixelsEnclaves));
    // Liechtenstein is foreign too: Vaduz, Schaan, Balzers.
    for (QPointF lieu : {QPointF(9.5209, 47.1410), QPointF(9.5095, 47.1650), QPointF(9.4993, 47.0660)}) {
        const QPoint q = g.projection.applique(Lv95(lieu.x(), lieu.y())).toPoint();
        if (t.sûr(q.x(), q.y()) != 0)
            échecs << QString("Liechtenstein at (%1, %2) is in zone %3").arg(q.x()).arg(q.y()).arg(t.sûr(q.x(), q.y()));
    }
    // Lakes: their water is the canton's where the boundaries say so, else 0.
    for (const Lac &l : g.lacs) {
        const Trame eau = Rasterise({l.forme}, LargeurCarte, HauteurCarte);
        QMap<int, int> parZone;
        int total = 0, commeDessiné = 0;
        for (int i = 0; i < eau.zones.size(); ++i)
            if (eau.zones[i]) {
                ++total;
                ++parZone[t.zones[i]];
                commeDessiné += t.zones[i] == exacte.zones[i];
            }
        QStringList détail;
        for (auto it = parZone.begin(); it != parZone.end(); ++it)
            détail << QString("%1:%2").arg(it.key() ? Canton(it.key()).sigle : "0").arg(it.value());
        Dit(QString("  lake %1: %2 px, %3 % as the boundaries say; %4").arg(l.nom).arg(total)
                .arg(total ? 100.0 * commeDessiné / total : 100.0, 0, 'f', 1).arg(détail.join(' ')));
        if (total && commeDessiné < 0.9 * total)
            échecs << QString("lake %1 strays from its cantons").arg(l.nom);
    }
    return t;
}

// Every name, as drawn at 1x and at 2x with its halo, keeps clear of the
// other names of its language and of every town dot.
void VérifieNoms(const Dessinateur &d, const Trame &t, QStringList &échecs)
{
    for (Langue langue : {Langue::Français, Langue::Allemand})
        for (int k : {1, 2}) {
            const QString où = QString("(%1, %2x)").arg(langue == Langue::Français ? "fr" : "de").arg(k);
            // each line's reach on the map, in 1x pixels
            QVector<QVector<QRectF>> étendues(NombreCantons + 1);
            for (const FicheCanton &c : Cantons()) {
                const PlacementNom &pl = d.placement(c.numéro, langue);
                for (const Dessinateur::Ligne &li : d.lignes(pl, k))
                    étendues[c.numéro] << QRectF(li.étendue.topLeft() / k, li.étendue.size() / k).translated(c.paysGauche, c.paysHaut);
                if (pl.renvoi.isNull())
                    continue;
                for (const QRectF &e : ÉtendueRenvoi(QLineF(pl.renvoi.p1() * k, pl.renvoi.p2() * k), k))
                    étendues[c.numéro] << QRectF(e.topLeft() / k, e.size() / k).translated(c.paysGauche, c.paysHaut);
                // A leader ends in its canton's land and runs over nothing
                // that a later picture covers.
                const QPointF origine(c.paysGauche, c.paysHaut);
                if (t.sûr(int(std::floor(pl.renvoi.x1() + c.paysGauche)), int(std::floor(pl.renvoi.y1() + c.paysHaut))) != c.numéro)
                    échecs << QString("the leader of %1 ends outside its land %2").arg(c.sigle).arg(où);
                for (int i = 0; i <= 20; ++i) {
                    const QPointF m = pl.renvoi.pointAt(i / 20.0) + origine;
                    const int z = t.sûr(int(std::floor(m.x())), int(std::floor(m.y())));
                    if (z > c.numéro)
                        échecs << QString("the leader of %1 runs under %2 %3").arg(c.sigle).arg(Canton(z).sigle).arg(où);
                }
            }
            for (int a = 1; a <= NombreCantons; ++a) {
                for (const QRectF &e : étendues[a]) {
                    for (int b = a + 1; b <= NombreCantons; ++b)
                        for (const QRectF &f : étendues[b])
                            if (e.intersects(f))
                                échecs << QString("the names of %1 and %2 overlap %3").arg(Canton(a).sigle).arg(Canton(b).sigle).arg(où);
                    for (const FicheCanton &c : Cantons())
                        if (e.intersects(QRectF(RectPoint(c.numéro))))
                            échecs << QString("the name of %1 touches the dot of %2 %3").arg(Canton(a).sigle).arg(c.sigle).arg(où);
                }
            }
        }
}

void Écris(const QString &chemin, const QByteArray &contenu)
{
    QSaveFile f(chemin);
    if (!f.open(QIODevice::WriteOnly) || f.write(contenu) != contenu.size() || !f.commit())
        throw std::runtime_error("cannot write " + chemin.toStdString());
}

QString Nom2x(const QString &nom) { return nom + "@2x"; }

// Overlays to look at: the map, every Pays(i) and the town dots, as the game
// would show them with every canton found.
QImage Aperçu(const QImage &carte, const QVector<QImage> &calques, int k, bool points)
{
    QImage a = carte.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter p(&a);
    for (int i = 0; i < calques.size(); ++i) {
        const FicheCanton &c = Canton(i + 1);
        p.drawImage(QPoint(c.paysGauche, c.paysHaut) * k, calques[i]);
    }
    if (points) {
        // the game's dot: a red octagon ringed in black, 7 x 8
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        const QPolygonF anneau{{2, 0}, {5, 0}, {7, 2}, {7, 6}, {5, 8}, {2, 8}, {0, 6}, {0, 2}};
        const QPolygonF dedans{{2.5, 1}, {4.5, 1}, {6, 2.5}, {6, 5.5}, {4.5, 7}, {2.5, 7}, {1, 5.5}, {1, 2.5}};
        for (const FicheCanton &c : Cantons()) {
            p.save();
            p.translate(QPointF(c.villeGauche, c.villeHaut) * k);
            p.scale(k, k);
            p.setBrush(Qt::black);
            p.drawPolygon(anneau);
            p.setBrush(QColor(255, 0, 0));
            p.drawPolygon(dedans);
            p.restore();
        }
    }
    p.end();
    return a;
}

// Draws and writes every picture; returns the bytes written.
qint64 FaisImages(const Géographie &g, const Dessinateur &d, const QString &dossier, const QString &aperçu)
{
    QDir().mkpath(dossier);
    const Relief relief(g.projection);
    qint64 total = 0;
    QVector<QImage> cartes(3);
    for (int k : {1, 2}) {
        QElapsedTimer chrono;
        chrono.start();
        const Teintes teintes = Ombrage(relief, LargeurCarte, HauteurCarte, k);
        cartes[k] = d.carte(teintes, k);
        ÉcriturePng avecPalette;
        avecPalette.quantifier = true;
        const QString nom = k == 1 ? "carte" : Nom2x("carte");
        const qint64 n = EnregistrePng(cartes[k], dossier + "/" + nom + ".png", avecPalette);
        total += n;
        Dit(QString("  %1.png %2 x %3, %4 kB (%5 s)").arg(nom).arg(cartes[k].width()).arg(cartes[k].height())
                .arg(n / 1024).arg(chrono.elapsed() / 1000.0, 0, 'f', 1));
    }
    QVector<QImage> invs[3], paysFr[3], paysDe[3];
    for (int k : {1, 2}) {
        const QString suffixe = k == 1 ? "" : "@2x";
        qint64 sous = 0;
        for (const FicheCanton &c : Cantons()) {
            const QString nn = QString("%1").arg(c.numéro, 2, 10, QChar('0'));
            const QImage i = d.inv(c.numéro, k), fr = d.pays(c.numéro, Langue::Français, k),
                         de = d.pays(c.numéro, Langue::Allemand, k);
            if (i.size() != c.rectInv().size() * k || fr.size() != c.rectPays().size() * k || de.size() != fr.size())
                throw std::runtime_error(std::string("wrong picture size for ") + c.sigle);
            sous += EnregistrePng(i, dossier + "/inv" + nn + suffixe + ".png");
            sous += EnregistrePng(fr, dossier + "/pays" + nn + "_fr" + suffixe + ".png");
            sous += EnregistrePng(de, dossier + "/pays" + nn + "_de" + suffixe + ".png");
            invs[k] << i;
            paysFr[k] << fr;
            paysDe[k] << de;
        }
        for (const Miniature &m : Miniatures) {
            const QString nn = QString("%1").arg(m.numéro, 2, 10, QChar('0'));
            const QImage mini = d.miniature(m.numéro, m.taille, k);
            if (mini.size() != m.taille * k)
                throw std::runtime_error("wrong size for a reduction");
            sous += EnregistrePng(mini, dossier + "/miniature" + nn + suffixe + ".png");
        }
        Dit(QString("  inv, pays and miniatures at %1x: %2 kB").arg(k).arg(sous / 1024));
        total += sous;
    }
    for (const FicheCanton &c : Cantons())
        for (Langue l : {Langue::Français, Langue::Allemand}) {
            const PlacementNom pl = d.placement(c.numéro, l);
            Dit(QString("  name of %1 (%2): %3 px%4, %5 line(s)%6%7%8").arg(c.sigle).arg(l == Langue::Français ? "fr" : "de")
                    .arg(pl.taille).arg(pl.étirement != 100 ? QString(" at %1 %").arg(pl.étirement) : QString())
                    .arg(pl.lignes.size())
                    .arg(pl.sousAutres > 0 ? QString(", %1 % under a later canton").arg(100 * pl.sousAutres, 0, 'f', 0) : QString())
                    .arg(pl.pixelsBordDessus > 0 ? QString(", %1 px of its border").arg(pl.pixelsBordDessus) : QString())
                    .arg(pl.renvoi.isNull() ? QString() : QString(", leader of %1 px").arg(pl.renvoi.length(), 0, 'f', 1)));
        }
    if (!aperçu.isEmpty()) {
        QDir().mkpath(aperçu);
        for (int k : {1, 2}) {
            const QString s = k == 1 ? "" : "@2x";
            Aperçu(cartes[k], paysFr[k], k, true).save(aperçu + "/apercu-fr" + s + ".png");
            Aperçu(cartes[k], paysDe[k], k, true).save(aperçu + "/apercu-de" + s + ".png");
            Aperçu(cartes[k], invs[k], k, false).save(aperçu + "/apercu-inv" + s + ".png");
            // each picture alone on its part of the map, as when one canton is found
            for (const auto &[nomPlanche, calques] : {std::pair{QString("fr"), &paysFr[k]}, {QString("de"), &paysDe[k]}, {QString("inv"), &invs[k]}}) {
                QImage planche(QSize(1000, 760) * k, QImage::Format_RGB32);
                planche.fill(Qt::white);
                QPainter p(&planche);
                int x = 0, y = 0, hauteurRangée = 0;
                for (const FicheCanton &c : Cantons()) {
                    const QRect zone = c.rectPays().adjusted(-6, -6, 6, 6);
                    if (x + zone.width() > 1000) {
                        x = 0;
                        y += hauteurRangée + 4;
                        hauteurRangée = 0;
                    }
                    p.drawImage(QPoint(x, y) * k, cartes[k], QRect(zone.topLeft() * k, zone.size() * k));
                    p.drawImage(QPoint(x + 6, y + 6) * k, (*calques)[c.numéro - 1]);
                    x += zone.width() + 4;
                    hauteurRangée = std::max(hauteurRangée, zone.height());
                }
                p.end();
                planche.save(aperçu + "/planche-" + nomPlanche + s + ".png");
            }
        }
    }
    return total;
}

} // namespace

int main(int argc, char **argv)
{
    // No display is needed: the pictures are drawn off screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        const QString dossier = QDir::tempPath() + "/carte-" + QString::number(getuid());
        QDir().mkpath(dossier);
        QFile::setPermissions(dossier, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", dossier.toLocal8Bit());
    }
    QGuiApplication app(argc, argv);
    QCommandLineParser p;
    p.setApplicationDescription("Makes KELMOR.pts and the map pictures from the boundary data.");
    p.addHelpOption();
    p.addOption({"sources", "folder of the unpacked npm packages", "dossier", "tools/build/sources"});
    p.addOption({"annee", "year folder of swiss-maps", "année", "2026"});
    p.addOption({"sortie", "the game's data folder", "dossier", "data"});
    p.addOption({"apercu", "also write overlays to look at into this folder", "dossier"});
    p.process(app);

    try {
        const Options options = OptionsAjustement();
        const Géographie g = ChargeGéographie(p.value("sources"), p.value("annee"), options);
        const Similitude &s = g.projection.similitude;
        Dit(QString("Fit: %1 pixels per km, rotation %2 degrees").arg(s.pixelsParKm(), 0, 'f', 4).arg(s.rotationDegrés(), 0, 'f', 3));
        const Bilan avant = RésidusVilles([&](QPointF q) { return s.applique(q); }, false);
        Dit(QString("  towns through the similarity: %1 px RMS, %2 px at most").arg(avant.rms, 0, 'f', 2).arg(avant.max, 0, 'f', 2));
        Dit("  towns through the final projection (distance, dx, dy):");
        const Bilan après = RésidusVilles([&](QPointF q) { return g.projection.applique(q); }, true);
        Dit(QString("  towns through the final projection: %1 px RMS, %2 px at most").arg(après.rms, 0, 'f', 2).arg(après.max, 0, 'f', 2));
        double décalageMax = 0;
        for (const Polygone &c : g.cantonsLv95)
            for (const Anneau &a : c)
                for (QPointF q : a) {
                    const QPointF d = g.projection.applique(q) - s.applique(q);
                    décalageMax = std::max(décalageMax, std::hypot(d.x(), d.y()));
                }
        // and how much it stretches or turns the drawing locally
        double étirementMax = 0;
        const Déformation &dé = g.projection.déformation;
        for (int y = 0; y < HauteurCarte; y += 2)
            for (int x = 0; x < LargeurCarte; x += 2) {
                const QPointF p0 = dé.applique(QPointF(x, y)), px = dé.applique(QPointF(x + 1, y)), py = dé.applique(QPointF(x, y + 1));
                étirementMax = std::max({étirementMax, std::abs(px.x() - p0.x() - 1), std::abs(px.y() - p0.y()),
                                         std::abs(py.y() - p0.y() - 1), std::abs(py.x() - p0.x())});
            }
        Dit(QString("  the warp moves the country by %1 px at most, and stretches the map by %2 % at most")
                .arg(décalageMax, 0, 'f', 2).arg(100 * étirementMax, 0, 'f', 1));
        double écartMin = 1e9;
        const char *plusSerré = "";
        for (const FicheCanton &c : Cantons()) {
            const double e = ÉcartsRectangle(g.cantons[c.numéro - 1], QRectF(c.rectInv())).pire();
            if (e < écartMin) {
                écartMin = e;
                plusSerré = c.sigle;
            }
        }
        Dit(QString("  every canton inside its picture, the closest %1 px from a side (%2)").arg(écartMin, 0, 'f', 2).arg(plusSerré));

        QStringList échecs;
        const Trame t = FaisTrame(g, échecs);
        const QByteArray pts = EncodePts(t);
        const Trame relue = DécodePts(pts, LargeurCarte, HauteurCarte);
        if (relue.zones != t.zones)
            échecs << "KELMOR.pts read back differs from the raster";
        if (pts.size() != 4 * (1 + HauteurCarte + 1 + CompteRuns(t)))
            échecs << "KELMOR.pts has the wrong size";
        const Dessinateur d(g, t);
        VérifieNoms(d, t, échecs);
        if (!échecs.isEmpty()) {
            for (const QString &e : échecs)
                std::fprintf(stderr, "FAILED: %s\n", qPrintable(e));
            return 1;
        }
        QDir().mkpath(p.value("sortie"));
        Écris(p.value("sortie") + "/KELMOR.pts", pts);
        Dit(QString("Wrote KELMOR.pts: %1 runs, %2 bytes").arg(CompteRuns(t)).arg(pts.size()));
        Dit("Pictures:");
        const qint64 octets = FaisImages(g, d, p.value("sortie") + "/images", p.value("apercu"));
        Dit(QString("Wrote %1 kB of pictures").arg(octets / 1024));
    } catch (const std::exception &e) {
        std::fprintf(stderr, "FAILED: %s\n", e.what());
        return 1;
    }
    return 0;
}
