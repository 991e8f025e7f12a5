// Les cantons kelmors: find the 26 cantons on the map.
#include "services/Reglages.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QStringList>
#include <cstdio>

bool Main();

namespace {
// Read before any window: --help and --version answer on a machine without a display.
int LitLigneDeCommande(const QStringList &arguments, short &langue)
{
    QCommandLineParser analyse;
    analyse.setApplicationDescription(QStringLiteral("Les cantons kelmors : retrouvez les 26 cantons sur la carte."));
    const QCommandLineOption aide({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Affiche cette aide."));
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Affiche la version du jeu."));
    const QCommandLineOption choixLangue(QStringLiteral("langue"), QStringLiteral("Démarre en français (fr) ou en allemand (de)."),
                                         QStringLiteral("fr|de"));
    analyse.addOption(aide);
    analyse.addOption(version);
    analyse.addOption(choixLangue);
    if (!analyse.parse(arguments)) {
        std::fprintf(stderr, "kelmor: %s\nkelmor --help dit les options.\n", qPrintable(analyse.errorText()));
        return 2;
    }
    if (analyse.isSet(aide)) {
        std::fputs(qPrintable(analyse.helpText().replace(QStringLiteral("<executable_name>"), QStringLiteral("kelmor"))), stdout);
        return 0;
    }
    if (analyse.isSet(version)) {
        std::printf("Les cantons kelmors, %s\n", qPrintable(VersionDuProgramme()));
        return 0;
    }
    if (!analyse.positionalArguments().isEmpty()) {
        std::fprintf(stderr, "kelmor: argument inattendu : %s\nkelmor --help dit les options.\n",
                     qPrintable(analyse.positionalArguments().first()));
        return 2;
    }
    if (analyse.isSet(choixLangue)) {
        const QString l = analyse.value(choixLangue).toLower();
        if (l != QLatin1String("fr") && l != QLatin1String("de")) {
            std::fprintf(stderr, "kelmor: langue inconnue : %s (fr ou de)\n", qPrintable(l));
            return 2;
        }
        langue = l == QLatin1String("fr") ? 1 : 2;
    }
    return -1;
}
} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    short langue = 0;
    if (const int fin = LitLigneDeCommande(arguments, langue); fin >= 0)
        return fin;

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kelmor"));
    QApplication::setOrganizationName(QStringLiteral("Globarium"));
    QApplication::setDesktopFileName(QStringLiteral("org.example.kelmor"));
    Réglages().LangueDemandée = langue;
    // A start refused (settings, raster) is a failure for whoever launched the game.
    if (!Main())
        return 1;
    return QApplication::exec();
}
