#pragma once
// The small floating grid of 40 colours for the dots of the chief towns.
#include "platform/Controles.h"

#include <QDialog>
#include <array>

class Palette : public QDialog {
public:
    explicit Palette(short repère);
    const short RepèreChoisi; // 1 the dot of a town to find, 2 of a town found
    Image *BoutonFermeture;
    std::array<Image *, 41> ChoixCouleur{}; // 1..40

    void ChoixCouleur_Click(int k);
    void BoutonFermeture_Click();
};

// The dot of colour k of the grid, 7 × 8, at the screen's pixel ratio.
QPixmap RondDeCouleur(int k);
// The French name of colour k, its tool tip in every language.
QString NomCouleur(int k);

// The grid for the dots of the towns to find (1) or of the towns found (2).
void OuvrePalette(short repère);
void MenuCouleurCapitalesATrouver_Click();
void MenuCouleurCapitalesTrouvées_Click();
