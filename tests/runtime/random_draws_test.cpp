#include "runtime/random_draws.h"

#include <array>
#include <gtest/gtest.h>
#include <set>

namespace cijferwerf {
namespace {

random_draws with_clock_at(float seconds) {
    return random_draws([seconds] { return seconds; });
}

int bits(random_draws& draws) { return static_cast<int>(draws.fraction() * 0x1p24F); }

// The figures were worked out by a program in another language, from the published generator.
TEST(random_draws, gives_the_same_draws_on_every_platform) {
    random_draws draws = with_clock_at(36'000);
    draws.restart(1);
    for (const int expected : {2'162'096, 10'598'705, 5'987'367}) EXPECT_EQ(bits(draws), expected);
    draws.seed();
    for (const int expected : {10'991'053, 5'955'263}) EXPECT_EQ(bits(draws), expected);
    draws.seed();
    for (const int expected : {730'457, 11'665'675}) EXPECT_EQ(bits(draws), expected);
    draws.restart(1);
    EXPECT_EQ(bits(draws), 2'162'096);
}

TEST(random_draws, every_tenth_comes_equally_often_also_when_each_draw_is_seeded) {
    for (const bool seeded : {false, true}) {
        random_draws draws = with_clock_at(43'210.5F);
        draws.restart(7);
        std::array<int, 10> counts{};
        std::set<float> seen; // within one tick of the clock
        for (int i = 0; i < 100'000; ++i) {
            if (seeded) draws.seed();
            if (i < 1000) seen.insert(draws.fraction());
            ++counts.at(static_cast<std::size_t>(draws.below(10)));
        }
        for (const int count : counts) EXPECT_NEAR(count, 10'000, 400);
        EXPECT_GT(seen.size(), 995U) << "seeding again repeats something";
    }
}

TEST(random_draws, put_in_fractions_come_first_and_in_order) {
    constexpr float largest = 1 - 0x1p-24F;
    random_draws draws = with_clock_at(0);
    draws.put_in({0, 0.5F, 0.5F + 0x1p-24F, largest});
    draws.seed();
    EXPECT_EQ(draws.fraction(), 0);
    EXPECT_FALSE(draws.coin());
    EXPECT_TRUE(draws.coin());
    EXPECT_EQ(draws.below(320), 319);
    draws.put_in({largest});
    EXPECT_EQ(draws.below(16'777'216), 16'777'215) << "a whole number never reaches its bound";
}

} // namespace
} // namespace cijferwerf
