// An answer with what the pupil is told who picks it, as exercises list them in rows: {value, "line 1", "line 2"}.
// Which of them are offered, and where they stand, is the exercise's.
#pragma once

#include "runtime/number_text.h"

#include <array>

namespace cijferwerf {

using melding = std::array<plakregel, 4>; // lines; an empty one is not shown

template<class Waarde = plakregel>
struct keuze {
    Waarde waarde;
    cijferwerf::melding melding{};
};

} // namespace cijferwerf
