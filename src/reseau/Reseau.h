#pragma once
// The fetch of the site's page of games. It lives in a module of its own, loaded at the first
// look for new versions, so that the game's start doesn't map Qt Network; this header is all
// the game sees.
#include <QByteArray>
#include <QUrl>

// Fetches the page at `adresse`, waiting at most `délaiMs` with the player's input held back;
// true with its bytes in `octets`, false when it can't be had or runs past `maxOctets`.
using TéléchargeurPage = bool (*)(const QUrl &adresse, int délaiMs, qint64 maxOctets, QByteArray *octets);
inline constexpr char EntréeRéseau[] = "kelmor_reseau";
