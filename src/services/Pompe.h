#pragma once
// The card of canton CantonFiche, shown modally.
void MontrePompe();
