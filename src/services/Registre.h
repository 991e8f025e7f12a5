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
// The keys live in one file of the user's configuration folder (its text: see
// files/FichierRegistre.h), rewritten whole through a temporary file at every change.
#include "files/FichierRegistre.h"

#include <QString>

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
