// Number lines and places of digits: what they draw, their answers worked out again from what a pupil sees, and each
// wrong answer as the mistake that its feedback names.
#include "tests/support/exercise_rows.h"
#include "tests/support/pattern.h"

#include <deque>
#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

template<class Operation>
std::vector<Operation> operations(const seen& e) {
    std::vector<Operation> all;
    for (const drawing_op& each : e.made.plaatje.operations())
        if (const auto* operation = std::get_if<Operation>(&each)) all.push_back(*operation);
    return all;
}

// How many marks stand left of this x, where one must be.
int mark_at(const seen& e, int x) {
    std::set<int> marks;
    for (const line_op& line : operations<line_op>(e))
        if (line.from.x == line.to.x) marks.insert(line.from.x);
    EXPECT_TRUE(marks.contains(x)) << "no mark at " << x;
    return static_cast<int>(std::distance(marks.begin(), marks.find(x)));
}
int tip_of(const seen& e, kleur colour) {
    for (const polygon_op& each : operations<polygon_op>(e))
        if (each.filled && each.pen.colour == colour) return each.corners.front().x;
    return -1;
}
formula arrow(kleur colour) {
    return [colour](const reading& n) { return mark_at(n.exercise, tip_of(n.exercise, colour)); };
}
// The mark above a text of the picture.
formula above(std::size_t word) {
    return [word](const reading& n) {
        const text_op& text = n.exercise.texts.at(word);
        return mark_at(n.exercise, text.x + text_width(text.text, text.size) / 2);
    };
}

constexpr const char* ordinals = "(nulde|eerste|tweede|derde|vierde|vijfde|zesde|zevende|achtste|negende)";

const formula piece = (v[1] - v[0]) / v[3];
const formula pointed = v[0] + v[2] * piece;

// A line in ten pieces, and an arrow of this colour.
exercise_row row_of_ten(oefening_id id, kleur colour, const char* reads, std::vector<std::vector<span>> ranges,
                        const std::string& told, std::vector<const char*> tips) {
    static std::deque<std::string> kept;
    const char* pattern = kept.emplace_back(regel(ordinals, " streepje. ", told, " | # | # |  | #")).c_str();
    const formula tenth = (v[1] - v[0]) / 10, right = v[0] + v[2] * tenth;
    return {.id = id,
            .variants = 3,
            .reads = reads,
            .counts = {arrow(colour)},
            .ranges = std::move(ranges),
            .right = right,
            .wrong = {{"", v[1] - v[2] * tenth},
                      {"", v[0] + v[2] * tenth / 10},
                      {"", right - tenth},
                      {"", right - tenth * 2},
                      {"", right + tenth},
                      {"", right + tenth * 2}},
            .explains = {{pattern, {v[2], v[0], v[2], right, v[0], v[1], right}}},
            .tips = std::move(tips)};
}

const formula pieces_to_arrow = [](const reading& n) {
    return std::round((n[0] - n[1]) * (n.variant() == 1 ? 5 : 10));
};
const formula several = [](const reading& n) { return n[3] > 1 ? 1 : 0; };
const formula arrow_piece = [](const reading& n) { return n.variant() == 1 ? 0.2 : 0.1; };

void check_arrows(const reading& n) {
    const seen& e = n.exercise;
    static constexpr std::array colours{rood, blauw, geel, groen};
    const double parts = n.variant() == 1 ? 5 : 10;
    EXPECT_EQ(mark_at(e, 5090), parts);
    std::set<int> marks;
    for (int i = 1; i <= 4; ++i) {
        const kleur colour = colours.at(static_cast<std::size_t>(i - 1));
        const int mark = mark_at(e, tip_of(e, colour));
        marks.insert(mark);
        EXPECT_EQ(e.answer(i), regel(bijvoeglijk(colour), " pijl"));
        const text_op& name = e.texts.at(static_cast<std::size_t>(i + 1));
        EXPECT_EQ(name.text, woord(colour));
        EXPECT_NEAR(name.x + text_width(name.text, name.size) / 2, tip_of(e, colour), 2);
        const double value = n[1] + mark / parts;
        EXPECT_EQ(same(value, n[0]), i == e.right_place());
        if (i == e.right_place()) continue;
        const auto told = find_pattern(
            e.feedback(i), regel("De ", e.answer(i), " wijst naar het ", ordinals, " streepje, dus naar het getal #."));
        ASSERT_TRUE(told) << e.feedback(i);
        EXPECT_TRUE(told->numbers[0] == mark && same(told->numbers[1], value)) << e.feedback(i);
    }
    EXPECT_EQ(marks.size(), 4U);
    EXPECT_TRUE(*marks.begin() >= 1 && *marks.rbegin() < parts);
    EXPECT_TRUE(e.last.ends_with(regel("staat de ", e.right, ".")));
}

