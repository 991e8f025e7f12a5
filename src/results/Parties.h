#pragma once
// Saved games: a game put aside in a .CAS file, taken up once; and the question
// asked before a game under way is left.
#include "engine/communs.h"
#include "services/Parametres.h"

#include <QByteArray>

void EnregistrePartie();
bool EcritPartie(const QString &Chemin);
bool LitPartie(const QString &Chemin);
void FichierLire_Click();
// The path up to and including its last separator; empty when it has none.
QString RépertoireDe(const QString &Chemin);
// A game counts as under way once clicked, until its result is dealt with.
bool PartieEnCours();
// Asks before a running game is left, scores it and clears the map; false keeps it.
bool ConfirmeArrêt();

// The score file's path as a saved game in dossierPartie notes it so as to give it back
// exactly: full, or else from that folder; empty when neither fits a record unchanged.
QString FichierLancementNoté(const QString &dossierPartie);
// The bytes of a .CAS file for the game in memory, with the score file noted as given.
QByteArray ContenuPartie(const QString &FichierNoté = Réglages().FichierLancement);
// Restores the game from a .CAS file's bytes, a score file's path noted from the saved
// game's folder taken from dossierPartie; false, with nothing changed, on any fault.
bool RestaurePartie(const QByteArray &contenu, const QString &dossierPartie = QString());
