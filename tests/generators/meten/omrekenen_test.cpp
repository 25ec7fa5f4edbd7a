// Lengths in another unit: the numbers, read back from the picture, are compared in millimetres.
#include "tests/support/exercise_rows.h"

#include <map>

namespace cijferwerf {
namespace {

using enum oefening_id;

double in_mm(const std::string& unit) {
    static const std::map<std::string, double> sizes{{"mm", 1},    {"cm", 10},  {"dm", 100}, {"m", 1e3},
                                                     {"dam", 1e4}, {"hm", 1e5}, {"km", 1e6}};
    return sizes.at(unit);
}

// "# @ + # @ = | ... | @": what comes of the number to convert, the one that has the unit asked for already, and how
// many of that unit go into one of the other.
template<class Of>
formula sum(Of of) {
    return [of](const reading& n) {
        const std::size_t other = n.words[0] == n.words[2] ? 1 : 0;
        return of(n[other], n[1 - other], in_mm(n.words[other]) / in_mm(n.words[2]));
    };
}

exercise_row sums_of_two(oefening_id id, bool down) {
    const formula right = sum([](double a, double b, double f) { return a * f + b; });
    return {.id = id,
            .variants = 2,
            .reads = "twee afstanden * stippen staan? | # @ + # @ = | ... | @ ",
            .ranges = {{{2, 99}, {2, 99}}},
            .right = right,
            .wrong = {{"zomaar opgeteld", v[0] + v[1]},
                      {"verkeerde factor", sum([](double a, double b, double f) { return a * f * f + b; })},
                      {"getal om", sum([](double a, double b, double f) { return a + b * f; })},
                      {"beide getallen omgerekend", sum([](double a, double b, double f) { return (a + b) * f; })},
                      {"van elkaar", sum([](double a, double b, double f) { return std::abs(a * f - b); })},
                      {"in plaats van", sum([](double a, double b, double f) { return a / f + b; })}},
            .explains = {{"Op de stippen moet dus # staan", {right}}},
            .check = [down](const reading& n) {
                // Sub-variant 1 has the first number converted, 2 the second.
                const bool first = n.variant() == 1;
                EXPECT_EQ(n.words[2], n.words[first ? 1 : 0]);
                EXPECT_TRUE(same(in_mm(n.words[first ? 0 : 1]) / in_mm(n.words[2]), down ? 10 : 0.1));
                EXPECT_EQ(n.exercise.right.find(',') == std::string::npos, down) << "whole, or with a decimal";
                n.exercise.told(regel(first ? "Het eerste" : "Het tweede", ".* naar ", n.words[2], "\\.").c_str());
            }};
}

// How the number and the unit change is told the right way round.
void check_change(const reading& n, const std::string& from, const std::string& to, bool number_first) {
    const int times = static_cast<int>(std::round(std::max(in_mm(from), in_mm(to)) / std::min(in_mm(from), in_mm(to))));
    const bool larger = in_mm(from) > in_mm(to);
    EXPECT_EQ(larger, n.variant() == 1);
    const auto change = [&](bool up) { return regel(kaal(duizend(times)), " keer zo ", up ? "groot" : "klein"); };
    n.exercise.told(regel(" is ", change(larger == number_first), " geworden, .* juist ",
                          change(larger != number_first), " worden\\.")
                        .c_str());
}

const exercise_rows conversions{
    sums_of_two(L_optellen_1_07_09_click, true),
    sums_of_two(L_optellen_2_07_09_click, false),
    {.id = L_snel_1_07_09_click,
     .variants = 2,
     .reads = "Geef snel antwoord. Je hebt niet veel tijd... Welke eenheid * staan? | # @ = # ...",
     .ranges = {{{1, 9.9}, {10, 9900, 30}}, {{1, 9.9}, {0.001, 0.99}}},
     .ticks = {20},
     .check =
         [](const reading& n) {
             const std::string &from = n.words[0], &to = n.exercise.right;
             EXPECT_TRUE(same(n[0] * in_mm(from), n[1] * in_mm(to)));
             for (const std::string& unit : n.exercise.answers()) EXPECT_TRUE(in_mm(unit) > 0 && unit != from);
             check_change(n, from, to, true);
             n.exercise.told(("wordt dus " + to + ", want 1 " + from + " is [^ ]* keer zo \\w+ als een " + to).c_str());
         }},
    {.id = L_snel_2_07_09_click,
     .variants = 2,
     .reads = "Geef snel antwoord. Kijk hiernaast... | Reken om: | # @ = ... @ ",
     .ranges = {{{1, 9.9}}},
     .right = [](const reading& n) { return n[0] * in_mm(n.words[0]) / in_mm(n.words[1]); },
     .explains = {{"x # =", {[](const reading& n) { return in_mm(n.words[0]) / in_mm(n.words[1]); }}}},
     .ticks = {10},
     .check =
         [](const reading& n) {
             for (const double each : n.exercise.numbers())
                 EXPECT_TRUE(each / n[0] > 0.00099 && each / n[0] < 1001 && !same(each, n[0])) << each;
             check_change(n, n.words[0], n.words[1], false);
         }},
};

} // namespace
} // namespace cijferwerf
