#include "services/Parametres.h"

#include "engine/communs.h"
#include "services/Chemins.h"
#include "services/Langues.h"

#include <QCoreApplication>

QString RépertoireApplication;
QString RépertoireSauvegarde;
QString RépertoireInfo;
QString FichierLancement;
QString VersionJeu;

namespace {
QString dossierInstallé;
}

QString DossierProgramme()
{
    QString d = dossierInstallé.isEmpty() ? QCoreApplication::applicationDirPath() : dossierInstallé;
    while (d.size() > 1 && d.endsWith(SéparateurChemin))
        d.chop(1);
    return d;
}

void InstalleDossierProgramme(const QString &dossier) { dossierInstallé = dossier; }

void LitParamètres()
{
    // Until the settings store exists the game starts in French with its files beside it.
    if (Langue < 1)
        Langue = 1;
    ChargeChaînes();
    VersionJeu = LitChamp(Messages[0], 1).section(QLatin1Char(' '), 1, 1);
    RépertoireSauvegarde = RépertoireApplication;
    RépertoireInfo = RépertoireApplication;
    FichierLancement = ComposeChemin(RépertoireSauvegarde, QStringLiteral("KELMOR.SCS"));
}
