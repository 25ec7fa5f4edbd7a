#include "runtime/random_draws.h"

#include <gtest/gtest.h>
#include <set>

namespace cijferwerf {
namespace {

int bits(random_draws& draws) { return static_cast<int>(draws.fraction() * 0x1p24F); }

// The figures were worked out by a program in another language, from the published generator.
TEST(random_draws, gives_the_same_draws_on_every_platform) {
    random_draws draws([] { return 36'000.0F; });
    draws.restart(1);
    for (const int expected : {2'162'096, 10'598'705, 5'987'367}) EXPECT_EQ(bits(draws), expected);
    draws.seed();
    for (const int expected : {10'991'053, 5'955'263}) EXPECT_EQ(bits(draws), expected);
    draws.seed();
    for (const int expected : {730'457, 11'665'675}) EXPECT_EQ(bits(draws), expected);
    draws.restart(1);
    EXPECT_EQ(bits(draws), 2'162'096);
    std::set<int> seen;
    for (int i = 0; i < 1000; ++i) draws.seed(), seen.insert(bits(draws));
    EXPECT_GT(seen.size(), 995U) << "seeding again within one tick of the clock repeats something";
}

TEST(random_draws, put_in_fractions_come_first_and_in_order) {
    constexpr float largest = 1 - 0x1p-24F;
    random_draws draws([] { return 0.0F; });
    draws.put_in({0, 0.5F, 0.5F + 0x1p-24F, largest, largest});
    draws.seed();
    EXPECT_EQ(draws.fraction(), 0);
    EXPECT_FALSE(draws.coin());
    EXPECT_TRUE(draws.coin());
    EXPECT_EQ(draws.below(320), 319);
    EXPECT_EQ(draws.below(16'777'216), 16'777'215) << "a whole number never reaches its bound";
}

} // namespace
} // namespace cijferwerf
