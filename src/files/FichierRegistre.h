#pragma once
// The settings store's file as bytes: keys, their values, and the text they are kept in.
// The keys are kept in one UTF-8 text:
//
//     [HKEY_CURRENT_USER\Software\Globarium\Kelmor]
//     "version"="Version 6.07 du 30/07/2008"
//     "langue"=" 2"
//     @="the key's default value"
//
// A section with no values is a key that exists all the same. In quoted names and
// values \\ \" \n \r \t and \xHH stand for themselves. A line that can't be read
// is passed over, so a damaged file gives what it still holds.
#include "engine/Partie.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <map>
#include <vector>

// The roots, by the numbers that the desktop gives them; a handle on a root is its number.
constexpr i32 HKEY_CLASSES_ROOT = i32(0x80000000u);
constexpr i32 HKEY_CURRENT_USER = i32(0x80000001u);
constexpr i32 HKEY_LOCAL_MACHINE = i32(0x80000002u);
constexpr i32 HKEY_USERS = i32(0x80000003u);
constexpr i32 HKEY_PERFORMANCE_DATA = i32(0x80000004u);
constexpr i32 HKEY_CURRENT_CONFIG = i32(0x80000005u);

struct TRacine {
    const char *nom;
    i32 numéro;
};
inline constexpr TRacine Racines[] = {
    {"HKEY_CLASSES_ROOT", HKEY_CLASSES_ROOT},       {"HKEY_CURRENT_USER", HKEY_CURRENT_USER},
    {"HKEY_LOCAL_MACHINE", HKEY_LOCAL_MACHINE},     {"HKEY_USERS", HKEY_USERS},
    {"HKEY_PERFORMANCE_DATA", HKEY_PERFORMANCE_DATA}, {"HKEY_CURRENT_CONFIG", HKEY_CURRENT_CONFIG},
};

struct TValeurRegistre {
    QString nom; // empty for the key's default value
    QString texte;
};
struct TCléRegistre {
    QString chemin; // pieces as first written, the root in capitals
    std::vector<TValeurRegistre> valeurs;
};
// Keys by their path folded to one case, so that a key's subkeys follow it in name order.
using TArbreRegistre = std::map<QString, TCléRegistre>;

// A name as keys and values are found, whatever its case.
QString Plié(const QString &s);

// The path cut into pieces, the root named as the desktop writes it; flagged when
// it has more than 32 pieces or its root is unknown. Blanks around a path given to the
// store don't count. A section of the file keeps the blanks at its end: a key's name may
// end in one (a key "a" with a blank behind, made on the way to a deeper key).
struct TDécoupe {
    QStringList pièces;
    bool tropLong = false;
    bool racineInconnue = false;
};
TDécoupe DécoupeChemin(const QString &chemin, bool section = false);
// Key names of the desktop: at most 255 characters, no control character.
bool NomCléValide(const QString &nom);

// The six roots and nothing else.
TArbreRegistre ArbreVide();
TCléRegistre *TrouveClé(TArbreRegistre &arbre, const QString &cléPliée);
// Adds the key and every level above it; true when something was added.
bool AjouteClé(TArbreRegistre &arbre, const QStringList &pièces);
void PoseValeur(TCléRegistre &clé, const QString &nom, const QString &texte);
const TValeurRegistre *ChercheValeur(const TCléRegistre &clé, const QString &nom);

// The keys that the text holds; a line that can't be read is passed over, so a
// damaged file gives what it still holds.
TArbreRegistre LitOctetsRegistre(const QByteArray &octets);
// The text of the keys, the roots left out unless they hold values.
QByteArray OctetsRegistre(const TArbreRegistre &arbre);
