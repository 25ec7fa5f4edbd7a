// An answer with what the pupil is told who picks it, as exercises list them in rows: {value, "line 1", "line 2"}.
// Which of them are offered, and where they stand, is the exercise's.
#pragma once

#include "runtime/number_text.h"

#include <array>
#include <string>
#include <string_view>

namespace cijferwerf {

// A line that stands in the program as it is, or one that was glued for the exercise under way.
class zin {
public:
    constexpr zin() = default;
    constexpr zin(const char* literal) : text_(literal) {}
    // The text must outlive the line, as the texts in a generator's tables do.
    constexpr zin(std::string_view vast) : text_(vast) {}
    constexpr zin(plakregel geplakt) : text_(geplakt) {}
    zin(const std::string& text) : zin(plak_even({text})) {}
    constexpr operator std::string_view() const { return text_; }

private:
    std::string_view text_;
};

using melding = std::array<zin, 6>; // lines; an empty one is not shown

template<class Waarde = zin>
struct keuze {
    Waarde waarde;
    cijferwerf::melding melding{};
};

} // namespace cijferwerf
