// Energy about the house: what is drawn, the answers worked out again from what a pupil sees, and the mistakes that the
// wrong ones stand for.
#include "tests/support/exercise_rows.h"

namespace cijferwerf {
namespace {

// Four answers in a row: each neighbour up to three steps away.
row_part neighbours(const formula& right, int step = 1) {
    return wrong("", right - 3 * step, right - 2 * step, right - step, right + step, right + 2 * step,
                 right + 3 * step);
}

// Of the kinds of energy the one that is asked about, and all.
const formula asked_kJ = [](const reading& n) { return n[1 + static_cast<std::size_t>(n[0])]; };
const formula all_kJ = v[1] + v[2] + v[3] + v[4], share = rounded(asked_kJ * 100 / all_kJ);
void check_share(const reading& n) {
    EXPECT_EQ(n[0] + 1, n.variant());
    const double exact = 100 * n[1 + static_cast<std::size_t>(n[0])] / (n[1] + n[2] + n[3] + n[4]);
    EXPECT_GE(std::abs(exact - std::floor(exact) - 0.5), 0.1 - 1e-9) << exact << " might be rounded either way";
    EXPECT_GE(std::ranges::min(n.exercise.numbers()), 1);
    EXPECT_EQ(n.exercise.explanation.find("ongeveer") == std::string::npos, same(exact, std::round(exact)));
}

// A counter's digits stand apart.
formula counter(std::size_t word) {
    return [=](const reading& n) {
        std::string digits = n.exercise.words[word];
        std::erase(digits, ' ');
        return decimal(digits);
    };
}

int watts_of(const reading& n, std::vector<int> by_variant) {
    return by_variant.at(static_cast<std::size_t>(n.variant() - 1));
}
const formula kWh_of_lamp = v[0] * v[1] / 60000;
const formula euros_a_month = v[0] * v[1] * v[2] / 100000;
// What so many watts cost in a year at so many hours a day, in euros.
formula a_year(const formula& watts, const formula& hours = v[1]) {
    return rounded(watts * hours * v[3] * 365 / 100000, 2);
}

const formula less = v[0] - v[2], kWh_less = less * v[1] * 365 / 1000;

const formula slice = v[0] / v[1];
const formula bread = v[0] * v[1] * v[5] / 1000, butter = v[0] * v[2] * v[6] / 1000, spread = v[0] * v[3] * v[7] / 1000;
const formula eaten = bread + butter + spread;

const formula price = rounded(v[0] * 100 / v[1]);
const formula saved_m3 = v[0] - v[1];

const formula saved_euros = (v[2] - v[3]) * v[1] / 100;
const formula whole_years = [](const reading& n) { return std::floor(n[0] / ((n[2] - n[3]) * n[1] / 100)); };
void check_years(const reading& n) {
    const double quotient = n[0] / ((n[2] - n[3]) * n[1] / 100);
    EXPECT_LE(std::abs(quotient - n[5] + 0.5), 0.4 + 1e-9) << quotient << " does not tell the year";
}

const exercise_rows energy([] {
    row(L_energie_00_19_click, 4,
        "Hoeveel % maakte (het vervoer|de verwarming|de voeding|de verlichting) uit van het geheel? | SOORT | PER "
        "DAG | vervoer | # kJ | verwarming | # kJ | voeding | # kJ | verlichting | # kJ",
        range({{0, 3}, {20000, 29000}, {20000, 29000}, {10000, 19000}, {2000, 9000}}), right(says("# %", share)),
        neighbours(share),
        explains(
            "# kJ. Deel de energie van '(vervoer|verwarming|voeding|verlichting)'* # : # x 100 = * (Het vervoer|De verwarming|De voeding|De verlichting) maakte * totaal | # kJ | * # %",
            all_kJ, v[0], asked_kJ, all_kJ, v[0], all_kJ, share),
        tips("", "van '(vervoer|verwarming|voeding|verlichting)' door die totale energie"), check_share);
    row(L_gas_1_00_19_click, 2,
        "een m³ aardgas # cent is. Bereken hoeveel * | GASMETER | oude stand | m³ | * | nieuwe stand | m³ | *",
        counts(counter(6) - counter(3), counter(3), counter(6)),
        range({{31, 69}, {400, 990}, {10000, 96999, 900}, {10400, 97989, 900}}),
        range({{31, 69}, {1200, 2800}, {10000, 96999, 900}, {11200, 99799, 1600}}), right(v[0] * v[1] / 100),
        wrong("", v[0] * (v[1] - 10) / 100, v[0] * (v[1] - 100) / 100, v[0] * (v[1] + 100) / 100, v[0] * v[3] / 100,
              v[0] * v[1] / 1000, v[0] * v[1] / 10),
        explains("# - # = # m³ gas. * # cent, dus # m³ kost # x # = *verschil: # m³", v[3], v[2], v[1], v[0], v[1],
                 v[1], v[0], v[1]),
        tips("", "met de prijs van een m³. Zet"));
    row(M_elektriciteit_1_00_19_click, 5,
        "Een lamp van # Watt brandt gedurende # minuten. Hoeveel energie verbruikt deze lamp? | $0 W",
        range({{25, 100}, {12, 54}}), right(says("# kWh", kWh_of_lamp)),
        wrong("zeker 100 minuten in een uur gerekend", says("# kWh", v[0] * v[1] / 100000)),
        wrong("1 kW = 1.000 W, niet 100 W.", says("# kWh", v[0] * v[1] / 6000)),
        wrong("twee dingen verkeerd gedaan", says("# kWh", v[0] * v[1] / 10000)),
        explains("van # Watt, dat is gelijk aan # kW * brandt # minuten, dat is #/60 = # uur * Uitkomst: # x #", v[0],
                 v[0] / 1000, v[1], v[1], v[1] / 60, v[0] / 1000, v[1] / 60),
        [](const reading& n) {
            EXPECT_EQ(n[0], watts_of(n, {25, 40, 60, 75, 100}));
        });
    row(M_elektriciteit_2_00_19_click, 5,
        "Een @ van # Watt wordt per maand gedurende # uur gebruikt. * als 1 kWh # eurocent kost? | @ | $0 W",
        range({{20, 60}, {50, 150}, {18, 40}}), range({{20, 40}, {50, 150}, {18, 40}}),
        range({{80, 160}, {50, 150}, {18, 40}}), range({{700, 1200}, {10, 30}, {18, 40}}),
        range({{1000, 2000}, {3, 12}, {18, 40}}), words({5, 5}), right(euros_a_month),
        wrong("", euros_a_month * 10, rounded(euros_a_month / 10, 2), v[1] * v[2] / 100, v[0] * v[1] / 1000,
              euros_a_month - v[2] / 100, rounded(v[0] * v[2] / 10000, 2)),
        explains("dus # Watt is # kW. * # x # = # kWh. Eén kWh kost # eurocent, * # x # = ", v[0], v[0] / 1000,
                 v[0] / 1000, v[1], v[0] * v[1] / 1000, v[2], v[0] * v[1] / 1000, v[2]),
        tips("", "aantal kWh energie uit. Derde stap:  reken de totale"), [](const reading& n) {
            EXPECT_EQ(n.words[0], n.words[1]);
            for (const text_op& on_card : n.exercise.texts) {
                EXPECT_TRUE(on_card.x > 3300 && on_card.x + text_width(on_card.text, on_card.size) < 5200);
            }
        });
    row(M_voeding_1_00_19_click, 10,
        "een brood van # gram. Van dit brood snijd je # boterhammen. * | IN DE RECLAME: | @brood \\($0 g) | met een "
        "voedingswaarde van | # kJ per kg.",
        counts(slice), range({{400, 960}, {16, 24}, {10000, 13900}, {25, 40}}), words({10}),
        right(says("# kJ", v[0] * v[2] / v[1] / 1000)), neighbours(v[0] * v[2] / v[1] / 1000, 20),
        explains("weegt # : # = * is dat # kg. In 1 kg brood zit # kJ, * # x # = ", v[0], v[1], slice / 1000, v[2],
                 slice / 1000, v[2]),
        tips("", "om in kg... Derde stap: vermenigvuldig"));
    row(M_voeding_2_00_19_click, 3,
        "Je eet # boterhammen van elk # g. Op elke boterham doe je # g boter en # g (kaas|pindakaas|hagelslag). * | "
        "BROOD: | # kJ per kg | BOTER: | # kJ per kg | {kaas:|pindakaas:|hagelslag:} | # kJ per kg",
        range({{2, 6}, {30, 40}, {4, 8}, {15, 25}, {0, 2}, {13000, 16000}, {28000, 30000}, {10000, 27000}}),
        right(says("# kJ", eaten)),
        wrong("", eaten / v[0], eaten - butter, eaten - spread, bread + (butter + spread) / v[0],
              bread + v[0] * (v[3] * v[6] + v[2] * v[7]) / 1000, bread + v[0] * (v[2] + v[3]) * v[6] / 1000,
              eaten * 10),
        explains(
            "Het brood: # x # g = # kg; * x # = * De boter: # x # g = # kg; * x # = * De (kaas|pindakaas|hagelslag): # x # g = # kg; * x # = * # + # + # =",
            v[0], v[1], v[0] * v[1] / 1000, v[5], v[0], v[2], v[0] * v[2] / 1000, v[6], v[4], v[0], v[3],
            v[0] * v[3] / 1000, v[7], bread, butter, spread),
        tips("", "de boter en de (kaas|pindakaas|hagelslag) van alle"));
    row(M_water_1_00_19_click, 2,
        "hoeveelheid water moest € #* betaald worden. * | WATERMETER | oude stand | m³ | * | nieuwe stand | m³ | *",
        counts(counter(6) - counter(3), counter(3), counter(6), price),
        range({{32.4, 179.55, 9}, {40, 95}, {1000, 9699, 90}, {1040, 9794, 90}, {81, 189}}),
        range({{89.1, 453.6, 20}, {110, 240}, {1000, 9699, 90}, {1110, 9939, 190}, {81, 189}}),
        right(says("# eurocent", price)),
        wrong("", rounded(v[0] * 100 / (v[1] - 10)), rounded(v[0] * 100 / (v[1] + 10)), rounded(price / 10), price * 10,
              v[1], rounded(v[0])),
        explains("# - # = * dat is # eurocent. Deel dat door het aantal m³: # : # = * verschil: # m³", v[3], v[2],
                 v[0] * 100, v[0] * 100, v[1], v[1]),
        tips("", "Trek dus # van # af"));
    row(M_water_2_00_19_click, 2,
        "zuinig met water. * | De Gemeentelijke Waterleidingen | Aan de familie @ | Hieronder staat uw verbruik van "
        "water. | Vorig jaar: # m³ | Dit jaar: # m³",
        counts(saved_m3 * 100 / v[0]), range({{104, 300}, {77, 270}, {10, 30}}),
        range({{125, 300}, {90, 282}, {6, 29}}), words({6}), right(says("# %", v[2])), neighbours(v[2]),
        explains("# - # = # m³ water. Eerst verbruikte het gezin # m³. * # : # x 100", v[0], v[1], saved_m3, v[0],
                 saved_m3, v[0]),
        tips("", "wat ze eerst verbruikten"),
        [](const reading& n) { EXPECT_EQ(std::fmod(n[2], 5) == 0, n.variant() == 1); });
    row(Z_elektriciteit_3_00_19_click, 5,
        "Een lamp van # Watt die per dag # uur brandt, * spaarlamp van # Watt * prijs van # eurocent per kWh? | $0 W "
        "| $2 W | lamp | spaarlamp",
        range({{25, 100}, {2, 8}, {5, 20}, {20, 40}}), right(kWh_less * v[3] / 100),
        wrong("", a_year(v[0]), a_year(v[2]), a_year(v[0] + v[2]), a_year(less * 10), a_year(less / 10),
              a_year(less, 1), a_year(less, 24)),
        explains(
            "# - # = # Watt, dat is # kW. * # x 365 = # branduren. * # x # = # kWh. Eén kWh kost # eurocent, dus # x # = ",
            v[0], v[2], less, less / 1000, v[1], v[1] * 365, less / 1000, v[1] * 365, kWh_less, v[3], kWh_less, v[3]),
        tips("", "aantal kWh bespaarde energie"), [](const reading& n) {
            EXPECT_EQ(n[0] * 100 + n[2], watts_of(n, {2505, 4010, 6010, 7515, 10020}));
        });
    row(Z_gas_2_00_19_click, 2,
        "voor een bedrag van € #,-. Hiernaast * aardgas # eurocent is. * | Het Gasbedrijf | * | vóór de isolatie: # "
        "m³ gas | na de isolatie: # m³ gas",
        counts(v[2] - v[3], whole_years + 1),
        range({{1500, 4500}, {40, 70}, {1600, 3100}, {1200, 2400}, {400, 700}, {4, 12}}),
        range({{1500, 4500}, {40, 70}, {2000, 3600}, {1200, 2400}, {800, 1200}, {3, 12}}),
        right(says("in het #e jaar", v[5])), neighbours(v[5]),
        explains(
            "# - # = # m³ gas. Dat is # x € # = € #,- per jaar. De isolatie kost € #,- en # : # = ongeveer #, dus het duurt ten minste # jaar * in het #e",
            v[2], v[3], v[4], v[4], v[1] / 100, saved_euros, v[0], v[0], saved_euros, rounded(v[0] / saved_euros, 1),
            whole_years, v[5]),
        tips("", "hij per jaar bespaart. Derde stap: deel de iso"), check_years);
});

} // namespace
} // namespace cijferwerf
