#include "services/Chemins.h"

#include <QFile>

QString ComposeChemin(const QString &dossier, const QString &nom)
{
    if (dossier.endsWith(SéparateurChemin))
        return dossier + nom;
    return dossier + SéparateurChemin + nom;
}

QString SansSéparateurFinal(QString d)
{
    while (d.size() > 1 && d.endsWith(SéparateurChemin))
        d.chop(1);
    return d;
}

bool RépertoireAccessible(QString &dossier)
{
    bool erreur = false;
    if (!dossier.endsWith(SéparateurChemin))
        dossier += SéparateurChemin;
    const QString essai = dossier + QStringLiteral("~zut.tmp");
    if (!QFile::exists(essai)) {
        QFile f(essai);
        if (f.open(QIODevice::WriteOnly)) {
            if (f.write("Kelmor") != 6)
                erreur = true;
            f.close();
        } else {
            erreur = true;
        }
    }
    // A file of that name left by something else goes too: the deletion is then the test.
    if (!QFile::remove(essai))
        erreur = true;
    return !erreur;
}
