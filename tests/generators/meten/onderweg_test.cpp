// Distances and times on the road, dials, jobs whose last pot or roll is used only in part, and sizes that everyone
// knows.
#include "tests/support/exercise_rows.h"

#include <numbers>

namespace cijferwerf {
namespace {

// The difference of two counters, in kilometres or metres.
const formula ride = [](const reading& n) {
    return rounded((decimal(n.words[2]) - decimal(n.words[1])) * (n.variant() == 1 ? 1 : 1000), 1);
};

// Where the red needle points, on a scale from 0 to 200 that runs clockwise over 270 degrees from the lower left.
double needle(const reading& n) {
    const auto drawn = all<polygon_op>(n);
    const auto hand = std::ranges::find(drawn, rood, [](const polygon_op& p) { return p.pen.colour; });
    const point tip = hand->corners[1], end = hand->corners[3];
    const double angle = std::atan2(end.y - tip.y, tip.x - end.x) * 180 / std::numbers::pi;
    return rounded(std::fmod(225 - angle + 360, 360) / 270 * 20) * 10;
}

// Of four counts in a row, those that are told something else than that the rest was forgotten.
row_part not_one_less(const char* piece, const formula& right) {
    return wrong(piece, right - 3, right - 2, right + 1, right + 2, right + 3);
}
// Quotients in whole numbers, and what is left.
std::vector<formula> division(const formula& a, const formula& b) { return {a, b, floor(a / b), a - floor(a / b) * b}; }
const formula pots = 0 - floor(0 - A * B / C), area = A * B, per_roll = floor(C / B),
              strips = 0 - floor(0 - A * 100 / D), rolls = 0 - floor(0 - strips / per_roll);

const formula marks = B / 20, per_mark = A * 100;

// How many times as large as the right one an answer is; -1 where it measures another kind of thing.
const formula times_right = [](const reading& n) {
    const auto made = amount_of(n.option), right = amount_of(n.exercise.right);
    return made->of == right->of ? made->value / right->value : -1;
};
const formula another_kind = lifted([](double times) { return times < 0; }, times_right);

const exercise_rows on_the_road([] {
    row(L_fietsen_07_09_click, 2, "@ maakt een fietstocht. * BEGIN | @ | km | EINDE | @ | km", counts(ride),
        range({{15.2, 59.8, 0.2}}), range({{15200, 59800, 200}}), words({8}), right(A),
        wrong("bijna goed", lifted([](double x) { return x < 0.1; }, abs(answer / A - 1))),
        wrong("naast!", lifted([](double x) { return x > 7.9; }, abs(answer - A) / by_variant({1, 1000}))));
    row(L_vakantie_07_09_click, 2, "afleggen van # km.", counts(needle), range({{180, 1440, 60}, {60, 120}}),
        range({{150, 1320, 60}, {50, 110}}), right(A / B),
        wrong({"In # uur kunnen zij maar # km", {answer, answer * B}}, lies::below),
        wrong({"In # uur kunnen zij # km rijden. Zo ver hoeven", {answer, answer * B}}, lies::above),
        wrong("goed afgelezen?", A / B * 2), explains("aflezen: # km/uur", B));
    row(Z_vliegtuig_07_09_click, 2, "nummer @ is geland. *snelheid van # km per uur. * | $a | ~ | ~ |",
        counts((C - B) / 60), range({{600, 900}, any, any, {2, 8}}), range({{600, 900}, any, any, {1.5, 7.5}}),
        right(A * D), wrong("ander vliegtuig", lies::elsewhere),
        wrong("Bereken eerst hoe lang", A * (D - 1), A * (D + 1)), wrong("halve uur vergeten", A * (D - 0.5)),
        wrong("niet 0,3 uur", A * (D - 0.2)),
        explains("om ~ uur en landde om ~ uur. Het vloog dus # uur met een snelheid van # km", B, C, D, A));
    row(M_worst_08_17_click, 5, "Hoeveel gram weegt die worst ongeveer? | MAX.*# kg | 0 ", counts(needle),
        range({{0.5, 10}, {40, 180}}), right(marks * per_mark), wrong("bij 1 begonnen", (marks + 1) * per_mark),
        wrong("te weinig geteld", (marks - 1) * per_mark), wrong("verkeerde kant", (formula(10) - marks) * per_mark),
        wrong("Kijk eerst hoeveel gram elk streepje is. Een lang", marks * per_mark * 2, marks * per_mark / 2),
        wrong("Kijk eerst hoeveel gram elk streepje is. Eén kg", marks * per_mark * 10),
        explains("Elk stuk is dus # gram : 10 = # gram. De wijzer staat # lange streepjes", A * 1000, per_mark, marks));
    row(B_schatten_08_17_click, 4, "| @ | is ongeveer... ", words({16}),
        wrong({"Dat is # keer zo groot als", {times_right}}, lies::elsewhere),
        wrong({"Dat is # keer zo klein als", {1 / times_right}}, lies::elsewhere),
        wrong("Jouw antwoord bevat een", another_kind), wrong("Je hebt een lengtemaat gekozen in", another_kind),
        explains(" een (lengtemaat|maat voor gewicht|oppervlaktemaat|inhoudsmaat) bij*. $a is ongeveer $=.",
                 by_variant({0, 1, 2, 3})));
    row(L_schilder_07_12_click, 2, "schilderen van # m breed en # m lang. * nodig? | # m²",
        range({{3, 12}, {3, 12}, {4, 10}}), right(pots), wrong("rest vergeten", pots - 1),
        not_one_less("Bereken eerst de", pots), not_one_less("Heb je wel", pots), explains("# x # = # m².", A, B, area),
        explains("dus # : # = #, rest #. Voor", division(area, C)));
    row(M_behangen_07_09_click, 2,
        "van de muur is # m. De hoogte van de muur is # m. De rollen behang zijn # m lang en # cm breed. *| $0 m | $1 m "
        "| rol: $2 m | $3 cm",
        range({{5, 12, 0.2}, {2.2, 3}, {8, 10}, {45, 60, 1}}), range({{5, 12, 0.4}, {2.2, 3}, {10.5, 15}, {45, 60, 1}}),
        right(rolls), wrong("rest vergeten", rolls - 1), not_one_less("Bereken eerst hoeveel", rolls),
        not_one_less("naar beneden af.", rolls), not_one_less("Bereken hoeveel", rolls),
        explains("uitkomst: # : # = #, rest #.", division(C * 100, B * 100)),
        explains("# : # = #, rest #. Er", division(A * 100, D)), explains("dus # banen nodig", strips),
        explains("rollen: # : # = #, rest #.", division(strips, per_roll)));
});

} // namespace
} // namespace cijferwerf
