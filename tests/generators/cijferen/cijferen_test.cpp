// Column arithmetic: what is drawn, the answers worked out again from what a pupil sees, and each wrong answer as the
// mistake that its feedback names. The keys of the calculator are pressed as the explanation tells.
#include "calculator/calculator.h"
#include "tests/support/exercise_rows.h"
#include "tests/support/pattern.h"

#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

// A digit of a number, counted from 1 at the right, and what is taken from it and borrowed.
formula digit(const formula& number, int place) {
    return
        [=](const reading& n) { return static_cast<int>(std::get<double>(number(n)) / std::pow(10, place - 1)) % 10; };
}
formula larger(const formula& a, const formula& b) {
    return [=](const reading& n) { return std::max(std::get<double>(a(n)), std::get<double>(b(n))); };
}
formula difference(const formula& a, const formula& b) { return larger(a, b) - (a + b - larger(a, b)); }
const formula last_year = v[0], this_year = v[1], top = larger(last_year, this_year), low = last_year + this_year - top;
const formula digits_apart = 100 * difference(digit(top, 3), digit(low, 3)) +
                             10 * difference(digit(top, 2), digit(low, 2)) + difference(digit(top, 1), digit(low, 1));
const std::vector<mistake> not_borrowed{
    {"", digits_apart}, {"", top - low + 10}, {"", top - low - 10}, {"", top - low + 100}, {"", top - low - 100}};
const statement worked_out{"verschil:  #  #  #", {digit(top - low, 3), digit(top - low, 2), digit(top - low, 1)}};

void check_direction(const reading& n) {
    EXPECT_EQ(n[0] > n[1], n.exercise.question.ends_with("vertrokken? "));
    EXPECT_EQ(static_cast<int>(n[0]) / 1000, static_cast<int>(n[1]) / 1000);
}

// The number of a word of the picture whose digits are set wide.
formula wide(std::size_t word) {
    return [=](const reading& n) {
        std::string digits = n.exercise.words.at(word);
        std::erase(digits, ' ');
        return decimal(digits);
    };
}

void check_rows(const reading& n) {
    const seen later = n.exercise.when_explained();
    const reading drawn{later, {}, {}};
    const int a = static_cast<int>(n[0]), b = static_cast<int>(n[1]);
    const std::pair<std::size_t, int> rows[]{{3, a * (b % 10)}, {4, a * (b / 10 * 10)}, {6, a * b}};
    for (const auto& [word, value] : rows) {
        EXPECT_EQ(std::get<double>(wide(word)(drawn)), value);
        const text_op& text = later.texts[word];
        EXPECT_NEAR(text.x + text_width(text.text, 12), 2420, 22) << "the units of " << value;
    }
}

// "80 x 23 - 2 x 23".
double worked(const std::string& option) {
    const auto found = find_pattern(option, "# x # (+|-) # x #").value().numbers;
    return found[0] * found[1] + (found[2] == 0 ? 1 : -1) * found[3] * found[4];
}
std::string equal_to_product(const reading& n) {
    std::string equal;
    for (const std::string& option : n.exercise.options())
        if (worked(option) == n[0] * n[1]) equal += option;
    return equal;
}

// The addition whose numbers have their commas, or the ends of whole numbers, at one x.
std::string commas_in_line(const reading& n) {
    std::string names;
    const auto comma = [](const text_op& text) {
        return text.x + text_width(kaal(text.text.substr(0, text.text.find(','))), text.size);
    };
    std::vector<std::vector<text_op>> additions(4);
    for (const text_op& text : n.exercise.texts)
        if (text.size < 20 && text.text != "+") additions[static_cast<std::size_t>(text.x / 1345)].push_back(text);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(additions[i].size(), 3U);
        const int at = comma(additions[i][0]);
        if (std::ranges::all_of(additions[i], [&](const text_op& text) { return std::abs(comma(text) - at) < 8; }))
            names += "OPTELLING " + std::string(1, static_cast<char>('A' + i));
    }
    return names;
}

double without_comma(const reading& n) {
    const auto& words = n.exercise.words;
    return decimal(*std::find_if(words.begin() + 1, words.end(),
                                 [](const std::string& word) { return word.find(',') == word.npos; }));
}

