// The graphs: what they draw is read back from their scales, dots, columns and sectors as a pupil does, and the answers
// are worked out again from that.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/tekening.h"
#include "tests/support/exercise_rows.h"

#include <numeric>

namespace cijferwerf {
namespace {

using numbers = std::vector<double>;

template<class Operation>
std::vector<Operation> all(const seen& e) {
    std::vector<Operation> found;
    for (const drawing_op& each : e.made.plaatje.operations())
        if (const auto* operation = std::get_if<Operation>(&each)) found.push_back(*operation);
    return found;
}

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
std::vector<box_op> bars(const seen& e) {
    std::vector<box_op> found(e.blocks.begin() + 1, e.blocks.end());
    const int base = e.blocks[0].y + e.blocks[0].height;
    std::erase_if(found, [base](const box_op& b) { return b.y + b.height != base; });
    return found;
}
// The values of the dots, or of the columns, from left to right, in steps.
numbers values(const seen& e, double step) {
    numbers found;
    for (const circle_op& dot : all<circle_op>(e)) found.push_back(height_at(e, dot.centre.y));
    for (const box_op& bar : bars(e)) found.push_back(height_at(e, bar.y));
    for (double& each : found) {
        const double near = std::round(each / step) * step;
        EXPECT_LT(std::abs(std::exchange(each, near) - near), 0.4 * step) << "off the gridlines";
    }
    return found;
}
double largest(const numbers& of) { return std::ranges::max(of); }
double smallest(const numbers& of) { return std::ranges::min(of); }
// Where the only one of this value stands, from 1 on.
int place_of(const numbers& in, double value) {
    EXPECT_EQ(std::ranges::count(in, value), 1);
    return static_cast<int>(std::ranges::find(in, value) - in.begin()) + 1;
}

// Those without the one that tells the scale; with them stands half of one.
const formula whole_figures = [](const reading& n) {
    const auto heads = all<circle_op>(n.exercise);
    const auto bodies = all<polygon_op>(n.exercise);
    for (std::size_t i = 0; i < heads.size(); ++i) {
        EXPECT_EQ(heads[i].sweep, i + 2 == heads.size() ? 180 : 360);
        const auto& body = bodies.at(i).corners;
        EXPECT_EQ(body.size(), i + 2 == heads.size() ? 11U : 22U);
        if (body.size() < 22) continue;
        EXPECT_TRUE(body[2].x + body[19].x == 2 * body[0].x && body[2].y == body[19].y) << "not one figure";
    }
    return heads.size() - 2;
};
const formula wrong_scale = [](const reading& n) {
    const bool larger = std::ranges::max(n.exercise.numbers()) > n[0] * (n[1] + 1);
    EXPECT_TRUE(larger ? n[0] < 100'000 : n[0] > 1000);
    return larger ? n[0] * 10 : n[0] / 10;
};

int month_of(const std::string& name) {
    return static_cast<int>(std::ranges::find(maanden, name, &maand::naam) - maanden.begin()) + 1;
}

// The metres of each second; where the most, or the fewest, are.
numbers metres(const seen& e) {
    numbers run = values(e, 0.1);
    std::adjacent_difference(run.begin(), run.end(), run.begin());
    for (double& each : run) each = rounded(each, 1);
    return {run.begin() + 1, run.end()};
}
formula second(bool opposite) {
    return [opposite](const reading& n) {
        const numbers run = metres(n.exercise);
        const int s = place_of(run, (n[0] == 0) == opposite ? largest(run) : smallest(run));
        return std::to_string(s) + (s == 1 || s == 8 ? "ste" : "de");
    };
}
void check_run(const reading& n) {
    numbers run = metres(n.exercise);
    EXPECT_NEAR(std::reduce(run.begin(), run.end()), 100, 0.15);
    std::ranges::sort(run);
    if (n[0] == 0)
        EXPECT_TRUE(run[0] < 5.5 && run[1] > 7 && run[11] < 8.6 && run[12] > 9);
    else
        EXPECT_TRUE(run[0] < 6.2 && run[1] > 7.5 && run[10] < 9 && run[11] > 10.9 && run[11] < 11.6);
    for (const double each : n.exercise.numbers()) EXPECT_TRUE(each >= 1 && each <= static_cast<double>(run.size()));
}

// The heights of the four at a time, in twips from the top; behind them the colour words.
std::map<double, std::string> ranking(const seen& e, double time) {
    const double x = e.blocks[0].x + time * e.blocks[0].width / 160;
    std::map<double, std::string> found;
    for (const line_op& line : all<line_op>(e))
        if (line.pen.colour != zwart && line.pen.width == 2 && line.from.x < x - 1 && line.to.x > x - 1)
            found[line.from.y + (x - line.from.x) * (line.to.y - line.from.y) / (line.to.x - line.from.x)] =
                woord(line.pen.colour);
    return found;
}
const formula runner = [](const reading& n) {
    const auto now = ranking(n.exercise, n[0]);
    EXPECT_EQ(now.size(), 4U);
    for (auto at = std::next(now.begin()); at != now.end(); ++at) EXPECT_GT(at->first - std::prev(at)->first, 120);
    return std::next(now.begin(), static_cast<int>(n[1]))->second;
};
// The letters over the finish.
void check_finish(const reading& n) {
    const seen& e = n.exercise;
    std::map<int, std::string> finish, letters;
    for (const line_op& line : all<line_op>(e))
        if (line.pen.colour != lichtgrijs && line.to.y == e.blocks[0].y) finish[line.to.x] = woord(line.pen.colour)[0];
    for (const text_op& t : e.texts)
        if (t.y < 100 && t.text != "m") letters[t.x + text_width(t.text, t.size) / 2] = t.text;
    ASSERT_TRUE(finish.size() == 4 && letters.size() == 4);
    for (auto a = finish.begin(), b = letters.begin(); a != finish.end(); ++a, ++b)
        EXPECT_TRUE(a->second == b->second && std::abs(a->first - b->first) < 9);
    EXPECT_NE(std::next(finish.begin(), static_cast<int>(n[1]))->second, e.right.substr(0, 1)) << "found at the finish";
}

void check_incomes(const reading& n) {
    const numbers income = values(n.exercise, 5000);
    for (std::size_t i = 0; i < 4; ++i) {
        const double last_year = income.at(2 * i), doubled = 2 * income.at(2 * i + 1);
        EXPECT_EQ(bars(n.exercise)[2 * i].pen.colour, rood);
        EXPECT_GE(std::abs(doubled - last_year), 5000);
        EXPECT_EQ(doubled > last_year, (static_cast<int>(i) + 1 == n.exercise.right_place()) == (n[0] == 0));
        const box_op green = bars(n.exercise)[2 * i + 1];
        EXPECT_EQ(green.x, 1420 + 900 * static_cast<int>(i));
        EXPECT_EQ(n.exercise.made.uitlegopdrachten[i],
                  regel("LINE_", velden(green.x, 1670, 300, -2 * green.height, 1), "_B_1"));
    }
}

formula higher_than_asked(std::size_t which) {
    return [which](const reading& n) {
        const std::vector<box_op> columns = bars(n.exercise);
        const auto asked = 2 * static_cast<std::size_t>(n.exercise.right_place() - 1) + which;
        int higher = 0;
        for (std::size_t i = which; i < columns.size(); i += 2) higher += columns[i].height > columns.at(asked).height;
        return higher;
    };
}

const formula rain_step = [](const reading& n) {
    return std::array{5, 10, 10, 20, 25}.at(static_cast<std::size_t>(n.variant() - 1));
};
formula rain(double (*which)(const numbers&), const char* month) {
    return [=](const reading& n) {
        const numbers fell = values(n.exercise, std::get<double>(rain_step(n)));
        EXPECT_EQ(place_of(fell, which(fell)), month_of(n.exercise.told(month).at(1)));
        return which(fell);
    };
}

void check_countries(const reading& n) {
    const seen& e = n.exercise;
    std::multiset<int> twelfths;
    for (int i = 1; i <= 4; ++i) {
        const auto colour = e.blocks.at(static_cast<std::size_t>(i - 1)).pen.colour;
        EXPECT_EQ(e.words.at(static_cast<std::size_t>(i - 1)), regel(e.answer(i), " (", woord(colour), ")"));
        const auto pie = all<circle_op>(e);
        const double sweep = std::ranges::find(pie, colour, [](const circle_op& c) { return c.pen.colour; })->sweep;
        twelfths.insert(static_cast<int>(std::lround(sweep / 30)));
        EXPECT_EQ(i == e.right_place(), same(sweep * n[0], 360 * n[1])) << e.answer(i);
        if (i == e.right_place()) continue;
        const auto told = find_pattern(e.feedback(i),
                                       "De @ sector is & deel van het diagram. Dat zijn # van de # mensen, en niet #.");
        ASSERT_TRUE(told);
        EXPECT_EQ(told->words[0], bijvoeglijk(colour));
        const numbers wanted{sweep / 360, n[0] * sweep / 360, n[0], n[1]};
        EXPECT_TRUE(std::ranges::equal(told->numbers, wanted, same)) << e.feedback(i);
    }
    EXPECT_EQ(twelfths, n.variant() <= 2 ? (std::multiset{1, 2, 3, 6}) : (std::multiset{1, 2, 4, 5}));
    const bool half = n.variant() == 1;
    EXPECT_EQ(half, 2 * n[1] == n[0]);
    const auto parts = std::lround(12 * n[1] / n[0]), each = std::lround(n[0] / 12);
    const auto sector = bijvoeglijk(e.blocks[static_cast<std::size_t>(e.right_place() - 1)].pen.colour);
    e.told(
        (half ? regel("de helft is van het totale .* De ", sector, " sector is de helft")
              : regel("12 =", each, "\\. Elk 1/12 .*", each, " mensen\\. .* =", parts, parts == 1 ? " deel" : " delen",
                      "\\. De ", sector, " sector stelt dus", parts, " x", each, " ="))
            .c_str());
    const auto later = e.when_explained().words;
    for (std::size_t i = 4; i < later.size(); ++i) twelfths.erase(whole(later[i]));
    EXPECT_EQ(twelfths.empty(), !half);
}

const formula ends = [](const reading& n) {
    const numbers rates = values(n.exercise, 1);
    EXPECT_EQ(place_of(rates, smallest(rates)) < place_of(rates, largest(rates)), n[0] == 0)
        << "sold before it was bought";
    return std::abs(rates.back() - rates.front());
};

// With the sign for which the largest is asked for.
void check_smokers(const reading& n) {
    const seen& e = n.exercise;
    const numbers smoked = values(e, 5);
    const bool most = n[0] == 0;
    numbers totals(4, 0), outermost(4, -100);
    for (std::size_t i = 0; i < 20; ++i) {
        totals[i / 5] += most ? smoked.at(i) : -smoked.at(i);
        outermost[i / 5] = std::max(outermost[i / 5], most ? smoked[i] : -smoked[i]);
    }
    EXPECT_EQ(place_of(totals, largest(totals)), e.right_place());
    EXPECT_NE(place_of(outermost, largest(outermost)), e.right_place());
    const std::vector<std::string> later = e.when_explained().words;
    for (std::size_t i = 0; i < 4; ++i) {
        const double total = std::abs(totals[i]);
        for (std::size_t j = 0; j < i; ++j) EXPECT_TRUE(std::abs(totals[i] - totals[j]) >= 10 && total <= 100);
        EXPECT_EQ(later[later.size() - 4 + i], regel(kaal(std::lround(total)), " %"));
        const int place = static_cast<int>(i) + 1;
        const std::string told = place == e.right_place() ? e.explanation : e.feedback(place);
        const char* piece = place == e.right_place()             ? "Dan is het (grootste|kleinste) percentage"
                            : outermost[i] == largest(outermost) ? "naar de (hoogste|laagste)*samen"
                            : totals[i] == smallest(totals)      ? "het (minst|meest)!*samen"
                                                                 : "nog eens op.*samen";
        const auto found = find_pattern(told, std::string(piece) + " # %");
        ASSERT_TRUE(found) << told;
        EXPECT_EQ(found->numbers.back(), total);
        EXPECT_EQ(found->numbers.front(), found->numbers.size() == 1 ? total : n[0]);
    }
}

// The seats of the party that is word number so many of the question; of all of them.
formula seats(std::size_t word) {
    return [word](const reading& n) {
        const numbers had = values(n.exercise, 5);
        for (std::size_t i = 0; i < 5; ++i)
            if (std::ranges::count(n.exercise.words, std::to_string(i + 1) + " " + n.words[word]) == 1)
                return had.at(i);
        return 0.0;
    };
}
const formula all_seats = [](const reading& n) {
    const numbers had = values(n.exercise, 5);
    return std::reduce(had.begin(), had.end());
};
const formula won = v[0] * (v[1] + v[2]) / 100;

const exercise_rows graphs([] {
    row(B_inwoners_04_18_click, 3, "Hoeveel inwoners had deze stad? | = # personen", counts(whole_figures),
        range({{1000, 1000}, {3, 14}}), range({{10'000, 10'000}, {3, 14}}), range({{100'000, 100'000}, {3, 8}}),
        right(v[0] * v[1] + v[0] / 2), wrong("aangezien", v[0] * v[1] + v[0]),
        wrong("Je hebt de verkeerde schaal", v[1] * wrong_scale + wrong_scale / 2),
        wrong("en je hebt ook nog", v[1] * wrong_scale + wrong_scale),
        explains("stelt # inwoners voor. Er zijn in totaal # van * stad # x # = # inwoners", v[0], v[1] + 0.5,
                 v[1] + 0.5, v[0], v[0] * v[1] + v[0] / 2));
    row(B_rusthuis_04_18_click, 2, "Een rusthuis heeft # bedden. * bezet aan het eind van @ van dat jaar?",
        counts([](const reading& n) {
            return values(n.exercise, 5).at(static_cast<std::size_t>(month_of(n.words[0]) - 1));
        }),
        range({{40, 200}, {10, 95}}), words({12}), right(v[0] * v[1] / 100),
        explains(
            "de #e maand van het jaar. Daar lees je het percentage af: # %. Daarna moet je nog # % van # nemen, "
            "dus je moet berekenen: # x # = #.",
            [](const reading& n) { return month_of(n.words[0]); }, v[1], v[1], v[0], v[1] / 100, v[0],
            v[0] * v[1] / 100),
        tips("(Kijk eerst naar de juiste maand|Zoek eerst de kolom)", "(Zoek de stip boven|e van links)"),
        [](const reading& n) {
            n.exercise.told(("aflezen bij " + n.words[0] + ",").c_str());
            const numbers percentages = values(n.exercise, 5);
            for (const double answer : n.exercise.numbers())
                EXPECT_EQ(std::ranges::count(percentages, answer * 100 / n[0]), 1) << "read at no month, or at two";
        });
    row(L_hardlopen_1_04_18_click, 4, "In welke seconde legt *(KLEINSTE|GROOTSTE) (aantal meters|afstand)* | m | s",
        counts([](const reading& n) { return whole(n.exercise.right); },
               [](const reading& n) { return largest(metres(n.exercise)); }),
        range({{0, 0}, {0, 0}, {1, 6}, {9.3, 9.7}}), range({{1, 1}, {1, 1}, {1, 6}, {11.1, 11.4}}),
        range({{0, 0}, {0, 0}, {7, 13}, {9.3, 9.7}}), range({{1, 1}, {1, 1}, {7, 12}, {11.1, 11.4}}),
        right(second(false)),
        wrong("niet naar de (kleinste, maar naar de grootste|grootste, maar naar de kleinste)", second(true)),
        wrong("niet goed afgelezen", lies::elsewhere), explains("ussen # en # second", v[2] - 1, v[2]), check_run);
    row(L_hardlopen_2_04_18_click, 4, "ligt na # seconden op de (eerste|tweede|derde|vierde) plaats? * | m | s |",
        range({{60, 100}, {0, 0}}), range({{60, 100}, {1, 1}}), range({{60, 100}, {2, 2}}), range({{60, 100}, {3, 3}}),
        right(runner), explains("de (grootste|op één na grootste|op twee na grootste|kleinste) afstand", v[1]),
        explains("de (hoogste|op één na hoogste|op twee na hoogste|laagste) grafiek", v[1]),
        tips("Zoek op de onderste as", "tot je de @ grafiek tegenkomt"), [](const reading& n) {
            check_finish(n);
            const char* from_below[]{"vierde", "derde", "tweede", "eerste"};
            const std::string tip = joined(n.exercise.made.tipregels_2);
            EXPECT_NE(tip.find(regel("de ", from_below[n.variant() - 1], " grafiek")), tip.npos) << tip;
        });
    row(L_inkomen_04_18_click, 2,
        "Welk gezin kan een (inkomensstijging|inkomensdaling) ver- wachten* | in euro | vorig jaar | eerste helft van dit jaar", // How many have a green column that is higher, and a red one.
        counts(higher_than_asked(1), higher_than_asked(0)), range({{0, 0}, {0, 3}, {0, 3}}),
        range({{1, 1}, {0, 3}, {0, 3}}), explains("er op (vooruit|achteruit)", v[0]),
        tips("(Maak in gedachten|twee keer een half jaar)", "(boven rood uit|lager dan rood)"), check_incomes);
    row(L_regenval_04_18_click, 5, "tussen de maand met de meeste en die met de minste regenval?",
        counts(rain(largest, "natste maand van dat jaar is (\\w+)\\."), rain(smallest, "de maand (\\w+) viel")),
        range({{50, 60}, {5, 15}}), range({{80, 100}, {10, 30}}), range({{100, 120}, {10, 30}}),
        range({{160, 200}, {20, 60}}), range({{200, 250}, {25, 75}}), right(v[0] - v[1]),
        wrong("Je hebt de getallen opgeteld", v[0] + v[1]), wrong("slechts één getal", v[0], v[1]),
        wrong("rekenfoutje", v[0] - v[1] - rain_step, v[0] - v[1] + rain_step),
        explains("viel er # mm regen *de hoogste", v[0]), explains("In de maand * viel er # mm", v[1]),
        explains("aftrekken: # - # is # mm.", v[0], v[1], v[0] - v[1]));
    row(L_vakanties_04_18_click, 4, "Van # mensen * waarvan er één door # mensen bezocht werd",
        range({{36, 192}, {18, 96}}), range({{36, 480}, {3, 99}}), range({{36, 288}, {12, 96}}),
        range({{36, 480}, {3, 80}}), check_countries);
    row(M_dollars_04_18_click, 2,
        "op z'n (laagst|hoogst) was. Hij hield er # dollar van over, die hij weer tegen de {hoogste|laagste} koers "
        "verkocht. Hoeveel euro {verdiende|verloor} hij op die $1 dollars? |* eurocent | KOERS VAN DE DOLLAR",
        counts([](const reading& n) { return smallest(values(n.exercise, 1)); },
               [](const reading& n) { return largest(values(n.exercise, 1)); }),
        range({{0, 0}, {100, 900}, {61, 88}, {71, 99}}), range({{1, 1}, {100, 900}, {61, 88}, {71, 99}}),
        right(v[1] * (v[3] - v[2]) / 100), wrong("waarde bij de hoogste", v[1] * v[3] / 100),
        wrong("waarde bij de laagste", v[1] * v[2] / 100), wrong("het begin en het eind", v[1] * ends / 100),
        wrong("niet goed afgelezen", v[1] * (v[3] - v[2] + 1) / 100, v[1] * (v[3] - v[2] - 1) / 100),
        wrong("De komma staat verkeerd", v[1] * (v[3] - v[2]) / 10, v[1] * (v[3] - v[2]) / 1000),
        explains("is # eurocent *# - #*.", v[3] - v[2], v[3], v[2]),
        explains("een (winst|verlies) van # x # eurocent = € #.", v[0], v[1], v[3] - v[2], v[1] * (v[3] - v[2]) / 100));
    row(Z_roken_04_18_click, 2, "Welke groep rookte het (MEEST|MINST)? | ROKERS PER LEEFTIJD, IN % VAN DE HELE GROEP",
        counts([](const reading& n) { return decimal(n.exercise.told("percentage (\\d+) %").at(1)); }),
        range({{0, 0}, {70, 100}}), range({{1, 1}, {60, 70}}), explains("het (grootste|kleinste) percentage", v[0]),
        check_smokers);
    row(Z_verkiezingen_04_18_click, 2,
        "gehouden. @ en @ verliezen samen #% van hun zetels aan @. De andere * heeft @ nu?",
        counts(seats(0), seats(1), seats(2)), range({{20, 40}, {5, 20}, {5, 20}, {5, 50}}),
        range({{60, 80}, {5, 20}, {5, 20}, {5, 50}}), words({10, 10, 10, 10}), right(v[3] + won),
        wrong("", v[3] + v[0] * v[3] / 100, v[3] + v[0] * all_seats / 100, v[3] + v[0] * v[1] / 100,
              v[3] + v[0] * v[2] / 100, v[3] - won, v[3] + v[1] + v[2], v[3] + v[0], won),
        explains("Dat zijn er # + # = #. Hier neem je # % van, dus # zetels", v[1], v[2], v[1] + v[2], v[0], won),
        explains("had eerst # zetels in de Raad, zodat deze partij er nu # heeft.", v[3], v[3] + won),
        tips("Eerste stap", "Tweede stap"), [](const reading& n) {
            EXPECT_EQ(n.words[3], n.words[2]);
            n.exercise.told(("gaan naar " + n.words[2] + "\\. " + n.words[2] + " had").c_str());
        });
});

} // namespace
} // namespace cijferwerf
