// Checks the game's SVG pictures with Qt's own renderer: each file must load
// without a warning, report the size written in its width/height attributes
// and, for a flag, cover its whole square. A contact sheet (1x, 2x and a
// magnified 1x) lets one judge the drawing by eye.
//
//   verifie_svg [--planche sheet.png] [--loupe N] file.svg...
//
// Exit code 0 when every file passes, 1 otherwise.

#include <QFile>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <cstdio>
#include <vector>

namespace {

QStringList avertissements;

void recueille(QtMsgType type, const QMessageLogContext &, const QString &msg)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        avertissements << msg;
}

// Size given by the root <svg width=".." height="..">, in pixels.
QSize tailleDéclarée(const QByteArray &texte)
{
    const QRegularExpression racine(QStringLiteral("<svg\\b[^>]*>"));
    const auto m = racine.match(QString::fromUtf8(texte));
    if (!m.hasMatch())
        return {};
    const QString balise = m.captured(0);
    auto attribut = [&](const QString &nom) {
        const QRegularExpression re(QStringLiteral("\\s%1=\"([0-9.]+)(px)?\"").arg(nom));
        const auto a = re.match(balise);
        return a.hasMatch() ? a.captured(1).toDouble() : -1.0;
    };
    const double w = attribut(QStringLiteral("width")), h = attribut(QStringLiteral("height"));
    if (w <= 0 || h <= 0)
        return {};
    return QSize(qRound(w), qRound(h));
}

QImage rendu(QSvgRenderer &r, QSize taille, int échelle)
{
    QImage img(taille * échelle, QImage::Format_ARGB32_Premultiplied);
    img.fill(Qt::transparent);
    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing);
    r.render(&p, QRectF(QPointF(0, 0), QSizeF(taille * échelle)));
    return img;
}

bool toutOpaque(const QImage &img)
{
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (qAlpha(img.pixel(x, y)) != 255)
                return false;
    return true;
}

bool quelqueChose(const QImage &img)
{
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x)
            if (qAlpha(img.pixel(x, y)) != 0)
                return true;
    return false;
}

void damier(QPainter &p, const QRect &r)
{
    p.save();
    p.setClipRect(r);
    for (int y = r.top(); y <= r.bottom(); y += 8)
        for (int x = r.left(); x <= r.right(); x += 8)
            p.fillRect(x, y, 8, 8, (((x - r.left()) / 8 + (y - r.top()) / 8) % 2) ? QColor(200, 200, 200) : QColor(245, 245, 245));
    p.restore();
}

struct Vignette {
    QString nom;
    QImage un, deux;
    bool bon;
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // installed first, so that the platform's start-up notices are kept out
    // of the report; each file's own warnings are collected afresh
    qInstallMessageHandler(recueille);
    QGuiApplication app(argc, argv);

