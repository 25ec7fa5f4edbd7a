// Estimates: what is drawn, or stands in a table, a letter or on a counter, is read back and rounded again.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// No wrong answer is nearly as near to what comes out unrounded.
auto far_from_wrong(const formula& exact) {
    return [=](const reading& n) {
        const auto off = [&](const std::string& answer) { return std::abs(number_of(answer).value() - exact.in(n)); };
        for (const std::string& each : n.exercise.answers())
            EXPECT_TRUE(each == n.exercise.right || off(each) > 2 * off(n.exercise.right) - 1e-9) << each;
    };
}

const formula hatched = [](const reading& n) { return all<circle_op>(n).back().sweep / 3.6; };
const formula quarters = rounded(A / 25), edges = [](const reading&n) {
    return std::ranges::count(all<line_op>(n), 2, [](const line_op& line) { return line.pen.width; });
};

// By how many powers of ten both lines of an answer, which are the same length, are away from the true one.
const formula places_off = [](const reading& n) {
    static constexpr std::array sizes{"4 cm",  "1,1 m", "15 km",  "80 cm", "0,5 m",
                                      "0,9 m", "2 m",   "120 km", "5 km",  "2 m"};
    std::string lines = n.option;
    std::ranges::replace(lines, '\r', ' ');
    EXPECT_TRUE(check_sums(lines).steps == 1 && check_sums(lines).wrong.empty()) << lines;
    const char* const size = sizes.at(static_cast<std::size_t>(n.variant() - 1));
    return rounded(std::log10(amount_of(lines.substr(lines.find('=') + 2))->value / amount_of(size)->value), 6);
};

const formula width = rounded(A), length = rounded(B);

// By how many thousands two years of visitors are above what is claimed.
formula over(const formula& last_year, const formula& this_year) {
    return floor(last_year / 1000) + floor(this_year / 1000) - chosen(A, {1000, 500});
}
std::vector<span> visitors(double claimed, double half) {
    const span last_year{half - 60e3, half + 61e3, 4e3}, this_year{half - 70e3, half + 70e3, 7e3}, above{-9, 9};
    return {{claimed, claimed}, last_year, this_year, last_year, this_year, above, above, {1, 999, 20}, {1, 999, 20}};
}
// Told by the thousands and by all figures alike.
const formula fails_a = B + C < chosen(A, {1e6, 5e5}), fails_b = D + E < chosen(A, {1e6, 5e5});
// Who is right: A, B, both or neither; an answer may be wrong about one museum or about both.
const formula who = chosen(fails_a, {chosen(fails_b, {3, 1}), chosen(fails_b, {2, 4})});
const formula about_both = lifted([](double sum) { return sum == 3 || sum == 7; }, button + who);
const formula about_one = lifted([](double sum) { return sum != 3 && sum != 7; }, button + who);

// How long the subject is drawn, in the bars of a centimetre that the explanation lays along it.
double drawn(const reading& n) {
    const std::size_t before = n.exercise.blocks.size();
    const std::vector<box_op> laid = n.exercise.when_explained().blocks;
    EXPECT_NEAR(laid.at(before - 1).y, n.exercise.texts.back().y + 100, 60) << "beside its words";
    std::set<int> at;
    for (const box_op& part : n.exercise.blocks)
        if (part.pen.colour != blauw) at.insert({part.x, part.x + part.width}); // of the water
    at.erase(laid.at(before - 1).x), at.erase(laid.at(before - 1).x + 567);
    for (const polygon_op& part : all<polygon_op>(n))
        for (const auto& [x, y] : part.corners) at.insert(x);
    EXPECT_EQ(std::pair(*at.begin(), *at.rbegin()), std::pair(laid.at(before).x, laid.back().x + laid.back().width));
    return (*at.rbegin() - *at.begin()) / 567.0;
}
const formula scale = B * 100 / C;
formula one_to(double times) { return says("1 : #", scale * times); }

