#pragma once
// The main window fitted to the screen, and the map scrolled.
struct TRectangle { int Left = 0, Top = 0, Right = 0, Bottom = 0; };
// The window's size in twips as the fit computes it, and the screen's rectangle it fits in.
struct TFenêtreAjustée {
    short HauteurFenêtre = 0, LargeurFenêtre = 0;
    TRectangle RectangleEcran;
};
TFenêtreAjustée &FenêtreAjustée();
void AjusteCarte();
void AjusteEcran();
void MesureCarte();
void BarreH_Change();
void BarreV_Change();
