#include "forms/marks.h"

#include "globals/globalen.h"
#include "runtime/look.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace cijferwerf {

namespace {

// What the palette's indices mean in the marks: the subject's own colours, and those of others for what shows several.
constexpr kleur donker = donkerblauw;
constexpr kleur midden = cyaan;

constexpr auto tabellen = [] {
    std::array<kleurtabel, alle_onderwerpkleuren.size()> made{};
    for (std::size_t i = 0; i < made.size(); ++i) {
        made[i] = kleur_rgb;
        made[i][donker] = alle_onderwerpkleuren[i].dark;
        made[i][midden] = alle_onderwerpkleuren[i].mid;
        made[i][blauw] = colours_of(subject::procenten).dark;
        made[i][donkerrood] = colours_of(subject::tijd).dark;
        made[i][groen] = colours_of(subject::meetkunde).dark;
        made[i][paars] = colours_of(subject::hoofdrekenen).dark;
        made[i][olijf] = colours_of(subject::geld).dark;
        made[i][lichtgroen] = colours_of(subject::meetkunde).mid;
        made[i][lichtcyaan] = colours_of(subject::procenten).mid;
        made[i][rood] = colours_of(subject::tijd).mid;
        made[i][grijs] = look::edge;
    }
    return made;
}();

// Marks are drawn about 2000 units high, from the origin on; their lines are this many pixels wide.
constexpr int lijn = 8;
constexpr int fijn = 4;

int along(double value) { return static_cast<int>(std::lround(value)); }

point rim(point centre, double degrees, int radius) { // clockwise from twelve o'clock
    const double angle = degrees * std::numbers::pi / 180;
    return {centre.x + along(radius * std::sin(angle)), centre.y - along(radius * std::cos(angle))};
}

// A word in heavy letters, its middle at an x and the top of its digits at a y.
void woord(drawing& on, std::string_view text, double points, int middle, int top, kleur with = donker) {
    on.fore_colour = with;
    on.text_size = points;
    for (int degrees = 0; degrees < 360; degrees += 60) {
        const point at = rim({middle, top - digit_top(points)}, degrees, along(points * 0.5));
        on.print_centred(at.x, at.y, text);
    }
}

void stip(drawing& on, point centre, int radius, kleur with = donker) {
    on.filled_circle(centre.x, centre.y, radius, with);
}

// A line with round ends and corners, as shapes: so it has the same thickness everywhere at any scale.
void streep(drawing& on, const std::vector<point>& through, int pixels, kleur with = donker) {
    const double half = pixels * 7.5;
    for (std::size_t i = 0; i < through.size(); ++i) {
        stip(on, through[i], along(half), with);
        if (i == 0) continue;
        const point a = through[i - 1], b = through[i];
        const double length = std::hypot(b.x - a.x, b.y - a.y);
        if (length == 0) continue;
        const int aside = along((b.y - a.y) * half / length), down = along((a.x - b.x) * half / length);
        on.polygon({{a.x + aside, a.y + down},
                    {b.x + aside, b.y + down},
                    {b.x - aside, b.y - down},
                    {a.x - aside, a.y - down}},
                   with, true);
    }
}

void vorm(drawing& on, const std::vector<point>& corners, kleur fill, int pixels = lijn) {
    on.polygon(corners, fill, true);
    std::vector<point> around = corners;
    around.push_back(corners.front());
    streep(on, around, pixels);
}

void schijf(drawing& on, point centre, int radius, kleur fill, int pixels = lijn) {
    stip(on, centre, radius);
    stip(on, centre, radius - pixels * 15, fill);
}

std::vector<point> rechthoek(int left, int top, int width, int height) {
    return {{left, top}, {left + width, top}, {left + width, top + height}, {left, top + height}};
}

void procenten(drawing& on) {
    streep(on, {{1660, 230}, {340, 1770}}, 16);
    streep(on, {{1660, 230}, {340, 1770}}, 9, midden);
    for (const int at : {430, 1570}) schijf(on, {at, at}, 430, wit, 15);
}

void verhoudingen(drawing& on) {
    vorm(on, rechthoek(60, 720, 500, 560), midden);
    for (const int y : {800, 1200}) stip(on, {920, y}, 110);
    for (const int y : {0, 700, 1400}) on.filled_box(1280, y, 600, 600, donker);
}

// A disc of which a part, from so many degrees over so many, is taken; counter-clockwise from three o'clock.
void taart(drawing& on, point centre, int radius, double from, double over) {
    schijf(on, centre, radius, wit);
    on.sector(centre.x, centre.y, radius - lijn * 15, from, over, midden, true);
    for (const double degrees : {from, from + over}) streep(on, {centre, rim(centre, 90 - degrees, radius - 60)}, lijn);
}

void breuken(drawing& on) {
    taart(on, {1000, 1000}, 1000, 180, 270);
    streep(on, {{1000, 60}, {1000, 1940}}, lijn);
    streep(on, {{60, 1000}, {1940, 1000}}, lijn);
}

void optellen_van_breuken(drawing& on) {
    taart(on, {700, 700}, 700, 270, 180);
    taart(on, {2700, 700}, 700, 0, 90);
    streep(on, {{1570, 700}, {1830, 700}}, 10);
    streep(on, {{1700, 570}, {1700, 830}}, 10);
}

void grafieken(drawing& on) {
    constexpr int hoogten[]{700, 1250, 950, 1650};
    for (int i = 0; i < 4; ++i)
        vorm(on, rechthoek(300 + i * 430, 1840 - hoogten[i], 240, hoogten[i]), i % 2 == 0 ? midden : donker, 5);
    streep(on, {{0, 0}, {0, 1900}, {2000, 1900}}, lijn);
}

void geld(drawing& on) {
    schijf(on, {640, 1240}, 640, midden);
    schijf(on, {1240, 720}, 720, wit);
    woord(on, "€", 52, 1240, 350);
}

void tijd(drawing& on) {
    constexpr point hart{1000, 1000};
    schijf(on, hart, 1000, wit);
    for (int hour = 0; hour < 12; ++hour) streep(on, {rim(hart, hour * 30, 720), rim(hart, hour * 30, 790)}, 5, midden);
    streep(on, {rim(hart, 0, 560), hart, rim(hart, 120, 460)}, lijn);
    stip(on, hart, 110);
}

// A set square.
void meten(drawing& on) {
    vorm(on, {{0, 0}, {0, 2000}, {2000, 2000}}, midden);
    vorm(on, {{420, 1000}, {420, 1500}, {920, 1500}}, wit, 6);
    for (int x = 400; x < 1600; x += 320) streep(on, {{x, 2000}, {x, 1800}}, 5);
}

// A cube.
void meetkunde(drawing& on) {
    vorm(on, {{0, 600}, {600, 0}, {1900, 0}, {1300, 600}}, wit);
    vorm(on, {{1300, 600}, {1900, 0}, {1900, 1300}, {1300, 1900}}, donker);
    vorm(on, rechthoek(0, 600, 1300, 1300), midden);
}

void hoofdrekenen(drawing& on) {
    on.ellipse(1150, 680, 1150, 680, donker, true);
    on.ellipse(1150, 680, 1150 - lijn * 15, 680 - lijn * 15, wit, true);
    woord(on, "7 x 8", 36, 1150, 430);
    schijf(on, {440, 1560}, 200, wit, 6);
    schijf(on, {120, 1880}, 120, midden, 5);
}

// About a hundred.
void schatten(drawing& on) {
    for (const int y : {150, 560}) {
        std::vector<point> golf;
        for (int x = 0; x <= 2000; x += 80)
            golf.push_back({x, y + along(150 * -std::sin(x * std::numbers::pi / 1000))});
        streep(on, golf, 11, y == 560 ? donker : midden);
    }
    woord(on, "100", 64, 1000, 960);
}

// A number line.
void getallen(drawing& on) {
    streep(on, {{0, 300}, {2050, 300}}, lijn);
    on.polygon({{2000, 30}, {2420, 300}, {2000, 570}}, donker, true);
    for (int i = 0; i < 4; ++i) {
        const int x = 220 + i * 540;
        streep(on, {{x, 120}, {x, 480}}, lijn);
        woord(on, std::to_string(i), 32, x, 720);
    }
    schijf(on, {1030, 300}, 200, midden, 6);
}

void cijferen(drawing& on) {
    woord(on, "47", 40, 600, 0);
    woord(on, "25", 40, 600, 730);
    woord(on, "+", 40, 1260, 730);
    streep(on, {{60, 1490}, {1500, 1490}}, lijn);
    vorm(on, rechthoek(160, 1680, 880, 740), wit, 5);
    woord(on, "72", 38, 600, 1780);
}

// Three times four.
void vermenigvuldigen(drawing& on) {
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 4; ++column)
            schijf(on, {200 + column * 560, 200 + row * 520}, 200, row == 0 ? midden : donker, 4);
}

