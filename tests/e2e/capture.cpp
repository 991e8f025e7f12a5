// Saves what the X display shows, as a player would see it, to a PNG file.
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <cstdio>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: capture FILE.png\n");
        return 2;
    }
    QScreen *écran = QGuiApplication::primaryScreen();
    if (!écran || !écran->grabWindow(0).save(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "capture: no screen to grab\n");
        return 1;
    }
    return 0;
}
