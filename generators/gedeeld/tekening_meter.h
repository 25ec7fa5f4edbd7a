// Meters: counters with a window for each digit, dials with a needle, an alarm clock.
// What they measure, and the words around them, are the exercise's.
#pragma once

#include "generators/gedeeld/tekening.h"

namespace cijferwerf {

// "1  2  3": the digits of a number joined by two blanks, so that each stands in a column of its own. A comma or point
// takes the place of the first blank: "1, 5". At 12 points the columns are 240 apart, at 15 points 300.
std::string cijfers_wijd(std::string_view getal);

// A counter: a window for each digit, those behind the comma on red. The digits are one text, set wide as above, at the
// drawing's text size. The frame's top-left corner is at (x, y).
void teken_teller(drawing& on, int x, int y, std::string_view getal);
// Its size at so many points, for who lays out around it.
int teller_breedte(std::string_view getal, double points);
constexpr int teller_hoogte(double points) { return static_cast<int>(points * 20 * 1.5 + 0.5); }

// The scale of a dial, from 0 on: a short and a long mark per so many units, and a number per so many (0: none). It
// runs clockwise from an angle over so many degrees: 225 over 270 for a round dial, 180 over 180 for half a one.
struct wijzerschaal {
    int tot = 0, kort = 0, lang = 0, getal = 0;
    double vanaf = 225, boog = 270;
};

// A dial with marks to this radius, the numbers outside it (leave room for them), the needle at a value, and an
// inscription below the needle's axis.
void teken_wijzerplaat(drawing& on, point midden, int straal, const wijzerschaal& langs, int waarde,
                       std::string_view opschrift = "");

// An alarm clock with hands, at a time of day in minutes since midnight. Its bells rise a quarter of the radius above
// the face, its feet stand a sixth below.
void teken_klok(drawing& on, point midden, int straal, int minuten);

} // namespace cijferwerf
