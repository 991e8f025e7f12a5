#pragma once
// The information cards: the files of each language read and written in place.
#include "engine/communs.h"
#include "files/FichierInfo.h"

// Reads record numéro (1..26) of an information file; false when the file or the
// record can't be read, or the record's lengths run past its 650 bytes.
bool LitFicheInfo(const QString &chemin, int numéro, TFiche &fiche);

// Record numéro as a card shows it: empty past the end of the file or without a file;
// a damaged record is told to the player as a file that can't be read, and shows empty.
TFiche FicheMontrée(const QString &chemin, int numéro);

struct TFicheEnEdition {
    // The record on screen in Edition, and the text last read there: a box that still
    // holds that text has nothing to write.
    i16 FicheEditée = 1;
    QString TexteLu;
    // The information file that Edition works on, from its load to its closing.
    QString FichierFichesOuvert;
};
TFicheEnEdition &FicheEnEdition();

// Record numéro of the open file, as FicheMontrée gives it. Its text becomes TexteLu.
TFiche LireFiche(int numéro);
// Writes the record in place in the open file, the file rewritten whole; a file that
// is too short grows by empty records. A record that doesn't fit, or any failure
// of the write, gets the player's message and leaves the file as it was.
bool EcrireFiche(int numéro, const TFiche &fiche);

// Makes the missing information file of a language: the cantons' names in the
// language in use and the text that tells where the cards can be filled in.
// Tells the player only about the file of the language in use.
void CréeFichierInfo(const Partie &P, int langue);
