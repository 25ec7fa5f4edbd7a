// The subjects that exercises are about, and the colours by which a screen says which one it belongs to.
// Which list, menu card or screen belongs to which subject is left to the forms.
#pragma once

#include <array>
#include <cstdint>

namespace cijferwerf {

enum class subject : std::uint8_t {
    none, // a review, the start, the menus
    procenten,
    verhoudingen,
    breuken,
    grafieken,
    geld,
    tijd,
    meten,
    meetkunde,
    hoofdrekenen,
    schatten,
    getallen,
    cijferen,
};

// 0xRRGGBB: of the bar (white is read on it), of shapes (always outlined in dark), and of tiles (dark is read on it).
struct subject_colours {
    std::uint32_t dark, mid, tint;
};

inline constexpr std::array<subject_colours, 13> alle_onderwerpkleuren{{
    {0x1D4E9E, 0x7F9FD6, 0xE4EDFB},
    {0x254C96, 0x789EE3, 0xE8F1FF},
    {0x005C5C, 0x6DABAB, 0xE0F5F5},
    {0x792E6B, 0xC984BA, 0xFAEBF6},
    {0x005487, 0x6BA5D5, 0xE4F2FE},
    {0x6B4900, 0xB99963, 0xF8EFE0},
    {0x803703, 0xD08C68, 0xFDECE4},
    {0x4A5714, 0x98A66F, 0xEEF3E2},
    {0x175D45, 0x76AC94, 0xE3F5EC},
    {0x583797, 0xA48DE5, 0xF1EEFE},
    {0x00596E, 0x6DA9BC, 0xE1F4FA},
    {0x862846, 0xD88095, 0xFEEAEE},
    {0x455063, 0x949FB1, 0xECF0F7},
}};

constexpr const subject_colours& colours_of(subject about) {
    return alle_onderwerpkleuren[static_cast<std::size_t>(about)];
}

} // namespace cijferwerf
