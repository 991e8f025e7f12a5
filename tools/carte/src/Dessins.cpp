#include "Dessins.h"

#include "Cantons.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPathStroker>
#include <cmath>
#include <stdexcept>

namespace {

const char *const FichierPolice = "/usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf";

QColor Eau() { return QColor(160, 200, 232); }

// Keeps `calque` only inside `forme`, with soft edges. (Painting the shape in
// DestinationIn mode would leave the pixels it doesn't cover untouched.)
void GardeDans(QImage &calque, const QPainterPath &forme)
{
    QImage masque(calque.size(), QImage::Format_ARGB32_Premultiplied);
    masque.fill(Qt::transparent);
    {
        QPainter m(&masque);
        m.setRenderHint(QPainter::Antialiasing);
        m.fillPath(forme, Qt::black);
    }
    QPainter p(&calque);
    p.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    p.drawImage(0, 0, masque);
}
QColor RiveEau() { return QColor(96, 150, 200); }

} // namespace

Dessinateur::Dessinateur(const Géographie &géographie, const Trame &t) : g(géographie), trame(t)
{
    // The font is loaded from its file so that the pictures don't depend on
    // what the machine's font configuration would pick.
    const int id = QFontDatabase::addApplicationFont(FichierPolice);
    if (id < 0)
        throw std::runtime_error(std::string("font missing: ") + FichierPolice + " (Debian package fonts-dejavu-core)");
    famille = QFontDatabase::applicationFontFamilies(id).value(0);

    QVector<int> ordre;
    for (const FicheCanton &c : Cantons())
        ordre << c.numéro;
    std::stable_sort(ordre.begin(), ordre.end(), [](int a, int b) {
        return Canton(a).largeur * Canton(a).hauteur < Canton(b).largeur * Canton(b).hauteur;
    });
    for (Langue langue : {Langue::Français, Langue::Allemand}) {
        auto &liste = placements[int(langue)];
        liste.resize(NombreCantons);
        QVector<double> occupé(LargeurCarte * HauteurCarte, 0.0);
        auto marque = [&](int n, double signe) {
            const QRect r = liste[n - 1].bloc.translated(Canton(n).rectPays().topLeft()).adjusted(-2, -2, 2, 2).toAlignedRect()
                                .intersected(QRect(0, 0, LargeurCarte, HauteurCarte));
            for (int y = r.top(); y <= r.bottom(); ++y)
                for (int x = r.left(); x <= r.right(); ++x)
                    occupé[y * LargeurCarte + x] += signe;
        };
        for (int n : ordre) {
            liste[n - 1] = place(n, langue, occupé);
            marque(n, 1);
        }
        // Then each name again, knowing where all the others went, until
        // nothing moves: a name placed early may leave room for a later one.
        for (int tour = 0; tour < 6; ++tour) {
            bool bougé = false;
            for (int n : ordre) {
                marque(n, -1);
                const PlacementNom p = place(n, langue, occupé);
                bougé = bougé || p.bloc != liste[n - 1].bloc;
                liste[n - 1] = p;
                marque(n, 1);
            }
            if (!bougé)
                break;
        }
    }
}

const PlacementNom &Dessinateur::placement(int numéro, Langue langue) const
{
    return placements[int(langue)][numéro - 1];
}

QFont Dessinateur::police(double taille, int étirement) const
{
    QFont f(famille);
    f.setBold(true);
    f.setPixelSize(std::max(1, int(std::lround(taille))));
    f.setStretch(étirement);
    f.setHintingPreference(QFont::PreferVerticalHinting);
    return f;
}

QPainterPath Dessinateur::chemin(const Polygone &p, double k, QPointF décalage) const
{
    QPainterPath c;
    c.setFillRule(Qt::OddEvenFill);
    for (const Anneau &a : p) {
        QPolygonF q;
        q.reserve(a.size());
        for (QPointF pt : a)
            q.append(pt * k + décalage);
        c.addPolygon(q);
        c.closeSubpath();
    }
    return c;
}

