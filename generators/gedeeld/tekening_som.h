// A sum written under one another: numbers with their digits in columns, a bar, a sign.
// It works nothing out; which numbers stand where is the exercise's.
#pragma once

#include "generators/gedeeld/tekening.h"

namespace cijferwerf {

// A number as it is written, and how many digits its right end stands left of the sum's right end (below 0: right).
// All digits are equally wide, so numbers with the same shift stand digit under digit; a comma is half as wide.
struct somregel {
    plakregel getal;
    int inspringing = 0;
};

// The numbers from a top on, set to their right end in the drawing's colour and text size, a bar under the last one and
// the sign to the right of the bar. Numbers set wide with cijfers_wijd() stand in wide columns. Returns the top of the
// line under the bar.
int teken_kolomsom(drawing& on, int rechts, int boven, const std::vector<somregel>& getallen, std::string_view teken);

} // namespace cijferwerf
