// What the drawing verbs leave on the picture: words that can be read, shapes and needles where their numbers say.
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

#include "runtime/checked_error.h"
#include "runtime/picture_reading.h"
#include "tests/support/crossing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>

namespace cijferwerf {
namespace {

template<class Operation>
std::vector<Operation> all(const drawing& drawn) {
    std::vector<Operation> found;
    for (const drawing_op& each : drawn.operations())
        if (const auto* operation = std::get_if<Operation>(&each)) found.push_back(*operation);
    return found;
}

// ---- words ----

std::string first_fault(const drawing& drawn) {
    const std::vector<ink> words = visible_words(drawn);
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!words[i].within(0, 0, drawing::inner_width, drawing::inner_height)) return words[i].word + " leaves";
        for (std::size_t j = 0; j < i; ++j)
            if (words[i].meets(words[j])) return words[i].word + " over " + words[j].word;
    }
    if (const auto crossed = line_through_word(drawn)) return "a line through " + *crossed;
    return words.empty() ? "no words" : "";
}

// What a drawing covers, its words with their ink.
std::array<int, 4> covered(const drawing& drawn) {
    double left = 1e9, top = 1e9, right = 0, bottom = 0;
    const auto reach = [&](double x, double y) {
        left = std::min(left, x), right = std::max(right, x);
        top = std::min(top, y), bottom = std::max(bottom, y);
    };
    for (const ink& word : visible_words(drawn)) reach(word.left, word.top), reach(word.right, word.bottom);
    for (const drawing_op& operation : drawn.operations()) {
        for (const point& corner : path_of(operation, drawn.ground)) reach(corner.x, corner.y);
    }
    const auto whole = [](double value) { return static_cast<int>(std::lround(value)); };
    return {whole(left), whole(top), whole(right - left), whole(bottom - top)};
}

struct layout {
    const char* name;
    int left, top, width, height; // of what it covers
    std::size_t operations;
    double size;
    void (*draw)(drawing&);
};

