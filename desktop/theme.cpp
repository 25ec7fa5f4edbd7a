#include "desktop/theme.h"

#include <algorithm>
#include <cmath>

namespace cijferwerf::theme {

namespace {

constexpr QColor ink(0x1B, 0x27, 0x36);
constexpr QColor accent_dark(0x14, 0x39, 0x78);
constexpr QColor tint(0xDF, 0xEA, 0xFA);
constexpr QColor tint_edge(0x9C, 0xB9, 0xE4);
constexpr QColor tint_pressed(0xC4, 0xD8, 0xF5);
constexpr QColor readout_fill(0xEE, 0xF5, 0xEC);
constexpr QColor grey_fill(0xEE, 0xF1, 0xF5);
constexpr QColor grey_edge(0xDA, 0xE1, 0xE9);
constexpr QColor grey_ink(0x62, 0x6C, 0x79);

constexpr double readable = 4.5; // least contrast of a text with its ground

struct look {
    QColor text = ink;
    QColor fill = Qt::transparent;
    QColor edge = Qt::transparent;
    int radius = 75; // twips, of the corners
};

double luminance(QColor colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

look at_rest(const control& shown) {
    using enum theme_role;
    switch (shown.role) {
    case title: return {.text = accent};
    case heading: return {.text = paper};
    case heading_bar: return {.fill = accent, .radius = 0};
    case panel: return {.text = accent, .fill = paper, .edge = edge, .radius = 120};
    case prompt:
    case message_heading: return {.text = accent};
    case hint: return {.text = paper, .fill = ink};
    case answer_button: return {.text = accent, .fill = tint, .edge = tint_edge, .radius = 105};
    case main_action: return {.text = paper, .fill = accent, .edge = accent, .radius = 105};
    case action: return {.text = accent, .fill = paper, .edge = tint_edge, .radius = 105};
    case choice: return {.text = ink, .fill = paper, .edge = tint_edge, .radius = 120};
    case key: return {.text = ink, .fill = paper, .edge = edge};
    case operator_key: return {.text = accent, .fill = tint, .edge = tint_edge};
    case readout: return {.text = ink, .fill = readout_fill, .edge = edge};
    default: return {};
    }
}

look look_of(const control& shown, const state& now) {
    look drawn = at_rest(shown);
    if (shown.colour)
        drawn.text = shown.role == theme_role::heading ? QColor(kleur_rgb[*shown.colour]) : text_colour(*shown.colour);
    if (!now.enabled) {
        drawn.text = grey_ink;
        if (shown.is_button()) drawn.fill = grey_fill, drawn.edge = grey_edge;
    } else if (shown.is_button()) {
        if (shown.role == theme_role::main_action) {
            if (now.hovered || now.pressed) drawn.fill = drawn.edge = accent_dark;
        } else if (now.pressed)
            drawn.fill = tint_pressed;
        else if (now.hovered || now.selected)
            drawn.fill = tint == drawn.fill ? tint_pressed : tint;
        if (now.selected || now.hovered) drawn.edge = accent;
    } else if (now.hovered && shown.click)
        drawn.text = accent;
    return drawn;
}

// A box with round corners whose edge lies on whole pixels; the edge is as thick as these twips, at least a pixel.
void paint_box(QPainter& on, const QRectF& box, const look& drawn, double unit, int edge_twips) {
    const double thick = std::max(1.0, std::round(edge_twips * unit));
    const bool edged = drawn.edge.alpha() != 0;
    const double inset = edged ? thick / 2 : 0;
    on.setPen(edged ? QPen(drawn.edge, thick) : QPen(Qt::NoPen));
    on.setBrush(drawn.fill.alpha() != 0 ? QBrush(drawn.fill) : QBrush(Qt::NoBrush));
    const QRectF inner = box.adjusted(inset, inset, -inset, -inset);
    if (drawn.radius == 0)
        on.drawRect(inner);
    else
        on.drawRoundedRect(inner, drawn.radius * unit, drawn.radius * unit);
}

void paint_focus(QPainter& on, const QRectF& box, const look& drawn, double unit) {
    const double away = std::max(2.0, std::round(30 * unit));
    paint_box(on, box.adjusted(away, away, -away, -away),
              {.fill = Qt::transparent,
               .edge = drawn.fill == accent || drawn.fill == accent_dark ? paper : accent,
               .radius = std::max(0, drawn.radius - 30)},
              unit, 30);
}

void paint_text(QPainter& on, const QRectF& box, double unit, int flags, const QString& text, const QFont& with,
                QColor colour) {
    if (text.trimmed().isEmpty()) return; // so that no face is loaded for a blank line
    on.save();
    on.translate(box.topLeft());
    on.scale(unit, unit);
    on.setFont(with);
    on.setPen(colour);
    on.drawText(QRectF(0, 0, box.width() / unit, box.height() / unit), flags, text);
    on.restore();
}

// The drawing of a button: at the left of a wide one, above the caption of any other. Takes its room off the box.
void paint_mark(QPainter& on, const drawing& mark, QRectF& box, double unit, double caption_height) {
    constexpr double shape = static_cast<double>(drawing::inner_width) / drawing::inner_height;
    const double gap = 90 * unit;
    QRectF room = box.adjusted(gap, gap, -gap, -gap);
    const bool beside = caption_height > 0 && box.width() > 5 * box.height();
    const double height = std::min(room.height() - (beside ? 0 : caption_height * unit + gap), room.width() / shape);
    const QRectF drawn(beside ? room.left() : room.center().x() - height * shape / 2,
                       beside ? room.center().y() - height / 2 : room.top(), height * shape, height);
    picture_cache none;
    paint_operations(on, mark, drawn, none);
    if (beside)
        box.setLeft(drawn.right());
    else
        box.setTop(drawn.bottom());
}

const drawing* mark_of(const control& shown) {
    const auto* marked = shown.kind == control_kind::button          ? &static_cast<const button&>(shown).mark
                         : shown.kind == control_kind::option_button ? &static_cast<const option_button&>(shown).mark
                                                                     : nullptr;
    return marked != nullptr && *marked ? &**marked : nullptr;
}

// Where the caption of a control stands in its box.
int alignment(const control& shown) {
    if (shown.is_button()) return Qt::AlignCenter;
    if (shown.kind == control_kind::label && static_cast<const label&>(shown).right_aligned)
        return Qt::AlignRight | Qt::AlignVCenter;
    if (shown.role == theme_role::title) return Qt::AlignHCenter | Qt::AlignVCenter;
    // A text of several lines starts at the top of its box.
    const bool tall = shown.height > 3.5 * text_height(shown.font_size);
    return Qt::AlignLeft | (tall ? Qt::AlignTop : Qt::AlignVCenter);
}

} // namespace

QPalette palette() {
    QPalette colours(paper, ground);
    colours.setColor(QPalette::WindowText, ink);
    colours.setColor(QPalette::Text, ink);
    colours.setColor(QPalette::ButtonText, ink);
    colours.setColor(QPalette::Base, paper);
    colours.setColor(QPalette::Highlight, accent);
    colours.setColor(QPalette::HighlightedText, paper);
    return colours;
}

QColor text_colour(kleur colour) {
    QColor text(kleur_rgb[colour]);
    while (1.05 / (luminance(text) + 0.05) < readable) text = text.darker(108);
    return text;
}

int padding(const control& shown) {
    using enum theme_role;
    if (shown.role == answer_button) return 0; // its letter stands in the middle
    const bool edged = shown.is_button() || shown.role == readout || shown.role == hint ||
                       shown.kind == control_kind::list_box || shown.kind == control_kind::frame;
    return edged ? 105 : 0;
}

QFont font(const control& shown) {
    using enum theme_role;
    switch (shown.role) {
    case title:
    case heading:
    case prompt:
    case panel:
    case message_heading:
    case verdict:
    case answer_button:
    case main_action:
    case operator_key: return twip_font(shown.font_size, true);
    default: return twip_font(shown.font_size);
    }
}

void paint(QPainter& on, const control& shown, const QString& caption, QSizeF size, double unit, state now) {
    on.setRenderHint(QPainter::Antialiasing);
    const look drawn = look_of(shown, now);
    QRectF box(QPointF(0, 0), size);
    paint_box(on, box, drawn, unit, now.selected ? 30 : 15);
    if (now.focused) paint_focus(on, box, drawn, unit);
    if (const drawing* mark = mark_of(shown)) {
        const auto lines = caption.isEmpty() ? 0 : 1 + caption.count('\n');
        paint_mark(on, *mark, box, unit, static_cast<double>(lines) * text_height(shown.font_size));
    }
    if (caption.isEmpty()) return;

    const double side = padding(shown) * unit;
    const double top = shown.kind == control_kind::frame ? side / 2 : 0;
    int flags = alignment(shown);
    if (shown.is_button()) flags |= Qt::TextShowMnemonic;
    if (shown.height > 2.5 * text_height(shown.font_size)) flags |= Qt::TextWordWrap;
    paint_text(on, box.adjusted(side, top, -side, 0), unit, flags, caption, font(shown), drawn.text);
}

void paint_entry(QPainter& on, const control& list, const QString& text, const QRectF& box, double unit, state now) {
    look drawn{.text = now.enabled ? ink : grey_ink};
    if (now.selected)
        drawn = {.text = now.enabled ? paper : grey_ink, .fill = now.enabled ? accent : grey_edge};
    else if (now.hovered && now.enabled)
        drawn.fill = tint;
    on.setRenderHint(QPainter::Antialiasing);
    const double gap = std::max(1.0, std::round(15 * unit));
    paint_box(on, box.adjusted(gap, 0, -gap, 0), drawn, unit, 15);
    const double side = padding(list) * unit;
    paint_text(on, box.adjusted(side, 0, 0, 0), unit, Qt::AlignLeft | Qt::AlignVCenter, text, font(list), drawn.text);
}

void paint_edge(QPainter& on, const QRectF& box, double unit, state now) {
    on.setRenderHint(QPainter::Antialiasing);
    paint_box(on, box, {.fill = now.enabled ? paper : grey_fill, .edge = now.focused ? accent : edge, .radius = 105},
              unit, now.focused ? 30 : 15);
}

} // namespace cijferwerf::theme
