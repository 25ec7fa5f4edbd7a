// Estimates: what is drawn, or stands in a table, a letter or on a counter, is read back and rounded again.
#include "tests/support/exercise_rows.h"

#include <map>
#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

template<class Operation>
std::vector<Operation> all_of(const seen& e) {
    std::vector<Operation> all;
    for (const drawing_op& each : e.made.plaatje.operations())
        if (const auto* operation = std::get_if<Operation>(&each)) all.push_back(*operation);
    return all;
}

const formula hatched = [](const reading& n) {
    const auto circles = all_of<circle_op>(n.exercise);
    return circles.back().sweep / 3.6;
};
const formula quarters = [](const reading& n) { return std::round(n[0] / 25); };
void check_circle(const reading& n) {
    const circle_op sector = all_of<circle_op>(n.exercise).back();
    EXPECT_NEAR(std::fmod(sector.start + sector.sweep + 360, 360), (5 - n.variant()) * 90 % 360, 1e-6);
    EXPECT_LE(std::abs(n[0] - decimal(n.exercise.right)), 4.001);
    EXPECT_GE(std::abs(n[0] - decimal(n.exercise.right)), 0.999);
    for (const double each : n.exercise.numbers())
        EXPECT_TRUE(each == decimal(n.exercise.right) || std::abs(each - n[0]) > 5) << "as near as the right one";
    EXPECT_EQ(std::ranges::count(n.exercise.when_explained().words, "25 %"), 4);
}

// "0,4 dm" in millimetres.
double in_mm(const std::string& text) {
    static const std::map<std::string, double> sizes{{"mm", 1},    {"cm", 10},  {"dm", 100}, {"m", 1e3},
                                                     {"dam", 1e4}, {"hm", 1e5}, {"km", 1e6}};
    const std::size_t blank = text.find(' ');
    return decimal(text.substr(0, blank)) * sizes.at(text.substr(blank + 1));
}
// The true sizes in millimetres; both lines of an answer are the same length.
void check_length(const reading& n) {
    const std::array<double, 10> sizes{40, 1100, 15e6, 800, 500, 900, 2000, 120e6, 5e6, 2000};
    const double size = sizes.at(static_cast<std::size_t>(n.variant() - 1));
    std::set<std::string> units;
    for (int i = 1; i <= 4; ++i) {
        const std::string answer = n.exercise.answer(i);
        const std::size_t second = answer.find("\r= ");
        ASSERT_NE(second, answer.npos);
        const double length = in_mm(answer.substr(0, second));
        EXPECT_TRUE(same(length, in_mm(answer.substr(second + 3)))) << answer;
        units.insert(answer.substr(answer.find(' '), second - answer.find(' ')));
        if (i == n.exercise.right_place()) {
            EXPECT_TRUE(same(length, size)) << answer;
            continue;
        }
        const double places = std::log10(length / size);
        EXPECT_TRUE(same(places, std::round(places)) && std::abs(places) > 0.5 && std::abs(places) < 3.5);
        EXPECT_EQ(n.exercise.feedback(i).find(places < 0 ? "veel te weinig" : "veel te veel"), 7U);
    }
    EXPECT_EQ(units.size(), 1U);
    const std::array<std::pair<const char*, const char*>, 10> told{
        {{"De lengte van een gewone lucifer", "lucifer is ongeveer 4 cm lang."},
         {"De lengte van de aanwijsstok van de leerkracht", "aanwijsstok is ongeveer 1,1 meter lang."},
         {"Iemand die rustig fietst legt in een uur", "legt in een uur ongeveer 15 km af."},
         {"De omtrek van een voetbal", "voetbal is ongeveer 80 cm."},
         {"De lengte van een pasgeboren baby", "baby is ongeveer 0,5 meter lang."},
         {"De hoogte van een aanrecht", "aanrecht is ongeveer 0,9 meter hoog."},
         {"De hoogte van een deur", "Een deur is ongeveer 2 meter hoog."},
         {"Een auto rijdt op de snelweg", "snelweg ongeveer 120 km per uur."},
         {"Iemand die rustig loopt, loopt per", "loopt ongeveer 5 km per uur."},
         {"Een bed heeft een lengte", "bed is ongeveer 2 meter lang."}}};
    const auto& [asked, closed] = told.at(static_cast<std::size_t>(n.variant() - 1));
    EXPECT_TRUE(n.words[0].starts_with(asked)) << n.words[0];
    EXPECT_NE(n.exercise.explanation.find(closed), std::string::npos);
    const auto steps = n.exercise.told("ga je (\\d) treden? (omlaag|omhoog): [0-9.,]+ (x|:) ([0-9.]+) =");
    EXPECT_EQ(decimal(steps.at(4)), std::pow(10, decimal(steps.at(1))));
    EXPECT_EQ(steps.at(2) == "omlaag", steps.at(3) == "x");
}

