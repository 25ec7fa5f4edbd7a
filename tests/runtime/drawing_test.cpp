// Drawings: what their commands leave on them, how wide their texts are, how they are read aloud, and as SVG.
#include "runtime/drawn.h"
#include "runtime/picture_reading.h"
#include "runtime/svg.h"

#include "tests/support/operation_text.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

TEST(text_width, is_that_of_the_columns_counted_in_blanks_and_of_plain_letters_and_a_broken_one_breaks_nothing) {
    EXPECT_EQ(text_width("            =", 12), 846);
    EXPECT_EQ(text_width("             =", 12), 906);
    EXPECT_EQ(text_width("            =", 12, 1.0), 940);
    EXPECT_EQ(text_width("één", 10), text_width("een", 10));
    EXPECT_EQ(text_width("€", 10), text_width("0", 10));
    for (const char* broken : {"\xC3", "\xFF\xE2\x82"}) EXPECT_GT(text_width(broken, 10), 0);
    EXPECT_EQ(text_width("", 10), 0);
}

TEST(picture_box,
     printing_goes_on_where_the_last_text_ended_a_box_upward_covers_the_same_ground_and_a_reset_leaves_nothing) {
    drawing board;
    board.text_size = 12;
    board.print_at(100, 200, "123");
    EXPECT_EQ(board.x(), 100 + 360); // three digits of 1139/2048 em at 12 points and 90 %
    board.fore_colour = rood;
    board.print("4");
    board.print_centred(1000, 300, "123");
    board.print_right(1000, 400, "123");
    board.filled_box(1000, 1670, 300, -500, blauw);
    board.style = line_style::dot;
    board.line_width = 3;
    board.box(1300, 1170, -300, 500, blauw);
    EXPECT_EQ(as_texts(board), (std::vector<std::string>{
                                   R"(text 100,200 colour 0 size 12 "123")", R"(text 460,200 colour 12 size 12 "4")",
                                   R"(text 820,300 colour 12 size 12 "123")", R"(text 640,400 colour 12 size 12 "123")",
                                   "filled box 1000,1170 300x500 colour 9 width 1 style 0",
                                   "box 1000,1170 300x500 colour 9 width 3 style 2"}));
    board.ground = zwart;
    board.clear();
    EXPECT_TRUE(board.operations().empty() && board.ground == zwart);
    board.reset();
    board.print("y");
    board.line(0, 0, 1, 1, zwart);
    EXPECT_EQ(board.ground, wit);
    EXPECT_EQ(as_texts(board), (std::vector<std::string>{R"(text 0,0 colour 0 size 8 "y")",
                                                         "line 0,0 to 1,1 colour 0 width 1 style 0"}));
}

TEST(picture_reading, goes_row_by_row_keeps_numbers_apart_and_says_a_sentence_for_the_texts_it_stands_for) {
    const auto board = [](const std::vector<std::tuple<int, int, const char*>>& texts) {
        drawing shown;
        shown.text_size = 12;
        for (const auto& [x, y, text] : texts) shown.print_at(x, y, text);
        return shown;
    };
    EXPECT_EQ(read_picture(board({{3000, 600, "rechts"},
                                  {200, 630, "  links    van"},
                                  {900, 1500, "3"},
                                  {900, 1200, "12"},
                                  {900, 100, "boven"}})),
              "boven links van rechts 12; 3");
    drawing shown = board({{200, 1500, "onder"}, {200, 1000, "6"}, {200, 500, "12"}, {200, 100, "boven"}});
    shown.circle(400, 400, 100, zwart);
    shown.spoken = {{1, 3, "Een klok."}, {4, 5, "Een tekening."}};
    EXPECT_EQ(read_picture(shown), "Een tekening. boven Een klok. onder");
    shown.reset();
    EXPECT_EQ(read_picture(shown), "");
}

TEST(drawn_colours, of_boards_are_dark_enough_to_read_and_what_is_wiped_out_is_gone) {
    drawing shown;
    for (const kleur ground : {zwart, donkerblauw, groen, cyaan}) {
        shown.ground = ground;
        for (const kleur text : {geel, wit})
            EXPECT_GE(contrast(colour_on(shown, ground), text_colour_on(shown, text)), 5.9);
        const kleur warning = ground <= donkerblauw ? rood : geel;
        EXPECT_GE(contrast(colour_on(shown, ground), text_colour_on(shown, warning)), 5.5);
        EXPECT_EQ(text_colour_on(shown, ground), colour_on(shown, ground));
    }
    EXPECT_EQ(colour_on(shown, groen), 0x008000U) << "a shape keeps its colour";
}

TEST(svg, of_a_drawing_has_every_operation_in_its_colour_and_place) {
    drawing shown;
    shown.ground = groen;
    shown.picture("tuin & pad.bmp");
    shown.line_width = 2;
    shown.line(10, 20, 30, 40, rood);
    shown.filled_box(100, 200, -50, 60, geel);
    shown.circle(300, 400, 50, wit);
    shown.sector(1000, 1000, 300, 0, 90, blauw, true);
    shown.polygon({{1, 2}, {3, 4}, {5, 6}}, zwart, false);
    shown.line_width = 1;
    shown.style = line_style::dot;
    shown.line(0, 0, 0, 90, wit);
    shown.text_size = 10;
    shown.print_at(500, 600, "5 < 6");
    const std::string svg = svg_of(shown);
    for (const char* part :
         {R"(width="358" height="142" viewBox="0 0 5380 2130")", R"(fill="#006C00")", R"(href="tuin &amp; pad.bmp")",
          R"(x1="10" y1="20" x2="30" y2="40" fill="none" stroke="#FF0000" stroke-width="30"/>)",
          R"(x="50" y="200" width="50" height="60" fill="#FFFF00"/>)",
          R"(cx="300" cy="400" rx="50" ry="50" fill="none")",
          R"(<path d="M1000 1000L1300 1000A300 300 0 0 0 1000 700Z" fill="#0000FF"/>)",
          R"(points="1,2 3,4 5,6" fill="none")", R"(stroke-width="15" stroke-dasharray="15 30")",
          R"x(translate(500 600) scale(0.9 1)"><text x="0" y="181" font-size="200" fill="#000000">5 &lt; 6<)x"})
        EXPECT_NE(svg.find(part), svg.npos) << part << " in\n" << svg;
}

} // namespace
} // namespace cijferwerf
