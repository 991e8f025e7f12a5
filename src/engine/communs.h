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
i16 ZoneEn(int Région, int x, int y);
// A click at map pixel (x, y), scroll included: the level's filter, then the judging.
void CliqueCarte(int Région, int x, int y);

// Turn cycle.
void DébutEtape();
void QuestionSuivante();
void FinEtape();
void TerminePartie();
void RetourAuRepos();

// Judging.
void rond_Click(i16 Index);
void TraiteClic(i16 c, i16 x, i16 y);
void BonneRéponse();
void MauvaiseRéponse();

// Score and clock.
i32 Pénalité(i32 S, i16 k);
i32 SoldeQuestion();
void ScoreAbandon();
void PartiePerdue();
// Seconds since midnight, rounded to a whole number.
i32 SecondesDepuisMinuit();
// The game's length from HeureDépart, across midnight too.
i32 DuréeDepuis(i32 heureDépart);

// Help buttons.
void BoutonPasse_Click();
