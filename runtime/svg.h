// Writes drawings as SVG, so that they can be looked at without a toolkit.
// Picture files are only named, by their bare name: whoever shows the SVG keeps them beside it.
#pragma once

#include "runtime/picture_box.h"

#include <string>

namespace cijferwerf {

// A drawing as a whole, on its ground; 15 of its units are a pixel.
std::string svg_of(const drawing& shown);

} // namespace cijferwerf
