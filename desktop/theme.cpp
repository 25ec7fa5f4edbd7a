#include "desktop/theme.h"

#include "runtime/drawn.h"

#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace cijferwerf::theme {

namespace {

class replay {
public:
    replay(QPainter& on, QPointF origin, double unit, picture_cache& pictures)
        : on_(on),
          origin_(origin),
          unit_(unit),
          pictures_(pictures),
          pixels_(on.device()->devicePixelRatioF()) {}

    void operator()(const scene_box& box) {
        const QRectF outer = on_pixels(box.at);
        if (box.radius == 0 && !box.edge) return on_.fillRect(outer, colour(*box.fill));
        const double thick = std::max(1.0, std::round(box.thick * unit_ * pixels_)) / pixels_;
        const double inset = box.edge ? thick / 2 : 0;
        on_.setPen(box.edge ? QPen(colour(*box.edge), thick, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin) : Qt::NoPen);
        on_.setBrush(box.fill ? QBrush(colour(*box.fill)) : Qt::NoBrush);
        const QRectF inner = outer.adjusted(inset, inset, -inset, -inset);
        const double radius = std::max(0.0, box.radius * unit_ - inset);
        if (box.radius == 0)
            on_.drawRect(inner);
        else if (box.rounded == round_corners::all)
            on_.drawRoundedRect(inner, radius, radius);
        else
            draw_half_rounded(inner, radius, box.rounded);
    }

    void operator()(const scene_text& text) { paint_text(on_, text, origin_, {unit_, unit_}); }

    void operator()(const scene_stroke& stroke) {
        on_.setPen(QPen(colour(stroke.colour), stroke.thick * unit_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        QPolygonF through;
        for (const point& each : stroke.points) through << place_of(each.x, each.y);
        on_.drawPolyline(through);
    }

    void operator()(const scene_drawing& drawn) {
        if (drawn.whole) return paint_drawing(on_, *drawn.shown, on_pixels(drawn.at), pictures_);
        const place bounds = drawn_bounds(*drawn.shown);
        if (bounds.width <= 0 || bounds.height <= 0) return;
        const double scale =
            unit_ * std::min(1.0 * drawn.at.width / bounds.width, 1.0 * drawn.at.height / bounds.height);
        const QPointF middle =
            place_of(drawn.at.left, drawn.at.top) + QPointF(drawn.at.width, drawn.at.height) * unit_ / 2;
        const QPointF corner =
            middle - QPointF(bounds.left + bounds.width / 2.0, bounds.top + bounds.height / 2.0) * scale;
        paint_operations(on_, *drawn.shown,
                         QRectF(corner, QSizeF(drawing::inner_width, drawn.shown->full_height) * scale), pictures_);
    }

private:
    QPointF place_of(int x, int y) const { return origin_ + QPointF(x, y) * unit_; }
    QRectF on_pixels(const place& at) const {
        const auto snapped = [this](QPointF corner) {
            return QPointF(std::round(corner.x() * pixels_), std::round(corner.y() * pixels_)) / pixels_;
        };
        return {snapped(place_of(at.left, at.top)), snapped(place_of(at.right(), at.bottom()))};
    }
    // Round at one side, straight at the other.
    void draw_half_rounded(const QRectF& box, double radius, round_corners rounded) {
        on_.save();
        on_.setClipRect(box, Qt::IntersectClip);
        on_.drawRoundedRect(box.adjusted(0, 0, rounded == round_corners::left ? 2 * radius : 0,
                                         rounded == round_corners::top ? 2 * radius : 0),
                            radius, radius);
        on_.restore();
    }

    QPainter& on_;
    const QPointF origin_;
    const double unit_;
    picture_cache& pictures_;
    const double pixels_; // device pixels per painter's coordinate
};

} // namespace

void paint(QPainter& on, const scene& shown, QPointF origin, double unit, picture_cache& pictures) {
    on.setRenderHint(QPainter::Antialiasing);
    replay each(on, origin, unit, pictures);
    for (const scene_op& op : shown) std::visit(each, op);
}

} // namespace cijferwerf::theme
