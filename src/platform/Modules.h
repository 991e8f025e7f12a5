#pragma once
// The game's parts that stand in modules of their own, loaded when first needed, so that the
// start doesn't map their libraries: the sounds (Qt Multimedia), the site's page (Qt Network),
// the progress chart (Qt Charts).
#include <QFunctionPointer>
#include <QString>

// The function `entrée` of the module `nom`: installed, in the library folder beside bin/;
// in a build, beside the program or where the build put it. nullptr when it can't be loaded.
QFunctionPointer FonctionDuModule(const QString &nom, const char *entrée);
