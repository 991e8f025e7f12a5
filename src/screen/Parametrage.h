#pragma once
// The parameter set edited on the main screen: dots on the map for the cantons in
// play, a grid of step kinds by rank in the side panel.
#include "engine/communs.h"
#include "services/Langues.h"

#include <array>
#include <optional>

void DéfinitParamétrage();
void RevoitParamétrage();
void ParamétrageDéfaut();
void RechargeParamétrage();
void AfficheParamétrage();
void CacheParamétrage();
void Bouton_Click(int k);
// The grid as kinds by rank: the kind (1..4) ticked at rank 1..4, 0 for an empty rank.
using TGrille = std::array<int, 4>;
struct TClicGrille {
    TGrille Grille;
    std::optional<TMessage> Refus; // the message that sent the box back, if any
};
// The rules of the grid for the box of rank `rang` and kind `genre` just ticked or cleared,
// with every box they write setting them off again for that box, as the panel's boxes do.
TClicGrille RègleGrille(const TGrille &avant, int rang, int genre, bool coché);
void BTN_Click(int i);
void ValideParamétrage();
void AnnuleParamétrage();

// The side panel as the step asks: the game's boxes, the parameterisation panel, or nothing.
void AffichePanneau();
