#pragma once
// KELM_STA.TXT, the table of what each canton cost in a game, as text for a fixed-width
// font: a heading, then a line per canton, tab-separated, a leader of dashes every
// fourth line; lines end in CR LF, the text in Windows-1252.
#include "engine/Partie.h"

#include <QByteArray>
#include <QString>
#include <vector>

struct TEntêteStats {
    QString Police;  // the advice on the font to read it with
    QString Titre;   // the game's name and version
    QString Colonnes[5]; // 1..4 the step kinds' headings
};

struct TLigneStats {
    QString Nom;
    i32 Pertes[5] = {}; // by step kind 1..4
};

// The file's bytes, the cantons in the order given.
QByteArray OctetsStats(const TEntêteStats &entête, const std::vector<TLigneStats> &lignes);
