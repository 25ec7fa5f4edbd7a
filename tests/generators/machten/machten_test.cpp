// Powers and growth: each power is read back from the picture or the question and worked out again.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

double worked_out(const formula& wanted, const reading& n) { return std::get<double>(wanted(n)); }
formula power(const formula& base, const formula& exponent) {
    return [=](const reading& n) { return std::round(std::pow(worked_out(base, n), worked_out(exponent, n))); };
}
row_part around(const formula& right, const std::vector<formula>& steps) {
    std::vector<formula> all;
    for (const formula& step : steps) all.insert(all.end(), {right - step, right + step});
    return wrong("", all);
}
std::vector<mistake> of_a_power(const formula& base, const formula& exponent) {
    return {{"getallen met elkaar vermenigvuldigd.", base * exponent},
            {"grondtal en de exponent verwisseld.", power(exponent, base)},
            {"opgeteld? Je moet een macht berekenen, niet optellen.", base + exponent}};
}

const std::string names = "(in het kwadraat|tot de derde macht|tot de vierde macht|tot de vijfde macht|tot de zesde "
                          "macht|tot de zevende macht|tot de achtste macht|tot de negende macht)";
const std::string named = "Er staat # " + names + ". Om", in_words = "| @ " + names + " is | ........",
                  in_short = "Het getal # zie je # keer staan, dus dat is # " + names + ". ",
                  both_in_short = in_short + in_short + "Die twee";
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
formula in_powers(const formula& a, const formula& k, const formula& b = v[2], const formula& m = v[3]) {
    return [=](const reading& n) { return n.variant() == 1 ? says("#^#", a, k)(n) : says("#^# + #^#", a, k, b, m)(n); };
}
// A "niet goed geteld" names the number of which there are more or fewer; no two options are of one value.
void check_options(const reading& n) {
    std::set<double> values;
    for (int i = 1; i <= 4; ++i) {
        const std::string option = n.exercise.options().at(static_cast<std::size_t>(i - 1)) + " + 0^1";
        const std::vector<double> t = find_pattern(option, "#^# + #^#")->numbers;
        values.insert(std::pow(t[0], t[1]) + std::pow(t[2], t[3]));
        const auto told = find_pattern(i == n.exercise.right_place() ? "" : n.exercise.feedback(i),
                                       "(vaak het getal|niet het getal) # (er staat|, maar)");
        EXPECT_TRUE(!told || told->numbers[1] == (told->numbers[0] == 1 ? t[0] : t[1] != n[1] ? n[0] : n[2])) << option;
    }
    EXPECT_EQ(values.size(), 4U) << "as 2^4 and 4^2 would be";
    const auto both = find_pattern(n.exercise.explanation, both_in_short);
    EXPECT_TRUE(n.variant() == 1 ||
                both->numbers == (std::vector{n[0], n[1], n[0], n[1] - 2, n[2], n[3], n[2], n[3] - 2}));
}

const formula periods = [](const reading& n) { return std::floor(std::log2(n[2])) + 1; };
const formula plus_power = v[0] + (v[1] * 2 - 1) * power(v[2], v[3]), with_last = plus_power + (v[4] * 2 - 1) * v[5];

// Per cents come first or last; what is put in the wrong order is the two sides, or the per cents and 100.
const formula last = [](const reading& n) { return n.variant() - 1; };
formula flowers(const char* pattern, const formula& a, const formula& b) { return says(pattern, a, b, last, v[2]); }
const formula boxes = power(v[0] / v[1], 3), first_side = v[1] + last * (v[0] - v[1]);
// A wall with its price, a stack of boxes with what is in each.
formula wall(const char* notation, const formula& area) { return says(notation, v[0], v[1], area * v[1]); }
formula stack(const char* notation, const formula& count) { return says(notation, v[1], v[0], count * v[0]); }
const formula area = v[0] * v[0], volume = power(v[1], 3), layer_more = volume + v[1] * v[1];

formula after(const formula& years) {
    return rounded([=](const reading& n) { return n[0] * std::pow(1 + n[1] / 100, worked_out(years, n)); });
}

