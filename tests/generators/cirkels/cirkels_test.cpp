// Circles, volumes and densities: what is drawn, the answers worked out again, and each wrong answer as the mistake
// that its feedback names.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// Metres between "3  0  8  0, 8" and another counter.
double ride(const reading& n) {
    const auto counter = [](std::string digits) { return std::erase(digits, ' '), decimal(digits); };
    return rounded((counter(n.words[2]) - counter(n.words[1])) * 1000);
}
double radius(const reading& n) { return rounded(n[0] == 0 ? n[1] / 6.28 : std::sqrt(n[1] / 3.14), 6); }

const formula deep = v[5] / v[6], wide = v[4] / v[6], high = v[3] / v[0]; // tins in a crate
const formula rolled = v[0] + v[1] - v[2], turns = v[1] / (v[0] * 0.0628);
const formula ends = v[1] * v[1] * 0.785; // of the grass, and the circle in a rectangle
const formula disc = v[0] * v[0] * 3.14, m = v[0] / 100, m2 = v[1] * v[1] / 1e4;
const formula base = v[0] * v[0] * 0.785, block = v[1] * v[2] * v[3], alcohol = v[0] * v[3] * v[2] / 100;

const exercise_rows circles([] {
    row(B_cirkel_1_00_13_click, 2,
        "Een cirkel heeft een straal van # cm. Hoe groot is de (omtrek|oppervlakte)? | r = $0 cm",
        range({{2, 15}, {0, 1}}), range({{2, 14}, {0, 1}}),
        right([](const reading& n) { return n[1] == 0 ? says("# cm", v[0] * 6.28)(n) : says("# cm²", disc)(n); }),
        wrong("Je hebt de oppervlakte berekend, in plaats van de omtrek.", says("# cm²", disc)),
        wrong("Je hebt de omtrek berekend in plaats van de de oppervlakte.", says("# cm", v[0] * 6.28)),
        wrong("middellijn", says("# cm", v[0] * 2)),
        wrong("formule voor de omtrek", says("# cm", v[0] * 3.14), says("# cm", v[0] * 12.56)),
        wrong("formule voor de oppervlakte", says("# cm²", v[0] * 3.14), says("# cm²", disc * 2)),
        explains("een straal van # cm. *= (2 x 3,14|3,14) x #", v[0], v[1], v[0]),
        [](const reading& n) { EXPECT_LE(std::ranges::count(n.exercise.numbers(), 50.24), 1) << "if r = 4"; });
    row(L_cirkel_2_00_13_click, 2, "Een cirkel heeft een (omtrek|oppervlakte) van # *. Hoe groot is de straal? | r = ?",
        counts(radius), range({{0, 0}, {18.84, 94.2}, {3, 15}}), range({{1, 1}, {28.26, 706.5}, {3, 15}}), right(v[2]),
        wrong("middellijn", v[2] * 2), wrong("Je moet nog door 3,14 delen", v[2] * 3.14),
        wrong("twee keer door 3,14", rounded(v[2] / 3.14, 2)), wrong("foute formule", v[2] / 2),
        wrong("kwadraat van de straal", v[2] * v[2]), wrong("Je hebt de omtrek", v[2] * 6.28),
        explains(
            "# : 3,14 = #.", [](const reading& n) { return n[0] == 0 ? n[1] / 2 : n[1]; },
            [](const reading& n) { return n[0] == 0 ? n[2] : n[2] * n[2]; }));
    row(M_in_elkaar_00_13_click, 2, "het gele gedeelte. | # cm | # cm", range({{7, 31}, {6, 20}}),
        range({{10, 50}, {6, 20}}), right(v[0] * v[1] - ends),
        wrong("allebei de figuren de omtrek", (v[0] + v[1]) * 2 - v[1] * 3.14),
        wrong("alleen de oppervlakte van de cirkel", ends),
        wrong("opgeteld in plaats van afgetrokken", v[0] * v[1] + ends),
        explains("breedte: # : 2 = # cm", v[1], v[1] / 2), explains("| r = # cm", v[1] / 2), [](const reading& n) {
            const box_op& around = n.exercise.blocks.at(0);
            EXPECT_TRUE(around.pen.colour == geel && around.height == 2 * 710) << "touched by the circle";
            EXPECT_NEAR(around.width * n[1], around.height * n[0], 2 * n[1]) << "to scale";
        });
    row(M_blikjes_00_13_click, 4,
        "hoogte van # cm. De ronde bodem heeft een (diameter|straal) van # cm.*Het krat is # cm hoog, # cm breed "
        "en # cm lang. Hoeveel blikjes passen er in het krat? |",
        counts(v[2] * (v[1] + 1)), range({{7, 15}, {0, 1}, {3, 10}, {14, 45}, {18, 50}, {24, 70}}),
        right(deep * wide * high),
        wrong("passen in de lengte van het krat? En hoeveel in de hoogte?", deep * wide, wide * high),
        wrong("passen in de breedte van het krat? En", deep * high),
        wrong("door de straal gedeeld", deep * wide * high * 4),
        explains("# : # = # *# : # = # *# : # = #", v[5], v[6], deep, v[4], v[6], wide, v[3], v[0], high));
    row(M_huls_00_13_click, 2,
        "papier van # bij # cm. Van dit papier wordt een huls gemaakt van # cm lang. * | $0 cm | $1 cm",
        range({{15, 35}, {12, 24}, {15, 35}}), range({{15, 35}, {12, 24}, {12, 24}}), right(rounded(rolled / 3.14, 2)),
        wrong("Je hebt de straal", rounded(rolled / 6.28, 2)),
        wrong("Je hebt de lengte als omtrek", rounded(v[0] / 3.14, 2)),
        wrong("Je hebt de breedte als omtrek", rounded(v[1] / 3.14, 2)), wrong("door 2 gedeeld", rolled / 2),
        explains("huls is # cm lang. *van # cm, * d = # : 3,14 =", v[2], rolled, rolled));
    row(M_pizza_00_13_click, 3,
        "zijden van # cm. De lengte van de ronde kant is # cm. Hoeveel * | PIZZA (TELMORA|ROMANO|JOHANNA)",
        range({{5, 7}, {3.1, 11}, {0, 0}}), range({{8, 10}, {5, 15.7}, {1, 1}}), range({{11, 13}, {6.9, 20.4}, {2, 2}}),
        right(rounded(v[0] * 6.28 / v[1])),
        explains("3,14 x # = *) # cm. * # :", v[0], rounded(v[0] * 6.28, 1), rounded(v[0] * 6.28, 1)),
        tips("", "2 x 3,14 x de straal"),
        [](const reading& n) { EXPECT_NEAR(6.28 * n[0] / n[1], decimal(n.exercise.right), 0.2); });
    row(Z_fietswiel_00_13_click, 2,
        "@ maakt een fietstocht. * fietswiel is # cm. Hoe * | BEGIN | @ | km | EINDE | @ | km", counts(ride),
        range({{28, 35}, {5200, 19900, 200}}), range({{28, 35}, {20100, 59800, 300}}), words({10}),
        right(rounded(turns)), wrong("eerst de afstand", rounded(turns / 100), rounded(turns / 1000)),
        wrong("3,14 x straal genomen", rounded(turns * 2)),
        explains("= # km. Dat is # m. *3,14 x # = # m.", v[1] / 1000, v[1], m, v[0] * 0.0628));
    row(M_skelterbaan_00_13_click, 2, "Hoeveel m² gras is er ongeveer? | # m | # m", range({{26, 39}, {20, 32}}),
        range({{27, 39}, {21, 33}}), right(rounded(ends + v[0] * v[1], 2)),
        wrong("de diameter voor de straal", ends * 4 + v[0] * v[1]), wrong("de rechthoek vergeten", rounded(ends, 2)),
        wrong("de twee halve cirkels vergeten", v[0] * v[1]), wrong("één grote rechthoek", (v[0] + v[1]) * v[1]),
        wrong("de omtrek van het gras", v[0] * 2 + v[1] * 3.14),
        explains("= # m. *x # x # = # m². *Samen is dat # + #", v[1] / 2, v[1] / 2, v[1] / 2, ends, ends, v[0] * v[1]));
    row(M_vijver_00_13_click, 2, "Hoeveel m hekwerk moet er in totaal ongeveer aangebracht worden? | # cm",
        range({{150, 240}}), range({{250, 350}}), right(rounded(m * 5.14, 2)),
        wrong("helemaal rond?", rounded(m * 6.28, 2)), wrong("rechte stuk vergeten", rounded(m * 3.14, 2)),
        wrong("oppervlakte van de vijver", rounded(m * m * 1.57, 2)),
        wrong("de straal genomen in plaats van de diameter", rounded(m * 4.14, 2)),
        explains("dat is # m. *2 x # = # m. Samen is dat # +", m, m, m * 2, m * 3.14));
    row(Z_terras_00_13_click, 2, "De aanleg kost € #,- per m². De straal van dit terras is # cm. * | Straal: $1 cm",
        range({{25, 60}, {150, 240}}), range({{25, 60}, {250, 350}}), right(rounded(m2 * 3.14 * v[0])),
        wrong("met de omtrek van de cirkel gerekend. Bereken eerst", rounded(m * 6.28 * v[1])),
        wrong("De straal moet in het kwadraat", rounded(m * 3.14 * v[1])),
        wrong("Je bent 3,14 vergeten", rounded(m2 * v[0])),
        wrong("de diameter voor de straal", rounded(m2 * 12.56 * v[0])),
        explains("dat is # m. *3,14 x # *# x # = #.", v[1] / 100, v[1] / 100, m2 * 3.14, v[0], m2 * 3.14 * v[0]));
    row(M_cilinder_00_17_click, 2,
        "een middellijn van # cm en een hoogte van # cm. Hoe groot is de inhoud? | $0 cm | $1 cm",
        range({{2, 7}, {3, 17}}), range({{8, 15}, {3, 17}}), right(rounded(base * v[1], 2)),
        wrong("met de hoogte vermenigvuldigen", rounded(base, 2)), wrong("omtrek x hoogte", v[0] * v[1] * 3.14),
        wrong("de middellijn genomen in plaats van de straal", base * v[1] * 4),
        wrong("in het kwadraat", v[0] * v[1] * 1.57),
        explains(": 2 = # cm. *x # = # cm². * # x # =", v[0] / 2, v[0] / 2, base, base, v[1]), [](const reading& n) {
            EXPECT_TRUE(n[0] != 4 && n[0] != 4 * n[1]) << "circumference times height is another answer";
            const double exact = n[0] * n[0] * n[1] * 78.5;
            EXPECT_EQ(n.exercise.last.find("afgerond") != std::string::npos, !same(exact, std::round(exact)));
        });
    row(Z_dichtheid_00_17_click, 2, "Het voorwerp heeft een gewicht van # g. Hoe groot is de dichtheid? | # | # | #",
        counts(v[0] / block), range({{4, 583, 40}, {2, 9}, {2, 9}, {3, 9}, {0.3, 0.8}}),
        range({{15, 3456, 200}, {2, 9}, {2, 9}, {3, 9}, {1.25, 12}}), right(rounded(v[4], 2)),
        wrong("een vermenigvuldiging gedaan? Je moet een deling doen", v[0] * block),
        wrong("rekenfoutje", lies::below, lies::above), wrong("teller en noemer verwisseld", rounded(block / v[0], 2)),
        explains("# x # x # = # cm³. *: # : # =", v[1], v[3], v[2], block, v[0], block));
    row(Z_volumeprocent_00_17_click, 3,
        "drinkt # glazen (jenever|wijn|bier). Op de fles staat vermeld: # vol.%. Elk glas bevat # mL. * | {jenever|wijn|bier} | $2 vol.%",
        range({{2, 6}, {0, 0}, {35, 40}, {30, 40}}), range({{2, 6}, {1, 1}, {11, 13}, {100, 150}}),
        range({{2, 6}, {2, 2}, {4, 6}, {200, 250}}), right(alcohol),
        wrong("", alcohol / v[0], alcohol - alcohol / v[0], rounded(alcohol / 10, 2), alcohol + alcohol / v[0],
              alcohol * 2, alcohol * 10),
        explains("In # glazen *# x # = # mL *# % van #", v[0], v[0], v[3], v[0] * v[3], v[2], v[0] * v[3]),
        tips("", "Tweede stap: bekijk hoeveel % daarvan"));
});

// The last draw is the place of the right answer.
TEST(circle_1, lays_the_right_answer_at_the_first_place_seldom_at_the_second_else_at_the_others) {
    oefeningen maker([] { return 0.0F; });
    for (const auto& [drawn, place] :
         {std::pair{0.39F, 1}, {0.401F, 2}, {0.409F, 2}, {0.411F, 3}, {0.699F, 3}, {0.701F, 4}}) {
        maker.toeval.put_in({0.5F, 0.9F, 0.1F, drawn});
        maker.maak(B_cirkel_1_00_13_click);
        EXPECT_EQ(maker.juiste_positie, place) << drawn;
    }
}

} // namespace
} // namespace cijferwerf
