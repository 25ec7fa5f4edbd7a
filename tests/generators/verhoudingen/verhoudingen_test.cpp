// The ratios: what they draw, their answers worked out again from what a pupil sees, and each wrong answer as the
// mistake that its feedback names.
#include "generators/gedeeld/kleuren.h"
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

std::array<int, 3> front_widths(const seen& e) {
    return {e.blocks.at(1).width, e.blocks.at(3).width, e.blocks.at(5).width};
}
// How much of each front its door takes, and the colour word under the one that is asked for, or else its contrary.
formula door(bool asked) {
    return [=](const reading& n) -> std::string {
        std::array<double, 3> shares{};
        for (std::size_t i = 0; i < 3; ++i) {
            const box_op &front = n.exercise.blocks.at(1 + 2 * i), &its_door = n.exercise.blocks.at(2 + 2 * i);
            EXPECT_TRUE(front.x + front.width / 2 == its_door.x + its_door.width / 2 &&
                        n.exercise.words[i] == woord(front.pen.colour));
            shares[i] = 1.0 * its_door.width * its_door.height / front.width / front.height;
        }
        const auto [least, most] = std::ranges::minmax_element(shares);
        const auto found = (n[0] == 0) == asked ? most : least;
        EXPECT_TRUE(same(*least, *most) || std::ranges::count(shares, *found) == 1);
        return same(*least, *most) ? "geen deur"
                                   : n.exercise.words.at(static_cast<std::size_t>(found - shares.begin()));
    };
}

// The marks on the measuring jug, from this height down.
auto marks(const reading& n, int from) {
    return std::ranges::count_if(all<line_op>(n), [=](const line_op& l) {
        return l.from.y == l.to.y && l.to.x - l.from.x == 500 && l.from.y >= from;
    });
}
const formula full_marks = [](const reading& n) { return marks(n, n.exercise.blocks[1].y); };
const formula all_marks = [](const reading& n) { return marks(n, 0); };

