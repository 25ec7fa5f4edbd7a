#include "tests/support/crossing.h"

#include <algorithm>

namespace cijferwerf {

namespace {

bool crosses(point a, point b, const ink& word) {
    constexpr double slack = 8; // half a pixel
    double first = 0, last = 1; // the part of the line that is left
    const auto clip = [&](int from, int to, double low, double high) {
        if (from == to) return low < from && from < high;
        const double enters = (low - from) / (to - from), leaves = (high - from) / (to - from);
        first = std::max(first, std::min(enters, leaves));
        last = std::min(last, std::max(enters, leaves));
        return first < last;
    };
    return clip(a.x, b.x, word.left + slack, word.right - slack) &&
           clip(a.y, b.y, word.top + slack, word.bottom - slack);
}

std::vector<point> edge(const drawing_op& operation) {
    if (const auto* line = std::get_if<line_op>(&operation)) return {line->from, line->to};
    if (const auto* shape = std::get_if<polygon_op>(&operation)) {
        std::vector<point> around = shape->corners;
        around.push_back(around.front());
        return around;
    }
    if (const auto* box = std::get_if<box_op>(&operation)) {
        const int right = box->x + box->width, bottom = box->y + box->height;
        return {{box->x, box->y}, {right, box->y}, {right, bottom}, {box->x, bottom}, {box->x, box->y}};
    }
    return {};
}

} // namespace

std::optional<std::string> line_through_word(const drawing& drawn) {
    for (const ink& word : visible_words(drawn)) {
        bool crossed = false;
        for (std::size_t i = 0; i < drawn.operations().size(); ++i) {
            const auto* box = std::get_if<box_op>(&drawn.operations()[i]);
            if (i < word.operation && box != nullptr && box->filled &&
                word.within(box->x, box->y, box->width, box->height))
                crossed = false;
            const std::vector<point> path = edge(drawn.operations()[i]);
            for (std::size_t k = 1; k < path.size(); ++k) crossed |= crosses(path[k - 1], path[k], word);
        }
        if (crossed) return word.word;
    }
    return {};
}

} // namespace cijferwerf
