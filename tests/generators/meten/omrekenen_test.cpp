// Measures in another unit: the numbers, read back from the picture, are compared in the smallest unit of their kind.
#include "tests/support/exercise_rows.h"
#include "tests/support/pattern.h"

#include <map>

namespace cijferwerf {
namespace {

using enum oefening_id;

double in_smallest(const std::string& unit) {
    static const std::map<std::string, double> sizes{
        {"mm", 1},   {"cm", 10},     {"dm", 100},  {"m", 1e3},   {"dam", 1e4}, {"hm", 1e5},  {"km", 1e6}, {"mg", 1},
        {"cg", 10},  {"dg", 100},    {"g", 1e3},   {"dag", 1e4}, {"hg", 1e5},  {"kg", 1e6},  {"mL", 1},   {"cL", 10},
        {"dL", 100}, {"liter", 1e3}, {"daL", 1e4}, {"hL", 1e5},  {"cm³", 1},   {"dm³", 1e3}, {"m³", 1e6}};
    return sizes.at(unit);
}

// "# @ + # @ = | ... | @": what comes of the number to convert, the one that has the unit asked for already, and how
// many of that unit go into one of the other.
template<class Of>
formula sum(Of of) {
    return [of](const reading& n) {
        const std::size_t other = n.words[0] == n.words[2] ? 1 : 0;
        return of(n[other], n[1 - other], in_smallest(n.words[other]) / in_smallest(n.words[2]));
    };
}

// The second half of the sub-variants converts upward where there are four.
exercise_row sums_of_two(oefening_id id, const char* reads, int variants, bool down) {
    const formula right = sum([](double a, double b, double f) { return a * f + b; });
    return {.id = id,
            .variants = variants,
            .reads = reads,
            .ranges = {{{2, 99}, {2, 99}}},
            .right = right,
            .wrong = {{"zomaar opgeteld", v[0] + v[1]},
                      {"verkeerde factor", sum([](double a, double b, double f) { return a * f * f + b; })},
                      {"getal om", sum([](double a, double b, double f) { return a + b * f; })},
                      {"beide getallen omgerekend", sum([](double a, double b, double f) { return (a + b) * f; })},
                      {"van elkaar", sum([](double a, double b, double f) { return std::abs(a * f - b); })},
                      {"in plaats van", sum([](double a, double b, double f) { return a / f + b; })}},
            .explains = {{"Op de stippen moet dus # staan", {right}}},
            .check = [=](const reading& n) {
                // Odd sub-variants have the first number converted, even ones the second.
                const bool first = n.variant() % 2 == 1, whole_numbers = down && n.variant() <= 2;
                EXPECT_EQ(n.words[2], n.words[first ? 1 : 0]);
                EXPECT_TRUE(
                    same(in_smallest(n.words[first ? 0 : 1]) / in_smallest(n.words[2]), whole_numbers ? 10 : 0.1));
                EXPECT_EQ(n.exercise.right.find(',') == std::string::npos, whole_numbers) << "whole, or with a decimal";
                n.exercise.told(regel(first ? "Het eerste" : "Het tweede", ".* naar ", n.words[2], "\\.").c_str());
            }};
}

// How the number and the unit change is told the right way round.
void check_change(const reading& n, const std::string& from, const std::string& to, bool number_first) {
    const int times = static_cast<int>(
        std::round(std::max(in_smallest(from), in_smallest(to)) / std::min(in_smallest(from), in_smallest(to))));
    const bool larger = in_smallest(from) > in_smallest(to);
    EXPECT_EQ(larger, n.variant() == 1);
    const auto change = [&](bool up) { return regel(kaal(duizend(times)), " keer zo ", up ? "groot" : "klein"); };
    n.exercise.told(regel(" is ", change(larger == number_first), " geworden, .* juist ",
                          change(larger != number_first), " worden\\.")
                        .c_str());
}

// The number on the picture in the unit asked for, and by what it is multiplied or divided.
double converted(const reading& n) { return n[0] * in_smallest(n.words[1]) / in_smallest(n.words[0]); }
double times(const reading& n) { return std::max(converted(n) / n[0], n[0] / converted(n)); }

// Each wrong answer is told how it came about: by "x 100", ": 10", not at all, or the other way.
void check_told(const reading& n, const char* done) {
    const double right = converted(n) / n[0];
    for (int which = 2; which <= 4; ++which) {
        const std::string told = n.exercise.feedback(which);
        const auto found = find_pattern(told, done);
        const bool kept = told.find("niet omgerekend") != told.npos || told.find("gelijk gelaten") != told.npos;
        const double got = decimal(n.exercise.answer(which)) / n[0], factor = found ? found->numbers[1] : 1,
                     wrong = found || kept ? factor : right;
        EXPECT_TRUE(same(got, found && found->numbers[0] == 0 ? wrong : 1 / wrong)) << told;
        const bool other_way = told.find("verkeerde kant op") != told.npos || told.find("Denk nog") != told.npos;
        EXPECT_EQ(other_way, (got - 1) * (right - 1) < 0) << told;
    }
}

const exercise_rows conversions{
    sums_of_two(L_optellen_1_07_09_click, "twee afstanden * stippen staan? | # @ + # @ = | ... | @ ", 2, true),
    sums_of_two(L_optellen_2_07_09_click, "twee afstanden * stippen staan? | # @ + # @ = | ... | @ ", 2, false),
    sums_of_two(L_optellen_08_17_click, "zie twee gewichten * stippen staan? | # @ + # @ = | ... | @ ", 4, true),
    {.id = L_snel_1_07_09_click,
     .variants = 2,
     .reads = "Geef snel antwoord. Je hebt niet veel tijd... Welke eenheid * staan? | # @ = # ...",
     .ranges = {{{1, 9.9}, {10, 9900, 30}}, {{1, 9.9}, {0.001, 0.99}}},
     .ticks = {20},
     .check =
         [](const reading& n) {
             const std::string &from = n.words[0], &to = n.exercise.right;
             EXPECT_TRUE(same(n[0] * in_smallest(from), n[1] * in_smallest(to)));
             for (const std::string& unit : n.exercise.answers()) EXPECT_TRUE(in_smallest(unit) > 0 && unit != from);
             check_change(n, from, to, true);
             n.exercise.told(("wordt dus " + to + ", want 1 " + from + " is [^ ]* keer zo \\w+ als een " + to).c_str());
         }},
    {.id = L_snel_2_07_09_click,
     .variants = 2,
     .reads = "Geef snel antwoord. Kijk hiernaast... | Reken om: | # @ = ... @ ",
     .ranges = {{{1, 9.9}}},
     .right = [](const reading& n) { return n[0] * in_smallest(n.words[0]) / in_smallest(n.words[1]); },
     .explains = {{"x # =", {[](const reading& n) { return in_smallest(n.words[0]) / in_smallest(n.words[1]); }}}},
     .ticks = {10},
     .check =
         [](const reading& n) {
             for (const double each : n.exercise.numbers())
                 EXPECT_TRUE(each / n[0] > 0.00099 && each / n[0] < 1001 && !same(each, n[0])) << each;
             check_change(n, n.words[0], n.words[1], false);
         }},
    {.id = L_gewichten_08_17_click,
     .variants = 2,
     .reads = "weegschaal geeft een bepaald gewicht aan. Reken dat gewicht om in @. | # @ ",
     .ranges = {{{1.1, 9.9}}, {{11, 99}}},
     .words = {7, 7},
     .right = converted,
     .explains = {{"(zijn het|is het) # stap*, dus (x|:) #. #",
                   {[](const reading& n) { return times(n) == 10; },
                    [](const reading& n) { return std::log10(times(n)); },
                    [](const reading& n) { return n.variant() - 1; }, times, v[0]}}},
     .check = [](const reading& n) { check_told(n, "stap* gezet, dus (x|:) #. Van"); }},
    {.id = L_watertank_07_17_click,
     .variants = 8,
     .reads = "Hiernaast zie je een watertank. * water er in zit. Hoeveel @ is dat? | # @ ",
     .ranges = {{{2, 89, 2}}},
     .words = {8, 1},
     .right = converted,
     .explains = {{"moet je weten dat 1 @ gelijk is aan #", {times}}},
     .check = [](const reading& n) { check_told(n, "Je hebt (vermenigvuldigd met|gedeeld door) #."); }},
};

} // namespace
} // namespace cijferwerf
