// A time of day as it is said aloud: "kwart over drie", "vijf voor half vier".
// The time in digits is kloktijd's, and the part of the day is for who says it.
#pragma once

#include "generators/gedeeld/kloktijd.h"

namespace cijferwerf {

// To the minute: up to a quarter past from the hour on, then around the half hour, from a quarter to towards the next.
std::string klokzin(kloktijd tijd);

} // namespace cijferwerf