const formula counter = [](const reading&n) { return decimal(n.exercise.words.at(1)); }, year = rounded(counter, -2);
formula parts(double months, double weeks) { return chosen(A, {months, weeks}); }
formula other(double months, double weeks) { return rounded(B / (parts(months, weeks) * 50)) * 50; }
const formula each_part = B / parts(12, 52);
// Rounded to thousands the other way.
formula wrong_way(const formula& a, const formula& near) {
    return lifted([](double x, double y) { return x < y ? y - 1000 : y + 1000; }, a, near);
}
const formula price = rounded(B, -3), tax = rounded(C, -3), left_over = A - price - tax;
const formula wrong_price = wrong_way(B, price), wrong_tax = wrong_way(C, tax);

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
const exercise_rows estimates([] {
    row(B_gestreept_10_03_click, 4, "is de cirkel gestreept?", counts(hatched, abs(A - quarters * 25), edges),
        range({{20.99, 79.01, 0.1}, {0.99, 4.01, 0.1}, {2, 2}}), right(quarters * 25), wrong("klok", quarters * 15),
        wrong("twee dingen door elkaar", formula(100) - quarters * 25), wrong("zomaar een gokje", lies::elsewhere),
        explains("ongeveer # (stuk|stukken) gestreept.", quarters, formula(30) < A));
    row(B_schatten_1_10_09_click, 10, "", right(places_off == 0), wrong("Dat is veel te weinig", places_off < 0),
        wrong("Dat is veel te veel", 0 < places_off));
    row(L_betegelen_10_12_click, 3, "vloer is # m breed en # m lang. *| $1 m | $0 m", range({{1.9, 5.9}, {3, 9}}),
        range({{2, 6}, {2.9, 8.9}}), range({{1.9, 5.9}, {2.9, 8.9}}), right(width * length),
        wrong("Eerst moet je de lengte", floor(A) * floor(B), (width - 1) * length, width * (length - 1),
              (width + 1) * length, width * (length + 1), (width + 1) * (length + 1)),
        wrong("met elkaar vermenigvuldigen", width + length, (width + length) * 2),
        explains("is ongeveer # m en de lengte is ongeveer # m.", width, length), far_from_wrong(A * B));
    row(L_bezoekers_10_00_click, 2,
        "@ zegt dat museum A * meer dan (1 miljoen|een half miljoen) bezoekers had. @ zegt dat van museum B. "
        "* museum A | # | # | museum B | # | #",
        counts(over(B, C), over(D, E), B - floor(B / 1000) * 1000, C - floor(C / 1000) * 1000),
        range(visitors(0, 500e3)), range(visitors(1, 250e3)), words({20, 20}), right(at_button(who)),
        wrong("Eerst moet je", about_both), wrong("Vergelijk eerst", about_one));
    row(L_schaal_10_16_click, 5,
        "van een (vrachtauto|motorjacht|flatgebouw|trein|vliegtuig). * {de|het|het|de|het} "
        "{vrachtauto|motorjacht|flatgebouw|trein|vliegtuig} # m lang. *| $1 m | 1 cm",
        counts(drawn), range({{0, 4}, {8, 180}, {4, 6}}), right(one_to(1)),
        wrong("omgerekend van m naar cm", one_to(10), one_to(0.1)), wrong("erg ver naast", one_to(5), one_to(0.2)),
        wrong("Bedenk wat 1 cm", one_to(2), one_to(0.5)),
        explains("past # keer in de tekening, dus de tekening is # cm lang.", C, C));
    row(L_schatten_2_10_09_click, 2, "Op de kilometerteller * gemiddeld ongeveer per (maand|week)?",
        counts(year, abs(counter - year)), range({{0, 0}, {10800, 36000, 600}, {11, 49}}),
        range({{1, 1}, {10400, 36400}, {11, 49}}), right(says("# km", each_part)),
        wrong("'t per (week|maand) uitgerekend", other(52, 12)), wrong("(tien maanden|48 weken) heeft", other(10, 48)),
        wrong("een beetje naast", lies::below, lies::above),
        explains("ongeveer # km. Een jaar heeft # (maanden|weken). Je deelt dus door #: *# km per (maand|week).", B,
                 parts(12, 52), A, parts(12, 52), each_part, A));
    row(M_erfenis_10_07_click, 3,
        "erft € #,-. * Verder koopt hij @ van € #,-. *| Over uw erfenis van € $0,- | moet u € #,- ",
        range({{20000, 60000}, {865, 5985, 40}, {2811, 8989, 60}}),
        range({{20000, 60000}, {1015, 6135, 40}, {3011, 9189, 60}}),
        range({{20000, 60000}, {865, 6135, 60}, {2811, 9189, 90}}), words({9}), right(left_over),
        wrong("Rond de bedragen eerst af.", A - price - wrong_tax),
        wrong("Eerst moet je de bedragen", A - wrong_price - tax, A - wrong_price - wrong_tax),
        wrong("Hij koopt ook nog", A - tax), wrong("nog belasting betalen", A - price),
        wrong("belasting twee keer", left_over - tax), wrong("prijs twee keer", left_over - price),
        explains("Rond af: # is ongeveer # en # is ongeveer #.", C, tax, B, price), far_from_wrong(A - B - C));
    row(M_seconden_10_06_click, 3, "| UITSLAG: | @ | ",
        counts(runners, whole_seconds, tenths, rounded(B + C) - estimated),
        range({{3, 3}, {33, 57, 3}, {0.3, 2.7, 0.4}, {0, 0}}), range({{4, 4}, {44, 76, 5}, {0.4, 3.6, 0.6}}),
        range({{5, 5}, {55, 95, 8}, {0.5, 4.5, 0.8}}), words({19}), right(says("# seconden", estimated)),
        wrong("wel gekeken naar de cijfers achter de komma", B), wrong("naar boven afgerond", B + A),
        wrong("achter de komma nog eens", estimated - 1, estimated + 1),
        wrong("vóór de komma nog eens", estimated - 10, estimated + 10),
        explains("Achter de komma: * = #, dus ongeveer #.", C, estimated - B));
});

} // namespace
} // namespace cijferwerf
