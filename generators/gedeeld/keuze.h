// An answer with what the pupil is told who picks it, as exercises list them in rows: {value, "line 1", "line 2"}.
// Which of them are offered, and where they stand, is the exercise's.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace cijferwerf {

// A line that was glued for this exercise, or one that stands in the program as it is (and then is not copied).
class zin {
public:
    zin() = default;
    zin(const char* literal) : vast_(literal) {}
    // The text must outlive the line, as the texts in a generator's tables do.
    zin(std::string_view vast) : vast_(vast) {}
    zin(std::string geplakt) : geplakt_(std::move(geplakt)) {}
    operator std::string_view() const { return geplakt_.empty() ? vast_ : std::string_view(geplakt_); }

private:
    std::string geplakt_;
    std::string_view vast_;
};

using melding = std::array<zin, 6>; // lines; an empty one is not shown

template<class Waarde = zin>
struct keuze {
    Waarde waarde;
    cijferwerf::melding melding{};
};

} // namespace cijferwerf
