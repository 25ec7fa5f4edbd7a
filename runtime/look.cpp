#include "runtime/look.h"

#include "runtime/drawn.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace cijferwerf {

using namespace look;

namespace {

using fill_colour = std::optional<rgb24>;
constexpr std::nullopt_t none = std::nullopt;

constexpr int hairline = 15, hovered_edge = 30, chosen_edge = 45, box_edge = 22, focus_edge = 42,
              strong_focus_edge = 51, focus_gap = 24, focus_room = 75; // above and under a larger text, together
constexpr int panel_corner = 120, button_corner = 105, menu_corner = 150, start_corner = 180, letter_corner = 90,
              key_corner = 75, row_corner = 75;
constexpr int button_padding = 105;
constexpr int list_top = 75, list_side = 60, usual_row = 420;

// A colour so many hundredths of the way from one to another.
rgb24 blend(rgb24 from, rgb24 to, int hundredths) {
    rgb24 mixed = 0;
    for (const int shift : {16, 8, 0}) {
        const int a = static_cast<int>(from >> shift & 0xFF), b = static_cast<int>(to >> shift & 0xFF);
        mixed |= static_cast<rgb24>(a + (b - a) * hundredths / 100) << shift;
    }
    return mixed;
}

// A colour of the sixteen as text on a panel: darkened until it can be read there.
rgb24 on_panel(kleur colour) {
    switch (colour) {
    case zwart: return ink;
    case donkerblauw: return navy;
    case groen: return green;
    case rood: return red;
    default: break;
    }
    rgb24 text = kleur_rgb[colour];
    while (contrast(text, quiet) < 4.5) text = blend(text, 0, 8);
    return text;
}

rgb24 colour_of(tone said, rgb24 neutral) { return said == tone::right ? green : said == tone::wrong ? red : neutral; }

// ---- shapes ----

void add_box(scene& to, place at, int radius, fill_colour fill, fill_colour edge_colour = none, int thick = hairline,
             round_corners rounded = round_corners::all) {
    to.emplace_back(scene_box{at, radius, fill, edge_colour, thick, rounded});
}

place disc_place(point centre, int radius) { return {centre.x - radius, centre.y - radius, 2 * radius, 2 * radius}; }
void add_disc(scene& to, point centre, int radius, fill_colour fill, fill_colour edge_colour = none,
              int thick = hairline) {
    add_box(to, disc_place(centre, radius), radius, fill, edge_colour, thick);
}

// Strokes through points given in hundredths of the radius from the centre.
void add_sign(scene& to, point centre, int radius, std::initializer_list<std::vector<point>> strokes, rgb24 colour,
              int thick) {
    for (std::vector<point> points : strokes) {
        for (point& each : points) each = {centre.x + each.x * radius / 100, centre.y + each.y * radius / 100};
        to.emplace_back(scene_stroke{std::move(points), colour, thick});
    }
}
void add_tick(scene& to, point centre, int radius, rgb24 disc, rgb24 sign) {
    add_disc(to, centre, radius, disc);
    add_sign(to, centre, radius, {{{-42, 4}, {-12, 34}, {44, -30}}}, sign, radius / 4);
}
void add_cross(scene& to, point centre, int radius, rgb24 disc, rgb24 sign) {
    add_disc(to, centre, radius, disc);
    add_sign(to, centre, radius, {{{-33, -33}, {33, 33}}, {{33, -33}, {-33, 33}}}, sign, radius / 4);
}
void add_verdict(scene& to, point centre, int radius, tone said) {
    if (said == tone::right) add_tick(to, centre, radius, green, paper);
    if (said == tone::wrong) add_cross(to, centre, radius, red, paper);
}

// A mark in the middle of a place that it may fill up to this size.
void add_mark(scene& to, const std::optional<drawing>& mark, place in, int most_width, int most_height) {
    if (!mark) return;
    const int width = std::min(most_width, in.width), height = std::min(most_height, in.height);
    const place at{in.left + (in.width - width) / 2, in.top + (in.height - height) / 2, width, height};
    to.emplace_back(scene_drawing{at, &*mark, false});
}

void add_focus(scene& to, place at, int radius, int thick) {
    add_box(to, at, radius, none, dark, thick);
    add_box(to, at.inset(thick), std::max(0, radius - thick), none, paper, focus_gap);
}

// ---- texts ----

struct type {
    double points;
    bool bold = false;
    rgb24 colour = ink;
    int spacing = 0;
};

enum class align : std::uint8_t { left, middle, right };

int characters_in(std::string_view text) {
    return static_cast<int>(std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }));
}
int width_in(std::string_view text, const type& set) {
    const int width = set.bold ? bold_text_width(text, set.points) : text_width(text, set.points, 1.0);
    return width + set.spacing * std::max(0, characters_in(text) - 1);
}

