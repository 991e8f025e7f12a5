#pragma once
// The score store: for the parameter set in use, the best ten of each scored
// level, kept together with the set itself in one .SCS file.
#include "engine/communs.h"

struct TLigneScore {
    QString Nom;     // at most 20 characters
    i32 Points = 0;
    i32 Durée = 0;   // whole seconds
};

// First index the level 0..4, second the rank 0..10; row 0 and rank 0 stay empty.
extern TLigneScore MeilleursScores[5][11];
extern i16 NombreScores[5];
// The level whose list the best-scores form shows.
extern i16 NiveauAffiché;

void ChargeScores();
bool LitFichierScores();
// Rewrites the file of FichierLancement whole; false when it couldn't be written.
bool EcritFichierScores(bool AvecScores);
void RazScores();
void ConfirmeRazScores();
void EnregistreScore();
// Reads one .SCS file's content into the lists and the set; false on a format fault.
bool LitScores(const QByteArray &contenu);
// The bytes of a .SCS file for the lists and the set in memory.
QByteArray ContenuScores(bool AvecScores);
