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

// Each verb as full as its exercises make it.
void expect_covered(extent wanted, std::size_t operations, double size, const draw& by) {
    const drawing made = drawn(size, by);
    EXPECT_EQ(covered(made), wanted);
    EXPECT_EQ(made.operations().size(), operations);
}

TEST(drawings, fill_their_place) {
    expect_covered({70, 88, 4'990, 1'925}, 56, 8, [](drawing& on) {
        assen axes(on, {560, 330, 4500, 1480}, {0, 120, 10}, {0, 50, 5});
        axes.lijnen_op();
        axes.getallen_links(" mm", 10);
        axes.namen_onder({"ja", "fe", "ma", "ap", "me", "ju", "ju", "au", "se", "ok", "no", "de"});
        axes.naam_boven("zetels");
        for (int month = 0; month < 12; ++month) axes.kolom(month * 10 + 2, month * 10 + 8, 50, blauw);
    });
    expect_covered({70, 38, 5'162, 1'962}, 60, 8, [](drawing& on) {
        assen axes(on, {560, 280, 4500, 1550}, {0, 16, 1}, {0, 80'000, 10'000});
        axes.lijnen_op();
        axes.lijnen_langs();
        axes.getallen_links();
        axes.getallen_onder();
        axes.naam_boven("m");
        axes.naam_rechts("s");
        axes.lijn({{0, 0}, {5, 80'000}, {16, 0}}, rood);
    });
    expect_covered({350, 115, 3'658, 1'900}, 21, 10, [](drawing& on) {
        teken_taart(on, {1300, 1065}, 950, {{6, blauw, "1"}, {3, rood, "2"}, {2, paars, "3"}, {1, geel, "4"}});
        teken_legenda(on, 2800, 500, {{blauw, "1  Spanje"}, {rood, "2  Duitsland"}, {geel, "4  Italië"}});
    });
    expect_covered({40, 60, 1'740, 2'025}, 27, 8.25, [](drawing& on) {
        tabel table(on, 40, 60, 1'740, 225, {{"stad", 70}, {"verschil", 1'750, true}});
        for (int row = 0; row < 8; ++row) table.rij("Rio de Janeiro", "-3 uur   ");
    });
    expect_covered({55, 55, 2'051, 510}, 10, 14, [](drawing& on) { teken_teller(on, 100, 100, komma(1'234'567, 2)); });
    expect_covered({1'675, 122, 2'120, 1'738}, 37, 9, [](drawing& on) {
        teken_wijzerplaat(on, {2'690, 1'080}, 780, {200, 10, 20, 20}, 0, "km/uur");
    });
    expect_covered({1'278, 205, 2'967, 1'710}, 37, 10, [](drawing& on) {
        teken_wijzerplaat(on, {2'690, 1'600}, 1'200, {200, 10, 20, 20, 180, 180}, 200, "km/uur");
    });
    expect_covered({940, 327, 1'520, 1'553}, 33, 8, [](drawing& on) { teken_klok(on, {1'700, 1'120}, 760, 650); });
    expect_covered({350, 515, 4'700, 1'233}, 23, 12, [](drawing& on) {
        getallenlijn line(on, 500, 4'900, 1'350, 5);
        line.getal(0, "3,8");
        line.getal(5, "3,9");
        for (const int mark : {1, 2, 3, 4}) line.pijl(mark, geel, "groen");
    });
    expect_covered({444, 100, 1'647, 1'921}, 19, 10, [](drawing& on) {
        teken_doos(on, {100, 100, 2'500, 1'930}, 2, 12, 9, " cm");
    });
    expect_covered({1'044, 100, 3'742, 1'769}, 17, 10, [](drawing& on) {
        teken_cilinder(on, {100, 100, 5'180, 1'930}, 15, 3, " cm");
    });
    expect_covered({2'495, 100, 835, 1'921}, 16, 10, [](drawing& on) {
        teken_cilinder(on, {100, 100, 5'180, 1'930}, 2, 17, " cm");
    });
    expect_covered({560, 455, 1'010, 1'164}, 12, 10, [](drawing& on) {
        teken_maat(on, {1'000, 500}, {1'100, 500}, "1.000 cm");
        teken_maat(on, {1'000, 1'000}, {1'000, 1'100}, "rechts");
        teken_maat(on, {1'000, 1'600}, {1'000, 1'500}, "links");
    });
    expect_covered({1'049, 285, 1'661, 1'459}, 5, 20, [](drawing& on) {
        teken_kolomsom(on, 2'000, 200, {{"1.234"}, {"56,7", -2}, {"8"}}, "+");
    });
    expect_covered({100, 60, 2'695, 1'995}, 12, 10, [](drawing& on) {
        teken_blad(on, {100, 60, 2'650, 1'950}, bladsoort::krant, "maandag", {6, "Een stad groeit"});
    });
    expect_covered({200, 60, 4'945, 1'995}, 10, 10, [](drawing& on) {
        teken_blad(on, {200, 60, 4'900, 1'950}, bladsoort::brief, "Het Gasbedrijf", {5, "(m³) gas"});
    });
    expect_covered({200, 60, 4'945, 1'995}, 9, 11, [](drawing& on) {
        teken_blad(on, {200, 60, 4'900, 1'950}, bladsoort::reclame, "RECLAME", {4, "(kJ) per kg"});
    });
    expect_covered({100, 30, 5'225, 2'065}, 12, 9, [](drawing& on) {
        teken_blad(on, {100, 30, 5'180, 2'020}, bladsoort::paneel, "", {9, "(a + b)"});
    });
    expect_covered({12, 12, 5'356, 2'106}, 16, 8.25, [](drawing& on) {
        for (const int number : {1, 2, 3, 4})
            teken_advertentie(on, number, {"Te huur:", "op brandstof van 123 eurocent per liter."});
    });
    expect_covered({60, 200, 5'220, 1'310}, 64, 8, [](drawing& on) {
        for (int left = 350; const int cents : {1, 2, 5, 10, 20, 50, 100, 200})
            teken_munt(on, {std::exchange(left, left + 640), 500}, 300, cents);
        for (int left = 60; const int euros : {5, 10, 20, 50, 100, 200})
            teken_briefje(on, std::exchange(left, left + 880), 1'100, 820, euros);
    });
    expect_covered({1'000, 945, 1'030, 317}, 3, 20, [](drawing& on) { teken_met_machten(on, 1'000, 900, "4^10 = x"); });
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

void expect_read(std::string_view aloud, const draw& by) { EXPECT_EQ(read_picture(drawn(12, by)), aloud); }

TEST(drawings, are_read_aloud_with_what_their_texts_do_not_say) {
    expect_read("Een wekker. De kleine wijzer staat tussen de 6 en de 7, de grote op de 7.", [](drawing& on) {
        teken_klok(on, {2000, 1000}, 800, 6 * 60 + 35);
    });
    expect_read("Een wekker. De kleine wijzer staat tussen de 12 en de 1, de grote tussen de 11 en de 12.",
                [](drawing& on) {
                    teken_klok(on, {2000, 1000}, 800, 12 * 60 + 59);
                });
    expect_read(
        "Een wijzerplaat met de getallen 0, 20 enzovoort tot 200 en twee stukjes van getal tot getal. De wijzer "
        "staat één stukje verder dan 60. km/uur",
        [](drawing& on) {
            teken_wijzerplaat(on, {2000, 1000}, 800, {200, 10, 20, 20}, 70, "km/uur");
        });
    expect_read("Een wijzerplaat met tien lange streepjes. De wijzer staat 6,5 lange streepjes na het begin.",
                [](drawing& on) {
                    teken_wijzerplaat(on, {2000, 1000}, 800, {1000, 50, 100, 0}, 650);
                });
    expect_read("Een getallenlijn in tien gelijke stukjes. Bij het begin staat 15. De rode pijl wijst naar het zevende "
                "streepje. Bij het eind staat 25.",
                [](drawing& on) {
                    getallenlijn lijn(on, 290, 5090, 1150, 10);
                    lijn.getal(0, "15");
                    lijn.pijl(7, rood, "rood");
                    lijn.getal(10, "25");
                });
    expect_read(
        "Een grafiek. Omhoog (mm): 60, 80 enzovoort tot 100, bij elke tweede streep. De kolommen van links naar "
        "rechts, in strepen hoog: groen drie; rood 1,5.",
        [](drawing& on) {
            assen grafiek(on, {480, 240, 4000, 1640}, {0, 2, 1}, {60, 100, 10});
            grafiek.kolom(0, 1, 90, groen);
            grafiek.kolom(1, 2, 75, rood);
            grafiek.getallen_links("", 20);
            grafiek.naam_boven("mm");
        });
    expect_read(
        "Een grafiek. De blauwe lijn, in strepen naar rechts en omhoog: nul en nul, één en 5,5, twee en vier. De "
        "rode lijn, in strepen hoog: j twee, f drie.",
        [](drawing& on) {
            assen grafiek(on, {480, 240, 4000, 1640}, {0, 8, 4}, {0, 100, 10});
            grafiek.lijn({{0, 0}, {4, 55}, {8, 40}}, donkerblauw);
            grafiek.lijn({{2, 20}, {6, 30}}, rood);
            grafiek.namen_onder({"j", "f"});
        });
    expect_read("Een cirkel in delen. In twaalfden van de cirkel: rood negen, rest gestreept drie.", [](drawing& on) {
        teken_taart(on, {2000, 1000}, 800, {{3, rood}, {1, geel, "rest", true}});
    });
    expect_read("Onder elkaar: 35; 7, één naar links; +.", [](drawing& on) {
        teken_kolomsom(on, 2000, 100, {{"3  5"}, {"7", 1}}, "+");
    });
    expect_read("2 3/4 = 3 tot de macht 2 x 5 tot de macht 10", [](drawing& on) {
        teken_breuk(on, 100, 500, 2, 3, 4);
        on.print_at(1500, 400, "=");
        teken_met_machten(on, 2000, 400, "3^2 x 5^10");
    });
    expect_read("De eerste figuur is grijs. In hokjes loopt de rand: drie naar rechts, één naar links met twee omlaag, "
                "twee naar links, twee omhoog.",
                [](drawing& on) {
                    teken_rooster(on, {{0, 0}, 270, 9, 5}, {{roosterfiguur({{0, 0}, {3, 0}, {2, 2}, {0, 2}}), grijs}});
                });
}

} // namespace
} // namespace cijferwerf
