#pragma once
// The settings held in memory for the whole run, where the settings store keeps them,
// and the program's folder and today's date, which tests replace.
#include <QDateTime>
#include <QString>
#include <functional>

// What the run keeps in memory of the settings store, and the program's folder.
struct TRéglages {
    QString RépertoireApplication;
    QString RépertoireSauvegarde;
    QString RépertoireInfo;
    QString FichierLancement;
    QString VersionJeu;
    // False when the game's key couldn't be created: nothing is loaded and the start stops.
    bool ParamètresLus = false;
    bool SonActif = true;
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

// The program's own folder, without a trailing separator.
QString DossierProgramme();
// A folder for the program's files put in place of the program's own, for tests.
void InstalleDossierProgramme(const QString &dossier);

// Today's date and time; a script in tests, an empty function for the system's.
QDateTime Maintenant();
void InstalleMaintenant(std::function<QDateTime()> maintenant);
