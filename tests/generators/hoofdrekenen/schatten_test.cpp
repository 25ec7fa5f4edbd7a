// Estimates: what is drawn, or stands in a table, a letter or on a counter, is read back and rounded again.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// The last thing of a kind that is drawn.
template<class Operation>
Operation last_of(const reading& n) {
    Operation last{};
    for (const drawing_op& each : n.exercise.made.plaatje.operations())
        if (const auto* operation = std::get_if<Operation>(&each)) last = *operation;
    return last;
}
// No wrong answer is nearly as near to what comes out unrounded.
void check_distance(const reading& n, double exact) {
    const auto off = [exact](const std::string& answer) { return std::abs(number_of(answer).value() - exact); };
    for (const std::string& each : n.exercise.answers())
        EXPECT_TRUE(each == n.exercise.right || off(each) > 2 * off(n.exercise.right) - 1e-9) << each;
}
const formula hatched = [](const reading& n) { return last_of<circle_op>(n).sweep / 3.6; };
const formula quarters = rounded(v[0] / 25);
void check_circle(const reading& n) {
    const circle_op sector = last_of<circle_op>(n);
    EXPECT_NEAR(std::fmod(sector.start + sector.sweep + 360, 360), (5 - n.variant()) * 90 % 360, 1e-6);
    EXPECT_NEAR(std::abs(n[0] - decimal(n.exercise.right)), 2.5, 1.501);
    EXPECT_EQ(std::ranges::count(n.exercise.when_explained().words, "25 %"), 4);
}

// Both lines of an answer are the same length, and that is the true one or powers of ten away from it.
void check_length(const reading& n) {
    static const std::array<std::array<std::string, 3>, 10> things{
        {{"De lengte van een gewone lucifer", "4 cm", "lucifer is ongeveer 4 cm lang."},
         {"De lengte van de aanwijsstok van de leerkracht", "1,1 m", "aanwijsstok is ongeveer 1,1 meter lang."},
         {"Iemand die rustig fietst legt in een uur", "15 km", "legt in een uur ongeveer 15 km af."},
         {"De omtrek van een voetbal", "80 cm", "voetbal is ongeveer 80 cm."},
         {"De lengte van een pasgeboren baby", "0,5 m", "baby is ongeveer 0,5 meter lang."},
         {"De hoogte van een aanrecht", "0,9 m", "aanrecht is ongeveer 0,9 meter hoog."},
         {"De hoogte van een deur", "2 m", "Een deur is ongeveer 2 meter hoog."},
         {"Een auto rijdt op de snelweg", "120 km", "snelweg ongeveer 120 km per uur."},
         {"Iemand die rustig loopt, loopt per", "5 km", "loopt ongeveer 5 km per uur."},
         {"Een bed heeft een lengte", "2 m", "bed is ongeveer 2 meter lang."}}};
    const auto& [asked, size, closed] = things.at(static_cast<std::size_t>(n.variant() - 1));
    EXPECT_TRUE(n.words[0].starts_with(asked)) << n.words[0];
    for (int i = 1; i <= 4; ++i) {
        std::string answer = n.exercise.answer(i);
        std::ranges::replace(answer, '\r', ' ');
        EXPECT_TRUE(check_sums(answer).steps == 1 && check_sums(answer).wrong.empty()) << answer;
        const double places =
            std::log10(amount_of(answer.substr(answer.find('=') + 2))->value / amount_of(size)->value);
        EXPECT_NEAR(places, std::round(places), 1e-6);
        EXPECT_EQ(std::abs(places) < 0.5, i == n.exercise.right_place());
        EXPECT_TRUE(i == n.exercise.right_place() ||
                    n.exercise.feedback(i).starts_with(places < 0 ? "Dat is veel te weinig" : "Dat is veel te veel"));
    }
    const auto stairs =
        find_pattern(n.exercise.explanation, closed + " Van *ga je (1 trede |2 treden |3 treden )*: # (x|:) # =");
    const std::vector<double>& s = stairs.value().numbers;
    EXPECT_EQ(s[3], std::pow(10, s[0] + 1));
    EXPECT_EQ(s[2] == 0, n.exercise.explanation.find("omlaag: ") != std::string::npos);
}

