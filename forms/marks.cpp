#include "forms/marks.h"

#include "globals/globalen.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace cijferwerf {

namespace {

constexpr int midden_x = drawing::inner_width / 2;
constexpr int midden_y = drawing::inner_height / 2;

int along(double value) { return static_cast<int>(std::lround(value)); }

// One word in the middle, or with its middle at another x.
void woord(drawing& on, std::string_view text, double points, kleur with = donkerblauw, int middle = midden_x) {
    on.fore_colour = with;
    on.text_size = points;
    on.print_centred(middle, (drawing::inner_height - text_height(points)) / 2, text);
}

// A straight line from a point, degrees clockwise from twelve o'clock.
void wijzer(drawing& on, int x, int y, double degrees, int from, int to, kleur with) {
    const double angle = degrees * std::numbers::pi / 180;
    on.line(x + along(from * std::sin(angle)), y - along(from * std::cos(angle)), x + along(to * std::sin(angle)),
            y - along(to * std::cos(angle)), with);
}

void procenten(drawing& on) { woord(on, "%", 80); }

void verhoudingen(drawing& on) {
    on.filled_box(700, 765, 600, 600, groen);
    woord(on, ":", 60, donkerblauw, 1850);
    for (int i = 0; i < 3; ++i) on.filled_box(2400 + i * 800, 765, 600, 600, donkerblauw);
}

void breuken(drawing& on) {
    on.sector(midden_x, midden_y, 900, 90, 270, groen, true);
    on.line_width = 5;
    on.circle(midden_x, midden_y, 900, donkerblauw);
    for (int i = 0; i < 4; ++i) wijzer(on, midden_x, midden_y, i * 90, 0, 900, donkerblauw);
}

void optellen_van_breuken(drawing& on) { woord(on, "½ + ¼", 64); }

void grafieken(drawing& on) {
    constexpr int hoogten[]{600, 1100, 850, 1500};
    constexpr kleur kleuren[]{cyaan, groen, olijf, donkerrood};
    for (int i = 0; i < 4; ++i) on.filled_box(1500 + i * 650, 1850, 420, -hoogten[i], kleuren[i]);
    on.line_width = 5;
    on.line(1300, 200, 1300, 1850, donkerblauw);
    on.line(1300, 1850, 4150, 1850, donkerblauw);
}

void geld(drawing& on) {
    on.line_width = 5;
    constexpr point munten[]{{1750, 1150}, {3630, 1150}, {2690, 1000}};
    for (const auto [x, y] : munten) {
        on.filled_circle(x, y, 820, geel);
        on.circle(x, y, 820, olijf);
    }
    on.fore_colour = olijf;
    on.text_size = 52;
    on.print_centred(2690, 1000 - text_height(52) / 2, "€");
}

void tijd(drawing& on) {
    on.line_width = 6;
    on.circle(midden_x, midden_y, 950, donkerblauw);
    for (int hour = 0; hour < 12; ++hour) wijzer(on, midden_x, midden_y, hour * 30, 780, 900, donkerblauw);
    wijzer(on, midden_x, midden_y, 305, 0, 450, rood);
    wijzer(on, midden_x, midden_y, 60, 0, 680, rood);
}

// A set square.
void meten(drawing& on) {
    on.polygon({{900, 1900}, {4480, 1900}, {2690, 110}}, lichtcyaan, true);
    on.polygon({{1900, 1500}, {3480, 1500}, {2690, 710}}, wit, true);
    on.line_width = 5;
    on.polygon({{900, 1900}, {4480, 1900}, {2690, 110}}, donkerblauw, false);
    on.polygon({{1900, 1500}, {3480, 1500}, {2690, 710}}, donkerblauw, false);
    for (int i = 1; i < 12; ++i) on.line(900 + i * 298, 1900, 900 + i * 298, 1740, donkerblauw);
}

// A cube.
void meetkunde(drawing& on) {
    const std::vector<point> voor{{1900, 800}, {3100, 800}, {3100, 2000}, {1900, 2000}};
    const std::vector<point> boven{{1900, 800}, {2450, 250}, {3650, 250}, {3100, 800}};
    const std::vector<point> opzij{{3100, 800}, {3650, 250}, {3650, 1450}, {3100, 2000}};
    on.polygon(voor, lichtcyaan, true);
    on.polygon(boven, wit, true);
    on.polygon(opzij, cyaan, true);
    on.line_width = 5;
    for (const auto& vlak : {voor, boven, opzij}) on.polygon(vlak, donkerblauw, false);
}

void hoofdrekenen(drawing& on) {
    on.line_width = 5;
    on.ellipse(2850, 850, 1650, 780, donkerblauw, false);
    on.circle(1300, 1650, 200, donkerblauw);
    on.circle(900, 1950, 110, donkerblauw);
    on.fore_colour = donkerblauw;
    on.text_size = 42;
    on.print_centred(2850, 850 - text_height(42) / 2, "7 x 8");
}

void schatten(drawing& on) { woord(on, "± 100", 64); }

// A number line.
void getallen(drawing& on) {
    on.line_width = 6;
    on.line(500, 850, 4700, 850, donkerblauw);
    on.polygon({{4650, 650}, {4980, 850}, {4650, 1050}}, donkerblauw, true);
    on.fore_colour = donkerblauw;
    on.text_size = 36;
    for (int i = 0; i < 4; ++i) {
        const int x = 900 + i * 1100;
        on.line(x, 650, x, 1050, donkerblauw);
        on.print_centred(x, 1150, std::to_string(i));
    }
}

void cijferen(drawing& on) {
    on.fore_colour = donkerblauw;
    on.text_size = 30;
    on.print_right(3300, 0, "47");
    on.print_right(3300, 620, "25");
    on.print_at(3450, 620, "+");
    on.line_width = 5;
    on.line(2350, 1330, 3800, 1330, donkerblauw);
    on.fore_colour = groen;
    on.print_right(3300, 1390, "72");
}

// Three times five.
void vermenigvuldigen(drawing& on) {
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 5; ++column)
            on.filled_circle(1290 + column * 700, 415 + row * 650, 220, row == 0 ? groen : donkerblauw);
}

