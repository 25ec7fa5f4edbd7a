// The commands of an explanation, and the names of powers.
#include "generators/gedeeld/machtnaam.h"
#include "generators/gedeeld/opdracht.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

TEST(commands, are_written_as_they_are_read) {
    const std::pair<std::string, std::string_view> rows[]{
        {druk_opdracht(2620, 600, rood, 9.25, "H"), "PRINT_2620_600_12_9.25_H"},
        {druk_opdracht(350, 880, wit, 16, 25, " % = ", 1, " _"), "PRINT_350_880_15_16_ 25 % = 1 _"},
        {druk_midden_opdracht(1000, 850, wit, 20, 12), "PRINT_800_850_15_20_12"}, // 400 wide
        {druk_rechts_opdracht(1000, 850, wit, 20, 12), "PRINT_600_850_15_20_12"},
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

TEST(commands, join_texts_of_one_line_by_blanks_as_near_to_their_places_as_blanks_allow) {
    const std::vector<stuk_tekst> wanted{{300, "11"}, {900, " 222"}, {910, "te dicht op"}, {3200, "3"}};
    for (const double points : {8.25, 12.0}) {
        const double drawn = std::nearbyint(points);
        const std::string made = druk_opdracht(500, geel, points, {wanted[0], wanted[1], wanted[2], wanted[3]});
        const std::string start = regel("PRINT_300_500_14_", kaal(punt(afgerond(points, 2), 2)), "_");
        ASSERT_EQ(made.substr(0, start.size()), start);
        const std::string line = made.substr(start.size());
        for (const auto& [x, text] : wanted) {
            const int place = 300 + text_width(line.substr(0, line.find(kaal(text))), drawn);
            EXPECT_TRUE(x == 910 || std::abs(place - x) <= text_width(" ", drawn) / 2 + 2) << text;
        }
        EXPECT_NE(line.find("222 te dicht op "), line.npos);
    }
}

TEST(powers, have_a_name) {
    EXPECT_EQ(regel(machtnaam(2), ", ", machtnaam_voluit(2)), "in het kwadraat, in het kwadraat");
    EXPECT_EQ(regel(machtnaam(3), ", ", machtnaam_voluit(3)), "tot de derde, tot de derde macht");
    EXPECT_EQ(regel(machtnaam(8), ", ", machtnaam_voluit(9)), "tot de achtste, tot de negende macht");
    for (const int exponent : {1, 10}) EXPECT_THROW(machtnaam(exponent), checked_error);
}

} // namespace
} // namespace cijferwerf
