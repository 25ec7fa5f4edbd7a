// What the kit writes and reckons, as tables: a call beside what it makes.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/klokzin.h"
#include "generators/gedeeld/maten.h"
#include "generators/gedeeld/munten.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/telwoord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace cijferwerf {
namespace {

std::string listed(const std::vector<int>& numbers, auto word_for) {
    std::string all;
    for (const int n : numbers) all += regel(all.empty() ? "" : ", ", word_for(n));
    return all;
}
std::string plain(int n) { return telwoord(n); }
std::string as_schools(int n) { return telwoord(n, spelling::schools); }
std::string told(kloktijd time) {
    return regel(time.tekst(), ", ", time.op_wijzerplaat().cijfers(), " ", time.dagdeel());
}
std::string days_after(datum from, std::vector<int> days) {
    return listed(days, [=](int n) { return (from + n).tekst(); });
}
std::string converted(kommagetal number, const eenheid& from, const eenheid& to) {
    return regel(komma_kort(omgerekend(number, from, to)), " ", to.teken, ", ", factor_tekst(macht_tussen(from, to)));
}

TEST(kit, writes) {
    const std::pair<std::string, std::string_view> rows[]{
        {listed({0, 1, 8, 12, 14, 18, 20, 84, 100, 117, 250}, plain),
         "nul, één, acht, twaalf, veertien, achttien, twintig, vierentachtig, honderd, honderdzeventien, "
         "tweehonderdvijftig"},
        {listed({1'000, 1'001, 2'060, 1'000'000, 3'405'612}, plain),
         "duizend, duizend één, tweeduizend zestig, één miljoen, drie miljoen vierhonderdvijfduizend zeshonderdtwaalf"},
        {listed({21, 32, 43, 75, 101, 9'196, 121'000, 22'000'000}, plain),
         "eenentwintig, tweeëndertig, drieënveertig, vijfenzeventig, honderdeen, negenduizend honderdzesennegentig, "
         "honderdeenentwintigduizend, tweeëntwintig miljoen"},
        {listed({21, 32, 101, 121'000}, as_schools),
         "éénentwintig, tweeendertig, honderdéén, honderdéénentwintigduizend"},
        {listed({1, 7, 22}, Telwoord), "Eén, Zeven, Tweeëntwintig"},
        {listed({1, 2, 3, 4, 7, 8, 9, 11, 13, 18}, rangtelwoord),
         "eerste, tweede, derde, vierde, zevende, achtste, negende, elfde, dertiende, achttiende"},
        {listed({20, 28, 100, 101, 208, 303, 412}, rangtelwoord),
         "twintigste, achtentwintigste, honderdste, honderdeerste, tweehonderdachtste, driehonderdderde, "
         "vierhonderdtwaalfde"},

        {told(om(0, 10)), "0:10 uur, 12:10 's nachts"},
        {told(om(5, 59)), "5:59 uur, 5:59 's nachts"},
        {told(om(6)), "6:00 uur, 6:00 's morgens"},
        {told(om(12)), "12:00 uur, 12:00 's middags"},
        {told(om(18, 30)), "18:30 uur, 6:30 's avonds"},
        {told(om(19, 45) + 75), "21:00 uur, 9:00 's avonds"},
        {told(om(23, 50) + 25), "0:15 uur, 12:15 's nachts"},
        {told(om(0, 15) - 25), "23:50 uur, 11:50 's avonds"},
        {days_after({3, 3}, {0, 28, 29}), "3 maart, 31 maart, 1 april"},
        {days_after({20, 2}, {8, 9, 14}), "28 februari, 1 maart, 6 maart"},
        {days_after({25, 12}, {6, 14, 365}), "31 december, 8 januari, 25 december"},

        {converted({25, 1}, maat("m"), maat("cm")), " 250 cm, 100 keer zo groot"},
        {converted({7}, maat("mm"), maat("km")), " 0,000007 km, 1.000.000 keer zo klein"},
        {converted({3}, maat("ha"), maat("m²")), " 30.000 m², 10.000 keer zo groot"},
        {converted({250}, maat("are"), maat("hm²")), " 2,5 hm², 100 keer zo klein"},
        {converted({80}, maat("dm³"), maat("liter")), " 80 liter, 1 keer zo groot"},
        {converted({5}, maat("cm³"), maat("dL")), " 0,05 dL, 100 keer zo klein"},

        {listed({0, 1, 2, 5, 6, -1, -2, -3}, [](int n) { return regel(kaal(deel_afgerond(n, 4))); }),
         "0, 0, 1, 1, 2, 0, 0, -1"},

        {geldstuk(1, 3), "munten van 1 eurocent"},
        {geldstuk(200), "munt van € 2,-"},
        {geldstuk(500), "briefje van € 5,-"},
        {geldstuk(2'000, 2), "briefjes van € 20,-"},

        {druk_opdracht(2620, 600, rood, 9.25, "H"), "PRINT_2620_600_12_9.25_H"},
        {druk_opdracht(350, 880, wit, 16, 25, " % = ", 1, " _"), "PRINT_350_880_15_16_ 25 % = 1 _"},
        {druk_midden_opdracht(1000, 850, wit, 20, 12), "PRINT_800_850_15_20_12"}, // 400 wide
        {druk_rechts_opdracht(1000, 850, wit, 20, 12), "PRINT_600_850_15_20_12"},
        {druk_opdracht(500, geel, 12, {{300, "11"}, {900, " 222"}, {910, "dichtbij"}}),
         "PRINT_300_500_14_12_11      222 dichtbij"},
        {vak_opdracht(1300, 1540, 1620, 20, geel), "LINE_1300_1540_1620_20_14_BF_0"},
        {vak_opdracht(1420, 1670, 300, -450, donkerblauw, line_style::dash), "LINE_1420_1670_300_-450_1_BF_1"},
        {kader_opdracht(2660, 120, 220, 1780, wit), "LINE_2660_120_220_1780_15_B_0"},
        {streep_opdracht(2160, 1155, 710, 0, wit, line_style::dot), "LINE_2160_1155_710_0_15_B_2"},
        {breuk_opdracht(700, 1400, 2, breuk{3, 4}), "BREUK1_700_1400_2_3_4"},
        {partjes_opdracht(3900, 1000, 5), "PARTJES_3900_1000_5_"},
        {doorstreep_opdracht(2050, 1350, 2060, 1050, 9), "DOORSTREPEN_2050_1350_2060_1050_9"},
    };
    for (const auto& [made, expected] : rows) EXPECT_EQ(made, expected);
}

TEST(kit, says_every_five_minutes_of_the_dial) {
    const std::vector<std::string> hours{"twaalf", "één",  "twee",  "drie", "vier", "vijf",  "zes",
                                         "zeven",  "acht", "negen", "tien", "elf",  "twaalf"};
    const std::array said{"uur",  "vijf over",      "tien over",      "kwart over", "tien voor half", "vijf voor half",
                          "half", "vijf over half", "tien over half", "kwart voor", "tien voor",      "vijf voor"};
    for (std::size_t five = 0; five < 288; ++five) {
        const std::size_t hour = five / 12 % 12, part = five % 12;
        EXPECT_EQ(klokzin({static_cast<int>(five) * 5}),
                  part == 0 ? hours[hour] + " uur" : said[part] + (" " + hours[hour + (part > 3)]));
    }
}

TEST(kit, knows_ladders_of_equal_steps) {
    const auto signs = [](std::span<const eenheid> ladder, int step) {
        std::string read;
        for (const eenheid& e : ladder) {
            EXPECT_EQ(macht_tussen(e, ladder.back()), step * (&ladder.back() - &e)) << e.teken;
            read.append(e.teken).append(" ");
        }
        return read;
    };
    EXPECT_EQ(signs(lengtematen, 1), "km hm dam m dm cm mm ");
    EXPECT_EQ(signs(oppervlaktematen, 2) + signs(landmaten, 2), "km² hm² dam² m² dm² cm² mm² ha are ");
    EXPECT_EQ(signs(gewichtsmaten, 1), "kg hg dag g dg cg mg ");
    EXPECT_EQ(signs(inhoudsmaten, 1) + signs(kubieke_maten, 3), "kL hL daL liter dL cL mL m³ dm³ cm³ mm³ ");
}

TEST(kit, pays_every_amount_that_can_be_paid_with_the_fewest_coins) {
    const std::vector<std::vector<stapel>> sets{{{50, 1}, {20, 3}, {1, 12}}, // 60 is 3 x 20, not 50 and 10 x 1
                                                {{200, 2}, {100, 1}, {50, 3}, {20, 2}, {10, 3}, {5, 1}, {2, 4}, {1, 1}},
                                                {{1'000, 2}, {500, 1}, {200, 4}, {5, 6}}};
    for (const auto& money : sets) {
        std::map<int, int> fewest{{0, 0}}; // pieces by amount
        for (const auto [cents, count] : money)
            for (const auto& [amount, pieces] : std::map(fewest))
                for (int n = 1; n <= count; ++n) {
                    int& best = fewest.try_emplace(amount + n * cents, pieces + n).first->second;
                    best = std::min(best, pieces + n);
                }
        const bedragen possible = gepast_te_betalen(money);
        for (int amount = 0; amount <= fewest.rbegin()->first + 5; ++amount) {
            const auto wanted = fewest.find(amount);
            ASSERT_EQ(possible.test(static_cast<std::size_t>(amount)), wanted != fewest.end()) << amount;
            int paid = 0, pieces = 0;
            for (const auto [cents, count] : betaling(money, amount)) {
                EXPECT_LE(count, std::ranges::find(money, cents, &stapel::cent)->aantal);
                paid += cents * count;
                pieces += count;
            }
            EXPECT_TRUE(wanted == fewest.end() ? pieces == 0 : paid == amount && pieces == wanted->second) << amount;
        }
    }
}

} // namespace
} // namespace cijferwerf
