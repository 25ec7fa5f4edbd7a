// The drawing commands of an explanation, as functions that write them.
// What a command draws is the explanation's; that there are at most seven is the exercise record's.
#pragma once

#include "generators/gedeeld/breuk.h"

#include <cmath>
#include <initializer_list>

namespace cijferwerf {

// Points as a command draws them: whole ones.
inline double opdracht_punten(double points) { return std::nearbyint(points); }

// Prints a line glued from texts and numbers with its top-left corner at (x, y). A number at its start keeps its blank.
template<line_part... Parts>
plakregel druk_opdracht(int x, int y, kleur in, double points, const Parts&... parts) {
    return plak_even(
        {"PRINT_", velden(x, y, int{in}, punt(afgerond(points, 2), 2)), "_", plak_even({regeldeel(parts)...})});
}

// The same with its middle, or its right end, at x, and without a blank at its start.
template<line_part... Parts>
plakregel druk_midden_opdracht(int midden, int y, kleur in, double points, const Parts&... parts) {
    const plakregel line = plak_even({regeldeel(parts)...});
    return druk_opdracht(midden - text_width(kaal(line), opdracht_punten(points)) / 2, y, in, points, kaal(line));
}
template<line_part... Parts>
plakregel druk_rechts_opdracht(int rechts, int y, kleur in, double points, const Parts&... parts) {
    const plakregel line = plak_even({regeldeel(parts)...});
    return druk_opdracht(rechts - text_width(kaal(line), opdracht_punten(points)), y, in, points, kaal(line));
}

// Several texts in one line and one command, each as near as blanks allow to its x; the first exactly there. From left
// to right; between two texts is at least one blank.
struct stuk_tekst {
    int x;
    plakregel text;
};
plakregel druk_opdracht(int y, kleur in, double points, std::initializer_list<stuk_tekst> stukken);

// A filled rectangle, the outline of one, and a line that runs level or upright. A width or height may be negative.
plakregel vak_opdracht(int x, int y, int breedte, int hoogte, kleur in, line_style style = line_style::solid);
plakregel kader_opdracht(int x, int y, int breedte, int hoogte, kleur in, line_style style = line_style::solid);
// One of dx and dy is 0.
plakregel streep_opdracht(int x, int y, int dx, int dy, kleur in, line_style style = line_style::solid);

// A white mixed number without its bar: the whole at (x, y), the fraction to its right.
plakregel breuk_opdracht(int x, int y, int geheel, int teller, int noemer);
inline plakregel breuk_opdracht(int x, int y, int geheel, breuk b) {
    return breuk_opdracht(x, y, geheel, b.teller, b.noemer);
}

// Spokes that cut a circle with radius 770 around (x, y) into n equal slices.
plakregel partjes_opdracht(int x, int y, int n);

// A red stroke, 300 long, from (x, y), and the number that takes the place of what it strikes, at (px, py).
plakregel doorstreep_opdracht(int x, int y, int px, int py, int getal);

} // namespace cijferwerf
