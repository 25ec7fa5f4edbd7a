// Words, numbers, boxes and bars on the drawing of an example, with their size and colours in one call.
// Where they stand, and what they say, is the example's.
#pragma once

#include "generators/gedeeld/breuk.h"
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/tekening.h"

namespace cijferwerf {

// How a text is set: in points, in this colour.
struct schrift {
    double punten;
    kleur met;
};

// Where the middle of the drawing is, from its left.
inline constexpr int blad_midden = drawing::inner_width / 2;

// The text's top left, the middle of its left side, its middle or its top right is at the point; the first two return
// its right end.
int schrijf(drawing& on, schrift in, point linksboven, std::string_view tekst);
int schrijf_naast(drawing& on, schrift in, point links, std::string_view tekst);
void schrijf_midden(drawing& on, schrift in, point midden, std::string_view tekst);
void schrijf_rechts(drawing& on, schrift in, point rechtsboven, std::string_view tekst);

// A fraction set upright from its left end on, its bar at this height, or the whole number that it is; returns its
// right end.
int schrijf_breuk(drawing& on, schrift in, point links, breuk b);

// "€ 12,50" and "€ 5,-"; "4.000.000" and "0,25" (only whole numbers are large here).
std::string bedrag(int cent);
std::string getaltekst(kommagetal getal);

// A box with an edge, so many pixels wide.
void teken_vak(drawing& on, const vlak& waar, kleur vulling, kleur rand, int dikte = 2);

// A bar in equal pieces of which the first ones are coloured.
void teken_strook(drawing& on, const vlak& waar, breuk b);

// A jump along a line from one x to another, over so much height, with its words on top.
void teken_sprong(drawing& on, int van, int naar, int y, int hoogte, schrift in, std::string_view tekst);

} // namespace cijferwerf
