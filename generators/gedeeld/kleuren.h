// The colours as a pupil reads them: the word for each, and the letters that are legible on it.
// Which colours an exercise uses is its own; two that share a word never go together.
#pragma once

#include "runtime/palette.h"

#include <string_view>

namespace cijferwerf {

struct kleurwoord {
    std::string_view woord;       // "geel"
    std::string_view bijvoeglijk; // "gele"
};

// By palette index.
inline constexpr std::array<kleurwoord, aantal_kleuren> kleurwoorden{{{"zwart", "zwarte"},
                                                                      {"blauw", "blauwe"},
                                                                      {"groen", "groene"},
                                                                      {"blauwgroen", "blauwgroene"},
                                                                      {"rood", "rode"},
                                                                      {"paars", "paarse"},
                                                                      {"olijfgroen", "olijfgroene"},
                                                                      {"grijs", "grijze"},
                                                                      {"grijs", "grijze"},
                                                                      {"blauw", "blauwe"},
                                                                      {"groen", "groene"},
                                                                      {"lichtblauw", "lichtblauwe"},
                                                                      {"rood", "rode"},
                                                                      {"roze", "roze"},
                                                                      {"geel", "gele"},
                                                                      {"wit", "witte"}}};

constexpr std::string_view woord(kleur k) { return kleurwoorden[k].woord; }
constexpr std::string_view bijvoeglijk(kleur k) { return kleurwoorden[k].bijvoeglijk; }

// White or black, whichever stands out from this colour by a contrast of 4.5 or more.
constexpr kleur letterkleur(kleur ground) { return ground <= paars || ground == blauw ? wit : zwart; }

} // namespace cijferwerf