void kommagetallen(drawing& on) { woord(on, "0,75", 70, 1500, 0); }

// A ruler.
void lengtematen(drawing& on) {
    vorm(on, rechthoek(0, 0, 2900, 1000), midden);
    for (int i = 1; i < 12; ++i) streep(on, {{i * 242, 0}, {i * 242, i % 4 == 0 ? 520 : 320}}, 5);
}

void machten(drawing& on) {
    woord(on, "2", 90, 500, 400);
    woord(on, "3", 50, 1330, 0);
}

void oppervlakte(drawing& on) {
    on.filled_box(0, 0, 2100, 1400, wit);
    on.filled_box(0, 0, 1400, 1400, midden);
    for (int x = 350; x < 2100; x += 350) streep(on, {{x, 0}, {x, 1400}}, fijn);
    for (int y = 350; y < 1400; y += 350) streep(on, {{0, y}, {2100, y}}, fijn);
    streep(on, {{0, 0}, {2100, 0}, {2100, 1400}, {0, 1400}, {0, 0}}, lijn);
}

void cirkel(drawing& on) {
    schijf(on, {1000, 1000}, 1000, midden);
    streep(on, {{1000, 1000}, {1940, 1000}}, lijn);
    stip(on, {1000, 1000}, 140);
}

// A measuring jug and a weight.
void inhoud(drawing& on) {
    on.polygon({{0, 0}, {1300, 0}, {1120, 1900}, {180, 1900}}, wit, true);
    on.polygon({{80, 760}, {1220, 760}, {1120, 1900}, {180, 1900}}, midden, true);
    streep(on, {{0, 0}, {1300, 0}, {1120, 1900}, {180, 1900}, {0, 0}}, lijn);
    for (const int y : {560, 940, 1320}) streep(on, {{430, y}, {870, y}}, 5);
    schijf(on, {1930, 700}, 260, wit);
    on.polygon({{1640, 880}, {2220, 880}, {2500, 1960}, {1360, 1960}}, donker, true);
    woord(on, "kg", 30, 1930, 1280, wit);
}

