#pragma once
// An information file: one 650-byte record per canton. A record holds the name and the
// text, each behind its length on two bytes, little-endian, in Windows-1252; the rest
// of the record is not significant.
#include <QByteArray>
#include <QString>

struct TFiche {
    QString Nom;
    QString Texte;
};

constexpr int TailleFiche = 650;
constexpr int NombreFiches = 26;

// A record that isn't there is no fault: the card is empty. One whose lengths run past
// its 650 bytes, or past the end of the file, is damaged.
enum class TLectureFiche { Lue, Absente, Abîmée };
// Reads a record from its bytes, as many as the file had of it (at most 650).
TLectureFiche LitOctetsFiche(const QByteArray &r, TFiche &fiche);

// The 650 bytes of a record, zero-filled behind its text; empty when name and text
// with their two lengths run past 650 bytes.
QByteArray OctetsFiche(const TFiche &fiche);
