// The coins and notes: their names, and every amount that a given set of them can pay.
// Which of them an exercise deals out is its own affair.
#pragma once

#include "runtime/number_text.h"

#include <array>
#include <bitset>
#include <span>
#include <vector>

namespace cijferwerf {

// Their values in cents, the largest first.
inline constexpr std::array<int, 7> briefwaarden{50'000, 20'000, 10'000, 5'000, 2'000, 1'000, 500};
inline constexpr std::array<int, 8> muntwaarden{200, 100, 50, 20, 10, 5, 2, 1};

// "munt van 20 eurocent", "munten van € 2,-", "briefje van € 10,-": the plural from two on.
plakregel geldstuk(int cent, int aantal = 1);

// So many coins or notes of one value.
struct stapel {
    int cent;
    int aantal;

    friend constexpr bool operator==(stapel, stapel) = default;
};

// Amounts in cents, up to € 50.
using bedragen = std::bitset<5'001>;

// Every amount that can be paid exactly with some of these.
bedragen gepast_te_betalen(std::span<const stapel> geld);

// What to put down for this amount, with as few coins and notes as can be, the largest first; nothing when it cannot
// be paid exactly.
std::vector<stapel> betaling(std::span<const stapel> geld, int bedrag);

} // namespace cijferwerf