// Each verb as full as its exercises make it.
const layout layouts[] = {
    {"columns", 70, 88, 4'990, 1'925, 56, 8,
     [](drawing& on) {
         assen axes(on, {560, 330, 4500, 1480}, {0, 120, 10}, {0, 50, 5});
         axes.lijnen_op();
         axes.getallen_links(" mm", 10);
         axes.namen_onder({"ja", "fe", "ma", "ap", "me", "ju", "ju", "au", "se", "ok", "no", "de"});
         axes.naam_boven("zetels");
         for (int month = 0; month < 12; ++month) axes.kolom(month * 10 + 2, month * 10 + 8, 50, blauw);
     }},
    {"a line", 70, 38, 5'162, 1'962, 60, 8,
     [](drawing& on) {
         assen axes(on, {560, 280, 4500, 1550}, {0, 16, 1}, {0, 80'000, 10'000});
         axes.lijnen_op();
         axes.lijnen_langs();
         axes.getallen_links();
         axes.getallen_onder();
         axes.naam_boven("m");
         axes.naam_rechts("s");
         axes.lijn({{0, 0}, {5, 80'000}, {16, 0}}, rood);
     }},
    {"pie and legend", 350, 115, 3'658, 1'900, 21, 10,
     [](drawing& on) {
         teken_taart(on, {1300, 1065}, 950, {{6, blauw, "1"}, {3, rood, "2"}, {2, paars, "3"}, {1, geel, "4"}});
         teken_legenda(on, 2800, 500, {{blauw, "1  Spanje"}, {rood, "2  Duitsland"}, {geel, "4  Italië"}});
     }},
    {"table", 40, 60, 5'300, 2'025, 81, 8.25,
     [](drawing& on) {
         for (int left = 40; left < 5'000; left += 1'780) {
             tabel table(on, left, 60, 1'740, 225, {{"stad", left + 30}, {"verschil", left + 1'710, true}});
             for (int row = 0; row < 8; ++row) table.rij("Rio de Janeiro", "-3 uur   ");
         }
     }},
    {"counters", 55, 55, 2'051, 1'610, 19, 14,
     [](drawing& on) {
         teken_teller(on, 100, 100, " 0123456");
         teken_teller(on, 100, 1'200, komma(1'234'567, 2));
     }},
    {"round dial", 1'675, 122, 2'120, 1'738, 37, 9,
     [](drawing& on) {
         teken_wijzerplaat(on, {2'690, 1'080}, 780, {200, 10, 20, 20}, 0, "km/uur");
     }},
    {"half a dial", 1'278, 205, 2'967, 1'710, 37, 10,
     [](drawing& on) {
         teken_wijzerplaat(on, {2'690, 1'600}, 1'200, {200, 10, 20, 20, 180, 180}, 200, "km/uur");
     }},
    {"clock", 940, 327, 1'520, 1'553, 33, 8,
     [](drawing& on) {
         teken_klok(on, {1'700, 1'120}, 760, 10 * 60 + 50);
     }},
    {"number line", 350, 515, 4'700, 1'233, 23, 12,
     [](drawing& on) {
         getallenlijn line(on, 500, 4'900, 1'350, 5);
         line.getal(0, "3,8");
         line.getal(5, "3,9");
         for (const int mark : {1, 2, 3, 4}) line.pijl(mark, geel, "groen");
     }},
    {"flat boxes", 444, 100, 4'905, 1'921, 38, 10,
     [](drawing& on) {
         teken_doos(on, {100, 100, 2'500, 1'930}, 2, 12, 9, " cm");
         teken_doos(on, {2'800, 100, 2'500, 1'930}, 19, 4, 2, " cm");
     }},
    {"flat cylinder", 1'044, 100, 3'742, 1'769, 17, 10,
     [](drawing& on) {
         teken_cilinder(on, {100, 100, 5'180, 1'930}, 15, 3, " cm");
     }},
    {"slender cylinder", 2'495, 100, 835, 1'921, 16, 10,
     [](drawing& on) {
         teken_cilinder(on, {100, 100, 5'180, 1'930}, 2, 17, " cm");
     }},
    {"short measures", 560, 455, 1'010, 1'164, 12, 10,
     [](drawing& on) {
         teken_maat(on, {1'000, 500}, {1'100, 500}, "1.000 cm");
         teken_maat(on, {1'000, 1'000}, {1'000, 1'100}, "rechts");
         teken_maat(on, {1'000, 1'600}, {1'000, 1'500}, "links");
     }},
    {"sum", 1'049, 285, 1'661, 1'459, 5, 20,
     [](drawing& on) {
         teken_kolomsom(on, 2'000, 200, {{"1.234"}, {"56,7", -2}, {"8"}}, "+");
     }},
    {"newspaper", 100, 60, 2'695, 1'995, 12, 10,
     [](drawing& on) {
         teken_blad(on, {100, 60, 2'650, 1'950}, bladsoort::krant, "maandag", {6, "Een stad groeit"});
     }},
    {"letter", 200, 60, 4'945, 1'995, 10, 10,
     [](drawing& on) {
         teken_blad(on, {200, 60, 4'900, 1'950}, bladsoort::brief, "Het Gasbedrijf", {5, "(m³) gas"});
     }},
    {"advertisement", 200, 60, 4'945, 1'995, 9, 11,
     [](drawing& on) {
         teken_blad(on, {200, 60, 4'900, 1'950}, bladsoort::reclame, "RECLAME", {4, "(kJ) per kg"});
     }},
    {"panel", 100, 30, 5'225, 2'065, 12, 9,
     [](drawing& on) {
         teken_blad(on, {100, 30, 5'180, 2'020}, bladsoort::paneel, "", {9, "(a + b)"});
     }},
    {"four advertisements", 12, 12, 5'356, 2'106, 16, 8.25,
     [](drawing& on) {
         for (const int number : {1, 2, 3, 4})
             teken_advertentie(on, number, {"Te huur:", "op brandstof van 123 eurocent per liter."});
     }},
    {"money", 60, 200, 5'220, 1'310, 64, 8,
     [](drawing& on) {
         for (int left = 350; const int cents : {1, 2, 5, 10, 20, 50, 100, 200})
             teken_munt(on, {std::exchange(left, left + 640), 500}, 300, cents);
         for (int left = 60; const int euros : {5, 10, 20, 50, 100, 200})
             teken_briefje(on, std::exchange(left, left + 880), 1'100, 820, euros);
     }},
};

TEST(drawings, keep_words_apart_and_clear_of_lines_and_leave_the_board_as_it_was) {
    for (const layout& each : layouts) {
        drawing on;
        on.text_size = each.size;
        on.fore_colour = donkerblauw;
        on.line_width = 5;
        each.draw(on);
        EXPECT_EQ(first_fault(on), "") << each.name;
        EXPECT_EQ(on.operations().size(), each.operations) << each.name;
        EXPECT_EQ(covered(on), (std::array{each.left, each.top, each.width, each.height})) << each.name;
        const auto lines = all<line_op>(on);
        EXPECT_EQ(std::ranges::count(lines, 5, [](const line_op& line) { return line.pen.width; }), 0) << each.name;
        EXPECT_TRUE(on.text_size == each.size && on.fore_colour == donkerblauw && on.line_width == 5) << each.name;
    }
}

TEST(drawings, know_a_line_through_a_word) {
    drawing on;
    on.print_at(100, 100, "woord");
    EXPECT_EQ(first_fault(on), "");
    on.line(0, 400, 600, 0, zwart);
    EXPECT_EQ(first_fault(on), "a line through woord");
}

TEST(drawings, print_in_white_or_black_what_is_read_on_each_colour) {
    const auto light = [](kleur colour) {
        double sum = 0;
        for (const auto& [shift, share] : {std::pair{16, 0.2126}, {8, 0.7152}, {0, 0.0722}}) {
            const double part = (kleur_rgb[colour] >> shift & 0xFFU) / 255.0;
            sum += share * (part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4));
        }
        return sum + 0.05;
    };
    for (int i = 0; i < aantal_kleuren; ++i) {
        const double ground = light(static_cast<kleur>(i)), text = light(letterkleur(static_cast<kleur>(i)));
        EXPECT_GE(std::max(ground, text) / std::min(ground, text), 4.5) << "on colour " << i;
    }
}

// ---- digits ----

TEST(wide_digits, stand_in_columns_of_their_own) {
    const std::pair<const char*, const char*> rows[] = {
        {"345", "3  4  5"}, {" 7", "7"}, {"12,5", "1  2, 5"}, {"1.234,5", "1. 2  3  4, 5"}};
    for (const auto& [number, wide] : rows) EXPECT_EQ(cijfers_wijd(number), wide);
    EXPECT_EQ(text_width("0  ", 12), 240);
    EXPECT_EQ(text_width("0  ", 15), 300);
}

TEST(column_sum, sets_digits_under_digits_as_far_shifted_as_asked) {
    drawing on;
    on.text_size = 20;
    teken_kolomsom(on, 3'000, 200, {{"5678"}, {"34"}, {"12", 2}, {"7,5", -1}}, "+");
    const auto texts = all<text_op>(on);
    const auto digit = [&](std::size_t row, std::size_t which) {
        return texts[row].x + text_width(texts[row].text.substr(0, which), on.text_size);
    };
    EXPECT_NEAR(digit(1, 0), digit(0, 2), 1) << "tens under tens";
    EXPECT_NEAR(digit(2, 1), digit(0, 1), 1) << "two digits to the left";
    EXPECT_NEAR(digit(3, 2), 3'000, 1) << "one digit to the right";
    const line_op bar = all<line_op>(on).front();
    EXPECT_LT(bar.from.x, digit(0, 0));
    EXPECT_GT(bar.to.x, 3'000 + text_width("5", on.text_size));
}

// ---- graphs ----

TEST(axes, put_values_on_their_gridlines_also_from_a_scale_that_begins_above_nought) {
    drawing on;
    assen axes(on, {500, 200, 4'000, 1'500}, {0, 8, 2}, {80, 110, 10});
    axes.lijnen_op();
    const vlak column = axes.kolom(2, 4, 100, blauw);
    EXPECT_EQ(column, (vlak{1'500, 700, 1'000, 1'000}));
    EXPECT_TRUE(std::ranges::any_of(all<line_op>(on), [](const line_op& line) {
        return line.from == point{500, 700} && line.to == point{4'500, 700};
    })) << "no gridline at 100";
    EXPECT_EQ(axes.y(80), 1'700);
    EXPECT_EQ(axes.x(8), 4'500);
    EXPECT_THROW(assen(on, {500, 200, 4'000, 1'500}, {3, 3, 1}, {0, 1, 1}), checked_error);
}

TEST(pie, gives_each_part_its_share) {
    drawing on;
    teken_taart(on, {1'000, 1'000}, 800, {{5, rood}, {4, geel}, {2, blauw}, {1, wit}}, 0);
    double from = 0;
    const auto sectors = all<circle_op>(on);
    for (const auto& [i, degrees] : {std::pair{0U, 150}, {1U, 120}, {2U, 60}, {3U, 30}}) {
        EXPECT_DOUBLE_EQ(sectors[i].sweep, degrees);
        EXPECT_DOUBLE_EQ(sectors[i].start, from);
        from += degrees;
    }
}

TEST(hatch, fills_its_sector_evenly_and_nothing_else) {
    constexpr point middle{2'000, 1'000};
    constexpr int radius = 800;
    for (const auto& [start, sweep] : {std::pair{0, 90}, {90, 45}, {300, 100}, {45, 180}, {20, 290}, {0, 360}}) {
        drawing on;
        arceer_sector(on, middle, radius, start, sweep, zwart);
        double length = 0;
        for (const line_op& line : all<line_op>(on)) {
            const double dx = line.to.x - line.from.x, dy = line.to.y - line.from.y;
            length += std::hypot(dx, dy);
            const double right = line.from.x + dx / 2 - middle.x, up = middle.y - line.from.y - dy / 2;
            EXPECT_LT(std::hypot(right, up), radius + 2);
            const double past = std::atan2(up, right) * 180 / std::acos(-1) - start;
            EXPECT_LT(past - std::floor(past / 360) * 360, sweep + 0.5);
        }
        const double area = std::acos(-1) * radius * radius * sweep / 360;
        EXPECT_NEAR(length * 75, area, area / 20) << start << " over " << sweep;
    }
}

// ---- figures ----

TEST(grid_figure, counts_its_perimeter_and_area_from_the_corners_that_it_draws) {
    struct row {
        const char* name;
        std::vector<point> corners;
        int perimeter, half_squares; // perimeter 0: it has a slanting side
    };
    const row rows[] = {
        {"rectangle", {{0, 0}, {4, 0}, {4, 3}, {0, 3}}, 14, 24},
        {"the same backwards", {{0, 3}, {4, 3}, {4, 0}, {0, 0}}, 14, 24},
        {"L, area 12 too", {{0, 0}, {2, 0}, {2, 4}, {4, 4}, {4, 6}, {0, 6}}, 20, 32},
        {"U", {{0, 0}, {1, 0}, {1, 2}, {2, 2}, {2, 0}, {3, 0}, {3, 3}, {0, 3}}, 16, 14},
        {"triangle", {{0, 0}, {3, 0}, {0, 3}}, 0, 9},
        {"trapezium", {{0, 0}, {8, 0}, {6, 4}, {2, 4}}, 0, 48},
    };
    for (const row& each : rows) {
        const roosterfiguur figure = roosterfiguur(each.corners).verschoven(2, 1);
        EXPECT_EQ(figure.halve_hokjes(), each.half_squares) << each.name;
        if (each.perimeter > 0)
            EXPECT_EQ(figure.omtrek(), each.perimeter) << each.name;
        else
            EXPECT_THROW(figure.omtrek(), checked_error) << each.name;
        if (each.half_squares % 2 == 0)
            EXPECT_EQ(figure.oppervlakte(), each.half_squares / 2) << each.name;
        else
            EXPECT_THROW(figure.oppervlakte(), checked_error) << each.name;

        drawing on;
        teken_rooster(on, {{100, 200}, 150, 12, 8}, {{figure, geel}});
        const auto shapes = all<polygon_op>(on);
        ASSERT_EQ(shapes.size(), 1U) << each.name;
        for (std::size_t i = 0; i < each.corners.size(); ++i)
            EXPECT_EQ(shapes[0].corners[i], (point{400 + each.corners[i].x * 150, 350 + each.corners[i].y * 150}));
    }
}

TEST(box, is_drawn_to_scale_within_its_place) {
    for (const auto& [width, depth, height] : {std::array{2, 19, 9}, {19, 2, 11}, {4, 3, 5}, {9, 10, 2}}) {
        drawing on;
        teken_doos(on, {300, 100, 4'700, 1'930}, width, depth, height);
        const box_op front = all<box_op>(on).front();
        EXPECT_NEAR(1.0 * front.width / width, 1.0 * front.height / height, 1);
        int top = front.y;
        for (const polygon_op& face : all<polygon_op>(on))
            for (const point& corner : face.corners) top = std::min(top, corner.y);
        EXPECT_GE(top, 100);
        EXPECT_TRUE(front.width > 3'000 || front.y + front.height - top > 1'500) << "small for its place";
    }
}

// ---- needles ----

// The angle from the axis to the tip, the second corner of a needle: degrees, clockwise from twelve o'clock.
double points_at(const polygon_op& needle, point axis) {
    const double degrees = std::atan2(needle.corners[1].x - axis.x, axis.y - needle.corners[1].y) * 180 / std::acos(-1);
    return degrees < -0.1 ? degrees + 360 : degrees;
}

TEST(clock, points_at_the_time) {
    for (const auto& [minutes, hour_hand, minute_hand] :
         {std::array{0, 0, 0}, {7 * 60 + 25, 222, 150}, {12 * 60 + 30, 15, 180}, {20 * 60 + 45, 262, 270}}) {
        drawing on;
        teken_klok(on, {1'000, 1'000}, 800, minutes);
        const auto hands = all<polygon_op>(on);
        EXPECT_NEAR(points_at(hands[0], {1'000, 1'000}), hour_hand, 0.6) << minutes;
        EXPECT_NEAR(points_at(hands[1], {1'000, 1'000}), minute_hand, 0.6) << minutes;
    }
}

TEST(dial, points_at_the_mark_of_its_value) {
    for (const auto& [value, degrees] : {std::pair{0, 225}, {50, 292}, {100, 0}, {200, 135}}) {
        drawing on;
        teken_wijzerplaat(on, {1'000, 1'000}, 800, {200, 10, 20}, value);
        EXPECT_NEAR(points_at(all<polygon_op>(on)[0], {1'000, 1'000}), degrees, 0.6) << value;
        EXPECT_EQ(all<line_op>(on).size(), 21U) << "marks";
    }
}

TEST(tekening, is_read_aloud_with_what_its_texts_do_not_say) {
    struct row {
        std::function<void(drawing&)> draw;
        std::string_view says;
    };
    const std::array<row, 11> rows{{
        {[](drawing& on) {
             teken_klok(on, {2000, 1000}, 800, 6 * 60 + 35);
         },
         "Een wekker. De kleine wijzer staat tussen de 6 en de 7, de grote op de 7."},
        {[](drawing& on) {
             teken_klok(on, {2000, 1000}, 800, 12 * 60 + 59);
         },
         "Een wekker. De kleine wijzer staat tussen de 12 en de 1, de grote tussen de 11 en de 12."},
        {[](drawing& on) {
             teken_wijzerplaat(on, {2000, 1000}, 800, {200, 10, 20, 20}, 70, "km/uur");
         },
         "Een wijzerplaat met de getallen 0, 20 enzovoort tot 200 en twee stukjes van getal tot getal. De wijzer staat "
         "één stukje verder dan 60. km/uur"},
        {[](drawing& on) {
             teken_wijzerplaat(on, {2000, 1000}, 800, {1000, 50, 100, 0}, 650);
         },
         "Een wijzerplaat met tien lange streepjes. De wijzer staat 6,5 lange streepjes na het begin."},
        {[](drawing& on) {
             getallenlijn lijn(on, 290, 5090, 1150, 10);
             lijn.getal(0, "15");
             lijn.pijl(7, rood, "rood");
             lijn.getal(10, "25");
         },
         "Een getallenlijn in tien gelijke stukjes. Bij het begin staat 15. De rode pijl wijst naar het zevende "
         "streepje. Bij het eind staat 25."},
        {[](drawing& on) {
             assen grafiek(on, {480, 240, 4000, 1640}, {0, 2, 1}, {60, 100, 10});
             grafiek.kolom(0, 1, 90, groen);
             grafiek.kolom(1, 2, 75, rood);
             grafiek.getallen_links("", 20);
             grafiek.naam_boven("mm");
         },
         "Een grafiek. Omhoog (mm): 60, 80 enzovoort tot 100, bij elke tweede streep. De kolommen van links naar "
         "rechts, in strepen hoog: groen drie; rood 1,5."},
        {[](drawing& on) {
             assen grafiek(on, {480, 240, 4000, 1640}, {0, 8, 4}, {0, 100, 10});
             grafiek.lijn({{0, 0}, {4, 55}, {8, 40}}, donkerblauw);
             grafiek.lijn({{2, 20}, {6, 30}}, rood);
             grafiek.namen_onder({"j", "f"});
         },
         "Een grafiek. De blauwe lijn, in strepen naar rechts en omhoog: nul en nul, één en 5,5, twee en vier. De rode "
         "lijn, in strepen hoog: j twee, f drie."},
        {[](drawing& on) {
             teken_taart(on, {2000, 1000}, 800, {{3, rood}, {1, geel, "rest", true}});
         },
         "Een cirkel in delen. In twaalfden van de cirkel: rood negen, rest gestreept drie."},
        {[](drawing& on) {
             teken_kolomsom(on, 2000, 100, {{"3  5"}, {"7", 1}}, "+");
         },
         "Onder elkaar: 35; 7, één naar links; +."},
        {[](drawing& on) {
             teken_breuk(on, 100, 500, 2, 3, 4);
             on.print_at(1500, 400, "=");
             teken_met_machten(on, 2000, 400, "3^2 x 5^10");
         },
         "2 3/4 = 3 tot de macht 2 x 5 tot de macht 10"},
        {[](drawing& on) {
             teken_rooster(on, {{0, 0}, 270, 9, 5}, {{roosterfiguur({{0, 0}, {3, 0}, {2, 2}, {0, 2}}), grijs}});
         },
         "De eerste figuur is grijs. In hokjes loopt de rand: drie naar rechts, één naar links met twee omlaag, twee "
         "naar links, twee omhoog."},
    }};
    for (const auto& [draw, says] : rows) {
        drawing on;
        on.text_size = 12;
        draw(on);
        EXPECT_EQ(read_picture(on), says);
    }
}

} // namespace
} // namespace cijferwerf
