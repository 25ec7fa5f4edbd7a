#include "runtime/picture_box.h"

#include "tests/support/operation_text.h"

#include <cmath>
#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

// The explanations of fractions set their signs in columns by runs of blanks; these are the columns.
TEST(picture_box, runs_of_blanks_reach_the_columns_they_were_counted_for) {
    EXPECT_EQ(std::lround(text_width(std::string(12, ' ') + "=", 12)), 846);
    EXPECT_EQ(std::lround(text_width(std::string(13, ' ') + "=", 12)), 906);
    EXPECT_EQ(std::lround(text_width(std::string(12, ' ') + "=", 12, 1.0)), 940);
}

TEST(picture_box, an_accented_letter_is_as_wide_as_the_plain_one_and_a_broken_one_breaks_nothing) {
    EXPECT_EQ(text_width("één", 10), text_width("een", 10));
    EXPECT_EQ(text_width("²", 10), text_width("\xC2\xB2", 10));
    EXPECT_EQ(text_width("€", 10), text_width("0", 10));
    EXPECT_GT(text_width("\xC3", 10), 0);
    EXPECT_GT(text_width("\xFF\xE2\x82", 10), 0);
    EXPECT_EQ(text_width("", 10), 0);
}

TEST(picture_box, printing_goes_on_where_the_last_text_ended) {
    drawing board;
    board.text_size = 12;
    board.print_at(100, 200, "123");
    EXPECT_EQ(board.x, 100 + 360); // three digits of 1139/2048 em at 12 points and 90 %
    board.fore_colour = rood;
    board.print("4");
    board.print_centred(1000, 300, "123");
    board.print_right(1000, 400, "123");
    EXPECT_EQ(as_texts(board), (std::vector<std::string>{
                                   "text 100,200 colour 0 size 12 \"123\"",
                                   "text 460,200 colour 12 size 12 \"4\"",
                                   "text 820,300 colour 12 size 12 \"123\"",
                                   "text 640,400 colour 12 size 12 \"123\"",
                               }));
}

TEST(picture_box, a_box_drawn_to_the_left_or_upward_covers_the_same_ground) {
    drawing board;
    board.filled_box(1000, 1670, 300, -500, blauw);
    board.style = line_style::dot;
    board.line_width = 3;
    board.box(1300, 1170, -300, 500, blauw);
    EXPECT_EQ(as_texts(board), (std::vector<std::string>{
                                   "filled box 1000,1170 300x500 colour 9 width 1 style 0",
                                   "box 1000,1170 300x500 colour 9 width 3 style 2",
                               }));
}

TEST(picture_box, a_reset_leaves_nothing_of_the_exercise_before) {
    drawing board;
    board.ground = zwart;
    board.fore_colour = geel;
    board.text_size = 20;
    board.line_width = 3;
    board.style = line_style::transparent;
    board.print_at(100, 100, "x");

    board.clear();
    EXPECT_TRUE(board.operations().empty());
    EXPECT_EQ(board.ground, zwart);
    board.reset();
    board.print("y");
    board.line(0, 0, 1, 1, zwart);
    EXPECT_EQ(board.ground, wit);
    EXPECT_EQ(as_texts(board),
              (std::vector<std::string>{"text 0,0 colour 0 size 8 \"y\"", "line 0,0 to 1,1 colour 0 width 1 style 0"}));
}

} // namespace
} // namespace cijferwerf
