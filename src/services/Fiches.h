#pragma once
// The information cards: one file of 650-byte records per language, a canton each.
#include <QString>

struct TFiche {
    QString Nom;
    QString Texte;
};

constexpr int TailleFiche = 650;

// Reads record numéro (1..26) of an information file; false when the file or the
// record can't be read, or the record's lengths run past its 650 bytes.
bool LitFicheInfo(const QString &chemin, int numéro, TFiche &fiche);
