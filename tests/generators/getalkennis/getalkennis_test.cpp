// Number knowledge: what is drawn, the answers worked out again from what a pupil sees, and each wrong answer as the
// mistake that its feedback names.
#include "generators/gedeeld/telwoord.h"
#include "tests/support/exercise_rows.h"

#include <sstream>

namespace cijferwerf {
namespace {

int right_end(const text_op& text) { return text.x + text_width(text.text, text.size); }
int middle(const text_op& text) { return text.x + text_width(text.text, text.size) / 2; }

// ---- lines ----

// How many marks stand left of this x, where one must be.
int mark_at(const reading& n, int x) {
    std::set<int> marks;
    for (const line_op& line : all<line_op>(n))
        if (line.from.x == line.to.x) marks.insert(line.from.x);
    EXPECT_TRUE(marks.contains(x)) << "no mark at " << x;
    return static_cast<int>(std::distance(marks.begin(), marks.find(x)));
}
int tip_of(const reading& n, kleur colour) {
    for (const polygon_op& arrow : all<polygon_op>(n))
        if (arrow.filled && arrow.pen.colour == colour) return arrow.corners.front().x;
    return -1;
}
formula arrow(kleur colour) {
    return [colour](const reading& n) { return mark_at(n, tip_of(n, colour)); };
}
formula mark_above(std::size_t word) {
    return [word](const reading& n) { return mark_at(n, middle(n.exercise.texts.at(word))); };
}
const formula several = lifted([](double marks) { return marks > 1; }, D);

const std::string ordinals = "(nulde|eerste|tweede|derde|vierde|vijfde|zesde|zevende|achtste|negende)";
const std::string marked = "lijnstuk *# *#. *" + ordinals + " streepje. * | # | # |  | #";

// A line in ten pieces, and an arrow of this colour.
template<class... Parts>
void line_of_ten(oefening_id id, kleur colour, const char* reads, const Parts&... parts) {
    const formula tenth = (B - A) / 10, right = A + C * tenth;
    row(id, 3, reads, counts(arrow(colour)), cijferwerf::right(right),
        wrong("", B - C * tenth, A + C * tenth / 10, right - tenth, right - tenth * 2, right + tenth,
              right + tenth * 2),
        explains(marked, A, B, C, A, B, right), parts...);
}

// Of the red, blue, yellow and green arrow, the one beside a button.
const formula its_mark = chosen(button - 1, {arrow(rood), arrow(blauw), arrow(geel), arrow(groen)}),
              its_number = B + its_mark / E;

// ---- places of digits ----

formula unit_of(const formula& number) { return number - floor(number / 10) * 10; }

// Which digits of a wrong answer stand where those of the right one do.
const formula thousands = floor(answer / 1000), of_right = floor(A / 1000), same_left = thousands == of_right,
              same_last = answer - thousands * 1000 == A - of_right * 1000,
              same_third = unit_of(thousands) == unit_of(of_right);
void check_words(const reading& n) {
    const std::string& right = n.exercise.right;
    EXPECT_EQ(n.exercise.words, telwoord_in_groepen(whole(right), spelling::schools));
    for (const std::string& each : n.exercise.answers()) EXPECT_TRUE(std::ranges::is_permutation(right, each)) << each;
}

// The place of the digit at which the arrow points, counted from 0 at the right end.
const formula place = [](const reading& n) {
    const text_op& number = n.exercise.texts.at(0);
    int from_right = 0, pointed = -1;
    for (std::size_t at = number.text.size(); at-- > 0;) {
        const int right = number.x + text_width(number.text.substr(0, at + 1), number.size);
        if (std::abs(right - text_width("0", number.size) / 2 - tip_of(n, rood)) <= 2) pointed = from_right;
        from_right += number.text[at] != '.';
    }
    return pointed;
};
const formula place_worth = power(10, B), pointed = unit_of(floor(A / place_worth));
std::vector<mistake> at_other_places() {
    std::vector<mistake> all;
    for (const char* name :
         {"eenheden", "\\(T\\)", "\\(H\\)", "\\(D\\)", "\\(TD\\)", "\\(HD\\)", "\\(M\\)", "\\(TM\\)"})
        all.push_back({name, pointed * std::pow(10, all.size())});
    return all;
}

// The digits of a number such as 0,206, and the denominators of their places.
const formula first_part = by_variant({10, 10, 100}), second_part = by_variant({100, 1000, 1000});
const formula first_digit = rounded(A * first_part - .5);
const formula second_digit = A * second_part - first_digit * second_part / first_part;

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
    for (int i = 2; i <= 4; ++i)
        if (const auto told =
                find_pattern(e.feedback(i), "De # staat wel goed, maar de # staat niet op de plaats van de @.")) {
            const std::size_t kept = told->numbers[0] == n[0] ? 0 : 1, moved = 1 - kept;
            const double stands = std::log10((e.numbers().at(i - 1U) - n[kept] * n[kept + 2]) / n[moved]);
            EXPECT_TRUE(told->numbers == std::vector({n[kept], n[moved]}) && same(stands, std::round(stands)) &&
                        told->words[0] == more_of.at(static_cast<std::size_t>(2.1 - std::log10(n[moved + 2]))))
                << e.answer(i) << e.feedback(i);
        }
}

// ---- sums ----

// The additions whose two numbers end at one place.
const formula aligned = [](const reading& n) {
    const auto& texts = n.exercise.texts;
    std::string letters;
    for (std::size_t sum = 0; sum < 4; ++sum)
        if (right_end(texts.at(1 + 3 * sum)) == right_end(texts.at(2 + 3 * sum)))
            letters += static_cast<char>('A' + sum);
    return letters;
};

const formula unit = by_variant({100, 1'000, 10'000});
const formula near_first = rounded(A / unit) * unit, near_second = rounded(B / unit) * unit;
const formula estimate = near_first - near_second;

const formula total = A + B + C + D;
// What the first number and its partner make.
const formula first_pair = A + by_variant({B, C, D});

const formula one_part = A / C, part = one_part * B;
// ---- comparisons ----

const formula mixed = A + B / C;
formula distance(std::size_t which) {
    return abs(mixed - [which](const reading& n) { return n.exercise.numbers().at(which); });
}
const formula least_distance = rounded(smallest(distance(0), distance(1), distance(2), distance(3)), 3);

// Of the four numbers, the one with this rank from the side that is asked for; or its digit at this place.
formula ranked(std::size_t rank, int unit_place = 0) {
    return [=](const reading& n) {
        std::array four{n[1], n[2], n[3], n[4]};
        std::ranges::sort(four);
        const int number = static_cast<int>(four.at(n.variant() == 1 ? rank : 3 - rank));
        return unit_place == 0 ? number : number / unit_place % 10;
    };
}

// The count beside the first (0) or second (1) year of the question.
formula members(std::size_t asked) {
    return [asked](const reading& n) {
        for (std::size_t row = 3; row < 11; row += 2)
            if (n[row] == n[asked]) return n[row + 1];
        return -1.0;
    };
}
const formula growth = members(1) - members(0);

const formula piece = (B - A) / D, at_arrow = A + C * piece;

const exercise_rows number_knowledge([] {
    row(B_getallenlijn_11_01_click, 5, "wijst die pijl? | # | #", counts(arrow(rood), mark_above(1), mark_above(0)),
        range({{5, 905, 5}, {13, 1705, 200}, {1, 9}, {4, 8}, {0, 0}}), right(at_arrow),
        wrong("", at_arrow - piece, at_arrow + piece, A + piece, A + C, at_arrow + C * piece, B + C * piece),
        explains("tussen # en # in # stukjes *waarde van # : # = #. De pijl staat # (stukje|stukjes) verder dan #. "
                 "* | # | # |  | #",
                 A, B, D, B - A, D, by_variant({2, 5, 10, 50, 100}), C, 1 < C, A, A, B, at_arrow),
        tips("Bereken eerst hoeveel de", "Deel het verschil"), [](const reading& n) {
            for (const double each : n.exercise.numbers()) EXPECT_TRUE(each != n[0] && each != n[1]) << "stands there";
        });
    line_of_ten(B_pijl_1_11_06_click, geel, "wijst de pijl? | # | #", range({{0, 9}, {1, 10}, {1, 9}}),
                range({{10, 99}, {11, 100}, {1, 9}}), range({{100, 199}, {101, 200}, {1, 9}}),
                tips("In hoeveel stukjes", "één lang"));
    line_of_ten(B_pijl_2_11_06_click, blauw, "Welk getal is dat? | # | #", range({{0.1, 0.9}, {0.2, 1}, {1, 9}}),
                range({{1, 9.9}, {1.1, 10}, {1, 9}}), range({{10, 19.9}, {10.1, 20}, {1, 9}}),
                tips("Hoe groot is het verschil", "een tiende lang"));
    row(L_pijlverwijzing_11_06_click, 2, "geeft het getal # aan? | # | #",
        counts(rounded((A - B) * by_variant({5, 10})), [](const reading& n) { return mark_at(n, 5090); }),
        range({{0.2, 99.8, 2}, {0, 99}, {1, 100}, {1, 4}, {5, 5}}),
        range({{0.1, 99.9, 2}, {0, 99}, {1, 100}, {1, 9}, {10, 10}}),
        explains("tussen # en # is in (vijf|tien) gelijke stukjes verdeeld. Elk stukje heeft dus een waarde van #. "
                 "Van # tot # (is|zijn) het # (stukje|stukjes): * streepje *geel | groen | #",
                 B, C, by_variant({0, 1}), 1 / E, B, A, several, D, several, A),
        right(lifted([](double a, double b) { return same(a, b); }, its_number, A)),
        wrong({" wijst naar het " + ordinals + " streepje, dus naar het getal #.", {its_mark, its_number}},
              lies::elsewhere));
    row(B_letters_11_01_click, 3, "Hoe schrijf je het in cijfers?",
        counts([](const reading& n) { return decimal(n.exercise.right); }), range({{12102, 98987, 1500}}),
        range({{102102, 987987, 15000}}), range({{1102102, 9987987, 150000}}), wrong("In het laatste deel", same_left),
        wrong("Vier cijfers", same_left + same_last == 0),
        wrong(
            {"De (laatste drie cijfers zijn wel goed. In het linker|eerste twee|laatste drie cijfers zijn wel goed. In het middelste)",
             {by_variant({1, same_third, 2})}},
            same_last),
        check_words);
    row(B_waarde_11_01_click, 3, "dat cijfer waard? | #", counts(place), range({{1000, 99999, 400}, {1, 4}}),
        range({{100000, 9999999, 40000}, {3, 6}}), range({{10000000, 99999999, 400000}, {6, 7}}),
        right(pointed * place_worth), wrong(at_other_places()),
        explains(
            "naar het cijfer #. *aantal (tientallen|honderdt|duizend|tienduizend|honderdduizend|miljoen|tienmiljoen)*met #.",
            pointed, B - 1, place_worth));
    row(L_na_de_komma_11_06_click, 3, "Kies de juiste kleur. | # =", range({{0.26, 0.59}}), range({{0.206, 0.509}}),
        range({{0.026, 0.059}}), right(says("#/# + #/#", first_digit, first_part, second_digit, second_part)),
        wrong("De eerste helft van je antwoord is goed", says("#/# + #/*", first_digit, first_part, second_digit)),
        wrong("De tweede helft van je antwoord is wel goed", says("#/* + #/#", first_digit, second_digit, second_part)),
        wrong("Beide helften", says("#/* + #/*", first_digit, second_digit)));
    row(L_samenstellen_11_06_click, 6, "bestaat uit # @ en # @? | D | H | T | E | t | h | d",
        counts(counted(0), counted(1)), range({{1, 5}, {2, 9}, {0.1, 100}, {0.001, 10}}), right(A * C + B * D),
        wrong("met elkaar verwisseld", A * D + B * C), wrong("staat wel goed", lies::elsewhere),
        wrong("allebei niet", lies::elsewhere), check_composed);
    row(B_onder_elkaar_11_01_click, 3,
        "elkaar? | A             B              C              D | # | # | + | $0 | $1 | + | $0 | $1 | + | $0 | $1",
        counts(smallest(A, B)), range({{10, 99}, {10, 99}, {10, 99}}), range({{10, 999, 9}, {10, 999, 9}, {10, 99}}),
        range({{10, 9999, 90}, {10, 9999, 90}, {10, 99}}), right(aligned),
        explains("zijn hier de # *en de # *| goed", unit_of(A), unit_of(B)),
        tips("in welke optelling", "laatste cijfers van de getallen: hier de # en de #."));
    row(B_schatten_11_01_click, 3, "Uit het hoofd! | # - #", range({{292, 908}, {92, 708}}),
        range({{2920, 20080, 20}, {920, 18080, 60}}), range({{29200, 200800, 200}, {9200, 180800, 600}}),
        right(estimate),
        wrong("", estimate - unit, estimate + unit, estimate - unit * 2, estimate + unit * 2, near_first + near_second,
              estimate * 10, estimate / 10),
        explains("gelijk aan #. Het tweede getal is ongeveer gelijk aan #. * # * | ongeveer # - #", near_first,
                 near_second, near_first, near_first, near_second),
        tips("ONGEVEER", "Rond beide getallen af op (honderdtallen|duizendtallen|tienduizendtallen)."));
    row(L_optellen_11_01_click, 3, "som hiernaast... | # + # + # + # = ..", counts(first_pair, total - first_pair),
        range({{10, 249}, {1, 249, 5}, {1, 249, 5}, {1, 240, 5}, {20, 250}, {20, 250}}), right(total),
        wrong("", total - 10, total - 20, total - 30, total + 10, total + 20, total + 30),
        explains("eerste en (tweede|derde|vierde) getal *samen #*maar ook het (derde|tweede) en (vierde|derde) getal "
                 "\\(samen #). Uitkomst: # +",
                 by_variant({0, 1, 2}), E, by_variant({0, 1, 1}), by_variant({0, 0, 1}), F, E),
        ticks({15}));
    row(L_schoolbord_11_06_click, 4, "Kies het goede antwoord. | deel  van # = | # | #",
        range({{0.04, 18, 0.3}, {1, 1}, {2, 6}}), range({{0.06, 15, 0.3}, {2, 4}, {3, 5}}),
        range({{0.12, 21, 0.4}, {2, 6}, {6, 7}}), range({{0.16, 30, 0.6}, {3, 7}, {8, 10}}), right(part),
        wrong("", one_part, A - part, A * C, part + one_part, part - one_part, part * 10, part / 10),
        explains("lezen als # honderdste. Deel dit aantal eerst door #: # : *Dat is # honderdste, dus", A * 100, C,
                 A * 100, part * 100),
        tips("Maak eerst honderdsten", "Reken verder met # honderdsten: deel door #"));
    row(M_dichtst_bij_11_06_click, 3, "met de streepbreuk? | # | # | #", counts(least_distance),
        right(lifted([](double a, double b) { return same(a, b); }, rounded(abs(answer - mixed), 3), least_distance)),
        range({{1, 20}, {1, 1}, {2, 2}, {0.01, 0.04}}), range({{1, 20}, {1, 3}, {4, 4}, {0.01, 0.04}}),
        range({{1, 20}, {1, 7}, {8, 8}, {0.005, 0.035}}),
        explains(
            "getal & is als kommagetal #. Dit verschilt # met * bij A, # met * bij B, # met * bij C en # met * D. *is #: *| = #",
            mixed, mixed, distance(0), distance(1), distance(2), distance(3), D, mixed),
        tips("Maak van die streepbreuk", "Bereken dan bij elk"));
    row(M_grootste_kleinste_11_01_click, 2, "getal is het (kleinste|grootste)? | # | # | # | #",
        counts(ranked(0, 1'000), ranked(0, 100), B - floor(B / 100) * 100),
        range({{0, 0}, {10000, 999999, 15000}, any, any, any, {0, 7}, {0, 8}, {0, 99, 4}}),
        range({{1, 1}, {10000, 999999, 15000}}), right(ranked(0)), wrong("Vergelijk de honderdtallen...", ranked(1)),
        wrong("Kijk naar de duizendtallen...", ranked(2)),
        wrong("het grootste getal genomen, maar je moest het kleinste hebben!", largest(B, C, D, E)),
        wrong("het kleinste getal genomen, maar je moest het grootste hebben!", smallest(B, C, D, E)),
        explains("Het cijfer # is daar het (kleinste|grootste). Dat staat in # en in #. Vergelijk daarvan de "
                 "honderdtallen: # is (kleiner|groter) dan #. Het (kleinste|grootste) getal",
                 F, A, ranked(0), ranked(1), G, A, ranked(1, 100), A));
    row(M_tabel_11_01_click, 4, "tussen # en # bijgekomen? *x #* in het jaar |  | # | # | # | # | # | # | # | #",
        counts(place_of(B, {D, F, H, J}) - place_of(A, {D, F, H, J})),
        range({{1960, 2001, 4},
               {1961, 2002, 4},
               {100, 100000},
               {1960, 1999, 10},
               {10, 96, 30},
               any,
               any,
               any,
               any,
               any,
               any,
               {1, 3}}),
        right(growth * C), wrong("vergeten te vermenigvuldigen", growth),
        wrong("met het goede getal vermenigvuldigd", growth * C / 10, growth * C * 10),
        wrong("Zoveel leden waren er in # in totaal. Een deel daarvan was er in # al.", members(1) * C),
        wrong("Je hebt de aantallen opgeteld.", (members(0) + members(1)) * C),
        explains("In # staat in de tabel het getal # en in # het getal #. *Boven de tabel staat: x #.", A, members(0),
                 B, members(1), C));
});

} // namespace
} // namespace cijferwerf
