// The ratios: what they draw, their answers worked out again from what a pupil sees, and each wrong answer as the
// mistake that its feedback names.
#include "generators/gedeeld/kleuren.h"
#include "generators/gedeeld/telwoord.h"
#include "tests/support/exercise_rows.h"

#include <numeric>

namespace cijferwerf {
namespace {

template<class Operation, class Wanted>
std::vector<Operation> operations(const seen& e, Wanted wanted) {
    std::vector<Operation> all;
    for (const drawing_op& each : e.made.plaatje.operations())
        if (const auto* operation = std::get_if<Operation>(&each); operation != nullptr && wanted(*operation))
            all.push_back(*operation);
    return all;
}

std::array<int, 3> front_widths(const seen& e) {
    return {e.blocks.at(1).width, e.blocks.at(3).width, e.blocks.at(5).width};
}
// The share that the door takes of each front, under which a word names the colour.
void check_houses(const reading& n) {
    const seen& e = n.exercise;
    std::map<double, std::set<std::string>> by_share;
    std::map<std::string, std::string> adjectives;
    ASSERT_EQ(e.blocks.size(), 7U) << "the ground, and three fronts with a door each";
    for (std::size_t i = 0; i < 3; ++i) {
        const box_op &front = e.blocks[1 + 2 * i], &door = e.blocks[2 + 2 * i];
        EXPECT_EQ(front.x + front.width / 2, door.x + door.width / 2);
        EXPECT_EQ(front.y + front.height, door.y + door.height);
        EXPECT_TRUE(e.texts[i].x > front.x - 100 && e.texts[i].x < front.x + front.width);
        EXPECT_EQ(e.words[i], woord(front.pen.colour));
        adjectives[e.words[i]] = bijvoeglijk(front.pen.colour);
        by_share[1.0 * door.width * door.height / front.width / front.height].insert(e.words[i]);
    }
    const bool largest = n[0] == 0, equal = by_share.size() == 1;
    EXPECT_TRUE(equal ? n.variant() > 2 : by_share.size() == 3);
    const std::set<std::string> most = by_share.rbegin()->second, least = by_share.begin()->second;
    EXPECT_EQ(e.right, equal ? "geen deur" : *(largest ? most : least).begin());
    for (int i = 2; i <= 4; ++i) {
        const std::string answer = e.answer(i), told = e.feedback(i);
        const std::string piece = equal                   ? (largest ? "echt kleiner dan" : "echt groter dan")
                                  : answer == "geen deur" ? "maar de voorkanten niet"
                                  : answer == *(largest ? least : most).begin()
                                      ? (largest ? "is het grootste" : "is het kleinste")
                                      : (largest ? "een kleiner huisje" : "een groter huisje");
        EXPECT_NE(told.find(piece), told.npos) << answer << ": " << told;
        EXPECT_NE(told.find(" " + adjectives[answer]), told.npos) << answer << ": " << told;
    }
    EXPECT_TRUE(e.last.ends_with(": " + e.right + "."));
}

const auto mark = [](const line_op& line) { return line.from.y == line.to.y && line.to.x - line.from.x == 500; };
const formula full_marks = [](const reading& n) {
    const int level = n.exercise.blocks[1].y;
    return operations<line_op>(n.exercise, [&](const line_op& l) { return mark(l) && l.from.y >= level; }).size();
};
const formula all_marks = [](const reading& n) { return operations<line_op>(n.exercise, mark).size(); };

// The red part of the left (0) or right (1) circle.
formula red_part(std::size_t which) {
    return [which](const reading& n) {
        const auto red = operations<circle_op>(n.exercise, [](const circle_op& c) { return c.pen.colour == rood; });
        EXPECT_EQ(red.at(which).centre, (point{which == 0 ? 1500 : 3900, 1000}));
        return red.at(which).sweep / 360;
    };
}
// The least whole numbers in the ratio of the red parts, so many times, in this order or the other.
formula ratio(int times, bool swapped = false) {
    return [=](const reading& n) {
        int left = 1, right = 1;
        while (!same(left * n[1], right * n[0])) left* n[1] < right* n[0] ? ++left : ++right;
        if (swapped) std::swap(left, right);
        return regel(kaal(times * left), " :", times * right);
    };
}
// The spokes cut both circles in as many parts as the fractions of the explanation say.
void check_spokes(const reading& n) {
    const auto parts = n.exercise.told("het \\d/(\\d) deel rood .* het \\d/(\\d) deel\\. ");
    EXPECT_EQ(n.exercise.made.uitlegopdrachten[0], "PARTJES_3900_1000_" + parts.at(2) + "_");
    EXPECT_EQ(n.exercise.made.uitlegopdrachten[1], "PARTJES_1500_1000_" + parts.at(1) + "_");
}

// What can be misread in "one of the eight"; the last two are 1,8 and 8,1, also where it is 2.000 of the 16.000.
std::vector<mistake> misread(const formula& part, const formula& whole) {
    const formula percentage = part * 100 / whole;
    std::vector<mistake> all{{"gaat juist niet naar dat land", 100 - percentage}};
    for (const formula& value : {part, whole, part + whole, whole - part, 10 * part, 10 * whole, 2 * percentage,
                                 part * 8 / whole + 0.8, 8 + part * 0.8 / whole})
        all.push_back({"Lees de vraag", value});
    return all;
}

const formula one_in = v[1] + 3;

const formula turned_by = [](const reading& n) { return n[2] == 0 ? n[0] : n[1]; };
const formula turns = [](const reading& n) { return n[2] == 0 ? n[1] : n[0]; };
const formula turned = v[3] * turned_by / turns;
const formula large_turns = [](const reading& n) { return (n[0] > n[1]) == (n[2] == 0) ? 1 : 0; };
const formula common = [](const reading& n) { return std::gcd(std::lround(n[0]), std::lround(n[1])); };
const formula per_turn = turns / common, turned_per_turn = turned_by / common;
void check_gears(const reading& n) {
    const auto gears = operations<polygon_op>(n.exercise, [](const polygon_op& p) { return p.filled; });
    ASSERT_EQ(gears.size(), 2U);
    EXPECT_LT(gears[0].corners[0].x, gears[1].corners[0].x);
    for (std::size_t i = 0; i < 2; ++i) EXPECT_EQ(gears[i].corners.size(), 4 * n[i]);
    // Two values next to each other, of which either may be the right one.
    std::array<double, 4> values = n.exercise.numbers();
    std::ranges::sort(values);
    const auto near = [](double a, double b) { return b - a <= 2; };
    EXPECT_NE(std::ranges::adjacent_find(values, near), values.end());
}

// The text lies in a part of the picture that is free for it.
auto lies_in(int left, int top, int right, int bottom) {
    return [=](const reading& n) {
        const text_op& text = n.exercise.texts.at(0);
        EXPECT_TRUE(text.x >= left && text.y >= top && text.y + text_height(text.size) <= bottom &&
                    text.x + text_width(text.text, text.size) <= right);
    };
}

// Of the four cars one is the cheapest for a kilometre; its fuel is not the cheapest, nor does it go farthest.
void check_cars(const reading& n) {
    const seen& e = n.exercise;
    const seen later = e.when_explained();
    std::map<double, std::string> by_cost, by_price, by_distance;
    for (std::size_t i = 0; i < 4; ++i) {
        const std::string make = e.shown(4 * i, "Te koop: (.*), rijdt").at(1);
        const double price = decimal(e.shown(4 * i + 1, "van (\\d+) eurocent").at(1));
        const double distance = decimal(e.shown(4 * i + 2, "1 : (\\d+)\\.").at(1));
        const double cost = rounded(price / distance, 1);
        by_cost.emplace(cost, make);
        by_price.emplace(price, make);
        by_distance.emplace(-distance, make);
        const text_op &above = e.texts.at(4 * i + 2), &told = later.texts.at(16 + i);
        EXPECT_EQ(told.text, regel(kaal(komma(afgerond(cost, 1), 1)), " eurocent per km"));
        if (make == e.right)
            e.told(regel(make, " is de kostprijs", static_cast<int>(price), " delen door", static_cast<int>(distance),
                         " is .afgerond.", komma(afgerond(cost, 1), 1), " eurocent")
                       .c_str());
        EXPECT_TRUE(std::abs(told.x - above.x) < 400 && told.y > above.y && told.y < above.y + 400);
    }
    EXPECT_EQ(by_cost.begin()->second, e.right);
    EXPECT_NE(by_price.begin()->second, e.right);
    EXPECT_NE(by_distance.begin()->second, e.right);
    EXPECT_GE(std::next(by_cost.begin())->first - by_cost.begin()->first, 0.19) << "hardly a difference";
}

const formula soil = v[1] / (v[0] + 1);

const formula each_pays = v[2] / (v[0] + v[1]);
const formula those_asked = [](const reading& n) { return n.words[4] == n.words[0] ? n[0] : n[1]; };
const formula ours = each_pays * those_asked, theirs = v[2] - ours;

const exercise_rows ratios([] {
    row(B_huis_02_16_click, 4, "tot de voorkant de (grootste|kleinste) deur? * {groter|kleiner} is dan de andere?",
        counts([](const reading& n) { return std::ranges::min(front_widths(n.exercise)); },
               [](const reading& n) { return std::ranges::max(front_widths(n.exercise)); }),
        range({{0, 0}, {700, 900}, {1100, 1500}}), range({{1, 1}, {700, 900}, {1100, 1500}}),
        range({{0, 0}, {700, 1300}, {700, 1500}}), range({{1, 1}, {700, 1300}, {700, 1500}}), check_houses);
    row(B_maatbeker_02_16_click, 4, "Voor welk deel is de maatbeker vol?", counts(full_marks, all_marks),
        range({{1, 6}, {5, 8}}), range({{1, 8}, {7, 10}}), range({{1, 9}, {9, 13}}), range({{1, 9}, {12, 16}}),
        right(says("#/#", v[0], v[1])), wrong("lege gedeelte gekeken", says("#/#", v[1] - v[0], v[1])),
        wrong("het lege deel vergeleken", says("#/#", v[0], v[1] - v[0])),
        wrong("goed geteld", says("#/#", v[0] + 1, v[1]), says("#/#", v[0] - 1, v[1]), says("#/#", v[0], v[1] + 1),
              says("#/#", v[0], v[1] - 1)),
        explains("is in # gelijke", v[1]), explains("voor #/# deel gevuld. | # | #", v[0], v[1], v[0], v[1]),
        [](const reading& n) { EXPECT_GT(std::ranges::min(n.exercise.numbers()), 0); });
    row(B_vakantie_02_16_click, 3,
        "inwoners van @. Hoeveel procent ging naar @? | VAKANTIEGANGERS | * uit @ | * | (Een|Twee|Drie) van de "
        "(vier|vijf|acht|tien|twintig|vijfentwintig|vijftig) {ging naar|gingen naar het mooie|gingen naar het "
        "mooie} @.",
        of({1, 2}), counts([](const reading& n) {
            return 100 * (n[0] + 1) / std::array{4, 5, 8, 10, 20, 25, 50}.at(static_cast<std::size_t>(n[1]));
        }),
        range({{0, 0}, {0, 6}, {2, 25}}), range({{1, 2}, {1, 6}, {6, 40}}), words({5, 6, 5, 6}), right(v[2]),
        wrong(misread(v[0] + 1, (v[0] + 1) * 100 / v[2])),
        explains("verhouding van # : 100. Je kunt dan ook zeggen: #/100, ofwel # %", v[2], v[2], v[2]),
        [](const reading& n) { EXPECT_TRUE(n.words[0] == n.words[2] && n.words[1] == n.words[3]); });
    row(B_vakantie_02_16_click, 3,
        "ging naar @? | VAKANTIEGANGERS | * bezochten. | # van de # gingen naar het mooie @.", of({3}),
        range({{1000, 57000}, {4000, 60000}}), words({6, 6}), right(v[0] * 100 / v[1]),
        wrong(misread(v[0] / 1000, v[1] / 1000)), explains("# van de # inwoners is 't zelfde als", v[0], v[1]),
        explains("verhouding van # : 100", v[0] * 100 / v[1]));
    row(L_cirkels_02_16_click, 7, "rode gedeelten van de linker en de rechter cirkel? | links | rechts",
        counts(red_part(0), red_part(1)), range({{1.0 / 3, 2.0 / 3}, {1.0 / 3, 2.0 / 3}}),
        range({{0.25, 0.75}, {0.25, 0.75}}), range({{0.25, 0.75}, {0.25, 0.75}}),
        range({{1.0 / 6, 5.0 / 6}, {1.0 / 6, 5.0 / 6}}), range({{1.0 / 6, 5.0 / 6}, {1.0 / 6, 5.0 / 6}}),
        range({{0.125, 0.875}, {0.125, 0.875}}), range({{0.125, 0.875}, {0.125, 0.875}}), right(ratio(1)),
        wrong("cirkels verwisseld", ratio(1, true)), wrong("Je had moeten vereenvoudigen", ratio(2), ratio(3)),
        wrong("Bovendien moet je nog vereenvoudigen", ratio(2, true), ratio(3, true)),
        explains("linker cirkel is voor het & deel rood gekleurd, De rechter cirkel voor het & deel", v[0], v[1]),
        explains("De verhouding & : & kun je * met # te vermenigvuldigen", v[0], v[1],
                 [](const reading& n) { return std::stod(n.exercise.right) / n[0]; }),
        check_spokes);
    row(L_fietspad_1_02_16_click, 5,
        "heeft van # cm. De schaal is 1 : # Hoe lang is het fietspad in werkelijkheid? | 1 : $1",
        range({{2, 5}, {10000, 100000}}), range({{3, 9}, {12000, 99000}}), range({{7, 9}, {12000, 100000}}),
        range({{12, 20}, {10000, 78000}}), range({{16, 30}, {10000, 56000}}), right(says("# m", v[0] * v[1] / 100)),
        wrong("Je hebt gedeeld. Je had", says("# m", v[1] / v[0] / 100)),
        wrong("aantal cm gekozen", says("# m", v[0] * v[1])),
        wrong("bovendien ook zomaar meters", says("# m", v[1] / v[0])),
        explains("in werkelijkheid # cm. Het fietspad is # cm lang", v[1], v[0]),
        explains("van # x # = # cm, ofwel # m.", v[0], v[1], v[0] * v[1], v[0] * v[1] / 100),
        lies_in(3650, 1650, 5100, 2050));
    row(L_museum_02_16_click, 5,
        "gemiddeld # mensen. Eén op de (drie|vier|vijf|zes|zeven|acht|negen|tien|elf|twaalf|dertien|veertien|"
        "vijftien|zestien|zeventien|achttien|negentien|twintig) bezoekers",
        range({{408, 4000, 12}, {0, 2}}), range({{420, 3990}, {3, 5}}), range({{440, 3960}, {6, 8}}),
        range({{420, 3990}, {9, 12}}), range({{420, 3978}, {13, 17}}), right(v[0] / one_in),
        wrong("uit het buitenland komt", v[0] - v[0] / one_in), wrong("Je hebt vermenigvuldigd", v[0] * one_in),
        wrong("hoort zelf ook bij", v[0] / (v[1] + 4)),
        explains("Dus: # delen door # is # buitenl", v[0], one_in, v[0] / one_in), [](const reading& n) {
            const std::string word = telwoord(static_cast<int>(n[1]) + 3);
            n.exercise.told(
                ("elke " + word + " mensen is er één buitenlander\\. Deel je .* door " + word + ",").c_str());
        });
    row(M_fietspad_2_02_16_click, 5, "heeft van # km. Op de kaart is het fietspad # cm lang. * | 1 : ...",
        range({{1, 2}, {2, 20}}), range({{3, 4}, {4, 40}}), range({{5, 6}, {8, 40}}), range({{7, 9}, {10, 40}}),
        range({{1.5, 8.5}, {2, 35}}), right(says("1 : #", v[0] * 100000 / v[1])),
        wrong("van kilometer naar centimeter", says("1 : #", v[0] * 10000 / v[1]),
              says("1 : #", v[0] * 1000000 / v[1])),
        wrong("vergeten van meters", says("1 : #", v[0] * 1000 / v[1])),
        explains("van # kilometer eerst centimeters. Dat is # cm", v[0], v[0] * 100000),
        explains("dat # cm in werkelijkheid een afstand van # cm is.", v[1], v[0] * 100000),
        lies_in(4050, 1650, 4700, 2050));
    row(M_tandwielen_02_16_click, 2,
        "linker tandwiel heeft # tanden, het rechter tandwiel heeft er #. Het (linker|rechter) tandwiel draait # "
        "keer rond. Hoeveel keer draait het {rechter|linker} tandwiel dan rond? | $0 | $1",
        range({{8, 30}, {8, 30}, {0, 0}, {6, 60}}), range({{8, 30}, {8, 30}, {1, 1}, {6, 60}}), right(turned),
        wrong("", v[3] * turns / turned_by, v[3], lies::elsewhere),
        explains(
            "Het grote tandwiel heeft # tanden, het kleine #.", [](const reading& n) { return std::max(n[0], n[1]); },
            [](const reading& n) { return std::min(n[0], n[1]); }),
        explains("als het (kleine|grote) # keer rond draait, draait het {grote|kleine} # keer rond *. Gaat het "
                 "{kleine|grote} wiel niet # keer rond, maar # keer, dan is dat # keer zo veel. Het {grote|kleine} "
                 "draait dan # x # = # keer rond.",
                 large_turns, per_turn, turned_per_turn, per_turn, v[3], v[3] / per_turn, v[3] / per_turn,
                 turned_per_turn, turned),
        tips("omgekeerd evenredig'.", "juist (minder|vaker)"), check_gears);
    row(Z_brandstofverbruik_02_16_click, 5,
        "Bij welke auto is de brandstofprijs per km het laagst? | Te koop: @, rijdt | op brandstof van # eurocent "
        "per liter. | Brandstofverbruik  1 : #.",
        range({{60, 210, 9}, {7, 21}}), words({17}),
        tips("(Bereken eerst|Reken bij|Kijk niet alleen|Hoeveel eurocent)",
             "(Deel daarvoor|1 : 15 betekent|Wat kost|De prijs van een liter gedeeld|Deel steeds)"),
        check_cars);
    row(Z_tuinman_02_16_click, 5,
        "doet hij # kilogram turfmolm. * nodig om # kilogram tuinaarde te maken? | Groeten uit... @",
        range({{2, 2}, {36, 240}}), range({{3, 3}, {36, 240}}), range({{4, 4}, {40, 240}}), range({{5, 5}, {60, 240}}),
        range({{6, 6}, {42, 210}}), words({4}), right(says("# kg", soil * v[0])),
        wrong("kg potgrond berekend", says("# kg", soil)), wrong("door het goede getal", says("# kg", v[1] / v[0])),
        wrong("delen in plaats van", says("# kg", v[1] * v[0])),
        explains("potgrond met # kilogram turfmolm, dan heeft hij # kilogram", v[0], v[0] + 1),
        explains("dat is # keer zo veel *want # delen door # is #*. Dan heeft hij ook # x # kg =", soil, v[1], v[0] + 1,
                 soil, soil, v[0]),
        lies_in(200, 120, 3500, 520));
    row(Z_uitgaven_02_16_click, 2,
        "Familie @ gaat samen met familie @ een weekje uit. Famile @ bestaat uit # personen, familie @ uit # "
        "personen. Ze geven bij elkaar € #,- uit. * Hoeveel moet familie @ betalen? |* ONKOSTEN | weekje @ | "
        "familie @: $0 personen | familie @: $1 personen | samen: € $2,-",
        range({{2, 7}, {2, 7}, {150, 999, 6}}), words({10, 10, 10, 10, 10, 8, 10, 10}), right(ours),
        wrong("familie berekend", theirs), wrong("Heb je soms", ours + 10, ours - 10),
        wrong("ook nog de verkeerde", theirs + 10, theirs - 10),
        explains(
            "hebben samen # personen. Voor elke persoon wordt dus € #,-/# = € #,- uitgegeven. Familie * van # personen moet dus # x € #,- =",
            v[0] + v[1], v[2], v[0] + v[1], each_pays, those_asked, those_asked, each_pays),
        [](const reading& n) {
            const auto& w = n.words;
            EXPECT_TRUE(w[0] == w[2] && w[0] == w[6] && w[1] == w[3] && w[1] == w[7]);
            EXPECT_EQ(w[4], w[n.variant() == 1 ? 0 : 1]);
        });
});

} // namespace
} // namespace cijferwerf
