#include "platform/Modules.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

#ifndef KELMOR_MODULES_RELATIF
#define KELMOR_MODULES_RELATIF "../lib/kelmor"
#endif

QFunctionPointer FonctionDuModule(const QString &nom, const char *entrée)
{
    const QDir programme(QCoreApplication::applicationDirPath());
    QStringList dossiers{programme.filePath(QStringLiteral(KELMOR_MODULES_RELATIF)), programme.path()};
#ifdef KELMOR_MODULES_CONSTRUCTION
    dossiers << QStringLiteral(KELMOR_MODULES_CONSTRUCTION);
#endif
    for (const QString &dossier : dossiers)
        if (QFunctionPointer f = QLibrary::resolve(QDir(dossier).filePath(nom), entrée))
            return f;
    return nullptr;
}
