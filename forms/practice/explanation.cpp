#include "forms/practice/explanation.h"

#include "runtime/number_text.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace cijferwerf {

namespace {

constexpr int breuk_points = 12;
constexpr double small_points = 8.25;
constexpr int spoke_length = 770;
constexpr int stroke_length = 300;
constexpr int most_spokes = 1000; // more than a child can tell apart; bounds what a malformed line costs

// Takes the fields off a command one by one.
class field_reader {
public:
    explicit field_reader(std::string_view line) : rest_(line) {}

    std::string_view text() {
        const auto end = rest_.find('_');
        const std::string_view field = rest_.substr(0, end);
        rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
        return field;
    }
    double number() { return std::clamp(lees_getal(text()), -1e6, 1e6); }
    int units() { return static_cast<int>(std::lround(number())); }
    kleur colour() { return static_cast<kleur>(static_cast<unsigned>(units()) % aantal_kleuren); }
    std::string_view rest() const { return rest_; }

private:
    std::string_view rest_;
};

void print(drawing& on, field_reader fields) {
    const int x = fields.units();
    const int y = fields.units();
    on.fore_colour = fields.colour();
    on.text_size = std::clamp(std::nearbyint(fields.number()), 1.0, 200.0);
    on.print_at(x, y, fields.rest());
}

void line(drawing& on, field_reader fields) {
    const int x = fields.units();
    const int y = fields.units();
    const int dx = fields.units();
    const int dy = fields.units();
    const kleur with = fields.colour();
    const std::string_view kind = fields.text();
    on.style = static_cast<line_style>(std::clamp(fields.units(), 0, 6));
    if (kind == "BF") on.filled_box(x, y, dx, dy, with);
    if (kind == "B") on.box(x, y, dx, dy, with);
}

// How much further left a number starts for each character beyond two, its blank in front counted.
int shifted_left(std::string_view number, int units) {
    return static_cast<int>(std::max<std::size_t>(number.size(), 2) - 2) * units;
}

void breuk(drawing& on, field_reader fields) {
    const int x = fields.units();
    const int y = fields.units();
    const int whole = fields.units();
    on.fore_colour = wit;
    on.text_size = breuk_points;
    if (whole != 0) {
        const number_text text = tekst(whole);
        on.print_at(x - shifted_left(text, 80), y - 50, text);
    }
    on.text_size = small_points;
    for (const int top : {y - 150, y - 150 + 330}) {
        const number_text text = tekst(fields.units());
        on.print_at(x + 300 - shifted_left(text, 60), top, text);
    }
}

void tellers_noemers(drawing& on, field_reader fields) {
    for (int i = 0; i < 4; ++i) {
        const int x = fields.units();
        const int y = fields.units();
        std::string number = regel(kaal(punt(afgerond(fields.number(), 6), 6)));
        std::ranges::replace(number, '.', ',');
        on.print_at(x, y, number);
    }
}

void doorstrepen(drawing& on, field_reader fields) {
    const int x = fields.units();
    const int y = fields.units();
    on.line_width = 1;
    on.filled_box(x, y, stroke_length, 1, rood);
    const int px = fields.units();
    const int py = fields.units();
    on.text_size = small_points;
    on.fore_colour = rood;
    on.print_at(px, py, fields.rest());
}

void partjes(drawing& on, field_reader fields) {
    const int x = fields.units();
    const int y = fields.units();
    const int n = std::min(fields.units(), most_spokes);
    on.line_width = 3;
    for (int k = 1; k <= n; ++k) {
        const double angle = 2 * std::numbers::pi * k / n;
        on.line(x, y, x + static_cast<int>(std::lround(spoke_length * std::cos(angle))),
                y + static_cast<int>(std::lround(spoke_length * std::sin(angle))), geel);
    }
}

} // namespace

void teken_opdracht(drawing& on, std::string_view opdracht) {
    if (opdracht.find('_') == std::string_view::npos) return;
    field_reader fields(opdracht);
    const std::string_view keyword = fields.text();
    if (keyword == "PRINT") print(on, fields);
    if (keyword == "LINE") line(on, fields);
    if (keyword == "BREUK1") breuk(on, fields);
    if (keyword == "TELLERSNOEMERS") tellers_noemers(on, fields);
    if (keyword == "DOORSTREPEN") doorstrepen(on, fields);
    if (keyword == "PARTJES") partjes(on, fields);
}

void teken_opdrachten(drawing& on, std::span<const plakregel> opdrachten) {
    for (const std::string_view opdracht : opdrachten) {
        if (opdracht == " ") return;
        teken_opdracht(on, opdracht);
    }
}

} // namespace cijferwerf
