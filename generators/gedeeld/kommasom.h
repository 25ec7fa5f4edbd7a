// A sum of four numbers with a comma, of which two pairs make whole numbers: its draw, its near misses, its
// explanation. Where it is shown, and for how long, is the exercise's.
#pragma once

#include "generators/gedeeld/keuze.h"
#include "runtime/picture_box.h"
#include "runtime/random_draws.h"

#include <array>
#include <string>
#include <vector>

namespace cijferwerf {

inline constexpr int tekenpatronen = 4; // - - -, + + +, - - +, - + -

struct kommasom {
    std::string opgave; // "12,8 - 4,8 - 2,3 - 1,7"
    int uitkomst = 0;
    std::vector<keuze<int>> vergissingen;
    std::array<std::string, 5> uitleg;
};

// In the board's type, with the question above it.
void teken_kommasom(drawing& on, std::string_view vraag, const kommasom& som);

// With the signs of this pattern, 1 to 4.
kommasom trek_kommasom(random_draws& toeval, int patroon);

} // namespace cijferwerf
