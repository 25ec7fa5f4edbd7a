// A sum of two mixed numbers: all pairs of fractions of a kind, and how a sum is drawn on the board. Which kind an
// exercise wants, what wholes it puts before them and what is asked is the exercise's.
#pragma once

#include "generators/breuken/breuken.h"

#include <algorithm>

namespace cijferwerf {

// Two fractions below 1, each in its simplest form, and the wholes before them.
struct breuksom {
    breuk links, rechts;
    int helen_links = 0, helen_rechts = 0;

    breuk eerste() const { return gemengd_getal(helen_links, links.teller, links.noemer); }
    breuk tweede() const { return gemengd_getal(helen_rechts, rechts.teller, rechts.noemer); }
    int gelijke_noemer() const { return std::lcm(links.noemer, rechts.noemer); }
    bool noemers_passen() const { return gelijke_noemer() == std::max(links.noemer, rechts.noemer); }
};

// All sums that fit, without wholes.
template<class Fits>
std::vector<breuksom> alle_sommen(int grootste_noemer, Fits past) {
    std::vector<breuksom> all;
    const std::vector<breuk> breuken = breuken_onder_1(grootste_noemer);
    for (const breuk links : breuken)
        for (const breuk rechts : breuken)
            if (const breuksom s{links, rechts}; past(s)) all.push_back(s);
    return all;
}

// The sum on the picture, its bars at y; the dots stand for what is asked.
void teken_som(drawing& on, int x, int y, const breuksom& s, std::string_view teken, std::string_view stippels);

} // namespace cijferwerf
