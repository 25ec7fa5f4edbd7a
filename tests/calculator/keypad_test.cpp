// The calculator as the practice screen carries it: its keys, its display and its message boxes.
#include "tests/support/practising.h"

namespace cijferwerf {
namespace {

class keypad : public practising {
protected:
    keypad() { present_with_calculator(true); }
    // The clock is read when an exercise is made, and that is when one asks for the calculator.
    void present_with_calculator(bool asked_for) {
        pupil.when_clock_is_read = [=, this] { screen.hulpmiddel = asked_for ? "REKENMACHINE" : " "; };
        open();
        present("hele procenten");
    }
    void type(std::string_view keys) {
        for (const char key : keys) EXPECT_TRUE(pupil.press(screen, key)) << key;
    }
};

TEST_F(keypad, every_key_of_the_keyboard_presses_the_key_of_that_face) {
    static constexpr std::pair<std::string_view, std::string_view> rows[]{
        {"", "0,"},
        {"1234567890", "1234567890,"},
        {"\x1b"
         "12.5*4\r",
         "50,"},
        {"-0,5=", "49,5"},
        {"M\x1b"
         "200+10%=",
         "220,"},
        {"/8=:5=", "5,5"},
        {"XR=", "272,25"}, // 5,5 x 49,5
        {"\x7fR", "0,"},
    };
    for (const auto& [keys, display] : rows) {
        type(keys);
        EXPECT_EQ(screen.display.caption, display) << keys;
    }
}

TEST_F(keypad, what_goes_wrong_is_told_in_a_box_titled_with_the_course_set) {
    type("12345678901");
    type("\x1b"
         "7/0=");
    ASSERT_EQ(pupil.boxes.size(), 2U);
    EXPECT_EQ(pupil.boxes[0].text, "te veel cijfers");
    EXPECT_EQ(pupil.boxes[1].text, "delen door nul kan niet!");
    EXPECT_EQ(pupil.boxes[1].title, "TELMORA's CIJFERLOOP");
    EXPECT_EQ(pupil.boxes[1].buttons, box_buttons::ok);
    EXPECT_EQ(screen.display.caption, "7,");
}

TEST_F(keypad, keys_answer_an_exercise_only_without_a_calculator_or_with_alt) {
    type("1234");
    EXPECT_EQ(screen.display.caption, "1234,");
    EXPECT_EQ(screen.pogingen, 0);
    type("C");
    EXPECT_EQ(screen.display.caption, "0,");
    EXPECT_FALSE(pupil.press(screen, 'A'));
    EXPECT_EQ(screen.knop[1].mnemonic, 'A');
    type("5M");

    present_with_calculator(false);
    EXPECT_EQ(screen.knop[1].mnemonic, 0);
    EXPECT_FALSE(screen.k[5].visible);
    type("2");
    EXPECT_EQ(screen.pogingen, 1);

    present_with_calculator(true);
    type("\x1bR");
    EXPECT_EQ(screen.display.caption, "5,") << "what was worked out outlives the exercise";
    EXPECT_EQ(screen.display.font_size, 14);
    type("\x7f"
         "9999999999/,7=M\x1bR");
    EXPECT_TRUE(screen.display.caption.starts_with("14285714284,285714"));
    EXPECT_LT(screen.display.font_size, 14);
}

} // namespace
} // namespace cijferwerf