// The lines of a caption: ended by carriage returns, and between words where they are wider than this (0: nowhere).
std::vector<std::string> lines_of(std::string_view caption, const type& set, int width) {
    std::vector<std::string> lines{{}};
    while (!caption.empty()) {
        const std::size_t end = std::min(caption.find_first_of(" \r"), caption.size());
        const std::string_view word = caption.substr(0, end);
        std::string& line = lines.back();
        const std::size_t last = line.find_last_not_of(' ');
        if (width > 0 && last != std::string::npos && width_in(line + std::string(word), set) > width) {
            line.erase(last + 1);
            lines.emplace_back();
        }
        lines.back() += word;
        if (end < caption.size() && caption[end] == ' ') lines.back() += ' ';
        if (end < caption.size() && caption[end] == '\r') lines.emplace_back();
        caption.remove_prefix(std::min(end + 1, caption.size()));
    }
    return lines;
}

bool blank(std::string_view text) { return text.find_first_not_of(' ') == std::string_view::npos; }

// One line of text, beginning at this height; the letter that presses it is underlined.
void add_line(scene& to, place in, int top, std::string line, const type& set, align at, char mnemonic = 0) {
    if (blank(line)) return;
    const int size = static_cast<int>(std::lround(set.points * 20));
    const int room = in.width - width_in(line, set);
    const int x = in.left + (at == align::left ? 0 : at == align::middle ? room / 2 : room);
    const int baseline = top + static_cast<int>(std::lround(ascent * size));
    if (mnemonic != 0) {
        const auto meant = std::ranges::find(line, std::tolower(mnemonic),
                                             [](char c) { return std::tolower(static_cast<unsigned char>(c)); });
        if (meant != line.end()) {
            const auto before = std::string_view(line).substr(0, static_cast<std::size_t>(meant - line.begin()));
            add_box(to,
                    {x + width_in(before, set), baseline + size / 10, width_in(std::string_view(&*meant, 1), set),
                     std::max(hairline, size * 7 / 100)},
                    0, set.colour);
        }
    }
    to.emplace_back(scene_text{x, baseline, set.points, set.bold, set.colour, std::move(line), set.spacing});
}

int line_height(const type& set) { return static_cast<int>(std::lround((ascent + descent) * set.points * 20)); }

// A caption of one or more lines, in the middle of its place's height or from its top on.
void add_text(scene& to, place in, std::string_view caption, const type& set, align at, char mnemonic = 0) {
    if (blank(caption)) return;
    const int pitch = text_height(set.points);
    const bool wraps = 2 * in.height > 5 * pitch, tall = 2 * in.height > 7 * pitch;
    std::vector<std::string> lines = lines_of(caption, set, wraps ? in.width : 0);
    const int height = static_cast<int>(lines.size() - 1) * pitch + line_height(set);
    int top = in.top + (tall && at == align::left ? 0 : (in.height - height) / 2);
    for (std::string& line : lines) {
        add_line(to, in, top, std::move(line), set, at, mnemonic);
        top += pitch;
    }
}

// ---- one control ----

place box_of(const control& shown) { return {0, 0, shown.width, shown.height}; }
place place_of(const control& shown) { return {shown.left, shown.top, shown.width, shown.height}; }

// A bar, or the one at the top of a card.
place bar_of(const control& bar) {
    place at = place_of(bar);
    if (const int height = static_cast<const frame&>(bar).header_height; height > 0) at.height = height;
    return at;
}

