// Powers and growth: each power is read back from the picture or the question and worked out again.
#include "tests/support/exercise_rows.h"
#include "tests/support/pattern.h"

#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

double worked_out(const formula& wanted, const reading& n) { return std::get<double>(wanted(n)); }
formula power(const formula& base, const formula& exponent) {
    return [=](const reading& n) { return std::round(std::pow(worked_out(base, n), worked_out(exponent, n))); };
}
std::vector<mistake> around(const formula& right, const std::vector<formula>& steps) {
    std::vector<mistake> all;
    for (const formula& step : steps) all.insert(all.end(), {{"", right - step}, {"", right + step}});
    return all;
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
// How often a factor stands in the product that a text writes out, in its first part or behind a "+".
int times(const std::string& product) { return static_cast<int>(std::ranges::count(product, 'x')) + 1; }
formula factors(bool second, bool count) {
    return [=](const reading& n) {
        const std::size_t plus = std::min(n.words[0].find("+ "), n.words[0].size());
        const std::string part = second ? n.words[0].substr(plus + 2) : n.words[0].substr(0, plus);
        return count ? times(part) : decimal(part);
    };
}
const formula base_in_words = [](const reading& n) {
    const std::vector<std::string> words{"twee", "drie", "vier", "vijf", "zes", "zeven", "acht", "negen", "tien"};
    return std::ranges::find(words, n.words[0]) - words.begin() + 2;
};
// A "niet goed geteld" names the number of which there are more or fewer; no two options are of one value.
void check_options(const reading& n) {
    std::set<double> values;
    for (int i = 1; i <= 4; ++i) {
        const std::string option = n.exercise.options().at(static_cast<std::size_t>(i - 1)) + " + 0^1";
        const std::vector<double> t = find_pattern(option, "#^# + #^#")->numbers;
        values.insert(std::pow(t[0], t[1]) + std::pow(t[2], t[3]));
        if (i == n.exercise.right_place()) continue;
        const auto count = find_pattern(n.exercise.feedback(i), "vaak het getal # er staat");
        EXPECT_TRUE(!count || count->numbers[0] == (t[1] != n[1] ? n[0] : n[2])) << option;
        const auto base = find_pattern(n.exercise.feedback(i), "niet het getal #, maar #.");
        EXPECT_TRUE(!base || base->numbers == (std::vector{t[0], n[0]})) << option;
    }
    EXPECT_EQ(values.size(), 4U) << "as 2^4 and 4^2 would be";
}
formula one(const formula& a, const formula& k) { return says("#^#", a, k); }
formula two(const formula& a, const formula& k, const formula& b, const formula& m) {
    return says("#^# + #^#", a, k, b, m);
}
constexpr const char* counted = "Je hebt niet goed geteld";

const formula periods = [](const reading& n) { return std::floor(std::log2(n[2])) + 1; };
const formula before_last = [](const reading& n) { return n[0] + (n[1] == 1 ? 1 : -1) * std::pow(n[2], n[3]); };
const formula with_last = before_last + [](const reading& n) { return n[4] == 1 ? n[5] : -n[5]; };

formula by_variant(const formula& first, const formula& second) {
    return [=](const reading& n) { return n.variant() == 1 ? first(n) : second(n); };
}
formula in_time(const formula& a, const formula& b, const char* first, const char* second) {
    return by_variant(says(first, a, b, v[2]), says(second, v[0], v[1], v[2]));
}
const formula boxes = power(v[0] / v[1], 3);
auto persons(const std::vector<std::array<std::string, 4>>& groups) {
    return [groups](const reading& n) {
        EXPECT_EQ(n.exercise.answers(), groups[static_cast<std::size_t>(n.variant() - 1) % groups.size()]);
        const auto options = n.exercise.options();
        EXPECT_EQ((std::set<std::string>(options.begin(), options.end()).size()), 4U);
    };
}
// A wall with its price, a stack of boxes with what is in each.
formula wall(const char* notation, const formula& area) { return says(notation, v[0], v[1], area * v[1]); }
formula stack(const char* notation, const formula& count) { return says(notation, v[1], v[0], count * v[0]); }
constexpr const char *wall_right = "#^2 x € #,- = € #,-", *wall_swapped = "2^# x € #,- = € #,-",
                     *stack_right = "#^3 x # = #", *stack_swapped = "3^# x # = #";
const formula area = v[0] * v[0], volume = power(v[1], 3), layer_more = volume + v[1] * v[1];

formula after(const formula& years) {
    return rounded([=](const reading& n) { return n[0] * std::pow(1 + n[1] / 100, worked_out(years, n)); });
}
// A year's difference to one side in each sub-variant, and no two amounts within a hundredth of one another.
void check_savings(const reading& n) {
    EXPECT_TRUE(same(n[3], 1 + n[1] / 100));
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(
            (i == n.exercise.right_place() ? "" : n.exercise.feedback(i)).find(n.variant() <= 2 ? "weinig" : "te veel"),
            std::string::npos);
        for (int j = 1; j < i; ++j)
            EXPECT_GT(std::abs(*number_of(n.exercise.answer(i)) / *number_of(n.exercise.answer(j)) - 1), 0.0099);
    }
}

