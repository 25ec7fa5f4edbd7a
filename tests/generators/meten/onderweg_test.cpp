// Distances and times on the road, dials, jobs whose last pot or roll is used only in part, and sizes that everyone
// knows.
#include "tests/support/exercise_rows.h"

#include <numbers>

namespace cijferwerf {
namespace {

// Where the red needle points, on a scale from 0 to 200 that runs clockwise over 270 degrees from the lower left.
double needle(const reading& n) {
    for (const drawing_op& operation : n.exercise.made.plaatje.operations())
        if (const auto* hand = std::get_if<polygon_op>(&operation); hand != nullptr && hand->pen.colour == rood) {
            const point tip = hand->corners.at(1), end = hand->corners.at(3);
            const double angle = std::atan2(end.y - tip.y, tip.x - end.x) * 180 / std::numbers::pi;
            return rounded(std::fmod(225 - angle + 360, 360) / 270 * 20) * 10;
        }
    return 0;
}

// The difference of "3  0  8  0, 8" and another counter, in kilometres or metres.
double ride(const reading& n) {
    const auto counter = [](std::string digits) { return std::erase(digits, ' '), decimal(digits); };
    return rounded((counter(n.words[2]) - counter(n.words[1])) * (n.variant() == 1 ? 1 : 1000), 1);
}

// Four counts in a row; where one is too few the rest was forgotten, and the others are told different things.
void check_row(const reading& n) {
    std::set<std::string> all;
    for (int place = 1; place <= 4; ++place) {
        const int more = place - n.exercise.right_place();
        const std::string told = more == 0 ? "" : n.exercise.feedback(place);
        EXPECT_EQ(decimal(n.exercise.answer(place)), decimal(n.exercise.right) + more);
        EXPECT_EQ(told.find("rest vergeten") != told.npos, more == -1);
        all.insert(told);
    }
    EXPECT_TRUE(all.size() == 4 && decimal(n.exercise.right) >= 4);
}

// Quotients in whole numbers, and what is left.
formula down(const formula& a, const formula& b) {
    return [=](const reading& n) { return std::floor(std::get<double>(a(n)) / std::get<double>(b(n)) + 1e-9); };
}
std::vector<formula> division(const formula& a, const formula& b) { return {a, b, down(a, b), a - down(a, b) * b}; }
const formula area = v[0] * v[1], per_roll = down(v[2], v[1]), strips = down(v[0] * 100, v[3]) + 1;

const formula marks = v[1] / 20, per_mark = v[0] * 100;

// A size beside the right one is told how far off it is, another kind of unit what it is.
void check_estimate(const reading& n) {
    static const std::array<std::string, 4> kinds{"lengtemaat", "maat voor gewicht", "oppervlaktemaat", "inhoudsmaat"};
    const std::string &right = n.exercise.right, &kind = kinds.at(static_cast<std::size_t>(n.variant() - 1));
    n.exercise.told((" een " + kind + " bij.*" + n.words[0] + " is ongeveer " + right + "\\.").c_str());
    for (int which = 2; which <= 4; ++which) {
        const auto made = amount_of(n.exercise.answer(which)), wanted = amount_of(right);
        const std::string told = n.exercise.feedback(which);
        const auto off = find_pattern(told, "Dat is # keer zo (groot|klein) als");
        EXPECT_EQ(off.has_value(), which < 4 && made->of == wanted->of);
        EXPECT_TRUE(!off || same(made->value / wanted->value, std::pow(off->numbers[0], 1 - 2 * off->numbers[1])));
        EXPECT_TRUE(told.find(kinds[0]) == told.npos || told.find("plaats van een " + kind) != told.npos) << told;
    }
}

// The flights of the board: number, departure, arrival and gate in a row. How many hours one takes.
double hours(const reading& n, std::size_t row) {
    const auto time = [&](std::size_t word) { return number_of(n.exercise.words.at(word)).value(); };
    return (time(row + 2) - time(row + 1)) / 60;
}
std::size_t asked(const reading& n) {
    return static_cast<std::size_t>(std::ranges::find(n.exercise.words, n.words[0]) - n.exercise.words.begin());
}

// Four flights, each within a day; the wrong times are those of another, and the right ones are framed.
void check_board(const reading& n) {
    std::map<std::string, double> distances;
    for (std::size_t row = 4; row < 20; row += 4) distances[n.exercise.words.at(row)] = hours(n, row) * n[0];
    std::set<double> different;
    for (const auto& [number, distance] : distances) different.insert(distance);
    EXPECT_EQ(different.size(), 4U);
    for (int which = 2; which <= 4; ++which)
        EXPECT_TRUE(n.exercise.feedback(which).find("ander vliegtuig") == std::string::npos ||
                    different.contains(decimal(n.exercise.answer(which))));
    const auto frame = std::get<box_op>(explained(n.exercise.made).operations().back());
    const int top = n.exercise.texts[asked(n)].y;
    EXPECT_TRUE(!frame.filled && frame.y < top && frame.y + frame.height > top + 200 && frame.height < 400);
}

const exercise_rows on_the_road([] {
    row(L_fietsen_07_09_click, 2,
        "@ maakt een fietstocht. * Hoe lang was de fietstocht? | BEGIN | @ | km | EINDE | @ | km", counts(ride),
        range({{15.2, 59.8, 0.2}}), range({{15200, 59800, 200}}), words({8}), right(v[0]),
        explains("fietstocht was dus #", v[0]), [](const reading& n) {
            for (int which = 2; which <= 4; ++which) {
                const double off = std::abs(decimal(n.exercise.answer(which)) - n[0]) / (n.variant() == 1 ? 1 : 1000);
                EXPECT_EQ(n.exercise.feedback(which).find("bijna goed") != std::string::npos, off < 1.2) << off;
                EXPECT_EQ(n.exercise.feedback(which).find("heel wat naast") != std::string::npos, off > 7.9) << off;
            }
        });
    row(L_vakantie_07_09_click, 2, "afleggen van # km. Hoeveel uur moeten zij minstens rijden? |", counts(needle),
        range({{180, 1440, 60}, {60, 120}}), range({{150, 1320, 60}, {50, 110}}), right(v[0] / v[1]),
        wrong("kunnen zij maar", lies::below), wrong("hoeven zij niet", lies::above),
        wrong("goed afgelezen?", v[0] / v[1] * 2), explains("aflezen: # km/uur", v[1]),
        explains("# : # = #.", v[0], v[1], v[0] / v[1]), [](const reading& n) {
            for (int which = 2; which <= 4; ++which)
                if (const auto told = find_pattern(n.exercise.feedback(which), "In # uur kunnen zij * # km rijden")) {
                    EXPECT_EQ(told->numbers[0], decimal(n.exercise.answer(which)));
                    EXPECT_EQ(told->numbers[1], told->numbers[0] * n[1]);
                }
        });
    row(Z_vliegtuig_07_09_click, 2,
        "vluchtnummer @ is geland. Het vloog met een snelheid van # km per uur. * | NUMMER | VERTREK | AANKOMST "
        "| UITGANG | ",
        counts([](const reading& n) { return hours(n, asked(n)); }), range({{600, 900}, {2, 8}}),
        range({{600, 900}, {1.5, 7.5}}), right(v[0] * v[1]), wrong("ander vliegtuig", lies::elsewhere),
        wrong("Bereken eerst hoe lang", v[0] * (v[1] - 1), v[0] * (v[1] + 1)),
        wrong("halve uur vergeten", v[0] * (v[1] - 0.5)), wrong("niet 0,3 uur", v[0] * (v[1] - 0.2)),
        explains("Het vloog dus # uur met een snelheid van # km per uur. De afstand is # x #", v[1], v[0], v[1], v[0]),
        check_board);
    row(M_worst_08_17_click, 5, "Hoeveel gram weegt die worst ongeveer? | MAX.*# kg | 0 ", counts(needle),
        range({{0.5, 10}, {40, 180}}), right(marks * per_mark), wrong("bij 1 begonnen", (marks + 1) * per_mark),
        wrong("te weinig geteld", (marks - 1) * per_mark), wrong("verkeerde kant", (formula(10) - marks) * per_mark),
        wrong("Kijk eerst hoeveel gram elk streepje is. Een lang", marks * per_mark * 2, marks * per_mark / 2),
        wrong("Kijk eerst hoeveel gram elk streepje is. Eén kg", marks * per_mark * 10),
        explains("Elk stuk is dus # gram : 10 = # gram. De wijzer staat # lange streepjes", v[0] * 1000, per_mark,
                 marks));
    row(B_schatten_08_17_click, 4, "Welke maat past het beste op de stippen? | @ | is ongeveer... ", words({16}),
        check_estimate);
    row(L_schilder_07_12_click, 2, "schilderen van # m breed en # m lang. * nodig? | # m²",
        range({{3, 12}, {3, 12}, {4, 10}}), right(down(area, v[2]) + 1), explains("# x # = # m².", v[0], v[1], area),
        explains("dus # : # = #, rest #. Voor", division(area, v[2])), [](const reading& n) {
            EXPECT_NE(std::fmod(n[0] * n[1], n[2]), 0) << "the explanation speaks of a rest";
            check_row(n);
        });
    row(M_behangen_07_09_click, 2,
        "De lengte van de muur is # m. De hoogte van de muur is # m. De rollen behang zijn # m lang en # cm breed. "
        "* nodig? | $0 m | $1 m | rol: $2 m | $3 cm",
        range({{5, 12, 0.2}, {2.2, 3}, {8, 10}, {45, 60, 1}}), range({{5, 12, 0.4}, {2.2, 3}, {10.5, 15}, {45, 60, 1}}),
        right(down(strips, per_roll) + 1), explains("uitkomst: # : # = #, rest #.", division(v[2] * 100, v[1] * 100)),
        explains("# : # = #, rest #. Er", division(v[0] * 100, v[3])), explains("dus # banen nodig", strips),
        explains("rollen: # : # = #, rest #.", division(strips, per_roll)), check_row);
});

} // namespace
} // namespace cijferwerf