class painter {
public:
    painter(const form& on, const control& shown, control_state now, look_settings with)
        : form_(on),
          shown_(shown),
          now_(now),
          with_(with),
          colours_(colours_of(on.about)),
          box_(box_of(shown)) {
        if (!shown.enabled) now_ = {};
    }

    scene paint() {
        switch (shown_.kind) {
        case control_kind::label: paint_label(static_cast<const label&>(shown_)); break;
        case control_kind::frame: paint_frame(static_cast<const frame&>(shown_)); break;
        case control_kind::list_box: paint_list(); break;
        case control_kind::picture_box: paint_picture(static_cast<const picture_box&>(shown_)); break;
        case control_kind::button: paint_button(static_cast<const button&>(shown_)); break;
        case control_kind::option_button: paint_option(static_cast<const option_button&>(shown_)); break;
        case control_kind::timer: break;
        }
        return std::move(made_);
    }

    void paint_row(const list_box& list, int row, bool hovered);
    scene taken() { return std::move(made_); }

private:
    struct dress { // of a button
        fill_colour fill, edge;
        rgb24 text;
        int thick = hairline;
    };

    void box(place at, int radius, fill_colour fill, fill_colour edge_colour = none, int thick = hairline,
             round_corners rounded = round_corners::all) {
        add_box(made_, at, radius, fill, edge_colour, thick, rounded);
    }
    void text(place in, std::string_view caption, const type& set, align at = align::left, char mnemonic = 0) {
        add_text(made_, in, caption, set, at, mnemonic);
    }
    void ring(int radius) {
        if (now_.focused) add_focus(made_, box_, radius, with_.high_contrast ? strong_focus_edge : focus_edge);
    }
    bool active() const { return now_.hovered || now_.pressed; }
    template<class Fits>
    double grown(double own_points, Fits fits) const;
    double points(bool bold, int room) const;
    bool on_bar() const;

    void paint_label(const label& shown);
    void paint_frame(const frame& shown);
    void paint_heading(const label& shown);
    void paint_prompt(const label& shown);
    void paint_value(const label& shown);
    void paint_list();
    void paint_picture(const picture_box& shown);
    void paint_button(const button& shown);
    void paint_plain_button(const button& shown);
    void paint_answer(const button& shown);
    void paint_menu_card(const button& shown);
    void paint_option(const option_button& shown);
    void paint_start_card(const option_button& shown);
    dress dress_of(const button& shown) const;
    dress main_dress() const;

    const form& form_;
    const control& shown_;
    control_state now_;
    const look_settings with_;
    const subject_colours& colours_;
    const place box_;
    scene made_;
};

// A size of text: this one, or, where the desktop asks for larger text, as many steps up as there is room for.
template<class Fits>
double painter::grown(double own_points, Fits fits) const {
    if (with_.larger_text)
        for (const double step : {1.3, 1.2, 1.1})
            if (fits(own_points * step)) return own_points * step;
    return own_points;
}

// Of the control's text: as large as all controls of its name and role have room for; options are all alike. Each has
// as much less room than its width as this one.
double painter::points(bool bold, int room) const {
    const int beside = box_.width - room;
    const auto alike = [this](const control& each) {
        return (each.name == shown_.name && each.role == shown_.role) ||
               (each.kind == control_kind::option_button && shown_.kind == control_kind::option_button);
    };
    return grown(shown_.font_size, [&](double tried) {
        const type set{tried, bold};
        return std::ranges::all_of(form_.controls(), [&](const control* each) {
            if (!alike(*each)) return true;
            const auto lines = lines_of(each->caption, set, 0);
            const int height = each->height - (each->is_button() ? focus_room : 0);
            return static_cast<int>(lines.size()) * text_height(tried) <= height &&
                   std::ranges::all_of(
                       lines, [&](const std::string& line) { return width_in(line, set) <= each->width - beside; });
        });
    });
}

bool painter::on_bar() const {
    return std::ranges::any_of(form_.controls(), [this](const control* each) {
        return each->role == theme_role::heading_bar && bar_of(*each).contains(place_of(shown_));
    });
}

// ---- labels ----

