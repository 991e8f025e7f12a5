#include "services/Reglages.h"

#include "services/Chemins.h"

#include <QCoreApplication>

TRéglages &Réglages()
{
    static TRéglages réglages;
    return réglages;
}

namespace {
QString dossierInstallé;
std::function<QDateTime()> maintenantScripté;
} // namespace

QString DossierProgramme()
{
    QString d = dossierInstallé.isEmpty() ? QCoreApplication::applicationDirPath() : dossierInstallé;
    while (d.size() > 1 && d.endsWith(SéparateurChemin))
        d.chop(1);
    return d;
}

void InstalleDossierProgramme(const QString &dossier) { dossierInstallé = dossier; }

QDateTime Maintenant() { return maintenantScripté ? maintenantScripté() : QDateTime::currentDateTime(); }

void InstalleMaintenant(std::function<QDateTime()> maintenant) { maintenantScripté = std::move(maintenant); }
