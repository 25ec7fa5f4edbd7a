#include "generators/gedeeld/tekening_geld.h"

#include "runtime/stop_run.h"

#include <algorithm>
#include <array>

namespace cijferwerf {

namespace {

struct muntsoort {
    int cent;
    int middellijn; // tenths of a millimetre
    kleur rand, hart;
};
constexpr std::array<muntsoort, 8> munten{{{1, 163, donkerrood, donkerrood},
                                           {2, 188, donkerrood, donkerrood},
                                           {5, 213, donkerrood, donkerrood},
                                           {10, 198, geel, geel},
                                           {20, 223, geel, geel},
                                           {50, 243, geel, geel},
                                           {100, 233, geel, lichtgrijs},
                                           {200, 258, lichtgrijs, geel}}};

struct briefsoort {
    int euro;
    kleur tint;
};
constexpr std::array<briefsoort, 7> briefjes{
    {{5, grijs}, {10, rood}, {20, blauw}, {50, olijf}, {100, groen}, {200, geel}, {500, paars}}};

} // namespace

void teken_munt(drawing& on, point midden, int straal, int cent) {
    const auto* soort = std::ranges::find(munten, cent, &muntsoort::cent);
    if (soort == munten.end()) stop_run("no coin of " + std::to_string(cent) + " cents");
    const zelfde_stand bewaard(on);
    const int grootste = munten.back().middellijn;
    const int buiten = straal * (soort->middellijn + grootste) / (2 * grootste);
    const int binnen = buiten * (soort->rand == soort->hart ? 90 : 76) / 100;
    on.filled_circle(midden.x, midden.y, buiten, soort->rand);
    on.circle(midden.x, midden.y, buiten, zwart);
    on.filled_circle(midden.x, midden.y, binnen, soort->hart);
    on.circle(midden.x, midden.y, binnen, letterkleur(soort->rand));
    on.fore_colour = letterkleur(soort->hart);
    on.text_size = buiten / 26.0;
    druk_om(on, midden, cent < 100 ? plak_even({kaal(cent), " ct"}) : plak_even({"€", cent / 100}));
}

void teken_briefje(drawing& on, int links, int boven, int breedte, int euro) {
    const auto* soort = std::ranges::find(briefjes, euro, &briefsoort::euro);
    if (soort == briefjes.end()) stop_run("no note of " + std::to_string(euro) + " euros");
    const zelfde_stand bewaard(on);
    const int hoogte = breedte / 2, rand = breedte / 16;
    on.filled_box(links, boven, breedte, hoogte, soort->tint);
    on.box(links, boven, breedte, hoogte, zwart);
    on.fore_colour = letterkleur(soort->tint);
    on.box(links + rand, boven + rand, breedte - 2 * rand, hoogte - 2 * rand, on.fore_colour);
    on.text_size = breedte / 60.0;
    druk_om(on, {links + breedte / 2, boven + hoogte / 2}, plak_even({"€", euro}));
}

} // namespace cijferwerf
