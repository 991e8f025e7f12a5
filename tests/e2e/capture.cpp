// Saves what the X display shows, as a player would see it, to a PNG file.
#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <cstdio>

int main(int argc, char **argv)
{
    QGuiApplication application(argc, argv);
    QScreen *écran = QGuiApplication::primaryScreen();
    if (argc != 2 || !écran || !écran->grabWindow(0).save(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "capture FILE.png: no X screen to grab, or the file can not be written\n");
        return 1;
    }
    return 0;
}
