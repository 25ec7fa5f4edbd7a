// Column arithmetic: what is drawn, the answers worked out again from what a pupil sees, and each wrong answer as the
// mistake that its feedback names. The keys of the calculator are pressed as the explanation tells.
#include "calculator/calculator.h"
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// Counted from 1 at the right.
formula digit(const formula& number, int place) {
    return
        [=](const reading& n) { return static_cast<int>(std::get<double>(number(n)) / std::pow(10, place - 1)) % 10; };
}
formula larger(const formula& a, const formula& b) {
    return [=](const reading& n) { return std::max(std::get<double>(a(n)), std::get<double>(b(n))); };
}
const formula top = larger(v[0], v[1]), low = v[0] + v[1] - top, apart = top - low;

// One ten is borrowed, or a hundred too.
void town(oefening_id id, int hundreds, const char* second_tip) {
    const formula tens = digit(low, 2) - digit(top, 2);
    const formula swapped =
        100 * (digit(top, 3) - digit(low, 3)) + 10 * larger(tens, 0 - tens) + digit(low, 1) - digit(top, 1);
    row(id, 2, "| Vorig jaar woonden er in deze | stad # mensen. | Dit jaar zijn er # inwoners.",
        range({{15000, 54989, 999}, {15000, 54989, 999}}), range({{60000, 99989, 999}, {60000, 99989, 999}}),
        right(apart), wrong("", swapped, apart + 10, apart - 10, apart + 100, apart - 100),
        explains("eenheden doe je # - # = #, * tientallen doe je # - # = #, * honderdtallen doe je # - # = #.",
                 digit(top, 1) + 10, digit(low, 1), digit(apart, 1), digit(top, 2) - 1 + 10 * hundreds, digit(low, 2),
                 digit(apart, 2), digit(top, 3) - hundreds, digit(low, 3), digit(apart, 3)),
        explains("verschil:  #  #  #", digit(apart, 3), digit(apart, 2), digit(apart, 1)),
        tips("Zet het grootste getal boven", second_tip),
        [](const reading& n) { EXPECT_EQ(n[0] > n[1], n.exercise.question.ends_with("vertrokken? ")); });
}

// What a text of the picture is, whose digits are set wide.
int wide(const seen& exercise, std::size_t word) {
    std::string digits = exercise.words.at(word);
    std::erase(digits, ' ');
    return whole(digits);
}
formula factor(std::size_t word) {
    return [=](const reading& n) { return wide(n.exercise, word); };
}
void check_written_rows(const reading& n) {
    const seen later = n.exercise.when_explained();
    const double tens = std::floor(n[1] / 10) * 10;
    const std::pair<std::size_t, double> rows[]{{3, n[0] * (n[1] - tens)}, {4, n[0] * tens}, {6, n[0] * n[1]}};
    for (const auto& [word, value] : rows) {
        EXPECT_EQ(wide(later, word), value);
        EXPECT_NEAR(later.texts[word].x + text_width(later.texts[word].text, 12), 2420, 22) << "the units of " << value;
    }
}

// Where the commas of the right addition stand, where the numbers of the typical mistake end, and which number of the
// others stands off.
void check_alignment(const reading& n) {
    for (std::size_t i = 0; i < 4; ++i) {
        std::set<long> commas, ends, other_commas; // in half digits
        const std::string told =
            n.exercise.right_place() == static_cast<int>(i) + 1 ? "" : n.exercise.feedback(static_cast<int>(i) + 1);
        for (std::size_t k = 4 * i + 1; k < 4 * i + 4; ++k) {
            const text_op& text = n.exercise.texts.at(k);
            const std::string number{kaal(std::string_view(text.text))};
            const auto column = [&](std::size_t digits) {
                return std::lround((text.x + text_width(number.substr(0, digits), text.size)) / 65.0);
            };
            commas.insert(column(number.find(',')));
            ends.insert(column(number.npos));
            if (told.find(" " + number + ".") == told.npos) other_commas.insert(column(number.find(',')));
        }
        EXPECT_EQ(n.exercise.answer(static_cast<int>(i) + 1), std::string("OPTELLING ") + "ABCD"[i]);
        EXPECT_EQ(commas.size() == 1, told.empty()) << i;
        EXPECT_EQ(ends.size() == 1, told.starts_with("Hier eindigen")) << i;
        if (told.starts_with("Kijk")) {
            EXPECT_EQ(other_commas.size(), 1) << told;
        }
    }
}
double without_comma(const reading& n) {
    for (std::size_t k = 1; k < 4; ++k)
        if (n.exercise.words[k].find(',') == std::string::npos) return decimal(n.exercise.words[k]);
    return 0;
}

