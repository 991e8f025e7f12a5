#pragma once
// The main window fitted to the screen, and the map scrolled.
struct TRectangle { int Left = 0, Top = 0, Right = 0, Bottom = 0; };
// The window's size in twips as the fit computes it, and the screen's rectangle it fits in.
struct TFenêtreAjustée {
    short HauteurFenêtre = 0, LargeurFenêtre = 0;
    TRectangle RectangleEcran;
};
TFenêtreAjustée &FenêtreAjustée();
// What the fit decides for the map window: its size, and the bars it needs with their ranges
// and steps (the vertical bar's small step is its large one).
struct TCarteAjustée {
    int Largeur = 0, Hauteur = 0;
    bool BarreH = false, BarreV = false;
    int MaxH = 0, GrandPasH = 0, PetitPasH = 0, MaxV = 0, GrandPasV = 0;
};
// The map window fitted to the width and height it may take, for a map of W × H pixels and
// bars of the thickness given.
TCarteAjustée AjustementCarte(int largeur, int hauteur, int W, int H, int épaisseurH, int épaisseurV);
void AjusteCarte();
void AjusteEcran();
void MesureCarte();
void BarreH_Change();
void BarreV_Change();
