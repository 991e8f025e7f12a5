#pragma once
// What every game of the family does: the places and the game state, the map's
// raster, the cycle of questions and steps, the judging, the score and the
// markers. This game's own part lives in specifiques.
#include "engine/Partie.h"

#include <QString>

// Lines of the game's text files end as on the desktop the files come from.
inline const QString FinDeLigne = QStringLiteral("\r\n");

// Field number Rang (from 1) of a string with "#" between its fields.
QString LitChamp(const QString &Texte, i16 Rang);
// The digits at the head of a field make its value; no digits is 0.
i32 ValeurEnTête(const QString &champ);

// The zone under map pixel (x, y), 0 outside the country or the table.
i16 ZoneEn(const TCarteZones &carte, int Région, int x, int y);
// A click at map pixel (x, y), scroll included: the level's filter, then the judging.
void CliqueCarte(Partie &P, int Région, int x, int y);

// Turn cycle. Every rule works on the game it is given and tells that game's listener.
void DébutEtape(Partie &P);
void QuestionSuivante(Partie &P);
void FinEtape(Partie &P);
void TerminePartie(Partie &P);
void RetourAuRepos(Partie &P);

// Judging.
void rond_Click(Partie &P, i16 Index);
void TraiteClic(Partie &P, i16 c, i16 x, i16 y);
void BonneRéponse(Partie &P);
void MauvaiseRéponse(Partie &P);

// Score and clock.
i32 Pénalité(Partie &P, i32 S, i16 k);
i32 SoldeQuestion(Partie &P);
void ScoreAbandon(Partie &P);
void PartiePerdue(Partie &P);
// Seconds since midnight, rounded to a whole number.
i32 SecondesDepuisMinuit();
// The game's length from HeureDépart, across midnight too.
i32 DuréeDepuis(i32 heureDépart);

// Help buttons.
void BoutonPasse_Click(Partie &P);
