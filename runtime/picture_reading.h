// A drawing in words, for who cannot see it: its texts in reading order, and its spoken sentences.
// What a sentence says of a graph or a clock is left to who draws it.
#pragma once

#include "runtime/picture_box.h"

namespace cijferwerf {

// Rows from top to bottom, each from left to right; a sentence comes where the first of its texts stands, or before
// everything when it has none. Of a picture file is said what it shows, as long as the table has it.
std::string read_picture(const drawing& shown);

} // namespace cijferwerf
