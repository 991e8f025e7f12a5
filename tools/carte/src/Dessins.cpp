#include "Dessins.h"

#include "Cantons.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPathStroker>
#include <cmath>
#include <stdexcept>

namespace {

// A leader is a detour for the eye: a name on its own land reads better.
constexpr double CoûtRenvoi = 1.6;

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

    // The smallest cantons first: they have the least room for a name.
    QVector<int> ordre, pixels(NombreCantons + 1, 0);
    for (const FicheCanton &c : Cantons())
        ordre << c.numéro;
    for (quint8 z : trame.zones)
        ++pixels[z];
    std::stable_sort(ordre.begin(), ordre.end(), [&](int a, int b) { return pixels[a] < pixels[b]; });
    for (Langue langue : {Langue::Français, Langue::Allemand}) {
        auto &liste = placements[int(langue)];
        liste.resize(NombreCantons);
        // each name placed so far, with a pixel around it that no other name takes
        QVector<int> occupé(LargeurCarte * HauteurCarte, 0);
        auto marque = [&](int n, int signe) {
            for (const QRect &e : liste[n - 1].étendues + liste[n - 1].étenduesRenvoi) {
                const QRect r = e.translated(Canton(n).rectPays().topLeft()).adjusted(-1, -1, 1, 1)
                                    .intersected(QRect(0, 0, LargeurCarte, HauteurCarte));
                for (int y = r.top(); y <= r.bottom(); ++y)
                    for (int x = r.left(); x <= r.right(); ++x)
                        occupé[y * LargeurCarte + x] += signe;
            }
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
                bougé = bougé || p.bloc != liste[n - 1].bloc || p.renvoi != liste[n - 1].renvoi;
                liste[n - 1] = p;
                marque(n, 1);
            }
            if (!bougé)
                break;
        }
    }
}

QVector<QRectF> ÉtendueRenvoi(const QLineF &trait, int k)
{
    QVector<QRectF> r;
    const double demi = (DemiRenvoi + HaloRenvoi) * k, ancre = (RayonAncre + HaloRenvoi) * k;
    r << QRectF(trait.p1() - QPointF(ancre, ancre), QSizeF(2 * ancre, 2 * ancre));
    const int pas = std::max(1, int(std::ceil(trait.length() / k)));
    for (int i = 0; i <= pas; ++i) {
        const QPointF m = trait.pointAt(double(i) / pas);
        r << QRectF(m - QPointF(demi, demi), QSizeF(2 * demi, 2 * demi));
    }
    return r;
}

