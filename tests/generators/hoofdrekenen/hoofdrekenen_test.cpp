// Mental arithmetic against the clock: each sum is read back from the picture and worked out again.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// So many units above or below the right one, or another.
row_part off_by(std::initializer_list<double> steps, const formula& right, const formula& unit = 1,
                std::vector<formula> all = {}) {
    for (const double step : steps) all.push_back(right + unit * step);
    return wrong("", all);
}

// All of the table.
void check_table(const reading& n) {
    for (const double i : {1, 2, 3, 4, 5}) {
        const std::string& line = n.exercise.made.uitlegregels.at(static_cast<std::size_t>(i) - 1);
        const double product = n[1] == 9 && i == 5 ? 54 : i * n[1];
        EXPECT_EQ(find_pattern(line, "  # x # = #  *# x # = #").value().numbers,
                  (std::vector<double>{i, n[1], product, i + 5, n[1], (i + 5) * n[1]}));
    }
}
const formula to_ten = rounded(A / 10) * 10, beside = A - to_ten;
const formula second = by_variant({0, 1}), surplus = abs(beside);

const formula moved = [](const reading& n) { return n[1] == 0 ? n[0] / n[2] : n[0] * n[2]; };
// What the first two, three or four numbers make.
formula chain(std::size_t numbers) {
    return [=](const reading& n) {
        double sum = n[0];
        for (std::size_t i = 1; i < numbers; ++i) sum += (2 * n[2 * i - 1] - 1) * n[2 * i];
        return sum;
    };
}
row_part near_tens(const formula& right) { return off_by({-30, -20, -10, 10, 20, 30}, right); }
row_part near_quotient(const formula& right) {
    return off_by({-2, -1, 1, 2}, right, 1, {right / 10, right * 10, (right - 1) / 10, (right + 1) * 10});
}

const formula hundreds = rounded((A - C) / 100) * 100;
const formula two_less = A - B - C, three_less = two_less - D;
// The sum of the two that go well together.
const formula tens = [](const reading& n) { return rounded((n[1] + n[n.variant() == 2 ? 3 : 2]) / 10) * 10; };
const formula near_hundred = 0 - 100 * floor(0 - B / 100), to_hundred = near_hundred - B;

const formula quotient = A / B;
const formula rest = [](const reading& n) { return std::fmod(n[0], 1000); };
// Of the number just above, which the divisor goes into a round number of times.
const formula round_quotient = [](const reading& n) {
    const double q = n[0] / n[1];
    return q < 97 ? 10 * std::ceil(q / 10) : 100 * std::ceil(q / 100);
};
const formula too_many = round_quotient - quotient;

const formula product = A * B;