void painter::paint_label(const label& shown) {
    using enum theme_role;
    const align at = shown.right_aligned ? align::right : align::left;
    const auto set = [&](bool bold, rgb24 colour, int padding = 0) {
        const rgb24 said = shown.subdued ? grey : shown.colour ? on_panel(*shown.colour) : colour;
        return type{points(bold, box_.width - 2 * padding), bold, shown.enabled ? said : grey};
    };
    switch (shown.role) {
    case heading: return paint_heading(shown);
    case prompt: return paint_prompt(shown);
    case value: return paint_value(shown);
    case title: {
        type words = set(!shown.subdued, ink);
        if (shown.subdued) words.colour = soft;
        return text(box_, shown.caption, words, align::middle);
    }
    case hint:
        box(box_, key_corner, ink);
        return text(box_.inset(button_padding), shown.caption, set(false, paper, button_padding));
    case readout:
        box(box_, key_corner, display, edge);
        return text({button_padding, 0, box_.width - 2 * button_padding, box_.height}, shown.caption,
                    set(true, ink, button_padding), at);
    case answer: {
        const auto* card = static_cast<const button*>(shown.card);
        const answer_result result = card == nullptr ? answer_result::open : card->result;
        const bool open = card == nullptr ? shown.enabled : card->enabled;
        type words = set(result == answer_result::right, ink);
        words.colour = result == answer_result::right || open ? ink : grey;
        return text(box_, kaal(std::string_view(shown.caption)), words, at); // the blank in front is no indentation
    }
    case message_heading: return text(box_, shown.caption, {shown.font_size, true, colour_of(shown.tone, soft), 12});
    case verdict: {
        constexpr int radius = 150, beside = 390;
        add_verdict(made_, {radius, box_.height / 2}, radius, blank(shown.caption) ? tone::neutral : shown.tone);
        place words = box_;
        if (shown.tone != tone::neutral) words = {beside, 0, box_.width - beside, box_.height};
        return text(words, shown.caption, {points(true, box_.width - beside), true, colour_of(shown.tone, ink)});
    }
    case lesson_title: return text(box_, shown.caption, set(true, ink), at);
    case lesson_word:
        if (shown.mark) return add_mark(made_, shown.mark, box_, box_.width, box_.height);
        return text(box_, shown.caption, set(true, colours_.dark), at);
    case lesson_value: return text(box_, shown.caption, set(true, ink), align::middle);
    default: {
        const auto* names = static_cast<const label*>(shown.caption_of);
        const bool whole = names != nullptr && names->subdued; // the value of which others are a part
        return text(box_, shown.caption, set(whole, ink), at);
    }
    }
}

// Words on the bar, after a mark in a square of its own.
void painter::paint_heading(const label& shown) {
    place words = box_;
    if (shown.mark) {
        const place square{0, 0, box_.height, box_.height};
        box(square, box_.height * 22 / 100, form_.about == subject::none ? paper : colours_.tint);
        add_mark(made_, shown.mark, square, box_.height * 3 / 4, box_.height * 3 / 4);
        words.left = box_.height + 150;
        words.width -= words.left;
    }
    text(words, shown.caption, {points(true, words.width), true, paper});
}

// What to do first: in large letters, and with a mark under that mark, beside an arrow that points to the left.
void painter::paint_prompt(const label& shown) {
    const type words{points(true, box_.width), true};
    if (!shown.mark) return text(box_, shown.caption, words);
    constexpr int disc = 2160, arrow = 465, gap = 160, line = 540;
    const point centre{box_.width / 2, disc / 2};
    add_disc(made_, centre, disc / 2, colours_.tint);
    add_mark(made_, shown.mark, disc_place(centre, disc / 2), 1200, 1200);
    const int left = (box_.width - arrow - gap - width_in(shown.caption, words)) / 2;
    const int middle = box_.height - line / 2;
    add_sign(made_, {left + 24, middle}, 100, {{{190, -170}, {0, 0}, {190, 170}}, {{0, 0}, {420, 0}}}, colours_.dark,
             54);
    text({left + arrow + gap, box_.height - line, box_.width, line}, shown.caption, words);
}

