#pragma once
// The settings held in memory for the whole run.
#include <QString>

extern QString RépertoireApplication;
extern QString RépertoireSauvegarde;
extern QString RépertoireInfo;
extern QString FichierLancement;
extern QString VersionJeu;

// The program's own folder, without a trailing separator.
QString DossierProgramme();
// A folder for the program's files put in place of the program's own, for tests.
void InstalleDossierProgramme(const QString &dossier);

// Reads the settings and the messages of the language in use.
void LitParamètres();