const exercise_rows against_the_clock([] {
    row(B_tafels_09_02_click, 10, "| Hoeveel is # x # ?", range({{2, 9}, {3, 4}}), range({{2, 9}, {6, 7}}),
        range({{2, 9}, {9, 9}}), range({{2, 9}, {12, 13}}), range({{2, 9}, {15, 15}}), range({{2, 9}, {5, 5}}),
        range({{2, 9}, {8, 8}}), range({{2, 9}, {14, 14}}), range({{2, 9}, {25, 25}}), range({{2, 9}, {11, 11}}),
        right(product), off_by({-3, -2, -1, 1, 2, 3}, product, B), ticks({8}), check_table);
    row(B_tafels_09_02_click, 10, "| Hoeveel is # x # ?", of({4, 5, 8, 10}),
        explains("doe eerst # x 10 en *dan # x #.", A, A, B - 10), ticks({8}));
    row(L_keer_09_02_click, 2, "| Hoeveel is: # x #?", range({{18, 89}, {15, 95}}), range({{21, 92}, {15, 95}}),
        right(product),
        wrong("", to_ten * B, (to_ten - beside) * B, to_ten * B + beside / surplus * 5, (A + beside) * B),
        explains("als # (-|+) #. *Die twee uitkomsten {trek je van elkaar af|moet je nog optellen}.", to_ten, second,
                 surplus),
        ticks({20}));
    row(M_nullen_09_06_click, 4, "| Hoeveel is # (:|x) # ?", range({{0.11, 999, 60}, {0, 1}, {10, 10}}),
        range({{0.11, 9990, 600}, {0, 1}, {100, 100}}), range({{0.11, 99900, 6000}, {0, 1}, {1000, 1000}}),
        range({{0.11, 999000, 60000}, {0, 1}, {10000, 10000}}), right(moved),
        wrong("", moved / 1000, moved / 100, moved / 10, moved * 10, moved * 100, moved * 1000, moved * 10000),
        explains(" (deelt|vermenigvuldigt), *# (stap|stappen) naar (links|rechts): #.", B, by_variant({1, 2, 3, 4}),
                 by_variant({0, 1, 1, 1}), B, moved),
        ticks({8, 10, 11, 12}));
    row(Z_komma_09_06_click, 4, "| Hoeveel is | # (-|+) # (-|+) # (-|+) #", right(chain(4)),
        wrong("", lies::below, lies::above), ticks({20}));
    row(L_aftrekken_09_01_click, 4, "| Hoeveel is # - # - # ?", of({1}),
        range({{311, 899, 30}, {21, 99, 3}, {111, 399, 9}}), right(two_less), near_tens(two_less),
        explains("# - # = #. Daar trek je nog # van af. Uitkomst: #.", A, C, hundreds, B, two_less), ticks({15}));
    row(L_aftrekken_09_01_click, 4, "| Hoeveel is # - # - # - # ?", of({2}),
        range({{221, 899, 30}, {11, 89, 9}, {21, 99}, {21, 99, 9}}), right(three_less), near_tens(three_less),
        explains("het geval: # - # = #. Verder is # + # = #.", A, C, hundreds, B, D, tens), ticks({15}));
    row(L_aftrekken_09_01_click, 4, "| Hoeveel is # - # - # ?", of({3}),
        range({{111, 809, 20}, {21, 179, 9}, {21, 179, 9}}), right(two_less), near_tens(two_less), ticks({10}));
    row(L_aftrekken_09_01_click, 4, "| Hoeveel is # - # ?", of({4}), range({{211, 999, 30}, {96, 599}}), right(A - B),
        off_by({-10, 10, 100}, A - B, 1, {A - near_hundred, A - near_hundred - to_hundred, A - B + to_hundred}),
        explains("getal # ligt dicht bij #. *wel # te veel ", B, near_hundred, to_hundred), ticks({10}));
    row(L_delen_1_09_06_click, 2, "| Bereken # : #", range({{0.6, 17.1}, {0.2, 0.9}}), range({{3.3, 22.5}, {1.1, 2.5}}),
        right(quotient), near_quotient(quotient), ticks({15}));
    row(M_delen_2_09_06_click, 4, "| Hoeveel is # : # ?", of({1}), counts(rest / B),
        range({{1010, 9810, 900}, {3, 9}, {2, 90}}), right(quotient), off_by({-100, -10, -1, 1, 10, 100}, quotient),
        ticks({15}));
    row(M_delen_2_09_06_click, 4, "| Hoeveel is # : # ?", of({2}), range({{2, 90}, {0.5, 4.5}}), right(quotient),
        near_quotient(quotient), ticks({15}));
    row(M_delen_2_09_06_click, 4, "| Hoeveel is # : # ?", of({3}), range({{1100, 9810, 500}, {30, 90}}),
        right(quotient), off_by({-10, -2, -1, 1, 10}, quotient, 1, {quotient * 10}),
        explains("eerst # : # *en daarna nog # : # *Samen is dat #.*je niet door # delen, maar door #.", A - rest,
                 B / 10, rest, B / 10, quotient * 10, B / 10, B),
        ticks({15}));
    row(M_delen_2_09_06_click, 4, "| Hoeveel is # : # ?", of({4}), range({{144, 5391, 100}, {3, 9}}), right(quotient),
        off_by({-10, 10, -1}, quotient, 1, {round_quotient, round_quotient + too_many, round_quotient - too_many * B}),
        explains("bij #. *door #: *echter # : # = # te veel", round_quotient * B, B, too_many * B, B, too_many),
        ticks({10}));
});

} // namespace
} // namespace cijferwerf