    QString planche;
    int loupe = 0;
    QStringList fichiers;
    const QStringList args = app.arguments().mid(1);
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--planche") && i + 1 < args.size())
            planche = args[++i];
        else if (args[i] == QLatin1String("--loupe") && i + 1 < args.size())
            loupe = args[++i].toInt();
        else
            fichiers << args[i];
    }
    if (fichiers.isEmpty()) {
        std::fprintf(stderr, "usage: verifie_svg [--planche sheet.png] [--loupe N] file.svg...\n");
        return 2;
    }

    int échecs = 0;
    std::vector<Vignette> vignettes;
    for (const QString &chemin : fichiers) {
        QStringList défauts;
        QFile f(chemin);
        if (!f.open(QIODevice::ReadOnly)) {
            std::printf("FAIL  %s: unreadable\n", qPrintable(chemin));
            ++échecs;
            continue;
        }
        const QByteArray texte = f.readAll();
        const QSize déclarée = tailleDéclarée(texte);
        if (!déclarée.isValid())
            défauts << QStringLiteral("no whole width/height attributes on the root");

        avertissements.clear();
        QSvgRenderer r(texte);
        if (!r.isValid())
            défauts << QStringLiteral("QSvgRenderer::isValid() is false");
        if (déclarée.isValid() && r.defaultSize() != déclarée)
            défauts << QStringLiteral("default size %1x%2 instead of %3x%4")
                           .arg(r.defaultSize().width()).arg(r.defaultSize().height())
                           .arg(déclarée.width()).arg(déclarée.height());
        const QSize taille = déclarée.isValid() ? déclarée : r.defaultSize();
        QImage un, deux;
        if (r.isValid() && !taille.isEmpty()) {
            un = rendu(r, taille, 1);
            deux = rendu(r, taille, 2);
            if (!quelqueChose(un))
                défauts << QStringLiteral("renders nothing");
            if (QFileInfo(chemin).absoluteDir().dirName() == QLatin1String("drapeaux") && (!toutOpaque(un) || !toutOpaque(deux)))
                défauts << QStringLiteral("flag not wholly opaque");
        }
        for (const QString &a : std::as_const(avertissements))
            défauts << QStringLiteral("Qt warning: ") + a;

        const bool bon = défauts.isEmpty();
        if (!bon)
            ++échecs;
        std::printf("%s %s %dx%d%s%s\n", bon ? "ok   " : "FAIL ", qPrintable(chemin),
                    taille.width(), taille.height(), bon ? "" : ": ", qPrintable(défauts.join(QStringLiteral("; "))));
        vignettes.push_back({QFileInfo(chemin).fileName(), un, deux, bon});
    }

    if (!planche.isEmpty() && !vignettes.empty()) {
        // only small pictures (dots, icons) get the magnified copy
        const auto agrandie = [loupe](const QImage &im) { return loupe > 0 && !im.isNull() && im.width() <= 64; };
        // Cells of equal size, large enough for the largest 2x rendering.
        int lmax = 0, hmax = 0;
        for (const auto &v : vignettes) {
            const int lo = agrandie(v.un) ? v.un.width() * loupe : 0;
            const int ho = agrandie(v.un) ? v.un.height() * loupe : 0;
            lmax = std::max(lmax, v.un.width() + v.deux.width() + lo + 24);
            hmax = std::max(hmax, std::max({v.un.height(), v.deux.height(), ho}) + 24);
        }
        lmax = std::max(lmax, 150);
        const int colonnes = std::max(1, 1600 / lmax);
        const int lignes = int((vignettes.size() + colonnes - 1) / colonnes);
        QImage img(colonnes * lmax, lignes * hmax, QImage::Format_RGB32);
        img.fill(Qt::white);
        QPainter p(&img);
        QFont police = p.font();
        police.setPixelSize(10);
        p.setFont(police);
        for (size_t i = 0; i < vignettes.size(); ++i) {
            const auto &v = vignettes[i];
            const int x0 = int(i % colonnes) * lmax + 4, y0 = int(i / colonnes) * hmax + 4;
            int x = x0;
            for (const QImage *im : {&v.un, &v.deux}) {
                if (im->isNull())
                    continue;
                const QRect r(x, y0, im->width(), im->height());
                damier(p, r);
                p.drawImage(r.topLeft(), *im);
                x += im->width() + 6;
            }
            if (agrandie(v.un)) {
                const QImage g = v.un.scaled(v.un.size() * loupe, Qt::IgnoreAspectRatio, Qt::FastTransformation);
                const QRect r(x, y0, g.width(), g.height());
                damier(p, r);
                p.drawImage(r.topLeft(), g);
            }
            p.setPen(v.bon ? Qt::black : Qt::red);
            p.drawText(x0, y0 + hmax - 12, v.nom);
        }
        p.end();
        if (!img.save(planche)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(planche));
            return 1;
        }
    }
    std::printf("%d file(s), %d failure(s)\n", int(fichiers.size()), échecs);
    return échecs ? 1 : 0;
}