// A lamp that is on.
void energie(drawing& on) {
    constexpr point hart{1000, 900};
    for (int degrees = -110; degrees <= 110; degrees += 44)
        streep(on, {rim(hart, degrees, 820), rim(hart, degrees, 1000)}, 7);
    schijf(on, hart, 620, wit);
    streep(on, {{760, 860}, {900, 1080}, {1000, 900}, {1100, 1080}, {1240, 860}}, 5);
    vorm(on, rechthoek(790, 1480, 420, 400), midden);
}

// An arrow that goes round: a ring that is open at the top right, and its head.
void herhaling(drawing& on) {
    constexpr point hart{1000, 1000};
    std::vector<point> ring;
    for (int degrees = 90; degrees <= 405; degrees += 5) ring.push_back(rim(hart, degrees, 820));
    streep(on, ring, 16);
    on.polygon({{1120, 700}, {1880, 780}, {1820, 40}}, donker, true);
}

// Books on a shelf.
void boekjes(drawing& on) {
    constexpr kleur ruggen[]{blauw, donkerrood, groen, paars, olijf};
    for (int i = 0; i < 5; ++i) {
        const int top = i % 2 == 0 ? 0 : 200;
        on.filled_box(120 + i * 350, top, 310, 1540 - top, ruggen[i]);
        on.filled_box(180 + i * 350, top + 250, 190, 80, wit);
    }
    on.polygon({{2090, 100}, {2400, 150}, {2190, 1540}, {1890, 1490}}, donker, true); // the last one leans
    on.polygon({{2120, 340}, {2310, 370}, {2297, 450}, {2107, 420}}, wit, true);
    streep(on, {{60, 1610}, {2340, 1610}}, 9, grijs);
}

