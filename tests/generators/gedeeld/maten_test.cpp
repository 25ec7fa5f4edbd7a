// Exact decimals, the metric ladders, and circles.
#include "generators/gedeeld/cirkel.h"
#include "generators/gedeeld/maten.h"

#include <gtest/gtest.h>

#include <span>
#include <vector>

namespace cijferwerf {
namespace {

TEST(decimals, quotients_are_rounded_half_up) {
    struct row {
        long long divisor;
        std::vector<long long> numerators, rounded;
    };
    for (const auto& [divisor, numerators, rounded] :
         {row{4, {0, 1, 2, 5, 6, 7}, {0, 0, 1, 1, 2, 2}}, row{3, {1, 2, 4, 5, 6}, {0, 1, 1, 2, 2}},
          row{2, {-1, -3, -4, -5}, {0, -1, -2, -2}}})
        for (std::size_t i = 0; i < rounded.size(); ++i)
            EXPECT_EQ(deel_afgerond(numerators[i], divisor), rounded[i]) << numerators[i] << " : " << divisor;
}

TEST(decimals, are_exact_and_written_in_their_shortest_form_unless_decimals_are_asked) {
    constexpr kommagetal a{125, 1}, b{150, 2}; // 12,5 and 1,50
    EXPECT_EQ(regel(komma_kort(a + b), ";", komma_kort(b - a), ";", komma_kort(a * b), ";", komma_kort(b * 4)),
              " 14;-11; 18,75; 6");
    EXPECT_EQ(regel(komma(a, 2), ";", komma({12'345, 3}, 2), ";", komma({-12'345, 3}, 2)), " 12,50; 12,35;-12,34");
    EXPECT_EQ(b, (kommagetal{15, 1}));
    EXPECT_LT(b, (kommagetal{1'501, 3}));
}

TEST(units, stand_on_ladders_of_equal_steps) {
    struct row {
        std::span<const eenheid> ladder;
        int step;
        std::string_view signs;
    };
    for (const auto& [ladder, step, signs] : {row{lengtematen, 1, "km hm dam m dm cm mm "},
                                              {oppervlaktematen, 2, "km² hm² dam² m² dm² cm² mm² "},
                                              {landmaten, 2, "ha are "},
                                              {gewichtsmaten, 1, "kg hg dag g dg cg mg "},
                                              {inhoudsmaten, 1, "kL hL daL liter dL cL mL "},
                                              {kubieke_maten, 3, "m³ dm³ cm³ mm³ "}}) {
        std::string read;
        for (const eenheid& e : ladder) {
            EXPECT_EQ(macht_tussen(e, ladder.back()), step * (&ladder.back() - &e)) << e.teken;
            read.append(e.teken).append(" ");
        }
        EXPECT_EQ(read, signs);
    }
}

TEST(units, are_converted_exactly) {
    struct row {
        kommagetal number;
        eenheid from, to;
        std::string_view expected;
    };
    for (const auto& [number, from, to, expected] :
         {row{{25, 1}, maat("m"), maat("cm"), " 250 cm, 100 keer zo groot"},
          {{7}, maat("mm"), maat("km"), " 0,000007 km, 1.000.000 keer zo klein"},
          {{3}, maat("ha"), maat("m²"), " 30.000 m², 10.000 keer zo groot"},
          {{250}, maat("are"), maat("hm²"), " 2,5 hm², 100 keer zo klein"},
          {{45, 2}, maat("dag"), maat("g"), " 4,5 g, 10 keer zo groot"},
          {{80}, maat("dm³"), maat("liter"), " 80 liter, 1 keer zo groot"},
          {{5}, maat("cm³"), maat("dL"), " 0,05 dL, 100 keer zo klein"}}) {
        EXPECT_EQ(
            regel(komma_kort(omgerekend(number, from, to)), " ", to.teken, ", ", factor_tekst(macht_tussen(from, to))),
            expected);
        EXPECT_EQ(number * factor(from, to), omgerekend(number, from, to)) << expected;
    }
    EXPECT_THROW(factor(maat("m"), maat("g")), checked_error);
}

TEST(circles, are_exact_with_3_14_for_pi) {
    EXPECT_EQ(regel(komma(cirkelomtrek({10}), 2), komma(cirkeloppervlakte({10}), 2)), " 62,80 314,00");
    EXPECT_EQ(cirkeloppervlakte({2}), cirkelomtrek({2})) << "both are 12,56";
    EXPECT_EQ(regel(komma_kort(cirkelomtrek({29, 2}))), " 1,8212") << "a bicycle wheel, in m";
    EXPECT_EQ(regel(komma(cirkeloppervlakte({35, 1}) * 3, 2)), " 115,40") << "115,395: rounded once, at the end";
}

} // namespace
} // namespace cijferwerf
