// Les cantons kelmors: find the 26 cantons on the map.
#include "engine/communs.h"

#include <QApplication>

bool Main();

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kelmor"));
    QApplication::setOrganizationName(QStringLiteral("Globarium"));
    // A start refused (settings, raster) is a failure for whoever launched the game.
    if (!Main())
        return 1;
    return QApplication::exec();
}
