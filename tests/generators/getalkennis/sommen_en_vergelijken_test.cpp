// Sums and comparisons of number knowledge: what they draw, their answers worked out again from what a pupil sees, and
// each wrong answer as the mistake that its feedback names.
#include "tests/support/exercise_rows.h"
#include "tests/support/pattern.h"

#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

// Wrong answers of an exercise that has tips.
std::vector<mistake> unnamed(std::initializer_list<formula> values) {
    std::vector<mistake> all;
    for (const formula& value : values) all.push_back({"", value});
    return all;
}

int right_end(const text_op& text) { return text.x + text_width(text.text, text.size); }
int middle(const text_op& text) { return text.x + text_width(text.text, text.size) / 2; }
// How many digits the lower number of this sum (from 0) ends left of the upper one.
double shift(const seen& e, std::size_t sum) {
    const text_op &upper = e.texts.at(1 + 3 * sum), &lower = e.texts.at(2 + 3 * sum);
    return 1.0 * (right_end(upper) - right_end(lower)) / text_width("0", upper.size);
}
void check_columns(const reading& n) {
    const seen& e = n.exercise;
    const text_op& heading = e.texts.at(0);
    std::set<double> shifts;
    for (std::size_t sum = 0; sum < 4; ++sum) {
        const text_op &upper = e.texts.at(1 + 3 * sum), &lower = e.texts.at(2 + 3 * sum);
        EXPECT_TRUE(decimal(upper.text) == n[0] && decimal(lower.text) == n[1] && upper.y < lower.y);
        EXPECT_NEAR(shift(e, sum), std::round(shift(e, sum)), 0.01);
        shifts.insert(std::round(shift(e, sum)));
        const std::string letter(1, static_cast<char>('A' + sum));
        const int at = heading.x + text_width(heading.text.substr(0, heading.text.find(letter)), heading.size);
        EXPECT_NEAR(middle(n[0] > n[1] ? upper : lower), at + text_width(letter, heading.size) / 2,
                    n.variant() == 1 ? 300 : 3);
        EXPECT_EQ(e.answer(static_cast<int>(sum) + 1), letter);
    }
    EXPECT_EQ(shifts.size(), 4U);
    EXPECT_LE(*shifts.rbegin() - *shifts.begin(), 3);
}
const formula aligned = [](const reading& n) {
    for (std::size_t sum = 0; sum < 4; ++sum)
        if (shift(n.exercise, sum) == 0) return std::string(1, static_cast<char>('A' + sum));
    return std::string();
};
formula unit_of(std::size_t which) {
    return [which](const reading& n) { return std::fmod(n[which], 10); };
}

const formula round_unit = [](const reading& n) { return std::pow(10, n.variant() + 1); };
formula near_round(std::size_t which) {
    return [which](const reading& n) {
        const double unit = std::pow(10, n.variant() + 1);
        return unit * std::floor(n[which] / unit + 0.5);
    };
}
const formula estimate = near_round(0) - near_round(1);

// What the first number and its partner make.
const formula first_pair = [](const reading& n) { return n[0] + n[static_cast<std::size_t>(n.variant())]; };
const formula total = v[0] + v[1] + v[2] + v[3];

const formula one_part = v[0] / v[2];
const formula part = v[0] * v[1] / v[2];
void check_board(const reading& n) {
    static constexpr std::array starts{4300, 4300, 4300, 4200, 4100, 4000}; // by the length of the answer
    const seen& e = n.exercise;
    EXPECT_LT(right_end(e.texts[0]), 4000);
    EXPECT_NE(std::fmod(std::round(n[0] * 100), 100), 0);
    EXPECT_EQ(e.made.uitlegopdrachten[0], regel("PRINT_", kaal(starts.at(e.right.size())), "_800_12_20_", e.right));
    for (const double each : e.numbers()) EXPECT_FALSE(same(each, n[0])) << "the number that is given";
    const auto times = find_pattern(e.explanation, "daarna met #: # x # = #.");
    EXPECT_EQ(times.has_value(), n[1] > 1);
    EXPECT_TRUE(!times || (times->numbers[0] == n[1] && same(times->numbers[1], 100 * n[0] / n[2])));
}

const formula mixed = v[0] + v[1] / v[2];
formula distance(std::size_t answer) {
    return [answer](const reading& n) { return std::abs(n[0] + n[1] / n[2] - n.exercise.numbers().at(answer)); };
}
const formula least_distance = [](const reading& n) {
    std::set<long long> all; // thousandths: no two alike
    for (const double each : n.exercise.numbers()) all.insert(std::llround(1000 * std::abs(n[0] + n[1] / n[2] - each)));
    EXPECT_EQ(all.size(), 4U);
    return static_cast<double>(*all.begin()) / 1000;
};
const formula nearest = [](const reading& n) {
    const auto answers = n.exercise.numbers();
    return *std::ranges::min_element(answers, {}, [&](double each) { return std::abs(n[0] + n[1] / n[2] - each); });
};

