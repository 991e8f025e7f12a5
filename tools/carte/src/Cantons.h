#pragma once
// The game's canton table as far as the map needs it: the positions of the
// pictures and of the chief-town dots are the game's own and fixed; the map
// is fitted to them. Also what we know of the real chief towns.
#include <QPointF>
#include <QRect>
#include <QSize>
#include <QString>
#include <array>

struct FicheCanton {
    int numéro;         // the game's number, 1..26 (order of the French names)
    int fédéral;        // the federal statistics number used by the boundary data
    const char *sigle;
    const char *nomFr;
    const char *nomDe;
    int paysGauche, paysHaut; // top-left of Pays(i) and inv(i) on the map
    int largeur, hauteur;     // size of Pays(i)
    int largeurInv;           // width of inv(i): the same but for canton 1
    int villeGauche, villeHaut; // top-left of the chief-town dot
    QPointF villeLv95;          // the chief town's real position, LV95 metres

    QRect rectPays() const { return {paysGauche, paysHaut, largeur, hauteur}; }
    QRect rectInv() const { return {paysGauche, paysHaut, largeurInv, hauteur}; }
    // The dot is 7 x 8 pixels: its middle.
    QPoint milieuVille() const { return {villeGauche + 3, villeHaut + 4}; }
};

constexpr int NombreCantons = 26;
constexpr int LargeurCarte = 652;
constexpr int HauteurCarte = 456;

// Index 0 is canton 1.
const std::array<FicheCanton, NombreCantons> &Cantons();
const FicheCanton &Canton(int numéro);

// Our number for a federal canton number, 0 if unknown.
int NuméroDuFédéral(int fédéral);

// The three cantons too large for the question box have a reduction.
struct Miniature {
    int numéro;
    QSize taille;
};
constexpr std::array<Miniature, 3> Miniatures{{{6, {174, 184}}, {10, {196, 140}}, {23, {196, 130}}}};
