#pragma once
// The score store: for the parameter set in use, the best ten of each scored
// level, kept together with the set itself in one .SCS file.
#include "engine/communs.h"

struct TScoresAffichés {
    // The level whose list the best-scores form shows.
    TNiveau NiveauAffiché = TNiveau::Aucun;
    // The statistics' display order, the costliest canton first: 1..26.
    i16 TriPertes[NombrePlaces + 1] = {};
};
TScoresAffichés &ScoresAffichés();

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
