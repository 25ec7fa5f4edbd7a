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

std::vector<mistake> of_a_power(const formula& base, const formula& exponent) {
    return {{"getallen met elkaar vermenigvuldigd.", base * exponent},
            {"grondtal en de exponent verwisseld.", power(exponent, base)},
            {"opgeteld? Je moet een macht berekenen, niet optellen.", base + exponent}};
}
// The product that is written out has the base as often as the exponent says.
auto written_out(const char* pattern, const formula& base, const formula& exponent) {
    return [=](const reading& n) {
        const auto told = find_pattern(n.exercise.explanation, pattern);
        ASSERT_TRUE(told) << n.exercise.explanation;
        std::string product = regel(kaal(static_cast<int>(worked_out(base, n))));
        for (int i = 1; i < worked_out(exponent, n); ++i) product += " x " + product.substr(0, product.find(' '));
        EXPECT_EQ(told->words[0], product);
        EXPECT_EQ(n.variant() == 1, decimal(n.exercise.right) < 100);
    };
}

const std::string names = "(in het kwadraat|tot de derde macht|tot de vierde macht|tot de vijfde macht|tot de zesde "
                          "macht|tot de zevende macht|tot de achtste macht|tot de negende macht)";
const std::string told_power = "Er staat # " + names + ". Om", in_words = "| @ " + names + " is | ...",
                  in_short = "Het getal # zie je # keer staan, dus dat is # " + names + ". De juiste kleur",
                  both_in_short = "Het getal # zie je # keer staan, dus dat is # " + names +
                                  ". Het getal # zie je # keer staan, dus dat is # " + names + ". Die twee";

const formula base_in_words = [](const reading& n) {
    const std::vector<std::string> words{"twee", "drie", "vier", "vijf", "zes", "zeven", "acht", "negen", "tien"};
    return 2.0 + static_cast<double>(std::ranges::find(words, n.words[0]) - words.begin());
};

// A number of the product on the sixth line, and how often it stands there.
formula factor_of(std::size_t group) {
    return [=](const reading& n) { return decimal(n.words[0].substr(group == 0 ? 0 : n.words[0].find("+ ") + 2)); };
}
formula times_of(std::size_t group) {
    return [=](const reading& n) {
        const std::string first = n.words[0].substr(0, n.words[0].find(" + "));
        const auto all = std::ranges::count(n.words[0], 'x'), there = std::ranges::count(first, 'x');
        return static_cast<double>(group == 0 ? there : all - there) + 1;
    };
}
// The four are of different value, and "niet goed geteld" names the number of which there are more or fewer.
void check_options(const reading& n) {
    std::set<double> values;
    for (int i = 1; i <= 4; ++i) {
        const std::string option = n.exercise.options().at(static_cast<std::size_t>(i - 1));
        const auto one = find_pattern("^" + option + "^", "^#^#^"), two = find_pattern(option, "#^# + #^#");
        ASSERT_TRUE(one || two) << option;
        const std::vector<double>& t = (one ? one : two)->numbers;
        values.insert(std::pow(t[0], t[1]) + (one ? 0 : std::pow(t[2], t[3])));
        if (i == n.exercise.right_place()) continue;
        if (const auto counted = find_pattern(n.exercise.feedback(i), "vaak het getal # er staat")) {
            EXPECT_EQ(counted->numbers[0], t[1] != n[1] ? n[0] : n[2]) << option;
        }
        if (const auto base = find_pattern(n.exercise.feedback(i), "niet het getal #, maar #.")) {
            EXPECT_EQ(base->numbers, (std::vector{t[0], n[0]}));
        }
    }
    EXPECT_EQ(values.size(), 4U) << "as 2^4 and 4^2 would be";
}

const formula periods = [](const reading& n) { return std::floor(std::log2(n[2])) + 1; };

