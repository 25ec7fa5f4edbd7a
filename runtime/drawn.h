// What a drawing covers, and the colours in which its operations come out.
// Painting them is left to a front end or a writer.
#pragma once

#include "runtime/place.h"
#include "runtime/scene.h"

namespace cijferwerf {

// The smallest place that holds all operations, lines with their thickness; empty without any.
place drawn_bounds(const drawing& shown);

// Boards are painted a little darker than shapes of their colour, and red text on a dark one lighter, so that what is
// written on them can be read. What has the colour of the ground disappears on it.
rgb24 colour_on(const drawing& shown, kleur colour);
rgb24 text_colour_on(const drawing& shown, kleur colour);

// Of two colours, from 1 to 21.
double contrast(rgb24 one, rgb24 other);

} // namespace cijferwerf