QRect RectPoint(int numéro)
{
    const FicheCanton &c = Canton(numéro);
    return QRect(c.villeGauche, c.villeHaut, 7, 8);
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

PlacementNom Dessinateur::place(int n, Langue langue, const QVector<int> &occupé) const
{
    const FicheCanton &c = Canton(n);
    const QString nom = QString::fromUtf8(langue == Langue::Français ? c.nomFr : c.nomDe);
    const QRect r = c.rectPays();
    const int l = r.width(), h = r.height();

    // What each pixel of the picture is worth under the name: its own canton
    // best, then the land outside, then a neighbour drawn earlier. Pictures
    // of higher numbers lie above this one on the map: their tint fades the
    // name and their border would cut through it.
    QVector<double> valeur(l * h), bordDessus(l * h, 0.0), dessous(l * h, 0.0), pris(l * h, 0.0), interdit(l * h, 0.0);
    // With a leader to its land, a name reads as well over water, abroad or
    // over an earlier canton as on its own land: what matters is that nothing
    // drawn later covers it.
    QVector<double> valeurRenvoi(l * h), propre(l * h, 0.0);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < l; ++x) {
            const int z = trame.sûr(r.left() + x, r.top() + y);
            bool bordPlusHaut = false, bordPlusBas = false;
            for (auto [dx, dy] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
                const int v = trame.sûr(r.left() + x + dx, r.top() + y + dy);
                if (v == z)
                    continue;
                for (int w : {v, z})
                    if (w != n && w != 0)
                        (w > n ? bordPlusHaut : bordPlusBas) = true;
            }
            const int i = y * l + x;
            valeur[i] = (z == n ? 3.0 : z == 0 ? 1.5 : z < n ? -3.0 : -8.0) - (bordPlusBas && !bordPlusHaut ? 1.5 : 0.0);
            valeurRenvoi[i] = (z > n ? -8.0 : 3.0) - (bordPlusBas && !bordPlusHaut ? 1.5 : 0.0);
            propre[i] = z == n;
            bordDessus[i] = bordPlusHaut;
            dessous[i] = z > n;
            // another name, already placed, with a pixel between them
            pris[i] = occupé[(r.top() + y) * LargeurCarte + r.left() + x] > 0;
        }
    // The town dots stay clickable and readable: a pixel clear around each.
    // A name close beside another canton's town would seem to name it, and
    // the larger marks of the parameter sets spread a few pixels further.
    QVector<double> prèsAutreVille(l * h, 0.0);
    for (const FicheCanton &autre : Cantons()) {
        const QRect p = RectPoint(autre.numéro).translated(-r.topLeft());
        for (int y = std::max(0, p.top() - 5); y <= std::min(h - 1, p.bottom() + 5); ++y)
            for (int x = std::max(0, p.left() - 5); x <= std::min(l - 1, p.right() + 5); ++x) {
                if (p.adjusted(-1, -1, 1, 1).contains(x, y))
                    interdit[y * l + x] = 1.0;
                else if (autre.numéro != n)
                    prèsAutreVille[y * l + x] = 1.0;
            }
    }
    // summed-area tables: the total of each over any box
    auto table = [&](const QVector<double> &v) {
        QVector<double> t((l + 1) * (h + 1), 0.0);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < l; ++x)
                t[(y + 1) * (l + 1) + x + 1] = v[y * l + x] + t[y * (l + 1) + x + 1] + t[(y + 1) * (l + 1) + x] - t[y * (l + 1) + x];
        return t;
    };
    const QVector<double> tValeur = table(valeur), tBord = table(bordDessus), tDessous = table(dessous), tPris = table(pris),
                         tInterdit = table(interdit), tPrès = table(prèsAutreVille), tValeurRenvoi = table(valeurRenvoi),
                         tPropre = table(propre);
    auto total = [&](const QVector<double> &t, int x0, int y0, int x1, int y1) { // [x0, x1) x [y0, y1)
        return t[y1 * (l + 1) + x1] - t[y0 * (l + 1) + x1] - t[y1 * (l + 1) + x0] + t[y0 * (l + 1) + x0];
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

    // Where a leader may end: well inside the canton's land, clear of the
    // dots and of the other names. And where it may run: over nothing that a
    // later picture covers, nor a dot, nor another name.
    auto zone = [&](int x, int y) { return trame.sûr(r.left() + x, r.top() + y); };
    auto libre = [&](int x, int y) {
        return x >= 0 && y >= 0 && x < l && y < h && interdit[y * l + x] == 0 && pris[y * l + x] == 0;
    };
    QVector<QPoint> ancres;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < l; ++x) {
            bool bon = true;
            for (int dy = -2; dy <= 2 && bon; ++dy)
                for (int dx = -2; dx <= 2 && bon; ++dx)
                    bon = zone(x + dx, y + dy) == n && libre(x + dx, y + dy);
            if (bon)
                ancres << QPoint(x, y);
        }
    auto passage = [&](int x, int y) {
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) {
                const int z = zone(x + dx, y + dy);
                if (z > n || !libre(x + dx, y + dy))
                    return false;
            }
        return true;
    };
    // The shortest leader from the canton's land to the name's lines (their
    // halo's edge), or a null line when none runs clear.
    auto chercheRenvoi = [&](const QVector<QRect> &parLigne, int bx, int by) {
        struct Essai {
            double longueur;
            QLineF trait;
        };
        QVector<Essai> essais;
        for (QPoint a : ancres) {
            const QPointF pa(a.x() + 0.5, a.y() + 0.5);
            Essai e{1e9, {}};
            for (const QRect &q0 : parLigne) {
                const QRectF q = QRectF(q0.translated(bx, by)).adjusted(0, 0, 1, 1);
                const QPointF bout(std::clamp(pa.x(), q.left(), q.right()), std::clamp(pa.y(), q.top(), q.bottom()));
                const double d = std::hypot(bout.x() - pa.x(), bout.y() - pa.y());
                if (d < e.longueur)
                    e = {d, QLineF(pa, bout)};
            }
            essais << e;
        }
        std::sort(essais.begin(), essais.end(), [](const Essai &a, const Essai &b) { return a.longueur < b.longueur; });
        for (int i = 0; i < std::min<int>(essais.size(), 40); ++i) {
            const Essai &e = essais[i];
            if (e.longueur < 5.0) // too short to be seen: a point deeper in the land
                continue;
            bool clair = true;
            const int pas = int(std::ceil(e.longueur * 3));
            for (int j = 0; j <= pas - 3 && clair; ++j) {
                const QPointF m = e.trait.pointAt(double(j) / pas);
                const int x = int(std::floor(m.x())), y = int(std::floor(m.y()));
                clair = passage(x, y);
                for (const QRect &q : parLigne)
                    clair = clair && !q.translated(bx, by).adjusted(-1, -1, 1, 1).contains(x, y);
            }
            if (clair)
                return e.trait;
        }
        return QLineF();
    };

    // Ways to break the name into lines: whole, or after a space or a hyphen,
    // or where the table allows a word to be hyphenated (a soft hyphen).
    const QChar tiretConditionnel(0x00AD);
    QList<int> coupures; // where a new line may begin
    for (int i = 1; i < nom.size(); ++i)
        if (nom[i - 1] == ' ' || nom[i - 1] == '-' || nom[i] == tiretConditionnel)
            coupures << i;
    auto coupe = [&](const QList<int> &où) {
        QStringList lignesNom;
        int début = 0;
        for (int i : où + QList<int>{int(nom.size())}) {
            QString li = nom.mid(début, i - début);
            if (i < nom.size() && nom[i] == tiretConditionnel)
                li += '-';
            lignesNom << li.remove(tiretConditionnel).trimmed();
            début = i;
        }
        return lignesNom;
    };
    QList<QList<int>> façons{{}};
    for (int a : coupures) {
        façons << QList<int>{a};
        for (int b : coupures)
            if (b > a)
                façons << QList<int>{a, b};
    }
    PlacementNom meilleur;
    meilleur.note = -1e300;
    // large cantons get a larger type
    const double plusGrande = c.largeur * c.hauteur > 15000 ? 11.0 : 10.0;
    for (double taille : {11.0, 10.0, 9.0}) {
        if (taille > plusGrande)
            continue;
        for (int étirement : {100, 92, 85, 75, 70}) {
            const QFontMetricsF m(police(taille, étirement));
            for (const QList<int> &où : façons) {
                const QStringList lignesNom = coupe(où);
                // a word cut in two reads worse than a name broken where it parts
                int motsCoupés = 0;
                for (int i : où)
                    motsCoupés += nom[i] == tiretConditionnel;
                PlacementNom essai;
                essai.lignes = lignesNom;
                essai.taille = taille;
                essai.étirement = étirement;
                double largeur = 0;
                for (const QString &li : lignesNom)
                    largeur = std::max(largeur, m.horizontalAdvance(li));
                const double interligne = std::round(taille * 1.05);
                essai.bloc = QRectF(0, 0, largeur, (lignesNom.size() - 1) * interligne + m.ascent() + m.descent() * 0.4);
                // Where the letters and their halo reach from the box, at
                // either scale. The box moves by whole pixels, so each line
                // rounds to the pixel grid alike wherever it goes.
                QVector<QRect> parLigne; // whole pixels, from the box's top-left
                QRect union_;
                for (int i = 0; i < lignesNom.size(); ++i) {
                    QRectF e;
                    for (int k : {1, 2}) {
                        const QRectF f = lignes(essai, k)[i].étendue;
                        e |= QRectF(f.topLeft() / k, f.size() / k);
                    }
                    const QPoint coin(int(std::floor(e.left())), int(std::floor(e.top())));
                    parLigne << QRect(coin, QPoint(int(std::ceil(e.right())) - 1, int(std::ceil(e.bottom())) - 1));
                    union_ |= parLigne.last();
                }
                if (union_.width() > l || union_.height() > h)
                    continue;
                int aire = 0, hauteurs = 0;
                for (const QRect &q : parLigne) {
                    aire += q.width() * q.height();
                    hauteurs += q.height();
                }
                auto sous = [&](const QVector<double> &t, int bx, int by) {
                    double s = 0;
                    for (const QRect &q : parLigne)
                        s += total(t, bx + q.left(), by + q.top(), bx + q.right() + 1, by + q.bottom() + 1);
                    return s;
                };
                for (int by = -union_.top(); by + union_.bottom() < h; ++by)
                    for (int bx = -union_.left(); bx + union_.right() < l; ++bx) {
                        if (sous(tInterdit, bx, by) > 0)
                            continue;
                        // Touching another name is worse than anything else; it
                        // is only let by when there is no other room, until the
                        // other name moves on a later round.
                        const double surAutreNom = sous(tPris, bx, by);
                        const QPointF centre = QRectF(union_).center() + QPointF(bx, by);
                        // a border line through the letters costs about as much
                        // as a fifth of the name over a neighbour drawn later
                        const double note = sous(tValeur, bx, by) / aire
                                            - (surAutreNom > 0 ? 100.0 + surAutreNom / aire : 0.0)
                                            - 1.0 * sous(tBord, bx, by) / hauteurs * lignesNom.size()
                                            - (sous(tPrès, bx, by) > 0 ? 1.5 : 0.0)
                                            + 0.5 * (taille - 9) - 0.3 * (lignesNom.size() - 1) - 0.8 * motsCoupés
                                            - 0.03 * (100 - étirement) - (étirement < 85 ? 1.0 : 0.0)
                                            - 0.012 * std::hypot(centre.x() - milieu.x(), centre.y() - milieu.y());
                        auto retiens = [&](double n0, const QLineF &renvoi) {
                            meilleur = essai;
                            meilleur.note = n0;
                            meilleur.bloc.moveTopLeft(QPointF(bx, by));
                            meilleur.étendues.clear();
                            for (const QRect &q : parLigne)
                                meilleur.étendues << q.translated(bx, by);
                            meilleur.sousAutres = sous(tDessous, bx, by) / aire;
                            meilleur.pixelsBordDessus = int(sous(tBord, bx, by));
                            meilleur.renvoi = renvoi;
                            meilleur.étenduesRenvoi.clear();
                            if (!renvoi.isNull())
                                for (const QRectF &e : ÉtendueRenvoi(renvoi, 1))
                                    meilleur.étenduesRenvoi << e.toAlignedRect();
                        };
                        // A name mostly off its land beside another canton's
                        // town reads as that canton's, unless a leader says whose.
                        const bool horsDeSesTerres = sous(tPropre, bx, by) < 0.5 * aire;
                        const double équivoque = horsDeSesTerres && sous(tPrès, bx, by) > 0 ? 2.0 : 0.0;
                        if (note - équivoque > meilleur.note)
                            retiens(note - équivoque, QLineF());
                        // The same name away from its land, with a leader: worth
                        // it only where most of the name would not be on its land.
                        if (horsDeSesTerres) {
                            const double sansTrait = note - sous(tValeur, bx, by) / aire + sous(tValeurRenvoi, bx, by) / aire
                                                     + 0.012 * std::hypot(centre.x() - milieu.x(), centre.y() - milieu.y())
                                                     - CoûtRenvoi;
                            if (sansTrait > meilleur.note) {
                                const QLineF renvoi = chercheRenvoi(parLigne, bx, by);
                                const double avecTrait = sansTrait - 0.04 * renvoi.length();
                                if (!renvoi.isNull() && avecTrait > meilleur.note)
                                    retiens(avecTrait, renvoi);
                            }
                        }
                    }
            }
        }
    }
    if (meilleur.lignes.isEmpty())
        throw std::runtime_error(std::string("no room for the name of ") + c.sigle);
    return meilleur;
}