const formula width = rounded(v[0]), length = rounded(v[1]);
const auto cut_off = [](std::size_t i) -> formula { return [=](const reading& n) { return std::floor(n[i]); }; };

const formula more_than = [](const reading& n) { return n[0] == 0 ? 1e6 : 5e5; };
// Who is right about which museum is two bits; two answers differ in one of them or in both.
void check_claims(const reading& n) {
    const double claimed = std::get<double>(more_than(n));
    const bool first = n[1] + n[2] > claimed, second = n[3] + n[4] > claimed;
    EXPECT_LT(std::abs(n[1] + n[2] - claimed), 11'000) << "the thousands decide";
    EXPECT_LT(std::abs(n[3] + n[4] - claimed), 11'000);
    EXPECT_NE(std::floor(n[1] / 1000) + std::floor(n[2] / 1000), claimed / 1000 - 1);
    EXPECT_NE(n.words[0], n.words[1]);
    const std::array<std::string, 4> told{"alleen " + n.words[0], "alleen " + n.words[1], "allebei", "niemand"};
    EXPECT_EQ(n.exercise.answers(), told);
    const int right = first && second ? 3 : first ? 1 : second ? 2 : 4;
    ASSERT_EQ(n.exercise.right, told.at(static_cast<std::size_t>(right - 1)));
    for (int i = 1; i <= 4; ++i) {
        if (i == right) continue;
        const bool both = i + right == 3 || i + right == 7;
        EXPECT_EQ(n.exercise.feedback(i).find("daarna de honderdtallen") != std::string::npos, both) << i;
        EXPECT_EQ(n.exercise.feedback(i).find("Vergelijk eerst") != std::string::npos, !both) << i;
    }
}
const auto thousands = [](std::size_t i) -> formula {
    return [=](const reading& n) { return std::floor(n[i] / 1000); };
};
const auto reaches = [](std::size_t i) -> formula {
    return [=](const reading& n) { return n[i] + n[i + 1] > (n[0] == 0 ? 1e6 : 5e5) ? 0 : 1; };
};

// How far the lines reach from left to right.
std::pair<int, int> reach(const seen& e) {
    std::pair<int, int> ends{drawing::inner_width, 0};
    for (const line_op& each : all_of<line_op>(e))
        ends = {std::min({ends.first, each.from.x, each.to.x}), std::max({ends.second, each.from.x, each.to.x})};
    return ends;
}
// That of the line with the length, in bars of a centimetre.
const formula drawn = [](const reading& n) {
    const auto [from, to] = reach(n.exercise);
    return 1.0 * (to - from) / n.exercise.blocks.back().width;
};
const formula scale = v[1] * 100 / v[2];
void check_bars(const reading& n) {
    const seen later = n.exercise.when_explained();
    EXPECT_EQ(static_cast<double>(later.blocks.size() - n.exercise.blocks.size()), n[2]);
    const box_op& last = later.blocks.back();
    const auto [from, to] = reach(n.exercise);
    EXPECT_EQ(n.exercise.blocks.back().width, 567);
    EXPECT_EQ(last.x + last.width, to);
    EXPECT_EQ(later.blocks[n.exercise.blocks.size()].x, from);
}

const formula on_counter = [](const reading& n) {
    std::string digits = n.exercise.words.at(1);
    std::erase(digits, ' ');
    return decimal(digits);
};
const formula year = rounded(v[0] / 100) * 100;

const auto thousand = [](std::size_t i, int towards) -> formula {
    return [=](const reading& n) {
        const double near = std::round(n[i] / 1000);
        return 1000 * (towards == 0 ? near : n[i] < 1000 * near ? near - 1 : near + 1);
    };
};
const formula left_over = v[0] - thousand(1, 0) - thousand(2, 0);

std::vector<double> times(const reading& n) {
    std::vector<double> all;
    for (std::size_t i = 2; i < n.exercise.words.size(); i += 2) all.push_back(decimal(n.exercise.words[i]));
    return all;
}
const formula runners = [](const reading& n) { return times(n).size(); };
const formula whole_seconds = [](const reading& n) {
    double sum = 0;
    for (const double each : times(n)) sum += std::floor(each);
    return sum;
};
const formula tenths = [](const reading& n) {
    double sum = 0;
    for (const double each : times(n)) sum += std::round(each * 10 - std::floor(each) * 10);
    return sum;
};
const formula estimated = v[1] + rounded(v[2] / 10);
void check_runners(const reading& n) {
    EXPECT_NE(std::fmod(n[2], 10), 5);
    double each_rounded = 0;
    for (const double each : times(n)) each_rounded += std::round(each);
    EXPECT_EQ(each_rounded, decimal(n.exercise.right)) << "the other way to round";
    std::set<std::string> names;
    for (std::size_t i = 1; i < n.exercise.words.size(); i += 2) names.insert(n.exercise.words[i]);
    EXPECT_EQ(static_cast<double>(names.size()), n[0]);
}

const exercise_rows estimates{
    {.id = B_gestreept_10_03_click,
     .variants = 4,
     .reads = "vier stukken verdeeld. Voor welk deel ongeveer is de cirkel gestreept?",
     .counts = {hatched},
     .ranges = {{{20.99, 79.01, 0.1}}},
     .right = quarters * 25,
     .wrong = {{"klok", quarters * 15},
               {"twee dingen door elkaar", 100 - quarters * 25},
               {"zomaar een gokje", lies::elsewhere}},
     .explains = {{"ongeveer # (stuk|stukken) gestreept. Het gestreepte deel is dus ongeveer # x 25 % = # %.",
                   {quarters, [](const reading& n) { return n[0] > 30 ? 1 : 0; }, quarters, quarters * 25}}},
     .check = check_circle},
    {.id = B_schatten_1_10_09_click, .variants = 10, .reads = "Maak een schatting. @ | km", .check = check_length},
    {.id = L_betegelen_10_12_click,
     .variants = 3,
     .reads = "De vloer is # m breed en # m lang. Hoeveel m² heeft hij ongeveer nodig? | $1 m | $0 m",
     .ranges = {{{1.9, 5.9}, {3, 9}}, {{2, 6}, {2.9, 8.9}}, {{1.9, 5.9}, {2.9, 8.9}}},
     .right = width * length,
     .wrong = {{"Eerst moet je de lengte", cut_off(0) * cut_off(1)},
               {"Eerst moet je de lengte", (width - 1) * length},
               {"Eerst moet je de lengte", width*(length - 1)},
               {"Eerst moet je de lengte", (cut_off(0) + 1) * (cut_off(1) + 1)},
               {"met elkaar vermenigvuldigen", width + length},
               {"met elkaar vermenigvuldigen", (width + length) * 2}},
     .explains = {{"is ongeveer # m en de lengte is ongeveer # m. # x # = #, dus",
                   {width, length, width, length, width* length}}}},
    {.id = L_bezoekers_10_00_click,
     .variants = 2,
     .reads = "@ zegt dat museum A in twee jaar meer dan (1 miljoen|een half miljoen) bezoekers had. @ zegt dat van "
              "museum B. Wie heeft gelijk? |* vorig jaar | dit jaar | museum A | # | # | museum B | # | #",
     .ranges = {{{0, 0}, {440e3, 561e3, 4e3}, {430e3, 570e3, 7e3}, {440e3, 561e3, 4e3}, {430e3, 570e3, 7e3}},
                {{1, 1}, {190e3, 311e3, 4e3}, {180e3, 320e3, 7e3}, {190e3, 311e3, 4e3}, {180e3, 320e3, 7e3}}},
     .words = {20, 20},
     .explains = {{"Museum A: # + # = # duizend, dus (meer|minder) dan",
                   {thousands(1), thousands(2), thousands(1) + thousands(2), reaches(1)}},
                  {"Museum B: # + # = # duizend, dus (meer|minder) dan",
                   {thousands(3), thousands(4), thousands(3) + thousands(4), reaches(3)}}},
     .check = check_claims},
    {.id = L_schaal_10_16_click,
     .variants = 5,
     .reads = "tekening van een (vrachtauto|motorjacht|flatgebouw|trein|vliegtuig). In het echt is {de|het|het|de|het} "
              "{vrachtauto|motorjacht|flatgebouw|trein|vliegtuig} # m lang. Maak een schatting van de schaal waarin "
              "deze tekening gemaakt is. | $1 m | 1 cm",
     .counts = {drawn},
     .ranges = {{{0, 0}, {8, 18}, {4, 6}},
                {{1, 1}, {12, 30}, {4, 6}},
                {{2, 2}, {40, 90}, {4, 6}},
                {{3, 3}, {80, 180}, {4, 6}},
                {{4, 4}, {36, 72}, {4, 6}}},
     .right = says("1 : #", scale),
     .wrong = {{"omgerekend van m naar cm", says("1 : #", scale * 10)},
               {"omgerekend van m naar cm", says("1 : #", scale / 10)},
               {"erg ver naast", says("1 : #", scale * 5)},
               {"erg ver naast", says("1 : #", scale / 5)},
               {"Bedenk wat 1 cm", says("1 : #", scale * 2)},
               {"Bedenk wat 1 cm", says("1 : #", scale / 2)}},
     .explains = {{"past # keer in de tekening, dus de tekening is # cm lang.", {v[2], v[2]}},
                  {"dat # m = # cm. 1 cm is in het echt # : # = # cm.", {v[1], v[1] * 100, v[1] * 100, v[2], scale}}},
     .check = check_bars},
    {.id = L_schatten_2_10_09_click,
     .variants = 2,
     .of = {1},
     .reads = "Op de kilometerteller * gemiddeld ongeveer per maand?",
     .counts = {on_counter},
     .ranges = {{{10751, 36049, 60}}},
     .right = says("# km", year / 12),
     .wrong = {{"'t per week uitgerekend", rounded(year / 520) * 10},
               {"tien maanden heeft", year / 10},
               {"een beetje naast", lies::below},
               {"een beetje naast", lies::above}},
     .explains = {{"ongeveer # km. Een jaar heeft 12 maanden. Je deelt dus door 12: # : 12 = #.",
                   {year, year, year / 12}},
                  {"# km per maand.", {year / 12}}}},
    {.id = L_schatten_2_10_09_click,
     .variants = 2,
     .of = {2},
     .reads = "Op de kilometerteller * gemiddeld ongeveer per week?",
     .counts = {on_counter},
     .ranges = {{{10351, 36449, 60}}},
     .right = says("# km", year / 52),
     .wrong = {{"'t per maand uitgerekend", rounded(year / 120) * 10},
               {"48 weken heeft", rounded(year / 240) * 5},
               {"een beetje naast", lies::below},
               {"een beetje naast", lies::above}},
     .explains = {{"ongeveer # km. Een jaar heeft 52 weken. Je deelt dus door 52: # : 52 = #.",
                   {year, year, year / 52}},
                  {"# km per week.", {year / 52}}}},
    {.id = M_erfenis_10_07_click,
     .variants = 3,
     .reads = "Een man erft € #,-. Hij krijgt de brief hiernaast. Verder koopt hij @ van € #,-. Hoeveel geld heeft hij "
              "dan nog ongeveer over? | BELASTINGDIENST | Geachte heer, | Over uw erfenis van € $0,- | moet u € #,- "
              "belasting betalen.",
     .ranges = {{{20000, 60000}, {865, 5985, 40}, {2811, 8989, 60}},
                {{20000, 60000}, {1015, 6135, 40}, {3011, 9189, 60}},
                {{20000, 60000}, {865, 6135, 60}, {2811, 9189, 90}}},
     .words = {9},
     .right = left_over,
     .wrong = {{"Rond de bedragen eerst af.", v[0] - thousand(1, 0) - thousand(2, 1)},
               {"Eerst moet je de bedragen", v[0] - thousand(1, 1) - thousand(2, 0)},
               {"Eerst moet je de bedragen", v[0] - thousand(1, 1) - thousand(2, 1)},
               {"Hij koopt ook nog", v[0] - thousand(2, 0)},
               {"nog belasting betalen", v[0] - thousand(1, 0)}},
     .explains = {{"Rond af: # is ongeveer # en # is ongeveer #.", {v[2], thousand(2, 0), v[1], thousand(1, 0)}},
                  {"EERSTE MANIER: * # - # - # = #.", {v[0], thousand(2, 0), thousand(1, 0), left_over}},
                  {"TWEEDE MANIER: * # + # = #. *: # - # = #.",
                   {thousand(2, 0), thousand(1, 0), thousand(1, 0) + thousand(2, 0), v[0],
                    thousand(1, 0) + thousand(2, 0), left_over}}},
     .check =
         [](const reading& n) {
             const bool price_under = std::fmod(n[1], 1000) > 500, tax_under = std::fmod(n[2], 1000) > 500;
             EXPECT_TRUE(n.variant() == 3 ? price_under != tax_under
                                          : price_under == tax_under && price_under == (n.variant() == 1));
             EXPECT_LT(std::abs(n[0] - n[1] - n[2] - decimal(n.exercise.right.substr(4))), 500);
         }},
    {.id = M_seconden_10_06_click,
     .variants = 3,
     .reads = "Hoeveel seconden is dat ongeveer bij elkaar? | UITSLAG: | @ | ",
     .counts = {runners, whole_seconds, tenths},
     .ranges = {{{3, 3}, {33, 57, 3}, {3, 27, 4}},
                {{4, 4}, {44, 76, 5}, {4, 36, 6}},
                {{5, 5}, {55, 95, 8}, {5, 45, 8}}},
     .words = {19},
     .right = says("# seconden", estimated),
     .wrong = {{"wel gekeken naar de cijfers achter de komma", says("# seconden", v[1])},
               {"naar boven afgerond", says("# seconden", v[1] + v[0])},
               {"achter de komma nog eens", says("# seconden", estimated - 1)},
               {"achter de komma nog eens", says("# seconden", estimated + 1)},
               {"vóór de komma nog eens", says("# seconden", estimated - 10)},
               {"vóór de komma nog eens", says("# seconden", estimated + 10)}},
     .explains = {{"hele seconden op: * = #. Achter de komma: * = #, dus ongeveer #. Bij elkaar is dat # + # = #.",
                   {v[1], v[2] / 10, estimated - v[1], v[1], estimated - v[1], estimated}}},
     .check = check_runners},
};

} // namespace
} // namespace cijferwerf
