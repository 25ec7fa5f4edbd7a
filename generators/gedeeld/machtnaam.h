// The names of powers: "in het kwadraat", "tot de derde" and so on.
// What a power amounts to, and how it is drawn, is left to others.
#pragma once

#include "runtime/number_text.h"
#include "runtime/stop_run.h"

#include <array>

namespace cijferwerf {

// Of the exponents 2 to 9; any other ends the run.
inline std::string_view machtnaam(int exponent) {
    static constexpr std::array<std::string_view, 8> namen{"in het kwadraat", "tot de derde",  "tot de vierde",
                                                           "tot de vijfde",   "tot de zesde",  "tot de zevende",
                                                           "tot de achtste",  "tot de negende"};
    if (exponent < 2 || exponent > 9) stop_run(regel("no name for exponent", exponent));
    return namen[static_cast<std::size_t>(exponent - 2)];
}

// The same with "macht" where that is Dutch: "tot de derde macht", but "in het kwadraat".
inline plakregel machtnaam_voluit(int exponent) {
    return plak_even({machtnaam(exponent), exponent == 2 ? "" : " macht"});
}

} // namespace cijferwerf
