// What the fraction exercises share: drawing a fraction, its shortest text, all fractions of a kind. What a fraction is
// and how it is drawn upright, other families share too: that lies in gedeeld/.
#pragma once

#include "generators/gedeeld/breuk.h"
#include "runtime/random_draws.h"

#include <string>
#include <vector>

namespace cijferwerf {

// A fraction below 1 in its simplest form: its denominator from least (at least 2) to most, all numerators that it can
// have evenly.
breuk trek_breuk(random_draws& toeval, int least, int most);

// All fractions below 1 in their simplest form with a denominator up to this.
std::vector<breuk> breuken_onder_1(int grootste_noemer);

// "2 1/4", "3/4", "5": simplified, the wholes taken out.
inline plakregel kortste(breuk b) { return gemengd(b.vereenvoudigd()); }

} // namespace cijferwerf
