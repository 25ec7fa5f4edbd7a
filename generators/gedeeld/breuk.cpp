#include "generators/gedeeld/breuk.h"

#include "generators/gedeeld/tekening.h"

#include <algorithm>

namespace cijferwerf {

int teken_breuk(drawing& on, int x, int y, std::string_view geheel, std::string_view teller, std::string_view noemer) {
    const verteld_als breuk(on, geheel, noemer.empty() ? "" : " ", teller, noemer.empty() ? "" : "/", noemer);
    const double points = on.text_size;
    const int line_height = text_height(points);
    const auto width_of = [&](std::string_view text) { return text_width(text, points); };
    if (!geheel.empty()) {
        on.print_at(x, y - line_height / 2, geheel);
        x += width_of(geheel) + 60;
    }
    if (noemer.empty()) return x;
    const int bar = std::max(width_of(teller), width_of(noemer)) + 60;
    on.print_centred(x + bar / 2, y - line_height + 5, teller);
    on.print_centred(x + bar / 2, y + 20, noemer);
    on.line(x, y, x + bar, y, on.fore_colour);
    return x + bar;
}

int teken_breuk(drawing& on, int x, int y, int geheel, int teller, int noemer) {
    const number_text whole = geheel == 0 ? number_text() : kaal(geheel);
    if (noemer == 0) return teken_breuk(on, x, y, whole, {}, {});
    return teken_breuk(on, x, y, whole, kaal(teller), kaal(noemer));
}

} // namespace cijferwerf
