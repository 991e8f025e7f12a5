#pragma once
// The parameter set edited on the main screen: dots on the map for the cantons in
// play, a grid of step kinds by rank in the side panel.
#include "engine/communs.h"

void DéfinitParamétrage();
void RevoitParamétrage();
void ParamétrageDéfaut();
void RechargeParamétrage();
void AfficheParamétrage();
void CacheParamétrage();
void Bouton_Click(int k);
void BTN_Click(int i);
void ValideParamétrage();
void AnnuleParamétrage();

// The side panel as the step asks: the game's boxes, the parameterisation panel, or nothing.
void AffichePanneau();