const exercise_rows powers{
    {.id = B_snel_00_11_click,
     .variants = 3,
     .reads = "Geef snel antwoord. Kijk naar de som hiernaast... | # | 2 | =",
     .ranges = {{{4, 7}}, {{8, 11}}, {{12, 15}}},
     .right = area,
     .wrong = around(area, {2, 4, 10}),
     .explains = {{"door # x # te doen. Dus: # x # = #. *= | #", {v[0], v[0], v[0], v[0], area, area}}},
     .ticks = {5, 7, 9}},
    {.id = L_berekenen_00_11_click,
     .variants = 2,
     .reads = "Hiernaast zie je een som. Bereken de uitkomst. | # | # | =",
     .ranges = {{{2, 9}, {2, 6}}, {{2, 10}, {2, 9}}},
     .right = power(v[0], v[1]),
     .wrong = of_a_power(v[0], v[1]),
     .explains = {{named.c_str(), {v[0], v[1] - 2}},
                  {"reken* doe je # x #* met als uitkomst: #. *= | #",
                   {v[0], v[0], power(v[0], v[1]), power(v[0], v[1])}}},
     .check = [](const reading& n) { EXPECT_EQ(times(n.exercise.made.uitlegregels[2]), n[1]); }},
    {.id = L_in_woorden_00_11_click,
     .variants = 2,
     .reads = in_words.c_str(),
     .counts = {base_in_words, v[0] + 2},
     .ranges = {{{0, 4}, {2, 9}, {2, 6}}, {{0, 7}, {2, 10}, {2, 9}}},
     .right = power(v[1], v[2]),
     .wrong = of_a_power(v[1], v[2]),
     .explains = {{"genoemde getal *#) moet je", {v[1]}},
                  {"uitrekenen: # x #* = #. *| ........ | #", {v[1], v[1], power(v[1], v[2]), power(v[1], v[2])}}},
     .check = [](const reading& n) { EXPECT_EQ(times(n.exercise.last), n[2]); }},
    {.id = L_korter_00_11_click,
     .variants = 2,
     .of = {1},
     .reads = "Hoe kun je deze som korter opschrijven? Kies de goede kleur. @ | geel",
     .counts = {factors(false, false), factors(false, true)},
     .ranges = {{{2, 9}, {3, 6}}},
     .right = one(v[0], v[1]),
     .wrong = {{counted, one(v[0], v[1] - 2)},
               {counted, one(v[0], v[1] - 1)},
               {counted, one(v[0], v[1] + 1)},
               {"grondtal en de exponent verwisseld", one(v[1], v[0])},
               {"het verkeerde grondtal", one(v[0] - 1, v[1])},
               {"het verkeerde grondtal", one(v[0] + 1, v[1])}},
     .explains = {{in_short.c_str(), {v[0], v[1], v[0], v[1] - 2}}},
     .check = check_options},
    {.id = L_korter_00_11_click,
     .variants = 2,
     .of = {2},
     .reads = "Kies de goede kleur. @ | geel",
     .counts = {factors(false, false), factors(false, true), factors(true, false), factors(true, true)},
     .ranges = {{{2, 6}, {2, 5}, {2, 9}, {2, 5}}},
     .right = two(v[0], v[1], v[2], v[3]),
     .wrong = {{counted, two(v[0], v[1] - 1, v[2], v[3])},
               {counted, two(v[0], v[1] + 1, v[2], v[3])},
               {counted, two(v[0], v[1], v[2], v[3] - 1)},
               {counted, two(v[0], v[1], v[2], v[3] + 1)},
               {"grondtallen en de exponenten verwisseld", two(v[1], v[0], v[3], v[2])},
               {"bij de verkeerde grondtallen gezet.", two(v[0], v[3], v[2], v[1])}},
     .explains = {{both_in_short.c_str(), {v[0], v[1], v[0], v[1] - 2, v[2], v[3], v[2], v[3] - 2}}},
     .check = check_options},
    {.id = L_volgorde_00_11_click,
     .variants = 4,
     .reads = "Maak de som die hiernaast staat. | # (-|+) # | # | (-|+) # =",
     .ranges = {{{40, 90, 3}, {1, 1}, {2, 10}, {2, 3}, {0, 0}, {5, 60, 3}},
                {{7, 185, 15}, {0, 0}, {2, 10}, {2, 3}, {1, 1}, {5, 70, 3}},
                {{40, 90, 3}, {1, 1}, {2, 10}, {2, 3}, {1, 1}, {5, 60, 3}},
                {{40, 245, 20}, {0, 0}, {2, 10}, {2, 3}, {0, 0}, {5, 40, 3}}},
     .right = with_last,
     .wrong = around(with_last, {10, 20, 30}),
     .explains = {{"Uitkomst daarvan: #. *rechts: # (-|+) # = # en # (-|+) # = #. Het goede antwoord is dus #. *= | #",
                   {power(v[2], v[3]), v[0], v[1], power(v[2], v[3]), before_last, before_last, v[4], v[5], with_last,
                    with_last, with_last}}},
     .tips = {"", "van links naar rechts."},
     .check = [](const reading& n) { EXPECT_TRUE(worked_out(before_last, n) > 0 && decimal(n.exercise.right) >= 31); }},
    {.id = M_bacterie_00_11_click,
     .variants = 2,
     .reads = "door zich elke # (minuten|uren) te delen. *Na hoeveel {minuten|uren} zijn er dan meer dan # bacteriën "
              "ontstaan? | 1 bacterie | $0 {minuten|uur} | 2 bacteriën | $0 {minuten|uur} | ...",
     .ranges = {{{10, 50}, {0, 0}, {16, 1024}}, {{3, 9}, {1, 1}, {16, 1024}}},
     .right = periods * v[0],
     .wrong = around(periods * v[0], {v[0], v[0] * 2, v[0] * 3}),
     .explains = {{"Elke # (minuten|uur) verdubbelt het aantal bacteriën: 1, 2, 4, 8, 16, 32*. Na # keer delen zijn "
                   "het er #, nog niet meer dan #. Na # keer delen zijn het er #, en dat is meer dan #. Dat is na # x "
                   "# = # {minuten|uur}.",
                   {v[0], v[1], periods - 1, power(2, periods - 1), v[2], periods, power(2, periods), v[2], periods,
                    v[0], periods* v[0]}}},
     .tips = {"", "dus 2, 4, 8, 16, enzovoorts."}},
    {.id = M_bloembollen_00_11_click,
     .variants = 2,
     .reads = "kist van #³ cm is vol met doosjes *zijden van # cm. *wordt # % van de doosjes afgekeurd.",
     .ranges = {{{20, 120}, {4, 8}, {4, 24}}},
     .right = in_time(v[0], v[1], "*#^3 : #^3*) x # : 100", "*#^3 : #^3*) : 100 x #"),
     .wrong = {{"De macht heb je niet goed", in_time(v[0], v[1], "*#^2 : #^2*) x # : 100", "*#^2 : #^2*) : 100 x #")},
               {"De macht is wel goed.", in_time(v[1], v[0], "*#^3 : #^3*) x # : 100", "*#^3 : #^3*) : # x 100")},
               {"twee dingen fout", in_time(v[1], v[0], "*#^2 : #^2*) x # : 100", "*#^2 : #^2*) : # x 100")}},
     .explains = {{"kant van de kist passen # : # = # *dus #³ : #³ = #³ = # doosjes. *wordt # %: # *x # *= # doosjes.",
                   {v[0], v[1], v[0] / v[1], v[0], v[1], v[0] / v[1], boxes, v[2], boxes, v[2], boxes* v[2] / 100}}},
     .check = persons({{"Erna", "Frank", "Willy", "Boris"}})},
    {.id = M_fabriekshal_00_11_click,
     .variants = 4,
     .reads = "wand van # x $0 m betegeld worden. De tegels kosten € #,- per m². Vier",
     .ranges = {{{5, 9}, {12, 48}}, {{10, 14}, {12, 48}}, {{15, 19}, {12, 48}}, {{20, 24}, {12, 48}}},
     .right = wall(wall_right, area),
     .wrong = {{"door elkaar gehaald. Het bedrag is wel goed.", wall(wall_swapped, area)},
               {"er is # x 2 gerekend in plaats van $0 x $0.", wall(wall_right, v[0] * 2)},
               {"Reken # x $0 nog eens na.", wall(wall_right, area + v[0])},
               {"door elkaar gehaald, en ook het bedrag", wall(wall_swapped, v[0] * 2)},
               {"door elkaar gehaald, en ook het bedrag", wall(wall_swapped, area + v[0])}},
     .explains = {{"wand is # x # = # m². Als macht is dat #²: het grondtal is # en *De kosten zijn # x € #,- = € #,-.",
                   {v[0], v[0], area, v[0], v[0], area, v[1], area* v[1]}}},
     .check = persons({{"Hr. Vermaat", "Hr. van Belt", "Mevr. Sloot", "Mevr. Kroos"}})},
    {.id = M_stroopwafels_00_11_click,
     .variants = 3,
     .reads = "Elke doos is ook kubusvormig en bevat # stroopwafels. Er liggen # lagen dozen op elkaar.",
     .ranges = {{{8, 40}, {2, 10}}},
     .right = stack(stack_right, volume),
     .wrong = {{"exponent verwisseld. Het aantal stroopwafels is wel goed.", stack(stack_swapped, volume)},
               {"er is # x 3 gerekend in plaats van $0 x $0 x $0.", stack(stack_right, v[1] * 3)},
               {"een laag dozen te veel", stack(stack_right, layer_more)},
               {"Ook het aantal stroopwafels is niet goed.", stack(stack_swapped, v[1] * 3)},
               {"Ook het aantal stroopwafels is niet goed.", stack(stack_swapped, layer_more)}},
     .explains = {{"kubus van # lagen is ook # dozen lang en # dozen breed. *dus #³ = # x # x # = #. In elke doos "
                   "zitten # stroopwafels: # x # = #.",
                   {v[1], v[1], v[1], v[1], v[1], v[1], v[1], volume, v[0], volume, v[0], volume* v[0]}}},
     .check = persons({{"Ineke", "Carel", "Jopie", "Bep"},
                       {"Jiska", "Tim", "Pieter", "Ilse"},
                       {"Jochem", "Linda", "Joost", "Suzan"}})},
    {.id = Z_spaargeld_00_11_click,
     .variants = 4,
     .reads = "zet je € #,- op de bank. De rente is #% per jaar. *Hoe groot is dit bedrag * geworden na # jaar? *| "
              "Tip: | na één jaar is het bedrag | geworden: # x € $0",
     .ranges = {{{100, 700}, {3, 9}, {4, 8}, {1.03, 1.09}},
                {{1000, 7000}, {3, 9}, {4, 8}, {1.03, 1.09}},
                {{100, 700}, {3, 9}, {4, 8}, {1.03, 1.09}},
                {{1000, 7000}, {3, 9}, {4, 8}, {1.03, 1.09}}},
     .right = after(v[2]),
     .wrong = {{"elk jaar even veel euro's bijkomen?", v[0] + v[0] * v[1] * v[2] / 100},
               {"jaartje te veel rente", after(v[2] + 1)},
               {"jaartje te weinig rente", after(v[2] - 1)},
               {"soms een rekenfoutje", after(v[2]) + v[0] * 12 / 100},
               {"soms een rekenfoutje", after(v[2]) - v[0] * 12 / 100}},
     .explains = {{"wordt het bedrag # keer zo groot. *dus uiteindelijk # tot de macht # keer", {v[3], v[3], v[2]}},
                  {"afgerond op hele euro's: #, #, #*, #. Het bedrag is dus ongeveer € #,- geworden.",
                   {after(1), after(2), after(3), after(v[2]), after(v[2])}}},
     .calculator = true,
     .check = check_savings},
};

} // namespace
} // namespace cijferwerf
