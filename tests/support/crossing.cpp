#include "tests/support/crossing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace cijferwerf {

namespace {

struct covering {
    double x, y;

    bool operator()(const text_op&) const { return false; }
    bool operator()(const line_op&) const { return false; }
    bool operator()(const picture_op&) const { return true; }
    bool operator()(const box_op& box) const {
        return box.filled && x >= box.x && x <= box.x + box.width && y >= box.y && y <= box.y + box.height;
    }
    bool operator()(const circle_op& circle) const {
        const double right = (x - circle.centre.x) / circle.radius_x, up = (circle.centre.y - y) / circle.radius_y;
        const double beyond_start = std::atan2(up, right) * 180 / std::numbers::pi - circle.start;
        return circle.filled && right * right + up * up <= 1 &&
               beyond_start - std::floor(beyond_start / 360) * 360 <= circle.sweep;
    }
    bool operator()(const polygon_op& shape) const {
        bool inside = false;
        for (std::size_t i = 0, j = shape.corners.size() - 1; i < shape.corners.size(); j = i++) {
            const point &a = shape.corners[i], &b = shape.corners[j];
            if ((a.y > y) != (b.y > y) && x < (b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x) inside = !inside;
        }
        return shape.filled && inside;
    }
};

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

} // namespace

std::vector<point> path_of(const drawing_op& operation, kleur ground) {
    if (const auto* line = std::get_if<line_op>(&operation)) return {line->from, line->to};
    if (const auto* shape = std::get_if<polygon_op>(&operation)) {
        std::vector<point> around = shape->corners;
        around.push_back(around.front());
        return around;
    }
    if (const auto* box = std::get_if<box_op>(&operation);
        box != nullptr && (!box->filled || box->pen.colour != ground)) {
        const int right = box->x + box->width, bottom = box->y + box->height;
        return {{box->x, box->y}, {right, box->y}, {right, bottom}, {box->x, bottom}, {box->x, box->y}};
    }
    if (const auto* circle = std::get_if<circle_op>(&operation)) {
        std::vector<point> around;
        for (double at = 0; at <= circle->sweep; at += 3) {
            const double angle = (circle->start + at) * std::numbers::pi / 180;
            around.push_back({circle->centre.x + static_cast<int>(circle->radius_x * std::cos(angle)),
                              circle->centre.y - static_cast<int>(circle->radius_y * std::sin(angle))});
        }
        if (circle->sweep < 360) { // the two radii
            around.insert(around.begin(), circle->centre);
            around.push_back(circle->centre);
        }
        return around;
    }
    return {};
}

bool covers(const drawing_op& operation, double x, double y) { return std::visit(covering{x, y}, operation); }

std::optional<std::string> line_through_word(const drawing& drawn) {
    for (const ink& word : visible_words(drawn)) {
        bool crossed = false;
        for (std::size_t i = 0; i < drawn.operations().size(); ++i) {
            const auto under = [&](double x, double y) { return covers(drawn.operations()[i], x, y); };
            if (i < word.operation && under(word.left, word.top) && under(word.right, word.top) &&
                under(word.left, word.bottom) && under(word.right, word.bottom))
                crossed = false;
            const std::vector<point> path = path_of(drawn.operations()[i], drawn.ground);
            for (std::size_t k = 1; k < path.size(); ++k) crossed |= crosses(path[k - 1], path[k], word);
        }
        if (crossed) return word.word;
    }
    return {};
}

} // namespace cijferwerf
