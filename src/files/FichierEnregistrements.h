#pragma once
// The record file of scores and saved games: 128-byte records with one value at
// the start of each, little-endian, text in Windows-1252.
#include "engine/Partie.h"

#include <QByteArray>
#include <type_traits>

// Booleans as the files store them.
constexpr i16 True = -1;
constexpr i16 False = 0;
inline i16 Booléen(bool b) { return b ? True : False; }

constexpr int TailleEnregistrement = 128;
// A String's text must fit its record with its length.
constexpr int LongueurChaîneMax = TailleEnregistrement - 2;

// Builds a record file in memory, to be written whole.
class EcritureEnregistrements {
public:
    void Entier(i16 v);
    void Entier(TEtape e) { Entier(static_cast<i16>(e)); }
    void Entier(TNiveau n) { Entier(static_cast<i16>(n)); }
    // A Boolean goes in as -1 or 0, through Booléen: a bare bool would write 1.
    template <class T> requires std::is_same_v<T, bool> void Entier(T) = delete;
    template <class T> requires std::is_same_v<T, bool> void Long(T) = delete;
    void Long(i32 v);
    void Chaîne(const QString &texte); // cut to what a record holds
    void LigneScore(const TLigneScore &ligne, i16 niveau);
    // Two Integers in one record.
    void Paire(i16 a, i16 b);
    const QByteArray &Octets() const { return octets; }
    int Nombre() const { return int(octets.size() / TailleEnregistrement); }

private:
    char *Nouveau();
    QByteArray octets;
};

// Reads the records of a file held in memory; every read says whether the record was there and sound.
class LectureEnregistrements {
public:
    explicit LectureEnregistrements(QByteArray contenu);
    bool Fin() const { return suivant >= nombre; }
    bool Entier(i16 &v);
    bool Long(i32 &v);
    bool Chaîne(QString &texte);
    bool LigneScore(TLigneScore &ligne, i16 &niveau);
    bool Paire(i16 &a, i16 &b);

private:
    // The next record, when its first `utiles` bytes are in the file.
    const unsigned char *Prochain(int utiles);
    bool Présents(const unsigned char *p, int utiles) const;
    QByteArray octets;
    qsizetype taille = 0;
    int nombre = 0;
    int suivant = 0;
};

// Writes a file whole to a temporary name and renames it over the old one.
bool EcritFichierEntier(const QString &chemin, const QByteArray &contenu);
// Reads a whole file; false when it can't be opened or is larger than any file of the game.
bool LitFichierEntier(const QString &chemin, QByteArray &contenu);
