#pragma once
// The program's game in the player's history: opened at the start, a record begun with
// each new game, and what the game did noted when a step or the game ends.
#include "services/Historique.h"

// Opens the history in the folder the game writes in, once for that folder, when it is first
// needed (so the start doesn't pay for it); tells the player when it was set aside or can't
// be used (the game plays on either way).
void OuvreHistoriqueDuJoueur();
// The game just begun gets its record, or takes up the one of the game saved in that file.
void CommenceHistorique(const QString &fichierRepris = QString());
// The questions settled since the last note, and where the game now stands.
void NoteHistorique(TIssuePartie issue, const QString &fichierPartie = QString());
