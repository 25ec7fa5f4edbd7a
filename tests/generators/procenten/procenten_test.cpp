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

// The rate of injuries of each sport, which stand in the order of the answers.
const formula first = C * 100 / B, second = E * 100 / D, third = G * 100 / F, fourth = I * 100 / H;
const formula that_one = chosen(A, {largest(first, second, third, fourth), smallest(first, second, third, fourth)});
const formula that_many = chosen(button - 1, {B, D, F, H});
const formula chosen_rate = chosen(button - 1, {first, second, third, fourth});

const formula own = A * B / 100, one_percent = B / 100;
const formula mown = B * 100 / (B + C);
const char* const exam = "(zakten|slaagden) # van de # leerlingen. Hoeveel procent {zakte|slaagde} dus? | {GEZAKT...|"
                         "GESLAAGD!} *van @ {gezakt|geslaagd} bent.";
const std::vector<mistake> percentage_mistakes{{"(Je hebt wel 1 % gedaan|Je hebt alleen 1 % genomen)", one_percent},
                                               {"(door 10 gedeeld? Dat is|kommafout gemaakt)", 10 * own},
                                               {"Eerst moet je 1 % nemen", 10 * one_percent}};

const exercise_rows percentages([] {
    row(L_voetbal_01_08_click, 5,
        "tussen @ en @ zitten # mensen. Hiervan is # % supporter van $a. Hoeveel supporters van $b zijn *| $a | - | $b ",
        range({{3000, 12000}, {55, 94}}), words({29, 29}), right(A - own), wrong("AANTAL berekenen", 100 - B),
        wrong("THUIS", own), wrong("groter is dan het totale", 2 * A - own),
        explains("# % van alle*$a, dus *% = # % is*$b. Nu*gelijk aan #, zodat # % hetz", B, 100 - B, A / 100, 100 - B),
        tips("Reken eerst het percentage", "Neem dan 1 %"),
        [](const reading& n) { EXPECT_EQ(n.words[0].find(n.words[1]), std::string::npos) << "one club"; });
    row(L_examen_01_08_click, 8, exam, of({1, 2, 3, 4}), range({{0, 0}, {2, 225}, {200, 500}}),
        range({{1, 1}, {110, 495}, {200, 500}}), range({{0, 0}, {2, 154}, {50, 350}}),
        range({{1, 1}, {28, 343}, {50, 350}}), words({6}), right(B * 100 / C),
        wrong("De vraag gaat over de", 100 - B * 100 / C), wrong("niet het percentage....", B),
        wrong("meteen gelijk is", C - B), explains("hebben # leer*gelijk aan # leer*Er zijn # leer", C, C / 100, B));
    row(L_examen_01_08_click, 8, exam, of({5, 6, 7, 8}), range({{0, 0}, {2, 63}, {40, 140}}),
        range({{1, 1}, {22, 133}, {40, 140}}), range({{0, 0}, {9, 330}, {450, 750}}),
        range({{1, 1}, {252, 735}, {450, 750}}), words({6}), right(B * 100 / C),
        wrong("De vraag gaat over de", 100 - B * 100 / C), wrong("niet het percentage.... Bovendien", C - B),
        wrong("meteen gelijk is", B));
    row(L_computer_01_08_click, 3,
        "computer van # euro. De (verkoper|verkoopster) geeft # % * | oude prijs: | $0 euro | $2 % korting",
        range({{1000, 9900}, {0, 1}, {5, 65}}), right(A - A * C / 100), wrong("opgeteld", A + A * C / 100),
        wrong("niet in euro's", A - C), wrong("alleen de korting", A * C / 100),
        explains("oude prijs is # euro, dus # % *krijgt # euro korting", A / 100, C, A * C / 100));
    row(L_snel_01_08_click, 4, "| Hoeveel % is # van #?", range({{2, 9}, {8, 900}}), range({{2, 9}, {4, 450}}),
        range({{2, 9}, {40, 900}}), range({{2, 9}, {20, 90}}), right(A * 100 / B),
        explains("# is het & deel van #*Het & deel is hetzelfde als # %", A, A / B, B, A / B, A * 100 / B),
        ticks({12}));
    row(M_blessures_01_08_click, 4,
        "in @ in een bepaalde tijd. * het (grootst|kleinst)? | *| $a, * blessures | * | # | # | * | # | # | * | # | # | * | # | #",
        range({{1, 1}}), range({{1, 1}}), range({{0, 0}}), range({{0, 0}}), words({8}), right(chosen_rate == that_one),
        wrong({"= # %. Dat is niet het", {chosen_rate}}, (chosen_rate == that_one) == 0),
        explains("bij $=: 1 % van # sporters is #. Het*ongeveer # %", that_many, that_many / 100, that_one),
        tips("wel alle percentages van de sporten", "gekeken bij welke sport"));
    row(M_hele_procenten_01_08_click, 2, "| Bereken: | # % van # = ...", range({{2, 8}, {0, 31900}}),
        range({{11, 99}, {0, 31900}}), right(own), wrong(percentage_mistakes),
        explains("1 % van # nemen. Deel het getal #*met # verm*Dus # % van # is", B, B, A, A, B));
    row(Z_kommaprocenten_01_08_click, 4, "| # % van # =", range({{1.5, 9.5}, {200, 4000}}),
        range({{1.1, 9.9}, {200, 2000}}), range({{1.25, 8.75}, {400, 4000}}), range({{1.2, 8.8}, {110, 490}}),
        right(own), wrong("1 % genomen", one_percent), wrong("kommafout", 10 * own),
        wrong("door 10 gedeeld. Eerst", 10 * one_percent), explains("1 % van # is.", B));
    row(M_rente_01_08_click, 2,
        "@ krijgt van * heeft (hij|zij) gekregen? * | Geachte $a, | We hebben # euro rente op (uw|je) *| Er staat nu # euro",
        counts(D - B), range({{0, 1}, {30, 801}, {0, 0}, {1030, 9701}, {1000, 8900}}),
        range({{0, 1}, {3, 72}, {1, 1}, {103, 872}, {100, 800}}), words({20}), right(B * 100 / E),
        explains(
            "$a krijgt # euro*had (hij|zij) eerst*= # euro. 1 % van dat bedrag is # euro*. # euro gaat # keer in # euro",
            B, A, E, E / 100, E / 100, B * 100 / E, B),
        tips("(Reken eerst eens het|Hoeveel stond er op)", "(Bereken eerst het oude|Trek de rente af)"));
    row(B_alcohol_01_08_Click, 4, "' # % van # ' * - @ | In @ is * $0 % van $1 |", range({{2, 4}, {150, 975}}),
        range({{5, 50}, {140, 998}}), range({{15, 20}, {140, 995}}), range({{25, 40}, {148, 996}}), words({7, 8}),
        right(says("& * #", A / 100, B)), wrong("delen door dat percentage", says("# : #", B, A)),
        wrong("vermenigvuldigen met dat percentage", says("# x #", B, A)), wrong("verkeerde breuk", lies::elsewhere),
        explains("staat: # % van # auto*als #/100 van #*tot &, want*door # delen*zeggen: & van # auto", A, B, A, B,
                 A / 100, divisor(A, 100), A / 100, B));
    row(L_bevolking_01_08_click, 10, "van een @. Welk",
        right([](const reading& n) { return regel("nummer", n.exercise.right_place()); }), check_pies);
    row(B_grasveld_01_08_click, 2, "Hoeveel procent (is al|moet nog) gemaaid",
        counts(blocks(lichtgroen), blocks(groen)), range({{0, 0}, {1, 24}, {1, 24}}), range({{1, 1}, {1, 24}, {1, 24}}),
        right(mown + A * (100 - 2 * mown)), wrong("baantjes (die nog|geteld die nog)", C),
        wrong("nog gedaan moet", 100 - mown), wrong("al gedaan is", mown), wrong("aantal gemaaide", B),
        explains("zijn # baan*al # gedaan, dat is dus #/# van*zeggen: # /*= # %", B + C, B, B, B + C, mown, mown));
});

} // namespace
} // namespace cijferwerf
