// Powers and growth: each power is read back from the picture or the question and worked out again.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

row_part around(const formula& right, const std::vector<formula>& steps) {
    std::vector<formula> all;
    for (const formula& step : steps) all.insert(all.end(), {right - step, right + step});
    return wrong("", all);
}
row_part of_a_power(const formula& base, const formula& exponent) {
    return wrong({{"getallen met elkaar vermenigvuldigd.", base * exponent},
                  {"grondtal en de exponent verwisseld.", power(exponent, base)},
                  {"opgeteld? Je moet een macht berekenen, niet optellen.", base + exponent}});
}

const std::string names = "(in het kwadraat|tot de derde macht|tot de vierde macht|tot de vijfde macht|tot de zesde "
                          "macht|tot de zevende macht|tot de achtste macht|tot de negende macht)";
const std::string named = "Er staat # " + names + ". Om",
                  in_words = "| (twee|drie|vier|vijf|zes|zeven|acht|negen|tien) " + names + " is | ........";
const formula base = A + 2; // of a number in words
// How often a factor stands in the product that a text writes out.
int times(const std::string& product) { return static_cast<int>(std::ranges::count(product, 'x')) + 1; }
// Factor and count of a product, of the second too where two are added.
formula product(std::size_t which, bool count) {
    return [=](const reading& n) {
        const std::string sum = n.words[0] + "+ 0";
        const std::string part = which == 0 ? sum.substr(0, sum.find('+')) : sum.substr(sum.find('+') + 2);
        return count ? times(part) : decimal(part);
    };
}
formula in_powers(const formula& a, const formula& k, const formula& b = C, const formula& m = D) {
    return [=](const reading& n) { return n.variant() == 1 ? says("#^#", a, k)(n) : says("#^# + #^#", a, k, b, m)(n); };
}
// No two options are worth the same, as 2^4 and 4^2 would be.
void check_options(const reading& n) {
    std::set<double> values;
    for (const std::string& option : n.exercise.options()) {
        const auto p = find_pattern(option + " + 0^1", "#^# + #^#").value().numbers;
        values.insert(std::pow(p[0], p[1]) + std::pow(p[2], p[3]));
        EXPECT_TRUE(p[1] > 1 && (p[2] == 0 || p[3] > 1)) << option;
    }
    EXPECT_EQ(values.size(), 4U);
}
const formula periods = lifted([](double n) { return std::floor(std::log2(n)) + 1; }, C);
const formula plus_power = A + (B * 2 - 1) * power(C, D), with_last = plus_power + (E * 2 - 1) * F;

// Per cents come first or last; what is put in the wrong order is the two sides, or the per cents and 100.
const formula last = by_variant({0, 1});
formula flowers(const char* pattern, const formula& a, const formula& b) { return says(pattern, a, b, last, C); }
const formula boxes = power(A / B, 3), first_side = B + last * (A - B);
// A wall with its price, a stack of boxes with what is in each.
formula wall(const char* notation, const formula& area) { return says(notation, A, B, area * B); }
formula stack(const char* notation, const formula& count) { return says(notation, B, A, count * A); }
const formula area = A * A, volume = power(B, 3), layer_more = volume + B * B;

formula after(const formula& years) {
    return rounded(lifted([](double a, double b, double c) { return a * std::pow(1 + b / 100, c); }, A, B, years));
}

