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
    return [=](const reading& n) {
        const double value = std::get<double>(ratio(n));
        return std::max(value, 1 / value);
    };
}
const formula second = [](const reading&n) { return n.variant() - 1; }, first = formula(1) - second;

// "# @ + # @ = | ... | @": odd sub-variants have the first number converted, even ones the second. v[2] is what comes
// of that number, v[3] the other one, v[4] how many of the unit asked for go into one of the other.
void sums_of_two(oefening_id id, const char* reads, std::vector<double> factors) {
    const auto odd = [](const reading& n) { return static_cast<std::size_t>(n.variant() % 2); };
    const auto ranges = [=](exercise_row& row) {
        for (const double each : factors) range({{2, 99}, {2, 99}, {2, 99}, {2, 99}, {each, each}})(row);
    };
    row(id, static_cast<int>(factors.size()), reads, ranges,
        counts([=](const reading& n) { return n[1 - odd(n)]; }, [=](const reading& n) { return n[odd(n)]; },
               [=](const reading& n) { return std::get<double>(factor(1 - odd(n), 2)(n)); }),
        right(v[2] * v[4] + v[3]), wrong("zomaar opgeteld", v[0] + v[1]),
        wrong("verkeerde factor", v[2] * v[4] * v[4] + v[3]), wrong("getal om", v[2] + v[3] * v[4]),
        wrong("beide getallen omgerekend", (v[0] + v[1]) * v[4]),
        wrong("van elkaar", [](const reading& n) { return std::abs(n[2] * n[4] - n[3]); }),
        wrong("in plaats van", v[2] / v[4] + v[3]), explains("Op de stippen moet dus # staan", v[2] * v[4] + v[3]),
        [=](const reading& n) {
            EXPECT_EQ(n.exercise.right.find(',') == std::string::npos, n[4] > 1) << "whole, or decimals";
            n.exercise.told(regel(odd(n) == 1 ? "eerste" : "tweede", " getal .* naar ", n.words[2], "\\.").c_str());
        });
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
    row(L_snel_1_07_09_click, 2, "Geef snel antwoord. Je hebt niet veel tijd... Welke eenheid * staan? | # @ = # ...",
        range({{1, 9.9}, {10, 9900, 30}}), range({{1, 9.9}, {0.001, 0.99}}),
        explains(changes, inverted_if_small(v[1] / v[0]), second, inverted_if_small(v[1] / v[0]), first), ticks({20}),
        [](const reading& n) {
            const std::string &from = n.words[0], &to = n.exercise.right;
            EXPECT_TRUE(same(n[0] * in_smallest(from), n[1] * in_smallest(to)));
            for (const std::string& unit : n.exercise.answers()) EXPECT_TRUE(in_smallest(unit) > 0 && unit != from);
            n.exercise.told(("wordt dus " + to + ", want 1 " + from + " is [^ ]* keer zo " +
                             (n.variant() == 1 ? "groot" : "klein") + " als een " + to)
                                .c_str());
        });
    row(L_snel_2_07_09_click, 2, "Geef snel antwoord. Kijk hiernaast... | Reken om: | # @ = ... @ ",
        counts(factor(0, 1)), range({{1, 9.9}, {10, 1000}}), range({{1, 9.9}, {0.001, 0.1}}), right(v[0] * v[1]),
        explains(changes, inverted_if_small(v[1]), first, inverted_if_small(v[1]), second), explains("x # =", v[1]),
        ticks({10}), [](const reading& n) {
            for (const double each : n.exercise.numbers())
                EXPECT_TRUE(each / n[0] > 0.00099 && each / n[0] < 1001 && !same(each, n[0])) << each;
        });
    row(L_gewichten_08_17_click, 2, "weegschaal geeft een bepaald gewicht aan. Reken dat gewicht om in @. | # @ ",
        counts(conversion), range({{1.1, 9.9}, {10, 1000}}), range({{11, 99}, {0.001, 0.1}}), words({7, 7}),
        right(v[0] * v[1]),
        explains(
            "(zijn het|is het) # stap*, dus (x|:) #. #", [](const reading& n) { return n[1] == 10 || n[1] == 0.1; },
            [](const reading& n) { return std::abs(std::log10(n[1])); }, second, by, v[0]),
        check_told);
    row(L_watertank_07_17_click, 8, "Hiernaast zie je een watertank. * water er in zit. Hoeveel @ is dat? | # @ ",
        counts(conversion), range({{2, 89, 2}}), words({8, 1}), right(v[0] * v[1]),
        explains("moet je weten dat 1 @ gelijk is aan #", by), [](const reading& n) {
            const std::string large = n[1] < 1 ? n.words[0] : "liter", small = n[1] < 1 ? "liter" : n.words[0];
            n.exercise.told(("dat 1 " + large + " gelijk is aan [^ ]* " + small + "\\.").c_str());
            check_told(n);
        });
});

} // namespace
} // namespace cijferwerf
