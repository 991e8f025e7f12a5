#pragma once
// The store of named text values under keys, in the place of the desktop's
// registry. A key is named by one path, "HKEY_CURRENT_USER\Software\Globarium\Kelmor":
// blanks around the path don't count, nor do empty pieces; at most 32 pieces, the
// first naming one of the six roots, whatever its case. Key and value names are
// found without regard to case and kept as first written.
//
// Every operation answers 0 (done), −1 (the key can't be opened or created, the
// path is too long or its root unknown) or −2 (the key is there but the value
// can't be read or written; for CréeClé, a root other than HKEY_CURRENT_USER).
//
// The keys live in one UTF-8 file of the user's configuration folder, rewritten
// whole through a temporary file at every change:
//
//     [HKEY_CURRENT_USER\Software\Globarium\Kelmor]
//     "version"="Version 6.07 du 30/07/2008"
//     "langue"=" 2"
//     @="the key's default value"
//
// A section with no values is a key that exists all the same. In quoted names and
// values \\ \" \n \r \t and \xHH stand for themselves. A line that can't be read
// is passed over, so a damaged file gives what it still holds.
#include "engine/communs.h"

#include <QString>

// The roots, by the numbers that the desktop gives them; a handle on a root is its number.
constexpr i32 HKEY_CLASSES_ROOT = i32(0x80000000u);
constexpr i32 HKEY_CURRENT_USER = i32(0x80000001u);
constexpr i32 HKEY_LOCAL_MACHINE = i32(0x80000002u);
constexpr i32 HKEY_USERS = i32(0x80000003u);
constexpr i32 HKEY_PERFORMANCE_DATA = i32(0x80000004u);
constexpr i32 HKEY_CURRENT_CONFIG = i32(0x80000005u);

// The longest value that a read gives back: the shared buffer has 256 bytes.
constexpr int LongueurMaxValeur = 255;

// A handle on the key, or −1.
i32 OuvreClé(const QString &chemin);
// 0, or −1 for a handle that isn't open.
i32 FermeClé(i32 clé);
// On 0 texte holds the value; on −1 or −2 it is left as it was. The name is trimmed.
i32 LitValeur(const QString &chemin, const QString &nom, QString &texte);
i32 EcritValeur(const QString &chemin, const QString &nom, const QString &texte);
// Creates the key and every level above it, under HKEY_CURRENT_USER only.
i32 CréeClé(const QString &chemin);

// The enumeration's answers, with the desktop's numbers.
constexpr i32 ErreurClé = 6;           // the handle isn't open
constexpr i32 FinSousClés = 259;       // no subkey at that index
// The name of the subkey of rang index (from 0, by name) of an open key: 0, or one of the above.
i32 EnumèreSousClés(i32 clé, i32 index, QString &nom);

// The file behind the store; an empty path puts back the user's own
// (…/kelmor/registre.ini in the configuration folder). Open handles are dropped.
void InstalleFichierRegistre(const QString &chemin);
QString FichierRegistre();
// False when the file behind the store is there but couldn't be read whole (too large,
// or refused): nothing is then written over it.
bool RegistreLisible();
// Takes away, beside the store's file, the temporary copies that an interrupted write left.
void NettoieRegistre();
