#include "calculator/calculator.h"

#include <gtest/gtest.h>

#include <string_view>

namespace cijferwerf {
namespace {

using enum calculator::message;

// The keys by index, one character each: C clears the entry, A clears all, M adds to memory, R recalls it.
constexpr std::string_view faces = "0123456789,CA+-x/MR%=";

// Presses the keys named in a text, blanks left out, and returns what the last one reports.
calculator::message press(calculator& on, std::string_view keys) {
    auto last = none;
    for (const char face : keys)
        if (face != ' ') last = on.press(static_cast<int>(faces.find(face)));
    return last;
}

// Rows of keys, the display after them, and what the last key reports: "7 / 0 = -> 7, door nul".
void check(std::initializer_list<std::string_view> rows) {
    for (const std::string_view row : rows) {
        const std::size_t arrow = row.find("-> ");
        const std::string_view after = row.substr(arrow + 3);
        calculator pressed;
        const auto reported = press(pressed, row.substr(0, arrow));
        EXPECT_EQ(pressed.display(), after.substr(0, after.find(' '))) << row;
        EXPECT_EQ(reported == too_many_digits, after.ends_with("te veel")) << row;
        EXPECT_EQ(reported == division_by_zero, after.ends_with("door nul")) << row;
    }
}

TEST(calculator, a_number_is_entered_with_at_most_ten_digits) {
    check({" -> 0,", "007 -> 7,", ",5 -> 0,5", "12,,5 -> 12,5", "1,2,5 -> 1,25", "12345678901 -> 1234567890, te veel",
           "1234567890, -> 1234567890,", "123456789,01 -> 123456789,0 te veel", "0,1234567891 -> 0,123456789 te veel",
           "12345678901 + 5 -> 5,"});
}

TEST(calculator, results_are_those_of_a_pocket_calculator) {
    check({"12,5 + 3 = -> 15,5", "0,1 + 0,2 = -> 0,3", "99,99 + 0,01 = -> 100,", "1000000000 - 0,1 = -> 999999999,9",
           "5 - 5 = -> 0,", "1,1 x 1,1 = -> 1,21", "2,5 x 0,4 = -> 1,", "0 x 5 = -> 0,", "100 / 8 = -> 12,5",
           "0,5 / 0,25 = -> 2,", "9876543210 / 9876543210 = -> 1,", "2 - 2,5 = -> -0,5", "2 - 2,5 = x 4 = -> -2,",
           "4 M C 2 - 5 = / R = -> -0,75", "2 - 5 = M x R = -> 9,", "2 - 5 = M 12 - R = -> 0,",
           "2 - 5 = M C 12 - R = -> 15,"});
}

TEST(calculator, too_many_decimals_are_cut_and_neither_rounded_nor_turned_into_an_exponent) {
    check({"2 / 3 = -> 0,666666666", "1000000000 / 3 = -> 333333333,3", "2 - 5 = / 9 = -> -0,33333333",
           "1 / 3 = x 3 = -> 0,999999999", "1,000000001 x 0,999999999 = -> 0,999999999",
           "123456789 + 0,04 = -> 123456789,", "12345678 + 0,004 = -> 12345678,00",
           "0,000001 x 0,000001 = -> 0,000000000", "1 / 1000000000 = -> 0,000000001",
           "0 - 0,00001 = x 0,000001 = -> -0,00000000", "0,000001 x 0,000001 = + 5 = -> 5,"});
}

TEST(calculator, a_result_past_ten_digits_is_refused_and_kept) {
    check({"9999999999 + 1 = -> 1, te veel", "1000000000 x 9 = -> 9000000000,", "1000000000 x 10 = -> 10, te veel",
           "1 - 1000000000 = -> -999999999,", "0 - 1000000000 = -> 1000000000, te veel",
           "9999999999 + 1 = - 1 = -> 9999999999,", "9999999999 + 1 = C 5 -> 5,", "9999999999 + 1 = + C = M R -> 0,",
           "99999,5 x 999999,5 = M R -> 99999450000,25", "99999,5 x 999999,5 = M R / 100 = -> 999994500,"});
}

TEST(calculator, squaring_for_ever_neither_ends_in_an_exponent_nor_in_endless_digits) {
    calculator pressed;
    press(pressed, "9999999999 M");
    for (int i = 0; i < 40; ++i) {
        press(pressed, "R x R =");
        press(pressed, "M");
        EXPECT_EQ(pressed.stand().invoer_geheel.find_first_not_of("0123456789"), std::string::npos);
        ASSERT_LT(pressed.stand().invoer_geheel.size(), 1000U);
    }
    EXPECT_EQ(press(pressed, "R x R ="), too_many_digits);
    press(pressed, "A 2 + 3 =");
    EXPECT_EQ(pressed.display(), "5,");
}

TEST(calculator, per_cent_adds_and_waits_for_the_next_result) {
    check({"200 + 15 % -> 15,", "200 + 15 % = -> 230,", "200 % + 15 = -> 230,", "19,99 + 6 % = -> 21,1894",
           "2 - 5 = + 50 % = -> -4,5", "200 + 15 % = + 15 = -> 245,", "200 x 15 % = -> 3000,",
           "200 - 15 % = + 10 = -> 195,", "% C 200 + 15 = -> 230,", "% A 200 + 15 = -> 230,",
           "% 7 / 0 = C 200 + 15 = -> 230,"});
}

TEST(calculator, an_operator_keeps_the_display_and_takes_over_the_entry) {
    check({"12,5 + -> 12,5", "12,5 + 3 -> 3,", "12,5 + , -> 12,5", "7 / 05 -> 5,", "8 + / 4 = -> 0,",
           "2 + 3 + 4 = -> 7,", "2 + 3 = + 4 = -> 9,", "2 + 3 = x 4 = - 1 = -> 19,", "5 = -> 0,", "5 + = -> 5,",
           "2 + 3 = = -> 7,", "2 x 3 = = = -> 24,", "100 + 10 % = = -> 210,"});
}

TEST(calculator, division_by_zero_is_reported_and_changes_nothing) {
    check({"7 / 0 = -> 7, door nul", "0 / 0 = -> 0, door nul", "7 / 0 = 2 = -> 3,5",
           "0,000001 x 0,000001 = M C 7 / R = -> 0, door nul"});
}

TEST(calculator, a_result_ignores_digits_until_it_is_cleared_or_counted_on_with) {
    check({"2 + 3 = 4 -> 5,", "2 + 3 = ,4 -> 5,", "2 + 3 = , C 4 -> 4,", "2 + 3 = + 4 -> 4,", "5 M 4 -> 5,",
           "2 / 3 = 4 -> 0,666666666 te veel"});
}

TEST(calculator, the_memory_adds_up_and_comes_back) {
    check({"R -> 0,", "5 M M R -> 10,", "5 M C 3 R -> 5,", "1,5 M C 2,25 M R -> 3,75", "5 M C 3 + R = -> 8,",
           "12 + 8 = M C 9 - 4 = M C 6 x 7 = M C 81 / 9 = M R -> 76,", "5 M A R -> 0,", "5 M + 3 = M R -> 13,",
           "5 + M R -> 0,", "5 M C R 2 -> 52,", "9999999999 M C 0,123456789 M R -> 9999999999,123456789"});
}

TEST(calculator, clearing_leaves_what_it_should) {
    check({"12,5 C 3 -> 3,", "12,5 A 3 -> 3,", "8 + 9 C 2 = -> 10,", "8 + 9 A 2 = -> 0,", "5 M C 8 + 2 = C R -> 5,",
           "2 + 3 = C = -> 2,"});
}

TEST(calculator, a_key_that_is_not_there_does_nothing) {
    calculator pressed;
    EXPECT_EQ(pressed.press(-1), none);
    EXPECT_EQ(pressed.press(calculator::keys), none);
    EXPECT_EQ(pressed.display(), "0,");
}

} // namespace
} // namespace cijferwerf