// Read word by word, apart from how they are made: "tweehonderddrieenvijftigduizend" is 253000.
double read_words(std::string_view text) {
    static constexpr std::array<std::pair<std::string_view, int>, 25> known{
        {{"dertien", 13}, {"veertien", 14}, {"twintig", 20},  {"dertig", 30},   {"veertig", 40},
         {"vijftig", 50}, {"zestig", 60},   {"zeventig", 70}, {"tachtig", 80},  {"negentig", 90},
         {"één", 1},      {"twee", 2},      {"drie", 3},      {"vier", 4},      {"vijf", 5},
         {"zes", 6},      {"zeven", 7},     {"acht", 8},      {"negen", 9},     {"tien", 10},
         {"elf", 11},     {"twaalf", 12},   {"en", 0},        {"honderd", 100}, {"duizend", 1000}}};
    double value = 0;
    if (text.ends_with(" miljoen")) return 1e6 * read_words(text.substr(0, text.size() - 8));
    while (!text.empty()) {
        const auto word = std::ranges::find_if(known, [&](const auto& each) { return text.starts_with(each.first); });
        if (word == known.end()) return -1;
        value = word->second < 100 ? value + word->second : std::max(value, 1.0) * word->second;
        text.remove_prefix(word->first.size());
    }
    return value;
}
const formula in_words = [](const reading& n) {
    double all = 0;
    for (const std::string& word : n.exercise.words) all += read_words(word);
    return all;
};

// Which digits of a wrong answer stand elsewhere is what its feedback says.
void check_digits(const reading& n) {
    const seen& e = n.exercise;
    const auto digits = [](std::string of) { return std::erase(of, '.'), of; };
    const std::string right = digits(e.right);
    for (int i = 2; i <= 4; ++i) {
        const std::string wrong = digits(e.answer(i));
        ASSERT_TRUE(std::ranges::is_permutation(right, wrong));
        std::string differ;
        for (std::size_t at = 0; at < right.size(); ++at) differ += right[at] == wrong[at] ? '.' : 'x';
        const auto in_left = std::count(differ.begin(), differ.end() - 3, 'x'),
                   in_right = std::ranges::count(differ, 'x') - in_left;
        EXPECT_TRUE((in_left == 0 || in_left == 2) && (in_right == 0 || in_right == 2)) << wrong;
        const char* told = n.variant() < 3 && differ.starts_with("xx") && in_right == 0 ? "De eerste twee cijfers"
                           : in_left == 0                                               ? "In het laatste deel"
                           : in_right > 0                                               ? "Vier cijfers"
                           : n.variant() == 3 ? "De laatste drie cijfers zijn wel goed. In het middelste"
                                              : "De laatste drie cijfers zijn wel goed. In het linker";
        EXPECT_TRUE(e.feedback(i).starts_with(told)) << wrong << ": " << e.feedback(i);
    }
    for (const std::string& word : e.words) {
        const double part = read_words(word) / (word.ends_with("miljoen") ? 1e6 : word.ends_with("duizend") ? 1e3 : 1);
        EXPECT_NE(e.explanation.find(regel("stukje ", word, " wordt", static_cast<int>(part), ".")), std::string::npos);
    }
    EXPECT_EQ(e.when_explained().words.back(), e.right);
}

// The place of the digit at which the arrow points, counted from 0 at the right end.
const formula place = [](const reading& n) {
    const text_op& number = n.exercise.texts.at(0);
    const int tip = tip_of(n.exercise, rood);
    int from_right = 0;
    for (std::size_t at = number.text.size(); at-- > 0;) {
        if (number.text[at] == '.') continue;
        const int left = number.x + text_width(number.text.substr(0, at), number.size);
        if (std::abs(left + text_width("0", number.size) / 2 - tip) <= 2) return from_right;
        ++from_right;
    }
    return -1;
};
const formula digit = [](const reading& n) { return std::fmod(std::floor(n[0] / std::pow(10, n[1])), 10); };
const formula place_worth = [](const reading& n) { return std::pow(10, n[1]); };
void check_place_names(const reading& n) {
    static constexpr std::array names{"de eenheden", "(T)", "(H)", "(D)", "(TD)", "(HD)", "(M)", "(TM)"};
    const seen& e = n.exercise;
    const double worth_one = e.numbers()[0] / std::pow(10, n[1]);
    for (int i = 1; i <= 4; ++i) {
        const double at = std::log10(e.numbers().at(static_cast<std::size_t>(i - 1)) / worth_one);
        const std::string name = names.at(static_cast<std::size_t>(std::round(at)));
        const std::string told = i == 1 ? e.explanation : e.feedback(i);
        EXPECT_NE(told.find(name + (i == 1 ? " aan." : ".")), told.npos) << e.answer(i) << ": " << told;
        EXPECT_LE(std::abs(at - n[1]), n[1] == 7 ? 3 : 2);
    }
}

