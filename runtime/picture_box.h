// The picture box: what is drawn on it, kept as a list of operations, and the state that drawing leaves behind.
// It paints nothing; a front end replays the list at any scale, on a screen or on paper.
//
// Units are twips (1/1440 inch, 15 to a pixel at 96 dpi), the origin is the top-left corner, y grows downward.
#pragma once

#include "runtime/number_text.h"
#include "runtime/palette.h"

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string_view>
#include <variant>
#include <vector>

namespace cijferwerf {

struct point {
    int x = 0;
    int y = 0;
    bool operator==(const point&) const = default;
};

// How a line of one pixel wide is drawn; a wider one is solid. A transparent line of any width is not drawn at all;
// inside_solid looks like solid.
enum class line_style : std::uint8_t { solid, dash, dot, dash_dot, dash_dot_dot, transparent, inside_solid };

// The pen of lines and outlines. The width is in pixels at 96 dpi (15 twips each).
struct pen {
    kleur colour = zwart;
    int width = 1;
    line_style style = line_style::solid;
    bool operator==(const pen&) const = default;
};

// The texts and corners of operations are only looked at here: the drawing that they belong to, and every copy of it,
// keeps them until it is emptied.

// A line of text; (x, y) is its top-left corner, the size is in points. Drawn at 90 % of the face's width.
struct text_op {
    int x, y;
    kleur colour;
    double size;
    std::string_view text;
};

struct line_op {
    point from, to;
    cijferwerf::pen pen;
};

// A rectangle; width and height are never negative. Filled, it is all of the pen's colour, at least a hairline thick.
struct box_op {
    int x, y, width, height;
    cijferwerf::pen pen;
    bool filled;
};

// A circle, an ellipse, or the sector of one from start over sweep degrees, counter-clockwise from three o'clock.
// A sweep of 360 is the whole; a sector's outline includes its two radii.
struct circle_op {
    point centre;
    int radius_x, radius_y;
    cijferwerf::pen pen;
    bool filled;
    double start, sweep;
};

struct polygon_op {
    std::span<const point> corners;
    cijferwerf::pen pen;
    bool filled;
};

// A picture file, by bare name, that fills the whole box.
struct picture_op {
    std::string_view file;
};

using drawing_op = std::variant<text_op, line_op, box_op, circle_op, polygon_op, picture_op>;

// Advance width in twips of a text at so many points, at the 90 % at which picture text is set
// (pass 1.0 for the face's own width). Source: the advance widths that Arial, Helvetica and Liberation Sans share.
int text_width(std::string_view text, double points, double stretch = 0.9);
// The same of its bold face, at the face's own width.
int bold_text_width(std::string_view text, double points);

// Height in twips of a line of text, from its top to its bottom, and of the top of its digits below that top.
constexpr int text_height(double points) { return static_cast<int>(points * 20 * 1.149 + 0.5); }
constexpr int digit_top(double points) { return static_cast<int>(points * 20 * 0.212 + 0.5); }

// What operations (from the first up to, not including, the end) show, in a sentence of its own for who cannot see
// them: it is read in place of the texts among them.
struct spoken_part {
    std::size_t first, end;
    std::string_view sentence; // that the drawing keeps, or of the program
};

class drawing {
public:
    static constexpr int inner_width = 5380;
    static constexpr int inner_height = 2130;

    int full_height = inner_height; // of what is seen, where that is more than a picture box of the usual shape
    kleur ground = wit;
    const kleurtabel* colours = &kleur_rgb; // what the palette's indices mean here

    const std::vector<drawing_op>& operations() const { return operations_; }
    std::vector<spoken_part> spoken;

    // What the following operations draw with, unless they say otherwise.
    kleur fore_colour = zwart;
    double text_size = 8; // points
    int line_width = 1;   // pixels at 96 dpi
    line_style style = line_style::solid;

    // White, empty, black on it, 8 points, thin solid lines, position at the top left.
    void reset();
    // Empties the list and leaves everything else as it is.
    void clear();

    // A line glued as by regel() that stays while this drawing, or a copy of it, is not emptied.
    std::string_view keep(std::initializer_list<regeldeel> parts) { return kept().plak(parts); }

    // The position: where print() puts the top-left corner of the next line.
    int x() const { return x_ + text_width(printed_, printed_size_); }
    int y() const { return y_; }
    void move_to(int left, int top);

    // Prints one line at the current position, which then moves to the end of the text.
    void print(std::string_view text);
    void print_at(int left, int top, std::string_view text);
    // The same with the middle, or the right end, of the text at the given x.
    void print_centred(int middle, int top, std::string_view text);
    void print_right(int right, int top, std::string_view text);

    void line(int x1, int y1, int x2, int y2, kleur with);
    // A width or height may be negative: the box then lies left of, or above, (left, top).
    void box(int left, int top, int box_width, int box_height, kleur with);
    void filled_box(int left, int top, int box_width, int box_height, kleur with);
    void circle(int centre_x, int centre_y, int radius, kleur with);
    void filled_circle(int centre_x, int centre_y, int radius, kleur with);
    void ellipse(int centre_x, int centre_y, int radius_x, int radius_y, kleur with, bool filled);
    // Degrees, counter-clockwise from three o'clock.
    void sector(int centre_x, int centre_y, int radius, double start, double sweep, kleur with, bool filled);
    void polygon(std::span<const point> corners, kleur with, bool filled);
    void polygon(std::initializer_list<point> corners, kleur with, bool filled);
    // Fills the whole box with the picture of this bare file name.
    void picture(std::string_view file);

private:
    cijferwerf::pen pen(kleur with) const { return {with, line_width, style}; }
    void add_box(int left, int top, int box_width, int box_height, kleur with, bool filled);
    kladblok& kept();

    std::vector<drawing_op> operations_;
    std::shared_ptr<kladblok> kept_; // copies share it: what stands in it never changes
    int x_ = 0;                      // where what was printed last begins, ...
    int y_ = 0;
    std::string_view printed_; // ... which is not measured until it matters
    double printed_size_ = 0;
};

} // namespace cijferwerf
