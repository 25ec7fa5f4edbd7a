#include "runtime/picture_box.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace cijferwerf {

namespace {

// Advance widths of Latin-1 from the blank on, in 1/2048 of the font size.
using face_widths = std::array<int, 224>;
constexpr face_widths regular_widths{
    569,  569,  727,  1139, 1139, 1821, 1366, 391,  682,  682,  797,  1196, 569,  682,  569,  569,  1139, 1139, 1139,
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 569,  569,  1196, 1196, 1196, 1139, 2079, 1366, 1366, 1479, 1479, 1366,
    1251, 1593, 1479, 569,  1024, 1366, 1139, 1706, 1479, 1593, 1366, 1593, 1479, 1366, 1251, 1479, 1366, 1933, 1366,
    1366, 1251, 569,  569,  569,  961,  1139, 682,  1139, 1139, 1024, 1139, 1139, 569,  1139, 1139, 455,  455,  1024,
    455,  1706, 1139, 1139, 1139, 1139, 682,  1024, 569,  1139, 1024, 1479, 1024, 1024, 1024, 684,  532,  684,  1196,
    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,
    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    569,  682,  1139, 1139, 1139,
    1139, 532,  1139, 682,  1509, 758,  1139, 1196, 682,  1509, 1131, 819,  1124, 682,  682,  682,  1180, 1100, 569,
    682,  682,  748,  1139, 1708, 1708, 1708, 1251, 1366, 1366, 1366, 1366, 1366, 1366, 2048, 1479, 1366, 1366, 1366,
    1366, 569,  569,  569,  569,  1479, 1479, 1593, 1593, 1593, 1593, 1593, 1196, 1593, 1479, 1479, 1479, 1479, 1366,
    1366, 1251, 1139, 1139, 1139, 1139, 1139, 1139, 1821, 1024, 1139, 1139, 1139, 1139, 569,  569,  569,  569,  1139,
    1139, 1139, 1139, 1139, 1139, 1139, 1124, 1251, 1139, 1139, 1139, 1139, 1024, 1139, 1024,
};
constexpr face_widths bold_widths{
    569,  682,  971,  1139, 1139, 1821, 1479, 487,  682,  682,  797,  1196, 569,  682,  569,  569,  1139, 1139, 1139,
    1139, 1139, 1139, 1139, 1139, 1139, 1139, 682,  682,  1196, 1196, 1196, 1251, 1997, 1479, 1479, 1479, 1479, 1366,
    1251, 1593, 1479, 569,  1139, 1479, 1251, 1706, 1479, 1593, 1366, 1593, 1479, 1366, 1251, 1479, 1366, 1933, 1366,
    1366, 1251, 682,  569,  682,  1196, 1139, 682,  1139, 1251, 1139, 1251, 1139, 682,  1251, 1251, 569,  569,  1139,
    569,  1821, 1251, 1251, 1251, 1251, 797,  1139, 682,  1251, 1139, 1593, 1139, 1139, 1024, 797,  573,  797,  1196,
    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,
    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    0,    569,  682,  1139, 1139, 1139,
    1139, 573,  1139, 682,  1509, 758,  1139, 1196, 682,  1509, 1131, 819,  1124, 682,  682,  682,  1180, 1139, 569,
    682,  682,  748,  1139, 1708, 1708, 1708, 1251, 1479, 1479, 1479, 1479, 1479, 1479, 2048, 1479, 1366, 1366, 1366,
    1366, 569,  569,  569,  569,  1479, 1479, 1593, 1593, 1593, 1593, 1593, 1196, 1593, 1479, 1479, 1479, 1479, 1366,
    1366, 1251, 1139, 1139, 1139, 1139, 1139, 1139, 1821, 1139, 1139, 1139, 1139, 1139, 569,  569,  569,  569,  1251,
    1251, 1251, 1251, 1251, 1251, 1251, 1124, 1251, 1251, 1251, 1251, 1251, 1139, 1251, 1139,
};
constexpr int ellipsis_width = 2048;
constexpr int other_width = 1139; // the width of a digit, and of the euro sign

// Takes one UTF-8 character off the front; a malformed byte counts as a character of its own.
char32_t take_character(std::string_view& text) {
    const auto byte = [&text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned lead = byte(0);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
    if (length > text.size() || length == 1) {
        text.remove_prefix(1);
        return lead;
    }
    char32_t character = lead & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) character = (character << 6) | (byte(i) & 0x3FU);
    text.remove_prefix(length);
    return character;
}

int width_in(const face_widths& widths, std::string_view text, double points) {
    int units = 0;
    while (!text.empty()) {
        if (const unsigned at = static_cast<unsigned char>(text.front()) - 0x20U; at < 0x60) {
            units += widths[at];
            text.remove_prefix(1);
            continue;
        }
        const char32_t character = take_character(text);
        const bool listed = character >= 0x20 && character < 0x20 + widths.size();
        units += listed ? widths[character - 0x20] : character == U'…' ? ellipsis_width : other_width;
    }
    const double width = units / 2048.0 * points * 20;
    const int whole = static_cast<int>(width);
    return width - whole < 0.5 ? whole : whole + 1;
}

} // namespace

