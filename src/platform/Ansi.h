#pragma once
// Text in files is single-byte Windows-1252, as the game's files always were.
#include <QByteArray>
#include <QString>

QByteArray VersAnsi(const QString &texte);   // a character without a code becomes '?'
QString DepuisAnsi(const QByteArray &octets);
QString DepuisAnsi(const char *octets, int longueur);
