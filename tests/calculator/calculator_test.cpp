// The calculator by itself, and as the practice screen carries it: its keys, its display and its message boxes.
#include "forms/introduction/infoscherm.h"

#include "tests/support/practising.h"

namespace cijferwerf {
namespace {

using enum calculator::message;

// The keys by index, one character each: C clears the entry, A clears all, M adds to memory, R recalls it. The last is
// no key.
constexpr std::string_view faces = "0123456789,CA+-x/MR%=!";

// Presses the keys named in a text, blanks left out, and returns what the last one reports.
calculator::message press(calculator& on, std::string_view keys) {
    auto last = none;
    for (const char face : keys)
        if (face != ' ') last = on.press(static_cast<int>(faces.find(face)));
    return last;
}

// Keys, the display after them, and what the last key reports.
TEST(calculator, shows_and_reports_what_a_pocket_calculator_does) {
    const std::initializer_list<std::string_view> rows{
        // a number is entered with at most ten digits
        " -> 0,", "007 -> 7,", ",5 -> 0,5", "1,2,5 -> 1,25", "12345678901 -> 1234567890, te veel",
        "123456789,01 -> 123456789,0 te veel", "12345678901 + 5 -> 5,",
        // results
        "12,5 + 3 = -> 15,5", "0,1 + 0,2 = -> 0,3", "1000000000 - 0,1 = -> 999999999,9", "5 - 5 = -> 0,",
        "100 / 8 = -> 12,5", "2 - 2,5 = -> -0,5", "2 - 2,5 = x 4 = -> -2,", "4 M C 2 - 5 = / R = -> -0,75",
        "2 - 5 = M x R = -> 9,", "2 - 5 = M C 12 - R = -> 15,",
        // too many decimals are cut, and neither rounded nor turned into an exponent
        "2 / 3 = -> 0,666666666", "2 - 5 = / 9 = -> -0,33333333", "1 / 3 = x 3 = -> 0,999999999",
        "1,000000001 x 0,999999999 = -> 0,999999999", "123456789 + 0,04 = -> 123456789,",
        "12345678 + 0,004 = -> 12345678,00", "0 - 0,00001 = x 0,000001 = -> -0,00000000",
        "0,000001 x 0,000001 = + 5 = -> 5,",
        // a result past ten digits is refused and kept
        "9999999999 + 1 = -> 1, te veel", "1000000000 x 9 = -> 9000000000,", "1000000000 x 10 = -> 10, te veel",
        "0 - 1000000000 = -> 1000000000, te veel", "9999999999 + 1 = - 1 = -> 9999999999,",
        "9999999999 + 1 = C 5 -> 5,", "9999999999 + 1 = + C = M R -> 0,", "99999,5 x 999999,5 = M R -> 99999450000,25",
        "99999,5 x 999999,5 = M R / 100 = -> 999994500,",
        // per cent adds and waits for the next result
        "200 + 15 % -> 15,", "200 + 15 % = -> 230,", "200 % + 15 = -> 230,", "19,99 + 6 % = -> 21,1894",
        "2 - 5 = + 50 % = -> -4,5", "200 + 15 % = + 15 = -> 245,", "200 x 15 % = -> 3000,", "% C 200 + 15 = -> 230,",
        "% A 200 + 15 = -> 230,", "% 7 / 0 = C 200 + 15 = -> 230,",
        // an operator keeps the display and takes over the entry
        "12,5 + -> 12,5", "12,5 + 3 -> 3,", "12,5 + , -> 12,5", "8 + / 4 = -> 0,", "2 + 3 + 4 = -> 7,",
        "2 + 3 = x 4 = - 1 = -> 19,", "5 + = -> 5,", "2 + 3 = = -> 7,", "2 x 3 = = = -> 24,", "100 + 10 % = = -> 210,",
        // division by zero changes nothing
        "7 / 0 = -> 7, door nul", "0 / 0 = -> 0, door nul", "7 / 0 = 2 = -> 3,5",
        "0,000001 x 0,000001 = M C 7 / R = -> 0, door nul",
        // a result ignores digits until it is cleared or counted on with
        "2 + 3 = 4 -> 5,", "2 + 3 = , C 4 -> 4,", "2 + 3 = + 4 -> 4,", "5 M 4 -> 5,",
        "2 / 3 = 4 -> 0,666666666 te veel",
        // the memory adds up and comes back
        "R -> 0,", "5 M M R -> 10,", "12 + 8 = M C 9 - 4 = M C 6 x 7 = M C 81 / 9 = M R -> 76,", "5 M A R -> 0,",
        "5 M + 3 = M R -> 13,", "5 + M R -> 0,", "5 M C R 2 -> 52,",
        "9999999999 M C 0,123456789 M R -> 9999999999,123456789",
        // clearing leaves what it should
        "12,5 C 3 -> 3,", "8 + 9 C 2 = -> 10,", "8 + 9 A 2 = -> 0,", "5 M C 8 + 2 = C R -> 5,", "2 + 3 = C = -> 2,",
        // what is no key does nothing
        "5!? -> 5,"};
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

TEST(calculator, squaring_for_ever_does_not_end_in_endless_digits) {
    calculator pressed;
    press(pressed, "9999999999 M");
    for (int i = 0; i < 20; ++i) press(pressed, "R x R = M");
    EXPECT_LT(pressed.stand().invoer_geheel.size(), 1000U);
    press(pressed, "A 2 + 3 =");
    EXPECT_EQ(pressed.display(), "5,");
}

class keypad : public practising {
protected:
    keypad() { present_with_calculator(true); }
    // The clock is read when an exercise is made, and that is when one asks for the calculator.
    void present_with_calculator(bool asked_for) {
        pupil.when_clock_is_read = [=, this] { screen.hulpmiddel = asked_for ? "REKENMACHINE" : " "; };
        open();
        present("hele procenten");
    }
    void shows(form& on, std::string_view keys, std::string_view number) {
        for (const char key : keys) EXPECT_TRUE(pupil.press(on, key)) << key;
        const auto display = std::ranges::find(on.controls(), "display", &control::name);
        EXPECT_EQ((*display)->caption, number) << keys;
    }
};

// On the practice screen, and on the introduction screen with a calculator of its own, which opens no message boxes.
TEST_F(keypad, every_key_of_the_keyboard_presses_the_key_of_that_face_and_what_goes_wrong_is_told) {
    auto& lesson = forms.get<infoscherm>(12, 3);
    lesson.toon_voor(12);
    const std::pair<const char*, const char*> rows[]{{"1234567890", "1234567890,"},     {"C12.5*4\r-0,5=", "49,5"},
                                                     {"MC200+10%=/8=:5=XR=", "272,25"}, {"\x7fR", "0,"},
                                                     {"12345678901", "1234567890,"},    {"C7/0=", "7,"}};
    for (form* on : std::initializer_list<form*>{&screen, &lesson})
        for (const auto& [keys, number] : rows) shows(*on, keys, number);
    shows(screen, "\033", "0,");
    EXPECT_EQ(lesson.bij().zin(), "Op het display staat 7,");
    ASSERT_EQ(pupil.boxes.size(), 2U);
    EXPECT_EQ(pupil.boxes[0].text, "te veel cijfers");
    EXPECT_EQ(pupil.boxes[1].text + '|' + pupil.boxes[1].title, "delen door nul kan niet!|TELMORA's CIJFERLOOP");
}

TEST_F(keypad, keys_answer_an_exercise_only_without_a_calculator_or_with_alt) {
    shows(screen, "1234", "1234,");
    EXPECT_EQ(screen.pogingen, 0);
    EXPECT_FALSE(pupil.press(screen, 'A'));
    EXPECT_EQ(screen.knop[1].mnemonic, 'A');
    shows(screen, "C5M", "5,");

    present_with_calculator(false);
    EXPECT_EQ(screen.knop[1].mnemonic, 0);
    EXPECT_FALSE(screen.k[5].visible);
    shows(screen, "2", "5,");
    EXPECT_EQ(screen.pogingen, 1);

    present_with_calculator(true);
    shows(screen, "\033R", "5,"); // what was worked out outlives the exercise
    EXPECT_EQ(screen.display.font_size, 14);
    shows(screen,
          "\x7f"
          "9999999999/,7=M\033R",
          "14285714284,285714285714285714285");
    EXPECT_LT(screen.display.font_size, 14);
}

} // namespace
} // namespace cijferwerf