// A border drawn inside the shape only, so that it never spills over the
// picture's edge and two neighbours' borders lie side by side.
void Dessinateur::bordIntérieur(QImage &image, const QPainterPath &forme, double largeur, QColor couleur) const
{
    QImage calque(image.size(), QImage::Format_ARGB32_Premultiplied);
    calque.fill(Qt::transparent);
    QPainter p(&calque);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(couleur, 2 * largeur, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(forme);
    p.end();
    GardeDans(calque, forme);
    QPainter q(&image);
    q.drawImage(0, 0, calque);
}

QImage Dessinateur::carte(const Teintes &teintes, int k) const
{
    QImage image = teintes.voisins.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QPainterPath suisse = chemin(g.suisse, k);

    // The country in its full colours.
    {
        QImage calque = teintes.suisse.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        GardeDans(calque, suisse);
        QPainter q(&image);
        q.drawImage(0, 0, calque);
    }

    // The neighbours' borders, faint and dashed, kept clear of ours (the two
    // sources don't draw the common border quite alike).
    {
        QImage calque(image.size(), QImage::Format_ARGB32_Premultiplied);
        calque.fill(Qt::transparent);
        QPainter p(&calque);
        p.setRenderHint(QPainter::Antialiasing);
        QPen stylo(QColor(120, 112, 104, 150), 0.9 * k, Qt::CustomDashLine, Qt::FlatCap, Qt::RoundJoin);
        stylo.setDashPattern({5, 2.5});
        p.setPen(stylo);
        for (const Pays &v : g.voisins)
            p.drawPath(chemin(v.forme, k));
        p.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        p.setPen(QPen(Qt::black, 9.0 * k, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::black);
        p.drawPath(suisse);
        p.end();
        QPainter q(&image);
        q.drawImage(0, 0, calque);
    }

    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    // Lakes.
    p.setPen(QPen(RiveEau(), 0.55 * k));
    p.setBrush(Eau());
    for (const Lac &l : g.lacs)
        p.drawPath(chemin(l.forme, k));

    // The country's border: a soft band inside, a firm line on it.
    {
        QImage calque(image.size(), QImage::Format_ARGB32_Premultiplied);
        calque.fill(Qt::transparent);
        QPainter b(&calque);
        b.setRenderHint(QPainter::Antialiasing);
        b.setPen(QPen(QColor(214, 80, 96, 70), 6.0 * k, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        b.drawPath(suisse);
        b.end();
        GardeDans(calque, suisse);
        p.drawImage(0, 0, calque);
    }
    p.setPen(QPen(QColor(96, 40, 56), 1.25 * k, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(suisse);
    p.end();
    return image.convertToFormat(QImage::Format_RGB32);
}

QImage Dessinateur::inv(int n, int k) const
{
    const FicheCanton &c = Canton(n);
    QImage image(c.largeurInv * k, c.hauteur * k, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QPainterPath forme = chemin(g.cantons[n - 1], k, -QPointF(c.paysGauche, c.paysHaut) * k);
    bordIntérieur(image, forme, 1.7 * k, Couleurs::bordCanton);
    return image;
}

PlacementNom Dessinateur::place(int n, Langue langue, const QVector<double> &occupé) const
{
    const FicheCanton &c = Canton(n);
    const QString nom = QString::fromUtf8(langue == Langue::Français ? c.nomFr : c.nomDe);
    const QRect r = c.rectPays();

    // What each pixel of the picture is worth under the name: its own canton
    // best, then the land outside, then a neighbour; never a town's dot.
    const int l = r.width(), h = r.height();
    QVector<double> valeur(l * h);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < l; ++x) {
            const int z = trame.sûr(r.left() + x, r.top() + y);
            // Pictures of higher numbers lie above this one on the map: their
            // tint and border would cover the name, those below would not.
            bool bordDessus = false, bordDessous = false;
            for (auto [dx, dy] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
                const int v = trame.sûr(r.left() + x + dx, r.top() + y + dy);
                if (v == z)
                    continue;
                for (int w : {v, z})
                    if (w != n && w != 0)
                        (w > n ? bordDessus : bordDessous) = true;
            }
            const double fond = z == n ? 3.0 : z == 0 ? 1.5 : z < n ? -1.0 : -4.0;
            valeur[y * l + x] = fond - (bordDessus ? 5.0 : bordDessous ? 1.5 : 0.0)
                                - 12.0 * std::min(1.0, occupé.value((r.top() + y) * LargeurCarte + r.left() + x));
        }
    // the town dots, which stay clickable: a name never covers one
    QVector<double> point(l * h, 0.0);
    for (const FicheCanton &autre : Cantons()) {
        const QRect p = QRect(autre.villeGauche - 1, autre.villeHaut - 1, 9, 10).translated(-r.topLeft());
        for (int y = std::max(0, p.top()); y <= std::min(h - 1, p.bottom()); ++y)
            for (int x = std::max(0, p.left()); x <= std::min(l - 1, p.right()); ++x)
                point[y * l + x] = 1.0;
    }
    QVector<double> sommePoints((l + 1) * (h + 1), 0.0);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < l; ++x)
            sommePoints[(y + 1) * (l + 1) + x + 1] = point[y * l + x] + sommePoints[y * (l + 1) + x + 1]
                                                      + sommePoints[(y + 1) * (l + 1) + x] - sommePoints[y * (l + 1) + x];
    auto couvrePoint = [&](int x0, int y0, int x1, int y1) {
        return sommePoints[y1 * (l + 1) + x1] - sommePoints[y0 * (l + 1) + x1] - sommePoints[y1 * (l + 1) + x0]
                   + sommePoints[y0 * (l + 1) + x0] > 0;
    };
    // the canton's middle, where a name reads best when there is room
    QPointF milieu;
    int nPixels = 0;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < l; ++x)
            if (trame.sûr(r.left() + x, r.top() + y) == n) {
                milieu += QPointF(x + 0.5, y + 0.5);
                ++nPixels;
            }
    milieu /= std::max(1, nPixels);
    // summed-area table for the mean under any box
    QVector<double> somme((l + 1) * (h + 1), 0.0);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < l; ++x)
            somme[(y + 1) * (l + 1) + x + 1] = valeur[y * l + x] + somme[y * (l + 1) + x + 1]
                                                + somme[(y + 1) * (l + 1) + x] - somme[y * (l + 1) + x];
    auto moyenne = [&](int x0, int y0, int x1, int y1) { // [x0, x1) x [y0, y1)
        const double s = somme[y1 * (l + 1) + x1] - somme[y0 * (l + 1) + x1] - somme[y1 * (l + 1) + x0] + somme[y0 * (l + 1) + x0];
        return s / ((x1 - x0) * (y1 - y0));
    };

    // Ways to break the name into lines: whole, or after a space or a hyphen.
    QList<QStringList> coupes{{nom}};
    QList<int> coupures;
    for (int i = 1; i < nom.size(); ++i)
        if (nom[i - 1] == ' ' || nom[i - 1] == '-')
            coupures << i;
    for (int a : coupures)
        coupes << QStringList{nom.left(a).trimmed(), nom.mid(a).trimmed()};
    for (int a : coupures)
        for (int b : coupures)
            if (b > a)
                coupes << QStringList{nom.left(a).trimmed(), nom.mid(a, b - a).trimmed(), nom.mid(b).trimmed()};

    PlacementNom meilleur;
    meilleur.note = -1e300;
    const double marge = 1.5; // room for the halo
    // large cantons get a larger type
    const double plusGrande = c.largeur * c.hauteur > 15000 ? 11.0 : 10.0;
    for (double taille : {11.0, 10.0, 9.0, 8.0}) {
        if (taille > plusGrande)
            continue;
        for (int étirement : {100, 92, 85}) {
            const QFont f = police(taille, étirement);
            const QFontMetricsF m(f);
            for (const QStringList &lignes : coupes) {
                double largeur = 0;
                for (const QString &li : lignes)
                    largeur = std::max(largeur, m.horizontalAdvance(li));
                const double interligne = std::round(taille * 1.05);
                const double hauteurBloc = (lignes.size() - 1) * interligne + m.ascent() + m.descent() * 0.4;
                const int bl = int(std::ceil(largeur + 2 * marge)), bh = int(std::ceil(hauteurBloc + 2 * marge));
                if (bl > l || bh > h)
                    continue;
                for (int y = 0; y + bh <= h; ++y)
                    for (int x = 0; x + bl <= l; ++x) {
                        // the box with its halo margin may touch a dot's ring, the letters not
                        if (couvrePoint(x + 1, y + 1, x + bl - 1, y + bh - 1))
                            continue;
                        const double note = moyenne(x, y, x + bl, y + bh) + 0.5 * (taille - 9) - 0.3 * (lignes.size() - 1)
                                            - 0.03 * (100 - étirement) - (taille < 9 ? 1.5 : 0.0)
                                            - 0.012 * std::hypot(x + bl / 2.0 - milieu.x(), y + bh / 2.0 - milieu.y());
                        if (note > meilleur.note) {
                            meilleur.note = note;
                            meilleur.lignes = lignes;
                            meilleur.taille = taille;
                            meilleur.étirement = étirement;
                            meilleur.bloc = QRectF(x + marge, y + marge, bl - 2 * marge, bh - 2 * marge);
                        }
                    }
            }
        }
    }
    if (meilleur.lignes.isEmpty())
        throw std::runtime_error(std::string("no room for the name of ") + c.sigle);
    return meilleur;
}

QImage Dessinateur::pays(int n, Langue langue, int k) const
{
    const FicheCanton &c = Canton(n);
    QImage image(c.largeur * k, c.hauteur * k, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QPainterPath forme = chemin(g.cantons[n - 1], k, -QPointF(c.paysGauche, c.paysHaut) * k);
    {
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        p.fillPath(forme, Couleurs::teinteTrouvé);
    }
    bordIntérieur(image, forme, 1.3 * k, Couleurs::bordTrouvé);

    const PlacementNom pl = placement(n, langue);
    const QFont f = police(pl.taille * k, pl.étirement);
    const QFontMetricsF m(f);
    const double interligne = std::round(pl.taille * 1.05) * k;
    QPainterPath texte;
    for (int i = 0; i < pl.lignes.size(); ++i) {
        const double largeur = m.horizontalAdvance(pl.lignes[i]);
        const double x = pl.bloc.center().x() * k - largeur / 2;
        const double y = pl.bloc.top() * k + m.ascent() + i * interligne;
        texte.addText(QPointF(std::round(x), std::round(y)), f, pl.lignes[i]);
    }
    // The name with its halo stays whole inside the picture, at every scale.
    const QRectF étendue = texte.boundingRect().adjusted(-1.3 * k, -1.3 * k, 1.3 * k, 1.3 * k);
    if (!QRectF(image.rect()).adjusted(-0.5, -0.5, 0.5, 0.5).contains(étendue))
        throw std::runtime_error(std::string("the name of ") + c.sigle + " spills out of its picture at " + std::to_string(k) + "x");
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.strokePath(texte, QPen(Couleurs::halo, 2.6 * k, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setFont(f);
    p.setPen(Couleurs::texte);
    for (int i = 0; i < pl.lignes.size(); ++i) {
        const double largeur = m.horizontalAdvance(pl.lignes[i]);
        const double x = pl.bloc.center().x() * k - largeur / 2;
        const double y = pl.bloc.top() * k + m.ascent() + i * interligne;
        p.drawText(QPointF(std::round(x), std::round(y)), pl.lignes[i]);
    }
    return image;
}

QImage Dessinateur::miniature(int n, QSize taille, int k) const
{
    const Polygone &forme = g.cantons[n - 1];
    const Boîte b = BoîteDe(forme);
    const double marge = 3.0;
    const double e = std::min((taille.width() - 2 * marge) / (b.xmax - b.xmin), (taille.height() - 2 * marge) / (b.ymax - b.ymin));
    const QPointF décalage((taille.width() - e * (b.xmax - b.xmin)) / 2 - e * b.xmin,
                           (taille.height() - e * (b.ymax - b.ymin)) / 2 - e * b.ymin);
    QImage image(taille * k, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QPainterPath chemin1 = chemin(forme, e * k, décalage * k);
    // shown alone in the question box: a light wash makes the shape read
    {
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        p.fillPath(chemin1, QColor(196, 22, 42, 34));
    }
    bordIntérieur(image, chemin1, 2.0 * k, Couleurs::bordCanton);
    return image;
}
