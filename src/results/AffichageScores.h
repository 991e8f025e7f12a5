#pragma once
// The form that shows one level's ten best scores, and the way to the statistics.
#include "engine/communs.h"
#include "platform/Controles.h"

#include <QDialog>
#include <array>
#include <span>

class AffichageScores : public QDialog {
public:
    // Loading the form fills it for NiveauAffiché (asking first when no level is chosen).
    AffichageScores();

    // The level's title; the class of labels is ::Etiquette inside this form.
    ::Etiquette *Etiquette;
    std::array<::Etiquette *, 11> nomjoueur{};   // 1..10
    std::array<::Etiquette *, 11> valeurscore{}; // 1..10
    std::array<::Etiquette *, 11> valeurdurée{}; // 1..10
    BoutonGraphique *Command1;
    BoutonGraphique *BoutonStatistiques;

    void Command1_Click();
    void BoutonStatistiques_Click();

protected:
    void keyPressEvent(QKeyEvent *e) override;
};

// Sets NiveauAffiché and shows the form modally.
void AfficheMeilleursScores(TNiveau niveau);
// Shows the form modally for NiveauAffiché, as at the end of a game.
void MontreAffichageScores();
// The place (1 = best) that a score of `points` made in `durée` seconds takes in a level's list,
// best first: before the first line it beats in points, or equals in a shorter time; one
// behind the last line when it beats none.
int RangScore(std::span<const TLigneScore> lignes, i32 points, i32 durée);
// 3725 → "1h02mn05s", 125 → "2mn05s", 42 → "42s".
QString FormatDurée(i32 Durée);
