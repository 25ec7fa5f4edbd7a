// Column arithmetic: what is drawn, the answers worked out again from what a pupil sees, and each wrong answer as the
// mistake that its feedback names. The keys of the calculator are pressed as the explanation tells.
#include "calculator/calculator.h"
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// Counted from 1 at the right.
formula digit(const formula& number, int place) {
    return lifted([=](double x) { return static_cast<int>(x / std::pow(10, place - 1)) % 10; }, number);
}
const formula top = largest(B, C), low = B + C - top, apart = top - low;

// One ten is borrowed, or so many hundreds too.
void town(oefening_id id, double hundreds, const char* second_tip) {
    const span of_ten{1, 9}, below{hundreds, 8 + hundreds}, of_hundred{2, 9}, less{0, 8 - hundreds};
    const formula tens = digit(top, 2) - digit(low, 2), of_hundreds = digit(top, 3) - digit(low, 3),
                  swapped = 100 * of_hundreds + 10 * abs(tens) + digit(low, 1) - digit(top, 1);
    row(id, 2, "vorig jaar (vertrokken|bijgekomen)? *| stad # mensen. | Dit jaar zijn er # inwoners.",
        counts(A - (B < C), digit(top, 2), digit(low, 2), digit(top, 3), digit(low, 3)),
        range({{0, 1}, {15000, 54989, 999}, {15000, 54989, 999}, {0, 0}, of_ten, below, of_hundred, less}),
        range({{0, 1}, {60000, 99989, 999}, {60000, 99989, 999}}), right(apart),
        wrong("", swapped, apart + 10, apart - 10, apart + 100, apart - 100),
        explains("eenheden doe je # -*tientallen doe je # -*honderdtallen doe je # -", digit(top, 1) + 10,
                 digit(top, 2) - 1 + hundreds * 10, digit(top, 3) - hundreds),
        tips("Zet het grootste getal boven", second_tip));
}

formula factor(std::size_t word) {
    return [=](const reading& n) { return decimal(n.exercise.words.at(word)); };
}

