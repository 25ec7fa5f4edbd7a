// Coins and notes of the euro, each with its value as one text on it.
// How many there are, and in what order, is the exercise's.
#pragma once

#include "generators/gedeeld/tekening.h"

namespace cijferwerf {

// A coin of 1, 2, 5, 10, 20, 50, 100 or 200 cents (any other ends the run), with "5 ct" or "€ 2" on it. The radius is
// that of the largest coin; the others are drawn half as much smaller as they really are. From 280 on they read well.
void teken_munt(drawing& on, point midden, int straal, int cent);

// A note of 5, 10, 20, 50, 100, 200 or 500 euros (any other ends the run), half as high as it is wide, with "€ 5" on
// it.
void teken_briefje(drawing& on, int links, int boven, int breedte, int euro);

} // namespace cijferwerf
