#include "generators/breuken/sommen.h"

namespace cijferwerf {

void teken_som(drawing& on, int x, int y, const breuksom& s, std::string_view teken, std::string_view stippels) {
    const int top = y - text_height(on.text_size) / 2;
    const auto print = [&](std::string_view text) {
        on.print_at(x + 110, top, text);
        x = on.x() + 110;
    };
    x = teken_breuk(on, x, y, s.helen_links, s.links.teller, s.links.noemer);
    print(teken);
    x = teken_breuk(on, x, y, s.helen_rechts, s.rechts.teller, s.rechts.noemer);
    print("=");
    on.print_at(x, top, stippels);
}

} // namespace cijferwerf