const exercise_rows powers([] {
    row(B_snel_00_11_click, 3, "| # | 2 | =", range({{4, 7}}), range({{8, 11}}), range({{12, 15}}), right(area),
        around(area, {2, 4, 10}), ticks({5, 7, 9}));
    row(L_berekenen_00_11_click, 2, "| # | # | =", range({{2, 9}, {2, 6}}), range({{2, 10}, {2, 9}}),
        right(power(A, B)), of_a_power(A, B), explains(named, A, B - 2));
    row(L_in_woorden_00_11_click, 2, in_words, counts(B + 2), range({{0, 7}, {0, 4}, {2, 6}}),
        range({{0, 8}, {0, 7}, {2, 9}}), right(power(base, C)), of_a_power(base, C),
        explains("genoemde getal *#) *uitrekenen: # *| ........ | #", base, base, power(base, C)));
    row(L_korter_00_11_click, 2, "de goede kleur. @ | geel",
        counts(product(0, false), product(0, true), product(1, false), product(1, true)), range({{2, 9}, {3, 6}}),
        range({{2, 6}, {2, 5}, {2, 9}, {2, 5}}), right(in_powers(A, B)),
        wrong("niet goed geteld", in_powers(A, B - 2), in_powers(A, B - 1), in_powers(A, B + 1),
              in_powers(A, B, C, D - 1), in_powers(A, B, C, D + 1)),
        wrong("(grondtal en de exponent|grondtallen en de exponenten) verwisseld", in_powers(B, A, D, C)),
        wrong("maar #.", in_powers(A - 1, B), in_powers(A + 1, B)),
        wrong("bij de verkeerde grondtallen gezet.", in_powers(A, D, C, B)), check_options);
    row(L_volgorde_00_11_click, 4, "| # (-|+) # | # | (-|+) # =", counts(plus_power, with_last),
        range({{40, 90, 3}, {1, 1}, {2, 10}, {2, 3}, {0, 0}, {5, 60, 3}, {44, 215, 20}, {31, 206, 30}}),
        range({{7, 185, 15}, {0, 0}, {2, 10}, {2, 3}, {1, 1}, {5, 70, 3}, {3, 60, 3}, {31, 130, 10}}),
        range({{40, 90, 3}, {1, 1}, {2, 10}, {2, 3}, {1, 1}, {5, 60, 3}, {44, 215, 20}, {49, 275, 30}}),
        range({{40, 245, 20}, {0, 0}, {2, 10}, {2, 3}, {0, 0}, {5, 40, 3}, {36, 120, 5}, {31, 80}}), right(with_last),
        around(with_last, {10, 20, 30}), explains("daarvan: #.", power(C, D)), tips("", "van links naar rechts."));
    row(M_bacterie_00_11_click, 2,
        "elke # (minuten|uren) te delen. *meer dan # bacteriën *| $0 {minuten|uur} | 2 bacteriën | $0 {minuten|uur} | ...",
        range({{10, 50}, {0, 0}, {16, 1024}}), range({{3, 9}, {1, 1}, {16, 1024}}), right(periods * A),
        around(periods * A, {A, A * 2, A * 3}),
        explains("Elke # (minuten|uur) *: 1, 2, 4, 8, 16, 32*. Na # keer *#, nog niet meer dan #. Na # keer *#, en "
                 "*meer dan #. Dat",
                 A, B, periods - 1, power(2, periods - 1), C, periods, power(2, periods), C),
        tips("", "dus 2, 4, 8, 16, enzovoorts."));
    row(M_bloembollen_00_11_click, 2,
        "kist van #³ cm is *zijden van # cm. *wordt # % van *| Erna*| Frank*| Willy*| Boris",
        range({{20, 120}, {4, 8}, {4, 24}}), right(flowers("*#^3 : #^3*) (x|: 100 x) #*", A, B)),
        wrong("De macht heb je niet goed", flowers("*#^2 : #^2*) (x|: 100 x) #*", A, B)),
        wrong("De macht is wel goed.", flowers("*#^3 : #^3*) (x|:) #*", first_side, A + B - first_side)),
        wrong("twee dingen fout", flowers("*#^2 : #^2*) (x|:) #*", first_side, A + B - first_side)),
        explains("kist passen # : # = # *dus #³ : #³ = #³ = # *wordt # %: #", A, B, A / B, A, B, A / B, boxes, C,
                 boxes));
    row(M_fabriekshal_00_11_click, 4,
        "van # x $0 m *kosten € #,- per m². *| Hr. Vermaat*| Hr. van Belt*| Mevr. Sloot*| Mevr. Kroos",
        range({{5, 9}, {12, 48}}), range({{10, 14}, {12, 48}}), range({{15, 19}, {12, 48}}),
        range({{20, 24}, {12, 48}}), right(wall("#^2 x € #,- = € #,-", area)),
        wrong("door elkaar gehaald. Het bedrag is wel goed.", wall("2^# x € #,- = € #,-", area)),
        wrong("er is # x 2 gerekend in plaats van $0 x $0.", wall("#^2 x € #,- = € #,-", A * 2)),
        wrong("Reken # x $0 nog eens na.", wall("#^2 x € #,- = € #,-", area + A)),
        wrong("door elkaar gehaald, en ook het bedrag", wall("2^# x € #,- = € #,-", A * 2),
              wall("2^# x € #,- = € #,-", area + A)),
        explains("wand is # x # *dat #²: het grondtal is # en *zijn # x € #,- =", A, A, A, A, area, B));
    row(M_stroopwafels_00_11_click, 3,
        "bevat # stroopwafels. Er liggen # lagen dozen *| (Ineke|Jiska|Jochem)*| {Carel|Tim|Linda}*| "
        "{Jopie|Pieter|Joost}*| {Bep|Ilse|Suzan}",
        range({{8, 40}, {2, 10}, {0, 0}}), range({{8, 40}, {2, 10}, {1, 1}}), range({{8, 40}, {2, 10}, {2, 2}}),
        right(stack("#^3 x # = #", volume)),
        wrong("exponent verwisseld. Het aantal stroopwafels is wel goed.", stack("3^# x # = #", volume)),
        wrong("er is # x 3 gerekend in plaats van $0 x $0 x $0.", stack("#^3 x # = #", B * 3)),
        wrong("een laag dozen te veel", stack("#^3 x # = #", layer_more)),
        wrong("Ook het aantal stroopwafels is niet goed.", stack("3^# x # = #", B * 3),
              stack("3^# x # = #", layer_more)),
        explains("kubus van # lagen is ook # dozen lang en # *dus #³ = # *zitten # stroopwafels: # x #", B, B, B, B, B,
                 A, volume, A));
    row(Z_spaargeld_00_11_click, 4, "zet je € #,- *rente is #% per jaar. * na # jaar? *| geworden: # x € $0",
        range({{100, 700}, {3, 9}, {4, 8}, {1.03, 1.09}}), range({{1000, 7000}, {3, 9}, {4, 8}}),
        range({{100, 700}, {3, 9}, {4, 8}}), range({{1000, 7000}, {3, 9}, {4, 8}}), right(after(C)),
        wrong("elk jaar even veel euro's bijkomen?", A + A * B * C / 100),
        wrong({"jaartje te (weinig|veel) rente", {by_variant({1, 1, 0, 0})}}, after(C + by_variant({1, 1, -1, -1}))),
        wrong("soms een rekenfoutje", after(C) + A * 12 / 100, after(C) - A * 12 / 100),
        explains("bedrag # keer *uiteindelijk # tot de macht # keer *euro's: #, #, #*, #.", B / 100 + 1, D, C, after(1),
                 after(2), after(3), after(C)),
        with_calculator);
});

} // namespace
} // namespace cijferwerf