// A list that is ticked off.
void taken(drawing& on) {
    vorm(on, rechthoek(0, 180, 1400, 1900), wit);
    on.filled_box(420, 0, 560, 300, donker);
    for (const int y : {620, 1110}) {
        streep(on, {{190, y}, {340, y + 150}, {560, y - 130}}, 9, groen);
        streep(on, {{760, y}, {1180, y}}, lijn, midden);
    }
    vorm(on, rechthoek(250, 1490, 230, 230), wit, 6);
    streep(on, {{760, 1600}, {1180, 1600}}, lijn, midden);
}

struct mark_row {
    std::string_view key;
    void (*draw)(drawing&);
    subject about;
};
constexpr mark_row marks[]{
    {booklet_set, boekjes, subject::none},
    {task_set, taken, subject::verhoudingen},
    {"boekje01", procenten, subject::procenten},
    {"boekje02", verhoudingen, subject::verhoudingen},
    {"boekje03", breuken, subject::breuken},
    {"boekje04", grafieken, subject::grafieken},
    {"boekje05", geld, subject::geld},
    {"boekje06", tijd, subject::tijd},
    {"boekje07", meten, subject::meten},
    {"boekje08", meetkunde, subject::meetkunde},
    {"boekje09", hoofdrekenen, subject::hoofdrekenen},
    {"boekje10", schatten, subject::schatten},
    {"boekje11", getallen, subject::getallen},
    {"boekje12", cijferen, subject::cijferen},
    {"taak01", getallen, subject::getallen},
    {"taak02", vermenigvuldigen, subject::hoofdrekenen},
    {"taak03", breuken, subject::breuken},
    {"taak04", tijd, subject::tijd},
    {"taak05", herhaling, subject::none},
    {"taak06", kommagetallen, subject::getallen},
    {"taak07", geld, subject::geld},
    {"taak08", procenten, subject::procenten},
    {"taak09", lengtematen, subject::meten},
    {"taak10", herhaling, subject::none},
    {"taak11", machten, subject::cijferen},
    {"taak12", oppervlakte, subject::meetkunde},
    {"taak13", cirkel, subject::meetkunde},
    {"taak14", optellen_van_breuken, subject::breuken},
    {"taak15", herhaling, subject::none},
    {"taak16", verhoudingen, subject::verhoudingen},
    {"taak17", inhoud, subject::meten},
    {"taak18", grafieken, subject::grafieken},
    {"taak19", energie, subject::schatten},
    {"taak20", herhaling, subject::none},
};

const mark_row* find_row(std::string_view key) {
    const auto row = std::ranges::find(marks, key, &mark_row::key);
    return row == std::end(marks) ? nullptr : row;
}

} // namespace

drawing merkteken(std::string_view key) {
    drawing made;
    made.colours = &tabellen[static_cast<std::size_t>(onderwerp(key))];
    if (const mark_row* row = find_row(key)) row->draw(made);
    return made;
}

subject onderwerp(std::string_view key) {
    const mark_row* row = find_row(key);
    return row == nullptr ? subject::none : row->about;
}

// A ship with a load of signs; whoever shows it puts it on white.
drawing programmateken() {
    drawing made;
    made.colours = &tabellen[static_cast<std::size_t>(subject::none)];
    made.polygon({{220, 1200}, {1780, 1200}, {1540, 1680}, {500, 1680}}, donker, true);

    const struct {
        point at;
        kleur with;
    } kisten[]{{{740, 290}, lichtgroen}, {{480, 750}, lichtcyaan}, {{1000, 750}, rood}};
    for (const auto& [at, with] : kisten) made.filled_box(at.x, at.y, 440, 400, with);
    const auto teken = [&made](int x, int y, bool upright = false) {
        if (upright)
            streep(made, {{x, y - 110}, {x, y + 110}}, 4, wit);
        else
            streep(made, {{x - 110, y}, {x + 110, y}}, 4, wit);
    };
    teken(960, 490);
    teken(960, 490, true);
    teken(700, 950);
    teken(1220, 900);
    teken(1220, 1000);
    return made;
}

} // namespace cijferwerf
