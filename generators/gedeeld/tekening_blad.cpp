#include "generators/gedeeld/tekening_blad.h"

#include "runtime/stop_run.h"

#include <algorithm>

namespace cijferwerf {

namespace {

constexpr int marge = 110;

void sheet(drawing& on, const vlak& waar) {
    on.filled_box(waar.links, waar.boven, waar.breedte, waar.hoogte, wit);
    on.box(waar.links, waar.boven, waar.breedte, waar.hoogte, zwart);
}

} // namespace

int teken_blad(drawing& on, const vlak& waar, bladsoort soort, std::string_view kop,
               const std::vector<plakregel>& regels, kleur tint) {
    const zelfde_stand bewaard(on);
    const double size = on.text_size;
    on.filled_box(waar.links + 45, waar.boven + 45, waar.breedte, waar.hoogte, grijs); // its shadow
    sheet(on, waar);
    int y = waar.boven + 50;
    if (soort != bladsoort::paneel) {
        on.text_size = size * 1.25;
        const int high = text_height(on.text_size) + 40, middle = waar.boven + 40 + high / 2;
        const bool bar = soort == bladsoort::reclame, letter = soort == bladsoort::brief;
        if (bar) on.filled_box(waar.links, waar.boven, waar.breedte, high + 60, tint);
        on.fore_colour = bar ? letterkleur(tint) : tint;
        if (letter)
            on.print_at(waar.links + marge, middle - halve_regel(on.text_size), kop);
        else
            druk_om(on, {waar.midden().x, middle - (bar ? 10 : 0)}, kop);
        const auto rule = [&](int at, int width) {
            const zelfde_stand rule_width(on, width);
            on.line(waar.links + marge, at, waar.rechts() - marge, at, tint);
        };
        if (soort == bladsoort::krant) rule(waar.boven + 40, 3);
        if (!bar) rule(waar.boven + 40 + high, 1);
        y = waar.boven + high + 80;
    }
    on.text_size = size;
    on.fore_colour = zwart;
    const int room = waar.onder() - 40 - y, count = std::max(static_cast<int>(regels.size()), 1);
    const int step = std::min(room / count, text_height(size) * 3 / 2);
    const int first = y + (step - text_height(size)) / 2;
    for (int i = 0; const plakregel& line : regels) {
        const int top = first + step * i++;
        if (soort == bladsoort::krant || soort == bladsoort::reclame)
            on.print_centred(waar.midden().x, top, line);
        else
            on.print_at(waar.links + marge, top, line);
    }
    return first;
}

vlak teken_advertentie(drawing& on, int nummer, const std::vector<plakregel>& regels) {
    if (nummer < 1 || nummer > 4) stop_run("no advertisement " + std::to_string(nummer));
    const zelfde_stand bewaard(on);
    constexpr int rand = 12;
    const int width = drawing::inner_width / 2, height = drawing::inner_height / 2;
    const vlak waar{(nummer - 1) % 2 * width + rand, (nummer - 1) / 2 * height + rand, width - 2 * rand,
                    height - 2 * rand};
    sheet(on, waar);
    const int step = std::min((waar.hoogte - 60) / static_cast<int>(regels.size()), text_height(on.text_size) * 3 / 2);
    int middle = waar.midden().y - step * (static_cast<int>(regels.size()) - 1) / 2;
    on.fore_colour = donkerrood;
    for (const plakregel& line : regels) {
        druk_om(on, {waar.midden().x, middle}, line);
        on.fore_colour = zwart;
        middle += step;
    }
    return waar;
}

} // namespace cijferwerf
