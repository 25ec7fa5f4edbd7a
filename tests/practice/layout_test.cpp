#include "forms/practice/layout.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

std::string letters(int number) { return std::string(static_cast<std::size_t>(number), 'W'); }

TEST(layout, takes_the_largest_size_that_fits_all_lines_of_a_question) {
    const std::pair<int, double> rows[]{{20, 11.25}, {21, 10.5}, {22, 9.75}, {23, 9.75}};
    for (const auto& [widest, points] : rows) {
        tekstregels regels;
        regels[6] = letters(widest);
        EXPECT_EQ(vraag_punten(regels), points) << widest;
    }
}

TEST(layout, lays_answers_two_by_two_where_they_fit_and_in_a_column_where_they_must) {
    const struct {
        std::string widest;
        bool calculator;
        double points;
        int last_left, last_top;
        bool fits = true;
    } rows[]{{letters(10), false, 13, 8200, 4200},   {letters(12), false, 11.25, 8200, 4200},
             {letters(14), false, 9.75, 8200, 4200}, {letters(15), false, 13, 2922, 4665},
             {letters(10), true, 13, 2922, 4665},    {letters(15), true, 9.75, 2922, 4665, false},
             {"W\rW\r", false, 11.25, 8200, 4200},   {letters(14) + "\rW", false, 9.75, 8200, 4200},
             {"W\rW", true, 9.75, 2922, 4665, false}};
    for (const auto& row : rows) {
        const std::array<std::string, 4> answers{" 1", row.widest, " 2", " 3"};
        const antwoordindeling made = leg_antwoorden(answers, row.calculator);
        const place card = made.kaarten[3], text = made.teksten[3];
        EXPECT_EQ(std::tuple(made.punten, text.left, text.top, made.past(row.widest)),
                  std::tuple(row.points, row.last_left, row.last_top, row.fits))
            << row.widest;
        EXPECT_TRUE(card.top == text.top && card.left + card.width == text.left + text.width) << row.widest;
    }
}

TEST(layout, shows_the_first_digits_of_a_number_however_long) {
    const std::pair<std::size_t, double> rows[]{{31, 14}, {32, 12}, {54, 8.25}};
    for (const auto& [digits, points] : rows) {
        const auto [text, shown_at] = leg_display(std::string(digits, '8'), display_breedte);
        EXPECT_EQ(std::pair(text, shown_at), std::pair(std::string(digits, '8'), points));
    }
    EXPECT_EQ(leg_display(std::string(300, '8'), display_breedte).tekst, std::string(52, '8') + "…");
}

} // namespace
} // namespace cijferwerf
