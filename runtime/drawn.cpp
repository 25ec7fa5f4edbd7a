#include "runtime/drawn.h"

#include "runtime/look.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <numbers>

namespace cijferwerf {

namespace {

class bounds {
public:
    void operator()(const text_op& op) {
        take({op.x, op.y});
        take({op.x + text_width(op.text, op.size), op.y + text_height(op.size)});
    }
    void operator()(const line_op& op) {
        take(op.from, half(op.pen));
        take(op.to, half(op.pen));
    }
    void operator()(const box_op& op) {
        const int around = op.filled ? 0 : half(op.pen);
        take({op.x, op.y}, around);
        take({op.x + op.width, op.y + op.height}, around);
    }
    void operator()(const circle_op& op) {
        const int around = op.filled ? 0 : half(op.pen);
        const auto at = [&](double degrees) {
            const double angle = degrees * std::numbers::pi / 180;
            take({op.centre.x + static_cast<int>(std::lround(op.radius_x * std::cos(angle))),
                  op.centre.y - static_cast<int>(std::lround(op.radius_y * std::sin(angle)))},
                 around);
        };
        const bool whole = std::abs(op.sweep) >= 360;
        const double from = std::min(op.start, op.start + op.sweep), to = from + std::abs(op.sweep);
        if (!whole) {
            take(op.centre, around);
            at(from);
            at(to);
        }
        const int first = static_cast<int>(std::ceil(from / 90));
        for (int quarter = whole ? 0 : first; quarter <= (whole ? 3 : to / 90); ++quarter) at(quarter * 90);
    }
    void operator()(const polygon_op& op) {
        for (const point& corner : op.corners) take(corner, op.filled ? 0 : half(op.pen));
    }
    void operator()(const picture_op&) {
        take({0, 0});
        take({drawing::inner_width, drawing::inner_height});
    }
    place found() const { return right_ < left_ ? place{} : place{left_, top_, right_ - left_, bottom_ - top_}; }

private:
    static int half(const pen& with) { return with.width * twips_per_pixel / 2; }
    void take(point at, int around = 0) {
        left_ = std::min(left_, at.x - around);
        top_ = std::min(top_, at.y - around);
        right_ = std::max(right_, at.x + around);
        bottom_ = std::max(bottom_, at.y + around);
    }

    int left_ = INT_MAX, top_ = INT_MAX, right_ = INT_MIN, bottom_ = INT_MIN;
};

double luminance(rgb24 colour) {
    const auto linear = [colour](int shift) {
        const double part = (colour >> shift & 0xFF) / 255.0;
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
}

} // namespace

line_style style_of(const pen& with) {
    return with.width > 1 && with.style != line_style::transparent ? line_style::solid : with.style;
}

scene_text line_of(const drawing& shown, const text_op& text) {
    const int baseline = static_cast<int>(std::lround(look::ascent * text.size * 20));
    return {0, baseline, text.size, false, text_colour_on(shown, text.colour), std::string(text.text)};
}

place drawn_bounds(const drawing& shown) {
    bounds all;
    for (const drawing_op& op : shown.operations()) std::visit(all, op);
    return all.found();
}

rgb24 colour_on(const drawing& shown, kleur colour) {
    if (shown.colours == &kleur_rgb && colour == shown.ground) {
        if (colour == groen) return 0x006C00;
        if (colour == cyaan) return 0x006A6A;
    }
    return (*shown.colours)[colour];
}

rgb24 text_colour_on(const drawing& shown, kleur colour) {
    const bool on_dark = shown.ground == zwart || shown.ground == donkerblauw;
    if (shown.colours == &kleur_rgb && colour == rood && on_dark) return 0xFF6B6B;
    return colour_on(shown, colour);
}

double contrast(rgb24 one, rgb24 other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

} // namespace cijferwerf
