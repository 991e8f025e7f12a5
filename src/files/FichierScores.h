#pragma once
// A score file (.SCS): a parameter set and its best-ten lists in records of 128
// bytes: the version, the language, 4, 26, the four step kinds in order of play,
// for each canton whether it is left out, then one record per score line.
#include "engine/Partie.h"

#include <QByteArray>

struct TFichierScores {
    QString Version;
    i16 Langue = 1;
    TEtape OrdreEtapes[5] = {TEtape::Aucune, TEtape::Cantons, TEtape::ChefsLieux, TEtape::Drapeaux, TEtape::Plaques};
    bool Inhibé[NombrePlaces + 1] = {};
    // As in the game: first index the level 0..4, second the rank 1..10.
    TLigneScore Lignes[5][11];
    i16 Nombres[5] = {0, 0, 0, 0, 0};
};

// Reads a whole score file; false, with `f` as it was, when a record is missing or
// unsound, a step kind isn't one of the game's, or a level holds more than ten lines.
bool LitOctetsScores(const QByteArray &octets, TFichierScores &f);
// The bytes of a score file, its lines too when `avecScores`.
QByteArray OctetsScores(const TFichierScores &f, bool avecScores);
