#include "services/Reglages.h"

#include "services/Chemins.h"
#include "services/TableChaines.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

TRéglages &Réglages()
{
    static TRéglages réglages;
    return réglages;
}

namespace {
QString dossierInstallé, donnéesInstallées;
std::function<QDateTime()> maintenantScripté;
} // namespace


// share/kelmor as the install lays it out, relative to bin/.
#ifndef KELMOR_DONNEES_RELATIF
#define KELMOR_DONNEES_RELATIF "../share/kelmor"
#endif

QString DossierDonnées()
{
    if (!dossierInstallé.isEmpty())
        return SansSéparateurFinal(donnéesInstallées.isEmpty() ? dossierInstallé : donnéesInstallées);
    const QDir programme(QCoreApplication::applicationDirPath());
    const QString installé = QDir::cleanPath(programme.filePath(QStringLiteral(KELMOR_DONNEES_RELATIF)));
    if (QFileInfo::exists(ComposeChemin(installé, QStringLiteral("KELMOR.pts"))))
        return installé;
    return SansSéparateurFinal(programme.path());
}

QString DossierProgramme()
{
    if (!dossierInstallé.isEmpty())
        return SansSéparateurFinal(dossierInstallé);
    QString programme = QCoreApplication::applicationDirPath();
    if (DossierDonnées() == SansSéparateurFinal(programme) && RépertoireAccessible(programme))
        return SansSéparateurFinal(programme);
    const QString joueur = ComposeChemin(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), QStringLiteral("kelmor"));
    QDir().mkpath(joueur);
    return joueur;
}

void InstalleDossierProgramme(const QString &dossier, const QString &données)
{
    dossierInstallé = dossier;
    donnéesInstallées = données;
}

QString VersionDuProgramme() { return ChaîneTable(1000); }

QDateTime Maintenant() { return maintenantScripté ? maintenantScripté() : QDateTime::currentDateTime(); }

void InstalleMaintenant(std::function<QDateTime()> maintenant) { maintenantScripté = std::move(maintenant); }
