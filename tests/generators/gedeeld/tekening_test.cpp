// What the drawing verbs leave on the picture: as large as its place is, balanced around its middle, hands and needles
// where their numbers say, and read aloud with what its texts do not say.
#include "generators/gedeeld/breuk.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/gedeeld/tekening_figuur.h"
#include "generators/gedeeld/tekening_geld.h"
#include "generators/gedeeld/tekening_grafiek.h"
#include "generators/gedeeld/tekening_lijn.h"
#include "generators/gedeeld/tekening_macht.h"
#include "generators/gedeeld/tekening_meter.h"
#include "generators/gedeeld/tekening_som.h"
#include "generators/gedeeld/tekening_tabel.h"
#include "runtime/picture_reading.h"
#include "tests/support/crossing.h"
#include "tests/support/seen.h"

#include <cmath>
#include <functional>

namespace cijferwerf {
namespace {

using draw = std::function<void(drawing&)>;

drawing drawn(double size, const draw& by) {
    drawing on;
    on.text_size = size;
    on.fore_colour = donkerblauw;
    on.line_width = 5;
    by(on);
    EXPECT_TRUE(on.text_size == size && on.fore_colour == donkerblauw && on.line_width == 5) << "left as it was";
    return on;
}

struct extent {
    int left, top, width, height;
    auto operator<=>(const extent&) const = default;
};
void PrintTo(const extent& e, std::ostream* to) {
    *to << e.left << ", " << e.top << ", " << e.width << ", " << e.height;
}

extent around(const std::vector<point>& points) {
    const auto [left, right] = std::ranges::minmax(points, {}, &point::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &point::y);
    return {left.x, top.y, right.x - left.x, bottom.y - top.y};
}

// What a drawing covers, its words with their ink.
extent covered(const drawing& by) {
    const auto whole = [](double value) { return static_cast<int>(std::lround(value)); };
    std::vector<point> points;
    for (const ink& word : visible_words(by)) {
        points.push_back({whole(word.left), whole(word.top)});
        points.push_back({whole(word.right), whole(word.bottom)});
    }
    for (const drawing_op& operation : by.operations())
        for (const point& corner : path_of(operation, by.ground)) points.push_back(corner);
    return around(points);
}

// Each verb as full as its exercises make it; the drawing may end with what is read aloud of it.
template<class Draw>
void expect_drawn(extent wanted, std::size_t operations, double size, Draw by) {
    std::string aloud;
    const drawing made = drawn(size, [&](drawing& on) {
        if constexpr (std::is_void_v<decltype(by(on))>)
            by(on);
        else
            aloud = by(on);
    });
    EXPECT_EQ(covered(made), wanted);
    EXPECT_EQ(made.operations().size(), operations);
    EXPECT_TRUE(aloud.empty() || read_picture(made) == aloud) << read_picture(made);
}

TEST(drawings, fill_their_place_and_are_read_aloud_with_what_their_texts_do_not_say) {
    expect_drawn({70, 88, 4'990, 1'925}, 19, 8, [](drawing& on) {
        assen axes(on, {560, 330, 4500, 1480}, {0, 30, 10}, {40, 90, 10});
        axes.lijnen_op();
        axes.getallen_links(" mm", 20);
        axes.namen_onder({"ja", "fe", "ma"});
        axes.naam_boven("zetels");
        axes.kolom(2, 8, 80, groen);
        axes.kolom(12, 18, 65, rood);
        return "Een grafiek. Omhoog (zetels): 40 mm, 60 mm enzovoort tot 80 mm, bij elke tweede streep. De "
               "kolommen van links naar rechts, in strepen hoog: groen vier; rood 2,5.";
    });
    expect_drawn({70, 38, 5'162, 1'962}, 44, 8, [](drawing& on) {
        assen axes(on, {560, 280, 4500, 1550}, {0, 16, 2}, {0, 80'000, 10'000});
        axes.lijnen_op();
        axes.lijnen_langs();
        axes.getallen_links();
        axes.getallen_onder();
        axes.naam_boven("m");
        axes.naam_rechts("s");
        axes.lijn({{0, 0}, {8, 55'000}, {16, 40'000}}, donkerblauw);
        return "Een grafiek. Omhoog (m): 0, 10.000 enzovoort tot 80.000, bij elke streep. Naar rechts (s): 0, 2 "
               "enzovoort tot 16, bij elke streep. De blauwe lijn, in strepen naar rechts en omhoog: nul en "
               "nul, vier en 5,5, acht en vier.";
    });
    expect_drawn({480, 240, 4'000, 1'843}, 8, 8, [](drawing& on) {
        assen axes(on, {480, 240, 4000, 1640}, {0, 8, 4}, {0, 100, 10});
        axes.lijn({{2, 20}, {6, 30}}, rood);
        axes.namen_onder({"j", "f"});
        return "Een grafiek. De rode lijn, in strepen hoog: j twee, f drie.";
    });
    expect_drawn({350, 115, 3'658, 1'900}, 37, 10, [](drawing& on) {
        teken_taart(on, {1300, 1065}, 950, {{1, rood, "1"}, {1, geel, "rest", true}});
        teken_legenda(on, 2800, 500, {{blauw, "1  Spanje"}, {rood, "2  Duitsland"}, {geel, "4  Italië"}});
        return "Een cirkel in delen. In twaalfden van de cirkel: 1 zes, rest gestreept zes. blauw: 1 Spanje. "
               "rood: 2 Duitsland. geel: 4 Italië.";
    });
    expect_drawn({40, 60, 1'740, 2'025}, 27, 8.25, [](drawing& on) {
        tabel table(on, 40, 60, 1'740, 225, {{"stad", 70}, {"verschil", 1'750, true}});
        for (int row = 0; row < 8; ++row) table.rij("Rio de Janeiro", "-3 uur   ");
    });
    expect_drawn({55, 55, 2'051, 510}, 10, 14, [](drawing& on) { teken_teller(on, 100, 100, komma(1'234'567, 2)); });
    expect_drawn({1'675, 122, 2'120, 1'738}, 37, 9, [](drawing& on) {
        teken_wijzerplaat(on, {2'690, 1'080}, 780, {200, 10, 20, 20}, 70, "km/uur");
        return "Een wijzerplaat met de getallen 0, 20 enzovoort tot 200 en twee stukjes van getal tot getal. De "
               "wijzer staat één stukje verder dan 60. km/uur";
    });
    expect_drawn({1'490, 400, 2'400, 1'515}, 26, 10, [](drawing& on) {
        teken_wijzerplaat(on, {2'690, 1'600}, 1'200, {1000, 50, 100, 0, 180, 180}, 650, "km/uur");
        return "Een wijzerplaat met tien lange streepjes. De wijzer staat 6,5 lange streepjes na het begin. "
               "km/uur";
    });
    expect_drawn({940, 327, 1'520, 1'553}, 33, 8, [](drawing& on) {
        teken_klok(on, {1'700, 1'120}, 760, 6 * 60 + 35);
        return "Een wekker. De kleine wijzer staat tussen de 6 en de 7, de grote op de 7.";
    });
    expect_drawn({940, 327, 1'520, 1'553}, 33, 8, [](drawing& on) {
        teken_klok(on, {1'700, 1'120}, 760, 12 * 60 + 59);
        return "Een wekker. De kleine wijzer staat tussen de 12 en de 1, de grote tussen de 11 en de 12.";
    });
    expect_drawn({380, 515, 4'640, 1'182}, 19, 12, [](drawing& on) {
        getallenlijn line(on, 500, 4'900, 1'350, 10);
        line.getal(0, "15");
        line.pijl(7, rood, "rood");
        line.getal(10, "25");
        return "Een getallenlijn in tien gelijke stukjes. Bij het begin staat 15. De rode pijl wijst naar het "
               "zevende streepje. Bij het eind staat 25.";
    });
    expect_drawn({0, 0, 2'430, 1'350}, 25, 12, [](drawing& on) {
        teken_rooster(on, {{0, 0}, 270, 9, 5}, {{roosterfiguur({{0, 0}, {3, 0}, {2, 2}, {0, 2}}), grijs}});
        return "De eerste figuur is grijs. In hokjes loopt de rand: drie naar rechts, één naar links met twee "
               "omlaag, twee naar links, twee omhoog.";
    });
    expect_drawn({444, 100, 1'647, 1'921}, 19, 10, [](drawing& on) {
        teken_doos(on, {100, 100, 2'500, 1'930}, 2, 12, 9, " cm");
    });
    expect_drawn({1'044, 100, 3'742, 1'769}, 17, 10, [](drawing& on) {
        teken_cilinder(on, {100, 100, 5'180, 1'930}, 15, 3, " cm");
    });
    expect_drawn({2'495, 100, 835, 1'921}, 16, 10, [](drawing& on) {
        teken_cilinder(on, {100, 100, 5'180, 1'930}, 2, 17, " cm");
    });
    expect_drawn({560, 455, 1'010, 1'164}, 12, 10, [](drawing& on) {
        teken_maat(on, {1'000, 500}, {1'100, 500}, "1.000 cm");
        teken_maat(on, {1'000, 1'000}, {1'000, 1'100}, "rechts");
        teken_maat(on, {1'000, 1'600}, {1'000, 1'500}, "links");
    });
    expect_drawn({849, 285, 1'861, 1'459}, 5, 20, [](drawing& on) {
        teken_kolomsom(on, 2'000, 200, {{"1.2  34"}, {"56,7", -2}, {"8", 1}}, "+");
        return "Onder elkaar: 1.234; 56,7, twee naar rechts; 8, één naar links; +.";
    });
    expect_drawn({100, 60, 2'695, 1'995}, 12, 10, [](drawing& on) {
        teken_blad(on, {100, 60, 2'650, 1'950}, bladsoort::krant, "maandag", {6, "Een stad groeit"});
    });
    expect_drawn({200, 60, 4'945, 1'995}, 10, 10, [](drawing& on) {
        teken_blad(on, {200, 60, 4'900, 1'950}, bladsoort::brief, "Het Gasbedrijf", {5, "(m³) gas"});
    });
    expect_drawn({200, 60, 4'945, 1'995}, 9, 11, [](drawing& on) {
        teken_blad(on, {200, 60, 4'900, 1'950}, bladsoort::reclame, "RECLAME", {4, "(kJ) per kg"});
    });
    expect_drawn({100, 30, 5'225, 2'065}, 12, 9, [](drawing& on) {
        teken_blad(on, {100, 30, 5'180, 2'020}, bladsoort::paneel, "", {9, "(a + b)"});
    });
    expect_drawn({12, 12, 5'356, 2'106}, 16, 8.25, [](drawing& on) {
        for (const int number : {1, 2, 3, 4})
            teken_advertentie(on, number, {"Te huur:", "op brandstof van 123 eurocent per liter."});
    });
    expect_drawn({60, 200, 5'220, 1'310}, 64, 8, [](drawing& on) {
        for (int left = 350; const int cents : {1, 2, 5, 10, 20, 50, 100, 200})
            teken_munt(on, {std::exchange(left, left + 640), 500}, 300, cents);
        for (int left = 60; const int euros : {5, 10, 20, 50, 100, 200})
            teken_briefje(on, std::exchange(left, left + 880), 1'100, 820, euros);
    });
    expect_drawn({100, 280, 2'584, 457}, 9, 12, [](drawing& on) {
        teken_breuk(on, 100, 500, 2, 3, 4);
        on.print_at(1500, 400, "=");
        teken_met_machten(on, 2000, 400, "3^2 x 5^10");
        return "2 3/4 = 3 tot de macht 2 x 5 tot de macht 10";
    });
}

// Each shape has its mirror image, left and right of x, or is its own.
void expect_balanced(int x, const draw& by) {
    std::vector<extent> shapes, mirrored;
    const drawing made = drawn(10, by);
    for (const drawing_op& operation : made.operations()) {
        std::vector<point> corners = path_of(operation, made.ground);
        if (corners.empty()) continue;
        shapes.push_back(around(corners));
        for (point& corner : corners) corner.x = 2 * x - corner.x;
        mirrored.push_back(around(corners));
    }
    std::ranges::sort(shapes), std::ranges::sort(mirrored);
    EXPECT_EQ(shapes, mirrored);
}

TEST(drawings, are_balanced) {
    expect_balanced(1'700, [](drawing& on) { teken_klok(on, {1'700, 1'120}, 760, 360); });
    expect_balanced(2'000, [](drawing& on) { teken_wijzerplaat(on, {2'000, 1'000}, 800, {200, 10, 20, 20}, 100); });
    expect_balanced(2'000, [](drawing& on) { teken_munt(on, {2'000, 1'000}, 300, 200); });
    expect_balanced(2'000, [](drawing& on) { teken_briefje(on, 1'590, 600, 820, 50); });
    expect_balanced(2'700, [](drawing& on) { getallenlijn(on, 500, 4'900, 1'350, 4).pijl(2, geel, ""); });
}

// The angle from the axis to the tip, the second corner of a needle: degrees, clockwise from twelve o'clock.
double angle_of(const drawing& on, std::size_t which, point axis) {
    const point tip = all<polygon_op>(on)[which].corners[1];
    const double degrees = std::atan2(tip.x - axis.x, axis.y - tip.y) * 180 / std::acos(-1);
    return degrees < -0.1 ? degrees + 360 : degrees;
}

TEST(needles, point_where_their_numbers_say) {
    constexpr point axis{1'000, 1'000};
    for (const auto& [minutes, hour_hand, minute_hand] :
         {std::array{0, 0, 0}, {7 * 60 + 25, 222, 150}, {12 * 60 + 30, 15, 180}, {20 * 60 + 45, 262, 270}}) {
        const drawing on = drawn(8, [&](drawing& to) { teken_klok(to, axis, 800, minutes); });
        EXPECT_NEAR(angle_of(on, 0, axis), hour_hand, 0.6) << minutes;
        EXPECT_NEAR(angle_of(on, 1, axis), minute_hand, 0.6) << minutes;
    }
    for (const auto& [value, degrees] : {std::pair{0, 225}, {50, 292}, {100, 0}, {200, 135}}) {
        const drawing on = drawn(8, [&](drawing& to) { teken_wijzerplaat(to, axis, 800, {200, 10, 20}, value); });
        EXPECT_NEAR(angle_of(on, 0, axis), degrees, 0.6) << value;
    }
}

TEST(hatch, fills_its_sector_evenly_and_nothing_else) {
    constexpr point middle{2'000, 1'000};
    constexpr int radius = 800;
    for (const auto& [start, sweep] : {std::pair{0, 90}, {90, 45}, {300, 100}, {45, 180}, {20, 290}, {0, 360}}) {
        drawing on;
        arceer_sector(on, middle, radius, start, sweep, zwart);
        double length = 0;
        for (const auto& [from, to, pen] : all<line_op>(on)) {
            length += std::hypot(to.x - from.x, to.y - from.y);
            const double right = (from.x + to.x) / 2.0 - middle.x, up = middle.y - (from.y + to.y) / 2.0;
            const double past = std::atan2(up, right) * 180 / std::acos(-1) - start;
            EXPECT_TRUE(std::hypot(right, up) < radius + 2 && past - std::floor(past / 360) * 360 < sweep + 0.5);
        }
        const double area = std::acos(-1) * radius * radius * sweep / 360;
        EXPECT_NEAR(length * 75, area, area / 20) << start << " over " << sweep;
    }
}

} // namespace
} // namespace cijferwerf
