#pragma once
// The program's game in the player's history: opened at the start, a record begun with
// each new game, and what the game did noted when a step or the game ends.
#include "services/Historique.h"

#include <functional>

// Opens the history in the folder the game writes in, once for that folder, when it is first
// needed (so the start doesn't pay for it); tells the player when it was set aside or can't
// be used (the game plays on either way).
void OuvreHistoriqueDuJoueur();
// The game just begun gets its record, or takes up the one of the game saved in that file.
void CommenceHistorique(const QString &fichierRepris = QString());
// A replay asked for from a form. It starts once the forms are closed and the game's rules
// have had their last word (the statistics are shown from within a game's last click), by
// the command that InstalleRejeu set (the main window's).
void DemandeRejeu(TRejeu rejeu);
void InstalleRejeu(std::function<void(const TRejeu &)> commande);
// The questions settled since the last note, and where the game now stands.
void NoteHistorique(TIssuePartie issue, const QString &fichierPartie = QString());
