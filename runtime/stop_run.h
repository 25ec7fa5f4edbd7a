// The one way in which the core ends a run over an error of its own.
// How the end is told is a front end's.
#pragma once

#include "runtime/checked_error.h"

#include <string>

namespace cijferwerf {

// The handler that runs goes no further; the front end says why, and stops with status 1.
[[noreturn]] inline void stop_run(const std::string& why) { throw checked_error(why); }

} // namespace cijferwerf
