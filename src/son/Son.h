#pragma once
// The sounds' player. It lives in a module of its own, loaded at the first sound, so that the
// game's start doesn't map Qt Multimedia and the sound server's libraries; this header is all
// the game sees.
#include <QString>

// Plays the wave file without waiting, cutting the sound playing.
using JoueurSon = void (*)(const QString &chemin);
inline constexpr char EntréeSon[] = "kelmor_son";