QVector<Dessinateur::Ligne> Dessinateur::lignes(const PlacementNom &pl, int k) const
{
    const QFont f = police(pl.taille * k, pl.étirement);
    const QFontMetricsF m(f);
    const double interligne = std::round(pl.taille * 1.05) * k;
    QVector<Ligne> r;
    for (int i = 0; i < pl.lignes.size(); ++i) {
        Ligne li;
        li.texte = pl.lignes[i];
        // whole pixels, so that every line sits alike on the pixel grid
        li.origine = QPointF(std::round(pl.bloc.center().x() * k - m.horizontalAdvance(li.texte) / 2),
                             std::round(pl.bloc.top() * k + m.ascent() + i * interligne));
        li.contour.addText(li.origine, f, li.texte);
        li.étendue = li.contour.boundingRect().adjusted(-DemiHalo * k, -DemiHalo * k, DemiHalo * k, DemiHalo * k);
        r << li;
    }
    return r;
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

    const PlacementNom &pl = placement(n, langue);
    const QVector<Ligne> texte = lignes(pl, k);
    // The name with its halo stays whole inside the picture, at every scale.
    for (const Ligne &li : texte)
        if (!QRectF(image.rect()).adjusted(-0.5, -0.5, 0.5, 0.5).contains(li.étendue))
            throw std::runtime_error(std::string("the name of ") + c.sigle + " spills out of its picture at " + std::to_string(k) + "x");
    const QLineF renvoi(pl.renvoi.p1() * k, pl.renvoi.p2() * k);
    if (!pl.renvoi.isNull())
        for (const QRectF &e : ÉtendueRenvoi(renvoi, k))
            if (!QRectF(image.rect()).adjusted(-0.5, -0.5, 0.5, 0.5).contains(e))
                throw std::runtime_error(std::string("the leader of ") + c.sigle + " spills out of its picture at " + std::to_string(k) + "x");
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    if (!pl.renvoi.isNull()) {
        // the halos first, so that line and dot lie on one white ground
        p.setPen(QPen(Couleurs::halo, 2 * (DemiRenvoi + HaloRenvoi) * k, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(renvoi);
        p.setPen(Qt::NoPen);
        p.setBrush(Couleurs::halo);
        p.drawEllipse(renvoi.p1(), (RayonAncre + HaloRenvoi) * k, (RayonAncre + HaloRenvoi) * k);
    }
    for (const Ligne &li : texte)
        p.strokePath(li.contour, QPen(Couleurs::halo, 2 * DemiHalo * k, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (!pl.renvoi.isNull()) {
        p.setPen(QPen(Couleurs::texte, 2 * DemiRenvoi * k, Qt::SolidLine, Qt::FlatCap));
        p.drawLine(renvoi);
        p.setPen(Qt::NoPen);
        p.setBrush(Couleurs::texte);
        p.drawEllipse(renvoi.p1(), RayonAncre * k, RayonAncre * k);
    }
    p.setFont(police(pl.taille * k, pl.étirement));
    p.setPen(Couleurs::texte);
    for (const Ligne &li : texte)
        p.drawText(li.origine, li.texte);
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