const exercise_rows powers([] {
    row(B_snel_00_11_click, 3, "Geef snel antwoord. Kijk naar de som hiernaast... | # | 2 | =", range({{4, 7}}),
        range({{8, 11}}), range({{12, 15}}), right(area), around(area, {2, 4, 10}),
        explains("door # x # te doen. *= | #", v[0], v[0], area), ticks({5, 7, 9}));
    row(L_berekenen_00_11_click, 2,
        "Hiernaast zie je een som. Bereken de uitkomst. | # | # | =", range({{2, 9}, {2, 6}}), range({{2, 10}, {2, 9}}),
        right(power(v[0], v[1])), wrong(of_a_power(v[0], v[1])), explains(named.c_str(), v[0], v[1] - 2),
        explains("doe je # x #* met als uitkomst: #. *= | #", v[0], v[0], power(v[0], v[1]), power(v[0], v[1])),
        [](const reading& n) { EXPECT_EQ(times(n.exercise.made.uitlegregels[2]), n[1]); });
    row(L_in_woorden_00_11_click, 2, in_words.c_str(),
        counts(
            [](const reading& n) {
                const std::vector<std::string> words{"twee",  "drie", "vier",  "vijf", "zes",
                                                     "zeven", "acht", "negen", "tien"};
                return std::ranges::find(words, n.words[0]) - words.begin() + 2;
            },
            v[0] + 2),
        range({{0, 4}, {2, 9}, {2, 6}}), range({{0, 7}, {2, 10}, {2, 9}}), right(power(v[1], v[2])),
        wrong(of_a_power(v[1], v[2])),
        explains("genoemde getal *#) *uitrekenen: # *| ........ | #", v[1], v[1], power(v[1], v[2])),
        [](const reading& n) { EXPECT_EQ(times(n.exercise.last), n[2]); });
    row(L_korter_00_11_click, 2, "Hoe kun je deze som korter opschrijven? Kies de goede kleur. @ | geel",
        counts(product(0, false), product(0, true), product(1, false), product(1, true)), range({{2, 9}, {3, 6}}),
        range({{2, 6}, {2, 5}, {2, 9}, {2, 5}}), right(in_powers(v[0], v[1])),
        wrong("niet goed geteld", in_powers(v[0], v[1] - 2), in_powers(v[0], v[1] - 1), in_powers(v[0], v[1] + 1),
              in_powers(v[0], v[1], v[2], v[3] - 1), in_powers(v[0], v[1], v[2], v[3] + 1)),
        wrong("(grondtal en de exponent|grondtallen en de exponenten) verwisseld", in_powers(v[1], v[0], v[3], v[2])),
        wrong("maar #.", in_powers(v[0] - 1, v[1]), in_powers(v[0] + 1, v[1])),
        wrong("bij de verkeerde grondtallen gezet.", in_powers(v[0], v[3], v[2], v[1])),
        explains(in_short.c_str(), v[0], v[1], v[0], v[1] - 2), check_options);
    row(L_volgorde_00_11_click, 4,
        "Maak de som die hiernaast staat. | # (-|+) # | # | (-|+) # =", counts(plus_power, with_last),
        range({{40, 90, 3}, {1, 1}, {2, 10}, {2, 3}, {0, 0}, {5, 60, 3}, {44, 215, 20}, {31, 206, 30}}),
        range({{7, 185, 15}, {0, 0}, {2, 10}, {2, 3}, {1, 1}, {5, 70, 3}, {3, 60, 3}, {31, 130, 10}}),
        range({{40, 90, 3}, {1, 1}, {2, 10}, {2, 3}, {1, 1}, {5, 60, 3}, {44, 215, 20}, {49, 275, 30}}),
        range({{40, 245, 20}, {0, 0}, {2, 10}, {2, 3}, {0, 0}, {5, 40, 3}, {36, 120, 5}, {31, 80}}), right(with_last),
        around(with_last, {10, 20, 30}),
        explains("daarvan: #. *rechts: # *= # en # (-|+) # = #. Het *= | #", power(v[2], v[3]), v[0], v[6], v[6], v[4],
                 v[5], v[7], v[7]),
        tips("", "van links naar rechts."));
    row(M_bacterie_00_11_click, 2,
        "door zich elke # (minuten|uren) te delen. *Na hoeveel {minuten|uren} zijn er dan meer dan # bacteriën "
        "ontstaan? | 1 bacterie | $0 {minuten|uur} | 2 bacteriën | $0 {minuten|uur} | ...",
        range({{10, 50}, {0, 0}, {16, 1024}}), range({{3, 9}, {1, 1}, {16, 1024}}), right(periods * v[0]),
        around(periods * v[0], {v[0], v[0] * 2, v[0] * 3}),
        explains("Elke # (minuten|uur) *: 1, 2, 4, 8, 16, 32*. Na # keer *#, nog niet meer dan #. Na # keer *#, en "
                 "*meer dan #. Dat",
                 v[0], v[1], periods - 1, power(2, periods - 1), v[2], periods, power(2, periods), v[2]),
        tips("", "dus 2, 4, 8, 16, enzovoorts."));
    row(M_bloembollen_00_11_click, 2,
        "kist van #³ cm is *zijden van # cm. *wordt # % van *| Erna*| Frank*| Willy*| Boris",
        range({{20, 120}, {4, 8}, {4, 24}}), right(flowers("*#^3 : #^3*) (x|: 100 x) #*", v[0], v[1])),
        wrong("De macht heb je niet goed", flowers("*#^2 : #^2*) (x|: 100 x) #*", v[0], v[1])),
        wrong("De macht is wel goed.", flowers("*#^3 : #^3*) (x|:) #*", first_side, v[0] + v[1] - first_side)),
        wrong("twee dingen fout", flowers("*#^2 : #^2*) (x|:) #*", first_side, v[0] + v[1] - first_side)),
        explains("kist passen # : # = # *dus #³ : #³ = #³ = # *wordt # %: #", v[0], v[1], v[0] / v[1], v[0], v[1],
                 v[0] / v[1], boxes, v[2], boxes));
    row(M_fabriekshal_00_11_click, 4,
        "van # x $0 m *kosten € #,- per m². *| Hr. Vermaat*| Hr. van Belt*| Mevr. Sloot*| Mevr. Kroos",
        range({{5, 9}, {12, 48}}), range({{10, 14}, {12, 48}}), range({{15, 19}, {12, 48}}),
        range({{20, 24}, {12, 48}}), right(wall("#^2 x € #,- = € #,-", area)),
        wrong("door elkaar gehaald. Het bedrag is wel goed.", wall("2^# x € #,- = € #,-", area)),
        wrong("er is # x 2 gerekend in plaats van $0 x $0.", wall("#^2 x € #,- = € #,-", v[0] * 2)),
        wrong("Reken # x $0 nog eens na.", wall("#^2 x € #,- = € #,-", area + v[0])),
        wrong("door elkaar gehaald, en ook het bedrag", wall("2^# x € #,- = € #,-", v[0] * 2),
              wall("2^# x € #,- = € #,-", area + v[0])),
        explains("wand is # *dat #²: het grondtal is # en *zijn # x € #,- =", v[0], v[0], v[0], area, v[1]));
    row(M_stroopwafels_00_11_click, 3,
        "bevat # stroopwafels. Er liggen # lagen dozen *| (Ineke|Jiska|Jochem)*| {Carel|Tim|Linda}*| "
        "{Jopie|Pieter|Joost}*| {Bep|Ilse|Suzan}",
        range({{8, 40}, {2, 10}, {0, 0}}), range({{8, 40}, {2, 10}, {1, 1}}), range({{8, 40}, {2, 10}, {2, 2}}),
        right(stack("#^3 x # = #", volume)),
        wrong("exponent verwisseld. Het aantal stroopwafels is wel goed.", stack("3^# x # = #", volume)),
        wrong("er is # x 3 gerekend in plaats van $0 x $0 x $0.", stack("#^3 x # = #", v[1] * 3)),
        wrong("een laag dozen te veel", stack("#^3 x # = #", layer_more)),
        wrong("Ook het aantal stroopwafels is niet goed.", stack("3^# x # = #", v[1] * 3),
              stack("3^# x # = #", layer_more)),
        explains("kubus van # lagen is ook # dozen lang en # *dus #³ = # *zitten # stroopwafels: # x #", v[1], v[1],
                 v[1], v[1], v[1], v[0], volume, v[0]));
    row(Z_spaargeld_00_11_click, 4,
        "zet je € #,- op de bank. De rente is #% per jaar. *Hoe groot is dit bedrag * geworden na # jaar? *| "
        "Tip: | na één jaar is het bedrag | geworden: # x € $0",
        range({{100, 700}, {3, 9}, {4, 8}, {1.03, 1.09}}), range({{1000, 7000}, {3, 9}, {4, 8}}),
        range({{100, 700}, {3, 9}, {4, 8}}), range({{1000, 7000}, {3, 9}, {4, 8}}), right(after(v[2])),
        wrong("elk jaar even veel euro's bijkomen?", v[0] + v[0] * v[1] * v[2] / 100),
        wrong("jaartje te veel rente", after(v[2] + 1)), wrong("jaartje te weinig rente", after(v[2] - 1)),
        wrong("soms een rekenfoutje", after(v[2]) + v[0] * 12 / 100, after(v[2]) - v[0] * 12 / 100),
        explains("bedrag # keer *uiteindelijk # tot de macht # keer *euro's: #, #, #*, #.", v[1] / 100 + 1, v[3], v[2],
                 after(1), after(2), after(3), after(v[2])),
        with_calculator, [](const reading& n) {
            std::set<double> amounts;
            for (const std::string& answer : n.exercise.answers()) amounts.insert(*number_of(answer));
            for (auto a = amounts.begin(), b = std::next(a); b != amounts.end(); ++a, ++b) EXPECT_GT(*b / *a, 1.0099);
        });
});

} // namespace
} // namespace cijferwerf
