#pragma once
// The main window fitted to the screen, and the map scrolled.
extern short HauteurFenêtre, LargeurFenêtre;
struct TRectangle { int Left = 0, Top = 0, Right = 0, Bottom = 0; };
extern TRectangle RectangleEcran;
void AjusteCarte();
void AjusteEcran();
void MesureCarte();
void BarreH_Change();
void BarreV_Change();