// The red part of the left (0) or right (1) circle, in twenty-fourths.
formula red_part(std::size_t which) {
    return [which](const reading& n) {
        auto red = all<circle_op>(n);
        std::erase_if(red, [](const circle_op& c) { return c.pen.colour != rood; });
        return red.at(which).sweep / 15;
    };
}
// From one such part of either circle to all but one.
row_part one_of(double parts) { return range({{24 / parts, 24 - 24 / parts}, {24 / parts, 24 - 24 / parts}}); }
// The least whole numbers in the ratio of the red parts, so many times, in this order or the other.
formula ratio(int times, bool swapped = false) {
    const formula unit = divisor(A, B) / times;
    return swapped ? says("# : #", B / unit, A / unit) : says("# : #", A / unit, B / unit);
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

const formula one_in = B + 3;
const std::string from_three =
    "(drie |vier |vijf |zes |zeven |acht |negen |tien |elf |twaalf |dertien |veertien |vijftien |"
    "zestien |zeventien |achttien |negentien |twintig )";

const formula turned_by = chosen(C, {A, B}), turns = chosen(C, {B, A}), turned = D * turned_by / turns;
const formula large_turns = lifted([](double a, double b) { return a > b; }, turned_by, turns);
const formula common = divisor(A, B);
const formula per_turn = turns / common, turned_per_turn = turned_by / common;
// Of the four cars, what a kilometre costs; and which one is the cheapest.
const std::string car = "| Te koop: @, rijdt | * # eurocent per liter. | *1 : #. *";
const formula cost_1 = rounded(A / B, 1), cost_2 = rounded(C / D, 1), cost_3 = rounded(E / F, 1),
              cost_4 = rounded(G / H, 1);
const formula least = smallest(cost_1, cost_2, cost_3, cost_4);
const formula cheapest = place_of(least, {cost_1, cost_2, cost_3, cost_4}) - 1;

const formula soil = B / (A + 1);

const formula each_pays = C / (A + B);
const formula those_asked = [](const reading& n) { return n.words[2] == n.words[0] ? n[0] : n[1]; };
const formula ours = each_pays * those_asked, theirs = C - ours;

const exercise_rows ratios([] {
    row(B_huis_02_16_click, 4, "de (grootste|kleinste) deur? * {groter|kleiner} is dan",
        counts([](const reading& n) { return std::ranges::min(front_widths(n.exercise)); },
               [](const reading& n) { return std::ranges::max(front_widths(n.exercise)); }),
        range({{0, 0}, {700, 900}, {1100, 1500}}), range({{1, 1}, {700, 900}, {1100, 1500}}),
        range({{0, 0}, {700, 1300}, {700, 1500}}), range({{1, 1}, {700, 1300}, {700, 1500}}), right(door(true)),
        wrong("echt (kleiner|groter) dan", lies::elsewhere), wrong("maar de voorkanten niet", "geen deur"),
        wrong("(is het grootste|is het kleinste)", door(false)),
        wrong("(een kleiner|een groter) huisje", lies::elsewhere));
    row(B_maatbeker_02_16_click, 4, "Voor welk deel is de maatbeker vol?", counts(full_marks, all_marks),
        range({{1, 6}, {5, 8}}), range({{1, 8}, {7, 10}}), range({{1, 9}, {9, 13}}), range({{1, 9}, {12, 16}}),
        right(says("#/#", A, B)), wrong("lege gedeelte gekeken", says("#/#", B - A, B)),
        wrong("het lege deel vergeleken", says("#/#", A, B - A)),
        wrong("goed geteld", says("#/#", A + 1, B), says("#/#", A - 1, B), says("#/#", A, B + 1),
              says("#/#", A, B - 1)),
        explains("is in # gelijke", B));
    row(B_vakantie_02_16_click, 3,
        "inwoners van @. Hoeveel procent ging naar @? | * uit $a | * | (Een|Twee|Drie) van de "
        "(vier|vijf|acht|tien|twintig|vijfentwintig|vijftig) {ging naar|gingen naar het mooie|gingen naar het mooie} $b.",
        of({1, 2}), counts((A + 1) * 100 / chosen(B, {4, 5, 8, 10, 20, 25, 50})), range({{0, 0}, {0, 6}, {2, 25}}),
        range({{1, 2}, {1, 6}, {6, 40}}), words({5, 6}), right(C), wrong(misread(A + 1, (A + 1) * 100 / C)),
        explains("(Een|Twee|Drie) van*als # : #. Dit is een verhouding van # : 100*zeggen: #/100, ofwel # %", A, A + 1,
                 (A + 1) * 100 / C, C, C, C));
    row(B_vakantie_02_16_click, 3, "ging naar @? *| # van de # gingen naar het mooie $a.", of({3}),
        range({{1000, 57000}, {4000, 60000}}), words({6}), right(A * 100 / B), wrong(misread(A / 1000, B / 1000)));
    row(L_cirkels_02_16_click, 7, "| links | rechts", counts(red_part(0), red_part(1)), one_of(3), one_of(4), one_of(4),
        one_of(6), one_of(6), one_of(8), one_of(8), right(ratio(1)), wrong("cirkels verwisseld", ratio(1, true)),
        wrong("Je had moeten vereenvoudigen", ratio(2), ratio(3)),
        wrong("Bovendien moet je nog vereenvoudigen", ratio(2, true), ratio(3, true)),
        explains("het & deel rood*het & deel. De verhouding & : & kun je * met # te verm", A / 24, B / 24, A / 24,
                 B / 24, 24 / divisor(A, B)));
    row(L_fietspad_1_02_16_click, 5, "heeft van # cm. De schaal is 1 : # *| 1 : $1", range({{2, 5}, {10000, 100000}}),
        range({{3, 9}, {12000, 99000}}), range({{7, 9}, {12000, 100000}}), range({{12, 20}, {10000, 78000}}),
        range({{16, 30}, {10000, 56000}}), right(says("# m", A * B / 100)),
        wrong("Je hebt gedeeld. Je had", says("# m", B / A / 100)), wrong("aantal cm gekozen", says("# m", A * B)),
        wrong("bovendien ook zomaar meters", says("# m", B / A)),
        explains("in werkelijkheid # cm. Het fietspad is # cm lang", B, A));
    row(L_museum_02_16_click, 5, "gemiddeld # mensen. Eén op de " + from_three, range({{408, 4000, 12}, {0, 2}}),
        range({{420, 3990}, {3, 5}}), range({{440, 3960}, {6, 8}}), range({{420, 3990}, {9, 12}}),
        range({{420, 3978}, {13, 17}}), right(A / one_in), wrong("uit het buitenland komt", A - A / one_in),
        wrong("Je hebt vermenigvuldigd", A * one_in), wrong("hoort zelf ook bij", A / (B + 4)),
        explains("elke " + from_three + "mensen*Dus: # delen door # is # buitenl", B, A, one_in, A / one_in));
    row(M_fietspad_2_02_16_click, 5, "heeft van # km. Op de kaart is het fietspad # cm lang. * | 1 : ...",
        range({{1, 2}, {2, 20}}), range({{3, 4}, {4, 40}}), range({{5, 6}, {8, 40}}), range({{7, 9}, {10, 40}}),
        range({{1.5, 8.5}, {2, 35}}), right(says("1 : #", A * 100000 / B)),
        wrong("van kilometer naar centimeter", says("1 : #", A * 10000 / B), says("1 : #", A * 1000000 / B)),
        wrong("vergeten van meters", says("1 : #", A * 1000 / B)),
        explains("van # kilometer eerst centimeters. Dat is # cm", A, A * 100000),
        explains("dat # cm in werkelijkheid een afstand van # cm is.", B, A * 100000));
    row(M_tandwielen_02_16_click, 2,
        "linker tandwiel heeft # tanden, het rechter tandwiel heeft er #. Het (linker|rechter) tandwiel draait # keer "
        "rond. * het {rechter|linker} tandwiel dan rond? | $0 | $1",
        range({{8, 30}, {8, 30}, {0, 0}, {6, 60}}), range({{8, 30}, {8, 30}, {1, 1}, {6, 60}}), right(turned),
        wrong("", D * turns / turned_by, D, lies::elsewhere),
        explains("Het grote tandwiel heeft # tanden, het kleine #.", largest(A, B), smallest(A, B)),
        explains(
            "als het (kleine|grote) # keer rond draait, draait het {grote|kleine} # keer rond *. Gaat het "
            "{kleine|grote} wiel niet # keer rond, maar # keer, dan is dat # keer zo veel. Het {grote|kleine} draait",
            large_turns, per_turn, turned_per_turn, per_turn, D, D / per_turn),
        tips("omgekeerd evenredig'.", "juist (minder|vaker)"));
    row(Z_brandstofverbruik_02_16_click, 5, (car + car + car + car), range({{60, 210, 9}, {7, 21}}), words({17}),
        right([](const reading& n) { return n.words.at(static_cast<std::size_t>(cheapest.in(n))); }),
        explains(
            "$= is de kostprijs # delen door # is *) # eurocent. *| # eurocent per km | # eurocent per km | # eurocent per km | # eurocent",
            chosen(cheapest, {A, C, E, G}), chosen(cheapest, {B, D, F, H}), least, cost_1, cost_2, cost_3, cost_4),
        tips("(auto|bereken wat)", "(Deel |1 : 15|gedeeld)"));
    row(Z_tuinman_02_16_click, 5,
        "doet hij # kilogram turfmolm. * nodig om # kilogram tuinaarde te maken? | Groeten uit... @",
        range({{2, 2}, {36, 240}}), range({{3, 3}, {36, 240}}), range({{4, 4}, {40, 240}}), range({{5, 5}, {60, 240}}),
        range({{6, 6}, {42, 210}}), words({4}), right(says("# kg", soil * A)),
        wrong("kg potgrond berekend", says("# kg", soil)), wrong("door het goede getal", says("# kg", B / A)),
        wrong("delen in plaats van", says("# kg", B * A)),
        explains(
            "met # kilogram turfmolm, dan heeft hij # kilo*echter # kilo*dat is # keer zo veel *want # delen door # is #",
            A, A + 1, B, soil, B, A + 1, soil));
    row(Z_uitgaven_02_16_click, 2,
        "Familie @ gaat samen met familie @ een weekje uit. Famile $a bestaat uit # personen, familie $b uit # * € #,- uit. "
        "* Hoeveel moet familie @ betalen? | *| weekje @ | familie $a: $0 personen | familie $b: $1 personen | samen: € $2,-",
        range({{2, 7}, {2, 7}, {150, 999, 6}}), words({10, 10, 10, 8}), right(ours), wrong("familie berekend", theirs),
        wrong("Heb je soms", ours + 10, ours - 10), wrong("ook nog de verkeerde", theirs + 10, theirs - 10),
        explains("hebben samen # personen. * uitgegeven. Familie $c van # personen moet dus # x", A + B, those_asked,
                 those_asked));
});

} // namespace
} // namespace cijferwerf
