// What stands wrongly in a picture: lines that run through its words, and words and boxes that look as if they slipped.
// Which of them are meant is the test's to know.
#pragma once

#include "tests/support/ink.h"

#include <optional>

namespace cijferwerf {

// Whether what an operation fills lies at a place.
bool covers(const drawing_op& operation, double x, double y);

// The points around what is drawn; none where nothing but text is, or a box in the colour of the ground.
std::vector<point> path_of(const drawing_op& operation, kleur ground);

// The first word through whose ink a line, or the edge of a box or polygon, is seen to run; or nothing. What is filled
// after the line and before the word hides it.
std::optional<std::string> line_through_word(const drawing& drawn);

// The first thing that leaves the picture, text that touches its edge or stands alone, sign of a sum that stands by
// itself or near one neighbour only, or box that lies half over another which is not its shadow; or nothing. An
// explanation may wipe out, frame and write digits in.
std::optional<std::string> out_of_place(const drawing& drawn, bool explained = false);

} // namespace cijferwerf
