// How every control looks, in every state: which boxes, texts and drawings show it, and in which colours.
// What a control says and where it stands is the form's; replaying the boxes and texts is a front end's.
#pragma once

#include "runtime/form.h"
#include "runtime/scene.h"

namespace cijferwerf {

namespace look {

inline constexpr rgb24 ground = 0xE9EEF5, // of a form
    paper = 0xFFFFFF,                     // of panels and cards
    quiet = 0xF3F5F8,                     // of what waits, or is off
    group = 0xDFE6F0,                     // of a panel with a name, on which cards stand
    ink = 0x17202E, soft = 0x4A5768, grey = 0x5C6878, edge = 0x71829A, accent = 0x1D4E9E, dark = 0x143978,
                       darkest = 0x0F2C5E, tint = 0xE4EDFB, pressed = 0xCADBF6, green = 0x17703A, green_tint = 0xE7F4EA,
                       red = 0xA8261F, red_tint = 0xFBECEA, tried = 0xFDF6F5, tried_edge = 0xB5645E,
                       off_edge = 0xC3CCD8, off_box = 0xE6EAF0, navy = 0x14306B, keypad = 0xEDF1F6, display = 0xF4F9F1,
                       key_edge = 0x5B79B0, clear_fill = 0xFFF7EC, clear_hovered = 0xFFEACB, clear_edge = 0x9A6B2B,
                       clear_text = 0x7A4A00;

// The face, by the first of these that there is: their widths are the same (see text_width).
inline constexpr std::array font_families{"Liberation Sans", "Arial", "Helvetica"};
// Of a line of text, above its baseline and below it, in parts of its size.
inline constexpr double ascent = 0.905, descent = 0.212;
inline constexpr int largest_corner = 180; // twips, of a panel or a card
// What lies behind a message box is covered with ink to this part.
inline constexpr float box_shade = 0.45F;

} // namespace look

// What the desktop asks of every program.
struct look_settings {
    bool high_contrast = false; // edges in ink, no tints
    bool larger_text = false;   // as far as there is room
    bool operator==(const look_settings&) const = default;
};

// What pointer and keyboard do to a control; whether it is enabled or chosen it says itself.
struct control_state {
    bool hovered = false, pressed = false, focused = false;
};

// A bold text in lines of at most this width in twips, at least one, broken between words and at carriage returns.
std::vector<std::string> bold_lines(std::string_view text, double points, int width);

// A control with its top-left corner at the origin; of a list the panel only.
scene face_of(const form& on, const control& shown, control_state now = {}, look_settings with = {});

// A row of a list: where it stands in the list, and what it looks like there.
place row_place(const list_box& list, int row);
scene row_of(const form& on, const list_box& list, int row, bool hovered = false, look_settings with = {});

// The same of a control at rest, a list with all its rows.
scene full_face_of(const form& on, const control& shown, look_settings with = {});

// Behind the controls: the ground, and the bar across the top, which goes on to the edges of the window.
struct backdrop {
    rgb24 ground, bar;
    int bar_height; // twips from the form's top, 0 where there is none
    bool operator==(const backdrop&) const = default;
};
backdrop backdrop_of(const form& of, look_settings with = {});

// A form as a whole, nothing hovered: its ground and all that is visible, in the order of its controls.
scene scene_of(const form& shown, look_settings with = {});

} // namespace cijferwerf
