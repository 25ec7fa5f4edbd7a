// A report of one page as the program composes it: lines of texts at character columns.
// Paper, margins and the printer are left to the front end.
#pragma once

#include "runtime/scene.h"

namespace cijferwerf {

struct report_cell {
    int column = 0; // in characters of the line's font, from the left margin
    std::string text;
};

struct report_line {
    double size = 9; // points
    std::vector<report_cell> cells;
};

struct report {
    std::string title; // of the document, for the print queue
    std::vector<report_line> lines;
};

// The lines in black, one under the other.
scene scene_of(const report& printed);

} // namespace cijferwerf
