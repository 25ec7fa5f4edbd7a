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
        std::vector<point> around(shape->corners.begin(), shape->corners.end());
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
    if (const auto* text = std::get_if<text_op>(&operation)) { // of the line, whatever its letters
        all.top = text->y + digit_top(text->size);
        all.bottom = text->y + text->size * 18;
    }
    return all;
}
bool holds(const ink& outer, const ink& inner, double slack = 0) {
    return inner.within(outer.left - slack, outer.top - slack, outer.right - outer.left + 2 * slack,
                        outer.bottom - outer.top + 2 * slack);
}
// Whether two edges of a shape cross, as they do when a corner has slipped.
bool knotted(const std::vector<point>& around) {
    const auto side = [](point a, point b, point c) {
        const long long turn = 1LL * (b.x - a.x) * (c.y - a.y) - 1LL * (b.y - a.y) * (c.x - a.x);
        return (turn > 0) - (turn < 0);
    };
    for (std::size_t i = 1; i < around.size(); ++i)
        for (std::size_t j = 1; j < i; ++j) {
            const point a = around[i - 1], b = around[i], c = around[j - 1], d = around[j];
            if (side(a, b, c) * side(a, b, d) < 0 && side(c, d, a) * side(c, d, b) < 0) return true;
        }
    return false;
}
double distance(const ink& a, const ink& b) {
    return std::max({b.left - a.right, a.left - b.right, b.top - a.bottom, a.top - b.bottom});
}

} // namespace

std::optional<std::string> out_of_place(const drawing& drawn, bool explained) {
    constexpr int width = drawing::inner_width, height = drawing::inner_height;
    std::vector<ink> all, boxes;
    bool file = false;
    for (auto at = drawn.operations().begin(); at != drawn.operations().end(); ++at) {
        file |= std::holds_alternative<picture_op>(*at);
        const auto found = extent(*at, drawn.ground);
        if (!found) continue;
        if (!found->within(0, 0, width + 1, height + 1)) return "a shape or \"" + found->word + "\" leaves the picture";
        all.push_back(*found);
        if (std::holds_alternative<box_op>(*at)) boxes.push_back(*found);
        const std::vector<point> path = path_of(*at, drawn.ground);
        const auto hides = [&path](const drawing_op& later) {
            return std::ranges::all_of(path, [&](point p) { return covers(later, p.x, p.y); });
        };
        if (std::holds_alternative<polygon_op>(*at) && knotted(path)) return "a knotted shape";
        if (!explained && !path.empty() && std::any_of(at + 1, drawn.operations().end(), hides))
            return "a shape that nobody sees";
    }
    for (const ink& one : all) {
        const bool text = !one.word.empty();
        if (text && !one.within(30, 10, width - 60, height - 30)) return "\"" + one.word + "\" at the edge";
        const auto beside = [&](const ink& other) {
            const bool behind = holds(other, one) && other.right - other.left > 1600; // a panel
            const bool itself = holds(other, one) && holds(one, other);               // or its edge
            const double near = text ? 60 : std::max(365.0, 1.85 * (one.bottom - one.top));
            return distance(other, one) < near && !behind && !itself;
        };
        const auto level = [&](const ink& other) {
            const auto as = [](double a, double b, double c, double d) {
                return std::min({std::abs(a - c), std::abs(b - d), std::abs(a + b - c - d) / 2}) <= 20;
            };
            return text && &other != &one &&
                   (as(one.left, one.right, other.left, other.right) ||
                    as(one.top, one.bottom, other.top, other.bottom));
        };
        const bool central = text && std::abs(one.left + one.right - width) < 60;
        const bool sign = text && one.right - one.left < 260 && std::string_view("+-x:=").find(one.word) < 5;
        double before = width, after = width; // to what stands on its level, of shapes those as wide as a fraction
        for (const ink& other : all) {
            const double middle = (one.top + one.bottom) / 2;
            const bool wide = other.word.empty() && other.right - other.left > 500;
            if (wide || &other == &one || other.top - 60 > middle || other.bottom + 60 < middle) continue;
            if (other.right <= one.left + 5) before = std::min(before, one.left - other.right);
            if (other.left >= one.right - 5) after = std::min(after, other.left - one.right);
        }
        const double near = std::min(before, after), far = std::max(before, after);
        if (sign && !central && (near == width || (far < width && far > 2.5 * near + 120)))
            return "\"" + one.word + "\" is not midway";
        const bool written_in = explained && one.word.size() < 3; // a digit, a sign
        if (!file && !central && !written_in && all.size() > 1 && std::ranges::none_of(all, beside) &&
            std::ranges::none_of(all, level))
            return "\"" + one.word + "\", or a shape, stands alone";
    }
    if (explained) return {}; // which wipes out and frames
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
