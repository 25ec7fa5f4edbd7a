#include "runtime/svg.h"

#include "runtime/drawn.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

namespace cijferwerf {

namespace {

// Gathers elements. An attribute is a name and a value: add(" x=", 5) writes x="5".
class writer {
public:
    explicit writer(std::string& out) : out_(out) {}

    void operator()(const text_op& op) {
        out_ += "<g transform=\"translate(";
        number(op.x);
        out_ += ' ';
        number(op.y);
        out_ += ") scale(";
        number(narrowing);
        out_ += " 1)\">";
        (*this)(line_of(*drawn_, op));
        out_ += "</g>\n";
    }
    void operator()(const line_op& op) {
        if (op.pen.style == line_style::transparent) return;
        out_ += "<line";
        with(" x1", op.from.x)(" y1", op.from.y)(" x2", op.to.x)(" y2", op.to.y);
        paint(op.pen, false);
    }
    void operator()(const box_op& op) {
        out_ += "<rect";
        with(" x", op.x)(" y", op.y)(" width", std::max(op.width, op.filled ? 1 : 0));
        with(" height", std::max(op.height, op.filled ? 1 : 0));
        paint(op.pen, op.filled);
    }
    void operator()(const circle_op& op) {
        if (std::abs(op.sweep) >= 360) {
            out_ += "<ellipse";
            with(" cx", op.centre.x)(" cy", op.centre.y)(" rx", op.radius_x)(" ry", op.radius_y);
            return paint(op.pen, op.filled);
        }
        const auto corner = [&](double degrees) {
            const double angle = degrees * std::numbers::pi / 180;
            number(std::lround(op.centre.x + op.radius_x * std::cos(angle)));
            out_ += ' ';
            number(std::lround(op.centre.y - op.radius_y * std::sin(angle)));
        };
        out_ += "<path d=\"M";
        number(op.centre.x);
        out_ += ' ';
        number(op.centre.y);
        out_ += 'L';
        corner(op.start);
        out_ += 'A';
        number(op.radius_x);
        out_ += ' ';
        number(op.radius_y);
        out_ += std::abs(op.sweep) > 180 ? " 0 1 " : " 0 0 ";
        out_ += op.sweep > 0 ? "0 " : "1 ";
        corner(op.start + op.sweep);
        out_ += "Z\"";
        paint(op.pen, op.filled);
    }
    void operator()(const polygon_op& op) {
        out_ += "<polygon";
        through(op.corners);
        paint(op.pen, op.filled);
    }
    void operator()(const picture_op& op) {
        out_ += "<image href=\"";
        escaped(op.file);
        out_ += '"';
        with(" width", drawing::inner_width)(" height", drawing::inner_height);
        out_ += " preserveAspectRatio=\"none\"/>\n";
    }

    void operator()(const scene_box& box) {
        const int inset = box.edge ? box.thick : 0; // of both sides together
        const double half = inset / 2.0;
        const double left = box.at.left + half, top = box.at.top + half, right = box.at.right() - half,
                     bottom = box.at.bottom() - half, round = std::max(0.0, box.radius - half);
        out_ += "<path d=\"";
        // From the top-left corner on, clockwise.
        const bool far = box.rounded == round_corners::all;
        const double corners[]{round, far || box.rounded == round_corners::top ? round : 0, far ? round : 0,
                               far || box.rounded == round_corners::left ? round : 0};
        const auto go = [this](char how, double x, double y) {
            out_ += how;
            number(x);
            out_ += ' ';
            number(y);
        };
        const auto turn = [&](double radius, double x, double y) {
            if (radius == 0) return;
            go('A', radius, radius);
            out_ += " 0 0 1";
            go(' ', x, y);
        };
        go('M', left, top + corners[0]);
        turn(corners[0], left + corners[0], top);
        go('L', right - corners[1], top);
        turn(corners[1], right, top + corners[1]);
        go('L', right, bottom - corners[2]);
        turn(corners[2], right - corners[2], bottom);
        go('L', left + corners[3], bottom);
        turn(corners[3], left, bottom - corners[3]);
        out_ += "Z\"";
        colour(" fill", box.fill);
        if (box.edge) {
            colour(" stroke", box.edge);
            with(" stroke-width", box.thick);
        }
        out_ += "/>\n";
    }
    void operator()(const scene_text& text) {
        out_ += "<text";
        with(" x", text.x)(" y", text.baseline);
        if (text.bold) out_ += " font-weight=\"bold\"";
        if (text.spacing != 0) with(" letter-spacing", text.spacing);
        words(text.text, text.points, text.colour);
    }
    void operator()(const scene_stroke& stroke) {
        out_ += "<polyline fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\"";
        through(stroke.points);
        colour(" stroke", stroke.colour);
        with(" stroke-width", stroke.thick);
        out_ += "/>\n";
    }
    void operator()(const scene_drawing& drawn) {
        place seen{0, 0, drawing::inner_width, drawn.shown->full_height};
        if (!drawn.whole) seen = drawn_bounds(*drawn.shown);
        out_ += "<svg";
        with(" x", drawn.at.left)(" y", drawn.at.top);
        view(seen, drawn.at.width, drawn.at.height);
        if (drawn.whole) out_ += " preserveAspectRatio=\"none\"";
        out_ += ">\n";
        operations(*drawn.shown, drawn.whole);
        out_ += "</svg>\n";
    }

