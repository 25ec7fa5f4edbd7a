// The keys of the calculator by index: what stands on each, which keys of the keyboard press it, and what is spoken.
// Where they stand is the screen's that carries the calculator.
#pragma once

#include "calculator/calculator.h"

#include <string_view>

namespace cijferwerf {

struct rekentoets {
    std::string_view face, keys, spoken; // spoken: where the face does not say enough
};
inline constexpr rekentoets rekentoetsen[calculator::keys]{
    {"0", "0", ""},
    {"1", "1", ""},
    {"2", "2", ""},
    {"3", "3", ""},
    {"4", "4", ""},
    {"5", "5", ""},
    {"6", "6", ""},
    {"7", "7", ""},
    {"8", "8", ""},
    {"9", "9", ""},
    {",", ",.", "komma"},
    {"C", "C\x1b", "wis invoer"},
    {"AC", "\x7f", "wis alles"},
    {"+", "+", "plus"},
    {"-", "-", "min"},
    {"x", "*X", "keer"},
    {"/", "/:", "gedeeld door"},
    {"M+", "M", "in geheugen optellen"},
    {"MR", "R", "geheugen"},
    {"%", "%", "procent"},
    {"=", "=\r", "is"},
};

// The digits and the comma, and not what works on them.
constexpr bool is_cijfertoets(int key) { return key <= 10; }

} // namespace cijferwerf
