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

// Of "# @ + # @ = | ... | @": a number, by its place, as so many of the unit that is asked for.
formula converted(std::size_t i) {
    return [i](const reading& n) { return n[i] * in_mm(n.words[i]) / in_mm(n.words[2]); };
}
// What both are worth together when the number in the unit asked for is converted as well, or instead.
formula both_converted() {
    return [](const reading& n) {
        const std::size_t other = n.words[0] == n.words[2] ? 1 : 0;
        return (n[0] + n[1]) * in_mm(n.words[other]) / in_mm(n.words[2]);
    };
}
formula wrongly_converted(double times_larger, double times_smaller) {
    return [=](const reading& n) {
        const std::size_t other = n.words[0] == n.words[2] ? 1 : 0;
        const bool down = in_mm(n.words[other]) > in_mm(n.words[2]);
        return n[other] * (down ? times_larger : times_smaller) + n[1 - other];
    };
}
formula other_converted() {
    return [](const reading& n) {
        const std::size_t other = n.words[0] == n.words[2] ? 1 : 0;
        return n[other] + n[1 - other] * in_mm(n.words[other]) / in_mm(n.words[2]);
    };
}
formula difference() {
    return [](const reading& n) {
        return std::abs(n[0] * in_mm(n.words[0]) - n[1] * in_mm(n.words[1])) / in_mm(n.words[2]);
    };
}
const std::vector<mistake> sum_mistakes{{"zomaar opgeteld", v[0] + v[1]},
                                        {"verkeerde factor", wrongly_converted(100, 0.01)},
                                        {"Reken het (eerste|tweede) getal om", other_converted()},
                                        {"beide getallen omgerekend", both_converted()},
                                        {"van elkaar afgetrokken", difference()},
                                        {"in plaats van (gedeeld|vermenigvuldigd)", wrongly_converted(0.1, 10)}};

// Sub-variant 1 has the first number converted, 2 the second; down the ladder or up.
void check_order(const reading& n, bool down) {
    const std::string from = n.words[n.variant() == 1 ? 0 : 1], to = n.words[2];
    EXPECT_EQ(to, n.words[n.variant() == 1 ? 1 : 0]);
    EXPECT_TRUE(same(in_mm(from) / in_mm(to), down ? 10 : 0.1));
    EXPECT_EQ(n.exercise.right.find(',') == std::string::npos, down) << "whole, or with a decimal";
    EXPECT_NE(n.exercise.explanation.find(n.variant() == 1 ? "Het eerste getal" : "Het tweede getal"),
              std::string::npos);
    n.exercise.told(("omrekenen naar " + to + "\\.").c_str());
}

// In the next line down, 1 of the one unit is so many of the other.
void check_factor(const reading& n, const std::string& from, const std::string& to, bool of_unit_first) {
    const double larger = in_mm(from) / in_mm(to);
    const auto words = [](double times) {
        return regel(kaal(duizend(static_cast<int>(std::round(std::max(times, 1 / times))))), " keer zo ",
                     times > 1 ? "groot" : "klein");
    };
    const std::string number = words(larger), unit = words(1 / larger);
    EXPECT_EQ(n.exercise.explanation.find(regel(" is ", of_unit_first ? unit : number, " geworden")) !=
                  std::string::npos,
              true);
    EXPECT_NE(n.exercise.explanation.find(regel(" juist ", of_unit_first ? number : unit, " worden.")),
              std::string::npos);
}

const exercise_rows conversions{
    {.id = L_optellen_1_07_09_click,
     .variants = 2,
     .reads = "twee afstanden * stippen staan? | # @ + # @ = | ... | @ ",
     .ranges = {{{2, 99}, {2, 99}}},
     .right = converted(0) + converted(1),
     .wrong = sum_mistakes,
     .explains = {{"optellen: # + # = #. Op de stippen moet dus # staan",
                   {converted(0), converted(1), converted(0) + converted(1), converted(0) + converted(1)}}},
     .check = [](const reading& n) { check_order(n, true); }},
    {.id = L_optellen_2_07_09_click,
     .variants = 2,
     .reads = "twee afstanden * stippen staan? | # @ + # @ = | ... | @ ",
     .ranges = {{{2, 99}, {2, 99}}},
     .right = converted(0) + converted(1),
     .wrong = sum_mistakes,
     .explains = {{"optellen: # + # = #. Op de stippen moet dus # staan",
                   {converted(0), converted(1), converted(0) + converted(1), converted(0) + converted(1)}}},
     .check = [](const reading& n) { check_order(n, false); }},
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
             check_factor(n, from, to, false);
             n.exercise.told(("wordt dus " + to + ", want 1 " + from + " is [^ ]* keer zo \\w+ als een " + to).c_str());
         }},
    {.id = L_snel_2_07_09_click,
     .variants = 2,
     .reads = "Geef snel antwoord. Kijk hiernaast... | Reken om: | # @ = ... @ ",
     .ranges = {{{1, 9.9}}},
     .explains = {{"x # = #.",
                   {[](const reading& n) { return in_mm(n.words[0]) / in_mm(n.words[1]); },
                    [](const reading& n) { return n[0] * in_mm(n.words[0]) / in_mm(n.words[1]); }}}},
     .ticks = {10},
     .check =
         [](const reading& n) {
             EXPECT_TRUE(same(decimal(n.exercise.right) * in_mm(n.words[1]), n[0] * in_mm(n.words[0])));
             for (const double each : n.exercise.numbers())
                 EXPECT_TRUE(each / n[0] > 0.00099 && each / n[0] < 1001 && !same(each, n[0])) << each;
             check_factor(n, n.words[0], n.words[1], true);
         }},
};

} // namespace
} // namespace cijferwerf
