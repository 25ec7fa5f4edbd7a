// Texts with powers on a picture: "3^2 x (4 + 10^12)" is drawn with the digits after each "^" small and raised.
// Answers, questions and explanations are plain lines of text; there "3²" has to do.
#pragma once

#include "runtime/picture_box.h"

namespace cijferwerf {

// Draws the text with its top-left corner at (x, y), in the picture's colour and text size. Returns its right end.
int teken_met_machten(drawing& on, int x, int y, std::string_view text);

// How wide that is, in twips, at so many points.
int breedte_met_machten(std::string_view text, double points);

} // namespace cijferwerf