    void operations(const drawing& shown, bool with_ground) {
        drawn_ = &shown;
        if (with_ground) {
            out_ += "<rect";
            with(" width", drawing::inner_width)(" height", shown.full_height);
            colour(" fill", colour_on(shown, shown.ground));
            out_ += "/>\n";
        }
        for (const drawing_op& op : shown.operations()) std::visit(*this, op);
    }

    void open(int width, int height) {
        out_ += "<svg xmlns=\"http://www.w3.org/2000/svg\" xml:space=\"preserve\" font-family=\"";
        for (std::string_view between; const std::string_view family : look::font_families) {
            out_.append(between).append(family);
            between = ", ";
        }
        out_ += ", sans-serif\" font-kerning=\"none\"";
        view({0, 0, width, height}, width / twips_per_pixel, height / twips_per_pixel);
        out_ += ">\n";
    }
    void close() { out_ += "</svg>\n"; }

private:
    template<class Number>
    void number(Number value) {
        char digits[32];
        out_.append(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
    }
    template<class Number>
    writer& with(std::string_view name, Number value) {
        out_.append(name).append("=\"");
        number(value);
        out_ += '"';
        return *this;
    }
    template<class Number>
    writer& operator()(std::string_view name, Number value) {
        return with(name, value);
    }
    void view(const place& seen, int width, int height) {
        with(" width", width)(" height", height);
        out_ += " viewBox=\"";
        for (std::string_view between; const int value : {seen.left, seen.top, seen.width, seen.height}) {
            out_ += between;
            number(value);
            between = " ";
        }
        out_ += '"';
    }
    void colour(std::string_view name, std::optional<rgb24> value) {
        constexpr std::string_view hex = "0123456789ABCDEF";
        out_.append(name).append("=\"");
        if (!value)
            out_ += "none";
        else {
            out_ += '#';
            for (int shift = 20; shift >= 0; shift -= 4) out_ += hex[*value >> shift & 15];
        }
        out_ += '"';
    }
    void escaped(std::string_view text) {
        for (const char c : text)
            if (c == '&')
                out_ += "&amp;";
            else if (c == '<')
                out_ += "&lt;";
            else if (c == '"')
                out_ += "&quot;";
            else
                out_ += c;
    }
    void words(std::string_view text, double points, rgb24 in) {
        with(" font-size", points * 20);
        colour(" fill", in);
        out_ += '>';
        escaped(text);
        out_ += "</text>\n";
    }
    void through(std::span<const point> points) {
        out_ += " points=\"";
        for (std::string_view between; const point& each : points) {
            out_ += between;
            number(each.x);
            out_ += ',';
            number(each.y);
            between = " ";
        }
        out_ += '"';
    }
    // A filled shape is all of the pen's colour.
    void paint(const pen& pen, bool filled) {
        const rgb24 drawn_in = colour_on(*drawn_, pen.colour);
        colour(" fill", filled ? std::optional(drawn_in) : std::nullopt);
        if (!filled && pen.style != line_style::transparent) {
            colour(" stroke", drawn_in);
            with(" stroke-width", pen.width * twips_per_pixel);
            constexpr std::string_view dashes[]{"", "60 30", "15 30", "60 30 15 30", "60 30 15 30 15 30", "", ""};
            const std::string_view dashed = dashes[static_cast<std::size_t>(style_of(pen))];
            if (!dashed.empty()) out_.append(" stroke-dasharray=\"").append(dashed).append("\"");
        }
        out_ += "/>\n";
    }

    std::string& out_;
    const drawing* drawn_ = nullptr; // whose colours are meant
};

} // namespace

std::string svg_of(const drawing& shown) {
    std::string text;
    writer out(text);
    out.open(drawing::inner_width, shown.full_height);
    out.operations(shown, true);
    out.close();
    return text;
}

std::string svg_of(const form& shown, look_settings with) {
    std::string text;
    writer out(text);
    out.open(shown.width, shown.height);
    for (const scene_op& op : scene_of(shown, with)) std::visit(out, op);
    out.close();
    return text;
}

} // namespace cijferwerf
