// Paints what the look says: replays a scene with the toolkit's painter, at any scale, on whole pixels.
// What there is to be seen is the look's, runtime/look.h.
#pragma once

#include "desktop/picture_painter.h"
#include "runtime/look.h"

namespace cijferwerf::theme {

inline QColor colour(rgb24 of) { return QColor::fromRgb(of); }
inline const QColor ground = colour(look::ground);

// The scene's origin is in the painter's coordinates; unit is how many of them there are to a twip.
void paint(QPainter& on, const scene& shown, QPointF origin, double unit, picture_cache& pictures);

} // namespace cijferwerf::theme
