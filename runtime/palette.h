// The sixteen colours in which everything of the program is drawn, by palette index.
// How a colour is used (which one says right, which ground a board has) is left to whoever draws.
#pragma once

#include <array>
#include <cstdint>

namespace cijferwerf {

enum kleur : std::uint8_t {
    zwart,
    donkerblauw,
    groen,
    cyaan,
    donkerrood,
    paars,
    olijf,
    lichtgrijs,
    grijs,
    blauw,
    lichtgroen,
    lichtcyaan,
    rood,
    roze,
    geel,
    wit,
};

inline constexpr int aantal_kleuren = 16;

// 0xRRGGBB of each palette index.
using kleurtabel = std::array<std::uint32_t, aantal_kleuren>;
inline constexpr kleurtabel kleur_rgb{0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
                                      0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

} // namespace cijferwerf
