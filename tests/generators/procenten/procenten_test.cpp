// The percentages: what they draw, their answers worked out again from what a pupil sees, and each wrong answer as the
// mistake that its feedback names.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// The legend's parts are those of one pie alone.
void check_pies(const reading& n) {
    const seen& e = n.exercise;
    std::map<kleur, double> legend; // degrees by colour
    ASSERT_EQ(e.blocks.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        const text_op &group = e.texts[4 + 2 * i], &percent = e.texts[5 + 2 * i];
        const box_op& mark = e.blocks[i];
        EXPECT_TRUE(mark.x + mark.width <= group.x && group.x < percent.x && group.y == percent.y);
        EXPECT_TRUE(mark.y > group.y && mark.y < group.y + text_height(group.size));
        legend[mark.pen.colour] = whole(percent.text) * 3.6;
    }
    std::map<int, std::map<kleur, double>> pies; // by their centres
    double end = 0;
    for (const drawing_op& operation : e.made.plaatje.operations())
        if (const auto* sector = std::get_if<circle_op>(&operation); sector != nullptr && sector->filled) {
            auto& pie = pies[sector->centre.x];
            EXPECT_TRUE(pie.empty() || same(end, sector->start)) << "a gap, or slices over one another";
            end = sector->start + sector->sweep;
            pie[sector->pen.colour] = sector->sweep;
        }
    ASSERT_EQ(pies.size(), 4U);
    const auto has = [](const std::map<kleur, double>& pie, double sweep) {
        return std::ranges::any_of(pie, [&](const auto& slice) { return same(slice.second, sweep); });
    };
    for (int number = 1; const auto& [centre, pie] : pies) {
        EXPECT_LT(std::abs(e.texts[static_cast<std::size_t>(number - 1)].x - centre), 100) << "the number over its pie";
        const bool fits = std::ranges::equal(legend, pie, [](const auto& part, const auto& slice) {
            return part.first == slice.first && same(part.second, slice.second);
        });
        EXPECT_EQ(fits, number == e.right_place());
        const char* piece = !has(pie, 180) ? "halve cirkel?" : !has(pie, 90) ? "kwart cirkel?" : "18 % hoort bij";
        EXPECT_TRUE(fits || e.feedback(number).find(piece) != std::string::npos);
        ++number;
    }
}

// Of the four rows of the table, the one with the largest or smallest rate of injuries, which is not the one with the
// most or fewest.
void check_injuries(const reading& n) {
    const seen& e = n.exercise;
    const double sign = n[0] == 0 ? 1 : -1;
    std::map<double, std::set<std::string>> by_rate, by_count; // what is asked for stands last
    for (std::size_t row = 0; row < 4; ++row) {
        const std::string& sport = e.words[5 + 3 * row];
        const double injuries = whole(e.words[7 + 3 * row]), rate = injuries * 100 / whole(e.words[6 + 3 * row]);
        by_rate[sign * rate].insert(sport);
        by_count[sign * injuries].insert(sport);
        const int button = static_cast<int>(row) + 1;
        EXPECT_EQ(e.answer(button), sport);
        const std::string told = regel("= ", kaal(static_cast<int>(rate)), " %. Dat is niet het ");
        EXPECT_TRUE(button == e.right_place() || e.feedback(button).find(told) != std::string::npos);
    }
    EXPECT_EQ(by_rate.rbegin()->second, std::set{e.right});
    EXPECT_NE(by_count.rbegin()->second, std::set{e.right}) << "to be found without any percentage";
    EXPECT_TRUE(e.last.ends_with(regel(kaal(static_cast<int>(sign * by_rate.rbegin()->first)), " %.")));
}

const formula own = v[0] * v[1] / 100, one_percent = v[1] / 100;
const formula mown = v[1] * 100 / (v[1] + v[2]);
const std::vector<mistake> percentage_mistakes{{"(Je hebt wel 1 % gedaan|Je hebt alleen 1 % genomen)", one_percent},
                                               {"(door 10 gedeeld? Dat is|kommafout gemaakt)", 10 * own},
                                               {"Eerst moet je 1 % nemen", 10 * one_percent}};

