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

namespace {

// What an operation leaves on the picture, with the first of its words.
std::optional<ink> extent(const drawing_op& operation, kleur ground) {
    std::vector<ink> parts;
    if (const auto* text = std::get_if<text_op>(&operation)) add_words(parts, *text, 0);
    for (const auto& [x, y] : path_of(operation, ground)) parts.push_back({1.0 * x, 1.0 * y, 1.0 * x, 1.0 * y, ""});
    if (parts.empty()) return {};
    ink all = parts[0];
    for (const ink& part : parts)
        all = {std::min(all.left, part.left), std::min(all.top, part.top), std::max(all.right, part.right),
               std::max(all.bottom, part.bottom), all.word};
    return all;
}
bool holds(const ink& outer, const ink& inner, double slack = 0) {
    return inner.within(outer.left - slack, outer.top - slack, outer.right - outer.left + 2 * slack,
                        outer.bottom - outer.top + 2 * slack);
}
double distance(const ink& a, const ink& b) {
    return std::max({b.left - a.right, a.left - b.right, b.top - a.bottom, a.top - b.bottom});
}

} // namespace

std::optional<std::string> out_of_place(const drawing& drawn) {
    constexpr int width = drawing::inner_width, height = drawing::inner_height;
    std::vector<ink> all, boxes;
    bool file = false;
    for (const drawing_op& operation : drawn.operations()) {
        file |= std::holds_alternative<picture_op>(operation);
        const auto found = extent(operation, drawn.ground);
        if (!found) continue;
        if (!found->within(0, 0, width + 1, height + 1)) return "a shape or \"" + found->word + "\" leaves the picture";
        all.push_back(*found);
        if (std::holds_alternative<box_op>(operation)) boxes.push_back(*found);
    }
    for (const ink& text : all) {
        if (text.word.empty()) continue;
        if (!text.within(30, 10, width - 60, height - 30)) return "\"" + text.word + "\" at the edge";
        const auto beside = [&](const ink& other) {
            const bool behind = holds(other, text) && other.right - other.left > 1600; // a panel
            return distance(other, text) < 400 && !behind && &other != &text;
        };
        if (!file && all.size() > 1 && std::ranges::none_of(all, beside)) return "\"" + text.word + "\" stands alone";
    }
    for (const ink& one : boxes) {
        const auto half_over = [&](const ink& other) {
            const bool shadow = std::abs(other.left - one.left) == 45 && std::abs(other.right - one.right) == 45;
            return distance(one, other) < -25 && !holds(one, other, 25) && !holds(other, one, 25) && !shadow;
        };
        if (std::ranges::any_of(boxes, half_over)) return "a box half over another";
    }
    return {};
}

} // namespace cijferwerf
