// Circles with 3,14 for pi, exactly: nothing is rounded before an exercise writes its answer.
// Units, and the number of decimals that are shown, are the exercise's.
#pragma once

#include "generators/gedeeld/kommagetal.h"

namespace cijferwerf {

inline constexpr kommagetal pi{314, 2};

// Of a circle with this radius; for a diameter of 7 the radius is {35, 1}.
constexpr kommagetal cirkelomtrek(kommagetal straal) { return pi * straal * 2; }
constexpr kommagetal cirkeloppervlakte(kommagetal straal) { return pi * straal * straal; }

} // namespace cijferwerf
