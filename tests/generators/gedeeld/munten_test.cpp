// What a set of coins and notes can pay, held against every way to take some of it.
#include "generators/gedeeld/munten.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace cijferwerf {
namespace {

// Every amount with the fewest pieces that make it.
std::map<int, int> by_hand(std::span<const stapel> money) {
    std::map<int, int> fewest{{0, 0}};
    for (const auto [cents, count] : money)
        for (const auto& [amount, pieces] : std::map(fewest))
            for (int n = 1; n <= count; ++n) {
                const auto entry = fewest.try_emplace(amount + n * cents, pieces + n).first;
                entry->second = std::min(entry->second, pieces + n);
            }
    return fewest;
}

TEST(coins, every_amount_that_can_be_paid_is_found_and_paid_with_the_fewest_pieces) {
    const std::vector<std::vector<stapel>> sets{{{50, 1}, {20, 3}, {1, 12}}, // 60 is 3 x 20, not 50 and 10 x 1
                                                {{20, 7}, {200, 1}, {50, 5}, {100, 2}},
                                                {{200, 2}, {100, 1}, {50, 3}, {20, 2}, {10, 3}, {5, 1}, {2, 4}, {1, 1}},
                                                {{1'000, 2}, {500, 1}, {200, 4}, {5, 6}}};
    for (const auto& money : sets) {
        const std::map<int, int> fewest = by_hand(money);
        const bedragen possible = gepast_te_betalen(money);
        EXPECT_EQ(possible.count(), fewest.size());
        for (int amount = 0; amount <= fewest.rbegin()->first + 5; ++amount) {
            const bool can = fewest.contains(amount);
            ASSERT_EQ(possible.test(static_cast<std::size_t>(amount)), can) << amount;
            int paid = 0, pieces = 0;
            for (const auto [cents, count] : betaling(money, amount)) {
                EXPECT_LE(count, std::ranges::find(money, cents, &stapel::cent)->aantal);
                paid += cents * count;
                pieces += count;
            }
            ASSERT_EQ(paid, can ? amount : 0);
            ASSERT_EQ(pieces, can ? fewest.at(amount) : 0) << amount;
        }
    }
}

TEST(coins, are_named_with_their_number) {
    EXPECT_EQ(geldstuk(20), "munt van 20 eurocent");
    EXPECT_EQ(geldstuk(1, 3), "munten van 1 eurocent");
    EXPECT_EQ(geldstuk(200), "munt van € 2,-");
    EXPECT_EQ(geldstuk(500), "briefje van € 5,-");
    EXPECT_EQ(geldstuk(2'000, 2), "briefjes van € 20,-");
}

} // namespace
} // namespace cijferwerf