const formula first_half = [](const reading& n) {
    const double unit = n.variant() == 3 ? 0.01 : 0.1;
    return unit * std::floor(n[0] / unit);
};
// Each option is a sum of two fractions; the feedback tells which of them the right one has too.
void check_halves(const reading& n) {
    const auto options = n.exercise.options();
    const auto half = [](const std::string& of, bool first) {
        return first ? of.substr(0, of.find(" + ")) : of.substr(of.find(" + "));
    };
    const std::string& right = options.at(static_cast<std::size_t>(n.exercise.right_place() - 1));
    for (int i = 1; i <= 4; ++i) {
        const std::string& option = options.at(static_cast<std::size_t>(i - 1));
        const auto sum = find_pattern(option, "& + &");
        ASSERT_TRUE(sum);
        EXPECT_EQ(same(sum->numbers[0] + sum->numbers[1], n[0]), i == n.exercise.right_place()) << option;
        if (i == n.exercise.right_place()) continue;
        const char* told = half(option, true) == half(right, true)     ? "De eerste helft van je antwoord is goed"
                           : half(option, false) == half(right, false) ? "De tweede helft van je antwoord is wel goed"
                                                                       : "Beide helften";
        EXPECT_TRUE(n.exercise.feedback(i).starts_with(told)) << option;
    }
}

constexpr std::array one_of{"honderdtal", "tiental", "eenheid", "tiende", "honderdste", "duizendste"};
constexpr std::array more_of{"honderdtallen", "tientallen", "eenheden", "tienden", "honderdsten", "duizendsten"};
// What the counted places are worth; one is named in the singular.
formula counted(std::size_t which) {
    return [which](const reading& n) {
        const auto& names = n[which] == 1 ? one_of : more_of;
        return std::pow(10, 2 - (std::ranges::find(names, n.words[which]) - names.begin()));
    };
}
void check_composed(const reading& n) {
    const seen& e = n.exercise;
    EXPECT_NE(n[0], n[1]);
    const auto digit_on = [](double value, double unit) { return std::fmod(std::floor(value / unit + 1e-6), 10); };
    for (int i = 2; i <= 4; ++i) {
        const double value = e.numbers().at(static_cast<std::size_t>(i - 1));
        const bool first = digit_on(value, n[2]) == n[0], second = digit_on(value, n[3]) == n[1];
        const auto told =
            find_pattern(e.feedback(i), "De # staat wel goed, maar de # staat niet op de plaats van de @.");
        EXPECT_EQ(told.has_value(), first || second) << e.feedback(i);
        if (!told) continue;
        EXPECT_TRUE(told->numbers == (first ? std::vector{n[0], n[1]} : std::vector{n[1], n[0]})) << e.feedback(i);
        EXPECT_EQ(told->words[0],
                  more_of.at(static_cast<std::size_t>(std::round(2 - std::log10(first ? n[3] : n[2])))));
    }
    std::string drawn, wanted = e.right;
    const auto words = e.when_explained().words;
    for (std::size_t at = e.words.size(); at < words.size(); ++at) drawn += words[at];
    std::erase(wanted, ',');
    EXPECT_EQ(drawn, wanted);
}

