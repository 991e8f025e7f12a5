// The program's icon at the sizes of the desktop's icon theme, from its SVG:
//     icones ICONE.svg DOSSIER 16 24 32 ...   writes DOSSIER/16.png, DOSSIER/24.png, ...
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    if (argc < 4) {
        std::fprintf(stderr, "usage: icones ICONE.svg DOSSIER TAILLE...\n");
        return 2;
    }
    QSvgRenderer dessin(QString::fromLocal8Bit(argv[1]));
    if (!dessin.isValid()) {
        std::fprintf(stderr, "icones: %s is no SVG picture\n", argv[1]);
        return 1;
    }
    const QDir dossier(QString::fromLocal8Bit(argv[2]));
    QDir().mkpath(dossier.path());
    for (int i = 3; i < argc; ++i) {
        const int n = std::atoi(argv[i]);
        QImage image(n, n, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter peintre(&image);
        peintre.setRenderHint(QPainter::Antialiasing);
        dessin.render(&peintre);
        peintre.end();
        if (n <= 0 || !image.save(dossier.filePath(QStringLiteral("%1.png").arg(n)))) {
            std::fprintf(stderr, "icones: the %s px picture could not be written\n", argv[i]);
            return 1;
        }
    }
    return 0;
}
