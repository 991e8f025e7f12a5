#pragma once
// The choice of the folder where scores, parameter sets and saved games are kept.
#include "engine/communs.h"

#include <QString>
#include <functional>

// What the folder dialog is opened for: 7 when no folder of the settings can be written.
extern i16 ModeRépertoires;

// Asks for a save folder until one can be written or the player gives up; a folder
// taken goes to `répertoire` and its KELMOR.SCS to `fichier de lancement`, and
// RépertoireSauvegarde and FichierLancement follow.
void MontreParamétrageRépertoires();

// For tests: the folders a player would pick, in turn; an empty string is a cancel.
// An empty function puts the real folder dialog back.
void InstalleChoixDossier(std::function<QString()> choix);
