// Writes drawings and screens as SVG, so that they can be looked at without a toolkit.
// Picture files are only named, by their bare name: whoever shows the SVG keeps them beside it.
#pragma once

#include "runtime/look.h"

namespace cijferwerf {

// A drawing as a whole, on its ground; 15 of its units are a pixel.
std::string svg_of(const drawing& shown);
// A form as it looks at rest.
std::string svg_of(const form& shown, look_settings with = {});

} // namespace cijferwerf