const formula width = rounded(v[0]), length = rounded(v[1]);

formula down(const formula& number, double to = 1) {
    return [=](const reading& n) { return std::floor(std::get<double>(number(n)) / to); };
}
// By how many thousands the two years of museum A or B are above what is claimed.
formula over(std::size_t museum) {
    return [=](const reading& n) {
        return std::floor(n[2 * museum - 1] / 1000) + std::floor(n[2 * museum] / 1000) - (n[0] == 0 ? 1000 : 500);
    };
}
std::vector<span> visitors(double claimed, double half) {
    const span last_year{half - 60e3, half + 61e3, 4e3}, this_year{half - 70e3, half + 70e3, 7e3}, above{-9, 9};
    return {{claimed, claimed}, last_year, this_year, last_year, this_year, above, above};
}
const formula fails_a = [](const reading& n) { return n[5] < 0; };
const formula fails_b = [](const reading& n) { return n[6] < 0; };
// Two answers differ about one of the museums, or about both.
void check_claims(const reading& n) {
    EXPECT_NE(n.words[0], n.words[1]);
    const std::array<std::string, 4> all{"alleen " + n.words[0], "alleen " + n.words[1], "allebei", "niemand"};
    EXPECT_EQ(n.exercise.answers(), all);
    for (const double each : {n[5], n[6]}) EXPECT_TRUE(each > 0 || each < -1) << "the thousands decide";
    const int right = n[5] < 0 ? n[6] < 0 ? 4 : 2 : n[6] < 0 ? 1 : 3;
    EXPECT_EQ(n.exercise.right_place(), right);
    for (int i = 1; i <= 4; ++i) {
        const bool both = i + right == 3 || i + right == 7;
        EXPECT_TRUE(i == right || n.exercise.feedback(i).starts_with(both ? "Eerst moet je" : "Vergelijk eerst")) << i;
    }
}

// How long the subject is drawn, in the bars of a centimetre that the explanation lays along it.
double drawn(const reading& n) {
    const std::vector<box_op> before = n.exercise.blocks, laid = n.exercise.when_explained().blocks;
    const box_op &first = laid.at(before.size()), &last = laid.back();
    const line_op end = last_of<line_op>(n);
    EXPECT_EQ(before.back().width, 567);
    EXPECT_NEAR(before.back().y, n.exercise.texts.back().y + 100, 60) << "beside its words";
    EXPECT_EQ(last.x + last.width, end.to.x) << "where the measure ends";
    EXPECT_NEAR(first.x + end.to.x, drawing::inner_width, 1) << "in the middle";
    return (last.x + last.width - first.x) / 567.0;
}
const formula scale = v[1] * 100 / v[2];
formula one_to(double times) { return says("1 : #", scale * times); }

// What is on the counter, rounded.
const formula year = [](const reading& n) {
    std::string digits = n.exercise.words.at(1);
    std::erase(digits, ' ');
    return rounded(decimal(digits), -2);
};
formula parts(double months, double weeks) {
    return [=](const reading& n) { return n[0] == 0 ? months : weeks; };
}
formula other(double months, double weeks) { return rounded(v[1] / (parts(months, weeks) * 50)) * 50; }
const formula each_part = v[1] / parts(12, 52);
void check_round(const reading& n) {
    for (const double km : n.exercise.numbers()) EXPECT_EQ(std::fmod(km, 50), 0) << "as round as the right one";
}

// Rounded to thousands, or to the other side.
formula thousand(std::size_t i, int towards = 0) {
    return [=](const reading& n) {
        const double near = rounded(n[i], -3);
        return towards == 0 ? near : n[i] < near ? near - 1000 : near + 1000;
    };
}
const formula price = thousand(1), tax = thousand(2), left_over = v[0] - price - tax;