double digit_at(double number, double place) { return std::fmod(std::floor(number / place), 10); }
// The four numbers, the one that is asked for first.
std::array<double, 4> in_order(const reading& n) {
    std::array four{n[0], n[1], n[2], n[3]};
    std::ranges::sort(four);
    if (n.variant() == 2) std::ranges::reverse(four);
    return four;
}
formula ranked(std::size_t rank, double place = 0) {
    return [=](const reading& n) { return place == 0 ? in_order(n).at(rank) : digit_at(in_order(n).at(rank), place); };
}
exercise_row extreme_row(int variant, const char* reads, const char* opposite, const char* compared) {
    return {.id = M_grootste_kleinste_11_01_click,
            .variants = 2,
            .of = {variant},
            .reads = reads,
            .ranges = {{{10000, 999999, 15000}}},
            .right = ranked(0),
            .wrong = {{"Vergelijk de honderdtallen...", ranked(1)},
                      {"Kijk naar de duizendtallen...", ranked(2)},
                      {opposite, ranked(3)}},
            .explains = {{"Het cijfer # is daar het", {ranked(0, 1000)}},
                         {"Dat staat in # en in #. Vergelijk", {ranked(0), ranked(1)}},
                         {compared, {ranked(0, 100), ranked(1, 100), ranked(0)}}},
            .check = [](const reading& n) {
                const auto four = in_order(n);
                for (const double each : four) EXPECT_EQ(std::floor(each / 10000), std::floor(four[0] / 10000));
                EXPECT_TRUE(digit_at(four[0], 1000) == digit_at(four[1], 1000) &&
                            digit_at(four[0], 100) != digit_at(four[1], 100));
                EXPECT_TRUE(digit_at(four[0], 1000) != digit_at(four[2], 1000) &&
                            digit_at(four[2], 1000) != digit_at(four[3], 1000));
            }};
}

// The count beside the first (0) or second (1) year of the question.
formula members(std::size_t asked) {
    return [asked](const reading& n) {
        for (std::size_t row = 3; row < 11; row += 2)
            if (n[row] == n[asked]) return n[row + 1];
        return -1.0;
    };
}
const formula growth = members(1) - members(0);

