// The drawing commands of an explanation: reads one line and draws what it says on a picture box.
// Which lines there are is the exercise's, when they are drawn the practice screen's.
#pragma once

#include "runtime/picture_box.h"

#include <span>
#include <string>
#include <string_view>

namespace cijferwerf {

// Draws one command: a keyword and its fields, separated by "_", with "." as decimal point:
//
//     PRINT_x_y_colour_size_text                  the rest of the line as it stands, its size rounded to whole points
//     LINE_x_y_dx_dy_colour_kind_style            kind B a box, BF a filled one; a box with dy 0 is a line
//     BREUK1_x_y_whole_numerator_denominator      a white mixed number; the bar is drawn by a LINE
//     TELLERSNOEMERS_x_y_number_ (four times)     numbers in the colour and size that are set
//     DOORSTREPEN_x_y_px_py_value                 a red stroke of 300 units, and the value written in its place
//     PARTJES_x_y_n_                              n spokes that cut a circle with radius 770 into equal slices
//
// A missing or malformed number reads as 0, a colour outside 0 to 15 is wrapped, any other number is held within a
// million either way and a size within 1 to 200 points. Any other keyword, or a line without "_", draws nothing.
void teken_opdracht(drawing& on, std::string_view opdracht);

// Draws the commands in order, up to the first that is a single blank.
void teken_opdrachten(drawing& on, std::span<const plakregel> opdrachten);

} // namespace cijferwerf
