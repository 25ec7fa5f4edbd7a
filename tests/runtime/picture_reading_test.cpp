#include "runtime/picture_reading.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

TEST(picture_reading, goes_row_by_row_and_keeps_numbers_apart) {
    drawing shown;
    shown.text_size = 12;
    shown.print_at(3000, 600, "rechts");
    shown.print_at(200, 630, "  links    van");
    shown.print_at(900, 1500, "3");
    shown.print_at(900, 1200, "12");
    shown.print_at(900, 100, "boven");
    EXPECT_EQ(read_picture(shown), "boven links van rechts 12; 3");
}

TEST(picture_reading, says_a_sentence_in_the_place_of_the_texts_that_it_stands_for) {
    drawing shown;
    shown.text_size = 12;
    shown.print_at(200, 1500, "onder");
    shown.print_at(200, 1000, "6");
    shown.print_at(200, 500, "12");
    shown.print_at(200, 100, "boven");
    shown.circle(400, 400, 100, zwart);
    shown.spoken = {{1, 3, "Een klok."}, {4, 5, "Een tekening."}};
    EXPECT_EQ(read_picture(shown), "Een tekening. boven Een klok. onder");
    shown.reset();
    EXPECT_EQ(read_picture(shown), "");
}

} // namespace
} // namespace cijferwerf
