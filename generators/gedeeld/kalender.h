// The months and weekdays, and dates that a number of days can be added to.
// There is no leap year: februari has 28 days, and what else a year means is the exercise's.
#pragma once

#include "runtime/number_text.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace cijferwerf {

struct maand {
    std::string_view naam, kort; // kort: two letters, for a narrow label
    int dagen;
};

inline constexpr std::array<maand, 12> maanden{{{"januari", "ja", 31},
                                                {"februari", "fe", 28},
                                                {"maart", "ma", 31},
                                                {"april", "ap", 30},
                                                {"mei", "me", 31},
                                                {"juni", "ju", 30},
                                                {"juli", "ju", 31},
                                                {"augustus", "au", 31},
                                                {"september", "se", 30},
                                                {"oktober", "ok", 31},
                                                {"november", "no", 30},
                                                {"december", "de", 31}}};

// A week runs from zondag, so that the six that follow are a newspaper's or a school's, in order.
inline constexpr std::array<std::string_view, 7> weekdagen{"zondag",    "maandag", "dinsdag", "woensdag",
                                                           "donderdag", "vrijdag", "zaterdag"};

struct datum {
    int dag;
    int maandnummer; // 1 to 12

    constexpr const maand& in() const { return maanden.at(static_cast<std::size_t>(maandnummer - 1)); }
    // "3 maart".
    plakregel tekst() const { return plak_even({kaal(dag), " ", in().naam}); }

    friend constexpr bool operator==(datum, datum) = default;
};

// The date so many days later; after december comes januari.
constexpr datum operator+(datum d, int dagen) {
    for (d.dag += dagen; d.dag > d.in().dagen; d.maandnummer = d.maandnummer % 12 + 1) d.dag -= d.in().dagen;
    return d;
}

} // namespace cijferwerf
