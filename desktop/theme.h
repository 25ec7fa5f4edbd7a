// How the screens look: colours, and how each kind of control is painted, at any scale.
// Where a control stands and what it says is the form's.
#pragma once

#include "desktop/picture_painter.h"
#include "runtime/control.h"

#include <QPalette>

namespace cijferwerf::theme {

inline constexpr QColor ground(0xE9, 0xF0, 0xF7);
inline constexpr QColor paper(0xFF, 0xFF, 0xFF);
inline constexpr QColor edge(0xC9, 0xD7, 0xE6);
inline constexpr QColor accent(0x1D, 0x4E, 0x9E);

// What message boxes and scroll bars are coloured with.
QPalette palette();

// A colour of the sixteen as text on a panel: darkened until it can be read there.
QColor text_colour(kleur colour);

struct state {
    bool enabled = true;
    bool hovered = false;
    bool pressed = false;
    bool focused = false;
    bool selected = false;
};

// The room between the edge of a control and its text, in twips.
int padding(const control& shown);
QFont font(const control& shown);

// Paints a control of this size in pixels, its top-left corner at the origin; unit is pixels per twip. In the caption
// "&" marks the mnemonic.
void paint(QPainter& on, const control& shown, const QString& caption, QSizeF size, double unit, state now);

// Paints an entry of a list, or the edge of a list or a picture, in the same manner.
void paint_entry(QPainter& on, const control& list, const QString& text, const QRectF& box, double unit, state now);
void paint_edge(QPainter& on, const QRectF& box, double unit, state now);

} // namespace cijferwerf::theme
