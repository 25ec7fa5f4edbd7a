#include "desktop/picture_painter.h"

#include "desktop/shipped.h"
#include "runtime/drawn.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace cijferwerf {

namespace {

QColor rgb(const drawing& shown, kleur colour) { return QColor::fromRgb(colour_on(shown, colour)); }

Qt::PenStyle pen_style(const pen& with) {
    switch (style_of(with)) {
    case line_style::dash: return Qt::DashLine;
    case line_style::dot: return Qt::DotLine;
    case line_style::dash_dot: return Qt::DashDotLine;
    case line_style::dash_dot_dot: return Qt::DashDotDotLine;
    case line_style::transparent: return Qt::NoPen;
    default: return Qt::SolidLine;
    }
}

// Paints the operations one by one. Edges that run along the axes are laid on whole device pixels, so that they are
// sharp and boxes that touch leave no gap.
class replay {
public:
    replay(QPainter& on, const drawing& shown, const QRectF& box, picture_cache& pictures)
        : on_(on),
          shown_(shown),
          box_(box),
          pictures_(pictures),
          unit_(box.width() / drawing::inner_width),
          unit_down_(box.height() / shown.full_height),
          pixels_(on.device()->devicePixelRatioF()) {}

    void operator()(const text_op& op) {
        paint_text(on_, line_of(shown_, op), place({op.x, op.y}), {unit_ * narrowing, unit_down_});
    }

    void operator()(const line_op& op) {
        take_up(op.pen, false);
        QPointF from = place(op.from);
        QPointF to = place(op.to);
        if (op.from.y == op.to.y)
            from = {snapped(from.x()), on_pixels(op.from, op.pen).y()}, to = {snapped(to.x()), from.y()};
        else if (op.from.x == op.to.x)
            from = {on_pixels(op.from, op.pen).x(), snapped(from.y())}, to = {from.x(), snapped(to.y())};
        on_.drawLine(from, to);
    }

    void operator()(const box_op& op) {
        const point far_corner{op.x + op.width, op.y + op.height};
        if (op.filled) {
            const QPointF from = snapped(place({op.x, op.y}));
            const QPointF to = snapped(place(far_corner));
            const QSizeF size(std::max(to.x() - from.x(), 1 / pixels_), std::max(to.y() - from.y(), 1 / pixels_));
            on_.fillRect(QRectF(from, size), rgb(shown_, op.pen.colour));
        } else {
            take_up(op.pen, false);
            on_.drawRect(QRectF(on_pixels({op.x, op.y}, op.pen), on_pixels(far_corner, op.pen)));
        }
    }

    void operator()(const circle_op& op) {
        take_up(op.pen, op.filled);
        const QPointF radius(op.radius_x * unit_, op.radius_y * unit_down_);
        const QRectF around(place(op.centre) - radius, place(op.centre) + radius);
        if (std::abs(op.sweep) >= 360)
            on_.drawEllipse(around);
        else
            on_.drawPie(around, static_cast<int>(std::lround(op.start * 16)),
                        static_cast<int>(std::lround(op.sweep * 16)));
    }

    void operator()(const polygon_op& op) {
        take_up(op.pen, op.filled);
        QPolygonF corners;
        for (const point& corner : op.corners) corners << place(corner);
        on_.drawPolygon(corners);
    }

    void operator()(const picture_op& op) {
        const QSize size = (box_.size() * pixels_).toSize();
        const QImage& image = pictures_.scaled(std::string(op.file), size);
        if (!image.isNull()) {
            on_.drawImage(box_, image);
            return;
        }
        const bool dark = qGray(rgb(shown_, shown_.ground).rgb()) < 128;
        (*this)(text_op{60, 30, dark ? wit : zwart, 8.25, "plaatje ontbreekt: " + std::string(op.file)});
    }

private:
    QPointF place(point at) const { return box_.topLeft() + QPointF(at.x * unit_, at.y * unit_down_); }
    double snapped(double value) const { return std::round(value * pixels_) / pixels_; }
    QPointF snapped(QPointF at) const { return {snapped(at.x()), snapped(at.y())}; }

    // At least one device pixel, and a whole number of them.
    double thickness(const pen& with) const {
        return std::max(snapped(with.width * twips_per_pixel * unit_), 1 / pixels_);
    }
    QPointF on_pixels(point at, const pen& with) const {
        const QPointF half(thickness(with) / 2, thickness(with) / 2);
        return snapped(place(at) - half) + half;
    }
    // Filled shapes get a hairline in their own colour, which closes the seam between neighbours.
    void take_up(const pen& with, bool filled) {
        on_.setPen(QPen(rgb(shown_, with.colour), filled ? 1 / pixels_ : thickness(with),
                        filled ? Qt::SolidLine : pen_style(with), Qt::FlatCap, Qt::MiterJoin));
        on_.setBrush(filled ? QBrush(rgb(shown_, with.colour)) : QBrush(Qt::NoBrush));
    }

    QPainter& on_;
    const drawing& shown_;
    const QRectF box_;
    picture_cache& pictures_;
    const double unit_;      // painter's coordinates per twip
    const double unit_down_; // the same downward: a box of whole pixels is not quite in proportion
    const double pixels_;    // device pixels per painter's coordinate
};

} // namespace

const QFont& face(bool bold) {
    static auto& made = *new std::array<QFont, 2>{QFont(faces), QFont(faces)}; // outlive the application
    QFont& font = made[bold ? 1 : 0];
    if (font.pixelSize() != face_size) {
        font.setStyleHint(QFont::SansSerif);
        font.setPixelSize(face_size);
        font.setBold(bold);
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setKerning(false); // lines are laid out by adding up widths
    }
    return font;
}

void paint_text(QPainter& on, const scene_text& text, QPointF origin, QSizeF twip) {
    const double scale = text.points * 20 / face_size;
    on.save();
    on.translate(origin + QPointF(text.x * twip.width(), text.baseline * twip.height()));
    on.scale(twip.width() * scale, twip.height() * scale);
    on.setFont(face(text.bold));
    if (text.spacing != 0) {
        QFont spaced = face(text.bold);
        spaced.setLetterSpacing(QFont::AbsoluteSpacing, text.spacing / scale);
        on.setFont(spaced);
    }
    on.setPen(QColor::fromRgb(text.colour));
    on.drawText(QPointF(0, 0), QString::fromStdString(text.text));
    on.restore();
}

const QImage& picture_cache::scaled(const std::string& file, QSize size) {
    if (file == file_ && size == size_) return image_;
    file_ = file;
    size_ = size;
    image_ = QImage(shipped_file(QString::fromStdString(file)), "BMP");
    // In full colour before it is scaled: within its own few colours it would be dithered.
    if (!image_.isNull())
        image_ = image_.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                     .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image_;
}

void paint_drawing(QPainter& on, const drawing& shown, const QRectF& box, picture_cache& pictures) {
    on.save();
    on.setClipRect(box, Qt::IntersectClip);
    on.fillRect(box, rgb(shown, shown.ground));
    paint_operations(on, shown, box, pictures);
    on.restore();
}

void paint_operations(QPainter& on, const drawing& shown, const QRectF& box, picture_cache& pictures) {
    on.save();
    on.setRenderHint(QPainter::Antialiasing);
    replay each(on, shown, box, pictures);
    for (const drawing_op& op : shown.operations()) std::visit(each, op);
    on.restore();
}

} // namespace cijferwerf
