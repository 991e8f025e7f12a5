#pragma once
// Every path of the program is made by ComposeChemin; a folder in the settings
// may or may not end with a separator.
#include <QChar>
#include <QString>

constexpr QChar SéparateurChemin = QLatin1Char('/');

// dossier and nom joined by exactly one separator.
QString ComposeChemin(const QString &dossier, const QString &nom);
// The folder without its trailing separators (the root keeps its own).
QString SansSéparateurFinal(QString dossier);

// True when a file can really be made and deleted in the folder. Adds the
// missing trailing separator to the caller's string, whatever the result.
bool RépertoireAccessible(QString &dossier);
