#pragma once
// The commands of the menus and the three small ones that belong nowhere else.
#include "services/Historique.h"

#include <vector>

class EcranPrincipal;

void RelieCommandes(EcranPrincipal &E);
void LanceRévision();
void AfficheAide();
void AfficheAPropos();
void Menuson_Click();

void LanceNouvellePartie();
// A game of those kinds of question on those cantons alone, as a parameter set never saved,
// so that its scores stay apart from the full game's.
void RejoueErreurs(const TRejeu &rejeu);