const formula before_last = [](const reading& n) { return n[0] + (n[1] == 1 ? 1 : -1) * std::pow(n[2], n[3]); };
const formula with_last = [](const reading& n) { return worked_out(before_last, n) + (n[4] == 1 ? n[5] : -n[5]); };

const auto persons = [](std::vector<std::array<std::string, 4>> groups) {
    return [groups](const reading& n) {
        EXPECT_EQ(n.exercise.answers(), groups[static_cast<std::size_t>(n.variant() - 1) % groups.size()]);
    };
};

const formula simple = v[0] + v[0] * v[1] * v[2] / 100;
formula after(const formula& years) {
    return rounded([=](const reading& n) { return n[0] * std::pow(1 + n[1] / 100, worked_out(years, n)); });
}
void check_apart(const reading& n) {
    std::array<double, 4> all = n.exercise.numbers();
    std::ranges::sort(all);
    for (std::size_t i = 1; i < 4; ++i) EXPECT_GT(all.at(i), 1.01 * all.at(i - 1));
    EXPECT_GT(decimal(n.exercise.right), worked_out(simple, n));
}
const char* const savings = "Op een dag zet je € #,- op de bank. De rente is #% per jaar. *Hoe groot is dit bedrag * "
                            "geworden na # jaar? Kijk hiernaast voor de tip... | Tip: | na één jaar is het bedrag | "
                            "geworden: # x € $0";
std::vector<mistake> of_savings(const char* piece, const formula& years) {
    return {{"elk jaar even veel euro's bijkomen?", simple},
            {piece, after(years)},
            {"soms een rekenfoutje", after(v[2]) + v[0] * 12 / 100},
            {"soms een rekenfoutje", after(v[2]) - v[0] * 12 / 100}};
}
const std::vector<statement> of_growth{
    {"Elk jaar wordt het bedrag # keer zo groot. Het spaarbedrag wordt dus uiteindelijk # tot de macht # keer",
     {v[1] / 100 + 1, v[1] / 100 + 1, v[2]}},
    {"afgerond op hele euro's: #, #, #*, #. Het bedrag is dus ongeveer € #,- geworden.",
     {after(1), after(2), after(3), after(v[2]), after(v[2])}}};