// A number, after a bar that is filled as far as its share.
void painter::paint_value(const label& shown) {
    if (shown.share) {
        const place bar{0, (box_.height - 180) / 2, std::min(1590, box_.width), 180};
        const int filled = static_cast<int>(std::lround(std::clamp(*shown.share, 0.0, 1.0) * bar.width));
        box(bar, 90, paper, edge);
        if (filled > 0) {
            const place part{bar.left, bar.top, std::max(filled, bar.height), bar.height};
            box(part, 90, shown.subdued ? soft : accent);
        }
    }
    text(box_, shown.caption, {points(true, box_.width), true}, align::right);
}

// ---- panels, lists, pictures ----

void painter::paint_frame(const frame& shown) {
    if (shown.role == theme_role::body) return; // takes clicks, and is not seen
    if (shown.role == theme_role::heading_bar) {
        if (shown.header_height == 0) return box(box_, 0, colours_.dark);
        box(box_, panel_corner, paper);
        box({0, 0, box_.width, shown.header_height}, panel_corner, colours_.dark, none, 0, round_corners::top);
        return box(box_, panel_corner, none, form_.overlay ? ink : edge, form_.overlay ? box_edge : hairline);
    }
    const fill_colour strong = with_.high_contrast ? fill_colour(edge) : none; // of what its tint alone sets apart
    if (shown.role == theme_role::lesson) return box(box_, panel_corner, colours_.tint, strong);
    if (!shown.caption.empty()) {
        box(box_, panel_corner, group, strong);
        return text({180, 60, box_.width - 360, 285}, shown.caption, {std::max(shown.font_size, 11.25), true, accent});
    }
    const control* under_display = nullptr; // the last panel before it
    const control* last_panel = nullptr;
    for (const control* each : form_.controls()) {
        if (each->kind == control_kind::frame) last_panel = each;
        if (each->role == theme_role::readout) under_display = last_panel;
    }
    box(box_, panel_corner, under_display == &shown ? keypad : shown.quiet ? quiet : paper, edge);
    if (shown.header_height > 0 && !shown.quiet && shown.tone != tone::neutral) {
        const bool right = shown.tone == tone::right;
        const place band{0, 0, box_.width, shown.header_height};
        box(band, panel_corner, right ? green_tint : red_tint, none, 0, round_corners::top);
        box({0, shown.header_height - 12, box_.width, 24}, 0, right ? green : red);
        box(box_, panel_corner, none, edge);
    }
    // Between values that stand under each other.
    bool first = true;
    for (const control* each : form_.controls())
        if (each->role == theme_role::value && place_of(shown).contains(place_of(*each)))
            if (!std::exchange(first, false)) box({195, each->top - shown.top - 8, box_.width - 390, 15}, 0, off_edge);
}

void painter::paint_list() {
    const fill_colour fill = shown_.enabled ? paper : quiet;
    if (now_.focused)
        box(box_, panel_corner, fill, accent, chosen_edge);
    else
        box(box_, panel_corner, fill, edge);
}

void painter::paint_row(const list_box& list, int row, bool hovered) {
    const auto at = static_cast<std::size_t>(row);
    const place row_box = row_place(list, row);
    const bool chosen = row == list.selected;
    rgb24 words = list.enabled ? ink : grey;
    if (chosen && list.enabled) {
        box(row_box, row_corner, colours_.dark);
        words = paper;
    } else if (chosen) {
        box(row_box, row_corner, colours_.tint, colours_.dark, 22);
        words = colours_.dark;
    } else if (hovered && list.enabled)
        box(row_box, row_corner, tint);

    const int left = row_box.left + 75, width = row_box.right() - 75 - left;
    constexpr int mark_room = 240;
    const double points = grown(list.font_size, [&](double tried) {
        return text_height(tried) <= row_box.height && std::ranges::all_of(list.items, [&](const std::string& item) {
                   return text_width(item, tried, 1.0) <= width - mark_room;
               });
    });
    text({left, row_box.top, width, row_box.height}, list.items[at], {points, false, words});
    const auto mark = at < list.marks.size() ? list.marks[at] : list_box::item_mark::none;
    const point centre{list.width - 195, row_box.top + row_box.height / 2};
    const bool inverted = chosen && list.enabled;
    if (mark == list_box::item_mark::first)
        add_tick(made_, centre, 105, inverted ? paper : green, inverted ? colours_.dark : paper);
    if (mark == list_box::item_mark::later) add_disc(made_, centre, 58, inverted ? paper : soft);
}

