#include "runtime/svg.h"

#include "runtime/drawn.h"
#include "runtime/look.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

namespace cijferwerf {

namespace {

// Gathers elements. An attribute is a name and a value: with(" x", 5) writes x="5".
class writer {
public:
    explicit writer(const drawing& shown) : drawn_(shown) {}

    std::string all() {
        open();
        for (const drawing_op& op : drawn_.operations()) std::visit(*this, op);
        out_ += "</svg>\n";
        return std::move(out_);
    }

    void operator()(const text_op& op) {
        out_ += "<g transform=\"translate(";
        number(op.x);
        out_ += ' ';
        number(op.y);
        out_ += ") scale(";
        number(narrowing);
        out_ += " 1)\">";
        text(line_of(drawn_, op));
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

private:
    void open() {
        const int width = drawing::inner_width, height = drawn_.full_height;
        out_ += "<svg xmlns=\"http://www.w3.org/2000/svg\" xml:space=\"preserve\" font-family=\"";
        for (std::string_view between; const std::string_view family : look::font_families) {
            out_.append(between).append(family);
            between = ", ";
        }
        out_ += ", sans-serif\" font-kerning=\"none\"";
        with(" width", width / twips_per_pixel)(" height", height / twips_per_pixel);
        out_ += " viewBox=\"0 0 ";
        number(width);
        out_ += ' ';
        number(height);
        out_ += "\">\n<rect";
        with(" width", width)(" height", height);
        colour(" fill", colour_on(drawn_, drawn_.ground));
        out_ += "/>\n";
    }
    void text(const scene_text& line) {
        out_ += "<text";
        with(" x", line.x)(" y", line.baseline)(" font-size", line.points * 20);
        colour(" fill", line.colour);
        out_ += '>';
        escaped(line.text);
        out_ += "</text>\n";
    }
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
        const rgb24 drawn_in = colour_on(drawn_, pen.colour);
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

    const drawing& drawn_;
    std::string out_;
};

} // namespace

std::string svg_of(const drawing& shown) { return writer(shown).all(); }

} // namespace cijferwerf
