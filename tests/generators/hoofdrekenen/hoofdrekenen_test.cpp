// Mental arithmetic against the clock: each sum is read back from the picture and worked out again.
#include "tests/support/exercise_rows.h"
#include "tests/support/pattern.h"

namespace cijferwerf {
namespace {

using enum oefening_id;

bool says_so(const reading& n, const std::string& text) {
    return n.exercise.explanation.find(text) != std::string::npos;
}

// Both halves of the table, the route that fits it, and wrong answers on the sides where there are rows.
void check_table(const reading& n) {
    const int a = static_cast<int>(n[0]), b = static_cast<int>(n[1]);
    EXPECT_TRUE(a != 5 && a >= 2 && a <= 9) << a;
    for (int i = 1; i <= 5; ++i) {
        const std::string& line = n.exercise.made.uitlegregels[static_cast<std::size_t>(i - 1)];
        const int product = b == 9 && i == 5 ? 54 : i * b;
        EXPECT_TRUE(line.starts_with(regel("  ", i, " x", b, " =", product, "  "))) << line;
        EXPECT_NE(line.find(regel(" ", i + 5, " x", b, " =", (i + 5) * b)), line.npos) << line;
        if (b == 9 && i == 5) {
            EXPECT_TRUE(line.starts_with("  5 x 9 = 54    10 x 9 = 90    af te trekken.")) << line;
        }
        if (b == 3 && i == 1) {
            EXPECT_TRUE(line.starts_with("  1 x 3 = 3      6 x 3 = 18    Bij tafel")) << line;
        }
    }
    const std::string route = b == 25  ? "aan 100."
                              : b > 10 ? regel("doe eerst", a, " x 10 en")
                                       : regel("veel 5 x", b, " of 10 x", b, " ");
    EXPECT_TRUE(says_so(n, route));
    if (b > 10 && b < 25) {
        EXPECT_TRUE(says_so(n, regel("dan", a, " x", b - 10, ".")));
        EXPECT_TRUE(says_so(n, regel("Opgeteld:", a * 10, " +", a * (b - 10), " =", a * b)));
    }
    const std::array<double, 4> all = n.exercise.numbers();
    const auto lower = std::ranges::count_if(all, [&](double each) { return each < a * b; });
    EXPECT_TRUE(a >= 8 ? lower == 3 : a <= 3 ? lower == 0 : lower == 1 || lower == 2) << a << ": " << lower;
}

const formula round_factor = [](const reading& n) { return 10 * std::round(n[0] / 10); };
const formula off_round = v[0] - round_factor;
const formula surplus = [](const reading& n) { return std::abs(n[0] - 10 * std::round(n[0] / 10)); };

const formula moved = [](const reading& n) { return n[1] == 0 ? n[0] / n[2] : n[0] * n[2]; };
// Digits that differ from the right ones would give the right answer away, and so would the number itself.
void check_comma(const reading& n) {
    for (const double each : n.exercise.numbers()) {
        const double places = std::log10(each / decimal(n.exercise.right));
        EXPECT_NEAR(places, std::round(places), 1e-6) << each;
        EXPECT_FALSE(same(each, n[0]));
        EXPECT_LT(each, 1e6);
    }
    EXPECT_TRUE(says_so(n, n[1] == 0 ? "1.000 of 10.000 deelt" : "1.000 of 10.000 vermenigvuldigt"));
    EXPECT_TRUE(n[1] == 0 || n[0] < 10);
}

double signed_by(double sign, double number) { return sign == 0 ? -number : number; }
const formula chain = [](const reading& n) {
    return n[0] + signed_by(n[1], n[2]) + signed_by(n[3], n[4]) + signed_by(n[5], n[6]);
};
// Two pairs make whole numbers, and no step on the way is below 0.
void check_pairs(const reading& n) {
    const std::array<std::array<int, 3>, 4> patterns{{{0, 0, 0}, {1, 1, 1}, {0, 0, 1}, {0, 1, 0}}};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(n[2 * i + 1], patterns.at(static_cast<std::size_t>(n.variant() - 1)).at(i));
    EXPECT_GE(n[0] + signed_by(n[1], n[2]), 0);
    EXPECT_GE(n[0] + signed_by(n[1], n[2]) + signed_by(n[3], n[4]), 0);
    const auto told = find_pattern(n.exercise.explanation, "niet alleen # en # *samen #*maar ook # en # * #*.");
    ASSERT_TRUE(told);
    const std::vector<double>& t = told->numbers;
    EXPECT_TRUE(same(t[0] + t[1], t[2]) && t[2] == std::floor(t[2]));
    EXPECT_EQ(t[3], n[0]);
    EXPECT_TRUE(same(n.variant() == 1 ? t[3] - t[4] : t[3] + t[4], t[5]) && t[5] == std::floor(t[5]));
    EXPECT_TRUE(same(decimal(n.exercise.right), n.variant() == 2 ? t[5] + t[2] : t[5] - t[2]));
    std::array<double, 4> given{n[0], n[2], n[4], n[6]}, paired{t[0], t[1], t[3], t[4]};
    std::ranges::sort(given);
    std::ranges::sort(paired);
    EXPECT_EQ(given, paired);
}

// So many units above or below the right answer.
std::vector<mistake> off_by(std::initializer_list<double> steps, const formula& right, const formula& unit = 1) {
    std::vector<mistake> all;
    for (const double step : steps) all.push_back({"", right + unit * step});
    return all;
}
std::vector<mistake> near_quotient(const formula& right) {
    std::vector<mistake> all = off_by({-2, -1, 1, 2}, right);
    all.push_back({"", right / 10});
    all.push_back({"", right * 10});
    return all;
}
void check_not_by_ten(const reading& n) {
    EXPECT_TRUE(n[0] != std::floor(n[0]) && n[1] != std::floor(n[1])) << "a comma in both";
}
const formula near_hundred = [](const reading& n) { return 100 * std::ceil(n[1] / 100); };
const formula rest = [](const reading& n) { return std::fmod(n[0], 1000); };
// The number just above, which the divisor goes into a round number of times.
const formula round_quotient = [](const reading& n) {
    const double q = n[0] / n[1];
    return q < 97 ? 10 * std::ceil(q / 10) : 100 * std::ceil(q / 100);
};
const formula quotient = v[0] / v[1];

const exercise_rows against_the_clock{
    {.id = B_tafels_09_02_click,
     .variants = 10,
     .reads = "Je hebt niet veel tijd! Maak de som hiernaast... | Hoeveel is # x # ?",
     // clang-format off
     .ranges = {{{2, 9}, {3, 4}}, {{2, 9}, {6, 7}}, {{2, 9}, {9, 9}}, {{2, 9}, {12, 13}}, {{2, 9}, {15, 15}},
                {{2, 9}, {5, 5}}, {{2, 9}, {8, 8}}, {{2, 9}, {14, 14}}, {{2, 9}, {25, 25}}, {{2, 9}, {11, 11}}},
     // clang-format on
     .right = v[0] * v[1],
     .wrong = off_by({-3, -2, -1, 1, 2, 3}, v[0] * v[1], v[1]),
     .explains = {{"Het goede antwoord is dus: # x # = #.", {v[0], v[1], v[0] * v[1]}}},
     .ticks = {8},
     .check = check_table},
    {.id = L_keer_09_02_click,
     .variants = 2,
     .reads = "Geef snel antwoord. Je hebt niet veel tijd! | Hoeveel is: # x #?",
     .ranges = {{{18, 89}, {15, 95}}, {{21, 92}, {15, 95}}},
     .right = v[0] * v[1],
     .wrong = {{"", round_factor* v[1]},
               {"", (round_factor - off_round) * v[1]},
               {"", round_factor* v[1] + off_round / surplus * 5},
               {"", (v[0] + off_round) * v[1]}},
     .explains = {{"als # (-|+) #. Dan", {round_factor, [](const reading& n) { return n.variant() - 1; }, surplus}},
                  {"eerst # x # =  # en dan # x # = #. Die twee uitkomsten (trek je van elkaar af|moet je nog "
                   "optellen). Antwoord: #.",
                   {round_factor, v[1], round_factor* v[1], surplus, v[1], surplus* v[1],
                    [](const reading& n) { return n.variant() - 1; }, v[0] * v[1]}}},
     .ticks = {20}},
    {.id = M_nullen_09_06_click,
     .variants = 4,
     .reads = "Maak de som hiernaast... | Hoeveel is # (:|x) # ?",
     .ranges = {{{0.11, 999, 60}, {0, 1}, {10, 10}},
                {{0.11, 9990, 600}, {0, 1}, {100, 100}},
                {{0.11, 99900, 6000}, {0, 1}, {1000, 1000}},
                {{0.11, 999000, 60000}, {0, 1}, {10000, 10000}}},
     .right = moved,
     .wrong = {{"", lies::below}, {"", lies::above}},
     .explains = {{"# (stap|stappen) naar (links|rechts): #.",
                   {[](const reading& n) { return n.variant(); }, [](const reading& n) { return n.variant() > 1; },
                    v[1], moved}}},
     .ticks = {8, 10, 11, 12},
     .check = check_comma},
    {.id = Z_komma_09_06_click,
     .variants = 4,
     .reads = "Kijk hiernaast. Je hebt niet veel tijd! | Hoeveel is | # (-|+) # (-|+) # (-|+) #",
     .right = chain,
     .wrong = {{"", lies::below}, {"", lies::above}},
     .ticks = {20},
     .check = check_pairs},
    {.id = L_aftrekken_09_01_click,
     .variants = 4,
     .of = {1},
     .reads = "Je hebt niet veel tijd! Kijk hiernaast... | Hoeveel is # - # - # ?",
     .ranges = {{{311, 899, 30}, {21, 99, 3}, {111, 399, 9}}},
     .right = v[0] - v[1] - v[2],
     .wrong = off_by({-30, -20, -10, 10, 20, 30}, v[0] - v[1] - v[2]),
     .explains = {{"# - # = #. Daar trek je nog # van af. Uitkomst: #.",
                   {v[0], v[2], v[0] - v[2], v[1], v[0] - v[1] - v[2]}}},
     .ticks = {15},
     .check = [](const reading& n) { EXPECT_EQ(std::fmod(n[0] - n[2], 100), 0); }},
    {.id = L_aftrekken_09_01_click,
     .variants = 4,
     .of = {2},
     .reads = "| Hoeveel is # - # - # - # ?",
     .ranges = {{{221, 899, 30}, {11, 89, 9}, {21, 99}, {21, 99, 9}}},
     .right = v[0] - v[1] - v[2] - v[3],
     .wrong = off_by({-30, -20, -10, 10, 20, 30}, v[0] - v[1] - v[2] - v[3]),
     .explains = {{"het geval: # - # = #. Verder is # + # = #.", {v[0], v[2], v[0] - v[2], v[1], v[3], v[1] + v[3]}},
                  {"ook zo uitrekenen: # - # = #.", {v[0] - v[2], v[1] + v[3], v[0] - v[1] - v[2] - v[3]}}},
     .ticks = {15},
     .check =
         [](const reading& n) {
             EXPECT_EQ(std::fmod(n[0] - n[2], 100), 0);
             EXPECT_EQ(std::fmod(n[1] + n[3], 10), 0);
         }},
    {.id = L_aftrekken_09_01_click,
     .variants = 4,
     .of = {3},
     .reads = "| Hoeveel is # - # - # ?",
     .ranges = {{{111, 809, 20}, {21, 179, 9}, {21, 179, 9}}},
     .right = v[0] - v[1] - v[2],
     .wrong = off_by({-30, -20, -10, 10, 20, 30}, v[0] - v[1] - v[2]),
     .explains = {{"het geval: # + # = #.", {v[1], v[2], v[1] + v[2]}},
                  {"ook zo uitrekenen: # - # = #.", {v[0], v[1] + v[2], v[0] - v[1] - v[2]}}},
     .ticks = {10},
     .check = [](const reading& n) { EXPECT_EQ(std::fmod(n[1] + n[2], 10), 0); }},
    {.id = L_aftrekken_09_01_click,
     .variants = 4,
     .of = {4},
     .reads = "| Hoeveel is # - # ?",
     .ranges = {{{211, 999, 30}, {96, 599}}},
     .right = v[0] - v[1],
     .wrong = {{"", v[0] - near_hundred},
               {"", v[0] - near_hundred + v[1] - near_hundred},
               {"", v[0] - v[1] - 10},
               {"", v[0] - v[1] + 10},
               {"", v[0] - v[1] + 100},
               {"", v[0] - v[1] + near_hundred - v[1]}},
     .explains = {{"getal # ligt dicht bij #. # - # = #. *wel # te veel",
                   {v[1], near_hundred, v[0], near_hundred, v[0] - near_hundred, near_hundred - v[1]}},
                  {"Uitkomst: # + # = #.", {v[0] - near_hundred, near_hundred - v[1], v[0] - v[1]}}},
     .ticks = {10}},
    {.id = L_delen_1_09_06_click,
     .variants = 2,
     .reads = "Je hebt weinig tijd! Kijk hiernaast... | Bereken # : #",
     .ranges = {{{0.6, 17.1}, {0.2, 0.9}}, {{3.3, 22.5}, {1.1, 2.5}}},
     .right = quotient,
     .wrong = near_quotient(quotient),
     .explains = {{"Dan wordt het dus # : # = #.", {10 * v[0], 10 * v[1], quotient}}},
     .ticks = {15},
     .check = check_not_by_ten},
    {.id = M_delen_2_09_06_click,
     .variants = 4,
     .of = {1},
     .reads = "Je hebt niet veel tijd! Kijk hiernaast. | Hoeveel is # : # ?",
     .ranges = {{{1010, 9810, 900}, {3, 9}}},
     .right = quotient,
     .wrong = off_by({-100, -10, -1, 1, 10, 100}, quotient),
     .explains = {{"eerst # : # = # en daarna nog # : # = #. Samen is dat #.",
                   {v[0] - rest, v[1], (v[0] - rest) / v[1], rest, v[1], rest / v[1], quotient}}},
     .ticks = {15}},
    {.id = M_delen_2_09_06_click,
     .variants = 4,
     .of = {2},
     .reads = "| Hoeveel is # : # ?",
     .ranges = {{{2, 90}, {0.5, 4.5}}},
     .right = quotient,
     .wrong = near_quotient(quotient),
     .explains = {{"met 10 vermenigvuldigen. *Dan wordt het dus # : # = #.", {10 * v[0], 10 * v[1], quotient}}},
     .ticks = {15}},
    {.id = M_delen_2_09_06_click,
     .variants = 4,
     .of = {3},
     .reads = "| Hoeveel is # : # ?",
     .ranges = {{{1100, 9810, 500}, {30, 90}}},
     .right = quotient,
     .wrong = {{"", quotient - 10},
               {"", quotient - 2},
               {"", quotient - 1},
               {"", quotient + 1},
               {"", quotient + 10},
               {"", quotient * 10}},
     .explains = {{"eerst # : # = # en daarna nog # : # = #. Samen is dat #.",
                   {v[0] - rest, v[1] / 10, (v[0] - rest) / v[1] * 10, rest, v[1] / 10, rest / v[1] * 10,
                    quotient * 10}},
                  {"je niet door # delen, maar door #. Het goede antwoord is dus # : 10 = #.",
                   {v[1] / 10, v[1], quotient * 10, quotient}}},
     .ticks = {15}},
    {.id = M_delen_2_09_06_click,
     .variants = 4,
     .of = {4},
     .reads = "| Hoeveel is # : # ?",
     .ranges = {{{144, 5391, 100}, {3, 9}}},
     .right = quotient,
     .wrong = {{"", round_quotient},
               {"", round_quotient * 2 - quotient},
               {"", round_quotient - (round_quotient - quotient) * v[1]},
               {"", quotient - 10},
               {"", quotient + 10},
               {"", quotient - 1}},
     .explains = {{"dicht bij #. Dit kun je makkelijk delen door #: # : # = #.",
                   {round_quotient * v[1], v[1], round_quotient* v[1], v[1], round_quotient}},
                  {"echter # : # = # te veel", {round_quotient * v[1] - v[0], v[1], round_quotient - quotient}},
                  {"dus # - # = #.", {round_quotient, round_quotient - quotient, quotient}}},
     .ticks = {10}},
};

} // namespace
} // namespace cijferwerf