// The edge lies on the picture, which ends where the cards under it end.
void painter::paint_picture(const picture_box& shown) {
    made_.emplace_back(scene_drawing{box_, &shown, true});
    if (shown.role == theme_role::picture) box(box_, 0, none, edge);
}

// ---- buttons ----

void painter::paint_button(const button& shown) {
    if (shown.role == theme_role::answer_button)
        paint_answer(shown);
    else if (shown.role == theme_role::choice || !shown.headline.empty())
        paint_menu_card(shown);
    else
        paint_plain_button(shown);
}

painter::dress painter::main_dress() const {
    if (!shown_.enabled) return {quiet, off_edge, grey};
    return {now_.pressed ? darkest : now_.hovered ? dark : accent, none, paper};
}

painter::dress painter::dress_of(const button& shown) const {
    using enum theme_role;
    const bool clears = shown.role == operator_key && shown.caption.ends_with('C');
    if (shown.role == main_action || (shown.role == operator_key && shown.caption == "=")) return main_dress();
    if (on_bar()) {
        if (!shown.enabled) return {none, none, blend(colours_.dark, paper, 72)};
        if (now_.pressed) return {colours_.tint, none, colours_.dark};
        if (now_.hovered || now_.focused) return {paper, none, colours_.dark};
        return {none, paper, paper};
    }
    if (shown.role == cell) return {none, active() ? fill_colour(accent) : none, accent, hovered_edge};
    if (!shown.enabled) return shown.quiet ? dress{none, none, grey} : dress{quiet, off_edge, grey};
    if (clears)
        return {active() ? clear_hovered : clear_fill, clear_edge, clear_text, active() ? hovered_edge : hairline};
    const rgb24 words = shown.role == key ? ink : accent;
    if (now_.pressed) return {pressed, accent, words, hovered_edge};
    if (now_.hovered) return {shown.role == operator_key ? pressed : tint, accent, words, hovered_edge};
    if (shown.quiet) return {none, none, soft};
    if (shown.role == operator_key) return {tint, key_edge, accent};
    return {paper, edge, words};
}

void painter::paint_plain_button(const button& shown) {
    using enum theme_role;
    const dress worn = dress_of(shown);
    const bool sign = shown.face != button::sign::none;
    const bool is_key = shown.role == key || shown.role == operator_key;
    const int radius = sign || shown.role == stepper ? box_.height / 2 : is_key ? key_corner : button_corner;
    if (worn.fill || worn.edge) box(box_, radius, worn.fill, worn.edge, worn.thick);
    ring(radius);
    const point centre{box_.width / 2, box_.height / 2};
    if (sign) {
        add_sign(made_, centre, box_.height / 2, {{{-46, 0}, {46, 0}}}, worn.text, 66);
        if (shown.face == button::sign::plus)
            add_sign(made_, centre, box_.height / 2, {{{0, -46}, {0, 46}}}, worn.text, 66);
        return;
    }
    const bool bold = shown.role == main_action || shown.role == operator_key || shown.role == stepper;
    const int side = is_key ? 15 : 120;
    const place words{side, 0, box_.width - 2 * side, box_.height};
    text(words, shown.caption, {points(bold, words.width), bold, worn.text}, align::middle, shown.mnemonic);
}

// A card with the letter at its left; the text is a label upon it.
void painter::paint_answer(const button& shown) {
    const bool wide = box_.height > 500;
    const int letter = wide ? 480 : 309, beside = wide ? 165 : 48;
    const place letter_box{beside, (box_.height - letter) / 2, letter, letter};
    dress card{paper, edge, ink}, mark{tint, none, accent};
    switch (shown.enabled ? answer_result::open : shown.result) {
    case answer_result::tried:
        card = {tried, tried_edge, grey};
        mark = {paper, red, red, 24};
        break;
    case answer_result::right:
        card = {green_tint, green, ink, chosen_edge};
        mark = {green, none, paper};
        break;
    default:
        if (!shown.enabled) {
            card = {quiet, off_edge, grey};
            mark = {off_box, none, grey};
        } else if (active()) {
            card = {now_.pressed ? pressed : tint, accent, ink, hovered_edge};
            mark = {now_.pressed ? dark : accent, none, paper};
        }
    }
    box(box_, panel_corner, card.fill, card.edge, card.thick);
    box(letter_box, letter_corner, mark.fill, mark.edge, mark.thick);
    text(letter_box, shown.caption, {wide ? 14.0 : 12.5, true, mark.text}, align::middle);
    ring(panel_corner);
    if (shown.enabled || (shown.result != answer_result::tried && shown.result != answer_result::right)) return;

    const bool right = shown.result == answer_result::right;
    const int radius = wide ? 150 : 135;
    add_verdict(made_, {box_.width - 190 - radius, box_.height / 2}, radius, right ? tone::right : tone::wrong);
    const place word{0, 0, box_.width - 290 - 2 * radius, box_.height};
    text(word, right ? "goed" : "fout", {10.5, true, right ? green : red}, align::right);
}

