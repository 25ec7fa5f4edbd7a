#include "generators/gedeeld/opdracht.h"

#include <algorithm>

namespace cijferwerf {

namespace {

plakregel line(int x, int y, int dx, int dy, kleur in, std::string_view kind, line_style style) {
    return plak_even({"LINE_", velden(x, y, dx, dy, int{in}, kind, static_cast<int>(style))});
}

} // namespace

plakregel druk_opdracht(int y, kleur in, double points, std::initializer_list<stuk_tekst> stukken) {
    const double size = opdracht_punten(points);
    const double blank = text_width(std::string(100, ' '), size) / 100.0;
    const int start = stukken.size() == 0 ? 0 : stukken.begin()->x;
    std::string text;
    for (const auto& [x, piece] : stukken) {
        const long room = std::lround((x - start - text_width(text, size)) / blank);
        if (!text.empty()) text.append(static_cast<std::size_t>(std::max(room, 1L)), ' ');
        text += kaal(piece);
    }
    return druk_opdracht(start, y, in, points, text);
}

plakregel vak_opdracht(int x, int y, int breedte, int hoogte, kleur in, line_style style) {
    return line(x, y, breedte, hoogte, in, "BF", style);
}

plakregel kader_opdracht(int x, int y, int breedte, int hoogte, kleur in, line_style style) {
    return line(x, y, breedte, hoogte, in, "B", style);
}

plakregel streep_opdracht(int x, int y, int dx, int dy, kleur in, line_style style) {
    return line(x, y, dx, dy, in, "B", style);
}

plakregel breuk_opdracht(int x, int y, int geheel, int teller, int noemer) {
    return plak_even({"BREUK1_", velden(x, y, geheel, teller, noemer)});
}

plakregel partjes_opdracht(int x, int y, int n) { return plak_even({"PARTJES_", velden(x, y, n), "_"}); }

plakregel doorstreep_opdracht(int x, int y, int px, int py, int getal) {
    return plak_even({"DOORSTREPEN_", velden(x, y, px, py, getal)});
}

} // namespace cijferwerf
