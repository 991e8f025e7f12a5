#pragma once
// The main window in the language in use: its captions, its name pictures, and the
// change of language at any moment, in a game too.

void ChargeImagesPays();
void EtiquetteEcran();
void ChangeLangue(int n);
