#pragma once
// The settings held in memory for the whole run, where the settings store keeps them,
// and the program's folder and today's date, which tests replace.
#include <QDateTime>
#include <QString>
#include <functional>

// What the run keeps in memory of the settings store, and the program's folder.
struct TRéglages {
    // Where the game writes what it would write in its own folder; and where the files
    // it ships lie (the map's raster, the help, the sounds, the first information cards).
    QString RépertoireApplication;
    QString RépertoireDonnées;
    QString RépertoireSauvegarde;
    QString RépertoireInfo;
    QString FichierLancement;
    QString VersionJeu;
    // False when the game's key couldn't be created: nothing is loaded and the start stops.
    bool ParamètresLus = false;
    bool SonActif = true;
    // The language asked for on the command line for this run (1 French, 2 German), 0 none.
    short LangueDemandée = 0;
};
// The run's one set of settings, read at the start.
TRéglages &Réglages();

// The family's key, shared with its other games, and this game's own.
inline const QString CléFamille = QStringLiteral("HKEY_CURRENT_USER\\Software\\Globarium");
inline const QString CléJeu = QStringLiteral("HKEY_CURRENT_USER\\Software\\Globarium\\Kelmor");
// How the store keeps the date of the last reminder.
inline const QString FormatDate = QStringLiteral("yyyy-MM-dd HH:mm:ss");
// The reminder comes back after this many calendar days.
constexpr int JoursEntreRappels = 60;

// The game's version as its messages give it: "Version 6.07 du 30/07/2008".
QString VersionDuProgramme();

// The folder of the files the game ships, without a trailing separator: share/kelmor
// beside the program's bin/ when it is installed, else the program's own folder.
QString DossierDonnées();
// The folder the game writes in, without a trailing separator: the program's own
// folder when the game runs from a folder it can write in with its files beside it
// (a build), else the player's data folder (~/.local/share/kelmor), made if missing.
QString DossierProgramme();
// Folders in place of both, for tests and benchmarks: the shipped files read from
// `données` (by default the same folder).
void InstalleDossierProgramme(const QString &dossier, const QString &données = QString());

// Today's date and time; a script in tests, an empty function for the system's.
QDateTime Maintenant();
void InstalleMaintenant(std::function<QDateTime()> maintenant);
