#include "forms/practice/explanation.h"

#include "tests/support/operation_text.h"

#include <array>
#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

// A malformed number reads as 0, and what it does not know draws nothing.
TEST(explanation, draws_each_command_as_it_says) {
    const std::pair<std::string, std::vector<std::string>> rows[]{
        {"PRINT_2000_850_15_8.25_r =", {R"(text 2000,850 colour 15 size 8 "r =")"}},
        {"PRINT_2620_600_12_9.75_a_b ", {R"(text 2620,600 colour 12 size 10 "a_b ")"}},
        {"PRINT_0_0_0_8.5_x", {R"(text 0,0 colour 0 size 8 "x")"}},
        {"PRINT_x_", {R"(text 0,0 colour 0 size 1 "")"}},
        {"PRINT_99999999999_-99999999999_-1_1e9_x", {R"(text 1000000,-1000000 colour 15 size 1 "x")"}},
        {"LINE_2660_120_220_1780_15_B_0", {"box 2660,120 220x1780 colour 15 width 1 style 0"}},
        {"LINE_1420_1670_300_-500_1_B_1", {"box 1420,1170 300x500 colour 1 width 1 style 1"}},
        {"LINE_3000_0_2380_2130_1_BF_1", {"filled box 3000,0 2380x2130 colour 1 width 1 style 1"}},
        {"LINE_a_7b_30_40_99_B_9", {"box 0,7 30x40 colour 3 width 1 style 6"}},
        {"PARTJES_1500_1000_4_",
         {"line 1500,1000 to 1500,1770 colour 14 width 3 style 0",
          "line 1500,1000 to 730,1000 colour 14 width 3 style 0",
          "line 1500,1000 to 1500,230 colour 14 width 3 style 0",
          "line 1500,1000 to 2270,1000 colour 14 width 3 style 0"}},
        {"PARTJES_1500_1000_-3_", {}},
        {"DOORSTREPEN_2050_1350_2120_1050_12",
         {"filled box 2050,1350 300x1 colour 12 width 1 style 0", R"(text 2120,1050 colour 12 size 8.25 "12")"}},
        {"BREUK1_700_1400_0_3_4",
         {R"(text 1000,1250 colour 15 size 8.25 " 3")", R"(text 1000,1580 colour 15 size 8.25 " 4")"}},
        {"BREUK1_700_1400_12_13_100",
         {R"(text 620,1350 colour 15 size 12 " 12")", R"(text 940,1250 colour 15 size 8.25 " 13")",
          R"(text 880,1580 colour 15 size 8.25 " 100")"}},
        {"TELLERSNOEMERS_1_2_1250_1_2_0.0625_1_300_-1234567_1_2_1" + std::string(400, '0'),
         {R"(text 1,2 colour 0 size 8 "1250")", R"(text 1,2 colour 0 size 8 "0,0625")",
          R"(text 1,300 colour 0 size 8 "-1000000")", R"(text 1,2 colour 0 size 8 "1000000")"}},
        {"print_1_1_1_8_x", {}}};
    for (const auto& [opdracht, expected] : rows) {
        drawing board;
        teken_opdracht(board, opdracht);
        EXPECT_EQ(as_texts(board), expected) << opdracht;
    }
}

TEST(explanation, what_one_command_sets_stays_in_force_for_the_next_up_to_a_single_blank) {
    drawing board;
    const std::array<plakregel, 7> opdrachten{
        "PRINT_0_0_12_14_", "LINE_0_0_5_5_1_X_2", "PARTJES_0_0_1_", "", "TELLERSNOEMERS_1_1_1", " ", "PRINT_0_0_1_8_a"};
    teken_opdrachten(board, opdrachten);
    EXPECT_EQ(as_texts(board)[1], "line 0,0 to 770,0 colour 14 width 3 style 2");
    EXPECT_EQ(as_texts(board)[2], "text 1,1 colour 12 size 14 \"1\"");
    EXPECT_EQ(as_texts(board).size(), 6U);
}

} // namespace
} // namespace cijferwerf