void kommagetallen(drawing& on) { woord(on, "0,75", 70); }

// A ruler.
void lengtematen(drawing& on) {
    on.filled_box(400, 550, 4580, 1030, geel);
    on.line_width = 5;
    on.box(400, 550, 4580, 1030, olijf);
    on.fore_colour = zwart;
    on.text_size = 24;
    for (int i = 0; i <= 20; ++i) {
        const int x = 690 + i * 200;
        on.line(x, 550, x, i % 5 == 0 ? 950 : 780, zwart);
        if (i % 5 == 0) on.print_centred(x, 1000, std::to_string(i / 5));
    }
}

void machten(drawing& on) { woord(on, "2³", 80); }

void oppervlakte(drawing& on) {
    on.filled_box(1190, 315, 3000, 1500, lichtcyaan);
    on.line_width = 2;
    for (int x = 1690; x < 4190; x += 500) on.line(x, 315, x, 1815, cyaan);
    for (int y = 815; y < 1815; y += 500) on.line(1190, y, 4190, y, cyaan);
    on.line_width = 6;
    on.box(1190, 315, 3000, 1500, donkerblauw);
}

void cirkel(drawing& on) {
    on.line_width = 6;
    on.circle(midden_x, midden_y, 950, donkerblauw);
    on.line(midden_x, midden_y, midden_x + 950, midden_y, rood);
    on.filled_circle(midden_x, midden_y, 90, rood);
}

// A measuring jug and a weight.
void inhoud(drawing& on) {
    on.polygon({{1000, 900}, {2500, 900}, {2380, 1950}, {1120, 1950}}, lichtcyaan, true);
    on.line_width = 5;
    on.polygon({{920, 200}, {2580, 200}, {2380, 1950}, {1120, 1950}}, donkerblauw, false);
    for (int i = 0; i < 4; ++i) on.line(1500, 600 + i * 300, 2000, 600 + i * 300, donkerblauw);
    on.filled_box(3500, 350, 500, 350, grijs);
    on.polygon({{3250, 700}, {4250, 700}, {4550, 1950}, {2950, 1950}}, grijs, true);
    on.fore_colour = wit;
    on.text_size = 32;
    on.print_centred(3750, 980, "kg");
}

// A lamp that is on.
void energie(drawing& on) {
    on.line_width = 5;
    for (int degrees = -120; degrees <= 120; degrees += 40) wijzer(on, midden_x, 950, degrees, 780, 980, olijf);
    on.filled_circle(midden_x, 950, 620, geel);
    on.circle(midden_x, 950, 620, olijf);
    on.filled_box(midden_x - 250, 1520, 500, 480, grijs);
}

// An arrow that goes round: a ring that is open at the top, and its head.
void herhaling(drawing& on) {
    const auto rim = [](int degrees, int radius) {
        const double angle = degrees * std::numbers::pi / 180;
        return point{midden_x + along(radius * std::sin(angle)), midden_y - along(radius * std::cos(angle))};
    };
    std::vector<point> ring;
    for (int degrees = 40; degrees <= 320; degrees += 10) ring.push_back(rim(degrees, 900));
    for (int degrees = 320; degrees >= 40; degrees -= 10) ring.push_back(rim(degrees, 680));
    on.polygon(ring, groen, true);
    on.polygon({rim(310, 1180), rim(312, 400), rim(2, 850)}, groen, true);
}

// Books on a shelf.
void boekjes(drawing& on) {
    constexpr kleur ruggen[]{donkerblauw, groen, donkerrood, cyaan, olijf, paars};
    for (int i = 0; i < 6; ++i) {
        const int hoogte = i % 2 == 0 ? 1550 : 1350;
        on.filled_box(1250 + i * 490, 1850, 430, -hoogte, ruggen[i]);
        on.filled_box(1310 + i * 490, 1850 - hoogte + 250, 310, 60, wit);
    }
    on.filled_box(950, 1850, 3480, 120, grijs);
}

// A list that is ticked off.
void taken(drawing& on) {
    on.line_width = 5;
    on.box(1690, 100, 2000, 1930, donkerblauw);
    for (int i = 0; i < 3; ++i) {
        const int y = 450 + i * 600;
        on.line_width = 7;
        on.line(1900, y, 2050, y + 150, groen);
        on.line(2050, y + 150, 2300, y - 180, groen);
        on.line_width = 5;
        on.line(2550, y, 3400, y, donkerblauw);
    }
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

drawing programmateken() { return {}; }

drawing merkteken(std::string_view key) {
    drawing made;
    if (const mark_row* row = find_row(key)) row->draw(made);
    return made;
}

subject onderwerp(std::string_view key) {
    const mark_row* row = find_row(key);
    return row == nullptr ? subject::none : row->about;
}

} // namespace cijferwerf
