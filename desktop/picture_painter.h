// Paints a drawing at any scale with any painter: on the screen, on a button, on paper.
// What is drawn is the drawing's; this only replays its operations.
#pragma once

#include "runtime/picture_box.h"

#include <QImage>
#include <QPainter>

namespace cijferwerf {

// The face in which everything is set. Its pixel size is in twips: paint with the painter scaled to twips, and the
// text has the same proportions at every scale (Qt rounds the sizes of fonts to whole pixels).
QFont twip_font(double points, bool bold = false);

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