const exercise_rows powers{
    {.id = B_snel_00_11_click,
     .variants = 3,
     .reads = "Geef snel antwoord. Kijk naar de som hiernaast... | # | 2 | =",
     .ranges = {{{4, 7}}, {{8, 11}}, {{12, 15}}},
     .right = v[0] * v[0],
     .wrong = {{"", v[0] * v[0] - 2},
               {"", v[0] * v[0] + 2},
               {"", v[0] * v[0] - 4},
               {"", v[0] * v[0] + 4},
               {"", v[0] * v[0] - 10},
               {"", v[0] * v[0] + 10}},
     .explains = {{"De uitkomst vind je door # x # te doen. Dus: # x # = #.", {v[0], v[0], v[0], v[0], v[0] * v[0]}},
                  {"= | #", {v[0] * v[0]}}},
     .ticks = {5, 7, 9}},
    {.id = L_berekenen_00_11_click,
     .variants = 2,
     .reads = "Hiernaast zie je een som. Bereken de uitkomst. | # | # | =",
     .ranges = {{{2, 9}, {2, 6}}, {{2, 10}, {2, 9}}},
     .right = power(v[0], v[1]),
     .wrong = of_a_power(v[0], v[1]),
     .explains = {{told_power.c_str(), {v[0], v[1] - 2}},
                  {"met als uitkomst: #. *= | #", {power(v[0], v[1]), power(v[0], v[1])}}},
     .check = written_out("doe je @ met", v[0], v[1])},
    {.id = L_in_woorden_00_11_click,
     .variants = 2,
     .reads = in_words.c_str(),
     .counts = {base_in_words, v[0] + 2},
     .ranges = {{{0, 4}, {2, 9}, {2, 6}}, {{0, 7}, {2, 10}, {2, 9}}},
     .right = power(v[1], v[2]),
     .wrong = of_a_power(v[1], v[2]),
     .explains = {{"genoemde getal *#) moet je", {v[1]}}, {"is *| ... | #", {power(v[1], v[2])}}},
     .check = written_out("uitrekenen: @ =", v[1], v[2])},
    {.id = L_korter_00_11_click,
     .variants = 2,
     .of = {1},
     .reads = "Hoe kun je deze som korter opschrijven? Kies de goede kleur. @ | geel",
     .counts = {factor_of(0), times_of(0)},
     .ranges = {{{2, 9}, {3, 6}}},
     .right = says("#^#", v[0], v[1]),
     .wrong = {{"Je hebt niet goed geteld", says("#^#", v[0], v[1] - 1)},
               {"Je hebt niet goed geteld", says("#^#", v[0], v[1] + 1)},
               {"grondtal en de exponent verwisseld", says("#^#", v[1], v[0])},
               {"het verkeerde grondtal", says("#^#", v[0] - 1, v[1])},
               {"het verkeerde grondtal", says("#^#", v[0] + 1, v[1])}},
     .explains = {{in_short.c_str(), {v[0], v[1], v[0], v[1] - 2}}},
     .check = check_options},
    {.id = L_korter_00_11_click,
     .variants = 2,
     .of = {2},
     .reads = "Kies de goede kleur. @ | geel",
     .counts = {factor_of(0), times_of(0), factor_of(1), times_of(1)},
     .ranges = {{{2, 6}, {2, 5}, {2, 9}, {2, 5}}},
     .right = says("#^# + #^#", v[0], v[1], v[2], v[3]),
     .wrong = {{"Je hebt niet goed geteld", says("#^# + #^#", v[0], v[1] - 1, v[2], v[3])},
               {"Je hebt niet goed geteld", says("#^# + #^#", v[0], v[1] + 1, v[2], v[3])},
               {"Je hebt niet goed geteld", says("#^# + #^#", v[0], v[1], v[2], v[3] - 1)},
               {"Je hebt niet goed geteld", says("#^# + #^#", v[0], v[1], v[2], v[3] + 1)},
               {"grondtallen en de exponenten verwisseld", says("#^# + #^#", v[1], v[0], v[3], v[2])},
               {"bij de verkeerde grondtallen gezet.", says("#^# + #^#", v[0], v[3], v[2], v[1])}},
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
     .wrong = {{"", with_last - 30},
               {"", with_last - 20},
               {"", with_last - 10},
               {"", with_last + 10},
               {"", with_last + 20},
               {"", with_last + 30}},
     .explains = {{"Uitkomst daarvan: #. *rechts: # (-|+) # = # en # (-|+) # = #. Het goede antwoord is dus #.",
                   {power(v[2], v[3]), v[0], v[1], power(v[2], v[3]), before_last, before_last, v[4], v[5], with_last,
                    with_last}},
                  {"= | #", {with_last}}},
     .tips = {"", "van links naar rechts."},
     .check =
         [](const reading& n) {
             EXPECT_GT(worked_out(before_last, n), 0);
             EXPECT_GE(worked_out(with_last, n), 31);
         }},
    {.id = M_bacterie_00_11_click,
     .variants = 2,
     .reads = "voort door zich elke # (minuten|uren) te delen. *Stel, er is eerst één bacterie. Na hoeveel "
              "{minuten|uren} zijn er dan meer dan # bacteriën ontstaan? | 1 bacterie | $0 {minuten|uur} | 2 "
              "bacteriën | $0 {minuten|uur} | ...",
     .ranges = {{{10, 50}, {0, 0}, {16, 1024}}, {{3, 9}, {1, 1}, {16, 1024}}},
     .right = periods * v[0],
     .wrong = {{"", (periods - 3) * v[0]},
               {"", (periods - 2) * v[0]},
               {"", (periods - 1) * v[0]},
               {"", (periods + 1) * v[0]},
               {"", (periods + 2) * v[0]},
               {"", (periods + 3) * v[0]}},
     .explains = {{"Elke # (minuten|uur) verdubbelt het aantal bacteriën: 1, 2, 4, 8, 16, 32*. Na # keer delen zijn "
                   "het er #, nog niet meer dan #. Na # keer delen zijn het er #, en dat is meer dan #. Dat is na # x "
                   "# = # {minuten|uur}.",
                   {v[0], v[1], periods - 1, power(2, periods - 1), v[2], periods, power(2, periods), v[2], periods,
                    v[0], periods* v[0]}}},
     .tips = {"", "dus 2, 4, 8, 16, enzovoorts."}},
    {.id = M_bloembollen_00_11_click,
     .variants = 2,
     .of = {1},
     .reads = "Een kist van #³ cm is vol met doosjes *zijden van # cm. *wordt # % van de doosjes afgekeurd.",
     .ranges = {{{20, 120}, {4, 8}, {4, 24}}},
     .right = says("*#^3 : #^3*) x # : 100", v[0], v[1], v[2]),
     .wrong = {{"De macht heb je niet goed gekozen.", says("*#^2 : #^2*) x # : 100", v[0], v[1], v[2])},
               {"volgorde gekozen. De macht is wel goed.", says("*#^3 : #^3*) x # : 100", v[1], v[0], v[2])},
               {"twee dingen fout gedaan: de volgorde en de macht", says("*#^2 : #^2*) x # : 100", v[1], v[0], v[2])}},
     .explains = {{"Langs elke kant van de kist passen # : # = # *dus #³ : #³ = #³ = # doosjes. Afgekeurd wordt # %: # "
                   "x # : 100 = # doosjes. (Erna|Frank|Willy|Boris) heeft het goed.",
                   {v[0], v[1], v[0] / v[1], v[0], v[1], v[0] / v[1], power(v[0] / v[1], 3), v[2],
                    power(v[0] / v[1], 3), v[2], power(v[0] / v[1], 3) * v[2] / 100,
                    [](const reading& n) { return n.exercise.right_place() - 1; }}}},
     .check = persons({{"Erna", "Frank", "Willy", "Boris"}})},
    {.id = M_bloembollen_00_11_click,
     .variants = 2,
     .of = {2},
     .reads = "Een kist van #³ cm is vol met doosjes *zijden van # cm. *wordt # % van de doosjes afgekeurd.",
     .ranges = {{{20, 120}, {4, 8}, {4, 24}}},
     .right = says("*#^3 : #^3*) : 100 x #", v[0], v[1], v[2]),
     .wrong = {{"De macht heb je niet goed gekozen.", says("*#^2 : #^2*) : 100 x #", v[0], v[1], v[2])},
               {"volgorde gekozen. De macht is wel goed.", says("*#^3 : #^3*) : # x 100", v[0], v[1], v[2])},
               {"twee dingen fout gedaan: de volgorde en de macht", says("*#^2 : #^2*) : # x 100", v[0], v[1], v[2])}},
     .explains = {{"Afgekeurd wordt # %: # : 100 x # = # doosjes.",
                   {v[2], power(v[0] / v[1], 3), v[2], power(v[0] / v[1], 3) * v[2] / 100}}}},
    {.id = M_fabriekshal_00_11_click,
     .variants = 4,
     .reads = "wand van # x $0 m betegeld worden. De tegels kosten € #,- per m². Vier",
     .ranges = {{{5, 9}, {12, 48}}, {{10, 14}, {12, 48}}, {{15, 19}, {12, 48}}, {{20, 24}, {12, 48}}},
     .right = says("#^2 x € #,- = € #,-", v[0], v[1], v[0] * v[0] * v[1]),
     .wrong = {{"door elkaar gehaald. Het bedrag is wel goed.",
                says("2^# x € #,- = € #,-", v[0], v[1], v[0] * v[0] * v[1])},
               {"er is # x 2 gerekend in plaats van $0 x $0.",
                says("#^2 x € #,- = € #,-", v[0], v[1], v[0] * 2 * v[1])},
               {"Reken # x $0 nog eens na.", says("#^2 x € #,- = € #,-", v[0], v[1], v[0] * (v[0] + 1) * v[1])},
               {"door elkaar gehaald, en ook het bedrag", says("2^# x € #,- = € #,-", v[0], v[1], v[0] * 2 * v[1])},
               {"door elkaar gehaald, en ook het bedrag",
                says("2^# x € #,- = € #,-", v[0], v[1], v[0] * (v[0] + 1) * v[1])}},
     .explains = {{"wand is # x # = # m². Als macht is dat #²: het grondtal is # en *De kosten zijn # x € #,- = € #,-.",
                   {v[0], v[0], v[0] * v[0], v[0], v[0], v[0] * v[0], v[1], v[0] * v[0] * v[1]}}},
     .check = persons({{"Hr. Vermaat", "Hr. van Belt", "Mevr. Sloot", "Mevr. Kroos"}})},
    {.id = M_stroopwafels_00_11_click,
     .variants = 3,
     .reads = "Elke doos is ook kubusvormig en bevat # stroopwafels. Er liggen # lagen dozen op elkaar.",
     .ranges = {{{8, 40}, {2, 10}}},
     .right = says("#^3 x # = #", v[1], v[0], v[1] * v[1] * v[1] * v[0]),
     .wrong = {{"exponent verwisseld. Het aantal stroopwafels is wel goed.",
                says("3^# x # = #", v[1], v[0], v[1] * v[1] * v[1] * v[0])},
               {"er is # x 3 gerekend in plaats van $0 x $0 x $0.", says("#^3 x # = #", v[1], v[0], v[1] * 3 * v[0])},
               {"een laag dozen te veel", says("#^3 x # = #", v[1], v[0], v[1] * v[1] * (v[1] + 1) * v[0])},
               {"Ook het aantal stroopwafels is niet goed.", says("3^# x # = #", v[1], v[0], v[1] * 3 * v[0])},
               {"Ook het aantal stroopwafels is niet goed.",
                says("3^# x # = #", v[1], v[0], v[1] * v[1] * (v[1] + 1) * v[0])}},
     .explains = {{"kubus van # lagen is ook # dozen lang en # dozen breed. *dus #³ = # x # x # = #. In elke doos "
                   "zitten # stroopwafels: # x # = #.",
                   {v[1], v[1], v[1], v[1], v[1], v[1], v[1], power(v[1], 3), v[0], power(v[1], 3), v[0],
                    power(v[1], 3) * v[0]}}},
     .check =
         [](const reading& n) {
             EXPECT_NE(n[1], 3) << "3^3 remains what it is when it is swapped";
             persons({{"Ineke", "Carel", "Jopie", "Bep"},
                      {"Jiska", "Tim", "Pieter", "Ilse"},
                      {"Jochem", "Linda", "Joost", "Suzan"}})(n);
         }},
    {.id = Z_spaargeld_00_11_click,
     .variants = 4,
     .of = {1, 2},
     .reads = savings,
     .ranges = {{{100, 700}, {3, 9}, {4, 8}}, {{1000, 7000}, {3, 9}, {4, 8}}},
     .right = after(v[2]),
     .wrong = of_savings("jaartje te veel rente", v[2] + 1),
     .explains = of_growth,
     .check = check_apart},
    {.id = Z_spaargeld_00_11_click,
     .variants = 4,
     .of = {3, 4},
     .reads = savings,
     .ranges = {{{100, 700}, {3, 9}, {4, 8}}, {{1000, 7000}, {3, 9}, {4, 8}}},
     .right = after(v[2]),
     .wrong = of_savings("jaartje te weinig rente", v[2] - 1),
     .explains = of_growth,
     .check = check_apart},
};

} // namespace
} // namespace cijferwerf