void check_letter(const reading& n) {
    const bool price_under = std::fmod(n[1], 1000) > 500, tax_under = std::fmod(n[2], 1000) > 500;
    EXPECT_TRUE(n.variant() == 3 ? price_under != tax_under
                                 : price_under == tax_under && tax_under == (n.variant() == 1));
    check_distance(n, n[0] - n[1] - n[2]);
}

// Of the times on the sheet.
formula times(double (*of_each)(double)) {
    return [=](const reading& n) {
        double sum = 0;
        for (std::size_t i = 2; i < n.exercise.words.size(); i += 2) sum += of_each(decimal(n.exercise.words[i]));
        return rounded(sum, 1);
    };
}
const formula runners = times([](double) { return 1.0; }),
              whole_seconds = times([](double t) { return std::floor(t); });
const formula tenths = times([](double t) { return t - std::floor(t); });
// Who rounds each of them finds the same.
const formula estimated = times([](double t) { return rounded(t); });
void check_runners(const reading& n) {
    EXPECT_TRUE(rounded(n[1] + n[2]) == decimal(n.exercise.right) && std::fmod(rounded(n[2] * 10), 10) != 5);
    std::set<std::string> names;
    for (std::size_t i = 1; i < n.exercise.words.size(); i += 2) names.insert(n.exercise.words[i]);
    EXPECT_EQ(static_cast<double>(names.size()), n[0]);
}

