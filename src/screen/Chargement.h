#pragma once
// The main window's load, its fit to the screen and the scrolling of the map.
#include "engine/Partie.h"

class EcranPrincipal;

// The window's controls wired to what they do; the window becomes the game's screen.
void RelieEcranPrincipal(EcranPrincipal &E);

void Form_Load();
void Form_Activate();
// False keeps the window open.
bool Form_Unload();
void ChargeEcranPrincipal();

// Screen fit and scrolling.
// The size of the question's picture frame, read at load before a question changes it.
extern i16 HauteurVignette, LargeurVignette;
extern short HauteurFenêtre, LargeurFenêtre;
struct TRectangle { int Left = 0, Top = 0, Right = 0, Bottom = 0; };
extern TRectangle RectangleEcran;
void AjusteCarte();
void AjusteEcran();
void MesureCarte();
void BarreH_Change();
void BarreV_Change();
