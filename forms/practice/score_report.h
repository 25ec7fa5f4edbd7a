// The score report as it goes to the printer: the totals and an analysis per title.
// Showing the totals on the screen is the score sheet's.
#pragma once

#include "globals/globalen.h"
#include "runtime/outside.h"

#include <string_view>

namespace cijferwerf {

// The heading is that of the practice screen; the report shows it in capitals.
report score_report(const GLOBALEN& score, std::string_view heading, const local_time& at);

} // namespace cijferwerf
