// Number knowledge: what is drawn, the answers worked out again from what a pupil sees, and each wrong answer as the
// mistake that its feedback names.
#include "generators/gedeeld/telwoord.h"
#include "tests/support/exercise_rows.h"

#include <sstream>

namespace cijferwerf {
namespace {

int right_end(const text_op& text) { return text.x + text_width(text.text, text.size); }
int middle(const text_op& text) { return text.x + text_width(text.text, text.size) / 2; }
formula by_variant(std::vector<double> values) {
    return [=](const reading& n) { return values.at(static_cast<std::size_t>(n.variant() - 1)); };
}

// ---- lines ----

// How many marks stand left of this x, where one must be.
int mark_at(const seen& e, int x) {
    std::set<int> marks;
    for (const drawing_op& each : e.made.plaatje.operations())
        if (const auto* line = std::get_if<line_op>(&each); line != nullptr && line->from.x == line->to.x)
            marks.insert(line->from.x);
    EXPECT_TRUE(marks.contains(x)) << "no mark at " << x;
    return static_cast<int>(std::distance(marks.begin(), marks.find(x)));
}
int tip_of(const seen& e, kleur colour) {
    for (const drawing_op& each : e.made.plaatje.operations())
        if (const auto* arrow = std::get_if<polygon_op>(&each);
            arrow != nullptr && arrow->filled && arrow->pen.colour == colour)
            return arrow->corners.front().x;
    return -1;
}
formula arrow(kleur colour) {
    return [colour](const reading& n) { return mark_at(n.exercise, tip_of(n.exercise, colour)); };
}
formula mark_above(std::size_t word) {
    return [word](const reading& n) { return mark_at(n.exercise, middle(n.exercise.texts.at(word))); };
}
const formula several = [](const reading& n) { return n[3] > 1 ? 1 : 0; };

constexpr const char* ordinals = "(nulde|eerste|tweede|derde|vierde|vijfde|zesde|zevende|achtste|negende)";
const std::string marked = regel("lijnstuk *# *#. *", ordinals, " streepje. * | # | # |  | #");

// A line in ten pieces, and an arrow of this colour.
template<class... Parts>
void line_of_ten(oefening_id id, kleur colour, const char* reads, const Parts&... parts) {
    const formula tenth = (v[1] - v[0]) / 10, right = v[0] + v[2] * tenth;
    row(id, 3, reads, counts(arrow(colour)), cijferwerf::right(right),
        wrong("", v[1] - v[2] * tenth, v[0] + v[2] * tenth / 10, right - tenth, right - tenth * 2, right + tenth,
              right + tenth * 2),
        explains(marked.c_str(), v[0], v[1], v[2], v[0], v[1], right), parts...);
}

void check_arrows(const reading& n) {
    static constexpr std::array colours{rood, blauw, geel, groen};
    std::set<int> marks;
    for (int i = 1; i <= 4; ++i) {
        const kleur colour = colours.at(static_cast<std::size_t>(i - 1));
        const int tip = tip_of(n.exercise, colour), mark = mark_at(n.exercise, tip);
        const double value = n[1] + mark / n[4];
        const text_op& name = n.exercise.texts.at(static_cast<std::size_t>(i + 1));
        EXPECT_TRUE(name.text == woord(colour) && std::abs(middle(name) - tip) <= 2) << name.text;
        EXPECT_TRUE(n.exercise.answer(i) == regel(bijvoeglijk(colour), " pijl") && marks.insert(mark).second);
        EXPECT_EQ(same(value, n[0]), i == n.exercise.right_place());
        if (i == n.exercise.right_place()) continue;
        const auto told = find_pattern(n.exercise.feedback(i), regel("De ", n.exercise.answer(i), " wijst naar het ",
                                                                     ordinals, " streepje, dus naar het getal #."));
        EXPECT_TRUE(told && told->numbers[0] == mark && same(told->numbers[1], value)) << n.exercise.feedback(i);
    }
    EXPECT_TRUE(*marks.begin() > 0 && *marks.rbegin() < n[4]);
}

// ---- places of digits ----

// Which digits of a wrong answer stand elsewhere is what its feedback says.
void check_digits(const reading& n) {
    const seen& e = n.exercise;
    for (int i = 2; i <= 4; ++i) {
        const std::string wrong = e.answer(i);
        std::string moved;
        for (std::size_t at = 0; at < wrong.size(); ++at) moved += wrong[at] == e.right.at(at) ? '.' : 'x';
        const auto all = std::ranges::count(moved, 'x'), last = std::count(moved.end() - 3, moved.end(), 'x');
        EXPECT_TRUE(std::ranges::is_permutation(e.right, wrong) && (last == 0 || last == 2) && all <= last + 2);
        const char* told = all == last                                  ? "In het laatste deel"
                           : last > 0                                   ? "Vier cijfers"
                           : n.variant() < 3 && moved.starts_with("xx") ? "De eerste twee cijfers"
                           : n.variant() < 3 ? "De laatste drie cijfers zijn wel goed. In het linker"
                                             : "De laatste drie cijfers zijn wel goed. In het middelste";
        EXPECT_TRUE(e.feedback(i).starts_with(told)) << wrong << ": " << e.feedback(i);
    }
    EXPECT_EQ(e.words, telwoord_in_groepen(whole(e.right), spelling::schools));
    std::istringstream groups(e.right);
    for (const std::string& word : e.words) {
        std::string group;
        std::getline(groups, group, '.');
        EXPECT_NE(e.explanation.find(regel("stukje ", word, " wordt ", group, ".")), std::string::npos) << word;
    }
}

// The place of the digit at which the arrow points, counted from 0 at the right end.
const formula place = [](const reading& n) {
    const text_op& number = n.exercise.texts.at(0);
    int from_right = 0, pointed = -1;
    for (std::size_t at = number.text.size(); at-- > 0;) {
        const int right = number.x + text_width(number.text.substr(0, at + 1), number.size);
        if (std::abs(right - text_width("0", number.size) / 2 - tip_of(n.exercise, rood)) <= 2) pointed = from_right;
        from_right += number.text[at] != '.';
    }
    return pointed;
};
const formula place_worth = [](const reading& n) { return std::pow(10, n[1]); };
const formula pointed = [](const reading& n) { return std::fmod(std::floor(n[0] / std::pow(10, n[1])), 10); };
std::vector<mistake> at_other_places() {
    std::vector<mistake> all;
    for (const char* name :
         {"eenheden", "\\(T\\)", "\\(H\\)", "\\(D\\)", "\\(TD\\)", "\\(HD\\)", "\\(M\\)", "\\(TM\\)"})
        all.push_back({name, pointed * std::pow(10, all.size())});
    return all;
}

// The digits of a number such as 0,206, and the denominators of their places.
const formula first_part = by_variant({10, 10, 100}), second_part = by_variant({100, 1000, 1000});
const formula first_digit = rounded(v[0] * first_part - .5);
const formula second_digit = v[0] * second_part - first_digit * second_part / first_part;

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
    std::string drawn, wanted = e.right;
    const auto words = e.when_explained().words;
    for (std::size_t at = e.words.size(); at < words.size(); ++at) drawn += words[at];
    std::erase(wanted, ',');
    EXPECT_EQ(drawn, wanted);
}

// ---- sums ----

// How many digits the lower number of this addition, from 0, ends left of the upper one.
double shift(const seen& e, std::size_t sum) {
    const text_op &upper = e.texts.at(1 + 3 * sum), &lower = e.texts.at(2 + 3 * sum);
    return 1.0 * (right_end(upper) - right_end(lower)) / text_width("0", upper.size);
}
const formula aligned = [](const reading& n) {
    std::string letters;
    for (std::size_t sum = 0; sum < 4; ++sum)
        if (shift(n.exercise, sum) == 0) letters += static_cast<char>('A' + sum);
    return letters;
};
void check_columns(const reading& n) {
    const text_op& heading = n.exercise.texts.at(0);
    std::set<double> shifts;
    for (std::size_t sum = 0; sum < 4; ++sum) {
        shifts.insert(shift(n.exercise, sum));
        const std::string letter(1, static_cast<char>('A' + sum));
        EXPECT_EQ(n.exercise.answer(static_cast<int>(sum) + 1), letter);
        const int at = heading.x + text_width(heading.text.substr(0, heading.text.find(letter)), heading.size);
        EXPECT_NEAR(middle(n.exercise.texts.at((n[0] > n[1] ? 1 : 2) + 3 * sum)),
                    at + text_width(letter, heading.size) / 2, n.variant() == 1 ? 300 : 3);
    }
    EXPECT_TRUE(shifts == (std::set<double>{-1, 0, 1, 2}) || shifts == (std::set<double>{-2, -1, 0, 1}));
}
formula unit_of(const formula& number) { return number - rounded(number / 10 - .5) * 10; }

const formula unit = by_variant({100, 1'000, 10'000});
const formula near_first = rounded(v[0] / unit) * unit, near_second = rounded(v[1] / unit) * unit;
const formula estimate = near_first - near_second;

const formula total = v[0] + v[1] + v[2] + v[3];
// What the first number and its partner make.
const formula first_pair = [](const reading& n) { return n[0] + n[static_cast<std::size_t>(n.variant())]; };

const formula one_part = v[0] / v[2], part = one_part * v[1];
void check_board(const reading& n) {
    static constexpr std::array starts{4300, 4300, 4300, 4200, 4100, 4000}; // by the length of the answer
    const seen& e = n.exercise;
    EXPECT_LT(right_end(e.texts[0]), 4000);
    EXPECT_NE(std::fmod(std::round(n[0] * 100), 100), 0);
    EXPECT_EQ(e.made.uitlegopdrachten[0], regel("PRINT_", kaal(starts.at(e.right.size())), "_800_12_20_", e.right));
    for (const double each : e.numbers()) EXPECT_FALSE(same(each, n[0])) << "the number that is given";
    const auto times = find_pattern(e.explanation, "daarna met #:");
    EXPECT_EQ(times ? times->numbers[0] : 1, n[1]);
}

// ---- comparisons ----

const formula mixed = v[0] + v[1] / v[2];
double off(const reading& n, double answer) { return std::abs(n[0] + n[1] / n[2] - answer); }
formula distance(std::size_t answer) {
    return [answer](const reading& n) { return off(n, n.exercise.numbers().at(answer)); };
}
const formula least_distance = [](const reading& n) {
    std::set<long long> all; // thousandths: no two alike
    for (const double each : n.exercise.numbers()) all.insert(std::llround(1000 * off(n, each)));
    EXPECT_TRUE(all.size() == 4 && *all.rbegin() <= 160);
    EXPECT_EQ(std::llround(1000 * off(n, decimal(n.exercise.right))), *all.begin());
    return static_cast<double>(*all.begin()) / 1000;
};

// Of the four numbers, the one with this rank from the side that is asked for; or its digit at this place.
formula ranked(std::size_t rank, int unit_place = 0) {
    return [=](const reading& n) {
        std::array four{n[1], n[2], n[3], n[4]};
        std::ranges::sort(four);
        const int number = static_cast<int>(four.at(n.variant() == 1 ? rank : 3 - rank));
        return unit_place == 0 ? number : number / unit_place % 10;
    };
}
const formula smallest = [](const reading& n) { return std::min({n[1], n[2], n[3], n[4]}); };
const formula largest = [](const reading& n) { return std::max({n[1], n[2], n[3], n[4]}); };

// The count beside the first (0) or second (1) year of the question.
formula members(std::size_t asked) {
    return [asked](const reading& n) {
        for (std::size_t row = 3; row < 11; row += 2)
            if (n[row] == n[asked]) return n[row + 1];
        return -1.0;
    };
}
const formula growth = members(1) - members(0);

const formula piece = (v[1] - v[0]) / v[3], at_arrow = v[0] + v[2] * piece;

const exercise_rows number_knowledge([] {
    row(B_getallenlijn_11_01_click, 5, "wijst die pijl? | # | #", counts(arrow(rood), mark_above(1), mark_above(0)),
        range({{5, 905, 5}, {13, 1705, 200}, {1, 9}, {4, 8}, {0, 0}}), right(at_arrow),
        wrong("", at_arrow - piece, at_arrow + piece, v[0] + piece, v[0] + v[2], at_arrow + v[2] * piece,
              v[1] + v[2] * piece),
        explains(
            "tussen # en # in # stukjes *waarde van # : # = #. De pijl staat # (stukje|stukjes) verder dan #. "
            "* | # | # |  | #",
            v[0], v[1], v[3], v[1] - v[0], v[3], by_variant({2, 5, 10, 50, 100}), v[2],
            [](const reading& n) { return n[2] == 1 ? 0 : 1; }, v[0], v[0], v[1], at_arrow),
        tips("Bereken eerst hoeveel de", "Deel het verschil"), [](const reading& n) {
            for (const double each : n.exercise.numbers()) EXPECT_TRUE(each != n[0] && each != n[1]);
        });
    line_of_ten(B_pijl_1_11_06_click, geel, "wijst de pijl? | # | #", range({{0, 9}, {1, 10}, {1, 9}}),
                range({{10, 99}, {11, 100}, {1, 9}}), range({{100, 199}, {101, 200}, {1, 9}}),
                tips("In hoeveel stukjes", "één lang"));
    line_of_ten(B_pijl_2_11_06_click, blauw, "Welk getal is dat? | # | #", range({{0.1, 0.9}, {0.2, 1}, {1, 9}}),
                range({{1, 9.9}, {1.1, 10}, {1, 9}}), range({{10, 19.9}, {10.1, 20}, {1, 9}}),
                tips("Hoe groot is het verschil", "een tiende lang"));
    row(L_pijlverwijzing_11_06_click, 2, "geeft het getal # aan? | # | #",
        counts([](const reading& n) { return std::round((n[0] - n[1]) * (n.variant() == 1 ? 5 : 10)); },
               [](const reading& n) { return mark_at(n.exercise, 5090); }),
        range({{0.2, 99.8, 2}, {0, 99}, {1, 100}, {1, 4}, {5, 5}}),
        range({{0.1, 99.9, 2}, {0, 99}, {1, 100}, {1, 9}, {10, 10}}),
        explains("tussen # en # is in (vijf|tien) gelijke stukjes verdeeld. Elk stukje heeft dus een waarde van #. "
                 "Van # tot # (is|zijn) het # (stukje|stukjes): * streepje *geel | groen | #",
                 v[1], v[2], by_variant({0, 1}), 1 / v[4], v[1], v[0], several, v[3], several, v[0]),
        check_arrows);
    row(B_letters_11_01_click, 3, "Hoe schrijf je het in cijfers?",
        counts([](const reading& n) { return decimal(n.exercise.right); }), range({{12102, 98987, 1500}}),
        range({{102102, 987987, 15000}}), range({{1102102, 9987987, 150000}}), explains("dus #. * | #", v[0], v[0]),
        check_digits);
    row(B_waarde_11_01_click, 3, "dat cijfer waard? | #", counts(place), range({{1000, 99999, 400}, {1, 4}}),
        range({{100000, 9999999, 40000}, {3, 6}}), range({{10000000, 99999999, 400000}, {6, 7}}),
        right(pointed * place_worth), wrong(at_other_places()),
        explains("naar het cijfer #. Dit cijfer geeft het aantal (tientallen|honderdtallen|duizendtallen|"
                 "tienduizendtallen|honderdduizendtallen|miljoentallen|tienmiljoentallen) *met #. Uitkomst: # ",
                 pointed, v[1] - 1, place_worth, pointed));
    row(L_na_de_komma_11_06_click, 3, "Kies de juiste kleur. | # =", range({{0.26, 0.59}}), range({{0.206, 0.509}}),
        range({{0.026, 0.059}}), right(says("#/# + #/#", first_digit, first_part, second_digit, second_part)),
        wrong("De eerste helft van je antwoord is goed", says("#/# + #/*", first_digit, first_part, second_digit)),
        wrong("De tweede helft van je antwoord is wel goed", says("#/* + #/#", first_digit, second_digit, second_part)),
        wrong("Beide helften", says("#/* + #/*", first_digit, second_digit)));
    row(L_samenstellen_11_06_click, 6, "bestaat uit # @ en # @? | D | H | T | E | t | h | d",
        counts(counted(0), counted(1)), range({{1, 5}, {2, 9}, {0.1, 100}, {0.001, 10}}),
        right(v[0] * v[2] + v[1] * v[3]), wrong("met elkaar verwisseld", v[0] * v[3] + v[1] * v[2]),
        wrong("staat wel goed", lies::elsewhere), wrong("allebei niet", lies::elsewhere), check_composed);
    row(B_onder_elkaar_11_01_click, 3,
        "elkaar? | A             B              C              D | # | # | + | $0 | $1 | + | $0 | $1 | + | $0 | $1",
        range({{10, 99}, {10, 99}}), range({{10, 999, 9}, {10, 999, 9}}), range({{10, 9999, 90}, {10, 9999, 90}}),
        right(aligned),
        explains("hier de # *bovenste getal) en de # *Alleen bij * | goed", unit_of(v[0]), unit_of(v[1])),
        tips("in welke optelling", "laatste cijfers van de getallen: hier de # en de #."), check_columns);
    row(B_schatten_11_01_click, 3, "Uit het hoofd! | # - #", range({{292, 908}, {92, 708}}),
        range({{2920, 20080, 20}, {920, 18080, 60}}), range({{29200, 200800, 200}, {9200, 180800, 600}}),
        right(estimate),
        wrong("", estimate - unit, estimate + unit, estimate - unit * 2, estimate + unit * 2, near_first + near_second,
              estimate * 10, estimate / 10),
        explains("gelijk aan #. Het tweede getal is ongeveer gelijk aan #. * # * | ongeveer # - #", near_first,
                 near_second, near_first, near_first, near_second),
        tips("ONGEVEER", "Rond beide getallen af op (honderdtallen|duizendtallen|tienduizendtallen)."),
        [](const reading& n) {
            const auto answers = n.exercise.numbers();
            const auto away = [&](double answer) { return std::abs(answer - (n[0] - n[1])); };
            EXPECT_EQ(away(answers[0]), away(*std::ranges::min_element(answers, {}, away)));
        });
    row(L_optellen_11_01_click, 3, "som hiernaast... | # + # + # + # = ..", counts(first_pair, total - first_pair),
        range({{10, 249}, {1, 249, 5}, {1, 249, 5}, {1, 240, 5}, {20, 250}, {20, 250}}), right(total),
        wrong("", total - 10, total - 20, total - 30, total + 10, total + 20, total + 30),
        explains("eerste en (tweede|derde|vierde) getal *samen #*maar ook het (derde|tweede) en (vierde|derde) getal "
                 "\\(samen #). Uitkomst: # +",
                 by_variant({0, 1, 2}), v[4], by_variant({0, 1, 1}), by_variant({0, 0, 1}), v[5], v[4]),
        ticks({15}), [](const reading& n) { EXPECT_TRUE(std::fmod(n[4], 10) == 0 && std::fmod(n[5], 10) == 0); });
    row(L_schoolbord_11_06_click, 4, "Kies het goede antwoord. | deel  van # = | # | #",
        range({{0.04, 18, 0.3}, {1, 1}, {2, 6}}), range({{0.06, 15, 0.3}, {2, 4}, {3, 5}}),
        range({{0.12, 21, 0.4}, {2, 6}, {6, 7}}), range({{0.16, 30, 0.6}, {3, 7}, {8, 10}}), right(part),
        wrong("", one_part, v[0] - part, v[0] * v[2], part + one_part, part - one_part, part * 10, part / 10),
        explains("lezen als # honderdste. Deel dit aantal eerst door #: # : *Dat is # honderdste, dus", v[0] * 100,
                 v[2], v[0] * 100, part * 100),
        tips("Maak eerst honderdsten", "Reken verder met # honderdsten: deel door #"), check_board);
    row(M_dichtst_bij_11_06_click, 3, "met de streepbreuk? | # | # | #", counts(least_distance),
        range({{1, 20}, {1, 1}, {2, 2}, {0.01, 0.04}}), range({{1, 20}, {1, 3}, {4, 4}, {0.01, 0.04}}),
        range({{1, 20}, {1, 7}, {8, 8}, {0.005, 0.035}}),
        explains("Het getal & is als kommagetal #. Dit verschilt # met het getal bij A, # met het getal bij B, # met "
                 "het getal bij C en # met het getal bij D. Het kleinste verschil is #: * = #",
                 mixed, mixed, distance(0), distance(1), distance(2), distance(3), v[3], mixed),
        tips("Maak van die streepbreuk", "Bereken dan bij elk"));
    row(M_grootste_kleinste_11_01_click, 2, "getal is het (kleinste|grootste)? | # | # | # | #",
        counts(ranked(0, 1'000), ranked(0, 100)), range({{0, 0}, {10000, 999999, 15000}}),
        range({{1, 1}, {10000, 999999, 15000}}), right(ranked(0)), wrong("Vergelijk de honderdtallen...", ranked(1)),
        wrong("Kijk naar de duizendtallen...", ranked(2)),
        wrong("het grootste getal genomen, maar je moest het kleinste hebben!", largest),
        wrong("het kleinste getal genomen, maar je moest het grootste hebben!", smallest),
        explains("Het cijfer # is daar het (kleinste|grootste). Dat staat in # en in #. Vergelijk daarvan de "
                 "honderdtallen: # is (kleiner|groter) dan #. Het (kleinste|grootste) getal",
                 v[5], v[0], ranked(0), ranked(1), v[6], v[0], ranked(1, 100), v[0]),
        [](const reading& n) {
            const auto at = [&](std::size_t rank, int worth) { return std::get<double>(ranked(rank, worth)(n)); };
            EXPECT_TRUE(n[5] == at(1, 1'000) && n[6] != at(1, 100) && n[5] != at(2, 1'000));
            EXPECT_NE(at(2, 1'000), at(3, 1'000));
            for (std::size_t i = 2; i <= 4; ++i) EXPECT_EQ(std::floor(n[i] / 1e4), std::floor(n[1] / 1e4));
        });
    row(M_tabel_11_01_click, 4,
        "tussen # en # bijgekomen? | TABEL | aantal leden *x #* in het jaar |  | # | # | # | # | # | # | # | #",
        range({{1960, 2001, 4}, {1961, 2002, 4}, {100, 100000}, {1960, 1999, 10}, {10, 96, 30}}), right(growth * v[2]),
        wrong("vergeten te vermenigvuldigen", growth),
        wrong("met het goede getal vermenigvuldigd", growth * v[2] / 10, growth * v[2] * 10),
        wrong("Zoveel leden waren er in # in totaal. Een deel daarvan was er in # al.", members(1) * v[2]),
        wrong("Je hebt de aantallen opgeteld.", (members(0) + members(1)) * v[2]),
        explains("In # staat in de tabel het getal # en in # het getal #. *Boven de tabel staat: x #. * | # x # = | #",
                 v[0], members(0), v[1], members(1), v[2], growth, v[2], growth * v[2]),
        [](const reading& n) {
            for (std::size_t row = 3; row < 9; ++row) EXPECT_LT(n[row], n[row + 2]);
            EXPECT_TRUE(n[9] <= 2002 && n[10] <= 99 && n[2] == std::pow(10, n.variant() + 1));
        });
});

} // namespace
} // namespace cijferwerf
