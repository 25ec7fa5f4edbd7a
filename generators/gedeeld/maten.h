// The metric units, a ladder for each quantity, with exact conversion between two units of one quantity.
// Which units an exercise uses, and what is a sensible size, is the exercise's.
#pragma once

#include "generators/gedeeld/kommagetal.h"
#include "runtime/stop_run.h"

#include <array>
#include <string>
#include <string_view>

namespace cijferwerf {

enum class grootheid { lengte, oppervlakte, inhoud, gewicht };

struct eenheid {
    std::string_view naam, teken; // the sign as texts write it: "liter" stands in full beside "dL"
    int macht;                    // of ten, counted from mm, mm², mL and mg
    grootheid soort;

    friend constexpr bool operator==(const eenheid& a, const eenheid& b) { return a.teken == b.teken; }
};

// The ladders, from the largest unit down: neighbours are one step apart.
inline constexpr std::array<eenheid, 7> lengtematen{{{"kilometer", "km", 6, grootheid::lengte},
                                                     {"hectometer", "hm", 5, grootheid::lengte},
                                                     {"decameter", "dam", 4, grootheid::lengte},
                                                     {"meter", "m", 3, grootheid::lengte},
                                                     {"decimeter", "dm", 2, grootheid::lengte},
                                                     {"centimeter", "cm", 1, grootheid::lengte},
                                                     {"millimeter", "mm", 0, grootheid::lengte}}};
inline constexpr std::array<eenheid, 7> oppervlaktematen{{{"vierkante kilometer", "km²", 12, grootheid::oppervlakte},
                                                          {"vierkante hectometer", "hm²", 10, grootheid::oppervlakte},
                                                          {"vierkante decameter", "dam²", 8, grootheid::oppervlakte},
                                                          {"vierkante meter", "m²", 6, grootheid::oppervlakte},
                                                          {"vierkante decimeter", "dm²", 4, grootheid::oppervlakte},
                                                          {"vierkante centimeter", "cm²", 2, grootheid::oppervlakte},
                                                          {"vierkante millimeter", "mm²", 0, grootheid::oppervlakte}}};
// Areas too, beside the ladder.
inline constexpr std::array<eenheid, 2> landmaten{
    {{"hectare", "ha", 10, grootheid::oppervlakte}, {"are", "are", 8, grootheid::oppervlakte}}};
inline constexpr std::array<eenheid, 7> gewichtsmaten{{{"kilogram", "kg", 6, grootheid::gewicht},
                                                       {"hectogram", "hg", 5, grootheid::gewicht},
                                                       {"decagram", "dag", 4, grootheid::gewicht},
                                                       {"gram", "g", 3, grootheid::gewicht},
                                                       {"decigram", "dg", 2, grootheid::gewicht},
                                                       {"centigram", "cg", 1, grootheid::gewicht},
                                                       {"milligram", "mg", 0, grootheid::gewicht}}};
// Capacity and volume measure the same: a liter is a dm³.
inline constexpr std::array<eenheid, 7> inhoudsmaten{{{"kiloliter", "kL", 6, grootheid::inhoud},
                                                      {"hectoliter", "hL", 5, grootheid::inhoud},
                                                      {"decaliter", "daL", 4, grootheid::inhoud},
                                                      {"liter", "liter", 3, grootheid::inhoud},
                                                      {"deciliter", "dL", 2, grootheid::inhoud},
                                                      {"centiliter", "cL", 1, grootheid::inhoud},
                                                      {"milliliter", "mL", 0, grootheid::inhoud}}};
inline constexpr std::array<eenheid, 4> kubieke_maten{{{"kubieke meter", "m³", 6, grootheid::inhoud},
                                                       {"kubieke decimeter", "dm³", 3, grootheid::inhoud},
                                                       {"kubieke centimeter", "cm³", 0, grootheid::inhoud},
                                                       {"kubieke millimeter", "mm³", -3, grootheid::inhoud}}};

// The unit with this sign: maat("cm"). A sign that does not exist does not compile.
consteval eenheid maat(std::string_view teken) {
    eenheid gevonden{};
    const auto zoek_in = [&](const auto& ladder) {
        for (const eenheid& e : ladder)
            if (e.teken == teken) gevonden = e;
    };
    zoek_in(lengtematen);
    zoek_in(oppervlaktematen);
    zoek_in(landmaten);
    zoek_in(gewichtsmaten);
    zoek_in(inhoudsmaten);
    zoek_in(kubieke_maten);
    if (gevonden.teken.empty()) stop_run("no unit with this sign");
    return gevonden;
}

// One of the first is 10 to this power of the second: 2 for m and cm, -2 for cm and m.
constexpr int macht_tussen(const eenheid& van, const eenheid& naar) {
    if (van.soort != naar.soort) stop_run("units of two quantities");
    return van.macht - naar.macht;
}

// The number that stands before the new unit: omgerekend({25, 1}, maat("m"), maat("cm")) is 250.
constexpr kommagetal omgerekend(kommagetal getal, const eenheid& van, const eenheid& naar) {
    return getal.verschoven(macht_tussen(van, naar));
}
// What the number is multiplied by: 100 from m to cm, 0,01 from cm to m.
constexpr kommagetal factor(const eenheid& van, const eenheid& naar) { return omgerekend({1}, van, naar); }

// For a power of ten: "100 keer zo groot" for 2, "1.000 keer zo klein" for -3.
plakregel factor_tekst(int macht);

} // namespace cijferwerf
