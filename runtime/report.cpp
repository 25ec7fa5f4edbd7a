#include "runtime/report.h"

#include "runtime/look.h"

#include <cmath>

namespace cijferwerf {

scene scene_of(const report& printed) {
    scene page;
    int top = 0;
    for (const report_line& line : printed.lines) {
        const int baseline = top + static_cast<int>(std::lround(look::ascent * line.size * 20));
        for (const report_cell& cell : line.cells)
            page.emplace_back(
                scene_text{cell.column * text_width("x", line.size, 1.0), baseline, line.size, false, 0, cell.text});
        top += text_height(line.size);
    }
    return page;
}

} // namespace cijferwerf
