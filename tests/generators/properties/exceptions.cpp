#include "tests/support/exceptions.h"

#include <algorithm>
#include <array>

namespace cijferwerf {

bool excepted(exception_kind kind, oefening_id generator) {
    using enum oefening_id;
    using enum exception_kind;
    struct row {
        exception_kind kind;
        oefening_id generator;
        const char* reason;
    };
    static constexpr auto rows = std::to_array<row>({
#include "tests/generators/breuken/exceptions.def"
#include "tests/generators/cijferen/exceptions.def"
#include "tests/generators/cirkels/exceptions.def"
#include "tests/generators/energie/exceptions.def"
#include "tests/generators/geld/exceptions.def"
#include "tests/generators/getalkennis/exceptions.def"
#include "tests/generators/hoofdrekenen/exceptions.def"
#include "tests/generators/machten/exceptions.def"
#include "tests/generators/meten/exceptions.def"
#include "tests/generators/procenten/exceptions.def"
#include "tests/generators/tijd/exceptions.def"
#include "tests/generators/verhoudingen/exceptions.def"
    });
    return std::ranges::any_of(rows, [=](const row& r) { return r.kind == kind && r.generator == generator; });
}

} // namespace cijferwerf