// The options that turn the numbers of the sum into the one that is left.
std::string inverse(const reading& n) {
    std::string right;
    for (const std::string& option : n.exercise.options()) {
        const auto sum = find_pattern(option, "# (:|x) #").value().numbers;
        for (const std::size_t i : {1U, 3U, 4U})
            if (same(n[i], sum[1] == 0 ? sum[0] / sum[2] : sum[0] * sum[2])) right += option;
    }
    return right;
}

// How many crates stand beside each other, or above each other, in one of the two views.
formula crates(bool beside, bool front) {
    return [=](const reading& n) {
        std::set<int> places;
        for (const box_op& box : n.exercise.blocks)
            if (box.pen.colour == olijf && (box.x < 2700) == front) places.insert(beside ? box.x : box.y);
        return places.size();
    };
}

// As told: AC, each sum worked out and put into the memory, C after each M+, and MR at last.
double from_memory(const reading& n) {
    constexpr std::string_view faces = "0123456789,CA+-x/MR%=", signs = "+-x/";
    std::string keys = "A";
    for (std::size_t i = 0; i < 4; ++i)
        keys +=
            regel(kaal(static_cast<int>(n[2 * i])), signs.substr(i, 1), kaal(static_cast<int>(n[2 * i + 1])), "=MC");
    calculator pressed;
    for (const char face : keys + "R") pressed.press(static_cast<int>(faces.find(face)));
    const double shown = decimal(pressed.display());
    for (const double answer : n.exercise.numbers())
        EXPECT_TRUE(std::abs(answer - shown) <= 300 && std::fmod(answer - shown, 10) == 0 && answer > 0) << answer;
    return shown;
}

const formula tens = rounded(v[0] / 10) * 10, rest = larger(v[0] - tens, tens - v[0]);
const formula minus = [](const reading& n) { return n.variant() == 1 ? 1 : 0; };
formula makes(const formula& less, const formula& k, const formula& times) {
    return says("# x # (+|-) # x #", tens, v[1], less, k, times);
}
const char* const check = "# (:|x) #";
const formula sign = 1 - 2 * v[2], after = v[0] - v[1] + sign * v[3];
const formula product = v[0] * v[1], units = digit(v[1], 1), carried = digit(digit(v[0], 1) * units, 2);
const formula front = v[1] * v[2], side = v[3] * v[4], bottles = front * v[3] * v[0];
const formula pupils = (v[0] + 2) * v[1], raised = pupils * v[2] * v[3];
const formula months = [](const reading& n) { return std::ceil(n[1] / n[2]); };