const exercise_rows sums_and_comparisons{
    {.id = B_onder_elkaar_11_01_click,
     .variants = 3,
     .reads = "elkaar? | A             B              C              D | # | # | +",
     .ranges = {{{10, 99}, {10, 99}}, {{10, 999, 9}, {10, 999, 9}}, {{10, 9999, 90}, {10, 9999, 90}}},
     .right = aligned,
     .explains = {{"hier de # *bovenste getal) en de # *Alleen bij", {unit_of(0), unit_of(1)}}, {"| goed"}},
     .tips = {"in welke optelling", "De eenheden zijn de laatste cijfers van de getallen: hier de # en de #."},
     .check = check_columns},
    {.id = B_schatten_11_01_click,
     .variants = 3,
     .reads = "Uit het hoofd! | # - #",
     .ranges = {{{292, 908}, {92, 708}},
                {{2920, 20080, 20}, {920, 18080, 60}},
                {{29200, 200800, 200}, {9200, 180800, 600}}},
     .right = estimate,
     .wrong = unnamed({estimate - round_unit, estimate + round_unit, estimate - round_unit * 2,
                       estimate + round_unit * 2, near_round(0) + near_round(1), estimate * 10, estimate / 10}),
     .explains = {{"eerste getal is ongeveer gelijk aan #. Het tweede getal is ongeveer gelijk aan #.",
                   {near_round(0), near_round(1)}},
                  {"dus ongeveer # - # = #. |* | ongeveer # - # = #",
                   {near_round(0), near_round(1), estimate, near_round(0), near_round(1), estimate}}},
     .tips = {"ONGEVEER", "Rond beide getallen af op (honderdtallen|duizendtallen|tienduizendtallen)."},
     .check =
         [](const reading& n) {
             const auto off = [&](double answer) { return std::abs(answer - (n[0] - n[1])); };
             const auto answers = n.exercise.numbers();
             for (std::size_t i = 1; i < 4; ++i) EXPECT_GT(off(answers[i]), off(answers[0]));
             const char* units = n.variant() == 1 ? " honderdt" : n.variant() == 2 ? " duizendt" : " tienduizendt";
             const std::string tip = joined(n.exercise.made.tipregels_2);
             EXPECT_NE(tip.find(units), tip.npos) << tip;
         }},
    {.id = L_optellen_11_01_click,
     .variants = 3,
     .reads = "som hiernaast... | # + # + # + # = ..",
     .ranges = {{{10, 249}, {1, 240, 5}, {10, 249}, {1, 240, 5}},
                {{10, 249}, {10, 249}, {1, 240, 5}, {1, 240, 5}},
                {{10, 249}, {10, 249}, {1, 240, 5}, {1, 240, 5}}},
     .right = total,
     .wrong = unnamed({total - 10, total - 20, total - 30, total + 10, total + 20, total + 30}),
     .explains = {{"eerste en (tweede|derde|vierde) getal", {[](const reading& n) { return n.variant() - 1; }}},
                  {"samen #*maar ook het (derde|tweede) en (vierde|derde) getal",
                   {first_pair, [](const reading& n) { return n.variant() == 1 ? 0 : 1; },
                    [](const reading& n) { return n.variant() == 3 ? 1 : 0; }}},
                  {"samen #). Uitkomst: # + # = #", {total - first_pair, first_pair, total - first_pair, total}}},
     .ticks = {15},
     .check =
         [](const reading& n) {
             const double first = std::get<double>(first_pair(n)), second = std::get<double>(total(n)) - first;
             for (const double sum : {first, second})
                 EXPECT_TRUE(std::fmod(sum, 10) == 0 && sum >= 20 && sum <= 250) << sum;
         }},
    {.id = L_schoolbord_11_06_click,
     .variants = 4,
     .reads = "Kies het goede antwoord. | deel  van # = | # | #",
     .ranges = {{{0.04, 18, 0.3}, {1, 1}, {2, 6}},
                {{0.06, 15, 0.3}, {2, 4}, {3, 5}},
                {{0.12, 21, 0.4}, {2, 6}, {6, 7}},
                {{0.16, 30, 0.6}, {3, 7}, {8, 10}}},
     .right = part,
     .wrong = unnamed({one_part, v[0] - part, v[0] * v[2], part + one_part, part - one_part, part * 10, part / 10}),
     .explains = {{"lezen als # honderdste. Deel dit aantal eerst door #: # : # = #.",
                   {v[0] * 100, v[2], v[0] * 100, v[2], one_part * 100}},
                  {"Dat is # honderdste, dus het antwoord is #.", {part * 100, part}}},
     .tips = {"Maak eerst honderdsten", "Reken verder met # honderdsten: deel door #"},
     .check = check_board},
    {.id = M_dichtst_bij_11_06_click,
     .variants = 3,
     .reads = "met de streepbreuk? | # | # | #",
     .counts = {least_distance},
     .ranges = {{{1, 20}, {1, 1}, {2, 2}, {0.01, 0.04}},
                {{1, 20}, {1, 3}, {4, 4}, {0.01, 0.04}},
                {{1, 20}, {1, 7}, {8, 8}, {0.005, 0.035}}},
     .right = nearest,
     .explains =
         {{"Het getal & is als kommagetal #.", {mixed, mixed}},
          {"verschilt # met het getal bij A, # met het getal bij B, # met het getal bij C en # met het getal bij D.",
           {distance(0), distance(1), distance(2), distance(3)}},
          {"kleinste verschil is #: het juiste antwoord is dus #.", {v[3], nearest}},
          {"| = #", {mixed}}},
     .tips = {"Maak van die streepbreuk", "Bereken dan bij elk"},
     .check =
         [](const reading& n) {
             for (std::size_t i = 0; i < 4; ++i) EXPECT_LE(std::get<double>(distance(i)(n)), 0.161);
         }},
    extreme_row(1, "getal is het kleinste? | # | # | # | #",
                "Je hebt het grootste getal genomen, maar je moest het kleinste hebben!",
                "honderdtallen: # is kleiner dan #. Het kleinste getal is dus #."),
    extreme_row(2, "getal is het grootste? | # | # | # | #",
                "Je hebt het kleinste getal genomen, maar je moest het grootste hebben!",
                "honderdtallen: # is groter dan #. Het grootste getal is dus #."),
    {.id = M_tabel_11_01_click,
     .variants = 4,
     .reads = "tussen # en # bijgekomen? | TABEL | aantal leden *x #* in het jaar |  | # | # | # | # | # | # | # | #",
     .ranges = {{{1960, 2001, 4}, {1961, 2002, 4}, {100, 100000}, {1960, 1999, 10}, {10, 96, 30}}},
     .right = growth * v[2],
     .wrong = {{"vergeten te vermenigvuldigen", growth},
               {"met het goede getal vermenigvuldigd", growth* v[2] / 10},
               {"met het goede getal vermenigvuldigd", growth* v[2] * 10},
               {"Zoveel leden waren er in # in totaal. Een deel daarvan was er in # al.", members(1) * v[2]},
               {"Je hebt de aantallen opgeteld.", (members(0) + members(1)) * v[2]}},
     .explains = {{"In # staat in de tabel het getal # en in # het getal #. Het verschil is # - # = #.",
                   {v[0], members(0), v[1], members(1), members(1), members(0), growth}},
                  {"Boven de tabel staat: x #. Er zijn dus # x # = # leden", {v[2], growth, v[2], growth* v[2]}},
                  {"| # - # = # | # x # = | #", {members(1), members(0), growth, growth, v[2], growth* v[2]}}},
     .check =
         [](const reading& n) {
             for (std::size_t row = 3; row < 9; ++row) EXPECT_LT(n[row], n[row + 2]);
             EXPECT_TRUE(n[9] <= 2002 && n[10] <= 99 && n[2] == std::pow(10, n.variant() + 1));
         }},
};

} // namespace
} // namespace cijferwerf
