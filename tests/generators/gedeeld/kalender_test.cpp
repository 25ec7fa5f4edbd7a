// Clock times and dates.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/kloktijd.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

TEST(clock, times_are_written_with_the_part_of_the_day) {
    struct row {
        kloktijd time;
        std::string_view text, on_a_dial, part;
    };
    for (const auto& [time, text, on_a_dial, part] : {row{om(9, 5), "9:05 uur", "9:05", "'s morgens"},
                                                      {om(0, 10), "0:10 uur", "12:10", "'s nachts"},
                                                      {om(5, 59), "5:59 uur", "5:59", "'s nachts"},
                                                      {om(6), "6:00 uur", "6:00", "'s morgens"},
                                                      {om(11, 59), "11:59 uur", "11:59", "'s morgens"},
                                                      {om(12), "12:00 uur", "12:00", "'s middags"},
                                                      {om(17, 59), "17:59 uur", "5:59", "'s middags"},
                                                      {om(18, 30), "18:30 uur", "6:30", "'s avonds"},
                                                      {om(19, 45) + 75, "21:00 uur", "9:00", "'s avonds"},
                                                      {om(23, 50) + 25, "0:15 uur", "12:15", "'s nachts"},
                                                      {om(0, 15) - 25, "23:50 uur", "11:50", "'s avonds"}}) {
        EXPECT_EQ(time.tekst(), text);
        EXPECT_EQ(time.op_wijzerplaat().cijfers(), on_a_dial);
        EXPECT_EQ(time.dagdeel(), part) << text;
    }
    EXPECT_EQ(om(17, 5) - om(14, 40), 145);
    EXPECT_GE(om(23, 50) + 25, middernacht) << "an exercise sees that the day ended";
}

TEST(calendar, days_are_counted_over_the_ends_of_months) {
    struct row {
        datum from;
        int days;
        std::string_view to;
    };
    for (const auto& [from, days, to] : {row{{3, 3}, 0, "3 maart"},
                                         {{3, 3}, 28, "31 maart"},
                                         {{3, 3}, 29, "1 april"},
                                         {{20, 2}, 14, "6 maart"},
                                         {{31, 10}, 30, "30 november"},
                                         {{31, 10}, 31, "1 december"},
                                         {{25, 12}, 14, "8 januari"},
                                         {{1, 1}, 364, "31 december"},
                                         {{17, 6}, 365, "17 juni"}})
        EXPECT_EQ((from + days).tekst(), to);
    std::string months, days;
    for (const maand& m : maanden) months += regel(m.kort, kaal(m.dagen), " ");
    EXPECT_EQ(months, "ja31 fe28 ma31 ap30 me31 ju30 ju31 au31 se30 ok31 no30 de31 ");
    for (const std::string_view day : weekdagen) days += day.substr(0, 2);
    EXPECT_EQ(days, "zomadiwodovrza");
}

} // namespace
} // namespace cijferwerf
