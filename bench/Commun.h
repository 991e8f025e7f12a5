#pragma once
// What every benchmark of the game needs first: the settings and whatever the game writes
// in a folder of the run's own, the shipped data read from the sources, boxes and sounds scripted.
void Prépare();
