// A time of day in whole minutes, with its texts and the part of the day.
// Lengths of time are plain numbers of minutes, and their wording is the exercise's.
#pragma once

#include "runtime/number_text.h"

#include <compare>
#include <string>
#include <string_view>

namespace cijferwerf {

struct kloktijd {
    int minuten = 0; // since midnight; past 24:00 it counts on, so that an exercise can see that a day ended

    constexpr int uur() const { return (minuten % dag + dag) % dag / 60; }
    constexpr int minuut() const { return (minuten % 60 + 60) % 60; }
    // "9:05", "14:30".
    plakregel cijfers() const { return plak_even({kaal(uur()), minuut() < 10 ? ":0" : ":", kaal(minuut())}); }
    // "9:05 uur".
    plakregel tekst() const { return plak_even({cijfers(), " uur"}); }

    constexpr std::string_view dagdeel() const {
        return uur() < 6 ? "'s nachts" : uur() < 12 ? "'s morgens" : uur() < 18 ? "'s middags" : "'s avonds";
    }
    // As a dial shows it, for a text that names the part of the day: 14:30 is 2:30.
    constexpr kloktijd op_wijzerplaat() const { return {(uur() + 11) % 12 * 60 + 60 + minuut()}; }

    friend constexpr auto operator<=>(kloktijd, kloktijd) = default;

    static constexpr int dag = 24 * 60;
};

constexpr kloktijd om(int uur, int minuut = 0) { return {uur * 60 + minuut}; }
constexpr kloktijd operator+(kloktijd t, int minuten) { return {t.minuten + minuten}; }
constexpr kloktijd operator-(kloktijd t, int minuten) { return {t.minuten - minuten}; }
// The minutes from the second to the first.
constexpr int operator-(kloktijd later, kloktijd eerder) { return later.minuten - eerder.minuten; }

inline constexpr kloktijd middernacht = om(24);

} // namespace cijferwerf
