// The calculator as the practice screen carries it: its keys, its display and its message boxes.
#include "forms/practice/mama.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace cijferwerf {
namespace {

struct desk : outside {
    void show(form&) override {}
    void unload(form&) override {}
    box_answer ask(const std::string& text, const std::string& title, box_buttons buttons) override {
        EXPECT_EQ(buttons, box_buttons::ok);
        asked = title + ": " + text;
        return box_answer::ok;
    }
    print_result print(const report&) override { return {}; }
    float seconds_since_midnight() const override { return 36000; }
    local_time now() const override { return {}; }
    void end() override {}

    std::string asked;
};

struct keypad : testing::Test {
    keypad() {
        forms.globalen.gekozen_pakket = "SOMMENWERF";
        screen.show();
        for (button& key : screen.k) key.visible = true; // as beside an exercise that asks for it
    }
    void type(std::string_view keys) {
        for (const char key : keys) EXPECT_TRUE(screen.press(key)) << key;
    }

    desk outer;
    formulieren forms{outer};
    mama screen{outer, forms};
};

TEST_F(keypad, every_key_of_the_keyboard_presses_the_key_of_that_face) {
    EXPECT_EQ(screen.display.caption, "0,");
    type("1234567890");
    EXPECT_EQ(screen.display.caption, "1234567890,");
    type("\x1b"
         "12.5*4\r");
    EXPECT_EQ(screen.display.caption, "50,");
    type("-0,5=");
    EXPECT_EQ(screen.display.caption, "49,5");
    type("M\x1b"
         "200+10%=");
    EXPECT_EQ(screen.display.caption, "220,");
    type("/8=:5=");
    EXPECT_EQ(screen.display.caption, "5,5");
    type("XR=");
    EXPECT_EQ(screen.display.caption, "272,25"); // 5,5 x 49,5
    type("\x7fR");
    EXPECT_EQ(screen.display.caption, "0,");
}

TEST_F(keypad, what_goes_wrong_is_told_in_a_box_titled_with_the_course_set) {
    type("12345678901");
    EXPECT_EQ(outer.asked, "SOMMENWERF: te veel cijfers");
    type("\x1b"
         "7/0=");
    EXPECT_EQ(outer.asked, "SOMMENWERF: delen door nul kan niet!");
    EXPECT_EQ(screen.display.caption, "7,");
}

TEST_F(keypad, what_was_worked_out_outlives_the_exercise) {
    type("5M\x1b");
    screen.presentatielijst.items = {"een titel"};
    screen.presentatielijst.selected = 0;
    screen.presentatielijst_click();
    screen.unload();
    screen.show();
    screen.k_click(18);
    EXPECT_EQ(screen.display.caption, "5,");
}

TEST_F(keypad, a_digit_typed_beside_an_exercise_does_not_answer_it) {
    forms.globalen.gekozen_pakket = booklet_set;
    forms.globalen.gekozen_onderdeel = "boekje12";
    screen.unload();
    screen.show();
    const auto& titles = screen.presentatielijst.items;
    screen.presentatielijst.selected = static_cast<int>(std::ranges::find(titles, "controle") - titles.begin());
    screen.presentatielijst_click();
    if (screen.antwoord_1 == " ") GTEST_SKIP() << "the exercise is not written yet";
    type("1234");
    EXPECT_EQ(screen.display.caption, "1234,");
    EXPECT_EQ(screen.pogingen, 0);
    type("A");
    EXPECT_EQ(screen.pogingen, 1);

    screen.unload();
    screen.show();
    EXPECT_EQ(screen.knop[2].keys, "B2"); // without a calculator digits answer
}

} // namespace
} // namespace cijferwerf
