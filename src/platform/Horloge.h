#pragma once
// The clock in seconds since midnight and the random draw, replaceable in tests.
#include <functional>

// Seconds since midnight, with their fraction.
double Timer();
// nullptr-like empty function puts the system clock back.
void InstalleHorloge(std::function<double()> horloge);

// Next number of the generator, single precision, 0 <= Rnd < 1.
float Rnd();
// Seeds the generator; Randomize() seeds it from the clock.
void Randomize(double graine);
void Randomize();
// A script of draws for tests; an empty function puts the generator back.
void InstalleHasard(std::function<float()> hasard);
