#include "runtime/number_text.h"

#include <gtest/gtest.h>
#include <limits>

namespace cijferwerf {
namespace {

// What would enter a sentence in a form that nobody chose is refused by the compiler.
static_assert(line_part<int> && line_part<long long> && line_part<std::string> && line_part<number_text>);
static_assert(!line_part<bool> && !line_part<char> && !line_part<char32_t>);
static_assert(!line_part<float> && !line_part<double> && !line_part<long double>);

TEST(number_text, writes_each_form_as_it_is_shown_and_glues_them_with_their_blank_as_word_space) {
    constexpr long long least = std::numeric_limits<long long>::min();
    const std::pair<std::string, std::string_view> rows[]{
        {regel(tekst(0), tekst(-7), tekst(least)), " 0-7-9223372036854775808"},
        {regel(duizend(999), duizend(1000), duizend(315'810)), " 999 1.000 315.810"},
        {regel(duizend(1'000'007), duizend(-1'050)), " 1000.007-1.050"},
        {regel(komma(0, 2), komma(5, 2), komma(-5, 1), komma(12, 0)), " 0,00 0,05-0,5 12"},
        {regel(komma_kort(1250, 2), komma_kort(1005, 3)), " 12,5 1,005"},
        {regel(komma_kort(-50, 2), komma_kort(0, 3)), "-0,5 0"},
        {regel(punt(925, 2), punt(-40, 0)), " 9.25-40"},
        {regel(groepen(999), groepen(1000), groepen(least)), " 999 1.000-9.223.372.036.854.775.808"},
        {regel(euro(0), euro(5), euro(1250), euro(-50)), " € 0,- € 0,05 € 12,50 € -0,50"},
        {regel(euro(123'456'705), euro(least)), " € 1.234.567,05 € -92.233.720.368.547.758,08"},
        {regel("Daarna moet je nog met", 5, " maal."), "Daarna moet je nog met 5 maal."},
        {regel("Er zijn ", 5, " x", -2, " is ", kaal(-10), "."), "Er zijn 5 x-2 is -10."},
        {regel("als tekst ", regel(5), " (", kaal(duizend(31'900)), ")"), "als tekst  5 (31.900)"},
        {velden("PRINT", 300, -40, punt(925, 2), "H o"), "PRINT_300_-40_9.25_H o"}};
    for (const auto& [made, expected] : rows) EXPECT_EQ(made, expected);
}

TEST(number_text, rounds_halves_away_from_zero_and_knows_what_does_not_fit) {
    EXPECT_EQ(afgerond(3.14159, 2), 314);
    const double endless = std::numeric_limits<double>::infinity(), none = endless - endless;
    const std::pair<double, long long> rows[]{{2.5, 3}, {-2.5, -3}, {2.4999, 2}, {1e300, 0}, {-endless, 0}, {none, 0}};
    for (const auto& [value, expected] : rows) EXPECT_EQ(afgerond(value), expected) << value;
}

TEST(number_text, keeps_every_line_of_an_exercise_until_it_is_forgotten) {
    std::vector<std::pair<std::string, plakregel>> lines;
    for (std::size_t length = 0; length < 300; ++length) {
        const std::string text(length, static_cast<char>('a' + length % 26));
        lines.emplace_back(text + " -5", plak_even({text, " ", -5}));
    }
    for (const auto& [text, line] : lines) EXPECT_EQ(std::string(line), text);
}

TEST(number_text, reads_what_a_number_begins_with_and_never_fails) {
    const std::pair<std::string, double> rows[]{
        {"   12", 12},  {"-3.5", -3.5}, {"+4", 4},  {"-.5", -0.5}, {"5.", 5},  {"12abc", 12},
        {"1.2.3", 1.2}, {"1,5", 1},     {"1e5", 1}, {"", 0},       {" ", 0},   {"-", 0},
        {".", 0},       {"--5", 0},     {"- 5", 0}, {"inf", 0},    {"nan", 0}, {"0." + std::string(400, '0') + '9', 0}};
    for (const auto& [text, expected] : rows) EXPECT_EQ(lees_getal(text), expected) << text;
    EXPECT_GT(lees_getal(std::string(400, '9')), 1e15);
}

} // namespace
} // namespace cijferwerf
