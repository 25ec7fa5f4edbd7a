// What is to be seen, as a short list of boxes, lines of text, strokes and drawings in twips and colours.
// What a control should look like is the look's; a front end replays the list at its own scale.
#pragma once

#include "runtime/picture_box.h"
#include "runtime/place.h"

#include <optional>

namespace cijferwerf {

using rgb24 = std::uint32_t; // 0xRRGGBB

enum class round_corners : std::uint8_t { all, left, top };

// The edge lies inside the box and is at least a pixel thick. With a radius of half its size a box is a disc.
struct scene_box {
    place at;
    int radius = 0;
    std::optional<rgb24> fill, edge = std::nullopt;
    int thick = 15;
    round_corners rounded = round_corners::all;
    bool operator==(const scene_box&) const = default;
};

// One line of text, from x on, on its baseline.
struct scene_text {
    int x, baseline;
    double points;
    bool bold;
    rgb24 colour;
    std::string text;
    int spacing = 0; // between the letters
    bool operator==(const scene_text&) const = default;
};

// A line through these points, with round ends and corners.
struct scene_stroke {
    std::vector<point> points;
    rgb24 colour;
    int thick;
    bool operator==(const scene_stroke&) const = default;
};

// A drawing that lives elsewhere: whole, on its ground, filling the place; or only what is drawn on it, as large as the
// place has room for and in its middle.
struct scene_drawing {
    place at;
    const drawing* shown;
    bool whole;
    bool operator==(const scene_drawing&) const = default;
};

using scene_op = std::variant<scene_box, scene_text, scene_stroke, scene_drawing>;
using scene = std::vector<scene_op>;

void move(scene& moved, int right, int down);

} // namespace cijferwerf