const exercise_rows estimates([] {
    row(B_gestreept_10_03_click, 4, "vier stukken verdeeld. Voor welk deel ongeveer is de cirkel gestreept?",
        counts(hatched), range({{20.99, 79.01, 0.1}}), right(quarters * 25), wrong("klok", quarters * 15),
        wrong("twee dingen door elkaar", formula(100) - quarters * 25), wrong("zomaar een gokje", lies::elsewhere),
        explains(
            "ongeveer # (stuk|stukken) gestreept. Het gestreepte deel is dus ongeveer # x 25 % = # %.", quarters,
            [](const reading& n) { return n[0] > 30; }, quarters, quarters * 25),
        check_circle);
    row(B_schatten_1_10_09_click, 10, "Maak een schatting. @ | km", check_length);
    row(L_betegelen_10_12_click, 3,
        "De vloer is # m breed en # m lang. Hoeveel m² heeft hij ongeveer nodig? | $1 m | $0 m",
        range({{1.9, 5.9}, {3, 9}}), range({{2, 6}, {2.9, 8.9}}), range({{1.9, 5.9}, {2.9, 8.9}}),
        right(width * length),
        wrong("Eerst moet je de lengte", down(v[0]) * down(v[1]), (width - 1) * length, width * (length - 1),
              (width + 1) * length, width * (length + 1), (width + 1) * (length + 1)),
        wrong("met elkaar vermenigvuldigen", width + length, (width + length) * 2),
        explains("is ongeveer # m en de lengte is ongeveer # m. # x # = #, dus", width, length, width, length,
                 width * length),
        [](const reading& n) { check_distance(n, n[0] * n[1]); });
    row(L_bezoekers_10_00_click, 2,
        "@ zegt dat museum A in twee jaar meer dan (1 miljoen|een half miljoen) bezoekers had. @ zegt dat van "
        "museum B. Wie heeft gelijk? |* vorig jaar | dit jaar | museum A | # | # | museum B | # | #",
        counts(over(1), over(2)), range(visitors(0, 500e3)), range(visitors(1, 250e3)), words({20, 20}),
        explains("A: # + # *(meer|minder) dan *B: # + # *(meer|minder) dan", down(v[1], 1000), down(v[2], 1000),
                 fails_a, down(v[3], 1000), down(v[4], 1000), fails_b),
        check_claims);
    row(L_schaal_10_16_click, 5,
        "tekening van een (vrachtauto|motorjacht|flatgebouw|trein|vliegtuig). In het echt is {de|het|het|de|het} "
        "{vrachtauto|motorjacht|flatgebouw|trein|vliegtuig} # m lang. Maak een schatting van de schaal waarin "
        "deze tekening gemaakt is. | $1 m | 1 cm",
        counts(drawn), range({{0, 4}, {8, 180}, {4, 6}}), right(one_to(1)),
        wrong("omgerekend van m naar cm", one_to(10), one_to(0.1)), wrong("erg ver naast", one_to(5), one_to(0.2)),
        wrong("Bedenk wat 1 cm", one_to(2), one_to(0.5)),
        explains("past # keer in de tekening, dus de tekening is # cm lang. *dat # m = # cm. 1 cm *# : # = # cm.", v[2],
                 v[2], v[1], v[1] * 100, v[1] * 100, v[2], scale));
    row(L_schatten_2_10_09_click, 2, "Op de kilometerteller * gemiddeld ongeveer per (maand|week)?", counts(year),
        range({{0, 0}, {10800, 36000, 600}}), range({{1, 1}, {10400, 36400}}), right(says("# km", each_part)),
        wrong("'t per (week|maand) uitgerekend", other(52, 12)), wrong("(tien maanden|48 weken) heeft", other(10, 48)),
        wrong("een beetje naast", lies::below, lies::above),
        explains(
            "ongeveer # km. Een jaar heeft # (maanden|weken). Je deelt dus door #: # : # = #. Deze *# km per (maand|week).",
            v[1], parts(12, 52), v[0], parts(12, 52), v[1], parts(12, 52), each_part, each_part, v[0]),
        check_round);
    row(M_erfenis_10_07_click, 3,
        "Een man erft € #,-. Hij krijgt de brief hiernaast. Verder koopt hij @ van € #,-. Hoeveel geld heeft hij "
        "dan nog ongeveer over? | BELASTINGDIENST | Geachte heer, | Over uw erfenis van € $0,- | moet u € #,- "
        "belasting betalen.",
        range({{20000, 60000}, {865, 5985, 40}, {2811, 8989, 60}}),
        range({{20000, 60000}, {1015, 6135, 40}, {3011, 9189, 60}}),
        range({{20000, 60000}, {865, 6135, 60}, {2811, 9189, 90}}), words({9}), right(left_over),
        wrong("Rond de bedragen eerst af.", v[0] - price - thousand(2, 1)),
        wrong("Eerst moet je de bedragen", v[0] - thousand(1, 1) - tax, v[0] - thousand(1, 1) - thousand(2, 1)),
        wrong("Hij koopt ook nog", v[0] - tax), wrong("nog belasting betalen", v[0] - price),
        wrong("belasting twee keer", left_over - tax), wrong("prijs twee keer", left_over - price),
        explains(
            "Rond af: # is ongeveer # en # is ongeveer #. EERSTE MANIER: *: # - # - # = #. TWEEDE MANIER: *: # + # = #.",
            v[2], tax, v[1], price, v[0], tax, price, left_over, tax, price, price + tax),
        check_letter);
    row(M_seconden_10_06_click, 3, "Hoeveel seconden is dat ongeveer bij elkaar? | UITSLAG: | @ | ",
        counts(runners, whole_seconds, tenths), range({{3, 3}, {33, 57, 3}, {0.3, 2.7, 0.4}}),
        range({{4, 4}, {44, 76, 5}, {0.4, 3.6, 0.6}}), range({{5, 5}, {55, 95, 8}, {0.5, 4.5, 0.8}}), words({19}),
        right(says("# seconden", estimated)), wrong("wel gekeken naar de cijfers achter de komma", v[1]),
        wrong("naar boven afgerond", v[1] + v[0]), wrong("achter de komma nog eens", estimated - 1, estimated + 1),
        wrong("vóór de komma nog eens", estimated - 10, estimated + 10),
        explains("hele seconden op: * = #. Achter de komma: * = #, dus ongeveer #. Bij elkaar is dat # + # = #.", v[1],
                 v[2], estimated - v[1], v[1], estimated - v[1], estimated),
        check_runners);
});

} // namespace
} // namespace cijferwerf