const exercise_rows percentages([] {
    row(L_voetbal_01_08_click, 5,
        "tussen @ en @ zitten # mensen. Hiervan is # % supporter van @. Hoeveel * zijn er ongeveer? | * | - |",
        range({{3000, 12000}, {55, 94}}), words({29, 29, 29}), right(v[0] - own), wrong("AANTAL berekenen", 100 - v[1]),
        wrong("THUIS", own), wrong("groter is dan het totale", 2 * v[0] - own),
        explains("alle toeschouwers gelijk aan #,", v[0] / 100), tips("Reken eerst het percentage", "Neem dan 1 %"),
        [](const reading& n) {
            const std::string &home = n.words[0], &visitors = n.words[1];
            EXPECT_EQ(n.exercise.words, (std::vector<std::string>{home, "-", visitors}));
            EXPECT_EQ(n.words[2], home);
            EXPECT_TRUE(home.find(visitors) == home.npos && visitors.find(home) == visitors.npos) << "one club";
            n.exercise.asked(("Hoeveel supporters van " + visitors + " zijn").c_str());
        });
    row(L_examen_01_08_click, 8,
        "(zakten|slaagden) # van de # leerlingen. Hoeveel procent {zakte|slaagde} dus? | {GEZAKT...|GESLAAGD!} *"
        "van @ {gezakt|geslaagd} bent.",
        of({1, 2, 3, 4}), range({{0, 0}, {2, 225}, {200, 500}}), range({{1, 1}, {110, 495}, {200, 500}}),
        range({{0, 0}, {2, 154}, {50, 350}}), range({{1, 1}, {28, 343}, {50, 350}}), words({6}),
        right(v[1] * 100 / v[2]), wrong("De vraag gaat over de", 100 - v[1] * 100 / v[2]),
        wrong("niet het percentage....", v[1]), wrong("meteen gelijk is", v[2] - v[1]),
        explains("Er hebben # leerlingen", v[2]), explains("Er zijn # leerlingen", v[1]));
    row(L_examen_01_08_click, 8,
        "(zakten|slaagden) # van de # leerlingen. Hoeveel procent {zakte|slaagde} dus? | {GEZAKT...|GESLAAGD!} *"
        "van @ {gezakt|geslaagd} bent.",
        of({5, 6, 7, 8}), range({{0, 0}, {2, 63}, {40, 140}}), range({{1, 1}, {22, 133}, {40, 140}}),
        range({{0, 0}, {9, 330}, {450, 750}}), range({{1, 1}, {252, 735}, {450, 750}}), words({6}),
        right(v[1] * 100 / v[2]), wrong("De vraag gaat over de", 100 - v[1] * 100 / v[2]),
        wrong("niet het percentage.... Bovendien", v[2] - v[1]), wrong("meteen gelijk is", v[1]));
    row(L_computer_01_08_click, 3,
        "computer van # euro. De (verkoper|verkoopster) geeft # % * | oude prijs: | $0 euro | $2 % korting",
        range({{1000, 9900}, {0, 1}, {5, 65}}), right(v[0] - v[0] * v[2] / 100),
        wrong("opgeteld", v[0] + v[0] * v[2] / 100), wrong("niet in euro's", v[0] - v[2]),
        wrong("alleen de korting", v[0] * v[2] / 100), explains("oude prijs is # euro", v[0] / 100),
        explains("krijgt # euro korting", v[0] * v[2] / 100));
    row(L_snel_01_08_click, 4, "| Hoeveel % is # van #?", range({{2, 9}, {8, 900}}), range({{2, 9}, {4, 450}}),
        range({{2, 9}, {40, 900}}), range({{2, 9}, {20, 90}}), right(v[0] * 100 / v[1]),
        explains("# is het & deel van #", v[0], v[0] / v[1], v[1]), explains("hetzelfde als # %", v[0] * 100 / v[1]),
        ticks({12}));
    row(M_blessures_01_08_click, 4,
        "sporten in @ in een bepaalde tijd. * sportblessures het (grootst|kleinst)? | * | @, @ |", range({{1, 1}}),
        range({{1, 1}}), range({{0, 0}}), range({{0, 0}}), words({8}),
        tips("wel alle percentages van de sporten", "gekeken bij welke sport"), check_injuries);
    row(M_hele_procenten_01_08_click, 2, "| Bereken: | # % van # = ...", range({{2, 8}, {0, 31900}}),
        range({{11, 99}, {0, 31900}}), right(own), wrong(percentage_mistakes),
        explains("1 % van # nemen. Deel het getal #", v[1], v[1]), explains("met # vermenigvuldigen", v[0]));
    row(Z_kommaprocenten_01_08_click, 4, "| # % van # =", range({{1.5, 9.5}, {200, 4000}}),
        range({{1.1, 9.9}, {200, 2000}}), range({{1.25, 8.75}, {400, 4000}}), range({{1.2, 8.8}, {110, 490}}),
        right(own), wrong("1 % genomen", one_percent), wrong("kommafout", 10 * own),
        wrong("door 10 gedeeld. Eerst", 10 * one_percent), explains("1 % van # is.", v[1]),
        explains("% van # = #. | # % van # = | #", v[1], own, v[0], v[1], own));
    row(M_rente_01_08_click, 2,
        "@ krijgt van * Hoeveel procent rente heeft (hij|zij) gekregen? * | We hebben # euro rente op (uw|je) "
        "rekening bijgeschreven. | Er staat nu # euro",
        counts(v[3] - v[1]), range({{0, 1}, {30, 801}, {0, 0}, {1030, 9701}, {1000, 8900}}),
        range({{0, 1}, {3, 72}, {1, 1}, {103, 872}, {100, 800}}), words({20}), right(v[1] * 100 / v[4]),
        explains("krijgt # euro", v[1]), explains("1 % van dat bedrag is # euro", v[4] / 100),
        tips("(Reken eerst eens het|Hoeveel stond er op)", "(Bereken eerst het oude|Trek de rente af)"),
        [](const reading& n) {
            const std::set<std::string> boys{"Jochem", "Jelmer", "Martijn", "Saoed"};
            const std::string& name = n.words[0];
            EXPECT_EQ(n[0] == 0, name.starts_with("Meneer") || boys.contains(name));
            EXPECT_EQ(n[2] == 0, name.starts_with("Me"));
            EXPECT_EQ(n.exercise.words[1], "Geachte " + name + ",");
        });
    row(B_alcohol_01_08_Click, 4, "' # % van # ' * | HET NIEUWS - @ | In @ is * bijna $0 % van $1 |",
        range({{2, 4}, {150, 975}}), range({{5, 50}, {140, 998}}), range({{15, 20}, {140, 995}}),
        range({{25, 40}, {148, 996}}), words({7, 8}), right(says("& * #", v[0] / 100, v[1])),
        wrong("delen door dat percentage", says("# : #", v[1], v[0])),
        wrong("vermenigvuldigen met dat percentage", says("# x #", v[1], v[0])),
        wrong("verkeerde breuk", lies::elsewhere));
    row(L_bevolking_01_08_click, 10, "van een @. Welk",
        right([](const reading& n) { return regel("nummer", n.exercise.right_place()); }), check_pies);
    row(B_grasveld_01_08_click, 2, "Hoeveel procent (is al|moet nog) gemaaid",
        counts(blocks(lichtgroen), blocks(groen)), range({{0, 0}, {1, 24}, {1, 24}}), range({{1, 1}, {1, 24}, {1, 24}}),
        right(mown + v[0] * (100 - 2 * mown)), wrong("baantjes (die nog|geteld die nog)", v[2]),
        wrong("nog gedaan moet", 100 - mown), wrong("al gedaan is", mown), wrong("aantal gemaaide", v[1]),
        explains("Er zijn # baantjes", v[1] + v[2]), explains("dus #/# van", v[1], v[1] + v[2]),
        explains("zeggen: # /", mown));
});

} // namespace
} // namespace cijferwerf
