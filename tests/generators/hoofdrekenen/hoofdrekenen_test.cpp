// Mental arithmetic against the clock: each sum is read back from the picture and worked out again.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// Nothing is told beside a wrong answer.
std::vector<mistake> one_of(std::initializer_list<formula> values) {
    std::vector<mistake> all;
    for (const formula& each : values) all.push_back({"", each});
    return all;
}
// So many units above or below the right one, or another.
std::vector<mistake> off_by(std::initializer_list<double> steps, const formula& right, const formula& unit = 1,
                            std::initializer_list<formula> more = {}) {
    std::vector<mistake> all = one_of(more);
    for (const double step : steps) all.push_back({"", right + unit * step});
    return all;
}

// All of the table, and wrong answers on the sides where there are rows.
void check_table(const reading& n) {
    const double a = n[0], b = n[1];
    const tekstregels& lines = n.exercise.made.uitlegregels;
    for (const double i : {1, 2, 3, 4, 5}) {
        const auto line = find_pattern(lines.at(static_cast<std::size_t>(i) - 1), "  # x # = #  *# x # = #");
        const double product = b == 9 && i == 5 ? 54 : i * b;
        EXPECT_EQ(line.value().numbers, (std::vector<double>{i, b, product, i + 5, b, (i + 5) * b}));
    }
    EXPECT_TRUE(b != 9 || lines[4].starts_with("  5 x 9 = 54    10 x 9 = 90    af te trekken."));
    EXPECT_TRUE(b != 3 || lines[0].starts_with("  1 x 3 = 3      6 x 3 = 18    Bij tafel"));
    const auto lower = std::ranges::count_if(n.exercise.numbers(), [&](double each) { return each < a * b; });
    EXPECT_TRUE(a >= 8 ? lower == 3 : a <= 3 ? lower == 0 : a != 5 && (lower == 1 || lower == 2)) << lower;
}
const formula to_ten = rounded(v[0] / 10) * 10, beside = v[0] - to_ten;
const formula second = [](const reading& n) { return n.variant() - 1; };
const formula surplus = [](const reading& n) { return std::abs(n[0] - rounded(n[0] / 10) * 10); };

const formula moved = [](const reading& n) { return n[1] == 0 ? n[0] / n[2] : n[0] * n[2]; };
// The number itself would give the right answer away.
void check_comma(const reading& n) {
    EXPECT_TRUE((n[1] == 0 || n[0] < 10) && std::ranges::count(n.exercise.numbers(), n[0]) == 0);
}

// What the first two, three or four numbers make.
formula chain(std::size_t numbers) {
    return [=](const reading& n) {
        double sum = n[0];
        for (std::size_t i = 1; i < numbers; ++i) sum += (2 * n[2 * i - 1] - 1) * n[2 * i];
        return sum;
    };
}
// Two pairs make whole numbers, and no step on the way is below 0.
void check_pairs(const reading& n) {
    constexpr std::array signs{0, 7, 1, 2};
    EXPECT_EQ(4 * n[1] + 2 * n[3] + n[5], signs.at(static_cast<std::size_t>(n.variant() - 1)));
    EXPECT_TRUE(std::get<double>(chain(2)(n)) >= 0 && std::get<double>(chain(3)(n)) >= 0);
    const auto told = find_pattern(n.exercise.explanation, "alleen # en # *samen #*ook # en # *(samen|verschil) #");
    const std::vector<double>& t = told.value().numbers;
    EXPECT_TRUE(same(t[0] + t[1], t[2]) && same(t[5] == 0 ? t[3] + t[4] : t[3] - t[4], t[6]) && t[3] == n[0]);
    EXPECT_EQ(t[5] == 1, n.variant() == 1);
    EXPECT_EQ(t[2], std::floor(t[2]));
}

std::vector<mistake> near_tens(const formula& right) { return off_by({-30, -20, -10, 10, 20, 30}, right); }
std::vector<mistake> near_quotient(const formula& right) {
    return off_by({-2, -1, 1, 2}, right, 1, {right / 10, right * 10, (right - 1) / 10, (right + 1) * 10});
}