// The one option that turns a sum with ":" (0) or "x" (1) back into one of its numbers.
std::string inverse(const reading& n) {
    std::string all;
    for (int i = 1; i <= 4; ++i) {
        const std::string option = n.exercise.options()[static_cast<std::size_t>(i - 1)];
        const auto [numbers, words] = find_pattern(option, "# (:|x) #").value();
        const double result = numbers[1] == 0 ? numbers[0] / numbers[2] : numbers[0] * numbers[2];
        const bool same_operation = numbers[1] == n[2];
        const std::set given{n[1], n[3], n[4]};
        EXPECT_TRUE(given.contains(numbers[0]) && given.contains(numbers[2])) << option;
        const bool right = std::ranges::any_of(
            given, [&](double each) { return same(each, result) && each != numbers[0] && each != numbers[2]; });
        if (right) all += option;
        if (i != n.exercise.right_place()) {
            EXPECT_EQ(n.exercise.feedback(i).ends_with("maken. "), same_operation) << option;
        }
    }
    return all;
}

// How many crates stand beside each other, or above each other, left (front) or right (side) of the middle.
formula crates(bool beside, bool front) {
    return [=](const reading& n) {
        std::set<int> places;
        for (const box_op& box : n.exercise.blocks)
            if (box.pen.colour == olijf && (box.x < 2700) == front) places.insert(beside ? box.x : box.y);
        return places.size();
    };
}

// As told: AC, each sum worked out and put into the memory, C after each M+, and MR at last.
std::string from_memory(const reading& n) {
    constexpr std::string_view faces = "0123456789,CA+-x/MR%=", signs = "+-x/";
    std::string keys = "A";
    for (std::size_t i = 0; i < 4; ++i)
        keys +=
            regel(kaal(static_cast<int>(n[2 * i])), signs.substr(i, 1), kaal(static_cast<int>(n[2 * i + 1])), "=MC");
    calculator pressed;
    for (const char face : keys + "R") pressed.press(static_cast<int>(faces.find(face)));
    return regel(kaal(duizend(whole(pressed.display()))));
}

const std::vector<mistake> by_tens{{"", [](const reading& n) {
                                        for (const double answer : n.exercise.numbers()) {
                                            const double off = std::abs(answer - decimal(n.exercise.right));
                                            EXPECT_TRUE(off <= 300 && std::fmod(off, 10) == 0 && answer > 0) << answer;
                                        }
                                        return lies::elsewhere;
                                    }}};

const formula product = v[0] * v[1], units = digit(v[1], 1), carried = digit(digit(v[0], 1) * units, 2);
const formula crate_front = v[1] * v[2], crate_side = v[3] * v[4], bottles = crate_front * v[3] * v[0];
const formula pupils = (v[0] + 2) * v[1], raised = pupils * v[2] * v[3];
const formula months = [](const reading& n) { return std::ceil(n[1] / n[2]); };

