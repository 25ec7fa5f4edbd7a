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

const formula all_kJ = B + C + D + E, asked_kJ = chosen(A, {B, C, D, E}), exact = asked_kJ * 100 / all_kJ,
              share = rounded(exact);
formula counter(std::size_t word) {
    return [=](const reading& n) { return decimal(n.exercise.words[word]); };
}

const formula kWh_of_lamp = A * B / 60000;
const formula euros_a_month = A * B * C / 100000;
// What so many watts cost in a year at so many hours a day, in euros.
formula a_year(const formula& watts, const formula& hours = B) { return rounded(watts * hours * D * 365 / 100000, 2); }

const formula less = A - C, kWh_less = less * B * 365 / 1000;

const formula slice = A / B;
const formula bread = A * B * F / 1000, butter = A * C * G / 1000, spread = A * D * H / 1000;
const formula eaten = bread + butter + spread;

const formula price = rounded(A * 100 / B);
const formula saved_m3 = A - B;

const formula years = A / ((C - D) * B / 100), whole_years = floor(years);

const exercise_rows energy([] {
    row(L_energie_00_19_click, 4,
        "maakte (het vervoer|de verwarming|de voeding|de verlichting) uit *| # kJ *| # kJ *| # kJ *| # kJ",
        counts(abs(exact - share)),
        range({{0, 3}, {20000, 29000}, {20000, 29000}, {10000, 19000}, {2000, 9000}, {0, 0.4, 0.1}}),
        right(says("# %", share)), neighbours(share),
        explains(
            "# kJ. Deel de energie van '(vervoer|verwarming|voeding|verlichting)'*(Het vervoer|De verwarming|De voeding|De verlichting) maakte *| totaal | # kJ | *# %",
            all_kJ, A, A, all_kJ, share),
        tips("", "van '(vervoer|verwarming|voeding|verlichting)' door die totale energie"));
    row(L_gas_1_00_19_click, 2, "een m³ aardgas # cent is.", counts(counter(6) - counter(3), counter(3), counter(6)),
        range({{31, 69}, {400, 990}, {10000, 96999, 900}, {10400, 97989, 900}}),
        range({{31, 69}, {1200, 2800}, {10000, 96999, 900}, {11200, 99799, 1600}}), right(A * B / 100),
        wrong("", A * (B - 10) / 100, A * (B - 100) / 100, A * (B + 100) / 100, A * D / 100, A * B / 1000, A * B / 10),
        explains("# m³ gas. * # cent, dus # m³ kost *verschil: # m³", B, A, B, B),
        tips("", "met de prijs van een m³. Zet"));
    row(M_elektriciteit_1_00_19_click, 5, "van # Watt brandt gedurende # minuten. *| $0 W",
        range({{25, 100}, {12, 54}}), right(says("# kWh", kWh_of_lamp)),
        wrong("zeker 100 minuten in een uur gerekend", says("# kWh", A * B / 100000)),
        wrong("1 kW = 1.000 W, niet 100 W.", says("# kWh", A * B / 6000)),
        wrong("twee dingen verkeerd gedaan", says("# kWh", A * B / 10000)),
        explains("van # Watt, dat is gelijk aan # kW * brandt # minuten, dat is #/60", A, A / 1000, B, B));
    row(M_elektriciteit_2_00_19_click, 5, "Een @ van # Watt * gedurende # uur * 1 kWh # eurocent kost? | $a | $0 W",
        range({{20, 60}, {50, 150}, {18, 40}}), range({{20, 40}, {50, 150}, {18, 40}}),
        range({{80, 160}, {50, 150}, {18, 40}}), range({{700, 1200}, {10, 30}, {18, 40}}),
        range({{1000, 2000}, {3, 12}, {18, 40}}), words({5}), right(euros_a_month),
        wrong("", euros_a_month * 10, rounded(euros_a_month / 10, 2), B * C / 100, A * B / 1000,
              euros_a_month - C / 100, rounded(A * C / 10000, 2)),
        explains("dus # Watt is # kW. * # kWh. Eén kWh kost # eurocent", A, A / 1000, A * B / 1000, C),
        tips("", "aantal kWh energie uit. Derde stap:  reken de totale"));
    row(M_voeding_1_00_19_click, 10, "een brood van # gram. *# boterhammen. *| @brood \\($0 g) |*| # kJ per kg.",
        counts(slice), range({{400, 960}, {16, 24}, {10000, 13900}, {25, 40}}), words({10}),
        right(says("# kJ", A * C / B / 1000)), neighbours(A * C / B / 1000, 20),
        explains("is dat # kg. In 1 kg brood zit # kJ", slice / 1000, C),
        tips("", "om in kg... Derde stap: vermenigvuldig"));
    row(M_voeding_2_00_19_click, 3,
        "eet # boterhammen van elk # g. *# g boter en # g (kaas|pindakaas|hagelslag). *| # kJ per kg *| # kJ per kg | "
        "{kaas:|pindakaas:|hagelslag:} | # kJ per kg",
        range({{2, 6}, {30, 40}, {4, 8}, {15, 25}, {0, 2}, {13000, 16000}, {28000, 30000}, {10000, 27000}}),
        right(says("# kJ", eaten)),
        wrong("", eaten / A, eaten - butter, eaten - spread, bread + (butter + spread) / A,
              bread + A * (D * G + C * H) / 1000, bread + A * (C + D) * G / 1000, eaten * 10),
        tips("", "de boter en de (kaas|pindakaas|hagelslag) van alle"));
    row(M_water_1_00_19_click, 2, "hoeveelheid water moest € #* betaald worden.",
        counts(counter(6) - counter(3), counter(3), counter(6), price),
        range({{32.4, 179.55, 9}, {40, 95}, {1000, 9699, 90}, {1040, 9794, 90}, {81, 189}}),
        range({{89.1, 453.6, 20}, {110, 240}, {1000, 9699, 90}, {1110, 9939, 190}, {81, 189}}),
        right(says("# eurocent", price)),
        wrong("", rounded(A * 100 / (B - 10)), rounded(A * 100 / (B + 10)), rounded(price / 10), price * 10, B,
              rounded(A)),
        explains("dat is # eurocent. Deel * verschil: # m³", A * 100, B), tips("", "Trek dus # van # af"));
    row(M_water_2_00_19_click, 2, "| Aan de familie @ | *| Vorig jaar: # m³ | Dit jaar: # m³",
        counts(saved_m3 * 100 / A), range({{104, 300}, {77, 270}, {10, 30}}), range({{125, 300}, {90, 282}, {6, 29}}),
        words({6}), right(says("# %", C)), neighbours(C),
        explains("# m³ water. Eerst verbruikte het gezin # m³. *dus # %", saved_m3, A, C),
        tips("", "wat ze eerst verbruikten"));
    row(Z_elektriciteit_3_00_19_click, 5,
        "van # Watt die per dag # uur brandt, * van # Watt * van # eurocent per kWh? | $0 W | $2 W | lamp | spaarlamp",
        range({{25, 100}, {2, 8}, {5, 20}, {20, 40}}), right(kWh_less * D / 100),
        wrong("", a_year(A), a_year(C), a_year(A + C), a_year(less * 10), a_year(less / 10), a_year(less, 1),
              a_year(less, 24)),
        explains("# Watt, dat is # kW. * # kWh. Eén kWh kost # eurocent, dus", less, less / 1000, kWh_less, D),
        tips("", "aantal kWh bespaarde energie"));
    row(Z_gas_2_00_19_click, 2,
        "van € #,-. * aardgas # eurocent is. *| vóór de isolatie: # m³ gas | na de isolatie: # m³ gas",
        counts(C - D, whole_years + 1, years - whole_years),
        range({{1500, 4500}, {40, 70}, {1600, 3100}, {1200, 2400}, {400, 700}, {4, 12}, {0.1, 0.9, 0.1}}),
        range({{1500, 4500}, {40, 70}, {2000, 3600}, {1200, 2400}, {800, 1200}, {3, 12}, {0.1, 0.9, 0.1}}),
        right(says("in het #e jaar", F)), neighbours(F), tips("", "hij per jaar bespaart. Derde stap: deel de iso"));
});

} // namespace
} // namespace cijferwerf
