// Money: what is drawn, the answers worked out again from what a pupil sees, and each wrong answer as the mistake that
// its feedback names.
#include "tests/support/exercise_rows.h"
#include "tests/support/pattern.h"

#include <map>
#include <set>

namespace cijferwerf {
namespace {

using enum oefening_id;

const std::vector<mistake> either_side{{"", lies::below}, {"", lies::above}};

// What a table says for a number that was read, counted from 0.
formula of_table(std::vector<double> values, std::size_t number) {
    return [=](const reading& n) { return values.at(static_cast<std::size_t>(n[number])); };
}
// In cents: "20 eurocent", "50 ct" or "€ 2,-".
int cents(const std::string& text) {
    return static_cast<int>(rounded(number_of(text).value() * (text.find("€") == text.npos ? 1 : 100)));
}

// ---- the money box ----

double in_money_box(const reading& n) {
    int sum = 0;
    for (std::size_t i = 1; i < n.exercise.words.size(); i += 2) {
        const std::string& pile = n.exercise.words[i];
        const std::size_t van = pile.find(" van ");
        const int many = whole(pile), each = cents(pile.substr(van + 5));
        EXPECT_EQ(each, cents(n.exercise.words[i - 1])) << "the coin beside " << pile;
        const char* name = each < 500 ? (many == 1 ? "munt" : "munten") : many == 1 ? "briefje" : "briefjes";
        EXPECT_EQ(pile.substr(0, van), regel(kaal(many), " ", name));
        sum += many * each;
    }
    return sum / 100.0;
}
formula kinds(int from, int below) {
    return [=](const reading& n) {
        return std::ranges::count_if(n.exercise.words, [=](const std::string& word) {
            return word.find("van") != word.npos && cents(word.substr(word.find("van"))) >= from &&
                   cents(word.substr(word.find("van"))) < below;
        });
    };
}

// ---- not to be paid exactly ----

void check_sums(const reading& n) {
    const seen& e = n.exercise;
    std::vector<int> coins;
    for (const std::string& coin : e.words) coins.push_back(cents(coin));
    std::set<int> sums{0};
    for (const int coin : coins)
        for (const int sum : std::set(sums)) sums.insert(sum + coin);
    for (int i = 1; i <= 4; ++i) {
        const int amount = cents(e.answer(i));
        EXPECT_EQ(sums.contains(amount), i != e.right_place()) << e.answer(i);
        EXPECT_TRUE(amount > *std::ranges::min_element(coins) && amount < *sums.rbegin());
        EXPECT_TRUE(e.answer(i).ends_with(regel(kaal(komma(amount, 2)))));
    }
    for (std::size_t line = 1; line <= 3; ++line) {
        std::vector<int> left = coins;
        int sum = 0;
        std::string rest = e.made.uitlegregels[line];
        for (; rest.find('=') != rest.npos; rest.erase(0, rest.find_first_of("+=") + 1)) {
            const int coin = cents("€ " + rest.substr(0, rest.find_first_of("+=")));
            const auto at = std::ranges::find(left, coin);
            ASSERT_TRUE(at != left.end()) << "no such coin: " << rest;
            left.erase(at);
            sum += coin;
        }
        EXPECT_EQ(cents("€ " + rest), sum);
        EXPECT_NE(sum, cents(e.right));
    }
}

// ---- rates ----

// The lower or the higher rate of the currency that is asked about.
formula rate(std::size_t column, std::size_t currency) {
    return [=](const reading& n) {
        const auto& words = n.exercise.words;
        const auto row = std::ranges::find_if(words, [&](const std::string& word) {
            return !word.empty() && word.substr(0, 4) == n.words[currency].substr(0, 4);
        });
        return decimal(row == words.end() ? "" : row[static_cast<std::ptrdiff_t>(column)]);
    };
}
formula rounded_down(const formula& a) {
    return [=](const reading& n) { return std::floor(std::get<double>(a(n)) + 1e-9); };
}

// ---- errands ----

// The least that can be paid with coins of 20 and 50 cents and euros.
double to_bring(const reading& n) {
    int total = 0;
    for (std::size_t i = 0; i < n.exercise.words.size(); ++i) {
        const auto item = find_pattern("^" + n.exercise.words[i], "^# @ *€ #");
        EXPECT_TRUE(item);
        total += static_cast<int>(rounded(item->numbers[0] * item->numbers[1] * 100));
    }
    EXPECT_EQ(total % 10, 5);
    while (total % 20 != 0 && (total < 50 || total % 20 != 10)) total += 5;
    return total / 100.0;
}

// ---- fuel ----

// What a counter of the pump says; its digits are set wide.
formula counter(std::size_t word) {
    return [=](const reading& n) {
        std::string digits = n.exercise.words[word];
        std::erase(digits, ' ');
        return decimal(digits);
    };
}

// ---- rent ----

double days_of(const reading& n) {
    const std::set<std::string> short_ones{"april", "juni", "september", "november"};
    EXPECT_NE(n.words[0], "februari");
    return short_ones.contains(n.words[0]) ? 30 : 31;
}
const formula months = of_table({3, 6, 9, 6, 18, 24, 30, 12}, 0);
const formula weeks = of_table({13, 26, 39, 26, 78, 104, 130, 52}, 0);

const formula extra = v[3] + v[4] / 100, change = v[2] + extra - v[1];
const formula paid = (v[1] + 1) * v[2] + (v[3] + 1) * v[4];
const formula coins_in = v[1] * 100 / v[0];
const formula hours = v[2] + v[3] + v[4] + v[5] + v[6] + v[7];
const formula cds = v[0] * v[1], half = v[0] / 2;
const formula discount = [](const reading& n) { return std::floor(n[1] / 3) * n[0] / 2; };
const formula exchanged = [](const reading& n) {
    return std::array{1, 2, 3, 6}.at(static_cast<std::size_t>(n[0])) * n[1];
};

const exercise_rows money{
    {.id = B_spaarpot_05_07_click,
     .variants = 4,
     .reads = "@ gooit (zijn|haar) spaarpot leeg. Wat er in {zijn|haar} spaarpot zat, zie je hiernaast. Hoeveel geld",
     .counts = {kinds(5, 500), kinds(500, 1001)},
     .ranges = {{{0, 1}, {3, 3}, {0, 0}}, {{0, 1}, {2, 2}, {1, 1}}, {{0, 1}, {4, 4}, {0, 0}}, {{0, 1}, {2, 2}, {2, 2}}},
     .words = {12},
     .right = in_money_box,
     .wrong = either_side,
     .explains = {{" . In totaal: € #", {in_money_box}}},
     .tips = {"Kijk goed naar de waarde", "Vermenigvuldig die met het aantal"}},
    {.id = B_wisselen_05_07_click,
     .variants = 3,
     .reads = "Hij wisselt (een biljet|twee biljetten|drie biljetten|zes biljetten) van € #,- tegen munten van # "
              "eurocent. Hoeveel munten krijgt hij?",
     .ranges = {{{0, 3}, {20, 200}, {10, 10}}, {{0, 3}, {20, 200}, {20, 20}}, {{0, 3}, {20, 200}, {50, 50}}},
     .right = exchanged * 100 / v[2],
     .wrong = either_side,
     .explains = {{"krijgt hij # munten van # eurocent. Voor € #,- krijgt hij er dus # x # = #",
                   {100 / v[2], v[2], exchanged, exchanged, 100 / v[2], exchanged * 100 / v[2]}}},
     .tips = {"Bedenk eerst hoeveel", "doe daarna een vermenigvuldiging"},
     .check = [](const reading& n) { EXPECT_EQ(n.exercise.explanation.find("1 x"), std::string::npos); }},
    {.id = L_snel_05_07_click,
     .variants = 6,
     .reads = "Je hebt niet veel tijd! | Hoeveel munten van # eurocent | gaan er in € #,-?",
     .ranges = {{{1, 1}, {2, 10}},
                {{2, 2}, {2, 10}},
                {{5, 5}, {2, 10}},
                {{10, 10}, {2, 10}},
                {{20, 20}, {2, 10}},
                {{50, 50}, {2, 10}}},
     .right = coins_in,
     .wrong = {{"", coins_in - 5},
               {"", coins_in + 5},
               {"", coins_in - 10},
               {"", coins_in + 10},
               {"", coins_in - 15},
               {"", coins_in + 15}},
     .explains = {{"In een euro * # *, dus in € #,- zitten # x # = #", {100 / v[0], v[1], v[1], 100 / v[0], coins_in}}},
     .ticks = {10}},
    {.id = M_niet_gepast_05_07_click,
     .variants = 4,
     .reads = "bedragen kun je hiermee NIET gepast betalen?",
     .counts = {[](const reading& n) { return std::set(n.exercise.words.begin(), n.exercise.words.end()).size(); },
                [](const reading& n) { return n.exercise.words.size(); }},
     .ranges = {{{3, 3}, {3, 9}}, {{3, 3}, {3, 9}}, {{4, 4}, {4, 8}}, {{4, 4}, {4, 8}}},
     .wrong = {{"jij koos is wel gepast", lies::below},
               {"jij koos is wel gepast", lies::above},
               {"Dat bedrag is wel", lies::elsewhere},
               {"juist wel gepast", lies::elsewhere}},
     .check = check_sums},
    {.id = L_bijbetalen_05_07_click,
     .variants = 2,
     .reads = "(Een man|Een vrouw) koopt voor € # een stel CD's. {Hij|Zij} betaalt eerst met een briefje van € #,-, "
              "maar {hij|zij} geeft er ook nog een munt van € #,- en een munt van # eurocent bij. Hoeveel moet "
              "{hij|zij} terug krijgen?",
     .ranges = {{{0, 0}, {6.1, 97.5}, {20, 100}, {1, 2}, {10, 50}}, {{1, 1}, {6.1, 97.5}, {20, 100}, {1, 2}, {10, 50}}},
     .right = change,
     .wrong = {{"(te veel|teveel) terug", change + extra},
               {"te weinig terug", change - extra},
               {"(Je zit er een euro naast|Je hebt je een euro)", change - 1},
               {"(Je zit er een euro naast|Je hebt je een euro)", change + 1}},
     .explains = {{"ZONDER bijbetaling € # moeten geven, maar doordat de klant € # bijbetaalde kan hij € # + € # = €",
                   {change - extra, extra, change - extra, extra}}},
     .check = [](const reading& n) { EXPECT_TRUE(n.exercise.right.ends_with(",-")); }},
    {.id = L_terugbetalen_05_07_click,
     .variants = 5,
     .reads = "@ heeft boodschappen gedaan. (Hij|Zij) moet bij de kassa afrekenen. @ betaalt met (een briefje|2 "
              "briefjes|3 briefjes) van € #,- en (een munt|2 munten|3 munten) van € #,-. Hoeveel krijgt {hij|ze} "
              "terug? | € #",
     .ranges = {{{0, 1}, {0, 2}, {5, 5}, {0, 2}, {1, 2}, {5.05, 20.95, 1}},
                {{0, 1}, {0, 2}, {10, 10}, {0, 2}, {1, 2}, {10.05, 35.95, 1}},
                {{0, 1}, {0, 2}, {20, 20}, {0, 2}, {1, 2}, {20.05, 65.95, 1}},
                {{0, 1}, {0, 2}, {50, 50}, {0, 2}, {1, 2}, {50.05, 155.95, 1}},
                {{0, 1}, {0, 2}, {100, 100}, {0, 2}, {1, 2}, {100.05, 305.95, 1}}},
     .words = {10, 10},
     .right = paid - v[5],
     .wrong = either_side,
     .explains = {{"bedrag van € #* moet je aanvullen tot € #,-. Dat doe je met € #", {v[5], paid, paid - v[5]}}},
     .tips = {"Reken eerst uit", "Bereken met hoeveel"},
     .check = [](const reading& n) { EXPECT_LT(decimal(n.exercise.right.substr(4)), n[4]) << "a coin too many"; }},
    {.id = L_vreemd_geld_1_05_07_click,
     .variants = 5,
     .reads = "@ gaat op vakantie naar @. @ besluit voor € #,- aan @ mee te nemen. Hoeveel hele @ kan (hij|zij) kopen?",
     .counts = {rate(1, 3), rate(2, 3)},
     .ranges = {{{150, 950}, {0, 1}, {.83, .92}, {.87, .99}},
                {{150, 950}, {0, 1}, {.55, .67}, {.59, .74}},
                {{150, 950}, {0, 1}, {.62, .74}, {.66, .81}},
                {{150, 950}, {0, 1}, {1.12, 1.28}, {1.16, 1.35}},
                {{150, 950}, {0, 1}, {1.01, 1.09}, {1.05, 1.16}}},
     .words = {10, 5, 10, 5, 5},
     .right = rounded_down(v[0] / v[3]),
     .wrong = either_side,
     .explains = {{"Nu geldt de koers: #, * moet je € # betalen", {v[3], v[3]}},
                  {"door dat getal: #/# = #", {v[0], v[3], rounded_down(v[0] / v[3] * 100) / 100}}},
     .tips = {"Weet je dat je de hoogste", "Doe een deling en gebruik de hoogste"}},
    {.id = L_vreemd_geld_2_05_07_click,
     .variants = 5,
     .reads = "@ komt van vakantie terug uit @. @ wisselt voor # @ in euro's. Hoeveel hele euro's kan",
     .counts = {rate(1, 3), rate(2, 3)},
     .ranges = {{{120, 950}, {.83, .92}, {.87, .99}},
                {{120, 950}, {.55, .67}, {.59, .74}},
                {{120, 950}, {.62, .74}, {.66, .81}},
                {{120, 950}, {1.12, 1.28}, {1.16, 1.35}},
                {{120, 950}, {1.01, 1.09}, {1.05, 1.16}}},
     .words = {10, 5, 10, 5},
     .right = rounded_down(v[0] * v[1]),
     .wrong = either_side,
     .explains =
         {{"laagste koers: #, Dit betekent dat je voor elke * € # terug krijgt. Voor # * krijg je dus # x # = #",
           {v[1], v[1], v[0], v[0], v[1], v[0] * v[1]}}},
     .tips = {"Weet je dat je de laagste", "Doe een vermenigvuldiging en gebruik de laagste"}},
    {.id = M_boodschap_05_07_click,
     .variants = 4,
     .reads = "@ haalt voor (zijn|haar) (vader|moeder) @. (Vader|Moeder) geeft zo min mogelijk geld mee. * heeft geen "
              "munten van 1, 2, 5 en 10 eurocent.  Hoeveel krijgt @ mee? | # kg aardappelen *€ #",
     .counts = {[](const reading& n) { return n.exercise.words.size(); }},
     .ranges = {{{0, 1}, {0, 0}, {0, 0}, {1.5, 2.5}, {.5, 1.9}, {3, 3}},
                {{0, 1}, {1, 1}, {1, 1}, {1.5, 2.5}, {.5, 1.9}, {3, 3}},
                {{0, 1}, {0, 0}, {0, 0}, {1.5, 2.5}, {.5, 1.9}, {4, 4}},
                {{0, 1}, {1, 1}, {1, 1}, {1.5, 2.5}, {.5, 1.9}, {4, 4}}},
     .right = to_bring,
     .wrong = either_side,
     .explains = {{"boodschappen € # kosten", {[](const reading& n) { return to_bring(n) - .05; }}}},
     .tips = {"De afzonderlijke bedragen", "(Vader|Moeder) niet kan betalen"},
     .check =
         [](const reading& n) {
             const double cents = 100 * decimal(n.exercise.right.substr(4));
             EXPECT_FALSE(same(std::fmod(cents, 100), 10) || same(std::fmod(cents, 100), 30));
             EXPECT_EQ(n.words[0], n.words[2]);
         }},
    {.id = M_CDs_05_07_click,
     .variants = 2,
     .reads = "Ze kosten € # per stuk. * Een meneer koopt # CD's. Hoeveel moet hij betalen?",
     .counts = {[](const reading& n) { return std::fmod(n[1], 3); }},
     .ranges = {{{6.9, 19.9}, {6, 15}, {0, 0}}, {{6.9, 19.9}, {7, 17}, {1, 2}}},
     .right = cds - discount,
     .wrong = {{"Je hebt vergeten dat", cds}, {"juist duurder gemaakt", cds + discount}, {"maar één CD", cds - half}},
     .explains = {{"zou hij # x € # = € #* moeten betalen. Maar in # zitten # hele drietallen",
                   {v[1], v[0], cds, v[1], discount / half}},
                  {"korting van # x € #* = € #*. Hij moet dus betalen: € #* - € #",
                   {discount / half, half, discount, cds, discount}}}},
    {.id = L_krantenwijk_05_07_click,
     .variants = 2,
     .reads =
         "(Een meisje|Een jongen) doet de hele week een krantenwijk. Aan het eind heeft {zij|hij} een zeker "
         "aantal uren gewerkt. * Het uurloon bedraagt € #* per uur. Hoeveel heeft {ze|hij} die week verdiend? | DAG "
         "| GEWERKT | maandag | # uur | dinsdag | # uur | woensdag | # uur | donderdag | # uur | vrijdag | # uur | "
         "zaterdag | # uur",
     .ranges = {{{0, 0}, {2.6, 5.95}, {1, 4}, {1, 4}, {1, 4}, {1, 4}, {1, 4}, {1, 4}},
                {{1, 1}, {2.6, 5.95}, {1, 4}, {1, 4}, {1, 4}, {1, 4}, {1, 4}, {1, 4}}},
     .right = hours * v[1],
     .wrong = {{"alleen de uren van de maandag", v[2] * v[1]},
               {"alleen de uren van de zaterdag", v[7] * v[1]},
               {"één uur per dag", 6 * v[1]},
               {"alleen de uren bij elkaar", hours},
               {"de zaterdag vergeten", (hours - v[7]) * v[1]},
               {"de maandag twee keer", (hours + v[2]) * v[1]},
               {"de zaterdag twee keer", (hours + v[7]) * v[1]},
               {"tien uren te veel", (hours + 10) * v[1]}},
     .explains = {{"er in totaal #. * Dus: # x € #* = €", {hours, hours, v[1]}}}},
    {.id = M_brandstof_05_07_click,
     .variants = 2,
     .reads = "(Een man|Een vrouw) heeft bij een pompstation {zijn|haar} auto volgetankt. * Hoeveel kost 1 liter",
     .counts = {counter(2), counter(3)},
     .ranges = {{{0, 0}, {23.31, 111.51, 5}, {21, 59}}, {{1, 1}, {23.31, 111.51, 5}, {21, 59}}},
     .right = v[1] / v[2],
     .wrong = {{"", v[1]},
               {"", rounded(v[2] / v[1], 2)},
               {"", 10 * v[1] / v[2]},
               {"", v[1] / v[2] - .1},
               {"", v[1] / v[2] + .1},
               {"", v[1] / v[2] - .01},
               {"", v[1] / v[2] + .01}},
     .explains = {{"hoeveel (hij|zij) voor # liters", {v[0], v[2]}}, {"Dus € #* : # = €", {v[1], v[2]}}},
     .tips = {"Je moet delen.", "een deling doen"}},
    {.id = Z_huren_05_07_click,
     .variants = 4,
     .of = {1},
     .reads =
         "T.V. voor een periode van # weken. Hoeveel kost dat? | Te huur aangeboden: | KLEURENTELEVISIE | Kosten: € "
         "#* per dag | Te huur: | AUTO | Kosten: € #,- per dag | Te huur: | WONING | Kosten: € #,- per maand | Te "
         "huur: | SPORTHAL | Kosten: € #,- per uur",
     .ranges = {{{2, 9}, {.75, 2.5}, {30, 75}, {400, 900}, {15, 45}}},
     .right = 7 * v[0] * v[1],
     .wrong = {{"vijf dagen telt", 5 * v[0] * v[1]},
               {"14 dagen", 14 * v[0] * v[1]},
               {"maal het aantal weken", v[0] * v[1]},
               {"geen zes dagen", 6 * v[0] * v[1]},
               {"geen acht dagen", 8 * v[0] * v[1]}},
     .explains = {{"zitten # x 7 = # dagen. Elke dag kost € #*. * dus # x €", {v[0], 7 * v[0], v[1], 7 * v[0]}}}},
    {.id = Z_huren_05_07_click,
     .variants = 4,
     .of = {2},
     .reads = "een auto gedurende de hele maand @. Hoeveel kost dat? | * | AUTO | Kosten: € #,- per dag",
     .counts = {days_of},
     .ranges = {{{30, 75}, {30, 31}}},
     .words = {11},
     .right = v[0] * v[1],
     .wrong = {{"28 dagen zitten? Dat geldt alleen voor februari.", 28 * v[0]},
               {"heeft geen", (61 - v[1]) * v[0]},
               {"32 dagen", 32 * v[0]},
               {"vijf hele weken", 35 * v[0]},
               {"vier weken van vijf", 20 * v[0]},
               {"één week", 7 * v[0]}},
     .explains = {{"de maand * # dagen heeft. * kost € #,-* kost # x €", {v[1], v[0], v[1]}}}},
    {.id = Z_huren_05_07_click,
     .variants = 4,
     .of = {3},
     .reads =
         "gedurende (een kwartaal|twee kwartalen|drie kwartalen|een half jaar|anderhalf jaar|twee jaar|twee en een "
         "half jaar) een woning. Hoeveel kost dat? | * | WONING | Kosten: € #,- per maand",
     .ranges = {{{0, 6}, {400, 900}}},
     .right = months * v[1],
     .wrong = {{"voor een jaar berekend", 12 * v[1]},
               {"voor één maand", v[1]},
               {"half jaar te veel", (months + 6) * v[1]},
               {"een maand te veel", (months + 1) * v[1]},
               {"een maand te weinig", (months - 1) * v[1]},
               {"vier maanden telt", months / 3 * 4 * v[1]},
               {"langer dan twee", months / 3 * 2 * v[1]},
               {"meer dan tien", months / 12 * 10 * v[1]}},
     .explains = {{"zitten * maanden. Dat kost # x € #,-", {months, v[1]}}}},
    {.id = Z_huren_05_07_click,
     .variants = 4,
     .of = {4},
     .reads =
         "gedurende (een kwartaal|twee kwartalen|drie kwartalen|een half jaar|anderhalf jaar|twee jaar|twee en een "
         "half jaar|een jaar). Hoeveel kost dat? | * | SPORTHAL | Kosten: € #,- per uur",
     .counts = {[](const reading& n) { return decimal(n.exercise.asked("voor ([0-9]+) uur per week").at(1)); }},
     .ranges = {{{0, 7}, {15, 45}, {2, 6}}},
     .right = weeks * v[1] * v[2],
     .wrong = {{"voor een jaar berekend", 52 * v[1] * v[2]},
               {"één uur per week", weeks* v[1]},
               {"langer dan vier weken", months * 4 * v[1] * v[2]},
               {"geen vijf weken", months * 5 * v[1] * v[2]},
               {"met de maanden gerekend", months* v[1] * v[2]},
               {"een week te veel", (weeks + 1) * v[1] * v[2]},
               {"een week te weinig", (weeks - 1) * v[1] * v[2]}},
     .explains = {{"Elke week huurt zij # uur, dus in totaal # x # = # uur. Elk uur kost € #,-",
                   {v[2], weeks, v[2], weeks* v[2], v[1]}}}},
};

} // namespace
} // namespace cijferwerf
