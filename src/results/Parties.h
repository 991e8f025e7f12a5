#pragma once
// Saved games: a game put aside in a .CAS file, taken up once; and the question
// asked before a game under way is left.
#include "engine/communs.h"

#include <QByteArray>

void EnregistrePartie();
bool EcritPartie(const QString &Chemin);
bool LitPartie(const QString &Chemin);
void FichierLire_Click();
// The path up to and including its last separator; empty when it has none.
QString RépertoireDe(const QString &Chemin);
// A game counts as under way once clicked, until its result is dealt with.
bool PartieEnCours();

// The bytes of a .CAS file for the game in memory.
QByteArray ContenuPartie();
// Restores the game from a .CAS file's bytes; false, with nothing changed, on any fault.
bool RestaurePartie(const QByteArray &contenu);
