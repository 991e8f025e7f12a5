#pragma once
// The commands of the menus and the three small ones that belong nowhere else.
class EcranPrincipal;

void RelieCommandes(EcranPrincipal &E);
void LanceRévision();
void AfficheAide();
void AfficheAPropos();
void Menuson_Click();

void LanceNouvellePartie();
