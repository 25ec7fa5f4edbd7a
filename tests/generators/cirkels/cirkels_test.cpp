// Circles, volumes and densities: what is drawn, the answers worked out again, and each wrong answer as the mistake
// that its feedback names.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

const formula ride = [](const reading& n) { return rounded((decimal(n.words[2]) - decimal(n.words[1])) * 1000); };
const formula root = lifted([](double x) { return std::sqrt(x); }, B / 3.14),
              radius = rounded(chosen(A, {B / 6.28, root}), 6);
const formula deep = F / G, wide = E / G, high = D / A; // tins in a crate
const formula rolled = A + B - C, turns = B / (A * 0.0628);
const formula ends = B * B * 0.785; // of the grass, and the circle in a rectangle
const formula disc = A * A * 3.14, m = A / 100, m2 = B * B / 1e4;
const formula base = A * A * 0.785, block = B * C * D, alcohol = A * D * C / 100;

const exercise_rows circles([] {
    row(B_cirkel_1_00_13_click, 2, "een straal van # cm. Hoe groot is de (omtrek|oppervlakte)? | r = $0 cm",
        range({{2, 15}, {0, 1}}), range({{2, 14}, {0, 1}}),
        right(chosen(B, {says("# cm", A * 6.28), says("# cm²", disc)})),
        wrong("Je hebt de oppervlakte berekend, in plaats van de omtrek.", says("# cm²", disc)),
        wrong("Je hebt de omtrek berekend in plaats van de de oppervlakte.", says("# cm", A * 6.28)),
        wrong("middellijn", says("# cm", A * 2)),
        wrong("formule voor de omtrek", says("# cm", A * 3.14), says("# cm", A * 12.56)),
        wrong("formule voor de oppervlakte", says("# cm²", A * 3.14), says("# cm²", disc * 2)));
    row(L_cirkel_2_00_13_click, 2, "een (omtrek|oppervlakte) van # ", counts(radius),
        range({{0, 0}, {18.84, 94.2}, {3, 15}}), range({{1, 1}, {28.26, 706.5}, {3, 15}}), right(C),
        wrong("middellijn", C * 2), wrong("Je moet nog door 3,14 delen", C * 3.14),
        wrong("twee keer door 3,14", rounded(C / 3.14, 2)), wrong("foute formule", C / 2),
        wrong("kwadraat van de straal", C * C), wrong("Je hebt de omtrek", C * 6.28));
    row(M_in_elkaar_00_13_click, 2, "het gele gedeelte. | # cm | # cm", range({{7, 31}, {6, 20}}),
        range({{10, 50}, {6, 20}}), right(A * B - ends), wrong("allebei de figuren de omtrek", (A + B) * 2 - B * 3.14),
        wrong("alleen de oppervlakte van de cirkel", ends), wrong("opgeteld in plaats van afgetrokken", A * B + ends));
    row(M_blikjes_00_13_click, 4,
        "hoogte van # cm. * een (diameter|straal) van # cm.*Het krat is # cm hoog, # cm breed en # cm lang.",
        counts(C * (B + 1)), range({{7, 15}, {0, 1}, {3, 10}, {14, 45}, {18, 50}, {24, 70}}), right(deep * wide * high),
        wrong("passen in de lengte van het krat? En hoeveel in de hoogte?", deep * wide, wide * high),
        wrong("passen in de breedte van het krat? En", deep * high),
        wrong("door de straal gedeeld", deep * wide * high * 4));
    row(M_huls_00_13_click, 2, "papier van # bij # cm. * een huls gemaakt van # cm lang. * | $0 cm | $1 cm",
        range({{15, 35}, {12, 24}, {15, 35}}), range({{15, 35}, {12, 24}, {12, 24}}), right(rounded(rolled / 3.14, 2)),
        wrong("Je hebt de straal", rounded(rolled / 6.28, 2)),
        wrong("Je hebt de lengte als omtrek", rounded(A / 3.14, 2)),
        wrong("Je hebt de breedte als omtrek", rounded(B / 3.14, 2)), wrong("door 2 gedeeld", rolled / 2),
        explains("huls is # cm lang. *van # cm, ", C, rolled));
    row(M_pizza_00_13_click, 3, "zijden van # cm. * ronde kant is # cm. * | PIZZA (TELMORA|ROMANO|JOHANNA)",
        range({{5, 7}, {3.1, 11}, {0, 0}}), range({{8, 10}, {5, 15.7}, {1, 1}}), range({{11, 13}, {6.9, 20.4}, {2, 2}}),
        right(rounded(A * 6.28 / B)), explains(") # cm.", rounded(A * 6.28, 1)), tips("", "2 x 3,14 x de straal"),
        [](const reading& n) { EXPECT_NEAR(6.28 * n[0] / n[1], decimal(n.exercise.right), 0.2); });
    row(Z_fietswiel_00_13_click, 2, "@ maakt een fietstocht. * fietswiel is # cm. * BEGIN | @ | km | EINDE | @ | km",
        counts(ride), range({{28, 35}, {5200, 19900, 200}}), range({{28, 35}, {20100, 59800, 300}}), words({10}),
        right(rounded(turns)), wrong("eerst de afstand", rounded(turns / 100), rounded(turns / 1000)),
        wrong("3,14 x straal genomen", rounded(turns * 2)),
        explains("= # km. Dat is # m. *omtrek: # : #.", B / 1000, B, B, A * 0.0628));
    row(M_skelterbaan_00_13_click, 2, "| # m | # m", range({{26, 39}, {20, 32}}), range({{27, 39}, {21, 33}}),
        right(rounded(ends + A * B, 2)), wrong("de diameter voor de straal", ends * 4 + A * B),
        wrong("de rechthoek vergeten", rounded(ends, 2)), wrong("de twee halve cirkels vergeten", A * B),
        wrong("één grote rechthoek", (A + B) * B), wrong("de omtrek van het gras", A * 2 + B * 3.14));
    row(M_vijver_00_13_click, 2, "| # cm", range({{150, 240}}), range({{250, 350}}), right(rounded(m * 5.14, 2)),
        wrong("helemaal rond?", rounded(m * 6.28, 2)), wrong("rechte stuk vergeten", rounded(m * 3.14, 2)),
        wrong("oppervlakte van de vijver", rounded(m * m * 1.57, 2)),
        wrong("de straal genomen in plaats van de diameter", rounded(m * 4.14, 2)),
        explains("is # cm, dat is # m.", A, m));
    row(Z_terras_00_13_click, 2, "kost € #,- per m². De straal van dit terras is # cm. * | Straal: $1 cm",
        range({{25, 60}, {150, 240}}), range({{25, 60}, {250, 350}}), right(rounded(m2 * 3.14 * A)),
        wrong("met de omtrek van de cirkel gerekend. Bereken eerst", rounded(m * 6.28 * B)),
        wrong("De straal moet in het kwadraat", rounded(m * 3.14 * B)), wrong("Je bent 3,14 vergeten", rounded(m2 * A)),
        wrong("de diameter voor de straal", rounded(m2 * 12.56 * A)), explains("is # cm, dat is # m.", B, B / 100));
    row(M_cilinder_00_17_click, 2, "een middellijn van # cm en een hoogte van # cm. *| $0 cm | $1 cm",
        range({{2, 7}, {3, 17}}), range({{8, 15}, {3, 17}}), right(rounded(base * B, 2)),
        wrong("met de hoogte vermenigvuldigen", rounded(base, 2)), wrong("omtrek x hoogte", A * B * 3.14),
        wrong("de middellijn genomen in plaats van de straal", base * B * 4), wrong("in het kwadraat", A * B * 1.57),
        explains("inhoud is dus (afgerond |)", base * B == rounded(base * B, 2)));
    row(Z_dichtheid_00_17_click, 2, "een gewicht van # g. *| # | # | #", counts(A / block),
        range({{4, 583, 40}, {2, 9}, {2, 9}, {3, 9}, {0.3, 0.8}}),
        range({{15, 3456, 200}, {2, 9}, {2, 9}, {3, 9}, {1.25, 12}}), right(rounded(E, 2)),
        wrong("een vermenigvuldiging gedaan? Je moet een deling doen", A * block),
        wrong("rekenfoutje", lies::below, lies::above), wrong("teller en noemer verwisseld", rounded(block / A, 2)),
        explains("dichtheid is dus (ongeveer |)", E == rounded(E, 2)));
    row(Z_volumeprocent_00_17_click, 3,
        "drinkt # glazen (jenever|wijn|bier). *: # vol.%. Elk glas bevat # mL. * | {jenever|wijn|bier} | $2 vol.%",
        range({{2, 6}, {0, 0}, {35, 40}, {30, 40}}), range({{2, 6}, {1, 1}, {11, 13}, {100, 150}}),
        range({{2, 6}, {2, 2}, {4, 6}, {200, 250}}), right(alcohol),
        wrong("", alcohol / A, alcohol - alcohol / A, rounded(alcohol / 10, 2), alcohol + alcohol / A, alcohol * 2,
              alcohol * 10),
        explains("In # glazen *mL (jenever|wijn|bier). Hiervan is # % alcohol. Dat is # % van", A, B, C, C),
        tips("", "Tweede stap: bekijk hoeveel % daarvan"));
});

// The last draw is the place of the right answer.
TEST(circle_1, lays_the_right_answer_at_the_first_place_seldom_at_the_second_else_at_the_others) {
    oefeningen maker([] { return 0.0F; });
    for (const auto& [drawn, place] :
         {std::pair{0.39F, 1}, {0.4F, 2}, {0.409F, 2}, {0.41F, 3}, {0.699F, 3}, {0.7F, 4}}) {
        maker.toeval.put_in({0.5F, 0.9F, 0.1F, drawn});
        maker.maak(B_cirkel_1_00_13_click);
        EXPECT_EQ(maker.juiste_positie, place) << drawn;
    }
}

} // namespace
} // namespace cijferwerf
