// A drawing read as a pupil reads it, row by row from left to right: fractions with their bars as "1 3/8", raised
// exponents as "^2". It judges nothing.
#pragma once

#include "runtime/picture_box.h"

#include <string>
#include <vector>

namespace cijferwerf {

// Words that stand far apart are rows of their own.
std::vector<std::string> rows_of(const drawing& drawn);

} // namespace cijferwerf
