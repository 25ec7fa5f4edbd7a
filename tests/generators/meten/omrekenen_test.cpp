// Measures in another unit: the numbers, read back from the picture, are compared in the smallest unit of their kind.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

double in_smallest(const std::string& unit) { return unit == "dag" ? 1e4 : find_unit(unit).value().size; }
// How many of one unit go into another, as words[i] names them.
formula factor(std::size_t from, std::size_t to) {
    return [=](const reading& n) { return in_smallest(n.words[from]) / in_smallest(n.words[to]); };
}
formula inverted_if_small(const formula& ratio) {
    return lifted([](double x) { return std::max(x, 1 / x); }, ratio);
}
const formula second = by_variant({0, 1}), first = by_variant({1, 0});

// "# @ + # @ = | ... | @": odd sub-variants have the first number converted, even ones the second. C is what comes
// of that number, D the other one, E how many of the unit asked for go into one of the other.
void sums_of_two(oefening_id id, const char* reads, std::vector<double> factors) {
    const auto odd = [](const reading& n) { return static_cast<std::size_t>(n.variant() % 2); };
    const auto ranges = [=](exercise_row& row) {
        for (const double each : factors) range({{2, 99}, {2, 99}, {2, 99}, {2, 99}, {each, each}})(row);
    };
    row(id, static_cast<int>(factors.size()), reads, ranges,
        counts([=](const reading& n) { return n[1 - odd(n)]; }, [=](const reading& n) { return n[odd(n)]; },
               [=](const reading& n) { return factor(1 - odd(n), 2).in(n); }),
        right(C * E + D), wrong("zomaar opgeteld", A + B), wrong("verkeerde factor", C * E * E + D),
        wrong("getal om", C + D * E), wrong("beide getallen omgerekend", (A + B) * E),
        wrong("van elkaar", [](const reading& n) { return std::abs(n[2] * n[4] - n[3]); }),
        wrong("in plaats van", C / E + D), explains("(eerste|tweede) getal *naar $c.", by_variant({0, 1, 0, 1})));
}

// Each wrong answer is told how it came about: by "x 100", ": 10", not at all, or the other way.
void check_told(const reading& n) {
    for (int which = 2; which <= 4; ++which) {
        const double made = decimal(n.exercise.answer(which)) / n[0];
        const bool other_way = (made - 1) * (n[1] - 1) < 0;
        const std::string told = n.exercise.feedback(which);
        const auto done = find_pattern(told, "(dus x|vermenigvuldigd met|dus :|gedeeld door) #.");
        const double with = done ? done->numbers[1] : other_way ? n[1] : 1;
        EXPECT_TRUE(same(made, done && done->numbers[0] < 2 ? with : 1 / with)) << told;
        EXPECT_EQ(find_pattern(told, "(verkeerde kant op|Denk nog)").has_value(), other_way) << told;
    }
}

const char* const lengths = "twee afstanden * stippen staan? | # @ + # @ = | ... | @ ";
const char* const changes = "# keer zo (groot|klein) geworden, * juist # keer zo (groot|klein) worden.";
const formula conversion = factor(1, 0), by = inverted_if_small(conversion);

const exercise_rows conversions([] {
    sums_of_two(L_optellen_1_07_09_click, lengths, {10, 10});
    sums_of_two(L_optellen_2_07_09_click, lengths, {0.1, 0.1});
    sums_of_two(L_optellen_08_17_click, "zie twee gewichten * stippen staan? | # @ + # @ = | ... | @ ",
                {10, 10, 0.1, 0.1});
    row(L_snel_1_07_09_click, 2, "Welke eenheid * staan? | # @ = # ...", range({{1, 9.9}, {10, 9900, 30}}),
        range({{1, 9.9}, {0.001, 0.99}}),
        explains(changes, inverted_if_small(B / A), second, inverted_if_small(B / A), first), ticks({20}),
        explains("wordt dus $=, want 1 $a is # keer zo (groot|klein) als een $=.", inverted_if_small(B / A), second),
        [](const reading& n) {
            EXPECT_TRUE(same(n[0] * in_smallest(n.words[0]), n[1] * in_smallest(n.exercise.right)));
            for (const std::string& unit : n.exercise.answers())
                EXPECT_TRUE(in_smallest(unit) > 0 && unit != n.words[0]);
        });
    row(L_snel_2_07_09_click, 2, "| Reken om: | # @ = ... @ ", counts(factor(0, 1)), range({{1, 9.9}, {10, 1000}}),
        range({{1, 9.9}, {0.001, 0.1}}), right(A * B),
        explains(changes, inverted_if_small(B), first, inverted_if_small(B), second), explains("x # =", B), ticks({10}),
        [](const reading& n) {
            for (const double each : n.exercise.numbers())
                EXPECT_TRUE(each / n[0] > 0.00099 && each / n[0] < 1001 && !same(each, n[0])) << each;
        });
    row(L_gewichten_08_17_click, 2, "gewicht om in @. | # @ ", counts(conversion), range({{1.1, 9.9}, {10, 1000}}),
        range({{11, 99}, {0.001, 0.1}}), words({7, 7}), right(A * B),
        explains("Van $b naar $a (zijn het|is het) # stap*, dus (x|:) #. #",
                 lifted([](double x) { return x == 10; }, by), lifted([](double x) { return std::log10(x); }, by),
                 second, by, A),
        check_told);
    row(L_watertank_07_17_click, 8, "Hoeveel @ is dat? | # @ ", counts(conversion), range({{2, 89, 2}}), words({8, 1}),
        right(A * B),
        explains("dat (1 $a|1 liter) gelijk is aan # {liter|$a}.", lifted([](double x) { return x >= 1; }, B), by),
        check_told);
});

} // namespace
} // namespace cijferwerf