int text_width(std::string_view text, double points, double stretch) {
    return width_in(regular_widths, text, points * stretch);
}

int bold_text_width(std::string_view text, double points) { return width_in(bold_widths, text, points); }

void drawing::reset() {
    move_to(0, 0);
    clear();
    ground = wit;
    fore_colour = zwart;
    text_size = 8;
    line_width = 1;
    style = line_style::solid;
}

void drawing::clear() {
    move_to(x(), y_);
    operations_.clear();
    spoken.clear();
    if (kept_.use_count() == 1)
        kept_->vergeet();
    else
        kept_ = nullptr;
}

kladblok& drawing::kept() {
    if (kept_ == nullptr) kept_.reset(new kladblok); // which make_shared would fill with zeros first
    return *kept_;
}

void drawing::move_to(int left, int top) {
    x_ = left;
    y_ = top;
    printed_ = {};
}

void drawing::print(std::string_view text) { print_at(x(), y_, text); }

void drawing::print_at(int left, int top, std::string_view text) {
    x_ = left;
    y_ = top;
    printed_ = keep({text});
    printed_size_ = text_size;
    operations_.emplace_back(text_op{left, top, fore_colour, text_size, printed_});
}

void drawing::print_centred(int middle, int top, std::string_view text) {
    print_at(middle - text_width(text, text_size) / 2, top, text);
}

void drawing::print_right(int right, int top, std::string_view text) {
    print_at(right - text_width(text, text_size), top, text);
}

void drawing::line(int x1, int y1, int x2, int y2, kleur with) {
    operations_.emplace_back(line_op{{x1, y1}, {x2, y2}, pen(with)});
}

void drawing::add_box(int left, int top, int box_width, int box_height, kleur with, bool filled) {
    operations_.emplace_back(box_op{std::min(left, left + box_width), std::min(top, top + box_height),
                                    std::abs(box_width), std::abs(box_height), pen(with), filled});
}

void drawing::box(int left, int top, int box_width, int box_height, kleur with) {
    add_box(left, top, box_width, box_height, with, false);
}

void drawing::filled_box(int left, int top, int box_width, int box_height, kleur with) {
    add_box(left, top, box_width, box_height, with, true);
}

void drawing::circle(int centre_x, int centre_y, int radius, kleur with) {
    ellipse(centre_x, centre_y, radius, radius, with, false);
}

void drawing::filled_circle(int centre_x, int centre_y, int radius, kleur with) {
    ellipse(centre_x, centre_y, radius, radius, with, true);
}

void drawing::ellipse(int centre_x, int centre_y, int radius_x, int radius_y, kleur with, bool filled) {
    operations_.emplace_back(circle_op{{centre_x, centre_y}, radius_x, radius_y, pen(with), filled, 0, 360});
}

void drawing::sector(int centre_x, int centre_y, int radius, double start, double sweep, kleur with, bool filled) {
    operations_.emplace_back(circle_op{{centre_x, centre_y}, radius, radius, pen(with), filled, start, sweep});
}

void drawing::polygon(std::span<const point> corners, kleur with, bool filled) {
    operations_.emplace_back(polygon_op{kept().bewaar(corners), pen(with), filled});
}

void drawing::polygon(std::initializer_list<point> corners, kleur with, bool filled) {
    polygon(std::span(corners.begin(), corners.size()), with, filled);
}

void drawing::picture(std::string_view file) { operations_.emplace_back(picture_op{keep({file})}); }

} // namespace cijferwerf