// An entry of a menu: a tile with its mark, at the left of a wide card and at the top of another; a small line, and
// under it its name. Larger text gets some of the tile's room.
void painter::paint_menu_card(const button& shown) {
    const subject_colours& own = colours_of(shown.about);
    const bool wide = box_.width > 2 * box_.height;
    const int tile_width = with_.larger_text ? box_.height * 3 / 4 : box_.height;
    const int tile_height = box_.height <= 900 ? box_.height * 45 / 100 : with_.larger_text ? 600 : 690;
    const place tile = wide ? place{0, 0, tile_width, box_.height} : place{0, 0, box_.width, tile_height};
    const rgb24 tile_fill = active() ? blend(own.tint, own.mid, now_.pressed ? 40 : 20) : own.tint;
    box(box_, menu_corner, now_.pressed ? blend(own.tint, own.mid, 20) : now_.hovered ? own.tint : paper);
    box(tile, menu_corner, tile_fill, none, 0, wide ? round_corners::left : round_corners::top);
    box(box_, menu_corner, none, active() ? own.dark : edge, active() ? hovered_edge : hairline);
    add_mark(made_, shown.mark, tile, wide ? tile.width * 9 / 13 : 1020, wide ? 960 : tile.height - 150);
    ring(menu_corner);

    const int left = wide ? tile.width + 195 : 150, width = box_.width - left - 90;
    const auto lines_in = [width](const button& entry, const type& set) {
        return lines_of(entry.headline.empty() ? entry.caption : entry.headline, set, width);
    };
    const double points = grown(shown.font_size, [&](double tried) {
        const type set{tried, true};
        return std::ranges::all_of(form_.controls(), [&](const control* each) {
            return each->name != shown.name ||
                   std::ranges::all_of(lines_in(static_cast<const button&>(*each), set),
                                       [&](const std::string& line) { return width_in(line, set) <= width; });
        });
    });
    const type small{(wide ? 9.75 : 8.25) * points / shown.font_size, true, own.dark, 12}, large{points, true, ink};
    const int pitch = static_cast<int>(std::lround(points * (wide ? 24.3 : 21.2)));
    const auto lines = lines_in(shown, large);
    const int above = shown.overline.empty() ? 0 : line_height(small) + (wide ? 45 : 0);
    const int height = above + static_cast<int>(lines.size() - 1) * pitch + line_height(large);
    int top = wide ? (box_.height - height) / 2 : tile.height + 50;
    const place room{left, 0, width, box_.height};
    add_line(made_, room, top, shown.overline, small, align::left);
    top += above;
    for (const std::string& line : lines) {
        add_line(made_, room, top, line, large, align::left);
        top += pitch;
    }
}

void painter::paint_option(const option_button& shown) {
    if (shown.role == theme_role::choice) return paint_start_card(shown);
    const rgb24 words = shown.enabled ? accent : grey;
    const fill_colour fill = !shown.enabled                   ? quiet
                             : now_.pressed                   ? pressed
                             : shown.selected || now_.hovered ? tint
                                                              : paper;
    box(box_, button_corner, fill,
        !shown.enabled               ? off_edge
        : shown.selected || active() ? accent
                                     : edge,
        shown.selected ? chosen_edge
        : active()     ? hovered_edge
                       : hairline);
    ring(button_corner);
    text(box_, shown.caption, {points(true, box_.width - 120), shown.selected, words}, align::middle);
}

