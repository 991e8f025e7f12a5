// One sheet of every picture that goes with the game, to judge the artwork at a glance:
//     planche DATA_FOLDER OUT.png [ratio]
// Pictures are drawn at their size at 100 % (or the ratio given), each with its name.
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>
#include <cstdio>

namespace {
QImage Image(const QString &chemin, qreal ratio)
{
    if (chemin.endsWith(QLatin1String(".svg"))) {
        QSvgRenderer r(chemin);
        const QSize t = r.defaultSize();
        QImage im(QSize(int(std::ceil(t.width() * ratio)), int(std::ceil(t.height() * ratio))),
                  QImage::Format_ARGB32_Premultiplied);
        im.fill(Qt::transparent);
        QPainter p(&im);
        r.render(&p);
        return im;
    }
    QString c = chemin;
    if (ratio > 1) {
        const QString double_ = QString(chemin).replace(QLatin1String(".png"), QLatin1String("@2x.png"));
        if (QFile::exists(double_))
            c = double_;
    }
    return QImage(c);
}
} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: planche DATA_FOLDER OUT.png [ratio]\n");
        return 2;
    }
    const QDir données(QString::fromLocal8Bit(argv[1]));
    const qreal ratio = argc > 3 ? QString::fromLocal8Bit(argv[3]).toDouble() : 1.0;
    QStringList chemins;
    for (const QString &dossier : {QStringLiteral("images"), QStringLiteral("drapeaux")})
        for (const QString &f : QDir(données.filePath(dossier)).entryList({"*.png", "*.svg"}, QDir::Files, QDir::Name))
            if (!f.contains(QLatin1String("@2x")))
                chemins << données.filePath(dossier + QLatin1Char('/') + f);

    const int largeur = int(1400 * ratio);
    const int marge = int(8 * ratio);
    QImage planche(largeur, int(6000 * ratio), QImage::Format_RGB32);
    planche.fill(QColor(0xE8, 0xE6, 0xE0));
    QPainter p(&planche);
    QFont f = p.font();
    f.setPixelSize(int(10 * ratio));
    p.setFont(f);
    int x = marge, y = marge, rangée = 0;
    for (const QString &c : chemins) {
        const QImage im = Image(c, ratio);
        if (im.isNull()) {
            std::fprintf(stderr, "planche: can't read %s\n", qPrintable(c));
            return 1;
        }
        const int l = std::max(im.width(), int(70 * ratio));
        const int h = im.height() + int(14 * ratio);
        if (x + l > largeur - marge) {
            x = marge;
            y += rangée + marge;
            rangée = 0;
        }
        // A checker under transparent pictures shows what is transparent.
        for (int cy = 0; cy < im.height(); cy += int(8 * ratio))
            for (int cx = 0; cx < im.width(); cx += int(8 * ratio))
                if (((cx + cy) / int(8 * ratio)) % 2)
                    p.fillRect(x + cx, y + cy, int(8 * ratio), int(8 * ratio), QColor(0xD0, 0xD0, 0xD0));
        p.drawImage(x, y, im);
        p.setPen(Qt::black);
        p.drawText(x, y + im.height() + int(11 * ratio), QFileInfo(c).completeBaseName());
        x += l + marge;
        rangée = std::max(rangée, h);
    }
    p.end();
    const QImage fin = planche.copy(0, 0, largeur, y + rangée + marge);
    if (!fin.save(QString::fromLocal8Bit(argv[2]))) {
        std::fprintf(stderr, "planche: can't write %s\n", argv[2]);
        return 1;
    }
    std::printf("%lld pictures on %s\n", static_cast<long long>(chemins.size()), argv[2]);
    return 0;
}
