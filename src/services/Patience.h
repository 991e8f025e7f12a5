#pragma once
// The small form that stands on the screen while the main window loads.
void AffichePatience();
void FermePatience();