// What the explanation writes under the sum: the two rows and what they make together, units under units.
void check_written_rows(const reading& n) {
    const seen later = n.exercise.when_explained();
    const double ten_times = n[0] * std::floor(n[1] / 10) * 10;
    for (const auto& [word, value] : {std::pair{3U, n[0] * n[1] - ten_times}, {4U, ten_times}, {6U, n[0] * n[1]}}) {
        const text_op& row = later.texts.at(word);
        EXPECT_TRUE(decimal(row.text) == value && std::abs(row.x + text_width(row.text, 12) - 2420) <= 22) << value;
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
// The number that has so many decimals.
formula with_decimals(std::size_t count) {
    return [count](const reading& n) {
        const auto has = [&](const std::string& w) {
            return w.size() - std::min(w.find(','), w.size() - 1) == count + 1;
        };
        return decimal(*std::find_if(n.exercise.words.begin() + 1, n.exercise.words.end(), has));
    };
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

const formula tens = rounded(A / 10) * 10, rest = abs(A - tens);
const formula minus = by_variant({1, 0});
formula makes(const formula& less, const formula& k, const formula& times) {
    return says("# x # (+|-) # x #", tens, B, less, k, times);
}
const char* const check = "# (:|x) #";
const formula sign = 1 - 2 * C, after = A - B + sign * D;
const formula product = A * B, units = digit(B, 1), carried = digit(digit(A, 1) * units, 2);
const formula front = B * C, side = D * E, bottles = front * D * A;
const formula pupils = (A + 2) * B, raised = pupils * C * D;
const formula months = 0 - floor(0 - B / C);

constexpr span tenths{1.1, 7.9};

const exercise_rows columns([] {
    town(B_inwoners_1_12_01_click, 0, "lenen van de tientallen.");
    town(B_inwoners_2_12_01_click, 1, "tientallen moet je dan ook nog lenen.");
    row(Z_sponsorloop_12_07, 6,
        "deze (twee|drie|vier) klassen zitten elk # leerlingen. *gemiddeld # km * € #* op. * | Krant van @ | * in @ "
        "organiseerde |*{twee|drie|vier} klassen een sponsorloop | voor een goed doel @.",
        range({{0, 2}, {15, 30}, {1.5, 6.5}, {.2, 1.5}}), words({7, 20, 6}), right(raised),
        wrong("(van één klas uitgegaan|nu één klas geweest)", raised / (A + 2)),
        wrong("gedeeld in plaats van", pupils / C * D), wrong("halve kilometer vergeten", pupils * (C - .5) * D),
        wrong("naar boven afgerond", pupils * (C + .5) * D), wrong("een klas te veel", raised + B * C * D),
        explains("kilometer leverde € #* op", D));
    row(L_na_elkaar_12_01_click, 2, "| # - # (+|-) # =", range({{80, 480, 10}, {60, 160}, {0, 0}, {15, 45}}),
        range({{80, 480, 10}, {60, 160}, {1, 1}, {15, 45}}), right(after),
        wrong("getallen bij elkaar opgeteld", A - B - D), wrong("getallen van elkaar afgetrokken", A - B + D),
        wrong("dat je alleen de eerste", A - B), wrong("alleen iets gedaan met de laatste", B + sign * D));
    row(L_door_elkaar_12_02_click, 2, "| # + # x # - # =", range({{3, 19}, {3, 12}, {4, 10}, {2, 6}}),
        range({{15, 79}, {3, 12}, {4, 13}, {2, 9}}), right(A + B * C - D),
        wrong("eerst de vermenigvuldiging", (A + B) * C - D), wrong("geen haakjes", A + B * (C - D)),
        wrong("wel in de juiste volgorde", (A + B) * (C - D)),
        explains("Daar tel je # bij op, dan heb je #. Tot slot trek je er # van af", A, A + B * C, D));
    row(L_haakjes_12_02_click, 2, "| # + # x \\( # - # \\) =", of({1}), range({{5, 40}, {2, 9}, {5, 24}, {3, 15}}),
        right(A + B * (C - D)), wrong("Er staan haakjes", A + B * C - D), wrong("op de haakjes gelet", (A + B) * C - D),
        wrong("haakjes heb je goed", (A + B) * (C - D)), wrong("eerste getal vergeten", B * (C - D)),
        wrong("alles opgeteld", A + B + C - D));
    row(L_haakjes_12_02_click, 2, "| \\( # + # \\) x # + # =", of({2}), range({{3, 20}, {3, 20}, {2, 9}, {3, 40}}),
        right((A + B) * C + D), wrong("Alles wat tussen haakjes", A + B * C + D),
        wrong("op de haakjes gelet", A + B * (C + D)), wrong("haakjes heb je goed", (A + B) * (C + D)),
        wrong("laatste getal vergeten", (A + B) * C), wrong("alles opgeteld", A + B + C + D));
    row(L_onder_elkaar_12_06_click, 2,
        "zijn de getallen goed onder elkaar gezet? | A          B           C           D |",
        counts(with_decimals(0), with_decimals(1), with_decimals(2)), range({{12, 98}, {1.1, 9.9}, {1.01, 9.99}}),
        range({{102, 989}, {1.1, 99.9, 1}, {1.01, 99.99, 1}}), check_alignment);
    row(M_maal_12_02_click, 2, "Bereken de uitkomst.", counts(factor(0), factor(1)), range({{12, 99}, {12, 99}}),
        range({{102, 989}, {12, 49}}), right(product),
        wrong("", product - 10 * carried, product - 100 * digit(digit(A, 1) * digit(B, 2), 2),
              product + 10 * carried * (units - 1), A * (10 * units + digit(B, 2)), product - 100, product + 10,
              product + 100),
        explains("dus # x # =  # en  # onthouden.", units, digit(A, 1), digit(A, 1) * units, carried),
        tips("Je moet vermenigvuldigen.", "begin dan met de eenheden"), check_written_rows);
    row(L_anders_12_02_click, 2, "De vermenigvuldiging van # en # kun je", counts(rest),
        range({{18, 89}, {12, 98}, {1, 2}}), range({{21, 92}, {12, 98}, {1, 2}}), right(makes(minus, rest, B)),
        wrong("", makes(1 - minus, rest, B), makes(minus, rest, tens), makes(1 - minus, rest, tens),
              makes(minus, rest, A), makes(minus, 10 - rest, B), makes(minus, rest + 1, B)),
        explains("tiental: # = # (-|+) #.", A, tens, 1 - minus, rest),
        tips("Misschien kun je", "vlak bij een tiental"));
    row(M_flesjes_12_02_click, 4, "In elk krat zitten # flesjes.",
        counts(crates(true, true), crates(false, true), crates(true, false), crates(false, false)),
        range({{6, 6}, {2, 5}, {2, 5}, {2, 5}}), range({{12, 12}}), range({{20, 20}}), range({{24, 24}}),
        right(bottles), wrong("van voren ziet", front * A), wrong("van opzij ziet", side * A),
        wrong("aantal kratten", bottles / A), wrong("Begin met het tellen", (front + side) * A),
        wrong("boven elkaar staan dubbel", front * side * A),
        explains("voren zie je # x # = # * dat er # kratten*zitten # flesjes", B, C, front, D, A));
    row(M_snel_12_06_click, 4, "| Hoeveel is... | # (-|+) # (-|+) # (-|+) #",
        range({{8.1, 23.9, 0.3}, {0, 0}, tenths, {0, 0}, tenths, {0, 0}, tenths}),
        range({{4.1, 16.9, 0.3}, {1, 1}, tenths, {1, 1}, tenths, {1, 1}, tenths}),
        range({{4.1, 16.9, 0.3}, {0, 0}, tenths, {0, 0}, tenths, {1, 1}, {1.1, 5.9}}),
        range({{4.1, 16.9, 0.3}, {0, 0}, tenths, {1, 1}, {1.1, 5.9}, {0, 0}, tenths}),
        right(A + (2 * B - 1) * C + (2 * D - 1) * E + (2 * F - 1) * G), ticks({20}));
    row(M_controle_12_02_click, 2, "zie je een (deling|vermenigvuldiging). * | # (:|x) # = #",
        range({{0, 0}, {1.2, 99, 20}, {0, 0}, {1.01, 9.99, .1}}),
        range({{1, 1}, {1.01, 9.99, .1}, {1, 1}, {1.01, 9.99, .1}}), right(inverse),
        wrong("een vermenigvuldiging van moeten", says(check, E, 0, D), says(check, D, 0, E)),
        wrong("wel een vermenigvuldiging gedaan, maar", says(check, B, 1, D), says(check, E, 1, B)),
        wrong("een deling van moeten", says(check, E, 1, B), says(check, D, 1, E)),
        wrong("wel een deling gedaan, maar", says(check, B, 0, D), says(check, D, 0, E)), with_calculator);
    row(Z_memory_12_02_click, 2, "maar eens uit: \\(# + #\\) + \\(# - #\\) + \\(# x #\\) + \\(# : #\\) =",
        range({{1, 99}, {1, 99}, {2, 98}, {1, 49}, {2, 51}, {2, 99}, {4, 1089, 60}, {2, 99}}), right(from_memory),
        tips("(gebruik dan de M+ toets|en druk dan de M+ toets...)", "Doe dan de aftrekking"), with_calculator);
    row(Z_BTW_12_08_click, 2, "@ wil een nieuwe fiets kopen. De fiets kost € #, *| € $0 |", of({1}),
        range({{150, 950, 1}}), words({20}), right(A * 6 / 5), wrong("alleen de BTW", A / 5),
        wrong("gaat er niet af", A * 4 / 5), wrong("20 euro bij", A + 20), wrong("twee keer", A * 7 / 5),
        explains("prijs van € # komt * toets # in", A, A), with_calculator);
    row(Z_BTW_12_08_click, 2, "een fiets voor € #. *| € $0 | inclusief", of({2}), range({{180, 1140}}),
        right(A / 120 * 100), wrong("prijs MET BTW", A * 4 / 5), wrong("nog een keer bij", A * 6 / 5),
        wrong("20 euro afgetrokken", A - 20), wrong("terugkrijgt", A / 6),
        explains("Deel € # eerst door 120; dan weet je wat 1 % is. Dat is € #.", A, A / 120), with_calculator);
    row(Z_lenen_12_07_click, 4,
        "De (vader|moeder) van @ koopt een auto. {Hij|Zij} leent * € #,- bij de bank. {Hij|Zij} kan per maand € #,- ",
        counts(A - by_variant({0, 1, 0, 1})), range({{0, 1}, {1800, 12390, 600}, {150, 400}, {0, 0}}), words({15}),
        right(months), tips("Deel eerst het geleende", "Een restbedrag wordt in"), with_calculator);
});

} // namespace
} // namespace cijferwerf
