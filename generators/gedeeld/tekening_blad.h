// Paper: a newspaper cutting, a letter, an advertisement, a panel; and four small advertisements two by two.
// The words on it are the exercise's.
#pragma once

#include "generators/gedeeld/tekening.h"

namespace cijferwerf {

// How the heading of a sheet looks: between two rules, over a rule, or white in a bar of colour. A panel has none.
enum class bladsoort : std::uint8_t { krant, brief, reclame, paneel };

// A white sheet with a heading and lines, in black at the drawing's text size (the heading a quarter larger); a
// newspaper's and an advertisement's lines are centred. The lines lie evenly from under the heading on, at most a
// line and a half apart. Returns the top of the first line.
int teken_blad(drawing& on, const vlak& waar, bladsoort soort, std::string_view kop,
               const std::vector<plakregel>& regels, kleur tint = donkerblauw);

// One of four advertisements that fill the picture two by two, 1 to 4 in reading order: centred lines in black, the
// first of them in a colour of its own, at the drawing's text size. A line has room for 2640. Returns its place.
vlak teken_advertentie(drawing& on, int nummer, const std::vector<plakregel>& regels);

} // namespace cijferwerf
