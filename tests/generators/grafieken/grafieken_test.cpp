// The graphs: what they draw is read back from their scales, dots, columns and sectors as a pupil does, and the answers
// are worked out again from that.
#include "generators/gedeeld/tekening.h"
#include "tests/support/exercise_rows.h"

#include <numeric>

namespace cijferwerf {
namespace {

using numbers = std::vector<double>;

// The value at a height of a graph, by the numbers beside its upright axis.
double height_at(const seen& e, double y) {
    std::vector<text_op> beside = e.texts;
    std::erase_if(beside, [&](const text_op& t) {
        return t.x + text_width(t.text, t.size) > e.blocks[0].x || std::string("0123456789").find(t.text[0]) > 9;
    });
    const text_op &low = beside.front(), &high = beside.back();
    const double from = decimal(low.text), to = decimal(high.text);
    return from + (low.y + halve_regel(low.size) - y) * (to - from) / (low.y - high.y);
}
// The values of the dots, or of the columns, from left to right, in steps.
numbers values(const reading& n, double step) {
    numbers found;
    for (const circle_op& dot : all<circle_op>(n)) found.push_back(height_at(n.exercise, dot.centre.y));
    const box_op& plot = n.exercise.blocks[0];
    for (const box_op& bar : n.exercise.blocks)
        if (&bar != &plot && bar.y + bar.height == plot.y + plot.height) found.push_back(height_at(n.exercise, bar.y));
    for (double& each : found) {
        const double near = std::round(each / step) * step;
        EXPECT_LT(std::abs(std::exchange(each, near) - near), 0.4 * step) << "off the gridlines";
    }
    return found;
}
formula value(const formula& which, const formula& step) {
    return [=](const reading& n) { return values(n, step.in(n)).at(static_cast<std::size_t>(which.in(n))); };
}
// Of all of them: the largest, ..., and where the only one of a value stands, counted from 0.
formula of_all(double (*function)(const numbers&), const formula& step) {
    return [=](const reading& n) { return function(values(n, step.in(n))); };
}
double largest_of(const numbers& all) { return std::ranges::max(all); }
double smallest_of(const numbers& all) { return std::ranges::min(all); }
double sum_of(const numbers& all) { return std::reduce(all.begin(), all.end()); }
double place_in(const numbers& all, double value) {
    EXPECT_EQ(std::ranges::count(all, value), 1);
    return static_cast<double>(std::ranges::find(all, value) - all.begin());
}
double largest_at(const numbers& all) { return place_in(all, largest_of(all)); }
double smallest_at(const numbers& all) { return place_in(all, smallest_of(all)); }

// Those without the one that tells the scale; with them stands half of one.
const formula whole_figures = [](const reading& n) { return all<circle_op>(n).size() - 2; };
const formula wrong_scale = [](const reading& n) {
    const bool larger = std::ranges::max(n.exercise.numbers()) > n[0] * (n[1] + 1);
    EXPECT_TRUE(larger ? n[0] < 100'000 : n[0] > 1000);
    return larger ? n[0] * 10 : n[0] / 10;
};

const std::string months = "(januari|februari|maart|april|mei|juni|juli|augustus|september|oktober|november|december)";

// The metres of each second; which one has the most, or the fewest.
numbers metres(const reading& n) {
    numbers run = values(n, 0.1);
    std::adjacent_difference(run.begin(), run.end(), run.begin());
    for (double& each : run) each = rounded(each, 1);
    return {run.begin() + 1, run.end()};
}
// A hundred metres in all, and the one second that is asked about stands out.
void check_run(const reading& n) {
    auto run = metres(n);
    EXPECT_NEAR(std::reduce(run.begin(), run.end()), 100, 0.15);
    std::ranges::sort(run);
    EXPECT_TRUE(n[0] == 0 ? run[0] < 5.5 && run[1] > 7 && run[11] < 8.6 && run[12] > 9
                          : run[0] < 6.2 && run[1] > 7.5 && run[10] < 9 && run[11] > 10.9 && run[11] < 11.6);
}
formula second(bool opposite) {
    return [opposite](const reading& n) {
        const numbers run = metres(n);
        const double s = 1 + place_in(run, (n[0] == 0) == opposite ? largest_of(run) : smallest_of(run));
        return std::to_string(std::lround(s)) + (s == 1 || s == 8 ? "ste" : "de");
    };
}

// The colour of the line that is so many places below the highest at a time.
const formula runner = [](const reading& n) {
    const box_op& plot = n.exercise.blocks[0];
    const double x = plot.x + n[0] * plot.width / 160;
    std::map<double, std::string> lines; // by their heights
    for (const auto& [a, b, pen] : all<line_op>(n))
        if (pen.colour != zwart && pen.width == 2 && a.x < x - 1 && b.x > x - 1)
            lines[a.y + (x - a.x) * (b.y - a.y) / (b.x - a.x)] = woord(pen.colour);
    EXPECT_EQ(lines.size(), 4U);
    for (auto at = std::next(lines.begin()); at != lines.end(); ++at) EXPECT_GT(at->first - std::prev(at)->first, 120);
    return std::next(lines.begin(), static_cast<int>(n[1]))->second;
};

// By how much the family will earn more than last year.
formula rise(int family) { return value(2 * family - 1, 5000) * 2 - value(2 * family - 2, 5000); }
const formula its_rise = chosen(button - 1, {rise(1), rise(2), rise(3), rise(4)}), rises = 4999 < its_rise;
formula higher_than_asked(int which) {
    return [which](const reading& n) {
        const numbers all = values(n, 5000);
        int higher = 0;
        for (std::size_t i = static_cast<std::size_t>(which); i < all.size(); i += 2)
            higher += all[i] > all.at(static_cast<std::size_t>(2 * n.exercise.right_place() - 2 + which));
        return higher;
    };
}

const formula rain_step = by_variant({5, 10, 10, 20, 25});
const formula most_rain = of_all(largest_of, rain_step), least_rain = of_all(smallest_of, rain_step);

// The part of the circle that the country beside a button has.
const formula sector = [](const reading& n) {
    const kleur colour = n.exercise.blocks.at(static_cast<std::size_t>(n.place - 1)).pen.colour;
    const auto pie = all<circle_op>(n);
    return std::ranges::find(pie, colour, [](const circle_op& c) { return c.pen.colour; })->sweep / 360;
};
const formula has_asked = lifted([](double of, double all, double part) { return same(of * all, part); }, sector, A, B);
const mistake not_so_many{
    "is & deel van het diagram. Dat zijn # van de # mensen, en niet #.", lies::elsewhere, {sector, A* sector, A, B}};
const formula twelfths = B * 12 / A, several = lifted([](double x) { return x > 1; }, twelfths);

const formula lowest_rate = of_all(smallest_of, 1), highest_rate = of_all(largest_of, 1),
              gain = highest_rate - lowest_rate;
const formula ends = [](const reading& n) {
    const numbers rates = values(n, 1);
    EXPECT_EQ(smallest_at(rates) < largest_at(rates), n[0] == 0) << "sold before it was bought";
    return std::abs(rates.back() - rates.front());
};

// How many of a group smoked, of the five columns that it has.
formula smokers(const formula& group) {
    formula sum = 0;
    for (int i = 0; i < 5; ++i) sum = sum + value(group * 5 + i, 5);
    return sum;
}
const formula group_asked = chosen(A, {largest(smokers(0), smokers(1), smokers(2), smokers(3)),
                                       smallest(smokers(0), smokers(1), smokers(2), smokers(3))});

// The seats of the party that is word number so many of the question.
formula seats(std::size_t word) {
    return [word](const reading& n) {
        const numbers had = values(n, 5);
        for (std::size_t i = 0; i < 5; ++i)
            if (std::ranges::count(n.exercise.words, std::to_string(i + 1) + " " + n.words[word]) == 1)
                return had.at(i);
        return 0.0;
    };
}
const formula all_seats = of_all(sum_of, 5), won = A * (B + C) / 100;

const exercise_rows graphs([] {
    row(B_inwoners_04_18_click, 3, "| = # personen", counts(whole_figures), range({{1000, 1000}, {3, 14}}),
        range({{10'000, 10'000}, {3, 14}}), range({{100'000, 100'000}, {3, 8}}), right(A * B + A / 2),
        wrong("aangezien", A * B + A), wrong("Je hebt de verkeerde schaal", B * wrong_scale + wrong_scale / 2),
        wrong("en je hebt ook nog", B * wrong_scale + wrong_scale),
        explains("stelt # inwoners voor. Er zijn in totaal # van", A, B + 0.5));
    row(B_rusthuis_04_18_click, 2, "Een rusthuis heeft # bedden. * aan het eind van " + months, counts(value(B, 5)),
        range({{40, 200}, {0, 11}, {10, 95}}), right(A * C / 100),
        explains("bij " + months + ", de #e maand*: # %. Daarna moet je nog # % van # nemen", B, B + 1, C, C, A),
        tips("(Kijk eerst naar de juiste maand|Zoek eerst de kolom)", "(Zoek de stip boven|e van links)"));
    row(L_hardlopen_1_04_18_click, 4, "In welke seconde legt *(KLEINSTE|GROOTSTE) (aantal meters|afstand)* | m | s",
        counts([](const reading& n) { return whole(n.exercise.right); },
               [](const reading& n) { return largest_of(metres(n)); }),
        range({{0, 0}, {0, 0}, {1, 6}, {9.3, 9.7}}), range({{1, 1}, {1, 1}, {1, 6}, {11.1, 11.4}}),
        range({{0, 0}, {0, 0}, {7, 13}, {9.3, 9.7}}), range({{1, 1}, {1, 1}, {7, 12}, {11.1, 11.4}}),
        right(second(false)),
        wrong("niet naar de (kleinste, maar naar de grootste|grootste, maar naar de kleinste)", second(true)),
        wrong("niet goed afgelezen", lies::elsewhere), explains("ussen # en # second", C - 1, C), check_run);
    row(L_hardlopen_2_04_18_click, 4, "ligt na # seconden op de (eerste|tweede|derde|vierde) plaats? * | m | s |",
        range({{60, 100}, {0, 0}}), range({{60, 100}, {1, 1}}), range({{60, 100}, {2, 2}}), range({{60, 100}, {3, 3}}),
        right(runner),
        explains(
            "de (grootste|op één na grootste|op twee na grootste|kleinste) afstand*de {hoogste|op één na hoogste|op twee na hoogste|laagste} grafiek",
            B),
        tips("Zoek op de onderste as", "tot je de @ grafiek tegenkomt"));
    row(L_inkomen_04_18_click, 2, "gezin kan een (inkomensstijging|inkomensdaling) ver-",
        // How many have a green column that is higher, and a red one.
        counts(higher_than_asked(1), higher_than_asked(0)), range({{0, 0}, {0, 3}, {0, 3}}),
        range({{1, 1}, {0, 3}, {0, 3}}),
        tips("(Maak in gedachten|twee keer een half jaar)", "(boven rood uit|lager dan rood)"),
        right(rises == (A == 0)), wrong("*", rises == (A == 1)));
    row(L_regenval_04_18_click, 5, "tussen de maand met de meeste en die met de minste regenval?",
        counts(most_rain, least_rain), range({{50, 60}, {5, 15}}), range({{80, 100}, {10, 30}}),
        range({{100, 120}, {10, 30}}), range({{160, 200}, {20, 60}}), range({{200, 250}, {25, 75}}), right(A - B),
        wrong("Je hebt de getallen opgeteld", A + B), wrong("slechts één getal", A, B),
        wrong("rekenfoutje", A - B - rain_step, A - B + rain_step),
        explains("natste maand van dat jaar is " + months + ". In die maand viel er # mm regen *In de maand " + months +
                     " viel er # mm",
                 of_all(largest_at, rain_step), A, of_all(smallest_at, rain_step), B));
    row(L_vakanties_04_18_click, 4, "Van # mensen * waarvan er één door # mensen bezocht werd",
        range({{36, 192}, {18, 96}}), range({{36, 480}, {3, 99}}), range({{36, 288}, {12, 96}}),
        range({{36, 480}, {3, 80}}), right(has_asked), wrong({not_so_many}));
    row(L_vakanties_04_18_click, 4, "Van # mensen * waarvan er één door # mensen bezocht werd", of({2, 3, 4}),
        explains("12 = #. Elk 1/12 *# mensen. *= # (deel|delen). De * sector stelt dus # x", A / 12, A / 12, twelfths,
                 several, twelfths));
    row(M_dollars_04_18_click, 2,
        "op z'n (laagst|hoogst) was. * # dollar van over, die hij weer tegen de {hoogste|laagste} koers *euro "
        "{verdiende|verloor} hij op die $1 dollars?",
        counts(lowest_rate, highest_rate), range({{0, 0}, {100, 900}, {61, 88}, {71, 99}}),
        range({{1, 1}, {100, 900}, {61, 88}, {71, 99}}), right(B * (D - C) / 100),
        wrong("waarde bij de hoogste", B * D / 100), wrong("waarde bij de laagste", B * C / 100),
        wrong("het begin en het eind", B * ends / 100),
        wrong("niet goed afgelezen", B * (D - C + 1) / 100, B * (D - C - 1) / 100),
        wrong("De komma staat verkeerd", B * (D - C) / 10, B * (D - C) / 1000),
        explains("is # eurocent *# - #*.", gain, D, C));
    row(Z_roken_04_18_click, 2, "Welke groep rookte het (MEEST|MINST)?", counts(group_asked),
        range({{0, 0}, {70, 100}}), range({{1, 1}, {60, 70}}),
        right(at_button(place_of(group_asked, {smokers(0), smokers(1), smokers(2), smokers(3)}))),
        wrong({"samen # %", {smokers(button - 1)}}, lies::elsewhere),
        explains("Dan is het (grootste|kleinste) percentage # %. *17 | # % | # % | # % | # %", A, B, smokers(0),
                 smokers(1), smokers(2), smokers(3)));
    row(Z_verkiezingen_04_18_click, 2,
        "gehouden. @ en @ verliezen samen #% van hun zetels aan @. De andere * heeft $c nu?",
        counts(seats(0), seats(1), seats(2)), range({{20, 40}, {5, 20}, {5, 20}, {5, 50}}),
        range({{60, 80}, {5, 20}, {5, 20}, {5, 50}}), words({10, 10, 10}), right(D + won),
        wrong("", D + A * D / 100, D + A * all_seats / 100, D + A * B / 100, D + A * C / 100, D - won, D + B + C, D + A,
              won),
        explains("gaan naar $c. $c had"), tips("Eerste stap", "Tweede stap"));
});

} // namespace
} // namespace cijferwerf
