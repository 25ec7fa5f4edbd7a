// What a drawing covers, and how its operations come out: colours, lines, texts.
// Painting them is left to a front end or a writer.
#pragma once

#include "runtime/place.h"
#include "runtime/scene.h"

namespace cijferwerf {

inline constexpr int twips_per_pixel = 15; // of the width of a pen
// A line of more than a pixel has no gaps.
line_style style_of(const pen& with);
// A text of a drawing on a line whose top-left corner is the origin. It is narrower than the face, as text_width says.
inline constexpr double narrowing = 0.9;
scene_text line_of(const drawing& shown, const text_op& text);

// The smallest place that holds all operations, lines with their thickness; empty without any.
place drawn_bounds(const drawing& shown);

// Boards are painted a little darker than shapes of their colour, and red text on a dark one lighter, so that what is
// written on them can be read. What has the colour of the ground disappears on it.
rgb24 colour_on(const drawing& shown, kleur colour);
rgb24 text_colour_on(const drawing& shown, kleur colour);

// Of two colours, from 1 to 21.
double contrast(rgb24 one, rgb24 other);

} // namespace cijferwerf
