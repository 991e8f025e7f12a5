#pragma once
// The program's start: the main window made, loaded and wired to what its controls do.
class EcranPrincipal;

// The window becomes the game's screen; closing it asks first.
void RelieEcranPrincipal(EcranPrincipal &E);
// False keeps the window open.
bool Form_Unload();
// The program's start; false when it must end at once.
bool Main();
// The main window becomes the game's screen, or stops being it.
void InstalleVueEcran(bool installée);