const exercise_rows lines_and_places{
    {.id = B_getallenlijn_11_01_click,
     .variants = 5,
     .reads = "wijst die pijl? | # | #",
     .counts = {arrow(rood), above(1)},
     .ranges = {{{5, 905, 5}, {13, 1705, 200}, {1, 9}, {4, 8}}},
     .right = pointed,
     .wrong = {{"", pointed - piece},
               {"", pointed + piece},
               {"", v[0] + piece},
               {"", v[0] + v[2]},
               {"", pointed + v[2] * piece},
               {"", v[1] + v[2] * piece}},
     .explains = {{"tussen # en # in # stukjes is verdeeld. Het verschil is # - # = #. ",
                   {v[0], v[1], v[3], v[1], v[0], v[1] - v[0]}},
                  {"van # : # = #. De pijl staat # (stukje|stukjes) verder dan #. ",
                   {v[1] - v[0], v[3], piece, v[2], [](const reading& n) { return n[2] == 1 ? 0 : 1; }, v[0]}},
                  {"dus # + # x # = #. | # | #", {v[0], v[2], piece, pointed, v[0], v[1]}},
                  {"|  | # | # + # x # = #", {pointed, v[0], v[2], piece, pointed}}},
     .tips = {"Bereken eerst hoeveel de", "Deel het verschil"},
     .check =
         [](const reading& n) {
             static constexpr std::array pieces{2, 5, 10, 50, 100};
             EXPECT_EQ(n[1] - n[0], n[3] * pieces.at(static_cast<std::size_t>(n.variant() - 1)));
             EXPECT_NE(n[2], n[3]);
             EXPECT_EQ(std::get<double>(above(0)(n)), 0);
             for (const double each : n.exercise.numbers()) EXPECT_TRUE(each != n[0] && each != n[1]);
         }},
    row_of_ten(B_pijl_1_11_06_click, geel, "wijst de pijl? | # | #",
               {{{0, 9}, {1, 10}, {1, 9}}, {{10, 99}, {11, 100}, {1, 9}}, {{100, 199}, {101, 200}, {1, 9}}},
               "Dat is # + # x 0,1 = #.", {"In hoeveel stukjes", "één lang"}),
    row_of_ten(B_pijl_2_11_06_click, blauw, "Welk getal is dat? | # | #",
               {{{0.1, 0.9}, {0.2, 1}, {1, 9}}, {{1, 9.9}, {1.1, 10}, {1, 9}}, {{10, 19.9}, {10.1, 20}, {1, 9}}},
               "Dat is # + # x 0,01 = #.", {"Hoe groot is het verschil", "een tiende lang"}),
    {.id = L_pijlverwijzing_11_06_click,
     .variants = 2,
     .reads = "geeft het getal # aan? | # | #",
     .counts = {pieces_to_arrow},
     .ranges = {{{0.2, 99.8, 2}, {0, 99}, {1, 100}, {1, 4}}, {{0.1, 99.9, 2}, {0, 99}, {1, 100}, {1, 9}}},
     .explains = {{"tussen # en # is in (vijf|tien) gelijke stukjes verdeeld. Elk stukje heeft dus een waarde van #.",
                   {v[1], v[2], [](const reading& n) { return n.variant() - 1; }, arrow_piece}},
                  {"Van # tot # (is|zijn) het # (stukje|stukjes): # + # x # = #.",
                   {v[1], v[0], several, v[3], several, v[1], v[3], arrow_piece, v[0]}},
                  {"geel | groen | #", {v[0]}}},
     .check = check_arrows},
    {.id = B_letters_11_01_click,
     .variants = 3,
     .reads = "Hoe schrijf je het in cijfers?",
     .counts = {in_words},
     .ranges = {{{12102, 98987, 1500}}, {{102102, 987987, 15000}}, {{1102102, 9987987, 150000}}},
     .right = v[0],
     .wrong = {{"De eerste twee cijfers", lies::elsewhere},
               {"De laatste drie cijfers zijn wel goed. In het (linker|middelste) deel", lies::elsewhere},
               {"In het laatste deel", lies::elsewhere},
               {"Vier cijfers staan nog niet", lies::elsewhere}},
     .explains = {{"dus #.", {v[0]}}},
     .check = check_digits},
    {.id = B_waarde_11_01_click,
     .variants = 3,
     .reads = "dat cijfer waard? | #",
     .counts = {place},
     .ranges = {{{1000, 99999, 400}, {1, 4}},
                {{100000, 9999999, 40000}, {3, 6}},
                {{10000000, 99999999, 400000}, {6, 7}}},
     .right = digit * place_worth,
     .explains = {{"naar het cijfer #.", {digit}},
                  {"met #. Uitkomst: # x # = #. |* | # x # = #",
                   {place_worth, digit, place_worth, digit* place_worth, digit, place_worth, digit* place_worth}}},
     .check = check_place_names},
    {.id = L_na_de_komma_11_06_click,
     .variants = 3,
     .reads = "Kies de juiste kleur. | # =",
     .ranges = {{{0.26, 0.59}}, {{0.206, 0.509}}, {{0.026, 0.059}}},
     .explains = {{"Dus: # = & + &. De juiste kleur is dus", {v[0], first_half, v[0] - first_half}}},
     .check = check_halves},
    {.id = L_samenstellen_11_06_click,
     .variants = 6,
     .reads = "bestaat uit # @ en # @? | D | H | T | E | t | h | d",
     .counts = {counted(0), counted(1)},
     .ranges = {{{1, 5}, {2, 9}, {0.1, 100}, {0.001, 10}}},
     .right = v[0] * v[2] + v[1] * v[3],
     .wrong = {{"met elkaar verwisseld", v[0] * v[3] + v[1] * v[2]},
               {"staat wel goed", lies::elsewhere},
               {"allebei niet", lies::elsewhere}},
     .explains = {{"is dat # x # = #, voor de @ is dat # x # = #. Samen is dat # + # = #.",
                   {v[0], v[2], v[0] * v[2], v[1], v[3], v[1] * v[3], v[0] * v[2], v[1] * v[3],
                    v[0] * v[2] + v[1] * v[3]}}},
     .check = check_composed},
};

} // namespace
} // namespace cijferwerf
