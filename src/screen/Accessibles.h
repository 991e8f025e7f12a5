#pragma once
// The game for players who use a screen reader or the keyboard alone: every control
// named and described in the language in use, the question and each click's verdict
// announced, the menus' keyboard letters.
#include <QString>

class EcranPrincipal;
class QWidget;

// Names and describes the form and every control in it, in the language in use.
void HabilleAccessible(QWidget *forme);
// Once, for the main window: its controls under their names, the announcer, the menus'
// letters, and every window named and described when it shows or the language changes.
void InstalleAccessibilité(EcranPrincipal &E);
// Gives each entry of a menu bar or a menu its keyboard letter (see Mnémoniques); the letters
// show underlined from a press of Alt to the next click.
void PlaceMnémoniques(QWidget *menu);

// The menus' letters hidden until Alt: before the first window, which then needs no second polish.
void InstalleLettresCachées();

// Tells a screen reader, without showing anything.
void Annonce(const QString &texte);
// How the click was judged; the question it brings is announced with it.
void AnnonceVerdict(const QString &texte);
// The question just asked, as the panel shows it.
void AnnonceQuestion();
