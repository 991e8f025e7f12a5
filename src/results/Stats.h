#pragma once
// The table of what each canton cost in the game just played, and its text file.
#include "engine/communs.h"
#include "platform/Controles.h"
#include "results/Scores.h"
#include "services/Historique.h"

#include <QByteArray>
#include <QColor>
#include <QDialog>
#include <array>

class QPushButton;


class Stats : public QDialog {
public:
    Stats();

    Etiquette *Baratin;
    Etiquette *EntêtePays, *EntêteCapitales, *EntêteDrapeaux, *EntêtePlaques;
    // Rows 1..26 of the table; only the rows that fit above the form's foot are shown.
    std::array<Etiquette *, NombrePlaces + 1> NomPays{};
    std::array<Etiquette *, NombrePlaces + 1> PertePays{};
    std::array<Etiquette *, NombrePlaces + 1> PerteCapitales{};
    std::array<Etiquette *, NombrePlaces + 1> PerteDrapeaux{};
    std::array<Etiquette *, NombrePlaces + 1> PertePlaques{};
    BarreDéfilement *BarreVerticale;
    BoutonGraphique *BoutonSauvegarde;
    BoutonGraphique *Command1;
    QPushButton *BoutonRejouer; // replays this game's errors

    // Fills the rows from rank Décalage + 1 on.
    void RemplitStats(i16 Décalage);
    void BoutonSauvegarde_Click();
    void Command1_Click();

protected:
    void wheelEvent(QWheelEvent *e) override;
};

// Fills TriPertes: decreasing total losses, equal ones in the order of the cantons' numbers.
void TriePertes();
// Red when step kind k is played in this game, else the neutral colour.
QColor CouleurAbsence(i16 k);
// A cell's background: green for a kind found at the first try, neutral for one found after
// errors or a canton left out, else the colour of its absence (CouleurAbsence).
QColor CouleurCase(bool Réussi, i32 Pertes, bool Inhibé, const QColor &absence);
// The neutral background of a cell, the system's colour of scroll bars.
QColor CouleurNeutre();
constexpr QColor CouleurTrouvé(0, 255, 0);
constexpr QColor CouleurAbsent(255, 0, 0);

// The bytes of KELM_STA.TXT for the game in memory, in the order of TriPertes.
QByteArray ContenuStats();

// What the game in memory missed: the cantons that cost points in a kind of question, and
// those kinds in the order the game played them.
TRejeu ErreursDeLaPartie(const Partie &P);

// Shows the form Stats modally; true when the player asked to replay the errors (the forms
// behind then close too, and the replay starts).
bool MontreStats();
