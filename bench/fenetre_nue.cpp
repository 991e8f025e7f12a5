// The reference for the start-up benchmark: a bare Qt window showing one picture,
// the map, as the game's window does.
#include <QApplication>
#include <QLabel>
#include <QPixmap>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    if (argc < 2)
        return 2;
    QLabel fenêtre;
    fenêtre.setWindowTitle(QStringLiteral("fenetre nue"));
    fenêtre.setPixmap(QPixmap(QString::fromLocal8Bit(argv[1])));
    fenêtre.show();
    return QApplication::exec();
}