// A large choice: a tile with its mark; under it, beside a sign that says whether it is chosen, its name and what it
// is.
void painter::paint_start_card(const option_button& shown) {
    const subject_colours& own = colours_of(shown.about);
    const place tile{0, 0, box_.width, box_.height - 1290};
    box(box_, start_corner, now_.pressed ? pressed : now_.hovered ? tint : paper);
    box(tile, start_corner, now_.hovered ? blend(own.tint, own.mid, 20) : own.tint, none, 0, round_corners::top);
    add_mark(made_, shown.mark, tile, 1560, tile.height - 600);
    box(box_, start_corner, none, shown.selected || active() ? accent : edge,
        shown.selected ? chosen_edge
        : now_.hovered ? hovered_edge
                       : hairline);
    ring(start_corner);

    constexpr int left = 720;
    const place name{left, tile.height + 210, box_.width - left - 120, 420};
    const point radio{415, name.top + name.height / 2};
    add_disc(made_, radio, 150, paper, shown.selected ? accent : edge, shown.selected ? chosen_edge : 22);
    if (shown.selected) add_disc(made_, radio, 75, accent);
    text(name, shown.caption, {points(true, name.width), true});
    text({left, tile.height + 660, name.width, 330}, shown.description, {11.25, false, soft});
}

// ---- high contrast ----

// Edges in ink, thin ones twice as thick (but of what is off), light grounds white, grey texts in ink.
void heighten(scene& shown) {
    for (scene_op& op : shown) {
        if (auto* box = std::get_if<scene_box>(&op)) {
            if (box->fill && contrast(*box->fill, paper) < 1.6) box->fill = paper;
            const bool ring = box->thick == strong_focus_edge || box->thick == focus_gap;
            if (box->edge && !ring) {
                if (*box->edge != off_edge && box->thick < chosen_edge) box->thick += hairline;
                if (*box->edge != green && *box->edge != red && *box->edge != accent && *box->edge != paper)
                    box->edge = ink;
            }
        }
        if (auto* text = std::get_if<scene_text>(&op))
            if (text->colour == soft || text->colour == grey) text->colour = ink;
    }
}

scene heightened(scene shown, look_settings with) {
    if (with.high_contrast) heighten(shown);
    return shown;
}

} // namespace

std::vector<std::string> bold_lines(std::string_view text, double points, int width) {
    return lines_of(text, {points, true}, width);
}

scene face_of(const form& on, const control& shown, control_state now, look_settings with) {
    return heightened(painter(on, shown, now, with).paint(), with);
}

place row_place(const list_box& list, int row) {
    const int height = list.row_height > 0 ? list.row_height : usual_row;
    return {list_side, list_top + row * height, list.width - 2 * list_side, height};
}

scene row_of(const form& on, const list_box& list, int row, bool hovered, look_settings with) {
    painter one(on, list, {}, with);
    one.paint_row(list, row, hovered);
    return heightened(one.taken(), with);
}

scene full_face_of(const form& on, const control& shown, look_settings with) {
    scene face = face_of(on, shown, {}, with);
    if (shown.kind == control_kind::list_box) {
        const auto& list = static_cast<const list_box&>(shown);
        for (int row = 0; row < static_cast<int>(list.items.size()); ++row)
            std::ranges::move(row_of(on, list, row, false, with), std::back_inserter(face));
    }
    return face;
}

backdrop backdrop_of(const form& of, look_settings with) {
    backdrop behind{with.high_contrast ? paper : ground, colours_of(of.about).dark, 0};
    for (const control* each : of.controls())
        if (each->role == theme_role::heading_bar && each->visible && each->top == 0 && !of.overlay)
            behind.bar_height = bar_of(*each).bottom();
    return behind;
}

scene scene_of(const form& shown, look_settings with) {
    scene all;
    add_box(all, {0, 0, shown.width, shown.height}, 0, backdrop_of(shown, with).ground);
    for (const control* each : shown.controls()) {
        if (!each->visible) continue;
        scene face = full_face_of(shown, *each, with);
        move(face, each->left, each->top);
        std::ranges::move(face, std::back_inserter(all));
    }
    return all;
}

} // namespace cijferwerf
