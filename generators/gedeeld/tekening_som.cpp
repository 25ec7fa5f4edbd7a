#include "generators/gedeeld/tekening_som.h"

#include "generators/gedeeld/telwoord.h"

#include <algorithm>
#include <iterator>

namespace cijferwerf {

namespace {

plakregel verteld(const std::vector<somregel>& getallen, std::string_view teken) {
    std::string zin = "Onder elkaar:";
    zin.reserve(100);
    for (const auto& [getal, inspringing] : getallen) {
        zin += ' ';
        std::ranges::copy_if(std::string_view(getal), std::back_inserter(zin), [](char c) { return c != ' '; });
        if (inspringing != 0)
            zin += plak_even({", ", telwoord(std::abs(inspringing)), inspringing > 0 ? " naar links" : " naar rechts"});
        zin += ';';
    }
    return plak_even({zin, " ", teken, "."});
}

} // namespace

int teken_kolomsom(drawing& on, int rechts, int boven, const std::vector<somregel>& getallen, std::string_view teken) {
    constexpr int past = 50; // how far the bar reaches past the digits
    const zelfde_stand bewaard(on);
    const verteld_als som(on, verteld(getallen, teken));
    const int digit = text_width("0", on.text_size), step = text_height(on.text_size);
    int left = rechts, right = rechts, y = boven;
    for (const auto& [getal, inspringing] : getallen) {
        const int end = rechts - inspringing * digit;
        on.print_right(end, y, getal);
        left = std::min(left, end - text_width(getal, on.text_size));
        right = std::max(right, end);
        y += step;
    }
    on.line_width = 2;
    on.line(left - past, y + 25, right + past, y + 25, on.fore_colour);
    on.print_at(right + 2 * past, y + 25 - halve_regel(on.text_size), teken);
    return y + 40;
}

} // namespace cijferwerf
