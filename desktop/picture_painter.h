// Paints a drawing at any scale with any painter: on the screen, on a button, on paper.
// What is drawn is the drawing's; this only replays its operations.
#pragma once

#include "runtime/scene.h"

#include <QImage>
#include <QPainter>

namespace cijferwerf {

// The face in which everything is set, in one size for all texts: the painter is scaled for each. So a text has the
// same proportions at every scale (Qt rounds the sizes of fonts to whole pixels), and what is costly about a font,
// asking the machine how it is to be drawn, is done once.
inline constexpr int face_size = 256; // pixels; at this size all widths are exact
const QFont& face(bool bold = false);

// Paints a line of text; a twip from the origin is so large in the painter's coordinates.
void paint_text(QPainter& on, const scene_text& text, QPointF origin, QSizeF twip);

// The picture file that was painted last, scaled to the size in which it was painted.
class picture_cache {
public:
    // The picture of this bare name in this size in pixels; a null image when there is none or it is unreadable.
    const QImage& scaled(const std::string& file, QSize size);

private:
    std::string file_;
    QSize size_;
    QImage image_;
};

// Fills this box, whose coordinates are the painter's, with the drawing. Nothing is painted outside it.
void paint_drawing(QPainter& on, const drawing& shown, const QRectF& box, picture_cache& pictures);
// The same without the drawing's ground, on what is there.
void paint_operations(QPainter& on, const drawing& shown, const QRectF& box, picture_cache& pictures);

} // namespace cijferwerf