const formula hundreds = rounded((v[0] - v[2]) / 100) * 100;
const formula two_less = v[0] - v[1] - v[2], three_less = two_less - v[3];
// The sum of the two that go well together.
const formula tens = [](const reading& n) { return rounded((n[1] + n[n.variant() == 2 ? 3 : 2]) / 10) * 10; };
const formula near_hundred = [](const reading& n) { return 100 * std::ceil(n[1] / 100); };
const formula to_hundred = near_hundred - v[1];

const formula quotient = v[0] / v[1];
const formula rest = [](const reading& n) { return std::fmod(n[0], 1000); };
// Of the number just above, which the divisor goes into a round number of times.
const formula round_quotient = [](const reading& n) {
    const double q = n[0] / n[1];
    return q < 97 ? 10 * std::ceil(q / 10) : 100 * std::ceil(q / 100);
};
const formula too_many = round_quotient - quotient;

const formula product = v[0] * v[1];
const std::vector<mistake> near_products = off_by({-3, -2, -1, 1, 2, 3}, product, v[1]);
const char* const quick_table = "Je hebt niet veel tijd! Maak de som hiernaast... | Hoeveel is # x # ?";

const exercise_rows against_the_clock([] {
    row(B_tafels_09_02_click, 10, quick_table, of({1, 2, 3, 6, 7}), range({{2, 9}, {3, 4}}), range({{2, 9}, {6, 7}}),
        range({{2, 9}, {9, 9}}), range({{2, 9}, {5, 5}}), range({{2, 9}, {8, 8}}), right(product), wrong(near_products),
        explains("eerst te kijken hoe *veel 5 x # of 10 x # ", v[1], v[1]), ticks({8}), check_table);
    row(B_tafels_09_02_click, 10, quick_table, of({4, 5, 8, 10}), range({{2, 9}, {12, 13}}), range({{2, 9}, {15, 15}}),
        range({{2, 9}, {14, 14}}), range({{2, 9}, {11, 11}}), right(product), wrong(near_products),
        explains("doe eerst # x 10 en *dan # x #. *Opgeteld: # + # = # ", v[0], v[0], v[1] - 10, v[0] * 10,
                 v[0] * (v[1] - 10), product),
        ticks({8}), check_table);
    row(B_tafels_09_02_click, 10, quick_table, of({9}), range({{2, 9}, {25, 25}}), right(product), wrong(near_products),
        explains("4 x 25 gelijk is aan 100."), ticks({8}), check_table);
    row(L_keer_09_02_click, 2, "Geef snel antwoord. Je hebt niet veel tijd! | Hoeveel is: # x #?",
        range({{18, 89}, {15, 95}}), range({{21, 92}, {15, 95}}), right(product),
        wrong(one_of(
            {to_ten * v[1], (to_ten - beside) * v[1], to_ten * v[1] + beside / surplus * 5, (v[0] + beside) * v[1]})),
        explains("als # (-|+) #. Dan *eerst # x # =  # en dan # x # = #. Die twee uitkomsten (trek je van elkaar "
                 "af|moet je nog optellen). Antwoord: #.",
                 to_ten, second, surplus, to_ten, v[1], to_ten * v[1], surplus, v[1], surplus * v[1], second, product),
        ticks({20}));
    row(M_nullen_09_06_click, 4, "Maak de som hiernaast... | Hoeveel is # (:|x) # ?",
        range({{0.11, 999, 60}, {0, 1}, {10, 10}}), range({{0.11, 9990, 600}, {0, 1}, {100, 100}}),
        range({{0.11, 99900, 6000}, {0, 1}, {1000, 1000}}), range({{0.11, 999000, 60000}, {0, 1}, {10000, 10000}}),
        right(moved),
        wrong(one_of({moved / 1000, moved / 100, moved / 10, moved * 10, moved * 100, moved * 1000, moved * 10000})),
        explains(
            " (deelt|vermenigvuldigt), *# (stap|stappen) naar (links|rechts): #.", v[1], second + 1,
            [](const reading& n) { return n.variant() > 1; }, v[1], moved),
        ticks({8, 10, 11, 12}), check_comma);
    row(Z_komma_09_06_click, 4, "Kijk hiernaast. Je hebt niet veel tijd! | Hoeveel is | # (-|+) # (-|+) # (-|+) #",
        right(chain(4)), wrong(one_of({lies::below, lies::above})), ticks({20}), check_pairs);
    row(L_aftrekken_09_01_click, 4, "Je hebt niet veel tijd! Kijk hiernaast... | Hoeveel is # - # - # ?", of({1}),
        range({{311, 899, 30}, {21, 99, 3}, {111, 399, 9}}), right(two_less), wrong(near_tens(two_less)),
        explains("# - # = #. Daar trek je nog # van af. Uitkomst: #.", v[0], v[2], hundreds, v[1], two_less),
        ticks({15}));
    row(L_aftrekken_09_01_click, 4, "| Hoeveel is # - # - # - # ?", of({2}),
        range({{221, 899, 30}, {11, 89, 9}, {21, 99}, {21, 99, 9}}), right(three_less), wrong(near_tens(three_less)),
        explains("het geval: # - # = #. Verder is # + # = #. *ook zo uitrekenen: # - # = #.", v[0], v[2], hundreds,
                 v[1], v[3], tens, hundreds, tens, three_less),
        ticks({15}));
    row(L_aftrekken_09_01_click, 4, "| Hoeveel is # - # - # ?", of({3}),
        range({{111, 809, 20}, {21, 179, 9}, {21, 179, 9}}), right(two_less), wrong(near_tens(two_less)),
        explains("het geval: # + # = #. *ook zo uitrekenen: # - # = #.", v[1], v[2], tens, v[0], tens, two_less),
        ticks({10}));
    row(L_aftrekken_09_01_click, 4, "| Hoeveel is # - # ?", of({4}), range({{211, 999, 30}, {96, 599}}),
        right(v[0] - v[1]),
        wrong(off_by({-10, 10, 100}, v[0] - v[1], 1,
                     {v[0] - near_hundred, v[0] - near_hundred - to_hundred, v[0] - v[1] + to_hundred})),
        explains("getal # ligt dicht bij #. # - # = #. *wel # te veel *Uitkomst: # + # = #.", v[1], near_hundred, v[0],
                 near_hundred, v[0] - near_hundred, to_hundred, v[0] - near_hundred, to_hundred, v[0] - v[1]),
        ticks({10}));
    row(L_delen_1_09_06_click, 2, "Je hebt weinig tijd! Kijk hiernaast... | Bereken # : #",
        range({{0.6, 17.1}, {0.2, 0.9}}), range({{3.3, 22.5}, {1.1, 2.5}}), right(quotient),
        wrong(near_quotient(quotient)), ticks({15}),
        [](const reading& n) { EXPECT_TRUE(n[0] != std::floor(n[0]) && n[1] != std::floor(n[1])); });
    row(M_delen_2_09_06_click, 4, "Je hebt niet veel tijd! Kijk hiernaast. | Hoeveel is # : # ?", of({1}),
        range({{1010, 9810, 900}, {3, 9}}), right(quotient), wrong(off_by({-100, -10, -1, 1, 10, 100}, quotient)),
        ticks({15}));
    row(M_delen_2_09_06_click, 4, "| Hoeveel is # : # ?", of({2}), range({{2, 90}, {0.5, 4.5}}), right(quotient),
        wrong(near_quotient(quotient)), ticks({15}));
    row(M_delen_2_09_06_click, 4, "| Hoeveel is # : # ?", of({3}), range({{1100, 9810, 500}, {30, 90}}),
        right(quotient), wrong(off_by({-10, -2, -1, 1, 10}, quotient, 1, {quotient * 10})),
        explains(
            "eerst # : # = # en daarna nog # : # = #. Samen is dat #.*je niet door # delen, maar door #. *# : 10 = #.",
            v[0] - rest, v[1] / 10, (v[0] - rest) / v[1] * 10, rest, v[1] / 10, rest / v[1] * 10, quotient * 10,
            v[1] / 10, v[1], quotient * 10, quotient),
        ticks({15}));
    row(M_delen_2_09_06_click, 4, "| Hoeveel is # : # ?", of({4}), range({{144, 5391, 100}, {3, 9}}), right(quotient),
        wrong(off_by({-10, 10, -1}, quotient, 1,
                     {round_quotient, round_quotient + too_many, round_quotient - too_many * v[1]})),
        explains("bij #. *door #: # : # = #. *echter # : # = # te veel *dus # - # = #.", round_quotient * v[1], v[1],
                 round_quotient * v[1], v[1], round_quotient, too_many * v[1], v[1], too_many, round_quotient, too_many,
                 quotient),
        ticks({10}));
});

} // namespace
} // namespace cijferwerf
