// Numbers in words, and the words that stand for a name.
#include "generators/gedeeld/persoon.h"
#include "generators/gedeeld/telwoord.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

std::string listed(const std::vector<int>& numbers, auto word_for) {
    std::string all;
    for (const int n : numbers) all += (all.empty() ? "" : ", ") + word_for(n);
    return all;
}

TEST(number_words, are_spelled_in_two_ways) {
    const auto plain = [](int n) { return telwoord(n); };
    EXPECT_EQ(listed({0, 1, 8, 12, 14, 18, 20, 84, 100, 117, 250}, plain),
              "nul, één, acht, twaalf, veertien, achttien, twintig, vierentachtig, honderd, honderdzeventien, "
              "tweehonderdvijftig");
    EXPECT_EQ(listed({1'000, 1'001, 2'060, 1'000'000, 3'405'612}, plain),
              "duizend, duizend één, tweeduizend zestig, één miljoen, drie miljoen vierhonderdvijfduizend "
              "zeshonderdtwaalf");
    const std::vector<int> tied{21, 32, 43, 75, 101, 9'196, 121'000, 22'000'000};
    EXPECT_EQ(listed(tied, plain),
              "eenentwintig, tweeëndertig, drieënveertig, vijfenzeventig, honderdeen, negenduizend "
              "honderdzesennegentig, honderdeenentwintigduizend, tweeëntwintig miljoen");
    EXPECT_EQ(listed(tied, [](int n) { return telwoord(n, spelling::schools); }),
              "éénentwintig, tweeendertig, drieenveertig, vijfenzeventig, honderdéén, negenduizend "
              "honderdzesennegentig, honderdéénentwintigduizend, tweeentwintig miljoen");
    EXPECT_EQ(listed({1, 7, 22}, Telwoord), "Eén, Zeven, Tweeëntwintig");
    EXPECT_EQ(telwoord_in_groepen(3'001'200), (std::vector<std::string>{"drie miljoen", "duizend", "tweehonderd"}));
}

TEST(number_words, are_ranked) {
    EXPECT_EQ(listed({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 18}, rangtelwoord),
              "eerste, tweede, derde, vierde, vijfde, zesde, zevende, achtste, negende, tiende, elfde, dertiende, "
              "achttiende");
    EXPECT_EQ(listed({20, 21, 28, 100, 101, 208, 303, 412}, rangtelwoord),
              "twintigste, eenentwintigste, achtentwintigste, honderdste, honderdeerste, tweehonderdachtste, "
              "driehonderdderde, vierhonderdtwaalfde");
}

TEST(persons, are_referred_to_by_one_gender) {
    const auto words = [](persoon p) { return std::array{p.hij(), p.Hij(), p.ze(), p.hem(), p.zijn()}; };
    EXPECT_EQ(words({"Henk-Jan", man}), (std::array<std::string_view, 5>{"hij", "Hij", "hij", "hem", "zijn"}));
    EXPECT_EQ(words({"Marsha", vrouw}), (std::array<std::string_view, 5>{"zij", "Zij", "ze", "haar", "haar"}));
}

} // namespace
} // namespace cijferwerf
