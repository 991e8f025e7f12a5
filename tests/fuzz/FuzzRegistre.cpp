// Any bytes as the settings store's file: no crash, and every read answers with one of its codes.
#include "services/Registre.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

namespace {
QString chemin;
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    // In memory: the file is rewritten at every run, and a rewrite on disk waits for the disk.
    static QTemporaryDir dossier(QStringLiteral("/dev/shm/registre-XXXXXX"));
    chemin = dossier.filePath(QStringLiteral("registre.ini"));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *octets, size_t taille)
{
    QFile f(chemin);
    if (!f.open(QIODevice::WriteOnly))
        std::abort();
    f.write(reinterpret_cast<const char *>(octets), qint64(taille));
    f.close();
    InstalleFichierRegistre(chemin);
    const QString clé = QStringLiteral("HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor");
    for (const char *nom : {"version", "langue", "joueur", "date", ""}) {
        QString texte = QStringLiteral("avant");
        const i32 r = LitValeur(clé, QString::fromLatin1(nom), texte);
        if (r != 0 && r != -1 && r != -2)
            std::abort();
        if (r != 0 && texte != QLatin1String("avant"))
            std::abort();
        if (r == 0 && texte.size() > LongueurMaxValeur)
            std::abort();
    }
    const i32 h = OuvreClé(QStringLiteral("HKEY_CURRENT_USER\\Software\\Globarium"));
    if (h != -1) {
        QString nom;
        for (i32 i = 0; i < 64 && EnumèreSousClés(h, i, nom) == 0; ++i) {
        }
        FermeClé(h);
    }
    // What was read can be written back.
    if (EcritValeur(clé, QStringLiteral("langue"), QStringLiteral(" 2")) == 0) {
        QString texte;
        if (LitValeur(clé, QStringLiteral("langue"), texte) != 0 || texte != QLatin1String(" 2"))
            std::abort();
    }
    return 0;
}
