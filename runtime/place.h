// A rectangle on a form or in a control, in twips (1/1440 inch) from the top-left corner, y growing downward.
// What stands there is left to who places it.
#pragma once

namespace cijferwerf {

struct place {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const place&) const = default;

    int right() const { return left + width; }
    int bottom() const { return top + height; }
    // The place that is this much smaller at each side.
    place inset(int by) const { return {left + by, top + by, width - 2 * by, height - 2 * by}; }
    bool contains(const place& other) const {
        return other.left >= left && other.top >= top && other.right() <= right() && other.bottom() <= bottom();
    }
};

} // namespace cijferwerf