const exercise_rows columns([] {
    town(B_inwoners_1_12_01_click, 0, "lenen van de tientallen.");
    town(B_inwoners_2_12_01_click, 1, "tientallen moet je dan ook nog lenen.");
    row(Z_sponsorloop_12_07, 6,
        "In deze (twee|drie|vier) klassen zitten elk # leerlingen. Zij liepen gemiddeld # km en elke gelopen "
        "kilometer leverde € #* op. * | Krant van @ | Een school in @ organiseerde | voor de hoogste "
        "{twee|drie|vier} klassen een sponsorloop | voor een goed doel @.",
        range({{0, 2}, {15, 30}, {1.5, 6.5}, {.2, 1.5}}), words({7, 20, 6}), right(raised),
        wrong("(van één klas uitgegaan|nu één klas geweest)", raised / (v[0] + 2)),
        wrong("gedeeld in plaats van", pupils / v[2] * v[3]),
        wrong("halve kilometer vergeten", pupils * (v[2] - .5) * v[3]),
        wrong("naar boven afgerond", pupils * (v[2] + .5) * v[3]),
        wrong("een klas te veel", raised + v[1] * v[2] * v[3]),
        [](const reading& n) { EXPECT_EQ(n[0], (n.variant() - 1) % 3); });
    row(L_na_elkaar_12_01_click, 2, "| # - # (+|-) # =", range({{80, 480, 10}, {60, 160}, {0, 0}, {15, 45}}),
        range({{80, 480, 10}, {60, 160}, {1, 1}, {15, 45}}), right(after),
        wrong("getallen bij elkaar opgeteld", v[0] - v[1] - v[3]),
        wrong("getallen van elkaar afgetrokken", v[0] - v[1] + v[3]), wrong("dat je alleen de eerste", v[0] - v[1]),
        wrong("alleen iets gedaan met de laatste", v[1] + sign * v[3]));
    row(L_door_elkaar_12_02_click, 2,
        "Maak de som die hiernaast staat. | # + # x # - # =", range({{3, 19}, {3, 12}, {4, 10}, {2, 6}}),
        range({{15, 79}, {3, 12}, {4, 13}, {2, 9}}), right(v[0] + v[1] * v[2] - v[3]),
        wrong("eerst de vermenigvuldiging", (v[0] + v[1]) * v[2] - v[3]),
        wrong("geen haakjes", v[0] + v[1] * (v[2] - v[3])),
        wrong("wel in de juiste volgorde", (v[0] + v[1]) * (v[2] - v[3])),
        explains("eerst # x # = #. Daar tel je # bij op, dan heb je #. Tot slot trek je er # van af", v[1], v[2],
                 v[1] * v[2], v[0], v[0] + v[1] * v[2], v[3]));
    row(L_haakjes_12_02_click, 2, "Maak de som die hiernaast staat. | # + # x \\( # - # \\) =", of({1}),
        range({{5, 40}, {2, 9}, {5, 24}, {3, 15}}), right(v[0] + v[1] * (v[2] - v[3])),
        wrong("Er staan haakjes", v[0] + v[1] * v[2] - v[3]), wrong("op de haakjes gelet", (v[0] + v[1]) * v[2] - v[3]),
        wrong("haakjes heb je goed", (v[0] + v[1]) * (v[2] - v[3])),
        wrong("eerste getal vergeten", v[1] * (v[2] - v[3])), wrong("alles opgeteld", v[0] + v[1] + v[2] - v[3]));
    row(L_haakjes_12_02_click, 2, "Maak de som die hiernaast staat. | \\( # + # \\) x # + # =", of({2}),
        range({{3, 20}, {3, 20}, {2, 9}, {3, 40}}), right((v[0] + v[1]) * v[2] + v[3]),
        wrong("Alles wat tussen haakjes", v[0] + v[1] * v[2] + v[3]),
        wrong("op de haakjes gelet", v[0] + v[1] * (v[2] + v[3])),
        wrong("haakjes heb je goed", (v[0] + v[1]) * (v[2] + v[3])),
        wrong("laatste getal vergeten", (v[0] + v[1]) * v[2]), wrong("alles opgeteld", v[0] + v[1] + v[2] + v[3]));
    row(L_onder_elkaar_12_06_click, 2,
        "zijn de getallen goed onder elkaar gezet? | A          B           C           D |", counts(without_comma),
        range({{12, 98}}), range({{102, 989}}), explains("Achter # staat geen komma", v[0]), check_alignment);
    row(M_maal_12_02_click, 2, "Bereken de uitkomst.", counts(factor(0), factor(1)), range({{12, 99}, {12, 99}}),
        range({{102, 989}, {12, 49}}), right(product),
        wrong("", product - 10 * carried, product - 100 * digit(digit(v[0], 1) * digit(v[1], 2), 2),
              product + 10 * carried * (units - 1), v[0] * (10 * units + digit(v[1], 2)), product - 100, product + 10,
              product + 100),
        explains("dus # x # =  # en  # onthouden.", units, digit(v[0], 1), digit(v[0], 1) * units, carried),
        explains("| \\(# x #\\) | \\(# x #\\)", v[0], units, v[0], 10 * digit(v[1], 2)),
        tips("Je moet vermenigvuldigen.", "begin dan met de eenheden"), check_written_rows);
    row(L_anders_12_02_click, 2, "De vermenigvuldiging van # en # kun je", counts(rest),
        range({{18, 89}, {12, 98}, {1, 2}}), range({{21, 92}, {12, 98}, {1, 2}}), right(makes(minus, rest, v[1])),
        wrong("", makes(1 - minus, rest, v[1]), makes(minus, rest, tens), makes(1 - minus, rest, tens),
              makes(minus, rest, v[0]), makes(minus, 10 - rest, v[1]), makes(minus, rest + 1, v[1])),
        explains("tiental: # = # (+|-) #. * eerst # x # = ", v[0], tens, minus, rest, tens, v[1]),
        tips("Misschien kun je", "vlak bij een tiental"));
    row(M_flesjes_12_02_click, 4, "In elk krat zitten # flesjes.",
        counts(crates(true, true), crates(false, true), crates(true, false), crates(false, false)),
        range({{6, 6}, {2, 5}, {2, 5}, {2, 5}}), range({{12, 12}}), range({{20, 20}}), range({{24, 24}}),
        right(bottles), wrong("van voren ziet", front * v[0]), wrong("van opzij ziet", side * v[0]),
        wrong("aantal kratten", bottles / v[0]), wrong("Begin met het tellen", (front + side) * v[0]),
        wrong("boven elkaar staan dubbel", front * side * v[0]),
        explains("voren zie je # x # = # * dat er # kratten", v[1], v[2], front, v[3]));
    row(M_snel_12_06_click, 4, "Kijk hiernaast. Je hebt weinig tijd! | Hoeveel is... | # (-|+) # (-|+) # (-|+) #",
        right(v[0] + (2 * v[1] - 1) * v[2] + (2 * v[3] - 1) * v[4] + (2 * v[5] - 1) * v[6]), ticks({20}),
        [](const reading& n) { EXPECT_EQ(4 * n[1] + 2 * n[3] + n[5], "0712"[n.variant() - 1] - '0'); });
    row(M_controle_12_02_click, 2, "zie je een (deling|vermenigvuldiging). * | # (:|x) # = #",
        range({{0, 0}, {1.2, 99, 20}, {0, 0}, {1.01, 9.99, .1}}),
        range({{1, 1}, {1.01, 9.99, .1}, {1, 1}, {1.01, 9.99, .1}}), right(inverse),
        wrong("een vermenigvuldiging van moeten", says(check, v[4], 0, v[3]), says(check, v[3], 0, v[4])),
        wrong("wel een vermenigvuldiging gedaan, maar", says(check, v[1], 1, v[3]), says(check, v[4], 1, v[1])),
        wrong("een deling van moeten", says(check, v[4], 1, v[1]), says(check, v[3], 1, v[4])),
        wrong("wel een deling gedaan, maar", says(check, v[1], 0, v[3]), says(check, v[3], 0, v[4])), with_calculator);
    row(Z_memory_12_02_click, 2, "maar eens uit: \\(# + #\\) + \\(# - #\\) + \\(# x #\\) + \\(# : #\\) =",
        range({{1, 99}, {1, 99}, {2, 98}, {1, 49}, {2, 51}, {2, 99}, {4, 1089, 60}, {2, 99}}), right(from_memory),
        tips("(gebruik dan de M+ toets|en druk dan de M+ toets...)", "Doe dan de aftrekking"), with_calculator);
    row(Z_BTW_12_08_click, 2,
        "@ wil een nieuwe fiets kopen. De fiets kost € #, maar er * betaald worden? * | € $0 | exclusief 20 % BTW",
        of({1}), range({{150, 950, 1}}), words({20}), right(v[0] * 6 / 5), wrong("alleen de BTW", v[0] / 5),
        wrong("gaat er niet af", v[0] * 4 / 5), wrong("20 euro bij", v[0] + 20), wrong("twee keer", v[0] * 7 / 5),
        explains("prijs van € # komt * toets # in", v[0], v[0]), with_calculator);
    row(Z_BTW_12_08_click, 2, "groothandel een fiets voor € #. * fiets dan eigenlijk? * | € $0 | inclusief 20 % BTW",
        of({2}), range({{180, 1140}}), right(v[0] / 120 * 100), wrong("prijs MET BTW", v[0] * 4 / 5),
        wrong("nog een keer bij", v[0] * 6 / 5), wrong("20 euro afgetrokken", v[0] - 20),
        wrong("terugkrijgt", v[0] / 6),
        explains("Deel € # eerst door 120; dan weet je wat 1 % is. Dat is € #.", v[0], v[0] / 120), with_calculator);
    row(Z_lenen_12_07_click, 4,
        "De (vader|moeder) van @ koopt een auto. {Hij|Zij} leent hiervoor een bedrag van € #,- bij de bank. "
        "{Hij|Zij} kan per maand € #,- hiervan aflossen.",
        counts([](const reading& n) { return std::fmod(n[1], n[2]) > 0 ? 1 : 0; }),
        range({{0, 1}, {1800, 12390, 600}, {150, 400}, {0, 1}}), words({15}), right(months),
        explains("In # maanden wordt # x € #,-", months - v[3], months - v[3], v[2]),
        tips("Deel eerst het geleende", "Een restbedrag wordt in"), with_calculator,
        [](const reading& n) { EXPECT_EQ(n[0] + 2 * n[3], n.variant() - 1); });
});

} // namespace
} // namespace cijferwerf