const exercise_rows columns{
    {.id = B_inwoners_1_12_01_click,
     .variants = 2,
     .reads = "| Vorig jaar woonden er in deze | stad # mensen. | Dit jaar zijn er # inwoners.",
     .ranges = {{{15000, 54989, 999}, {15000, 54989, 999}}, {{60000, 99989, 999}, {60000, 99989, 999}}},
     .right = top - low,
     .wrong = not_borrowed,
     .explains = {{"eenheden doe je # - # = #, * tientallen doe je # - # = #, * honderdtallen doe je # - # = #.",
                   {digit(top, 1) + 10, digit(low, 1), digit(top - low, 1), digit(top, 2) - 1, digit(low, 2),
                    digit(top - low, 2), digit(top, 3), digit(low, 3), digit(top - low, 3)}},
                  worked_out},
     .tips = {"Zet het grootste getal boven", "lenen van de tientallen."},
     .check = check_direction},
    {.id = B_inwoners_2_12_01_click,
     .variants = 2,
     .reads = "| Vorig jaar woonden er in deze | stad # mensen. | Dit jaar zijn er # inwoners.",
     .ranges = {{{15000, 54989, 999}, {15000, 54989, 999}}, {{60000, 99989, 999}, {60000, 99989, 999}}},
     .right = top - low,
     .wrong = not_borrowed,
     .explains = {{"eenheden doe je # - # = #, * tientallen doe je # - # = #, * honderdtallen doe je # - # = #.",
                   {digit(top, 1) + 10, digit(low, 1), digit(top - low, 1), digit(top, 2) + 9, digit(low, 2),
                    digit(top - low, 2), digit(top, 3) - 1, digit(low, 3), digit(top - low, 3)}},
                  worked_out},
     .tips = {"Zet het grootste getal boven", "tientallen moet je dan ook nog lenen."},
     .check = check_direction},
    {.id = Z_sponsorloop_12_07,
     .variants = 6,
     .reads = "In deze (twee|drie|vier) klassen zitten elk # leerlingen. Zij liepen gemiddeld # km en elke gelopen "
              "kilometer leverde € #* op. * | Krant van @ | Een school in @ organiseerde | voor de hoogste "
              "{twee|drie|vier} klassen een sponsorloop | voor een goed doel @.",
     .ranges = {{{0, 0}, {15, 30}, {1.5, 6.5}, {.2, 1.5}},
                {{1, 1}, {15, 30}, {1.5, 6.5}, {.2, 1.5}},
                {{2, 2}, {15, 30}, {1.5, 6.5}, {.2, 1.5}},
                {{0, 0}, {15, 30}, {1.5, 6.5}, {.2, 1.5}},
                {{1, 1}, {15, 30}, {1.5, 6.5}, {.2, 1.5}},
                {{2, 2}, {15, 30}, {1.5, 6.5}, {.2, 1.5}}},
     .words = {7, 20, 6},
     .right = raised,
     .wrong = {{"(van één klas uitgegaan|nu één klas geweest)", raised / (v[0] + 2)},
               {"gedeeld in plaats van", pupils / v[2] * v[3]},
               {"halve kilometer vergeten", pupils*(v[2] - .5) * v[3]},
               {"naar boven afgerond", pupils*(v[2] + .5) * v[3]},
               {"een klas te veel", raised + v[1] * v[2] * v[3]}},
     .explains = {{"deden # x # = # leerlingen * samen # x # km = # km",
                   {v[0] + 2, v[1], pupils, pupils, v[2], pupils* v[2]}}}},
    {.id = L_na_elkaar_12_01_click,
     .variants = 2,
     .reads = "| # - # (+|-) # =",
     .ranges = {{{80, 480, 10}, {60, 160}, {0, 0}, {15, 45}}, {{80, 480, 10}, {60, 160}, {1, 1}, {15, 45}}},
     .right = v[0] - v[1] + (1 - 2 * v[2]) * v[3],
     .wrong = {{"getallen bij elkaar opgeteld", v[0] - v[1] - v[3]},
               {"getallen van elkaar afgetrokken", v[0] - v[1] + v[3]},
               {"dat je alleen de eerste", v[0] - v[1]},
               {"alleen iets gedaan met de laatste", v[1] + (1 - 2 * v[2]) * v[3]}},
     .explains = {{"eerst doe je # - # = # en dan doe je ten slotte # (+|-) #",
                   {v[0], v[1], v[0] - v[1], v[0] - v[1], v[2], v[3]}}}},
    {.id = L_door_elkaar_12_02_click,
     .variants = 2,
     .reads = "Maak de som die hiernaast staat. | # + # x # - # =",
     .ranges = {{{3, 19}, {3, 12}, {4, 10}, {2, 6}}, {{15, 79}, {3, 12}, {4, 13}, {2, 9}}},
     .right = v[0] + v[1] * v[2] - v[3],
     .wrong = {{"eerst de vermenigvuldiging", (v[0] + v[1]) * v[2] - v[3]},
               {"geen haakjes", v[0] + v[1] * (v[2] - v[3])},
               {"wel in de juiste volgorde", (v[0] + v[1]) * (v[2] - v[3])}},
     .explains = {{"eerst # x # = #. Daar tel je # bij op, dan heb je #. Tot slot trek je er # van af",
                   {v[1], v[2], v[1] * v[2], v[0], v[0] + v[1] * v[2], v[3]}}}},
    {.id = L_haakjes_12_02_click,
     .variants = 2,
     .of = {1},
     .reads = "Maak de som die hiernaast staat. | # + # x \\( # - # \\) =",
     .ranges = {{{5, 40}, {2, 9}, {5, 24}, {3, 15}}},
     .right = v[0] + v[1] * (v[2] - v[3]),
     .wrong = {{"Er staan haakjes", v[0] + v[1] * v[2] - v[3]},
               {"op de haakjes gelet", (v[0] + v[1]) * v[2] - v[3]},
               {"haakjes heb je goed", (v[0] + v[1]) * (v[2] - v[3])},
               {"eerste getal vergeten", v[1] * (v[2] - v[3])},
               {"alles opgeteld", v[0] + v[1] + v[2] - v[3]}},
     .explains = {{"staat # - # = #. Daarna doe je # x #", {v[2], v[3], v[2] - v[3], v[1], v[2] - v[3]}}}},
    {.id = L_haakjes_12_02_click,
     .variants = 2,
     .of = {2},
     .reads = "Maak de som die hiernaast staat. | \\( # + # \\) x # + # =",
     .ranges = {{{3, 20}, {3, 20}, {2, 9}, {3, 40}}},
     .right = (v[0] + v[1]) * v[2] + v[3],
     .wrong = {{"Alles wat tussen haakjes", v[0] + v[1] * v[2] + v[3]},
               {"op de haakjes gelet", v[0] + v[1] * (v[2] + v[3])},
               {"haakjes heb je goed", (v[0] + v[1]) * (v[2] + v[3])},
               {"laatste getal vergeten", (v[0] + v[1]) * v[2]},
               {"alles opgeteld", v[0] + v[1] + v[2] + v[3]}},
     .explains = {{"staat # + # = #. Daarna doe je # x #", {v[0], v[1], v[0] + v[1], v[0] + v[1], v[2]}}}},
    {.id = L_onder_elkaar_12_06_click,
     .variants = 2,
     .reads = "zijn de getallen goed onder elkaar gezet? | A          B           C           D |",
     .counts = {without_comma},
     .ranges = {{{12, 98}}, {{102, 989}}},
     .right = commas_in_line,
     .wrong = {{"eindigen de getallen op dezelfde", lies::elsewhere}, {"Kijk nog eens goed naar #.", lies::elsewhere}},
     .explains = {{"Achter # staat geen komma", {v[0]}}}},
    {.id = M_maal_12_02_click,
     .variants = 2,
     .reads = "Bereken de uitkomst.",
     .counts = {wide(0), wide(1)},
     .ranges = {{{12, 99}, {12, 99}}, {{102, 989}, {12, 49}}},
     .right = product,
     .wrong = {{"", product - 10 * carried},
               {"", v[0] * (units + digit(v[1], 2))},
               {"", product - 100},
               {"", product + 10},
               {"", product + 100},
               {"", product + 200}},
     .explains = {{"dus # x # =  # en  # onthouden.", {units, digit(v[0], 1), digit(v[0], 1) * units, carried}},
                  {"| \\(# x #\\) | \\(# x #\\)", {v[0], units, v[0], 10 * digit(v[1], 2)}}},
     .tips = {"Je moet vermenigvuldigen.", "begin dan met de eenheden"},
     .check = check_rows},
    {.id = L_anders_12_02_click,
     .variants = 2,
     .reads = "De vermenigvuldiging van # en # kun je",
     .ranges = {{{18, 89}, {12, 98}}, {{21, 92}, {12, 98}}},
     .right = equal_to_product,
     .explains = {{"tiental: # = ", {v[0]}}, {"net als # x #.", {v[0], v[1]}}},
     .tips = {"Misschien kun je", "vlak bij een tiental"}},
    {.id = M_flesjes_12_02_click,
     .variants = 4,
     .reads = "In elk krat zitten # flesjes.",
     .counts = {crates(true, true), crates(false, true), crates(true, false), crates(false, false)},
     .ranges = {{{6, 6}, {2, 5}, {2, 5}, {2, 5}}, {{12, 12}}, {{20, 20}}, {{24, 24}}},
     .right = bottles,
     .wrong = {{"van voren ziet", crate_front* v[0]},
               {"van opzij ziet", crate_side* v[0]},
               {"aantal kratten", bottles / v[0]},
               {"Begin met het tellen", (crate_front + crate_side) * v[0]},
               {"boven elkaar staan dubbel", crate_front* crate_side* v[0]}},
     .explains = {{"voren zie je # x # = # * dat er # kratten", {v[1], v[2], crate_front, v[3]}}}},
    {.id = M_controle_12_02_click,
     .variants = 2,
     .reads = "zie je een (deling|vermenigvuldiging). * | # (:|x) # = #",
     .ranges = {{{0, 0}}, {{1, 1}}},
     .right = inverse,
     .wrong = {{"Je had er een (vermenigvuldiging|deling) van moeten maken", lies::elsewhere},
               {"wel een (vermenigvuldiging|deling) gedaan, maar met de verkeerde", lies::elsewhere}},
     .calculator = true},
    {.id = Z_memory_12_02_click,
     .variants = 2,
     .reads = "maar eens uit: \\(# + #\\) + \\(# - #\\) + \\(# x #\\) + \\(# : #\\) =",
     .ranges = {{{1, 99}, {1, 99}, {2, 98}, {1, 49}, {2, 51}, {2, 99}, {4, 1089, 60}, {2, 99}}},
     .right = from_memory,
     .wrong = by_tens,
     .tips = {"(gebruik dan de M+ toets|en druk dan de M+ toets...)", "Doe dan de aftrekking"},
     .calculator = true},
    {.id = Z_BTW_12_08_click,
     .variants = 2,
     .of = {1},
     .reads =
         "@ wil een nieuwe fiets kopen. De fiets kost € #, maar er * betaald worden? * | € $0 | exclusief 20 % BTW",
     .ranges = {{{150, 950, 1}}},
     .words = {20},
     .right = v[0] * 6 / 5,
     .wrong = {{"alleen de BTW", v[0] / 5},
               {"gaat er niet af", v[0] * 4 / 5},
               {"20 euro bij", v[0] + 20},
               {"twee keer", v[0] * 7 / 5}},
     .explains = {{"prijs van € # komt * toets # in", {v[0], v[0]}}},
     .calculator = true},
    {.id = Z_BTW_12_08_click,
     .variants = 2,
     .of = {2},
     .reads = "groothandel een fiets voor € #. * fiets dan eigenlijk? * | € $0 | inclusief 20 % BTW",
     .ranges = {{{180, 1140}}},
     .right = v[0] / 120 * 100,
     .wrong = {{"prijs MET BTW", v[0] * 4 / 5},
               {"nog een keer bij", v[0] * 6 / 5},
               {"20 euro afgetrokken", v[0] - 20},
               {"terugkrijgt", v[0] / 6}},
     .explains = {{"Deel € # eerst door 120; dan weet je wat 1 % is. Dat is € #.", {v[0], v[0] / 120}}},
     .calculator = true},
    {.id = Z_lenen_12_07_click,
     .variants = 4,
     .reads = "De (vader|moeder) van @ koopt een auto. {Hij|Zij} leent hiervoor een bedrag van € #,- bij de bank. "
              "{Hij|Zij} kan per maand € #,- hiervan aflossen.",
     .counts = {[](const reading& n) { return std::fmod(n[1], n[2]) > 0 ? 1 : 0; }},
     .ranges = {{{0, 0}, {1800, 12000}, {150, 400}, {0, 0}},
                {{1, 1}, {1800, 12000}, {150, 400}, {0, 0}},
                {{0, 0}, {1810, 12390, 600}, {150, 400}, {1, 1}},
                {{1, 1}, {1810, 12390, 600}, {150, 400}, {1, 1}}},
     .words = {15},
     .right = months,
     .explains = {{"In # maanden wordt # x € #,-", {months - v[3], months - v[3], v[2]}}},
     .tips = {"Deel eerst het geleende", "Een restbedrag wordt in"},
     .calculator = true},
};

} // namespace
} // namespace cijferwerf
