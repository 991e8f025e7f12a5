#pragma once
// The main window's load, its fit to the screen and the scrolling of the map.
#include "engine/Partie.h"

class EcranPrincipal;

void Form_Load();
void Form_Activate();
void ChargeEcranPrincipal();

// Screen fit and scrolling.
extern short HauteurFenêtre, LargeurFenêtre;
struct TRectangle { int Left = 0, Top = 0, Right = 0, Bottom = 0; };
extern TRectangle RectangleEcran;
void AjusteCarte();
void AjusteEcran();
void MesureCarte();
void BarreH_Change();
void BarreV_Change();
